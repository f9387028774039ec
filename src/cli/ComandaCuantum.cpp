#include "cli/ArgumenteCli.h"

#include "base/Ceas.h"
#include "base/Val.h"
#include "cases/CalculCuantum.h"
#include "cases/DateCerere.h"

#include <limits>

namespace Cli {

// The amount of one stored request, read as the request editor reads it, in a working month:
// the one given, else the settings' month, else the present month.
int ComandaCuantum(const QCommandLineParser& p, const QString& idText, QTextStream& out, QTextStream& err) {
    const qint64 id = NumarIntre(idText, 1, std::numeric_limits<qint64>::max(), QStringLiteral("ID-ul cererii"));
    const bool areLuna = p.isSet(QStringLiteral("luna")), areAn = p.isSet(QStringLiteral("an"));
    if (areLuna != areAn) throw EroareArgumente{QStringLiteral("--luna si --an se dau impreuna")};
    const LocatieBD loc = Locatie(p);
    int luna = 0, an = 0;
    if (areLuna) {
        luna = int(NumarIntre(p.value(QStringLiteral("luna")), 1, 12, QStringLiteral("--luna")));
        an = int(NumarIntre(p.value(QStringLiteral("an")), AnLucruMinim, AnLucruMaxim, QStringLiteral("--an")));
    } else if (const std::optional<Setari> s = SetariBazei(loc)) {
        luna = s->LunaSetata;
        an = s->AnSetat;
    } else {
        const QDate azi = Ceas::Azi();
        luna = azi.month();
        an = azi.year();
    }

    MesajeFlux m(err, err);
    auto db = BazaDate::Deschide(loc);
    const CerereIncarcata c = IncarcaCerere(*db, id, luna, an, m);
    if (!c.Gasita) {
        err << QStringLiteral("Cererea cu ID-ul %1 nu exista in baza de date.").arg(id) << Qt::endl;
        return 1;
    }
    const IntrareCuantum intrare{c.Stare,
                                 int(c.Date.cboCerere[ElemCerere::cboTipCerere].id),
                                 c.Date.dtpData[ElemCerere::dtpDataStare],
                                 c.Date.txtCerere[ElemCerere::txtVenitPeMembru],
                                 luna,
                                 an};
    const RezultatCuantum r = CalculCuantum(intrare, IncarcaParametri(*db), m);
    // With no child counted the editor's box keeps the number it showed.
    const int nrCopii = r.NrCopii ? *r.NrCopii : int(Val(c.Date.txtCerere[ElemCerere::txtNrCopii]));
    out << "NrCopii=" << nrCopii << " Cuantum=" << r.Cuantum.Text() << Qt::endl;
    return 0;
}

} // namespace Cli
