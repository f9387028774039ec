#include "support/BazaTest.h"
#include "support/DosarTest.h"
#include "support/SqlTest.h"

#include <gtest/gtest.h>

namespace {

TEST(DataStareDupaCerere, PrimaZiALuniiUrmatoare) {
    const std::pair<QDate, QDate> cazuri[] = {{{2015, 1, 31}, {2015, 2, 1}},  {{2012, 2, 29}, {2012, 3, 1}},
                                              {{2014, 12, 31}, {2015, 1, 1}}, {{2013, 2, 28}, {2013, 3, 1}},
                                              {{2012, 2, 28}, {2012, 3, 1}},  {{2000, 2, 29}, {2000, 3, 1}},
                                              {{2100, 2, 28}, {2100, 3, 1}},  {{2015, 4, 30}, {2015, 5, 1}},
                                              {{2015, 4, 1}, {2015, 5, 1}},   {{}, {}}};
    for (const auto& [cerere, stare] : cazuri)
        EXPECT_EQ(DataStareDupaCerere(cerere), stare) << cerere.toString(Qt::ISODate).toStdString();
}

class Incarcare : public TestBaza {};

// At opening the database's count of children, with a warning when the stored one differs.
TEST_P(Incarcare, NumarulDeCopiiSchimbatEsteSemnalat) {
    BazaNoua();
    Dosar d = DosarComplet(Bd());
    MembruCerere titular = (*d.stare.MatriceMembri)[0];
    titular.Adeverinte.clear();
    auto copil = [&](const char* cnp, QDate data18, int repetent) {
        MembruCerere c = (*d.stare.MatriceMembri)[2];
        c.CNP = QString::fromLatin1(cnp);
        c.Data18Ani = data18;
        c.Repetent = repetent;
        c.Adeverinte.clear();
        return c;
    };
    d.stare.MatriceMembri = std::vector<MembruCerere>{
        titular,
        copil("5060210400011", QDate(2024, 2, 10), 0),  // turns 18 in February 2024
        copil("5121215400022", QDate(2030, 12, 15), 0), // turns 18 in December 2030
        copil("5090303400033", QDate(2027, 3, 3), 1),   // repeats a year: never counted
        copil("5100404400044", QDate(), 0),             // no date: never counted
    };
    d.date.txtCerere[16] = QStringLiteral("2");
    ASSERT_EQ(SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, OptiuniDosar(), mesaje).stare,
              RezultatSalvare::Stare::Salvata);
    // February is one month back from March: out; the same month, or three back, still counts.
    const std::tuple<int, int, const char*> cazuri[] = {{3, 2024, "1"}, {2, 2024, "2"}, {5, 2024, "2"}, {1, 2031, "1"}};
    for (const auto& [luna, an, caseta] : cazuri) {
        mesaje.mesaje.clear();
        EXPECT_EQ(IncarcaCerere(Bd(), 1, luna, an, mesaje).Date.txtCerere[16], QLatin1String(caseta)) << luna << an;
        EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Avertisment).size(), *caseta == '1' ? 1 : 0);
    }
    EXPECT_EQ(Numar(QStringLiteral("SELECT NrCopii FROM Cereri")), 2) << "the database is unchanged";
}

// A request written straight to the tables opens with every value where the editor shows it.
TEST_P(Incarcare, ValorileDinTabeleAjungLaLocullor) {
    BazaNoua();
    EXPECT_FALSE(IncarcaCerere(Bd(), 7, 12, 2014, mesaje).Mesaj.isEmpty());
    {
        Tranzactie t(Bd());
        ExecutaCu(Bd(),
                  QStringLiteral("INSERT INTO Familii (FamilieID, Localitate, Strada, Telefon) VALUES (?, ?, ?, ?)"), 7,
                  QStringLiteral("Branesti"), QStringLiteral("Str. Morii"), QStringLiteral("021"));
        const QString membru = QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)");
        ExecutaCu(Bd(), membru, 9, QStringLiteral("Pop"), QStringLiteral("Ion"), QStringLiteral("1850305400011"));
        ExecutaCu(Bd(), membru, 2, QStringLiteral("Pop"), QStringLiteral("Ana"), QStringLiteral("612345678901"));
        ExecutaCu(Bd(), membru, 5, QStringLiteral("Pop"), QStringLiteral("Dan"), QStringLiteral("5101340400022"));
        ExecutaCu(Bd(), membru, 3, QStringLiteral("Pop"), QStringLiteral("Eva"), QVariant());
        ExecutaCu(Bd(), membru, 12, QStringLiteral("Iesit"), QStringLiteral("Ion"), QStringLiteral("1700101400099"));
        ExecutaCu(Bd(),
                  QStringLiteral(
                      "INSERT INTO Cereri (CerereID, FamilieID, NrCerere, Stare, TipCerere, ModPlata, "
                      "ReprLegal, VenitTotal, VenitPeMembru, Cuantum, NrMembrii, NrCopii, Gospodarire, "
                      "A1Solicita, Vmg, Inc, MembruID1) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                  7, 7, 55, 9, 0, 2, 27, B("1200.5"), B("300.125"), 164, 4, 3, 1, QStringLiteral("101"), -1, 0, 9);
        const QString cm = QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, Studii, "
                                          "OcupatieID) VALUES (?, ?, ?, ?, ?)");
        ExecutaCu(Bd(), cm, 7, 5, 3, 3, 8);
        ExecutaCu(Bd(), cm, 7, 9, 1, 2, 1);
        ExecutaCu(Bd(), cm, 7, 2, 3, 4, 8);
        ExecutaCu(Bd(), cm, 7, 3, 6, 1, 0);
        for (const auto& [nr, v] : std::vector<std::pair<int, const char*>>{{8, "5"}, {9, "1.5"}, {83, "3"}, {84, "7"}})
            ExecutaCu(Bd(), QStringLiteral("INSERT INTO BifeText (CerereID, NrBifa, Valoare) VALUES (?, ?, ?)"), 7, nr,
                      B(v));
        for (const auto& [cod, v] : std::vector<std::pair<int, const char*>>{{1, "10"}, {79, "20.5"}, {80, "99"}})
            ExecutaCu(Bd(), QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, ?, ?)"), 7,
                      cod, B(v));
        for (const auto& [cod, camere] : std::vector<std::pair<int, int>>{{1, 2}, {8, 0}, {9, 1}})
            ExecutaCu(Bd(), QStringLiteral("INSERT INTO Locuinte (CerereID, Cod, NrCamere) VALUES (?, ?, ?)"), 7, cod,
                      camere);
        ExecutaCu(Bd(),
                  QStringLiteral("INSERT INTO CMIesiti (CerereID, MembruID, RudenieID, MotivID, Suma, TipValuta) "
                                 "VALUES (?, ?, ?, ?, ?, ?)"),
                  7, 12, 6, 2, B("75.5"), 1);
        t.Confirma();
    }
    const CerereIncarcata c = IncarcaCerere(Bd(), 7, 12, 2014, mesaje);
    ASSERT_TRUE(c.Gasita);
    const DateCerere& d = c.Date;
    EXPECT_EQ(d.Adaug, 2);
    // A null number shows empty; the amounts as stored; the count of the table, not the box.
    EXPECT_EQ((QStringList{d.txtCerere[0], d.txtCerere[1], d.txtCerere[7], d.txtCerere[12], d.txtCerere[13],
                           d.txtCerere[14], d.txtCerere[15], d.txtCerere[16]}),
              (QStringList{"", "55", "021", "1200.5", "300.125", "164", "4", "0"}));
    // The free street by its text; a list value without its row, and kind 0, choose nothing.
    EXPECT_EQ((std::vector(d.cboCerere.begin(), d.cboCerere.begin() + 5)),
              (std::vector<AlegereCombo>{{0, "Str. Morii"}, {}, {2, ContinutDateGen(Bd(), 12, 2)}, {}, {}}));
    EXPECT_EQ((std::array{d.chkVmg, d.chkIncalzire, d.chkVmg_s, d.chkIncalzire_s, d.chkSupl_s}),
              (std::array{true, false, true, false, true}))
        << "a stored -1 is true";

    // Goods entry i from NrBifa i + 9, incomes entry i from CodVenit i + 1, housing i from Cod
    // i + 1; rows outside the arrays are left out. A null GospodLoc with Gospodarire set is 2.
    const StareCerere& s = c.Stare;
    EXPECT_EQ(s.GospodLoc, 2);
    StareCerere asteptat = s;
    asteptat.Bunuri = {};
    asteptat.Bunuri[0] = B("1.5");
    asteptat.Bunuri[74] = B("3");
    asteptat.Venituri = {};
    asteptat.Venituri[0] = B("10");
    asteptat.Venituri[78] = B("20.5");
    asteptat.LocuinteSel = {};
    asteptat.LocuinteSel[0] = {2, true};
    asteptat.LocuinteSel[7] = {0, true};
    EXPECT_TRUE(s == asteptat);

    // Titular first, then by kinship and key; a child's occupation is its school situation; the
    // CNPs tell their birth dates, or are wrong (12 digits, month 13, none).
    const auto& m = *s.MatriceMembri;
    ASSERT_EQ(m.size(), 4u);
    EXPECT_EQ((std::vector{m[0].MembruID, m[1].MembruID, m[2].MembruID, m[3].MembruID}),
              (std::vector<qint64>{9, 2, 5, 3}));
    EXPECT_EQ((QStringList{m[0].Ocupatie, m[2].Ocupatie}),
              (QStringList{ContinutDateGen(Bd(), 3, 1), ContinutDateGen(Bd(), 33, 3)}));
    EXPECT_EQ((QStringList{m[0].DataNast, m[1].DataNast, m[2].DataNast, m[3].DataNast}),
              (QStringList{"05 Martie 1985", "", "GRESIT", ""}));
    // The leaver, with the person's own data and the relationship's text.
    ASSERT_EQ(c.Iesiti.size(), 1u);
    EXPECT_EQ((QStringList{c.Iesiti[0].Nume, c.Iesiti[0].CNP, c.Iesiti[0].Rudenie, c.Iesiti[0].Suma.Text()}),
              (QStringList{"Iesit", "1700101400099", m[3].Rudenie, "75.5000"}));
}

PE_AMBELE_MOTOARE(Incarcare);

} // namespace
