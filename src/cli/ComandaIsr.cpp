#include "cli/ArgumenteCli.h"

#include "base/Eroare.h"
#include "cases/RecalculIsr.h"
#include "reference/Isr.h"

namespace Cli {

// A new ISR value and the amount of every paying request computed again with it, as the ISR window
// does: the count (or the request that stopped the run) on the standard output, exit 1 when nothing
// was changed.
int ComandaIsr(const QCommandLineParser& p, const QString& valoareText, QTextStream& out) {
    const std::optional<QString> valoare = ValoareIsr(valoareText);
    if (!valoare)
        throw EroareArgumente{
            QStringLiteral("ISR invalid: %1 (cel putin 1, cifre cu un punct, ca 525.5)").arg(valoareText)};
    const LocatieBD loc = Locatie(p);
    MesajeFlux m(out, out);
    try {
        auto db = BazaDate::Deschide(loc);
        if (!RecalculIsr::SchimbaIsr(*db, *valoare, m).ok) return 1;
    } catch (const Eroare& e) {
        out << e.text() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace Cli
