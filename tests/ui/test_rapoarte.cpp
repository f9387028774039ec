#include "cases/ListaCereri.h"
#include "reference/DateReferinta.h"
#include "reports/Desen.h"
#include "reports/Grila.h"
#include "reports/UiGrila.h"
#include "reports/export/Cel.h"
#include "reports/frmRapoarte.h"
#include "reports/frmRapoarte2.h"
#include "store/Program.h"
#include "support/Texte.h"
#include "ui/FormaDosar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>
#include <gtest/gtest.h>

// The painter needs the fonts of a running application, which this binary has.
using namespace Raport;

namespace {

// A hundred rows of 36 pixels fill four A4 pages under the margins of the reports (29 to a page).
TEST(Grila, PdfulArePaginileGrilei) {
    Grila g(101, 4);
    for (int r = 1; r <= 100; ++r)
        g.Scrie(r, 1, QString::number(r));
    g.Bordura({1, 1, 100, 3}, Margine::Jos, Linie::Groasa);
    QTemporaryDir dir;
    const QString fisier = dir.filePath(T("Lista.pdf"));
    ScriePdf(g, fisier);
    QFile f(fisier);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray pdf = f.readAll();
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_EQ(QString::fromLatin1(pdf).count(QRegularExpression(T("/Type\\s*/Page[^s]"))), 4);
}

// The view shows the model: its content cells from the view's first, merges as spans, sizes, fonts.
TEST(Grila, VedereaArataModelul) {
    Grila g(4, 4);
    g.Scrie(1, 1, T("LISTA"));
    g.Uneste({1, 1, 1, 3});
    g.SeteazaFont({1, 1, 1, 1}, {T(""), 14, true, {}, {}});
    g.Scrie(2, 2, T("12.50"));
    g.Aliniaza({2, 2, 2, 2}, {Orizontal::Dreapta, Vertical::Jos});
    g.SeteazaLatimeColoana(2, 150);
    g.SeteazaInaltimeRand(1, 60);
    UiGrila v;
    v.Arata(g);
    v.resize(500, 300);
    v.show();
    EXPECT_EQ(v.model()->rowCount(), 3);
    EXPECT_EQ(v.model()->columnCount(), 3);
    EXPECT_EQ(v.columnSpan(0, 0), 3);
    EXPECT_EQ(v.columnWidth(1), 150);
    EXPECT_EQ(v.rowHeight(0), 60);
    EXPECT_EQ(v.rowHeight(1), g.inaltimeImplicita);
    EXPECT_EQ(v.model()->index(1, 1).data().toString(), T("12.50"));
    EXPECT_EQ(v.model()->index(1, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignBottom));
    EXPECT_TRUE(v.model()->index(0, 0).data(Qt::FontRole).value<QFont>().bold());
    // Shown again with another grid, nothing of the first stays.
    v.Arata(Grila(3, 2));
    EXPECT_EQ(v.columnSpan(0, 0), 1);
    EXPECT_EQ(v.model()->columnCount(), 1);
}

} // namespace

namespace {

using FereastraRapoarte = FormaPeDosar;

// The report window: the town hall's data asked for, the filters of the chosen entry, the checks of
// OK and of the page to print, the grid saved into the export folder, the preview opened.
TEST_P(FereastraRapoarte, ControaleSiActiuni) {
    QTemporaryDir exporturi;
    setari.FolderExport = exporturi.path();
    Program program{Bd(), setari, Locatie().caleBD};
    {
        frmRapoarte fara(program, mesaje);
        EXPECT_EQ(mesaje.Texte().size(), 1) << "the town hall's data are asked for";
    }
    DateReferinta::DatePrimarie p;
    for (auto& t : p.text)
        t = T("1");
    p.TipLocalitate = 1;
    ASSERT_FALSE(DateReferinta::SalveazaDatePrimarie(Bd(), p));
    mesaje.mesaje.clear();

    frmRapoarte f(program, mesaje);
    f.show();
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_FALSE(f.cmdBAS[0]->isVisible());
    EXPECT_EQ(f.lstStare->count(), int(ListaCereri::Stari(Bd()).size()));
    int tiparite = 0;
    f.Tipareste = [&](QPrinter&) { ++tiparite; };
    QStringList deschise;
    f.DeschideFisier = [&](const QUrl& u) {
        deschise << u.toLocalFile();
        return true;
    };

    f.cmdOK->click();
    f.cmdExport->click();
    EXPECT_EQ(mesaje.Texte().size(), 2) << "nothing chosen, for OK and for the export";
    f.cboTipRaport->setCurrentIndex(1);
    EXPECT_TRUE(f.chkMembrii->isEnabled());
    EXPECT_TRUE(f.cboTipCerere->isVisible());
    f.cboTipRaport->setCurrentIndex(15);
    EXPECT_FALSE(f.chkMembrii->isEnabled());
    EXPECT_FALSE(f.cboTipCerere->isVisible());
    EXPECT_TRUE(f.txtNrLuni->isVisible());

    // A report without an export does nothing; the grid goes to the export folder under its name.
    f.cboTipRaport->setCurrentIndex(5);
    mesaje.mesaje.clear();
    f.cmdExport->click();
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_TRUE(deschise.isEmpty());
    f.cboTipRaport->setCurrentIndex(12);
    f.cmdExportGrid->click();
    EXPECT_EQ(IncarcaCel(QDir(exporturi.path()).filePath(T("Anexa 4 - Modificari_Incetari.cel"))), f.GrilaAfisata());

    // Printing: all pages after a Yes, one page only for a number of a page that exists.
    mesaje.raspunsuri = {false, true};
    f.cmdPrint->click();
    f.cmdPrint->click();
    EXPECT_EQ(tiparite, 1);
    mesaje.intrari = {T("abc"), T("2"), T("1")};
    for (int i = 0; i < 3; ++i)
        f.cmdPrintPage->click();
    EXPECT_EQ(tiparite, 2);

    f.cmdPreview->click();
    auto* preview = f.findChild<QPrintPreviewDialog*>();
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->isVisible());
    preview->close();
}

PE_AMBELE_MOTOARE(FereastraRapoarte);

} // namespace

namespace {

using FereastraRapoarte2 = FormaPeDosar;

// The template window paints the delivered page, keeps it when a template fails, and exports only
// the one list it serves.
TEST_P(FereastraRapoarte2, SablonulLivratSiEsecul) {
    const QString folder = Locatie().caleBD;
    QDir(folder).mkpath(T("Rapoarte"));
    const QString sablon = QDir(folder).filePath(T("Rapoarte/Anexa3.xml"));
    ASSERT_TRUE(QFile::copy(T(FEROLANTA_SURSA "/Rapoarte/Anexa3.xml"), sablon));
    Program program{Bd(), setari, folder};
    frmRapoarte2 f(program, mesaje);
    EXPECT_EQ(mesaje.Texte().size(), 1) << "the town hall's data are asked for";
    mesaje.mesaje.clear();

    f.cmdOK->click();
    ASSERT_TRUE(mesaje.mesaje.empty()) << S(mesaje.Texte().join(T("\n")));
    const Grila pagina = f.GrilaAfisata();
    EXPECT_GT(pagina.Randuri(), 20);
    QFile::remove(sablon);
    QFile rupt(sablon);
    ASSERT_TRUE(rupt.open(QIODevice::WriteOnly));
    rupt.write("<SABLON><PROPRIETATI>");
    rupt.close();
    f.cmdOK->click();
    EXPECT_EQ(mesaje.Texte().size(), 1);
    EXPECT_EQ(f.GrilaAfisata(), pagina);

    mesaje.mesaje.clear();
    f.cmdExport->click();
    f.cboTipRaport->setCurrentIndex(3);
    f.cmdExport->click();
    EXPECT_EQ(mesaje.Texte().size(), 1) << "nothing chosen; then a list this window does not export";
}

PE_AMBELE_MOTOARE(FereastraRapoarte2);

} // namespace
