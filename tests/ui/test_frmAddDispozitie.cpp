#include "base/Eroare.h"
#include "cases/Anchete.h"
#include "cases/frmAddAnchete.h"
#include "cases/frmAddDispozitie.h"
#include "cases/frmAnexa2.h"
#include "ui/FormaDosar.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFormular.h"

#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

using FormaDispozitii = FormaPeDosar;

TEST_P(FormaDispozitii, DispozitiaDeschideSalveazaSiRenunta) {
    {
        frmAddDispozitie f(Bd(), mesaje, 1, cerereID, 0);
        ASSERT_TRUE(f.Deschisa());
        f.txtDispoz[0]->setText(QStringLiteral("76"));
        f.cmdCancel->click();
        EXPECT_FALSE(f.ESTE_OK);
    }
    EXPECT_TRUE(Tabela("Dispozitii").isEmpty());

    // A new one: refused without a kind, and the kind chosen shows its parts.
    frmAddDispozitie f(Bd(), mesaje, 1, cerereID, 0);
    f.show();
    AlegeCheia(f.cboDispoz[0], std::nullopt);
    Refuzat(f, f.cmdOK, "cboDispoz_0");
    AlegeCheia(f.cboDispoz[0], 3);
    EXPECT_FALSE(f.picMiddle->isVisibleTo(&f));
    AlegeCheia(f.cboDispoz[0], 1);
    EXPECT_TRUE(f.picMiddle->isVisibleTo(&f));
    f.txtDispoz[0]->setText(QStringLiteral("77"));
    f.cmdOK->click();
    ASSERT_TRUE(f.ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(Tabela("Dispozitii").size(), 1);

    // The stored one: shown as written, and changed.
    frmAddDispozitie g(Bd(), mesaje, 2, 0, f.DispozitieID());
    ASSERT_TRUE(g.Deschisa());
    EXPECT_EQ(g.txtDispoz[0]->text(), QStringLiteral("77"));
    EXPECT_EQ(CheieAleasa(g.cboDispoz[0]), 1);
    EXPECT_EQ(g.dtpData->date(), Azi);
    g.txtDispoz[0]->setText(QStringLiteral("78"));
    g.cmdOK->click();
    ASSERT_TRUE(g.ESTE_OK);
    EXPECT_EQ(
        NumarRanduri(Bd(), QStringLiteral("SELECT NrDisp FROM Dispozitii WHERE DispozitieID = ?"), f.DispozitieID()),
        78);
}

// The bulk generation and the choice of what to print, from the working month.
TEST_P(FormaDispozitii, Anexa2GenereazaSauAlege) {
    frmAnexa2 f(Bd(), mesaje, LunaDosar, AnDosar);
    f.show();
    EXPECT_EQ(CheieAleasa(f.cboLuna), LunaDosar);
    Refuzat(f, f.cmdGenerate, "cboTipCerere");
    AlegeCheia(f.cboTipCerere, 1);
    AlegeCheia(f.cboDispoz_1, 1);
    f.txtDispoz[0]->setText(QStringLiteral("500"));
    f.txtDispoz[1]->setText(QStringLiteral("2015"));

    // A run that fails is told, and the dialog stays for another try.
    const auto implicit = f.RuleazaGenerarea;
    f.RuleazaGenerarea = [](ParametriGenerare) -> RezultatGenerare { throw Eroare(QStringLiteral("disc plin")); };
    mesaje.mesaje.clear();
    f.cmdGenerate->click();
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Critic).size(), 1);
    EXPECT_TRUE(f.isVisible());
    f.RuleazaGenerarea = implicit;
    f.cmdGenerate->click();
    EXPECT_EQ(f.Generate, 1);
    EXPECT_FALSE(f.ESTE_OK);
    EXPECT_FALSE(f.isVisible());
    EXPECT_EQ(Tabela("Dispozitii").size(), 1);

    frmAnexa2 g(Bd(), mesaje, LunaDosar, AnDosar);
    AlegeCheia(g.cboCerere[0], 1);
    g.txtDispozitieMin->setText(QStringLiteral("1"));
    g.cmdOK->click();
    ASSERT_TRUE(g.ESTE_OK);
    EXPECT_EQ(g.Selectie.Actiune, 1);
    EXPECT_EQ(g.Selectie.Luna, LunaDosar);
    EXPECT_EQ(g.Selectie.NrMin, QStringLiteral("1"));
}

TEST_P(FormaDispozitii, AnchetaDeschideSalveazaSiRenunta) {
    // The request's count as the inquiry finds it, so that no warning comes before the refusals.
    int copii = 0;
    {
        frmAddAnchete f(Bd(), mesaje, 1, cerereID, 0, 0);
        copii = f.lblNrCopii->text().toInt();
        EXPECT_GT(copii, 0);
        f.txtCerere[0]->setText(QStringLiteral("Ionescu Maria"));
        f.cmdCancel->click();
        EXPECT_FALSE(f.ESTE_OK);
    }
    EXPECT_TRUE(Tabela("Anchete").isEmpty());

    frmAddAnchete f(Bd(), mesaje, 1, cerereID, 0, copii);
    f.show();
    EXPECT_EQ(f.dtpData->data(), Azi);
    EXPECT_FALSE(f.lblDataExp->text().isEmpty()) << "the expiry is computed on opening";
    Refuzat(f, f.cmdOK, "txtCerere_0");
    f.txtCerere[0]->setText(QStringLiteral("Ionescu Maria"));
    f.txtCerere[1]->setText(QStringLiteral("3"));
    f.txtCerere[2]->setText(QStringLiteral("54.5"));
    for (int i : {0, 1, 3})
        AlegeCheia(f.cboCerere[size_t(i)], 1);
    // A date without children empties the expiry.
    f.dtpData->setData(QDate(2040, 1, 1));
    EXPECT_TRUE(f.lblDataExp->text().isEmpty());
    f.dtpData->setData(Azi);
    mesaje.mesaje.clear();
    f.cmdOK->click();
    ASSERT_TRUE(f.ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
    const auto a = Anchete::Citeste(Bd(), f.AnchetaID());
    ASSERT_TRUE(a);
    EXPECT_EQ(a->CerereID, cerereID);
    EXPECT_EQ(a->Intocmitor, QStringLiteral("Ionescu Maria"));

    frmAddAnchete g(Bd(), mesaje, 2, cerereID, f.AnchetaID(), copii);
    EXPECT_EQ(g.txtCerere[0]->text(), QStringLiteral("Ionescu Maria"));
    EXPECT_EQ(CheieAleasa(g.cboCerere[3]), 1);
    g.txtCerere[0]->setText(QStringLiteral("Vasilescu Ana"));
    g.cmdOK->click();
    ASSERT_TRUE(g.ESTE_OK);
    EXPECT_EQ(Anchete::Citeste(Bd(), f.AnchetaID())->Intocmitor, QStringLiteral("Vasilescu Ana"));
    EXPECT_EQ(Tabela("Anchete").size(), 1);
}

PE_AMBELE_MOTOARE(FormaDispozitii);

} // namespace
