#include "base/ServiciuFisiere.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace SF = ServiciuFisiere;

TEST(StareFisier, DeosebesteFisierLipsaDeLocatieLipsa) {
    QTemporaryDir dir;
    const QString fisier = QDir(dir.path()).filePath(QStringLiteral("Ferolanta.db"));
    EXPECT_EQ(SF::StareFisier(fisier), 1);
    QFile f(fisier);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    EXPECT_EQ(SF::StareFisier(fisier), 0);
    EXPECT_EQ(SF::StareFisier(QDir(dir.path()).filePath(QStringLiteral("lipsa/Ferolanta.db"))), 2);
}

TEST(FisierIni, CheileNuTinContDeMajuscule) {
    QTemporaryDir dir;
    const QString ini = QDir(dir.path()).filePath(QStringLiteral("setari207.ini"));
    EXPECT_EQ(SF::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD")), QString());
    SF::ScrieIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD"), QStringLiteral("C:\\Date\\Primărie"));
    EXPECT_EQ(SF::CitesteIni(ini, QStringLiteral("GENERALE"), QStringLiteral("calebd")),
              QStringLiteral("C:\\Date\\Primărie"));
    SF::ScrieIni(ini, QStringLiteral("generale"), QStringLiteral("CALEBD"), QStringLiteral("D:\\X"));
    EXPECT_EQ(SF::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD")), QStringLiteral("D:\\X"));
}

TEST(FisierIni, PastreazaOrdineaSiCheileNecunoscute) {
    QTemporaryDir dir;
    const QString ini = QDir(dir.path()).filePath(QStringLiteral("setari207.ini"));
    QFile f(ini);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("[Setari]\nLunaSetata=3\nCheieStraina=x\n[Generale]\nCaleBD=C:\\A\n");
    f.close();
    SF::ScrieIni(ini, QStringLiteral("Setari"), QStringLiteral("AnSetat"), QStringLiteral("2024"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(f.readAll());
    EXPECT_LT(text.indexOf(QStringLiteral("[Setari]")), text.indexOf(QStringLiteral("[Generale]")));
    EXPECT_TRUE(text.contains(QStringLiteral("CheieStraina")));
    EXPECT_EQ(SF::CitesteIni(ini, QStringLiteral("Setari"), QStringLiteral("AnSetat")), QStringLiteral("2024"));
    EXPECT_EQ(SF::CitesteIni(ini, QStringLiteral("Setari"), QStringLiteral("LunaSetata")), QStringLiteral("3"));
}

TEST(FisierIni, CitesteFisierVechiInWindows1250) {
    QTemporaryDir dir;
    const QString ini = QDir(dir.path()).filePath(QStringLiteral("setari207.ini"));
    QFile f(ini);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    // "Primăria Brăneşti" in Windows-1250: ă = 0xE3, ş = 0xBA
    f.write("[Generale]\nNume=Prim\xE3ria Br\xE3ne\xBAti\n");
    f.close();
    EXPECT_EQ(SF::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("Nume")),
              QStringLiteral("Primăria Brăneşti"));
}
