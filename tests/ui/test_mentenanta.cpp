#include "maintenance/Copii.h"
#include "maintenance/frmImport.h"
#include "maintenance/frmMentenanta.h"
#include "maintenance/frmRestaurare.h"
#include "reference/frmAddLuna.h"
#include "reference/frmGenerareAn.h"
#include "store/Program.h"
#include "ui/FormaDosar.h"
#include "ui/UiFormular.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace {

using Ferestre = FormaPeDosar;

// A tool's button asks first: No changes nothing, Yes changes and tells the count; a tool that fails
// tells why and changes nothing. The tools without tables can't be pressed.
TEST_P(Ferestre, Mentenanta) {
    Program program{Bd(), setari, Locatie().caleBD};
    setari.CaleBD = Locatie().caleBD;
    ExecutaCu(Bd(), QStringLiteral("UPDATE Cereri SET Stare = 3 WHERE CerereID = ?"), cerereID);
    frmMentenanta f(program, mesaje);
    Activa(f);
    for (QPushButton* b : {f.cmdNrCerere, f.cmdExecuta, f.cmdImport, f.Command1})
        EXPECT_FALSE(b->isEnabled()) << b->objectName().toStdString();

    mesaje.raspunsuri = {false};
    f.cmdRecalculStare->click();
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 3")), 1);
    mesaje.mesaje.clear();
    f.cmdRecalculStare->click();
    EXPECT_EQ(mesaje.Texte().value(1), QStringLiteral("A fost modifcat Stare = 5 la 1 cereri"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 5")), 1);

    // Broken thresholds stop the 1 November 2014 tool after its question, with nothing changed.
    setari.LunaSetata = 11;
    setari.AnSetat = 2014;
    ExecutaCu(Bd(), QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"), QStringLiteral("x"),
              QStringLiteral("PRAGURI_VENIT"));
    ExecutaCu(Bd(), QStringLiteral("UPDATE Cereri SET Stare = 2 WHERE CerereID = ?"), cerereID);
    mesaje.mesaje.clear();
    f.cmdCereri->click();
    EXPECT_FALSE(mesaje.Texte(Mesaje::Fel::Critic).isEmpty()) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 2")), 1);
    EXPECT_TRUE(f.isVisible());
}

// The calendar: a doubled month is told on opening; a year generated shows in the list; a month added
// through its dialog (refused first with the focus on the year), changed, and deleted after the question.
TEST_P(Ferestre, GenerareAn) {
    Program program{Bd(), setari, Locatie().caleBD};
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO StatePlata (StatPlataID, An, Luna) VALUES (1000, 2013, 1)"));
    frmGenerareAn f(program, mesaje);
    Activa(f);
    EXPECT_EQ(mesaje.Texte().size(), 1) << mesaje.Texte().join(u'|').toStdString();

    f.txtAn->setText(QStringLiteral("2040"));
    f.cmdGenerare->click();
    EXPECT_EQ(f.lvwLuni->topLevelItemCount(), 12);
    const int toate = [&] {
        f.chkTotiAnii->setChecked(true);
        return f.lvwLuni->topLevelItemCount();
    }();
    EXPECT_EQ(toate, Numar(QStringLiteral("SELECT COUNT(*) FROM StatePlata")));
    f.chkTotiAnii->setChecked(false);

    bool refuzat = false;
    f.ArataModal = [&](QDialog& d) {
        auto& a = dynamic_cast<frmAddLuna&>(d);
        Activa(a);
        a.txtAddLuna->setText(QStringLiteral("2010"));
        Refuzat(a, a.cmdOK, "txtAddLuna");
        refuzat = a.isVisible();
        a.txtAddLuna->setText(QStringLiteral("2041"));
        AlegeCheia(a.cboLuna, 4);
        a.cmdOK->click();
        return a.result();
    };
    f.cmdAdd->click();
    EXPECT_TRUE(refuzat);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM StatePlata WHERE An = 2041 AND Luna = 4")), 1);

    f.txtAn->setText(QStringLiteral("2041"));
    f.Reincarca();
    ASSERT_EQ(f.lvwLuni->topLevelItemCount(), 1);
    f.lvwLuni->setCurrentItem(f.lvwLuni->topLevelItem(0));
    f.ArataModal = [&](QDialog& d) {
        auto& a = dynamic_cast<frmAddLuna&>(d);
        EXPECT_EQ(CheieAleasa(a.cboLuna), 4);
        AlegeCheia(a.cboLuna, 5);
        a.cmdOK->click();
        return a.result();
    };
    f.cmdEdit->click();
    EXPECT_EQ(f.lvwLuni->topLevelItem(0)->text(1), QStringLiteral("5"));

    mesaje.raspunsuri = {false, true};
    f.cmdDelete->click();
    EXPECT_EQ(f.lvwLuni->topLevelItemCount(), 1);
    f.cmdDelete->click();
    EXPECT_EQ(f.lvwLuni->topLevelItemCount(), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM StatePlata WHERE An = 2041")), 0);
}

// The copies are listed newest first; the chosen one is handed back only after the question is answered Yes.
TEST_P(Ferestre, Restaurare) {
    Copii::FaCopie(Locatie(), QDateTime(QDate(2026, 11, 24), QTime(8, 0)));
    const QString noua = Copii::FaCopie(Locatie(), QDateTime(QDate(2026, 11, 25), QTime(8, 0)));
    frmRestaurare f(Locatie(), mesaje);
    Activa(f);
    ASSERT_EQ(f.lvwCopii->topLevelItemCount(), 2);
    mesaje.raspunsuri = {false};
    f.cmdRestaureaza->click();
    EXPECT_TRUE(f.Aleasa.isEmpty());
    EXPECT_TRUE(f.isVisible());
    f.cmdRestaureaza->click();
    EXPECT_EQ(f.Aleasa, noua);
    EXPECT_EQ(f.result(), QDialog::Accepted);
}

// The import: without a source it keeps the dialog open on the source box; into a database holding
// requests it is refused with the error shown; into one without, it imports and shows its report.
TEST_P(Ferestre, Import) {
    frmImport f(Bd(), mesaje, FolderDate());
    Activa(f);
    f.cmdOK->click();
    EXPECT_TRUE(f.txtSursa->hasFocus());
    EXPECT_EQ(mesaje.Texte().size(), 1);

    f.txtSursa->setText(QStringLiteral(FEROLANTA_TESTE_DATE "/import/noua"));
    mesaje.mesaje.clear();
    f.cmdOK->click();
    EXPECT_FALSE(mesaje.Texte(Mesaje::Fel::Critic).isEmpty()) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_FALSE(f.Importat());
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(f.cmdOK->isEnabled());

    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Cereri"));
    mesaje.mesaje.clear();
    f.cmdOK->click();
    EXPECT_TRUE(f.Importat()) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 2);
    EXPECT_TRUE(f.txtRaport->toPlainText().contains(QStringLiteral("Adeverinte")));
    EXPECT_TRUE(f.isVisible());
}

PE_AMBELE_MOTOARE(Ferestre);

} // namespace
