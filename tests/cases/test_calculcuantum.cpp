#include "cases/CalculCuantum.h"
#include "base/Eroare.h"
#include "base/Sume.h"
#include "cases/CalculCuantum.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

namespace {

// The working month of every case: December 2014.
constexpr int Luna = 12, An = 2014;
const QDate Decembrie2014(2014, 12, 1);
const QDate Major2030(2030, 1, 1); // still a child in the working month
const QDate Major2014(2014, 1, 1); // of age before the working month

const QString Lipsa2012 = T("Modificati Data statut de la 2012 in sus!");
const QString ExceptieBarem = T("A aparut o exceptie in CalculCuantum. Sunati la 0700-111222");

enum Fanion { Repetent = 1, Abandon = 2, Peste20 = 4, Dim20 = 8, Dim50 = 16 };

MembruCerere Persoana(int rudenie, QDate data18 = Major2030, int fanioane = 0) {
    MembruCerere m;
    m.RudenieID = rudenie;
    m.Data18Ani = data18;
    m.Repetent = (fanioane & Repetent) ? 1 : 0;
    m.Abandon = (fanioane & Abandon) ? 1 : 0;
    m.Peste20abs = (fanioane & Peste20) ? 1 : 0;
    m.Diminuare20 = (fanioane & Dim20) ? 1 : 0;
    m.Diminuare50 = (fanioane & Dim50) ? 1 : 0;
    return m;
}
MembruCerere Titular(int fanioane = 0) {
    return Persoana(1, QDate(1998, 5, 5), fanioane);
}
MembruCerere Copil(int fanioane = 0, QDate data18 = Major2030, int rudenie = 3) {
    return Persoana(rudenie, data18, fanioane);
}
// The titular and n children with no flag.
std::vector<MembruCerere> Familie(int copii) {
    std::vector<MembruCerere> v{Titular()};
    for (int i = 0; i < copii; ++i)
        v.push_back(Copil());
    return v;
}

// Replaces the coefficient of one seeded row.
void SchimbaBarem(ParametriCuantum& p, int tip, int nrPers, const char* suma, QDate inceput, const char* barem) {
    for (RandBarem& r : p.Barem)
        if (r.Tip == tip && r.NrPers == nrPers && r.Suma == B(suma) && r.DataInceput == inceput) {
            r.Barem = B(barem);
            return;
        }
    FAIL() << "randul din Barem nu exista";
}

// One open-ended row, Tip 1, one child, bracket 0.4, with the thresholds as seeded.
ParametriCuantum ScalaSimpla(const char* barem, const char* isr) {
    ParametriCuantum p;
    p.Barem = {{1, 1, B("0.4"), B(barem), QDate(2012, 1, 1), QDate()}};
    p.ISR = {T(isr)};
    p.PraguriVenit = T("210.2|557.03");
    return p;
}

struct Caz {
    const char* nume = "";
    std::optional<std::vector<MembruCerere>> membri = std::nullopt;
    int tip = 1;
    QDate dataStare = Decembrie2014;
    QString venit = T("100");
    QString bife = {};
    std::vector<std::pair<int, const char*>> bunuri = {}; // entry, quantity
    std::function<void(ParametriCuantum&)> schimba = {};
    const char* neredus = nullptr; // both the amount and the amount before reductions
    const char* cuantum = "0";
    std::optional<int> nrCopii = std::nullopt;
    const char* inainte = nullptr; // null: the computation stops before the amount
    QStringList mesaje = {};       // information boxes, in order
};

RezultatCuantum Calculeaza(const Caz& c, const ParametriCuantum& seminte, MesajeInregistrate& m) {
    ParametriCuantum p = seminte;
    if (c.schimba) c.schimba(p);
    StareCerere stare;
    stare.MatriceMembri = c.membri;
    stare.Bife = c.bife;
    for (const auto& [intrare, cantitate] : c.bunuri)
        stare.Bunuri[size_t(intrare)] = B(cantitate);
    const IntrareCuantum intrare{stare, c.tip, c.dataStare, c.venit, Luna, An};
    return CalculCuantum(intrare, p, m);
}

void Verifica(const Caz& c, const ParametriCuantum& seminte) {
    SCOPED_TRACE(c.nume);
    MesajeInregistrate m;
    const RezultatCuantum r = Calculeaza(c, seminte, m);
    const char* inainte = c.neredus ? c.neredus : c.inainte;
    EXPECT_EQ(r.Cuantum, B(c.neredus ? c.neredus : c.cuantum)) << r.Cuantum.Text().toStdString();
    EXPECT_EQ(r.NrCopii, c.nrCopii);
    EXPECT_EQ(r.CuantumInainteDeReduceri, inainte ? std::optional<Bani>(B(inainte)) : std::nullopt);
    EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie), c.mesaje);
    EXPECT_EQ(m.mesaje.size(), size_t(c.mesaje.size()));
}

class CalculCuantumBaza : public TestBaza {
protected:
    ParametriCuantum Seminte() { return IncarcaParametri(BazaNoua()); }
};

// The seeded scale, ISR 525.5, 1 December 2014, income 100 per member, no goods.
TEST_P(CalculCuantumBaza, ExempleleLucrate) {
    const ParametriCuantum p = Seminte();
    const Caz cazuri[] = {
        // Tip 1, two children: 525.5 x 0.328 = 172.364, up to 173.
        {.nume = "Tip 1, doi copii", .membri = Familie(2), .tip = 1, .neredus = "173", .nrCopii = 2},
        // Tip 2, five children take NrPers 4: 525.5 x 0.856 = 449.828, up to 450.
        {.nume = "Tip 2, cinci copii", .membri = Familie(5), .tip = 2, .neredus = "450", .nrCopii = 5},
        // Tip 2, one child with Diminuare20: 525.5 x 0.214 = 112.457, up to 113; 0.2 x 500 x 0.214 = 21.4 -> 21.
        {.nume = "Tip 2, un copil cu Diminuare20",
         .membri = std::vector{Titular(), Copil(Dim20)},
         .tip = 2,
         .cuantum = "92",
         .nrCopii = 1,
         .inainte = "113"},
    };
    for (const Caz& c : cazuri)
        Verifica(c, p);
}

TEST_P(CalculCuantumBaza, CazuriLimita) {
    const ParametriCuantum p = Seminte();
    const QDate iunie2013(2013, 6, 30), iulie2013(2013, 7, 1), noiembrie2014(2014, 11, 1);
    const auto unCopil = [] { return Familie(1); };
    // Goods: entry 24 is valued by NrBifa 34 (never by 33, where the save stores it), entry 65 by NrBifa 75.
    const auto bunuri = [](ParametriCuantum& q) {
        q.ListaBife[33] = B("10000");
        q.ListaBife[34] = B("500");
        q.ListaBife[75] = B("1");
    };
    const auto barem03333 = [=](ParametriCuantum& q) { SchimbaBarem(q, 1, 1, "0.4", noiembrie2014, "0.3333"); };

    const Caz cazuri[] = {
        // Who is counted. One child, Tip 1, bracket 0.4: 525.5 x 0.164 = 86.182, up to 87.
        {.nume = "fara matrice", .membri = std::nullopt},
        {.nume = "matrice goala", .membri = std::vector<MembruCerere>{}},
        {.nume = "doar adulti", .membri = std::vector{Titular(), Persoana(2), Persoana(4), Persoana(5)}},
        {.nume = "copilul a implinit 18 ani inaintea lunii",
         .membri = std::vector{Titular(), Copil(0, QDate(2014, 11, 30))}},
        {.nume = "copilul implineste 18 ani in prima zi a lunii",
         .membri = std::vector{Titular(), Copil(0, Decembrie2014)},
         .neredus = "87",
         .nrCopii = 1},
        {.nume = "copil fara Data18Ani", .membri = std::vector{Titular(), Copil(0, QDate())}},
        // Kinships 6 to 10 are children, 11 is not; five children take NrPers 4: 525.5 x 0.656 = 344.728 -> 345.
        {.nume = "rudeniile 6-10, peste patru copii",
         .membri = std::vector{Titular(), Copil(0, Major2030, 6), Copil(0, Major2030, 7), Copil(0, Major2030, 8),
                               Copil(0, Major2030, 9), Copil(0, Major2030, 10), Persoana(11)},
         .neredus = "345",
         .nrCopii = 5},
        {.nume = "exact patru copii", .membri = Familie(4), .neredus = "345", .nrCopii = 4},
        {.nume = "Abandon, Repetent si Peste20abs nu se numara",
         .membri = std::vector{Titular(), Copil(Abandon), Copil(Repetent), Copil(Peste20), Copil()},
         .neredus = "87",
         .nrCopii = 1},

        // Reductions, one-child row 0.164: Diminuare20 100 x 0.164 = 16.4, Diminuare50 250 x 0.164 = 41.
        // The Repetent child is not counted and still reduces: 87 - 41 = 46.
        {.nume = "Repetent cu Diminuare50",
         .membri = std::vector{Titular(), Copil(), Copil(Repetent | Dim50)},
         .cuantum = "46",
         .nrCopii = 1,
         .inainte = "87"},
        // 16.4 + 41 = 57.4 -> 57; 87 - 57 = 30.
        {.nume = "Diminuare20 si Diminuare50 pe acelasi copil",
         .membri = std::vector{Titular(), Copil(Dim20 | Dim50)},
         .cuantum = "30",
         .nrCopii = 1,
         .inainte = "87"},
        // Two counted children: 525.5 x 0.328 = 172.364 -> 173, reduced still by the one-child row: 173 - 57 = 116.
        {.nume = "doi copii, diminuari din randul unui copil",
         .membri = std::vector{Titular(), Copil(Dim20), Copil(Dim50)},
         .cuantum = "116",
         .nrCopii = 2,
         .inainte = "173"},
        {.nume = "adultii nu aduc diminuari",
         .membri = std::vector{Titular(Dim50), Persoana(4, Major2030, Dim20 | Dim50), Copil()},
         .neredus = "87",
         .nrCopii = 1},
        // Three children of age, each 41: 123; 87 - 123 = -36, kept.
        {.nume = "cuantum negativ",
         .membri =
             std::vector{Titular(), Copil(), Copil(Dim50, Major2014), Copil(Dim50, Major2014), Copil(Dim50, Major2014)},
         .cuantum = "-36",
         .nrCopii = 1,
         .inainte = "87"},

        // Bife: its leading number, blanks skipped, a comma ends it.
        {.nume = "Bife numai zerouri", .membri = unCopil(), .bife = T("0000000000"), .neredus = "87", .nrCopii = 1},
        {.nume = "Bife cu o exceptie", .membri = unCopil(), .bife = T("0100000000"), .nrCopii = 1},
        {.nume = "Bife goala", .membri = unCopil(), .bife = QString(), .cuantum = "87", .nrCopii = 1, .inainte = "87"},
        {.nume = "Bife cu blancuri", .membri = unCopil(), .bife = T("00 01"), .nrCopii = 1},
        {.nume = "Bife cu virgula", .membri = unCopil(), .bife = T("0,1"), .neredus = "87", .nrCopii = 1},

        // Goods: two members up to 2500, one member up to 1000, both limits included.
        {.nume = "bunuri exact 2500",
         .membri = unCopil(),
         .bunuri = {{24, "5"}},
         .schimba = bunuri,
         .neredus = "87",
         .nrCopii = 1},
        {.nume = "bunuri 2500.0001",
         .membri = unCopil(),
         .bunuri = {{24, "5"}, {65, "0.0001"}},
         .schimba = bunuri,
         .nrCopii = 1},
        {.nume = "un membru, bunuri exact 1000",
         .membri = std::vector{Copil()},
         .bunuri = {{24, "2"}},
         .schimba = bunuri,
         .neredus = "87",
         .nrCopii = 1},
        {.nume = "un membru, bunuri 1000.0001",
         .membri = std::vector{Copil()},
         .bunuri = {{24, "2"}, {65, "0.0001"}},
         .schimba = bunuri,
         .nrCopii = 1},
        // Two goods without a row: one box each, no value; 5 x 500 = 2500 still passes.
        {.nume = "bife lipsa din ListaBife",
         .membri = unCopil(),
         .bunuri = {{40, "3"}, {24, "5"}, {50, "1"}},
         .schimba =
             [=](ParametriCuantum& q) {
                 bunuri(q);
                 q.ListaBife.erase(50);
                 q.ListaBife.erase(60);
             },
         .neredus = "87",
         .nrCopii = 1,
         .mesaje = {T("Eroare: nu exista in ListaBife, bifa cu Nr 50"),
                    T("Eroare: nu exista in ListaBife, bifa cu Nr 60")}},
        {.nume = "cantitate negativa sau zero fara rand",
         .membri = unCopil(),
         .bunuri = {{40, "-3"}, {50, "0"}},
         .schimba =
             [](ParametriCuantum& q) {
                 q.ListaBife.erase(50);
                 q.ListaBife.erase(60);
             },
         .neredus = "87",
         .nrCopii = 1},

        // Brackets before 1 July 2013: constants 200 and 370, keys 0.4 and 0.74 (2012 rows, Tip 1, one child).
        // 525.5 x 0.06 = 31.53 -> 32; 525.5 x 0.05 = 26.275 -> 27.
        {.nume = "30.06.2013 venit 200",
         .membri = unCopil(),
         .dataStare = iunie2013,
         .venit = T("200"),
         .neredus = "32",
         .nrCopii = 1},
        {.nume = "30.06.2013 venit 201",
         .membri = unCopil(),
         .dataStare = iunie2013,
         .venit = T("201"),
         .neredus = "27",
         .nrCopii = 1},
        {.nume = "30.06.2013 venit 370",
         .membri = unCopil(),
         .dataStare = iunie2013,
         .venit = T("370"),
         .neredus = "27",
         .nrCopii = 1},
        {.nume = "30.06.2013 venit 370.0001",
         .membri = unCopil(),
         .dataStare = iunie2013,
         .venit = T("370.0001"),
         .nrCopii = 1},
        {.nume = "30.06.2013 fara PRAGURI_VENIT",
         .membri = unCopil(),
         .dataStare = iunie2013,
         .venit = T("201"),
         .schimba = [](ParametriCuantum& q) { q.PraguriVenit.reset(); },
         .neredus = "27",
         .nrCopii = 1},
        // From 1 July 2013: 210.2 and 557.03, keys 0.4 and 1.06 (2013 rows): 525.5 x 0.08 = 42.04 -> 43;
        // 525.5 x 0.066 = 34.683 -> 35.
        {.nume = "01.07.2013 venit 201",
         .membri = unCopil(),
         .dataStare = iulie2013,
         .venit = T("201"),
         .neredus = "43",
         .nrCopii = 1},
        {.nume = "01.07.2013 venit 371",
         .membri = unCopil(),
         .dataStare = iulie2013,
         .venit = T("371"),
         .neredus = "35",
         .nrCopii = 1},
        // 2014 rows: 0.4 gives 87; 1.06: 525.5 x 0.15 = 78.825 -> 79.
        {.nume = "venit exact 210.2", .membri = unCopil(), .venit = T("210.2"), .neredus = "87", .nrCopii = 1},
        {.nume = "venit 210,2 cu virgula", .membri = unCopil(), .venit = T("210,2"), .neredus = "87", .nrCopii = 1},
        {.nume = "venit 210.2001", .membri = unCopil(), .venit = T("210.2001"), .neredus = "79", .nrCopii = 1},
        {.nume = "venit exact 557.03", .membri = unCopil(), .venit = T("557.03"), .neredus = "79", .nrCopii = 1},
        {.nume = "venit 557.0301", .membri = unCopil(), .venit = T("557.0301"), .nrCopii = 1},
        // The box's text for 1000 among three, read back as 333.3333: bracket 1.06, 79.
        {.nume = "venitul impartit",
         .membri = unCopil(),
         .venit = VenitPeMembruText(B("1000"), 3),
         .neredus = "79",
         .nrCopii = 1},

        // No Barem row.
        {.nume = "15.12.2011",
         .membri = unCopil(),
         .dataStare = QDate(2011, 12, 15),
         .nrCopii = 1,
         .mesaje = {Lipsa2012}},
        {.nume = "fara DataStare", .membri = unCopil(), .dataStare = QDate(), .nrCopii = 1, .mesaje = {Lipsa2012}},
        {.nume = "Tip fara randuri", .membri = unCopil(), .tip = 3, .nrCopii = 1, .mesaje = {ExceptieBarem}},
        // 2012-2013 rows of Tip 2, two children: 525.5 x 0.2 = 105.1 -> 106; 525.5 x 0.18 = 94.59 -> 95.
        {.nume = "Tip 2 in 2013, venit 100",
         .membri = Familie(2),
         .tip = 2,
         .dataStare = QDate(2013, 3, 1),
         .neredus = "106",
         .nrCopii = 2},
        {.nume = "Tip 2 in 2013, venit 300",
         .membri = Familie(2),
         .tip = 2,
         .dataStare = QDate(2013, 3, 1),
         .venit = T("300"),
         .neredus = "95",
         .nrCopii = 2},

        // The reference value. With the coefficient set to 0.3333: 500 x 0.3333 = 166.65, kept as it is;
        // 525.5 x 0.3333 = 175.14915 -> 175.1492 (half to even) -> 176.
        {.nume = "fara ISR",
         .membri = unCopil(),
         .schimba =
             [=](ParametriCuantum& q) {
                 barem03333(q);
                 q.ISR.clear();
             },
         .neredus = "166.65",
         .nrCopii = 1},
        {.nume = "ISR 525.5 cu zecimale", .membri = unCopil(), .schimba = barem03333, .neredus = "176", .nrCopii = 1},
        {.nume = "ISR 500.00",
         .membri = unCopil(),
         .schimba =
             [=](ParametriCuantum& q) {
                 barem03333(q);
                 q.ISR = {T("500.00")};
             },
         .neredus = "166.65",
         .nrCopii = 1},
        // Two rows: 500 x 0.164 = 82; one row of 600: 98.4 -> 99; "525,5" as 525.5: 87.
        {.nume = "doua randuri ISR",
         .membri = unCopil(),
         .schimba = [](ParametriCuantum& q) { q.ISR << T("600"); },
         .neredus = "82",
         .nrCopii = 1},
        {.nume = "ISR 600",
         .membri = unCopil(),
         .schimba = [](ParametriCuantum& q) { q.ISR = {T("600")}; },
         .neredus = "99",
         .nrCopii = 1},
        {.nume = "ISR 525,5",
         .membri = unCopil(),
         .schimba = [](ParametriCuantum& q) { q.ISR = {T("525,5")}; },
         .neredus = "87",
         .nrCopii = 1},

        // Reductions converted half to even, on a scale of one row and ISR 1000 (whole amounts).
        // 1000 x 0.005 = 5, 100 x 0.005 = 0.5 -> 0: 5.
        {.nume = "diminuari 0.5",
         .membri = std::vector{Titular(), Copil(Dim20)},
         .schimba = [](ParametriCuantum& q) { q = ScalaSimpla("0.005", "1000"); },
         .neredus = "5",
         .nrCopii = 1},
        // 15, 1.5 -> 2: 13.
        {.nume = "diminuari 1.5",
         .membri = std::vector{Titular(), Copil(Dim20)},
         .schimba = [](ParametriCuantum& q) { q = ScalaSimpla("0.015", "1000"); },
         .cuantum = "13",
         .nrCopii = 1,
         .inainte = "15"},
        // 25, 2.5 -> 2: 23.
        {.nume = "diminuari 2.5",
         .membri = std::vector{Titular(), Copil(Dim20)},
         .schimba = [](ParametriCuantum& q) { q = ScalaSimpla("0.025", "1000"); },
         .cuantum = "23",
         .nrCopii = 1,
         .inainte = "25"},
        // 10, 1 + 2.5 = 3.5 -> 4: 6.
        {.nume = "diminuari 3.5",
         .membri = std::vector{Titular(), Copil(Dim20 | Dim50)},
         .schimba = [](ParametriCuantum& q) { q = ScalaSimpla("0.01", "1000"); },
         .cuantum = "6",
         .nrCopii = 1,
         .inainte = "10"},
    };
    for (const Caz& c : cazuri)
        Verifica(c, p);
}

TEST_P(CalculCuantumBaza, ParametriiDinBaza) {
    BazaDate& db = BazaNoua();
    {
        const ParametriCuantum p = IncarcaParametri(db);
        // Twelve seeded rows, each for NrPers 1 to 4.
        EXPECT_EQ(p.Barem.size(), 48u);
        const auto gaseste = [&](int tip, int nrPers, const char* suma, QDate inceput) -> const RandBarem* {
            for (const RandBarem& r : p.Barem)
                if (r.Tip == tip && r.NrPers == nrPers && r.Suma == B(suma) && r.DataInceput == inceput) return &r;
            return nullptr;
        };
        const RandBarem* vechi = gaseste(1, 3, "0.74", QDate(2012, 1, 1));
        ASSERT_TRUE(vechi);
        EXPECT_EQ(vechi->Barem, B("0.15"));
        EXPECT_EQ(vechi->DataStop, QDate(2013, 6, 30));
        const RandBarem* deschis = gaseste(2, 4, "1.06", QDate(2014, 11, 1));
        ASSERT_TRUE(deschis);
        EXPECT_EQ(deschis->Barem, B("0.816"));
        EXPECT_FALSE(deschis->DataStop.isValid());
        EXPECT_EQ(p.ListaBife.size(), 85u);
        EXPECT_EQ(p.ISR, QStringList{T("525.5")});
        EXPECT_EQ(p.PraguriVenit, std::optional<QString>(T("210.2|557.03")));
    }

    ExecutaCu(db, QStringLiteral("UPDATE ListaBife SET Valoare = ? WHERE NrBifa = ?"), B("1234.5678"), 20);
    ExecutaCu(db,
              QStringLiteral(
                  "INSERT INTO Barem (Tip, Descriere, NrPers, Barem, Suma, DataInceput) VALUES (?, ?, ?, ?, ?, ?)"),
              7, "PROBA", 1, B("0.0666"), B("1.06"), QDate(2020, 2, 29));
    ExecutaCu(db,
              QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES (?, 0, 1, ?, 0)"),
              "ISR", "600");
    ExecutaCu(db, QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"), QVariant(), "PRAGURI_VENIT");
    {
        const ParametriCuantum p = IncarcaParametri(db);
        EXPECT_EQ(p.ListaBife.at(20), B("1234.5678"));
        const auto proba = std::find_if(p.Barem.begin(), p.Barem.end(), [](const RandBarem& r) { return r.Tip == 7; });
        ASSERT_NE(proba, p.Barem.end());
        EXPECT_EQ(proba->Barem, B("0.0666"));
        EXPECT_EQ(proba->Suma, B("1.06"));
        EXPECT_EQ(proba->DataInceput, QDate(2020, 2, 29));
        EXPECT_FALSE(proba->DataStop.isValid());
        QStringList isr = p.ISR;
        isr.sort();
        EXPECT_EQ(isr, (QStringList{T("525.5"), T("600")}));
        // A null Continut is an empty text: the row is there.
        EXPECT_EQ(p.PraguriVenit, std::optional<QString>(QString()));

        // Two ISR rows leave 500: one child, 2012 rows, 500 x 0.06 = 30, on a date before the thresholds are read.
        MesajeInregistrate m;
        StareCerere stare;
        stare.MatriceMembri = Familie(1);
        const RezultatCuantum r = CalculCuantum({stare, 1, QDate(2013, 6, 30), T("100"), Luna, An}, p, m);
        EXPECT_TRUE(m.mesaje.empty());
        EXPECT_EQ(r.Cuantum, B("30"));
        // Null thresholds on a date from 1 July 2013 stop the computation after their box.
        EXPECT_THROW(CalculCuantum({stare, 1, QDate(2014, 12, 1), T("300"), Luna, An}, p, m), Eroare);
    }

    ExecutaCu(db, QStringLiteral("DELETE FROM DateGen WHERE Denumire = ?"), "PRAGURI_VENIT");
    EXPECT_FALSE(IncarcaParametri(db).PraguriVenit.has_value());
}

PE_AMBELE_MOTOARE(CalculCuantumBaza);

// What the computation lets through to the editor's edge: an Eroare, after the boxes shown.
TEST(CalculCuantum, EroriPropagate) {
    const auto praguri = [](std::optional<QString> t) { return [t](ParametriCuantum& q) { q.PraguriVenit = t; }; };
    const QString formatGresit = T("Format praguri gresit!");
    struct {
        const char* nume;
        QString venit;
        std::function<void(ParametriCuantum&)> schimba;
        std::vector<MembruCerere> membri;
        QStringList critice;
        int luna = Luna, an = An;
    } cazuri[] = {
        {"luna 13", T("100"), {}, Familie(1), {}, 13, An},
        {"luna 0", T("100"), {}, Familie(1), {}, 0, An},
        {"an negativ", T("100"), {}, Familie(1), {}, Luna, -3},
        {"venit nenumeric", T("o suta"), {}, Familie(1), {}},
        {"ISR nenumeric", T("100"), [](ParametriCuantum& q) { q.ISR = {T("ISR")}; }, Familie(1), {}},
        {"ISR nul", T("100"), [](ParametriCuantum& q) { q.ISR = {QString()}; }, Familie(1), {}},
        {"fara PRAGURI_VENIT", T("100"), praguri(std::nullopt), Familie(1), {T("PRAGURI_VENIT nu exista!")}},
        {"PRAGURI_VENIT gol", T("100"), praguri(QString()), Familie(1), {T("Nu sunt definite praguri venit!")}},
        {"PRAGURI_VENIT fara bara", T("100"), praguri(T("210.2")), Familie(1), {formatGresit}},
        {"PRAGURI_VENIT cu un prag",
         T("100"),
         praguri(T("210.2|")),
         Familie(1),
         {formatGresit + T("\nTrebuie cel putin doua praguri.")}},
        {"prag nenumeric", T("100"), praguri(T("jos|557.03")), Familie(1), {}},
        {"prag gol intre bare", T("100"), praguri(T("210.2||557.03")), Familie(1), {}},
        // The reductions read the one-child row of the bracket even when no child has a flag.
        {"fara randul NrPers 1", T("100"), [](ParametriCuantum& q) { q.Barem.front().NrPers = 2; }, Familie(2), {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        ParametriCuantum p = ScalaSimpla("0.164", "525.5");
        if (c.schimba) c.schimba(p);
        StareCerere stare;
        stare.MatriceMembri = c.membri;
        MesajeInregistrate m;
        EXPECT_THROW(CalculCuantum({stare, 1, Decembrie2014, c.venit, c.luna, c.an}, p, m), Eroare);
        EXPECT_EQ(m.Texte(Mesaje::Fel::Critic), c.critice);
        EXPECT_EQ(m.mesaje.size(), size_t(c.critice.size()));
    }
    // The same scale untouched computes: 525.5 x 0.164 = 86.182 -> 87.
    StareCerere stare;
    stare.MatriceMembri = Familie(1);
    MesajeInregistrate m;
    EXPECT_EQ(CalculCuantum({stare, 1, Decembrie2014, T("100"), Luna, An}, ScalaSimpla("0.164", "525.5"), m).Cuantum,
              B("87"));
    // A box never filled is no income, as every other path reads it.
    EXPECT_EQ(CalculCuantum({stare, 1, Decembrie2014, QString(), Luna, An}, ScalaSimpla("0.164", "525.5"), m).Cuantum,
              CalculCuantum({stare, 1, Decembrie2014, T("0"), Luna, An}, ScalaSimpla("0.164", "525.5"), m).Cuantum);
}

TEST(VenitPeMembruText, CaUnDoubleScrisDeRulareaVeche) {
    const struct {
        const char* total;
        int membri;
        const char* text;
        const char* citit; // SumaText of the text
    } cazuri[] = {
        {"1000", 3, "333.333333333333", "333.3333"},
        {"1000", 7, "142.857142857143", "142.8571"},
        {"100.1", 3, "33.3666666666667", "33.3667"},
        {"2", 3, "0.666666666666667", "0.6667"},
        {"1000", 4, "250", "250"},
        {"0.5", 2, "0.25", "0.25"},
        {"1234.5678", 1, "1234.5678", "1234.5678"},
        {"123456789012.3456", 1, "123456789012.346", "123456789012.346"},
        {"-100", 3, "-33.3333333333333", "-33.3333"},
        {"0", 3, "0", "0"},
        {"0.0001", 1, "0.0001", "0.0001"},
        // Below 0.0001 the same fifteen digits without an exponent.
        {"0.0001", 3, "0.0000333333333333333", "0"},
        {"0.0003", 2, "0.00015", "0.0002"},
    };
    for (const auto& c : cazuri) {
        const QString text = VenitPeMembruText(B(c.total), c.membri);
        EXPECT_EQ(text, T(c.text)) << c.total << " / " << c.membri;
        EXPECT_EQ(SumaText(text), B(c.citit)) << c.total << " / " << c.membri;
    }
    EXPECT_EQ(VenitPeMembruText(B("1000"), 0), QString());
    EXPECT_EQ(VenitPeMembruText(B("1000"), -2), QString());
}

TEST(SumaVenituri, ToateCeleSaptezeciSiNouaDeIntrari) {
    std::array<Bani, 79> v{};
    EXPECT_EQ(SumaVenituri(v), Bani());
    v[0] = B("1200.5");
    v[78] = B("0.0001");
    v[40] = B("-200.25");
    // 1200.5 + 0.0001 - 200.25
    EXPECT_EQ(SumaVenituri(v), B("1000.2501"));
    v.fill(B("0.3333"));
    // 79 x 0.3333 = 26.3307
    EXPECT_EQ(SumaVenituri(v), B("26.3307"));
}

TEST(RecalculTotaluri, ListaSiMatricea) {
    const QString exceptie = T("Exceptie Tarn in Calcule: Nr Membrii din lista este diferite de cel din matrice. "
                               "Sunati la 0700-111222");
    const struct {
        const char* nume;
        int lista;
        std::optional<std::vector<MembruCerere>> matrice;
        QString mesaj;
    } cazuri[] = {
        {"matrice nedimensionata", 3, std::nullopt, {}},
        {"matrice goala, lista goala", 0, std::vector<MembruCerere>{}, {}},
        {"aceeasi marime", 3, Familie(2), {}},
        {"lista mai lunga", 4, Familie(2), exceptie},
        {"lista mai scurta", 2, Familie(2), exceptie},
        {"matrice goala, un rand in lista", 1, std::vector<MembruCerere>{}, exceptie},
    };
    for (const auto& c : cazuri) {
        const TotaluriMembri t = RecalculTotaluri(c.lista, c.matrice);
        EXPECT_EQ(t.NrMembrii, c.lista) << c.nume;
        EXPECT_EQ(t.Exceptie, c.mesaj) << c.nume;
    }
}

} // namespace
