#include "reference/Calendar.h"

#include "support/BazaTest.h"
#include "support/SqlTest.h"

using namespace Calendar;

namespace {

// The calendar of each case: 2022 whole, 2023 with March twice, 2024 without March and April; keys
// from 1 in that order.
class CalendarPlata : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        ExecutaCu(Bd(), QStringLiteral("DELETE FROM StatePlata"));
        qint64 id = 0;
        const auto luna = [&](int an, int l) {
            ExecutaCu(Bd(), QStringLiteral("INSERT INTO StatePlata (StatPlataID, An, Luna) VALUES (?, ?, ?)"), ++id, an,
                      l);
        };
        for (int l = 1; l <= 12; ++l)
            luna(2022, l);
        for (int l = 1; l <= 12; ++l)
            luna(2023, l);
        luna(2023, 3);
        for (int l = 1; l <= 12; ++l)
            if (l != 3 && l != 4) luna(2024, l);
        mesaje.mesaje.clear();
    }

    qint64 Randuri(const char* conditie = "1 = 1") {
        return Numar(QStringLiteral("SELECT COUNT(*) FROM StatePlata WHERE %1").arg(QLatin1String(conditie)));
    }
};

const QString Lipsa2024 = QStringLiteral("Pentru anul 2024 nu exista lunile: Martie, Aprilie, . Corectati!");
const QString Dublat2023 = QStringLiteral("Pentru anul 2023 lunile: Martie, se gasesc de mai multe ori. Corectati! ");

// The checks on opening and on generating a year: a year is written only when it has no month at all.
TEST_P(CalendarPlata, VerificariSiGenerare) {
    EXPECT_EQ(VerificaToti(Bd()), (QStringList{Dublat2023, Lipsa2024}));
    EXPECT_TRUE(VerificaAn(Bd(), 2022).isEmpty());

    const struct {
        const char* an;
        QString mesaj;
        qint64 randuriNoi;
    } cazuri[] = {
        {"2009", QStringLiteral("Introduceti un an mai mare decat 2009!"), 0},
        {"", QStringLiteral("Introduceti un an mai mare decat 2009!"), 0},
        {"abc", QStringLiteral("Introduceti un an mai mare decat 2009!"), 0},
        {"2022", QStringLiteral("Anul 2022 exista."), 0},
        {"2024", Lipsa2024, 0},
        {"2023", Dublat2023, 0},
        {"2010", QStringLiteral("Generarea a avut loc cu succes!"), 12},
        {"2025x", QStringLiteral("Generarea a avut loc cu succes!"), 12},
        {"2025", QStringLiteral("Anul 2025 exista."), 0},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.an);
        mesaje.mesaje.clear();
        const qint64 inainte = Randuri();
        const qint64 cheie = Numar(QStringLiteral("SELECT MAX(StatPlataID) FROM StatePlata"));
        const auto scris = GenereazaAn(Bd(), mesaje, QString::fromLatin1(c.an));
        EXPECT_EQ(mesaje.Texte(), QStringList{c.mesaj});
        EXPECT_EQ(Randuri(), inainte + c.randuriNoi);
        EXPECT_EQ(scris.has_value(), c.randuriNoi > 0);
        if (scris) {
            // Twelve months, one each, keys going on from the largest.
            EXPECT_TRUE(VerificaAn(Bd(), *scris).isEmpty());
            const std::vector<LunaPlata> luni = Luni(Bd(), *scris);
            ASSERT_EQ(luni.size(), 12u);
            for (int l = 0; l < 12; ++l) {
                EXPECT_EQ(luni[size_t(l)].Luna, l + 1);
                EXPECT_EQ(luni[size_t(l)].StatPlataID, cheie + l + 1);
            }
        }
    }
}

// Adding and changing one month, and deleting one.
TEST_P(CalendarPlata, OLuna) {
    const std::optional<LunaPlata> mai = [&] {
        for (const LunaPlata& l : Luni(Bd(), 2024))
            if (l.Luna == 5) return std::optional(l);
        return std::optional<LunaPlata>();
    }();
    ASSERT_TRUE(mai);
    const qint64 maxim = Numar(QStringLiteral("SELECT MAX(StatPlataID) FROM StatePlata"));
    const struct {
        const char* nume;
        DateLuna d;
        std::optional<qint64> editat;
        CampLuna refuz;
        QString mesaj; // empty: written without a word
        bool scris;
    } cazuri[] = {
        {"an mic",
         {QStringLiteral("2010"), 5},
         std::nullopt,
         CampLuna::An,
         QStringLiteral("Introduceti un an mai mare decat 2010!"),
         false},
        {"fara luna",
         {QStringLiteral("2024"), 0},
         std::nullopt,
         CampLuna::Luna,
         QStringLiteral("Selectati luna pe care doriti sa o adaugati!"),
         false},
        {"exista",
         {QStringLiteral("2024"), 1},
         std::nullopt,
         CampLuna::Luna,
         QStringLiteral("Anul 2024, luna 1 exista!"),
         false},
        {"alt rand",
         {QStringLiteral("2024"), 1},
         mai->StatPlataID,
         CampLuna::Luna,
         QStringLiteral("Pentru anul 2024 si luna 1 exista deja pe un alt rand. Corectati!!"),
         false},
        {"acelasi rand", {QStringLiteral("2024"), 5}, mai->StatPlataID, CampLuna::Niciunul, {}, true},
        {"mutat", {QStringLiteral("2024"), 4}, mai->StatPlataID, CampLuna::Niciunul, {}, true},
        {"disparut", {QStringLiteral("2024"), 3}, maxim + 100, CampLuna::Niciunul, RandDisparut, false},
        {"nou", {QStringLiteral("2024"), 3}, std::nullopt, CampLuna::Niciunul, {}, true},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        mesaje.mesaje.clear();
        const RezultatLuna r = SalveazaLuna(Bd(), mesaje, c.d, c.editat);
        EXPECT_EQ(r.refuz, c.refuz);
        EXPECT_EQ(mesaje.Texte(), c.mesaj.isEmpty() ? QStringList() : QStringList{c.mesaj});
        EXPECT_EQ(r.scris.has_value(), c.scris);
        if (r.scris) {
            EXPECT_EQ(r.scris->StatPlataID, c.editat.value_or(maxim + 1));
            const auto citit = CitesteLuna(Bd(), r.scris->StatPlataID);
            ASSERT_TRUE(citit);
            EXPECT_EQ(citit->An, 2024);
            EXPECT_EQ(citit->Luna, c.d.luna);
        }
    }
    // May became April, March was added.
    EXPECT_EQ(VerificaAn(Bd(), 2024),
              QStringList{QStringLiteral("Pentru anul 2024 nu exista lunile: Mai, . Corectati!")});
    EXPECT_EQ(Randuri("An = 2024"), 11);

    EXPECT_TRUE(StergeLuna(Bd(), mai->StatPlataID));
    EXPECT_FALSE(StergeLuna(Bd(), mai->StatPlataID));
    EXPECT_EQ(VerificaAn(Bd(), 2024),
              QStringList{QStringLiteral("Pentru anul 2024 nu exista lunile: Aprilie, Mai, . Corectati!")});
}

PE_AMBELE_MOTOARE(CalendarPlata);

} // namespace
