#include "cli/ArgumenteCli.h"

#include "base/Foldere.h"

#include <QDir>
#include <QFile>

namespace Cli {

LocatieBD Locatie(const QCommandLineParser& p) {
    LocatieBD loc;
    loc.caleBD =
        QDir(p.isSet(QStringLiteral("dir")) ? p.value(QStringLiteral("dir")) : QDir::currentPath()).absolutePath();
    loc.url = p.value(QStringLiteral("db"));
    return loc;
}

std::optional<Setari> SetariBazei(const LocatieBD& loc) {
    const QString ini = QDir(loc.caleBD).filePath(Foldere::FisierSetari);
    if (!QFile::exists(ini)) return std::nullopt;
    return IncarcaSetari(ini, false);
}

qint64 NumarIntre(const QString& text, qint64 minim, qint64 maxim, const QString& ce) {
    bool ok = false;
    const qint64 v = text.toLongLong(&ok);
    if (!ok || v < minim || v > maxim)
        throw EroareArgumente{QStringLiteral("%1 cere un numar intreg intre %2 si %3").arg(ce).arg(minim).arg(maxim)};
    return v;
}

qint64 OptiuneIntre(const QCommandLineParser& p, const QString& optiune, qint64 minim, qint64 maxim,
                    std::optional<qint64> implicit) {
    if (!p.isSet(optiune)) {
        if (!implicit) throw EroareArgumente{QStringLiteral("lipseste --%1").arg(optiune)};
        return *implicit;
    }
    return NumarIntre(p.value(optiune), minim, maxim, QStringLiteral("--") + optiune);
}

} // namespace Cli
