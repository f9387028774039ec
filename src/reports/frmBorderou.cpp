#include "reports/frmBorderou.h"

#include "base/Ceas.h"
#include "base/Setari.h"
#include "reports/UiGrila.h"
#include "reports/export/Cel.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QDir>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QResizeEvent>
#include <QVBoxLayout>

using namespace Raport;

namespace {

template <class W> W* Numit(W* w, const QString& nume) {
    w->setObjectName(nume);
    return w;
}

QComboBox* Lista(QWidget* parinte, const QString& nume, const QStringList& intrari) {
    auto* c = Numit(new QComboBox(parinte), nume);
    c->addItems(intrari);
    c->setCurrentIndex(-1);
    c->setMinimumWidth(180);
    return c;
}

} // namespace

frmBorderou::frmBorderou(Program& p, Mesaje& m, QWidget* parinte) : UiFereastraRaport(p, m, parinte) {
    setObjectName(QStringLiteral("frmBorderou"));
    setWindowTitle(QStringLiteral("Borderou..."));

    auto* asezare = new QVBoxLayout(this);
    picSus = Numit(new QWidget(this), QStringLiteral("picSus"));
    auto* sus = new QGridLayout(picSus);
    sus->setContentsMargins(0, 0, 0, 0);
    cboTipRaport = Lista(picSus, QStringLiteral("cboTipRaport"), TipuriRaportBorderou());
    cboTipAloc = Lista(picSus, QStringLiteral("cboTipAloc"), TipuriAlocatieBorderou());
    for (int i = 0; i < 2; ++i)
        cboOrd[size_t(i)] = Lista(picSus, QStringLiteral("cboOrd_%1").arg(i), OrdonareBorderou());
    txtCodFiscal = Numit(new QLineEdit(picSus), QStringLiteral("txtCodFiscal"));
    txtNumeAsSoc = Numit(new QLineEdit(picSus), QStringLiteral("txtNumeAsSoc"));
    // What the town hall's data say, for the clerk to see; changed in the town hall's window.
    for (QLineEdit* t : {txtCodFiscal, txtNumeAsSoc})
        t->setReadOnly(true);
    const auto eticheta = [&](const QString& text, int rand, int col) {
        sus->addWidget(new QLabel(text, picSus), rand, col);
    };
    eticheta(QStringLiteral("Tip raport:"), 0, 0);
    sus->addWidget(cboTipRaport, 0, 1);
    eticheta(QStringLiteral("Tip alocatie:"), 1, 0);
    sus->addWidget(cboTipAloc, 1, 1);
    eticheta(QStringLiteral("Ordonare 1 dupa:"), 0, 2);
    sus->addWidget(cboOrd[0], 0, 3);
    eticheta(QStringLiteral("Ordonare 2 dupa:"), 1, 2);
    sus->addWidget(cboOrd[1], 1, 3);
    eticheta(QStringLiteral("Cod Fiscal"), 0, 4);
    sus->addWidget(txtCodFiscal, 0, 5);
    eticheta(QStringLiteral("Nume As Social"), 1, 4);
    sus->addWidget(txtNumeAsSoc, 1, 5);
    eticheta(QStringLiteral("Imprimanta:"), 2, 0);
    sus->addWidget(ListaImprimante(picSus), 2, 1, 1, 3);
    sus->setColumnStretch(5, 1);

    ButoaneComune(picSus);
    cmdExportGrid = Buton(picSus, "cmdExportGrid", QStringLiteral("Salveaza grila"));
    auto* butoane = new QHBoxLayout;
    for (QPushButton* b : {cmdOK, cmdPreview, cmdPrint, cmdPrintPage, cmdExport, cmdExportGrid, cmdClose})
        butoane->addWidget(b);
    butoane->addStretch();
    sus->addLayout(butoane, 3, 0, 1, 6);
    asezare->addWidget(picSus);
    asezare->addWidget(Grid, 1);

    connect(cmdOK, &QPushButton::clicked, this, &frmBorderou::cmdOK_Click);
    connect(cmdExport, &QPushButton::clicked, this, &frmBorderou::cmdExport_Click);
    connect(cmdExportGrid, &QPushButton::clicked, this, &frmBorderou::cmdExportGrid_Click);

    LaMargine(m_, [&] {
        const std::optional<AntetBorderou> antet = DeschideBorderou(p_.bd, m_);
        if (!antet) return;
        if (antet->codFiscal) txtCodFiscal->setText(*antet->codFiscal);
        if (antet->asSocial) txtNumeAsSoc->setText(*antet->asSocial);
    });
    resize(1100, 700);
}

void frmBorderou::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    picSus->setMaximumWidth(std::max(200, width() - 50));
}

Alegeri frmBorderou::Alegerile() const {
    Alegeri a;
    a.luna = p_.setari.LunaSetata;
    a.an = p_.setari.AnSetat;
    a.azi = Ceas::Azi();
    a.hartie = Hartie::A4;
    a.portret = false;
    return a;
}

AlegeriBorderou frmBorderou::AlegerileBorderou() const {
    AlegeriBorderou a;
    a.tipRaport = cboTipRaport->currentIndex();
    a.tipAloc = cboTipAloc->currentIndex();
    a.ord1 = cboOrd[0]->currentIndex();
    a.ord2 = cboOrd[1]->currentIndex();
    a.luna = p_.setari.LunaSetata;
    a.an = p_.setari.AnSetat;
    return a;
}

bool frmBorderou::Alese() {
    const std::optional<RefuzBorderou> refuz = VerificaBorderou(AlegerileBorderou());
    if (!refuz) return true;
    m_.Informatie(refuz->mesaj);
    (refuz->control == RefuzBorderou::Control::TipRaport ? cboTipRaport : cboTipAloc)->setFocus();
    return false;
}

void frmBorderou::cmdOK_Click() {
    if (!Alese()) return;
    Grid->Arata(GrilaNoua(p_.setari));
    LucruLung([&] { Grid->Arata(Borderou(p_.bd, m_, p_.setari, AlegerileBorderou())); });
}

void frmBorderou::cmdExport_Click() {
    if (!Alese()) return;
    QString fisier;
    LucruLung(
        [&] { fisier = ExportaBorderou(p_.bd, m_, p_.setari, AlegerileBorderou(), FolderExportEfectiv(p_.setari)); });
    if (!fisier.isEmpty()) Deschide(fisier);
}

void frmBorderou::cmdExportGrid_Click() {
    LucruLung([&] { SalveazaCel(Grid->Grila(), QDir(FolderExportEfectiv(p_.setari)).filePath(GrilaBorderou)); });
}
