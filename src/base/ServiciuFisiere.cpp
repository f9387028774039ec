#include "base/ServiciuFisiere.h"

#include "base/Eroare.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>

#define SI_NO_CONVERSION
#define SI_IMPLEMENTATION
#include <SimpleIni.h>

namespace {

// Settings files written by the old program are in the Windows-1250 code page; ours are UTF-8.
QString decodeaza(const char* octeti) {
    if (!octeti) return {};
    const QByteArray b(octeti);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8(b);
    if (!utf8.hasError()) return text;
    QStringDecoder cp1250("windows-1250");
    if (cp1250.isValid()) return cp1250(b);
    return QString::fromLatin1(b);
}

void incarca(CSimpleIniA& ini, const QString& fisier) {
    ini.SetUnicode(false);
    // A key written twice: as with the Windows profile functions, the first one is read and the
    // first one is changed (the later copies go with the write).
    ini.SetMultiKey(true);
    ini.SetSpaces(false); // key=value, as the Windows profile functions write it
    const QByteArray cale = QFile::encodeName(fisier);
    if (QFileInfo::exists(fisier) && ini.LoadFile(cale.constData()) < 0)
        throw Eroare(QStringLiteral("Fisierul de setari %1 nu poate fi citit.").arg(fisier));
}

} // namespace

int ServiciuFisiere::StareFisier(const QString& cale) {
    const QFileInfo info(cale);
    if (!QFileInfo(info.absolutePath()).isDir()) return 2;
    if (!info.exists()) return 1;
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly)) return 2;
    return 0;
}

QString ServiciuFisiere::CitesteIni(const QString& fisier, const QString& sectiune, const QString& cheie) {
    CSimpleIniA ini;
    incarca(ini, fisier);
    return decodeaza(ini.GetValue(sectiune.toUtf8().constData(), cheie.toUtf8().constData(), ""));
}

void ServiciuFisiere::ScrieIni(const QString& fisier, const QString& sectiune, const QString& cheie,
                               const QString& valoare) {
    CSimpleIniA ini;
    incarca(ini, fisier);
    ini.SetValue(sectiune.toUtf8().constData(), cheie.toUtf8().constData(), valoare.toUtf8().constData(), nullptr,
                 true);
    if (ini.SaveFile(QFile::encodeName(fisier).constData()) < 0)
        throw Eroare(QStringLiteral("Fisierul de setari %1 nu poate fi scris.").arg(fisier));
}
