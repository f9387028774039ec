#include "base/ServiciuFisiere.h"
#include "reference/DateReferinta.h"
#include "reference/frmAdMotive.h"
#include "reference/frmAdSate.h"
#include "reference/frmChLunaAn.h"
#include "reference/frmDatePrimarie2.h"
#include "reference/frmMotive.h"
#include "reference/frmSate.h"
#include "store/Program.h"
#include "ui/FormaDosar.h"
#include "ui/UiFormular.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

namespace {

using Referinte = FormaPeDosar;

QStringList Coloana(const QTreeWidget* l, int c) {
    QStringList r;
    for (int i = 0; i < l->topLevelItemCount(); ++i)
        r << l->topLevelItem(i)->text(c);
    return r;
}

TEST_P(Referinte, DatelePrimariei) {
    {
        frmDatePrimarie2 f(Bd(), mesaje);
        Activa(f);
        Refuzat(f, f.cmdOK, "txtText_0");
        // Enter moves on as Tab does, and doesn't press OK.
        QTest::keyClick(f.txtText[0], Qt::Key_Return);
        EXPECT_EQ(QApplication::focusWidget(), f.txtText[1]);
        EXPECT_TRUE(f.isVisible());
        for (size_t i = 0; i < f.txtText.size(); ++i)
            f.txtText[i]->setText(QStringLiteral("Valoare %1").arg(i).left(f.txtText[i]->maxLength()));
        AlegeCheia(f.cbo, 2);
        f.cmdCancel->click();
    }
    EXPECT_TRUE(Tabela("DatePrimarie").isEmpty());

    frmDatePrimarie2 f(Bd(), mesaje);
    for (size_t i = 0; i < f.txtText.size(); ++i)
        f.txtText[i]->setText(QStringLiteral("Valoare %1").arg(i).left(f.txtText[i]->maxLength()));
    AlegeCheia(f.cbo, 2);
    f.cmdOK->click();
    EXPECT_EQ(f.result(), QDialog::Accepted) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_EQ(Tabela("DatePrimarie").size(), 1);

    // Opened again, it shows the row as written.
    frmDatePrimarie2 g(Bd(), mesaje);
    for (size_t i = 0; i < g.txtText.size(); ++i)
        EXPECT_EQ(g.txtText[i]->text(), f.txtText[i]->text()) << i;
    EXPECT_EQ(CheieAleasa(g.cbo), 2);
}

// The streets: added and changed through their dialog (refused without a name), a Cancel writing
// nothing, the delete asking first; the key sorts as a number, the names whatever their case.
TEST_P(Referinte, SateSiStrazi) {
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Strazi (StradaID, Denumire) VALUES (10, 'alba')"));
    frmSate f(Bd(), mesaje);
    QTreeWidget* l = f.lvwSate;
    const int n = l->topLevelItemCount();
    ASSERT_GE(n, 2) << "the street of the case file and one more";
    l->sortItems(0, Qt::AscendingOrder);
    EXPECT_EQ(Coloana(l, 0).last(), QStringLiteral("10"));
    l->sortItems(1, Qt::AscendingOrder);
    EXPECT_EQ(Coloana(l, 1).first(), QStringLiteral("alba"));
    const QStringList inainte = Tabela("Strazi");

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdSate&>(d);
        e.txtDenumire->setText(QStringLiteral("Fantanii"));
        e.cmdCancel->click();
        return e.result();
    };
    f.cmdAdd->click();
    f.cmdEdit->click();
    EXPECT_EQ(Tabela("Strazi"), inainte);

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdSate&>(d);
        e.show();
        Refuzat(e, e.cmdOK, "txtDenumire");
        e.txtDenumire->setText(QStringLiteral("Fantanii"));
        e.txtCodPostal->setText(QStringLiteral("077036"));
        e.cmdOK->click();
        return e.result();
    };
    f.cmdAdd->click();
    ASSERT_EQ(l->topLevelItemCount(), n + 1);
    EXPECT_EQ(l->currentItem()->text(1), QStringLiteral("Fantanii"));
    EXPECT_EQ(Tabela("Strazi").size(), inainte.size() + 1);

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdSate&>(d);
        EXPECT_EQ(e.txtCodPostal->text(), QStringLiteral("077036"));
        e.txtDenumire->setText(QStringLiteral("Fantanii Noi"));
        e.cmdOK->click();
        return e.result();
    };
    f.cmdEdit->click();
    EXPECT_EQ(l->currentItem()->text(1), QStringLiteral("Fantanii Noi"));
    EXPECT_TRUE(Tabela("Strazi").join(u'\n').contains(QStringLiteral("Fantanii Noi")));

    mesaje.raspunsuri = {false, true};
    f.cmdDelete->click();
    EXPECT_EQ(l->topLevelItemCount(), n + 1) << "No keeps it";
    f.cmdDelete->click();
    EXPECT_EQ(l->topLevelItemCount(), n);
    EXPECT_EQ(Tabela("Strazi"), inainte);
}

TEST_P(Referinte, Motive) {
    frmMotive f(Bd(), mesaje);
    QTreeWidget* l = f.lvwMotive;
    const int n = l->topLevelItemCount();
    const QStringList inainte = Tabela("Motive");
    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdMotive&>(d);
        e.txtDenumire->setText(QStringLiteral("Decedat"));
        e.cmdCancel->click();
        return e.result();
    };
    f.cmdAdd->click();
    EXPECT_EQ(Tabela("Motive"), inainte);

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdMotive&>(d);
        e.show();
        Refuzat(e, e.cmdOK, "txtDenumire");
        e.txtDenumire->setText(QStringLiteral("Decedat"));
        e.cmdOK->click();
        return e.result();
    };
    f.cmdAdd->click();
    ASSERT_EQ(l->topLevelItemCount(), n + 1);
    EXPECT_EQ(l->currentItem()->text(1), QStringLiteral("Decedat"));

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdMotive&>(d);
        EXPECT_EQ(e.txtDenumire->text(), QStringLiteral("Decedat"));
        e.txtDenumire->setText(QStringLiteral("Plecat"));
        e.cmdOK->click();
        return e.result();
    };
    f.cmdEdit->click();
    EXPECT_EQ(l->currentItem()->text(1), QStringLiteral("Plecat"));

    mesaje.raspunsuri = {true};
    f.cmdDelete->click();
    EXPECT_EQ(l->topLevelItemCount(), n);
    EXPECT_EQ(Tabela("Motive"), inainte);
}

// The working month: a refused one changes nothing, an accepted one the settings and their file.
TEST_P(Referinte, LunaDeLucru) {
    QTemporaryDir dir;
    Program p{Bd(), setari, dir.path()};
    frmChLunaAn f(p, mesaje);
    EXPECT_EQ(f.txtLuna->text(), QString::number(LunaDosar));
    f.txtLuna->setText(QStringLiteral("13"));
    f.cmdOK->click();
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_EQ(setari.LunaSetata, LunaDosar);
    EXPECT_FALSE(QFile::exists(p.FisierSetari()));
    f.txtLuna->setText(QStringLiteral("3"));
    f.txtAn->setText(QStringLiteral("2015"));
    f.cmdOK->click();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(setari.LunaSetata, 3);
    EXPECT_EQ(setari.AnSetat, 2015);
    EXPECT_EQ(IncarcaSetari(p.FisierSetari(), false).LunaSetata, 3);
}

PE_AMBELE_MOTOARE(Referinte);

} // namespace
