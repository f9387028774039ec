#include "cases/StareCerere.h"
#include "cases/frmAddActe.h"
#include "cases/frmAddVenituri.h"
#include "cases/frmBife.h"
#include "support/BazaTest.h"
#include "support/FormTest.h"
#include "support/Texte.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPushButton>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString NuEsteSuma =
    QStringLiteral("\"abc\" nu este o suma valida: se asteapta un numar, cu virgula sau punct inaintea zecimalelor.");

class DialoguriCerere : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        stare.Venituri[0] = B("1500");
        stare.Venituri[2] = B("250.5");
        stare.Venituri[78] = B("9"); // no row of the catalogue: kept
        stare.Bunuri[0] = B("2");
        stare.Bunuri[74] = B("3");
        stare.Bife = QStringLiteral("0100000001");
        stare.ActeBife = QStringLiteral("1101");
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
    static QStringList Randuri(QListWidget* l) {
        QStringList r;
        for (int i = 0; i < l->count(); ++i)
            r << l->item(i)->text();
        return r;
    }
    static QString Bifate(QListWidget* l) {
        QString r;
        for (int i = 0; i < l->count(); ++i)
            r += l->item(i)->checkState() == Qt::Checked ? u'1' : u'0';
        return r;
    }

    StareCerere stare;
};

TEST_P(DialoguriCerere, VeniturileSeScriuLaOKSiTotalulUrmeazaFiecareCelula) {
    frmAddVenituri f(Bd(), mesaje, stare, QString(), nullptr);
    f.show();
    auto* grid = Gaseste<QTableWidget>(f, "Grid");
    auto* total = Gaseste<QLabel>(f, "lblTotalVenituri");
    ASSERT_EQ(grid->rowCount(), 78);
    ASSERT_EQ(grid->columnCount(), 2);
    EXPECT_TRUE(grid->item(0, 0)->text().startsWith(QString::fromUtf8("Salariu net")));
    EXPECT_FALSE(grid->item(0, 0)->flags() & Qt::ItemIsEditable);
    EXPECT_TRUE(grid->item(0, 1)->flags() & Qt::ItemIsEditable);
    EXPECT_EQ(grid->item(0, 1)->text(), QStringLiteral("1500.00"));
    EXPECT_EQ(grid->item(1, 1)->text(), QString());
    EXPECT_EQ(grid->item(2, 1)->text(), QStringLiteral("250.50"));
    EXPECT_EQ(grid->verticalHeaderItem(77)->text(), QStringLiteral("78"));
    EXPECT_EQ(total->text(), QStringLiteral("Total venituri: 1750.50 lei"));

    const struct {
        int rand;
        const char* text;
        const char* celula;
        const char* total;
        QStringList mesaje;
    } pasi[] = {
        {1, "1.234,5", "1234.50", "Total venituri: 2985.00 lei", {}},
        {1, "1234,5", "1234.50", "Total venituri: 2985.00 lei", {}},
        {77, "0.25", "0.25", "Total venituri: 2985.25 lei", {}},
        // Refused in the cell: the amount it had stays, and so does the total.
        {1, "abc", "1234.50", "Total venituri: 2985.25 lei", {NuEsteSuma}},
        {2, "-3", "250.50", "Total venituri: 2985.25 lei", {QStringLiteral("\"-3\": suma nu poate fi negativa.")}},
        {0, "", "", "Total venituri: 1485.25 lei", {}},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.text);
        mesaje.mesaje.clear();
        Scrie(grid, p.rand, 1, QString::fromLatin1(p.text));
        EXPECT_EQ(grid->item(p.rand, 1)->text(), QString::fromLatin1(p.celula));
        EXPECT_EQ(total->text(), QString::fromLatin1(p.total));
        EXPECT_EQ(mesaje.Texte(), p.mesaje);
    }
    Captura(f, GetParam(), "frmAddVenituri.png");

    const StareCerere inainte = stare;
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdOK"), Qt::LeftButton);
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Accepted);
    StareCerere asteptat = inainte;
    asteptat.Venituri[0] = Bani();
    asteptat.Venituri[1] = B("1234.5");
    asteptat.Venituri[77] = B("0.25");
    EXPECT_TRUE(stare == asteptat);
    EXPECT_EQ(stare.Venituri[78], B("9"));
}

TEST_P(DialoguriCerere, RenuntareaLaVenituriNuAtingeStarea) {
    const StareCerere inainte = stare;
    frmAddVenituri f(Bd(), mesaje, stare, QString(), nullptr);
    f.show();
    Scrie(Gaseste<QTableWidget>(f, "Grid"), 5, 1, QStringLiteral("700"));
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Rejected);
    EXPECT_TRUE(stare == inainte);
}

TEST_P(DialoguriCerere, BunurileSiExcludereaSeScriuLaOK) {
    frmBife f(Bd(), mesaje, stare, nullptr);
    f.show();
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Bunuri care duc la excludere"));
    auto* lst = Gaseste<QListWidget>(f, "lstBife");
    auto* grid = Gaseste<QTableWidget>(f, "Grid");
    auto* valoare = Gaseste<QLineEdit>(f, "txtVenituri");
    ASSERT_EQ(lst->count(), 10);
    EXPECT_TRUE(lst->item(0)->text().startsWith(QString::fromUtf8("1. - Clădiri")));
    EXPECT_TRUE(lst->item(9)->text().startsWith(QStringLiteral("10. - Terenuri")));
    EXPECT_EQ(Bifate(lst), QStringLiteral("0100000001"));

    ASSERT_EQ(grid->rowCount(), 75);
    ASSERT_EQ(grid->columnCount(), 5);
    QStringList antet;
    for (int c = 0; c < 5; ++c)
        antet << grid->horizontalHeaderItem(c)->text();
    EXPECT_EQ(antet, (QStringList{QStringLiteral("Tip"), QStringLiteral("Cod"), QStringLiteral("Denumire"),
                                  QStringLiteral("Valoare (EUR)"), QStringLiteral("Cantitate (ha, buc)")}));
    EXPECT_EQ(grid->item(0, 0)->text(), QStringLiteral("TE"));
    EXPECT_EQ(grid->item(0, 1)->text(), QStringLiteral("1"));
    EXPECT_EQ(grid->item(0, 3)->text(), QStringLiteral("150.00"));
    EXPECT_EQ(grid->item(0, 4)->text(), QStringLiteral("2.00"));
    EXPECT_EQ(grid->item(1, 4)->text(), QString());
    EXPECT_EQ(grid->item(74, 4)->text(), QStringLiteral("3.00"));
    for (int r : {0, 40, 74})
        for (int c = 0; c < 5; ++c) {
            SCOPED_TRACE(testing::Message() << r << "," << c);
            EXPECT_EQ(bool(grid->item(r, c)->flags() & Qt::ItemIsEditable), c == 4);
            EXPECT_EQ(grid->item(r, c)->background().color() == QColor(255, 255, 200), c == 4);
        }
    EXPECT_EQ(valoare->text(), QStringLiteral("600.00")); // 2 x 150 + 3 x 100

    const struct {
        int rand;
        const char* text;
        const char* celula;
        const char* valoare;
        QStringList mesaje;
    } pasi[] = {
        {10, "1.234,5", "1234.50", "741300.00", {}}, // potatoes, 600 a hectare
        {10, "1234,5", "1234.50", "741300.00", {}},  {10, "abc", "1234.50", "741300.00", {NuEsteSuma}},
        {10, "0,5", "0.50", "900.00", {}},           {0, "", "", "600.00", {}},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.text);
        mesaje.mesaje.clear();
        Scrie(grid, p.rand, 4, QString::fromLatin1(p.text));
        EXPECT_EQ(grid->item(p.rand, 4)->text(), QString::fromLatin1(p.celula));
        EXPECT_EQ(valoare->text(), QString::fromLatin1(p.valoare));
        EXPECT_EQ(mesaje.Texte(), p.mesaje);
    }
    lst->item(1)->setCheckState(Qt::Unchecked);
    lst->item(4)->setCheckState(Qt::Checked);
    Captura(f, GetParam(), "frmBife.png");

    const StareCerere inainte = stare;
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdOK"), Qt::LeftButton);
    EXPECT_TRUE(f.ESTE_OK);
    StareCerere asteptat = inainte;
    asteptat.Bife = QStringLiteral("0000100001");
    asteptat.Bunuri[0] = Bani();
    asteptat.Bunuri[10] = B("0.5");
    EXPECT_TRUE(stare == asteptat) << stare.Bife.toStdString();
}

TEST_P(DialoguriCerere, RenuntareaLaBunuriNuAtingeStarea) {
    stare.Bife.clear(); // a new request: OK would write ten zeros
    const StareCerere inainte = stare;
    frmBife f(Bd(), mesaje, stare, nullptr);
    f.show();
    EXPECT_EQ(Bifate(Gaseste<QListWidget>(f, "lstBife")), QStringLiteral("0000000000"));
    Gaseste<QListWidget>(f, "lstBife")->item(0)->setCheckState(Qt::Checked);
    Scrie(Gaseste<QTableWidget>(f, "Grid"), 3, 4, QStringLiteral("4"));
    f.reject(); // Escape or the window's close box
    EXPECT_FALSE(f.ESTE_OK);
    EXPECT_TRUE(stare == inainte);

    frmBife g(Bd(), mesaje, stare, nullptr);
    g.cmdOK_Click();
    EXPECT_EQ(stare.Bife, QStringLiteral("0000000000"));
}

int PaginiPdf(const QString& fisier) {
    QFile f(fisier);
    if (!f.open(QIODevice::ReadOnly)) return -1;
    const QByteArray b = f.readAll();
    if (!b.startsWith("%PDF")) return -1;
    return int(b.count("/Type /Page\n") + b.count("/Type /Page\r") + b.count("/Type /Page/") + b.count("/Type /Page>"));
}

TEST_P(DialoguriCerere, ListaDeBunuriSeTiparesteSiSePrevizualizeaza) {
    QTemporaryDir dir;
    const QString pdf = dir.filePath(QStringLiteral("bunuri.pdf"));
    frmBife f(Bd(), mesaje, stare, nullptr);
    int alegeri = 0;
    f.AlegeImprimanta = [&](QPrinter& p) {
        ++alegeri;
        p.setOutputFormat(QPrinter::PdfFormat);
        p.setOutputFileName(pdf);
        p.setPageSize(QPageSize(QPageSize::A4));
        return true;
    };

    // "No" prints nothing.
    mesaje.raspunsuri = {false};
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdPrint"), Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Doriti sa tipariti lista de bunuri?")});
    EXPECT_EQ(alegeri, 0);
    EXPECT_FALSE(QFile::exists(pdf));

    mesaje.raspunsuri = {true};
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdPrint"), Qt::LeftButton);
    EXPECT_EQ(alegeri, 1);
    const int pagini = PaginiPdf(pdf);
    EXPECT_GE(pagini, 2) << "75 rows do not fit on one page";

    // The preview lays out the same pages.
    int paginiPrevizualizare = -1;
    f.ArataModal = [&](QDialog& d) {
        d.show();
        auto* w = d.findChild<QPrintPreviewWidget*>();
        if (w) {
            w->updatePreview();
            paginiPrevizualizare = w->pageCount();
        }
        d.reject();
        return int(QDialog::Rejected);
    };
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdPreview"), Qt::LeftButton);
    EXPECT_GE(paginiPrevizualizare, 2);
    EXPECT_EQ(mesaje.Texte().size(), 2) << "the preview asks nothing";
    EXPECT_FALSE(f.ESTE_OK);
}

TEST_P(DialoguriCerere, ActeleBifateSeImpacheteazaLaOK) {
    frmAddActe f(Bd(), mesaje, stare, nullptr);
    f.show();
    auto* lst = Gaseste<QListWidget>(f, "lstBife");
    ASSERT_EQ(lst->count(), 28);
    EXPECT_EQ(Randuri(lst).front(),
              QString::fromUtf8("1. - Cererea și declarația pe propria răspundere, completată și semnată de titular"));
    EXPECT_TRUE(Randuri(lst).back().startsWith(QStringLiteral("28. - ")));
    // A text shorter than the catalogue: the rows past its end are unchecked.
    EXPECT_EQ(Bifate(lst), QStringLiteral("1101000000000000000000000000"));
    Captura(f, GetParam(), "frmAddActe.png");

    lst->item(1)->setCheckState(Qt::Unchecked);
    lst->item(27)->setCheckState(Qt::Checked);
    const StareCerere inainte = stare;
    QTest::mouseClick(Gaseste<QPushButton>(f, "cmdOK"), Qt::LeftButton);
    EXPECT_TRUE(f.ESTE_OK);
    StareCerere asteptat = inainte;
    asteptat.ActeBife = QStringLiteral("1001000000000000000000000001");
    EXPECT_TRUE(stare == asteptat) << stare.ActeBife.toStdString();

    frmAddActe g(Bd(), mesaje, stare, nullptr);
    g.show();
    EXPECT_EQ(Bifate(Gaseste<QListWidget>(g, "lstBife")), asteptat.ActeBife);
    Gaseste<QListWidget>(g, "lstBife")->item(0)->setCheckState(Qt::Unchecked);
    QTest::mouseClick(Gaseste<QPushButton>(g, "cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(g.ESTE_OK);
    EXPECT_TRUE(stare == asteptat);
}

PE_AMBELE_MOTOARE(DialoguriCerere);

} // namespace
