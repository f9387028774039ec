#include "base/Eroare.h"
#include "cases/Cnp.h"
#include "support/MesajeInregistrate.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

namespace {

// The code check promises a box title as well.
class MesajeCuTitlu : public MesajeInregistrate {
public:
    void Critic(const QString& text, const QString& titlu = {}) override {
        titluri << titlu;
        MesajeInregistrate::Critic(text, titlu);
    }
    QStringList titluri;
};

// Valid codes for the tables; the control digit itself is pinned by the hand-computed codes.
QString CuControl(const QString& douasprezece) {
    return douasprezece + QString::number(CifraControlCnp(douasprezece));
}

const QString Lungime = T("CNP invalid.\nNr caractere insuficiente");
const QString NuENumar = T("CNP invalid.\nCodul numeric personal nu este un numar");
const QString LunaGresita = T("CNP invalid.\nLUNA nasterii din CNP nu este una valida.");
const QString ZiGresita = T("CNP invalid.\nZIUA nasterii din CNP nu este una valida.");
const QString JudetSauControl = T("CNP invalid.\nCNP-ul e posibil sa aiba codul judetului incorect.");

// One box at most, titled "CNP", and a silent call that agrees; an empty mesaj is a valid code.
void VerificaCaz(const QString& cod, const QString& mesaj) {
    MesajeCuTitlu m;
    const bool valid = VerificaCNP(cod, &m);
    EXPECT_EQ(valid, mesaj.isEmpty()) << S(cod);
    EXPECT_EQ(m.Texte(Mesaje::Fel::Critic), mesaj.isEmpty() ? QStringList() : QStringList{mesaj}) << S(cod);
    EXPECT_EQ(m.mesaje.size(), mesaj.isEmpty() ? 0u : 1u) << S(cod);
    EXPECT_EQ(m.titluri, mesaj.isEmpty() ? QStringList() : QStringList{T("CNP")}) << S(cod);
    EXPECT_EQ(VerificaCNP(cod, nullptr), valid) << S(cod);
}

// The control digit is 10 written as 1, not as its last digit; digits of other scripts are no digits; the
// first digit and the running number are not looked at; of several rules broken the first is told.
TEST(Cnp, FiecareRegulaCuTextulEiPrimaIncalcataSpusa) {
    // 1*2+9*7+6*9+0*1+5*4+2*6+9*3+4*5+6*8+0*2+0*7+1*9 = 255; 255 mod 11 = 2.
    ASSERT_EQ(CifraControlCnp(T("196052946001")), 2);
    // The same code with 8 as its twelfth digit adds 7*9: 318 mod 11 = 10, written as 1.
    ASSERT_EQ(CifraControlCnp(T("196052946008")), 1);
    const QString valid;
    // clang-format off
    const std::pair<QString, QString> cazuri[] = {
        {T("1960529460012"), valid}, {T("1960529460013"), JudetSauControl}, {T("1960529460081"), valid},
        {T("1960529460080"), JudetSauControl}, {T(""), Lungime}, {T("196052946001"), Lungime},
        {T("1960529460012 "), Lungime}, {T("196052946001A"), NuENumar}, {T("+960529460012"), NuENumar},
        {T("1960529460.12"), NuENumar}, {T("196052946001\u0662"), NuENumar}, {T("196052946001\uFF12"), NuENumar},
        {CuControl(T("196002946001")), LunaGresita}, {CuControl(T("196132946001")), LunaGresita},
        {CuControl(T("196050046001")), ZiGresita}, {CuControl(T("196053246001")), ZiGresita},
        {CuControl(T("096052946001")), valid}, {CuControl(T("996052946000")), valid},
        {T("19605294600A"), Lungime}, {T("1961332A60012"), NuENumar}, {CuControl(T("196133246001")), LunaGresita},
        {CuControl(T("196013248001")), ZiGresita}, {CuControl(T("196023048001")), ZiGresita}};
    // clang-format on
    for (const auto& [cod, mesaj] : cazuri)
        VerificaCaz(cod, mesaj);
    const std::pair<const char*, bool> judete[] = {{"00", false}, {"01", true},  {"46", true}, {"47", true},
                                                   {"48", false}, {"50", false}, {"51", true}, {"52", true},
                                                   {"53", false}, {"98", false}, {"99", true}};
    for (const auto& [judet, bun] : judete)
        VerificaCaz(CuControl(T("1960529") + T(judet) + T("001")), bun ? valid : JudetSauControl);
}

TEST(Cnp, UltimaZiAFiecareiLuni) {
    // February takes the 29th in any year, whatever the first digit makes of the century.
    const int ultimaZi[12] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    for (const QString& an : {T("100"), T("501"), T("323")}) {
        for (int luna = 1; luna <= 12; ++luna) {
            const QString ll = T("%1").arg(luna, 2, 10, QLatin1Char('0'));
            VerificaCaz(CuControl(an + ll + QString::number(ultimaZi[luna - 1]) + T("46001")), {});
            VerificaCaz(CuControl(an + ll + QString::number(ultimaZi[luna - 1] + 1) + T("46001")), ZiGresita);
        }
    }
}

// Only 1, 2, 5, 6 tell a century; a day or month past its end rolls forward, a 00 one back; the month is
// checked first; too short a code holds no date. The text has the month's name, and needs a code above 0.
TEST(Cnp, DataNasteriiSecolulSiDepasirile) {
    // clang-format off
    const struct {
        const char* cnp;
        bool adauga18;
        QDate data;
        const char* mesaj;
    } cazuri[] = {
        {"1850315460012", false, QDate(1985, 3, 15), nullptr}, {"2850315460012", false, QDate(1985, 3, 15), nullptr},
        {"5050315460012", false, QDate(2005, 3, 15), nullptr}, {"6050315460012", true, QDate(2023, 3, 15), nullptr},
        {"0850315460012", false, QDate(85, 3, 15), nullptr},   {"3850315460012", true, QDate(103, 3, 15), nullptr},
        {"9850315460012", false, QDate(85, 3, 15), nullptr},   {"3000315460012", false, QDate(), nullptr},
        {"3000315460012", true, QDate(18, 3, 15), nullptr},    {"1851315460012", false, QDate(), "Luna incorecta"},
        {"1859915460012", true, QDate(), "Luna incorecta"},    {"1850132460012", false, QDate(), "Zi incorecta"},
        {"1851332460012", false, QDate(), "Luna incorecta"},   {"1850431460012", false, QDate(1985, 5, 1), nullptr},
        {"1850231460012", false, QDate(1985, 3, 3), nullptr},  {"1850229460012", false, QDate(1985, 3, 1), nullptr},
        {"1840229460012", false, QDate(1984, 2, 29), nullptr}, {"6000229460012", true, QDate(2018, 3, 1), nullptr},
        {"1850300460012", false, QDate(1985, 2, 28), nullptr}, {"1850015460012", false, QDate(1984, 12, 15), nullptr},
        {"185031", false, QDate(), nullptr},                   {"", true, QDate(), nullptr}};
    // clang-format on
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        const QDate d = DataNasterii(T(c.cnp), c.adauga18, &m);
        EXPECT_EQ(d, c.data) << c.cnp << " +18=" << c.adauga18 << " -> " << S(d.toString(Qt::ISODate));
        EXPECT_EQ(m.Texte(), c.mesaj ? QStringList{T(c.mesaj)} : QStringList{}) << c.cnp;
        EXPECT_EQ(DataNasterii(T(c.cnp), c.adauga18, nullptr), c.data) << c.cnp;
        // The day of turning 18 from a birth date falls where the code's own +18 reading falls.
        if (const QDate nastere = DataNasterii(T(c.cnp), false, nullptr); c.adauga18 && nastere.isValid()) {
            EXPECT_EQ(ZiuaMajoratului(nastere), c.data) << c.cnp;
        }
    }
    const std::pair<const char*, const char*> texte[] = {{"2900107460012", "7 Ianuarie 1990"},
                                                         {"5121231460012", "31 Decembrie 2012"},
                                                         {"1850431460012", "1 Mai 1985"},
                                                         {"0000000000000", ""},
                                                         {"abc", ""},
                                                         {"1851315460012", ""},
                                                         {"-850315460012", ""}};
    for (const auto& [cnp, text] : texte)
        EXPECT_EQ(DataNasteriiText(T(cnp)), T(text)) << cnp;
}

// In the birthday's month the person is still a year younger, even on its last day.
TEST(Cnp, VarstaNumaraDoarLunile) {
    const QString negativa = T("Varsta e negativa pentru ca Luna setata este anterioara lunii nasterii!");
    const struct {
        QDate referinta, nastere;
        int varsta;
    } cazuri[] = {
        {QDate(2024, 6, 1), QDate(2000, 5, 31), 24}, {QDate(2024, 6, 30), QDate(2000, 6, 1), 23},
        {QDate(2024, 6, 1), QDate(2000, 7, 1), 23},  {QDate(2024, 1, 1), QDate(2023, 12, 31), 0},
        {QDate(2025, 1, 1), QDate(2023, 12, 15), 1}, {QDate(2024, 5, 31), QDate(2024, 5, 10), -1},
        {QDate(2020, 1, 1), QDate(2024, 5, 10), -5},
    };
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        const std::string caz = S(c.referinta.toString(Qt::ISODate) + T(" / ") + c.nastere.toString(Qt::ISODate));
        EXPECT_EQ(Varsta(c.referinta, c.nastere, T("1960529460012"), &m), c.varsta) << caz;
        EXPECT_EQ(m.Texte(), c.varsta < 0 ? QStringList{negativa} : QStringList{}) << caz;
        EXPECT_EQ(Varsta(c.referinta, c.nastere, T("1960529460012"), nullptr), c.varsta) << caz;
    }
    // Without a birth date: 0 after a message.
    for (const char* cnp : {"", "   ", "1960529460012"}) {
        MesajeInregistrate m;
        EXPECT_EQ(Varsta(QDate(2024, 6, 1), QDate(), T(cnp), &m), 0) << cnp;
        EXPECT_EQ(m.mesaje.size(), 1u) << cnp;
    }
    EXPECT_THROW(Varsta(QDate(), QDate(2000, 1, 1), T("1000101460012"), nullptr), Eroare);
}

} // namespace
