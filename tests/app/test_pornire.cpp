#include "base/Ceas.h"
#include "base/Foldere.h"
#include "app/Pornire.h"
#include "base/ServiciuFisiere.h"
#include "support/MesajeInregistrate.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString folderLivrat() {
    return QStringLiteral(FEROLANTA_SURSA);
}

TEST(Pornire, PrimaPornireCreeazaFolderulSiBaza) {
    QTemporaryDir tmp;
    const QString date = QDir(tmp.path()).filePath(QStringLiteral("Ferolanta"));
    MesajeInregistrate m;
    Ceas::SeteazaAzi(QDate(2026, 11, 24));
    RezultatPornire r = PornesteBaza(date, folderLivrat(), m);
    Ceas::SeteazaAzi(QDate());
    ASSERT_EQ(r.stare, RezultatPornire::Stare::Deschisa) << m.Texte().join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(QFile::exists(QDir(date).filePath(QStringLiteral("Ferolanta.db"))));
    EXPECT_TRUE(QFile::exists(QDir(date).filePath(QStringLiteral("bife.txt"))));
    const QString ini = QDir(date).filePath(Foldere::FisierSetari);
    EXPECT_EQ(ServiciuFisiere::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD")), date);
    EXPECT_EQ(r.setari.LunaSetata, 11);
    EXPECT_EQ(r.setari.AnSetat, 2026);

    // The next start finds everything in place and asks nothing.
    r.bd.reset();
    RezultatPornire a2a = PornesteBaza(date, folderLivrat(), m);
    EXPECT_EQ(a2a.stare, RezultatPornire::Stare::Deschisa);
    EXPECT_TRUE(m.mesaje.empty());
}

TEST(Pornire, BazaLipsaDinLocatieIntreabaDeONouaLocatie) {
    QTemporaryDir tmp;
    const QString ini = QDir(tmp.path()).filePath(Foldere::FisierSetari);
    ServiciuFisiere::ScrieIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD"), tmp.path());
    MesajeInregistrate m;
    m.raspunsuri = {true, false};
    EXPECT_EQ(PornesteBaza(tmp.path(), folderLivrat(), m).stare, RezultatPornire::Stare::AlegeLocatie);
    EXPECT_EQ(PornesteBaza(tmp.path(), folderLivrat(), m).stare, RezultatPornire::Stare::Terminat);
    const QString intrebare =
        QStringLiteral("Baza de date Ferolanta.db nu a fost gasita in locatia %1\nDoriti sa selectati o noua locatie?")
            .arg(tmp.path());
    EXPECT_EQ(m.Texte(), (QStringList{intrebare, intrebare}));
    EXPECT_FALSE(QFile::exists(QDir(tmp.path()).filePath(QStringLiteral("Ferolanta.db"))))
        << "a named location is never filled silently";
}

TEST(Pornire, CaleBDGoalaDevineFolderulProgramului) {
    QTemporaryDir tmp;
    const QString ini = QDir(tmp.path()).filePath(Foldere::FisierSetari);
    ServiciuFisiere::ScrieIni(ini, QStringLiteral("Setari"), QStringLiteral("LunaSetata"), QStringLiteral("5"));
    MesajeInregistrate m;
    m.raspunsuri = {false};
    PornesteBaza(tmp.path(), folderLivrat(), m);
    EXPECT_EQ(ServiciuFisiere::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD")), tmp.path());
}

TEST(Pornire, FolderulBazeiDeNeatinsOpresteProgramul) {
    QTemporaryDir tmp;
    const QString ini = QDir(tmp.path()).filePath(Foldere::FisierSetari);
    ServiciuFisiere::ScrieIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD"),
                              tmp.filePath(QStringLiteral("retea/lipsa")));
    MesajeInregistrate m;
    EXPECT_EQ(PornesteBaza(tmp.path(), folderLivrat(), m).stare, RezultatPornire::Stare::Terminat);
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral(
                             "Reteaua nu functioneaza sau locatia catre baza de date nu e corecta. Verificati!")});
}

// A settings file that cannot be read (here a folder in its place) ends the start with a message.
TEST(Pornire, FisierDeSetariIlizibilOpresteCuMesaj) {
    QTemporaryDir tmp;
    ASSERT_TRUE(QDir(tmp.path()).mkdir(Foldere::FisierSetari));
    MesajeInregistrate m;
    RezultatPornire r;
    EXPECT_NO_THROW(r = PornesteBaza(tmp.path(), folderLivrat(), m));
    EXPECT_EQ(r.stare, RezultatPornire::Stare::Terminat);
    ASSERT_EQ(m.mesaje.size(), 1u);
    EXPECT_TRUE(m.mesaje[0].text.contains(Foldere::FisierSetari)) << m.mesaje[0].text.toStdString();
}

} // namespace
