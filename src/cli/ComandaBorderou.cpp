#include "cli/ArgumenteCli.h"

#include "base/Eroare.h"
#include "reports/Catalog.h"
#include "reports/builders/Borderou.h"

#include <QFileInfo>

namespace Cli {

// The Borderou of the Borderou window, built as its OK (or, with --foaie, its export) builds it with
// the same choices, written by the extension of --out. The messages the clerk would see go to the
// standard output, a line each.
int ComandaBorderou(const QCommandLineParser& p, QTextStream& out) {
    Raport::AlegeriBorderou a;
    a.tipRaport = int(OptiuneIntre(p, QStringLiteral("raport"), 0, Raport::TipuriRaportBorderou().size() - 1, {}));
    a.tipAloc = int(OptiuneIntre(p, QStringLiteral("aloc"), 0, Raport::TipuriAlocatieBorderou().size() - 1, {}));
    const qsizetype nrOrdonari = Raport::OrdonareBorderou().size();
    a.ord1 = int(OptiuneIntre(p, QStringLiteral("ord1"), 0, nrOrdonari - 1, 0));
    a.ord2 = int(OptiuneIntre(p, QStringLiteral("ord2"), 0, nrOrdonari - 1, 0));
    if (!p.isSet(QStringLiteral("out"))) throw EroareArgumente{QStringLiteral("lipseste --out FISIER")};
    const QString fisier = QFileInfo(p.value(QStringLiteral("out"))).absoluteFilePath();
    if (!QStringList{QStringLiteral("csv"), QStringLiteral("xlsx"), QStringLiteral("ods"), QStringLiteral("pdf"),
                     QStringLiteral("cel")}
             .contains(QFileInfo(fisier).suffix().toLower()))
        throw EroareArgumente{QStringLiteral("--out cere un fisier .csv, .xlsx, .ods, .pdf sau .cel")};
    const bool areLuna = p.isSet(QStringLiteral("luna")), areAn = p.isSet(QStringLiteral("an"));
    if (areLuna != areAn) throw EroareArgumente{QStringLiteral("--luna si --an se dau impreuna")};

    const LocatieBD loc = Locatie(p);
    const Setari setari = SetariBazei(loc).value_or(Setari{});
    a.luna = setari.LunaSetata;
    a.an = setari.AnSetat;
    if (areLuna) {
        a.luna = int(NumarIntre(p.value(QStringLiteral("luna")), 1, 12, QStringLiteral("--luna")));
        a.an = int(NumarIntre(p.value(QStringLiteral("an")), AnLucruMinim, AnLucruMaxim, QStringLiteral("--an")));
    }

    MesajeFlux m(out, out);
    try {
        auto db = BazaDate::Deschide(loc);
        Raport::ScrieDupaExtensie(Raport::Borderou(*db, m, setari, a, p.isSet(QStringLiteral("foaie"))), fisier);
    } catch (const Eroare& e) {
        out << e.text() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace Cli
