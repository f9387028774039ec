#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <vector>

struct LocatieBD;

// Copies of the SQLite database in the folder "Copii" beside it: made consistent by the engine while
// the program works, checked before older ones go, and put back with the current file kept aside.
namespace Copii {

inline const QString NumeFolder = QStringLiteral("Copii");
inline const QString IntrebareRestaurare = QStringLiteral("Sigur doriti sa continuati?");

// Told how many of the file's pages are copied; a copy asked to stop removes what it wrote.
struct Progres {
    std::function<void(qint64 facute, qint64 total)> pas;
    const std::atomic<bool>* opreste = nullptr;
};

// Makes a copy now and returns its path; then keeps the last 30 days' and the last 12 months' copies.
// Throws Eroare with a clear text (a full disk, a folder that can't be written, a copy that fails its
// check); the database is never touched. On PostgreSQL, pg_dump writes the copy when it is installed.
QString FaCopie(const LocatieBD& loc, const QDateTime& acum = QDateTime::currentDateTime());

// The two halves of FaCopie, for a copy whose check may go on while the clerk works: the copy alone
// (from its own connection, so any thread may make it), then its check and the removal of older ones.
// A copy that fails its check is removed.
QString Copiaza(const LocatieBD& loc, const QDateTime& acum, const Progres& progres = {});
void VerificaSiRoteste(const QString& copie, const Progres& progres = {});

// Whether a copy was already made on that day.
bool AreCopiaZilei(const LocatieBD& loc, const QDate& zi);
// The first start of a day copies an SQLite database (PostgreSQL keeps its copies by its own means).
bool DeFacutLaPornire(const LocatieBD& loc, const QDate& azi);

struct CopieGasita {
    QString fisier;
    QDateTime cand;
    qint64 marime = 0;
};
// The copies in the folder, newest first; the files kept aside by a restore too.
std::vector<CopieGasita> Lista(const LocatieBD& loc);

// Puts a copy back in place of the database, which must not be open: the copy is checked first and
// the current file is copied aside into "Copii" (its path returned); nothing is overwritten without it.
QString Restaureaza(const QString& copie, const LocatieBD& loc, const QDateTime& acum = QDateTime::currentDateTime());

// Of the copies' file names, those that go: all but the newest of each of the last 30 days that have
// one and the newest of each of the last 12 months that have one. Other files are never named.
QStringList DeSters(const QStringList& fisiere);

} // namespace Copii
