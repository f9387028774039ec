#include "cases/UiAdeverinte.h"
#include "cases/frmAddAct.h"
#include "cases/frmAddMembru.h"
#include "cases/frmIstoricAdv.h"
#include "ui/FormaDosar.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFormular.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QTreeWidget>

using namespace ElemPersoana;

namespace {

using FormaPersoana = FormaPeDosar;

ContextPersoana Context(int mod, int index = -1) {
    return {mod, index, LunaDosar, AnDosar};
}

// The person dialog: every person of the file goes through the controls and back as the core maps it; a
// new one is refused until its boxes are filled; Cancel leaves the working state alone.
TEST_P(FormaPersoana, DeschideSalveazaSiRenunta) {
    StareCerere s = dosar.Stare;
    for (int i = 0; i < 6; ++i) {
        SCOPED_TRACE(i);
        frmAddMembru f(Bd(), mesaje, s, Context(2, i));
        f.cmdOK->click();
        ASSERT_TRUE(f.ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
        EXPECT_EQ(f.IndexScris, i);
        const MembruCerere& citit = (*dosar.Stare.MatriceMembri)[size_t(i)];
        ExpectMembruEgal((*s.MatriceMembri)[size_t(i)], InMembru(DinMembru(citit), citit));
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(u'|').toStdString();

    const StareCerere inainte = s;
    frmAddMembru f(Bd(), mesaje, s, Context(1));
    Activa(f);
    Refuzat(f, f.cmdOK, "cboCNP");
    // A code of the list, typed and left: refused there and then, the focus back on the box.
    f.cboCNP->setFocus(Qt::TabFocusReason);
    f.cboCNP->setEditText((*s.MatriceMembri)[2].CNP);
    mesaje.mesaje.clear();
    f.txtMembru[txtNume]->setFocus(Qt::TabFocusReason);
    EXPECT_FALSE(mesaje.mesaje.empty());
    EXPECT_TRUE(FocusPe(f, "cboCNP"));
    EXPECT_EQ(s, inainte);

    f.cboCNP->setEditText(QStringLiteral("1800101400123"));
    f.txtMembru[txtNume]->setText(QStringLiteral("Dinu"));
    f.txtMembru[txtPrenume]->setText(QStringLiteral("Petre"));
    AlegeCheia(f.cboMembru[cboRudenie], 4);
    f.cmdOK->click();
    ASSERT_TRUE(f.ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_EQ(f.IndexScris, 6);
    ASSERT_EQ(s.MatriceMembri->size(), 7u);
    EXPECT_EQ(s.MatriceMembri->back().Nume, QStringLiteral("Dinu"));
    EXPECT_EQ(s.MatriceMembri->back().RudenieID, 4);

    const StareCerere dupa = s;
    frmAddMembru g(Bd(), mesaje, s, Context(2, 0));
    g.txtMembru[txtNume]->setText(QStringLiteral("Altul"));
    g.cmdCancel->click();
    EXPECT_FALSE(g.ESTE_OK);
    EXPECT_EQ(s, dupa);
}

// The certificate commands of the person dialog reach the certificate dialogs: one added through
// its editor comes into the grid and, at OK, into the person; the history shows the stored ones.
TEST_P(FormaPersoana, ComenzileAdeverintelorDeschidDialogurileLor) {
    StareCerere s = dosar.Stare;
    const std::vector<AdeverintaMembru> stocate = (*s.MatriceMembri)[0].Adeverinte;
    frmAddMembru f(Bd(), mesaje, s, Context(2, 0));
    int istoric = -1;
    ConecteazaAdeverinte(f, [&](QDialog& d) {
        if (auto* i = qobject_cast<frmIstoricAdv*>(&d)) {
            istoric = i->lvwIstoric->topLevelItemCount();
            return int(QDialog::Rejected);
        }
        auto& a = dynamic_cast<frmAddAct&>(d);
        AlegeCheia(a.cboTipAct, 3);
        a.txtNrAct->setText(QStringLiteral("S-9"));
        for (int i = 0; i < 3; ++i)
            a.dtpData[size_t(i)]->setData(QDate(2014, 9, 10 + i));
        a.cmdOK->click();
        return a.result();
    });
    f.cmdAddRand->click();
    EXPECT_EQ(f.Grid->rowCount(), int(stocate.size()) + 1);
    EXPECT_EQ((*s.MatriceMembri)[0].Adeverinte, stocate) << "the person changes only at its OK";
    f.cmdIstoricAdv->click();
    EXPECT_EQ(istoric, int(stocate.size()));
    f.cmdOK->click();
    ASSERT_TRUE(f.ESTE_OK);
    ASSERT_EQ((*s.MatriceMembri)[0].Adeverinte.size(), stocate.size() + 1);
    EXPECT_EQ((*s.MatriceMembri)[0].Adeverinte.back().NrAdev, QStringLiteral("S-9"));
}

// The certificate editor on a person's list: a row shown and changed, a new one refused until its
// kind is chosen, Cancel leaving the list as it was.
TEST_P(FormaPersoana, ActulPersoanei) {
    std::vector<AdeverintaMembru> acte = (*dosar.Stare.MatriceMembri)[0].Adeverinte;
    const AdeverintaMembru primul = acte[0];
    {
        frmAddAct f(Bd(), mesaje, acte, 0);
        EXPECT_EQ(CheieAleasa(f.cboTipAct), primul.TipAdeverinta);
        EXPECT_EQ(f.txtNrAct->text(), primul.NrAdev);
        EXPECT_EQ(f.dtpData[2]->data(), primul.DataExpAdev);
        f.txtNrAct->setText(QStringLiteral("A-18"));
        f.cmdOK->click();
        ASSERT_TRUE(f.ESTE_OK);
    }
    AdeverintaMembru asteptat = primul;
    asteptat.NrAdev = QStringLiteral("A-18");
    EXPECT_EQ(acte[0], asteptat);

    const auto inainte = acte;
    frmAddAct f(Bd(), mesaje, acte, -1);
    f.show();
    Refuzat(f, f.cmdOK, "cboTipAct");
    AlegeCheia(f.cboTipAct, 4);
    f.txtNrAct->setText(QStringLiteral("M-1"));
    f.cmdCancel->click();
    EXPECT_EQ(acte, inainte);

    frmAddAct g(Bd(), mesaje, acte, -1);
    AlegeCheia(g.cboTipAct, 4);
    g.txtNrAct->setText(QStringLiteral("M-1"));
    for (int i = 0; i < 3; ++i)
        g.dtpData[size_t(i)]->setData(QDate(2014, 11, 3 + i));
    g.cmdOK->click();
    ASSERT_TRUE(g.ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_EQ(g.Index(), int(inainte.size()));
    ASSERT_EQ(acte.size(), inainte.size() + 1);
    EXPECT_EQ(acte.back().NrAdev, QStringLiteral("M-1"));
}

// The leave reason: chosen with an amount, refused on an amount that is no number, none on Cancel.
TEST_P(FormaPersoana, MotivulIesirii) {
    frmMotiv f(Bd(), mesaje);
    f.show();
    AlegeCheia(f.cboMembru[0], 2);
    AlegeCheia(f.cboMembru[1], 1);
    f.chkVenit->click();
    f.txtMembru->setText(QStringLiteral("12 lei"));
    Refuzat(f, f.cmdOK, "txtMembru");
    EXPECT_FALSE(f.Rezultat);
    f.txtMembru->setText(QStringLiteral("12,5"));
    f.cmdOK->click();
    ASSERT_TRUE(f.Rezultat);
    EXPECT_EQ(f.Rezultat->MotivID, 2);
    EXPECT_EQ(f.Rezultat->Suma, B("12.5"));
    EXPECT_EQ(f.Rezultat->TipValuta, 1);

    frmMotiv g(Bd(), mesaje);
    AlegeCheia(g.cboMembru[0], 3);
    g.cmdCancel->click();
    EXPECT_FALSE(g.Rezultat);
}

PE_AMBELE_MOTOARE(FormaPersoana);

} // namespace
