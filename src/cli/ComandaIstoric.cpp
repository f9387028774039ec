#include "cli/ArgumenteCli.h"

#include "cases/Istoric.h"

#include <limits>

namespace Cli {

// The history under a request number, newest first, deleted requests included: one line for
// each change, tab-separated: when, who, what.
int ComandaIstoric(const QCommandLineParser& p, const QString& nrText, QTextStream& out) {
    const qint64 nr = NumarIntre(nrText, 0, std::numeric_limits<qint32>::max(), QStringLiteral("numarul cererii"));
    auto db = BazaDate::Deschide(Locatie(p));
    for (const RandIstoric& r : Istoric::ListaNumar(*db, nr))
        out << QStringList{r.DataOra, r.Utilizator, r.Detalii.isEmpty() ? r.Motiv : r.Detalii}.join(QLatin1Char('\t'))
            << Qt::endl;
    return 0;
}

} // namespace Cli
