#include "cases/frmAddAct.h"

#include "shell/Ceas.h"
#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/UiDataOptionala.h"
#include "store/Schema.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmAddAct::frmAddAct(BazaDate& db, Mesaje& m, std::vector<AdeverintaMembru>& acte, int index, QWidget* parinte)
    : QDialog(parinte), m_(m), acte_(acte), index_(index >= 0 && size_t(index) < acte.size() ? index : -1),
      mod_(index_ >= 0 ? ModAct::Modificare : ModAct::Adaugare) {
    setObjectName(QStringLiteral("frmAddAct"));
    setWindowTitle(mod_ == ModAct::Modificare ? QStringLiteral("Modificare act") : QStringLiteral("Adaugare act"));
    asazaControale();

    TipuriAdeverinte tipuri;
    try {
        tipuri = TipuriAdeverinte::Citeste(db);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
    for (const TipAdeverinta& t : tipuri.Toate())
        cboTipAct->addItem(t.Continut, t.DataID);
    cboTipAct->setCurrentIndex(-1);

    // An empty box shows today once it is ticked.
    for (UiDataOptionala* d : dtpData) {
        d->setData(Ceas::Azi());
        d->setData(QDate());
    }
    if (mod_ == ModAct::Modificare) {
        const DateAct d = Adeverinte::DinAct(acte_, index_, tipuri);
        cboTipAct->setCurrentIndex(cboTipAct->findData(d.TipAdeverinta));
        txtNrAct->setText(d.NrAdev);
        dtpData[0]->setData(d.DataAdeverinta);
        dtpData[1]->setData(d.DataDepunerii);
        dtpData[2]->setData(d.DataExpAdev);
    }
}

void frmAddAct::asazaControale() {
    auto* asezare = new QVBoxLayout(this);
    auto* formular = new QFormLayout;
    formular->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    cboTipAct = new QComboBox(this);
    cboTipAct->setObjectName(QStringLiteral("cboTipAct"));
    cboTipAct->setMinimumContentsLength(28);
    formular->addRow(QStringLiteral("Tip adeverinta:"), cboTipAct);
    txtNrAct = new QLineEdit(this);
    txtNrAct->setObjectName(QStringLiteral("txtNrAct"));
    if (const CampSchema* c = Schema::Camp(QStringLiteral("Adeverinte"), QStringLiteral("NrAdev")); c && c->marime > 0)
        txtNrAct->setMaxLength(c->marime);
    formular->addRow(QStringLiteral("Nr. adeverinta:"), txtNrAct);
    const QString etichete[3] = {QStringLiteral("Data adeverintei:"), QStringLiteral("Data depunerii:"),
                                 QStringLiteral("Data expirarii:")};
    for (size_t i = 0; i < dtpData.size(); ++i) {
        dtpData[i] = new UiDataOptionala(this);
        dtpData[i]->setObjectName(QStringLiteral("dtpData_%1").arg(i));
        formular->addRow(etichete[i], dtpData[i]);
    }
    asezare->addLayout(formular);

    auto* butoane = new QHBoxLayout;
    butoane->addStretch(1);
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("Renunta"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    butoane->addWidget(cmdOK);
    butoane->addWidget(cmdCancel);
    asezare->addLayout(butoane);
    connect(cmdOK, &QPushButton::clicked, this, &frmAddAct::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

DateAct frmAddAct::citesteControalele() const {
    DateAct d;
    if (cboTipAct->currentIndex() >= 0) {
        d.TipAdeverinta = cboTipAct->currentData().toInt();
        d.TipText = cboTipAct->currentText();
    }
    d.NrAdev = txtNrAct->text();
    d.DataAdeverinta = dtpData[0]->data();
    d.DataDepunerii = dtpData[1]->data();
    d.DataExpAdev = dtpData[2]->data();
    return d;
}

void frmAddAct::cmdOK_Click() {
    RezultatAct r;
    try {
        r = Adeverinte::OkAct(acte_, mod_, index_, citesteControalele(), m_);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    if (!r.Scris()) {
        if (auto* w = findChild<QWidget*>(r.Focus); w && !r.Focus.isEmpty()) w->setFocus();
        return;
    }
    index_ = r.Index;
    ESTE_OK = true;
    accept();
}
