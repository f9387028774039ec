#include "cli/ArgumenteCli.h"

#include "base/Foldere.h"
#include "maintenance/ImportVechi.h"

#include <QDir>

namespace Cli {

int ComandaImport(const QCommandLineParser& p, const QString& cale, QTextStream& out) {
    const LocatieBD loc = Locatie(p);
    int ultim = -1;
    const RezultatImport r = ImportaInLocatie(loc, cale, QDir(Foldere::FolderLivrat()).filePath(QStringLiteral("data")),
                                              [&](qint64 facute, qint64 total) {
                                                  const int procent = int(facute * 100 / std::max<qint64>(total, 1));
                                                  if (procent / 10 == ultim / 10) return;
                                                  ultim = procent;
                                                  out << procent << "%" << Qt::endl;
                                              });
    if (r.creata) out << "Baza de date a fost creata: " << loc.Descriere() << Qt::endl;
    for (const QString& linie : r.raport.Linii())
        out << linie << Qt::endl;
    out << "Importul s-a incheiat: " << loc.Descriere() << Qt::endl;
    return 0;
}

} // namespace Cli
