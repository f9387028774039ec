#include "store/CitireRapida.h"

#include "base/Eroare.h"
#include "base/Urmarire.h"

#include <QSqlDriver>
#include <sqlite3.h>

struct CitireRapida::SQLite {
    sqlite3* db = nullptr;
    sqlite3_stmt* stmt = nullptr;
    int legate = 0;
    ~SQLite() { sqlite3_finalize(stmt); }
};

sqlite3* ConexiuneSQLite(BazaDate& db) {
    const QVariant h = db.conexiune().driver()->handle();
    if (!h.isValid() || qstrcmp(h.typeName(), "sqlite3*") != 0)
        throw Eroare(QStringLiteral("Driverul bazei de date nu ofera conexiunea sqlite3"));
    return *static_cast<sqlite3* const*>(h.constData());
}

namespace {

// "2014-11-01" and what follows it, read without the general date parser.
QDate dataIso(const unsigned char* t, int n) {
    const auto cifre = [&](int de, int cate) {
        int x = 0;
        for (int i = de; i < de + cate; ++i) {
            if (t[i] < '0' || t[i] > '9') return -1;
            x = x * 10 + (t[i] - '0');
        }
        return x;
    };
    if (n >= 10 && t[4] == '-' && t[7] == '-') {
        const int a = cifre(0, 4), l = cifre(5, 2), z = cifre(8, 2);
        if (a >= 0 && l >= 0 && z >= 0) return QDate(a, l, z);
    }
    return QDate::fromString(QString::fromUtf8(reinterpret_cast<const char*>(t), std::min(n, 10)), Qt::ISODate);
}

} // namespace

CitireRapida::CitireRapida(BazaDate& db, const QString& sql) : db_(db), sql_(sql) {
    if (db.dialect().EsteSQLite()) {
        lite_ = std::make_unique<SQLite>();
        lite_->db = ConexiuneSQLite(db);
        if (sqlite3_prepare16_v2(lite_->db, sql.utf16(), int(sql.size() * 2), &lite_->stmt, nullptr) != SQLITE_OK)
            throw Eroare(QStringLiteral("%1\n[%2]").arg(QString::fromUtf8(sqlite3_errmsg(lite_->db)), sql));
    } else {
        q_ = std::make_unique<Interogare>(db, sql);
    }
}

CitireRapida::~CitireRapida() = default;

CitireRapida& CitireRapida::LeagaValoare(const QVariant& valoare) {
    if (q_) {
        q_->LeagaValoare(valoare);
        return *this;
    }
    const QVariant v = db_.dialect().Parametru(valoare);
    const int i = ++lite_->legate;
    int rc = SQLITE_OK;
    if (!v.isValid() || v.isNull()) {
        rc = sqlite3_bind_null(lite_->stmt, i);
    } else {
        switch (v.typeId()) {
        case QMetaType::Int:
        case QMetaType::LongLong:
        case QMetaType::UInt:
        case QMetaType::ULongLong:
            rc = sqlite3_bind_int64(lite_->stmt, i, v.toLongLong());
            break;
        case QMetaType::Double:
            rc = sqlite3_bind_double(lite_->stmt, i, v.toDouble());
            break;
        default: {
            const QString t = v.toString();
            rc = sqlite3_bind_text16(lite_->stmt, i, t.utf16(), int(t.size() * 2), SQLITE_TRANSIENT);
        }
        }
    }
    if (rc != SQLITE_OK)
        throw Eroare(QStringLiteral("%1\n[%2]").arg(QString::fromUtf8(sqlite3_errmsg(lite_->db)), sql_));
    return *this;
}

CitireRapida& CitireRapida::Executa() {
    if (q_) {
        q_->Executa();
        return *this;
    }
    sqlite3_reset(lite_->stmt);
    lite_->legate = 0;
    return *this;
}

bool CitireRapida::Urmator() {
    // The rows of a report read over many seconds are what its window shows progress by.
    if (++citite_ >= semn_) semn_ = citite_ + Urmarire::Avans(citite_);
    if (q_) return q_->Urmator();
    const int rc = sqlite3_step(lite_->stmt);
    if (rc == SQLITE_ROW) return true;
    if (rc == SQLITE_DONE) return false;
    throw Eroare(QStringLiteral("%1\n[%2]").arg(QString::fromUtf8(sqlite3_errmsg(lite_->db)), sql_));
}

int CitireRapida::Camp(QLatin1StringView nume) const {
    if (q_) {
        const int i = q_->query().record().indexOf(nume.toString());
        if (i >= 0) return i;
    } else {
        for (int i = 0; i < sqlite3_column_count(lite_->stmt); ++i)
            if (nume.compare(QString::fromUtf8(sqlite3_column_name(lite_->stmt, i)), Qt::CaseInsensitive) == 0)
                return i;
    }
    throw Eroare(QStringLiteral("Exceptie: campul %1 lipseste din rezultatul [%2]").arg(nume, sql_));
}

int CitireRapida::numar(const char* camp) const {
    // A row is read field after field in the same order every time: the next name asked is most
    // often the one after the last found.
    if (urmator_ < campuri_.size() && campuri_[urmator_].first == camp) return campuri_[urmator_++].second;
    for (size_t k = 0; k < campuri_.size(); ++k)
        if (campuri_[k].first == camp) {
            urmator_ = k + 1;
            return campuri_[k].second;
        }
    const int i = Camp(QLatin1StringView(camp));
    campuri_.push_back({camp, i});
    urmator_ = campuri_.size();
    return i;
}

bool CitireRapida::EsteNul(int i) const {
    if (q_) return q_->Valoare(i).isNull();
    return sqlite3_column_type(lite_->stmt, i) == SQLITE_NULL;
}

qint64 CitireRapida::Intreg(int i) const {
    if (q_) return q_->Valoare(i).toLongLong();
    return sqlite3_column_int64(lite_->stmt, i);
}

QString CitireRapida::Text(int i) const {
    if (q_) return q_->Valoare(i).toString();
    // A real number reads as the SQL module writes it ("12", not "12.0").
    if (sqlite3_column_type(lite_->stmt, i) == SQLITE_FLOAT)
        return QVariant(sqlite3_column_double(lite_->stmt, i)).toString();
    const void* t = sqlite3_column_text16(lite_->stmt, i);
    if (!t) return {};
    return QString(static_cast<const QChar*>(t), sqlite3_column_bytes16(lite_->stmt, i) / 2);
}

QAnyStringView CitireRapida::Vedere(int i) const {
    if (!q_ && sqlite3_column_type(lite_->stmt, i) != SQLITE_FLOAT) {
        const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(lite_->stmt, i));
        if (!t) return {};
        return QUtf8StringView(t, sqlite3_column_bytes(lite_->stmt, i));
    }
    if (texte_.size() <= size_t(i)) texte_.resize(size_t(i) + 1);
    texte_[size_t(i)] = Text(i);
    return texte_[size_t(i)];
}

QDate CitireRapida::Data(int i) const {
    if (!q_) {
        if (sqlite3_column_type(lite_->stmt, i) == SQLITE_NULL) return {};
        return dataIso(sqlite3_column_text(lite_->stmt, i), sqlite3_column_bytes(lite_->stmt, i));
    }
    const QVariant v = q_->Valoare(i);
    if (v.isNull()) return {};
    if (v.typeId() == QMetaType::QDate) return v.toDate();
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
    return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

Bani CitireRapida::Suma(int i) const {
    if (!q_ && sqlite3_column_type(lite_->stmt, i) == SQLITE_INTEGER)
        return Bani::DinLei(sqlite3_column_int64(lite_->stmt, i));
    return Bani::DinVariant(Valoare(i));
}

QVariant CitireRapida::Valoare(int i) const {
    if (q_) return q_->Valoare(i);
    switch (sqlite3_column_type(lite_->stmt, i)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
        return qint64(sqlite3_column_int64(lite_->stmt, i));
    case SQLITE_FLOAT:
        return sqlite3_column_double(lite_->stmt, i);
    default:
        return Text(i);
    }
}

bool ArgumenteSQLite::EsteNul(int i) const {
    return i >= n_ || sqlite3_value_type(v_[i]) == SQLITE_NULL;
}

qint64 ArgumenteSQLite::Intreg(int i) const {
    return i < n_ ? sqlite3_value_int64(v_[i]) : 0;
}

QDate ArgumenteSQLite::Data(int i) const {
    if (EsteNul(i)) return {};
    return dataIso(sqlite3_value_text(v_[i]), sqlite3_value_bytes(v_[i]));
}

Bani ArgumenteSQLite::Suma(int i) const {
    if (EsteNul(i)) return {};
    switch (sqlite3_value_type(v_[i])) {
    case SQLITE_INTEGER:
        return Bani::DinVariant(qint64(sqlite3_value_int64(v_[i])));
    case SQLITE_FLOAT:
        return Bani::DinVariant(sqlite3_value_double(v_[i]));
    default:
        return Bani::DinVariant(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_value_text(v_[i])),
                                                  sqlite3_value_bytes(v_[i])));
    }
}

namespace {

void apeleaza(sqlite3_context* ctx, int n, sqlite3_value** v) {
    const auto& corp = *static_cast<const FunctieSQLite::Corp*>(sqlite3_user_data(ctx));
    try {
        const std::optional<Bani> r = corp(ArgumenteSQLite(n, v));
        if (r)
            sqlite3_result_double(ctx, r->ToDouble());
        else
            sqlite3_result_error(ctx, "oprit", -1);
    } catch (const std::exception& e) {
        sqlite3_result_error(ctx, e.what(), -1);
    } catch (...) {
        sqlite3_result_error(ctx, "eroare", -1);
    }
}

} // namespace

FunctieSQLite::FunctieSQLite(BazaDate& db, const char* nume, int argumente, Corp corp)
    : db_(ConexiuneSQLite(db)), nume_(nume), argumente_(argumente), corp_(std::move(corp)) {
    if (sqlite3_create_function_v2(db_, nume_, argumente_, SQLITE_UTF8, &corp_, apeleaza, nullptr, nullptr, nullptr) !=
        SQLITE_OK)
        throw Eroare(QString::fromUtf8(sqlite3_errmsg(db_)));
}

FunctieSQLite::~FunctieSQLite() {
    sqlite3_create_function_v2(db_, nume_, argumente_, SQLITE_UTF8, nullptr, nullptr, nullptr, nullptr, nullptr);
}
