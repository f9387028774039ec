#include "store/InserareInLot.h"

#include "base/Eroare.h"
#include "store/Sql.h"

#include <QSqlDriver>
#include <libpq-fe.h>
#include <sqlite3.h>
#include <utility>

namespace {

// The engine's own connection under the SQL module's, by the name the driver gives its type (the
// PostgreSQL driver has named it by the library's struct and by its typedef).
template <typename T> T* conexiuneMotor(BazaDate& db, std::initializer_list<const char*> tipuri) {
    const QVariant h = db.conexiune().driver()->handle();
    for (const char* tip : tipuri)
        if (h.isValid() && qstrcmp(h.typeName(), tip) == 0) return *static_cast<T* const*>(h.constData());
    throw Eroare(QStringLiteral("Driverul bazei de date nu ofera conexiunea %1").arg(QLatin1String(*tipuri.begin())));
}

// None, as the SQL module binds it: a null text is no value either.
bool nul(const QVariant& v) {
    return v.isNull() || (v.typeId() == QMetaType::QString && static_cast<const QString*>(v.constData())->isNull());
}

// A value in COPY's text form: \N for none; backslash, tab and line ends escaped.
void adaugaCopy(QByteArray& linie, const QVariant& v) {
    if (nul(v)) {
        linie += "\\N";
        return;
    }
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
        linie += QByteArray::number(v.toLongLong());
        return;
    case QMetaType::Double:
        linie += QByteArray::number(v.toDouble(), 'g', 17);
        return;
    default:
        break;
    }
    for (const char c : v.toString().toUtf8()) {
        switch (c) {
        case '\\':
            linie += "\\\\";
            break;
        case '\t':
            linie += "\\t";
            break;
        case '\n':
            linie += "\\n";
            break;
        case '\r':
            linie += "\\r";
            break;
        default:
            linie += c;
        }
    }
}

} // namespace

struct InserareInLot::Instructiune {
    sqlite3_stmt* stmt = nullptr;
    ~Instructiune() { sqlite3_finalize(stmt); }
};

InserareInLot::InserareInLot(BazaDate& db, const QString& tabela, const QStringList& campuri)
    : db_(db), tabela_(tabela), campuri_(campuri) {
    if (campuri_.isEmpty()) throw Eroare(QStringLiteral("Inserare fara campuri in %1").arg(tabela));
}

InserareInLot::~InserareInLot() = default;

InserareInLot& InserareInLot::LeagaValoare(const QVariant& v) {
    if (legate_ == campuri_.size())
        throw Eroare(QStringLiteral("Prea multe valori pentru un rand din %1").arg(tabela_));
    valori_.push_back(db_.dialect().Parametru(v));
    ++legate_;
    return *this;
}

InserareInLot& InserareInLot::Executa() {
    if (const qsizetype legate = std::exchange(legate_, 0); legate != campuri_.size()) {
        valori_.resize(valori_.size() - size_t(legate));
        throw Eroare(
            QStringLiteral("Un rand din %1 are %2 valori din %3").arg(tabela_).arg(legate).arg(campuri_.size()));
    }
    return *this;
}

void InserareInLot::Scrie() {
    // Emptied however it ends (after a failure the caller's transaction is undone, and so are these
    // rows), keeping its memory for the next rows: fresh memory for every lot costs more than writing.
    struct Goleste {
        std::vector<QVariant>& v;
        ~Goleste() { v.clear(); }
    } goleste{valori_};
    if (valori_.empty()) return;
    if (db_.dialect().EsteSQLite())
        scrieSQLite(valori_);
    else
        scriePostgreSQL(valori_);
}

void InserareInLot::scrieSQLite(const std::vector<QVariant>& valori) {
    sqlite3* s = conexiuneMotor<sqlite3>(db_, {"sqlite3*"});
    const auto esec = [&] {
        return Eroare(QStringLiteral("Eroare la scrierea in %1: %2").arg(tabela_, QString::fromUtf8(sqlite3_errmsg(s))));
    };
    if (!instructiune_) {
        auto i = std::make_unique<Instructiune>();
        const QByteArray sql = Sql::Insert(tabela_, campuri_).toUtf8();
        if (sqlite3_prepare_v3(s, sql.constData(), int(sql.size()), SQLITE_PREPARE_PERSISTENT, &i->stmt, nullptr) !=
            SQLITE_OK)
            throw esec();
        instructiune_ = std::move(i);
    }
    sqlite3_stmt* st = instructiune_->stmt;
    const size_t n = size_t(campuri_.size());
    for (size_t rand = 0; rand < valori.size(); rand += n) {
        for (size_t i = 0; i < n; ++i) {
            const QVariant& v = valori[rand + i];
            const int loc = int(i) + 1;
            if (nul(v)) {
                sqlite3_bind_null(st, loc);
                continue;
            }
            switch (v.typeId()) {
            case QMetaType::Int:
            case QMetaType::LongLong:
                sqlite3_bind_int64(st, loc, v.toLongLong());
                break;
            case QMetaType::Double:
                sqlite3_bind_double(st, loc, v.toDouble());
                break;
            case QMetaType::QString: {
                const QString& t = *static_cast<const QString*>(v.constData());
                sqlite3_bind_text16(st, loc, t.utf16(), int(t.size() * 2), SQLITE_STATIC);
                break;
            }
            default: {
                const QString t = v.toString();
                sqlite3_bind_text16(st, loc, t.utf16(), int(t.size() * 2), SQLITE_TRANSIENT);
            }
            }
        }
        const int r = sqlite3_step(st);
        sqlite3_reset(st);
        sqlite3_clear_bindings(st);
        if (r != SQLITE_DONE) throw esec();
    }
}

void InserareInLot::scriePostgreSQL(const std::vector<QVariant>& valori) {
    PGconn* c = conexiuneMotor<PGconn>(db_, {"PGconn*", "pg_conn*"});
    const auto esec = [&](const char* text) {
        return Eroare(QStringLiteral("Eroare la scrierea in %1: %2").arg(tabela_, QString::fromUtf8(text).trimmed()));
    };
    const QByteArray copy =
        QStringLiteral("COPY %1 (%2) FROM STDIN").arg(tabela_, campuri_.join(QStringLiteral(", "))).toUtf8();
    PGresult* inceput = PQexec(c, copy.constData());
    const bool gata = PQresultStatus(inceput) == PGRES_COPY_IN;
    PQclear(inceput);
    if (!gata) throw esec(PQerrorMessage(c));

    const size_t n = size_t(campuri_.size());
    QByteArray date;
    bool trimis = true;
    for (size_t rand = 0; rand < valori.size() && trimis; rand += n) {
        for (size_t i = 0; i < n; ++i) {
            if (i > 0) date += '\t';
            adaugaCopy(date, valori[rand + i]);
        }
        date += '\n';
        if (date.size() >= (1 << 20)) {
            trimis = PQputCopyData(c, date.constData(), int(date.size())) == 1;
            date.clear();
        }
    }
    if (trimis && !date.isEmpty()) trimis = PQputCopyData(c, date.constData(), int(date.size())) == 1;
    // Ended either way, so that the connection leaves the copy; a failure aborts it and the
    // transaction with it.
    PQputCopyEnd(c, trimis ? nullptr : "intrerupt");
    QByteArray eroare;
    while (PGresult* r = PQgetResult(c)) {
        if (PQresultStatus(r) != PGRES_COMMAND_OK && eroare.isEmpty()) eroare = PQresultErrorMessage(r);
        PQclear(r);
    }
    if (!trimis || !eroare.isEmpty()) throw esec(eroare.isEmpty() ? PQerrorMessage(c) : eroare.constData());
}
