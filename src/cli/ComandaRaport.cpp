#include "cli/ArgumenteCli.h"

#include "base/Ceas.h"
#include "base/Eroare.h"
#include "reports/Catalog.h"

#include <QDir>
#include <QFileInfo>

namespace Cli {
namespace {

QDate DataOptiune(const QCommandLineParser& p, const QString& optiune) {
    const QDate d = QDate::fromString(p.value(optiune), QStringLiteral("dd.MM.yyyy"));
    if (!d.isValid()) throw EroareArgumente{QStringLiteral("--%1 cere o data ZZ.LL.AAAA").arg(optiune)};
    return d;
}

} // namespace

// A report of the report window, built as its OK (or, with --foaie, its export) would build it with
// the same choices, written by the extension of --out. The messages the clerk would see go to the
// standard output, a line each.
int ComandaRaport(const QCommandLineParser& p, const QString& ce, QTextStream& out) {
    const QStringList texte = Raport::TexteCatalog();
    if (ce == QLatin1String("lista")) {
        for (int i = 0; i < texte.size(); ++i)
            out << i << '\t' << texte[i] << Qt::endl;
        return 0;
    }
    const int index = int(NumarIntre(ce, 0, texte.size() - 1, QStringLiteral("indexul raportului")));
    if (!p.isSet(QStringLiteral("out"))) throw EroareArgumente{QStringLiteral("lipseste --out FISIER")};
    const QString fisier = QFileInfo(p.value(QStringLiteral("out"))).absoluteFilePath();
    const QString ext = QFileInfo(fisier).suffix().toLower();
    if (!QStringList{QStringLiteral("csv"), QStringLiteral("xlsx"), QStringLiteral("ods"), QStringLiteral("pdf"),
                     QStringLiteral("cel")}
             .contains(ext))
        throw EroareArgumente{QStringLiteral("--out cere un fisier .csv, .xlsx, .ods, .pdf sau .cel")};
    const bool areLuna = p.isSet(QStringLiteral("luna")), areAn = p.isSet(QStringLiteral("an"));
    if (areLuna != areAn) throw EroareArgumente{QStringLiteral("--luna si --an se dau impreuna")};

    const LocatieBD loc = Locatie(p);
    Raport::MediuRaport mediu{SetariBazei(loc).value_or(Setari{}), loc.caleBD,
                              loc.EstePostgreSQL() ? QString() : loc.caleBD};
    Raport::Alegeri a;
    a.luna = mediu.setari.LunaSetata;
    a.an = mediu.setari.AnSetat;
    if (areLuna) {
        a.luna = int(NumarIntre(p.value(QStringLiteral("luna")), 1, 12, QStringLiteral("--luna")));
        a.an = int(NumarIntre(p.value(QStringLiteral("an")), AnLucruMinim, AnLucruMaxim, QStringLiteral("--an")));
    }
    if (p.isSet(QStringLiteral("azi"))) Ceas::SeteazaAzi(DataOptiune(p, QStringLiteral("azi")));
    a.azi = Ceas::Azi();
    const qsizetype nrOrdonari = Raport::ListaOrdonare(true).size();
    a.ord1 = int(OptiuneIntre(p, QStringLiteral("ord1"), 0, nrOrdonari - 2, 0));
    a.ord2 = int(OptiuneIntre(p, QStringLiteral("ord2"), 0, nrOrdonari - 1, 0));
    a.tipCerere = int(OptiuneIntre(p, QStringLiteral("tip-cerere"), 0, 2, 0));
    // The box is enabled only for the list of requests in payment.
    a.membri = p.isSet(QStringLiteral("membri")) && index == 1;
    a.nrLuni = p.isSet(QStringLiteral("nr-luni")) ? p.value(QStringLiteral("nr-luni")) : QStringLiteral("6");
    if (p.isSet(QStringLiteral("stari")))
        for (const QString& s : p.value(QStringLiteral("stari")).split(QLatin1Char(','), Qt::SkipEmptyParts))
            a.stari << NumarIntre(s.trimmed(), 0, 255, QStringLiteral("--stari"));
    a.nrBord = p.value(QStringLiteral("nr-bord"));
    a.dataBord = p.isSet(QStringLiteral("data-bord")) ? DataOptiune(p, QStringLiteral("data-bord")) : a.azi;

    MesajeFlux m(out, out);
    try {
        auto db = BazaDate::Deschide(loc);
        Raport::Grila g;
        if (p.isSet(QStringLiteral("foaie"))) {
            if (!Raport::AreExport(index, mediu.setari.AppWord)) {
                out << QStringLiteral("Raportul \"%1\" nu se exporta.").arg(texte[index]) << Qt::endl;
                return 1;
            }
            g = Raport::GrilaFoaie(index, *db, m, mediu, a);
        } else {
            g = Raport::Construieste(index, false, *db, m, mediu, a);
            Raport::AsazaPagina(g, a);
        }
        Raport::ScrieDupaExtensie(g, fisier);
    } catch (const Eroare& e) {
        // What stops a report is told where its other messages go.
        out << e.text() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace Cli
