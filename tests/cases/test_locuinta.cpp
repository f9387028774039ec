#include "cases/Locuinta.h"
#include "cases/StareCerere.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <gtest/gtest.h>

namespace {

TEST(Locuinta, NumarulDeCamereDinText) {
    const struct {
        const char* text;
        std::optional<int> camere;
    } cazuri[] = {
        {"", 0},      {"3", 3},    {" 3 camere", 3}, {"2.5", 2},     {"3.5", 4},   {"2,7", 2},       {"abc", 0},
        {"255", 255}, {"256", {}}, {"-1", {}},       {"255.4", 255}, {"1e2", 100}, {"99999999", {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(NrCamereDinText(QString::fromLatin1(c.text)), c.camere);
    }
}

StareCerere StarePlina() {
    StareCerere s;
    s.LocuinteSel[0] = {3, true};
    s.LocuinteSel[4] = {2, false};
    s.LocuinteSel[6] = {0, true};
    s.LocuinteSel[7] = {1, true};
    s.NrCamere = 3;
    s.TipDobandire = 2;
    s.RegimJuridLoc = 1;
    s.GospodLoc = 2;
    s.TipLocuinta = 1;
    s.TipIncalzire = 4;
    s.Polita = true;
    s.SocietatePolita = QStringLiteral("Omniasig");
    s.NrPolita = QStringLiteral("PAD123");
    s.DataStartPolita = QDate(2014, 5, 1);
    s.DataStopPolita = QDate(2015, 4, 30);
    s.AcoperaRiscuri = true;
    s.Bife = QStringLiteral("0000000000");
    s.Venituri[2] = Bani::DinLei(5);
    return s;
}

TEST(Locuinta, ControaleleDinStare) {
    const DateLocuinta d = DateDinStare(StarePlina());
    EXPECT_EQ(d.chkLocuinta, (std::array<bool, 7>{true, false, false, false, false, false, true}));
    EXPECT_EQ(d.txtNrCamere, QStringLiteral("3"));
    EXPECT_EQ(d.cboLocuinta, (std::array<int, 5>{2, 1, 2, 1, 4}));
    EXPECT_EQ(d.chkPolita, (std::array<bool, 2>{true, true}));
    EXPECT_EQ(d.txtLocuinta, (std::array<QString, 2>{QStringLiteral("Omniasig"), QStringLiteral("PAD123")}));
    EXPECT_EQ(d.dtpData, (std::array<QDate, 2>{QDate(2014, 5, 1), QDate(2015, 4, 30)}));
    EXPECT_EQ(DateDinStare(StareCerere()).txtNrCamere, QString());
}

TEST(Locuinta, OKCopiazaControaleleInStare) {
    StareCerere s = StarePlina();
    DateLocuinta d;
    d.chkLocuinta = {false, true, false, false, true, false, false};
    d.txtNrCamere = QStringLiteral("2 camere");
    d.cboLocuinta = {0, 3, 1, 2, 0};
    // Without a policy the insurance boxes are still taken as they stand.
    d.chkPolita = {false, true};
    d.txtLocuinta = {QStringLiteral("Allianz"), QString()};
    d.dtpData = {QDate(2020, 1, 1), QDate()};
    ASSERT_EQ(CopiazaInStare(d, s), std::nullopt);

    StareCerere asteptat = StarePlina();
    // All eight marks cleared first, the eighth included; the rooms of each mark stay.
    asteptat.LocuinteSel = {
        LocuintaSel{3, false}, {0, true}, {0, false}, {0, false}, {2, true}, {0, false}, {0, false}, {1, false}};
    asteptat.NrCamere = 2;
    asteptat.TipDobandire = 0;
    asteptat.RegimJuridLoc = 3;
    asteptat.GospodLoc = 1;
    asteptat.TipLocuinta = 2;
    asteptat.TipIncalzire = 0;
    asteptat.Polita = false;
    asteptat.SocietatePolita = QStringLiteral("Allianz");
    asteptat.NrPolita = QString();
    asteptat.DataStartPolita = QDate(2020, 1, 1);
    asteptat.DataStopPolita = QDate();
    asteptat.AcoperaRiscuri = true;
    EXPECT_EQ(s.LocuinteSel, asteptat.LocuinteSel);
    EXPECT_TRUE(s == asteptat);

    // What the dialog opens with comes back unchanged, but for the eighth mark.
    StareCerere dus = StarePlina();
    ASSERT_EQ(CopiazaInStare(DateDinStare(dus), dus), std::nullopt);
    StareCerere fara8 = StarePlina();
    fara8.LocuinteSel[7].Bifat = false;
    EXPECT_TRUE(dus == fara8);
}

TEST(Locuinta, CamereInAfaraUnuiOctetSuntRefuzate) {
    StareCerere s = StarePlina();
    DateLocuinta d = DateDinStare(s);
    d.chkLocuinta.fill(false);
    d.txtLocuinta[0] = QStringLiteral("alta");
    for (const char* text : {"256", "-2", "1000"}) {
        SCOPED_TRACE(text);
        d.txtNrCamere = QString::fromLatin1(text);
        const auto r = CopiazaInStare(d, s);
        ASSERT_TRUE(r.has_value());
        EXPECT_EQ(r->Mesaj, QStringLiteral("Numarul de camere trebuie sa fie un numar intre 0 si 255."));
        EXPECT_EQ(r->Control, QStringLiteral("txtNrCamere"));
        EXPECT_TRUE(s == StarePlina()) << "nothing copied";
    }
}

class ListeLocuinta : public TestBaza {};

TEST_P(ListeLocuinta, CeleCinciListeDinDateGen) {
    BazaNoua();
    const auto l = CitesteListeLocuinta(Bd());
    const std::array<size_t, 5> marimi = {8, 7, 2, 2, 5};
    for (size_t i = 0; i < l.size(); ++i)
        EXPECT_EQ(l[i].size(), marimi[i]) << i;
    EXPECT_EQ(l[0].front(), (OptiuneLista{1, QStringLiteral("CUMPARARE")}));
    EXPECT_EQ(l[1].back(), (OptiuneLista{7, QStringLiteral("FARA ACTE DE PROPRIETATE SAU DE FOLOSINTA")}));
    EXPECT_EQ(l[3], (std::vector<OptiuneLista>{{1, QStringLiteral("TIP A")}, {2, QStringLiteral("TIP B")}}));
    EXPECT_EQ(l[4][1], (OptiuneLista{2, QStringLiteral("GAZE NATURALE")}));

    // By Ordine, not by DataID.
    ExecutaCu(Bd(), QStringLiteral("UPDATE DateGen SET Ordine = ? WHERE Tip = ? AND DataID = ?"), 0, 29, 2);
    EXPECT_EQ(CitesteListeLocuinta(Bd())[3].front().Continut, QStringLiteral("TIP B"));
}

PE_AMBELE_MOTOARE(ListeLocuinta);

} // namespace
