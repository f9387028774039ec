#pragma once

#include "base/Bani.h"

#include <QString>
#include <QStringList>
#include <QVariant>
#include <utility>
#include <vector>

class BazaDate;
class Interogare;

// The statements whose fields are listed in code are built here from a table and its fields, so
// that the field list is written once and the placeholders always match it; the values are bound
// in the same order.
namespace Sql {

// One row to write: its fields in the statement's order, each with its value.
using Rand = std::vector<std::pair<QString, QVariant>>;

// An amount as a row's value, bound as Interogare binds an amount.
inline QVariant Suma(const Bani& b) {
    return QVariant::fromValue(b);
}

// "?, ?, ?": the placeholders of n values.
QString Semne(qsizetype n);

// "INSERT INTO T (a, b) VALUES (?, ?)".
QString Insert(const QString& tabela, const QStringList& campuri);
// "UPDATE T SET a = ?, b = ? WHERE K = ?", the key bound last; without a key every row is written.
QString Update(const QString& tabela, const QStringList& campuri, const QString& cheie = QString());

// The fields of a row, in order.
QStringList Campuri(const Rand& r);
// Binds the values of a row in their order.
Interogare& Leaga(Interogare& q, const Rand& r);

// Writes one row, and changes the row whose `cheie` is `valoareCheie`; Actualizeaza tells how
// many rows it changed (0: the row is gone).
void Insereaza(BazaDate& db, const QString& tabela, const Rand& r);
int Actualizeaza(BazaDate& db, const QString& tabela, const Rand& r, const QString& cheie,
                 const QVariant& valoareCheie);

// Whether `tabela` holds a row whose `camp` is `cheie`; throws Eroare when the read fails.
bool RandExista(BazaDate& db, const QString& tabela, const QString& camp, qint64 cheie);
// How many rows of `tabela` have `camp` equal to `cheie`: a key counted rather than looked up, so
// that a duplicate shows; throws Eroare when the read fails.
qint64 NumarRanduri(BazaDate& db, const QString& tabela, const QString& camp, qint64 cheie);

// NumarRanduri, but 0 also when the read fails, which the editors treat as a row removed by another
// computer.
qint64 RanduriCuCheie(BazaDate& db, const QString& tabela, const QString& camp, qint64 id);

} // namespace Sql
