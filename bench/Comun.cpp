#include "Comun.h"

#include "cases/Adeverinte.h"
#include "store/ActualizareBD.h"
#include "store/DateLivrate.h"
#include "maintenance/Demo.h"

#include <QDir>
#include <QFile>

LocatieBD BazaDemoSQLite(int cereri, bool copie) {
    const QString folder = QDir::temp().filePath(QStringLiteral("ferolanta-bench-%1").arg(cereri));
    LocatieBD loc{folder, {}};
    if (!QFile::exists(loc.FisierSQLite())) {
        QDir().mkpath(folder);
        MesajeTacute m;
        auto db = DateLivrate::Initializeaza(loc, QStringLiteral(FEROLANTA_SURSA "/data"), m);
        Demo::Optiuni o;
        o.cereri = cereri;
        Demo::Genereaza(*db, o);
    }
    // A database made by an older build gets what the upgrade adds (indexes, say); a copy is
    // upgraded alone, so that a benchmark that writes leaves the original as it found it.
    const auto actualizeaza = [](const LocatieBD& l) {
        MesajeTacute m;
        ActualizareBD(*BazaDate::Deschide(l), l.caleBD, m);
    };
    if (!copie) {
        actualizeaza(loc);
        return loc;
    }
    LocatieBD lucru{folder + QStringLiteral("-lucru"), {}};
    QDir().mkpath(lucru.caleBD);
    QFile::remove(lucru.FisierSQLite());
    QFile::copy(loc.FisierSQLite(), lucru.FisierSQLite());
    for (const QString& catalog : QDir(folder).entryList({QStringLiteral("*.txt")}, QDir::Files))
        if (!QFile::exists(QDir(lucru.caleBD).filePath(catalog)))
            QFile::copy(QDir(folder).filePath(catalog), QDir(lucru.caleBD).filePath(catalog));
    actualizeaza(lucru);
    return lucru;
}

namespace {
constexpr int MinimLuna = 2000; // fewer rows than this in the month say little about the query
} // namespace

// The demo data expire around the day they were generated; run in another month, a copy of the
// database gets a certificate expiring this month for every fifth request in force.
LocatieBD BazaDemoCuActeInLuna(int cereri, const QDate& azi) {
    {
        auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
        if (Adeverinte::ListaActeExpira(*db, azi).size() >= size_t(MinimLuna)) return BazaDemoSQLite(cereri, false);
    }
    const LocatieBD loc = BazaDemoSQLite(cereri, true);
    auto db = BazaDate::Deschide(loc);
    Tranzactie t(*db);
    const qint64 baza = db->CheieNoua(QStringLiteral("Adeverinte"), QStringLiteral("AdevID"));
    Interogare(*db, QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                                   "DataAdeverinta, DataDepunerii, DataExpAdev, AdvCurenta) "
                                   "SELECT ? + CerereID, CerereID, MembruID1, ?, ?, ?, ?, ?, 1 FROM Cereri "
                                   "WHERE Stare IN (2, 6, 7, 8) AND MembruID1 IS NOT NULL AND CerereID % 5 = 0"))
        .Leaga(baza)
        .Leaga(8)
        .Leaga(QStringLiteral("B-1"))
        .Leaga(azi.addMonths(-6))
        .Leaga(azi.addMonths(-6))
        .Leaga(QDate(azi.year(), azi.month(), 15))
        .Executa();
    t.Confirma();
    return loc;
}
