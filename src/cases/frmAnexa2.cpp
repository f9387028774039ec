#include "cases/frmAnexa2.h"

#include "cases/Anchete.h"
#include "base/Ceas.h"
#include "base/Texte.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

namespace {

// The elements of the control arrays: the kind of disposition, and the choices of what to print.
enum Cbo : int { cboTipDispozitie = 0 };
enum Opt : int { optLuna = 0, optNrCerere = 1, optNrDispozitie = 2, optAfisate = 3 };

void luni(QComboBox* c, int luna) {
    for (int i = 0; i < 12; ++i)
        c->addItem(LuniAn()[i], i + 1);
    c->setCurrentIndex(luna >= 1 && luna <= 12 ? luna - 1 : -1);
}

void tipuriCerere(QComboBox* c) {
    c->addItem(QStringLiteral("cu sot/sotie/etc"), 1);
    c->addItem(QStringLiteral("monoparental"), 2);
    c->setCurrentIndex(-1);
}

} // namespace

frmAnexa2::frmAnexa2(BazaDate& db, Mesaje& m, int lunaSetata, int anSetat, QWidget* parinte)
    : QDialog(parinte), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmAnexa2"));
    setWindowTitle(QStringLiteral("Selectati modul de tiparire a dispozitiilor"));
    asazaControale();
    luni(cboLuna, lunaSetata);
    luni(cboDispoz_1, lunaSetata);
    if (anSetat > 0) txtDispoz[1]->setText(QString::number(anSetat));
    dtpData->setDate(Ceas::Azi());
    LaMargine(m_, [&] {
        for (const auto& e : Anchete::ListaDateGen(db_, TipDateGen::Actiune))
            cboCerere[cboTipDispozitie]->addItem(e.Continut, e.DataID);
    });
    cboCerere[cboTipDispozitie]->setCurrentIndex(-1);
    RuleazaGenerarea = [this](ParametriGenerare p) { return genereazaCuProgres(std::move(p)); };
}

void frmAnexa2::asazaControale() {
    auto* principal = new QVBoxLayout(this);
    const auto numere = new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this);
    auto text = [&](const QString& nume, int lungime) {
        auto* t = new QLineEdit(this);
        t->setObjectName(nume);
        t->setMaxLength(lungime);
        t->setValidator(numere);
        return t;
    };
    auto lista = [&](const QString& nume) {
        auto* c = new QComboBox(this);
        c->setObjectName(nume);
        c->setMinimumContentsLength(14);
        return c;
    };
    auto eticheta = [](QGridLayout* g, int rand, int coloana, const QString& text, QWidget* control) {
        auto* l = new QLabel(text);
        l->setBuddy(control);
        g->addWidget(l, rand, coloana);
        g->addWidget(control, rand, coloana + 1);
    };
    auto interval = [&](QLineEdit* min, QLineEdit* max) {
        auto* r = new QHBoxLayout;
        r->addWidget(min);
        r->addWidget(new QLabel(QStringLiteral("-")));
        r->addWidget(max);
        return r;
    };

    // What the printing takes.
    auto* tiparire = new QGroupBox(QStringLiteral("Tiparire dispozitii"), this);
    auto* gt = new QGridLayout(tiparire);
    gt->setColumnStretch(1, 1);
    cboCerere[cboTipDispozitie] = lista(QStringLiteral("cboCerere_0"));
    eticheta(gt, 0, 0, QStringLiteral("Tip Dispozitie"), cboCerere[cboTipDispozitie]);
    cboTipDisp = lista(QStringLiteral("cboTipDisp"));
    tipuriCerere(cboTipDisp);
    eticheta(gt, 1, 0, QStringLiteral("Statut cerere"), cboTipDisp);
    const char* const optiuni[4] = {
        "Luna:", "Cererile de la Nr Cerere:", "Cererile de la Nr Dispozitie:", "Cererile afisate in lista"};
    for (int i = 0; i < int(opt.size()); ++i) {
        opt[size_t(i)] = new QRadioButton(QLatin1String(optiuni[i]), tiparire);
        opt[size_t(i)]->setObjectName(QStringLiteral("opt_%1").arg(i));
    }
    opt[optLuna]->setChecked(true);
    cboLuna = lista(QStringLiteral("cboLuna"));
    gt->addWidget(opt[optLuna], 2, 0);
    gt->addWidget(cboLuna, 2, 1);
    txtDispozitieMin = text(QStringLiteral("txtDispozitieMin"), 8);
    txtDispozitieMax = text(QStringLiteral("txtDispozitieMax"), 8);
    gt->addWidget(opt[optNrDispozitie], 3, 0);
    gt->addLayout(interval(txtDispozitieMin, txtDispozitieMax), 3, 1);
    txtCerereMin = text(QStringLiteral("txtCerereMin"), 8);
    txtCerereMax = text(QStringLiteral("txtCerereMax"), 8);
    gt->addWidget(opt[optNrCerere], 4, 0);
    gt->addLayout(interval(txtCerereMin, txtCerereMax), 4, 1);
    gt->addWidget(opt[optAfisate], 5, 0, 1, 2);
    cboOrder = lista(QStringLiteral("cboOrder"));
    cboOrder->addItem(QStringLiteral("Nr dispozitie"));
    cboOrder->addItem(QStringLiteral("Nr cerere"));
    eticheta(gt, 6, 0, QStringLiteral("Ordonare:"), cboOrder);
    principal->addWidget(tiparire);

    // What the generation writes.
    auto* generare = new QGroupBox(QStringLiteral("Generare dispozitii de acordare"), this);
    auto* gg = new QGridLayout(generare);
    gg->setColumnStretch(1, 1);
    gg->setColumnStretch(3, 1);
    cboTipCerere = lista(QStringLiteral("cboTipCerere"));
    tipuriCerere(cboTipCerere);
    eticheta(gg, 0, 0, QStringLiteral("Tip Cerere:"), cboTipCerere);
    cboCuantum = lista(QStringLiteral("cboCuantum"));
    cboCuantum->addItem(QStringLiteral("NEACORDARE - egal cu 0"));
    cboCuantum->addItem(QStringLiteral("ACORDARE - diferit de 0"));
    cboCuantum->setCurrentIndex(-1);
    eticheta(gg, 0, 2, QStringLiteral("Cereri cu cuantum:"), cboCuantum);
    txtDispoz[0] = text(QStringLiteral("txtDispoz_0"), 8);
    eticheta(gg, 1, 0, QStringLiteral("Incepand cu nr dispozitie:"), txtDispoz[0]);
    dtpData = new QDateEdit(this);
    dtpData->setObjectName(QStringLiteral("dtpData"));
    dtpData->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    dtpData->setCalendarPopup(true);
    dtpData->setMinimumDate(QDate(1900, 1, 1));
    eticheta(gg, 1, 2, QStringLiteral("Data dispozitie:"), dtpData);
    cboDispoz_1 = lista(QStringLiteral("cboDispoz_1"));
    eticheta(gg, 2, 0, QStringLiteral("Incepand cu luna:"), cboDispoz_1);
    txtDispoz[1] = text(QStringLiteral("txtDispoz_1"), 4);
    eticheta(gg, 2, 2, QStringLiteral("anul:"), txtDispoz[1]);
    cmdGenerate = new QPushButton(QStringLiteral("Genereaza"), this);
    cmdGenerate->setObjectName(QStringLiteral("cmdGenerate"));
    auto* randGenerare = new QHBoxLayout;
    randGenerare->addStretch(1);
    randGenerare->addWidget(cmdGenerate);
    gg->addLayout(randGenerare, 3, 0, 1, 4);
    principal->addWidget(generare);

    principal->addLayout(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Focalizat));

    connect(cmdGenerate, &QPushButton::clicked, this, &frmAnexa2::cmdGenerate_Click);
}

void frmAnexa2::cmdGenerate_Click() {
    ParametriGenerare p;
    p.NrStart = txtDispoz[0]->text();
    p.TipCerere = CheieAleasa(cboTipCerere);
    p.DataDisp = dtpData->date();
    p.Luna = CheieAleasa(cboDispoz_1);
    p.An = txtDispoz[1]->text();
    RezultatGenerare r;
    if (!LaMargine(m_, [&] { r = RuleazaGenerarea(std::move(p)); })) return;
    if (!r.ok) {
        if (auto* w = r.control.isEmpty() ? nullptr : findChild<QWidget*>(r.control)) w->setFocus();
        return;
    }
    Generate = r.Generate;
    reject();
}

RezultatGenerare frmAnexa2::genereazaCuProgres(ParametriGenerare p) {
    QProgressDialog progres(QStringLiteral("Se genereaza dispozitiile..."), QStringLiteral("Opreste"), 0, 1, this);
    progres.setObjectName(QStringLiteral("progres"));
    progres.setWindowTitle(windowTitle());
    progres.setWindowModality(Qt::WindowModal);
    progres.setMinimumDuration(500);
    progres.setAutoClose(false);
    progres.setAutoReset(false);
    p.Progres = [&progres](qint64 facute, qint64 total) {
        if (progres.maximum() != int(total)) progres.setMaximum(int(total));
        progres.setValue(int(facute));
        const bool continua = !progres.wasCanceled();
        // Gone before the closing messages, which tell the clerk how the run ended.
        if (facute >= total) progres.reset();
        return continua;
    };
    RezultatGenerare r = Dispozitii::Genereaza(db_, m_, p);
    progres.close();
    return r;
}

void frmAnexa2::cmdOK_Click() {
    Selectie.Actiune = CheieAleasa(cboCerere[cboTipDispozitie]);
    Selectie.TipCerere = CheieAleasa(cboTipDisp);
    Selectie.Luna = CheieAleasa(cboLuna);
    Selectie.NrMin = txtDispozitieMin->text();
    Selectie.NrMax = txtDispozitieMax->text();
    ESTE_OK = true;
    accept();
}
