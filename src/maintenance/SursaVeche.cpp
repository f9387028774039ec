#include "maintenance/SursaVeche.h"

#include "base/Eroare.h"
#include "maintenance/CitireCsv.h"
#include "maintenance/CitireMdb.h"

#include <QDir>
#include <QFileInfo>

std::unique_ptr<SursaVeche> DeschideSursaVeche(const QString& cale) {
    const QFileInfo fi(cale);
    if (fi.isDir()) return std::make_unique<SursaCsv>(cale);
    if (!fi.exists()) throw Eroare(QStringLiteral("%1 nu exista.").arg(QDir::toNativeSeparators(cale)));
    return DeschideMdb(cale);
}
