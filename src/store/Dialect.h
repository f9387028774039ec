#pragma once

#include "base/Bani.h"

#include <QString>
#include <QVariant>

// The field types of the data model. `Cheie` is a key or a reference to one: 64 bits everywhere.
enum class TipCamp { Cheie, Byte, Integer, Long, Single, Currency, Zecimal, Data, Boolean, Text, Memo };

enum class Motor { SQLite, PostgreSQL };

// The few places where the two engines differ: column types, how a date or an amount is bound,
// and the catalogue queries that tell what the schema holds. Everything else is shared SQL.
class Dialect {
public:
    explicit Dialect(Motor m) : motor_(m) {}
    Motor motor() const { return motor_; }
    bool EsteSQLite() const { return motor_ == Motor::SQLite; }

    QString TipSql(TipCamp tip, int marime) const;
    // Turns a value into what the driver binds: dates as ISO text on SQLite, booleans as 0/1, an
    // amount (a Bani in the variant) as a double on SQLite, which keeps four decimals exactly, and
    // as its text on PostgreSQL.
    QVariant Parametru(const QVariant& v) const;
    QString NumeEngine() const { return EsteSQLite() ? QStringLiteral("SQLite") : QStringLiteral("PostgreSQL"); }

private:
    Motor motor_;
};

// A LIKE pattern (with a backslash as its ESCAPE) matching what begins with the text, its wild cards taken literally.
QString PrefixLike(const QString& text);
