#include "cli/ArgumenteCli.h"

#include "base/Foldere.h"
#include "store/DateLivrate.h"

#include <QDir>

namespace Cli {

int ComandaInit(const QCommandLineParser& p, QTextStream& out, QTextStream& err) {
    MesajeFlux m(out, err);
    const LocatieBD loc = Locatie(p);
    DateLivrate::Initializeaza(loc, QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("data")), m);
    out << "Baza de date a fost creata: " << loc.Descriere() << Qt::endl;
    return 0;
}

} // namespace Cli
