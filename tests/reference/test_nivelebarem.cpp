#include "base/Eroare.h"
#include "reference/Barem.h"
#include "reference/PraguriVenit.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <tuple>

namespace {

const QDate Noiembrie2014(2014, 11, 1);

// The coefficients of the seeded scale of November 2014, in the order of the boxes.
std::array<QString, NrNivele> Seminte() {
    std::array<QString, NrNivele> t;
    const char* unCopil[NrFamiliiBarem] = {"0.164", "0.15", "0.214", "0.204"};
    for (int f = 0; f < NrFamiliiBarem; ++f)
        for (int n = 1; n <= NrPersFamilie; ++n)
            t[size_t(f * NrPersFamilie + n - 1)] = (B(unCopil[f]) * n).Text();
    return t;
}

// The first box that refuses a save, and why.
TEST(NiveleBarem, VerificareaCasetelor) {
    const QString zero = T("Nivelul de venit trebuie sa fie diferit de 0 (zero)");
    const struct {
        int caseta;
        const char* text;
        std::optional<QString> mesaj; // none: accepted
    } cazuri[] = {
        {3, "0", zero},
        {0, "", zero},
        {7, "abc", zero},
        {2, "0,164", zero},   // a comma ends a typed number
        {1, "0.00004", zero}, // nothing left at four decimals
        {15, "1e99", T("Nivelul de venit este prea mare.")},
        {9, " 0.25 ", std::nullopt},
        {9, "0.3abc", std::nullopt},
        {12, "-0.1", std::nullopt}, // only a zero is refused
    };
    EXPECT_EQ(VerificaNivele(Seminte()).has_value(), false);
    for (const auto& c : cazuri) {
        auto texte = Seminte();
        texte[size_t(c.caseta)] = T(c.text);
        const auto refuz = VerificaNivele(texte);
        ASSERT_EQ(refuz.has_value(), c.mesaj.has_value()) << c.text;
        if (refuz) {
            EXPECT_EQ(refuz->caseta, c.caseta) << c.text;
            EXPECT_EQ(refuz->mesaj, *c.mesaj) << c.text;
        }
    }
    // The first of two refused boxes is the one named.
    auto doua = Seminte();
    doua[11] = doua[4] = T("0");
    EXPECT_EQ(VerificaNivele(doua)->caseta, 4);
}

class NiveleBaremBaza : public TestBaza {
protected:
    // Every row of the scale, to tell what a save changed.
    std::map<std::tuple<QDate, int, qint64, int>, std::optional<Bani>> Scala() {
        std::map<std::tuple<QDate, int, qint64, int>, std::optional<Bani>> r;
        for (const RandBarem& b : CitesteBarem(Bd()))
            r[{b.DataInceput, b.Tip, b.Suma.Unitati(), b.NrPers}] = b.Barem;
        return r;
    }
};

// The boxes show the rows of November 2014; a save changes those rows and no other.
TEST_P(NiveleBaremBaza, CitireSiSalvare) {
    BazaNoua();
    const NiveleBarem citite = CitesteNivele(Bd());
    EXPECT_TRUE(citite.Problema.isEmpty()) << S(citite.Problema);
    for (int i = 0; i < NrNivele; ++i)
        EXPECT_EQ(B(citite.Barem[size_t(i)].toUtf8().constData()), B(Seminte()[size_t(i)].toUtf8().constData())) << i;

    auto asteptat = Scala();
    auto texte = Seminte();
    texte[6] = T("0.5");  // kind 1, bracket 1.06, three children
    texte[9] = T("0.45"); // kind 2, bracket 0.4, two children
    SalveazaNivele(Bd(), texte);
    asteptat[{Noiembrie2014, 1, B("1.06").Unitati(), 3}] = B("0.5");
    asteptat[{Noiembrie2014, 2, B("0.4").Unitati(), 2}] = B("0.45");
    EXPECT_EQ(Scala(), asteptat);
    EXPECT_EQ(CitesteNivele(Bd()).Barem[6], T("0.5"));
}

// A family that has not exactly one row for each of one to four children is reported, and a save
// writes nothing, not even the boxes of the sound families.
TEST_P(NiveleBaremBaza, FamilieNepotrivita) {
    BazaNoua();
    const struct {
        const char* nume;
        const char* familie; // as the report names it
        std::function<void()> strica;
    } cazuri[] = {
        {"a row missing", "Tip 2, Suma 1.06",
         [&] {
             ExecutaCu(Bd(), T("DELETE FROM Barem WHERE DataInceput = ? AND Tip = ? AND NrPers = ? AND Suma > ?"),
                       Noiembrie2014, 2, 4, B("1"));
         }},
        {"a row twice", "Tip 1, Suma 1.06",
         [&] {
             ExecutaCu(Bd(), T("INSERT INTO Barem (Tip, NrPers, Barem, Suma, DataInceput) VALUES (?, ?, ?, ?, ?)"), 1,
                       2, B("0.3"), B("1.06"), Noiembrie2014);
         }},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        c.strica();
        EXPECT_TRUE(CitesteNivele(Bd()).Problema.contains(T(c.familie))) << S(CitesteNivele(Bd()).Problema);
        const auto inainte = Scala();
        auto texte = Seminte();
        texte[0] = T("0.2");
        EXPECT_THROW(SalveazaNivele(Bd(), texte), Eroare);
        EXPECT_EQ(Scala(), inainte);
    }
}

// The thresholds are stored as the computation reads them back; refused ones leave the stored pair.
TEST_P(NiveleBaremBaza, Praguri) {
    BazaNoua();
    EXPECT_TRUE(SalveazaPraguri(Bd(), T("300,5"), T(" 600 ")));
    EXPECT_EQ(PraguriVenit(Bd(), mesaje), T("300.5|600"));
    EXPECT_FALSE(SalveazaPraguri(Bd(), T("0"), T("600")));
    EXPECT_EQ(PraguriVenit(Bd(), mesaje), T("300.5|600"));
    EXPECT_TRUE(mesaje.mesaje.empty());
}

PE_AMBELE_MOTOARE(NiveleBaremBaza);

} // namespace
