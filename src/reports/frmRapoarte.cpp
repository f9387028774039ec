#include "reports/frmRapoarte.h"

#include "base/Ceas.h"
#include "base/Foldere.h"
#include "base/Setari.h"
#include "cases/ListaCereri.h"
#include "reports/Rapoarte.h"
#include "reports/UiGrila.h"
#include "reports/builders/Bas.h"
#include "reports/export/Cel.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
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

// The entry of the report that builds slowly: its message paints before the work starts.
constexpr int IndexActeExpira = 16;

} // namespace

frmRapoarte::frmRapoarte(Program& p, Mesaje& m, QWidget* parinte) : UiFereastraRaport(p, m, parinte) {
    setObjectName(QStringLiteral("frmRapoarte"));
    setWindowTitle(QStringLiteral("Rapoarte ..."));

    auto* asezare = new QVBoxLayout(this);
    picSus = Numit(new QWidget(this), QStringLiteral("picSus"));
    auto* susPanou = new QVBoxLayout(picSus);
    susPanou->setContentsMargins(0, 0, 0, 0);
    QGridLayout* sus = ControaleAlegeri(picSus, int(Catalog().size()));
    susPanou->addLayout(sus);
    chkMembrii = Numit(new QCheckBox(QStringLiteral("Titular + membrii"), picSus), QStringLiteral("chkMembrii"));
    sus->addWidget(chkMembrii, 2, 2);

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

    auto* butoane = new QHBoxLayout;
    cmdExportGrid = Buton(picSus, "cmdExportGrid", QStringLiteral("Salveaza grila"));
    cmdBAS = {Buton(picSus, "cmdBAS_0", QStringLiteral("A23 BAS")),
              Buton(picSus, "cmdBAS_1", QStringLiteral("A25 BAS"))};
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

    asezare->addWidget(Grid, 1);
    Timer1 = Numit(new QTimer(this), QStringLiteral("Timer1"));
    Timer1->setInterval(50);
    Timer1->setSingleShot(true);

    connect(cmdOK, &QPushButton::clicked, this, &frmRapoarte::cmdOK_Click);
    connect(cmdExport, &QPushButton::clicked, this, &frmRapoarte::cmdExport_Click);
    connect(cmdExportGrid, &QPushButton::clicked, this, &frmRapoarte::cmdExportGrid_Click);
    connect(Timer1, &QTimer::timeout, this, &frmRapoarte::Timer1_Timer);
    for (size_t i = 0; i < cmdBAS.size(); ++i)
        connect(cmdBAS[i], &QPushButton::clicked, this, [this, i] {
            QString fisier;
            LucruLung([&] {
                fisier = ExportaBas(p_.bd, FormularBas(i), p_.applicationPath, Foldere::FolderLivrat(),
                                    FolderExportEfectiv(p_.setari));
            });
            if (!fisier.isEmpty()) Deschide(fisier);
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
    resize(1100, 700);
}

void frmRapoarte::resizeEvent(QResizeEvent* e) {
    QDialog::resizeEvent(e);
    picSus->setMaximumWidth(std::max(200, width() - 50));
}

void frmRapoarte::cboTipRaport_Click() {
    UiFereastraRaport::cboTipRaport_Click();
    chkMembrii->setEnabled(Filtre(cboTipRaport->currentIndex()).membri);
}

Alegeri frmRapoarte::Alegerile() const {
    Alegeri a = UiFereastraRaport::Alegerile();
    a.membri = chkMembrii->isEnabled() && chkMembrii->isChecked();
    for (const QListWidgetItem* i : lstStare->selectedItems())
        a.stari << i->data(Qt::UserRole).toLongLong();
    a.nrBord = txtNrBord->text();
    a.dataBord = dtpBorderou->date();
    return a;
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
    Grid->Arata(GrilaNoua(p_.setari));
    LucruLung([&] {
        Grid->Arata(Raport::Construieste(cboTipRaport->currentIndex(), false, p_.bd, m_, Mediul(), Alegerile()));
    });
}

void frmRapoarte::cmdExport_Click() {
    if (cboTipRaport->currentIndex() < 0) {
        m_.Informatie(QStringLiteral("Selectati din lista un tip de raport!"));
        return;
    }
    std::optional<QString> fisier;
    LucruLung([&] {
        fisier = Exporta(cboTipRaport->currentIndex(), p_.bd, m_, Mediul(), Alegerile(), FolderExportEfectiv(p_.setari),
                         [this](const Grila& g) { Grid->Arata(g); });
    });
    if (fisier) Deschide(*fisier);
}

void frmRapoarte::cmdExportGrid_Click() {
    const QString nume = NumeFisier(cboTipRaport->currentText(), QStringLiteral(".cel"));
    LucruLung([&] { SalveazaCel(Grid->Grila(), QDir(FolderExportEfectiv(p_.setari)).filePath(nume)); });
}
