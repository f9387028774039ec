#include "base/Eroare.h"
#include "cases/CalculCuantum.h"
#include "cases/VenituriBunuri.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

namespace {

// Only the places of the list are read, anything but "1" is unchecked, rows past the text's end
// stay unchecked; packed back, one character per row.
TEST(ListeBifate, DespachetareSiImpachetare) {
    const std::tuple<const char*, size_t, const char*> cazuri[] = {
        {"", 4, "0000"}, {"0001", 4, "0001"}, {"000011111", 4, "0000"}, {"1 2x1", 5, "10001"}, {"1101", 6, "110100"}};
    for (const auto& [text, randuri, bifate] : cazuri)
        EXPECT_EQ(ImpacheteazaBife(DespacheteazaBife(T(text), randuri)), T(bifate)) << text;
    EXPECT_EQ(DespacheteazaBife(T("01"), 2), (std::vector{false, true}));
}

// A point or a comma before the decimals, an empty cell 0; refused: not a number, negative,
// above the largest cell.
TEST(Celule, SumaCuVirgulaSauPunct) {
    const std::pair<const char*, const char*> bune[] = {
        {"1.234,5", "1234.5"}, {"1234.5", "1234.5"}, {"   ", "0"}, {"0,0001", "0.0001"}, {"999999999", "999999999"}};
    for (const auto& [text, suma] : bune) {
        EXPECT_EQ(CitesteSuma(T(text)), B(suma)) << text;
        EXPECT_EQ(CitesteCantitate(T(text)), B(suma)) << text;
    }
    for (const char* rau : {"abc", "12a", "1,2,3", "-5", "1000000000"})
        EXPECT_THROW(CitesteSuma(T(rau)), Eroare) << rau;
    EXPECT_THROW(CitesteCantitate(T("-0,5")), Eroare);
    EXPECT_EQ(TextCelula(Bani()) + u'|' + TextCelula(B("1234.5")) + u'|' + TextCelula(B("0.0001")),
              T("|1234.50|0.0001"));
}

class VenituriBunuri : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }
};

// The total of the shown rows; a refused text keeps the amount; rows go back to their entries,
// an entry no row shows is kept.
TEST_P(VenituriBunuri, GrilaVenituriiArataStareaSiTotalul) {
    std::array<Bani, 79> v{};
    v[0] = B("100");
    v[77] = B("50.25");
    v[78] = B("7"); // no row of the catalogue shows it
    GrilaVenituri g(CitesteListaVenituri(Bd()), v);
    EXPECT_EQ(g.TextTotal(), T("Total venituri: 150.25 lei"));
    g.Seteaza(1, T("1.234,5"));
    EXPECT_THROW(g.Seteaza(1, T("abc")), Eroare) << "a refused text keeps the amount";
    g.Seteaza(0, QString());
    EXPECT_EQ(g.Total(), B("1284.75"));
    std::array<Bani, 79> scrise = v;
    scrise[5] = B("3"); // overwritten by the grid's empty row
    g.CopiazaIn(scrise);
    EXPECT_EQ(SumaVenituri(scrise), B("1291.75"));
    EXPECT_EQ(scrise[5], Bani());
}

// The value is quantity times Valoare; the printed page holds each row's quantity and prints a
// name as text; with rows missing from the catalogue, their entries stay untouched.
TEST_P(VenituriBunuri, GrilaBunurilorValoreazaRandulEi) {
    ExecutaCu(Bd(), T("UPDATE ListaBife SET Denumire = ? WHERE NrBifa = ?"), T("Vaci <lapte> & %2"), 12);
    ExecutaCu(Bd(), T("DELETE FROM ListaBife WHERE NrBifa > ?"), 84);
    std::array<Bani, 75> b{};
    b[0] = B("2");    // grain, 150 a hectare
    b[10] = B("1.5"); // potatoes, 600
    b[74] = B("3");   // no row
    GrilaBunuri g(CitesteListaBife(Bd()).Bunuri, b);
    ASSERT_EQ(g.Randuri().size(), 74u);
    EXPECT_EQ(g.Valoare(), B("1200"));
    EXPECT_EQ(g.Seteaza(10, T("0,5")), B("0.5"));
    EXPECT_THROW(g.Seteaza(10, T("doi")), Eroare);
    EXPECT_EQ(g.Valoare(), B("600"));
    const QString html = g.Html();
    EXPECT_TRUE(html.contains(T(": 600.00")));
    EXPECT_TRUE(html.mid(html.indexOf(T("grâu")), 200).contains(T(">2.00<")));
    EXPECT_TRUE(html.contains(T("<td>Vaci &lt;lapte&gt; &amp; %2</td>")));
    std::array<Bani, 75> scrise = b;
    scrise[1] = B("9");
    g.CopiazaIn(scrise);
    EXPECT_EQ(scrise[1], Bani());
    EXPECT_EQ(scrise[10], B("0.5"));
    EXPECT_EQ(scrise[74], B("3"));
}

// Two parents and two children, 100 lei per member, December 2014: 173 lei unless an exclusion
// mark or goods take it away. The amount values entry i with NrBifa i + 10, a row after the grid's.
TEST_P(VenituriBunuri, BifeleSiBunurileDinDialogInCuantum) {
    const CatalogBife catalog = CitesteListaBife(Bd());
    StareCerere s;
    std::vector<MembruCerere> m(4);
    for (size_t i = 0; i < m.size(); ++i)
        m[i].RudenieID = i < 2 ? int(i) + 1 : 3, m[i].Data18Ani = QDate(2030, 1, 1);
    s.MatriceMembri = m;
    const auto cuantum = [&] {
        return CalculCuantum({s, 1, QDate(2014, 12, 1), T("100"), 12, 2014}, IncarcaParametri(Bd()), mesaje).Cuantum;
    };
    // The exclusion list as the dialog packs it: its last mark stops the computation.
    std::vector<bool> bife(catalog.Excludere.size(), false);
    bife.back() = true;
    s.Bife = ImpacheteazaBife(bife);
    EXPECT_EQ(cuantum(), Bani());
    s.Bife.clear();
    // Pastures (60) in the grid are valued as greenhouses (5000); 30 ostriches (3000 in the grid)
    // as pheasants (2 each).
    GrilaBunuri g(catalog.Bunuri, s.Bunuri);
    ASSERT_EQ(g.Randuri()[17].NrBifa, 28);
    g.Seteaza(17, T("1"));
    EXPECT_EQ(g.Valoare(), B("60"));
    g.CopiazaIn(s.Bunuri);
    EXPECT_EQ(cuantum(), Bani());
    g.Seteaza(17, QString());
    g.Seteaza(74, T("30"));
    EXPECT_EQ(g.Valoare(), B("3000"));
    g.CopiazaIn(s.Bunuri);
    EXPECT_EQ(cuantum(), Bani::DinLei(173));
    EXPECT_TRUE(mesaje.Texte().isEmpty());
}

PE_AMBELE_MOTOARE(VenituriBunuri);

} // namespace
