#include "base/Eroare.h"
#include "store/BazaDate.h"
#include "store/InserareInLot.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <atomic>
#include <thread>

namespace {

class Baza : public TestBaza {
protected:
    void AdaugaMembru(qint64 id) { ExecutaCu(Bd(), T("INSERT INTO Membrii (MembruID) VALUES (?)"), id); }
    qint64 CheieNoua() { return Bd().CheieNoua(T("Membrii"), T("MembruID")); }
};

// A new key is the highest plus one, asked for inside a transaction; a transaction left without
// Confirma, or with an inner one left so, leaves nothing.
TEST_P(Baza, CheiNoiSiTranzactii) {
    BazaNoua();
    EXPECT_THROW(CheieNoua(), Eroare);
    try {
        Tranzactie t(Bd());
        EXPECT_EQ(CheieNoua(), 1);
        AdaugaMembru(5000000000LL); // past the 16- and 32-bit keys of old
        EXPECT_EQ(CheieNoua(), 5000000001LL);
        // two computers that took the same key: the second insert is refused, not stored twice
        AdaugaMembru(5000000000LL);
        ADD_FAILURE() << "the same key stored twice";
    } catch (const Eroare&) {
    }
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Membrii")), 0);
    Tranzactie exterioara(Bd());
    AdaugaMembru(1);
    {
        Tranzactie interioara(Bd());
        AdaugaMembru(2);
        // left without Confirma, as after an early return
    }
    EXPECT_THROW(exterioara.Confirma(), Eroare);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Membrii")), 0);
}

// Two computers saving requests at the same time, each on its own connection: the saves queue
// for the new keys instead of failing on them.
TEST_P(Baza, SalvarileSimultaneAsteaptaCheiaInLocSaEsueze) {
    BazaNoua();
    constexpr int PeConexiune = 300;
    std::atomic<int> erori{0};
    const auto salveaza = [&] {
        try {
            auto db = BazaDate::Deschide(Locatie());
            for (int i = 0; i < PeConexiune; ++i) {
                Tranzactie t(*db);
                const qint64 familie = db->CheieNoua(T("Familii"), T("FamilieID"));
                ExecutaCu(*db, T("INSERT INTO Familii (FamilieID) VALUES (?)"), familie);
                const qint64 cerere = db->CheieNoua(T("Cereri"), T("CerereID"));
                ExecutaCu(*db, T("INSERT INTO Cereri (CerereID, FamilieID) VALUES (?, ?)"), cerere, familie);
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
    EXPECT_EQ(Numar(T("SELECT COUNT(DISTINCT FamilieID) FROM Cereri")), 2 * PeConexiune);
}

TEST_P(Baza, StergereaCereriiStergeRandurileDependenteDarNuPersoanele) {
    BazaDate& db = BazaNoua();
    {
        Tranzactie t(db);
        // Written in the order of a save: the request before its persons.
        db.Executa(T("INSERT INTO Familii (FamilieID) VALUES (1), (2)"));
        db.Executa(T("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (1, 1, 10), (2, 2, 20)"));
        db.Executa(T("INSERT INTO Membrii (MembruID) VALUES (10), (11), (20)"));
        for (const char* sql : {"CereriMembrii (CerereID, MembruID) SELECT CerereID, 11",
                                "Venituri (CerereID, CodVenit, Valoare) SELECT CerereID, 1, 100",
                                "Locuinte (CerereID, Cod, NrCamere) SELECT CerereID, 1, 2",
                                "BifeText (CerereID, NrBifa, Valoare) SELECT CerereID, 11, 1",
                                "IstoricCereri (CerereID, Tranzactie) SELECT CerereID, 1",
                                "CMIesiti (CerereID, MembruID) SELECT CerereID, 11",
                                "Adeverinte (AdevID, CerereID, MembruID) SELECT CerereID, CerereID, 11",
                                "Dispozitii (DispozitieID, CerereID) SELECT CerereID, CerereID",
                                "Anchete (AnchetaID, CerereID) SELECT CerereID, CerereID"})
            db.Executa(T("INSERT INTO %1 FROM Cereri").arg(QLatin1String(sql)));
        t.Confirma();
    }
    auto ramase = [&](int cerere) {
        qint64 n = 0;
        for (const char* t : {"Cereri", "CereriMembrii", "Venituri", "Locuinte", "BifeText", "IstoricCereri",
                              "CMIesiti", "Adeverinte"}) {
            Interogare q(db, T("SELECT COUNT(*) FROM %1 WHERE CerereID = ?").arg(QLatin1String(t)));
            q.Leaga(cerere).Exista();
            n += q.Intreg(0);
        }
        return n;
    };
    ASSERT_EQ(ramase(1), 8);
    // A request goes with its family...
    db.Executa(T("DELETE FROM Familii WHERE FamilieID = 1"));
    EXPECT_EQ(ramase(1), 0);
    EXPECT_EQ(ramase(2), 8);
    // ...and with its titular; dispositions and inquiries stay.
    db.Executa(T("DELETE FROM Membrii WHERE MembruID = 20"));
    EXPECT_EQ(ramase(2), 0);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Dispozitii D JOIN Anchete A ON A.CerereID = D.CerereID")), 2);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Membrii")), 2) << "a person is never deleted by a request";

    // A request whose titular doesn't exist is refused with all its transaction.
    Tranzactie t(db);
    db.Executa(T("INSERT INTO Familii (FamilieID) VALUES (3)"));
    db.Executa(T("INSERT INTO Cereri (CerereID, FamilieID, MembruID1) VALUES (3, 3, 99)"));
    EXPECT_THROW(t.Confirma(), Eroare);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Familii")), 1);
}

TEST_P(Baza, VerificaBDSpuneCandBazaNuMaiEste) {
    BazaNoua();
    EXPECT_TRUE(VerificaBD(Bd(), mesaje));
    EXPECT_TRUE(mesaje.mesaje.empty());
    if (GetParam() != Motor::SQLite) return;
    const QString fisier = Locatie().FisierSQLite();
    ASSERT_TRUE(QFile::rename(fisier, fisier + T(".mutat")));
    EXPECT_FALSE(VerificaBD(Bd(), mesaje));
    ASSERT_TRUE(QFile::rename(fisier + T(".mutat"), fisier));
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
}

// Rows written in bulk read back as rows bound one by one do: no value and a null text as none, the
// characters that a copy stream escapes, amounts, dates. A refused row fails
// the write, and the writer goes on with the next rows.
TEST_P(Baza, InserareaInLotScrieCaInterogarea) {
    BazaNoua();
    const QString text = T("tab\tlinie\nretur\r\\N 'Ștefan' \\");
    const QVariantList randuri[] = {{text, 2000000000, QVariant::fromValue(B("210.20")), QVariant(), QDate(2024, 2, 29)},
                                    {QString(), 0, QVariant::fromValue(B("0.01")), QVariant::fromValue(B("-3.5")), QDate()},
                                    {T(""), -1, QVariant(), QVariant::fromValue(B("1000")), QDate(1900, 1, 1)}};
    const QStringList campuri{T("Tip"), T("Descriere"), T("NrPers"), T("Barem"), T("Suma"), T("DataInceput")};
    {
        Tranzactie t(Bd());
        InserareInLot lot(Bd(), T("Barem"), campuri);
        Interogare unul(Bd(), T("INSERT INTO Barem (Tip, Descriere, NrPers, Barem, Suma, DataInceput) "
                                "VALUES (?, ?, ?, ?, ?, ?)"));
        for (int i = 0; i < 3; ++i) {
            lot.Leaga(100 + i);
            unul.Leaga(200 + i);
            for (const QVariant& v : randuri[i]) {
                lot.Leaga(v);
                unul.Leaga(v);
            }
            lot.Executa();
            unul.Executa();
        }
        lot.Scrie();
        t.Confirma();
    }
    const auto citit = [&](int tip) {
        Interogare q(Bd(), T("SELECT Descriere, NrPers, Barem, Suma, DataInceput FROM Barem WHERE Tip = ?"));
        q.Leaga(tip);
        EXPECT_TRUE(q.Exista()) << tip;
        return QStringList{q.Valoare(0).isNull() ? T("<nul>") : q.Valoare(0).toString(),
                           QString::number(q.Intreg(1)),
                           q.Suma(T("Barem")).Text(),
                           q.Valoare(3).isNull() ? T("<nul>") : q.Suma(T("Suma")).Text(),
                           q.Data(T("DataInceput")).toString(Qt::ISODate)};
    };
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(citit(100 + i), citit(200 + i)) << i;
    EXPECT_EQ(citit(100).first(), text);
    EXPECT_EQ(citit(101).first(), T("<nul>"));

    InserareInLot membri(Bd(), T("Membrii"), {T("MembruID"), T("Nume")});
    try {
        Tranzactie t(Bd());
        membri.Leaga(1).Leaga(T("a")).Executa().Leaga(1).Leaga(T("b")).Executa().Scrie();
        ADD_FAILURE() << "the same key written twice";
    } catch (const Eroare&) {
    }
    Tranzactie t(Bd());
    membri.Leaga(2).Leaga(T("c")).Executa().Scrie();
    t.Confirma();
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Membrii")), 1);
}

PE_AMBELE_MOTOARE(Baza);

// A missing or foreign file, a missing folder, a server nobody answers: each an Eroare naming the place.
TEST(BazaDeschisa, FisierStricatLipsaSauServerDeNeatinsDauMesajClar) {
    QTemporaryDir dir;
    const auto eroare = [&](const char* url, const char* folder = "") {
        try {
            BazaDate::Deschide(LocatieBD{dir.filePath(QString::fromLatin1(folder)), QString::fromLatin1(url)});
        } catch (const Eroare& e) {
            return e.text().toStdString();
        }
        return std::string("<deschisa>");
    };
    EXPECT_NE(eroare("").find("Ferolanta.db"), std::string::npos) << eroare("");
    EXPECT_NE(eroare("", "nu/exista").find("nu/exista"), std::string::npos) << eroare("", "nu/exista");
    // Nothing listens on port 1 of the loopback address.
    EXPECT_NE(eroare("postgresql://ferolanta@127.0.0.1:1/ferolanta").find("127.0.0.1:1"), std::string::npos);
    EXPECT_NE(eroare("mysql://x/y"), "<deschisa>");
    QFile f(LocatieBD{dir.path(), {}}.FisierSQLite());
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(4096, 'x'));
    f.close();
    EXPECT_NE(eroare("").find("nu este o baza de date valida"), std::string::npos) << eroare("");
}

} // namespace
