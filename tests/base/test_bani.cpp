#include "base/Bani.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

struct CazText {
    const char* text;
    bool valid;
    std::int64_t unitati;
};

class BaniDinText : public ::testing::TestWithParam<CazText> {};

TEST_P(BaniDinText, CitesteCaOamenii) {
    const CazText& c = GetParam();
    const auto b = Bani::DinText(QString::fromUtf8(c.text));
    ASSERT_EQ(b.has_value(), c.valid) << c.text;
    if (c.valid) {
        EXPECT_EQ(b->Unitati(), c.unitati) << c.text;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Cazuri, BaniDinText,
    ::testing::Values(CazText{"12", true, 120000}, CazText{"12.5", true, 125000}, CazText{"12,5", true, 125000},
                      CazText{" 0,0001 ", true, 1}, CazText{"-3.25", true, -32500}, CazText{"+7", true, 70000},
                      CazText{".5", true, 5000}, CazText{"1.23456", true, 12346},
                      // half to even on the fifth decimal
                      CazText{"0.00005", true, 0}, CazText{"0.00015", true, 2}, CazText{"-0.00015", true, -2},
                      CazText{"", false, 0}, CazText{"abc", false, 0}, CazText{"1.2.3", false, 0},
                      CazText{"1,234.5", false, 0}, CazText{"12 lei", false, 0}, CazText{"-", false, 0},
                      CazText{"922337203685477.5807", true, INT64_MAX}, CazText{"922337203685477.5808", false, 0},
                      CazText{"-922337203685477.5808", false, 0}, CazText{"99999999999999999999999", false, 0},
                      CazText{"922337203685477.58075", false, 0}, CazText{"0.000050000000000000000000001", true, 1},
                      CazText{"0.000150000000000000000000000", true, 2}));

TEST(Bani, TextAreMereuPatruZecimale) {
    EXPECT_EQ(Bani::DinUnitati(125000).Text(), QStringLiteral("12.5000"));
    EXPECT_EQ(Bani::DinUnitati(-1).Text(), QStringLiteral("-0.0001"));
    EXPECT_EQ(Bani().Text(), QStringLiteral("0.0000"));
    EXPECT_EQ(Bani::DinLei(-40).Text(), QStringLiteral("-40.0000"));
}

TEST(Bani, RotunjirePara) {
    struct {
        const char* suma;
        std::int64_t intreg;
    } cazuri[] = {{"172.5", 172}, {"173.5", 174}, {"-2.5", -2}, {"-3.5", -4}, {"2.5001", 3}, {"0.4999", 0}};
    for (const auto& c : cazuri)
        EXPECT_EQ(Bani::DinText(QString::fromLatin1(c.suma))->RotunjitPar(), c.intreg) << c.suma;
}

TEST(Bani, InmultireRotunjitaLaPatruZecimale) {
    const Bani isr = *Bani::DinText(QStringLiteral("525.5"));
    EXPECT_EQ(isr.Inmultit(*Bani::DinText(QStringLiteral("0.066"))).Text(), QStringLiteral("34.6830"));
    EXPECT_EQ(Bani::DinUnitati(5).Inmultit(Bani::DinUnitati(5000)).Unitati(), 2);  // 0.00025 -> 0.0002
    EXPECT_EQ(Bani::DinUnitati(15).Inmultit(Bani::DinUnitati(5000)).Unitati(), 8); // 0.00075 -> 0.0008
}

TEST(Bani, DinVariantIaOriceFormaAMotorului) {
    EXPECT_EQ(Bani::DinVariant(QVariant(12.3456)).Unitati(), 123456);
    EXPECT_EQ(Bani::DinVariant(QVariant(0.1)).Unitati(), 1000);
    EXPECT_EQ(Bani::DinVariant(QVariant(QStringLiteral("557.0300"))).Unitati(), 5570300);
    EXPECT_EQ(Bani::DinVariant(QVariant(qint64(7))).Unitati(), 70000);
    EXPECT_EQ(Bani::DinVariant(QVariant()).Unitati(), 0);
    // the largest amounts an office keeps survive a double
    EXPECT_EQ(Bani::DinVariant(QVariant(99999999.9999)).Unitati(), 999999999999);
}

// Nothing leaves the range by wrapping: every way out throws, the edges themselves still work.
TEST(Bani, DepasireaAruncaInLocSaSeIntoarca) {
    const Bani maxim = Bani::DinUnitati(Bani::Maxim);
    const std::function<Bani()> depasiri[] = {
        [&] { return maxim + Bani::DinUnitati(1); },
        [&] { return -maxim - Bani::DinUnitati(1); },
        [&] { return maxim * 2; },
        [] { return Bani::DinLei(std::int64_t(1'000'000'000'000'000)); },
        [&] { return maxim.Inmultit(Bani::DinLei(2)); },
        [] { return Bani::DinLei(10'000'000'000).Inmultit(Bani::DinLei(10'000'000'000)); },
        [] { return Bani::DinVariant(QVariant(qint64(1'000'000'000'000'000))); },
        [] { return Bani::DinVariant(QVariant(1e15)); },
        [] { return Bani::DinVariant(QVariant(QStringLiteral("1e300"))); },
        [] { return Bani::DinUnitati(INT64_MIN); },
    };
    for (size_t i = 0; i < std::size(depasiri); ++i)
        EXPECT_THROW(depasiri[i](), Eroare) << i;
    EXPECT_EQ((maxim - maxim).Unitati(), 0);
    EXPECT_EQ(Bani::DinLei(922'337'203'685'477).Unitati(), 9'223'372'036'854'770'000);
    EXPECT_EQ(maxim.Inmultit(Bani::DinLei(1)), maxim);
    EXPECT_EQ((-maxim).Inmultit(*Bani::DinText(QStringLiteral("0.5"))).Unitati(), -4'611'686'018'427'387'904);
    EXPECT_EQ(Bani::DinLei(-3).Inmultit(Bani::DinLei(-4)), Bani::DinLei(12));
}

} // namespace
