#include "cases/Adeverinte.h"
#include "cases/Dispozitii.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

namespace {

class Paneluri : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        AdaugaCerereTest(Bd(), {1, 0, 1, 2, 1, {}, {}, {{1, "Popescu", "Ion", "1800101400123", 1}}});
        AdaugaCerereTest(Bd(), {2, 0, 2, 3, 1, {}, {}, {{2, "Popa", "Ana", "2850315400128", 1}}});
    }
};

// The notice: a current certificate of a paying request expiring in the calendar month.
TEST_P(Paneluri, ActeCareExpiraDoarCurenteSiInPlataInLunaCalendaristica) {
    const QDate azi(2026, 11, 22);
    const std::tuple<qint64, QDate, int, bool> cazuri[] = {
        {1, QDate(2026, 11, 1), 1, true},   {1, QDate(2026, 11, 30), 1, true},  {1, QDate(2026, 12, 1), 1, false},
        {1, QDate(2026, 10, 31), 1, false}, {1, QDate(2026, 11, 15), 0, false}, {2, QDate(2026, 11, 15), 1, false},
        {1, QDate(2025, 11, 15), 1, false}};
    for (const auto& [cerere, expira, curenta, gasit] : cazuri) {
        Bd().Executa(QStringLiteral("DELETE FROM Adeverinte"));
        ExecutaCu(Bd(),
                  QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataExpAdev, "
                                 "AdvCurenta) VALUES (1, ?, ?, 3, ?, ?)"),
                  cerere, cerere, expira, curenta);
        CheiLista::ScrieAdeverinte(Bd(), QStringLiteral("AdevID = 1"));
        EXPECT_EQ(Adeverinte::ActeCareExpira(Bd(), azi), gasit) << expira.toString(Qt::ISODate).toStdString();
    }
}

// The dispositions of a request, newest first, with the action's text; a delete removes its row once.
TEST_P(Paneluri, DispozitiileCeleMaiNoiPrimeleCuTextulActiunii) {
    const QString ins = QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, Actiune, "
                                       "Cuantum) VALUES (?, ?, ?, ?, ?, 173)");
    ExecutaCu(Bd(), ins, 1, 1, 10, QDate(2024, 1, 5), 1);
    ExecutaCu(Bd(), ins, 2, 1, 25, QDate(2025, 3, 1), 2);
    ExecutaCu(Bd(), ins, 3, 2, 30, QDate(2025, 4, 1), 3);
    const auto r = Dispozitii::ListaDispozitii(Bd(), 1);
    ASSERT_EQ(r.size(), 2u);
    EXPECT_EQ((QStringList{r[0].NrDisp, r[0].TipDecizie, r[1].TipDecizie}),
              (QStringList{"25", "MODIFICARE", "ACORDARE"}));
    EXPECT_TRUE(Dispozitii::StergeDispozitie(Bd(), 2));
    EXPECT_FALSE(Dispozitii::StergeDispozitie(Bd(), 2)) << "already gone";
    EXPECT_EQ(Dispozitii::ListaDispozitii(Bd(), 1).size() + Dispozitii::ListaDispozitii(Bd(), 2).size(), 2u);
}

PE_AMBELE_MOTOARE(Paneluri);

} // namespace
