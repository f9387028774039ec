#include "base/Setari.h"
#include "documents/web/ComenziWeb.h"
#include "documents/web/PunteWebTest.h"
#include "maintenance/Demo.h"
#include "support/BazaTest.h"

using namespace PunteWeb;
using ComenziWeb::Comanda;

namespace {

// The Windows-1250 bytes of the trimmed text; the comma-below letters as their cedilla twins, a
// character the code page lacks (even one beyond 16 bits) as "?".
TEST(PunteWeb, TextulCaPerechiHexWindows1250) {
    // clang-format off
    const std::pair<const char*, const char*> cazuri[] = {
        {"", ""}, {"  A B  ", "41 20 42"}, {"\nA", "0A 41"}, {"a\"b'c\\", "61 22 62 27 63 5C"},
        {"șşȘŞțţȚŢ", "BA BA AA AA FE FE DE DE"}, {"€ – „", "80 20 96 20 84"}, {"中😀x", "3F 3F 78"}};
    // clang-format on
    for (const auto& [text, hex] : cazuri)
        EXPECT_EQ(HexText(QString::fromUtf8(text)), QString::fromLatin1(hex)) << text;
    // Every letter of the code page gives its byte.
    QStringDecoder d("windows-1250");
    int verificate = 0;
    for (int b = 0x21; b <= 0xFF; ++b) {
        const QString c = d(QByteArray(1, char(b)));
        if (c == T("\uFFFD") || (c[0].unicode() >= 0x80 && c[0].unicode() < 0xA0)) continue;
        EXPECT_EQ(HexText(c), T("%1").arg(b, 2, 16, QLatin1Char('0')).toUpper()) << b;
        ++verificate;
    }
    EXPECT_EQ(verificate, 218);
}

// A ";" or "--" inside a quoted text or name does not count; comments are left out, and so are blank
// statements; each statement keeps the line where it starts.
TEST(PunteWeb, FisierulDeInterogariSeImparteLaPunctSiVirgula) {
    using V = std::vector<InterogareFisier>;
    // clang-format off
    const std::pair<const char*, V> cazuri[] = {
        {"-- titlu; cu punct si virgula\r\nSELECT a\r\nFROM t;\n  -- altul\nSELECT b;",
         V{{"SELECT a\nFROM t", 2}, {"SELECT b", 5}}},
        {"SELECT a; ;\n SELECT b;  ", V{{"SELECT a", 1}, {"SELECT b", 2}}}, {" ; \n ", V{}},
        {"SELECT a -- dupa cod; nu se imparte\nFROM t", V{{"SELECT a  \nFROM t", 1}}},
        {"SELECT 'a;b', 'c--d', 'l''x;' FROM t; SELECT 2", V{{"SELECT 'a;b', 'c--d', 'l''x;' FROM t", 1}, {"SELECT 2", 1}}},
        {"SELECT \"x;y\" FROM t", V{{"SELECT \"x;y\" FROM t", 1}}}, {"SELECT 'neinchis;", V{{"SELECT 'neinchis;", 1}}},
        {"/* un;\ncomentariu */\nSELECT 1 /* ; */ ;SELECT 2", V{{"SELECT 1", 3}, {"SELECT 2", 3}}}};
    // clang-format on
    for (const auto& [text, asteptat] : cazuri)
        EXPECT_EQ(Interogari(QString::fromUtf8(text)), asteptat) << text;
    EXPECT_EQ(Interogari(CitesteText(SursaInterogari)).size(), 11u);
    // The page is told of the settings file whose number the program's name holds, 318 before 207.
    QTemporaryDir dir;
    ScrieText(QDir(dir.path()).filePath(T("setari318.ini")), T("[Generale]\n"));
    EXPECT_TRUE(FisierSetariPagina(T("318-207"), dir.path()).endsWith(T("setari318.ini")));
    EXPECT_TRUE(FisierSetariPagina(T("Alocatii-207"), dir.path()).isEmpty()) << "no such file";
}

class Sql2JsonTest : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        ScrieDosarWeb(Bd());
    }
    QString Ruleaza(const QString& sql, qint64 id) {
        return Sql2Json(Bd(), sql, id, true, LiniePrefix(DocCerere, {}), program.mediu, mesaje);
    }
    FolderProgram program;
};

// The town hall edits the file: whatever it holds, printing a form never changes the database, and a
// failed run (told with its line) leaves the last data file whole.
TEST_P(Sql2JsonTest, FisierulDeInterogariNuPoateScrie) {
    ScrieText(program.mediu.FisierIesire(), T("VB6_OUTPUT=[[]]\n"));
    const std::pair<const char*, const char*> cazuri[] = {
        {"SELECT 1 AS a;\n\n  delete FROM Cereri WHERE CerereID = ${CerereID};", "Linia 3"},
        {"UPDATE Cereri SET NrCerere = 1", "Linia 1"},
        {"SELECT 1 AS a;\nWITH x AS (SELECT 1 AS y) DELETE FROM Cereri", "Linia 2"},
        {"SELECT NrCerere FROM Cereri;\nSELECT Nimic FROM Cereri", "SELECT Nimic"},
        {"SELECT Nume, Prenume AS NUME FROM Membrii", "doua coloane"},
    };
    for (const auto& [text, inMesaj] : cazuri) {
        mesaje.mesaje.clear();
        EXPECT_TRUE(Ruleaza(QString::fromUtf8(text), 7).isEmpty()) << text;
        ASSERT_EQ(mesaje.mesaje.size(), 1u) << text;
        EXPECT_TRUE(mesaje.mesaje[0].text.contains(QLatin1String(inMesaj))) << mesaje.mesaje[0].text.toStdString();
        EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri")), 1) << text;
        EXPECT_EQ(program.Date(), T("VB6_OUTPUT=[[]]\n")) << text;
    }
    // Reading goes on working on the same connection afterwards, and so does writing.
    EXPECT_EQ(Ruleaza(T("select NrCerere AS nr FROM Cereri WHERE CerereID = ${CerereID}"), 7),
              T("[[{\"nr\":\"31 32 35\"}]]"));
    Bd().Executa(T("UPDATE Cereri SET NrCerere = 126 WHERE CerereID = 7"));
}

// The delivered statements, run as the print commands run them: the data file beside the page, with
// the settings line read fresh from the program's folder, the document's line, and every value hex-encoded
// (dates as dd.mm.yyyy, nulls empty).
TEST_P(Sql2JsonTest, DateleCereriiScriseLangaPagina) {
    const QString ini = QDir(program.mediu.folderProgram).filePath(T("setari207.ini"));
    ScrieText(ini, T("[generale]\nDataCerereTiparita=2\nnrceReretiparita=1\n"));
    program.mediu.serverCerere = T("http://a'b\\");
    const auto p = StartCerereWeb(Bd(), program.mediu, 7, DocCerere1a, false, mesaje);
    ASSERT_TRUE(p.has_value());
    ASSERT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(u'\n').toStdString();
    EXPECT_EQ(p->adresa.fragment(), DocCerere1a);
    EXPECT_EQ(QFileInfo(p->adresa.toLocalFile()).canonicalFilePath(),
              QFileInfo(program.mediu.pagina).canonicalFilePath());
    const QString date = program.Date();
    // A quote in a hand-edited address must not end the script's text.
    EXPECT_TRUE(date.startsWith(T("SETARI_INI='dct:2;nct:1;';\nlocation.hash='#cerere_1a_asf_vmg';"
                                  "SERVER_CERERE='http://a\\'b\\\\';\nVB6_OUTPUT=[[{")))
        << date.left(200).toStdString();
    // Only hex digits and blanks stand between the quotes of a value.
    EXPECT_FALSE(JsonDinFisier(date).contains(u'\'') || JsonDinFisier(date).contains(u'\\'));
    const Rezultate r = CitesteJson(JsonDinFisier(date));
    ASSERT_EQ(r.size(), 11u);
    ASSERT_EQ(r[0].size(), 1u);
    const Rand& c = r[0][0];
    // Windows-1250 has only the cedilla forms: both come back as those.
    EXPECT_EQ(c.at(T("nume")), T("Şerban"));
    EXPECT_EQ(c.at(T("prenume")), PrenumeTitular);
    EXPECT_EQ(c.at(T("cnp")), QString::fromLatin1(CnpTitular));
    EXPECT_EQ(c.at(T("staretext")), T("ACORDATA"));
    EXPECT_EQ(c.at(T("dataelib")), T("01.07.2012"));
    EXPECT_EQ(c.at(T("datastare")), QString());
    EXPECT_EQ(c.at(T("venitpemembru")), T("400.1667"));
    EXPECT_EQ(c.at(T("motivstare")), T("Linia 1\nLinia 2"));
    ASSERT_EQ(r[1].size(), 3u);
    // All eight kinds of dwelling, the third one with its rooms.
    ASSERT_EQ(r[4].size(), 8u);
    EXPECT_EQ(r[4][2].at(T("nrcamere")), T("2"));
    EXPECT_EQ(r[4][0].at(T("nrcamere")), QString());
    ASSERT_EQ(r[5].size(), 1u);
    EXPECT_EQ(r[5][0].at(T("anchetaid")), T("2")) << "the newest dated inquiry";
    ASSERT_EQ(r[6].size(), 1u);
    EXPECT_EQ(r[6][0].at(T("nrdisp")), T("60")) << "the newest that grants or changes";

    // A blank form: every list empty; a program of no known number gets no settings line.
    program.mediu.numeProgram = T("ferolanta");
    ASSERT_TRUE(StartCerereWeb(Bd(), program.mediu, 0, DocAncheta, false, mesaje).has_value());
    EXPECT_TRUE(program.Date().startsWith(T("location.hash='#ancheta_asf_vmg';")));
    EXPECT_EQ(JsonDinFisier(program.Date()), T("[[],[],[],[],[],[],[],[],[],[],[]]"));
    // Generated case files hold what clerks type: every request of them goes through.
    Demo::Optiuni o;
    o.cereri = 25;
    Demo::Genereaza(Bd(), o);
    for (qint64 id = 8; id <= 32; ++id) {
        const Rezultate g = CitesteJson(JsonInterogari(Bd(), CitesteText(SursaInterogari), id));
        ASSERT_EQ(g.size(), 11u) << id;
        EXPECT_EQ(g[0].size(), 1u) << id;
    }

    // No query file, or one without statements: nothing said, nothing written. No page: told.
    QFile::remove(program.mediu.FisierIesire());
    ScrieText(program.mediu.fisierInterogari, T("-- nimic\n\n;\n"));
    EXPECT_FALSE(StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, mesaje).has_value());
    QFile::remove(program.mediu.fisierInterogari);
    EXPECT_FALSE(StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, mesaje).has_value());
    EXPECT_TRUE(mesaje.mesaje.empty());
    QFile::copy(SursaInterogari, program.mediu.fisierInterogari);
    QFile::remove(program.mediu.pagina);
    EXPECT_FALSE(StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, mesaje).has_value());
    ASSERT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_TRUE(mesaje.mesaje[0].text.contains(PunteWeb::Pagina)) << mesaje.mesaje[0].text.toStdString();
    EXPECT_FALSE(QFile::exists(program.mediu.FisierIesire()));
}

// The document of each print command, which of them need a selected request (a blank form goes with
// the key 0 and gets no row), and what a missing selection says.
TEST_P(Sql2JsonTest, ComenzileDeTiparire) {
    const auto tipareste = [&](Comanda c, qint64 selectata) {
        const auto p = ComenziWeb::Tipareste(Bd(), program.mediu, c, selectata, mesaje);
        return p ? p->adresa.fragment() : QString();
    };
    EXPECT_EQ(tipareste(Comanda::cmdCerere, 0), QString());
    EXPECT_EQ(tipareste(Comanda::cmdPrintAncheta, 404), QString());
    EXPECT_EQ(mesaje.mesaje.size(), 2u);
    EXPECT_FALSE(QFile::exists(program.mediu.FisierIesire()));
    mesaje.mesaje.clear();
    const struct {
        Comanda c;
        int stare;
        const char* document;
        bool goala;
    } cazuri[] = {
        {Comanda::cmdCerere, 2, "cerere", false},       {Comanda::cmdCerere, 7, "cerere_1a", false},
        {Comanda::cmdCerere, 8, "cerere", false},       {Comanda::mnuAnexa1, 7, "cerere", false},
        {Comanda::mnuAnexa1a, 2, "cerere_1a", false},   {Comanda::cmdPrintAncheta, 7, "ancheta", false},
        {Comanda::mnuCerereGoala, 7, "cerere", true},   {Comanda::mnucerereMod, 2, "cerere_1a", true},
        {Comanda::mnuAnchetaGoala, 2, "ancheta", true},
    };
    for (const auto& c : cazuri) {
        ExecutaCu(Bd(), T("UPDATE Cereri SET Stare = ? WHERE CerereID = 7"), c.stare);
        EXPECT_EQ(tipareste(c.c, 7), QString::fromLatin1(c.document)) << int(c.c) << " " << c.stare;
        EXPECT_EQ(ComenziWeb::Document(c.c, c.stare), QString::fromLatin1(c.document)) << int(c.c);
        EXPECT_EQ(ComenziWeb::PeCerereSelectata(c.c), !c.goala) << int(c.c);
        EXPECT_EQ(CitesteJson(JsonDinFisier(program.Date()))[0].size(), c.goala ? 0u : 1u) << int(c.c);
    }
    EXPECT_TRUE(mesaje.mesaje.empty());
}

PE_AMBELE_MOTOARE(Sql2JsonTest);

// After the list is filled the commands follow its rows; the three web ones only when both web files
// are there, else they keep the state they had.
TEST(PunteWeb, ActivareaComenzilor) {
    using ComenziWeb::StareComenzi;
    StareComenzi toate;
    toate.cmdEdit = toate.cmdDelete = toate.cmdCerere = toate.cmdSelect = toate.cmdPrintAncheta = toate.cmdFisaCalcul =
        toate.cmdAddAncheta = toate.cmdAddDisp = true;
    const StareComenzi niciuna;
    EXPECT_EQ(ComenziWeb::ActivareComenzi(3, niciuna, true), toate);
    EXPECT_EQ(ComenziWeb::ActivareComenzi(0, toate, true), niciuna);
    StareComenzi faraWeb = toate;
    faraWeb.cmdCerere = faraWeb.cmdPrintAncheta = false;
    EXPECT_EQ(ComenziWeb::ActivareComenzi(5, faraWeb, false), faraWeb);

    FolderProgram faraPagina, faraInterogari;
    EXPECT_TRUE(ComenziWeb::FisiereWebExista(faraPagina.mediu));
    QFile::remove(faraPagina.mediu.pagina);
    QFile::remove(faraInterogari.mediu.fisierInterogari);
    EXPECT_FALSE(ComenziWeb::FisiereWebExista(faraPagina.mediu));
    EXPECT_FALSE(ComenziWeb::FisiereWebExista(faraInterogari.mediu));
}

} // namespace
