#include "maintenance/Copii.h"

#include "base/Eroare.h"
#include "store/BazaDate.h"
#include "store/CitireRapida.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QUrl>
#include <QUrlQuery>
#include <QUuid>
#include <algorithm>
#include <set>
#include <sqlite3.h>

namespace Copii {

namespace {

// "Ferolanta-20261125-013000.db": sorted by name, sorted by time.
const QRegularExpression FormatNume(QStringLiteral("^Ferolanta-(\\d{8})-(\\d{6})\\.(db|dump)$"));

QString NumeCopie(const QDateTime& acum, const QString& extensie) {
    return QStringLiteral("Ferolanta-") + acum.toString(QStringLiteral("yyyyMMdd-HHmmss")) + extensie;
}

// A copy is good when SQLite finds nothing wrong in it.
void Verifica(const QString& fisier) {
    const QString nume = QStringLiteral("verificare-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
    QString rezultat;
    {
        QSqlDatabase c = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), nume);
        c.setDatabaseName(fisier);
        c.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        if (c.open()) {
            QSqlQuery q(c);
            if (q.exec(QStringLiteral("PRAGMA integrity_check")) && q.next()) rezultat = q.value(0).toString();
        }
        c.close();
    }
    QSqlDatabase::removeDatabase(nume);
    if (rezultat != QLatin1String("ok"))
        throw Eroare(QStringLiteral("Copia %1 nu trece verificarea bazei de date (%2).")
                         .arg(QDir::toNativeSeparators(fisier),
                              rezultat.isEmpty() ? QStringLiteral("nu se deschide") : rezultat.left(200)));
}

// The engine copies the file's pages as of one moment in one step: writers of other connections wait
// for it (a few seconds on a large office's file) rather than make it start over.
void CopiazaPagini(BazaDate& db, const QString& fisier) {
    sqlite3* dest = nullptr;
    int rc = sqlite3_open_v2(QFile::encodeName(fisier).constData(), &dest, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                             nullptr);
    QString eroare;
    if (rc == SQLITE_OK) {
        sqlite3_backup* b = sqlite3_backup_init(dest, "main", ConexiuneSQLite(db), "main");
        if (b) {
            // A writer in the middle of its unit holds the file a moment: the copy waits for it, up to a minute.
            for (int incercari = 0; incercari < 600; ++incercari) {
                rc = sqlite3_backup_step(b, -1);
                if (rc != SQLITE_BUSY && rc != SQLITE_LOCKED) break;
                sqlite3_sleep(100);
            }
            sqlite3_backup_finish(b);
        }
        if (rc != SQLITE_DONE || sqlite3_errcode(dest) != SQLITE_OK) eroare = QString::fromUtf8(sqlite3_errmsg(dest));
    } else {
        eroare = dest ? QString::fromUtf8(sqlite3_errmsg(dest)) : QStringLiteral("fisierul nu se poate crea");
    }
    sqlite3_close(dest);
    if (!eroare.isEmpty()) throw Eroare(eroare);
}

QString FolderCopii(const LocatieBD& loc) {
    const QString folder = QDir(loc.caleBD).filePath(NumeFolder);
    if (!QDir().mkpath(folder))
        throw Eroare(QStringLiteral("Folderul copiilor %1 nu poate fi creat.").arg(QDir::toNativeSeparators(folder)));
    return folder;
}

void Roteste(const QString& folder) {
    const QStringList sterse = DeSters(QDir(folder).entryList(QDir::Files));
    for (const QString& f : sterse)
        QFile::remove(QDir(folder).filePath(f));
}

QString CopiePostgreSQL(const LocatieBD& loc, const QString& folder, const QDateTime& acum) {
    const QString pgDump = QStandardPaths::findExecutable(QStringLiteral("pg_dump"));
    if (pgDump.isEmpty())
        throw Eroare(QStringLiteral("pg_dump nu este instalat pe acest calculator: copia bazei PostgreSQL nu se poate "
                                    "face de aici."));
    const QString fisier = QDir(folder).filePath(NumeCopie(acum, QStringLiteral(".dump")));
    // The connection's own schema, when it names one, is the office's whole database.
    QStringList argumente{QStringLiteral("--format=custom"), QStringLiteral("--file=") + fisier};
    const QString schema = QUrlQuery(QUrl(loc.url).query()).queryItemValue(QStringLiteral("schema"));
    if (!schema.isEmpty()) argumente << QStringLiteral("--schema=") + schema;
    argumente << loc.url.section(u'?', 0, 0);
    QProcess p;
    p.start(pgDump, argumente);
    if (!p.waitForFinished(-1) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
        QFile::remove(fisier);
        throw Eroare(
            QStringLiteral("pg_dump a esuat: %1").arg(QString::fromLocal8Bit(p.readAllStandardError()).trimmed()));
    }
    return fisier;
}

} // namespace

QStringList DeSters(const QStringList& fisiere) {
    // Newest first; the first of a day or month met is the one kept for it.
    QStringList copii;
    for (const QString& f : fisiere)
        if (FormatNume.match(f).hasMatch()) copii << f;
    std::sort(copii.begin(), copii.end(), std::greater<>());
    std::set<QString> zile, luni;
    QStringList sterse;
    for (const QString& f : copii) {
        const QString zi = f.mid(10, 8), luna = f.mid(10, 6);
        const bool aZilei = !zile.count(zi) && zile.size() < 30;
        const bool aLunii = !luni.count(luna) && luni.size() < 12;
        if (aZilei) zile.insert(zi);
        if (aLunii) luni.insert(luna);
        if (!aZilei && !aLunii) sterse << f;
    }
    return sterse;
}

QString FaCopie(BazaDate& db, const LocatieBD& loc, const QDateTime& acum) {
    const QString folder = FolderCopii(loc);
    if (loc.EstePostgreSQL()) return CopiePostgreSQL(loc, folder, acum);
    const QString fisier = QDir(folder).filePath(NumeCopie(acum, QStringLiteral(".db")));
    if (QFile::exists(fisier))
        throw Eroare(QStringLiteral("Copia %1 exista deja.").arg(QDir::toNativeSeparators(fisier)));
    try {
        CopiazaPagini(db, fisier);
        Verifica(fisier);
    } catch (const Eroare& e) {
        QFile::remove(fisier);
        throw Eroare(QStringLiteral("Copia bazei de date nu a putut fi facuta in %1:\n%2")
                         .arg(QDir::toNativeSeparators(folder), e.text()));
    }
    Roteste(folder);
    return fisier;
}

QString Restaureaza(const QString& copie, const LocatieBD& loc, const QDateTime& acum) {
    if (loc.EstePostgreSQL())
        throw Eroare(QStringLiteral("Pe PostgreSQL copia se pune inapoi cu pg_restore, de catre administratorul "
                                    "serverului."));
    if (!QFileInfo::exists(copie))
        throw Eroare(QStringLiteral("Copia %1 nu exista.").arg(QDir::toNativeSeparators(copie)));
    Verifica(copie);
    const QString baza = loc.FisierSQLite();
    const QString folder = FolderCopii(loc);
    const QString deoparte =
        QDir(folder).filePath(QStringLiteral("Inainte-de-restaurare-") +
                              acum.toString(QStringLiteral("yyyyMMdd-HHmmss")) + QStringLiteral(".db"));
    if (QFile::exists(baza) && !QFile::copy(baza, deoparte))
        throw Eroare(QStringLiteral("Baza de date curenta nu a putut fi pusa deoparte in %1: nimic nu a fost "
                                    "schimbat.")
                         .arg(QDir::toNativeSeparators(deoparte)));
    // The copy goes in beside the database under another name first, so that a failure midway leaves
    // the current file whole.
    const QString temporar = baza + QStringLiteral(".restaurare");
    QFile::remove(temporar);
    if (!QFile::copy(copie, temporar))
        throw Eroare(QStringLiteral("Copia nu a putut fi scrisa langa baza de date: nimic nu a fost schimbat."));
    QFile::remove(baza + QStringLiteral("-journal"));
    if (!QFile::remove(baza) || !QFile::rename(temporar, baza)) {
        QFile::remove(temporar);
        throw Eroare(QStringLiteral("Baza de date nu a putut fi inlocuita; cea de dinainte este in %1.")
                         .arg(QDir::toNativeSeparators(deoparte)));
    }
    QFile::setPermissions(baza, QFile::permissions(baza) | QFileDevice::WriteOwner);
    return deoparte;
}

} // namespace Copii
