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

using V = std::vector<MembruCerere>;

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
V Familie(int copii) {
    V v{Titular()};
    for (int i = 0; i < copii; ++i)
        v.push_back(Copil());
    return v;
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
    std::optional<V> membri = Familie(1);
    const char* neredus = nullptr; // both the amount and the amount before reductions
    std::optional<int> nrCopii = std::nullopt;
    const char* cuantum = "0";
    const char* inainte = nullptr; // null: the computation stops before the amount
    int tip = 1;
    QDate dataStare = Decembrie2014;
    QString venit = T("100");
    QString bife = {};
    std::vector<std::pair<int, const char*>> bunuri = {}; // entry, quantity
    std::function<void(ParametriCuantum&)> schimba = {};
    QStringList mesaje = {}; // information boxes, in order
};

void Verifica(const Caz& c, const ParametriCuantum& seminte) {
    SCOPED_TRACE(c.nume);
    ParametriCuantum p = seminte;
    if (c.schimba) c.schimba(p);
    StareCerere stare;
    stare.MatriceMembri = c.membri;
    stare.Bife = c.bife;
    for (const auto& [intrare, cantitate] : c.bunuri)
        stare.Bunuri[size_t(intrare)] = B(cantitate);
    MesajeInregistrate m;
    const RezultatCuantum r = CalculCuantum({stare, c.tip, c.dataStare, c.venit, Luna, An}, p, m);
    const char* inainte = c.neredus ? c.neredus : c.inainte;
    EXPECT_EQ(r.Cuantum, B(c.neredus ? c.neredus : c.cuantum)) << r.Cuantum.Text().toStdString();
    EXPECT_EQ(r.NrCopii, c.nrCopii);
    EXPECT_EQ(r.CuantumInainteDeReduceri, inainte ? std::optional<Bani>(B(inainte)) : std::nullopt);
    EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie), c.mesaje);
    EXPECT_EQ(m.mesaje.size(), size_t(c.mesaje.size()));
}

class CalculCuantumBaza : public TestBaza {};

// Seeded scale, ISR 525.5, 1.12.2014, 100 per member: one child of Tip 1 gives 525.5 x 0.164 -> 87.
TEST_P(CalculCuantumBaza, RegulileCalculului) {
    const ParametriCuantum p = IncarcaParametri(BazaNoua());
    const QDate iunie2013(2013, 6, 30), iulie2013(2013, 7, 1);
    // Goods: entry 24 is valued by NrBifa 34 (never by 33, where the save stores it), entry 65 by NrBifa 75.
    const auto bunuri = [](ParametriCuantum& q) {
        q.ListaBife[33] = B("10000");
        q.ListaBife[34] = B("500");
        q.ListaBife[75] = B("1");
    };
    const auto faraRanduri = [](ParametriCuantum& q) {
        q.ListaBife.erase(50);
        q.ListaBife.erase(60);
    };
    // The one-child coefficient of the 2014 bracket 0.4 set to 0.3333.
    const auto barem03333 = [](ParametriCuantum& q) {
        for (RandBarem& r : q.Barem)
            if (r.Tip == 1 && r.NrPers == 1 && r.Suma == B("0.4") && r.DataInceput == QDate(2014, 11, 1))
                r.Barem = B("0.3333");
    };
    const auto simpla = [](const char* barem) {
        return [barem](ParametriCuantum& q) { q = ScalaSimpla(barem, "1000"); };
    };
    // clang-format off
    const Caz cazuri[] = {
        // Who is counted.
        {.nume = "fara matrice", .membri = std::nullopt},
        {.nume = "doar adulti", .membri = V{Titular(), Persoana(2), Persoana(4), Persoana(5)}},
        {.nume = "majorat inaintea lunii", .membri = V{Titular(), Copil(0, QDate(2014, 11, 30))}},
        {.nume = "majorat in prima zi a lunii", .membri = V{Titular(), Copil(0, Decembrie2014)},
         .neredus = "87", .nrCopii = 1},
        {.nume = "Abandon, Repetent si Peste20abs nu se numara",
         .membri = V{Titular(), Copil(Abandon), Copil(Repetent), Copil(Peste20), Copil()},
         .neredus = "87", .nrCopii = 1},
        // Kinships 6 to 10 are children, 11 is not; five children take NrPers 4: 525.5 x 0.656 = 344.728 -> 345.
        {.nume = "rudeniile 6-10, peste patru copii",
         .membri = V{Titular(), Copil(0, Major2030, 6), Copil(0, Major2030, 7), Copil(0, Major2030, 8),
                     Copil(0, Major2030, 9), Copil(0, Major2030, 10), Persoana(11)},
         .neredus = "345", .nrCopii = 5},
        // Tip 2, NrPers 4: 525.5 x 0.856 = 449.828 -> 450.
        {.nume = "Tip 2, cinci copii", .membri = Familie(5), .neredus = "450", .nrCopii = 5, .tip = 2},

        // Reductions by the one-child row: Diminuare20 100 x coefficient, Diminuare50 250 x coefficient.
        // Tip 2: 525.5 x 0.214 = 112.457 -> 113; 100 x 0.214 = 21.4 -> 21.
        {.nume = "Tip 2, Diminuare20", .membri = V{Titular(), Copil(Dim20)},
         .nrCopii = 1, .cuantum = "92", .inainte = "113", .tip = 2},
        // The Repetent child is not counted and still reduces: 87 - 41 = 46.
        {.nume = "Repetent cu Diminuare50", .membri = V{Titular(), Copil(), Copil(Repetent | Dim50)},
         .nrCopii = 1, .cuantum = "46", .inainte = "87"},
        // 16.4 + 41 = 57.4 -> 57; 87 - 57 = 30.
        {.nume = "Diminuare20 si Diminuare50 pe acelasi copil", .membri = V{Titular(), Copil(Dim20 | Dim50)},
         .nrCopii = 1, .cuantum = "30", .inainte = "87"},
        // Two counted children, 525.5 x 0.328 = 172.364 -> 173, reduced by the one-child row: 173 - 57 = 116.
        {.nume = "doi copii, diminuari din randul unui copil", .membri = V{Titular(), Copil(Dim20), Copil(Dim50)},
         .nrCopii = 2, .cuantum = "116", .inainte = "173"},
        {.nume = "adultii nu aduc diminuari",
         .membri = V{Titular(Dim50), Persoana(4, Major2030, Dim20 | Dim50), Copil()}, .neredus = "87", .nrCopii = 1},
        // Three children of age, each 41: 87 - 123 = -36, kept.
        {.nume = "cuantum negativ",
         .membri = V{Titular(), Copil(), Copil(Dim50, Major2014), Copil(Dim50, Major2014), Copil(Dim50, Major2014)},
         .nrCopii = 1, .cuantum = "-36", .inainte = "87"},
        // The sum of the reductions rounded half to even, on one row and ISR 1000: 100 x 0.005 = 0.5 -> 0;
        // 100 x 0.01 + 250 x 0.01 = 3.5 -> 4.
        {.nume = "diminuari 0.5", .membri = V{Titular(), Copil(Dim20)}, .neredus = "5", .nrCopii = 1,
         .schimba = simpla("0.005")},
        {.nume = "diminuari 3.5", .membri = V{Titular(), Copil(Dim20 | Dim50)},
         .nrCopii = 1, .cuantum = "6", .inainte = "10", .schimba = simpla("0.01")},

        // An exclusion mark stops the computation.
        {.nume = "Bife numai zerouri", .neredus = "87", .nrCopii = 1, .bife = T("0000000000")},
        {.nume = "Bife cu o exceptie", .nrCopii = 1, .bife = T("0100000000")},

        // Goods: two members up to 2500, one member up to 1000, the limits included.
        {.nume = "bunuri exact 2500", .neredus = "87", .nrCopii = 1, .bunuri = {{24, "5"}}, .schimba = bunuri},
        {.nume = "bunuri 2500.0001", .nrCopii = 1, .bunuri = {{24, "5"}, {65, "0.0001"}}, .schimba = bunuri},
        {.nume = "un membru, bunuri 1000.0001", .membri = V{Copil()}, .nrCopii = 1,
         .bunuri = {{24, "2"}, {65, "0.0001"}}, .schimba = bunuri},
        // Goods without a row: one box each, no value; 5 x 500 = 2500 still passes.
        {.nume = "bife lipsa din ListaBife", .neredus = "87", .nrCopii = 1,
         .bunuri = {{40, "3"}, {24, "5"}, {50, "1"}},
         .schimba = [=](ParametriCuantum& q) { bunuri(q); faraRanduri(q); },
         .mesaje = {T("Eroare: nu exista in ListaBife, bifa cu Nr 50"),
                    T("Eroare: nu exista in ListaBife, bifa cu Nr 60")}},
        {.nume = "cantitate negativa sau zero fara rand", .neredus = "87", .nrCopii = 1,
         .bunuri = {{40, "-3"}, {50, "0"}}, .schimba = faraRanduri},

        // Before 1 July 2013: limits 200 and 370, keys 0.4 and 0.74, never the thresholds of the table.
        // 525.5 x 0.06 = 31.53 -> 32; 525.5 x 0.05 = 26.275 -> 27.
        {.nume = "30.06.2013 venit 200", .neredus = "32", .nrCopii = 1, .dataStare = iunie2013, .venit = T("200")},
        {.nume = "30.06.2013 venit 370", .neredus = "27", .nrCopii = 1, .dataStare = iunie2013, .venit = T("370")},
        {.nume = "30.06.2013 venit 370.0001", .nrCopii = 1, .dataStare = iunie2013, .venit = T("370.0001")},
        {.nume = "30.06.2013 fara PRAGURI_VENIT", .neredus = "27", .nrCopii = 1, .dataStare = iunie2013,
         .venit = T("201"), .schimba = [](ParametriCuantum& q) { q.PraguriVenit.reset(); }},
        // From 1 July 2013: 210.2 and 557.03, keys 0.4 and 1.06. 2013 rows: 525.5 x 0.08 = 42.04 -> 43;
        // 2014 rows: 0.4 gives 87, 1.06 gives 525.5 x 0.15 = 78.825 -> 79.
        {.nume = "01.07.2013 venit 201", .neredus = "43", .nrCopii = 1, .dataStare = iulie2013, .venit = T("201")},
        {.nume = "venit exact 210.2", .neredus = "87", .nrCopii = 1, .venit = T("210.2")},
        {.nume = "venit 210.2001", .neredus = "79", .nrCopii = 1, .venit = T("210.2001")},
        {.nume = "venit exact 557.03", .neredus = "79", .nrCopii = 1, .venit = T("557.03")},
        {.nume = "venit 557.0301", .nrCopii = 1, .venit = T("557.0301")},

        // No Barem row.
        {.nume = "15.12.2011", .nrCopii = 1, .dataStare = QDate(2011, 12, 15), .mesaje = {Lipsa2012}},
        {.nume = "fara DataStare", .nrCopii = 1, .dataStare = QDate(), .mesaje = {Lipsa2012}},
        {.nume = "Tip fara randuri", .nrCopii = 1, .tip = 3, .mesaje = {ExceptieBarem}},

        // The reference value counts only alone, and only then is the amount rounded up:
        // 500 x 0.3333 = 166.65 as it is; 525.5 x 0.3333 = 175.14915 -> 175.1492 (half to even) -> 176.
        {.nume = "doua randuri ISR", .neredus = "166.65", .nrCopii = 1,
         .schimba = [=](ParametriCuantum& q) { barem03333(q); q.ISR << T("600"); }},
        {.nume = "ISR 500.00", .neredus = "166.65", .nrCopii = 1,
         .schimba = [=](ParametriCuantum& q) { barem03333(q); q.ISR = {T("500.00")}; }},
        {.nume = "ISR 525.5 cu zecimale", .neredus = "176", .nrCopii = 1, .schimba = barem03333},
    };
    // clang-format on
    for (const Caz& c : cazuri)
        Verifica(c, p);
}

// A second ISR row leaves 500; a null threshold text is empty and stops a computation from July 2013.
TEST_P(CalculCuantumBaza, ParametriiDinBaza) {
    BazaDate& db = BazaNoua();
    ExecutaCu(db,
              QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES (?, 0, 1, ?, 0)"),
              "ISR", "600");
    ExecutaCu(db, QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"), QVariant(), "PRAGURI_VENIT");
    const ParametriCuantum p = IncarcaParametri(db);
    EXPECT_EQ(p.PraguriVenit, std::optional<QString>(QString()));
    // One child, 2012 rows: 500 x 0.06 = 30.
    MesajeInregistrate m;
    StareCerere stare;
    stare.MatriceMembri = Familie(1);
    EXPECT_EQ(CalculCuantum({stare, 1, QDate(2013, 6, 30), T("100"), Luna, An}, p, m).Cuantum, B("30"));
    EXPECT_TRUE(m.mesaje.empty());
    EXPECT_THROW(CalculCuantum({stare, 1, Decembrie2014, T("300"), Luna, An}, p, m), Eroare);
    EXPECT_EQ(m.mesaje.size(), 1u);
    ExecutaCu(db, QStringLiteral("DELETE FROM DateGen WHERE Denumire = ?"), "PRAGURI_VENIT");
    EXPECT_FALSE(IncarcaParametri(db).PraguriVenit.has_value());
}

PE_AMBELE_MOTOARE(CalculCuantumBaza);

// What the computation lets through to the editor's edge: an Eroare, after the boxes shown.
TEST(CalculCuantum, EroriPropagate) {
    const auto praguri = [](const char* t) { return [t](ParametriCuantum& q) { q.PraguriVenit = T(t); }; };
    // Income, change, critical boxes before, month, children. The reductions read the one-child row
    // of the bracket even when no child has a flag.
    const std::tuple<const char*, std::function<void(ParametriCuantum&)>, int, int, int> cazuri[] = {
        {"100", {}, 0, 13, 1},
        {"o suta", {}, 0, Luna, 1},
        {"100", [](ParametriCuantum& q) { q.ISR = {T("ISR")}; }, 0, Luna, 1},
        {"100", praguri("210.2"), 1, Luna, 1},
        {"100", praguri("jos|557.03"), 0, Luna, 1},
        {"100", [](ParametriCuantum& q) { q.Barem.front().NrPers = 2; }, 0, Luna, 2}};
    StareCerere stare;
    for (const auto& [venit, schimba, critice, luna, copii] : cazuri) {
        stare.MatriceMembri = Familie(copii);
        ParametriCuantum p = ScalaSimpla("0.164", "525.5");
        if (schimba) schimba(p);
        MesajeInregistrate m;
        EXPECT_THROW(CalculCuantum({stare, 1, Decembrie2014, T(venit), luna, An}, p, m), Eroare) << venit << luna;
        EXPECT_EQ(m.Texte(Mesaje::Fel::Critic).size(), critice);
        EXPECT_EQ(m.mesaje.size(), size_t(critice));
    }
    // The same scale untouched computes: 525.5 x 0.164 = 86.182 -> 87; a box never filled is no income.
    const ParametriCuantum p = ScalaSimpla("0.164", "525.5");
    stare.MatriceMembri = Familie(1);
    MesajeInregistrate m;
    EXPECT_EQ(CalculCuantum({stare, 1, Decembrie2014, T("100"), Luna, An}, p, m).Cuantum, B("87"));
    EXPECT_EQ(CalculCuantum({stare, 1, Decembrie2014, QString(), Luna, An}, p, m).Cuantum,
              CalculCuantum({stare, 1, Decembrie2014, T("0"), Luna, An}, p, m).Cuantum);
}

TEST(VenitPeMembruText, CaUnDoubleScrisDeRulareaVeche) {
    // Total, members, the text, and the amount read back from it; below 0.0001 no exponent.
    const std::tuple<const char*, int, const char*, const char*> cazuri[] = {
        {"1000", 3, "333.333333333333", "333.3333"},
        {"2", 3, "0.666666666666667", "0.6667"},
        {"123456789012.3456", 1, "123456789012.346", "123456789012.346"},
        {"0.0001", 3, "0.0000333333333333333", "0"},
        {"0.0003", 2, "0.00015", "0.0002"}};
    for (const auto& [total, membri, text, citit] : cazuri) {
        EXPECT_EQ(VenitPeMembruText(B(total), membri), T(text)) << total << " / " << membri;
        EXPECT_EQ(SumaText(T(text)), B(citit)) << total << " / " << membri;
    }
    EXPECT_EQ(VenitPeMembruText(B("1000"), 0), QString());
}

} // namespace
