#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "cases/Cnp.h"
#include "cases/CalculCuantum.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

// The recorder keeps texts only; these functions also promise a box title.
class MesajeCuTitlu : public MesajeInregistrate {
public:
    void Critic(const QString& text, const QString& titlu = {}) override {
        titluri << titlu;
        MesajeInregistrate::Critic(text, titlu);
    }
    QStringList titluri;
};

// Valid codes for the tables; the control digit itself is pinned by the hand-computed codes of
// CnpCifraDeControl.
QString CuControl(const QString& douasprezece) {
    return douasprezece + QString::number(CifraControlCnp(douasprezece));
}

const QString Lungime = T("CNP invalid.\nNr caractere insuficiente");
const QString NuENumar = T("CNP invalid.\nCodul numeric personal nu este un numar");
const QString LunaGresita = T("CNP invalid.\nLUNA nasterii din CNP nu este una valida.");
const QString ZiGresita = T("CNP invalid.\nZIUA nasterii din CNP nu este una valida.");
const QString JudetSauControl = T("CNP invalid.\nCNP-ul e posibil sa aiba codul judetului incorect.");

struct CazCnp {
    QString cod;
    QString mesaj; // empty: a valid code
};

// One call with a recorder and one silent call must agree; the recorder holds one box at most.
void VerificaCaz(const CazCnp& c) {
    MesajeCuTitlu m;
    const bool valid = VerificaCNP(c.cod, &m);
    EXPECT_EQ(valid, c.mesaj.isEmpty()) << c.cod.toStdString();
    if (c.mesaj.isEmpty()) {
        EXPECT_TRUE(m.mesaje.empty()) << c.cod.toStdString();
    } else {
        EXPECT_EQ(m.Texte(Mesaje::Fel::Critic), QStringList{c.mesaj}) << c.cod.toStdString();
        EXPECT_EQ(m.mesaje.size(), 1u) << c.cod.toStdString();
        EXPECT_EQ(m.titluri, QStringList{T("CNP")}) << c.cod.toStdString();
    }
    EXPECT_EQ(VerificaCNP(c.cod, nullptr), valid) << c.cod.toStdString();
}

TEST(CnpCifraDeControl, CoduriCalculateDeMana) {
    // 1*2+9*7+6*9+0*1+5*4+2*6+9*3+4*5+6*8+0*2+0*7+1*9 = 255; 255 mod 11 = 2.
    ASSERT_EQ(CifraControlCnp(T("196052946001")), 2);
    // The same code with 8 as its twelfth digit adds 7*9: 318 mod 11 = 10, written as 1.
    ASSERT_EQ(CifraControlCnp(T("196052946008")), 1);
    const CazCnp cazuri[] = {
        {T("1960529460012"), {}},
        {T("1960529460013"), JudetSauControl},
        {T("1960529460081"), {}},
        // 10 is not written as its last digit
        {T("1960529460080"), JudetSauControl},
        {T("1960529460089"), JudetSauControl},
    };
    for (const auto& c : cazuri)
        VerificaCaz(c);
}

TEST(CnpVerificare, FiecareRegulaCuTextulEiPrimaIncalcataSpusa) {
    const CazCnp cazuri[] = {
        {T(""), Lungime},
        {T("196052946001"), Lungime},
        {T("19605294600120"), Lungime},
        {T("1960529460012 "), Lungime},
        {T("196052946001A"), NuENumar},
        {T("1960529 60012"), NuENumar},
        {T("+960529460012"), NuENumar},
        {T("-960529460012"), NuENumar},
        {T("1960529460.12"), NuENumar},
        // digits of other scripts: Arabic-Indic two, full-width two
        {T("196052946001\u0662"), NuENumar},
        {T("196052946001\uFF12"), NuENumar},
        {CuControl(T("196002946001")), LunaGresita},
        {CuControl(T("196132946001")), LunaGresita},
        {CuControl(T("196992946001")), LunaGresita},
        {CuControl(T("196050046001")), ZiGresita},
        {CuControl(T("196053246001")), ZiGresita},
        // the first digit and the running number are not looked at
        {CuControl(T("096052946001")), {}},
        {CuControl(T("996052946001")), {}},
        {CuControl(T("196052946000")), {}},
        {CuControl(T("196052946999")), {}},
        // several rules broken: the first one is told. Too short and not a number
        {T("19605294600A"), Lungime},
        // not a number, month 13, day 32
        {T("1961332A60012"), NuENumar},
        // month 13 and day 32
        {CuControl(T("196133246001")), LunaGresita},
        // day 32 and county 48
        {CuControl(T("196013248001")), ZiGresita},
        // 30 February and county 48
        {CuControl(T("196023048001")), ZiGresita},
    };
    for (const auto& c : cazuri)
        VerificaCaz(c);
}

TEST(CnpVerificare, UltimaZiAFiecareiLuni) {
    // February takes the 29th in any year, whatever the first digit makes of the century.
    const int ultimaZi[12] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (const QString& an : {T("100"), T("101"), T("500"), T("501"), T("323")}) {
        for (int luna = 1; luna <= 12; ++luna) {
            const QString ll = QStringLiteral("%1").arg(luna, 2, 10, QLatin1Char('0'));
            const QString ultima = QString::number(ultimaZi[luna - 1]);
            const QString urmatoarea = QString::number(ultimaZi[luna - 1] + 1);
            VerificaCaz({CuControl(an + ll + ultima + T("46001")), {}});
            VerificaCaz({CuControl(an + ll + urmatoarea + T("46001")), ZiGresita});
        }
    }
}

TEST(CnpVerificare, CoduriDeJudet) {
    struct {
        const char* judet;
        bool valid;
    } cazuri[] = {{"00", false}, {"01", true},  {"09", true},  {"40", true},  {"46", true},
                  {"47", true},  {"48", false}, {"49", false}, {"50", false}, {"51", true},
                  {"52", true},  {"53", false}, {"70", false}, {"98", false}, {"99", true}};
    for (const auto& c : cazuri)
        VerificaCaz({CuControl(T("1960529") + T(c.judet) + T("001")), c.valid ? QString() : JudetSauControl});
}

TEST(CnpCifre, DoarCifreleAscii) {
    for (char16_t c = u'0'; c <= u'9'; ++c)
        EXPECT_TRUE(EsteCifra(QChar(c)));
    for (char16_t c : {u'/', u':', u' ', u'a', u'O', u'\u0660', u'\u0669', u'\uFF10', u'\u00B2'})
        EXPECT_FALSE(EsteCifra(QChar(c))) << int(c);
}

TEST(FunctiiNumere, IntreLimiteCuVal) {
    struct {
        const char* text;
        double jos, sus;
        bool inauntru;
    } cazuri[] = {
        {"5", 1, 10, true},    {"1", 1, 10, true},     {"10", 1, 10, true},   {"0", 1, 10, false},
        {"11", 1, 10, false},  {"10.5", 1, 10, false}, {"10,5", 1, 10, true}, {" 1 0 ", 1, 10, true},
        {"abc", 1, 10, false}, {"abc", 0, 10, true},   {"-3", -5, -1, true},  {"0.999", 1, 10, false},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(IntreLimite(T(c.text), c.jos, c.sus), c.inauntru) << c.text << " in " << c.jos << ".." << c.sus;
}

struct CazData {
    const char* cnp;
    bool adauga18;
    QDate data;
    const char* mesaj;
};

TEST(FunctiiDataNasterii, SecolulLunaSiZiua) {
    const CazData cazuri[] = {
        {"1850315460012", false, QDate(1985, 3, 15), nullptr},
        {"2850315460012", false, QDate(1985, 3, 15), nullptr},
        {"5050315460012", false, QDate(2005, 3, 15), nullptr},
        {"6050315460012", false, QDate(2005, 3, 15), nullptr},
        // every other first digit gives no century at all
        {"0850315460012", false, QDate(85, 3, 15), nullptr},
        {"3850315460012", false, QDate(85, 3, 15), nullptr},
        {"4850315460012", false, QDate(85, 3, 15), nullptr},
        {"7850315460012", false, QDate(85, 3, 15), nullptr},
        {"8850315460012", false, QDate(85, 3, 15), nullptr},
        {"9850315460012", false, QDate(85, 3, 15), nullptr},
        {"1850315460012", true, QDate(2003, 3, 15), nullptr},
        {"6050315460012", true, QDate(2023, 3, 15), nullptr},
        {"3850315460012", true, QDate(103, 3, 15), nullptr},
        {"1991231460012", true, QDate(2017, 12, 31), nullptr},
        // year 0 does not exist; eighteen years later does
        {"3000315460012", false, QDate(), nullptr},
        {"3000315460012", true, QDate(18, 3, 15), nullptr},
        // month and day outside the calendar
        {"1851315460012", false, QDate(), "Luna incorecta"},
        {"1859915460012", true, QDate(), "Luna incorecta"},
        {"1850132460012", false, QDate(), "Zi incorecta"},
        {"1850199460012", false, QDate(), "Zi incorecta"},
        // month checked first
        {"1851332460012", false, QDate(), "Luna incorecta"},
        // a day past the month's end rolls into the next month
        {"1850431460012", false, QDate(1985, 5, 1), nullptr},
        {"1851131460012", false, QDate(1985, 12, 1), nullptr},
        {"1850231460012", false, QDate(1985, 3, 3), nullptr},
        {"1850229460012", false, QDate(1985, 3, 1), nullptr},
        {"1840229460012", false, QDate(1984, 2, 29), nullptr},
        // born 29 February 2000, no 29 February in 2018
        {"6000229460012", true, QDate(2018, 3, 1), nullptr},
        {"6000229460012", false, QDate(2000, 2, 29), nullptr},
        // a 00 day or month borrows from the one before
        {"1850300460012", false, QDate(1985, 2, 28), nullptr},
        {"1850015460012", false, QDate(1984, 12, 15), nullptr},
        // too short to hold a date
        {"185031", false, QDate(), nullptr},
        {"", true, QDate(), nullptr},
    };
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        const QDate d = DataNasterii(T(c.cnp), c.adauga18, &m);
        EXPECT_EQ(d, c.data) << c.cnp << " +18=" << c.adauga18 << " -> " << d.toString(Qt::ISODate).toStdString();
        const QStringList asteptate = c.mesaj ? QStringList{T(c.mesaj)} : QStringList{};
        EXPECT_EQ(m.Texte(), asteptate) << c.cnp;
        EXPECT_EQ(DataNasterii(T(c.cnp), c.adauga18, nullptr), c.data) << c.cnp;
    }
}

TEST(FunctiiDataNasterii, TextCuNumeleLunii) {
    const char* luni[12] = {"Ianuarie", "Februarie", "Martie",     "Aprilie",   "Mai",       "Iunie",
                            "Iulie",    "August",    "Septembrie", "Octombrie", "Noiembrie", "Decembrie"};
    for (int luna = 1; luna <= 12; ++luna) {
        const QString cod = T("290") + QStringLiteral("%1").arg(luna, 2, 10, QLatin1Char('0')) + T("07460012");
        EXPECT_EQ(DataNasteriiText(cod), QStringLiteral("7 %1 1990").arg(T(luni[luna - 1]))) << cod.toStdString();
    }
    EXPECT_EQ(DataNasteriiText(T("5121231460012")), T("31 Decembrie 2012"));
    EXPECT_EQ(DataNasteriiText(T("1850431460012")), T("1 Mai 1985"));
    EXPECT_EQ(DataNasteriiText(T("")), QString());
    EXPECT_EQ(DataNasteriiText(T("0000000000000")), QString());
    EXPECT_EQ(DataNasteriiText(T("abc")), QString());
    // a date could be read from it, but the code as a number is not above 0
    EXPECT_EQ(DataNasteriiText(T("-850315460012")), QString());
    EXPECT_EQ(DataNasteriiText(T("1851315460012")), QString());
    EXPECT_EQ(LuniAn().size(), 12);
}

TEST(FunctiiVarsta, DoarLunileConteaza) {
    const QString negativa = T("Varsta e negativa pentru ca Luna setata este anterioara lunii nasterii!");
    struct {
        QDate referinta, nastere;
        int varsta;
        bool negativa;
    } cazuri[] = {
        {QDate(2024, 6, 1), QDate(2000, 5, 31), 24, false},
        // the birthday's month: still a year younger, even on the last day or after the birthday
        {QDate(2024, 6, 30), QDate(2000, 6, 1), 23, false},
        {QDate(2024, 6, 1), QDate(2000, 6, 30), 23, false},
        {QDate(2024, 6, 1), QDate(2000, 7, 1), 23, false},
        {QDate(2024, 1, 1), QDate(2023, 12, 31), 0, false},
        {QDate(2024, 12, 31), QDate(2023, 12, 1), 0, false},
        {QDate(2025, 1, 1), QDate(2023, 12, 15), 1, false},
        {QDate(2024, 6, 1), QDate(2024, 5, 10), 0, false},
        {QDate(2024, 5, 31), QDate(2024, 5, 10), -1, true},
        {QDate(2024, 3, 1), QDate(2024, 5, 10), -1, true},
        {QDate(2020, 1, 1), QDate(2024, 5, 10), -5, true},
    };
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        const std::string caz =
            (c.referinta.toString(Qt::ISODate) + T(" / ") + c.nastere.toString(Qt::ISODate)).toStdString();
        EXPECT_EQ(Varsta(c.referinta, c.nastere, T("1960529460012"), &m), c.varsta) << caz;
        EXPECT_EQ(m.Texte(), c.negativa ? QStringList{negativa} : QStringList{}) << caz;
        EXPECT_EQ(Varsta(c.referinta, c.nastere, T("1960529460012"), nullptr), c.varsta) << caz;
    }
}

TEST(FunctiiVarsta, FaraDataNasterii) {
    struct {
        const char* cnp;
        const char* mesaj;
    } cazuri[] = {
        {"", "Nu s-a transmis Data Nasterii"},
        {"   ", "Nu s-a transmis Data Nasterii"},
        {"1960529460012", "Partea asta nu e facuta inca!"},
    };
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        EXPECT_EQ(Varsta(QDate(2024, 6, 1), QDate(), T(c.cnp), &m), 0) << c.cnp;
        EXPECT_EQ(m.Texte(), QStringList{T(c.mesaj)}) << c.cnp;
        EXPECT_EQ(Varsta(QDate(2024, 6, 1), QDate(), T(c.cnp), nullptr), 0);
    }
    EXPECT_THROW(Varsta(QDate(), QDate(2000, 1, 1), T("1000101460012"), nullptr), Eroare);
}

TEST(FunctiiFormat, Doua) {
    struct {
        int n;
        const char* text;
    } cazuri[] = {{0, "00"},  {7, "07"}, {9, "09"},  {10, "10"}, {31, "31"},
                  {99, "99"}, {100, ""}, {2024, ""}, {-1, "-1"}, {-10, ""}};
    for (const auto& c : cazuri)
        EXPECT_EQ(Doua(c.n), T(c.text)) << c.n;
}

TEST(FunctiiFormat, FormatSumaDinBani) {
    struct {
        std::int64_t unitati;
        const char* text;
    } cazuri[] = {
        {120000, "12.00"},     {125000, "12.50"},           {120500, "12.05"},
        {123450, "12.345"},    {123456, "12.3456"},         {0, "0.00"},
        {5000, "0.50"},        {-35000, "-3.50"},           {-100, "-0.01"},
        {1000000, "100.00"},   {10000001000, "1000000.10"}, {1, "0.0001"},
        {-1250000, "-125.00"},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(FormatSuma(Bani::DinUnitati(c.unitati)), T(c.text)) << c.unitati;
}

TEST(FunctiiFormat, FormatSumaDinText) {
    struct {
        const char* numar;
        const char* text;
    } cazuri[] = {
        {"12", "12.00"},     {"12,5", "12.50"}, {"12.5", "12.50"},  {"12.05", "12.05"},
        {"-12,5", "-12.50"}, {"12.", "12.00"},  {"0.125", "0.125"}, {"7,25", "7.25"},
        {"-7", "-7.00"},     {" 3,1 ", "3.10"}, {"-0", "0.00"},     {"-0,0", "0.00"},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(FormatSuma(T(c.numar)), T(c.text)) << c.numar;
}

TEST(FunctiiFormat, FormatData) {
    EXPECT_EQ(FormatData(QDate(1985, 3, 5)), T("05.03.1985"));
    EXPECT_EQ(FormatData(QDate(2024, 12, 31)), T("31.12.2024"));
    EXPECT_EQ(FormatData(QDate()), QString());
}

TEST(FunctiiNume, NumeProprii) {
    struct {
        const char* text;
        const char* rezultat;
    } cazuri[] = {
        {"ion popescu", "Ion Popescu"},
        {"ION POPESCU", "Ion Popescu"},
        {"iOn pOpEsCu", "Ion Popescu"},
        {"ana-maria", "Ana-Maria"},
        {"ANA-MARIA POP-IONESCU", "Ana-Maria Pop-Ionescu"},
        {"ana - maria", "Ana - Maria"},
        {"ștefan țurcanu", "Ștefan Țurcanu"},
        {"ȘTEFĂNESCU-ȚIRIAC", "Ștefănescu-Țiriac"},
        {"ăla îți ÂNCĂ", "Ăla Îți Âncă"},
        {"ŞERBAN ŢEPEŞ", "Şerban Ţepeş"},
        {"  dan  ion ", "  Dan  Ion "},
        {"ion\tpop", "Ion\tPop"},
        {"str. mihai viteazu nr. 3", "Str. Mihai Viteazu Nr. 3"},
        {"a", "A"},
        {"", ""},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(NumeProprii(T(c.text)), T(c.rezultat)) << c.text;
}

TEST(FunctiiNume, MajusculaPrima) {
    struct {
        const char* text;
        const char* rezultat;
    } cazuri[] = {
        {"ion POP", "Ion POP"}, {"ștefan", "Ștefan"}, {"țară", "Țară"}, {"ănă", "Ănă"}, {"âna-maria", "Âna-maria"},
        {"Ana", "Ana"},         {"1abc", "1abc"},     {" ion", " ion"}, {"", ""},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(MajusculaPrima(T(c.text)), T(c.rezultat)) << c.text;
}

TEST(FunctiiRotunjire, RotunjireSusBani) {
    struct {
        std::int64_t unitati;
        std::int64_t rezultat;
    } cazuri[] = {
        {1720001, 173}, {1720000, 172}, {1725000, 173}, {1729999, 173}, {0, 0},
        {1, 1},         {-25000, -2},   {-20000, -2},   {-1, 0},        {10000, 1},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(RotunjireSus(Bani::DinUnitati(c.unitati)), c.rezultat) << c.unitati;
}

TEST(FunctiiRotunjire, RotunjireSusReal) {
    struct {
        double x;
        double rezultat;
    } cazuri[] = {
        {172.0001, 173},
        {172.0, 172},
        {172.5, 173},
        {0.0, 0},
        {0.1 + 0.2, 1},
        {0.00001, 1},
        {-2.5, -2},
        {-2.0, -2},
        // residues below the fifteenth significant digit are not decimals
        {3.0000000000000004, 3},
        {2.9999999999999996, 3},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(RotunjireSus(c.x), c.rezultat) << c.x;
}

TEST(FunctiiSumaText, PunctSiVirgula) {
    struct {
        const char* text;
        std::int64_t unitati;
    } cazuri[] = {
        {"12,5", 125000},
        {"12.5", 125000},
        {"210.2", 2102000},
        {"557,03", 5570300},
        {"1.234", 12340},
        {"1,234", 12340},
        {"1.234,56", 12345600},
        {"12.345,6", 123456000},
        {"123.456,78", 1234567800},
        {"1.234.567", 12345670000},
        {"1.234.567,89", 12345678900},
        {"-1.234,5", -12345000},
        {"-12,5", -125000},
        {" 7 ", 70000},
        {"\t7,5\n", 75000},
        {",5", 5000},
        {"0", 0},
        {"0,0001", 1},
        {"100", 1000000},
    };
    for (const auto& c : cazuri) {
        try {
            EXPECT_EQ(SumaText(T(c.text)).Unitati(), c.unitati) << c.text;
        } catch (const Eroare& e) {
            ADD_FAILURE() << c.text << ": " << e.what();
        }
    }
}

TEST(FunctiiSumaText, TextGresitAruncaEroare) {
    const char* cazuri[] = {"",         "   ",    "abc",   "12a",       "12 5",     "1,2,3",
                            "1,234.56", "1.23,4", "12..5", "1.2.3",     "1.234.56", "1234.567,8",
                            "--5",      "-",      ".",     "1.234,5,6", "12,5 lei", "x1.234,5"};
    for (const char* c : cazuri) {
        try {
            const Bani b = SumaText(T(c));
            ADD_FAILURE() << '"' << c << "\" citit ca " << b.Text().toStdString();
        } catch (const Eroare& e) {
            EXPECT_TRUE(e.text().contains(T(c))) << e.what();
        }
    }
}

class PraguriVenitBaza : public TestBaza {
protected:
    void Schimba(const QVariant& continut) {
        ExecutaCu(Bd(), QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"), continut,
                  "PRAGURI_VENIT");
    }
};

// The delivered text, each stored text in turn, then no row at all.
TEST_P(PraguriVenitBaza, TextulSalvatOriEroare) {
    BazaDate& db = BazaNoua();
    const QString formatGresit = T("Format praguri gresit!");
    const QString douaPraguri = T("Format praguri gresit!\nTrebuie cel putin doua praguri.");
    const QString nedefinite = T("Nu sunt definite praguri venit!");
    struct {
        std::optional<QVariant> continut; // none: the row is deleted
        QString rezultat;                 // empty: the message below
        QString mesaj;
    } cazuri[] = {
        {T("210.2|557.03"), T("210.2|557.03"), {}},
        {T("100|200|300"), T("100|200|300"), {}},
        {T(" 100 | 200 "), T(" 100 | 200 "), {}},
        {QVariant(), {}, nedefinite},
        {T(""), {}, nedefinite},
        {T("  \t "), {}, nedefinite},
        {T("210.2"), {}, formatGresit},
        {T("210.2;557.03"), {}, formatGresit},
        {T("210.2|"), {}, douaPraguri},
        {T("|557.03"), {}, douaPraguri},
        {T("|"), {}, douaPraguri},
        {T(" | "), {}, douaPraguri},
        {std::nullopt, {}, T("PRAGURI_VENIT nu exista!")},
    };
    MesajeCuTitlu livrat;
    EXPECT_EQ(PraguriVenit(db, livrat), cazuri[0].rezultat) << "as delivered";
    EXPECT_TRUE(livrat.mesaje.empty());
    for (const auto& c : cazuri) {
        const std::string caz = c.continut ? c.continut->toString().toStdString() : "(fara rand)";
        if (c.continut)
            Schimba(*c.continut);
        else
            ExecutaCu(db, QStringLiteral("DELETE FROM DateGen WHERE Denumire = ?"), "PRAGURI_VENIT");
        MesajeCuTitlu m;
        EXPECT_EQ(PraguriVenit(db, m), c.rezultat) << caz;
        if (c.mesaj.isEmpty()) {
            EXPECT_TRUE(m.mesaje.empty()) << caz;
        } else {
            EXPECT_EQ(m.Texte(Mesaje::Fel::Critic), QStringList{c.mesaj}) << caz;
            EXPECT_EQ(m.mesaje.size(), 1u) << caz;
            EXPECT_EQ(m.titluri, QStringList{T("Eroare")}) << caz;
        }
    }
}

PE_AMBELE_MOTOARE(PraguriVenitBaza);

} // namespace
