#include "base/Eroare.h"
#include "cases/CalculCuantum.h"
#include "cases/DateCerere.h"
#include "cases/RecalculIsr.h"
#include "reference/Isr.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QVariant>
#include <functional>
#include <gtest/gtest.h>

namespace {

// The working month in which the request editor computes the amounts compared with.
constexpr int Luna = 12, An = 2024;
const QDate Minor(2030, 1, 1); // still a child in the working month

enum Fanion { Dim20 = 1, Dim50 = 2, Repetent = 4 };

struct CerereFixtura {
    qint64 id;
    int stare, tip;
    QDate data; // filing date, also the status date the editor reads
    const char* venitPeMembru;
    std::vector<int> copii; // the flags of each child
    const char* cuantumNou; // after the ISR becomes 600.75; null for a request not in payment
};

// Across the three scales and their brackets, the limits themselves, reductions on counted and
// uncounted children, and one request out of payment that keeps its amount. The amounts are worked
// by hand from the seeded scale: ISR x coefficient rounded up, less 500 x coefficient of one child x
// 0.2 or 0.5 per reduction, rounded half to even.
const std::vector<CerereFixtura> Fixtura = {
    {11, 2, 1, QDate(2024, 3, 15), "100", {0, 0}, "198"},                     // 0.328 -> 197.046
    {12, 6, 2, QDate(2024, 3, 15), "300", {Dim20}, "103"},                    // 122.553 -> 123, less 20.4
    {13, 7, 1, QDate(2024, 3, 15), "557.03", {0}, "91"},                      // upper limit: 1.06, 90.1125
    {14, 8, 1, QDate(2024, 3, 15), "557.04", {0, 0}, "0"},                    // above the upper limit
    {15, 2, 2, QDate(2013, 3, 10), "250", {0, 0, 0}, "163"},                  // constant limits: 0.74 x 3
    {16, 2, 1, QDate(2014, 1, 10), "210.2", {0, Dim50, Dim20, 0, 0}, "165"},  // lower limit, five count as four
    {17, 2, 2, QDate(2015, 6, 1), "0", {0, Repetent | Dim50}, "75"},          // 128.5605 -> 129, less 53.5 -> 54
    {18, 5, 1, QDate(2024, 3, 15), "100", {0}, nullptr},                      // refused: not recomputed
    {19, 2, 2, QDate(2024, 3, 15), "210.2", {Dim20, Dim20, 0, Dim50}, "419"}, // 0.856: 514.242 -> 515, less 42.8 + 53.5
};

class RecalculIsrBaza : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        qint64 membru = 100;
        for (const CerereFixtura& c : Fixtura) {
            int numarati = 0;
            for (int f : c.copii)
                if (!(f & Repetent)) ++numarati;
            ExecutaCu(Bd(), T("INSERT INTO Familii (FamilieID, Localitate) VALUES (?, ?)"), c.id, T("Branesti"));
            ExecutaCu(Bd(),
                      T("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, DataStare, Stare, TipCerere, "
                        "NrMembrii, NrCopii, VenitpeMembru, Cuantum) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                      c.id, c.id, c.id, c.data, c.data, c.stare, c.tip, qint64(c.copii.size() + 1), numarati,
                      B(c.venitPeMembru), B("1.5"));
            persoana(c.id, ++membru, 1, 0);
            for (int f : c.copii)
                persoana(c.id, ++membru, 3, f);
        }
    }

    void persoana(qint64 cerere, qint64 membru, int rudenie, int fanioane) {
        ExecutaCu(Bd(), T("INSERT INTO Membrii (MembruID, Nume, Prenume) VALUES (?, ?, ?)"), membru, T("Pop"),
                  T("Ana"));
        ExecutaCu(Bd(),
                  T("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, Data18Ani, Repetent, Diminuare20, "
                    "Diminuare50) VALUES (?, ?, ?, ?, ?, ?, ?)"),
                  cerere, membru, rudenie, rudenie == 1 ? QDate() : Minor, (fanioane & Repetent) != 0,
                  (fanioane & Dim20) != 0, (fanioane & Dim50) != 0);
    }

    Bani Cuantum(qint64 id) {
        Interogare q(Bd(), T("SELECT Cuantum FROM Cereri WHERE CerereID = ?"));
        q.Leaga(id);
        EXPECT_TRUE(q.Exista()) << id;
        return q.Suma(T("Cuantum"));
    }

    // The amount of the stored request as its editor computes it on opening, with what the database
    // holds now.
    Bani InEditor(qint64 id) {
        MesajeInregistrate m;
        const CerereIncarcata c = IncarcaCerere(Bd(), id, Luna, An, m);
        EXPECT_TRUE(c.Gasita) << id;
        const IntrareCuantum intrare{c.Stare,
                                     int(c.Date.cboCerere[ElemCerere::cboTipCerere].id),
                                     c.Date.dtpData[ElemCerere::dtpDataStare],
                                     c.Date.txtCerere[ElemCerere::txtVenitPeMembru],
                                     Luna,
                                     An};
        return CalculCuantum(intrare, IncarcaParametri(Bd()), m).Cuantum;
    }

    // Every amount and the ISR, to tell that a stopped run changed nothing.
    QStringList Stare() {
        QStringList r{CitesteIsr(Bd()).value_or(T("-"))};
        Interogare q(Bd(), T("SELECT CerereID, Cuantum FROM Cereri ORDER BY CerereID"));
        q.Executa();
        while (q.Urmator())
            r << T("%1=%2").arg(q.Intreg(0)).arg(q.Suma(T("Cuantum")).Text());
        return r;
    }
};

// The new ISR reaches every paying request with the amount its editor gives it, and the requests out
// of payment keep theirs.
TEST_P(RecalculIsrBaza, AceleasiSumeCaEditorul) {
    std::vector<std::pair<qint64, qint64>> progres;
    const RecalculIsr::Rezultat r = RecalculIsr::SchimbaIsr(Bd(), T("600.75"), mesaje, [&](qint64 f, qint64 t) {
        progres.push_back({f, t});
    });
    ASSERT_TRUE(r.ok) << S(mesaje.Texte().join(u'|'));
    EXPECT_EQ(r.Recalculate, 8);
    EXPECT_EQ(r.Schimbate, 8);
    EXPECT_EQ(mesaje.Texte(), QStringList{T("A fost recalculat cuantumul pentru 8 cereri.")});
    ASSERT_FALSE(progres.empty());
    EXPECT_EQ(progres.back(), (std::pair<qint64, qint64>{8, 8}));
    EXPECT_EQ(CitesteIsr(Bd()), T("600.75"));
    for (const CerereFixtura& c : Fixtura) {
        SCOPED_TRACE(c.id);
        if (!c.cuantumNou) {
            EXPECT_EQ(Cuantum(c.id), B("1.5"));
            continue;
        }
        EXPECT_EQ(Cuantum(c.id), B(c.cuantumNou));
        EXPECT_EQ(Cuantum(c.id), InEditor(c.id));
    }

    // Run again with the same value, nothing changes and nothing needs writing.
    const RecalculIsr::Rezultat iar = RecalculIsr::SchimbaIsr(Bd(), T("600.75"), mesaje);
    EXPECT_TRUE(iar.ok);
    EXPECT_EQ(iar.Recalculate, 8);
    EXPECT_EQ(iar.Schimbate, 0);

    // At exactly 500 the amounts are not rounded up; the reductions are the same.
    ASSERT_TRUE(RecalculIsr::SchimbaIsr(Bd(), T("500"), mesaje).ok);
    EXPECT_EQ(Cuantum(11), B("164"));
    EXPECT_EQ(Cuantum(12), B("82"));
    EXPECT_EQ(Cuantum(17), InEditor(17));
}

// A request that finds no level of the scale, or a scale that can't be read, stops the run before
// anything is kept: neither the ISR nor any amount changes. Request 15 comes after others were computed.
TEST_P(RecalculIsrBaza, OprireFaraSchimbari) {
    const QStringList inainte = Stare();
    const auto cerere15 = [this](const char* camp, const QVariant& v) {
        ExecutaCu(Bd(), T("UPDATE Cereri SET %1 = ? WHERE CerereID = 15").arg(T(camp)), v);
    };
    const auto praguri = [this](const char* text) {
        ExecutaCu(Bd(), T("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"), T(text), T("PRAGURI_VENIT"));
    };
    const struct {
        const char* nume;
        std::function<void()> strica, repara;
        bool nivel; // stops on request 15 with its message, else on an Eroare
    } cazuri[] = {
        {"no child counted", [&] { cerere15("NrCopii", 0); }, [&] { cerere15("NrCopii", 3); }, true},
        {"filed before the scale", [&] { cerere15("DataCerere", QDate(2011, 12, 15)); },
         [&] { cerere15("DataCerere", QDate(2013, 3, 10)); }, true},
        {"no family kind", [&] { cerere15("TipCerere", QVariant()); }, [&] { cerere15("TipCerere", 2); }, true},
        {"unreadable thresholds", [&] { praguri("x|y"); }, [&] { praguri("210.2|557.03"); }, false},
        // Request 11 finds its two-children row, then misses the one-child row of its reductions.
        {"no one-child row", [&] { ExecutaCu(Bd(), T("DELETE FROM Barem WHERE NrPers = ? AND Tip = ?"), 1, 1); }, [] {},
         false},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        c.strica();
        mesaje.mesaje.clear();
        if (c.nivel) {
            const RecalculIsr::Rezultat r = RecalculIsr::SchimbaIsr(Bd(), T("600.75"), mesaje);
            EXPECT_FALSE(r.ok);
            EXPECT_EQ(r.Oprit, 15);
            EXPECT_EQ(mesaje.Texte(),
                      QStringList{T("CerereID 15 fara copii sau data cerere mai mica de 01.11.2014 !")});
        } else {
            EXPECT_THROW(RecalculIsr::SchimbaIsr(Bd(), T("600.75"), mesaje), Eroare);
        }
        EXPECT_FALSE(Bd().InTranzactie());
        EXPECT_EQ(Stare(), inainte);
        c.repara();
    }
}

PE_AMBELE_MOTOARE(RecalculIsrBaza);

// The ISR boxes: what is stored for them and what they show for a stored value.
TEST(Isr, ValoareaSiCasetele) {
    const struct {
        const char *valoare, *zecimale;
        std::optional<QString> stocat;
    } cazuri[] = {
        {"525", "500", T("525.500")},
        {" 600 ", "75", T("600.75")},
        {"1", "", T("1")},
        {"1", "0", T("1.0")},
        {"0", "999", std::nullopt}, // below 1
        {"0", "", std::nullopt},
        {"", "5", std::nullopt},
        {"5a", "0", std::nullopt},
        {"525", "-1", std::nullopt},
        {"99999999999999999", "", std::nullopt}, // beyond any amount
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(ValoareIsr(T(c.valoare), T(c.zecimale)), c.stocat) << c.valoare << " . " << c.zecimale;

    const struct {
        const char* text;
        std::optional<QString> stocat;
    } intregi[] = {
        {"550,3", T("550.3")},     {"550.3", T("550.3")},  {"550", T("550")},
        {"550.3.1", std::nullopt}, {"0.99", std::nullopt}, {"abc", std::nullopt},
    };
    for (const auto& c : intregi)
        EXPECT_EQ(ValoareIsr(T(c.text)), c.stocat) << c.text;

    const struct {
        const char *continut, *valoare, *zecimale;
    } casete[] = {
        {"525.5", "525", "500"}, {"525", "525", "000"},    {"525.1234", "525", "1234"},
        {"", "", "000"},         {"600,75", "600", "750"},
    };
    for (const auto& c : casete) {
        const CaseteIsr k = CaseteDinIsr(T(c.continut));
        EXPECT_EQ(k.Valoare, T(c.valoare)) << c.continut;
        EXPECT_EQ(k.Zecimale, T(c.zecimale)) << c.continut;
    }
}

} // namespace
