#include "cli/ArgumenteCli.h"

#include "store/ActualizareBD.h"

namespace Cli {

int ComandaUpgrade(const QCommandLineParser& p, QTextStream& out, QTextStream& err) {
    MesajeFlux m(out, err);
    const LocatieBD loc = Locatie(p);
    auto db = BazaDate::Deschide(loc);
    const RezultatActualizare r =
        ActualizareBD(*db, loc.caleBD, m, [&](const QString& linie) { out << linie << Qt::endl; });
    return r.Reusit() ? 0 : 1;
}

} // namespace Cli
