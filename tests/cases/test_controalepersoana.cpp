#include "cases/ControalePersoana.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

using namespace ElemPersoana;

namespace {

QStringList Texte(const std::vector<AlegereCombo>& l) {
    QStringList t;
    for (const auto& e : l)
        t << e.text;
    return t;
}
QList<qint64> Iduri(const std::vector<AlegereCombo>& l) {
    QList<qint64> t;
    for (const auto& e : l)
        t << e.id;
    return t;
}

class ListePersoanaBaza : public TestBaza {};

TEST_P(ListePersoanaBaza, FiecareComboCuListaSaInOrdine) {
    BazaDate& db = BazaNoua();
    // Issuers, schools and school towns come from their tables, by name; a blank name is no choice.
    const struct {
        const char* tabela;
        const char* cheie;
        const char* extra;
        qint64 id;
        const char* nume;
    } randuri[] = {
        {"Politii", "PolitiaID", ", LocalitateID", 2, "SPCLEP Iasi"},
        {"Politii", "PolitiaID", ", LocalitateID", 1, "SPCLEP Branesti"},
        {"Politii", "PolitiaID", ", LocalitateID", 3, " "},
        {"Scoli", "ScoalaID", ", LocalitateID", 5, "Scoala Gimnaziala nr. 1"},
        {"Scoli", "ScoalaID", ", LocalitateID", 4, "Liceul \"Sf. Sava\" d'Arc"},
        {"LocScolare", "LocScolaraID", "", 1, "Branesti"},
    };
    for (const auto& r : randuri) {
        const bool cuLocalitate = *r.extra != '\0';
        Interogare q(db, T("INSERT INTO %1 (%2, Denumire%3) VALUES (?, ?%4)")
                             .arg(T(r.tabela), T(r.cheie), T(r.extra), cuLocalitate ? T(", 1") : QString()));
        q.Leaga(r.id).Leaga(T(r.nume)).Executa();
    }

    const ListePersoana l = IncarcaListePersoana(db);
    // The kinship in its Ordine: the children after the adults, with the texts as stored.
    EXPECT_EQ(Iduri(l.cboMembru[cboRudenie]), (QList<qint64>{1, 2, 4, 5, 3, 6, 7, 8, 9, 10}));
    EXPECT_EQ(l.cboMembru[cboRudenie].front().text, T("TITULARUL"));
    const std::pair<int, int> marimi[] = {
        {cboTipAct, 9},   {cboCetatenie, 4},       {cboResedinta, 4},       {cboStCivila, 6},
        {cboStudii, 4},   {cboOcupatie, 14},       {cboDrAsSociala, 4},     {cboStareMembru, 3},
        {cboMotivID, 10}, {cboSituatieScolara, 4}, {cboTipIncalzTrecut, 5}, {cboTipValuta, 4},
        {cboEliberat, 2}, {cboUScolara, 2},        {cboLocScoala, 1},       {cboMotiv, 1},
    };
    for (const auto& [i, n] : marimi)
        EXPECT_EQ(int(l.cboMembru[size_t(i)].size()), n) << i;
    EXPECT_EQ(l.cboMembru[cboSituatieScolara][2].text, T("ELEV CL I-VIII"));
    EXPECT_EQ(l.cboMembru[cboSituatieScolara][2].id, 3);
    EXPECT_EQ(l.cboMembru[cboTipValuta].back().text, T("EURO"));
    EXPECT_EQ(Texte(l.cboMembru[cboEliberat]), (QStringList{T("SPCLEP Branesti"), T("SPCLEP Iasi")}));
    EXPECT_EQ(Texte(l.cboMembru[cboUScolara]),
              (QStringList{T("Liceul \"Sf. Sava\" d'Arc"), T("Scoala Gimnaziala nr. 1")}));
    EXPECT_EQ(Texte(l.cboMembru[cboLocScoala]), QStringList{T("Branesti")});
    EXPECT_EQ(Texte(l.cboMembru[cboMotiv]), QStringList{T("implinirea varstei de 18 ani")});
    ASSERT_EQ(l.TipuriAdeverinte.size(), 9u);
    EXPECT_EQ(l.TipuriAdeverinte[2].text, T("de la scoala (pt elevi)"));
    for (int i = 0; i < 17; ++i)
        EXPECT_EQ(ComboText(i), i == cboEliberat || i == cboUScolara || i == cboLocScoala || i == cboMotiv) << i;
}

TEST_P(ListePersoanaBaza, CoduriCareIncepCuTextul) {
    BazaDate& db = BazaNoua();
    const char* coduri[] = {
        "1850505460011", "1859999999999", "1860000000000", "2851111111111", "1850505460012", "18%_x", "185"};
    qint64 id = 1;
    for (const char* c : coduri)
        ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume, CNP) VALUES (?, ?, ?)"), id++, T("X"), T(c));
    ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume) VALUES (?, ?)"), id++, T("FARA CNP"));

    const struct {
        const char* inceput;
        int limita;
        QStringList asteptat;
    } cazuri[] = {
        {"185", 10, {T("185"), T("1850505460011"), T("1850505460012"), T("1859999999999")}},
        // A prefix ending in nines still stops before the next one.
        {"1859", 10, {T("1859999999999")}},
        {"99", 10, {}},
        {" 18505 ", 10, {T("1850505460011"), T("1850505460012")}},
        // The wild cards of LIKE are taken as typed.
        {"18%", 10, {T("18%_x")}},
        {"18_", 10, {}},
        {"185", 0, {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.inceput);
        EXPECT_EQ(CnpDupaInceput(db, T(c.inceput), c.limita), c.asteptat);
    }
    // An empty box offers the first codes; where a code that is not all digits sorts depends on
    // the engine's collation, so only the count and the person without a code are told.
    const QStringList primele = CnpDupaInceput(db, QString(), 30);
    EXPECT_EQ(primele.size(), 7);
    EXPECT_FALSE(primele.contains(QString()));
    EXPECT_EQ(CnpDupaInceput(db, QString(), 2).size(), 2);
}

// The leave of cboCNP gives a person taken over by an earlier leave back when the code changes
// to one nobody has.
TEST_P(ListePersoanaBaza, CodNecunoscutNuPastreazaPersoanaPreluata) {
    BazaDate& db = BazaNoua();
    CerereTest c;
    c.cerereID = 7;
    c.nrCerere = 107;
    c.persoane = {{11, T("POPESCU"), T("ION"), T("1770203460047"), 1}};
    AdaugaCerereTest(db, c);

    StareCerere s;
    MembruCerere propriu;
    propriu.MembruID = 40;
    propriu.CNP = T("2850505460015");
    s.MatriceMembri = std::vector<MembruCerere>{propriu};

    for (const int mod : {1, 2}) {
        SCOPED_TRACE(mod);
        DatePersoana d;
        d.MembruID = mod == 2 ? 40 : 0;
        d.cboCNP = T("1770203460047");
        PlecareCNP(d, {mod, 0, 12, 2024}, s, db, mesaje);
        EXPECT_EQ(d.MembruID, 11);
        EXPECT_EQ(d.txtMembru[txtNume], T("POPESCU"));
        d.cboCNP = T("1770203460055");
        PlecareCNP(d, {mod, 0, 12, 2024}, s, db, mesaje);
        EXPECT_EQ(d.MembruID, mod == 2 ? 40 : 0);
    }
}

TEST_P(ListePersoanaBaza, PaginileBrowseruluiSuntListaInBucati) {
    BazaDate& db = BazaNoua();
    {
        Tranzactie t(db);
        for (qint64 id = 1; id <= 40; ++id)
            ExecutaCu(db,
                      T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, TipAct, SerieBI) "
                        "VALUES (?, ?, ?, ?, ?, ?)"),
                      id * 3, T("NUME%1").arg(id), T("PRENUME%1").arg(41 - id),
                      T("18501014%1").arg(id, 5, 10, QLatin1Char('0')), id % 3, T("S%1").arg(id));
        t.Confirma();
    }
    const std::vector<RandMembrii> toate = ListaMembrii(db);
    const std::vector<qint64> chei = CheiMembrii(db);
    ASSERT_EQ(chei.size(), toate.size());
    for (size_t i = 0; i < chei.size(); ++i)
        EXPECT_EQ(chei[i], toate[i].MembruID) << i;

    const auto texte = [](const std::vector<RandMembrii>& r, size_t de, size_t pana) {
        QStringList t;
        for (size_t i = de; i < pana; ++i)
            t << QString::number(r[i].MembruID) << r[i].Nume << r[i].Prenume << r[i].CNP << r[i].TipAct << r[i].SerieBI
              << r[i].NrBI;
        return t;
    };
    // Bounds that are keys, bounds between keys, one key, none.
    const struct {
        qint64 primul, ultimul;
        size_t de, pana;
    } cazuri[] = {{3, 30, 0, 10}, {31, 62, 10, 20}, {4, 8, 1, 2}, {120, 120, 39, 40}, {121, 500, 40, 40}};
    for (const auto& c : cazuri)
        EXPECT_EQ(texte(RanduriMembrii(db, c.primul, c.ultimul), 0, c.pana - c.de), texte(toate, c.de, c.pana))
            << c.primul << ".." << c.ultimul;
    EXPECT_EQ(RanduriMembrii(db, 3, 3).front().TipAct, T("BI")) << "the short name of the paper";
}

PE_AMBELE_MOTOARE(ListePersoanaBaza);

TEST(GridAdeverinte, RandulCuColoaneleAscunse) {
    const std::vector<AlegereCombo> tipuri{{1, T("AJOFM (somaj)")}, {3, T("de la scoala (pt elevi)")}};
    const AdeverintaMembru a{77, 3, T("12/B"), QDate(2024, 3, 5), QDate(2024, 12, 31), QDate(2025, 1, 1), 1};
    const auto r = TexteAdeverinta(a, tipuri);
    EXPECT_EQ((QStringList{r.begin(), r.end()}),
              (QStringList{T("de la scoala (pt elevi)"), T("12/B"), T("05-martie-2024"), T("31-decembrie-2024"),
                           T("01-ianuarie-2025"), T("1"), T("3")}));
    // A kind the list lacks shows no text but keeps its id; a missing date is an empty cell.
    const auto f = TexteAdeverinta({0, 9, T("1"), QDate(), QDate(2024, 2, 29), QDate(), 0}, tipuri);
    EXPECT_EQ((QStringList{f.begin(), f.end()}),
              (QStringList{QString(), T("1"), QString(), T("29-februarie-2024"), QString(), T("0"), T("9")}));
    EXPECT_EQ(ColoaneAdeverinte().mid(0, 5),
              (QStringList{T("Tip Adeverinta"), T("Nr Adev"), T("Data Adev"), T("Data Dep"), T("Data Exp")}));
    EXPECT_EQ(ColoaneAdeverinte().size(), 7);
}

TEST(CasetaSumaInvalida, NumesteCasetaCareNuTineUnNumar) {
    const struct {
        const char* venit;
        const char* suma;
        const char* caseta;
    } cazuri[] = {
        {"", "", ""},
        {"1.234,56", "150.5", ""},
        {"  ", "0", ""},
        {"12a", "", "txtMembru_18"},
        {"12", "1,2,3", "txtMembru_19"},
        {"x", "y", "txtMembru_18"},
    };
    for (const auto& c : cazuri) {
        DatePersoana d;
        d.txtMembru[txtVenit] = T(c.venit);
        d.txtMembru[txtSuma] = T(c.suma);
        EXPECT_EQ(CasetaSumaInvalida(d), T(c.caseta)) << c.venit << " / " << c.suma;
    }
}

} // namespace
