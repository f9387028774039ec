#include "cases/Persoana.h"
#include "base/Eroare.h"
#include "base/Texte.h"
#include "cases/Cnp.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/DosarTest.h"
#include "support/PersoaneTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

using namespace ElemPersoana;

namespace {

const QString CnpTitular = CuControl("185050546001");    // 5 May 1985
const QString CnpCopil = CuControl("510031546002");      // 15 March 2010
const QString CnpPartener = CuControl("287111146003");   // 11 November 1987
const QString CnpCunoscut = CuControl("177020346004");   // 3 February 1977, stored in Membrii
const QString CnpFaraCerere = CuControl("291120146005"); // 1 December 1991, in Membrii, on no request

constexpr int Luna = 12, An = 2024; // the working month of every case

const QString TextDublura = T("CNP-ul acestei persoane se gaseste deja in lista ");

MembruCerere Membru(qint64 id, const QString& cnp, int rudenie, const char* rudenieText) {
    MembruCerere m;
    m.MembruID = id;
    m.CNP = cnp;
    m.Nume = T("POPESCU");
    m.Prenume = T("ION");
    m.RudenieID = rudenie;
    m.Rudenie = T(rudenieText);
    return m;
}

// A titular and a child already in the list.
StareCerere DouaPersoane() {
    StareCerere s;
    s.MatriceMembri =
        std::vector<MembruCerere>{Membru(1, CnpTitular, 1, "TITULARUL"), Membru(2, CnpCopil, 3, "COPIL NATURAL")};
    return s;
}

DatePersoana Completa(const QString& cnp) {
    DatePersoana d;
    d.cboCNP = cnp;
    d.txtMembru[txtNume] = T("IONESCU");
    d.txtMembru[txtPrenume] = T("MARIA");
    d.cboMembru[cboRudenie] = {2, T("PARTENER")};
    return d;
}

// ---------------------------------------------------------------------------------------------
// The checks of OK

struct CazVerificare {
    const char* nume;
    std::function<void(DatePersoana&)> schimba;
    int mod = 1;
    int index = -1;
    QString mesaj = {}; // empty: all checks pass
    QString control = {};
};

TEST(VerificaPersoana, PrimaVerificareEsuataCastiga) {
    const CazVerificare cazuri[] = {
        {"CNP gol", [](DatePersoana& d) { d.cboCNP.clear(); }, 1, -1,
         T("Nu puteti salva datele inainte de a introduce CNP-ul"), T("cboCNP")},
        {"CNP din blancuri", [](DatePersoana& d) { d.cboCNP = T("   "); }, 1, -1,
         T("Nu puteti salva datele inainte de a introduce CNP-ul"), T("cboCNP")},
        {"CNP gol inaintea numelui gol",
         [](DatePersoana& d) {
             d.cboCNP.clear();
             d.txtMembru[txtNume].clear();
         },
         1, -1, T("Nu puteti salva datele inainte de a introduce CNP-ul"), T("cboCNP")},
        {"12 caractere", [](DatePersoana& d) { d.cboCNP = CnpPartener.left(12); }, 1, -1,
         T("CNP incorect pentru ca are 12 caractere."), T("cboCNP")},
        {"14 caractere", [](DatePersoana& d) { d.cboCNP = CnpPartener + T("7"); }, 1, -1,
         T("CNP incorect pentru ca are 14 caractere."), T("cboCNP")},
        {"blancurile din jur nu se numara", [](DatePersoana& d) { d.cboCNP = T("  ") + CnpPartener + T(" "); }},
        {"lungimea inaintea rudeniei lipsa",
         [](DatePersoana& d) {
             d.cboCNP = T("123");
             d.cboMembru[cboRudenie] = {};
         },
         1, -1, T("CNP incorect pentru ca are 3 caractere."), T("cboCNP")},
        {"13 caractere fara cifra de control buna trec",
         [](DatePersoana& d) {
             d.cboCNP = CnpPartener.left(12) + QString::number((CnpPartener.right(1).toInt() + 1) % 10);
         }},
        {"13 litere trec", [](DatePersoana& d) { d.cboCNP = T("ABCDEFGHIJKLM"); }},
        {"CNP-ul altui membru, adaugare", [](DatePersoana& d) { d.cboCNP = CnpCopil; }, 1, -1, TextDublura,
         T("cboCNP")},
        {"propriul CNP la modificare", [](DatePersoana& d) { d.cboCNP = CnpCopil; }, 2, 1},
        {"CNP-ul altui membru la modificare", [](DatePersoana& d) { d.cboCNP = CnpTitular; }, 2, 1, TextDublura,
         T("cboCNP")},
        {"dublura inaintea numelui gol",
         [](DatePersoana& d) {
             d.cboCNP = CnpTitular;
             d.txtMembru[txtNume].clear();
         },
         1, -1, TextDublura, T("cboCNP")},
        {"nume gol", [](DatePersoana& d) { d.txtMembru[txtNume].clear(); }, 1, -1,
         T("Nu puteti salva datele inainte de a introduce Numele"), T("txtMembru_0")},
        {"nume din blancuri", [](DatePersoana& d) { d.txtMembru[txtNume] = T("  "); }, 1, -1,
         T("Nu puteti salva datele inainte de a introduce Numele"), T("txtMembru_0")},
        {"nume si prenume goale",
         [](DatePersoana& d) {
             d.txtMembru[txtNume].clear();
             d.txtMembru[txtPrenume].clear();
         },
         1, -1, T("Nu puteti salva datele inainte de a introduce Numele"), T("txtMembru_0")},
        {"prenume gol", [](DatePersoana& d) { d.txtMembru[txtPrenume].clear(); }, 1, -1,
         T("Nu puteti salva datele inainte de a introduce Prenumele"), T("txtMembru_1")},
        {"prenume gol inaintea rudeniei",
         [](DatePersoana& d) {
             d.txtMembru[txtPrenume].clear();
             d.cboMembru[cboRudenie] = {};
         },
         1, -1, T("Nu puteti salva datele inainte de a introduce Prenumele"), T("txtMembru_1")},
        {"fara rudenie", [](DatePersoana& d) { d.cboMembru[cboRudenie] = {}; }, 1, -1,
         T("Nu puteti salva datele inainte de a introduce Gradul de rudenie"), T("cboMembru_0")},
        {"totul completat", [](DatePersoana&) {}},
    };
    const StareCerere stare = DouaPersoane();
    for (const CazVerificare& c : cazuri) {
        SCOPED_TRACE(c.nume);
        DatePersoana d = Completa(CnpPartener);
        c.schimba(d);
        MesajeInregistrate m;
        const QString control = VerificaPersoana(d, {c.mod, c.index, Luna, An}, stare, m);
        EXPECT_EQ(control, c.control);
        EXPECT_EQ(m.Texte(), c.mesaj.isEmpty() ? QStringList{} : QStringList{c.mesaj});
    }
}

TEST(VerificaPersoana, ListaGoalaSauNedimensionataNuAreDubluri) {
    MesajeInregistrate m;
    StareCerere nedimensionata;
    EXPECT_EQ(VerificaPersoana(Completa(CnpTitular), {1, -1, Luna, An}, nedimensionata, m), QString());
    StareCerere goala;
    goala.MatriceMembri.emplace();
    EXPECT_EQ(VerificaPersoana(Completa(CnpTitular), {1, -1, Luna, An}, goala, m), QString());
    EXPECT_TRUE(m.mesaje.empty());
}

// ---------------------------------------------------------------------------------------------
// OK: the element written into the matrix

TEST(OkPersoana, AdaugareaCresteMatriceaCuUnElement) {
    StareCerere s;
    MesajeInregistrate m;
    const RezultatOk primul = OkPersoana(Completa(CnpTitular), {1, 0, Luna, An}, s, m);
    EXPECT_TRUE(primul.Focus.isEmpty());
    EXPECT_EQ(primul.Index, 0);
    ASSERT_TRUE(s.MatriceMembri);
    ASSERT_EQ(s.MatriceMembri->size(), 1u);

    const RezultatOk alDoilea = OkPersoana(Completa(CnpCopil), {1, 1, Luna, An}, s, m);
    EXPECT_EQ(alDoilea.Index, 1);
    ASSERT_EQ(s.MatriceMembri->size(), 2u);
    EXPECT_EQ((*s.MatriceMembri)[0].CNP, CnpTitular);
    EXPECT_EQ((*s.MatriceMembri)[1].CNP, CnpCopil);
    EXPECT_TRUE(m.mesaje.empty());
}

TEST(OkPersoana, ModificareaRescrieDoarElementulSau) {
    StareCerere s = DouaPersoane();
    (*s.MatriceMembri)[1].MotivStare = T("motiv pastrat");
    DatePersoana d = DinMembru((*s.MatriceMembri)[1]);
    d.txtMembru[txtPrenume] = T("ANDREI");
    MesajeInregistrate m;
    const RezultatOk r = OkPersoana(d, {2, 1, Luna, An}, s, m);
    EXPECT_EQ(r.Index, 1);
    ASSERT_EQ(s.MatriceMembri->size(), 2u);
    EXPECT_EQ((*s.MatriceMembri)[1].Prenume, T("ANDREI"));
    EXPECT_EQ((*s.MatriceMembri)[1].MotivStare, T("motiv pastrat"));
    EXPECT_EQ((*s.MatriceMembri)[0].Prenume, T("ION"));
    EXPECT_EQ((*s.MatriceMembri)[0].ModificatLaSalvare, 0);
}

TEST(OkPersoana, MatriceaRamaneNeatinsaLaEsec) {
    MesajeInregistrate m;
    StareCerere nedimensionata;
    DatePersoana faraNume = Completa(CnpTitular);
    faraNume.txtMembru[txtNume].clear();
    const RezultatOk r = OkPersoana(faraNume, {1, 0, Luna, An}, nedimensionata, m);
    EXPECT_EQ(r.Focus, T("txtMembru_0"));
    EXPECT_FALSE(r.Index);
    EXPECT_FALSE(nedimensionata.MatriceMembri) << "Cancel with an empty list discards nothing";

    StareCerere s = DouaPersoane();
    DatePersoana sumaGresita = Completa(CnpPartener);
    sumaGresita.txtMembru[txtVenit] = T("o suta");
    EXPECT_THROW(OkPersoana(sumaGresita, {1, 2, Luna, An}, s, m), Eroare);
    EXPECT_EQ(s.MatriceMembri->size(), 2u);
    ExpectMembruEgal((*s.MatriceMembri)[1], DouaPersoane().MatriceMembri->at(1));
}

// ---------------------------------------------------------------------------------------------
// The copy of the controls to the element

TEST(InMembru, FiecareControlInCampulSau) {
    DatePersoana d;
    d.MembruID = 44;
    d.cboCNP = T(" ") + CnpPartener;
    const std::pair<int, const char*> texte[] = {
        {txtNume, "IONESCU"},
        {txtPrenume, "MARIA"},
        {txtSerieBI, "XB"},
        {txtNrBI, "445566"},
        {txtTaraCetatenie, "Moldova"},
        {txtLocResedinta, "Iasi"},
        {txtTaraResedinta, "Romania"},
        {txtPerioada11, "2021-2022"},
        {txtPerioada22, "2023"},
        {txtTaraAfara11, "Italia"},
        {txtTaraAfara22, "Spania"},
        {txtTaraAfara1, "Germania"},
        {txtTaraAfara2, "Austria"},
        {txtPerioada2, "2020"},
        {txtPerioada1, "2019"},
        {txtVenit, "1.234,56"},
        {txtSuma, "150.5"},
    };
    for (const auto& [i, t] : texte)
        d.txtMembru[size_t(i)] = T(t);
    d.cboMembru[cboRudenie] = {2, T("PARTENER")};
    d.cboMembru[cboTipAct] = {2, T("CARTE DE IDENTITATE")};
    d.cboMembru[cboCetatenie] = {3, T("x")};
    d.cboMembru[cboResedinta] = {4, T("x")};
    d.cboMembru[cboStCivila] = {5, T("x")};
    d.cboMembru[cboStudii] = {6, T("x")};
    d.cboMembru[cboOcupatie] = {1, T("SALARIAT")};
    d.cboMembru[cboDrAsSociala] = {7, T("x")};
    d.cboMembru[cboStareMembru] = {2, T("MEMBRU NOU")};
    d.cboMembru[cboEliberat] = {0, T("SPCLEP Iasi")};
    d.cboMembru[cboUScolara] = {0, T("Scoala 1")};
    d.cboMembru[cboMotivID] = {2, T("ANGAJAT")};
    d.cboMembru[cboLocScoala] = {0, T("Iasi")};
    d.cboMembru[cboTipIncalzTrecut] = {3, T("x")};
    d.cboMembru[cboMotiv] = {0, T("alt motiv")};
    d.cboMembru[cboTipValuta] = {4, T("EURO")};
    // chkNuUrmeaza has no field: checked, it changes nothing of the element.
    for (int i : {chkLucreazaAfara, chkAbandon, chkLocuitAfara, chkDizabilitate, chkVMG, chkAlocatie, chkIncalzire,
                  chkNuUrmeaza, chkPeste20abs, chkDiminuare20, chkDiminuare50})
        d.chkMembru[size_t(i)] = true;
    d.dtpData[dtpDataElib] = QDate(2019, 4, 2);
    d.dtpData[dtpDataStare] = QDate(2024, 11, 1);
    d.dtpData[dtpData18Ani] = QDate(2030, 1, 1);
    AdeverintaMembru cuTip{7, 3, T("12"), QDate(2024, 9, 1), QDate(2024, 9, 2), QDate(2025, 6, 30), 1};
    AdeverintaMembru faraTip{8, 0, T("13"), QDate(), QDate(), QDate(), 0};
    d.Grid = {faraTip, cuTip, faraTip};

    MembruCerere inainte;
    inainte.MotivStare = T("de pastrat");
    inainte.Adeverinte = {faraTip};
    const MembruCerere m = InMembru(d, inainte);

    MembruCerere asteptat;
    asteptat.MembruID = 44;
    asteptat.CNP = CnpPartener;
    asteptat.Nume = T("IONESCU");
    asteptat.Prenume = T("MARIA");
    asteptat.RudenieID = 2;
    asteptat.Rudenie = T("PARTENER");
    asteptat.TipAct = 2;
    asteptat.SerieBI = T("XB");
    asteptat.NrBI = T("445566");
    asteptat.Eliberat = T("SPCLEP Iasi");
    asteptat.DataElib = QDate(2019, 4, 2);
    asteptat.CetatenieID = 3;
    asteptat.TaraCetatenie = T("Moldova");
    asteptat.ResedintaID = 4;
    asteptat.LocResedinta = T("Iasi");
    asteptat.TaraResedinta = T("Romania");
    asteptat.StCivila = 5;
    asteptat.Studii = 6;
    asteptat.OcupatieID = 1;
    asteptat.Ocupatie = T("SALARIAT");
    asteptat.DrAsSociala = 7;
    asteptat.Data18Ani = QDate(2030, 1, 1);
    asteptat.Motiv = T("alt motiv");
    asteptat.ModificatLaSalvare = 1;
    asteptat.MotivStare = T("de pastrat");
    asteptat.DataNastere = QDate(1987, 11, 11);
    asteptat.DataStare = QDate(2024, 11, 1);
    asteptat.DataNast = T("11 Noiembrie 1987");
    asteptat.LocuitAfara = 1;
    asteptat.Perioada11 = T("2021-2022");
    asteptat.TaraAfara11 = T("Italia");
    asteptat.Perioada22 = T("2023");
    asteptat.TaraAfara22 = T("Spania");
    asteptat.LucreazaAfara = 1;
    asteptat.Perioada1 = T("2019");
    asteptat.TaraAfara1 = T("Germania");
    asteptat.Perioada2 = T("2020");
    asteptat.TaraAfara2 = T("Austria");
    asteptat.UScolara = T("Scoala 1");
    asteptat.LocScoala = T("Iasi");
    asteptat.VMG = asteptat.Alocatie = asteptat.Incalzire = 1;
    asteptat.TipIncalzTrecut = 3;
    asteptat.Venit = B("1234.56");
    asteptat.Dizabilitate = 1;
    asteptat.Repetent = 1; // no school situation
    asteptat.Abandon = asteptat.Peste20abs = 1;
    asteptat.MotivID = 2;
    asteptat.Suma = B("150.5");
    asteptat.TipValuta = 4;
    asteptat.StareMembru = 2;
    asteptat.Diminuare20 = asteptat.Diminuare50 = 1;
    asteptat.Adeverinte = {cuTip};
    ExpectMembruEgal(m, asteptat);
}

TEST(InMembru, StudiileSiOcupatiaDupaRudenie) {
    struct Caz {
        int rudenie;
        int studii, ocupatieID;
        const char* ocupatie;
    };
    // cboMembru 5 holds 6, cboMembru 6 holds 1 "SALARIAT", cboMembru 12 holds 4 "ELEV CL IX-XII".
    const Caz cazuri[] = {
        {1, 6, 1, "SALARIAT"},       {2, 6, 1, "SALARIAT"},       {4, 6, 1, "SALARIAT"},        {5, 6, 1, "SALARIAT"},
        {3, 4, 4, "ELEV CL IX-XII"}, {6, 4, 4, "ELEV CL IX-XII"}, {10, 4, 4, "ELEV CL IX-XII"},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.rudenie);
        DatePersoana d = Completa(CnpCopil);
        d.cboMembru[cboRudenie] = {c.rudenie, T("R")};
        d.cboMembru[cboStudii] = {6, T("x")};
        d.cboMembru[cboOcupatie] = {1, T("SALARIAT")};
        d.cboMembru[cboSituatieScolara] = {4, T("ELEV CL IX-XII")};
        const MembruCerere m = InMembru(d, {});
        EXPECT_EQ(m.Studii, c.studii);
        EXPECT_EQ(m.OcupatieID, c.ocupatieID);
        EXPECT_EQ(m.Ocupatie, T(c.ocupatie));
    }
}

TEST(InMembru, RepetentStocat) {
    struct Caz {
        const char* nume;
        int rudenie;
        bool bifat;
        AlegereCombo situatie;
        int repetent;
    };
    const AlegereCombo elev{3, T("ELEV CL I-VIII")}, prescolar{1, T("PRESCOLAR")};
    const Caz cazuri[] = {
        {"copil elev nebifat", 3, false, elev, 0},
        {"copil elev bifat", 3, true, elev, 1},
        {"copil fara situatie scolara", 3, false, {}, 1},
        {"copil prescolar", 7, false, prescolar, 0},
        {"adult", 1, false, {}, 1},
        {"adult bifat", 2, true, {}, 1},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.nume);
        EXPECT_EQ(RepetentStocat(c.bifat, c.situatie), c.repetent);
        DatePersoana d = Completa(CnpCopil);
        d.cboMembru[cboRudenie] = {c.rudenie, T("R")};
        d.chkMembru[chkRepetent] = c.bifat;
        d.cboMembru[cboSituatieScolara] = c.situatie;
        EXPECT_EQ(InMembru(d, {}).Repetent, c.repetent);
    }
}

TEST(InMembru, ValoriImplicite) {
    DatePersoana d = Completa(CnpCopil);
    const MembruCerere m = InMembru(d, {});
    EXPECT_FALSE(m.Data18Ani.isValid());
    EXPECT_EQ(m.StareMembru, 0);
    EXPECT_EQ(m.ModificatLaSalvare, 1);
    EXPECT_EQ(m.Venit, Bani());
    EXPECT_EQ(m.Suma, Bani());
    EXPECT_EQ(m.DataNastere, QDate(2010, 3, 15));
    EXPECT_EQ(m.DataNast, T("15 Martie 2010"));

    d.cboCNP = CuControl("185130546001"); // month 13
    EXPECT_EQ(InMembru(d, {}).DataNast, T("Luna incorecta"));
    EXPECT_FALSE(InMembru(d, {}).DataNastere.isValid());
}

TEST(DinMembru, ElementulRevineNeschimbatPrinControale) {
    const auto [adult, copil, copilFaraScoala] = Complete(CnpPartener, CnpCopil, CnpFaraCerere);
    for (MembruCerere e : {adult, copil, copilFaraScoala}) {
        SCOPED_TRACE(e.MembruID);
        e.ModificatLaSalvare = 1;
        const NastereCNP n = NastereDinCNP(e.CNP);
        e.DataNastere = n.DataNastere;
        e.DataNast = n.lblDataNast;
        ExpectMembruEgal(InMembru(DinMembru(e), e), e);
    }
    EXPECT_TRUE(DinMembru(copil).chkMembru[chkRepetent]);
    EXPECT_FALSE(DinMembru(copilFaraScoala).chkMembru[chkRepetent]) << "the 1 of an empty school is not a mark";
    EXPECT_FALSE(DinMembru(adult).chkMembru[chkRepetent]);
    EXPECT_TRUE(DinMembru(adult).chkVenit[chkVenitDa]);
    EXPECT_FALSE(DinMembru(copil).chkVenit[chkVenitDa]);
}

TEST(PersoanaNoua, PrimaPersoanaEsteTitularul) {
    StareCerere nedimensionata;
    StareCerere goala;
    goala.MatriceMembri.emplace();
    for (const StareCerere* s : {&nedimensionata, &goala}) {
        const DatePersoana d = PersoanaNoua(*s);
        EXPECT_EQ(d.cboMembru[cboRudenie].id, 1);
        EXPECT_EQ(d.cboMembru[cboRudenie].text, T("TITULARUL"));
    }
    EXPECT_EQ(PersoanaNoua(DouaPersoane()).cboMembru[cboRudenie].id, 0);
}

// ---------------------------------------------------------------------------------------------
// Dates from the code

TEST(DateDinCNP, DataNasteriiVarstaSiMajoratul) {
    struct Caz {
        QString cnp;
        const char* eticheta;
        QDate nastere;
        const char* varsta;
        QDate majorat; // invalid: cleared
        QStringList mesaje = {};
    };
    const Caz cazuri[] = {
        {CnpTitular, "5 Mai 1985", QDate(1985, 5, 5), "Varsta: 39", QDate()},
        {CuControl("185120546001"), "5 Decembrie 1985", QDate(1985, 12, 5), "Varsta: 38", QDate()},
        {CnpCopil, "15 Martie 2010", QDate(2010, 3, 15), "Varsta: 14", QDate(2028, 3, 15)},
        // Turned 18 in January of the working year: the year alone decides.
        {CuControl("506011046001"), "10 Ianuarie 2006", QDate(2006, 1, 10), "Varsta: 18", QDate(2024, 1, 10)},
        {CuControl("605122046001"), "20 Decembrie 2005", QDate(2005, 12, 20), "Varsta: 18", QDate()},
        // A first digit of 7, 8 or 9 keeps a two-digit year, silently.
        {CuControl("785050546001"), "5 Mai 85", QDate(85, 5, 5), "Varsta: 1939", QDate()},
        {CuControl("525060146001"),
         "1 Iunie 2025",
         QDate(2025, 6, 1),
         "Varsta: -1",
         QDate(2043, 6, 1),
         {T("Varsta e negativa pentru ca Luna setata este anterioara lunii nasterii!")}},
        // A month or a day that can't be stops the routine: the label says it, no box.
        {T("1851305460013"), "Luna incorecta", QDate(), "", QDate()},
        {T("1850532460013"), "Zi incorecta", QDate(), "", QDate()},
        {T("1851332460013"), "Luna incorecta", QDate(), "", QDate()},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.cnp.toStdString());
        MesajeInregistrate m;
        const DateCNP r = DateDinCNP(c.cnp, Luna, An, &m);
        EXPECT_EQ(r.Nastere.Oprit, !c.nastere.isValid());
        EXPECT_EQ(r.Nastere.lblDataNast, T(c.eticheta));
        EXPECT_EQ(r.Nastere.DataNastere, c.nastere);
        EXPECT_EQ(r.lblVarsta, T(c.varsta));
        EXPECT_EQ(r.Data18Ani, c.majorat);
        EXPECT_EQ(r.Motiv, c.majorat.isValid() ? T("implinirea varstei de 18 ani") : QString());
        EXPECT_EQ(m.Texte(), c.mesaje);
    }
}

// ---------------------------------------------------------------------------------------------
// Dependent controls and the school group

TEST(ControaleDependente, RudeniaAlegeCadrul) {
    const std::pair<int, std::optional<bool>> cazuri[] = {
        {1, true},  {2, true},  {4, true},  {5, true},   {3, false},        {6, false},
        {7, false}, {8, false}, {9, false}, {10, false}, {0, std::nullopt}, {11, std::nullopt},
    };
    for (const auto& [rudenie, adult] : cazuri) {
        SCOPED_TRACE(rudenie);
        DatePersoana d;
        d.cboMembru[cboRudenie] = {rudenie, T("R")};
        EXPECT_EQ(StareControale(d).Adult, adult);
    }
}

TEST(ControaleDependente, BifeleArataCadreleSiActiveazaCasetele) {
    DatePersoana d;
    ControaleDependente s = StareControale(d);
    EXPECT_FALSE(s.picLucreaza);
    EXPECT_FALSE(s.picLocuieste);
    EXPECT_FALSE(s.cboTipIncalzTrecut);
    EXPECT_FALSE(s.SumaVenitActiva);

    d.chkMembru[chkLucreazaAfara] = true;
    s = StareControale(d);
    EXPECT_TRUE(s.picLucreaza);
    EXPECT_FALSE(s.picLocuieste);
    d.chkMembru[chkLocuitAfara] = true;
    EXPECT_TRUE(StareControale(d).picLocuieste);
    d.chkMembru[chkIncalzire] = true;
    EXPECT_TRUE(StareControale(d).cboTipIncalzTrecut);
    d.chkVenit[chkVenitDa] = true;
    EXPECT_TRUE(StareControale(d).SumaVenitActiva);
    d.chkVenit[chkVenitDa] = false;
    d.chkVenit[chkVenitNu] = true;
    EXPECT_FALSE(StareControale(d).SumaVenitActiva);
}

TEST(ControaleDependente, RepetentDoarPentruElev) {
    const std::pair<const char*, bool> cazuri[] = {
        {"ELEV CL I-VIII", true}, {"ELEV CL IX-XII", true}, {"elev", true},
        {"PRESCOLAR", false},     {"FARA STUDII", false},   {"", false},
    };
    for (const auto& [text, aplicabil] : cazuri) {
        SCOPED_TRACE(text);
        DatePersoana d;
        d.cboMembru[cboSituatieScolara] = {3, T(text)};
        d.chkMembru[chkRepetent] = true;
        EXPECT_EQ(StareControale(d).RepetentAplicabil, aplicabil);
        SchimbareSituatieScolara(d);
        EXPECT_EQ(d.chkMembru[chkRepetent], aplicabil);
    }
}

TEST(GrupElev, UnClicLasaCelMultOStare) {
    struct Caz {
        const char* nume;
        std::vector<int> bifate; // after the click, the clicked box included when checked
        int element;
        AlegereCombo situatie;
        std::vector<int> rezultat;
        QStringList mesaje = {};
    };
    const AlegereCombo elev{3, T("ELEV CL I-VIII")}, liceu{4, T("ELEV CL IX-XII")}, faraStudii{2, T("FARA STUDII")};
    const QString nuEsteElev = T("Pentru a putea fi repetent copilul trebuie sa fie elev.");
    const Caz cazuri[] = {
        {"abandon sterge restul",
         {chkRepetent, chkAbandon, chkPeste20abs, chkDiminuare20, chkDiminuare50},
         chkAbandon,
         elev,
         {chkAbandon}},
        {"peste 20 de absente", {chkAbandon, chkPeste20abs}, chkPeste20abs, elev, {chkPeste20abs}},
        {"10 - 19 absente", {chkDiminuare50, chkDiminuare20}, chkDiminuare20, elev, {chkDiminuare20}},
        {"20 de absente", {chkDiminuare20, chkDiminuare50, chkRepetent}, chkDiminuare50, elev, {chkDiminuare50}},
        {"nici una", {chkRepetent, chkAbandon, chkNiciUna}, chkNiciUna, elev, {chkNiciUna}},
        {"debifarea sterge si ea restul", {chkPeste20abs}, chkAbandon, elev, {}},
        {"alte bife nu sunt atinse",
         {chkVMG, chkDizabilitate, chkAbandon},
         chkDiminuare20,
         elev,
         {chkVMG, chkDizabilitate}},
        {"repetent nu sterge nimic", {chkAbandon, chkRepetent}, chkRepetent, elev, {chkAbandon, chkRepetent}},
        {"repetent de liceu", {chkRepetent}, chkRepetent, liceu, {chkRepetent}},
        {"repetent fara situatie scolara", {chkRepetent, chkAbandon}, chkRepetent, {}, {chkAbandon}, {nuEsteElev}},
        {"repetent fara studii", {chkRepetent}, chkRepetent, faraStudii, {}, {nuEsteElev}},
        {"debifarea lui repetent", {chkAbandon}, chkRepetent, {}, {chkAbandon}},
        {"clic in afara grupului", {chkAbandon, chkVMG}, chkVMG, elev, {chkAbandon, chkVMG}},
        // The child of school age out of school is not one of the group's states.
        {"nu urmeaza scoala nu sterge nimic", {chkAbandon, chkNuUrmeaza}, chkNuUrmeaza, {}, {chkAbandon, chkNuUrmeaza}},
        {"nici una nu il sterge",
         {chkNuUrmeaza, chkPeste20abs, chkNiciUna},
         chkNiciUna,
         {},
         {chkNuUrmeaza, chkNiciUna}},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.nume);
        DatePersoana d;
        d.cboMembru[cboSituatieScolara] = c.situatie;
        for (int i : c.bifate)
            d.chkMembru[size_t(i)] = true;
        MesajeInregistrate m;
        ClickGrupElev(d, c.element, m);
        std::array<bool, 14> asteptat{};
        for (int i : c.rezultat)
            asteptat[size_t(i)] = true;
        EXPECT_EQ(d.chkMembru, asteptat);
        EXPECT_EQ(m.Texte(Mesaje::Fel::Avertisment), c.mesaje);
        EXPECT_EQ(m.mesaje.size(), size_t(c.mesaje.size()));
    }
}

TEST(GrupElev, DaSiNuLaVenituriSeExclud) {
    DatePersoana d;
    d.chkVenit[chkVenitNu] = true;
    d.chkVenit[chkVenitDa] = true;
    ClickVenit(d, chkVenitDa);
    EXPECT_TRUE(d.chkVenit[chkVenitDa]);
    EXPECT_FALSE(d.chkVenit[chkVenitNu]);
    d.txtMembru[txtSuma] = T("150");
    d.cboMembru[cboTipValuta] = {1, T("LEI")};

    d.chkVenit[chkVenitNu] = true;
    ClickVenit(d, chkVenitNu);
    EXPECT_FALSE(d.chkVenit[chkVenitDa]);
    EXPECT_TRUE(d.chkVenit[chkVenitNu]);
    EXPECT_TRUE(d.txtMembru[txtSuma].isEmpty());

    d.chkVenit = {true, false};
    d.txtMembru[txtSuma] = T("90");
    d.chkVenit[chkVenitDa] = false;
    ClickVenit(d, chkVenitDa);
    EXPECT_TRUE(d.txtMembru[txtSuma].isEmpty());
}

// ---------------------------------------------------------------------------------------------
// The leave of cboCNP, on a database

class PlecareCNPBaza : public TestBaza {
protected:
    static CerereTest Cerere(qint64 id, qint64 nr, const CerereTest::Persoana& p) {
        CerereTest c;
        c.cerereID = id;
        c.nrCerere = nr;
        c.persoane = {p};
        return c;
    }

    // POPESCU ION on requests 7 (no 107) and 9 (no 55); a person on no request; a request of
    // two persons whose names hold apostrophes.
    BazaDate& Baza() {
        BazaDate& db = BazaNoua();
        AdaugaCerereTest(db, Cerere(7, 107, {11, T("POPESCU"), T("ION"), CnpCunoscut, 1}));
        AdaugaCerereTest(db, Cerere(9, 55, {11, T("POPESCU"), T("ION"), CnpCunoscut, 1}));
        ExecutaCu(db,
                  T("UPDATE Membrii SET TipAct = ?, SerieBI = ?, NrBI = ?, Eliberat = ?, DataElib = ?, "
                    "Dizabilitate = ? WHERE MembruID = ?"),
                  2, T("XZ"), T("123456"), T("SPCLEP Branesti"), QDate(2019, 4, 2), 1, 11);
        ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)"), 12, T("VASILE"),
                  T("ANA"), CnpFaraCerere);
        AdaugaCerereTest(db, Cerere(3, 3, {13, T("O'NEILL"), T("D'ANA"), CnpPartener, 1}));
        return db;
    }

    RezultatPlecareCNP Pleaca(DatePersoana& d, int mod, int index, const StareCerere& s) {
        return PlecareCNP(d, {mod, index, Luna, An}, s, *bd_, mesaje);
    }
};

TEST_P(PlecareCNPBaza, CNPNecunoscutCompleteazaDatele) {
    Baza();
    DatePersoana d = Completa(CnpCopil);
    const RezultatPlecareCNP r = Pleaca(d, 1, 0, StareCerere{});
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(T(" | ")).toStdString();
    EXPECT_FALSE(r.RevinoLaCNP);
    EXPECT_FALSE(r.PersoanaReluata);
    ASSERT_TRUE(r.Date);
    EXPECT_EQ(r.Date->Nastere.lblDataNast, T("15 Martie 2010"));
    EXPECT_EQ(r.Date->lblVarsta, T("Varsta: 14"));
    EXPECT_EQ(d.dtpData[dtpData18Ani], QDate(2028, 3, 15));
    EXPECT_EQ(d.cboMembru[cboMotiv].text, T("implinirea varstei de 18 ani"));
    EXPECT_EQ(d.MembruID, 0);
    EXPECT_EQ(d.txtMembru[txtNume], T("IONESCU"));

    // An adult: the date and the reason left from before are cleared.
    d.cboCNP = CnpTitular;
    Pleaca(d, 1, 0, StareCerere{});
    EXPECT_FALSE(d.dtpData[dtpData18Ani].isValid());
    EXPECT_TRUE(d.cboMembru[cboMotiv].text.isEmpty());
}

TEST_P(PlecareCNPBaza, PersoanaCunoscutaEsteReluataCuAnunt) {
    Baza();
    DatePersoana d = Completa(CnpCunoscut);
    d.chkMembru[chkDizabilitate] = false;
    const RezultatPlecareCNP r = Pleaca(d, 1, 2, DouaPersoane());
    EXPECT_EQ(mesaje.Texte(Mesaje::Fel::Informatie),
              QStringList{T("CNP-ul acestei persoane exista in Baza de Date la POPESCU ION, cererea nr: 107")});
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_FALSE(r.RevinoLaCNP);
    EXPECT_TRUE(r.PersoanaReluata);
    EXPECT_EQ(d.MembruID, 11);
    EXPECT_EQ(d.txtMembru[txtNume], T("POPESCU"));
    EXPECT_EQ(d.txtMembru[txtPrenume], T("ION"));
    EXPECT_EQ(d.cboMembru[cboTipAct].id, 2);
    EXPECT_EQ(d.txtMembru[txtSerieBI], T("XZ"));
    EXPECT_EQ(d.txtMembru[txtNrBI], T("123456"));
    EXPECT_EQ(d.cboMembru[cboEliberat].text, T("SPCLEP Branesti"));
    EXPECT_EQ(d.dtpData[dtpDataElib], QDate(2019, 4, 2));
    EXPECT_TRUE(d.chkMembru[chkDizabilitate]);
    // What belongs to the request is left to be entered anew.
    EXPECT_EQ(d.cboMembru[cboRudenie].id, 2);
    ASSERT_TRUE(r.Date);
    EXPECT_EQ(r.Date->Nastere.DataNastere, QDate(1977, 2, 3));
}

TEST_P(PlecareCNPBaza, AnuntulLaModificareDoarPentruAltaPersoana) {
    Baza();
    StareCerere s = DouaPersoane();
    (*s.MatriceMembri)[1].MembruID = 11;

    DatePersoana aceeasi = DinMembru((*s.MatriceMembri)[1]);
    aceeasi.cboCNP = CnpCunoscut;
    const RezultatPlecareCNP r = Pleaca(aceeasi, 2, 1, s);
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_TRUE(r.PersoanaReluata);
    EXPECT_EQ(aceeasi.txtMembru[txtSerieBI], T("XZ"));

    DatePersoana alta = DinMembru((*s.MatriceMembri)[0]);
    alta.cboCNP = CnpCunoscut;
    Pleaca(alta, 2, 0, s);
    EXPECT_EQ(mesaje.Texte(),
              QStringList{T("CNP-ul acestei persoane exista in Baza de Date la POPESCU ION, cererea nr: 107")});
    EXPECT_EQ(alta.MembruID, 11);
}

TEST_P(PlecareCNPBaza, PersoanaFaraCerereEsteReluataFaraAnunt) {
    Baza();
    DatePersoana d = Completa(CnpFaraCerere);
    const RezultatPlecareCNP r = Pleaca(d, 1, 0, StareCerere{});
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_TRUE(r.PersoanaReluata);
    EXPECT_EQ(d.MembruID, 12);
    EXPECT_EQ(d.txtMembru[txtNume], T("VASILE"));
    EXPECT_EQ(d.cboMembru[cboTipAct].id, 0);
    EXPECT_FALSE(d.dtpData[dtpDataElib].isValid());
}

TEST_P(PlecareCNPBaza, ApostroafeleSuntCititeCaAtare) {
    Baza();
    DatePersoana d = Completa(CnpPartener);
    Pleaca(d, 1, 0, StareCerere{});
    EXPECT_EQ(mesaje.Texte(),
              QStringList{T("CNP-ul acestei persoane exista in Baza de Date la O'NEILL D'ANA, cererea nr: 3")});
    EXPECT_EQ(d.txtMembru[txtNume], T("O'NEILL"));
    EXPECT_EQ(d.MembruID, 13);
}

TEST_P(PlecareCNPBaza, CNPDejaInListaEsteRefuzat) {
    Baza();
    StareCerere s = DouaPersoane();
    (*s.MatriceMembri)[0].CNP = CnpCunoscut;

    DatePersoana d = Completa(CnpCunoscut);
    const RezultatPlecareCNP r = Pleaca(d, 1, 2, s);
    EXPECT_EQ(mesaje.Texte(),
              (QStringList{T("CNP-ul acestei persoane exista in Baza de Date la POPESCU ION, cererea nr: 107"),
                           TextDublura}));
    EXPECT_TRUE(r.RevinoLaCNP);
    EXPECT_FALSE(r.PersoanaReluata);
    EXPECT_EQ(d.MembruID, 0);
    EXPECT_EQ(d.txtMembru[txtNume], T("IONESCU"));

    mesaje.mesaje.clear();
    DatePersoana copil = Completa(CnpCopil);
    EXPECT_TRUE(Pleaca(copil, 1, 2, s).RevinoLaCNP);
    EXPECT_EQ(mesaje.Texte(), QStringList{TextDublura});
    EXPECT_EQ(copil.dtpData[dtpData18Ani], QDate(2028, 3, 15)) << "the dates come before the list is searched";

    mesaje.mesaje.clear();
    DatePersoana elInsusi = DinMembru((*s.MatriceMembri)[1]);
    EXPECT_FALSE(Pleaca(elInsusi, 2, 1, s).RevinoLaCNP);
    EXPECT_TRUE(mesaje.mesaje.empty());
}

TEST_P(PlecareCNPBaza, CNPDe12CifreRamaneEditabil) {
    Baza();
    DatePersoana d = Completa(CnpCopil.left(12));
    const RezultatPlecareCNP r = Pleaca(d, 1, 0, StareCerere{});
    EXPECT_EQ(mesaje.Texte(Mesaje::Fel::Critic), QStringList{T("CNP invalid.\nNr caractere insuficiente")});
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_FALSE(r.RevinoLaCNP);
    EXPECT_FALSE(r.Date);
    EXPECT_FALSE(r.PersoanaReluata);
    EXPECT_FALSE(d.dtpData[dtpData18Ani].isValid());
    EXPECT_EQ(d.txtMembru[txtNume], T("IONESCU"));

    // OK refuses it with the length, and the person can be corrected.
    MesajeInregistrate m;
    EXPECT_EQ(VerificaPersoana(d, {1, 0, Luna, An}, StareCerere{}, m), T("cboCNP"));
    EXPECT_EQ(m.Texte(), QStringList{T("CNP incorect pentru ca are 12 caractere.")});
    d.cboCNP = CnpCopil;
    StareCerere s;
    EXPECT_EQ(OkPersoana(d, {1, 0, Luna, An}, s, m).Index, 0);
}

TEST_P(PlecareCNPBaza, CodInvalidCunoscutEsteReluatFaraAnunt) {
    BazaDate& db = Baza();
    const QString gresit = CnpCunoscut.left(12) + QString::number((CnpCunoscut.right(1).toInt() + 1) % 10);
    ExecutaCu(db, T("UPDATE Membrii SET CNP = ? WHERE MembruID = ?"), gresit, 11);
    DatePersoana d = Completa(gresit);
    const RezultatPlecareCNP r = Pleaca(d, 1, 0, StareCerere{});
    EXPECT_EQ(mesaje.Texte(), QStringList{T("CNP invalid.\nCNP-ul e posibil sa aiba codul judetului incorect.")});
    EXPECT_TRUE(r.Date);
    EXPECT_TRUE(r.PersoanaReluata);
    EXPECT_EQ(d.MembruID, 11);
}

TEST_P(PlecareCNPBaza, CasetaGoalaNuFaceNimic) {
    Baza();
    DatePersoana d = Completa(T("  "));
    d.dtpData[dtpData18Ani] = QDate(2030, 1, 1);
    const RezultatPlecareCNP r = Pleaca(d, 1, 0, StareCerere{});
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_FALSE(r.Date);
    EXPECT_FALSE(r.PersoanaReluata);
    EXPECT_EQ(d.dtpData[dtpData18Ani], QDate(2030, 1, 1));
}

TEST_P(PlecareCNPBaza, CautareaDupaCNPIntoarcePersoanaSiPrimaCerere) {
    BazaDate& db = Baza();
    const CautareCNP cunoscut = CautaDupaCNP(db, CnpCunoscut);
    ASSERT_TRUE(cunoscut.Persoana);
    EXPECT_EQ(cunoscut.Persoana->MembruID, 11);
    ASSERT_TRUE(cunoscut.Cerere);
    EXPECT_EQ(cunoscut.Cerere->NrCerere, T("107"));
    EXPECT_EQ(cunoscut.Cerere->MembruID, 11);

    const CautareCNP faraCerere = CautaDupaCNP(db, CnpFaraCerere);
    EXPECT_TRUE(faraCerere.Persoana);
    EXPECT_FALSE(faraCerere.Cerere);

    const CautareCNP necunoscut = CautaDupaCNP(db, CnpCopil);
    EXPECT_FALSE(necunoscut.Persoana);
    EXPECT_FALSE(necunoscut.Cerere);
    // No wild cards: a code is matched whole.
    EXPECT_FALSE(CautaDupaCNP(db, CnpCunoscut.left(12) + T("%")).Persoana);
    EXPECT_FALSE(CautaDupaCNP(db, CnpCunoscut.left(12) + T("_")).Persoana);
}

PE_AMBELE_MOTOARE(PlecareCNPBaza);

// ---------------------------------------------------------------------------------------------
// The person browser

class MembriiBaza : public TestBaza {
protected:
    BazaDate& Baza() {
        BazaDate& db = BazaNoua();
        const struct {
            qint64 id;
            const char* nume;
            const char* prenume;
            QString cnp;
            int tipAct;
        } persoane[] = {
            {1, "POPESCU", "ION", CnpTitular, 2},    {2, "POPA", "MARIA", CnpPartener, 1},
            {3, "IONESCU", "ANA", CnpCopil, 0},      {4, "POP_A", "ANDREI", CnpCunoscut, 4},
            {5, "O'NEILL", "DAN", CnpFaraCerere, 2}, {6, "\u015ETEFAN", "\u0162IC\u0102", T("6140203400022"), 2},
        };
        for (const auto& p : persoane)
            ExecutaCu(db,
                      T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, TipAct, SerieBI, NrBI, NumeCautare, "
                        "PrenumeCautare) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                      p.id, T(p.nume), T(p.prenume), p.cnp, p.tipAct, T("S%1").arg(p.id), T("N%1").arg(p.id),
                      CheieCautare(T(p.nume)), CheieCautare(T(p.prenume)));
        return db;
    }
};

TEST_P(MembriiBaza, ListaCuActulScurt) {
    BazaDate& db = Baza();
    const std::vector<RandMembrii> r = ListaMembrii(db);
    ASSERT_EQ(r.size(), 6u);
    EXPECT_EQ(r[0].MembruID, 1);
    EXPECT_EQ(r[0].Nume, T("POPESCU"));
    EXPECT_EQ(r[0].Prenume, T("ION"));
    EXPECT_EQ(r[0].CNP, CnpTitular);
    EXPECT_EQ(r[0].TipAct, T("CI"));
    EXPECT_EQ(r[0].SerieBI, T("S1"));
    EXPECT_EQ(r[0].NrBI, T("N1"));
    EXPECT_EQ(r[1].TipAct, T("BI"));
    EXPECT_EQ(r[2].TipAct, QString()) << "no paper of kind 0";
    EXPECT_EQ(r[3].TipAct, T("CN"));
    EXPECT_EQ(r[4].MembruID, 5);
}

TEST_P(MembriiBaza, CautareaGasestePrimulCareIncepeCuTextul) {
    BazaDate& db = Baza();
    struct Caz {
        CautareMembrii camp;
        QString text;
        std::optional<qint64> gasit;
        const char* mesaj = nullptr;
    };
    const Caz cazuri[] = {
        {CautareMembrii::Nume, T("POP"), 1},
        {CautareMembrii::Nume, T("popa"), 2},
        {CautareMembrii::Nume, T("POP_"), 4},
        {CautareMembrii::Nume, T("POP%A"), std::nullopt, "Nu s-a gasit Numele: POP%A"},
        {CautareMembrii::Nume, T("o'n"), 5},
        {CautareMembrii::Nume, T("ESCU"), std::nullopt, "Nu s-a gasit Numele: ESCU"},
        {CautareMembrii::Prenume, T("an"), 3},
        {CautareMembrii::Prenume, T("ANDREI"), 4},
        {CautareMembrii::Prenume, T("Ionel"), std::nullopt, "Nu s-a gasit Prenumele: Ionel"},
        {CautareMembrii::Nume, T("stefan"), 6},
        {CautareMembrii::Nume, T("\u0218tef"), 6},
        {CautareMembrii::Nume, T("\u0219TEFANESCU"), std::nullopt, "Nu s-a gasit Numele: \u0219TEFANESCU"},
        {CautareMembrii::Prenume, T("tica"), 6},
        {CautareMembrii::Prenume, T("\u021Bic\u0103"), 6},
        {CautareMembrii::Prenume, T("Tic\u00E2"), 6},
        {CautareMembrii::CNP, CnpCopil.left(7), 3},
        {CautareMembrii::CNP, CnpPartener, 2},
        {CautareMembrii::CNP, T("9"), std::nullopt, "Nu s-a gasit CNP-ul: 9"},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.text.toStdString());
        MesajeInregistrate m;
        EXPECT_EQ(CautaInMembrii(db, c.camp, c.text, m), c.gasit);
        EXPECT_EQ(m.Texte(), c.mesaj ? QStringList{T(c.mesaj)} : QStringList{});
    }
}

PE_AMBELE_MOTOARE(MembriiBaza);

} // namespace
