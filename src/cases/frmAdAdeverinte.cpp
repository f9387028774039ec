#include "cases/frmAdAdeverinte.h"

#include "cases/UiCampuriAdeverinta.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QFormLayout>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmAdAdeverinte::frmAdAdeverinte(BazaDate& db, Mesaje& m, int adaug, const AdeverintaScolara& rec, QWidget* parinte)
    : QDialog(parinte), Adaug(adaug == 2 ? 2 : 1), RecAdev(rec), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmAdAdeverinte"));
    setWindowTitle(Adaug == 2 ? QStringLiteral("Modificare adeverinta") : QStringLiteral("Adaugare adeverinta"));
    asazaControale();
    LaMargine(m_, [&] {
        const TipuriAdeverinte tipuri = TipuriAdeverinte::Citeste(db_);
        for (const TipAdeverinta& t : tipuri.Toate())
            cboTipAdev->addItem(t.Continut, t.DataID);
        if (const auto a = Adeverinte::Antet(db_, rec.CerereID, rec.MembruID)) {
            lblNrCerere->setText(a->NrCerere);
            lblTitular->setText(a->Titular);
            lblScolar->setText(a->Scolar);
        }
    });
    cboTipAdev->setCurrentIndex(cboTipAdev->findData(rec.TipAdeverinta));
    txtNrAdev->setText(rec.NrAdev);
    dtpData[0]->setData(rec.DataAdeverinta);
    dtpData[1]->setData(rec.DataDepunerii);
    dtpData[2]->setData(rec.DataExpAdev);
}

void frmAdAdeverinte::asazaControale() {
    auto* asezare = new QVBoxLayout(this);
    auto* formular = new QFormLayout;
    formular->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    lblNrCerere = EtichetaValoare(this, "lblNrCerere", 220);
    formular->addRow(QStringLiteral("Nr. cerere:"), lblNrCerere);
    lblTitular = EtichetaValoare(this, "lblTitular", 220);
    formular->addRow(QStringLiteral("Titular:"), lblTitular);
    lblScolar = EtichetaValoare(this, "lblScolar", 220);
    formular->addRow(QStringLiteral("Scolar:"), lblScolar);
    txtNrAdev = CampuriAdeverinta(this, formular, "txtNrAdev", dtpData);
    cboTipAdev = new QComboBox(this);
    cboTipAdev->setObjectName(QStringLiteral("cboTipAdev"));
    cboTipAdev->setMinimumContentsLength(28);
    formular->addRow(QStringLiteral("Tip adeverinta:"), cboTipAdev);
    asezare->addLayout(formular);

    asezare->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));
}

AdeverintaScolara frmAdAdeverinte::citesteControalele() const {
    AdeverintaScolara a = RecAdev;
    a.NrAdev = txtNrAdev->text();
    a.DataAdeverinta = dtpData[0]->data();
    a.DataDepunerii = dtpData[1]->data();
    a.DataExpAdev = dtpData[2]->data();
    a.TipAdeverinta = cboTipAdev->currentIndex() >= 0 ? cboTipAdev->currentData().toInt() : 0;
    return a;
}

void frmAdAdeverinte::cmdOK_Click() {
    if (!VerificaBD(db_, m_)) return;
    AdeverintaScolara a = citesteControalele();
    const QString focus = Adeverinte::VerificaAdeverintaScolara(a, m_);
    if (!focus.isEmpty()) {
        if (auto* w = findChild<QWidget*>(focus)) w->setFocus();
        return;
    }
    if (!LaMargine(m_, [&] { a.AdevID = Adeverinte::SalveazaAdeverintaScolara(db_, a, Adaug == 1); })) return;
    RecAdev = a;
    ESTE_OK = true;
    accept();
}
