#include "base/Sume.h"
#include "cases/CalculCuantum.h"
#include "cases/DateCerere.h"
#include "cases/Locuinta.h"
#include "cases/SalvareCerere.h"
#include "cases/VenituriBunuri.h"
#include "base/Eroare.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"
#include "support/SqlTest.h"

#include <gtest/gtest.h>

namespace {

std::vector<bool> Bife(const char* sablon) {
    std::vector<bool> r;
    for (const char* c = sablon; *c; ++c)
        r.push_back(*c == '1');
    return r;
}

TEST(ListeBifate, DespachetareSiImpachetare) {
    const struct {
        const char* text;
        size_t randuri;
        const char* bifate; // expected marks, "1" checked
    } cazuri[] = {
        {"", 10, "0000000000"},
        {"0000000000", 10, "0000000000"},
        {"0000000001", 10, "0000000001"},
        {"1000000000", 10, "1000000000"},
        // Only the places of the list are read; a longer text keeps the rest to itself.
        {"000000000011111", 10, "0000000000"},
        {"01", 10, "0100000000"},
        // Anything but "1" is unchecked, a blank or a "2" included.
        {"1 2x1", 5, "10001"},
        // A catalogue longer than the text: the rows past its end stay unchecked.
        {"1101", 28, "1101000000000000000000000000"},
        {"1101000000000000000000000001", 28, "1101000000000000000000000001"},
        {"111", 0, ""},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.text);
        const std::vector<bool> b = DespacheteazaBife(QString::fromLatin1(c.text), c.randuri);
        EXPECT_EQ(b, Bife(c.bifate));
        EXPECT_EQ(ImpacheteazaBife(b), QString::fromLatin1(c.bifate));
    }
}

TEST(ListeBifate, TextulRandului) {
    EXPECT_EQ(TextRandBifa({7, QStringLiteral("Copie %1 după act")}), QStringLiteral("7. - Copie %1 după act"));
}

TEST(Celule, SumaCuVirgulaSauPunct) {
    const struct {
        const char* text;
        const char* suma;
    } bune[] = {
        {"1.234,5", "1234.5"},
        {"1234,5", "1234.5"},
        {"1234.5", "1234.5"},
        {" 12 ", "12"},
        {"", "0"},
        {"   ", "0"},
        {"0,0001", "0.0001"},
        {"1.234.567", "1234567"},
        {"0", "0"},
        {"999999999", "999999999"},
    };
    for (const auto& c : bune) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(CitesteSuma(QString::fromLatin1(c.text)), B(c.suma));
        EXPECT_EQ(CitesteCantitate(QString::fromLatin1(c.text)), B(c.suma));
    }
    const struct {
        const char* text;
        const char* mesaj;
    } rele[] = {
        {"abc", "\"abc\" nu este o suma valida: se asteapta un numar, cu virgula sau punct inaintea zecimalelor."},
        {"12a", "\"12a\" nu este o suma valida: se asteapta un numar, cu virgula sau punct inaintea zecimalelor."},
        {"1,2,3", "\"1,2,3\" nu este o suma valida: se asteapta un numar, cu virgula sau punct inaintea zecimalelor."},
        {"-5", "\"-5\": suma nu poate fi negativa."},
        {"1000000000", "\"1000000000\": suma este prea mare; cel mult 999999999.00."},
    };
    for (const auto& c : rele) {
        SCOPED_TRACE(c.text);
        try {
            CitesteSuma(QString::fromLatin1(c.text));
            ADD_FAILURE() << "primit";
        } catch (const Eroare& e) {
            EXPECT_EQ(e.text(), QString::fromLatin1(c.mesaj));
        }
    }
    EXPECT_THROW(CitesteCantitate(QStringLiteral("-0,5")), Eroare);
    EXPECT_EQ(TextCelula(Bani()), QString());
    EXPECT_EQ(TextCelula(B("1234.5")), QStringLiteral("1234.50"));
    EXPECT_EQ(TextCelula(B("0.0001")), QStringLiteral("0.0001"));
}

class VenituriBunuri : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }
};

TEST_P(VenituriBunuri, CataloageleInOrdine) {
    const auto venituri = CitesteListaVenituri(Bd());
    ASSERT_EQ(venituri.size(), 78u);
    EXPECT_EQ(venituri.front().Nr, 1);
    EXPECT_EQ(venituri.back().Nr, 78);
    EXPECT_TRUE(venituri.front().Denumire.startsWith(T("Salariu net")));

    const auto acte = CitesteListaActe(Bd());
    ASSERT_EQ(acte.size(), 28u);
    for (size_t i = 0; i < acte.size(); ++i)
        EXPECT_EQ(acte[i].Nr, int(i + 1));

    const CatalogBife b = CitesteListaBife(Bd());
    ASSERT_EQ(b.Excludere.size(), 10u);
    ASSERT_EQ(b.Bunuri.size(), 75u);
    EXPECT_EQ(b.Excludere.front().Nr, 1);
    EXPECT_EQ(b.Excludere.back().Nr, 10);
    EXPECT_EQ(
        b.Bunuri.front(),
        (BunCatalog{11, T("TE"), 1, T("Teren arabil cultivat cu grâu, orz, ovăz sau secară (ha)"), B("150")}));
    EXPECT_EQ(b.Bunuri.back().NrBifa, 85);
    EXPECT_EQ(b.Bunuri.back().Valoare, B("100"));
    EXPECT_EQ(b.Bunuri[74].Tip, T("PA"));
}

TEST_P(VenituriBunuri, GrilaVenituriiArataStareaSiTotalul) {
    std::array<Bani, 79> v{};
    v[0] = B("100");
    v[77] = B("50.25");
    v[78] = B("7"); // no row of the catalogue shows it
    GrilaVenituri g(CitesteListaVenituri(Bd()), v);
    ASSERT_EQ(g.Randuri().size(), 78u);
    EXPECT_EQ(g.Suma(0), B("100"));
    EXPECT_EQ(g.Suma(77), B("50.25"));
    EXPECT_EQ(g.TextTotal(), QStringLiteral("Total venituri: 150.25 lei"));

    EXPECT_EQ(g.Seteaza(1, QStringLiteral("1.234,5")), B("1234.5"));
    EXPECT_EQ(g.TextTotal(), QStringLiteral("Total venituri: 1384.75 lei"));
    EXPECT_EQ(g.Seteaza(1, QStringLiteral("1234,5")), B("1234.5"));
    EXPECT_THROW(g.Seteaza(1, QStringLiteral("abc")), Eroare);
    EXPECT_EQ(g.Suma(1), B("1234.5")) << "a refused text keeps the amount";
    EXPECT_EQ(g.Seteaza(0, QString()), Bani());
    EXPECT_EQ(g.Total(), B("1284.75"));

    std::array<Bani, 79> scrise = v;
    scrise[5] = B("3"); // overwritten by the grid's empty row
    g.CopiazaIn(scrise);
    EXPECT_EQ(scrise[0], Bani());
    EXPECT_EQ(scrise[1], B("1234.5"));
    EXPECT_EQ(scrise[5], Bani());
    EXPECT_EQ(scrise[77], B("50.25"));
    EXPECT_EQ(scrise[78], B("7"));
    EXPECT_EQ(SumaVenituri(scrise), B("1291.75"));
}

TEST_P(VenituriBunuri, GrilaBunurilorValoreazaRandulEi) {
    std::array<Bani, 75> b{};
    b[0] = B("2");    // grain, 150 a hectare
    b[10] = B("1.5"); // potatoes, 600
    b[74] = B("3");   // ostrich, 100 a head
    GrilaBunuri g(CitesteListaBife(Bd()).Bunuri, b);
    ASSERT_EQ(g.Randuri().size(), 75u);
    EXPECT_EQ(g.Valoare(), B("1500"));
    EXPECT_EQ(g.Seteaza(10, QStringLiteral("0,5")), B("0.5"));
    EXPECT_EQ(g.Valoare(), B("900"));
    EXPECT_THROW(g.Seteaza(10, QStringLiteral("doi")), Eroare);
    EXPECT_EQ(g.Valoare(), B("900"));

    const QString html = g.Html();
    EXPECT_TRUE(html.contains(QStringLiteral("<th>Cantitate (ha, buc)</th>")));
    EXPECT_TRUE(html.contains(QStringLiteral("VENITUL NET (EURO): 900.00")));
    // Each row with its quantity, in the grid's order.
    const qsizetype grau = html.indexOf(T("grâu"));
    const qsizetype strut = html.indexOf(T("Struț de fermă"));
    ASSERT_GE(grau, 0);
    EXPECT_GT(strut, grau);
    EXPECT_TRUE(html.mid(grau, 200).contains(QStringLiteral(">2.00<")));
    EXPECT_TRUE(html.mid(strut, 200).contains(QStringLiteral(">3.00<")));
    EXPECT_EQ(html.count(QStringLiteral("<tr>")), 76);

    std::array<Bani, 75> scrise{};
    scrise[74] = B("9");
    g.CopiazaIn(scrise);
    EXPECT_EQ(scrise[0], B("2"));
    EXPECT_EQ(scrise[10], B("0.5"));
    EXPECT_EQ(scrise[74], B("3"));
}

TEST_P(VenituriBunuri, CuLipsaRandurilorDinCatalogIntrarileRamanNeatinse) {
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM ListaBife WHERE NrBifa > ?"), 80);
    std::array<Bani, 75> b{};
    b[72] = B("4");
    b[73] = B("5");
    GrilaBunuri g(CitesteListaBife(Bd()).Bunuri, b);
    ASSERT_EQ(g.Randuri().size(), 70u);
    g.Seteaza(0, QStringLiteral("1"));
    std::array<Bani, 75> scrise = b;
    g.CopiazaIn(scrise);
    EXPECT_EQ(scrise[0], B("1"));
    EXPECT_EQ(scrise[72], B("4"));
    EXPECT_EQ(scrise[73], B("5"));
    // A name with markup is printed as text.
    ExecutaCu(Bd(), QStringLiteral("UPDATE ListaBife SET Denumire = ? WHERE NrBifa = ?"),
              QStringLiteral("Vaci <lapte> & %2"), 11);
    EXPECT_TRUE(GrilaBunuri(CitesteListaBife(Bd()).Bunuri, b)
                    .Html()
                    .contains(QStringLiteral("<td>Vaci &lt;lapte&gt; &amp; %2</td>")));
}

// A family of two parents and two children, 100 lei per member, December 2014: the seeded scale
// gives 173 lei unless goods or an exclusion mark take it away.
class Excludere : public VenituriBunuri {
protected:
    Bani Cuantum(const StareCerere& s) {
        const ParametriCuantum p = IncarcaParametri(Bd());
        IntrareCuantum in{s, 1, QDate(2014, 12, 1), QStringLiteral("100"), 12, 2014};
        return CalculCuantum(in, p, mesaje).Cuantum;
    }
    StareCerere Familie() {
        StareCerere s;
        std::vector<MembruCerere> m(4);
        m[0].RudenieID = 1;
        m[1].RudenieID = 2;
        for (size_t i : {2u, 3u}) {
            m[i].RudenieID = 3;
            m[i].Data18Ani = QDate(2030, 1, 1);
        }
        s.MatriceMembri = m;
        return s;
    }
};

TEST_P(Excludere, BifeleSiBunurileDinDialog) {
    const CatalogBife catalog = CitesteListaBife(Bd());
    StareCerere s = Familie();
    const Bani plin = Cuantum(s);
    ASSERT_GT(plin, Bani());

    // The exclusion list as the dialog packs it.
    std::vector<bool> bife(catalog.Excludere.size(), false);
    s.Bife = ImpacheteazaBife(bife);
    EXPECT_EQ(s.Bife, QStringLiteral("0000000000"));
    EXPECT_EQ(Cuantum(s), plin);
    for (size_t i = 0; i < bife.size(); ++i) {
        SCOPED_TRACE(i);
        std::vector<bool> una(bife.size(), false);
        una[i] = true;
        s.Bife = ImpacheteazaBife(una);
        EXPECT_EQ(Cuantum(s), Bani());
    }
    s.Bife = ImpacheteazaBife(bife);

    // The amount values entry i with NrBifa i + 10, one row before the one the grid shows:
    // greenhouses (5000) stand before pastures (60).
    GrilaBunuri g(catalog.Bunuri, s.Bunuri);
    ASSERT_EQ(g.Randuri()[16].NrBifa, 27);
    ASSERT_EQ(g.Randuri()[17].NrBifa, 28);
    g.Seteaza(17, QStringLiteral("1"));
    EXPECT_EQ(g.Valoare(), B("60"));
    g.CopiazaIn(s.Bunuri);
    EXPECT_EQ(Cuantum(s), Bani()) << "valued as greenhouses, 5000";

    // And the other way: 30 ostriches are 3000 in the grid, valued as pheasants (2 each).
    g.Seteaza(17, QString());
    g.Seteaza(74, QStringLiteral("30"));
    EXPECT_EQ(g.Valoare(), B("3000"));
    g.CopiazaIn(s.Bunuri);
    EXPECT_EQ(Cuantum(s), plin);
    EXPECT_TRUE(mesaje.Texte().isEmpty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
}

// The whole case file with what the four dialogs put in the state: saved, opened again, and
// each dialog shows what it showed before the save.
TEST_P(VenituriBunuri, DosarulCuVenituriBunuriSiLocuintaSeCitesteInapoi) {
    Dosar d = DosarComplet(Bd());
    StareCerere& s = d.stare;

    GrilaVenituri v(CitesteListaVenituri(Bd()), s.Venituri);
    v.Seteaza(0, QStringLiteral("1.234,5"));
    v.Seteaza(5, QStringLiteral("0"));
    v.Seteaza(77, QStringLiteral("12,0001"));
    v.CopiazaIn(s.Venituri);
    d.date.txtCerere[12] = TextSuma(SumaVenituri(s.Venituri));

    const CatalogBife catalog = CitesteListaBife(Bd());
    GrilaBunuri b(catalog.Bunuri, s.Bunuri);
    b.Seteaza(1, QString());              // cleared: no row
    b.Seteaza(5, QStringLiteral("0"));    // a zero: no row
    b.Seteaza(6, QStringLiteral("2,25")); // NrBifa 15 in the table
    b.CopiazaIn(s.Bunuri);
    s.Bife = ImpacheteazaBife(DespacheteazaBife(QStringLiteral("0000000000"), catalog.Excludere.size()));
    s.ActeBife = ImpacheteazaBife(DespacheteazaBife(QStringLiteral("0110"), CitesteListaActe(Bd()).size()));

    DateLocuinta l = DateDinStare(s);
    l.chkLocuinta = {false, true, false, false, false, false, true};
    l.txtNrCamere = QStringLiteral("4");
    l.cboLocuinta = {5, 2, 1, 2, 4};
    l.txtLocuinta = {T("Groupama Asigurări"), QStringLiteral("X-9")};
    ASSERT_EQ(CopiazaInStare(l, s), std::nullopt);

    OptiuniSalvare o = OptiuniDosar();
    o.CaleBD = Locatie().caleBD;
    const RezultatSalvare r = SalveazaCerere(Bd(), d.date, s, d.iesiti, o, mesaje);
    ASSERT_EQ(r.stare, RezultatSalvare::Stare::Salvata) << mesaje.Texte().join(QLatin1Char('|')).toStdString();

    // Quantities above 0 only, entry i under NrBifa i + 9.
    Interogare q(Bd(), QStringLiteral("SELECT NrBifa, Valoare FROM BifeText WHERE CerereID = ? ORDER BY NrBifa"));
    q.Leaga(r.CerereID).Executa();
    QStringList randuri;
    while (q.Urmator())
        randuri << QStringLiteral("%1=%2").arg(q.Intreg(0)).arg(q.Suma(QStringLiteral("Valoare")).Text());
    EXPECT_EQ(randuri,
              (QStringList{QStringLiteral("15=2.2500"), QStringLiteral("29=1.5000"), QStringLiteral("83=3.0000")}));
    EXPECT_EQ(NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM Venituri WHERE CerereID = ?"), r.CerereID),
              3); // entries 0, 77 and 78; the zero of entry 5 is not written

    const CerereIncarcata c = IncarcaCerere(Bd(), r.CerereID, LunaDosar, AnDosar, mesaje);
    ASSERT_TRUE(c.Gasita);
    EXPECT_FALSE(c.Stare.LocuinteSel[7].Bifat) << "the dialog clears the eighth mark";
    StareCerere asteptat = s;
    asteptat.MatriceMembri = c.Stare.MatriceMembri; // the persons are not this test's business
    for (LocuintaSel& l : asteptat.LocuinteSel)
        if (!l.Bifat) l.NrCamere = 0; // an unmarked kind has no row to keep its rooms
    ExpectStareEgala(c.Stare, asteptat);
    EXPECT_EQ(c.Date.txtCerere[12], QStringLiteral("1346.5002")); // entry 78 counts too

    EXPECT_EQ(DateDinStare(c.Stare), l);
    const GrilaVenituri v2(CitesteListaVenituri(Bd()), c.Stare.Venituri);
    EXPECT_EQ(v2.TextTotal(), v.TextTotal());
    EXPECT_EQ(v2.TextTotal(), QStringLiteral("Total venituri: 1246.5001 lei"));
    const GrilaBunuri b2(catalog.Bunuri, c.Stare.Bunuri);
    EXPECT_EQ(b2.Valoare(), b.Valoare());
    EXPECT_EQ(DespacheteazaBife(c.Stare.ActeBife, 28), DespacheteazaBife(s.ActeBife, 28));
}

TEST_P(VenituriBunuri, LocuintaGoalaNuScrieRanduri) {
    Dosar d = DosarComplet(Bd());
    DateLocuinta gol;
    ASSERT_EQ(CopiazaInStare(gol, d.stare), std::nullopt);
    OptiuniSalvare o = OptiuniDosar();
    o.CaleBD = Locatie().caleBD;
    const RezultatSalvare r = SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, o, mesaje);
    ASSERT_EQ(r.stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM Locuinte WHERE CerereID = ?"), r.CerereID), 0);
    EXPECT_EQ(NumarRanduri(Bd(), QStringLiteral("SELECT NrCamere FROM Cereri WHERE CerereID = ?"), r.CerereID), 0);
    const CerereIncarcata c = IncarcaCerere(Bd(), r.CerereID, LunaDosar, AnDosar, mesaje);
    EXPECT_EQ(DateDinStare(c.Stare), gol);
}

PE_AMBELE_MOTOARE(VenituriBunuri);
PE_AMBELE_MOTOARE(Excludere);

} // namespace
