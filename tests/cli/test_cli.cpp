#include "cli/CliTest.h"
#include "support/BazaTest.h"

#include <QDir>
#include <QFile>

namespace {

class Cli : public TestCli {};

TEST_P(Cli, InitApoiUpgradeFaraSchimbari) {
    const IesireCli init = Ruleaza(QStringList{QStringLiteral("init")});
    ASSERT_EQ(init.cod, 0) << init.err.toStdString();
    EXPECT_TRUE(init.out.contains(QStringLiteral("Baza de date a fost creata")));
    for (const char* f : {"venituri.txt", "bife.txt", "acte.txt"})
        EXPECT_TRUE(QFile::exists(QDir(Locatie().caleBD).filePath(QString::fromLatin1(f)))) << f;

    const IesireCli upgrade = Ruleaza(QStringList{QStringLiteral("upgrade")});
    EXPECT_EQ(upgrade.cod, 0) << upgrade.err.toStdString();
    EXPECT_EQ(upgrade.out, QString());
    EXPECT_EQ(upgrade.err, QString());

    const IesireCli iar = Ruleaza(QStringList{QStringLiteral("init")});
    EXPECT_EQ(iar.cod, 1);
    EXPECT_TRUE(iar.err.startsWith(QStringLiteral("Exista deja o baza de date"))) << iar.err.toStdString();
}

TEST_P(Cli, UpgradeSpuneCeSchimbaSiEsueazaCuCatalogLipsa) {
    ASSERT_EQ(Ruleaza(QStringList{QStringLiteral("init")}).cod, 0);
    {
        auto db = BazaDate::Deschide(Locatie());
        db->Executa(QStringLiteral("DELETE FROM ListaActe WHERE NrAct = 28"));
        db->Executa(QStringLiteral("DELETE FROM DateGen WHERE Tip = 34 AND DataID = 4"));
    }
    QFile::remove(QDir(Locatie().caleBD).filePath(QStringLiteral("acte.txt")));
    const IesireCli r = Ruleaza(QStringList{QStringLiteral("upgrade")});
    EXPECT_EQ(r.cod, 1);
    EXPECT_TRUE(r.out.contains(QStringLiteral("DateGen: adaugat Tip 34 DataID 4 EURO"))) << r.out.toStdString();
    EXPECT_TRUE(r.out.contains(QStringLiteral("In tabela Acte exista 27 randuri")));
    EXPECT_TRUE(r.err.contains(QStringLiteral("Fisierul acte.txt nu exista in"))) << r.err.toStdString();
}

PE_AMBELE_MOTOARE(Cli);

// Each wrong command line gives code 2, one line of usage on the error stream, nothing on the
// other, and creates nothing in the folder it names (DIR).
TEST(CliArgumente, ArgumenteGresiteDauCodul2SiUnRand) {
    const char* general = "utilizare: ferolanta-cli";
    const char* cuantum = "cuantum ID [--luna L --an A]";
    const struct {
        const char* linie;
        const char* utilizare;
    } cazuri[] = {
        {"", general},
        {"sterge-tot", general},
        {"init --necunoscut", general},
        {"demo", general},
        {"demo --cereri multe", general},
        {"demo --cereri -5", general},
        {"demo --cereri 99999999999", general},
        {"demo --cereri 10000001", general},
        {"demo --cereri 5 --seed 99999999999999999999", general},
        {"cuantum 5 --luna 2 --an 2101 --dir DIR", cuantum},
        {"init --seed 3", general},
        {"init upgrade", general},
        {"cuantum --dir DIR", cuantum},
        {"cuantum abc --dir DIR", cuantum},
        {"cuantum 0 --dir DIR", cuantum},
        {"cuantum -3 --dir DIR", cuantum},
        {"cuantum 5 6 --dir DIR", cuantum},
        {"cuantum 5 --luna 3 --dir DIR", cuantum},
        {"cuantum 5 --luna 13 --an 2015 --dir DIR", cuantum},
        {"cuantum 5 --luna 0 --an 2015 --dir DIR", cuantum},
        {"cuantum 5 --luna 2 --an 20x5 --dir DIR", cuantum},
        {"cuantum 5 --cereri 3 --dir DIR", cuantum},
        {"init --luna 3 --an 2015 --dir DIR", cuantum},
        {"document", general},
        {"document dispozitie", general},
        {"document anexa 3", general},
        {"document fisa x", general},
        {"document fisa 0", general},
        {"document fisa 3 4", general},
        {"document dispozitie 3 --data 01.01.2025", general},
        {"document fisa 3 --data 31.02.2025", general},
        {"init --out x.rtf", general},
        {"web", general},
        {"web cerere", general},
        {"web dispozitie 3", general},
        {"web cerere -1", general},
        {"web cerere x", general},
        {"web cerere 3 4", general},
        {"web cerere 3 --sablon a.rtf", general},
        {"upgrade --out x", general},
    };
    QTemporaryDir dir;
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.linie);
        const IesireCli r = RuleazaLinie(
            QString::fromLatin1(c.linie).replace(QLatin1String("DIR"), dir.path()).split(u' ', Qt::SkipEmptyParts));
        EXPECT_EQ(r.cod, 2);
        EXPECT_EQ(r.err.count(QLatin1Char('\n')), 1) << r.err.toStdString();
        EXPECT_TRUE(r.err.contains(QLatin1String(c.utilizare))) << r.err.toStdString();
        EXPECT_TRUE(r.out.isEmpty()) << r.out.toStdString();
    }
    EXPECT_TRUE(QDir(dir.path()).isEmpty()) << "nothing created for bad arguments";
}

TEST(CliArgumente, FolderLipsaSauFisierStraindauCodul1) {
    QTemporaryDir dir;
    const IesireCli lipsa =
        RuleazaLinie({QStringLiteral("init"), QStringLiteral("--dir"), dir.filePath(QStringLiteral("nu-exista"))});
    EXPECT_EQ(lipsa.cod, 1);
    EXPECT_TRUE(lipsa.err.contains(QStringLiteral("nu-exista"))) << lipsa.err.toStdString();

    QFile f(QDir(dir.path()).filePath(QStringLiteral("Ferolanta.db")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("acesta nu este un fisier SQLite, ci o scrisoare\n");
    f.close();
    const IesireCli strain = RuleazaLinie({QStringLiteral("upgrade"), QStringLiteral("--dir"), dir.path()});
    EXPECT_EQ(strain.cod, 1);
    EXPECT_TRUE(strain.err.contains(QStringLiteral("Ferolanta.db"))) << strain.err.toStdString();
    EXPECT_EQ(f.size(), 48) << "the foreign file is left as it was";

    const IesireCli faraBaza =
        RuleazaLinie({QStringLiteral("upgrade"), QStringLiteral("--dir"), dir.filePath(QStringLiteral("gol"))});
    EXPECT_EQ(faraBaza.cod, 1);
}

} // namespace
