#include "cases/Locuinta.h"
#include "cases/StareCerere.h"
#include "support/BazaTest.h"

#include <gtest/gtest.h>

namespace {

TEST(Locuinta, NumarulDeCamereDinText) {
    const std::pair<const char*, std::optional<int>> cazuri[] = {
        {"", 0},      {" 3 camere", 3}, {"2.5", 2}, {"3.5", 4},     {"2,7", 2},   {"abc", 0},
        {"255", 255}, {"256", {}},      {"-1", {}}, {"255.4", 255}, {"1e2", 100}, {"99999999", {}}};
    for (const auto& [text, camere] : cazuri)
        EXPECT_EQ(NrCamereDinText(QString::fromLatin1(text)), camere) << text;
}

// OK clears all eight marks (the eighth has no box) and keeps their rooms; bad rooms copy nothing.
TEST(Locuinta, ControaleleDinStareSiInapoi) {
    StareCerere s;
    s.LocuinteSel[0] = {3, true};
    s.LocuinteSel[4] = {2, false};
    s.LocuinteSel[7] = {1, true};
    s.NrCamere = 3;
    s.TipDobandire = s.RegimJuridLoc = s.GospodLoc = s.TipLocuinta = s.TipIncalzire = 2;
    s.Polita = s.AcoperaRiscuri = true;
    s.SocietatePolita = QStringLiteral("Omniasig");
    s.NrPolita = QStringLiteral("PAD123");
    s.DataStartPolita = QDate(2014, 5, 1);
    s.Venituri[2] = Bani::DinLei(5);
    StareCerere asteptat = s;
    asteptat.LocuinteSel[7].Bifat = false;
    ASSERT_EQ(CopiazaInStare(DateDinStare(s), s), std::nullopt);
    EXPECT_TRUE(s == asteptat);
    EXPECT_EQ(DateDinStare(StareCerere()).txtNrCamere, QString());

    DateLocuinta d;
    d.chkLocuinta = {false, true, false, false, true, false, false};
    d.txtNrCamere = QStringLiteral("2 camere");
    d.cboLocuinta = {0, 3, 1, 2, 0};
    d.chkPolita = {false, true};
    d.txtLocuinta = {QStringLiteral("Allianz"), QString()};
    d.dtpData = {QDate(2020, 1, 1), QDate()};
    ASSERT_EQ(CopiazaInStare(d, s), std::nullopt);
    asteptat.LocuinteSel = {LocuintaSel{3, false}, {0, true}, {}, {}, {2, true}, {}, {}, {1, false}};
    asteptat.NrCamere = 2;
    asteptat.TipDobandire = asteptat.TipIncalzire = 0;
    asteptat.RegimJuridLoc = 3;
    asteptat.GospodLoc = 1;
    asteptat.Polita = false;
    asteptat.SocietatePolita = QStringLiteral("Allianz");
    asteptat.NrPolita.clear();
    asteptat.DataStartPolita = QDate(2020, 1, 1);
    EXPECT_TRUE(s == asteptat);
    d.txtNrCamere = QStringLiteral("2");
    EXPECT_EQ(DateDinStare(s), d);

    d.txtNrCamere = QStringLiteral("256");
    const auto r = CopiazaInStare(d, s);
    ASSERT_TRUE(r.has_value());
    EXPECT_EQ(r->Control, QStringLiteral("txtNrCamere"));
    EXPECT_TRUE(s == asteptat);
}

} // namespace
