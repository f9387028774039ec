#include "cases/ControalePersoana.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
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

    const struct {
        const char* inceput;
        int limita;
        QStringList asteptat;
    } cazuri[] = {
        {"185", 10, {T("185"), T("1850505460011"), T("1850505460012"), T("1859999999999")}},
        // A prefix ending in nines still stops before the next one.
        {"1859", 10, {T("1859999999999")}},
        {" 18505 ", 10, {T("1850505460011"), T("1850505460012")}},
        // The wild cards of LIKE are taken as typed.
        {"18%", 10, {T("18%_x")}},
        {"18_", 10, {}},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(CnpDupaInceput(db, T(c.inceput), c.limita), c.asteptat) << c.inceput;
    // An empty box offers the first codes; where a code that is not all digits sorts depends on
    // the engine's collation, so only the count and the person without a code are told.
    const QStringList primele = CnpDupaInceput(db, QString(), 30);
    EXPECT_EQ(primele.size(), 7);
    EXPECT_FALSE(primele.contains(QString()));
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
    std::vector<qint64> chei;
    for (const RandMembrii& r : toate)
        chei.push_back(r.MembruID);
    EXPECT_EQ(CheiMembrii(db), chei);
    const auto texte = [](const std::vector<RandMembrii>& r, size_t de, size_t pana) {
        QStringList t;
        for (size_t i = de; i < pana; ++i)
            t << QString::number(r[i].MembruID) << r[i].Nume << r[i].CNP << r[i].TipAct;
        return t;
    };
    const struct {
        qint64 primul, ultimul;
        size_t de, pana;
    } cazuri[] = {{3, 30, 0, 10}, {31, 62, 10, 20}, {4, 8, 1, 2}, {120, 120, 39, 40}, {121, 500, 40, 40}};
    for (const auto& c : cazuri)
        EXPECT_EQ(texte(RanduriMembrii(db, c.primul, c.ultimul), 0, c.pana - c.de), texte(toate, c.de, c.pana))
            << c.primul << ".." << c.ultimul;
    EXPECT_EQ(RanduriMembrii(db, 3, 3).front().TipAct, T("BI")) << "the short name of the paper";
}

PE_AMBELE_MOTOARE(ListePersoanaBaza);

TEST(CasetaSumaInvalida, NumesteCasetaCareNuTineUnNumar) {
    const struct {
        const char* venit;
        const char* suma;
        const char* caseta;
    } cazuri[] = {
        {"1.234,56", "150.5", ""},
        {"12a", "", "txtMembru_18"},
        {"12", "1,2,3", "txtMembru_19"},
        {"x", "y", "txtMembru_18"},
    };
    for (const auto& c : cazuri) {
        DatePersoana d;
        d.txtMembru[txtVenit] = T(c.venit);
        d.txtMembru[txtSuma] = T(c.suma);
        EXPECT_EQ(CasetaSumaInvalida(d), T(c.caseta)) << c.venit << " / " << c.suma;
    }
}

} // namespace
