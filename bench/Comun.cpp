#include "Comun.h"

#include "store/ActualizareBD.h"
#include "store/DateLivrate.h"
#include "store/Demo.h"

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
    {
        // A database made by an older build gets what the upgrade adds (indexes, say).
        MesajeTacute m;
        ActualizareBD(*BazaDate::Deschide(loc), loc.caleBD, m);
    }
    if (!copie) return loc;
    LocatieBD lucru{folder + QStringLiteral("-lucru"), {}};
    QDir().mkpath(lucru.caleBD);
    QFile::remove(lucru.FisierSQLite());
    QFile::copy(loc.FisierSQLite(), lucru.FisierSQLite());
    return lucru;
}
