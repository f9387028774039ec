#include "cases/Locuinta.h"
#include "cases/frmAddActe.h"
#include "cases/frmAddLocuinta.h"
#include "cases/frmAddVenituri.h"
#include "cases/frmBife.h"
#include "ui/FormaDosar.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrinter>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>

namespace {

// The dialogs of the request editor that work on its state: OK with nothing changed gives the state
// back as it was, a change reaches it only at OK, and Cancel leaves it alone.
class DialoguriDosar : public FormaPeDosar {
protected:
    void SetUp() override {
        FormaPeDosar::SetUp();
        s = dosar.Stare;
    }

    // Types into a cell as the clerk does: opens its editor, writes, and presses Enter.
    static void Scrie(QTableWidget* g, int rand, int coloana, const QString& text) {
        g->setCurrentCell(rand, coloana);
        g->editItem(g->item(rand, coloana));
        auto* editor = qobject_cast<QLineEdit*>(g->indexWidget(g->model()->index(rand, coloana)));
        ASSERT_NE(editor, nullptr) << "no editor on the cell";
        editor->setText(text);
        QTest::keyClick(editor, Qt::Key_Return);
        QApplication::processEvents(); // the view commits and closes the editor on the next turn
    }

    StareCerere s;
};

TEST_P(DialoguriDosar, Venituri) {
    {
        frmAddVenituri f(Bd(), mesaje, s, QString());
        f.cmdOK->click();
        EXPECT_TRUE(f.ESTE_OK);
        EXPECT_EQ(s, dosar.Stare);
    }
    frmAddVenituri f(Bd(), mesaje, s, QString());
    f.show();
    const QString total = f.lblTotalVenituri->text();
    Scrie(f.Grid, 1, 1, QStringLiteral("1.234,5"));
    EXPECT_NE(f.lblTotalVenituri->text(), total) << "the total follows each cell";
    // A text that is no amount is told, and the cell keeps what it had.
    Scrie(f.Grid, 1, 1, QStringLiteral("abc"));
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Avertisment).size(), 1);
    EXPECT_EQ(f.Grid->item(1, 1)->text(), QStringLiteral("1234.50"));
    EXPECT_EQ(s, dosar.Stare) << "nothing reaches the state before OK";
    f.cmdOK->click();
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(s.Venituri[1], B("1234.5"));

    const StareCerere inainte = s;
    frmAddVenituri g(Bd(), mesaje, s, QString());
    g.show();
    Scrie(g.Grid, 5, 1, QStringLiteral("700"));
    g.cmdCancel->click();
    EXPECT_FALSE(g.ESTE_OK);
    EXPECT_EQ(s, inainte);
}

// The goods and exclusion list, and the print of the goods list (asked first, on as many pages as
// it takes).
TEST_P(DialoguriDosar, Bunuri) {
    {
        frmBife f(Bd(), mesaje, s);
        f.cmdOK->click();
        EXPECT_TRUE(f.ESTE_OK);
        EXPECT_EQ(s, dosar.Stare);
    }
    frmBife f(Bd(), mesaje, s);
    f.show();
    const QString valoare = f.txtVenituri->text();
    Scrie(f.Grid, 10, 4, QStringLiteral("0,5"));
    EXPECT_NE(f.txtVenituri->text(), valoare) << "the value follows each quantity";
    f.lstBife->item(4)->setCheckState(Qt::Checked);

    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("bunuri.pdf"));
    f.AlegeImprimanta = [&](QPrinter& p) {
        p.setOutputFormat(QPrinter::PdfFormat);
        p.setOutputFileName(pdf);
        return true;
    };
    mesaje.raspunsuri = {false, true};
    f.cmdPrint->click();
    EXPECT_FALSE(QFile::exists(pdf)) << "No prints nothing";
    f.cmdPrint->click();
    QFile tiparit(pdf);
    ASSERT_TRUE(tiparit.open(QIODevice::ReadOnly));
    EXPECT_GE(tiparit.readAll().count("/Type /Page\n"), 2) << "75 rows do not fit on one page";

    EXPECT_EQ(s, dosar.Stare);
    f.cmdOK->click();
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(s.Bunuri[10], B("0.5"));
    EXPECT_EQ(s.Bife, QStringLiteral("0000100000"));

    const StareCerere inainte = s;
    frmBife g(Bd(), mesaje, s);
    g.lstBife->item(0)->setCheckState(Qt::Checked);
    g.cmdCancel->click();
    EXPECT_EQ(s, inainte);
}

TEST_P(DialoguriDosar, Acte) {
    {
        frmAddActe f(Bd(), mesaje, s);
        f.cmdOK->click();
        EXPECT_TRUE(f.ESTE_OK);
        EXPECT_EQ(s, dosar.Stare);
    }
    frmAddActe f(Bd(), mesaje, s);
    f.lstBife->item(2)->setCheckState(Qt::Checked);
    f.cmdOK->click();
    EXPECT_EQ(s.ActeBife, QStringLiteral("1111000000000000000000000001"));

    const StareCerere inainte = s;
    frmAddActe g(Bd(), mesaje, s);
    g.lstBife->item(0)->setCheckState(Qt::Unchecked);
    g.cmdCancel->click();
    EXPECT_FALSE(g.ESTE_OK);
    EXPECT_EQ(s, inainte);
}

TEST_P(DialoguriDosar, Locuinta) {
    StareCerere asteptat = s;
    ASSERT_FALSE(CopiazaInStare(DateDinStare(s), asteptat));
    {
        frmAddLocuinta f(Bd(), mesaje, s);
        f.cmdOK->click();
        EXPECT_TRUE(f.ESTE_OK);
        EXPECT_EQ(s, asteptat) << "the controls show the state as the core reads it";
    }
    const StareCerere inainte = s;
    frmAddLocuinta f(Bd(), mesaje, s);
    f.show();
    f.chkLocuinta[4]->setChecked(true);
    f.txtNrCamere->setText(QStringLiteral("300"));
    Refuzat(f, f.cmdOK, "txtNrCamere");
    EXPECT_EQ(s, inainte);
    f.cmdCancel->click();
    EXPECT_FALSE(f.ESTE_OK);
    EXPECT_EQ(s, inainte);

    frmAddLocuinta g(Bd(), mesaje, s);
    g.chkLocuinta[4]->setChecked(true);
    g.txtNrCamere->setText(QStringLiteral("5"));
    g.txtLocuinta[1]->setText(QStringLiteral("PAD-9"));
    g.cmdOK->click();
    EXPECT_TRUE(g.ESTE_OK);
    EXPECT_TRUE(s.LocuinteSel[4].Bifat);
    EXPECT_EQ(s.NrCamere, 5);
    EXPECT_EQ(s.NrPolita, QStringLiteral("PAD-9"));
}

PE_AMBELE_MOTOARE(DialoguriDosar);

} // namespace
