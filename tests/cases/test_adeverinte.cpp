#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "cases/SalvareCerere.h"
#include "base/Eroare.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/DosarTest.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

namespace {

using namespace Adeverinte;

const TipuriAdeverinte
    Tipuri({{1, T("AJOFM (somaj)")}, {2, T("Finante")}, {3, T("de la scoala (pt elevi)")}, {6, T("venit net")}});

DateAct Act(int tip, const char* nr, QDate emisa, QDate depusa, QDate expira) {
    return {tip, Tipuri.Text(tip), T(nr), emisa, depusa, expira};
}

std::vector<int> Curente(const std::vector<AdeverintaMembru>& acte) {
    std::vector<int> r;
    for (const AdeverintaMembru& a : acte)
        r.push_back(a.AdvCurenta);
    return r;
}

// ---- Dates ----

TEST(DateAdeverinte, reverseDateOrdoneazaTextulCaDatele) {
    EXPECT_EQ(reverseDate(QDate(2024, 3, 5)), T("20240305"));
    EXPECT_EQ(reverseDate(QDate(2024, 12, 31)), T("20241231"));
    EXPECT_EQ(reverseDate(QDate()), QString());
    // Neighbours across a day, a month and a year boundary, where a missing leading zero would
    // put the later date first.
    const QDate ordonate[] = {QDate(2023, 12, 31), QDate(2024, 1, 1),  QDate(2024, 1, 9), QDate(2024, 1, 10),
                              QDate(2024, 9, 30),  QDate(2024, 10, 1), QDate(2025, 2, 1)};
    EXPECT_LT(reverseDate(QDate()), reverseDate(ordonate[0])) << "an empty date sorts below every date";
    for (size_t i = 1; i < std::size(ordonate); ++i)
        EXPECT_LT(reverseDate(ordonate[i - 1]), reverseDate(ordonate[i])) << i;
}

TEST(DateAdeverinte, convertToDatePrimesteFormeleCunoscuteSiRefuzaRestul) {
    const struct {
        const char* text;
        QDate asteptat; // invalid: refused
    } cazuri[] = {
        {"05.03.2024", QDate(2024, 3, 5)},
        {"05-03-2024", QDate(2024, 3, 5)},
        {"05/03/2024", QDate(2024, 3, 5)},
        {"5.3.2024", QDate(2024, 3, 5)},
        {"05032024", QDate(2024, 3, 5)},
        {"  31.12.2025 ", QDate(2025, 12, 31)},
        {"29.02.2024", QDate(2024, 2, 29)},
        {"29022024", QDate(2024, 2, 29)},
        {"05-martie-2024", QDate(2024, 3, 5)},
        {"1-DECEMBRIE-2030", QDate(2030, 12, 1)},
        {"", QDate()},
        {"abc", QDate()},
        {"29.02.2023", QDate()},  // no such day
        {"31.04.2024", QDate()},  // no such day
        {"32.01.2024", QDate()},  // no such day
        {"00.01.2024", QDate()},  // no day 0
        {"05.13.2024", QDate()},  // no month 13
        {"05.03/2024", QDate()},  // two separators
        {"05.03.24", QDate()},    // two-digit year
        {"05.03.20245", QDate()}, // five-digit year
        {"0503202", QDate()},     // seven digits
        {"050320241", QDate()},   // nine digits
        {"31022024", QDate()},    // eight digits, no such day
        {"05..2024", QDate()},    // empty month
        {"05.03.2024.1", QDate()},
        {"5 3 2024", QDate()},
        {"05.mar.2024", QDate()},
        {"+5.03.2024", QDate()},
        {"\xd9\xa5.03.2024", QDate()}, // an Arabic-Indic five
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(convertToDate(T(c.text)), c.asteptat) << c.text;
}

TEST(DateAdeverinte, DataGridSeCitesteInapoi) {
    EXPECT_EQ(DataGrid(QDate(2024, 3, 5)), T("05-martie-2024"));
    EXPECT_EQ(DataGrid(QDate()), QString());
    for (const QDate d : {QDate(2024, 1, 1), QDate(2024, 2, 29), QDate(2025, 9, 30), QDate(2026, 12, 31)})
        EXPECT_EQ(convertToDate(DataGrid(d)), d) << DataGrid(d).toStdString();
}

// ---- frmAddAct ----

TEST(ActePersoana, VerificareaOpresteLaPrimaLipsaInOrdine) {
    DateAct d;
    const struct {
        std::function<void(DateAct&)> completeaza; // what the clerk fills before pressing OK
        const char* mesaj;
        const char* focus;
    } pasi[] = {
        {[](DateAct&) {}, "Statut incorect. Selectati din lista un tip de adeverinta corect", "cboTipAct"},
        {[](DateAct& a) { a.TipAdeverinta = 6; }, "Nu ati completat numarul adeverintei", "txtNrAct"},
        {[](DateAct& a) { a.NrAdev = T("12/2024"); }, "Nu puteti salva datele inainte de a introduce Data adeverintei",
         "dtpData_0"},
        {[](DateAct& a) { a.DataAdeverinta = QDate(2024, 5, 1); },
         "Nu puteti salva datele inainte de a introduce Data depunerii adeverintei", "dtpData_1"},
        {[](DateAct& a) { a.DataDepunerii = QDate(2024, 5, 3); },
         "Nu puteti salva datele inainte de a introduce Data expirarii adeverintei", "dtpData_2"},
    };
    // Each later field filled alone does not hide an earlier gap.
    DateAct faraTip = Act(0, "1", QDate(2024, 1, 1), QDate(2024, 1, 1), QDate(2024, 6, 1));
    MesajeInregistrate m0;
    EXPECT_EQ(VerificaAct(faraTip, m0), T("cboTipAct"));
    DateAct faraDepunere = Act(6, "1", QDate(2024, 1, 1), QDate(), QDate(2024, 6, 1));
    EXPECT_EQ(VerificaAct(faraDepunere, m0), T("dtpData_1"));

    for (const auto& p : pasi) {
        p.completeaza(d);
        MesajeInregistrate m;
        EXPECT_EQ(VerificaAct(d, m), T(p.focus));
        EXPECT_EQ(m.Texte(), QStringList{T(p.mesaj)});
    }
    d.DataExpAdev = QDate(2024, 8, 1);
    MesajeInregistrate m;
    EXPECT_EQ(VerificaAct(d, m), QString());
    EXPECT_TRUE(m.mesaje.empty());
}

TEST(ActePersoana, ExistaDubluriCautaTipulSiDataExpirarii) {
    const std::vector<AdeverintaMembru> acte = {
        {11, 6, T("A"), QDate(2024, 1, 2), QDate(2024, 1, 3), QDate(2024, 6, 30), 1},
        {12, 6, T("B"), QDate(2023, 7, 2), QDate(2023, 7, 3), QDate(2023, 12, 31), 0},
        {13, 2, T("C"), QDate(2024, 1, 2), QDate(2024, 1, 3), QDate(2024, 12, 31), 1},
    };
    const QString dublura = T("Exista o adeverinta venit net\n cu data expirarii 31.12.2023");
    const struct {
        const char* caz;
        ModAct mod;
        int index;
        int tip;
        QDate expira;
        bool gasit;
    } cazuri[] = {
        {"add: same kind, same expiry", ModAct::Adaugare, -1, 6, QDate(2023, 12, 31), true},
        {"add: same kind, another expiry", ModAct::Adaugare, -1, 6, QDate(2024, 12, 30), false},
        {"add: same expiry, another kind", ModAct::Adaugare, -1, 1, QDate(2024, 12, 31), false},
        {"change: expiry kept, equal to another row's", ModAct::Modificare, 0, 6, QDate(2024, 6, 30), false},
        {"change: expiry moved onto another row's", ModAct::Modificare, 0, 6, QDate(2023, 12, 31), true},
        {"change: expiry moved to a free date", ModAct::Modificare, 0, 6, QDate(2025, 6, 30), false},
        {"change: kind changed, expiry kept", ModAct::Modificare, 2, 6, QDate(2024, 12, 31), false},
    };
    for (const auto& c : cazuri) {
        MesajeInregistrate m;
        DateAct d = Act(c.tip, "X", QDate(2024, 1, 1), QDate(2024, 1, 1), c.expira);
        EXPECT_EQ(ExistaDubluri(acte, c.mod, c.index, d, m), c.gasit) << c.caz;
        EXPECT_EQ(m.Texte(), c.gasit ? QStringList{T("Exista o adeverinta ") + d.TipText + T("\n cu data expirarii ") +
                                                   c.expira.toString("dd.MM.yyyy")}
                                     : QStringList())
            << c.caz;
    }
    MesajeInregistrate m;
    ExistaDubluri(acte, ModAct::Adaugare, -1, Act(6, "X", {}, {}, QDate(2023, 12, 31)), m);
    EXPECT_EQ(m.Texte(), QStringList{dublura});
}

// A person with three certificates of kind 3: one current, the latest, whatever the order of
// the rows; other kinds untouched.
TEST(ActePersoana, AdeverintaCurentaEsteCeaCuUltimaExpirare) {
    const std::vector<QDate> date = {QDate(2024, 9, 30), QDate(2024, 10, 1), QDate(2024, 1, 31)};
    const int ordini[][3] = {{0, 1, 2}, {1, 0, 2}, {2, 0, 1}, {2, 1, 0}};
    for (const auto& o : ordini) {
        std::vector<AdeverintaMembru> acte;
        acte.push_back({1, 6, T("V"), {}, {}, QDate(2030, 1, 1), 1});
        for (int i : o)
            acte.push_back({10 + i, 3, T("S"), {}, {}, date[size_t(i)], 1});
        acte.push_back({2, 6, T("W"), {}, {}, QDate(2020, 1, 1), 1}); // stale, not this kind
        AdeverintaCurenta(acte, 3);
        int curente = 0;
        for (const AdeverintaMembru& a : acte)
            if (a.TipAdeverinta == 3) {
                curente += a.AdvCurenta;
                EXPECT_EQ(a.AdvCurenta, a.DataExpAdev == QDate(2024, 10, 1) ? 1 : 0) << a.AdevID;
            }
        EXPECT_EQ(curente, 1);
        EXPECT_EQ(acte.front().AdvCurenta, 1);
        EXPECT_EQ(acte.back().AdvCurenta, 1) << "another kind is not recomputed";
    }
}

TEST(ActePersoana, AdeverintaCurentaLaDateEgaleSiFaraData) {
    // Equal latest dates: the row higher in the list wins.
    std::vector<AdeverintaMembru> acte = {
        {1, 3, T("a"), {}, {}, QDate(2024, 5, 1), 1},
        {2, 3, T("b"), {}, {}, QDate(2024, 6, 30), 0},
        {3, 3, T("c"), {}, {}, QDate(2024, 6, 30), 1},
        {4, 3, T("d"), {}, {}, QDate(), 1},
    };
    AdeverintaCurenta(acte, 3);
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 1, 0, 0}));
    std::swap(acte[1], acte[2]);
    AdeverintaCurenta(acte, 3);
    EXPECT_EQ(acte[1].AdevID, 3);
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 1, 0, 0}));

    // Only undated rows: the first of them.
    std::vector<AdeverintaMembru> faraDate = {{1, 8, T("a"), {}, {}, {}, 0}, {2, 8, T("b"), {}, {}, {}, 1}};
    AdeverintaCurenta(faraDate, 8);
    EXPECT_EQ(Curente(faraDate), (std::vector<int>{1, 0}));
    // A kind with no row changes nothing.
    AdeverintaCurenta(faraDate, 5);
    EXPECT_EQ(Curente(faraDate), (std::vector<int>{1, 0}));
}

TEST(ActePersoana, OkAdaugaSauRescrieSiMarcheazaDinNou) {
    std::vector<AdeverintaMembru> acte;
    MesajeInregistrate m;
    RezultatAct r =
        OkAct(acte, ModAct::Adaugare, -1, Act(3, "S-1", QDate(2024, 9, 1), QDate(2024, 9, 3), QDate(2025, 1, 31)), m);
    EXPECT_TRUE(r.Scris());
    EXPECT_EQ(r.Index, 0);
    r = OkAct(acte, ModAct::Adaugare, -1, Act(3, "S-2", QDate(2025, 1, 20), QDate(2025, 1, 21), QDate(2025, 6, 30)), m);
    EXPECT_EQ(r.Index, 1);
    r = OkAct(acte, ModAct::Adaugare, -1, Act(6, "V-1", QDate(2025, 1, 5), QDate(2025, 1, 6), QDate(2025, 3, 31)), m);
    EXPECT_EQ(r.Index, 2);
    EXPECT_TRUE(m.mesaje.empty());
    ASSERT_EQ(acte.size(), 3u);
    EXPECT_EQ(acte[1],
              (AdeverintaMembru{0, 3, T("S-2"), QDate(2025, 1, 20), QDate(2025, 1, 21), QDate(2025, 6, 30), 1}));
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 1, 1}));

    // A change keeps the key; moving the expiry of S-1 past S-2 makes it the current one.
    acte[0].AdevID = 41;
    r = OkAct(acte, ModAct::Modificare, 0, Act(3, "S-1b", QDate(2024, 9, 1), QDate(2024, 9, 3), QDate(2025, 9, 30)), m);
    EXPECT_EQ(r.Index, 0);
    EXPECT_EQ(acte[0].AdevID, 41);
    EXPECT_EQ(acte[0].NrAdev, T("S-1b"));
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 0, 1}));

    // Moved to another kind: both kinds get their current certificate again.
    r = OkAct(acte, ModAct::Modificare, 0, Act(6, "S-1b", QDate(2024, 9, 1), QDate(2024, 9, 3), QDate(2025, 9, 30)), m);
    EXPECT_EQ(Curente(acte), (std::vector<int>{1, 1, 0}));

    // A refusal and a duplicate leave the list as it was.
    const auto inainte = acte;
    r = OkAct(acte, ModAct::Adaugare, -1, Act(6, "", QDate(2025, 1, 1), QDate(2025, 1, 1), QDate(2025, 12, 1)), m);
    EXPECT_EQ(r.Focus, T("txtNrAct"));
    EXPECT_FALSE(r.Scris());
    r = OkAct(acte, ModAct::Adaugare, -1, Act(3, "Z", QDate(2025, 1, 1), QDate(2025, 1, 1), QDate(2025, 6, 30)), m);
    EXPECT_TRUE(r.Dublura);
    EXPECT_FALSE(r.Scris());
    EXPECT_EQ(acte, inainte);
    EXPECT_THROW(OkAct(acte, ModAct::Modificare, 7, Act(3, "Z", {}, {}, {}), m), Eroare);
}

// Deleting the current certificate leaves its kind without one until the next add or change.
TEST(ActePersoana, StergereaCereUnSinguRandSiNuMutaMarcajul) {
    std::vector<AdeverintaMembru> acte = {
        {1, 3, T("S-1"), {}, {}, QDate(2024, 6, 30), 0},
        {2, 3, T("S-2"), {}, {}, QDate(2025, 6, 30), 1},
        {3, 3, T("S-3"), {}, {}, QDate(2023, 6, 30), 0},
    };
    const auto inainte = acte;
    const struct {
        std::vector<int> selectate;
        const char* mesaj;
    } refuzuri[] = {
        {{0, 1}, "Trebuie selectata doar o singura adeverinta"},
        {{}, "Selectati o adeverinta!"},
        {{3}, "Selectati o adeverinta!"},
    };
    for (const auto& r : refuzuri) {
        MesajeInregistrate m;
        EXPECT_FALSE(StergeAct(acte, r.selectate, Tipuri, m));
        EXPECT_EQ(m.Texte(), QStringList{T(r.mesaj)});
    }
    MesajeInregistrate m;
    m.raspunsuri = {false, true};
    EXPECT_FALSE(StergeAct(acte, {1}, Tipuri, m));
    EXPECT_EQ(acte, inainte);
    EXPECT_TRUE(StergeAct(acte, {1}, Tipuri, m));
    const QString intrebare = T("Sigur doriti sa stergeti\nAdeverinta de la scoala (pt elevi)cu Nr. S-2");
    EXPECT_EQ(m.Texte(), (QStringList{intrebare, intrebare}));
    ASSERT_EQ(acte.size(), 2u);
    EXPECT_EQ(Curente(acte), (std::vector<int>{0, 0}));
    EXPECT_EQ(NumarAdeverinte(acte), 2);

    // The next add of the kind marks the latest of all again, not only the new one.
    OkAct(acte, ModAct::Adaugare, -1, Act(3, "S-4", QDate(2023, 1, 1), QDate(2023, 1, 2), QDate(2023, 12, 31)), m);
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
    void Act(qint64 id, qint64 cerere, qint64 membru, int tip, const QDate& expira, QVariant curenta,
             const char* nr = "1") {
        Interogare(Bd(), QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                                        "DataAdeverinta, DataDepunerii, DataExpAdev, AdvCurenta) "
                                        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"))
            .Leaga(id)
            .Leaga(cerere)
            .Leaga(membru)
            .Leaga(tip)
            .Leaga(T(nr))
            .Leaga(QDate(2024, 9, 1))
            .Leaga(QDate(2024, 9, 3))
            .Leaga(expira.isValid() ? QVariant(expira) : QVariant())
            .Leaga(curenta)
            .Executa();
    }
    void Ocupatie(qint64 cerere, qint64 membru, int ocupatie) {
        Interogare(Bd(), QStringLiteral("UPDATE CereriMembrii SET OcupatieID = ? WHERE CerereID = ? AND MembruID = ?"))
            .Leaga(ocupatie)
            .Leaga(cerere)
            .Leaga(membru)
            .Executa();
    }
};

TEST_P(AdeverinteBD, TipurileVinDinDateGenInOrdine) {
    const TipuriAdeverinte t = TipuriAdeverinte::Citeste(Bd());
    ASSERT_EQ(t.Toate().size(), 9u);
    EXPECT_EQ(t.Toate().front().Continut, T("AJOFM (somaj)"));
    EXPECT_EQ(t.Toate().back().Continut, T("Declaratie notar"));
    EXPECT_EQ(t.Text(3), T("de la scoala (pt elevi)"));
    EXPECT_EQ(t.Text(99), QString());
}

// The list follows the calendar month of the day given, whatever the working month: current
// certificates of requests with rights in force only.
TEST_P(AdeverinteBD, ListaActelorCareExpiraInLunaCalendaristica) {
    Cerere(1, 2,
           {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}, {2, T("Popescu"), T("Ana"), T("6120304400111"), 3}});
    Cerere(2, 3, {{3, T("Avram"), T("Dan"), T("1790101400121"), 1}});   // suspended
    Cerere(3, 6, {{4, T("Barbu"), T("Elena"), T("2810101400122"), 1}}); // put back in payment
    Cerere(4, 7, {{5, T("ionescu"), T("Vlad"), T("1820101400120"), 1}});
    Cerere(5, 8, {{6, T("Matei"), T("Ioana"), T("2830101400127"), 1}});
    Cerere(6, 1, {{7, T("Radu"), T("Mihai"), T("1840101400125"), 1}}); // registered, not in force
    Cerere(7, 4, {{8, T("Stan"), T("Paul"), T("1850101400122"), 1}});  // ended
    Cerere(8, 2, {{9, T("Zaharia"), T("Ion"), T("1860101400120"), 1}});

    const QDate azi(2026, 11, 22); // while the working month is, say, March 2026
    Act(1, 1, 1, 6, QDate(2026, 11, 30), 1);
    Act(2, 1, 2, 3, QDate(2026, 11, 1), 1);
    Act(3, 1, 2, 3, QDate(2026, 11, 15), 0); // an older one of the kind, not current
    Act(4, 2, 3, 6, QDate(2026, 11, 10), 1);
    Act(5, 3, 4, 1, QDate(2026, 11, 5), 1);
    Act(6, 4, 5, 2, QDate(2026, 11, 6), 1);
    Act(7, 5, 6, 5, QDate(2026, 11, 7), 1);
    Act(8, 6, 7, 6, QDate(2026, 11, 8), 1);
    Act(9, 7, 8, 6, QDate(2026, 11, 9), 1);
    Act(10, 8, 9, 6, QDate(2026, 3, 20), 1);           // the working month
    Act(11, 8, 9, 2, QDate(2026, 12, 1), 1);           // next month
    Act(12, 8, 9, 1, QDate(2025, 11, 20), 1);          // same month, a year before
    Act(13, 8, 9, 4, QDate(2026, 11, 11), QVariant()); // no mark at all
    Act(14, 8, 9, 5, QDate(), 1);

    const auto r = ListaActeExpira(Bd(), azi);
    QStringList randuri;
    for (const RandActExpira& a : r)
        randuri << QStringLiteral("%1|%2|%3|%4|%5|%6")
                       .arg(a.AdevID)
                       .arg(a.CerereID)
                       .arg(a.MembruID)
                       .arg(a.Membru, a.TipAct, a.DataExpAdev.toString(Qt::ISODate));
    EXPECT_EQ(randuri, (QStringList{
                           T("5|3|4|Barbu Elena|AJOFM (somaj)|2026-11-05"),
                           T("6|4|5|ionescu Vlad|Finante|2026-11-06"),
                           T("7|5|6|Matei Ioana|Pensie|2026-11-07"),
                           T("2|1|2|Popescu Ana|de la scoala (pt elevi)|2026-11-01"),
                           T("1|1|1|Popescu Ion|venit net|2026-11-30"),
                       }));
    EXPECT_EQ(TitluActeExpira(azi), T("Lista Membrilor ale caror acte expira in luna Noiembrie"));
    EXPECT_TRUE(ListaActeExpira(Bd(), QDate(2026, 3, 1)).size() == 1u) << "March shows only the March one";
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
    Interogare(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 6")).Executa();
    EXPECT_EQ(CerereActExpira(Bd(), 1, 2, azi), std::optional<qint64>(1)) << "the other request of the person";
    EXPECT_EQ(CerereActExpira(Bd(), 1, 2, QDate(2026, 12, 1)), std::nullopt);
    EXPECT_EQ(CerereActExpira(Bd(), 7, 2, azi), std::nullopt);
}

// Under the request list: the request's own certificates only, person by person, by kind, the
// latest expiry first and a missing one last, whatever the engine.
TEST_P(AdeverinteBD, AdeverinteleCereriiPePersoaneSiTipuri) {
    Cerere(1, 2,
           {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}, {2, T("Popescu"), T("Ana"), T("6120304400111"), 3}});
    Cerere(2, 2, {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}});
    Act(31, 1, 2, 3, QDate(2025, 6, 30), 0, "S-31");
    Act(32, 1, 2, 3, QDate(), 0, "S-32");
    Act(33, 1, 2, 3, QDate(2026, 6, 30), 1, "S-33");
    Act(34, 1, 1, 6, QDate(2025, 1, 31), 1, "V-34");
    Act(35, 1, 2, 1, QDate(2025, 1, 31), QVariant(), "A-35");
    Act(36, 2, 1, 6, QDate(2026, 1, 31), 1, "V-36");  // the same person on another request
    Act(37, 1, 1, 99, QDate(2025, 2, 28), 1, "X-37"); // a kind the list lacks

    QStringList randuri;
    for (const RandAdeverintaCerere& a : ListaAdeverinteCerere(Bd(), 1))
        randuri << QStringList{QString::number(a.AdevID),
                               QString::number(a.MembruID),
                               a.Membru,
                               a.TipAdeverinta,
                               a.NrAdev,
                               a.DataAdeverinta.toString(Qt::ISODate),
                               a.DataDepunerii.toString(Qt::ISODate),
                               a.DataExpAdev.toString(Qt::ISODate),
                               a.Curenta ? T("curenta") : QString()}
                       .join(QLatin1Char('|'));
    EXPECT_EQ(randuri, (QStringList{
                           T("34|1|Popescu Ion|venit net|V-34|2024-09-01|2024-09-03|2025-01-31|curenta"),
                           T("37|1|Popescu Ion||X-37|2024-09-01|2024-09-03|2025-02-28|curenta"),
                           T("35|2|Popescu Ana|AJOFM (somaj)|A-35|2024-09-01|2024-09-03|2025-01-31|"),
                           T("33|2|Popescu Ana|de la scoala (pt elevi)|S-33|2024-09-01|2024-09-03|2026-06-30|curenta"),
                           T("31|2|Popescu Ana|de la scoala (pt elevi)|S-31|2024-09-01|2024-09-03|2025-06-30|"),
                           T("32|2|Popescu Ana|de la scoala (pt elevi)|S-32|2024-09-01|2024-09-03||"),
                       }));
    ASSERT_EQ(ListaAdeverinteCerere(Bd(), 2).size(), 1u);
    EXPECT_EQ(ListaAdeverinteCerere(Bd(), 2).front().AdevID, 36);
    EXPECT_TRUE(ListaAdeverinteCerere(Bd(), 3).empty());
}

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
    // A request without a titular does not show.
    Interogare(Bd(), T("UPDATE Cereri SET MembruID1 = NULL WHERE CerereID = 2")).Executa();

    const auto r = ListaAdeverinteScolare(Bd(), QDate(2026, 3, 10));
    QStringList randuri;
    for (const RandAdeverintaScolara& a : r)
        randuri << QStringList{QString::number(a.AdevID),
                               a.NrCerere,
                               a.NumeTitular,
                               a.NumeScolar,
                               a.DataNast,
                               a.Varsta,
                               a.NrAdev,
                               a.DataDep,
                               a.DataAdev,
                               a.DataExpirarii,
                               a.TipAdeverinta}
                       .join(QLatin1Char('|'));
    EXPECT_EQ(randuri, (QStringList{
                           T("21|101|Popescu Ion|Popescu Ana|04.03.2012|13|S-21|03.09.2024|01.09.2024|30.06.2025|"
                             "de la scoala (pt elevi)"),
                           T("22|101|Popescu Ion|Popescu Ana|04.03.2012|13|V-22|03.09.2024|01.09.2024|"
                             "Adeverinta fara data expirarii|venit net"),
                           T("23|101|Popescu Ion|Popescu Dan|15.07.2010|15|S-23|03.09.2024|01.09.2024|01.07.2025|"
                             "de la scoala (pt elevi)"),
                       }));
    ASSERT_FALSE(r.empty());
    EXPECT_EQ(r[0].CerereID, 1);
    EXPECT_EQ(r[0].MembruID, 2);
}

TEST_P(AdeverinteBD, EditorulAdeverinteiScolareAdaugaModificaSterge) {
    Cerere(1, 2,
           {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}, {2, T("Popescu"), T("Ana"), T("6120304400111"), 3}});
    Act(40, 1, 2, 3, QDate(2025, 6, 30), 1, "S-40");

    const auto antet = Antet(Bd(), 1, 2);
    ASSERT_TRUE(antet.has_value());
    EXPECT_EQ(antet->NrCerere, T("101"));
    EXPECT_EQ(antet->Titular, T("Popescu Ion"));
    EXPECT_EQ(antet->Scolar, T("Popescu Ana"));
    EXPECT_FALSE(Antet(Bd(), 9, 2).has_value());

    AdeverintaScolara a;
    a.CerereID = 1;
    a.MembruID = 2;
    a.TipAdeverinta = 3;
    a.DataAdeverinta = QDate(2025, 9, 15);
    a.DataDepunerii = QDate(2025, 9, 16);
    MesajeInregistrate m;
    EXPECT_EQ(VerificaAdeverintaScolara(a, m), T("txtNrAdev"));
    EXPECT_EQ(m.Texte(), QStringList{T("Nu ati introdus numarul adeverintei")});
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
    Interogare(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 41")).Executa();
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
}

// Certificates entered through the person's rules, one deleted, saved with the request and
// opened again: the same list with the same marks, and the expiry list reads the marks.
TEST_P(AdeverinteBD, CertificateleDosaruluiSalvateSeRedeschidEgale) {
    Dosar d = DosarComplet(Bd());
    std::vector<MembruCerere>& m = *d.stare.MatriceMembri;
    std::vector<AdeverintaMembru>& titular = m[0].Adeverinte;
    titular.clear();
    MesajeInregistrate mesaje;
    const QDate azi(2026, 11, 22);
    for (const DateAct& a : {DateAct{6, T("venit net"), T("V-1"), {2026, 5, 2}, {2026, 5, 3}, {2026, 8, 31}},
                             DateAct{6, T("venit net"), T("V-2"), {2026, 8, 2}, {2026, 8, 3}, {2026, 11, 30}},
                             DateAct{1, T("AJOFM"), T("A-1"), {2026, 8, 2}, {2026, 8, 3}, {2026, 11, 2}},
                             DateAct{1, T("AJOFM"), T("A-2"), {2026, 10, 2}, {2026, 10, 3}, {2027, 1, 2}}})
        ASSERT_TRUE(OkAct(titular, ModAct::Adaugare, -1, a, mesaje).Scris());
    // The newest unemployment certificate was a mistake: without it the kind has no current one.
    ASSERT_TRUE(StergeAct(titular, {3}, TipuriAdeverinte::Citeste(Bd()), mesaje));
    EXPECT_EQ(Curente(titular), (std::vector<int>{0, 1, 0}));

    OptiuniSalvare o = OptiuniDosar();
    o.CaleBD = Locatie().caleBD;
    const RezultatSalvare r = SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, o, mesaje);
    ASSERT_EQ(r.stare, RezultatSalvare::Stare::Salvata);
    const CerereIncarcata c = IncarcaCerere(Bd(), r.CerereID, LunaDosar, AnDosar, mesaje);
    ASSERT_TRUE(c.Gasita);

    ASSERT_EQ(c.Stare.MatriceMembri->size(), m.size());
    qint64 cheie = 0;
    for (size_t i = 0; i < m.size(); ++i) {
        std::vector<AdeverintaMembru> asteptat = m[i].Adeverinte;
        for (AdeverintaMembru& a : asteptat)
            a.AdevID = ++cheie;
        // Read back latest expiry first.
        std::stable_sort(asteptat.begin(), asteptat.end(), [](const auto& a, const auto& b) {
            return a.DataExpAdev.isValid() && (!b.DataExpAdev.isValid() || a.DataExpAdev > b.DataExpAdev);
        });
        EXPECT_EQ((*c.Stare.MatriceMembri)[i].Adeverinte, asteptat) << i;
    }
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte WHERE NrAdev = 'A-2'")), 0);

    // Opened and saved again unchanged: the same rows under the same keys.
    const RezultatSalvare r2 = SalveazaCerere(Bd(), c.Date, c.Stare, c.Iesiti, o, mesaje);
    ASSERT_EQ(r2.stare, RezultatSalvare::Stare::Salvata);
    const CerereIncarcata c2 = IncarcaCerere(Bd(), r.CerereID, LunaDosar, AnDosar, mesaje);
    EXPECT_EQ(c2.Stare.MatriceMembri, c.Stare.MatriceMembri);

    // The request is granted (Stare 2): November shows V-2 only, A-1 expiring in November is not current.
    const auto lista = ListaActeExpira(Bd(), azi);
    ASSERT_EQ(lista.size(), 1u);
    EXPECT_EQ(lista[0].Membru, T("Popescu Ion"));
    EXPECT_EQ(lista[0].TipAct, T("venit net"));
    EXPECT_EQ(lista[0].DataExpAdev, QDate(2026, 11, 30));
}

PE_AMBELE_MOTOARE(AdeverinteBD);

} // namespace
