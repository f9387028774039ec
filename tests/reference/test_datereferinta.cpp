#include "reference/DateReferinta.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include "reference/LunaLucru.h"
#include <optional>

namespace {

using namespace DateReferinta;

class Referinte : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }
    static DatePrimarie Completa() {
        DatePrimarie d;
        for (int i = 0; i < NrCampuriPrimarie; ++i)
            d.text[size_t(i)] = T("v%1").arg(i);
        d.TipLocalitate = 1;
        return d;
    }
};

TEST_P(Referinte, OStradaFolositaDeOFamilieNuSePoateSterge) {
    Bd().Executa(T("INSERT INTO Strazi (StradaID, Denumire) VALUES (1, 'Garii'), (2, 'Școlii')"));
    Bd().Executa(T("INSERT INTO Familii (FamilieID, Strada) VALUES (1, 'GARII'), (2, 'școlii'), (3, 'Morii ')"));
    // Compared whole, up to case and the marks of the letters; no pattern characters.
    const std::pair<const char*, bool> cazuri[] = {
        {"garii", true}, {"ŞCOLII", true}, {"Scolii", true},   {"Morii ", true}, {"Garii ", false},
        {"Gar%", false}, {"Gar_i", false}, {"Scolile", false}, {"Morii", false},
    };
    for (const auto& [nume, folosita] : cazuri)
        EXPECT_EQ(StradaFolosita(Bd(), QString::fromUtf8(nume)), folosita) << nume;

    ExecutaCu(Bd(), T("UPDATE Familii SET Strada = ? WHERE FamilieID = 1"), T("Garii Noi"));
    EXPECT_FALSE(StradaFolosita(Bd(), T("Garii")));
    EXPECT_TRUE(StergeStrada(Bd(), 1));
    EXPECT_FALSE(CitesteStrada(Bd(), 1).has_value());
    EXPECT_FALSE(StergeStrada(Bd(), 1)) << "a second delete finds nothing";
}

// A street's name is unique up to case and letter marks; a reason is looked for among the streets.
TEST_P(Referinte, NumeUnicPanaLaMajusculeSiDiacritice) {
    Bd().Executa(T("INSERT INTO Strazi (StradaID, Denumire) VALUES (1, 'Garii'), (2, 'Ștefan cel Mare'), "
                   "(5, 'Plecat din tara')"));
    Bd().Executa(T("INSERT INTO Motive (MotivID, Denumire) VALUES (1, 'Decedat')"));
    const auto nimic = std::nullopt;
    // clang-format off
    const struct {
        bool motiv;
        const char* nume;
        std::optional<qint64> editat;
        bool refuzat;
    } cazuri[] = {
        {false, "", nimic, true}, {false, "   ", 1, true}, {false, "gARII", nimic, true}, {false, "garii", 1, false},
        {false, "garii", 2, true}, {false, "Garii ", nimic, false}, {false, "Gar%", nimic, false},
        {false, "Ştefan cel Mare", nimic, true}, {false, "Stefan cel Mare", 2, false}, {true, " ", nimic, true},
        {true, "garii", nimic, true}, {true, "PLECAT DIN TARA", 5, false}, {true, "Decedat", nimic, false}};
    // clang-format on
    for (const auto& c : cazuri) {
        const QString nume = QString::fromUtf8(c.nume);
        const auto r = c.motiv ? VerificaMotiv(Bd(), nume, c.editat) : VerificaStrada(Bd(), nume, c.editat);
        EXPECT_EQ(r.has_value(), c.refuzat) << c.motiv << " " << c.nume << " / " << c.editat.value_or(0);
    }
}

TEST_P(Referinte, DatelePrimarieiPrimulCampGolApoiUnSingurRandRescris) {
    EXPECT_EQ(VerificaDatePrimarie(Completa()), std::nullopt);
    for (int i = 0; i < NrCampuriPrimarie; ++i) {
        DatePrimarie d = Completa();
        d.text[size_t(i)] = T("  ");
        // A later empty box and a missing type don't hide the first empty box.
        if (i + 1 < NrCampuriPrimarie) d.text[size_t(i + 1)].clear();
        d.TipLocalitate = 0;
        const auto r = VerificaDatePrimarie(d);
        ASSERT_TRUE(r.has_value()) << i;
        EXPECT_EQ(r->control, i);
    }
    for (int tip : {0, 4}) {
        DatePrimarie d = Completa();
        d.TipLocalitate = tip;
        ASSERT_TRUE(VerificaDatePrimarie(d).has_value()) << tip;
        EXPECT_EQ(VerificaDatePrimarie(d)->control, IndexTipLocalitate);
    }

    // The first save adds the one row, the next ones rewrite it. Each box holds as many characters as its
    // field, on both engines.
    ASSERT_EQ(SalveazaDatePrimarie(Bd(), Completa()), std::nullopt);
    Bd().Executa(T("UPDATE DatePrimarie SET Email = 'p@branesti.ro'"));
    for (int i = 0; i < NrCampuriPrimarie; ++i) {
        DatePrimarie d = Completa();
        d.text[size_t(i)] = QString(LatimeCampPrimarie(i), QLatin1Char('x'));
        d.TipLocalitate = 1 + i % 3;
        ASSERT_EQ(SalveazaDatePrimarie(Bd(), d), std::nullopt) << i;
        const DatePrimarie citit = CitesteDatePrimarie(Bd());
        EXPECT_EQ(citit.text, d.text) << i;
        EXPECT_EQ(citit.TipLocalitate, d.TipLocalitate);
    }
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM DatePrimarie")), 1);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM DatePrimarie WHERE Email = 'p@branesti.ro'")), 1)
        << "the fields of no box stay";

    // Two rows: nothing is saved.
    Bd().Executa(T("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria B')"));
    DatePrimarie alta = Completa();
    alta.text[0] = T("Alta");
    EXPECT_TRUE(SalveazaDatePrimarie(Bd(), alta).has_value());
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM DatePrimarie WHERE Denumire = 'Alta'")), 0);
    EXPECT_FALSE(Bd().InTranzactie());
}

// The working month: a month 1-12 and a year 2008-2500 that the payment calendar holds.
TEST_P(Referinte, LunaDeLucruTrebuieSaFieInCalendar) {
    const struct {
        const char *luna, *an, *refuz;
    } cazuri[] = {
        {"13", "2013", "Luna incorecta!"}, {"0", "2024", "Luna incorecta!"},        {"5", "2007", "An incorect!"},
        {"5", "2501", "An incorect!"},     {"5", "2012", "An sau Luna incorecta!"}, {"12", "2013", nullptr},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(LunaLucru::Verifica(Bd(), QString::fromLatin1(c.luna), QString::fromLatin1(c.an)),
                  c.refuz ? std::optional<QString>(QString::fromLatin1(c.refuz)) : std::nullopt)
            << c.luna << "/" << c.an;
}

PE_AMBELE_MOTOARE(Referinte);

} // namespace
