#include "cases/frmAddAct.h"

#include "cases/UiCampuriAdeverinta.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiMargine.h"

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
    LaMargine(m_, [&] { tipuri = TipuriAdeverinte::Citeste(db); });
    for (const TipAdeverinta& t : tipuri.Toate())
        cboTipAct->addItem(t.Continut, t.DataID);
    cboTipAct->setCurrentIndex(-1);

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
    txtNrAct = CampuriAdeverinta(this, formular, "txtNrAct", dtpData);
    asezare->addLayout(formular);

    asezare->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));
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
    if (!LaMargine(m_, [&] { r = Adeverinte::OkAct(acte_, mod_, index_, citesteControalele(), m_); })) return;
    if (!r.Scris()) {
        if (auto* w = findChild<QWidget*>(r.Focus); w && !r.Focus.isEmpty()) w->setFocus();
        return;
    }
    index_ = r.Index;
    ESTE_OK = true;
    accept();
}
