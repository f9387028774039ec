#include "reports/export/Fisier.h"

#include "base/Eroare.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace Raport {

void ScrieIntreg(const QString& fisier, const QByteArray& continut) {
    QSaveFile f(fisier);
    if (!f.open(QIODevice::WriteOnly))
        throw Eroare(QStringLiteral("Fisierul %1 nu poate fi scris: %2").arg(QDir::toNativeSeparators(fisier), f.errorString()));
    if (f.write(continut) != continut.size()) {
        const QString motiv = f.errorString();
        f.cancelWriting();
        throw Eroare(QStringLiteral("Fisierul %1 nu poate fi scris: %2").arg(QDir::toNativeSeparators(fisier), motiv));
    }
    // Only the last step, putting the whole file in place, meets a file that another program holds.
    if (!f.commit()) throw Eroare(QStringLiteral("Inchideti mai intai %1 !").arg(QFileInfo(fisier).fileName()));
}

} // namespace Raport
