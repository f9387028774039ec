#include "cases/frmISR.h"
#include "reference/Barem.h"
#include "reference/Isr.h"
#include "reference/PraguriVenit.h"
#include "reference/frmBaremBun.h"
#include "ui/FormaDosar.h"

#include <QLineEdit>
#include <QPushButton>

namespace {

using BaremIsr = FormaPeDosar;

// The scale window: a zero box refuses OK with the focus on it, the thresholds are saved on their own
// and a refused pair changes nothing, and OK writes the boxes and closes.
TEST_P(BaremIsr, NivelurileSiPragurile) {
    frmBaremBun f(Bd(), mesaje);
    Activa(f);
    EXPECT_EQ(B(S(f.Txt[5]->text()).c_str()), B("0.3")) << "kind 1, bracket 1.06, two children";
    EXPECT_EQ(f.txtPrag1->text(), T("210.2"));

    f.Txt[5]->setText(T("0"));
    f.cmdOK->click();
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.focusWidget(), f.Txt[5]);

    mesaje.mesaje.clear();
    f.txtPrag2->setText(T("0"));
    f.cmdSave->click();
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_EQ(PraguriVenit(Bd(), mesaje), T("210.2|557.03"));
    f.txtPrag2->setText(T("600,5"));
    f.cmdSave->click();
    EXPECT_EQ(PraguriVenit(Bd(), mesaje), T("210.2|600.5"));
    EXPECT_TRUE(f.isVisible());

    f.Txt[5]->setText(T("0.35"));
    f.cmdOK->click();
    EXPECT_EQ(f.result(), QDialog::Accepted) << S(mesaje.Texte().join(u'|'));
    EXPECT_EQ(CitesteNivele(Bd()).Barem[5], T("0.35"));
}

// The ISR window: a value below 1 refuses OK with the focus on the value; a good one is stored, the
// paying requests are counted in the closing message and the window closes.
TEST_P(BaremIsr, ValoareaIsr) {
    ExecutaCu(Bd(), T("UPDATE Cereri SET Stare = ?"), 2);
    frmISR f(Bd(), mesaje);
    Activa(f);
    EXPECT_EQ(f.txtValoare->text() + u'.' + f.txtZecimale->text(), T("525.500"));

    f.txtValoare->setText(T("0"));
    f.cmdOK->click();
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.focusWidget(), f.txtValoare);
    EXPECT_EQ(CitesteIsr(Bd()), T("525.5"));

    mesaje.mesaje.clear();
    f.txtValoare->setText(T("600"));
    f.txtZecimale->setText(T("75"));
    f.cmdOK->click();
    EXPECT_EQ(f.result(), QDialog::Accepted) << S(mesaje.Texte().join(u'|'));
    EXPECT_EQ(CitesteIsr(Bd()), T("600.75"));
    EXPECT_EQ(mesaje.Texte().last(), T("A fost recalculat cuantumul pentru 1 cereri."));
}

PE_AMBELE_MOTOARE(BaremIsr);

} // namespace
