#include "app/frmGeneral.h"
#include "app/frmLogin.h"
#include "app/frmOptiuni.h"
#include "app/frmParola.h"
#include "base/Foldere.h"
#include "base/Parola.h"
#include "base/ServiciuFisiere.h"
#include "store/Program.h"
#include "ui/FormaDosar.h"
#include "ui/UiFormular.h"
#include "ui/UiFunctii.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

namespace {

TEST(Login, ParolaGresitaSeSpuneSiSeSelecteaza) {
    MesajeInregistrate m;
    frmLogin f(Parola::Hash(QStringLiteral("corect")), m);
    f.show();
    f.txtPassword->setText(QStringLiteral("gresit"));
    QTest::keyClick(f.txtPassword, Qt::Key_Return);
    EXPECT_FALSE(f.LoginSucceeded);
    EXPECT_EQ(m.mesaje.size(), 1u);
    EXPECT_EQ(f.txtPassword->selectedText(), QStringLiteral("gresit"));
    f.txtPassword->setText(QStringLiteral("corect"));
    f.cmdOK->click();
    EXPECT_TRUE(f.LoginSucceeded);
    EXPECT_EQ(f.result(), QDialog::Accepted);
}

TEST(Locatie, ONouaLocatieSeScrieIarUnaGoalaNu) {
    QTemporaryDir dir;
    const QString ini = QDir(dir.path()).filePath(Foldere::FisierSetari);
    MesajeInregistrate m;
    frmGeneral f(ini, QStringLiteral("/vechi"), m);
    EXPECT_EQ(f.Txt->text(), QStringLiteral("/vechi"));
    f.Txt->setText(QStringLiteral("   "));
    f.cmdOK->click();
    EXPECT_FALSE(QFile::exists(ini));
    frmGeneral g(ini, QStringLiteral("/vechi"), m);
    g.Txt->setText(QStringLiteral("/srv/date primarie"));
    g.cmdOK->click();
    EXPECT_EQ(IncarcaSetari(ini, false).CaleBD, QStringLiteral("/srv/date primarie"));
}

// The password is kept in the settings file beside the database, not in the program's folder.
using ParolaProgramului = FormaPeDosar;

TEST_P(ParolaProgramului, SeScrieLangaBazaDeDate) {
    QTemporaryDir dirProgram;
    Program p{Bd(), setari, dirProgram.path()};
    const QString langaBaza = QDir(Locatie().caleBD).filePath(Foldere::FisierSetari);
    frmParola f(p, mesaje);
    f.txtPassNew->setText(QStringLiteral("Branesti1"));
    f.txtPassRenew->setText(QStringLiteral("Branesti2"));
    f.cmdOK->click();
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_FALSE(QFile::exists(langaBaza));
    f.txtPassRenew->setText(QStringLiteral("Branesti1"));
    f.cmdOK->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_TRUE(Parola::Corespunde(IncarcaSetari(langaBaza, false).Parola, QStringLiteral("Branesti1")));
    EXPECT_EQ(setari.Parola, IncarcaSetari(langaBaza, false).Parola);
    EXPECT_FALSE(QFile::exists(p.FisierSetari()));

    frmParola g(p, mesaje);
    g.txtPassOld->setText(QStringLiteral("Branesti1"));
    g.cmdReset->click();
    EXPECT_TRUE(setari.Parola.isEmpty());
    EXPECT_TRUE(IncarcaSetari(langaBaza, false).Parola.isEmpty());
}

PE_AMBELE_MOTOARE(ParolaProgramului);

// The options: what the controls show is what OK stores, in the settings and in their file; a
// control changed reaches both; Cancel writes nothing.
TEST(Optiuni, OKScrieCeArataControaleleIarRenuntaNimic) {
    QTemporaryDir dir;
    const QString ini = QDir(dir.path()).filePath(Foldere::FisierSetari);
    MesajeInregistrate m;
    // The file as the program reads it at start; AfisCereri is forced on there whatever is stored.
    const auto citite = [&] {
        Setari c = IncarcaSetari(ini, false);
        c.AfisCereri = false;
        return c;
    };
    Setari pornire;
    pornire.NrCerereAnexa3 = ListaNrCerereAnexa3().back().text;
    pornire.FontName0 = QStringLiteral("DejaVu Serif");
    pornire.FontSize0 = 12;
    pornire.FontB0 = pornire.FontU0 = true;
    pornire.AfisCereri = false;
    pornire.Anexa3 = QStringLiteral("A3.xls");
    pornire.StrSat = QStringLiteral("Satul");
    pornire.ReteaSetat = pornire.Motiv = pornire.NotificareActe = true;
    pornire.HeightRowBorderou = 20;
    pornire.AppWord = 3;
    pornire.DataCerereTiparita = 2;
    pornire.ServerCerere = QStringLiteral("https://primarie.example/");
    pornire.CuloareVenit = QStringLiteral("255");

    Setari s = pornire;
    {
        frmOptiuni f(s, ini, m);
        Gaseste<QCheckBox>(f, QStringLiteral("chkReteaSetat"))->setChecked(false);
        Gaseste<QLineEdit>(f, QStringLiteral("txtAnexa3"))->setText(QStringLiteral("Alt.xls"));
        f.AlegeCuloare(QColor(1, 2, 3));
        Gaseste<QPushButton>(f, QStringLiteral("cmdCancel"))->click();
    }
    EXPECT_TRUE(s == pornire);
    EXPECT_FALSE(QFile::exists(ini));

    frmOptiuni f(s, ini, m);
    f.OK();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_TRUE(s == pornire) << "every control gives back what it showed";
    EXPECT_TRUE(citite() == pornire);

    frmOptiuni g(s, ini, m);
    Gaseste<QCheckBox>(g, QStringLiteral("chkMotiv"))->setChecked(false);
    AlegeCheia(Gaseste<QComboBox>(g, QStringLiteral("cboAppWord")), 2);
    Gaseste<QLineEdit>(g, QStringLiteral("txtStrSat"))->setText(QStringLiteral("Strada"));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPointSize(14);
    g.AlegeFont(font);
    Gaseste<QPushButton>(g, QStringLiteral("cmdDelColor"))->click();
    g.OK();
    EXPECT_TRUE(m.mesaje.empty()) << S(m.Texte().join(u'|'));
    Setari asteptat = pornire;
    asteptat.Motiv = false;
    asteptat.AppWord = 2;
    asteptat.StrSat = QStringLiteral("Strada");
    asteptat.FontName0 = QStringLiteral("DejaVu Sans");
    asteptat.FontSize0 = 14;
    asteptat.FontB0 = asteptat.FontU0 = false;
    asteptat.CuloareVenit.clear();
    EXPECT_TRUE(s == asteptat);
    EXPECT_TRUE(citite() == asteptat);
}

TEST(UiFunctiiFont, FamiliileInstalateFaraMajuscule) {
    const QStringList familii = QFontDatabase::families();
    if (familii.isEmpty()) GTEST_SKIP() << "niciun font instalat";
    EXPECT_TRUE(FontInstalat(familii.front().toUpper()));
    EXPECT_TRUE(FontInstalat(familii.front().toLower()));
    EXPECT_FALSE(FontInstalat(familii.front() + QStringLiteral(" Inexistent 7f3a")));
}

} // namespace
