#include "cli/ArgumenteCli.h"

#include "base/Eroare.h"
#include "base/Foldere.h"
#include "reports/builders/Bas.h"

#include <QFileInfo>

namespace Cli {

// One of the two forms for the social benefit agency, filled from the database into --out: the
// template of the data folder (--dir) if it has one, else the one delivered with the program. The
// messages the clerk would see go to the standard output.
int ComandaBas(const QCommandLineParser& p, const QString& formular, QTextStream& out) {
    Raport::FormularBas f;
    if (formular == QLatin1String("a23"))
        f = Raport::FormularBas::A23;
    else if (formular == QLatin1String("a25"))
        f = Raport::FormularBas::A25;
    else
        throw EroareArgumente{QStringLiteral("formularul poate fi a23 sau a25, nu %1").arg(formular)};
    if (!p.isSet(QStringLiteral("out"))) throw EroareArgumente{QStringLiteral("lipseste --out FISIER.ods")};
    const QString fisier = QFileInfo(p.value(QStringLiteral("out"))).absoluteFilePath();
    if (QFileInfo(fisier).suffix().toLower() != QLatin1String("ods"))
        throw EroareArgumente{QStringLiteral("--out cere un fisier .ods")};

    const LocatieBD loc = Locatie(p);
    try {
        const QString sablon = Raport::SablonBas(f, loc.caleBD, Foldere::FolderLivrat());
        auto db = BazaDate::Deschide(loc);
        Raport::ScrieBas(*db, f, sablon, fisier);
    } catch (const Eroare& e) {
        out << e.text() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace Cli
