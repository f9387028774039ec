#include "base/Eroare.h"
#include "store/ActualizareBD.h"
#include "store/DateLivrate.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"
#include "support/BazaTest.h"

#include <QDir>
#include <QFile>

namespace {

class Actualizare : public TestBaza {
protected:
    RezultatActualizare Ruleaza(QStringList* linii = nullptr) {
        return ActualizareBD(Bd(), Locatie().caleBD, mesaje, [linii](const QString& l) {
            if (linii) *linii << l;
        });
    }

    void CopiazaCataloage() { DateLivrate::CopiazaCataloage(FolderDate(), Locatie().caleBD); }

    // The oldest shape with a few rows as clerks left them.
    void UmpleBazaVeche() {
        BazaDate& db = BazaVeche();
        Tranzactie t(db);
        db.Executa(
            QStringLiteral("INSERT INTO Familii (FamilieID, Localitate) VALUES (1, 'Brănești'), (2, 'Brănești')"));
        db.Executa(QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES "
                                  "(1, 'Șerban', 'Ana', '2850315400123'), (2, 'ŞERBAN', NULL, '5150601400120'), "
                                  "(3, 'Ene', 'Ţicu', '1800101400121')"));
        db.Executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, MembruID1, Stare, "
                                  "VenitPermanent, VenitVanzari, VenitAlte) "
                                  "VALUES (1, 1, 10, 1, 2, 1200.5, 99, 300.25), (2, 2, 11, 3, 1, NULL, NULL, 80)"));
        db.Executa(QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, CodRudenie, CodOcupatie, VenitAlte) "
                                  "VALUES (1, 1, 1, 4, 10), (1, 2, 3, 8, 0), (2, 3, 1, 2, 0)"));
        db.Executa(
            QStringLiteral("INSERT INTO DatePrimarie (Denumire, Tribunal) VALUES ('Primaria Branesti', 'Ilfov')"));
        db.Executa(QStringLiteral(
            "INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES "
            "('RUDENIE', 2, 2, 'SOT/SOTIE', 2), ('RUDENIE', 2, 3, 'FIU/FIICA', 3), ('GOSPODARIE', 26, 2, 'CU ALTII', "
            "2), "
            "('GOSPODARIE', 26, 3, 'DE STERS', 3), ('ISR', 0, 1, '660', 0), ('TIPACT', 30, 1, 'Somaj', 1)"));
        t.Confirma();
    }

    // Each person's search keys, "name|first name", in key order.
    QStringList Chei() {
        Interogare q(Bd(), QStringLiteral("SELECT NumeCautare, PrenumeCautare FROM Membrii ORDER BY MembruID"));
        q.Executa();
        QStringList r;
        while (q.Urmator())
            r << q.Valoare(0).toString() + QLatin1Char('|') + q.Valoare(1).toString();
        return r;
    }

    QString Continut(int tip, int dataID) {
        Interogare q(Bd(), QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = ? AND DataID = ?"));
        q.Leaga(tip).Leaga(dataID);
        return q.Exista() ? q.Text(QStringLiteral("Continut")) : QStringLiteral("<lipsa>");
    }
};

TEST_P(Actualizare, BazaVecheAjungeLaFormaDeAzi) {
    UmpleBazaVeche();
    // Files shaped outside the listed steps lack fields that no step adds.
    OperatiiSchema(Bd()).StergeCamp(QStringLiteral("Cereri"), QStringLiteral("Lege416"));
    CopiazaCataloage();
    QStringList linii;
    const RezultatActualizare r = Ruleaza(&linii);
    EXPECT_TRUE(r.Reusit()) << r.erori.join(QLatin1Char('\n')).toStdString();
    EXPECT_EQ(r.schimbari, linii.size());

    OperatiiSchema ops(Bd());
    for (const auto& t : Schema::Tabele()) {
        QStringList asteptate;
        for (const auto& c : t.campuri)
            asteptate << c.nume.toLower();
        QStringList gasite = ops.Campuri(t.nume);
        for (auto& g : gasite)
            g = g.toLower();
        asteptate.sort();
        gasite.sort();
        EXPECT_EQ(gasite, asteptate) << t.nume.toStdString();
    }

    // VenitTotal was computed before the old income fields went.
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE CerereID = 1 AND VenitTotal = 1500.75")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE CerereID = 2 AND VenitTotal = 80")), 1);
    EXPECT_TRUE(mesaje.Texte().contains(QStringLiteral("2 cereri calculate")));
    // The renamed fields keep their values.
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE RudenieID = 3 AND OcupatieID = 8")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie WHERE Denumire = 'Primaria Branesti'")), 1);

    // Corrections of delivered rows, a parameter set by the clerk kept, the rest seeded.
    EXPECT_EQ(Continut(2, 2), QStringLiteral("PARTENER"));
    EXPECT_EQ(Continut(2, 3), QStringLiteral("COPIL NATURAL"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT Ordine FROM DateGen WHERE Tip = 2 AND DataID = 3")), 6);
    EXPECT_EQ(Continut(26, 2), QStringLiteral("IMPREUNA CU ALTA PERSOANA SINGURA SAU FAMILIE"));
    EXPECT_EQ(Continut(26, 3), QStringLiteral("<lipsa>"));
    EXPECT_EQ(Continut(30, 1), QStringLiteral("Somaj")) << "a seed never overwrites a row that is there";
    EXPECT_EQ(Continut(30, 9), QStringLiteral("Declaratie notar"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DateGen WHERE Denumire = 'ISR' AND Continut = '660'")), 1);
    EXPECT_EQ(Numar(QStringLiteral(
                  "SELECT COUNT(*) FROM DateGen WHERE Denumire = 'PRAGURI_VENIT' AND Continut = '210.2|557.03'")),
              1);

    // Three scales of 16 rows; the older two closed the day before the next one.
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Barem")), 48);
    Interogare stop(Bd(), QStringLiteral("SELECT DISTINCT DataInceput, DataStop FROM Barem ORDER BY DataInceput"));
    stop.Executa();
    std::vector<std::pair<QDate, QDate>> perioade;
    while (stop.Urmator())
        perioade.push_back({stop.Data(QStringLiteral("DataInceput")), stop.Data(QStringLiteral("DataStop"))});
    ASSERT_EQ(perioade.size(), 3u);
    EXPECT_EQ(perioade[0], std::make_pair(QDate(2012, 1, 1), QDate(2013, 6, 30)));
    EXPECT_EQ(perioade[1], std::make_pair(QDate(2013, 7, 1), QDate(2014, 10, 31)));
    EXPECT_EQ(perioade[2], std::make_pair(QDate(2014, 11, 1), QDate()));
    EXPECT_EQ(Numar(QStringLiteral(
                  "SELECT COUNT(*) FROM Barem WHERE Tip = 1 AND NrPers = 3 AND Suma = 1.06 AND Barem = 0.198")),
              1);

    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaVenituri")), 78);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife")), 85);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaActe")), 28);
}

TEST_P(Actualizare, ADouaRulareNuSchimbaNimic) {
    UmpleBazaVeche();
    CopiazaCataloage();
    ASSERT_TRUE(Ruleaza().Reusit());
    mesaje.mesaje.clear();
    QStringList linii;
    const RezultatActualizare r = Ruleaza(&linii);
    EXPECT_EQ(r.schimbari, 0);
    EXPECT_TRUE(linii.isEmpty()) << linii.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('\n')).toStdString();
    // and after reopening, as at the next start
    Redeschide();
    EXPECT_EQ(Ruleaza().schimbari, 0);
}

// The persons of an older file get their search keys, and so do those that an older program
// writes after the upgrade.
TEST_P(Actualizare, PersoaneleExistentePrimescCheiDeCautare) {
    UmpleBazaVeche();
    CopiazaCataloage();
    ASSERT_TRUE(Ruleaza().Reusit());
    EXPECT_EQ(Chei(),
              (QStringList{QStringLiteral("serban|ana"), QStringLiteral("serban|"), QStringLiteral("ene|ticu")}));

    Bd().Executa(
        QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume) VALUES (4, 'Ăvram', 'Ștefan'), (5, '', NULL)"));
    QStringList linii;
    ASSERT_TRUE(Ruleaza(&linii).Reusit());
    EXPECT_EQ(linii, QStringList{QStringLiteral("Membrii: chei de cautare scrise: 1")});
    EXPECT_EQ(Chei().mid(3), (QStringList{QStringLiteral("avram|stefan"), QStringLiteral("|")}));
}

TEST_P(Actualizare, CorectiileRevinLaFiecarePornire) {
    BazaNoua();
    Bd().Executa(QStringLiteral("UPDATE DateGen SET Continut = 'COPIL BIOLOGIC' WHERE Tip = 2 AND DataID = 3"));
    Bd().Executa(QStringLiteral("UPDATE DateGen SET Continut = '700' WHERE Denumire = 'ISR'"));
    QStringList linii;
    EXPECT_EQ(Ruleaza(&linii).schimbari, 1);
    EXPECT_EQ(Continut(2, 3), QStringLiteral("COPIL NATURAL"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DateGen WHERE Denumire = 'ISR' AND Continut = '700'")), 1);
}

TEST_P(Actualizare, TabelaBifeVecheDevineListaBife) {
    BazaDate& db = BazaVeche();
    db.Executa(QStringLiteral("CREATE TABLE Bife (NrBifa INTEGER PRIMARY KEY, Denumire VARCHAR(255))"));
    db.Executa(QStringLiteral("INSERT INTO Bife (NrBifa, Denumire) VALUES (1, 'Cladire')"));
    CopiazaCataloage();
    QStringList linii;
    ASSERT_TRUE(Ruleaza(&linii).Reusit());
    EXPECT_TRUE(linii.contains(QStringLiteral("Tabela redenumita: Bife in ListaBife")));
    OperatiiSchema ops(db);
    EXPECT_FALSE(ops.TabelaExista(QStringLiteral("Bife")));
    EXPECT_TRUE(ops.CampExista(QStringLiteral("ListaBife"), QStringLiteral("Cod")));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife")), 85) << "the old rows are reloaded from the file";
}

TEST_P(Actualizare, AdeverintelePrimescDocumentulCurentOSingurDataSiCeleCuDateZeroSeSterg) {
    BazaNoua();
    BazaDate& db = Bd();
    {
        Tranzactie t(db);
        db.Executa(QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)"));
        db.Executa(QStringLiteral("INSERT INTO Membrii (MembruID) VALUES (1), (2), (3), (4), (9)"));
        db.Executa(QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (1, 1, 1)"));
        Interogare ins(
            db, QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataAdeverinta, "
                               "DataExpAdev, DataDepunerii, AdvCurenta) VALUES (?, 1, ?, ?, ?, ?, ?, 0)"));
        struct R {
            int id, membru, tip;
            QDate emis, expira;
        } randuri[] = {
            {1, 1, 3, QDate(2024, 1, 1), QDate(2024, 6, 30)},
            {2, 1, 3, QDate(2024, 7, 1), QDate(2025, 6, 30)},
            {3, 1, 3, QDate(2023, 1, 1), QDate()},
            {4, 1, 5, QDate(2024, 1, 1), QDate(2024, 12, 31)},
            {5, 2, 3, QDate(2024, 1, 1), QDate(2024, 9, 30)},
            {6, 9, 3, QDate(2024, 1, 1), QDate(2024, 9, 30)},
            {7, 3, 3, QDate(), QDate()},
            {8, 4, 3, QDate(1899, 12, 30), QDate(1899, 12, 30)},
        };
        for (const auto& r : randuri)
            ins.Leaga(r.id).Leaga(r.membru).Leaga(r.tip).Leaga(r.emis).Leaga(r.expira).Leaga(r.emis).Executa();
        t.Confirma();
    }
    QStringList linii;
    ASSERT_TRUE(Ruleaza(&linii).Reusit());
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = 7")), 1) << "no date is no zero date";
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = 8")), 0) << "zero dates";
    Interogare curente(db, QStringLiteral("SELECT AdevID FROM Adeverinte WHERE AdvCurenta = 1 ORDER BY AdevID"));
    curente.Executa();
    QList<qint64> id;
    while (curente.Urmator())
        id << curente.Intreg(0);
    // The latest expiry per person and kind; person 9 lies beyond the number of rows walked.
    EXPECT_EQ(id, (QList<qint64>{2, 4, 5, 7}));

    // Once one is marked, the marking never runs again.
    db.Executa(QStringLiteral("UPDATE Adeverinte SET AdvCurenta = 0 WHERE AdevID = 4"));
    EXPECT_EQ(Ruleaza().schimbari, 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE AdvCurenta = 1")), 3);
}

TEST_P(Actualizare, BazaStrainaEsteRefuzata) {
    bd_ = BazaDate::Deschide(Locatie(), BazaDate::Mod::Noua);
    Bd().Executa(QStringLiteral("CREATE TABLE Facturi (Nr INTEGER)"));
    try {
        Ruleaza();
        FAIL() << "a database with none of our tables was upgraded";
    } catch (const Eroare& e) {
        EXPECT_TRUE(e.text().contains(QStringLiteral("nu este o baza de date Ferolanta"))) << e.text().toStdString();
    }
    const QStringList tabele = OperatiiSchema(Bd()).Tabele();
    ASSERT_EQ(tabele.size(), 1) << "nothing was added to the foreign database";
    EXPECT_EQ(tabele.first().toLower(), QStringLiteral("facturi"));
}

PE_AMBELE_MOTOARE(Actualizare);

} // namespace
