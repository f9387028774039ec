#include "store/InserareInLot.h"

#include "base/Eroare.h"
#include "store/Sql.h"

#include <algorithm>
#include <bit>
#include <tuple>
#include <utility>

namespace {
// Both engines take at least 32,766 values in one statement (SQLite since 3.32, PostgreSQL 65,535).
constexpr qsizetype ValoriPeInstructiune = 30000;
constexpr qsizetype RanduriMaxime = 500;
// SQLite numbers the placeholders of a statement as it prepares it, at a cost that grows with the
// square of their count; its statements stay short, and it has no round trip to spare anyway.
constexpr qsizetype RanduriMaximeSQLite = 50;
} // namespace

InserareInLot::InserareInLot(BazaDate& db, const QString& tabela, const QStringList& campuri)
    : db_(db), tabela_(tabela), campuri_(campuri),
      randuriPeInstructiune_(std::clamp<qsizetype>(ValoriPeInstructiune / std::max<qsizetype>(campuri.size(), 1), 1,
                                                   db.dialect().EsteSQLite() ? RanduriMaximeSQLite : RanduriMaxime)) {
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
    qsizetype scrise = 0;
    while (scrise < randuri) {
        // What is left under a full statement goes in powers of two, so that a run prepares a handful
        // of sizes, each once: preparing a long statement costs more than running it.
        qsizetype n = randuriPeInstructiune_;
        if (randuri - scrise < n) n = std::bit_floor(size_t(randuri - scrise));
        auto it = instructiuni_.find(n);
        if (it == instructiuni_.end())
            it = instructiuni_
                     .emplace(std::piecewise_construct, std::forward_as_tuple(n),
                              std::forward_as_tuple(db_, instructiune(n)))
                     .first;
        Interogare* q = &it->second;
        const size_t primul = size_t(scrise * campuri_.size());
        for (size_t i = primul; i < primul + size_t(n * campuri_.size()); ++i)
            q->Leaga(valori[i]);
        q->Executa();
        scrise += n;
    }
}
