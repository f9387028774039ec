#include "reports/Catalog.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "reports/Desen.h"
#include "reports/builders/Constructori.h"
#include "reports/export/Cel.h"
#include "reports/export/Csv.h"
#include "reports/export/Ods.h"
#include "reports/export/Xlsx.h"

#include <QDir>
#include <QFileInfo>

namespace Raport {
namespace {

std::vector<IntrareRaport> Intrari() {
    const auto intrare = [](const char* text) {
        return IntrareRaport{QString::fromUtf8(text), {}, {}, false, false, {}};
    };
    std::vector<IntrareRaport> r{intrare("Toate cererile"),
                                 intrare("In plata"),
                                 intrare("Suspendate"),
                                 intrare("Incetate"),
                                 intrare("Respinse"),
                                 intrare("Lista copii care implinesc 18 ani"),
                                 intrare("Lista copii care au adeverinte de scolarizare"),
                                 intrare("Lista copii care nu au adeverinte de scolarizare"),
                                 intrare("Lista copii care implinesc 7 ani in anul curent"),
                                 intrare("Anexa 3 - Plati noi + repuneri"),
                                 intrare("Anexa 3 - Noi"),
                                 intrare("Anexa 3 - Repuneri"),
                                 intrare("Anexa 4 - Modificari/Incetari"),
                                 intrare("Anexa 4 - Suspendari"),
                                 intrare("Anexa 4 - Modificari/Incetari/Susp/Reluari"),
                                 intrare("Cereri - 6 luni"),
                                 intrare("Lista acte care expira in luna curenta"),
                                 intrare("Lista copii"),
                                 intrare("Lista adulti"),
                                 intrare("Lista toti beneficiarii"),
                                 intrare("Borderou beneficiari"),
                                 intrare("Lista membrii")};
    for (int i : {5, 6, 7})
        r[size_t(i)].faraFoaie = true;
    for (int i : {15, 20, 21})
        r[size_t(i)].faraCopieCalc = true;
    InregistreazaListe(r);
    InregistreazaAnexe(r);
    return r;
}

const IntrareRaport& Intrarea(int index) {
    const auto& c = Catalog();
    if (index < 0 || size_t(index) >= c.size()) throw Eroare(QStringLiteral("Selectati din lista un tip de raport!"));
    return c[size_t(index)];
}

Eroare Lipsa(const IntrareRaport& e) {
    return Eroare(
        QStringLiteral("Raportul \"%1\" nu este inca disponibil in aceasta versiune a programului.").arg(e.text));
}

} // namespace

const std::vector<IntrareRaport>& Catalog() {
    static const std::vector<IntrareRaport> c = Intrari();
    return c;
}

QStringList TexteCatalog() {
    QStringList r;
    for (const IntrareRaport& e : Catalog())
        r << e.text;
    return r;
}

QStringList ListaOrdonare(bool cuNr) {
    QStringList r{QStringLiteral("Ordinea introducerii datelor"), QStringLiteral("NrCerere"),
                  QStringLiteral("Nume, Prenume"), QStringLiteral("Strada")};
    if (cuNr) r << QStringLiteral("Nr");
    return r;
}

QString ClauzaOrdonare(int ord1, int ord2, const QString& nrNumeric) {
    const QStringList prima = ListaOrdonare(false), aDoua = ListaOrdonare(true);
    if (ord1 <= 0 || ord1 >= prima.size()) return {};
    const QString clauza = QStringLiteral(" ORDER BY ") + prima[ord1];
    if (ord2 <= 0 || ord2 >= aDoua.size()) return clauza;
    if (aDoua[ord2] == QLatin1String("Nr") && !nrNumeric.isEmpty())
        return clauza + QStringLiteral(", ") + nrNumeric + QStringLiteral(", Nr");
    return clauza + QStringLiteral(", ") + aDoua[ord2];
}

Grila GrilaNoua(const Setari& s, bool fontSablon) {
    Grila g;
    g.fontImplicit = {fontSablon ? s.FontName0 : QStringLiteral("Arial"), double(s.FontSize0), s.FontB0, false, false};
    g.inaltimeImplicita = s.HeightRowRaport > 0 ? s.HeightRowRaport : 36;
    return g;
}

void AsazaPagina(Grila& g, const Alegeri& a) {
    if (a.hartie) g.pagina.hartie = *a.hartie;
    g.pagina.portret = a.portret;
    g.pagina.margini = {1.4, 0.5, 0.5, 1.0};
}

Grila Construieste(int index, bool foaie, BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    const IntrareRaport& e = Intrarea(index);
    const Constructor& c = foaie ? e.foaie : e.grila;
    if (!c) throw Lipsa(e);
    return c(db, m, mediu, a);
}

QString NumeFisier(const QString& text, const QString& extensie) {
    QString nume = text;
    nume.replace(QLatin1Char('/'), QLatin1Char('_'));
    return nume + extensie;
}

bool AreExport(int index, int appWord) {
    const IntrareRaport& e = Intrarea(index);
    return appWord == 2 ? !e.faraCopieCalc : !e.faraFoaie;
}

Grila GrilaFoaie(int index, BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    if (mediu.setari.AppWord == 2) {
        Grila g = Construieste(index, false, db, m, mediu, a);
        AsazaPagina(g, a);
        return g;
    }
    // The page is set before anything is written, as the spreadsheet programs wanted it.
    if (!a.hartie) m.Informatie(QStringLiteral("Nesetat formatul paginii!"));
    Grila g = Construieste(index, true, db, m, mediu, a);
    const Hartie aBuilderului = g.pagina.hartie;
    AsazaPagina(g, a);
    // One of the office programs could not be told the paper size.
    if (mediu.setari.AppWord == 5) g.pagina.hartie = aBuilderului;
    return g;
}

std::optional<QString> Exporta(int index, BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a,
                               const QString& folder, const std::function<void(const Grila&)>& arata) {
    const IntrareRaport& e = Intrarea(index);
    const bool calc = mediu.setari.AppWord == 2;
    // With LibreOffice the report is built as OK builds it, and shown, even when nothing is exported.
    if (!calc && !AreExport(index, mediu.setari.AppWord)) return std::nullopt;
    const Grila g = GrilaFoaie(index, db, m, mediu, a);
    if (calc && arata) arata(g);
    if (!AreExport(index, mediu.setari.AppWord)) return std::nullopt;
    if (calc && e.copieCalc) return e.copieCalc(g, m, mediu, folder);
    const QString fisier =
        QDir(folder).filePath(NumeFisier(e.text, calc ? QStringLiteral(".ods") : QStringLiteral(".xlsx")));
    if (calc)
        ScrieOds(g, fisier);
    else
        ScrieXlsx(g, fisier);
    return fisier;
}

void ScrieDupaExtensie(const Grila& g, const QString& fisier) {
    const QString ext = QFileInfo(fisier).suffix().toLower();
    if (ext == QLatin1String("csv"))
        ScrieCsv(g, fisier);
    else if (ext == QLatin1String("xlsx"))
        ScrieXlsx(g, fisier);
    else if (ext == QLatin1String("ods"))
        ScrieOds(g, fisier);
    else if (ext == QLatin1String("pdf"))
        ScriePdf(g, fisier);
    else if (ext == QLatin1String("cel"))
        SalveazaCel(g, fisier);
    else
        throw Eroare(
            QStringLiteral("Formatul fisierului %1 nu este cunoscut: alegeti .csv, .xlsx, .ods, .pdf sau .cel.")
                .arg(QFileInfo(fisier).fileName()));
}

} // namespace Raport
