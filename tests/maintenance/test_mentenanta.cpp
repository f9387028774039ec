#include "maintenance/Mentenanta.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "cases/CalculCuantum.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

#include <QDir>
#include <QFile>
#include <QSqlRecord>

using Mentenanta::Unealta;
using F = Mesaje::Fel;

namespace {

const QVariant Nul;
const QDate ZiZero(1899, 12, 30);

class MentenantaUnelte : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Populeaza();
        mesaje.mesaje.clear();
        o.luna = 3;
        o.an = 2024;
        o.caleBD = Locatie().caleBD;
    }

    // Twelve requests, one for each edge of the tools:
    //   id stare tip copii venit  DataCerere  DataStare
    //    1   2    1   1    100   05.03.2024  -           granted this month, no status date
    //    2   2    1   2    300   20.03.2024  zero date   the old engine's empty date
    //    3   2    2   5    100   31.03.2024  10.03.2024  has one: only when overwriting
    //    4   2    2   3    600   01.04.2024  -           next month
    //  5,6   3    1   1    100   10.03.2024  -           the old code of rejected
    //    7   1    1   0    210.2  ...                    registered, no child
    //    8   7    1   1    210.2             01.11.2014  at the low threshold
    //    9   6    1   2    210.21                        just above it
    //   10   8    3   1    100                           a kind the scale lacks
    //   11   5    1   1    100               01.11.2014  rejected: left alone
    //   12   4    1   1    100                           ended: left alone
    // Request 1 holds the kinships 1, 3, 4, 4 (persons 1-4); the others a titular each (10 x id).
    void Populeaza() {
        struct R {
            qint64 id;
            int stare, tip, copii;
            const char* venit;
            QDate dataCerere;
            QVariant dataStare;
        };
        const QDate martie(2024, 3, 15);
        const R cereri[] = {
            {1, 2, 1, 1, "100", QDate(2024, 3, 5), Nul},
            {2, 2, 1, 2, "300", QDate(2024, 3, 20), ZiZero},
            {3, 2, 2, 5, "100", QDate(2024, 3, 31), QDate(2024, 3, 10)},
            {4, 2, 2, 3, "600", QDate(2024, 4, 1), Nul},
            {5, 3, 1, 1, "100", QDate(2024, 3, 10), Nul},
            {6, 3, 1, 1, "100", martie, Nul},
            {7, 1, 1, 0, "210.2", QDate(2024, 2, 29), Nul},
            {8, 7, 1, 1, "210.2", martie, Mentenanta::Data2014},
            {9, 6, 1, 2, "210.21", martie, Nul},
            {10, 8, 3, 1, "100", martie, Nul},
            {11, 5, 1, 1, "100", martie, Mentenanta::Data2014},
            {12, 4, 1, 1, "100", martie, Nul},
        };
        for (const R& r : cereri) {
            CerereTest c;
            c.cerereID = r.id;
            c.nrCerere = r.id;
            c.stare = r.stare;
            c.tipCerere = r.tip;
            if (r.id == 1)
                c.persoane = {{1, QStringLiteral("A"), QStringLiteral("A"), QStringLiteral("1"), 1},
                              {2, QStringLiteral("B"), QStringLiteral("B"), QStringLiteral("2"), 3},
                              {3, QStringLiteral("C"), QStringLiteral("C"), QStringLiteral("3"), 4},
                              {4, QStringLiteral("D"), QStringLiteral("D"), QStringLiteral("4"), 4}};
            else
                c.persoane = {{r.id * 10, QStringLiteral("T"), QStringLiteral("T"), QString::number(r.id), 1}};
            AdaugaCerereTest(Bd(), c);
            ExecutaCu(Bd(),
                      QStringLiteral("UPDATE Cereri SET NrCopii = ?, VenitpeMembru = ?, DataCerere = ?, DataStare = ? "
                                     "WHERE CerereID = ?"),
                      r.copii, *Bani::DinText(QString::fromLatin1(r.venit)), r.dataCerere, r.dataStare, r.id);
        }
        // Certificates: person 1 has a stale mark on an older one of kind 1 and the right mark on kind
        // 2; person 2 one undated; persons 70 and 100 are past the certificates' count and are never marked.
        const std::tuple<qint64, qint64, qint64, int, QVariant, QVariant> acte[] = {
            {1, 1, 1, 1, QDate(2024, 1, 1), 1},      {2, 1, 1, 1, QDate(2024, 6, 1), Nul},
            {3, 1, 1, 2, QDate(2024, 5, 1), 1},      {4, 1, 2, 1, Nul, Nul},
            {5, 10, 100, 1, QDate(2024, 7, 1), Nul}, {6, 7, 70, 1, QDate(2024, 8, 1), Nul}};
        for (const auto& [adev, cerere, membru, tip, exp, curenta] : acte)
            ExecutaCu(Bd(),
                      QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataExpAdev, "
                                     "AdvCurenta, CerereInVigoare) VALUES (?, ?, ?, ?, ?, ?, 0)"),
                      adev, cerere, membru, tip, exp, curenta);
    }

    QStringList Coloana(const QString& sql) {
        Interogare q(Bd(), sql);
        q.Executa();
        QStringList r;
        while (q.Urmator())
            r << (q.Valoare(0).isNull() ? QStringLiteral("-") : q.Valoare(0).toString());
        return r;
    }

    // Every row of the tables the tools write, as text: equal before and after means nothing changed.
    QStringList Instantaneu() {
        QStringList r;
        for (const char* t : {"Cereri", "CereriMembrii", "Adeverinte", "ListaBife"}) {
            Interogare q(Bd(), QStringLiteral("SELECT * FROM %1").arg(QLatin1String(t)));
            q.Executa();
            while (q.Urmator()) {
                QStringList v{QLatin1String(t)};
                for (int i = 0; i < q.query().record().count(); ++i)
                    v << (q.Valoare(i).isNull() ? QStringLiteral("NULL") : q.Valoare(i).toString());
                r << v.join(u'|');
            }
        }
        r.sort();
        return r;
    }

    // A statement on `tabela` that fails when the row `conditie` describes is reached: the tool dies
    // midway, after other rows were already written.
    void Esec(const char* tabela, const char* eveniment, const char* conditie) {
        const QString t = QLatin1String(tabela), e = QLatin1String(eveniment), c = QLatin1String(conditie);
        if (GetParam() == Motor::SQLite) {
            Bd().Executa(QStringLiteral("CREATE TRIGGER esec BEFORE %1 ON %2 WHEN %3 BEGIN SELECT RAISE(ABORT, "
                                        "'esec provocat'); END")
                             .arg(e, t, c));
        } else {
            Bd().Executa(QStringLiteral("CREATE FUNCTION esec() RETURNS trigger AS $$ BEGIN IF %1 THEN RAISE "
                                        "EXCEPTION 'esec provocat'; END IF; RETURN NEW; END $$ LANGUAGE plpgsql")
                             .arg(c));
            Bd().Executa(
                QStringLiteral("CREATE TRIGGER esec BEFORE %1 ON %2 FOR EACH ROW EXECUTE FUNCTION esec()").arg(e, t));
        }
    }

    Mentenanta::Optiuni o;
};

// Each tool counts what it would change without changing it, then changes exactly that.
TEST_P(MentenantaUnelte, NumaraSiSchimba) {
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM ListaBife WHERE NrBifa > 80"));
    Mentenanta::Optiuni suprascrie = o;
    suprascrie.suprascrieDataStare = true;
    struct Caz {
        const char* nume;
        Unealta u;
        Mentenanta::Optiuni o;
        qint64 numar;
        QString sqlDupa;
        QStringList dupa;
    };
    const Caz cazuri[] = {
        {"data stare",
         Unealta::DataStare,
         o,
         2,
         QStringLiteral("SELECT DataStare FROM Cereri WHERE CerereID <= 4 "
                        "ORDER BY CerereID"),
         {QStringLiteral("2024-03-05"), QStringLiteral("2024-03-20"), QStringLiteral("2024-03-10"),
          QStringLiteral("-")}},
        {"data stare suprascrisa",
         Unealta::DataStare,
         suprascrie,
         3,
         QStringLiteral("SELECT DataStare FROM Cereri WHERE CerereID <= 4 ORDER BY CerereID"),
         {QStringLiteral("2024-03-05"), QStringLiteral("2024-03-20"), QStringLiteral("2024-03-31"),
          QStringLiteral("-")}},
        {"stare",
         Unealta::Stare,
         o,
         2,
         QStringLiteral("SELECT Stare FROM Cereri WHERE CerereID IN (5, 6, 11) ORDER BY "
                        "CerereID"),
         {QStringLiteral("5"), QStringLiteral("5"), QStringLiteral("5")}},
        // Spouses first, then pupils: a pupil never ends as a spouse in one run.
        {"rudenie",
         Unealta::Rudenie,
         o,
         3,
         QStringLiteral("SELECT RudenieID FROM CereriMembrii WHERE CerereID = 1 "
                        "ORDER BY MembruID"),
         {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("3")}},
        // The newest of kind 1 and the undated one get the mark; the stale mark stays.
        {"acte",
         Unealta::Acte,
         o,
         2,
         QStringLiteral("SELECT AdvCurenta FROM Adeverinte ORDER BY AdevID"),
         {QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("-"),
          QStringLiteral("-")}},
        {"bife", Unealta::Bife, o, 85, QStringLiteral("SELECT COUNT(*) FROM ListaBife"), {QStringLiteral("85")}},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.nume);
        const QStringList inainte = Instantaneu();
        EXPECT_EQ(Mentenanta::Numara(Bd(), c.u, c.o), c.numar);
        EXPECT_EQ(Instantaneu(), inainte);
        const Mentenanta::Rezultat r = Mentenanta::Aplica(Bd(), mesaje, c.u, c.o);
        EXPECT_EQ(r.randuri + r.randuri2, c.numar);
        EXPECT_EQ(Coloana(c.sqlDupa), c.dupa);
        // Run again, the tools that mend a state find nothing left to mend.
        if (c.u == Unealta::Stare || c.u == Unealta::Acte || (c.u == Unealta::DataStare && !c.o.suprascrieDataStare)) {
            EXPECT_EQ(Mentenanta::Numara(Bd(), c.u, c.o), 0);
        }
    }
}

// The 1 November 2014 tool: the summary, then every paying request becomes a change of amount at the
// scale of that day (ISR 525.5, thresholds 210.2 and 557.03, amounts rounded up to whole lei).
TEST_P(MentenantaUnelte, Cereri2014) {
    EXPECT_EQ(Mentenanta::SumarCereri2014(Bd()),
              QStringLiteral("INREGISTRATA: 1\nACORDATA: 4\nSUSPENDATA: 2\nINCETATA: 1\nRESPINSA: 1\nREPUSA IN PLATA: "
                             "1\nMODIFICARE CUANTUM: 1\nSCHIMBARE TITULAR: 1\n--------------------------\nTotal: 12\n"
                             "Total bune: 7\nDin 1 noiembrie 2014\nINREGISTRATA: 0\nACORDATA: 0\nSUSPENDATA: 0\n"
                             "INCETATA: 0\nRESPINSA: 1\nREPUSA IN PLATA: 0\nMODIFICARE CUANTUM: 1\nSCHIMBARE TITULAR: "
                             "0\n-------------------\nTotal: 2"));
    o.luna = 11;
    o.an = 2014;
    const auto r = Mentenanta::Ruleaza(Bd(), mesaje, Unealta::Cereri2014, o);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->randuri, 8);
    EXPECT_EQ(mesaje.Texte().mid(1),
              (QStringList{QStringLiteral("Merg mai departe?"), QStringLiteral("Nr cereri bune (de schimbat): 8"),
                           Mentenanta::IntrebareConfirmare,
                           QStringLiteral("Au fost create 8 cereri de modificare cu Data de 1 noiembrie 2014")}));
    // 1: 0.164 x 525.5; 2: above the low threshold, 0.3; 3: five children count as four, 0.856; 4: above
    // the upper threshold; 7: no child; 8: at the threshold; 9: just above; 10: no scale for its kind.
    EXPECT_EQ(Coloana(QStringLiteral("SELECT CAST(Cuantum AS INTEGER) FROM Cereri WHERE Stare = 7 ORDER BY CerereID")),
              (QStringList{QStringLiteral("87"), QStringLiteral("158"), QStringLiteral("450"), QStringLiteral("0"),
                           QStringLiteral("0"), QStringLiteral("87"), QStringLiteral("158"), QStringLiteral("0")}));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 7 AND DataCerere = '2014-11-01' AND "
                                   "DataStare = '2014-11-01' AND MotivStare = 'Modificarea nivelului lunar al ASF'")),
              8);
    EXPECT_EQ(Coloana(QStringLiteral("SELECT Stare FROM Cereri WHERE CerereID IN (5, 11, 12) ORDER BY CerereID")),
              (QStringList{QStringLiteral("3"), QStringLiteral("5"), QStringLiteral("4")}));
    // The certificate of the registered request 7 now belongs to a request in force.
    EXPECT_EQ(Coloana(QStringLiteral("SELECT CerereInVigoare FROM Adeverinte WHERE CerereID = 7")),
              QStringList{QStringLiteral("1")});
}

// What stops the tools before they change anything: a No, the wrong working month, a missing or empty
// goods file. Kept dates: the request date stays when asked.
TEST_P(MentenantaUnelte, OpririFaraSchimbari) {
    const QStringList inainte = Instantaneu();
    const auto opreste = [&](Unealta u, const Mentenanta::Optiuni& opt, std::deque<bool> raspunsuri,
                             const QString& ultimul) {
        mesaje.mesaje.clear();
        mesaje.raspunsuri = std::move(raspunsuri);
        EXPECT_FALSE(Mentenanta::Ruleaza(Bd(), mesaje, u, opt));
        EXPECT_EQ(mesaje.Texte().value(mesaje.Texte().size() - 1), ultimul);
        EXPECT_EQ(Instantaneu(), inainte);
    };
    opreste(Unealta::Stare, o, {false}, Mentenanta::IntrebareConfirmare);
    opreste(Unealta::Cereri2014, o, {false}, QStringLiteral("Merg mai departe?"));
    opreste(Unealta::Cereri2014, o, {true}, QStringLiteral("Seteaza luna si an corect!"));
    // A new database has the delivered catalogues beside it.
    ASSERT_TRUE(QFile::remove(QDir(o.caleBD).filePath(QStringLiteral("bife.txt"))));
    opreste(Unealta::Bife, o, {},
            QStringLiteral("Fisierul bife.txt nu exista in ") + QDir::toNativeSeparators(o.caleBD));
    EXPECT_THROW(Mentenanta::Numara(Bd(), Unealta::Bife, o), Eroare);
    QFile gol(QDir(o.caleBD).filePath(QStringLiteral("bife.txt")));
    ASSERT_TRUE(gol.open(QIODevice::WriteOnly));
    gol.close();
    opreste(Unealta::Bife, o, {}, QStringLiteral("Fisierul bife.txt este gol!"));

    Mentenanta::Optiuni pastreaza = o;
    pastreaza.pastreazaDataCerere = true;
    Mentenanta::Aplica(Bd(), mesaje, Unealta::Cereri2014, pastreaza);
    EXPECT_EQ(Coloana(QStringLiteral("SELECT DataCerere FROM Cereri WHERE CerereID IN (1, 7) ORDER BY CerereID")),
              (QStringList{QStringLiteral("2024-03-05"), QStringLiteral("2024-02-29")}));
}

// A failure midway through any tool leaves every row as it was.
TEST_P(MentenantaUnelte, EsecLaMijlocLasaTotCaInainte) {
    struct Caz {
        Unealta u;
        const char* tabela;
        const char* eveniment;
        const char* conditie;
    };
    const Caz cazuri[] = {
        {Unealta::DataStare, "Cereri", "UPDATE", "OLD.CerereID = 2"},
        {Unealta::Stare, "Cereri", "UPDATE", "OLD.CerereID = 6"},
        // Partners may be written when a pupil's row fails.
        {Unealta::Rudenie, "CereriMembrii", "UPDATE", "OLD.RudenieID = 4"},
        {Unealta::Acte, "Adeverinte", "UPDATE", "OLD.AdevID = 4"},
        // The old rows are deleted before the new ones fail.
        {Unealta::Bife, "ListaBife", "INSERT", "NEW.NrBifa = 50"},
        {Unealta::Cereri2014, "Cereri", "UPDATE", "OLD.CerereID = 9"},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(int(c.u));
        const QStringList inainte = Instantaneu();
        Esec(c.tabela, c.eveniment, c.conditie);
        EXPECT_THROW(Mentenanta::Aplica(Bd(), mesaje, c.u, o), Eroare);
        EXPECT_EQ(Instantaneu(), inainte);
        Bd().Executa(QStringLiteral("DROP TRIGGER esec") +
                     (GetParam() == Motor::PostgreSQL ? QStringLiteral(" ON ") + QLatin1String(c.tabela) : QString()));
        if (GetParam() == Motor::PostgreSQL) Bd().Executa(QStringLiteral("DROP FUNCTION esec()"));
        // And the tool still works once the cause is gone.
        EXPECT_NO_THROW(Mentenanta::Aplica(Bd(), mesaje, c.u, o));
    }
}

PE_AMBELE_MOTOARE(MentenantaUnelte);

// Before 1 July 2013 the brackets are the fixed 200 and 370 lei, the second with its own rows.
TEST(MentenantaCuantum, TrepteleVechi) {
    ParametriCuantum p;
    const QDate d(2012, 1, 1);
    p.Barem = {{1, 2, Bani::DinUnitati(4000), Bani::DinText(QStringLiteral("0.12")), d, QDate()},
               {1, 2, Bani::DinUnitati(7400), Bani::DinText(QStringLiteral("0.1")), d, QDate()}};
    MesajeInregistrate m;
    const std::tuple<const char*, Bani> cazuri[] = {
        {"200", Bani::DinLei(60)}, {"200.01", Bani::DinLei(50)}, {"370", Bani::DinLei(50)}, {"370.01", Bani()}};
    for (const auto& [venit, cuantum] : cazuri)
        EXPECT_EQ(CuantumLaData(1, *Bani::DinText(QString::fromLatin1(venit)), 2, QDate(2013, 6, 30), p, m), cuantum)
            << venit;
    EXPECT_TRUE(m.mesaje.empty());
}

} // namespace
