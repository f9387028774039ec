#include "cases/frmAddLocuinta.h"

#include "cases/StareCerere.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiMargine.h"
#include "store/Schema.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

const char* const EticheteListe[5] = {
    "Mod de dobandire:", "Regim juridic:", "Locuieste:", "Tip locuinta:", "Tip incalzire:"};

} // namespace

frmAddLocuinta::frmAddLocuinta(BazaDate& bd, Mesaje& m, StareCerere& stare, QWidget* parinte)
    : QDialog(parinte), m_(m), stare_(stare) {
    setObjectName(QStringLiteral("frmAddLocuinta"));
    setWindowTitle(QStringLiteral("Locuinta"));
    asazaControale();
    LaMargine(m_, [&] {
        const auto liste = CitesteListeLocuinta(bd);
        for (size_t i = 0; i < liste.size(); ++i)
            for (const OptiuneLista& o : liste[i])
                cboLocuinta[i]->addItem(o.Continut, o.DataID);
    });
    arata(DateDinStare(stare_));
    connect(chkPolita[0], &QCheckBox::toggled, this, &frmAddLocuinta::chkPolita_Click);
    for (QWidget* w : findChildren<QWidget*>())
        w->installEventFilter(this);
}

void frmAddLocuinta::asazaControale() {
    auto* asezare = new QVBoxLayout(this);

    auto* tipuri = new QGroupBox(QStringLiteral("Tipul locuintei"), this);
    auto* grilaTipuri = new QGridLayout(tipuri);
    for (size_t i = 0; i < chkLocuinta.size(); ++i) {
        chkLocuinta[i] = new QCheckBox(TipuriLocuinta[i], tipuri);
        chkLocuinta[i]->setObjectName(QStringLiteral("chkLocuinta_%1").arg(i));
        grilaTipuri->addWidget(chkLocuinta[i], int(i % 4), int(i / 4));
    }
    asezare->addWidget(tipuri);

    auto* date = new QGridLayout;
    date->setColumnStretch(1, 1);
    txtNrCamere = new QLineEdit(this);
    txtNrCamere->setObjectName(QStringLiteral("txtNrCamere"));
    txtNrCamere->setMaximumWidth(80);
    auto* lblCamere = new QLabel(QStringLiteral("Nr camere:"), this);
    lblCamere->setBuddy(txtNrCamere);
    date->addWidget(lblCamere, 0, 0);
    date->addWidget(txtNrCamere, 0, 1, Qt::AlignLeft);
    for (size_t i = 0; i < cboLocuinta.size(); ++i) {
        cboLocuinta[i] = new QComboBox(this);
        cboLocuinta[i]->setObjectName(QStringLiteral("cboLocuinta_%1").arg(i));
        cboLocuinta[i]->setSizeAdjustPolicy(QComboBox::AdjustToContents);
        auto* l = new QLabel(QLatin1String(EticheteListe[i]), this);
        l->setBuddy(cboLocuinta[i]);
        date->addWidget(l, int(i) + 1, 0);
        date->addWidget(cboLocuinta[i], int(i) + 1, 1);
    }
    asezare->addLayout(date);

    chkPolita[0] = new QCheckBox(QStringLiteral("Are incheiata polita de asigurare"), this);
    chkPolita[0]->setObjectName(QStringLiteral("chkPolita_0"));
    asezare->addWidget(chkPolita[0]);

    fraPolita = new QGroupBox(QStringLiteral("Polita de asigurare a locuintei"), this);
    fraPolita->setObjectName(QStringLiteral("fraPolita"));
    auto* grilaPolita = new QGridLayout(fraPolita);
    grilaPolita->setColumnStretch(1, 1);
    grilaPolita->setColumnStretch(3, 1);
    const char* const campuri[2] = {"SocietatePolita", "NrPolita"};
    for (size_t i = 0; i < txtLocuinta.size(); ++i) {
        txtLocuinta[i] = new QLineEdit(fraPolita);
        txtLocuinta[i]->setObjectName(QStringLiteral("txtLocuinta_%1").arg(i));
        if (const CampSchema* c = Schema::Camp(QStringLiteral("Cereri"), QLatin1String(campuri[i])); c && c->marime > 0)
            txtLocuinta[i]->setMaxLength(c->marime);
        dtpData[i] = new UiDataOptionala(fraPolita);
        dtpData[i]->setObjectName(QStringLiteral("dtpData_%1").arg(i));
    }
    auto rand = [&](int r, const QString& e1, QWidget* w1, const QString& e2, QWidget* w2) {
        auto* l1 = new QLabel(e1, fraPolita);
        l1->setBuddy(w1);
        auto* l2 = new QLabel(e2, fraPolita);
        l2->setBuddy(w2);
        grilaPolita->addWidget(l1, r, 0);
        grilaPolita->addWidget(w1, r, 1);
        grilaPolita->addWidget(l2, r, 2);
        grilaPolita->addWidget(w2, r, 3);
    };
    rand(0, QStringLiteral("De la societatea"), txtLocuinta[0], QStringLiteral("Nr polita"), txtLocuinta[1]);
    rand(1, QStringLiteral("Valabila de la data"), dtpData[0], QStringLiteral("pana la data"), dtpData[1]);
    chkPolita[1] = new QCheckBox(QStringLiteral("Polita acopera riscurile obligatorii"), fraPolita);
    chkPolita[1]->setObjectName(QStringLiteral("chkPolita_1"));
    grilaPolita->addWidget(chkPolita[1], 2, 0, 1, 4);
    asezare->addWidget(fraPolita);
    asezare->addStretch(1);

    asezare->addLayout(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Niciunul));
}

void frmAddLocuinta::arata(const DateLocuinta& d) {
    for (size_t i = 0; i < chkLocuinta.size(); ++i)
        chkLocuinta[i]->setChecked(d.chkLocuinta[i]);
    txtNrCamere->setText(d.txtNrCamere);
    for (size_t i = 0; i < cboLocuinta.size(); ++i)
        cboLocuinta[i]->setCurrentIndex(d.cboLocuinta[i] == 0 ? -1 : cboLocuinta[i]->findData(d.cboLocuinta[i]));
    for (size_t i = 0; i < chkPolita.size(); ++i)
        chkPolita[i]->setChecked(d.chkPolita[i]);
    for (size_t i = 0; i < txtLocuinta.size(); ++i) {
        txtLocuinta[i]->setText(d.txtLocuinta[i]);
        dtpData[i]->setData(d.dtpData[i]);
    }
    fraPolita->setVisible(d.chkPolita[0]);
}

DateLocuinta frmAddLocuinta::citesteControalele() const {
    DateLocuinta d;
    for (size_t i = 0; i < chkLocuinta.size(); ++i)
        d.chkLocuinta[i] = chkLocuinta[i]->isChecked();
    d.txtNrCamere = txtNrCamere->text();
    for (size_t i = 0; i < cboLocuinta.size(); ++i)
        d.cboLocuinta[i] = cboLocuinta[i]->currentIndex() < 0 ? 0 : cboLocuinta[i]->currentData().toInt();
    for (size_t i = 0; i < chkPolita.size(); ++i)
        d.chkPolita[i] = chkPolita[i]->isChecked();
    for (size_t i = 0; i < txtLocuinta.size(); ++i) {
        d.txtLocuinta[i] = txtLocuinta[i]->text();
        d.dtpData[i] = dtpData[i]->data();
    }
    return d;
}

void frmAddLocuinta::chkPolita_Click() {
    fraPolita->setVisible(chkPolita[0]->isChecked());
}

void frmAddLocuinta::cmdOK_Click() {
    if (const auto refuz = CopiazaInStare(citesteControalele(), stare_)) {
        m_.Avertisment(refuz->Mesaj);
        if (auto* w = findChild<QWidget*>(refuz->Control)) w->setFocus();
        return;
    }
    ESTE_OK = true;
    accept();
}

bool frmAddLocuinta::eventFilter(QObject* obiect, QEvent* e) {
    // Enter on a button is left to the button.
    if (!qobject_cast<QPushButton*>(obiect) && EnterCaTab(obiect, e)) {
        focusNextChild();
        return true;
    }
    return QDialog::eventFilter(obiect, e);
}
