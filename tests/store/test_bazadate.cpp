#include "base/Eroare.h"
#include "store/BazaDate.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <QDir>
#include <QFile>
#include <atomic>
#include <thread>

namespace {

class Baza : public TestBaza {
protected:
    void AdaugaMembru(qint64 id) { ExecutaCu(Bd(), QStringLiteral("INSERT INTO Membrii (MembruID) VALUES (?)"), id); }
};

TEST_P(Baza, TranzactieNeconfirmataNuLasaNimic) {
    BazaNoua();
    try {
        Tranzactie t(Bd());
        AdaugaMembru(Bd().CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID")));
        throw Eroare(QStringLiteral("esec la jumatate"));
    } catch (const Eroare&) {
    }
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), 0);
}

TEST_P(Baza, OTranzactieInterioaraEsuataAnuleazaTotul) {
    BazaNoua();
    Tranzactie exterioara(Bd());
    AdaugaMembru(1);
    {
        Tranzactie interioara(Bd());
        AdaugaMembru(2);
        // left without Confirma, as after an early return
    }
    EXPECT_THROW(exterioara.Confirma(), Eroare);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), 0);
}

TEST_P(Baza, CheiaNouaEsteMaximulPlusUnuInTranzactie) {
    BazaNoua();
    EXPECT_THROW(Bd().CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID")), Eroare);
    Tranzactie t(Bd());
    EXPECT_EQ(Bd().CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID")), 1);
    AdaugaMembru(40000); // past the 16-bit keys of old
    EXPECT_EQ(Bd().CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID")), 40001);
    AdaugaMembru(5000000000LL);
    EXPECT_EQ(Bd().CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID")), 5000000001LL);
    // two computers that took the same key: the second insert is refused, not stored twice
    EXPECT_THROW(AdaugaMembru(40000), Eroare);
}

// Two computers saving requests at the same time, each on its own connection: the saves queue
// for the new keys instead of failing on them.
TEST_P(Baza, SalvarileSimultaneAsteaptaCheiaInLocSaEsueze) {
    BazaNoua();
    constexpr int PeConexiune = 500;
    std::atomic<int> erori{0};
    const auto salveaza = [&] {
        try {
            auto db = BazaDate::Deschide(Locatie());
            for (int i = 0; i < PeConexiune; ++i) {
                Tranzactie t(*db);
                const qint64 familie = db->CheieNoua(QStringLiteral("Familii"), QStringLiteral("FamilieID"));
                ExecutaCu(*db, QStringLiteral("INSERT INTO Familii (FamilieID, NrDosar) VALUES (?, ?)"), familie,
                          familie);
                const qint64 cerere = db->CheieNoua(QStringLiteral("Cereri"), QStringLiteral("CerereID"));
                ExecutaCu(*db, QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere) VALUES (?, ?, ?)"),
                          cerere, familie, cerere);
                t.Confirma();
            }
        } catch (const Eroare& e) {
            ADD_FAILURE() << e.text().toStdString();
            ++erori;
        }
    };
    std::thread a(salveaza), b(salveaza);
    a.join();
    b.join();
    EXPECT_EQ(erori, 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 2 * PeConexiune);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(DISTINCT FamilieID) FROM Cereri")), 2 * PeConexiune);
}

TEST_P(Baza, DataGoalaSeScrieCaNullSiSeCitesteInapoiNevalida) {
    BazaNoua();
    Interogare ins(Bd(), QStringLiteral("INSERT INTO Membrii (MembruID, DataElib) VALUES (?, ?)"));
    ins.Leaga(1).Leaga(QDate()).Executa();
    ins.Leaga(2).Leaga(QDate(2024, 2, 29)).Executa();
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE DataElib IS NULL")), 1);
    Interogare q(Bd(), QStringLiteral("SELECT DataElib FROM Membrii ORDER BY MembruID"));
    ASSERT_TRUE(q.Exista());
    EXPECT_FALSE(q.Data(QStringLiteral("DataElib")).isValid());
    ASSERT_TRUE(q.Urmator());
    EXPECT_EQ(q.Data(QStringLiteral("DataElib")), QDate(2024, 2, 29));
}

TEST_P(Baza, StergereaCereriiStergeRandurileDependente) {
    BazaNoua();
    BazaDate& db = Bd();
    {
        Tranzactie t(db);
        // Written in the order of a save: the request before its persons.
        for (int id : {1, 2}) {
            ExecutaCu(db, QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (?)"), id);
            ExecutaCu(db, QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (?, ?, ?)"), id,
                      id, id * 10);
        }
        for (int m : {10, 11, 20})
            AdaugaMembru(m);
        for (auto [c, m] : {std::pair{1, 10}, {1, 11}, {2, 20}, {2, 11}})
            ExecutaCu(db, QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID) VALUES (?, ?)"), c, m);
        for (int c : {1, 2}) {
            for (const char* sql : {"INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (?, 1, 100)",
                                    "INSERT INTO Locuinte (CerereID, Cod, NrCamere) VALUES (?, 1, 2)",
                                    "INSERT INTO BifeText (CerereID, NrBifa, Valoare) VALUES (?, 11, 1)",
                                    "INSERT INTO IstoricCereri (CerereID, Tranzactie) VALUES (?, 1)",
                                    "INSERT INTO CMIesiti (CerereID, MembruID) VALUES (?, 11)",
                                    "INSERT INTO Dispozitii (DispozitieID, CerereID) VALUES (?, ?)",
                                    "INSERT INTO Anchete (AnchetaID, CerereID) VALUES (?, ?)"}) {
                Interogare q(db, QString::fromLatin1(sql));
                q.Leaga(c);
                if (QString::fromLatin1(sql).contains(QLatin1String("?, ?"))) q.Leaga(c);
                q.Executa();
            }
            ExecutaCu(db, QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID) VALUES (?, ?, 11)"), c,
                      c);
        }
        t.Confirma();
    }

    auto ramase = [&](int cerere) {
        qint64 n = 0;
        for (const char* t : {"Cereri", "CereriMembrii", "Venituri", "Locuinte", "BifeText", "IstoricCereri",
                              "CMIesiti", "Adeverinte"}) {
            Interogare q(db, QStringLiteral("SELECT COUNT(*) FROM %1 WHERE CerereID = ?").arg(QString::fromLatin1(t)));
            q.Leaga(cerere).Exista();
            n += q.Intreg(0);
        }
        return n;
    };
    ASSERT_EQ(ramase(1), 9);

    // A request goes with its family...
    Interogare(db, QStringLiteral("DELETE FROM Familii WHERE FamilieID = 1")).Executa();
    EXPECT_EQ(ramase(1), 0);
    EXPECT_EQ(ramase(2), 9);
    // ...and with its titular; dispositions and inquiries stay.
    Interogare(db, QStringLiteral("DELETE FROM Membrii WHERE MembruID = 20")).Executa();
    EXPECT_EQ(ramase(2), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")), 2);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")), 2);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), 2) << "a person is never deleted by a request";
}

TEST_P(Baza, OCerereCuTitularInexistentNuSeSalveaza) {
    BazaNoua();
    Tranzactie t(Bd());
    Interogare(Bd(), QStringLiteral("INSERT INTO Familii (FamilieID) VALUES (1)")).Executa();
    Interogare(Bd(), QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (1, 1, 99)")).Executa();
    EXPECT_THROW(t.Confirma(), Eroare);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii")), 0);
}

TEST_P(Baza, VerificaBDSpuneCandBazaNuMaiEste) {
    BazaNoua();
    EXPECT_TRUE(VerificaBD(Bd(), mesaje));
    EXPECT_TRUE(mesaje.mesaje.empty());
    if (GetParam() != Motor::SQLite) return;
    const QString fisier = Locatie().FisierSQLite();
    ASSERT_TRUE(QFile::rename(fisier, fisier + QStringLiteral(".mutat")));
    EXPECT_FALSE(VerificaBD(Bd(), mesaje));
    ASSERT_TRUE(QFile::rename(fisier + QStringLiteral(".mutat"), fisier));
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral(
                                  "Baza de date nu a fost gasita. Probabil nu functioneaza reteaua. Verificati!")});
}

PE_AMBELE_MOTOARE(Baza);

TEST(BazaDeschisa, FisierStricatSauLipsaDaMesajClar) {
    QTemporaryDir dir;
    const LocatieBD loc{dir.path(), {}};
    try {
        BazaDate::Deschide(loc);
        FAIL();
    } catch (const Eroare& e) {
        EXPECT_EQ(e.text(), QStringLiteral("Baza de date Ferolanta.db nu a fost gasita in locatia %1")
                                .arg(QDir::toNativeSeparators(dir.path())));
    }
    QFile f(loc.FisierSQLite());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(4096, 'x'));
    f.close();
    try {
        BazaDate::Deschide(loc);
        FAIL();
    } catch (const Eroare& e) {
        EXPECT_TRUE(e.text().contains(QStringLiteral("nu este o baza de date valida"))) << e.text().toStdString();
        EXPECT_TRUE(e.text().contains(QDir::toNativeSeparators(loc.FisierSQLite())));
    }
    try {
        BazaDate::Deschide(LocatieBD{dir.filePath(QStringLiteral("nu/exista")), {}});
        FAIL();
    } catch (const Eroare& e) {
        EXPECT_TRUE(e.text().contains(QStringLiteral("nu exista sau nu poate fi accesat"))) << e.text().toStdString();
    }
}

TEST(BazaDeschisa, ServerPostgreSQLDeNeatinsDaMesajClar) {
    // Nothing listens on port 1 of the loopback address.
    const LocatieBD loc{QDir::tempPath(), QStringLiteral("postgresql://ferolanta@127.0.0.1:1/ferolanta")};
    try {
        BazaDate::Deschide(loc);
        FAIL();
    } catch (const Eroare& e) {
        EXPECT_TRUE(e.text().startsWith(
            QStringLiteral("Nu se poate realiza conexiunea cu serverul PostgreSQL 127.0.0.1:1, baza ferolanta")))
            << e.text().toStdString();
    }
    EXPECT_THROW(BazaDate::Deschide(LocatieBD{QDir::tempPath(), QStringLiteral("mysql://x/y")}), Eroare);
}

} // namespace
