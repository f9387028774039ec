#include "base/Foldere.h"
#include "base/Parola.h"
#include "store/Program.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "reference/frmChLunaAn.h"
#include "app/frmGeneral.h"
#include "app/frmLogin.h"
#include "app/frmParola.h"
#include "support/BazaTest.h"

#include <QDir>
#include <QLineEdit>
#include <QTest>

namespace {

TEST(Login, ParolaGresitaSeSpuneSiSeSelecteaza) {
    MesajeInregistrate m;
    frmLogin f(Parola::Hash(QStringLiteral("corect")), m);
    f.show();
    f.txtPassword->setText(QStringLiteral("gresit"));
    QTest::keyClick(f.txtPassword, Qt::Key_Return);
    EXPECT_FALSE(f.LoginSucceeded);
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral("Parola gresita, mai incercati!")});
    EXPECT_EQ(f.txtPassword->selectedText(), QStringLiteral("gresit"));
    f.txtPassword->setText(QStringLiteral("corect"));
    f.cmdOK_Click();
    EXPECT_TRUE(f.LoginSucceeded);
    EXPECT_EQ(f.result(), QDialog::Accepted);
}

class Dialoguri : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        setari.CaleBD = Locatie().caleBD;
        program = std::make_unique<Program>(Program{Bd(), setari, dirProgram.path()});
    }
    QTemporaryDir dirProgram;
    Setari setari;
    std::unique_ptr<Program> program;
};

TEST_P(Dialoguri, LunaDeLucruTrebuieSaFieInCalendar) {
    setari.LunaSetata = 3;
    setari.AnSetat = 2024;
    frmChLunaAn f(*program, mesaje);
    EXPECT_EQ(f.txtLuna->text(), QStringLiteral("3"));
    EXPECT_EQ(f.txtAn->text(), QStringLiteral("2024"));
    struct {
        const char* luna;
        const char* an;
        const char* mesaj;
    } refuzuri[] = {
        {"13", "abc", "Luna incorecta!"},        {"0", "2024", "Luna incorecta!"},
        {"5", "2007", "An incorect!"},           {"5", "2501", "An incorect!"},
        {"5", "2012", "An sau Luna incorecta!"}, {"1", "2100", "An sau Luna incorecta!"},
    };
    for (const auto& r : refuzuri) {
        mesaje.mesaje.clear();
        f.txtLuna->setText(QString::fromLatin1(r.luna));
        f.txtAn->setText(QString::fromLatin1(r.an));
        f.cmdOK_Click();
        EXPECT_EQ(mesaje.Texte(), QStringList{QString::fromLatin1(r.mesaj)}) << r.luna << "/" << r.an;
        EXPECT_EQ(setari.LunaSetata, 3);
    }
    f.txtLuna->setText(QStringLiteral("12"));
    f.txtAn->setText(QStringLiteral("2013"));
    f.cmdOK_Click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(setari.LunaSetata, 12);
    EXPECT_EQ(setari.AnSetat, 2013);
    EXPECT_EQ(
        ServiciuFisiere::CitesteIni(program->FisierSetari(), QStringLiteral("Setari"), QStringLiteral("LunaSetata")),
        QStringLiteral("12"));
    EXPECT_EQ(ServiciuFisiere::CitesteIni(program->FisierSetari(), QStringLiteral("Setari"), QStringLiteral("AnSetat")),
              QStringLiteral("2013"));
}

TEST_P(Dialoguri, ParolaSeScrieLangaBazaDeDate) {
    frmParola f(*program, mesaje);
    f.txtPassNew->setText(QStringLiteral("  "));
    f.txtPassRenew->setText(QStringLiteral("  "));
    f.cmdOK_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Parola noua inexistenta!")});
    f.txtPassNew->setText(QStringLiteral("Branesti1"));
    f.txtPassRenew->setText(QStringLiteral("Branesti1"));
    f.cmdOK_Click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    const QString langaBaza = QDir(Locatie().caleBD).filePath(Foldere::FisierSetari);
    const QString stocata = ServiciuFisiere::CitesteIni(langaBaza, QStringLiteral("Generale"), QStringLiteral("pass"));
    EXPECT_TRUE(Parola::Corespunde(stocata, QStringLiteral("Branesti1")));
    EXPECT_EQ(setari.Parola, stocata);
    EXPECT_FALSE(QFile::exists(program->FisierSetari())) << "the program folder's file is not the one written";

    frmParola sterge(*program, mesaje);
    mesaje.mesaje.clear();
    sterge.txtPassOld->setText(QStringLiteral("altceva"));
    sterge.cmdReset_Click();
    EXPECT_EQ(mesaje.Texte().size(), 1);
    sterge.txtPassOld->setText(QStringLiteral("Branesti1"));
    sterge.cmdReset_Click();
    EXPECT_TRUE(setari.Parola.isEmpty());
    EXPECT_TRUE(ServiciuFisiere::CitesteIni(langaBaza, QStringLiteral("Generale"), QStringLiteral("pass")).isEmpty());
}

PE_AMBELE_MOTOARE(Dialoguri);

TEST(Locatie, OLocatieNouaSeScrieSiProgramulSeInchide) {
    QTemporaryDir dir;
    const QString ini = QDir(dir.path()).filePath(Foldere::FisierSetari);
    MesajeInregistrate m;
    {
        frmGeneral f(ini, QStringLiteral("/vechi"), m);
        EXPECT_EQ(f.Txt->text(), QStringLiteral("/vechi"));
        f.Txt->setText(QStringLiteral("   "));
        f.cmdOK_Click();
        EXPECT_FALSE(QFile::exists(ini)) << "a blank location is not written";
    }
    frmGeneral f(ini, QStringLiteral("/vechi"), m);
    f.Txt->setText(QStringLiteral("/srv/date primarie"));
    f.cmdOK_Click();
    EXPECT_EQ(ServiciuFisiere::CitesteIni(ini, QStringLiteral("Generale"), QStringLiteral("CaleBD")),
              QStringLiteral("/srv/date primarie"));
    const QString inchide = QStringLiteral("Programul se va inchide. Dati clic pe OK si reporniti-l din nou");
    EXPECT_EQ(m.Texte(), (QStringList{inchide, inchide}));
}

} // namespace
