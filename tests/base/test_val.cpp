#include "base/Val.h"

#include <QString>
#include <gtest/gtest.h>

TEST(Val, RegulaNumaruluiDeLaInceput) {
    struct {
        const char* text;
        double valoare;
    } cazuri[] = {
        {"12", 12},    {"  12  ", 12}, {"1 2 3", 123}, {"12,5", 12}, {"12.5", 12.5}, {"12.5.3", 12.5},
        {"-7", -7},    {"+7", 7},      {"- 7", -7},    {"abc", 0},   {"", 0},        {"3abc", 3},
        {"1e3", 1000}, {"1E-2", 0.01}, {"2d2", 200},   {"1e", 1},    {"&H1F", 31},   {"&o17", 15},
        {".5", 0.5},   {"007", 7},     {"\t4\n2", 42}, {"1,234", 1}, {"--1", 0},
    };
    for (const auto& c : cazuri)
        EXPECT_DOUBLE_EQ(Val(QString::fromLatin1(c.text)), c.valoare) << '"' << c.text << '"';
}
