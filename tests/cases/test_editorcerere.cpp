#include "cases/EditorCerere.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"

#include <gtest/gtest.h>

namespace {

const QDate Decembrie2014(2014, 12, 1);

MembruCerere Om(int rudenie, QDate data18 = QDate(2030, 1, 1), int diminuare20 = 0) {
    MembruCerere m;
    m.RudenieID = rudenie;
    m.Data18Ani = data18;
    m.Diminuare20 = diminuare20;
    return m;
}

class EditorCerereTest : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }

    CalculEditor Calcul() { return CalculEditor(IncarcaParametri(Bd()), LunaDosar, AnDosar); }

    // Kind 1, status date 1 December 2014: with two children and 100 lei per member the
    // seeded scale gives 173.
    static DateCerere Boxe(const char* venitTotal, const char* nrMembrii) {
        DateCerere d;
        d.cboCerere[3] = {1, TextTipCerere(1)};
        d.dtpData[1] = Decembrie2014;
        d.txtCerere[12] = T(venitTotal);
        d.txtCerere[15] = T(nrMembrii);
        d.txtCerere[14] = QStringLiteral("-");
        d.txtCerere[16] = QStringLiteral("-");
        return d;
    }
};

TEST_P(EditorCerereTest, ListeleCombourilorInOrdineaLor) {
    // Keys out of their alphabetical order, and a status list whose order is not its keys'.
    Bd().Executa(QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, LocalitateID) VALUES (7, 'Strada Morii', 1)"));
    Bd().Executa(QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, LocalitateID) VALUES (3, 'Ulita Mare', 1)"));
    Bd().Executa(QStringLiteral("INSERT INTO Motive (MotivID, Denumire) VALUES (5, 'Alt motiv')"));
    Bd().Executa(QStringLiteral("INSERT INTO Motive (MotivID, Denumire) VALUES (2, 'Venituri peste prag')"));
    Bd().Executa(QStringLiteral("UPDATE DateGen SET Ordine = 100 - DataID WHERE Tip = 1"));

    const ListeEditorCerere l = IncarcaListeEditor(Bd());
    auto ids = [](const std::vector<AlegereCombo>& v) {
        std::vector<qint64> r;
        for (const AlegereCombo& a : v)
            r.push_back(a.id);
        return r;
    };
    auto cauta = [](const std::vector<AlegereCombo>& v, qint64 id) {
        for (const AlegereCombo& a : v)
            if (a.id == id) return a.text;
        return QStringLiteral("(lipsa)");
    };
    EXPECT_EQ(ids(l.Strazi), (std::vector<qint64>{3, 7}));
    EXPECT_EQ(cauta(l.Strazi, 7), QStringLiteral("Strada Morii"));
    EXPECT_EQ(ids(l.Motive), (std::vector<qint64>{2, 5}));

    ASSERT_GE(l.Stare.size(), 8u);
    const auto stari = ids(l.Stare);
    EXPECT_TRUE(std::is_sorted(stari.rbegin(), stari.rend())) << "by Ordine, which runs against DataID here";
    EXPECT_EQ(cauta(l.Stare, 7), QStringLiteral("MODIFICARE CUANTUM"));
    EXPECT_EQ(cauta(l.Stare, 8), QStringLiteral("SCHIMBARE TITULAR"));

    // Each list holds its own DateGen kind, with the texts as stored.
    for (const auto& [lista, tip] : {std::pair{&l.ReprLegal, 27}, std::pair{&l.ModPlata, 12}}) {
        ASSERT_FALSE(lista->empty()) << tip;
        for (const AlegereCombo& a : *lista)
            EXPECT_EQ(a.text, ContinutDateGen(Bd(), tip, int(a.id))) << tip << " " << a.id;
    }
    EXPECT_NE(cauta(l.ModPlata, ModPlataBanca), QStringLiteral("(lipsa)"));
    ASSERT_EQ(l.TipCerere.size(), 2u);
    EXPECT_EQ(l.TipCerere[0], (AlegereCombo{1, QStringLiteral("alocatiei pt familiile cu sot, etc")}));
    EXPECT_EQ(l.TipCerere[1], (AlegereCombo{2, QStringLiteral("alocatiei de sustinere pentru familia monoparentala")}));
}

TEST_P(EditorCerereTest, OSchimbareDeTextRecalculeazaCeTrebuie) {
    StareCerere s;
    s.MatriceMembri = std::vector<MembruCerere>{Om(1), Om(2), Om(3), Om(3)};
    const struct {
        const char* nume;
        const char* venitTotal;
        const char* nrMembrii;
        int element;
        const char* venitPeMembru; // "-": box untouched
        const char* cuantum;
        const char* nrCopii;
        const char* inainte = "-"; // what box 13 showed
    } cazuri[] = {
        // The total: the income per member follows, unrounded, and so does the amount (above
        // 210.2 lei per member the bracket of 1.06: 2 x 0.15 x 525.5 = 157.65, rounded up).
        {"total", "400", "4", 12, "100", "173", "2"},
        {"total cu zecimale", "1000", "3", 12, "333.333333333333", "158", "2"},
        {"total cu virgula", "1000,5", "2", 12, "500.25", "158", "2"},
        // Above the upper threshold (557.03 per member) nothing is due, and the children are still counted.
        {"peste prag", "2400", "4", 12, "600", "0", "2"},
        // Another box: the income per member only.
        {"numarul membrilor", "400", "4", 15, "100", "-", "-"},
        {"alt camp", "400", "4", 2, "100", "-", "-"},
        // No members yet: the income per member keeps what it shows; the total still computes.
        {"fara membri", "400", "0", 12, "50", "173", "2", "50"},
        {"gol", "", "4", 12, "0", "173", "2"},
        // Not an amount: nothing moves.
        {"nu este suma", "12a", "4", 12, "-", "-", "-"},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        CalculEditor calc = Calcul();
        DateCerere d = Boxe(c.venitTotal, c.nrMembrii);
        d.txtCerere[13] = T(c.inainte);
        calc.TextSchimbat(d, c.element, s, mesaje);
        EXPECT_EQ(d.txtCerere[13], T(c.venitPeMembru));
        EXPECT_EQ(d.txtCerere[14], T(c.cuantum));
        EXPECT_EQ(d.txtCerere[16], T(c.nrCopii));
        EXPECT_EQ(d.txtCerere[12], T(c.venitTotal)) << "the clerk's box is never rewritten";
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
}

TEST_P(EditorCerereTest, CuantumulCuCopiiFaraCopiiSiCuDiminuare) {
    // Step by step as the editor meets them: kind and status chosen, persons added, a
    // reduction set.
    CalculEditor calc = Calcul();
    StareCerere s;
    DateCerere d = Boxe("300", "3");
    d.txtCerere[13] = QString(); // never computed: counts as no income

    calc.Cuantum(d, s, mesaje); // no list yet
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("0"));
    EXPECT_EQ(d.txtCerere[16], QStringLiteral("-")) << "no child counted: the box keeps its number";
    EXPECT_FALSE(calc.CuantumInainteDeReduceri());

    s.MatriceMembri = std::vector<MembruCerere>{Om(1), Om(2)};
    calc.Cuantum(d, s, mesaje);
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("0"));
    EXPECT_EQ(d.txtCerere[16], QStringLiteral("-"));

    s.MatriceMembri->push_back(Om(3));
    calc.Cuantum(d, s, mesaje);
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("87")); // 0.164 x 525.5 = 86.182, rounded up
    EXPECT_EQ(d.txtCerere[16], QStringLiteral("1"));

    // Single-parent, one child with the 20% reduction: 113 less 21.
    d.cboCerere[3] = {2, TextTipCerere(2)};
    (*s.MatriceMembri)[2].Diminuare20 = 1;
    calc.Cuantum(d, s, mesaje);
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("92"));
    ASSERT_TRUE(calc.CuantumInainteDeReduceri());
    EXPECT_EQ(*calc.CuantumInainteDeReduceri(), Bani::DinLei(113));

    // A child of age before the working month: no child, amount 0, the last count stays shown
    // and so does the amount before reductions.
    (*s.MatriceMembri)[2].Data18Ani = QDate(2014, 11, 30);
    calc.Cuantum(d, s, mesaje);
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("0"));
    EXPECT_EQ(d.txtCerere[16], QStringLiteral("1"));
    EXPECT_EQ(*calc.CuantumInainteDeReduceri(), Bani::DinLei(113));

    // A status date before the scale: the computation's own message.
    (*s.MatriceMembri)[2].Data18Ani = QDate(2030, 1, 1);
    d.dtpData[1] = QDate(2011, 12, 15);
    calc.Cuantum(d, s, mesaje);
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("0"));
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Modificati Data statut de la 2012 in sus!")});
}

TEST_P(EditorCerereTest, DupaVenituriBunuriSiListaPersoanelor) {
    CalculEditor calc = Calcul();
    StareCerere s;
    s.MatriceMembri = std::vector<MembruCerere>{Om(1), Om(3), Om(3)};
    s.Venituri[0] = B("250.25");
    s.Venituri[40] = B("50");
    s.Venituri[78] = B("0.0001");
    DateCerere d = Boxe("9999", "3");
    calc.DupaVenituri(d, s, mesaje);
    EXPECT_EQ(d.txtCerere[12], QStringLiteral("300.2501"));
    EXPECT_EQ(d.txtCerere[13], QStringLiteral("100.083366666667"));
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("173"));
    EXPECT_EQ(d.txtCerere[16], QStringLiteral("2"));

    // A person added: the count is the list's, and the income per member follows it.
    s.MatriceMembri->push_back(Om(2));
    calc.Totaluri(d, s, RecalculTotaluri(4, s.MatriceMembri), mesaje);
    EXPECT_EQ(d.txtCerere[15], QStringLiteral("4"));
    EXPECT_EQ(d.txtCerere[13], QStringLiteral("75.062525"));
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("173"));
    EXPECT_TRUE(mesaje.mesaje.empty());

    // The goods dialog with a list out of step: told, and the list's count is written.
    s.Bunuri[1] = B("20"); // 20 x 150 = 3000 EUR, above the limit of 2500
    calc.DupaBunuri(d, s, 5, mesaje);
    EXPECT_EQ(d.txtCerere[15], QStringLiteral("5"));
    EXPECT_EQ(d.txtCerere[13], QStringLiteral("60.05002"));
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("0"));
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Exceptie Tarn in Calcule: Nr Membrii din lista este "
                                                         "diferite de cel din matrice. Sunati la 0700-111222")});
}

PE_AMBELE_MOTOARE(EditorCerereTest);

} // namespace
