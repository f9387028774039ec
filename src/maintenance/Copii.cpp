#include "maintenance/Copii.h"

#include "base/Eroare.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>
#include <QUrlQuery>
#include <algorithm>
#include <set>
#include <vector>
#include <sqlite3.h>

namespace Copii {

namespace {

// "Ferolanta-20261125-013000.db": sorted by name, sorted by time.
const QRegularExpression FormatNume(QStringLiteral("^Ferolanta-(\\d{8})-(\\d{6})\\.(db|dump)$"));

QString NumeCopie(const QDateTime& acum, const QString& extensie) {
    return QStringLiteral("Ferolanta-") + acum.toString(QStringLiteral("yyyyMMdd-HHmmss")) + extensie;
}

// Rows and pages are checked by the engine on a connection of its own; a stop asked meanwhile
// interrupts it between two of its steps.
int Intrerupe(void* opreste) {
    return static_cast<const std::atomic<bool>*>(opreste)->load() ? 1 : 0;
}

// A copy is good when SQLite finds nothing wrong in it.
void Verifica(const QString& fisier, const Progres& progres = {}) {
    sqlite3* c = nullptr;
    QString rezultat;
    if (sqlite3_open_v2(QFile::encodeName(fisier).constData(), &c, SQLITE_OPEN_READONLY, nullptr) == SQLITE_OK) {
        if (progres.opreste) sqlite3_progress_handler(c, 100000, Intrerupe, const_cast<std::atomic<bool>*>(progres.opreste));
        // Index entries are looked up in their tables: a large cache keeps that from reading pages again.
        sqlite3_exec(c, "PRAGMA cache_size = -262144", nullptr, nullptr, nullptr);
        sqlite3_stmt* st = nullptr;
        if (sqlite3_prepare_v2(c, "PRAGMA integrity_check", -1, &st, nullptr) == SQLITE_OK) {
            const int rc = sqlite3_step(st);
            if (rc == SQLITE_ROW)
                rezultat = QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0)));
            else if (rc == SQLITE_INTERRUPT)
                rezultat = QStringLiteral("verificarea a fost oprita");
            else
                rezultat = QString::fromUtf8(sqlite3_errmsg(c));
        }
        sqlite3_finalize(st);
    }
    sqlite3_close(c);
    if (rezultat != QLatin1String("ok"))
        throw Eroare(QStringLiteral("Copia %1 nu trece verificarea bazei de date (%2).")
                         .arg(QDir::toNativeSeparators(fisier),
                              rezultat.isEmpty() ? QStringLiteral("nu se deschide") : rezultat.left(200)));
}

// The file is copied as it stands while a read of the engine holds it: no writer can change it until
// the copy ends (a save waits a few seconds on a large office's file). The bytes are read through the
// engine's own handle of the file: a second handle opened and closed by this process would drop the
// engine's locks on it. Copying the file whole costs a third of copying it page by page through the
// engine.
void CopiazaPagini(const QString& sursa, const QString& fisier, const Progres& progres) {
    sqlite3* src = nullptr;
    QString eroare;
    if (sqlite3_open_v2(QFile::encodeName(sursa).constData(), &src, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK) {
        eroare = src ? QString::fromUtf8(sqlite3_errmsg(src)) : QStringLiteral("baza de date nu se deschide");
        sqlite3_close(src);
        throw Eroare(eroare);
    }
    sqlite3_busy_timeout(src, 60000);
    // Written under another name and renamed once whole, so that no half copy ever carries a copy's name.
    // Not forced to the disk: the system writes it out within seconds, and the database it was made from
    // is there meanwhile; forcing it would double the time of a large office's copy.
    QFile copie(fisier + QStringLiteral(".partial"));
    sqlite3_file* f = nullptr;
    sqlite3_int64 marime = 0;
    if (sqlite3_exec(src, "BEGIN; SELECT COUNT(*) FROM sqlite_master", nullptr, nullptr, nullptr) != SQLITE_OK ||
        sqlite3_file_control(src, "main", SQLITE_FCNTL_FILE_POINTER, &f) != SQLITE_OK || !f ||
        f->pMethods->xFileSize(f, &marime) != SQLITE_OK) {
        eroare = QString::fromUtf8(sqlite3_errmsg(src));
    } else if (!copie.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        eroare = copie.errorString();
    } else {
        constexpr sqlite3_int64 Bucata = 4 << 20;
        std::vector<char> tampon(static_cast<size_t>(Bucata));
        for (sqlite3_int64 facut = 0; facut < marime && eroare.isEmpty();) {
            if (progres.opreste && progres.opreste->load()) {
                eroare = QStringLiteral("copia a fost oprita");
                break;
            }
            const int n = int(std::min(Bucata, marime - facut));
            if (f->pMethods->xRead(f, tampon.data(), n, facut) != SQLITE_OK)
                eroare = QStringLiteral("baza de date nu se poate citi");
            else if (copie.write(tampon.data(), n) != n)
                eroare = copie.errorString();
            facut += n;
            if (progres.pas) progres.pas(facut, marime);
        }
        copie.close();
        if (eroare.isEmpty() && copie.error() != QFileDevice::NoError) eroare = copie.errorString();
        if (eroare.isEmpty() && !copie.rename(fisier)) eroare = copie.errorString();
    }
    if (!eroare.isEmpty()) copie.remove();
    sqlite3_exec(src, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(src);
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

// The server's address for the client tools: the connection's own schema, when it names one, is the
// office's whole database; other options of the address are the program's, not theirs.
QStringList ArgumenteServer(const LocatieBD& loc) {
    QStringList a;
    const QString schema = QUrlQuery(QUrl(loc.url).query()).queryItemValue(QStringLiteral("schema"));
    if (!schema.isEmpty()) a << QStringLiteral("--schema=") + schema;
    a << QStringLiteral("--dbname=") + loc.url.section(u'?', 0, 0);
    return a;
}

void RuleazaUnealta(const QString& nume, const QStringList& argumente) {
    const QString program = QStandardPaths::findExecutable(nume);
    if (program.isEmpty())
        throw Eroare(QStringLiteral("%1 nu este instalat pe acest calculator: copia bazei PostgreSQL nu se poate "
                                    "face sau pune inapoi de aici.")
                         .arg(nume));
    QProcess p;
    p.start(program, argumente);
    if (!p.waitForFinished(-1) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        throw Eroare(QStringLiteral("%1 a esuat: %2").arg(nume, QString::fromLocal8Bit(p.readAllStandardError()).trimmed()));
}

QString CopiePostgreSQL(const LocatieBD& loc, const QString& fisier) {
    try {
        RuleazaUnealta(QStringLiteral("pg_dump"),
                       QStringList{QStringLiteral("--format=custom"), QStringLiteral("--file=") + fisier} +
                           ArgumenteServer(loc));
    } catch (const Eroare&) {
        QFile::remove(fisier);
        throw;
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

QString Copiaza(const LocatieBD& loc, const QDateTime& acum, const Progres& progres) {
    const QString folder = FolderCopii(loc);
    if (loc.EstePostgreSQL())
        return CopiePostgreSQL(loc, QDir(folder).filePath(NumeCopie(acum, QStringLiteral(".dump"))));
    // Two copies in one second (a tool run twice) are told apart by the next free second.
    QString fisier;
    for (int s = 0; s < 60 && (fisier.isEmpty() || QFile::exists(fisier)); ++s)
        fisier = QDir(folder).filePath(NumeCopie(acum.addSecs(s), QStringLiteral(".db")));
    if (QFile::exists(fisier))
        throw Eroare(QStringLiteral("Copia %1 exista deja.").arg(QDir::toNativeSeparators(fisier)));
    try {
        CopiazaPagini(loc.FisierSQLite(), fisier, progres);
    } catch (const Eroare& e) {
        QFile::remove(fisier);
        throw Eroare(QStringLiteral("Copia bazei de date nu a putut fi facuta in %1:\n%2")
                         .arg(QDir::toNativeSeparators(folder), e.text()));
    }
    return fisier;
}

void VerificaSiRoteste(const QString& copie, const Progres& progres) {
    if (copie.endsWith(QLatin1String(".db"))) {
        try {
            Verifica(copie, progres);
        } catch (const Eroare&) {
            QFile::remove(copie);
            throw;
        }
    }
    Roteste(QFileInfo(copie).path());
}

QString FaCopie(const LocatieBD& loc, const QDateTime& acum) {
    const QString copie = Copiaza(loc, acum);
    VerificaSiRoteste(copie);
    return copie;
}

bool AreCopiaZilei(const LocatieBD& loc, const QDate& zi) {
    const QString prefix = QStringLiteral("Ferolanta-") + zi.toString(QStringLiteral("yyyyMMdd")) + u'-';
    const QStringList f = QDir(QDir(loc.caleBD).filePath(NumeFolder)).entryList({prefix + u'*'}, QDir::Files);
    return std::any_of(f.begin(), f.end(), [](const QString& n) { return FormatNume.match(n).hasMatch(); });
}

bool DeFacutLaPornire(const LocatieBD& loc, const QDate& azi) {
    return !loc.EstePostgreSQL() && !AreCopiaZilei(loc, azi);
}

std::vector<CopieGasita> Lista(const LocatieBD& loc) {
    static const QRegularExpression oricare(QStringLiteral("^(?:Ferolanta|Inainte-de-restaurare)-(\\d{8}-\\d{6})\\.(db|dump)$"));
    const QDir folder(QDir(loc.caleBD).filePath(NumeFolder));
    std::vector<CopieGasita> r;
    for (const QFileInfo& f : folder.entryInfoList(QDir::Files)) {
        const auto m = oricare.match(f.fileName());
        if (!m.hasMatch()) continue;
        r.push_back({f.absoluteFilePath(), QDateTime::fromString(m.captured(1), QStringLiteral("yyyyMMdd-HHmmss")),
                     f.size()});
    }
    std::sort(r.begin(), r.end(), [](const CopieGasita& a, const CopieGasita& b) { return a.cand > b.cand; });
    return r;
}

QString Restaureaza(const QString& copie, const LocatieBD& loc, const QDateTime& acum) {
    if (!QFileInfo::exists(copie))
        throw Eroare(QStringLiteral("Copia %1 nu exista.").arg(QDir::toNativeSeparators(copie)));
    const QString dinainte = QStringLiteral("Inainte-de-restaurare-") + acum.toString(QStringLiteral("yyyyMMdd-HHmmss"));
    if (loc.EstePostgreSQL()) {
        const QString deoparte = CopiePostgreSQL(loc, QDir(FolderCopii(loc)).filePath(dinainte + QStringLiteral(".dump")));
        // One transaction: a copy that does not go in leaves the tables as they were.
        RuleazaUnealta(QStringLiteral("pg_restore"),
                       QStringList{QStringLiteral("--clean"), QStringLiteral("--if-exists"), QStringLiteral("--no-owner"),
                                   QStringLiteral("--single-transaction"), QStringLiteral("--exit-on-error")} +
                           ArgumenteServer(loc) + QStringList{copie});
        return deoparte;
    }
    Verifica(copie);
    const QString baza = loc.FisierSQLite();
    const QString folder = FolderCopii(loc);
    const QString deoparte = QDir(folder).filePath(dinainte + QStringLiteral(".db"));
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
