#include "reference/DateReferinta.h"
#include "reports/builders/Borderou.h"
#include "reports/export/Cel.h"
#include "reports/frmBorderou.h"
#include "store/Program.h"
#include "support/Texte.h"
#include "ui/FormaDosar.h"

#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>

using namespace Raport;

namespace {

using FereastraBorderou = FormaPeDosar;

// The Borderou window: the town hall's data asked for, then shown; OK and the export refused until a
// report and an allowance are chosen, with the focus on the list missing; the grid built from the
// choices, exported, opened and saved into the export folder; printed and previewed on A4 landscape.
TEST_P(FereastraBorderou, AlegeriGrilaSiExporturi) {
    QTemporaryDir exporturi;
    setari.FolderExport = exporturi.path();
    Program program{Bd(), setari, Locatie().caleBD};
    {
        frmBorderou fara(program, mesaje);
        EXPECT_EQ(mesaje.Texte().size(), 1) << "the town hall's data are asked for";
    }
    DateReferinta::DatePrimarie p;
    for (auto& t : p.text)
        t = T("1");
    p.text[1] = T("4420538");
    p.text[9] = T("Ene Maria");
    p.TipLocalitate = 1;
    ASSERT_FALSE(DateReferinta::SalveazaDatePrimarie(Bd(), p));
    mesaje.mesaje.clear();

    frmBorderou f(program, mesaje);
    Activa(f);
    EXPECT_EQ(QStringList({f.txtCodFiscal->text(), f.txtNumeAsSoc->text()}), QStringList({p.text[1], p.text[9]}));
    std::vector<QPageLayout> tiparite;
    f.Tipareste = [&](QPrinter& pr) { tiparite.push_back(pr.pageLayout()); };
    QStringList deschise;
    f.DeschideFisier = [&](const QUrl& u) {
        deschise << u.toLocalFile();
        return true;
    };

    Refuzat(f, f.cmdOK, "cboTipRaport");
    f.cboTipRaport->setCurrentIndex(1);
    Refuzat(f, f.cmdOK, "cboTipAloc");
    Refuzat(f, f.cmdExport, "cboTipAloc");
    f.cboTipAloc->setCurrentIndex(0);
    f.cboOrd[0]->setCurrentIndex(2);

    mesaje.mesaje.clear();
    f.cmdOK->click();
    EXPECT_TRUE(mesaje.mesaje.empty()) << S(mesaje.Texte().join(u'|'));
    EXPECT_EQ(f.GrilaAfisata(), Raport::Borderou(Bd(), mesaje, setari, {1, 0, 2, 0, LunaDosar, AnDosar}));

    f.cmdExport->click();
    EXPECT_EQ(deschise, QStringList{FisierExportBorderou(setari, exporturi.path())});
    f.cmdExportGrid->click();
    EXPECT_EQ(IncarcaCel(QDir(exporturi.path()).filePath(GrilaBorderou)), f.GrilaAfisata());

    mesaje.intrari = {T("1")};
    f.cmdPrintPage->click();
    ASSERT_EQ(tiparite.size(), 1u);
    EXPECT_EQ(tiparite[0].pageSize().id(), QPageSize::A4);
    EXPECT_EQ(tiparite[0].orientation(), QPageLayout::Landscape);

    f.cmdPreview->click();
    auto* preview = f.findChild<QPrintPreviewDialog*>();
    ASSERT_NE(preview, nullptr);
    EXPECT_TRUE(preview->isVisible());
    preview->close();
}

PE_AMBELE_MOTOARE(FereastraBorderou);

} // namespace
