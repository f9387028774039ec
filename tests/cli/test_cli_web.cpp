#include "cli/CliTest.h"
#include "documents/web/PunteWebTest.h"
#include "support/BazaTest.h"

#include <QUrl>

namespace {

class CliWeb : public TestCli {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        ASSERT_EQ(Ruleaza(QStringList{QStringLiteral("init")}).cod, 0);
        auto db = BazaDate::Deschide(Locatie());
        ScrieDosarWeb(*db);
    }
    QTemporaryDir iesiri;
};

TEST_P(CliWeb, ScrieDateleLangaOCopieAPaginiiSiTiparesteAdresa) {
    const QString folder = QDir(iesiri.path()).filePath(QStringLiteral("formulare"));
    const IesireCli r = Ruleaza(QStringList{QStringLiteral("web"), QStringLiteral("cerere_1a"), QStringLiteral("7"),
                                            QStringLiteral("--out"), folder});
    ASSERT_EQ(r.cod, 0) << r.err.toStdString();
    const QString pagina = QDir(folder).filePath(QStringLiteral("StartCerereWeb.html"));
    QUrl asteptat = QUrl::fromLocalFile(pagina);
    asteptat.setFragment(QStringLiteral("cerere_1a"));
    EXPECT_EQ(r.out, asteptat.toString() + u'\n');
    EXPECT_EQ(CitesteText(pagina), CitesteText(SursaPagina()));
    const QString date = CitesteText(QDir(folder).filePath(QStringLiteral("vb6_output.js")));
    EXPECT_TRUE(date.startsWith(QStringLiteral("location.hash='#cerere_1a_asf_vmg';"))) << date.left(100).toStdString();
    const Rezultate rez = CitesteJson(JsonDinFisier(date));
    ASSERT_EQ(rez.size(), 11u);
    ASSERT_EQ(rez[0].size(), 1u);
    EXPECT_EQ(rez[0][0].at(QStringLiteral("cnp")), QString::fromLatin1(CnpTitular));

    // The settings of the database folder go into the file, and a second run overwrites both files.
    ScrieText(QDir(Locatie().caleBD).filePath(QStringLiteral("setari207.ini")),
              QStringLiteral("[Generale]\nDataCerereTiparita=2\nNrCerereTiparita=1\nServerCerere=https://alt.ro/\n"));
    const IesireCli gol = Ruleaza(QStringList{QStringLiteral("web"), QStringLiteral("ancheta"), QStringLiteral("0"),
                                              QStringLiteral("--out"), folder});
    ASSERT_EQ(gol.cod, 0) << gol.err.toStdString();
    EXPECT_EQ(CitesteText(QDir(folder).filePath(QStringLiteral("vb6_output.js"))),
              QStringLiteral("SETARI_INI='dct:2;nct:1;';\nlocation.hash='#ancheta_asf_vmg';SERVER_CERERE='https://"
                             "alt.ro/';\nVB6_OUTPUT=[[],[],[],[],[],[],[],[],[],[],[]]\n"));
}

// A failed command gives code 1 and leaves --out as it was: no page, no data, no new folder.
TEST_P(CliWeb, EsecCuCodul1FaraNimicScris) {
    const IesireCli r = Ruleaza(QStringList{QStringLiteral("web"), QStringLiteral("cerere"), QStringLiteral("404"),
                                            QStringLiteral("--out"), iesiri.path()});
    EXPECT_EQ(r.cod, 1);
    EXPECT_EQ(r.err, QStringLiteral("Cererea cu ID-ul 404 nu exista in baza de date.\n"));
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_TRUE(QDir(iesiri.path()).isEmpty());

    QDir(Locatie().caleBD).mkpath(QStringLiteral("Acte"));
    ScrieText(QDir(Locatie().caleBD).filePath(QStringLiteral("Acte/sql_cerere.txt")),
              QStringLiteral("SELECT 1 AS a;\nDELETE FROM Cereri;\n"));
    const QString folder = QDir(iesiri.path()).filePath(QStringLiteral("nou"));
    const IesireCli s = Ruleaza(
        QStringList{QStringLiteral("web"), QStringLiteral("cerere"), QStringLiteral("7"), QStringLiteral("--out"), folder});
    EXPECT_EQ(s.cod, 1);
    EXPECT_TRUE(s.err.contains(QStringLiteral("Linia 2"))) << s.err.toStdString();
    EXPECT_TRUE(QDir(iesiri.path()).isEmpty());
}

PE_AMBELE_MOTOARE(CliWeb);

} // namespace
