#include "operations/CliTest.h"
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

TEST(CliArgumente, ArgumenteGresiteDauCodul2SiUnRand) {
    const QStringList cazuri[] = {
        {},
        {QStringLiteral("sterge-tot")},
        {QStringLiteral("init"), QStringLiteral("--necunoscut")},
        {QStringLiteral("demo")},
        {QStringLiteral("demo"), QStringLiteral("--cereri"), QStringLiteral("multe")},
        {QStringLiteral("demo"), QStringLiteral("--cereri"), QStringLiteral("-5")},
        {QStringLiteral("init"), QStringLiteral("--seed"), QStringLiteral("3")},
        {QStringLiteral("init"), QStringLiteral("upgrade")},
    };
    for (const auto& c : cazuri) {
        const IesireCli r = RuleazaLinie(c);
        EXPECT_EQ(r.cod, 2) << c.join(' ').toStdString();
        EXPECT_EQ(r.err.count(QLatin1Char('\n')), 1) << r.err.toStdString();
        EXPECT_TRUE(r.err.contains(QStringLiteral("utilizare: ferolanta-cli"))) << r.err.toStdString();
        EXPECT_TRUE(r.out.isEmpty());
    }
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
