#include "reports/export/Fisier.h"

#include "base/Eroare.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>
#include <QTemporaryDir>

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

void ScrieIntregPrin(const QString& fisier, const std::function<void(const QString& temporar)>& scrie) {
    QTemporaryDir lucru;
    if (!lucru.isValid()) throw Eroare(QStringLiteral("Nu se poate crea un folder temporar: %1").arg(lucru.errorString()));
    const QString temporar = lucru.filePath(QFileInfo(fisier).fileName());
    scrie(temporar);
    QFile scris(temporar);
    if (!scris.open(QIODevice::ReadOnly))
        throw Eroare(QStringLiteral("Fisierul scris %1 nu poate fi citit: %2").arg(temporar, scris.errorString()));
    ScrieIntreg(fisier, scris.readAll());
}

} // namespace Raport
