#include "base/Eroare.h"
#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/Texte.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace Adeverinte;

const TipuriAdeverinte
    Tipuri({{1, T("AJOFM (somaj)")}, {2, T("Finante")}, {3, T("de la scoala (pt elevi)")}, {6, T("venit net")}});

DateAct Act(int tip, const char* nr, QDate emisa, QDate depusa, QDate expira) {
    return {tip, Tipuri.Text(tip), T(nr), emisa, depusa, expira};
}
AdeverintaMembru Rand(qint64 id, int tip, QDate expira, int curenta) {
    return {id, tip, QString::number(id), {}, {}, expira, curenta};
}

std::vector<int> Curente(const std::vector<AdeverintaMembru>& acte) {
    std::vector<int> r;
    for (const AdeverintaMembru& a : acte)
        r.push_back(a.AdvCurenta);
    return r;
}

// Text order is date order, across a day, a month and a year boundary; an empty date sorts first.
TEST(DateAdeverinte, reverseDateOrdoneazaTextulCaDatele) {
    const QDate ordonate[] = {QDate(), QDate(2023, 12, 31), QDate(2024, 1, 9), QDate(2024, 1, 10), QDate(2024, 10, 1)};
    for (size_t i = 1; i < std::size(ordonate); ++i)
        EXPECT_LT(reverseDate(ordonate[i - 1]), reverseDate(ordonate[i])) << i;
}

TEST(DateAdeverinte, convertToDatePrimesteFormeleCunoscuteSiRefuzaRestul) {
    const QDate martie5(2024, 3, 5);
    const struct {
        const char* text;
        QDate asteptat; // invalid: refused
    } cazuri[] = {
        // clang-format off
        {"05.03.2024", martie5}, {"05-03-2024", martie5}, {"5/3/2024", martie5}, {"05032024", martie5},
        {"  29.02.2024 ", QDate(2024, 2, 29)}, {"1-DECEMBRIE-2030", QDate(2030, 12, 1)},
        // No such day or month; two separators; a two-digit year; seven digits; an empty month; four
        // parts; a short month name; a sign; an Arabic-Indic five.
        {"", QDate()}, {"29.02.2023", QDate()}, {"00.01.2024", QDate()}, {"05.13.2024", QDate()},
        {"31022024", QDate()}, {"05.03/2024", QDate()}, {"05.03.24", QDate()}, {"0503202", QDate()},
        {"05..2024", QDate()}, {"05.03.2024.1", QDate()}, {"05.mar.2024", QDate()}, {"+5.03.2024", QDate()},
        {"\xd9\xa5.03.2024", QDate()},
        // clang-format on
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(convertToDate(T(c.text)), c.asteptat) << c.text;
    // The grid's own writing reads back.
    EXPECT_EQ(DataGrid(martie5), T("05-martie-2024"));
    EXPECT_EQ(convertToDate(DataGrid(QDate(2026, 12, 31))), QDate(2026, 12, 31));
}

// The checks of OK in order; a later field filled alone does not hide an earlier gap.
TEST(ActePersoana, VerificareaOpresteLaPrimaLipsaInOrdine) {
    DateAct d;
    const std::pair<std::function<void(DateAct&)>, const char*> pasi[] = {
        {[](DateAct&) {}, "cboTipAct"},
        {[](DateAct& a) { a.TipAdeverinta = 6; }, "txtNrAct"},
        {[](DateAct& a) { a.NrAdev = T("12/2024"); }, "dtpData_0"},
        {[](DateAct& a) { a.DataAdeverinta = QDate(2024, 5, 1); }, "dtpData_1"},
        {[](DateAct& a) { a.DataDepunerii = QDate(2024, 5, 3); }, "dtpData_2"},
        {[](DateAct& a) { a.DataExpAdev = QDate(2024, 8, 1); }, ""},
    };
    for (const auto& [completeaza, focus] : pasi) {
        completeaza(d);
        MesajeInregistrate m;
        EXPECT_EQ(VerificaAct(d, m), T(focus));
        EXPECT_EQ(m.Texte().size(), *focus ? 1 : 0);
    }
    MesajeInregistrate m;
    EXPECT_EQ(VerificaAct(Act(0, "1", {2024, 1, 1}, {2024, 1, 1}, {2024, 6, 1}), m), T("cboTipAct"));
    EXPECT_EQ(VerificaAct(Act(6, "1", {2024, 1, 1}, {}, {2024, 6, 1}), m), T("dtpData_1"));
}

// A duplicate: same kind and expiry, told; on a change only a moved expiry is searched.
TEST(ActePersoana, ExistaDubluriCautaTipulSiDataExpirarii) {
    const std::vector<AdeverintaMembru> acte = {Rand(11, 6, {2024, 6, 30}, 1), Rand(12, 6, {2023, 12, 31}, 0),
                                                Rand(13, 2, {2024, 12, 31}, 1)};
    const std::tuple<ModAct, int, int, QDate, bool> cazuri[] = {{ModAct::Adaugare, -1, 6, QDate(2023, 12, 31), true},
                                                                {ModAct::Adaugare, -1, 1, QDate(2024, 12, 31), false},
                                                                {ModAct::Modificare, 0, 6, QDate(2024, 6, 30), false},
                                                                {ModAct::Modificare, 0, 6, QDate(2023, 12, 31), true},
                                                                {ModAct::Modificare, 2, 6, QDate(2024, 12, 31), false}};
    for (const auto& [mod, index, tip, expira, gasit] : cazuri) {
        MesajeInregistrate m;
        EXPECT_EQ(ExistaDubluri(acte, mod, index, Act(tip, "X", {}, {}, expira), m), gasit) << index << " " << tip;
        EXPECT_EQ(m.mesaje.size(), gasit ? 1u : 0u);
    }
}

// The latest expiry of a kind is current; of equal dates or none, the higher row; other kinds left alone.
TEST(ActePersoana, AdeverintaCurentaEsteCeaCuUltimaExpirare) {
    std::vector<AdeverintaMembru> acte = {Rand(1, 6, {2020, 1, 1}, 1),
                                          Rand(2, 3, {2024, 5, 1}, 1),
                                          Rand(3, 3, {2024, 6, 30}, 0),
                                          Rand(4, 3, {2024, 6, 30}, 1),
                                          Rand(5, 3, {}, 1),
                                          Rand(6, 8, {}, 0),
                                          Rand(7, 8, {}, 1)};
    AdeverintaCurenta(acte, 3);
    AdeverintaCurenta(acte, 8);
    AdeverintaCurenta(acte, 5); // a kind with no row changes nothing
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 0, 1, 0, 0, 1, 0}));
    std::swap(acte[1], acte[3]);
    AdeverintaCurenta(acte, 3);
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 1, 0, 0, 0, 1, 0})) << "the latest, wherever it stands";
}

TEST(ActePersoana, OkAdaugaSauRescrieSiMarcheazaDinNou) {
    std::vector<AdeverintaMembru> acte;
    MesajeInregistrate m;
    int i = 0;
    for (const DateAct& a : {Act(3, "S-1", {2024, 9, 1}, {2024, 9, 3}, {2025, 1, 31}),
                             Act(3, "S-2", {2025, 1, 20}, {2025, 1, 21}, {2025, 6, 30}),
                             Act(6, "V-1", {2025, 1, 5}, {2025, 1, 6}, {2025, 3, 31})})
        EXPECT_EQ(OkAct(acte, ModAct::Adaugare, -1, a, m).Index, i++);
    EXPECT_EQ(acte[1], (AdeverintaMembru{0, 3, T("S-2"), {2025, 1, 20}, {2025, 1, 21}, {2025, 6, 30}, 1}));
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 1, 1}));

    // A change keeps the key; moving the expiry of S-1 past S-2 makes it the current one.
    acte[0].AdevID = 41;
    EXPECT_EQ(OkAct(acte, ModAct::Modificare, 0, Act(3, "S-1b", {2024, 9, 1}, {2024, 9, 3}, {2025, 9, 30}), m).Index,
              0);
    EXPECT_EQ(acte[0].AdevID, 41);
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 0, 1}));
    // Moved to another kind: both kinds get their current certificate again.
    OkAct(acte, ModAct::Modificare, 0, Act(6, "S-1b", {2024, 9, 1}, {2024, 9, 3}, {2025, 9, 30}), m);
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 1, 0}));

    // A refusal and a duplicate leave the list as it was.
    const auto inainte = acte;
    RezultatAct r = OkAct(acte, ModAct::Adaugare, -1, Act(6, "", {2025, 1, 1}, {2025, 1, 1}, {2025, 12, 1}), m);
    EXPECT_TRUE(r.Focus == T("txtNrAct") && !r.Scris());
    r = OkAct(acte, ModAct::Adaugare, -1, Act(3, "Z", {2025, 1, 1}, {2025, 1, 1}, {2025, 6, 30}), m);
    EXPECT_TRUE(r.Dublura && !r.Scris());
    EXPECT_EQ(acte, inainte);
}

// A delete needs one row and a Yes and moves no mark; the next add of the kind marks the latest again.
TEST(ActePersoana, StergereaCereUnSingurRandSiNuMutaMarcajul) {
    std::vector<AdeverintaMembru> acte = {Rand(1, 3, {2024, 6, 30}, 0), Rand(2, 3, {2025, 6, 30}, 1),
                                          Rand(3, 3, {2023, 6, 30}, 0)};
    const auto inainte = acte;
    MesajeInregistrate m;
    for (const std::vector<int>& selectate : {std::vector<int>{0, 1}, std::vector<int>{}, std::vector<int>{3}})
        EXPECT_FALSE(StergeAct(acte, selectate, Tipuri, m));
    EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie).size(), 3);
    m.raspunsuri = {false, true};
    EXPECT_FALSE(StergeAct(acte, {1}, Tipuri, m));
    EXPECT_EQ(acte, inainte);
    EXPECT_TRUE(StergeAct(acte, {1}, Tipuri, m));
    EXPECT_EQ(m.Texte().last(), T("Sigur doriti sa stergeti\nAdeverinta de la scoala (pt elevi)cu Nr. 2"));
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 0}));
    EXPECT_EQ(NumarAdeverinte(acte), 2);
    OkAct(acte, ModAct::Adaugare, -1, Act(3, "S-4", {2023, 1, 1}, {2023, 1, 2}, {2023, 12, 31}), m);
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 0, 0}));
}

// ---- On the database ----

class AdeverinteBD : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }
    void Cerere(qint64 id, int stare, QList<CerereTest::Persoana> persoane) {
        CerereTest c;
        c.cerereID = id;
        c.nrCerere = 100 + id;
        c.stare = stare;
        c.persoane = persoane;
        AdaugaCerereTest(Bd(), c);
    }
    // A request of one person, whose key is the request's.
    void Cerere(qint64 id, int stare, const char* nume) {
        Cerere(id, stare,
               {{id, T(nume), T("Ion"), QStringLiteral("18001014001%1").arg(id, 2, 10, QLatin1Char('0')), 1}});
    }
    void Act(qint64 id, qint64 cerere, qint64 membru, int tip, const QDate& expira, QVariant curenta,
             const char* nr = "1") {
        ExecutaCu(Bd(),
                  QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                                 "DataAdeverinta, DataDepunerii, DataExpAdev, AdvCurenta) "
                                 "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                  id, cerere, membru, tip, T(nr), QDate(2024, 9, 1), QDate(2024, 9, 3),
                  expira.isValid() ? QVariant(expira) : QVariant(), curenta);
        CheiLista::ScrieAdeverinte(Bd(), T("AdevID = ?"), {id});
    }
    static QList<CerereTest::Persoana> IonSiAna() {
        return {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}, {2, T("Popescu"), T("Ana"), T("6120304400111"), 3}};
    }
};

// Current certificates of requests in force (2, 6, 7, 8) expiring in the calendar month of the day, by name.
TEST_P(AdeverinteBD, ListaActelorCareExpiraInLunaCalendaristica) {
    Cerere(1, 2, IonSiAna());
    // Each with a certificate of its kind in the month: suspended, put back, changed, new titular,
    // registered, ended.
    const std::tuple<qint64, int, const char*, int> cereri[] = {{3, 3, "Avram", 6},   {4, 6, "Barbu", 1},
                                                                {5, 7, "ionescu", 2}, {6, 8, "Matei", 5},
                                                                {7, 1, "Radu", 6},    {8, 4, "Stan", 6}};
    for (const auto& [cerere, stare, nume, tip] : cereri) {
        Cerere(cerere, stare, nume);
        Act(cerere + 1, cerere, cerere, tip, QDate(2026, 11, int(cerere)), 1);
    }
    Cerere(9, 2, "Zaharia");
    const QDate azi(2026, 11, 22);
    Act(1, 1, 1, 6, QDate(2026, 11, 30), 1);
    Act(2, 1, 2, 3, QDate(2026, 11, 1), 1);
    Act(3, 1, 2, 3, QDate(2026, 11, 15), 0);           // an older one of the kind, not current
    Act(10, 9, 9, 6, QDate(2026, 3, 20), 1);           // another month
    Act(11, 9, 9, 2, QDate(2026, 12, 1), 1);           // next month
    Act(12, 9, 9, 1, QDate(2025, 11, 20), 1);          // same month, a year before
    Act(13, 9, 9, 4, QDate(2026, 11, 11), QVariant()); // no mark at all
    Act(14, 9, 9, 5, QDate(), 1);

    QStringList randuri;
    for (const RandActExpira& a : ListaActeExpira(Bd(), azi))
        randuri
            << QStringLiteral("%1|%2|%3|%4|%5").arg(a.AdevID).arg(a.CerereID).arg(a.MembruID).arg(a.Membru, a.TipAct);
    EXPECT_EQ(randuri, (QStringList{T("5|4|4|Barbu Ion|AJOFM (somaj)"), T("6|5|5|ionescu Ion|Finante"),
                                    T("7|6|6|Matei Ion|Pensie"), T("2|1|2|Popescu Ana|de la scoala (pt elevi)"),
                                    T("1|1|1|Popescu Ion|venit net")}));
    // Pages are parts of the whole, a deep one read from the end.
    ASSERT_EQ(NumarActeExpira(Bd(), azi), 5);
    for (const auto& [deLa, cate] : {std::pair{1, 2}, std::pair{3, 2}, std::pair{4, 9}}) {
        QStringList pagina;
        for (const RandActExpira& a : ListaActeExpira(Bd(), azi, deLa, cate, 5))
            pagina << QString::number(a.AdevID);
        QStringList asteptate;
        for (const QString& rand : randuri.mid(deLa, cate))
            asteptate << rand.section(u'|', 0, 0);
        EXPECT_EQ(pagina, asteptate) << deLa;
    }
    EXPECT_EQ(ListaActeExpira(Bd(), QDate(2026, 3, 1)).size(), 1u);
    EXPECT_TRUE(ListaActeExpira(Bd(), QDate(2027, 1, 1)).empty());
}

// A pupil's certificate: number required, next key, a missing kind stored empty; a row gone is told.
TEST_P(AdeverinteBD, EditorulAdeverinteiScolareAdaugaModificaSterge) {
    Cerere(1, 2, IonSiAna());
    Act(40, 1, 2, 3, QDate(2025, 6, 30), 1, "S-40");
    const auto antet = Antet(Bd(), 1, 2);
    ASSERT_TRUE(antet.has_value());
    EXPECT_EQ(antet->Titular + u'|' + antet->Scolar, T("Popescu Ion|Popescu Ana"));
    AdeverintaScolara a{0, 1, 2, {}, QDate(2025, 9, 15), QDate(2025, 9, 16), {}, 3};
    MesajeInregistrate m;
    EXPECT_EQ(VerificaAdeverintaScolara(a, m), T("txtNrAdev"));
    a.NrAdev = T("S-41 d'Arc");
    EXPECT_EQ(VerificaAdeverintaScolara(a, m), QString());
    a.AdevID = SalveazaAdeverintaScolara(Bd(), a, true);
    EXPECT_EQ(a.AdevID, 41);
    EXPECT_EQ(CitesteAdeverinta(Bd(), 41), std::optional<AdeverintaScolara>(a));
    a.DataExpAdev = QDate(2026, 6, 30);
    a.TipAdeverinta = 0;
    EXPECT_EQ(SalveazaAdeverintaScolara(Bd(), a, false), 41);
    EXPECT_EQ(CitesteAdeverinta(Bd(), 41), std::optional<AdeverintaScolara>(a));
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte WHERE TipAdeverinta IS NULL AND AdvCurenta IS NULL")), 1);
    a.NrAdev = T("1234567890123456");
    EXPECT_THROW(SalveazaAdeverintaScolara(Bd(), a, false), Eroare);
    ExecutaCu(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 41"));
    m.mesaje.clear();
    EXPECT_TRUE(StergeAdeverintaScolara(Bd(), m, 41, T("S-41")));
    EXPECT_EQ(m.Texte(), QStringList{TextRandNegasit});
    a.NrAdev = T("S-42");
    EXPECT_THROW(SalveazaAdeverintaScolara(Bd(), a, false), Eroare);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte")), 1);
}

PE_AMBELE_MOTOARE(AdeverinteBD);

} // namespace
