#include "reports/frmRapoarte.h"

#include "base/Ceas.h"
#include "base/Setari.h"
#include "cases/ListaCereri.h"
#include "reports/Desen.h"
#include "reports/Rapoarte.h"
#include "reports/UiGrila.h"
#include "reports/export/Cel.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QResizeEvent>
#include <QTimer>
#include <QVBoxLayout>

using namespace Raport;

namespace {

template <class W> W* Numit(W* w, const QString& nume) {
    w->setObjectName(nume);
    return w;
}

QPushButton* Buton(QWidget* parinte, const char* nume, const QString& text) {
    auto* b = Numit(new QPushButton(text, parinte), QString::fromLatin1(nume));
    b->setAutoDefault(false);
    return b;
}

// The entry of the report that builds slowly: its message paints before the work starts.
constexpr int IndexActeExpira = 16;

} // namespace

frmRapoarte::frmRapoarte(Program& p, Mesaje& m, QWidget* parinte) : QDialog(parinte), p_(p), m_(m) {
    setObjectName(QStringLiteral("frmRapoarte"));
    setWindowTitle(QStringLiteral("Rapoarte ..."));
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    DeschideFisier = [](const QUrl& u) { return QDesktopServices::openUrl(u); };

    auto* asezare = new QVBoxLayout(this);
    picSus = Numit(new QWidget(this), QStringLiteral("picSus"));
    auto* sus = new QGridLayout(picSus);
    sus->setContentsMargins(0, 0, 0, 0);

    cboTipRaport = Numit(new QComboBox(picSus), QStringLiteral("cboTipRaport"));
    cboTipRaport->addItems(TexteCatalog());
    cboTipRaport->setCurrentIndex(-1);
    cboTipRaport->setMinimumWidth(300);
    sus->addWidget(new QLabel(QStringLiteral("Tip raport:"), picSus), 0, 0);
    sus->addWidget(cboTipRaport, 0, 1, 1, 3);
    const std::array<QString, 2> eticheteOrd{QStringLiteral("Ordonare 1 dupa:"), QStringLiteral("Ordonare 2 dupa:")};
    for (int i = 0; i < 2; ++i) {
        cboOrd[size_t(i)] = Numit(new QComboBox(picSus), QStringLiteral("cboOrd_%1").arg(i));
        cboOrd[size_t(i)]->addItems(ListaOrdonare(i == 1));
        cboOrd[size_t(i)]->setCurrentIndex(-1);
        sus->addWidget(new QLabel(eticheteOrd[size_t(i)], picSus), 1 + i, 0);
        sus->addWidget(cboOrd[size_t(i)], 1 + i, 1);
    }
    cboTipCerere = Numit(new QComboBox(picSus), QStringLiteral("cboTipCerere"));
    cboTipCerere->addItems({QStringLiteral("Toate"), QStringLiteral("Complementare"), QStringLiteral("Monoparentale")});
    cboTipCerere->setCurrentIndex(0);
    chkMembrii = Numit(new QCheckBox(QStringLiteral("Titular + membrii"), picSus), QStringLiteral("chkMembrii"));
    lblNrLuni = Numit(new QLabel(QStringLiteral("Nr luni"), picSus), QStringLiteral("lblNrLuni"));
    txtNrLuni = Numit(new QLineEdit(QStringLiteral("6"), picSus), QStringLiteral("txtNrLuni"));
    txtNrLuni->setMaximumWidth(50);
    sus->addWidget(cboTipCerere, 1, 2);
    sus->addWidget(chkMembrii, 2, 2);
    auto* luni = new QHBoxLayout;
    luni->addWidget(lblNrLuni);
    luni->addWidget(txtNrLuni);
    luni->addStretch();
    sus->addLayout(luni, 1, 3);

    // The Borderou's filters.
    dataNrFrame = Numit(new QGroupBox(QStringLiteral("Borderou beneficiari"), picSus), QStringLiteral("dataNrFrame"));
    auto* bord = new QGridLayout(dataNrFrame);
    lstStare = Numit(new QListWidget(dataNrFrame), QStringLiteral("lstStare"));
    lstStare->setSelectionMode(QAbstractItemView::MultiSelection);
    lstStare->setMaximumHeight(90);
    txtNrBord = Numit(new QLineEdit(dataNrFrame), QStringLiteral("txtNrBord"));
    dtpBorderou = Numit(new QDateEdit(dataNrFrame), QStringLiteral("dtpBorderou"));
    dtpBorderou->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    dtpBorderou->setCalendarPopup(true);
    chkTipBenefic =
        Numit(new QCheckBox(QStringLiteral("Tip beneficiar"), dataNrFrame), QStringLiteral("chkTipBenefic"));
    bord->addWidget(lstStare, 0, 0, 3, 1);
    bord->addWidget(new QLabel(QStringLiteral("Nr:"), dataNrFrame), 0, 1);
    bord->addWidget(txtNrBord, 0, 2);
    bord->addWidget(new QLabel(QStringLiteral("Data:"), dataNrFrame), 1, 1);
    bord->addWidget(dtpBorderou, 1, 2);
    bord->addWidget(chkTipBenefic, 2, 1, 1, 2);
    sus->addWidget(dataNrFrame, 0, 4, 4, 1);

    // The page and the printer.
    cboFormatPagina = Numit(new QComboBox(picSus), QStringLiteral("cboFormatPagina"));
    cboFormatPagina->addItems({QStringLiteral("A3"), QStringLiteral("A4"), QStringLiteral("A5")});
    cboFormatPagina->setCurrentIndex(-1);
    cboFormatPagina->setMinimumWidth(60);
    chkPortret = Numit(new QCheckBox(QStringLiteral("Portret"), picSus), QStringLiteral("chkPortret"));
    cboPrinter = Numit(new QComboBox(picSus), QStringLiteral("cboPrinter"));
    cboPrinter->addItems(QPrinterInfo::availablePrinterNames());
    cboPrinter->setCurrentText(QPrinterInfo::defaultPrinterName());
    auto* pagina = new QHBoxLayout;
    pagina->addWidget(new QLabel(QStringLiteral("Format pagina:"), picSus));
    pagina->addWidget(cboFormatPagina);
    pagina->addWidget(chkPortret);
    pagina->addWidget(new QLabel(QStringLiteral("Imprimanta:"), picSus));
    pagina->addWidget(cboPrinter, 1);
    sus->addLayout(pagina, 3, 0, 1, 4);

    auto* butoane = new QHBoxLayout;
    cmdOK = Buton(picSus, "cmdOK", QStringLiteral("OK"));
    cmdPreview = Buton(picSus, "cmdPreview", QStringLiteral("Previzualizare"));
    cmdPrint = Buton(picSus, "cmdPrint", QStringLiteral("Tipareste"));
    cmdPrintPage = Buton(picSus, "cmdPrintPage", QStringLiteral("Tipareste pagina"));
    cmdExport = Buton(picSus, "cmdExport", QStringLiteral("Export"));
    cmdExportGrid = Buton(picSus, "cmdExportGrid", QStringLiteral("Salveaza grila"));
    cmdBAS = {Buton(picSus, "cmdBAS_0", QStringLiteral("A23 BAS")),
              Buton(picSus, "cmdBAS_1", QStringLiteral("A25 BAS"))};
    cmdClose = Buton(picSus, "cmdClose", QStringLiteral("Inchide"));
    for (QPushButton* b :
         {cmdOK, cmdPreview, cmdPrint, cmdPrintPage, cmdExport, cmdExportGrid, cmdBAS[0], cmdBAS[1], cmdClose})
        butoane->addWidget(b);
    butoane->addStretch();
    sus->addLayout(butoane, 4, 0, 1, 5);
    lblMesaj = Numit(new QLabel(picSus), QStringLiteral("lblMesaj"));
    lblMesaj->setStyleSheet(QStringLiteral("color: rgb(160,0,0); font-weight: bold;"));
    lblMesaj->hide();
    sus->addWidget(lblMesaj, 5, 0, 1, 5);
    asezare->addWidget(picSus);

    Grid = Numit(new UiGrila(this), QStringLiteral("Grid"));
    asezare->addWidget(Grid, 1);
    Timer1 = Numit(new QTimer(this), QStringLiteral("Timer1"));
    Timer1->setInterval(50);
    Timer1->setSingleShot(true);

    connect(cboTipRaport, &QComboBox::currentIndexChanged, this, &frmRapoarte::cboTipRaport_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmRapoarte::cmdOK_Click);
    connect(cmdPreview, &QPushButton::clicked, this, &frmRapoarte::cmdPreview_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmRapoarte::cmdPrint_Click);
    connect(cmdPrintPage, &QPushButton::clicked, this, &frmRapoarte::cmdPrintPage_Click);
    connect(cmdExport, &QPushButton::clicked, this, &frmRapoarte::cmdExport_Click);
    connect(cmdExportGrid, &QPushButton::clicked, this, &frmRapoarte::cmdExportGrid_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
    connect(Timer1, &QTimer::timeout, this, &frmRapoarte::Timer1_Timer);
    for (QPushButton* b : cmdBAS)
        connect(b, &QPushButton::clicked, this, [this, b] {
            m_.Informatie(QStringLiteral("Exportul \"%1\" nu este inca disponibil in aceasta versiune a programului.")
                              .arg(b->text()));
        });

    // Opening: the lists, the town hall's data, the two buttons of one town hall.
    LaMargine(m_, [&] {
        for (const ElementLista& e : ListaCereri::Stari(p_.bd))
            (new QListWidgetItem(e.text, lstStare))->setData(Qt::UserRole, e.id);
        VerificaPrimaria(p_.bd, m_);
        dtpBorderou->setDate(Ceas::Azi());
        const bool bas = ButoaneBAS(p_.bd);
        for (QPushButton* b : cmdBAS)
            b->setVisible(bas);
    });
    cboTipRaport_Click();
    Grid->Arata(GrilaNoua(p_.setari));
    resize(1100, 700);
}

void frmRapoarte::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    picSus->setMaximumWidth(std::max(200, width() - 50));
}

void frmRapoarte::cboTipRaport_Click() {
    const FiltreRaport f = Filtre(cboTipRaport->currentIndex());
    chkMembrii->setEnabled(f.membri);
    cboTipCerere->setVisible(f.tipCerere);
    txtNrLuni->setVisible(f.nrLuni);
    lblNrLuni->setVisible(f.nrLuni);
}

Alegeri frmRapoarte::Alegerile() const {
    Alegeri a;
    a.luna = p_.setari.LunaSetata;
    a.an = p_.setari.AnSetat;
    a.azi = Ceas::Azi();
    a.ord1 = cboOrd[0]->currentIndex();
    a.ord2 = cboOrd[1]->currentIndex();
    a.tipCerere = cboTipCerere->currentIndex();
    a.membri = chkMembrii->isEnabled() && chkMembrii->isChecked();
    a.nrLuni = txtNrLuni->text();
    for (const QListWidgetItem* i : lstStare->selectedItems())
        a.stari << i->data(Qt::UserRole).toLongLong();
    a.nrBord = txtNrBord->text();
    a.dataBord = dtpBorderou->date();
    if (cboFormatPagina->currentIndex() >= 0) a.hartie = Hartie(cboFormatPagina->currentIndex());
    a.portret = chkPortret->isChecked();
    return a;
}

MediuRaport frmRapoarte::Mediul() const {
    MediuRaport r{p_.setari, p_.applicationPath, {}};
    if (!p_.bd.locatie().EstePostgreSQL()) r.folderBD = QFileInfo(p_.bd.locatie().FisierSQLite()).absolutePath();
    return r;
}

const Grila& frmRapoarte::GrilaAfisata() const {
    return Grid->Grila();
}

void frmRapoarte::cmdOK_Click() {
    if (cboTipRaport->currentIndex() < 0) {
        m_.Informatie(QStringLiteral("Selectati din lista un tip de raport!"));
        return;
    }
    if (cboTipRaport->currentIndex() == IndexActeExpira) {
        lblMesaj->setText(QStringLiteral("Se recalculeaza lista adeverinte \n Va rugam asteptati ... "));
        lblMesaj->show();
        Timer1->start();
        return;
    }
    Construieste();
}

void frmRapoarte::Timer1_Timer() {
    Timer1->stop();
    lblMesaj->hide();
    Construieste();
}

void frmRapoarte::Construieste() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    LaMargine(m_, [&] {
        Grid->Arata(GrilaNoua(p_.setari));
        Grila g = Raport::Construieste(cboTipRaport->currentIndex(), false, p_.bd, m_, Mediul(), Alegerile());
        Grid->Arata(g);
    });
    QApplication::restoreOverrideCursor();
}

void frmRapoarte::AsazaImprimanta(QPrinter& pr) const {
    if (cboPrinter->currentIndex() >= 0) pr.setPrinterName(cboPrinter->currentText());
    Grila g = Grid->Grila();
    AsazaPagina(g, Alegerile());
    pr.setPageLayout(AsezarePagina(g.pagina));
}

void frmRapoarte::cmdPreview_Click() {
    auto* pr = new QPrinter(QPrinter::HighResolution);
    AsazaImprimanta(*pr);
    auto* d = new QPrintPreviewDialog(pr, this);
    d->setObjectName(QStringLiteral("frmPreview"));
    d->setAttribute(Qt::WA_DeleteOnClose);
    connect(d, &QObject::destroyed, [pr] { delete pr; });
    Grila g = Grid->Grila();
    AsazaPagina(g, Alegerile());
    connect(d, &QPrintPreviewDialog::paintRequested, d, [g](QPrinter* p) { Deseneaza(*p, g); });
    if (auto* w = d->findChild<QPrintPreviewWidget*>()) {
        w->setZoomMode(QPrintPreviewWidget::CustomZoom);
        w->setZoomFactor(1.0);
    }
    d->resize(size());
    d->open();
}

void frmRapoarte::cmdPrint_Click() {
    if (!m_.Intrebare(QStringLiteral("Doriti sa tipariti toate paginile?"))) return;
    QPrinter pr(QPrinter::HighResolution);
    AsazaImprimanta(pr);
    Grila g = Grid->Grila();
    AsazaPagina(g, Alegerile());
    if (Tipareste) return Tipareste(pr);
    LaMargine(m_, [&] { Deseneaza(pr, g); });
}

void frmRapoarte::cmdPrintPage_Click() {
    Grila g = Grid->Grila();
    AsazaPagina(g, Alegerile());
    const auto pagina = PaginaDeTiparit(
        m_.Intrare(QStringLiteral("Introduceti nr paginii pe care doriti sa o tipariti"), QStringLiteral("?")),
        NumarPagini(g));
    if (!pagina) return;
    QPrinter pr(QPrinter::HighResolution);
    AsazaImprimanta(pr);
    pr.setFromTo(*pagina, *pagina);
    if (Tipareste) return Tipareste(pr);
    LaMargine(m_, [&] { Deseneaza(pr, g, *pagina); });
}

void frmRapoarte::cmdExport_Click() {
    if (cboTipRaport->currentIndex() < 0) {
        m_.Informatie(QStringLiteral("Selectati din lista un tip de raport!"));
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    std::optional<QString> fisier;
    LaMargine(m_, [&] {
        fisier = Exporta(cboTipRaport->currentIndex(), p_.bd, m_, Mediul(), Alegerile(), FolderExportEfectiv(p_.setari),
                         [this](const Grila& g) { Grid->Arata(g); });
    });
    QApplication::restoreOverrideCursor();
    if (fisier && !DeschideFisier(QUrl::fromLocalFile(*fisier)))
        m_.Informatie(QStringLiteral("Nu aveti instalat Open/Libre Office! "));
}

void frmRapoarte::cmdExportGrid_Click() {
    const QString nume = NumeFisier(cboTipRaport->currentText(), QStringLiteral(".cel"));
    LaMargine(m_, [&] { SalveazaCel(Grid->Grila(), QDir(FolderExportEfectiv(p_.setari)).filePath(nume)); });
}
