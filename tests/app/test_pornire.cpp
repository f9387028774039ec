#include "app/Pornire.h"
#include "base/Ceas.h"
#include "base/Foldere.h"
#include "base/ServiciuFisiere.h"
#include "support/MesajeInregistrate.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QString Livrat = T(FEROLANTA_SURSA);

QString CaleBD(const QString& folder) {
    return ServiciuFisiere::CitesteIni(QDir(folder).filePath(Foldere::FisierSetari), T("Generale"), T("CaleBD"));
}
void ScrieCheie(const QTemporaryDir& tmp, const char* sectiune, const char* cheie, const QString& valoare) {
    ServiciuFisiere::ScrieIni(QDir(tmp.path()).filePath(Foldere::FisierSetari), QLatin1String(sectiune),
                              QLatin1String(cheie), valoare);
}

TEST(Pornire, PrimaPornireCreeazaBazaIarUrmatoareaNuIntreabaNimic) {
    QTemporaryDir tmp;
    const QString date = tmp.filePath(T("Ferolanta"));
    MesajeInregistrate m;
    Ceas::SeteazaAzi(QDate(2026, 11, 24));
    RezultatPornire r = PornesteBaza(date, Livrat, m);
    Ceas::SeteazaAzi(QDate());
    ASSERT_EQ(r.stare, RezultatPornire::Stare::Deschisa) << m.Texte().join(u'\n').toStdString();
    EXPECT_TRUE(QFile::exists(QDir(date).filePath(T("Ferolanta.db"))));
    EXPECT_TRUE(QFile::exists(QDir(date).filePath(T("bife.txt"))));
    EXPECT_EQ(CaleBD(date), date);
    EXPECT_EQ(r.setari.LunaSetata, 11);
    EXPECT_EQ(r.setari.AnSetat, 2026);
    r.bd.reset();
    EXPECT_EQ(PornesteBaza(date, Livrat, m).stare, RezultatPornire::Stare::Deschisa);
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'\n').toStdString();
}

// A named location without the database asks for another one and is never filled; an empty one becomes
// the program's folder; one out of reach ends the start.
TEST(Pornire, LocatiaBazeiDinSetari) {
    QTemporaryDir tmp;
    ScrieCheie(tmp, "Generale", "CaleBD", tmp.path());
    MesajeInregistrate m;
    m.raspunsuri = {true, false};
    EXPECT_EQ(PornesteBaza(tmp.path(), Livrat, m).stare, RezultatPornire::Stare::AlegeLocatie);
    EXPECT_EQ(PornesteBaza(tmp.path(), Livrat, m).stare, RezultatPornire::Stare::Terminat);
    EXPECT_EQ(m.Texte(MesajeInregistrate::Fel::Intrebare).size(), 2);
    EXPECT_FALSE(QFile::exists(tmp.filePath(T("Ferolanta.db"))));

    ScrieCheie(tmp, "Generale", "CaleBD", QString());
    m.raspunsuri = {false};
    PornesteBaza(tmp.path(), Livrat, m);
    EXPECT_EQ(CaleBD(tmp.path()), tmp.path());
    ScrieCheie(tmp, "Generale", "CaleBD", tmp.filePath(T("retea/lipsa")));
    m.mesaje.clear();
    EXPECT_EQ(PornesteBaza(tmp.path(), Livrat, m).stare, RezultatPornire::Stare::Terminat);
    EXPECT_EQ(m.mesaje.size(), 1u);
}

// A settings file that cannot be read (here a folder in its place) ends the start with a message.
TEST(Pornire, FisierDeSetariIlizibilOpresteCuMesaj) {
    QTemporaryDir tmp;
    ASSERT_TRUE(QDir(tmp.path()).mkdir(Foldere::FisierSetari));
    MesajeInregistrate m;
    RezultatPornire r;
    EXPECT_NO_THROW(r = PornesteBaza(tmp.path(), Livrat, m));
    EXPECT_EQ(r.stare, RezultatPornire::Stare::Terminat);
    ASSERT_EQ(m.mesaje.size(), 1u);
    EXPECT_TRUE(m.mesaje[0].text.contains(Foldere::FisierSetari)) << m.mesaje[0].text.toStdString();
}

} // namespace
