#include "base/Eroare.h"
#include "reports/SablonXml.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace Raport;

namespace {

void ScrieFisier(const QString& cale, const QString& text) {
    QDir().mkpath(QFileInfo(cale).absolutePath());
    QFile f(cale);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(text.toUtf8());
}

// A template of a 10 x 8 lattice with the given sections; an empty argument leaves its section empty.
QString Sablon(const QString& seturi, const QString& elemente, const QString& coloane = {},
               const QString& proprietati = {}) {
    return QStringLiteral("<S><ELEMENTE>%2</ELEMENTE><COLOANE>%3</COLOANE><ROWHEIGHTS><H n='4'>30</H></ROWHEIGHTS>"
                          "<RECORDSETS>%1</RECORDSETS>"
                          "<PROPRIETATI><NRRAND>10</NRRAND><NRCOL>8</NRCOL>%4</PROPRIETATI></S>")
        .arg(seturi, elemente, coloane, proprietati);
}

class SablonXml : public TestBaza {
protected:
    Grila Incarca(const QString& xml) {
        const QString cale = dir.filePath(QStringLiteral("s.xml"));
        ScrieFisier(cale, xml);
        return IncarcaSablonXml(Bd(), cale, Grila(2, 2));
    }
    QTemporaryDir dir;
};

// Each failure is one message that names the file and what in it is wrong.
TEST_P(SablonXml, EsecurileNumescFisierulSiElementul) {
    BazaNoua();
    const QString cale = dir.filePath(QStringLiteral("s.xml"));
    const QString invalid = T("Fisierul ") + cale + T(" are cod XML invalid. Sunati la Morvante: 0700-111222!");
    const QString set1 = T("<Q n='1'>SELECT Localitate FROM DatePrimarie</Q>");
    const struct {
        const char* caz;
        QString xml;
        QStringList cuvinte; // empty: the invalid-file message, whole
    } cazuri[] = {
        {"lipsa fisier", {}, {}},
        {"XML stricat", T("<S><PROPRIETATI></S>"), {}},
        {"sectiune lipsa", T("<S><PROPRIETATI/><ROWHEIGHTS/><COLOANE/><ELEMENTE/></S>"), {"<RECORDSETS>", "lipseste"}},
        {"set fara numar", Sablon(T("<Q>SELECT 1 AS A</Q>"), {}), {"<Q>", "atributul 1"}},
        {"comentariu in lista",
         T("<S><PROPRIETATI/><RECORDSETS/><ROWHEIGHTS><!-- x --></ROWHEIGHTS><COLOANE/><ELEMENTE/></S>"),
         {"<ROWHEIGHTS>", "comentariu", "linia 1"}},
        {"coloana fara verticala", Sablon({}, {}, T("<C w='9' h='left'>1</C>")), {"<C>", "atributul 3"}},
        {"SQL gresit", Sablon(T("<Q n='1'>SELECT Nimic FROM Nicaieri</Q>"), {}), {"<Q>", "setul de date 1", "rulata"}},
        {"nu citeste", Sablon(T("<Q n='1'>DELETE FROM DatePrimarie</Q>"), {}), {"<Q>", "SELECT"}},
        {"numai sOrder", Sablon(T("<Q n='1'>SELECT 1 AS A {sOrder}</Q>"), {}), {"<Q>", "SELECT"}},
        {"boolean", Sablon({}, {}, {}, T("<DEFAULTFONTBOLD>da</DEFAULTFONTBOLD>")), {"<DEFAULTFONTBOLD>", "\"da\""}},
        {"set gol",
         Sablon(set1, T("<CELL r='1' c='1'><TEXT nrrec='1'>Localitate</TEXT></CELL>")),
         {"Localitate", "setul de date 1", "niciun rand"}},
        {"set nedeschis",
         Sablon(set1 + T("<Q n='3'>SELECT 1 AS A</Q><Q n='1'>SELECT 2 AS A</Q>"),
                T("<CELL r='1' c='1'><TEXT nrrec='3'>A</TEXT></CELL>")),
         {"<TEXT>", "setul de date 3"}},
        {"camp compadres",
         Sablon(set1, T("<CELL r='1' c='1'><TEXT nrrec='1' compadres='1'>Nimic,x,</TEXT></CELL>")),
         {"compadres", "\"Nimic\""}},
        {"in afara grilei",
         Sablon({}, T("<RANGE r1='1' c1='1' r2='rows' offsetr2='1' c2='2'/>")),
         {"<RANGE>", "afara grilei", "randul 10"}},
        {"numar prea mare", Sablon({}, T("<CELL r='40000' c='1'/>")), {"<CELL>", "40000", "16 biti"}},
    };
    for (const auto& c : cazuri) {
        QFile::remove(cale);
        if (!c.xml.isNull()) ScrieFisier(cale, c.xml);
        try {
            IncarcaSablonXml(Bd(), cale, Grila(2, 2));
            ADD_FAILURE() << c.caz;
        } catch (const Eroare& e) {
            if (c.cuvinte.isEmpty()) {
                EXPECT_EQ(e.text(), invalid) << c.caz;
                continue;
            }
            EXPECT_TRUE(e.text().startsWith(T("Sablonul ") + cale)) << c.caz << ": " << S(e.text());
            for (const QString& cuvant : c.cuvinte)
                EXPECT_TRUE(e.text().contains(cuvant)) << c.caz << ": " << S(e.text());
        }
    }
    // The read-only unit of the failed loads is over: the database takes writes again.
    EXPECT_NO_THROW(ExecutaCu(Bd(), T("INSERT INTO DatePrimarie (Localitate) VALUES (?)"), T("Ulmeni")));
}

TEST_P(SablonXml, CoordonateAliniereFonturiSiTexte) {
    BazaNoua();
    ExecutaCu(Bd(), T("INSERT INTO DatePrimarie (Localitate, Judet, Str, Nr, CodPostal) VALUES (?, ?, ?, ?, ?)"),
              T("Ulmeni"), QVariant(), T("Lunga"), T("5"), T("437355"));
    AdaugaCerereTest(Bd(), {1, 0, 1, 2, 1, T("Ulmeni"), T("Lunga"), {{1, T("Rus"), T("Ion"), T("1800101123456"), 1}}});
    const QString seturi =
        T("<Q n='1'>SELECT Localitate, Judet, Str, Nr, CodPostal FROM DatePrimarie</Q>"
          "<Q n='2'>SELECT 'Ion' AS Unu, 'Pop Ana Maria' AS Trei, CAST(12.5 AS NUMERIC(19,4)) AS Zecimal, "
          "CAST(3 AS NUMERIC(19,4)) AS Intreg, NULL AS Nul FROM DatePrimarie</Q>"
          "<Q n='3'>SELECT DataCerere FROM Cereri</Q>");
    const QString elemente = T(R"(
        <CELL r='rows' offsetr='-2' c='cols'><TEXT>a</TEXT></CELL>
        <CELL r='Rand1' offsetr='3' c='1'><TEXT>b</TEXT></CELL>
        <RANGE r1='5' c1='2' r2='5' c2='3' hAlign='center'><MERGE/></RANGE>
        <CELL c='4'><TEXT>c</TEXT></CELL>
        <CELL offsetc='1'><TEXT>d</TEXT></CELL>
        <CELL c='6'><TEXT>e</TEXT></CELL>
        <CELL r='1' c='1' offsetc='' hAlign='right' vAlign='bottom'/>
        <CELL c='2' hAlign='right'/>
        <RANGE r1='1' c1='1' r2='2' c2='2'>
            <FONTBOLD>True</FONTBOLD><FONTNAME>Times</FONTNAME><WRAP>1</WRAP>
            <BORDER e='EdgeTop'>Thick</BORDER><BORDER e='Nimic'>Thin</BORDER>
        </RANGE>
        <CELL r='2' c='1'><FONTSIZE>11,5</FONTSIZE><FONTBOLD>False</FONTBOLD></CELL>
        <CELL r='6' c='1'><TEXT nrrec='2'>Unu</TEXT></CELL>
        <CELL c='2'><TEXT nrrec='2' sepnum='2'>Trei</TEXT></CELL>
        <CELL c='3'><TEXT nrrec='2' sepnum='1'>Trei</TEXT></CELL>
        <CELL c='4'><TEXT nrrec='2' sepnum='2'>Unu</TEXT></CELL>
        <CELL c='5'><TEXT nrrec='2'>Nimic</TEXT></CELL>
        <CELL c='6'><TEXT nrrec='2'>Nul</TEXT></CELL>
        <CELL r='7' c='1'><TEXT nrrec='2'>Zecimal</TEXT></CELL>
        <CELL c='2'><TEXT nrrec='2'>Intreg</TEXT></CELL>
        <CELL c='3'><TEXT nrrec='3'>DataCerere</TEXT></CELL>
        <CELL c='4'><TEXT nrrec='2' compadres='True'>Str,str.,Judet,jud.,Nr,nr.,Localitate,,CodPostal</TEXT></CELL>
        <CELL c='5'><TEXT>Trei</TEXT></CELL>
    )");
    const Grila g = Incarca(Sablon(seturi, elemente, T("<C w='77' h='right' v=''>3</C>"),
                                   T("<RAND1TABEL>5</RAND1TABEL><DEFAULTFONT>Arial</DEFAULTFONT>")));

    const struct {
        int r, c;
        QString text;
    } texte[] = {
        {7, 7, T("a")},
        {3, 1, T("b")},
        {5, 4, T("c")},
        {5, 5, T("d")},
        {5, 7, T("e")}, // the offset of the cell before still counts
        {6, 1, T("Ion")},
        {6, 2, T("Ana Maria")},
        {6, 3, T("Pop")},
        {6, 4, T("Ana Maria")}, // no blank: the halves of the split before
        {6, 5, T(" The field Nimic is not exist")},
        {6, 6, T("")},
        {7, 1, T("12.5")},
        {7, 2, T("3")},
        {7, 3, T("15.03.2024")},
        {7, 4, T("str. Lunga, nr. 5, Ulmeni")},
        {7, 5, T("Trei")},
    };
    for (const auto& t : texte)
        EXPECT_EQ(g.Text(t.r, t.c), t.text) << t.r << "," << t.c;

    EXPECT_EQ(g.Randuri(), 10);
    EXPECT_EQ(g.Coloane(), 8);
    EXPECT_EQ(g.InaltimeRand(4), 30);
    EXPECT_EQ(g.LatimeColoana(3), 77);
    EXPECT_EQ(g.AliniereColoana(3), (Aliniere{Orizontal::Dreapta, Vertical::Sus}));
    EXPECT_EQ(g.La(1, 1).aliniere, (Aliniere{Orizontal::Dreapta, Vertical::Jos}));
    EXPECT_FALSE(g.La(1, 2).aliniere);
    EXPECT_FALSE(g.La(5, 2).aliniere);
    EXPECT_EQ(g.Uniri(), (std::vector<Dreptunghi>{{5, 2, 5, 3}}));

    EXPECT_EQ(g.La(1, 2).font, (Font{T("Times"), 0, true, {}, {}}));
    EXPECT_EQ(g.La(2, 1).font, (Font{T("Times"), 11.5, false, {}, {}}));
    EXPECT_TRUE(g.La(2, 2).incadrare);
    EXPECT_FALSE(g.La(3, 2).incadrare);
    EXPECT_EQ(g.La(1, 2).linii[2], Linie::Groasa);
    EXPECT_EQ(g.La(2, 2).linii[2], Linie::Nimic);
    EXPECT_EQ(g.La(2, 1).linii[0], Linie::Subtire); // an unknown edge is the left one
    EXPECT_EQ(g.La(2, 2).linii[0], Linie::Nimic);
}

// The delivered page on a new database: the town hall's data in the head, the totals of the new and
// reinstated requests, and an empty head rather than a failure before the town hall's data are in.
TEST_P(SablonXml, Anexa3Livrata) {
    BazaNoua();
    const QString cale = T(FEROLANTA_SURSA "/Rapoarte/Anexa3.xml");
    const Grila goala = IncarcaSablonXml(Bd(), cale, Grila(2, 2));
    EXPECT_EQ(goala.Text(2, 3), T(""));
    EXPECT_EQ(goala.Text(16, 22), T("0"));

    ExecutaCu(Bd(),
              T("INSERT INTO DatePrimarie (Localitate, Judet, Str, Nr, CodFiscal, CodPostal, OfPostal, AsSocial, "
                "CNPAsSocial) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
              T("Ulmeni"), T("Maramures"), T("Principala"), T("12"), T("4321"), T("437355"), T("Ulmeni 1"),
              T("Pop Ana"), T("2800101123456"));
    int id = 0;
    for (const int stare : {2, 6, 1})
        ++id,
            AdaugaCerereTest(
                Bd(),
                {id, 0, id, stare, 1, T("Ulmeni"), T("Principala"), {{id, T("Rus"), T("Ion"), T("1800101123456"), 1}}});

    const Grila g = IncarcaSablonXml(Bd(), cale, Grila(2, 2));
    EXPECT_EQ(g.Randuri(), 25);
    EXPECT_EQ(g.Coloane(), 25);
    EXPECT_EQ(g.fontImplicit, (Font{T("Arial"), 8, true, false, false}));
    const struct {
        int r, c;
        QString text;
    } valori[] = {
        {2, 3, T("Ulmeni")}, {3, 3, T("Maramures")}, {4, 3, T("str. Principala, nr. 12")},
        {5, 3, T("4321")},   {6, 3, T("437355")},    {7, 3, T("Ulmeni 1")},
        {8, 10, T("Pop")},   {9, 10, T("Ana")},      {10, 10, T("2800101123456")},
        {16, 15, T("2")},    {16, 22, T("328")},     {18, 4, T("1")},
        {19, 4, T("1")},     {20, 4, T("2")},
    };
    for (const auto& v : valori)
        EXPECT_EQ(g.Text(v.r, v.c), v.text) << v.r << "," << v.c;
}

PE_AMBELE_MOTOARE(SablonXml);

// The parameters' settled results: only the last ordinary one goes, and {sOrder} alone gives the query
// before it.
TEST(SablonXmlParametri, RezultateleStabilite) {
    QTemporaryDir dir;
    const QString ini = dir.filePath(T("setari.ini"));
    ScrieFisier(ini, T("[Setari]\nLuna=3\nAn=2024\n"));
    const struct {
        const char* sql;
        QString asteptat;
    } cazuri[] = {
        {"SELECT 1", T("SELECT 1")},
        {"SELECT {Luna}", T("SELECT ")},
        {"SELECT {Luna}, {Luna}", T("SELECT , ")},
        {"SELECT {A} WHERE {Luna}", T("SELECT {A} WHERE ")},
        {"SELECT {Luna} {sOrder}", T("SELECT  {sOrder}")},
        {"SELECT x {sOrder}", T("PRECEDENT")},
        {"SELECT {}", T("SELECT ")},
        {"SELECT {a{Luna}", T("SELECT {a")},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(InlocuiesteParametri(T(c.sql), ini, T("PRECEDENT")), c.asteptat) << c.sql;
    EXPECT_EQ(InlocuiesteParametri(T("SELECT {Luna}"), dir.filePath(T("lipsa.ini"))), T("SELECT "));
    EXPECT_THROW(InlocuiesteParametri(T("SELECT {An}"), ini), Eroare);
    EXPECT_THROW(InlocuiesteParametri(T("SELECT {Luna"), ini), Eroare);
}

TEST(SablonXmlParametri, CaleaSablonului) {
    QTemporaryDir bd, program;
    const QString inBd = bd.filePath(T("Rapoarte/A.xml")), inProgram = program.filePath(T("Rapoarte/A.xml"));
    EXPECT_EQ(CaleSablonXml(bd.path(), program.path(), T("A.xml")), inProgram);
    ScrieFisier(inProgram, T("<S/>"));
    EXPECT_EQ(CaleSablonXml(bd.path(), program.path(), T("A.xml")), inProgram);
    ScrieFisier(inBd, T("<S/>"));
    EXPECT_EQ(CaleSablonXml(bd.path(), program.path(), T("A.xml")), inBd);
    EXPECT_EQ(CaleSablonXml(QString(), program.path(), T("A.xml")), inProgram);
}

} // namespace
