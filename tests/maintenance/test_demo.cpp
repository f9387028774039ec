#include "base/Ceas.h"
#include "cases/Cnp.h"
#include "maintenance/Demo.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

#include <set>

namespace {

class TestDemo : public TestBaza {
protected:
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }
};

// Each rule counts the rows that break it.
const std::pair<const char*, const char*> Reguli[] = {
    {"titularul este MembruID1, unul pe cerere",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID "
     "AND CM.RudenieID = 1) <> 1 OR NOT EXISTS (SELECT 1 FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID "
     "AND CM.RudenieID = 1 AND CM.MembruID = C.MembruID1)"},
    {"intre 1 si 8 persoane, cate spune NrMembrii, si familia cererii",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID) "
     "NOT BETWEEN 1 AND 8 OR (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID) <> C.NrMembrii "
     "OR NOT EXISTS (SELECT 1 FROM Familii F WHERE F.FamilieID = C.FamilieID)"},
    {"veniturile dau VenitTotal",
     "SELECT COUNT(*) FROM Cereri C WHERE ABS(C.VenitTotal - COALESCE((SELECT SUM(V.Valoare) FROM Venituri V "
     "WHERE V.CerereID = C.CerereID), 0)) > 0.00005"},
    {"ultima dispozitie duce la starea cererii, din DataStare, cu cuantumul cererii",
     "SELECT COUNT(*) FROM Dispozitii D JOIN Cereri C ON C.CerereID = D.CerereID WHERE D.DispozitieID = "
     "(SELECT MAX(X.DispozitieID) FROM Dispozitii X WHERE X.CerereID = D.CerereID) AND (D.Actiune <> CASE C.Stare "
     "WHEN 2 THEN 1 WHEN 3 THEN 3 WHEN 4 THEN 5 WHEN 5 THEN 4 WHEN 6 THEN 6 WHEN 7 THEN 2 WHEN 8 THEN 2 END "
     "OR D.DinData <> C.DataStare OR D.Cuantum <> C.Cuantum)"},
    {"cererile cu drepturi in plata au copii si cuantum, cele respinse nu au cuantum",
     "SELECT COUNT(*) FROM Cereri WHERE (Stare IN (2, 6, 7, 8) AND (NrCopii < 1 OR Cuantum <= 0)) "
     "OR (Stare = 5 AND Cuantum <> 0)"},
};

TEST_P(TestDemo, DateleGenerateSuntValideSiCoerente) {
    Ceas::SeteazaAzi(QDate(2025, 6, 18));
    BazaDate& db = BazaNoua();
    Demo::Optiuni o;
    o.cereri = 300;
    o.samanta = 7;
    o.lot = 70;
    Demo::Genereaza(db, o);
    ASSERT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri")), 300);
    for (const char* tabela : {"Venituri", "BifeText", "Locuinte", "Adeverinte", "Dispozitii", "Anchete"})
        EXPECT_GT(Numar(T("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabela))), 0) << tabela;
    EXPECT_EQ(Numar(T("SELECT COUNT(DISTINCT Stare) FROM Cereri")), 8) << "every state is there";
    for (const auto& [nume, sql] : Reguli)
        EXPECT_EQ(Numar(QString::fromLatin1(sql)), 0) << nume;

    // Valid personal codes, each once; a child's Data18Ani is the 18th birthday of the date in the code.
    Interogare q(db, T("SELECT M.CNP, CM.RudenieID, CM.Data18Ani FROM Membrii M "
                       "JOIN CereriMembrii CM ON CM.MembruID = M.MembruID"));
    q.Executa();
    std::set<QString> vazute;
    while (q.Urmator()) {
        const QString cnp = q.Text(T("CNP"));
        EXPECT_TRUE(VerificaCNP(cnp, nullptr)) << cnp.toStdString();
        EXPECT_TRUE(vazute.insert(cnp).second) << "CNP repetat " << cnp.toStdString();
        const int rudenie = int(q.Intreg(T("RudenieID")));
        if (rudenie == 3 || rudenie >= 6) {
            EXPECT_EQ(q.Data(T("Data18Ani")), DataNasterii(cnp, true, nullptr)) << cnp.toStdString();
        }
    }
    EXPECT_GT(vazute.size(), 600u);
}

PE_AMBELE_MOTOARE(TestDemo);

} // namespace
