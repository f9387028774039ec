#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

class BazaDate;
struct LocatieBD;

// Copies of the SQLite database in the folder "Copii" beside it: made consistent by the engine while
// the program works, checked before older ones go, and put back with the current file kept aside.
namespace Copii {

inline const QString NumeFolder = QStringLiteral("Copii");

// Makes a copy now and returns its path; then keeps the last 30 days' and the last 12 months' copies.
// Throws Eroare with a clear text (a full disk, a folder that can't be written, a copy that fails its
// check); the database is never touched. On PostgreSQL, pg_dump writes the copy when it is installed.
QString FaCopie(BazaDate& db, const LocatieBD& loc, const QDateTime& acum = QDateTime::currentDateTime());

// Puts a copy back in place of the database, which must not be open: the copy is checked first and
// the current file is copied aside into "Copii" (its path returned); nothing is overwritten without it.
QString Restaureaza(const QString& copie, const LocatieBD& loc, const QDateTime& acum = QDateTime::currentDateTime());

// Of the copies' file names, those that go: all but the newest of each of the last 30 days that have
// one and the newest of each of the last 12 months that have one. Other files are never named.
QStringList DeSters(const QStringList& fisiere);

} // namespace Copii
