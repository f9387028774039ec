#include "base/Eroare.h"
#include "base/Sume.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

namespace {

TEST(Sume, FormatSumaSiRotunjireSus) {
    const std::pair<std::int64_t, const char*> bani[] = {
        {120000, "12.00"}, {125000, "12.50"}, {120500, "12.05"},           {123456, "12.3456"}, {0, "0.00"},
        {-35000, "-3.50"}, {-100, "-0.01"},   {10000001000, "1000000.10"}, {1, "0.0001"},
    };
    for (const auto& [unitati, text] : bani)
        EXPECT_EQ(FormatSuma(Bani::DinUnitati(unitati)), T(text)) << unitati;
    const std::pair<const char*, const char*> texte[] = {
        {"12", "12.00"},  {"12,5", "12.50"},  {"12.05", "12.05"}, {"-12,5", "-12.50"},
        {"12.", "12.00"}, {"0.125", "0.125"}, {" 3,1 ", "3.10"},  {"-0,0", "0.00"},
    };
    for (const auto& [numar, text] : texte)
        EXPECT_EQ(FormatSuma(T(numar)), T(text)) << numar;
    // Up to the next whole number; residues below the fifteenth significant digit of a double are not decimals.
    const std::pair<std::int64_t, std::int64_t> rotunjite[] = {
        {1720001, 173}, {1720000, 172}, {1729999, 173}, {0, 0}, {1, 1}, {-25000, -2}, {-20000, -2}, {-1, 0},
    };
    for (const auto& [unitati, rezultat] : rotunjite)
        EXPECT_EQ(RotunjireSus(Bani::DinUnitati(unitati)), rezultat) << unitati;
    const std::pair<double, double> reale[] = {
        {172.0001, 173},         {172.0, 172}, {0.1 + 0.2, 1}, {0.00001, 1}, {-2.5, -2}, {3.0000000000000004, 3},
        {2.9999999999999996, 3},
    };
    for (const auto& [x, rezultat] : reale)
        EXPECT_EQ(RotunjireSus(x), rezultat) << x;
}

TEST(Sume, SumaTextPunctVirgulaSiMiile) {
    // clang-format off
    const std::pair<const char*, std::int64_t> cazuri[] = {
        {"12,5", 125000}, {"210.2", 2102000}, {"1.234", 12340}, {"1,234", 12340}, {"1.234,56", 12345600},
        {"123.456,78", 1234567800}, {"1.234.567", 12345670000}, {"1.234.567,89", 12345678900},
        {"-1.234,5", -12345000}, {"\t7,5\n", 75000}, {",5", 5000}, {"0,0001", 1}};
    // clang-format on
    for (const auto& [text, unitati] : cazuri) {
        try {
            EXPECT_EQ(SumaText(T(text)).Unitati(), unitati) << text;
        } catch (const Eroare& e) {
            ADD_FAILURE() << text << ": " << e.what();
        }
    }
    for (const char* gresit : {"", "   ", "12a", "12 5", "1,2,3", "1,234.56", "1.23,4", "12..5", "1.234.56",
                               "1234.567,8", "--5", "-", ".", "1.234,5,6", "12,5 lei"}) {
        try {
            const Bani b = SumaText(T(gresit));
            ADD_FAILURE() << '"' << gresit << "\" citit ca " << b.Text().toStdString();
        } catch (const Eroare& e) {
            EXPECT_TRUE(e.text().contains(T(gresit))) << e.what();
        }
    }
}

} // namespace
