#include "base/Eroare.h"
#include "cases/Persoana.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/DosarTest.h"
#include "support/PersoaneTest.h"
#include "support/Texte.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

using namespace ElemPersoana;

namespace {

const QString CnpTitular = CuControl("185050546001");    // 5 May 1985
const QString CnpCopil = CuControl("510031546002");      // 15 March 2010
const QString CnpPartener = CuControl("287111146003");   // 11 November 1987, stored as O'NEILL D'ANA
const QString CnpCunoscut = CuControl("177020346004");   // 3 February 1977, stored in Membrii
const QString CnpFaraCerere = CuControl("291120146005"); // 1 December 1991, in Membrii, on no request
const QString CnpNou = CuControl("512040146006");        // 1 April 2012, nobody's

constexpr int Luna = 12, An = 2024; // the working month of every case

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

// The checks of OK in order: case k breaks check k and every later one; the first failure is shown.
TEST(VerificaPersoana, PrimaVerificareEsuataCastiga) {
    const struct {
        std::function<void(DatePersoana&)> strica;
        const char* mesaj; // a word of the message
        const char* control;
    } verificari[] = {
        {[](DatePersoana& d) { d.cboCNP = T("   "); }, "CNP-ul", "cboCNP"},
        {[](DatePersoana& d) { d.cboCNP = CnpPartener.left(12); }, "are 12 caractere", "cboCNP"},
        {[](DatePersoana& d) { d.cboCNP = CnpCopil; }, "deja in lista", "cboCNP"},
        {[](DatePersoana& d) { d.txtMembru[txtNume] = T("  "); }, "Numele", "txtMembru_0"},
        {[](DatePersoana& d) { d.txtMembru[txtPrenume].clear(); }, "Prenumele", "txtMembru_1"},
        {[](DatePersoana& d) { d.cboMembru[cboRudenie] = {}; }, "Gradul de rudenie", "cboMembru_0"},
    };
    const StareCerere stare = DouaPersoane();
    for (size_t k = 0; k < std::size(verificari); ++k) {
        SCOPED_TRACE(verificari[k].mesaj);
        DatePersoana d = Completa(CnpPartener);
        for (size_t j = std::size(verificari); j-- > k;)
            verificari[j].strica(d);
        MesajeInregistrate m;
        EXPECT_EQ(VerificaPersoana(d, {1, -1, Luna, An}, stare, m), T(verificari[k].control));
        ASSERT_EQ(m.Texte().size(), 1);
        EXPECT_TRUE(m.Texte()[0].contains(T(verificari[k].mesaj))) << S(m.Texte()[0]);
    }

    // The code is trimmed and only counted (letters, a wrong control digit); on a change the
    // element's own code is no duplicate.
    const QString controlGresit = CnpPartener.left(12) + QString::number((CnpPartener.right(1).toInt() + 1) % 10);
    MesajeInregistrate m;
    for (const QString& cnp : {T(" ") + controlGresit + T(" "), T("ABCDEFGHIJKLM")})
        EXPECT_EQ(VerificaPersoana(Completa(cnp), {1, -1, Luna, An}, stare, m), QString()) << S(cnp);
    EXPECT_EQ(VerificaPersoana(Completa(CnpCopil), {2, 1, Luna, An}, stare, m), QString());
    EXPECT_EQ(VerificaPersoana(Completa(CnpTitular), {2, 1, Luna, An}, stare, m), T("cboCNP"));
}

// OK appends or rewrites only its element; a refusal or a bad amount leaves the matrix as it was.
TEST(OkPersoana, ScrieElementulSauNimic) {
    StareCerere s;
    MesajeInregistrate m;
    EXPECT_EQ(OkPersoana(Completa(CnpTitular), {1, 0, Luna, An}, s, m).Index, 0);
    EXPECT_EQ(OkPersoana(Completa(CnpCopil), {1, 1, Luna, An}, s, m).Index, 1);
    ASSERT_EQ(s.MatriceMembri->size(), 2u);

    (*s.MatriceMembri)[1].MotivStare = T("motiv pastrat");
    (*s.MatriceMembri)[0].ModificatLaSalvare = 0;
    const MembruCerere primul = (*s.MatriceMembri)[0];
    DatePersoana d = DinMembru((*s.MatriceMembri)[1]);
    d.txtMembru[txtPrenume] = T("ANDREI");
    EXPECT_EQ(OkPersoana(d, {2, 1, Luna, An}, s, m).Index, 1);
    EXPECT_EQ((*s.MatriceMembri)[1].Prenume + (*s.MatriceMembri)[1].MotivStare, T("ANDREImotiv pastrat"));
    EXPECT_EQ((*s.MatriceMembri)[0], primul);

    const StareCerere inainte = s;
    DatePersoana sumaGresita = Completa(CnpPartener);
    sumaGresita.txtMembru[txtVenit] = T("o suta");
    EXPECT_THROW(OkPersoana(sumaGresita, {1, 2, Luna, An}, s, m), Eroare);
    DatePersoana faraNume = Completa(CnpPartener);
    faraNume.txtMembru[txtNume].clear();
    EXPECT_FALSE(OkPersoana(faraNume, {1, 2, Luna, An}, s, m).Index);
    EXPECT_TRUE(s == inainte);
    StareCerere nedimensionata;
    OkPersoana(faraNume, {1, 0, Luna, An}, nedimensionata, m);
    EXPECT_FALSE(nedimensionata.MatriceMembri) << "Cancel with an empty list discards nothing";
}

// A full person goes to the controls and comes back; MotivStare, which no control holds, is kept.
TEST(DinMembru, ElementulRevineNeschimbatPrinControale) {
    const auto [adult, copil, copilFaraScoala] = Complete(CnpPartener, CnpCopil, CnpFaraCerere);
    for (MembruCerere e : {adult, copil, copilFaraScoala}) {
        SCOPED_TRACE(e.MembruID);
        e.ModificatLaSalvare = 1;
        const NastereCNP n = NastereDinCNP(e.CNP);
        e.DataNastere = n.DataNastere;
        e.DataNast = n.lblDataNast;
        MembruCerere inainte;
        inainte.MotivStare = e.MotivStare;
        ExpectMembruEgal(InMembru(DinMembru(e), inainte), e);
    }
    // The 1 of an empty school is not a mark; "Da" of the income is checked by an amount.
    EXPECT_EQ((std::array{DinMembru(copil).chkMembru[chkRepetent], DinMembru(copilFaraScoala).chkMembru[chkRepetent],
                          DinMembru(adult).chkVenit[chkVenitDa], DinMembru(copil).chkVenit[chkVenitDa]}),
              (std::array{true, false, true, false}));

    // A grid row without a kind is not kept; a box that is checked stores 1 also without a school.
    DatePersoana d = DinMembru(adult);
    d.Grid.insert(d.Grid.begin(), AdeverintaMembru{9, 0, T("fara tip"), {}, {}, {}, 0});
    EXPECT_EQ(InMembru(d, {}).Adeverinte, adult.Adeverinte);
    EXPECT_EQ(RepetentStocat(false, {3, T("ELEV CL I-VIII")}), 0);
    EXPECT_EQ(RepetentStocat(false, {}), 1);
}

TEST(DateDinCNP, DataNasteriiVarstaSiMajoratul) {
    // The code, the label of the birth date, the date, the age, the date of turning 18 (invalid:
    // cleared) and the messages.
    const std::tuple<QString, const char*, QDate, const char*, QDate, QStringList> cazuri[] = {
        {CnpCopil, "15 Martie 2010", QDate(2010, 3, 15), "Varsta: 14", QDate(2028, 3, 15), {}},
        // Turned 18 in January of the working year: the year alone decides.
        {CuControl("506011046001"), "10 Ianuarie 2006", QDate(2006, 1, 10), "Varsta: 18", QDate(2024, 1, 10), {}},
        {CuControl("605122046001"), "20 Decembrie 2005", QDate(2005, 12, 20), "Varsta: 18", QDate(), {}},
        // A first digit of 7, 8 or 9 keeps a two-digit year, silently.
        {CuControl("785050546001"), "5 Mai 85", QDate(85, 5, 5), "Varsta: 1939", QDate(), {}},
        // clang-format off
        {CuControl("525060146001"), "1 Iunie 2025", QDate(2025, 6, 1), "Varsta: -1", QDate(2043, 6, 1),
         {T("Varsta e negativa pentru ca Luna setata este anterioara lunii nasterii!")}},
        // clang-format on
        // A month or a day that can't be stops the routine: the label says it, no box.
        {T("1851305460013"), "Luna incorecta", QDate(), "", QDate(), {}},
    };
    for (const auto& [cnp, eticheta, nastere, varsta, majorat, asteptate] : cazuri) {
        SCOPED_TRACE(S(cnp));
        MesajeInregistrate m;
        const DateCNP r = DateDinCNP(cnp, Luna, An, &m);
        EXPECT_EQ(r.Nastere.Oprit, !nastere.isValid());
        EXPECT_EQ(r.Nastere.lblDataNast + u'|' + r.lblVarsta, T(eticheta) + u'|' + T(varsta));
        EXPECT_EQ(r.Nastere.DataNastere, nastere);
        EXPECT_EQ(r.Data18Ani, majorat);
        EXPECT_EQ(r.Motiv, majorat.isValid() ? T("implinirea varstei de 18 ani") : QString());
        EXPECT_EQ(m.Texte(), asteptate);
    }
}

// Kinships 1, 2, 4, 5 are adults, 3 and 6 to 10 children, the rest neither.
TEST(ControaleDependente, RudeniaAlegeCadrul) {
    const std::pair<int, std::optional<bool>> rudenii[] = {
        {1, true},  {2, true},  {4, true},  {5, true},   {3, false},        {6, false},
        {7, false}, {8, false}, {9, false}, {10, false}, {0, std::nullopt}, {11, std::nullopt}};
    for (const auto& [rudenie, adult] : rudenii) {
        DatePersoana d;
        d.cboMembru[cboRudenie] = {rudenie, T("R")};
        EXPECT_EQ(StareControale(d).Adult, adult) << rudenie;
    }
}

class PlecareCNPBaza : public TestBaza {
protected:
    // POPESCU ION on requests 7 (no 107) and 9 (no 55); two persons on no request, one with a
    // code of a wrong control digit; a request of a person whose names hold apostrophes.
    BazaDate& Baza() {
        BazaDate& db = BazaNoua();
        const CerereTest::Persoana popescu{11, T("POPESCU"), T("ION"), CnpCunoscut, 1};
        AdaugaCerereTest(db, {7, 0, 107, 2, 1, {}, {}, {popescu}});
        AdaugaCerereTest(db, {9, 0, 55, 2, 1, {}, {}, {popescu}});
        ExecutaCu(db,
                  T("UPDATE Membrii SET TipAct = ?, SerieBI = ?, NrBI = ?, Eliberat = ?, DataElib = ?, "
                    "Dizabilitate = ? WHERE MembruID = ?"),
                  2, T("XZ"), T("123456"), T("SPCLEP Branesti"), QDate(2019, 4, 2), 1, 11);
        const QString ins = T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)");
        ExecutaCu(db, ins, 12, T("VASILE"), T("ANA"), CnpFaraCerere);
        ExecutaCu(db, ins, 14, T("MARIN"), T("DAN"), CnpGresit());
        AdaugaCerereTest(db, {3, 0, 3, 2, 1, {}, {}, {{13, T("O'NEILL"), T("D'ANA"), CnpPartener, 1}}});
        return db;
    }
    static QString CnpGresit() {
        const QString bun = CuControl("180010146007");
        return bun.left(12) + QString::number((bun.right(1).toInt() + 1) % 10);
    }
};

// The leave of cboCNP after an earlier leave took person 99: notice, dates, refusal, re-use, own person.
TEST_P(PlecareCNPBaza, PlecareaDinCNP) {
    Baza();
    // In the list: the titular, the known person (key 11) and the person of the apostrophes.
    StareCerere s;
    s.MatriceMembri =
        std::vector<MembruCerere>{Membru(1, CnpTitular, 1, "TITULARUL"), Membru(11, CnpCopil, 3, "COPIL NATURAL"),
                                  Membru(13, CnpPartener, 2, "PARTENER")};
    const QDate inainte(2099, 1, 1);
    const struct {
        const char* nume;
        QString cnp;
        int mod, index;
        QStringList mesaje; // a piece of each message, in order
        bool revino, reluata;
        qint64 membruID;
        const char* numeDupa;
        const char* serie;
        QDate data18;
    } cazuri[] = {
        // clang-format off
        {"necunoscut, copil", CnpNou, 1, 3, {}, false, false, 0, "IONESCU", "AA", QDate(2030, 4, 1)},
        {"necunoscut la modificare", CnpNou, 2, 1, {}, false, false, 11, "IONESCU", "AA", QDate(2030, 4, 1)},
        {"cunoscut", CnpCunoscut, 1, 3, {T("POPESCU ION, cererea nr: 107")}, false, true, 11, "POPESCU", "XZ", {}},
        {"cunoscut, el insusi", CnpCunoscut, 2, 1, {}, false, true, 11, "POPESCU", "XZ", QDate()},
        {"cunoscut, la altul", CnpCunoscut, 2, 0, {T("cererea nr: 107")}, false, true, 11, "POPESCU", "XZ", {}},
        {"fara cerere", CnpFaraCerere, 1, 3, {}, false, true, 12, "VASILE", "", QDate()},
        {"cod gresit cunoscut", CnpGresit(), 1, 3, {T("CNP invalid")}, false, true, 14, "MARIN", "", QDate()},
        {"in lista, cunoscut", CnpPartener, 1, 3, {T("O'NEILL D'ANA, cererea nr: 3"), T("deja in lista")},
         true, false, 99, "IONESCU", "AA", QDate()},
        {"in lista, copil", CnpCopil, 1, 3, {T("deja in lista")}, true, false, 99, "IONESCU", "AA", QDate(2028, 3, 15)},
        {"12 cifre", CnpNou.left(12), 1, 3, {T("caractere insuficiente")}, false, false, 0, "IONESCU", "AA", inainte},
        {"caseta goala", T("  "), 1, 3, {}, false, false, 99, "IONESCU", "AA", inainte},
        // clang-format on
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        DatePersoana d = Completa(c.cnp);
        d.MembruID = 99;
        d.txtMembru[txtSerieBI] = T("AA");
        d.dtpData[dtpData18Ani] = inainte;
        d.cboMembru[cboMotiv] = {0, T("vechi")};
        mesaje.mesaje.clear();
        const RezultatPlecareCNP r = PlecareCNP(d, {c.mod, c.index, Luna, An}, s, Bd(), mesaje);
        ASSERT_EQ(mesaje.Texte().size(), c.mesaje.size()) << S(mesaje.Texte().join(u'|'));
        for (qsizetype i = 0; i < c.mesaje.size(); ++i)
            EXPECT_TRUE(mesaje.Texte()[i].contains(c.mesaje[i])) << S(mesaje.Texte()[i]);
        EXPECT_EQ((std::array{r.RevinoLaCNP, r.PersoanaReluata, r.Date.has_value()}),
                  (std::array{c.revino, c.reluata, c.cnp.trimmed().size() == 13}));
        EXPECT_EQ(d.MembruID, c.membruID);
        EXPECT_EQ(d.txtMembru[txtNume] + u'|' + d.txtMembru[txtSerieBI], T(c.numeDupa) + u'|' + T(c.serie));
        EXPECT_EQ(d.dtpData[dtpData18Ani], c.data18);
        EXPECT_EQ(d.cboMembru[cboMotiv].text.isEmpty(), !c.data18.isValid());
        EXPECT_EQ(d.cboMembru[cboRudenie].id, 2) << "what belongs to the request is left to be entered anew";
    }

    // The whole identity of a known person.
    DatePersoana d = Completa(CnpCunoscut);
    PlecareCNP(d, {1, 3, Luna, An}, s, Bd(), mesaje);
    EXPECT_EQ(
        (QStringList{QString::number(d.cboMembru[cboTipAct].id), d.txtMembru[txtNrBI], d.cboMembru[cboEliberat].text,
                     d.dtpData[dtpDataElib].toString(Qt::ISODate), QString::number(d.chkMembru[chkDizabilitate])}),
        (QStringList{"2", "123456", "SPCLEP Branesti", "2019-04-02", "1"}));
}

PE_AMBELE_MOTOARE(PlecareCNPBaza);

} // namespace
