#include "base/Bani.h"
#include "base/Eroare.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

Bani Din(const char* text) {
    return *Bani::DinText(QString::fromLatin1(text));
}

// Half to even on the fifth decimal, however many digits follow; nothing past the edges of the range.
TEST(Bani, DinTextRotunjireParaLaPatruZecimale) {
    const std::optional<std::int64_t> nimic;
    // clang-format off
    const std::pair<const char*, std::optional<std::int64_t>> cazuri[] = {
        {"12,5", 125000}, {" 0,0001 ", 1}, {"-3.25", -32500}, {"+7", 70000}, {".5", 5000}, {"1.23456", 12346},
        {"0.00015", 2}, {"-0.00015", -2}, {"0.000050000000000000000000001", 1}, {"", nimic}, {"1.2.3", nimic},
        {"1,234.5", nimic}, {"12 lei", nimic}, {"-", nimic}, {"922337203685477.5807", INT64_MAX},
        {"922337203685477.5808", nimic}, {"-922337203685477.5808", nimic}};
    // clang-format on
    for (const auto& [text, unitati] : cazuri) {
        const auto b = Bani::DinText(QString::fromLatin1(text));
        EXPECT_EQ(b ? std::optional(b->Unitati()) : std::nullopt, unitati) << text;
    }
    EXPECT_EQ(Bani::DinUnitati(-1).Text(), T("-0.0001"));
    const std::pair<const char*, std::int64_t> pare[] = {{"172.5", 172}, {"173.5", 174}, {"-2.5", -2}, {"2.5001", 3}};
    for (const auto& [suma, intreg] : pare)
        EXPECT_EQ(Din(suma).RotunjitPar(), intreg) << suma;
}

TEST(Bani, InmultireValoriDinMotorSiDepasiri) {
    EXPECT_EQ(Din("525.5").Inmultit(Din("0.066")).Text(), T("34.6830"));
    EXPECT_EQ(Bani::DinUnitati(5).Inmultit(Bani::DinUnitati(5000)).Unitati(), 2);  // 0.00025 -> 0.0002
    EXPECT_EQ(Bani::DinUnitati(15).Inmultit(Bani::DinUnitati(5000)).Unitati(), 8); // 0.00075 -> 0.0008
    EXPECT_EQ(Bani::DinVariant(QVariant(0.1)).Unitati(), 1000);
    EXPECT_EQ(Bani::DinVariant(QVariant(T("557.0300"))).Unitati(), 5570300);
    EXPECT_EQ(Bani::DinVariant(QVariant()).Unitati(), 0);
    // the largest amounts an office keeps survive a double
    EXPECT_EQ(Bani::DinVariant(QVariant(99999999.9999)).Unitati(), 999999999999);
    // Nothing leaves the range by wrapping: every way out throws, the edges themselves still work.
    const Bani maxim = Bani::DinUnitati(Bani::Maxim);
    const std::function<Bani()> depasiri[] = {
        [&] { return maxim + Bani::DinUnitati(1); },
        [&] { return -maxim - Bani::DinUnitati(1); },
        [&] { return maxim * 2; },
        [&] { return maxim.Inmultit(Bani::DinLei(2)); },
        [] { return Bani::DinLei(std::int64_t(1'000'000'000'000'000)); },
        [] { return Bani::DinVariant(QVariant(1e15)); },
        [] { return Bani::DinVariant(QVariant(T("1e300"))); },
        [] { return Bani::DinUnitati(INT64_MIN); },
    };
    for (size_t i = 0; i < std::size(depasiri); ++i)
        EXPECT_THROW(depasiri[i](), Eroare) << i;
    EXPECT_EQ(maxim.Inmultit(Bani::DinLei(1)), maxim);
    EXPECT_EQ((-maxim).Inmultit(Din("0.5")).Unitati(), -4'611'686'018'427'387'904);
}

} // namespace
