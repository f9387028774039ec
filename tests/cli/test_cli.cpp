#include "cases/Dispozitii.h"
#include "cases/ListaCereri.h"
#include "cli/ComenziCli.h"
#include "documents/web/PunteWebTest.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

#include <QRegularExpression>
#include <QTextStream>

// One run of each command on both engines; what the commands compute is tested in core.

namespace {

// What one run of the command-line tool returned and wrote.
struct IesireCli {
    int cod;
    QString out, err;
};

IesireCli RuleazaLinie(QStringList argumente) {
    QString out, err;
    QTextStream o(&out), e(&err);
    const int cod = RuleazaCli(QStringList{T("ferolanta-cli")} + argumente, o, e);
    return {cod, out, err};
}

class Cli : public TestBaza {
protected:
    // The command, given as one line, run on the test's database.
    IesireCli Ruleaza(const QString& linie) const {
        QStringList a = linie.split(u' ', Qt::SkipEmptyParts) << T("--dir") << Locatie().caleBD;
        if (!Locatie().url.isEmpty()) a << T("--db") << Locatie().url;
        return RuleazaLinie(a);
    }
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        const IesireCli init = Ruleaza(T("init"));
        ASSERT_EQ(init.cod, 0) << init.err.toStdString();
        ASSERT_TRUE(iesiri.isValid());
    }
    void TearDown() override {
        if (!folderInitial.isEmpty()) QDir::setCurrent(folderInitial);
        TestBaza::TearDown();
    }
    QString In(const char* nume) const { return iesiri.filePath(QString::fromLatin1(nume)); }

    QTemporaryDir iesiri;
    QString folderInitial;
};

TEST_P(Cli, InitUpgradeSiDemo) {
    EXPECT_TRUE(QFile::exists(QDir(Locatie().caleBD).filePath(T("bife.txt"))));
    const IesireCli iar = Ruleaza(T("init"));
    EXPECT_EQ(iar.cod, 1);
    EXPECT_FALSE(iar.err.isEmpty());

    const IesireCli nimic = Ruleaza(T("upgrade"));
    EXPECT_EQ(nimic.cod, 0) << nimic.err.toStdString();
    EXPECT_EQ(nimic.out + nimic.err, QString()) << "nothing to do, nothing said";
    Redeschide();
    Bd().Executa(T("DELETE FROM DateGen WHERE Tip = 34 AND DataID = 4"));
    Bd().Executa(T("DELETE FROM ListaActe WHERE NrAct = 28"));
    QFile::remove(QDir(Locatie().caleBD).filePath(T("acte.txt")));
    const IesireCli upgrade = Ruleaza(T("upgrade"));
    EXPECT_EQ(upgrade.cod, 1) << "a catalog could not be reloaded";
    EXPECT_TRUE(upgrade.out.contains(T("DateGen"))) << "each change on its line";
    EXPECT_TRUE(upgrade.err.contains(T("acte.txt"))) << upgrade.err.toStdString();

    const IesireCli demo = Ruleaza(T("demo --cereri 12 --seed 3"));
    EXPECT_EQ(demo.cod, 0) << demo.err.toStdString();
    EXPECT_TRUE(demo.out.contains(T("12 cereri adaugate"))) << demo.out.toStdString();
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri")), 12);

    const IesireCli cauta = Ruleaza(T("cauta --primele 3"));
    EXPECT_EQ(cauta.cod, 0) << cauta.err.toStdString();
    const QStringList linii = cauta.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(linii.size(), 4) << cauta.out.toStdString();
    EXPECT_EQ(linii[0], T("12 cereri"));
    for (const QString& l : linii.mid(1))
        EXPECT_EQ(l.count(u'\t'), 4) << l.toStdString();
    const IesireCli una = Ruleaza(T("cauta --stari 1,2,3,4,5,6,7,8 --nr-cerere ") + linii[1].section(u'\t', 0, 0));
    EXPECT_EQ(una.out, T(" o cerere\n") + linii[1] + u'\n');
}

// The amount of a stored request in the working month: --luna and --an, else the settings file of --dir,
// else today's month.
TEST_P(Cli, CuantumInLunaDeLucru) {
    Redeschide();
    ScriePrimarie(Bd(), PrimarieA());
    ScrieCerere(Bd(), CerereA());
    ExecutaCu(Bd(), T("UPDATE Cereri SET DataStare = ?"), QDate(2015, 3, 1));
    // The children turn 18 in March 2015: counted then, not in today's month.
    ExecutaCu(Bd(), T("UPDATE CereriMembrii SET Data18Ani = ? WHERE RudenieID IN (3, 6)"), QDate(2015, 3, 15));
    const IesireCli r = Ruleaza(T("cuantum 7 --luna 3 --an 2015"));
    EXPECT_EQ(r.cod, 0) << r.err.toStdString();
    EXPECT_TRUE(QRegularExpression(T("^NrCopii=\\d+ Cuantum=\\d+\\.\\d{4}\n$")).match(r.out).hasMatch())
        << r.out.toStdString();
    EXPECT_NE(Ruleaza(T("cuantum 7")).out, r.out) << "today's month";
    ScrieText(QDir(Locatie().caleBD).filePath(T("setari207.ini")), T("[Setari]\r\nLunaSetata=3\r\nAnSetat=2015\r\n"));
    EXPECT_EQ(Ruleaza(T("cuantum 7")).out, r.out) << "the settings' month";
    const IesireCli lipsa = Ruleaza(T("cuantum 2"));
    EXPECT_EQ(lipsa.cod, 1);
    EXPECT_EQ(lipsa.out, QString());
    EXPECT_TRUE(lipsa.err.contains(u'2')) << lipsa.err.toStdString();
}

// A document goes to its fixed name in the current folder; a failure writes nothing.
TEST_P(Cli, DocumentScrisSauNimic) {
    Redeschide();
    ScriePrimarie(Bd(), PrimarieA());
    ScrieCerere(Bd(), CerereA());
    ScrieDispozitie(Bd(), DispozitieA());
    folderInitial = QDir::currentPath();
    QDir::setCurrent(iesiri.path());
    const IesireCli d = Ruleaza(T("document dispozitie 3"));
    ASSERT_EQ(d.cod, 0) << d.err.toStdString();
    EXPECT_TRUE(d.out.contains(QDir::toNativeSeparators(In("Disp.rtf")))) << d.out.toStdString();
    EXPECT_TRUE(CitesteTot(In("Disp.rtf")).contains("1850312410015"));
    QFile::remove(In("Disp.rtf"));
    const IesireCli lipsa = Ruleaza(T("document declaratie 3"));
    EXPECT_EQ(lipsa.cod, 1);
    EXPECT_FALSE(lipsa.err.isEmpty());
    EXPECT_TRUE(QDir(iesiri.path()).isEmpty());
}

// The data beside a copy of the page in --out, the address on stdout; a failure leaves --out as it was.
TEST_P(Cli, WebScrieDateleLangaPagina) {
    Redeschide();
    ScrieDosarWeb(Bd());
    ScrieText(QDir(Locatie().caleBD).filePath(T("setari207.ini")),
              T("[Generale]\nDataCerereTiparita=2\nNrCerereTiparita=1\nServerCerere=https://alt.ro/\n"));
    const QString folder = In("formulare");
    const IesireCli r = Ruleaza(T("web cerere_1a 7 --out ") + folder);
    ASSERT_EQ(r.cod, 0) << r.err.toStdString();
    const QString pagina = QDir(folder).filePath(PunteWeb::Pagina);
    QUrl asteptat = QUrl::fromLocalFile(pagina);
    asteptat.setFragment(PunteWeb::DocCerere1a);
    EXPECT_EQ(r.out, asteptat.toString() + u'\n');
    EXPECT_EQ(CitesteText(pagina), CitesteText(SursaPagina));
    const QString date = CitesteText(QDir(folder).filePath(PunteWeb::FisierDate));
    EXPECT_TRUE(date.startsWith(T("SETARI_INI='dct:2;nct:1;';\n") +
                                PunteWeb::LiniePrefix(PunteWeb::DocCerere1a, T("https://alt.ro/"))))
        << date.left(200).toStdString();
    EXPECT_EQ(CitesteJson(JsonDinFisier(date)).at(0).at(0).at(T("cnp")), QString::fromLatin1(CnpTitular));

    const IesireCli lipsa = Ruleaza(T("web cerere 404 --out ") + In("nou"));
    EXPECT_EQ(lipsa.cod, 1);
    EXPECT_TRUE(lipsa.out.isEmpty());
    EXPECT_FALSE(QFileInfo::exists(In("nou")));
}

// The list of reports; a report written by the extension of its file; a report whose template is
// missing tells so where the clerk's messages go, with code 1 and no file.
TEST_P(Cli, RaportListaSiMesaje) {
    const IesireCli lista = Ruleaza(T("raport lista"));
    EXPECT_EQ(lista.cod, 0);
    const QStringList linii = lista.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(linii.size(), 22);
    EXPECT_TRUE(linii[21].startsWith(T("21\t")));
    const IesireCli bun = Ruleaza(T("raport 0 --luna 11 --an 2026 --out ") + In("toate.csv"));
    EXPECT_EQ(bun.cod, 0) << bun.out.toStdString();
    QFile csv(In("toate.csv"));
    ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
    EXPECT_TRUE(csv.readLine().startsWith("ROMANIA;"));
    const IesireCli r = Ruleaza(T("raport 20 --out ") + In("borderou.pdf"));
    EXPECT_EQ(r.cod, 1);
    EXPECT_TRUE(r.out.contains(T("Borderou_beneficiari.cel"))) << r.out.toStdString();
    EXPECT_FALSE(QFile::exists(In("borderou.pdf")));
}

// The Borderou and its twin written by the extension of their files; the two forms filled, from the
// delivered template or from the data folder's own, which, broken, is refused with code 1, the message
// where the clerk's messages go, and no file.
TEST_P(Cli, BorderouSiFormulareleBas) {
    Redeschide();
    ScriePrimarie(Bd(), PrimarieA());
    ScrieCerere(Bd(), CerereA());
    const std::pair<const char*, const char*> rulari[] = {
        {"borderou --raport 1 --aloc 0 --ord1 2 --luna 3 --an 2015 --out", "b.csv"},
        {"borderou --raport 4 --aloc 2 --foaie --out", "b.xlsx"},
        {"bas a23 --out", "a23.ods"}};
    for (const auto& [linie, fisier] : rulari) {
        EXPECT_EQ(Ruleaza(T(linie) + u' ' + In(fisier)).cod, 0) << linie;
        EXPECT_GT(QFileInfo(In(fisier)).size(), 0) << linie;
    }
    EXPECT_TRUE(CitesteText(In("b.csv")).contains(QString::fromLatin1(CnpTitular))) << "the request in payment";
    QDir(Locatie().caleBD).mkpath(T("Acte"));
    ScrieText(QDir(Locatie().caleBD).filePath(T("Acte/A25BAS.ods")), T("nu este o foaie de calcul"));
    const IesireCli rupt = Ruleaza(T("bas a25 --out ") + In("a25.ods"));
    EXPECT_EQ(rupt.cod, 1);
    EXPECT_TRUE(rupt.out.contains(T("A25BAS.ods")) && rupt.err.isEmpty()) << rupt.out.toStdString();
    EXPECT_FALSE(QFile::exists(In("a25.ods")));
}

// A new ISR: the paying request counted on the standard output; a request without a level stops the
// run with code 1, its message and the old value kept.
TEST_P(Cli, IsrRecalculeazaSauOpreste) {
    Redeschide();
    ScriePrimarie(Bd(), PrimarieA());
    ScrieCerere(Bd(), CerereA());
    const IesireCli r = Ruleaza(T("isr 600,75"));
    EXPECT_EQ(r.cod, 0) << r.out.toStdString();
    EXPECT_EQ(r.out, T("A fost recalculat cuantumul pentru 1 cereri.\n"));
    ExecutaCu(Bd(), T("UPDATE Cereri SET NrCopii = ?"), 0);
    const IesireCli oprit = Ruleaza(T("isr 610"));
    EXPECT_EQ(oprit.cod, 1);
    EXPECT_TRUE(oprit.out.startsWith(T("CerereID 7 fara copii"))) << oprit.out.toStdString();
    Interogare q(Bd(), T("SELECT Continut FROM DateGen WHERE Denumire = ?"));
    q.Leaga(T("ISR"));
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Text(T("Continut")), T("600.75"));
}

// The history under a number, that of a request since deleted included, newest first.
TEST_P(Cli, IstoricSubNumarulCererii) {
    Redeschide();
    ScriePrimarie(Bd(), PrimarieA());
    ScrieCerere(Bd(), CerereA());
    const Dispozitie d{0, 7, T("5"), QDate(2015, 3, 1), 1, 3, T("2015"), T("82"), {}, {}};
    Dispozitii::Salveaza(Bd(), d, ModDispozitie::Adaugare);
    ListaCereri::Sterge(Bd(), 7);
    const IesireCli r = Ruleaza(T("istoric 125"));
    EXPECT_EQ(r.cod, 0) << r.err.toStdString();
    const QStringList linii = r.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(linii.size(), 2) << r.out.toStdString();
    EXPECT_EQ(linii[0].section(u'\t', 2).section(u';', 0, 0), T("Cerere stearsa: NrCerere: 125"));
    EXPECT_TRUE(linii[1].section(u'\t', 2).startsWith(T("Dispozitie nr 5 adaugata: "))) << linii[1].toStdString();
    EXPECT_EQ(Ruleaza(T("istoric 126")).out, QString());
}

PE_AMBELE_MOTOARE(Cli);

// A maintenance tool only counts without --da; with it, it changes and says how many. A tool that stops
// on its check ends with code 1.
TEST_P(Cli, MentenantaNumaraApoiSchimba) {
    Redeschide();
    for (qint64 id : {1, 2}) {
        CerereTest c;
        c.cerereID = c.nrCerere = id;
        c.stare = 3;
        c.persoane = {{id, T("POP"), T("ION"), QString::number(id), 1}};
        AdaugaCerereTest(Bd(), c);
    }
    const IesireCli numara = Ruleaza(T("mentenanta stare"));
    EXPECT_EQ(numara.cod, 0) << numara.err.toStdString();
    EXPECT_TRUE(numara.out.startsWith(T("Ar fi modificate 2 randuri."))) << numara.out.toStdString();
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri WHERE Stare = 3")), 2);
    const IesireCli da = Ruleaza(T("mentenanta stare --da"));
    EXPECT_EQ(da.cod, 0) << da.err.toStdString();
    EXPECT_TRUE(da.out.contains(T("A fost modifcat Stare = 5 la 2 cereri"))) << da.out.toStdString();
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri WHERE Stare = 5")), 2);
    const IesireCli luna = Ruleaza(T("mentenanta cereri2014 --da --luna 3 --an 2024"));
    EXPECT_EQ(luna.cod, 1);
    EXPECT_TRUE(luna.out.contains(T("Seteaza luna si an corect!"))) << luna.out.toStdString();
}

// The import into the new database prints its report, refused rows included; a second one is refused.
TEST_P(Cli, ImportApoiRefuzatInBazaCuCereri) {
    const IesireCli r = Ruleaza(T("import " FEROLANTA_TESTE_DATE "/import/veche"));
    EXPECT_EQ(r.cod, 0) << r.err.toStdString();
    EXPECT_TRUE(r.out.contains(T("CerereID=99"))) << r.out.toStdString();
    const IesireCli a = Ruleaza(T("import " FEROLANTA_TESTE_DATE "/import/noua"));
    EXPECT_EQ(a.cod, 1);
    EXPECT_FALSE(a.err.isEmpty());
}

// Each wrong command line gives code 2, one line of usage on the error stream, nothing on the
// other, and creates nothing in the folder it names (DIR).
TEST(CliArgumente, ArgumenteGresiteDauCodul2SiUnRand) {
    // clang-format off
    const char* linii[] = {
        "", "sterge-tot", "init --necunoscut", "init upgrade", "init --seed 3", "init --out x.rtf", "upgrade --out x",
        "demo", "demo --cereri multe", "demo --cereri -5", "demo --cereri 10000001",
        "demo --cereri 5 --seed 99999999999999999999", "cuantum --dir DIR", "cuantum 0 --dir DIR",
        "cuantum 5 6 --dir DIR", "cuantum 5 --luna 3 --dir DIR", "cuantum 5 --luna 13 --an 2015 --dir DIR",
        "cuantum 5 --luna 2 --an 2101 --dir DIR", "cuantum 5 --cereri 3 --dir DIR", "document", "document dispozitie",
        "document anexa 3", "document fisa x", "document fisa 3 4", "document dispozitie 3 --data 01.01.2025",
        "document fisa 3 --data 31.02.2025", "web", "web cerere", "web dispozitie 3", "web cerere -1",
        "web cerere 3 --sablon a.rtf", "cauta x", "cauta --stari 2,x", "cauta --primele -1",
        "cauta --nr-cerere 12a", "upgrade --nume Pop", "raport", "raport 22 --out x.csv", "raport 0", "raport lista 3",
        "raport 0 --out x.doc", "raport 0 --out x.csv --ord1 4", "raport 0 --out x.csv --tip-cerere 3",
        "raport 0 --out x.csv --azi 31.02.2026", "raport 0 --out x.csv --luna 3", "cauta --foaie",
        "raport 0 --out x.csv --aloc 1", "borderou --aloc 0 --out x.csv", "borderou --raport 5 --aloc 0 --out x.csv",
        "borderou --raport 0 --aloc 3 --out x.csv", "borderou --raport 0 --aloc 0", "borderou 1 --raport 0 --aloc 0 --out x.csv",
        "borderou --raport 0 --aloc 0 --out x.doc", "borderou --raport 0 --aloc 0 --out x.csv --ord2 4",
        "borderou --raport 0 --aloc 0 --out x.csv --an 2024", "borderou --raport 0 --aloc 0 --out x.csv --tip-cerere 1",
        "bas", "bas a24 --out x.ods", "bas a23", "bas a23 --out x.xlsx", "bas a23 a25 --out x.ods",
        "bas a25 --out x.ods --foaie", "cuantum 5 --raport 1 --dir DIR", "isr", "isr 0.99 --dir DIR",
        "isr 5a --dir DIR", "isr 600 700 --dir DIR", "isr 600 --out x.csv",
        "bas a25 --out x.ods --foaie", "cuantum 5 --raport 1 --dir DIR", "mentenanta", "mentenanta curata --dir DIR",
        "mentenanta stare acte --dir DIR", "mentenanta stare --suprascrie --dir DIR", "cauta --da",
        "mentenanta acte --data-veche --dir DIR", "mentenanta datastare --luna 3 --dir DIR",
        "copie x --dir DIR", "restaurare --dir DIR", "restaurare a b --dir DIR", "copie --out x.db", "istoric",
        "istoric x --dir DIR", "istoric 5 6 --dir DIR", "istoric 5 --luna 3 --dir DIR", "import --dir DIR",
        "import a b --dir DIR", "import a --luna 3 --dir DIR"};
    // clang-format on
    QTemporaryDir dir;
    for (const char* linie : linii) {
        const IesireCli r = RuleazaLinie(
            QString::fromLatin1(linie).replace(QLatin1String("DIR"), dir.path()).split(u' ', Qt::SkipEmptyParts));
        EXPECT_EQ(r.cod, 2) << linie;
        EXPECT_EQ(r.err.count(u'\n'), 1) << linie << ": " << r.err.toStdString();
        EXPECT_TRUE(r.err.contains(QLatin1String("utilizare: ferolanta-cli"))) << linie;
        EXPECT_TRUE(r.out.isEmpty()) << linie << ": " << r.out.toStdString();
    }
    EXPECT_TRUE(QDir(dir.path()).isEmpty()) << "nothing created for bad arguments";
}

TEST(CliArgumente, FolderLipsaSauFisierStrainDauCodul1) {
    QTemporaryDir dir;
    const IesireCli lipsa = RuleazaLinie({T("init"), T("--dir"), dir.filePath(T("nu-exista"))});
    EXPECT_EQ(lipsa.cod, 1);
    EXPECT_TRUE(lipsa.err.contains(T("nu-exista"))) << lipsa.err.toStdString();
    QFile f(QDir(dir.path()).filePath(T("Ferolanta.db")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("acesta nu este un fisier SQLite, ci o scrisoare\n");
    f.close();
    const IesireCli strain = RuleazaLinie({T("upgrade"), T("--dir"), dir.path()});
    EXPECT_EQ(strain.cod, 1);
    EXPECT_TRUE(strain.err.contains(T("Ferolanta.db"))) << strain.err.toStdString();
    EXPECT_EQ(f.size(), 48) << "the foreign file is left as it was";
}

} // namespace
