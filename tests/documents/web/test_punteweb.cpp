#include "documents/web/PunteWebTest.h"
#include "base/Setari.h"
#include "maintenance/Demo.h"
#include "support/BazaTest.h"

#include <QUrl>

using namespace PunteWeb;

namespace {

TEST(HexText, OctetiiWindows1250CaPerechiHex) {
    const struct {
        const char* text;
        const char* hex;
    } cazuri[] = {
        {"AB", "41 42"},
        {"", ""},
        {"   ", ""},
        {"  A B  ", "41 20 42"},
        {"\nA", "0A 41"}, // only blanks are trimmed
        {"a\"b'c\\", "61 22 62 27 63 5C"},
        {"ș", "BA"},
        {"ş", "BA"},
        {"Ș", "AA"},
        {"Ş", "AA"},
        {"ț", "FE"},
        {"ţ", "FE"},
        {"Ț", "DE"},
        {"Ţ", "DE"},
        {"ăâîĂÂÎ", "E3 E2 EE C3 C2 CE"},
        {"€ – „", "80 20 96 20 84"},
        {"中", "3F"},
        {"😀x", "3F 78"}, // a character beyond 16 bits is one unknown
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(HexText(QString::fromUtf8(c.text)), QString::fromLatin1(c.hex)) << c.text;
}

TEST(HexText, FiecareLiteraACodului1250DaOctetulEi) {
    QStringDecoder d("windows-1250");
    ASSERT_TRUE(d.isValid());
    int verificate = 0;
    for (int b = 0x21; b <= 0xFF; ++b) {
        const QString c = d(QByteArray(1, char(b)));
        // ICU fills the holes of the code page with C1 controls, which Windows leaves out.
        if (c == QStringLiteral("\uFFFD") || (c[0].unicode() >= 0x80 && c[0].unicode() < 0xA0)) continue;
        EXPECT_EQ(HexText(c), QStringLiteral("%1").arg(b, 2, 16, QLatin1Char('0')).toUpper()) << b;
        ++verificate;
    }
    EXPECT_EQ(verificate, 218);
}

TEST(FisierInterogari, ComentariiGhilimeleSiPunctSiVirgula) {
    using V = std::vector<InterogareFisier>;
    const struct {
        const char* text;
        V asteptat;
    } cazuri[] = {
        {"-- titlu; cu punct si virgula\r\nSELECT a\r\nFROM t;\n  -- altul\nSELECT b;",
         V{{"SELECT a\nFROM t", 2}, {"SELECT b", 5}}},
        {"SELECT a;SELECT b", V{{"SELECT a", 1}, {"SELECT b", 1}}},
        {"SELECT a; ;\n SELECT b;  ", V{{"SELECT a", 1}, {"SELECT b", 2}}},
        {" ; \n ", V{}},
        {"SELECT a -- dupa cod; nu se imparte\nFROM t", V{{"SELECT a  \nFROM t", 1}}},
        {"SELECT 'a;b', 'c--d', 'l''x;' FROM t; SELECT 2", V{{"SELECT 'a;b', 'c--d', 'l''x;' FROM t", 1}, {"SELECT 2", 1}}},
        {"SELECT \"x;y\" FROM t", V{{"SELECT \"x;y\" FROM t", 1}}},
        {"/* un;\ncomentariu */\nSELECT 1 /* ; */ ;SELECT 2", V{{"SELECT 1", 3}, {"SELECT 2", 3}}},
        {"SELECT 'neinchis;", V{{"SELECT 'neinchis;", 1}}},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(Interogari(QString::fromUtf8(c.text)), c.asteptat) << c.text;
    EXPECT_EQ(Interogari(CitesteText(SursaInterogari())).size(), 11u);
}

TEST(FisierSetariPagina, NumarulProgramuluiAlegeFisierul) {
    QTemporaryDir dir;
    ScrieText(QDir(dir.path()).filePath(QStringLiteral("setari207.ini")), QStringLiteral("[Generale]\n"));
    const struct {
        const char* program;
        const char* fisier; // empty: no file
    } cazuri[] = {
        {"Alocatii-207", "setari207.ini"},
        {"asf207.exe", "setari207.ini"},
        {"Alocatii-318", ""},
        {"318-207", ""},
        {"ferolanta", ""},
        {"", ""},
    };
    for (const auto& c : cazuri) {
        const QString f = FisierSetariPagina(QString::fromLatin1(c.program), dir.path());
        EXPECT_EQ(f.isEmpty() ? QString() : QFileInfo(f).fileName(), QString::fromLatin1(c.fisier)) << c.program;
    }
    ScrieText(QDir(dir.path()).filePath(QStringLiteral("setari318.ini")), QStringLiteral("[Generale]\n"));
    EXPECT_EQ(QFileInfo(FisierSetariPagina(QStringLiteral("318-207"), dir.path())).fileName(),
              QStringLiteral("setari318.ini"));
}

TEST(LiniePrefix, DocumentulSiServerul) {
    EXPECT_EQ(LiniePrefix(DocCerere1a, QStringLiteral("https://server.ro/")),
              QStringLiteral("location.hash='#cerere_1a_asf_vmg';SERVER_CERERE='https://server.ro/';"));
    EXPECT_EQ(LiniePrefix(DocAncheta, QStringLiteral("  ")),
              QStringLiteral("location.hash='#ancheta_asf_vmg';SERVER_CERERE='%1';").arg(ServerCerereImplicit));
    // A quote in a hand-edited address must not end the script's text.
    EXPECT_EQ(LiniePrefix(DocCerere, QStringLiteral("http://a'b\\")),
              QStringLiteral("location.hash='#cerere_asf_vmg';SERVER_CERERE='http://a\\'b\\\\';"));
}

class Sql2JsonTest : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        ScrieDosarWeb(Bd());
    }
    QString Ruleaza(const QString& sql, qint64 id, bool cuSetari = false, const QString& prefix = {}) {
        return Sql2Json(Bd(), sql, id, cuSetari, prefix, program.mediu, m);
    }
    FolderProgram program;
    MesajeCuTitlu m;
};

TEST_P(Sql2JsonTest, ValorileGreleTrecNeatinse) {
    const QString json = Ruleaza(QStringLiteral("SELECT Nume, Prenume, CNP FROM Membrii WHERE MembruID = ${CerereID}; "
                                                "SELECT MotivStare FROM Cereri WHERE CerereID = ${CerereID}"),
                                 70);
    ASSERT_TRUE(m.mesaje.empty()) << m.mesaje.front().text.toStdString();
    // Only hex digits and blanks stand between the quotes of a value.
    EXPECT_FALSE(json.contains(u'\'') || json.contains(u'\\') || json.contains(u'\n')) << json.toStdString();
    const Rezultate r = CitesteJson(json);
    ASSERT_EQ(r.size(), 2u);
    ASSERT_EQ(r[0].size(), 1u);
    // Windows-1250 has only the cedilla forms: both come back as those.
    EXPECT_EQ(r[0][0].at(QStringLiteral("nume")), T("Şerban"));
    EXPECT_EQ(r[0][0].at(QStringLiteral("prenume")), PrenumeTitular());
    EXPECT_EQ(r[0][0].at(QStringLiteral("cnp")), QString::fromLatin1(CnpTitular));
    EXPECT_TRUE(r[1].empty()) << "no request 70";

    const Rezultate motiv =
        CitesteJson(Ruleaza(QStringLiteral("SELECT MotivStare FROM Cereri WHERE CerereID = ${CerereID}"), 7));
    EXPECT_EQ(motiv[0][0].at(QStringLiteral("motivstare")), T("Linia 1\nLinia 2"));
}

TEST_P(Sql2JsonTest, RezultatGolDaListaGoalaPeLoculSau) {
    // Lower-case names read the same from both engines.
    const QString trei =
        QStringLiteral("SELECT NrCerere AS nr FROM Cereri WHERE CerereID = ${CerereID};"
                       "SELECT NrCerere AS nr FROM Cereri WHERE CerereID = ${CerereID} + 1;"
                       "SELECT CerereID AS id, ${CerereID} AS cheie FROM Cereri WHERE CerereID = ${CerereID};");
    EXPECT_EQ(Ruleaza(trei, 7), QStringLiteral("[[{\"nr\":\"31 32 35\"}],[],[{\"id\":\"37\",\"cheie\":\"37\"}]]"));
    EXPECT_EQ(Ruleaza(trei, 0), QStringLiteral("[[],[],[]]"));
    EXPECT_EQ(
        Ruleaza(QStringLiteral("SELECT Nume AS n FROM Membrii WHERE MembruID IN (70, 71, 72) ORDER BY MembruID"), 0),
        QStringLiteral("[[{\"n\":\"AA 65 72 62 61 6E\"},{\"n\":\"50 6F 70 65 73 63 75\"},"
                       "{\"n\":\"50 6F 70 65 73 63 75\"}]]"));
}

TEST_P(Sql2JsonTest, DateNumereSiNuluri) {
    const Rezultate r = CitesteJson(Ruleaza(
        QStringLiteral("SELECT DataCerere, DataStare, Cuantum, VenitTotal, VenitPeMembru, NrCopii, Vmg, Banca, Sc "
                       "FROM Cereri C INNER JOIN Familii F ON F.FamilieID = C.FamilieID WHERE CerereID = ${CerereID};"
                       "SELECT DataDisp FROM Dispozitii WHERE CerereID = ${CerereID} ORDER BY DispozitieID;"
                       "SELECT NrCamere, Suprafata FROM Locuinte WHERE CerereID = ${CerereID}"),
        7));
    ASSERT_EQ(r.size(), 3u);
    const Rand& c = r[0].at(0);
    EXPECT_EQ(c.at(QStringLiteral("datacerere")), QStringLiteral("10.02.2015"));
    EXPECT_EQ(c.at(QStringLiteral("datastare")), QString());
    EXPECT_EQ(c.at(QStringLiteral("cuantum")), QStringLiteral("164"));
    EXPECT_EQ(c.at(QStringLiteral("venittotal")), QStringLiteral("1200.5"));
    EXPECT_EQ(c.at(QStringLiteral("venitpemembru")), QStringLiteral("400.1667"));
    EXPECT_EQ(c.at(QStringLiteral("nrcopii")), QStringLiteral("1"));
    EXPECT_EQ(c.at(QStringLiteral("vmg")), QStringLiteral("1"));
    EXPECT_EQ(c.at(QStringLiteral("banca")), QStringLiteral("BCR"));
    EXPECT_EQ(c.at(QStringLiteral("sc")), QStringLiteral("B"));
    ASSERT_EQ(r[1].size(), 4u);
    EXPECT_EQ(r[1][0].at(QStringLiteral("datadisp")), QStringLiteral("20.02.2015"));
    EXPECT_EQ(r[1][1].at(QStringLiteral("datadisp")), QStringLiteral("10.01.2016"));
    EXPECT_EQ(r[1][3].at(QStringLiteral("datadisp")), QString());
    EXPECT_EQ(r[2].at(0).at(QStringLiteral("nrcamere")), QStringLiteral("2"));
    EXPECT_EQ(r[2].at(0).at(QStringLiteral("suprafata")), QStringLiteral("48.5"));
}

TEST_P(Sql2JsonTest, LiniaSetarilorSiLiniaPrefixului) {
    const QString sql = QStringLiteral("SELECT NrCerere AS nr FROM Cereri WHERE CerereID = ${CerereID}");
    const QString prefix = LiniePrefix(DocCerere, QStringLiteral("https://s.ro/"));
    const QString date = QStringLiteral("VB6_OUTPUT=[[{\"nr\":\"31 32 35\"}]]\n");

    // No settings file in the program folder: no settings line.
    Ruleaza(sql, 7, true, prefix);
    EXPECT_EQ(program.Date(), prefix + u'\n' + date);

    const QString ini = QDir(program.mediu.folderProgram).filePath(QStringLiteral("setari207.ini"));
    ScrieText(ini, QStringLiteral("[Generale]\nDataCerereTiparita=2\nNrCerereTiparita=1\n"));
    Ruleaza(sql, 7, true, prefix);
    EXPECT_EQ(program.Date(), QStringLiteral("SETARI_INI='dct:2;nct:1;';\n") + prefix + u'\n' + date);

    // Read fresh each time, not from what the program read at start.
    ScrieText(ini, QStringLiteral("[generale]\nnrceReretiparita=0\n"));
    Ruleaza(sql, 7, true, QStringLiteral("   "));
    EXPECT_EQ(program.Date(), QStringLiteral("SETARI_INI='dct:;nct:0;';\n") + date);

    Ruleaza(sql, 7, false, prefix);
    EXPECT_EQ(program.Date(), prefix + u'\n' + date);

    program.mediu.numeProgram = QStringLiteral("ferolanta");
    Ruleaza(sql, 7, true, prefix);
    EXPECT_EQ(program.Date(), prefix + u'\n' + date);
    EXPECT_TRUE(m.mesaje.empty());
}

TEST_P(Sql2JsonTest, OInterogareGresitaNuScrieNimic) {
    ScrieText(program.mediu.FisierIesire(), QStringLiteral("VB6_OUTPUT=[[]]\n"));
    const QString sql = QStringLiteral("SELECT NrCerere FROM Cereri WHERE CerereID = ${CerereID};"
                                       "SELECT Nimic FROM Cereri WHERE CerereID = ${CerereID}");
    EXPECT_TRUE(Ruleaza(sql, 7, true, LiniePrefix(DocCerere, {})).isEmpty());
    ASSERT_EQ(m.mesaje.size(), 1u);
    EXPECT_EQ(m.mesaje[0].fel, Mesaje::Fel::Critic);
    EXPECT_EQ(m.mesaje[0].titlu, QStringLiteral("Eroare Sql2Json"));
    EXPECT_TRUE(m.mesaje[0].text.contains(QStringLiteral("SELECT Nimic"))) << m.mesaje[0].text.toStdString();
    EXPECT_EQ(program.Date(), QStringLiteral("VB6_OUTPUT=[[]]\n")) << "the last file stays whole";

    m.mesaje.clear();
    EXPECT_TRUE(Ruleaza(QStringLiteral("SELECT Nume, Prenume AS NUME FROM Membrii"), 0).isEmpty());
    ASSERT_EQ(m.mesaje.size(), 1u);
    EXPECT_TRUE(m.mesaje[0].text.contains(QStringLiteral("doua coloane"))) << m.mesaje[0].text.toStdString();
}

// The town hall edits the file: whatever it holds, printing a form never changes the database.
TEST_P(Sql2JsonTest, FisierulDeInterogariNuPoateScrie) {
    const qint64 cereri = Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri"));
    const struct {
        const char* text;
        const char* inMesaj;
    } cazuri[] = {
        {"SELECT 1 AS a;\n\n  delete FROM Cereri WHERE CerereID = ${CerereID};", "Linia 3"},
        {"UPDATE Cereri SET NrCerere = 1", "Linia 1"},
        {"SELECT 1 AS a;\nWITH x AS (SELECT 1 AS y) DELETE FROM Cereri", "Linia 2"},
    };
    for (const auto& c : cazuri) {
        m.mesaje.clear();
        EXPECT_TRUE(Ruleaza(QString::fromUtf8(c.text), 7).isEmpty()) << c.text;
        ASSERT_EQ(m.mesaje.size(), 1u) << c.text;
        EXPECT_TRUE(m.mesaje[0].text.contains(QLatin1String(c.inMesaj))) << m.mesaje[0].text.toStdString();
        EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), cereri) << c.text;
    }
    // Reading goes on working on the same connection afterwards, and so does writing.
    m.mesaje.clear();
    EXPECT_EQ(Ruleaza(QStringLiteral("select NrCerere AS nr FROM Cereri WHERE CerereID = ${CerereID}"), 7),
              QStringLiteral("[[{\"nr\":\"31 32 35\"}]]"));
    Bd().Executa(QStringLiteral("UPDATE Cereri SET NrCerere = 126 WHERE CerereID = 7"));
    EXPECT_TRUE(m.mesaje.empty());
}

PE_AMBELE_MOTOARE(Sql2JsonTest);

// The delivered statements, run as the print commands run them.
class StartCerereWebTest : public Sql2JsonTest {};

TEST_P(StartCerereWebTest, InterogarileLivrateAleUneiCereri) {
    const auto p = StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, m);
    ASSERT_TRUE(p.has_value());
    ASSERT_TRUE(m.mesaje.empty()) << m.mesaje.front().text.toStdString();
    EXPECT_EQ(p->adresa.fragment(), QStringLiteral("cerere"));
    EXPECT_EQ(QFileInfo(p->adresa.toLocalFile()).canonicalFilePath(),
              QFileInfo(program.mediu.pagina).canonicalFilePath());
    EXPECT_TRUE(p->browser.isEmpty());

    const QString date = program.Date();
    EXPECT_TRUE(date.startsWith(
        QStringLiteral("location.hash='#cerere_asf_vmg';SERVER_CERERE='%1';\n").arg(ServerCerereImplicit)))
        << date.left(200).toStdString();
    const Rezultate r = CitesteJson(JsonDinFisier(date));
    ASSERT_EQ(r.size(), 11u);
    ASSERT_EQ(r[0].size(), 1u);
    const Rand& c = r[0][0];
    EXPECT_EQ(c.at(QStringLiteral("prenume")), PrenumeTitular());
    EXPECT_EQ(c.at(QStringLiteral("cnp")), QString::fromLatin1(CnpTitular));
    EXPECT_EQ(c.at(QStringLiteral("staretext")), QStringLiteral("ACORDATA"));
    EXPECT_EQ(c.at(QStringLiteral("modplatatext")), QStringLiteral("CONT BANCAR"));
    EXPECT_EQ(c.at(QStringLiteral("tipacttext")), QStringLiteral("Carte de identitate"));
    EXPECT_EQ(c.at(QStringLiteral("dataelib")), QStringLiteral("01.07.2012"));
    EXPECT_EQ(c.at(QStringLiteral("bife")), QStringLiteral("0000000010"));

    ASSERT_EQ(r[1].size(), 3u);
    EXPECT_EQ(r[1][0].at(QStringLiteral("rudenietext")), QStringLiteral("TITULARUL"));
    EXPECT_EQ(r[1][1].at(QStringLiteral("prenume")), QStringLiteral("Ioana"));
    EXPECT_EQ(r[1][2].at(QStringLiteral("uscolara")), T("Şcoala Gimnazială nr. 1"));
    ASSERT_EQ(r[2].size(), 2u);
    EXPECT_EQ(r[2][0].at(QStringLiteral("valoare")), QStringLiteral("1000.5"));
    ASSERT_EQ(r[3].size(), 1u);
    EXPECT_EQ(r[3][0].at(QStringLiteral("cantitate")), QStringLiteral("1.5"));
    EXPECT_FALSE(r[3][0].at(QStringLiteral("valoareunitate")).isEmpty());
    // All eight kinds of dwelling, the third one with its rooms.
    ASSERT_EQ(r[4].size(), 8u);
    EXPECT_EQ(r[4][2].at(QStringLiteral("nrcamere")), QStringLiteral("2"));
    EXPECT_EQ(r[4][0].at(QStringLiteral("nrcamere")), QString());
    ASSERT_EQ(r[5].size(), 1u);
    EXPECT_EQ(r[5][0].at(QStringLiteral("anchetaid")), QStringLiteral("2")) << "the newest dated inquiry";
    ASSERT_EQ(r[6].size(), 1u);
    EXPECT_EQ(r[6][0].at(QStringLiteral("nrdisp")), QStringLiteral("60")) << "the newest that grants or changes";
    ASSERT_EQ(r[7].size(), 1u);
    EXPECT_EQ(r[7][0].at(QStringLiteral("associal")), QStringLiteral("Elena Dumitru"));
    ASSERT_EQ(r[8].size(), 1u);
    EXPECT_EQ(r[8][0].at(QStringLiteral("motivtext")), T("Încredinţare"));
    EXPECT_EQ(r[9].size(), 10u);
    EXPECT_EQ(r[10].size(), 28u);
}

TEST_P(StartCerereWebTest, FormularGolSauCereriDemonstrative) {
    ASSERT_TRUE(StartCerereWeb(Bd(), program.mediu, 0, DocAncheta, false, m).has_value());
    EXPECT_EQ(JsonDinFisier(program.Date()), QStringLiteral("[[],[],[],[],[],[],[],[],[],[],[]]"));
    EXPECT_TRUE(program.Date().startsWith(QStringLiteral("location.hash='#ancheta_asf_vmg';")));

    // Generated case files hold what clerks type: every request of them goes through.
    Demo::Optiuni o;
    o.cereri = 25;
    Demo::Genereaza(Bd(), o);
    std::vector<qint64> chei;
    Interogare q(Bd(), QStringLiteral("SELECT CerereID FROM Cereri WHERE CerereID <> 7 ORDER BY CerereID"));
    q.Executa();
    while (q.Urmator())
        chei.push_back(q.Intreg(0));
    int cereri = 0;
    const QString sql = CitesteText(SursaInterogari());
    for (const qint64 id : chei) {
        const Rezultate r = CitesteJson(JsonInterogari(Bd(), sql, id));
        ASSERT_EQ(r.size(), 11u) << id;
        ASSERT_EQ(r[0].size(), 1u) << id;
        EXPECT_EQ(r[0][0].at(QStringLiteral("cerereid")), QString::number(id));
        EXPECT_FALSE(r[1].empty()) << id;
        EXPECT_EQ(r[7].size(), 1u) << id;
        ++cereri;
    }
    EXPECT_EQ(cereri, 25);
    EXPECT_TRUE(m.mesaje.empty());
}

TEST_P(StartCerereWebTest, FisiereLipsa) {
    // No query file: nothing said, nothing written.
    QFile::remove(program.mediu.fisierInterogari);
    EXPECT_FALSE(StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, m).has_value());
    EXPECT_TRUE(m.mesaje.empty());
    EXPECT_FALSE(QFile::exists(program.mediu.FisierIesire()));

    ScrieText(program.mediu.fisierInterogari, QStringLiteral("-- nimic\n\n;\n"));
    EXPECT_FALSE(StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, m).has_value());
    EXPECT_TRUE(m.mesaje.empty());

    QFile::copy(SursaInterogari(), program.mediu.fisierInterogari + QStringLiteral(".nou"));
    QFile::remove(program.mediu.fisierInterogari);
    QFile::rename(program.mediu.fisierInterogari + QStringLiteral(".nou"), program.mediu.fisierInterogari);
    QFile::remove(program.mediu.pagina);
    EXPECT_FALSE(StartCerereWeb(Bd(), program.mediu, 7, DocCerere, false, m).has_value());
    ASSERT_EQ(m.mesaje.size(), 1u);
    EXPECT_EQ(m.mesaje[0].titlu, QStringLiteral("StartCerereWeb"));
    EXPECT_EQ(m.mesaje[0].text, QStringLiteral("Fisierul 'StartCerereWeb.html' nu exista in %1")
                                    .arg(QDir::toNativeSeparators(QFileInfo(program.mediu.pagina).absolutePath())));
    EXPECT_FALSE(QFile::exists(program.mediu.FisierIesire()));
}

PE_AMBELE_MOTOARE(StartCerereWebTest);

} // namespace
