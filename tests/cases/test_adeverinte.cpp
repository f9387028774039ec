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

// Text order is date order: neighbours across a day, a month and a year boundary, where a
// missing leading zero would put the later date first; an empty date sorts below every date.
TEST(DateAdeverinte, reverseDateOrdoneazaTextulCaDatele) {
    EXPECT_EQ(reverseDate(QDate(2024, 3, 5)), T("20240305"));
    const QDate ordonate[] = {
        QDate(), QDate(2023, 12, 31), QDate(2024, 1, 9), QDate(2024, 1, 10), QDate(2024, 9, 30), QDate(2024, 10, 1)};
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
        {"  31.12.2025 ", QDate(2025, 12, 31)}, {"29022024", QDate(2024, 2, 29)},
        {"1-DECEMBRIE-2030", QDate(2030, 12, 1)},
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
    EXPECT_EQ(DataGrid(QDate()), QString());
    for (const QDate d : {QDate(2024, 1, 1), QDate(2024, 2, 29), QDate(2026, 12, 31)})
        EXPECT_EQ(convertToDate(DataGrid(d)), d) << DataGrid(d).toStdString();
}

// The checks of OK in order: each step fills the field refused before, and a later field filled
// alone does not hide an earlier gap.
TEST(ActePersoana, VerificareaOpresteLaPrimaLipsaInOrdine) {
    DateAct d;
    const struct {
        std::function<void(DateAct&)> completeaza;
        const char* mesaj; // a word of the message
        const char* focus;
    } pasi[] = {
        {[](DateAct&) {}, "tip de adeverinta", "cboTipAct"},
        {[](DateAct& a) { a.TipAdeverinta = 6; }, "numarul adeverintei", "txtNrAct"},
        {[](DateAct& a) { a.NrAdev = T("12/2024"); }, "Data adeverintei", "dtpData_0"},
        {[](DateAct& a) { a.DataAdeverinta = QDate(2024, 5, 1); }, "Data depunerii", "dtpData_1"},
        {[](DateAct& a) { a.DataDepunerii = QDate(2024, 5, 3); }, "Data expirarii", "dtpData_2"},
        {[](DateAct& a) { a.DataExpAdev = QDate(2024, 8, 1); }, "", ""},
    };
    for (const auto& p : pasi) {
        p.completeaza(d);
        MesajeInregistrate m;
        EXPECT_EQ(VerificaAct(d, m), T(p.focus));
        EXPECT_EQ(m.Texte().size(), *p.mesaj ? 1 : 0);
        EXPECT_TRUE(m.Texte().join(u'|').contains(T(p.mesaj))) << S(m.Texte().join(u'|'));
    }
    MesajeInregistrate m;
    EXPECT_EQ(VerificaAct(Act(0, "1", {2024, 1, 1}, {2024, 1, 1}, {2024, 6, 1}), m), T("cboTipAct"));
    EXPECT_EQ(VerificaAct(Act(6, "1", {2024, 1, 1}, {}, {2024, 6, 1}), m), T("dtpData_1"));
}

// A duplicate is a row of the same kind with the same expiry; on a change only a moved expiry is
// searched.
TEST(ActePersoana, ExistaDubluriCautaTipulSiDataExpirarii) {
    const std::vector<AdeverintaMembru> acte = {Rand(11, 6, {2024, 6, 30}, 1), Rand(12, 6, {2023, 12, 31}, 0),
                                                Rand(13, 2, {2024, 12, 31}, 1)};
    const struct {
        const char* caz;
        ModAct mod;
        int index, tip;
        QDate expira;
        bool gasit;
    } cazuri[] = {
        {"add: same kind, same expiry", ModAct::Adaugare, -1, 6, QDate(2023, 12, 31), true},
        {"add: same kind, another expiry", ModAct::Adaugare, -1, 6, QDate(2024, 12, 30), false},
        {"add: same expiry, another kind", ModAct::Adaugare, -1, 1, QDate(2024, 12, 31), false},
        {"change: expiry kept, equal to another row's", ModAct::Modificare, 0, 6, QDate(2024, 6, 30), false},
        {"change: expiry moved onto another row's", ModAct::Modificare, 0, 6, QDate(2023, 12, 31), true},
        {"change: kind changed, expiry kept", ModAct::Modificare, 2, 6, QDate(2024, 12, 31), false},
    };
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        EXPECT_EQ(ExistaDubluri(acte, c.mod, c.index, Act(c.tip, "X", {}, {}, c.expira), m), c.gasit) << c.caz;
        EXPECT_EQ(m.mesaje.size(), c.gasit ? 1u : 0u) << c.caz;
    }
    MesajeInregistrate m;
    ExistaDubluri(acte, ModAct::Adaugare, -1, Act(6, "X", {}, {}, QDate(2023, 12, 31)), m);
    EXPECT_EQ(m.Texte(), QStringList{T("Exista o adeverinta venit net\n cu data expirarii 31.12.2023")});
}

// Of a kind's rows the latest expiry is current, whatever the order of the rows; of equal dates
// the row higher in the list; with no date at all, the first; other kinds are left alone.
TEST(ActePersoana, AdeverintaCurentaEsteCeaCuUltimaExpirare) {
    const std::vector<QDate> date = {QDate(2024, 9, 30), QDate(2024, 10, 1), QDate(2024, 1, 31)};
    const int ordini[][3] = {{0, 1, 2}, {1, 0, 2}, {2, 0, 1}, {2, 1, 0}};
    for (const auto& o : ordini) {
        std::vector<AdeverintaMembru> acte{Rand(1, 6, {2030, 1, 1}, 1)};
        for (int i : o)
            acte.push_back(Rand(10 + i, 3, date[size_t(i)], 1));
        acte.push_back(Rand(2, 6, {2020, 1, 1}, 1)); // stale, not this kind
        AdeverintaCurenta(acte, 3);
        for (const AdeverintaMembru& a : acte)
            EXPECT_EQ(a.AdvCurenta, a.TipAdeverinta == 6 || a.DataExpAdev == QDate(2024, 10, 1) ? 1 : 0) << a.AdevID;
    }
    std::vector<AdeverintaMembru> acte = {Rand(1, 3, {2024, 5, 1}, 1), Rand(2, 3, {2024, 6, 30}, 0),
                                          Rand(3, 3, {2024, 6, 30}, 1), Rand(4, 3, {}, 1)};
    AdeverintaCurenta(acte, 3);
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 1, 0, 0}));
    std::vector<AdeverintaMembru> faraDate = {Rand(1, 8, {}, 0), Rand(2, 8, {}, 1)};
    AdeverintaCurenta(faraDate, 8);
    EXPECT_EQ(Curente(faraDate), (std::vector<int>{1, 0}));
    AdeverintaCurenta(faraDate, 5);
    EXPECT_EQ(Curente(faraDate), (std::vector<int>{1, 0})) << "a kind with no row changes nothing";
}

TEST(ActePersoana, OkAdaugaSauRescrieSiMarcheazaDinNou) {
    std::vector<AdeverintaMembru> acte;
    MesajeInregistrate m;
    EXPECT_EQ(OkAct(acte, ModAct::Adaugare, -1, Act(3, "S-1", {2024, 9, 1}, {2024, 9, 3}, {2025, 1, 31}), m).Index, 0);
    EXPECT_EQ(OkAct(acte, ModAct::Adaugare, -1, Act(3, "S-2", {2025, 1, 20}, {2025, 1, 21}, {2025, 6, 30}), m).Index,
              1);
    EXPECT_EQ(OkAct(acte, ModAct::Adaugare, -1, Act(6, "V-1", {2025, 1, 5}, {2025, 1, 6}, {2025, 3, 31}), m).Index, 2);
    EXPECT_TRUE(m.mesaje.empty());
    ASSERT_EQ(acte.size(), 3u);
    EXPECT_EQ(acte[1], (AdeverintaMembru{0, 3, T("S-2"), {2025, 1, 20}, {2025, 1, 21}, {2025, 6, 30}, 1}));
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 1, 1}));

    // A change keeps the key; moving the expiry of S-1 past S-2 makes it the current one.
    acte[0].AdevID = 41;
    EXPECT_EQ(OkAct(acte, ModAct::Modificare, 0, Act(3, "S-1b", {2024, 9, 1}, {2024, 9, 3}, {2025, 9, 30}), m).Index,
              0);
    EXPECT_EQ(acte[0].AdevID, 41);
    EXPECT_EQ(acte[0].NrAdev, T("S-1b"));
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 0, 1}));
    // Moved to another kind: both kinds get their current certificate again.
    OkAct(acte, ModAct::Modificare, 0, Act(6, "S-1b", {2024, 9, 1}, {2024, 9, 3}, {2025, 9, 30}), m);
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 1, 0}));

    // A refusal and a duplicate leave the list as it was.
    const auto inainte = acte;
    RezultatAct r = OkAct(acte, ModAct::Adaugare, -1, Act(6, "", {2025, 1, 1}, {2025, 1, 1}, {2025, 12, 1}), m);
    EXPECT_EQ(r.Focus, T("txtNrAct"));
    EXPECT_FALSE(r.Scris());
    r = OkAct(acte, ModAct::Adaugare, -1, Act(3, "Z", {2025, 1, 1}, {2025, 1, 1}, {2025, 6, 30}), m);
    EXPECT_TRUE(r.Dublura);
    EXPECT_FALSE(r.Scris());
    EXPECT_EQ(acte, inainte);
    EXPECT_THROW(OkAct(acte, ModAct::Modificare, 7, Act(3, "Z", {}, {}, {}), m), Eroare);
}

// Deleting asks for one selected row and a Yes; the current mark is not moved to another row
// until the next add of the kind, which marks the latest of all again.
TEST(ActePersoana, StergereaCereUnSingurRandSiNuMutaMarcajul) {
    std::vector<AdeverintaMembru> acte = {Rand(1, 3, {2024, 6, 30}, 0), Rand(2, 3, {2025, 6, 30}, 1),
                                          Rand(3, 3, {2023, 6, 30}, 0)};
    const auto inainte = acte;
    const std::vector<int> selectii[] = {{0, 1}, {}, {3}};
    for (const std::vector<int>& selectate : selectii) {
        MesajeInregistrate m;
        EXPECT_FALSE(StergeAct(acte, selectate, Tipuri, m));
        EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie).size(), 1);
    }
    MesajeInregistrate m;
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
    }
    void Ocupatie(qint64 cerere, qint64 membru, int ocupatie) {
        ExecutaCu(Bd(), QStringLiteral("UPDATE CereriMembrii SET OcupatieID = ? WHERE CerereID = ? AND MembruID = ?"),
                  ocupatie, cerere, membru);
    }
    static QList<CerereTest::Persoana> IonSiAna() {
        return {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}, {2, T("Popescu"), T("Ana"), T("6120304400111"), 3}};
    }
};

// The list follows the calendar month of the day given, whatever the working month: current
// certificates of requests with rights in force (granted, put back, changed, new titular) only,
// by name.
TEST_P(AdeverinteBD, ListaActelorCareExpiraInLunaCalendaristica) {
    Cerere(1, 2, IonSiAna());
    // Each with a certificate of its kind in the month: suspended, put back, changed, new titular,
    // registered, ended.
    const struct {
        qint64 cerere;
        int stare;
        const char* nume;
        int tip;
    } cereri[] = {{3, 3, "Avram", 6}, {4, 6, "Barbu", 1}, {5, 7, "ionescu", 2},
                  {6, 8, "Matei", 5}, {7, 1, "Radu", 6},  {8, 4, "Stan", 6}};
    for (const auto& c : cereri) {
        Cerere(c.cerere, c.stare, c.nume);
        Act(c.cerere + 1, c.cerere, c.cerere, c.tip, QDate(2026, 11, int(c.cerere)), 1);
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
    EXPECT_EQ(ListaActeExpira(Bd(), QDate(2026, 3, 1)).size(), 1u);
    EXPECT_TRUE(ListaActeExpira(Bd(), QDate(2027, 1, 1)).empty());
}

TEST_P(AdeverinteBD, CerereaDeDeschisEsteAceeaARandului) {
    // One person on two requests, with a certificate in the month on each.
    Cerere(1, 4, {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}});
    Cerere(2, 2, {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}});
    const QDate azi(2026, 11, 3);
    Act(5, 1, 1, 6, QDate(2026, 11, 20), 1);
    Act(6, 2, 1, 6, QDate(2026, 11, 25), 1);
    EXPECT_EQ(CerereActExpira(Bd(), 1, 2, azi), std::optional<qint64>(2));
    EXPECT_EQ(CerereActExpira(Bd(), 1, 1, azi), std::optional<qint64>(1));
    ExecutaCu(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 6"));
    EXPECT_EQ(CerereActExpira(Bd(), 1, 2, azi), std::optional<qint64>(1)) << "the other request of the person";
    EXPECT_EQ(CerereActExpira(Bd(), 1, 2, QDate(2026, 12, 1)), std::nullopt);
    EXPECT_EQ(CerereActExpira(Bd(), 7, 2, azi), std::nullopt);
}

// Under the request list: the request's own certificates only, person by person, by kind, the
// latest expiry first and a missing one last, whatever the engine.
TEST_P(AdeverinteBD, AdeverinteleCereriiPePersoaneSiTipuri) {
    Cerere(1, 2, IonSiAna());
    Cerere(2, 2, {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}});
    Act(31, 1, 2, 3, QDate(2025, 6, 30), 0);
    Act(32, 1, 2, 3, QDate(), 0);
    Act(33, 1, 2, 3, QDate(2026, 6, 30), 1);
    Act(34, 1, 1, 6, QDate(2025, 1, 31), 1);
    Act(35, 1, 2, 1, QDate(2025, 1, 31), QVariant());
    Act(36, 2, 1, 6, QDate(2026, 1, 31), 1);  // the same person on another request
    Act(37, 1, 1, 99, QDate(2025, 2, 28), 1); // a kind the list lacks

    QStringList randuri;
    for (const RandAdeverintaCerere& a : ListaAdeverinteCerere(Bd(), 1))
        randuri << QStringLiteral("%1|%2|%3|%4").arg(a.AdevID).arg(a.Membru, a.TipAdeverinta).arg(a.Curenta ? 1 : 0);
    EXPECT_EQ(randuri,
              (QStringList{T("34|Popescu Ion|venit net|1"), T("37|Popescu Ion||1"), T("35|Popescu Ana|AJOFM (somaj)|0"),
                           T("33|Popescu Ana|de la scoala (pt elevi)|1"), T("31|Popescu Ana|de la scoala (pt elevi)|0"),
                           T("32|Popescu Ana|de la scoala (pt elevi)|0")}));
    EXPECT_EQ(ListaAdeverinteCerere(Bd(), 2).size(), 1u);
    EXPECT_TRUE(ListaAdeverinteCerere(Bd(), 3).empty());
}

// The certificates of the pupils (occupations 8 and 9) of requests with a titular, with the
// age at the day given and a missing expiry spelled out.
TEST_P(AdeverinteBD, ListaAdeverintelorScolareAElevilor) {
    Cerere(1, 2,
           {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1},
            {2, T("Popescu"), T("Ana"), T("6120304400111"), 3},
            {3, T("Popescu"), T("Dan"), T("5100715400110"), 3},
            {4, T("Popescu"), T("Radu"), T("5150101400112"), 3}});
    Cerere(2, 3,
           {{5, T("Avram"), T("Maria"), T("2790101400121"), 1}, {6, T("Avram"), T("Ilie"), T("5080610400117"), 3}});
    Ocupatie(1, 2, 8);
    Ocupatie(1, 3, 9);
    Ocupatie(1, 4, 1); // a child who is not a pupil
    Ocupatie(2, 6, 8);
    Act(21, 1, 2, 3, QDate(2025, 6, 30), 1, "S-21");
    Act(22, 1, 2, 6, QDate(), 0, "V-22");
    Act(23, 1, 3, 3, QDate(2025, 7, 1), 1, "S-23");
    Act(24, 1, 4, 3, QDate(2025, 7, 1), 1, "S-24");
    Act(25, 2, 6, 3, QDate(2025, 7, 2), 1, "S-25");
    Act(26, 1, 1, 6, QDate(2025, 7, 2), 1, "V-26"); // the titular's
    ExecutaCu(Bd(), T("UPDATE Cereri SET MembruID1 = NULL WHERE CerereID = 2"));

    const auto r = ListaAdeverinteScolare(Bd(), QDate(2026, 3, 10));
    std::vector<qint64> chei;
    for (const RandAdeverintaScolara& a : r)
        chei.push_back(a.AdevID);
    EXPECT_EQ(chei, (std::vector<qint64>{21, 22, 23}));
    ASSERT_EQ(r.size(), 3u);
    const RandAdeverintaScolara& a = r[1];
    EXPECT_EQ(
        (QStringList{QString::number(a.CerereID), QString::number(a.MembruID), a.NrCerere, a.NumeTitular, a.NumeScolar,
                     a.DataNast, a.Varsta, a.NrAdev, a.DataDep, a.DataAdev, a.DataExpirarii, a.TipAdeverinta}),
        (QStringList{T("1"), T("2"), T("101"), T("Popescu Ion"), T("Popescu Ana"), T("04.03.2012"), T("13"), T("V-22"),
                     T("03.09.2024"), T("01.09.2024"), T("Adeverinta fara data expirarii"), T("venit net")}));
}

TEST_P(AdeverinteBD, EditorulAdeverinteiScolareAdaugaModificaSterge) {
    Cerere(1, 2, IonSiAna());
    Act(40, 1, 2, 3, QDate(2025, 6, 30), 1, "S-40");
    const auto antet = Antet(Bd(), 1, 2);
    ASSERT_TRUE(antet.has_value());
    EXPECT_EQ((QStringList{antet->NrCerere, antet->Titular, antet->Scolar}),
              (QStringList{T("101"), T("Popescu Ion"), T("Popescu Ana")}));
    EXPECT_FALSE(Antet(Bd(), 9, 2).has_value());

    AdeverintaScolara a;
    a.CerereID = 1;
    a.MembruID = 2;
    a.TipAdeverinta = 3;
    a.DataAdeverinta = QDate(2025, 9, 15);
    a.DataDepunerii = QDate(2025, 9, 16);
    MesajeInregistrate m;
    EXPECT_EQ(VerificaAdeverintaScolara(a, m), T("txtNrAdev"));
    EXPECT_EQ(m.mesaje.size(), 1u);
    a.NrAdev = T("S-41 d'Arc"); // an apostrophe is stored as typed
    EXPECT_EQ(VerificaAdeverintaScolara(a, m), QString());

    a.AdevID = SalveazaAdeverintaScolara(Bd(), a, true);
    EXPECT_EQ(a.AdevID, 41);
    EXPECT_EQ(CitesteAdeverinta(Bd(), 41), std::optional<AdeverintaScolara>(a)) << "no expiry stays empty";
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = 41 AND AdvCurenta IS NULL")), 1);

    a.DataExpAdev = QDate(2026, 6, 30);
    a.TipAdeverinta = 0;
    EXPECT_EQ(SalveazaAdeverintaScolara(Bd(), a, false), 41);
    EXPECT_EQ(CitesteAdeverinta(Bd(), 41), std::optional<AdeverintaScolara>(a));
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = 41 AND TipAdeverinta IS NULL")), 1);
    EXPECT_EQ(CitesteAdeverinta(Bd(), 40)->NrAdev, T("S-40")) << "the other row untouched";

    a.NrAdev = T("1234567890123456");
    EXPECT_THROW(SalveazaAdeverintaScolara(Bd(), a, false), Eroare);
    EXPECT_EQ(CitesteAdeverinta(Bd(), 41)->NrAdev, T("S-41 d'Arc"));

    // A row that another computer removed is told and counts as deleted.
    ExecutaCu(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 41"));
    m.mesaje.clear();
    EXPECT_TRUE(StergeAdeverintaScolara(Bd(), m, 41, T("S-41")));
    EXPECT_EQ(m.Texte(), QStringList{TextRandNegasit});

    // Changing a row that is gone, or adding to a request that is gone, writes nothing.
    a.NrAdev = T("S-42");
    EXPECT_THROW(SalveazaAdeverintaScolara(Bd(), a, false), Eroare);
    a.CerereID = 9;
    EXPECT_THROW(SalveazaAdeverintaScolara(Bd(), a, true), Eroare);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte")), 1);
    a.CerereID = 1;
    EXPECT_EQ(SalveazaAdeverintaScolara(Bd(), a, true), 41) << "the key after the highest left";

    // Deleting asks first; No keeps the row.
    m.raspunsuri = {false, true};
    EXPECT_FALSE(StergeAdeverintaScolara(Bd(), m, 41, a.NrAdev));
    EXPECT_TRUE(CitesteAdeverinta(Bd(), 41));
    EXPECT_TRUE(StergeAdeverintaScolara(Bd(), m, 41, a.NrAdev));
    EXPECT_FALSE(CitesteAdeverinta(Bd(), 41));
}

PE_AMBELE_MOTOARE(AdeverinteBD);

} // namespace
