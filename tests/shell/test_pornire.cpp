#include "shell/Foldere.h"
#include "shell/Pornire.h"
#include "shell/ServiciuFisiere.h"
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
    RezultatPornire r = PornesteBaza(date, folderLivrat(), m);
    ASSERT_EQ(r.stare, RezultatPornire::Stare::Deschisa) << m.Texte().join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(QFile::exists(QDir(date).filePath(QStringLiteral("Ferolanta.db"))));
    EXPECT_TRUE(QFile::exists(QDir(date).filePath(QStringLiteral("bife.txt"))));
    const QString ini = QDir(date).filePath(Foldere::FisierSetari);
    EXPECT_EQ(ServiciuFisiere::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD")), date);

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

} // namespace
