#include "reports/builders/Anexe.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/MemorieMare.h"
#include "base/Setari.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "reference/DateReferinta.h"
#include "reports/builders/ComunListe.h"
#include "reports/builders/Constructori.h"
#include "reports/export/SablonOds.h"
#include "store/BazaDate.h"
#include "store/CitireRapida.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <array>
#include <vector>

namespace Raport {
namespace {

constexpr int NrColoane = 25;
constexpr int UltimaColoana = NrColoane - 1;

bool EsteAnexa4(int fel) {
    return fel == 2 || fel == 5 || fel == 6;
}

std::vector<int> Stari(int fel) {
    switch (fel) {
    case 1:
        return {2, 6};
    case 2:
        return {4, 7, 8};
    case 3:
        return {2};
    case 4:
        return {6};
    case 5:
        return {3};
    case 6:
        return {3, 4, 6, 7, 8};
    }
    throw Eroare(QStringLiteral("Anexa de felul %1 nu exista.").arg(fel));
}

// Kinds 2 and 5 have a single mark column; the two after it stay in the table, hidden, so that the
// columns keep the places of the agency's form.
bool ColoaneAscunse(int fel) {
    return fel == 2 || fel == 5;
}

int UltimaVizibila(int fel) {
    return ColoaneAscunse(fel) ? 22 : UltimaColoana;
}

// ---- The page head ----

void Chenar(Grila& g, const Dreptunghi& d, Linie l = Linie::Subtire) {
    for (Margine m : {Margine::Stanga, Margine::Dreapta, Margine::Sus, Margine::Jos})
        g.Bordura(d, m, l);
}

void Uneste(Grila& g, const Dreptunghi& d, const QString& text) {
    g.Uneste(d);
    g.Scrie(d.rand1, d.col1, text);
}

// A title of the table's head: merged, wrapped, centred and boxed.
void Titlu(Grila& g, const Dreptunghi& d, const QString& text) {
    Uneste(g, d, text);
    g.Incadreaza(d, true);
    g.Aliniaza(d, {Orizontal::Centru, Vertical::Centru});
    Chenar(g, d);
}

// Labels on the left, values on the right, one per row, boxed.
void BlocEtichete(Grila& g, int rand1, int colEticheta, int colValoare, int colSfarsit, const QStringList& etichete,
                  const QStringList& valori) {
    const int rand2 = rand1 + int(etichete.size()) - 1;
    for (int i = 0; i < etichete.size(); ++i) {
        Uneste(g, {rand1 + i, colEticheta, rand1 + i, colValoare - 1}, etichete[i]);
        Uneste(g, {rand1 + i, colValoare, rand1 + i, colSfarsit}, valori.value(i));
    }
    const Dreptunghi bloc{rand1, colEticheta, rand2, colSfarsit};
    g.Aliniaza(bloc, {Orizontal::Stanga, Vertical::Centru});
    Chenar(g, bloc);
    g.Bordura(bloc, Margine::InteriorOrizontal, Linie::Subtire);
    g.Bordura({rand1, colValoare - 1, rand2, colValoare - 1}, Margine::Dreapta, Linie::Subtire);
    g.SeteazaFont({rand1, colValoare, rand2, colSfarsit}, Font{{}, 0, false, {}, {}});
}

QString Subiect(int fel) {
    switch (fel) {
    case 2:
        return QStringLiteral("DISPOZITII MODIFICARE CUANTUM/INCETARE DREPT");
    case 5:
        return QStringLiteral("DISPOZITII SUSPENDARE DREPT");
    case 6:
        return QStringLiteral("DISPOZITII DE MODIFICARE/INCETARE/SUSPENDARE/RELUARE DREPT");
    default:
        return QStringLiteral("DOCUMENTE STABILIRE PLATI DREPTURI NOI");
    }
}

QString TextPrimarie(const std::optional<DateReferinta::RandPrimarie>& p, std::string_view camp) {
    return p ? p->Text(camp).value_or(QString()) : QString();
}

void CapPagina(Grila& g, BazaDate& db, int fel, bool foaie) {
    const auto p = DateReferinta::CitesteRandPrimarie(db);
    const auto text = [&](std::string_view camp) { return TextPrimarie(p, camp); };

    g.SeteazaInaltimeRand(1, 22);
    g.SeteazaInaltimeRand(2, 18);
    Uneste(g, {1, 5, 1, 10}, QStringLiteral("BORDEROU"));
    g.SeteazaFont({1, 5, 1, 5}, Font{{}, 12, {}, {}, {}});
    g.Aliniaza({1, 5, 1, 5}, {Orizontal::Centru, Vertical::Centru});
    // Three columns from the end of the grid for Anexa 3, five for Anexa 4.
    const int colAnexa = NrColoane - (EsteAnexa4(fel) ? 5 : 3);
    Uneste(g, {1, colAnexa, 1, UltimaColoana},
           EsteAnexa4(fel) ? QStringLiteral("Anexa nr.4") : QStringLiteral("Anexa nr.3"));
    g.Aliniaza({1, colAnexa, 1, colAnexa}, {Orizontal::Dreapta, Vertical::Centru});
    Uneste(g, {2, 5, 2, 17}, Subiect(fel));
    g.SeteazaFont({2, 5, 2, 5}, Font{{}, 10, {}, {}, {}});
    g.Aliniaza({2, 5, 2, 5}, {Orizontal::Centru, Vertical::Centru});
    Uneste(g, {2, 20, 2, UltimaColoana}, QStringLiteral("la normele metodologice"));
    g.Aliniaza({2, 20, 2, 20}, {Orizontal::Dreapta, Vertical::Centru});
    g.SeteazaFont({2, 20, 2, 20}, Font{{}, 0, false, {}, {}});

    QStringList adresa;
    if (!text("Str").trimmed().isEmpty()) adresa << QStringLiteral("str. ") + text("Str");
    if (!text("Nr").trimmed().isEmpty()) adresa << QStringLiteral("nr. ") + text("Nr");
    BlocEtichete(g, 2, 1, 3, 4,
                 {QStringLiteral("PRIMARIA"), QStringLiteral("JUDET"), QStringLiteral("ADRESA"), QStringLiteral("CUI"),
                  QStringLiteral("COD POSTAL"), QStringLiteral("OFICIU POSTAL")},
                 {text("Localitate"), text("Judet"), adresa.join(QStringLiteral(", ")), text("CodFiscal"),
                  text("CodPostal"), text("OfPostal")});

    Uneste(g, {9, 1, 9, 2}, QStringLiteral("Nr."));
    Uneste(g, {10, 1, 10, 2}, QStringLiteral("Data"));
    g.Aliniaza({9, 1, 10, 2}, {Orizontal::Stanga, Vertical::Jos});
    g.Bordura({9, 3, 10, 3}, Margine::InteriorOrizontal, Linie::Subtire);
    g.Bordura({9, 3, 10, 3}, Margine::Jos, Linie::Subtire);
    Uneste(g, {11, 1, 11, 3}, QStringLiteral("INSUSIT PRIMAR"));
    g.Aliniaza({11, 1, 11, 3}, {Orizontal::Stanga, Vertical::Jos});

    // The social worker who takes the table to the agency: the name is split at its first blank.
    const QString delegat = text("AsSocial").trimmed();
    const qsizetype blanc = delegat.indexOf(QLatin1Char(' '));
    const QString nume = blanc < 0 ? delegat : delegat.left(blanc);
    const QString prenume = blanc < 0 ? QString() : delegat.mid(blanc + 1);
    Uneste(g, {7, 8, 7, 12}, QStringLiteral("DELEGAT PRIMARIE"));
    g.Aliniaza({7, 8, 7, 8}, {Orizontal::Centru, Vertical::Centru});
    BlocEtichete(
        g, 8, 8, 10, 12,
        {QStringLiteral("Nume"), foaie ? QStringLiteral("Prenume") : QStringLiteral("Preume"), QStringLiteral("CNP")},
        {nume, prenume, text("CNPAsSocial")});
}

// ---- The table's head ----

struct Coloana {
    int latime;
    int randTitlu; // where its title begins: the head's first row, or the row under its upper title
    const char* titlu;
};

const std::array<Coloana, 16> Comune{{{30, RandCapTabel, "Nr. Crt."},
                                      {90, 16, "Nume"},
                                      {130, 16, "Prenume"},
                                      {105, 16, "CNP"},
                                      {90, 16, "Strada"},
                                      {40, 16, "Nr."},
                                      {40, 16, "Bloc"},
                                      {40, 16, "Sc."},
                                      {40, 16, "Et."},
                                      {40, 16, "Ap."},
                                      {40, 16, "Sect"},
                                      {100, 16, "Localitate"},
                                      {50, 16, "Of Postal"},
                                      {50, 16, "Cod Postal"},
                                      {60, RandCapTabel, "Nr. copii"},
                                      {60, RandCapTabel, "Tip familie*"}}};

const std::array<Coloana, 8> ColoaneAnexa3{{{60, RandCapTabel, "Venit net/persoana"},
                                            {60, RandCapTabel, "Nr inreg cerere"},
                                            {60, 16, "Nr. dispozitie"},
                                            {58, 16, "Data dispozitie"},
                                            {55, 16, "Data start"},
                                            {45, RandCapTabel, "Cuantum lunar alocatie"},
                                            {45, 16, "Dispozitie"},
                                            {45, 16, "Cerere"}}};

const std::array<Coloana, 8> ColoaneAnexa4{{{60, 16, "Nr dispozitie"},
                                            {45, 16, "Data dispozitie"},
                                            {45, 16, "Data start"},
                                            {60, 18, "Cuantum vechi(lei)"},
                                            {60, 18, "Cuantum nou(lei)"},
                                            {45, 16, "Incetare drept"},
                                            {45, 16, "Suspendare drept"},
                                            {45, 16, "Reluare drept"}}};

struct Grup {
    Dreptunghi d;
    const char* text;
};

void CapTabel(Grila& g, int fel) {
    const int ultimRand = PrimulRandDate - 1;
    std::vector<Grup> grupuri{{{RandCapTabel, 2, 15, 4}, "Titular"}, {{RandCapTabel, 5, 15, 14}, "Adresa"}};
    if (EsteAnexa4(fel))
        grupuri.insert(grupuri.end(), {{{RandCapTabel, 17, 15, 19}, "Dispozitie primar"},
                                       {{RandCapTabel, 20, 15, 24}, "Tip decizie"},
                                       {{16, 20, 17, 21}, "Modificare cuantum"}});
    else
        grupuri.insert(grupuri.end(), {{{RandCapTabel, 19, 15, 21}, "Dispozitie primar"},
                                       {{RandCapTabel, 23, 15, 24}, "Documente transmise**"}});
    for (const Grup& gr : grupuri)
        Titlu(g, gr.d, QString::fromUtf8(gr.text));

    const auto& proprii = EsteAnexa4(fel) ? ColoaneAnexa4 : ColoaneAnexa3;
    for (int c = 1; c <= UltimaColoana; ++c) {
        const Coloana& col = c <= int(Comune.size()) ? Comune[size_t(c - 1)] : proprii[size_t(c - 17)];
        QString titlu = QString::fromUtf8(col.titlu);
        if (fel == 5 && c == 22) titlu = QStringLiteral("Suspendare drept");
        Titlu(g, {col.randTitlu, c, ultimRand, c}, titlu);
        g.SeteazaLatimeColoana(c, ColoaneAscunse(fel) && c >= 23 ? 0 : col.latime);
        const bool text = c == 2 || c == 3 || c == 5 || c == 12;
        g.SeteazaAliniereColoana(c, {text ? Orizontal::Stanga : Orizontal::Centru, Vertical::Centru});
    }
    const int ultima = UltimaVizibila(fel);
    Chenar(g, {RandCapTabel, 1, ultimRand, ultima}, Linie::Groasa);
}

// ---- The rows ----

// The fields read, in the order of the query's columns.
enum Camp {
    cNrCerere,
    cStare,
    cNrCopii,
    cTipCerere,
    cVenit,
    cCuantum,
    cDataStare,
    cNume,
    cPrenume,
    cCNP,
    cStrada,
    cNr,
    cBloc,
    cSc,
    cEtaj,
    cAp,
    cLocalitate,
    cNrDisp,
    cDataDisp,
    cCuantumDisp,
    cCuantumVechi
};

enum class FelCamp { Numar, Suma, Data, Text };

constexpr FelCamp FelulCampului(int camp) {
    switch (camp) {
    case cVenit:
    case cCuantum:
    case cCuantumDisp:
    case cCuantumVechi:
        return FelCamp::Suma;
    case cDataStare:
    case cDataDisp:
        return FelCamp::Data;
    case cNrCerere:
    case cStare:
    case cNrCopii:
    case cTipCerere:
    case cNrDisp:
        return FelCamp::Numar;
    default:
        return FelCamp::Text;
    }
}

// A row as read, a field in 8 bytes: a number, an amount's units or a date's day as a number, a
// text as its place in the rows' store. Tens of thousands of rows of 21 fields stay small.
struct Valori {
    std::array<std::uint64_t, cCuantumVechi + 1> c{};
    std::uint32_t nule = 0; // a bit for each field the engine gave as null

    bool Nul(int camp) const { return nule >> camp & 1U; }
    qint64 Numar(int camp) const { return qint64(c[size_t(camp)]); }
    Depozit::Felie Felie(int camp) const {
        return {std::uint32_t(c[size_t(camp)] >> 32), std::uint32_t(c[size_t(camp)])};
    }
};

struct RanduriAnexa {
    VectorMare<Valori> randuri;
    Depozit texte;

    QUtf8StringView Text(const Valori& v, int camp) const { return texte[v.Felie(camp)]; }
};

// Writes a row's cells into the grid: a null field leaves its cell empty.
class Rand {
public:
    Rand(Grila& g, int rand, const Valori& v, const Depozit& texte) : g_(g), rand_(rand), v_(v), texte_(texte) {}

    void Text(int col, int camp) {
        if (!v_.Nul(camp)) g_.ScriePiese(rand_, col, {texte_[v_.Felie(camp)]});
    }
    void Text(int col, const QVariant& v) {
        if (!v.isNull()) g_.Scrie(rand_, col, v.toString());
    }
    void Intreg(int col, int camp) {
        if (!v_.Nul(camp)) Intreg(col, v_.Numar(camp));
    }
    void Intreg(int col, qint64 n) { g_.ScrieIntreg(rand_, col, n); }
    void Suma(int col, int camp) {
        if (!v_.Nul(camp)) g_.ScrieSuma(rand_, col, Bani::DinUnitati(v_.Numar(camp)));
    }
    void Data(int col, int camp) {
        if (v_.Nul(camp)) return;
        const QDate d = QDate::fromJulianDay(v_.Numar(camp));
        g_.Scrie(rand_, col, FormatData(d), d);
    }
    void Marcheaza(int col) { g_.ScriePiese(rand_, col, {u"X"}); }

private:
    Grila& g_;
    int rand_;
    const Valori& v_;
    const Depozit& texte_;
};

// The streets' post office and postal code, found by name as the street editor compares names
// (case and diacritics aside); the first street of a name wins.
class CoduriPostale {
public:
    struct Coduri {
        QVariant oficiu, cod;
    };

    explicit CoduriPostale(BazaDate& db) {
        Interogare q(db, QStringLiteral("SELECT Denumire, OfPostal, CodPostal FROM Strazi ORDER BY StradaID"));
        q.Executa();
        while (q.Urmator()) {
            const QString cheie = CheieCautare(q.Valoare(0).toString());
            if (!coduri_.contains(cheie)) coduri_.insert(cheie, {q.Valoare(1), q.Valoare(2)});
        }
    }

    // Nothing for a family without a street or with one the list doesn't have.
    const Coduri* Cauta(QUtf8StringView text) {
        if (text.isEmpty() || coduri_.isEmpty()) return nullptr;
        const QString strada = text.toString();
        auto gasit = dupaText_.find(strada);
        if (gasit == dupaText_.end()) {
            const auto c = coduri_.constFind(CheieCautare(strada));
            gasit = dupaText_.insert(strada, c == coduri_.constEnd() ? nullptr : &c.value());
        }
        return gasit.value();
    }

private:
    QHash<QString, Coduri> coduri_;
    QHash<QString, const Coduri*> dupaText_; // the families repeat their streets
};

// Columns 17 to 24 by form and kind. The filter lets through only the statuses handled here.
void ColoaneProprii(Rand& r, const Valori& v, int fel) {
    if (!EsteAnexa4(fel)) {
        r.Suma(17, cVenit);
        r.Intreg(18, cNrCerere);
        r.Intreg(19, cNrDisp);
        r.Data(20, cDataDisp);
        r.Data(21, cDataStare);
        // The request's own amount: the one in payment, there even without a disposition.
        r.Suma(22, cCuantum);
        r.Marcheaza(23);
        r.Marcheaza(24);
        return;
    }
    r.Intreg(17, cNrDisp);
    r.Data(18, cDataDisp);
    r.Data(19, cDataStare);
    switch (v.Nul(cStare) ? 0 : v.Numar(cStare)) {
    case 7:
    case 8:
        if (!v.Nul(cCuantumVechi) && v.Numar(cCuantumVechi) != 0) r.Suma(20, cCuantumVechi);
        r.Suma(21, cCuantumDisp);
        break;
    case 4:
        r.Marcheaza(22);
        break;
    case 3:
        r.Marcheaza(fel == 6 ? 23 : 22);
        break;
    case 6:
        r.Marcheaza(24);
        break;
    }
}

// The requests of the month, in the chosen order. The rows are kept as read and written into the grid
// once their number is known, so that the grid is sized once: its cells are many times the size of
// the values.
RanduriAnexa CitesteRanduri(int fel, BazaDate& db, const Alegeri& a) {
    const std::vector<int> stari = Stari(fel);
    QStringList semne;
    for (size_t i = 0; i < stari.size(); ++i)
        semne << QStringLiteral("?");
    const QString ordine = ClauzaOrdonare(a.ord1, a.ord2);
    // The newest disposition: the latest DataDisp, one without a date after every dated one, and of
    // two on the same day the one written last. The month, not the status, is what narrows the
    // requests: the status's index (the "+" keeps the engines off it) would fetch most of the table
    // a row at a time. Rows that tie on the chosen order keep the order they were entered in, on
    // either engine.
    const QString sql =
        QStringLiteral("SELECT C.NrCerere, C.Stare, C.NrCopii, C.TipCerere, C.VenitPeMembru, C.Cuantum, C.DataStare, "
                       "M.Nume, M.Prenume, M.CNP, F.Strada, F.Nr, F.Bloc, F.Sc, F.Etaj, F.Ap, F.Localitate, "
                       "D.NrDisp, D.DataDisp, D.Cuantum AS CuantumDisp, D.CuantumVechi "
                       "FROM Familii F INNER JOIN Cereri C ON F.FamilieID = C.FamilieID "
                       "INNER JOIN Membrii M ON C.MembruID1 = M.MembruID "
                       "LEFT JOIN Dispozitii D ON D.DispozitieID = (SELECT D2.DispozitieID FROM Dispozitii D2 "
                       "WHERE D2.CerereID = C.CerereID ORDER BY D2.DataDisp DESC NULLS LAST, "
                       "D2.DispozitieID DESC LIMIT 1) "
                       "WHERE +C.Stare IN (%1) AND C.DataStare >= ? AND C.DataStare < ?%2")
            .arg(semne.join(QStringLiteral(", ")),
                 ordine.isEmpty() ? QStringLiteral(" ORDER BY C.CerereID") : ordine + QStringLiteral(", C.CerereID"));
    CitireRapida q(db, sql);
    for (int s : stari)
        q.Leaga(s);
    const QDate inceput(a.an, a.luna, 1);
    q.Leaga(inceput).Leaga(inceput.addMonths(1));
    q.Executa();
    RanduriAnexa r;
    while (q.Urmator()) {
        Valori& v = r.randuri.emplace_back();
        for (int i = 0; i <= cCuantumVechi; ++i) {
            std::uint64_t& x = v.c[size_t(i)];
            if (q.EsteNul(i)) {
                v.nule |= 1U << i;
                continue;
            }
            switch (FelulCampului(i)) {
            case FelCamp::Numar:
                x = std::uint64_t(q.Intreg(i));
                break;
            case FelCamp::Suma:
                x = std::uint64_t(q.Suma(i).Unitati());
                break;
            case FelCamp::Data: {
                const QDate d = q.Data(i);
                if (d.isValid())
                    x = std::uint64_t(d.toJulianDay());
                else
                    v.nule |= 1U << i;
                break;
            }
            case FelCamp::Text: {
                const Depozit::Felie f = r.texte.Pune(q.Vedere(i));
                x = std::uint64_t(f.start) << 32 | f.lungime;
                break;
            }
            }
        }
    }
    return r;
}

bool OrdineNumericaNr(const Alegeri& a) {
    const QStringList prima = ListaOrdonare(false), aDoua = ListaOrdonare(true);
    return a.ord1 > 0 && a.ord1 < prima.size() && a.ord2 > 0 && a.ord2 < aDoua.size() &&
           aDoua[a.ord2] == QLatin1String("Nr");
}

// With "Nr" as the second order the rows come back sorted by the house number as text ("12", "12A",
// "9"); within each run of rows that tie on the first order they are put in the order of the number's
// value, the text deciding between equal values ("9", "12", "12A"). Sorting here keeps the engine's
// own order of the first key.
void OrdoneazaNumereCasa(RanduriAnexa& r, int ord1) {
    const std::vector<int> chei = ord1 == 1   ? std::vector<int>{cNrCerere}
                                  : ord1 == 2 ? std::vector<int>{cNume, cPrenume}
                                              : std::vector<int>{cStrada};
    const auto laFel = [&](const Valori& x, const Valori& y) {
        return std::all_of(chei.begin(), chei.end(), [&](int c) {
            if (x.Nul(c) || y.Nul(c)) return x.Nul(c) == y.Nul(c);
            return FelulCampului(c) == FelCamp::Text ? r.Text(x, c) == r.Text(y, c) : x.Numar(c) == y.Numar(c);
        });
    };
    const auto numar = [&](const Valori& v) { return v.Nul(cNr) ? Val(QString()) : Val(r.Text(v, cNr).toString()); };
    for (auto inceput = r.randuri.begin(); inceput != r.randuri.end();) {
        const auto sfarsit =
            std::find_if(inceput, r.randuri.end(), [&](const Valori& v) { return !laFel(v, *inceput); });
        std::stable_sort(inceput, sfarsit, [&](const Valori& x, const Valori& y) { return numar(x) < numar(y); });
        inceput = sfarsit;
    }
}

Grila Borderou(int fel, BazaDate& db, const Setari& s, const Alegeri& a, bool foaie) {
    Grila g = GrilaNoua(s);
    g.fontImplicit = Font{QStringLiteral("Arial"), 8, true, false, false};
    g.inaltimeImplicita = 14;
    g.pagina.portret = false;
    g.SeteazaColoane(NrColoane);
    g.SeteazaRanduri(PrimulRandDate + 1);
    CapPagina(g, db, fel, foaie);
    CapTabel(g, fel);

    CoduriPostale coduri(db);
    RanduriAnexa citite = CitesteRanduri(fel, db, a);
    if (!foaie && OrdineNumericaNr(a)) OrdoneazaNumereCasa(citite, a.ord1);

    const int n = int(citite.randuri.size());
    g.SeteazaRanduri(PrimulRandDate + n + 1);
    for (int i = 0; i < n; ++i) {
        const Valori& v = citite.randuri[size_t(i)];
        Rand r(g, PrimulRandDate + i, v, citite.texte);
        r.Intreg(1, qint64(i + 1));
        for (const auto& [col, camp] : {std::pair{2, cNume},
                                        {3, cPrenume},
                                        {4, cCNP},
                                        {5, cStrada},
                                        {6, cNr},
                                        {7, cBloc},
                                        {8, cSc},
                                        {9, cEtaj},
                                        {10, cAp},
                                        {12, cLocalitate}})
            r.Text(col, camp);
        if (const auto* cod = v.Nul(cStrada) ? nullptr : coduri.Cauta(citite.Text(v, cStrada))) {
            r.Text(13, cod->oficiu);
            r.Text(14, cod->cod);
        }
        r.Intreg(15, cNrCopii);
        // The form's footnote numbers the family kinds the other way round: two parents 2, one parent 1.
        const qint64 tip = v.Nul(cTipCerere) ? 0 : v.Numar(cTipCerere);
        if (tip == 1 || tip == 2) r.Intreg(16, qint64(3 - tip));
        ColoaneProprii(r, v, fel);
    }
    if (n > 0) {
        const int ultimRand = PrimulRandDate + n - 1, ultima = UltimaVizibila(fel);
        const Dreptunghi date{PrimulRandDate, 1, ultimRand, ultima};
        g.Bordura(date, Margine::InteriorOrizontal, Linie::Subtire);
        g.Bordura(date, Margine::Stanga, Linie::Subtire);
        g.Bordura(date, Margine::Dreapta, Linie::Subtire);
        for (int col : {1, 4, 14})
            g.Bordura({PrimulRandDate, col, ultimRand, col}, Margine::Dreapta, Linie::Subtire);
        g.Bordura(date, Margine::Jos, Linie::Groasa);
    }
    return g;
}

// ---- The copy into the delivered template ----

// The template's column that becomes column `col` once the columns are removed one after the other;
// none when it is past the table.
std::optional<int> ColoanaInainte(int col, const std::vector<int>& sterse, int coloane) {
    std::vector<int> ramase(static_cast<size_t>(coloane));
    for (int i = 0; i < coloane; ++i)
        ramase[size_t(i)] = i;
    for (int s : sterse)
        if (s < int(ramase.size())) ramase.erase(ramase.begin() + s);
    if (col < 0 || col >= int(ramase.size())) return std::nullopt;
    return ramase[size_t(col)];
}

} // namespace

int FelAnexa(int index) {
    static constexpr std::array<int, 6> feluri{1, 3, 4, 2, 5, 6};
    return index >= 9 && index <= 14 ? feluri[size_t(index - 9)] : 0;
}

Grila BorderouAgentie(int fel, BazaDate& db, const Setari& s, const Alegeri& a) {
    return Borderou(fel, db, s, a, false);
}

Grila BorderouAgentieFoaie(int fel, BazaDate& db, const Setari& s, const Alegeri& a) {
    return Borderou(fel, db, s, a, true);
}

QString CopieAnexaCalc(int index, const Grila& g, const MediuRaport& mediu, const QString& folder) {
    const int fel = FelAnexa(index);
    if (fel == 0) throw Eroare(QStringLiteral("Raportul %1 nu are sablon de anexa.").arg(index));
    const QString n = EsteAnexa4(fel) ? QStringLiteral("4") : QStringLiteral("3");
    const QString text = Catalog()[size_t(index)].text;
    const QString sablon =
        QDir(mediu.applicationPath).filePath(QStringLiteral("Acte/ANEXA") + n + QStringLiteral(".ods"));
    if (!QFileInfo::exists(sablon))
        throw Eroare(QStringLiteral("Nu exista fisierul sablon Anexa") + n +
                     QStringLiteral(".ods. Sunati la 0700-111222!"));
    // The entry's text from its tenth character, the blank after the dash included.
    QString sufix = text.mid(9);
    sufix.replace(QLatin1Char('/'), QLatin1Char('+'));
    const QString nume = QStringLiteral("Asf_Anexa") + n + QStringLiteral("_") + sufix + QStringLiteral(".ods");
    const QString fisier = QDir(folder).filePath(nume);
    // LibreOffice keeps such a lock file beside a document it has open.
    if (QFileInfo::exists(QDir(folder).filePath(QStringLiteral(".~lock.") + nume + QStringLiteral("#"))))
        throw Eroare(QStringLiteral("Inchideti mai intai ") + text + QStringLiteral(" !"));

    std::vector<CelulaOds> celule;
    const auto copiaza = [&](int rand, int col, int randFoaie, int colFoaie, bool linii) {
        celule.push_back({randFoaie, colFoaie, g.Text(rand, col), linii});
    };
    for (int r = 2; r <= 7; ++r)
        copiaza(r, 3, r - 1, 2, false);
    for (int r = 8; r <= 10; ++r)
        copiaza(r, 10, r - 1, 9, false);
    std::vector<int> sterse;
    if (EsteAnexa4(fel)) {
        copiaza(2, 5, 1, 4, false);
        if (index == 12) sterse = {22, 22};
        if (index == 13) sterse = {23, 21};
    }
    // The template's columns are removed after the texts are in, so each text goes to the column that
    // the removals will bring to its place.
    for (int r = PrimulRandDate; r <= g.Randuri() - 2; ++r)
        for (int c = 1; c < g.Coloane(); ++c)
            if (const auto col = ColoanaInainte(c - 1, sterse, g.Coloane() - 1)) copiaza(r, c, r - 1, *col, true);
    CompleteazaSablonOds(sablon, fisier, celule, sterse);
    return fisier;
}

void InregistreazaAnexe(std::vector<IntrareRaport>& catalog) {
    for (int index = 9; index <= 14; ++index) {
        const int fel = FelAnexa(index);
        IntrareRaport& e = catalog[size_t(index)];
        e.grila = [fel](BazaDate& db, Mesaje&, const MediuRaport& m, const Alegeri& a) {
            return BorderouAgentie(fel, db, m.setari, a);
        };
        e.foaie = [fel](BazaDate& db, Mesaje&, const MediuRaport& m, const Alegeri& a) {
            return BorderouAgentieFoaie(fel, db, m.setari, a);
        };
        e.copieCalc = [index](const Grila& g, Mesaje&, const MediuRaport& m, const QString& folder) {
            return CopieAnexaCalc(index, g, m, folder);
        };
    }
}

} // namespace Raport
