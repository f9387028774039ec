#include "cases/DateCerere.h"
#include "cases/SalvareCerere.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"

#include <gtest/gtest.h>

namespace {

TEST(DataStareDupaCerere, PrimaZiALuniiUrmatoare) {
    const struct {
        QDate cerere, stare;
    } cazuri[] = {
        {{2015, 1, 31}, {2015, 2, 1}}, {{2012, 2, 29}, {2012, 3, 1}}, {{2014, 12, 31}, {2015, 1, 1}},
        {{2013, 2, 28}, {2013, 3, 1}}, {{2012, 2, 28}, {2012, 3, 1}}, {{2000, 2, 29}, {2000, 3, 1}},
        {{2100, 2, 28}, {2100, 3, 1}}, {{2015, 4, 30}, {2015, 5, 1}}, {{2015, 4, 1}, {2015, 5, 1}},
        {{2015, 7, 31}, {2015, 8, 1}}, {{2015, 8, 31}, {2015, 9, 1}}, {{2015, 11, 15}, {2015, 12, 1}},
        {{2015, 12, 1}, {2016, 1, 1}},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(DataStareDupaCerere(c.cerere), c.stare) << c.cerere.toString(Qt::ISODate).toStdString();
    EXPECT_FALSE(DataStareDupaCerere(QDate()).isValid());
}

class Incarcare : public TestBaza {
protected:
    void Executa(const QString& sql, const QVariantList& valori) {
        Interogare q(Bd(), sql);
        for (const QVariant& v : valori)
            q.Leaga(v);
        q.Executa();
    }
};

TEST_P(Incarcare, CerereNouaPrimesteValorileImplicite) {
    BazaNoua();
    const QDate azi(2015, 1, 31);
    DateCerere d = DefaultCerereNoua(Bd(), azi);
    EXPECT_EQ(d.Adaug, 1);
    EXPECT_EQ(d.txtCerere[6], QStringLiteral("Alba")) << "the first county by key";
    EXPECT_EQ(d.txtCerere[5], QString()) << "no town in the table yet";
    EXPECT_EQ(d.dtpData[0], azi);
    EXPECT_EQ(d.dtpData[1], QDate(2015, 2, 1));

    {
        Tranzactie t(Bd());
        Executa(QStringLiteral("INSERT INTO Localitati (LocalitateID, Denumire) VALUES (?, ?)"),
                {2, QStringLiteral("Buftea")});
        Executa(QStringLiteral("INSERT INTO Localitati (LocalitateID, Denumire) VALUES (?, ?)"),
                {1, QStringLiteral("Branesti")});
        Executa(QStringLiteral("DELETE FROM Judete"), {});
        t.Confirma();
    }
    d = DefaultCerereNoua(Bd(), azi);
    EXPECT_EQ(d.txtCerere[5], QStringLiteral("Branesti"));
    EXPECT_EQ(d.txtCerere[6], QString()) << "no county in the table";
    // Everything else as a new editor shows it.
    DateCerere gol;
    gol.txtCerere[5] = d.txtCerere[5];
    gol.dtpData = d.dtpData;
    EXPECT_EQ(d, gol);
}

TEST_P(Incarcare, CerereaLipsaSpuneCaRandulNuAFostGasit) {
    BazaNoua();
    const CerereIncarcata c = IncarcaCerere(Bd(), 42, 12, 2014, mesaje);
    EXPECT_FALSE(c.Gasita);
    EXPECT_EQ(c.Mesaj, QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
    EXPECT_EQ(mesaje.Texte(), QStringList());
}

// The children that the database counts: the stored number is compared with it at opening. A
// child who turned 18 in the month before the working month drops out and the clerk is warned;
// the database keeps its number until OK.
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

    const QString avertisment =
        QStringLiteral("Numarul de copii salvati in baza de date este diferit\nsi se va recalcula.");
    const struct {
        int luna, an;
        const char* caseta;
        bool avertizat;
    } cazuri[] = {
        {3, 2024, "1", true},  // February is one month back: out
        {2, 2024, "2", false}, // the same month still counts
        {5, 2024, "2", false}, // three months back counts again, by this rule
        {1, 2031, "1", true},  // the second child's month before
        {12, 2013, "2", false},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(testing::Message() << c.luna << "/" << c.an);
        mesaje.mesaje.clear();
        const CerereIncarcata r = IncarcaCerere(Bd(), 1, c.luna, c.an, mesaje);
        ASSERT_TRUE(r.Gasita);
        EXPECT_EQ(r.Date.txtCerere[16], QString::fromLatin1(c.caseta));
        EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Avertisment),
                  c.avertizat ? QStringList{avertisment} : QStringList());
        EXPECT_EQ(Numar(QStringLiteral("SELECT NrCopii FROM Cereri")), 2) << "the database is unchanged";
    }
    EXPECT_EQ(CopiiDupaBaza(*IncarcaCerere(Bd(), 1, 3, 2024, mesaje).Stare.MatriceMembri, 3, 2024), 1);
}

// A request written straight to the tables, as an older program or another tool leaves it,
// opens with every value where the editor shows it.
TEST_P(Incarcare, ValorileDinTabeleAjungLaLocullor) {
    BazaNoua();
    {
        Tranzactie t(Bd());
        Executa(QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar, Judet, Localitate, Strada, StradaR, Telefon) "
                               "VALUES (?, NULL, ?, ?, ?, NULL, ?)"),
                {7, QStringLiteral("Ilfov"), QStringLiteral("Branesti"), QStringLiteral("Str. Morii"),
                 QStringLiteral("021")});
        const QString membru = QStringLiteral(
            "INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, SerieBI, NrBI) VALUES (?, ?, ?, ?, ?, ?)");
        const auto T = [](const char* s) { return QVariant(QString::fromLatin1(s)); };
        const QVariant nul;
        Executa(membru, {9, T("Pop"), T("Ion"), T("1850305400011"), T("RX"), T("11")});
        Executa(membru, {2, T("Pop"), T("Ana"), T("612345678901"), nul, nul});
        Executa(membru, {5, T("Pop"), T("Dan"), T("5101340400022"), nul, nul});
        Executa(membru, {3, T("Pop"), T("Eva"), nul, nul, nul});
        Executa(membru, {12, T("Iesit"), T("Ion"), T("1700101400099"), T("RT"), T("22")});
        Executa(QStringLiteral(
                    "INSERT INTO Cereri (CerereID, FamilieID, NrCerere, Stare, TipCerere, ModPlata, ReprLegal, "
                    "VenitTotal, VenitPeMembru, Cuantum, NrMembrii, NrCopii, Gospodarire, GospodLoc, Bife, "
                    "A1Solicita, Vmg, Inc, MembruID1) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, NULL, NULL, ?, ?, "
                    "?, ?)"),
                {7, 7, 55, 9, 0, 2, 27, 1200.5, 300.125, 164, 4, 3, 1, QStringLiteral("101"), -1, 0, 9});
        const QString cm = QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, Studii, "
                                          "OcupatieID) VALUES (?, ?, ?, ?, ?)");
        Executa(cm, {7, 5, 3, 3, 8});
        Executa(cm, {7, 9, 1, 2, 1});
        Executa(cm, {7, 2, 3, 4, 8});
        Executa(cm, {7, 3, 6, 1, 0});
        for (const auto& [nr, v] : std::vector<std::pair<int, double>>{{8, 5}, {9, 1.5}, {50, 2}, {83, 3}, {84, 7}})
            Executa(QStringLiteral("INSERT INTO BifeText (CerereID, NrBifa, Valoare) VALUES (?, ?, ?)"), {7, nr, v});
        for (const auto& [cod, v] : std::vector<std::pair<int, double>>{{1, 10}, {79, 20.5}, {80, 99}})
            Executa(QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, ?, ?)"), {7, cod, v});
        for (const auto& [cod, camere] : std::vector<std::pair<int, int>>{{1, 2}, {8, 0}, {9, 1}})
            Executa(QStringLiteral("INSERT INTO Locuinte (CerereID, Cod, NrCamere) VALUES (?, ?, ?)"),
                    {7, cod, camere});
        Executa(QStringLiteral("INSERT INTO CMIesiti (CerereID, MembruID, RudenieID, MotivID, Suma, TipValuta) VALUES "
                               "(?, ?, ?, ?, ?, ?)"),
                {7, 12, 6, 2, 75.5, 1});
        Executa(QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                               "DataExpAdev) VALUES (?, ?, ?, ?, ?, ?), (?, ?, ?, ?, ?, ?)"),
                {40, 7, 12, 3, QStringLiteral("dus"), QDate(2015, 1, 1), 41, 7, 9, 6, QStringLiteral("A1"),
                 QDate(2015, 2, 1)});
        t.Confirma();
    }
    const CerereIncarcata c = IncarcaCerere(Bd(), 7, 12, 2014, mesaje);
    ASSERT_TRUE(c.Gasita);
    const DateCerere& d = c.Date;
    EXPECT_EQ(d.Adaug, 2);
    EXPECT_EQ(d.CerereID, 7);
    EXPECT_EQ(d.txtCerere[0], QString()) << "a null number shows empty";
    EXPECT_EQ(d.txtCerere[1], QStringLiteral("55"));
    EXPECT_EQ(d.txtCerere[7], QStringLiteral("021"));
    EXPECT_EQ(d.txtCerere[12], QStringLiteral("1200.5"));
    EXPECT_EQ(d.txtCerere[13], QStringLiteral("300.125"));
    EXPECT_EQ(d.txtCerere[14], QStringLiteral("164"));
    EXPECT_EQ(d.txtCerere[15], QStringLiteral("4"));
    EXPECT_EQ(d.cboCerere[0], (AlegereCombo{0, QStringLiteral("Str. Morii")}));
    EXPECT_EQ(d.cboCerere[6], AlegereCombo{});
    EXPECT_EQ(d.cboCerere[1], AlegereCombo{}) << "ReprLegal 27 has no row";
    EXPECT_EQ(d.cboCerere[2], (AlegereCombo{2, ContinutDateGen(Bd(), 12, 2)}));
    EXPECT_EQ(d.cboCerere[3], AlegereCombo{}) << "TipCerere 0";
    EXPECT_EQ(d.cboCerere[4], AlegereCombo{}) << "Stare 9 has no row";
    EXPECT_FALSE(d.dtpData[0].isValid());
    EXPECT_TRUE(d.chkVmg) << "a stored -1 is true";
    EXPECT_FALSE(d.chkIncalzire);
    EXPECT_TRUE(d.chkVmg_s);
    EXPECT_FALSE(d.chkIncalzire_s);
    EXPECT_TRUE(d.chkSupl_s);

    const StareCerere& s = c.Stare;
    EXPECT_EQ(s.GospodLoc, 2) << "a null GospodLoc with Gospodarire set";
    EXPECT_EQ(s.Bife, QString());
    StareCerere asteptat;
    asteptat.Bunuri[0] = B("1.5");
    asteptat.Bunuri[41] = B("2");
    asteptat.Bunuri[74] = B("3");
    asteptat.Venituri[0] = B("10");
    asteptat.Venituri[78] = B("20.5");
    asteptat.LocuinteSel[0] = {2, true};
    asteptat.LocuinteSel[7] = {0, true};
    EXPECT_EQ(s.Bunuri, asteptat.Bunuri);
    EXPECT_EQ(s.Venituri, asteptat.Venituri);
    EXPECT_EQ(s.LocuinteSel, asteptat.LocuinteSel);

    // Titular first, then by kinship and key; the CNPs tell their birth dates, or are wrong.
    ASSERT_TRUE(s.MatriceMembri.has_value());
    const auto& m = *s.MatriceMembri;
    ASSERT_EQ(m.size(), 4u);
    EXPECT_EQ(m[0].MembruID, 9);
    EXPECT_EQ(m[1].MembruID, 2);
    EXPECT_EQ(m[2].MembruID, 5);
    EXPECT_EQ(m[3].MembruID, 3);
    EXPECT_EQ(m[0].Rudenie, QStringLiteral("TITULARUL"));
    EXPECT_EQ(m[0].Ocupatie, ContinutDateGen(Bd(), 3, 1));
    EXPECT_EQ(m[0].DataNast, QStringLiteral("05 Martie 1985"));
    EXPECT_EQ(m[0].DataNastere, QDate(1985, 3, 5));
    EXPECT_EQ(m[1].DataNast, QString()) << "12 digits";
    EXPECT_FALSE(m[1].DataNastere.isValid());
    EXPECT_EQ(m[2].DataNast, QStringLiteral("GRESIT")) << "month 13";
    EXPECT_EQ(m[2].Ocupatie, ContinutDateGen(Bd(), 33, 3)) << "a child's occupation is its school situation";
    EXPECT_EQ(m[3].Rudenie, QStringLiteral("COPIL IN TUTELA"));
    EXPECT_EQ(m[3].DataNast, QString()) << "no CNP, no message";
    EXPECT_EQ(mesaje.Texte(),
              (QStringList{QStringLiteral("CNP gresit!"), QStringLiteral("CNP este gresit. Va rog sa corectati!"),
                           QStringLiteral("Numarul de copii salvati in baza de date este diferit\n"
                                          "si se va recalcula.")}));
    EXPECT_EQ(d.txtCerere[16], QStringLiteral("0")) << "no child has a Data18Ani";
    ASSERT_EQ(m[0].Adeverinte.size(), 1u);
    EXPECT_EQ(m[0].Adeverinte[0].AdevID, 41);

    // The leaver, with the person's own data and the relationship's text.
    ASSERT_EQ(c.Iesiti.size(), 1u);
    MembruIesit iesit;
    iesit.MembruID = 12;
    iesit.Nume = QStringLiteral("Iesit");
    iesit.Prenume = QStringLiteral("Ion");
    iesit.CNP = QStringLiteral("1700101400099");
    iesit.Rudenie = QStringLiteral("COPIL IN TUTELA");
    iesit.Suma = B("75.5");
    iesit.SerieBI = QStringLiteral("RT");
    iesit.NrBI = QStringLiteral("22");
    iesit.RudenieID = 6;
    iesit.MotivID = 2;
    iesit.TipValuta = 1;
    EXPECT_EQ(c.Iesiti[0], iesit);
}

PE_AMBELE_MOTOARE(Incarcare);

} // namespace
