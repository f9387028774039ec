#pragma once

#include "store/BazaDate.h"

#include <QAnyStringView>
#include <QLatin1StringView>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

struct sqlite3;
struct sqlite3_value;

// The engine's own connection under an SQLite database's SQL module connection; Eroare on PostgreSQL.
sqlite3* ConexiuneSQLite(BazaDate& db);

// The rows of a long read (a report of a million requests) read by field number, without a QVariant
// for every value: on SQLite straight through the engine's own interface, on PostgreSQL through the
// SQL module. For statements that only read; values are bound as Interogare binds them.
class CitireRapida : public LegareValori<CitireRapida> {
public:
    CitireRapida(BazaDate& db, const QString& sql);
    ~CitireRapida();
    CitireRapida(const CitireRapida&) = delete;
    CitireRapida& operator=(const CitireRapida&) = delete;

    CitireRapida& LeagaValoare(const QVariant& v);
    CitireRapida& Executa();
    bool Urmator();

    // The number of a field of the result by its name (case-insensitive); Eroare when it is missing.
    int Camp(QLatin1StringView nume) const;
    bool EsteNul(int i) const;
    qint64 Intreg(int i) const;
    QString Text(int i) const;
    // The text without a copy, good until the next row or the next read of the same field.
    QAnyStringView Vedere(int i) const;
    QDate Data(int i) const;
    Bani Suma(int i) const;
    QVariant Valoare(int i) const;

    // The same by the field's name, written as a literal: each name is looked up once per statement.
    bool EsteNul(const char* camp) const { return EsteNul(numar(camp)); }
    qint64 Intreg(const char* camp) const { return Intreg(numar(camp)); }
    QString Text(const char* camp) const { return Text(numar(camp)); }
    QAnyStringView Vedere(const char* camp) const { return Vedere(numar(camp)); }
    QDate Data(const char* camp) const { return Data(numar(camp)); }
    Bani Suma(const char* camp) const { return Suma(numar(camp)); }
    QVariant Valoare(const char* camp) const { return Valoare(numar(camp)); }

private:
    int numar(const char* camp) const;

    struct SQLite;
    BazaDate& db_;
    QString sql_;
    std::unique_ptr<SQLite> lite_;
    std::unique_ptr<Interogare> q_; // PostgreSQL
    mutable std::vector<std::pair<const char*, int>> campuri_;
    mutable size_t urmator_ = 0;
    qint64 citite_ = 0, semn_ = 0;
    mutable std::vector<QString> texte_; // what Vedere shows where the engine has no text of its own
};

// The arguments of a function of the program called by SQLite for each row of a statement, read as
// CitireRapida reads its fields.
class ArgumenteSQLite {
public:
    ArgumenteSQLite(int n, sqlite3_value** v) : n_(n), v_(v) {}
    bool EsteNul(int i) const;
    qint64 Intreg(int i) const;
    QDate Data(int i) const;
    Bani Suma(int i) const;

private:
    int n_;
    sqlite3_value** v_;
};

// A function of the program that an SQLite statement calls for each row, so that a rewrite of most rows
// of a large table is one pass of the engine instead of a read, then a write of each row by key. It
// gives the amount to store, or nullopt to stop the statement (which then fails and is rolled back with
// its transaction). Known to the connection while the object lives; SQLite only.
class FunctieSQLite {
public:
    using Corp = std::function<std::optional<Bani>(const ArgumenteSQLite&)>;
    FunctieSQLite(BazaDate& db, const char* nume, int argumente, Corp corp);
    ~FunctieSQLite();
    FunctieSQLite(const FunctieSQLite&) = delete;
    FunctieSQLite& operator=(const FunctieSQLite&) = delete;

private:
    sqlite3* db_;
    const char* nume_;
    int argumente_;
    Corp corp_;
};
