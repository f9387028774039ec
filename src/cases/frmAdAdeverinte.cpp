#include "cases/frmAdAdeverinte.h"

#include "shell/Ceas.h"
#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Pornire.h"
#include "shell/UiDataOptionala.h"
#include "store/Schema.h"

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
    for (UiDataOptionala* d : dtpData) {
        d->setData(Ceas::Azi());
        d->setData(QDate());
    }
    try {
        const TipuriAdeverinte tipuri = TipuriAdeverinte::Citeste(db_);
        for (const TipAdeverinta& t : tipuri.Toate())
            cboTipAdev->addItem(t.Continut, t.DataID);
        if (const auto a = Adeverinte::Antet(db_, rec.CerereID, rec.MembruID)) {
            lblNrCerere->setText(a->NrCerere);
            lblTitular->setText(a->Titular);
            lblScolar->setText(a->Scolar);
        }
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
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
    auto valoare = [&](const char* nume) {
        auto* l = new QLabel(this);
        l->setObjectName(QLatin1String(nume));
        l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        l->setMinimumWidth(220);
        return l;
    };
    lblNrCerere = valoare("lblNrCerere");
    formular->addRow(QStringLiteral("Nr. cerere:"), lblNrCerere);
    lblTitular = valoare("lblTitular");
    formular->addRow(QStringLiteral("Titular:"), lblTitular);
    lblScolar = valoare("lblScolar");
    formular->addRow(QStringLiteral("Scolar:"), lblScolar);
    txtNrAdev = new QLineEdit(this);
    txtNrAdev->setObjectName(QStringLiteral("txtNrAdev"));
    if (const CampSchema* c = Schema::Camp(QStringLiteral("Adeverinte"), QStringLiteral("NrAdev")); c && c->marime > 0)
        txtNrAdev->setMaxLength(c->marime);
    formular->addRow(QStringLiteral("Nr. adeverinta:"), txtNrAdev);
    const QString etichete[3] = {QStringLiteral("Data adeverintei:"), QStringLiteral("Data depunerii:"),
                                 QStringLiteral("Data expirarii:")};
    for (size_t i = 0; i < dtpData.size(); ++i) {
        dtpData[i] = new UiDataOptionala(this);
        dtpData[i]->setObjectName(QStringLiteral("dtpData_%1").arg(i));
        formular->addRow(etichete[i], dtpData[i]);
    }
    cboTipAdev = new QComboBox(this);
    cboTipAdev->setObjectName(QStringLiteral("cboTipAdev"));
    cboTipAdev->setMinimumContentsLength(28);
    formular->addRow(QStringLiteral("Tip adeverinta:"), cboTipAdev);
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
    connect(cmdOK, &QPushButton::clicked, this, &frmAdAdeverinte::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
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
    try {
        a.AdevID = Adeverinte::SalveazaAdeverintaScolara(db_, a, Adaug == 1);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    RecAdev = a;
    ESTE_OK = true;
    accept();
}
