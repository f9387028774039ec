#include "base/Eroare.h"
#include "store/ActualizareBD.h"
#include "store/DateLivrate.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

namespace {

class Actualizare : public TestBaza {
protected:
    RezultatActualizare Ruleaza(QStringList* linii = nullptr) {
        return ActualizareBD(Bd(), Locatie().caleBD, mesaje, [linii](const QString& l) {
            if (linii) *linii << l;
        });
    }
    void CopiazaCataloage() { DateLivrate::CopiazaCataloage(FolderDate(), Locatie().caleBD); }

    // Each column of the query's rows joined by "|", the rows by ";".
    QString Randuri(const QString& sql) {
        Interogare q(Bd(), sql);
        q.Executa();
        QStringList r;
        while (q.Urmator()) {
            QStringList rand;
            for (int i = 0; i < q.query().record().count(); ++i)
                rand << q.Valoare(i).toString();
            r << rand.join(u'|');
        }
        return r.join(u';');
    }
};

// The oldest shape with a few rows as clerks left them, upgraded, then upgraded again.
TEST_P(Actualizare, BazaVecheAjungeLaFormaDeAzi) {
    BazaDate& db = BazaVeche();
    {
        Tranzactie t(db);
        db.Executa(T("INSERT INTO Familii (FamilieID) VALUES (1), (2)"));
        db.Executa(T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES "
                     "(1, 'Șerban', 'Ana', '2850315400123'), (2, 'ŞERBAN', NULL, '5150601400120'), "
                     "(3, 'Ene', 'Ţicu', '1800101400121')"));
        db.Executa(T("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, MembruID1, Stare, "
                     "VenitPermanent, VenitVanzari, VenitAlte) "
                     "VALUES (1, 1, 10, 1, 2, 1200.5, 99, 300.25), (2, 2, 11, 3, 1, NULL, NULL, 80)"));
        db.Executa(T("INSERT INTO CereriMembrii (CerereID, MembruID, CodRudenie, CodOcupatie) "
                     "VALUES (1, 1, 1, 4), (1, 2, 3, 8), (2, 3, 1, 2)"));
        db.Executa(
            T("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES ('RUDENIE', 2, 3, 'FIU/FIICA', 3), "
              "('GOSPODARIE', 26, 3, 'DE STERS', 3), ('ISR', 0, 1, '660', 0), ('TIPACT', 30, 1, 'Somaj', 1)"));
        db.Executa(T("CREATE TABLE Bife (NrBifa INTEGER PRIMARY KEY, Denumire VARCHAR(255))"));
        db.Executa(T("INSERT INTO Bife (NrBifa, Denumire) VALUES (1, 'Cladire')"));
        t.Confirma();
    }
    // Files shaped outside the listed steps lack fields that no step adds.
    OperatiiSchema(db).StergeCamp(T("Cereri"), T("Lege416"));
    for (const IndexSchema& ix : Schema::IndexuriInlocuite())
        OperatiiSchema(db).CreazaIndex(ix);
    CopiazaCataloage();
    QStringList linii;
    const RezultatActualizare r = Ruleaza(&linii);
    ASSERT_TRUE(r.Reusit()) << r.erori.join(u'\n').toStdString();
    EXPECT_EQ(r.schimbari, linii.size());
    EXPECT_TRUE(linii.contains(T("Tabela redenumita: Bife in ListaBife")));

    OperatiiSchema ops(db);
    for (const IndexSchema& ix : Schema::IndexuriInlocuite())
        EXPECT_FALSE(ops.IndexExista(ix)) << ix.Nume().toStdString();
    for (const IndexSchema& ix : Schema::Indexuri())
        if (ops.TabelaExista(ix.tabela)) {
            EXPECT_TRUE(ops.IndexExista(ix)) << ix.Nume().toStdString();
        }
    for (const auto& t : Schema::Tabele()) {
        QStringList asteptate, gasite;
        for (const auto& c : t.campuri)
            asteptate << c.nume.toLower();
        for (const auto& g : ops.Campuri(t.nume))
            gasite << g.toLower();
        asteptate.sort();
        gasite.sort();
        EXPECT_EQ(gasite, asteptate) << t.nume.toStdString();
    }
    // VenitTotal was computed before the old income fields went; the renamed fields keep their values.
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri WHERE CerereID = 1 AND VenitTotal = 1500.75")), 1);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri WHERE CerereID = 2 AND VenitTotal = 80")), 1);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM CereriMembrii WHERE RudenieID = 3 AND OcupatieID = 8")), 1);
    // Corrections of delivered rows (2/3 renamed, 26/3 gone), a row set by the clerk kept (a seed never
    // overwrites one), the rest seeded.
    EXPECT_EQ(Randuri(T("SELECT Denumire, DataID, Continut FROM DateGen WHERE (Tip IN (2, 26) AND DataID = 3) "
                        "OR (Tip = 30 AND DataID IN (1, 9)) OR Denumire IN ('ISR', 'PRAGURI_VENIT') "
                        "ORDER BY Tip, DataID")),
              T("ISR|1|660;PRAGURI_VENIT|2|210.2|557.03;RUDENIE|3|COPIL NATURAL;TIPACT|1|Somaj;"
                "TIPACT|9|Declaratie notar"));
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Barem")), 48) << "three scales of 16 rows";
    EXPECT_FALSE(ops.TabelaExista(T("Bife")));
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM ListaBife")), 85) << "the old rows are reloaded from the file";
    EXPECT_EQ(Randuri(T("SELECT NumeCautare, PrenumeCautare FROM Membrii ORDER BY MembruID")),
              T("serban|ana;serban|;ene|ticu"));
    // The request list's keys come from the titular's, once they exist.
    EXPECT_EQ(Randuri(T("SELECT TitularNume, TitularPrenume, TitularCNP FROM Cereri ORDER BY CerereID")),
              T("serban|ana|2850315400123;ene|ticu|1800101400121"));

    // Again, after reopening as at the next start: nothing to do, nothing said.
    Redeschide();
    mesaje.mesaje.clear();
    linii.clear();
    EXPECT_EQ(Ruleaza(&linii).schimbari, 0);
    EXPECT_TRUE(linii.isEmpty()) << linii.join(u'\n').toStdString();
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(u'\n').toStdString();

    // Persons that an older program writes after the upgrade get their keys at the next start.
    Bd().Executa(T("INSERT INTO Membrii (MembruID, Nume, Prenume) VALUES (4, 'Ăvram', 'Ștefan'), (5, '', NULL)"));
    ASSERT_TRUE(Ruleaza().Reusit());
    EXPECT_EQ(Randuri(T("SELECT NumeCautare, PrenumeCautare FROM Membrii WHERE MembruID > 3 ORDER BY MembruID")),
              T("avram|stefan;|"));
}

TEST_P(Actualizare, AdeverinteleCurenteOSingurDataCorectiileLaFiecarePornire) {
    BazaDate& db = BazaNoua();
    {
        Tranzactie t(db);
        db.Executa(T("INSERT INTO Familii (FamilieID) VALUES (1)"));
        db.Executa(T("INSERT INTO Membrii (MembruID) VALUES (1), (2), (3), (4), (9)"));
        db.Executa(T("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (1, 1, 1)"));
        Interogare ins(db, T("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataAdeverinta, "
                             "DataExpAdev, DataDepunerii, AdvCurenta) VALUES (?, 1, ?, ?, ?, ?, ?, 0)"));
        // clang-format off
        const struct {
            int id, membru, tip;
            QDate emis, expira;
        } randuri[] = {
            {1, 1, 3, QDate(2024, 1, 1), QDate(2024, 6, 30)}, {2, 1, 3, QDate(2024, 7, 1), QDate(2025, 6, 30)},
            {3, 1, 3, QDate(2023, 1, 1), QDate()}, {4, 1, 5, QDate(2024, 1, 1), QDate(2024, 12, 31)},
            {5, 2, 3, QDate(2024, 1, 1), QDate(2024, 9, 30)}, {6, 9, 3, QDate(2024, 1, 1), QDate(2024, 9, 30)},
            {7, 3, 3, QDate(), QDate()}, {8, 4, 3, QDate(1899, 12, 30), QDate(1899, 12, 30)}};
        // clang-format on
        for (const auto& r : randuri)
            ins.Leaga(r.id).Leaga(r.membru).Leaga(r.tip).Leaga(r.emis).Leaga(r.expira).Leaga(r.emis).Executa();
        t.Confirma();
    }
    ASSERT_TRUE(Ruleaza().Reusit());
    // No date is no zero date (7 stays, 8 goes). The latest expiry per person and kind; person 9
    // lies beyond the number of rows walked.
    EXPECT_EQ(Randuri(T("SELECT AdevID FROM Adeverinte WHERE AdvCurenta = 1 OR AdevID >= 7 "
                        "ORDER BY AdevID")),
              T("2;4;5;7"));
    // Once one is marked, the marking never runs again; corrections of delivered rows come back at every
    // start, a parameter the clerk set stays.
    db.Executa(T("UPDATE Adeverinte SET AdvCurenta = 0 WHERE AdevID = 4"));
    db.Executa(T("UPDATE DateGen SET Continut = 'COPIL BIOLOGIC' WHERE Tip = 2 AND DataID = 3"));
    db.Executa(T("UPDATE DateGen SET Continut = '700' WHERE Denumire = 'ISR'"));
    EXPECT_EQ(Ruleaza().schimbari, 1);
    EXPECT_EQ(
        Randuri(T("SELECT Continut FROM DateGen WHERE (Tip = 2 AND DataID = 3) OR Denumire = 'ISR' ORDER BY Tip")),
        T("700;COPIL NATURAL"));
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte WHERE AdvCurenta = 1")), 3);
}

TEST_P(Actualizare, BazaStrainaEsteRefuzata) {
    bd_ = BazaDate::Deschide(Locatie(), BazaDate::Mod::Noua);
    Bd().Executa(T("CREATE TABLE Facturi (Nr INTEGER)"));
    EXPECT_THROW(Ruleaza(), Eroare);
    EXPECT_EQ(OperatiiSchema(Bd()).Tabele().size(), 1) << "nothing was added to the foreign database";
}

PE_AMBELE_MOTOARE(Actualizare);

} // namespace
