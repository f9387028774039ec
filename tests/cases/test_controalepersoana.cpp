#include "cases/ControalePersoana.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

using namespace ElemPersoana;

namespace {

class ListePersoanaBaza : public TestBaza {};

TEST_P(ListePersoanaBaza, CoduriCareIncepCuTextul) {
    BazaDate& db = BazaNoua();
    const char* coduri[] = {
        "1850505460011", "1859999999999", "1860000000000", "2851111111111", "1850505460012", "18%_x", "185"};
    qint64 id = 1;
    for (const char* c : coduri)
        ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume, CNP) VALUES (?, ?, ?)"), id++, T("X"), T(c));
    ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume) VALUES (?, ?)"), id++, T("FARA CNP"));

    // A prefix ending in nines still stops before the next one; the wild cards of LIKE are taken as typed.
    const std::pair<const char*, QStringList> cazuri[] = {
        {"185", {"185", "1850505460011", "1850505460012", "1859999999999"}},
        {"1859", {"1859999999999"}},
        {" 18505 ", {"1850505460011", "1850505460012"}},
        {"18%", {"18%_x"}},
        {"18_", {}}};
    for (const auto& [inceput, asteptat] : cazuri)
        EXPECT_EQ(CnpDupaInceput(db, T(inceput), 10), asteptat) << inceput;
}

// The browser's pages are the list cut at keys: bounds that are keys, between keys, one key, none.
TEST_P(ListePersoanaBaza, PaginileBrowseruluiSuntListaInBucati) {
    BazaDate& db = BazaNoua();
    {
        Tranzactie t(db);
        for (qint64 id = 1; id <= 40; ++id)
            ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume, CNP, TipAct) VALUES (?, ?, ?, ?)"), id * 3,
                      T("NUME%1").arg(id), T("18501014%1").arg(id, 5, 10, QLatin1Char('0')), id % 3);
        t.Confirma();
    }
    const std::vector<RandMembrii> toate = ListaMembrii(db);
    const auto texte = [](const std::vector<RandMembrii>& r, size_t de, size_t pana) {
        QStringList t;
        for (size_t i = de; i < pana; ++i)
            t << QString::number(r[i].MembruID) << r[i].Nume << r[i].CNP << r[i].TipAct;
        return t;
    };
    std::vector<qint64> chei(toate.size());
    std::transform(toate.begin(), toate.end(), chei.begin(), [](const RandMembrii& r) { return r.MembruID; });
    EXPECT_EQ(CheiMembrii(db), chei);
    const std::tuple<qint64, qint64, size_t, size_t> cazuri[] = {
        {3, 30, 0, 10}, {31, 62, 10, 20}, {4, 8, 1, 2}, {120, 120, 39, 40}, {121, 500, 40, 40}};
    for (const auto& [primul, ultimul, de, pana] : cazuri)
        EXPECT_EQ(texte(RanduriMembrii(db, primul, ultimul), 0, pana - de), texte(toate, de, pana)) << primul;
    EXPECT_EQ(RanduriMembrii(db, 3, 3).front().TipAct, T("BI")) << "the short name of the paper";
}

PE_AMBELE_MOTOARE(ListePersoanaBaza);

TEST(CasetaSumaInvalida, NumesteCasetaCareNuTineUnNumar) {
    const std::tuple<const char*, const char*, const char*> cazuri[] = {{"1.234,56", "150.5", ""},
                                                                        {"12a", "", "txtMembru_18"},
                                                                        {"12", "1,2,3", "txtMembru_19"},
                                                                        {"x", "y", "txtMembru_18"}};
    for (const auto& [venit, suma, caseta] : cazuri) {
        DatePersoana d;
        d.txtMembru[txtVenit] = T(venit);
        d.txtMembru[txtSuma] = T(suma);
        EXPECT_EQ(CasetaSumaInvalida(d), T(caseta)) << venit << " / " << suma;
    }
}

} // namespace
