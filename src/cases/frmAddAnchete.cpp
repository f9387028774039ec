#include "cases/frmAddAnchete.h"

#include "shell/Ceas.h"
#include "shell/Eroare.h"
#include "shell/Functii.h"
#include "shell/Mesaje.h"
#include "shell/UiDataOptionala.h"
#include "store/Schema.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

// The field behind each txtCerere, for its width.
const char* const CampText[12] = {"Intocmitor", "NrCamere", "SuprUtila",  "Bunuri",        "Igiena", "Teren",
                                  "Cladiri",    "Spatii",   "AlteBunuri", "StareSanatate", "Nevoi",  "Aspecte"};
// The DateGen list of each cboCerere.
constexpr int TipLista[4] = {4, 5, 7, 8};

std::optional<int> ales(const QComboBox* c) {
    return c->currentIndex() < 0 ? std::nullopt : std::optional<int>(c->currentData().toInt());
}

void alege(QComboBox* c, const std::optional<int>& dataID) {
    c->setCurrentIndex(dataID ? c->findData(*dataID) : -1);
}

} // namespace

frmAddAnchete::frmAddAnchete(BazaDate& db, Mesaje& m, int adaug, qint64 cerereID, qint64 anchetaID, int nrCopiiCerere,
                             QWidget* parinte)
    : QDialog(parinte), db_(db), m_(m), mod_(adaug == 2 ? ModAncheta::Modificare : ModAncheta::Adaugare),
      cerereID_(cerereID), anchetaID_(adaug == 2 ? anchetaID : 0), nrCopiiCerere_(nrCopiiCerere) {
    setObjectName(QStringLiteral("frmAddAnchete"));
    setWindowTitle(mod_ == ModAncheta::Modificare ? QStringLiteral("Modificare Ancheta")
                                                  : QStringLiteral("Adaugare Ancheta"));
    asazaControale();
    try {
        incarcaListe();
        if (mod_ == ModAncheta::Modificare) {
            if (const auto a = Anchete::Citeste(db_, anchetaID_)) arata(*a);
        } else {
            dtpData->setData(Ceas::Azi());
        }
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
    // Connected after the opening values, so that an inquiry opened for a change shows what was saved.
    connect(dtpData, &UiDataOptionala::dataSchimbata, this, &frmAddAnchete::dtpData_Change);
    if (mod_ == ModAncheta::Adaugare) dtpData_Change();
}

void frmAddAnchete::asazaControale() {
    auto* grila = new QGridLayout(this);
    grila->setColumnStretch(1, 1);
    grila->setColumnStretch(3, 1);
    int rand = 0;
    auto eticheta = [&](const QString& text, QWidget* control, int coloana, int latime = 1) {
        auto* l = new QLabel(text, this);
        l->setBuddy(control);
        grila->addWidget(l, rand, coloana);
        grila->addWidget(control, rand, coloana + 1, 1, latime);
    };
    auto text = [&](int i) {
        auto* t = new QLineEdit(this);
        t->setObjectName(QStringLiteral("txtCerere_%1").arg(i));
        if (const CampSchema* c = Schema::Camp(QStringLiteral("Anchete"), QLatin1String(CampText[i]));
            c && c->marime > 0)
            t->setMaxLength(c->marime);
        txtCerere[size_t(i)] = t;
        return t;
    };
    auto lista = [&](int i) {
        auto* c = new QComboBox(this);
        c->setObjectName(QStringLiteral("cboCerere_%1").arg(i));
        cboCerere[size_t(i)] = c;
        return c;
    };
    auto valoare = [&](const char* nume) {
        auto* l = new QLabel(this);
        l->setObjectName(QLatin1String(nume));
        l->setFrameStyle(QFrame::Panel | QFrame::Sunken);
        l->setMinimumWidth(90);
        return l;
    };

    dtpData = new UiDataOptionala(this);
    dtpData->setObjectName(QStringLiteral("dtpData"));
    eticheta(QStringLiteral("Data efectuarii anchetei:"), dtpData, 0);
    eticheta(QStringLiteral("Intocmita de:"), text(0), 2);
    ++rand;
    lblDataExp = valoare("lblDataExp");
    eticheta(QStringLiteral("Ancheta valabila pana la data:"), lblDataExp, 0);
    lblMotiv = valoare("lblMotiv");
    eticheta(QStringLiteral("Motivul expirarii:"), lblMotiv, 2);
    ++rand;
    lblNrMembrii = valoare("lblNrMembrii");
    eticheta(QStringLiteral("Nr membrii in familie:"), lblNrMembrii, 0);
    lblNrCopii = valoare("lblNrCopii");
    eticheta(QStringLiteral("din care copii pana la 18 ani"), lblNrCopii, 2);
    ++rand;
    auto* linie = new QFrame(this);
    linie->setFrameShape(QFrame::HLine);
    linie->setFrameShadow(QFrame::Sunken);
    grila->addWidget(linie, rand++, 0, 1, 4);

    eticheta(QStringLiteral("Tipul locuintei:"), lista(0), 0);
    eticheta(QStringLiteral("Regim juridic:"), lista(1), 2);
    ++rand;
    eticheta(QStringLiteral("Nr camere(*):"), text(1), 0);
    eticheta(QStringLiteral("Suprafata (mp):"), text(2), 2);
    ++rand;
    eticheta(QStringLiteral("Bunuri folosinta indelungata:"), text(3), 0, 3);
    ++rand;
    eticheta(QStringLiteral("Conditii de igiena:"), text(4), 0, 3);
    ++rand;
    eticheta(QStringLiteral("3. Locuieste impreuna cu alte"), lista(2), 0);
    eticheta(QStringLiteral("4. Familia detine in proprietate"), lista(3), 2);
    ++rand;
    eticheta(QStringLiteral("Terenuri"), text(5), 0);
    eticheta(QStringLiteral("Cladiri:"), text(6), 2);
    ++rand;
    eticheta(QStringLiteral("Spatii locative:"), text(7), 0);
    eticheta(QStringLiteral("Alte bunuri:"), text(8), 2);
    ++rand;
    eticheta(QStringLiteral("5.Starea de sanatate a membrilor"), text(9), 0, 3);
    ++rand;
    eticheta(QStringLiteral("6. Nevoi speciale ale membrilor"), text(10), 0, 3);
    ++rand;
    eticheta(QStringLiteral("B. Alte aspecte constatate"), text(11), 0, 3);
    ++rand;

    auto* butoane = new QHBoxLayout;
    butoane->addStretch(1);
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("Renunta"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    butoane->addWidget(cmdOK);
    butoane->addWidget(cmdCancel);
    grila->addLayout(butoane, rand, 0, 1, 4);
    connect(cmdOK, &QPushButton::clicked, this, &frmAddAnchete::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAddAnchete::incarcaListe() {
    for (size_t i = 0; i < cboCerere.size(); ++i) {
        for (const auto& e : Anchete::ListaDateGen(db_, TipLista[i]))
            cboCerere[i]->addItem(e.Continut, e.DataID);
        cboCerere[i]->setCurrentIndex(-1);
    }
}

void frmAddAnchete::arata(const Ancheta& a) {
    dtpData->setData(a.DataAncheta);
    const QString texte[12] = {a.Intocmitor, a.NrCamere, a.SuprUtila,  a.Bunuri,        a.Igiena, a.Teren,
                               a.Cladiri,    a.Spatii,   a.AlteBunuri, a.StareSanatate, a.Nevoi,  a.Aspecte};
    for (size_t i = 0; i < txtCerere.size(); ++i)
        txtCerere[i]->setText(texte[i]);
    alege(cboCerere[0], a.TipLocuinta);
    alege(cboCerere[1], a.RegimJuridic);
    alege(cboCerere[2], a.TipLocuire);
    alege(cboCerere[3], a.TipDetinere);
    arataExpirare(a.DataExpirarii, a.Motiv, QString::number(a.NrMembrii), QString::number(a.NrCopii));
}

void frmAddAnchete::arataExpirare(const QDate& dataExp, const QString& motiv, const QString& nrMembrii,
                                  const QString& nrCopii) {
    lblDataExp->setText(FormatData(dataExp));
    lblMotiv->setText(motiv);
    lblNrMembrii->setText(nrMembrii);
    lblNrCopii->setText(nrCopii);
}

void frmAddAnchete::dtpData_Change() {
    try {
        const QDate d = dtpData->data();
        if (!d.isValid()) {
            arataExpirare({}, {}, {}, {});
            return;
        }
        const Expirare e = Anchete::CalculExpirare(db_, cerereID_, d, m_);
        arataExpirare(e.DataExpirarii, e.Motiv, QString::number(e.NrMembrii), QString::number(e.NrCopii));
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
}

Ancheta frmAddAnchete::citesteControalele() const {
    Ancheta a;
    a.AnchetaID = anchetaID_;
    a.CerereID = cerereID_;
    a.DataAncheta = dtpData->data();
    a.NrMembrii = lblNrMembrii->text().toInt();
    a.NrCopii = lblNrCopii->text().toInt();
    a.DataExpirarii = QDate::fromString(lblDataExp->text(), QStringLiteral("dd.MM.yyyy"));
    a.Motiv = lblMotiv->text();
    QString* texte[12] = {&a.Intocmitor, &a.NrCamere, &a.SuprUtila,  &a.Bunuri,        &a.Igiena, &a.Teren,
                          &a.Cladiri,    &a.Spatii,   &a.AlteBunuri, &a.StareSanatate, &a.Nevoi,  &a.Aspecte};
    for (size_t i = 0; i < txtCerere.size(); ++i)
        *texte[i] = txtCerere[i]->text();
    a.TipLocuinta = ales(cboCerere[0]);
    a.RegimJuridic = ales(cboCerere[1]);
    a.TipLocuire = ales(cboCerere[2]);
    a.TipDetinere = ales(cboCerere[3]);
    return a;
}

void frmAddAnchete::cmdOK_Click() {
    try {
        const Ancheta a = citesteControalele();
        const VerificareAncheta v = Anchete::VerificaControale(db_, m_, a, mod_, nrCopiiCerere_);
        if (v.inchide) {
            reject();
            return;
        }
        if (!v.ok) {
            if (auto* w = findChild<QWidget*>(v.control)) w->setFocus();
            return;
        }
        anchetaID_ = Anchete::Salveaza(db_, m_, a, mod_);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    ESTE_OK = true;
    accept();
}
