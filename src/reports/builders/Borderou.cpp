#include "reports/builders/Borderou.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "reference/DateReferinta.h"
#include "reports/Catalog.h"
#include "reports/Rapoarte.h"
#include "reports/builders/ComunListe.h"
#include "reports/export/Ods.h"
#include "reports/export/Xlsx.h"
#include "store/BazaDate.h"
#include "store/CitireRapida.h"

#include <QDir>
#include <array>
#include <vector>

namespace Raport {
namespace {

constexpr Aliniere Stanga{Orizontal::Stanga, Vertical::Centru};
constexpr Aliniere Centru{Orizontal::Centru, Vertical::Centru};
constexpr Aliniere Dreapta{Orizontal::Dreapta, Vertical::Centru};

struct Coloana {
    const char* titlu;
    const char* titluFoaie;
    int latime;
    Aliniere aliniere;
};

constexpr std::array<Coloana, 9> Coloane{{
    {"Nr. Crt.", "Nr. Crt.", 30, Dreapta},
    {"Nr/Data cerere", "Nr cerere / Data cerere", 120, Dreapta},
    {"Titular dosar", "Nume si prenume", 200, Stanga},
    {"CNP", "CNP", 100, Centru},
    {"Adresa", "Adresa", 200, Stanga},
    {"Lege 416", "Legea 416", 40, Dreapta},
    {"Nr Membrii", "Nr. membrii", 40, Dreapta},
    {"Nr Copii", "Nr. copii", 40, Dreapta},
    {"Suma", "Suma", 60, Dreapta},
}};

constexpr int ColoanaTotal = 5, ColoanaSuma = 9;

// The statuses each report lists; the first lists them all.
const std::array<std::vector<int>, 5> StariRaport{{{}, {1, 2, 6, 7, 8}, {3}, {4}, {5}}};

// The fields the orderings stand for. A missing value sorts as the empty one, so that both engines put
// it in the same place.
QString CampOrdonare(int ord) {
    switch (ord) {
    case 1:
        return QStringLiteral("COALESCE(C.NrCerere, 0)");
    case 2:
        return QStringLiteral("COALESCE(M.Nume, '')");
    case 3:
        return QStringLiteral("COALESCE(F.Strada, '')");
    default:
        return {};
    }
}

// The numbers the spreadsheet takes as numbers; a missing one stays an empty cell.
void Intreg(Grila& g, int rand, int col, const CitireRapida& q, int i) {
    if (!q.EsteNul(i)) g.ScrieIntreg(rand, col, q.Intreg(i));
}

} // namespace

QStringList TipuriRaportBorderou() {
    return {QStringLiteral("Toate cererile"), QStringLiteral("In plata"), QStringLiteral("Suspendate"),
            QStringLiteral("Incetate"), QStringLiteral("Respinse")};
}

QStringList TipuriAlocatieBorderou() {
    return {QStringLiteral("Toate alocatiile"), QStringLiteral("Aloc complementare"),
            QStringLiteral("Aloc monoparentale")};
}

QStringList OrdonareBorderou() {
    return {QStringLiteral("Ordinea introducerii datelor"), QStringLiteral("NrCerere"), QStringLiteral("Nume"),
            QStringLiteral("Strada")};
}

std::optional<RefuzBorderou> VerificaBorderou(const AlegeriBorderou& a) {
    if (a.tipRaport < 0 || a.tipRaport >= TipuriRaportBorderou().size())
        return RefuzBorderou{QStringLiteral("Selectati din lista un tip de raport!"),
                             RefuzBorderou::Control::TipRaport};
    if (a.tipAloc < 0 || a.tipAloc >= TipuriAlocatieBorderou().size())
        return RefuzBorderou{QStringLiteral("Selectati din lista un tip de alocatie!"),
                             RefuzBorderou::Control::TipAloc};
    return std::nullopt;
}

QString ClauzaOrdonareBorderou(int ord1, int ord2) {
    QString clauza = QStringLiteral(" ORDER BY ");
    const QString prima = CampOrdonare(ord1), aDoua = CampOrdonare(ord2);
    if (!prima.isEmpty()) {
        clauza += prima + QStringLiteral(", ");
        if (!aDoua.isEmpty()) clauza += aDoua + QStringLiteral(", ");
    }
    return clauza + QStringLiteral("C.CerereID");
}

Grila Borderou(BazaDate& db, Mesaje& m, const Setari& s, const AlegeriBorderou& a, bool foaie) {
    if (const auto refuz = VerificaBorderou(a)) throw Eroare(refuz->mesaj);

    Grila g = GrilaNoua(s);
    g.inaltimeImplicita = s.HeightRowBorderou > 0 ? s.HeightRowBorderou : 36;
    // The grid prints on A4 landscape; the spreadsheet was only told the paper.
    g.pagina = {Hartie::A4, foaie, {1.4, 0.5, 0.5, 1.0}};

    std::vector<ColoanaLista> coloane;
    for (const Coloana& c : Coloane)
        coloane.push_back({QString::fromUtf8(foaie ? c.titluFoaie : c.titlu), c.latime, c.aliniere});
    Lista lista(g, coloane, CitestePrimariaRaport(db, m), QStringLiteral("BORDEROU"), true, a.luna, a.an);
    if (a.tipRaport != 0)
        g.Scrie(5, 1,
                QStringLiteral("privind cererile ") + TipuriRaportBorderou()[a.tipRaport] +
                    QStringLiteral(" pentru alocatia de sustinere a familiei"));
    // The first column is the narrow, right-aligned counter: the town hall's lines and the month
    // would be cut to a few letters in it.
    for (int r : {1, 2, 3, 6}) {
        g.Uneste({r, 1, r, ColoanaTotal - 1});
        g.Aliniaza({r, 1, r, ColoanaTotal - 1}, Stanga);
    }

    QString sql = QStringLiteral("SELECT C.NrCerere, C.DataCerere, M.Nume, M.Prenume, M.CNP, F.Localitate, F.Strada, "
                                 "F.Nr, F.Sc, F.Ap, C.Lege416, C.NrMembrii, C.NrCopii, C.Cuantum "
                                 "FROM Familii AS F, Cereri AS C, Membrii AS M "
                                 "WHERE F.FamilieID = C.FamilieID AND C.MembruID1 = M.MembruID");
    const std::vector<int>& stari = StariRaport[size_t(a.tipRaport)];
    if (!stari.empty()) {
        QStringList semne;
        for (size_t i = 0; i < stari.size(); ++i)
            semne << QStringLiteral("?");
        sql += QStringLiteral(" AND C.Stare IN (") + semne.join(QStringLiteral(", ")) + QLatin1Char(')');
    }
    if (a.tipAloc != 0) sql += QStringLiteral(" AND C.TipCerere = ?");
    sql += ClauzaOrdonareBorderou(a.ord1, a.ord2);
    CitireRapida q(db, sql);
    for (int stare : stari)
        q.Leaga(stare);
    if (a.tipAloc != 0) q.Leaga(a.tipAloc);
    q.Executa();

    // The grid grows by many rows at a time and is cut to its rows at the end: grown a row at a time,
    // its cells would be moved over and over.
    constexpr int Pas = 4096;
    const int primul = g.Randuri(), ultimaColoana = int(Coloane.size());
    int rand = primul;
    Bani total;
    while (q.Urmator()) {
        if (rand == g.Randuri()) g.SeteazaRanduri(rand + Pas);
        g.ScrieIntreg(rand, 1, rand - primul + 1);
        g.ScriePiese(rand, 2, {q.Vedere(0), u" / ", DataScrisa(q.Data(1)).Vedere()});
        g.ScriePiese(rand, 3, {q.Vedere(2), u" ", q.Vedere(3)});
        g.ScriePiese(rand, 4, {q.Vedere(4)});
        ScrieAdresa(g, rand, 5, q.Vedere(5), u"str.", q.Vedere(6), q.Vedere(7), q.Vedere(8), q.Vedere(9));
        g.ScriePiese(rand, 6, {q.Valoare(10).toBool() ? u"DA" : u"NU"});
        Intreg(g, rand, 7, q, 11);
        Intreg(g, rand, 8, q, 12);
        if (!q.EsteNul(13)) {
            const Bani cuantum = q.Suma(13);
            total += cuantum;
            g.ScrieSuma(rand, ColoanaSuma, cuantum);
        }
        g.Bordura({rand, 1, rand, ultimaColoana}, Margine::Jos, Linie::Subtire);
        ++rand;
    }
    g.SeteazaRanduri(rand);
    if (rand > primul) g.Bordura({rand - 1, 1, rand - 1, ultimaColoana}, Margine::Jos, Linie::Groasa);

    QStringList randTotal;
    std::vector<QVariant> valoareTotal(Coloane.size());
    for (int c = 1; c <= int(Coloane.size()); ++c)
        randTotal << QString();
    randTotal[ColoanaTotal - 1] = QStringLiteral("TOTAL GENERAL");
    randTotal[ColoanaSuma - 1] = FormatSuma(total);
    valoareTotal[ColoanaSuma - 1] = QVariant::fromValue(total);
    lista.Rand(randTotal, valoareTotal, false);
    lista.Subsol();
    return g;
}

QString FisierExportBorderou(const Setari& s, const QString& folder) {
    return QDir(folder).filePath(QStringLiteral("BorderouASF") +
                                 (s.AppWord == 2 ? QStringLiteral(".ods") : QStringLiteral(".xlsx")));
}

QString ExportaBorderou(BazaDate& db, Mesaje& m, const Setari& s, const AlegeriBorderou& a, const QString& folder) {
    const Grila g = Borderou(db, m, s, a, true);
    const QString fisier = FisierExportBorderou(s, folder);
    if (s.AppWord == 2)
        ScrieOds(g, fisier);
    else
        ScrieXlsx(g, fisier);
    return fisier;
}

std::optional<AntetBorderou> DeschideBorderou(BazaDate& db, Mesaje& m) {
    if (!VerificaPrimaria(db, m)) return std::nullopt;
    const auto rand = DateReferinta::CitesteRandPrimarie(db);
    if (!rand) return std::nullopt;
    return AntetBorderou{rand->Text("CodFiscal"), rand->Text("AsSocial")};
}

} // namespace Raport
