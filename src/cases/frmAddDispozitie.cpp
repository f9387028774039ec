#include "cases/frmAddDispozitie.h"

#include "cases/Anchete.h"
#include "base/Texte.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QDateEdit>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTimer>

namespace {

constexpr int LungimeMaxima[5] = {8, 4, 8, 8, 255};

} // namespace

frmAddDispozitie::frmAddDispozitie(BazaDate& db, Mesaje& m, int adaug, qint64 cerereID, qint64 dispozitieID,
                                   QWidget* parinte)
    : QDialog(parinte), db_(db), m_(m), mod_(adaug == 2 ? ModDispozitie::Modificare : ModDispozitie::Adaugare),
      cerereID_(cerereID), dispozitieID_(adaug == 2 ? dispozitieID : 0) {
    setObjectName(QStringLiteral("frmAddDispozitie"));
    const QString titlu = mod_ == ModDispozitie::Modificare ? QStringLiteral("Modificare Dispozitie")
                                                            : QStringLiteral("Adaugare dispozitii");
    setWindowTitle(titlu);
    asazaControale();
    lblInfo->setText(titlu);
    LaMargine(m_, [&] {
        for (const auto& e : Anchete::ListaDateGen(db_, TipDateGen::Actiune))
            cboDispoz[0]->addItem(e.Continut, e.DataID);
        cboDispoz[0]->setCurrentIndex(-1);
        const auto d = mod_ == ModDispozitie::Modificare ? Dispozitii::DeschideModificare(db_, m_, dispozitieID_)
                                                         : Dispozitii::DeschideAdaugare(db_, m_, cerereID_);
        if (d) {
            cerereID_ = d->d.CerereID;
            arata(*d);
            deschisa_ = true;
        }
    });
    if (!deschisa_) QTimer::singleShot(0, this, &QDialog::reject);
}

void frmAddDispozitie::asazaControale() {
    auto* grila = new QGridLayout(this);
    grila->setColumnStretch(1, 1);
    grila->setColumnStretch(3, 1);
    GrilaEtichete gr{grila, this};
    auto text = [&](int i, QWidget* parinte) {
        auto* t = new QLineEdit(parinte);
        t->setObjectName(QStringLiteral("txtDispoz_%1").arg(i));
        t->setMaxLength(LungimeMaxima[i]);
        if (i <= 3) t->setValidator(new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9.,]*")), t));
        t->installEventFilter(this);
        txtDispoz[size_t(i)] = t;
        return t;
    };
    auto lista = [&](int i) {
        auto* c = new QComboBox(this);
        c->setObjectName(QStringLiteral("cboDispoz_%1").arg(i));
        c->installEventFilter(this);
        cboDispoz[size_t(i)] = c;
        return c;
    };

    lblInfo = new QLabel(this);
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    QFont mare = lblInfo->font();
    mare.setBold(true);
    mare.setPointSizeF(mare.pointSizeF() * 1.3);
    lblInfo->setFont(mare);
    grila->addWidget(lblInfo, gr.rand++, 0, 1, 4);

    lblNrCerere = EtichetaValoare(this, "lblNrCerere", 90);
    gr.pe(0, QStringLiteral("Nr cerere:"), lblNrCerere);
    lblDataCerere = EtichetaValoare(this, "lblDataCerere", 90);
    gr.pe(2, QStringLiteral("Data cerere:"), lblDataCerere);
    ++gr.rand;
    grila->addWidget(LinieOrizontala(this), gr.rand++, 0, 1, 4);

    gr.pe(0, QStringLiteral("Nr dispozitie:"), text(0, this));
    dtpData = new QDateEdit(this);
    dtpData->setObjectName(QStringLiteral("dtpData"));
    dtpData->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    dtpData->setCalendarPopup(true);
    dtpData->setMinimumDate(QDate(1900, 1, 1));
    dtpData->installEventFilter(this);
    gr.pe(2, QStringLiteral("Data dispozitie:"), dtpData);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Tip dispozitie"), lista(0), 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Incepand cu luna:"), lista(1));
    for (int i = 0; i < 12; ++i)
        cboDispoz[1]->addItem(LuniAn()[i], i + 1);
    cboDispoz[1]->setCurrentIndex(-1);
    gr.pe(2, QStringLiteral("anul:"), text(1, this));
    ++gr.rand;

    // The amount block: the amount, and for a change the new one beside it.
    picMiddle = new QWidget(this);
    picMiddle->setObjectName(QStringLiteral("picMiddle"));
    auto* suma = new QHBoxLayout(picMiddle);
    suma->setContentsMargins(0, 0, 0, 0);
    lblModificarea = new QLabel(picMiddle);
    lblModificarea->setObjectName(QStringLiteral("lblModificarea"));
    suma->addWidget(lblModificarea);
    suma->addWidget(text(2, picMiddle), 1);
    suma->addWidget(new QLabel(QStringLiteral("lei"), picMiddle));
    suma->addSpacing(12);
    lblInSuma = new QLabel(QStringLiteral("in suma de:"), picMiddle);
    lblInSuma->setObjectName(QStringLiteral("lblInSuma"));
    suma->addWidget(lblInSuma);
    suma->addWidget(text(3, picMiddle), 1);
    lblInSumaLei = new QLabel(QStringLiteral("lei"), picMiddle);
    lblInSumaLei->setObjectName(QStringLiteral("lblInSumaLei"));
    suma->addWidget(lblInSumaLei);
    grila->addWidget(picMiddle, gr.rand++, 0, 1, 4);

    lblMotiv = new QLabel(this);
    lblMotiv->setObjectName(QStringLiteral("lblMotiv"));
    grila->addWidget(lblMotiv, gr.rand, 0);
    grila->addWidget(text(4, this), gr.rand++, 1, 1, 3);
    lblMotiv->setBuddy(txtDispoz[4]);
    grila->setRowStretch(gr.rand++, 1);

    grila->addLayout(RandOkRenunta(
                         this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Focalizat),
                     gr.rand, 0, 1, 4);
    setMinimumWidth(560);

    arataBlocurile();
    connect(cboDispoz[0], &QComboBox::currentIndexChanged, this, &frmAddDispozitie::cboDispoz_Click);
}

void frmAddDispozitie::arata(const DeschidereDispozitie& d) {
    lblNrCerere->setText(d.NrCerere);
    lblDataCerere->setText(FormatData(d.DataCerere));
    txtDispoz[0]->setText(d.d.NrDisp);
    if (d.d.DataDisp.isValid()) dtpData->setDate(d.d.DataDisp);
    AlegeCheia(cboDispoz[0], d.d.Actiune);
    AlegeCheia(cboDispoz[1], d.d.Luna);
    txtDispoz[1]->setText(d.d.An);
    txtDispoz[2]->setText(d.d.Suma);
    txtDispoz[3]->setText(d.d.SumaNoua);
    txtDispoz[4]->setText(d.d.Motiv);
}

void frmAddDispozitie::cboDispoz_Click() {
    Dispozitii::AplicaActiune(blocuri_, CheieAleasa(cboDispoz[0]));
    arataBlocurile();
}

void frmAddDispozitie::arataBlocurile() {
    lblModificarea->setText(blocuri_.lblModificarea);
    lblMotiv->setText(blocuri_.lblMotiv);
    picMiddle->setVisible(blocuri_.picMiddle);
    for (QWidget* w :
         {static_cast<QWidget*>(lblInSuma), static_cast<QWidget*>(txtDispoz[3]), static_cast<QWidget*>(lblInSumaLei)})
        w->setVisible(blocuri_.SumaNoua);
    lblMotiv->setVisible(blocuri_.Motiv);
    txtDispoz[4]->setVisible(blocuri_.Motiv);
}

Dispozitie frmAddDispozitie::citesteControalele() const {
    Dispozitie d;
    d.DispozitieID = dispozitieID_;
    d.CerereID = cerereID_;
    d.NrDisp = txtDispoz[0]->text();
    d.DataDisp = dtpData->date();
    d.Actiune = CheieAleasa(cboDispoz[0]);
    d.Luna = CheieAleasa(cboDispoz[1]);
    d.An = txtDispoz[1]->text();
    d.Suma = txtDispoz[2]->text();
    d.SumaNoua = txtDispoz[3]->text();
    d.Motiv = txtDispoz[4]->text();
    return d;
}

void frmAddDispozitie::cmdOK_Click() {
    const bool salvata = LaMargine(m_, [&] {
        const Dispozitie d = citesteControalele();
        const VerificareDispozitie v = Dispozitii::VerificaControale(db_, m_, d, mod_);
        if (!UrmeazaVerificarea(this, v.ok, v.inchide, v.control)) return false;
        dispozitieID_ = Dispozitii::Salveaza(db_, d, mod_);
        return true;
    });
    if (!salvata) return;
    ESTE_OK = true;
    accept();
}

bool frmAddDispozitie::eventFilter(QObject* obiect, QEvent* e) {
    if (EnterCaTab(obiect, e)) {
        focusNextChild();
        return true;
    }
    return QDialog::eventFilter(obiect, e);
}
