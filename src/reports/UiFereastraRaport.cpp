#include "reports/UiFereastraRaport.h"

#include "base/Ceas.h"
#include "base/Urmarire.h"
#include "reports/Desen.h"
#include "reports/Rapoarte.h"
#include "reports/UiGrila.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <limits>

using namespace Raport;

UiFereastraRaport::UiFereastraRaport(Program& p, Mesaje& m, QWidget* parinte) : QDialog(parinte), p_(p), m_(m) {
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    DeschideFisier = [](const QUrl& u) { return QDesktopServices::openUrl(u); };
    Grid = new UiGrila(this);
    Grid->setObjectName(QStringLiteral("Grid"));
    Grid->Arata(GrilaNoua(p_.setari));
}

QPushButton* UiFereastraRaport::Buton(QWidget* parinte, const char* nume, const QString& text) {
    auto* b = new QPushButton(text, parinte);
    b->setObjectName(QString::fromLatin1(nume));
    b->setAutoDefault(false);
    return b;
}

QComboBox* UiFereastraRaport::ListaImprimante(QWidget* parinte) {
    cboPrinter = new QComboBox(parinte);
    cboPrinter->setObjectName(QStringLiteral("cboPrinter"));
    cboPrinter->addItems(QPrinterInfo::availablePrinterNames());
    cboPrinter->setCurrentText(QPrinterInfo::defaultPrinterName());
    return cboPrinter;
}

QGridLayout* UiFereastraRaport::ControaleAlegeri(QWidget* parinte, int nrIntrari) {
    const auto numit = [](auto* w, const QString& nume) {
        w->setObjectName(nume);
        return w;
    };
    auto* sus = new QGridLayout;
    cboTipRaport = numit(new QComboBox(parinte), QStringLiteral("cboTipRaport"));
    cboTipRaport->addItems(TexteCatalog().mid(0, nrIntrari));
    cboTipRaport->setCurrentIndex(-1);
    cboTipRaport->setMinimumWidth(300);
    sus->addWidget(new QLabel(QStringLiteral("Tip raport:"), parinte), 0, 0);
    sus->addWidget(cboTipRaport, 0, 1, 1, 3);
    const std::array<QString, 2> etichete{QStringLiteral("Ordonare 1 dupa:"), QStringLiteral("Ordonare 2 dupa:")};
    for (int i = 0; i < 2; ++i) {
        QComboBox*& c = cboOrd[size_t(i)];
        c = numit(new QComboBox(parinte), QStringLiteral("cboOrd_%1").arg(i));
        c->addItems(ListaOrdonare(i == 1));
        c->setCurrentIndex(-1);
        sus->addWidget(new QLabel(etichete[size_t(i)], parinte), 1 + i, 0);
        sus->addWidget(c, 1 + i, 1);
    }
    cboTipCerere = numit(new QComboBox(parinte), QStringLiteral("cboTipCerere"));
    cboTipCerere->addItems({QStringLiteral("Toate"), QStringLiteral("Complementare"), QStringLiteral("Monoparentale")});
    cboTipCerere->setCurrentIndex(0);
    sus->addWidget(cboTipCerere, 1, 2);
    lblNrLuni = numit(new QLabel(QStringLiteral("Nr luni"), parinte), QStringLiteral("lblNrLuni"));
    txtNrLuni = numit(new QLineEdit(QStringLiteral("6"), parinte), QStringLiteral("txtNrLuni"));
    txtNrLuni->setMaximumWidth(50);
    auto* luni = new QHBoxLayout;
    luni->addWidget(lblNrLuni);
    luni->addWidget(txtNrLuni);
    luni->addStretch();
    sus->addLayout(luni, 1, 3);

    auto* pagina = new QHBoxLayout;
    cboFormatPagina = numit(new QComboBox(parinte), QStringLiteral("cboFormatPagina"));
    cboFormatPagina->addItems({QStringLiteral("A3"), QStringLiteral("A4"), QStringLiteral("A5")});
    cboFormatPagina->setCurrentIndex(-1);
    cboFormatPagina->setMinimumWidth(60);
    chkPortret = numit(new QCheckBox(QStringLiteral("Portret"), parinte), QStringLiteral("chkPortret"));
    ListaImprimante(parinte);
    pagina->addWidget(new QLabel(QStringLiteral("Format pagina:"), parinte));
    pagina->addWidget(cboFormatPagina);
    pagina->addWidget(chkPortret);
    pagina->addWidget(new QLabel(QStringLiteral("Imprimanta:"), parinte));
    pagina->addWidget(cboPrinter, 1);
    sus->addLayout(pagina, 3, 0, 1, 4);

    ButoaneComune(parinte);
    connect(cboTipRaport, &QComboBox::currentIndexChanged, this, [this] { cboTipRaport_Click(); });
    return sus;
}

void UiFereastraRaport::ButoaneComune(QWidget* parinte) {
    cmdOK = Buton(parinte, "cmdOK", QStringLiteral("OK"));
    cmdPreview = Buton(parinte, "cmdPreview", QStringLiteral("Previzualizare"));
    cmdPrint = Buton(parinte, "cmdPrint", QStringLiteral("Tipareste"));
    cmdPrintPage = Buton(parinte, "cmdPrintPage", QStringLiteral("Tipareste pagina"));
    cmdExport = Buton(parinte, "cmdExport", QStringLiteral("Export"));
    cmdClose = Buton(parinte, "cmdClose", QStringLiteral("Inchide"));
    connect(cmdPreview, &QPushButton::clicked, this, &UiFereastraRaport::cmdPreview_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &UiFereastraRaport::cmdPrint_Click);
    connect(cmdPrintPage, &QPushButton::clicked, this, &UiFereastraRaport::cmdPrintPage_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::reject);
}

void UiFereastraRaport::cboTipRaport_Click() {
    const FiltreRaport f = Filtre(cboTipRaport->currentIndex());
    cboTipCerere->setVisible(f.tipCerere);
    txtNrLuni->setVisible(f.nrLuni);
    lblNrLuni->setVisible(f.nrLuni);
}

Alegeri UiFereastraRaport::Alegerile() const {
    Alegeri a;
    a.luna = p_.setari.LunaSetata;
    a.an = p_.setari.AnSetat;
    a.azi = Ceas::Azi();
    a.ord1 = cboOrd[0]->currentIndex();
    a.ord2 = cboOrd[1]->currentIndex();
    a.tipCerere = cboTipCerere->currentIndex();
    a.nrLuni = txtNrLuni->text();
    if (cboFormatPagina->currentIndex() >= 0) a.hartie = Hartie(cboFormatPagina->currentIndex());
    a.portret = chkPortret->isChecked();
    return a;
}

MediuRaport UiFereastraRaport::Mediul() const {
    MediuRaport r{p_.setari, p_.applicationPath, {}};
    if (!p_.bd.locatie().EstePostgreSQL()) r.folderBD = QFileInfo(p_.bd.locatie().FisierSQLite()).absolutePath();
    return r;
}

const Grila& UiFereastraRaport::GrilaAfisata() const {
    return Grid->Grila();
}

void UiFereastraRaport::Deschide(const QString& fisier) {
    if (!DeschideFisier(QUrl::fromLocalFile(fisier)))
        m_.Informatie(QStringLiteral("Nu aveti instalat Open/Libre Office! "));
}

Grila UiFereastraRaport::GrilaDeTiparit() const {
    Grila g = Grid->Grila();
    AsazaPagina(g, Alegerile());
    return g;
}

void UiFereastraRaport::AsazaImprimanta(QPrinter& pr, const Grila& g) const {
    if (cboPrinter->currentIndex() >= 0) pr.setPrinterName(cboPrinter->currentText());
    pr.setPageLayout(AsezarePagina(g.pagina));
}

void UiFereastraRaport::cmdPreview_Click() {
    const Grila g = GrilaDeTiparit();
    auto* pr = new QPrinter(QPrinter::HighResolution);
    AsazaImprimanta(*pr, g);
    auto* d = new QPrintPreviewDialog(pr, this);
    d->setObjectName(QStringLiteral("frmPreview"));
    d->setAttribute(Qt::WA_DeleteOnClose);
    connect(d, &QObject::destroyed, [pr] { delete pr; });
    connect(d, &QPrintPreviewDialog::paintRequested, d, [g](QPrinter* p) { Deseneaza(*p, g); });
    if (auto* w = d->findChild<QPrintPreviewWidget*>()) {
        w->setZoomMode(QPrintPreviewWidget::CustomZoom);
        w->setZoomFactor(1.0);
    }
    d->resize(size());
    d->open();
}

void UiFereastraRaport::cmdPrint_Click() {
    if (!m_.Intrebare(QStringLiteral("Doriti sa tipariti toate paginile?"))) return;
    const Grila g = GrilaDeTiparit();
    QPrinter pr(QPrinter::HighResolution);
    AsazaImprimanta(pr, g);
    if (Tipareste) return Tipareste(pr);
    LaMargine(m_, [&] { Deseneaza(pr, g); });
}

void UiFereastraRaport::cmdPrintPage_Click() {
    const Grila g = GrilaDeTiparit();
    const auto pagina = PaginaDeTiparit(
        m_.Intrare(QStringLiteral("Introduceti nr paginii pe care doriti sa o tipariti"), QStringLiteral("?")),
        NumarPagini(g));
    if (!pagina) return;
    QPrinter pr(QPrinter::HighResolution);
    AsazaImprimanta(pr, g);
    pr.setFromTo(*pagina, *pagina);
    if (Tipareste) return Tipareste(pr);
    LaMargine(m_, [&] { Deseneaza(pr, g, *pagina); });
}

bool UiFereastraRaport::LucruLung(const std::function<void()>& corp) {
    QProgressDialog progres(this);
    progres.setObjectName(QStringLiteral("progres"));
    progres.setWindowTitle(windowTitle());
    progres.setWindowModality(Qt::WindowModal);
    progres.setCancelButtonText(QStringLiteral("Opreste"));
    progres.setAutoClose(false);
    progres.setAutoReset(false);
    // Shown only when the work lasts: most reports are built before the clerk would read it.
    progres.setMinimumDuration(std::numeric_limits<int>::max());
    progres.setRange(0, 0);
    progres.setMinimumWidth(360);
    QElapsedTimer ceas;
    ceas.start();
    AfisareUrmarire afisare;
    const Urmarire urmarire([&](qint64 facute, qint64 total) {
        const AfisareUrmarire::Afisare a = afisare.Auzit(facute, total);
        progres.setLabelText(a.text);
        progres.setRange(0, a.maxim);
        if (a.maxim > 0) progres.setValue(a.valoare);
        if (!progres.isVisible() && ceas.elapsed() >= 400) progres.show();
        if (progres.isVisible()) QCoreApplication::processEvents();
        return !progres.wasCanceled();
    });
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool oprit = false;
    const bool gata = LaMargine(m_, [&] {
        try {
            corp();
        } catch (const Oprit&) {
            oprit = true;
        }
    });
    QApplication::restoreOverrideCursor();
    return gata && !oprit;
}
