#include "cases/Dispozitii.h"
#include "cases/Adeverinte.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/SqlTest.h"

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

    void Adeverinta(qint64 id, qint64 cerere, const QDate& expira, int curenta) {
        ExecutaCu(Bd(),
                  QStringLiteral(
                      "INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataExpAdev, AdvCurenta) "
                      "VALUES (?, ?, ?, 3, ?, ?)"),
                  id, cerere, cerere, expira, curenta);
    }

    void Dispozitie(qint64 id, qint64 cerere, const char* nr, const QDate& data, int actiune) {
        ExecutaCu(Bd(),
                  QStringLiteral(
                      "INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, Actiune, Cuantum, Luna, An) "
                      "VALUES (?, ?, ?, ?, ?, 173, ?, ?)"),
                  id, cerere, QString::fromLatin1(nr).toLongLong(), data, actiune, data.month(), data.year());
    }
};

TEST_P(Paneluri, ActeCareExpiraDoarCurenteSiInPlataInLunaCalendaristica) {
    const QDate azi(2026, 11, 22);
    struct Caz {
        qint64 cerere;
        QDate expira;
        int curenta;
        bool gasit;
    } const cazuri[] = {
        {1, QDate(2026, 11, 1), 1, true},   // first day of the month
        {1, QDate(2026, 11, 30), 1, true},  // last day
        {1, QDate(2026, 12, 1), 1, false},  // next month
        {1, QDate(2026, 10, 31), 1, false}, // month before
        {1, QDate(2026, 11, 15), 0, false}, // not the current certificate
        {2, QDate(2026, 11, 15), 1, false}, // suspended request
        {1, QDate(2025, 11, 15), 1, false}, // same month, another year
    };
    qint64 id = 1;
    for (const Caz& c : cazuri) {
        Bd().Executa(QStringLiteral("DELETE FROM Adeverinte"));
        Adeverinta(id++, c.cerere, c.expira, c.curenta);
        EXPECT_EQ(Adeverinte::ActeCareExpira(Bd(), azi), c.gasit) << c.expira.toString(Qt::ISODate).toStdString();
    }
    EXPECT_EQ(Adeverinte::TextNotificare(azi),
              QStringLiteral("Aveti acte care expira in luna Noiembrie !\nClick pentru a detalii."));
}

TEST_P(Paneluri, DispozitiileCeleMaiNoiPrimeleCuTextulActiunii) {
    Dispozitie(1, 1, "10", QDate(2024, 1, 5), 1);
    Dispozitie(2, 1, "25", QDate(2025, 3, 1), 2);
    Dispozitie(3, 2, "30", QDate(2025, 4, 1), 3);
    const auto r = Dispozitii::ListaDispozitii(Bd(), 1);
    ASSERT_EQ(r.size(), 2u);
    EXPECT_EQ(r[0].NrDisp, QStringLiteral("25"));
    EXPECT_EQ(r[0].TipDecizie, QStringLiteral("MODIFICARE"));
    EXPECT_EQ(r[0].Luna, QStringLiteral("3"));
    EXPECT_EQ(r[1].TipDecizie, QStringLiteral("ACORDARE"));
    EXPECT_EQ(r[1].Cuantum.Text(), QStringLiteral("173.0000"));
    EXPECT_EQ(Dispozitii::TitluDispozitii(QStringLiteral("Popescu Ion"), r.size()),
              QStringLiteral("Dispozitiile lui Popescu Ion."));
    EXPECT_EQ(Dispozitii::TitluDispozitii(QStringLiteral("Popescu Ion"), 0), QString());

    EXPECT_TRUE(Dispozitii::StergeDispozitie(Bd(), 2));
    EXPECT_FALSE(Dispozitii::StergeDispozitie(Bd(), 2)) << "already gone";
    EXPECT_EQ(Dispozitii::ListaDispozitii(Bd(), 1).size(), 1u);
    EXPECT_EQ(Dispozitii::ListaDispozitii(Bd(), 2).size(), 1u);
}

PE_AMBELE_MOTOARE(Paneluri);

} // namespace
