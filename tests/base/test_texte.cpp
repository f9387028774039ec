#include "base/Texte.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

namespace {

TEST(Texte, DoarCifreleAsciiSuntCifre) {
    for (char16_t c = u'0'; c <= u'9'; ++c)
        EXPECT_TRUE(EsteCifra(QChar(c)));
    for (char16_t c : {u'/', u':', u' ', u'a', u'O', u'\u0660', u'\u0669', u'\uFF10', u'\u00B2'})
        EXPECT_FALSE(EsteCifra(QChar(c))) << int(c);
}

TEST(Texte, IntreLimiteDouaCifreSiData) {
    const struct {
        const char* text;
        double jos, sus;
        bool inauntru;
    } cazuri[] = {
        {"1", 1, 10, true},     {"10", 1, 10, true},   {"0", 1, 10, false},     {"11", 1, 10, false},
        {"10.5", 1, 10, false}, {"10,5", 1, 10, true}, {" 1 0 ", 1, 10, true},  {"abc", 1, 10, false},
        {"abc", 0, 10, true},   {"-3", -5, -1, true},  {"0.999", 1, 10, false},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(IntreLimite(T(c.text), c.jos, c.sus), c.inauntru) << c.text << " in " << c.jos << ".." << c.sus;
    const std::pair<int, const char*> doua[] = {{0, "00"}, {7, "07"},  {10, "10"}, {99, "99"},
                                                {100, ""}, {-1, "-1"}, {-10, ""}};
    for (const auto& [n, text] : doua)
        EXPECT_EQ(Doua(n), T(text)) << n;
    EXPECT_EQ(FormatData(QDate(1985, 3, 5)), T("05.03.1985"));
    EXPECT_EQ(FormatData(QDate()), QString());
}

TEST(Texte, MajusculeInNume) {
    // clang-format off
    const std::pair<const char*, const char*> proprii[] = {
        {"iOn pOpEsCu", "Ion Popescu"}, {"ANA-MARIA POP-IONESCU", "Ana-Maria Pop-Ionescu"}, {"ana - maria", "Ana - Maria"},
        {"ȘTEFĂNESCU-ȚIRIAC", "Ștefănescu-Țiriac"}, {"ăla îți ÂNCĂ", "Ăla Îți Âncă"}, {"ŞERBAN ŢEPEŞ", "Şerban Ţepeş"},
        {"  dan  ion ", "  Dan  Ion "}, {"ion\tpop", "Ion\tPop"}, {"str. mihai nr. 3", "Str. Mihai Nr. 3"}, {"", ""}};
    // clang-format on
    for (const auto& [text, rezultat] : proprii)
        EXPECT_EQ(NumeProprii(T(text)), T(rezultat)) << text;
    const std::pair<const char*, const char*> prima[] = {
        {"ion POP", "Ion POP"}, {"țară", "Țară"}, {"âna-maria", "Âna-maria"},
        {"1abc", "1abc"},       {" ion", " ion"}, {"", ""},
    };
    for (const auto& [text, rezultat] : prima)
        EXPECT_EQ(MajusculaPrima(T(text)), T(rezultat)) << text;
}

} // namespace
