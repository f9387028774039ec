#include "cases/frmAddAnchete.h"

#include "base/Ceas.h"
#include "base/Texte.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"
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
// The elements of cboCerere, by the field each one chooses.
enum Cbo : int { cboTipLocuinta = 0, cboRegimJuridic = 1, cboTipLocuire = 2, cboTipDetinere = 3 };
// The DateGen list of each cboCerere.
constexpr TipDateGen TipLista[4] = {TipDateGen::FelLocuinta, TipDateGen::RegimJuridic, TipDateGen::Locuire,
                                    TipDateGen::Detinere};

} // namespace

frmAddAnchete::frmAddAnchete(BazaDate& db, Mesaje& m, int adaug, qint64 cerereID, qint64 anchetaID, int nrCopiiCerere,
                             QWidget* parinte)
    : QDialog(parinte), db_(db), m_(m), mod_(adaug == 2 ? ModAncheta::Modificare : ModAncheta::Adaugare),
      cerereID_(cerereID), anchetaID_(adaug == 2 ? anchetaID : 0), nrCopiiCerere_(nrCopiiCerere) {
    setObjectName(QStringLiteral("frmAddAnchete"));
    setWindowTitle(mod_ == ModAncheta::Modificare ? QStringLiteral("Modificare Ancheta")
                                                  : QStringLiteral("Adaugare Ancheta"));
    asazaControale();
    LaMargine(m_, [&] {
        incarcaListe();
        if (mod_ == ModAncheta::Modificare) {
            if (const auto a = Anchete::Citeste(db_, anchetaID_)) arata(*a);
        } else {
            dtpData->setData(Ceas::Azi());
        }
    });
    // Connected after the opening values, so that an inquiry opened for a change shows what was saved.
    connect(dtpData, &UiDataOptionala::dataSchimbata, this, &frmAddAnchete::dtpData_Change);
    if (mod_ == ModAncheta::Adaugare) dtpData_Change();
}

void frmAddAnchete::asazaControale() {
    auto* grila = new QGridLayout(this);
    grila->setColumnStretch(1, 1);
    grila->setColumnStretch(3, 1);
    GrilaEtichete gr{grila, this};
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

    dtpData = new UiDataOptionala(this);
    dtpData->setObjectName(QStringLiteral("dtpData"));
    gr.pe(0, QStringLiteral("Data efectuarii anchetei:"), dtpData);
    gr.pe(2, QStringLiteral("Intocmita de:"), text(0));
    ++gr.rand;
    lblDataExp = EtichetaValoare(this, "lblDataExp", 90);
    gr.pe(0, QStringLiteral("Ancheta valabila pana la data:"), lblDataExp);
    lblMotiv = EtichetaValoare(this, "lblMotiv", 90);
    gr.pe(2, QStringLiteral("Motivul expirarii:"), lblMotiv);
    ++gr.rand;
    lblNrMembrii = EtichetaValoare(this, "lblNrMembrii", 90);
    gr.pe(0, QStringLiteral("Nr membrii in familie:"), lblNrMembrii);
    lblNrCopii = EtichetaValoare(this, "lblNrCopii", 90);
    gr.pe(2, QStringLiteral("din care copii pana la 18 ani"), lblNrCopii);
    ++gr.rand;
    grila->addWidget(LinieOrizontala(this), gr.rand++, 0, 1, 4);

    gr.pe(0, QStringLiteral("Tipul locuintei:"), lista(0));
    gr.pe(2, QStringLiteral("Regim juridic:"), lista(1));
    ++gr.rand;
    gr.pe(0, QStringLiteral("Nr camere(*):"), text(1));
    gr.pe(2, QStringLiteral("Suprafata (mp):"), text(2));
    ++gr.rand;
    gr.pe(0, QStringLiteral("Bunuri folosinta indelungata:"), text(3), 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Conditii de igiena:"), text(4), 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("3. Locuieste impreuna cu alte"), lista(2));
    gr.pe(2, QStringLiteral("4. Familia detine in proprietate"), lista(3));
    ++gr.rand;
    gr.pe(0, QStringLiteral("Terenuri"), text(5));
    gr.pe(2, QStringLiteral("Cladiri:"), text(6));
    ++gr.rand;
    gr.pe(0, QStringLiteral("Spatii locative:"), text(7));
    gr.pe(2, QStringLiteral("Alte bunuri:"), text(8));
    ++gr.rand;
    gr.pe(0, QStringLiteral("5.Starea de sanatate a membrilor"), text(9), 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("6. Nevoi speciale ale membrilor"), text(10), 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("B. Alte aspecte constatate"), text(11), 3);
    ++gr.rand;

    grila->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }), gr.rand, 0, 1, 4);
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
    AlegeCheia(cboCerere[cboTipLocuinta], a.TipLocuinta);
    AlegeCheia(cboCerere[cboRegimJuridic], a.RegimJuridic);
    AlegeCheia(cboCerere[cboTipLocuire], a.TipLocuire);
    AlegeCheia(cboCerere[cboTipDetinere], a.TipDetinere);
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
    LaMargine(m_, [&] {
        const QDate d = dtpData->data();
        if (!d.isValid()) {
            arataExpirare({}, {}, {}, {});
            return;
        }
        const Expirare e = Anchete::CalculExpirare(db_, cerereID_, d, m_);
        arataExpirare(e.DataExpirarii, e.Motiv, QString::number(e.NrMembrii), QString::number(e.NrCopii));
    });
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
    a.TipLocuinta = CheieAleasa(cboCerere[cboTipLocuinta]);
    a.RegimJuridic = CheieAleasa(cboCerere[cboRegimJuridic]);
    a.TipLocuire = CheieAleasa(cboCerere[cboTipLocuire]);
    a.TipDetinere = CheieAleasa(cboCerere[cboTipDetinere]);
    return a;
}

void frmAddAnchete::cmdOK_Click() {
    const bool salvata = LaMargine(m_, [&] {
        const Ancheta a = citesteControalele();
        const VerificareAncheta v = Anchete::VerificaControale(db_, m_, a, mod_, nrCopiiCerere_);
        if (!UrmeazaVerificarea(this, v.ok, v.inchide, v.control)) return false;
        anchetaID_ = Anchete::Salveaza(db_, m_, a, mod_);
        return true;
    });
    if (!salvata) return;
    ESTE_OK = true;
    accept();
}
