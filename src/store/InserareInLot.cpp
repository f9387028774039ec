#include "store/InserareInLot.h"

#include "base/Eroare.h"
#include "store/Sql.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace {
// Both engines take at least 32,766 values in one statement (SQLite since 3.32, PostgreSQL 65,535).
constexpr qsizetype ValoriPeInstructiune = 30000;
constexpr qsizetype RanduriMaxime = 500;
} // namespace

InserareInLot::InserareInLot(BazaDate& db, const QString& tabela, const QStringList& campuri)
    : db_(db), tabela_(tabela), campuri_(campuri),
      randuriPeInstructiune_(
          std::clamp<qsizetype>(ValoriPeInstructiune / std::max<qsizetype>(campuri.size(), 1), 1, RanduriMaxime)) {
    if (campuri_.isEmpty()) throw Eroare(QStringLiteral("Inserare fara campuri in %1").arg(tabela));
}

InserareInLot& InserareInLot::LeagaValoare(const QVariant& v) {
    if (legate_ == campuri_.size())
        throw Eroare(QStringLiteral("Prea multe valori pentru un rand din %1").arg(tabela_));
    valori_.push_back(v);
    ++legate_;
    return *this;
}

InserareInLot& InserareInLot::Executa() {
    if (const qsizetype legate = std::exchange(legate_, 0); legate != campuri_.size()) {
        valori_.resize(valori_.size() - size_t(legate));
        throw Eroare(
            QStringLiteral("Un rand din %1 are %2 valori din %3").arg(tabela_).arg(legate).arg(campuri_.size()));
    }
    legate_ = 0;
    return *this;
}

QString InserareInLot::instructiune(qsizetype randuri) const {
    const QString unRand = QStringLiteral("(%1)").arg(Sql::Semne(campuri_.size()));
    QStringList toate;
    toate.reserve(randuri);
    for (qsizetype i = 0; i < randuri; ++i)
        toate << unRand;
    return QStringLiteral("INSERT INTO %1 (%2) VALUES %3")
        .arg(tabela_, campuri_.join(QStringLiteral(", ")), toate.join(QStringLiteral(", ")));
}

void InserareInLot::Scrie() {
    // Taken out first: after a failure the caller's transaction is undone, and so are these rows.
    const std::vector<QVariant> valori = std::exchange(valori_, {});
    const qsizetype randuri = qsizetype(valori.size()) / campuri_.size();
    if (randuri == 0) return;
    std::optional<Interogare> plina;
    qsizetype scrise = 0;
    while (scrise < randuri) {
        const qsizetype n = std::min(randuriPeInstructiune_, randuri - scrise);
        std::optional<Interogare> partiala;
        Interogare* q;
        if (n == randuriPeInstructiune_) {
            if (!plina) plina.emplace(db_, instructiune(n));
            q = &*plina;
        } else {
            q = &partiala.emplace(db_, instructiune(n));
        }
        const size_t primul = size_t(scrise * campuri_.size());
        for (size_t i = primul; i < primul + size_t(n * campuri_.size()); ++i)
            q->Leaga(valori[i]);
        q->Executa();
        scrise += n;
    }
}
