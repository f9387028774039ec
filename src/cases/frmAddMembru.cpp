#include "cases/frmAddMembru.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"
#include "store/Schema.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFocusEvent>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>
#include <algorithm>

using namespace ElemPersoana;

namespace {

// How many codes the list of cboCNP offers at once: enough to pick from, few enough to read.
constexpr int CoduriInLista = 200;

// cboCNP: it offers the known codes that begin with what is typed when its list opens, and
// reports its leave when the focus goes to another control (not to its own list or another window).
class ComboCNP : public QComboBox {
public:
    using QComboBox::QComboBox;
    std::function<void()> laDeschidere;
    std::function<void()> laPlecare;

    void showPopup() override {
        if (laDeschidere) laDeschidere();
        QComboBox::showPopup();
    }

protected:
    void focusOutEvent(QFocusEvent* e) override {
        QComboBox::focusOutEvent(e);
        const Qt::FocusReason r = e->reason();
        if (r != Qt::PopupFocusReason && r != Qt::ActiveWindowFocusReason && laPlecare) laPlecare();
    }
};

void limiteaza(QLineEdit* t, const char* tabela, const char* camp) {
    if (const CampSchema* c = Schema::Camp(QLatin1String(tabela), QLatin1String(camp)); c && c->marime > 0)
        t->setMaxLength(c->marime);
}

// Columns of the certificates' grid that hold a date, with the field of each.
constexpr int ColoaneData[] = {ColAdev::DataAdev, ColAdev::DataDep, ColAdev::DataExp};

} // namespace

frmAddMembru::frmAddMembru(BazaDate& bd, Mesaje& m, StareCerere& stare, const ContextPersoana& c, QWidget* parinte)
    : QDialog(parinte), bd_(bd), m_(m), stare_(stare), c_(c) {
    setObjectName(QStringLiteral("frmAddMembru"));
    setWindowTitle(c_.Mod == 2 ? QStringLiteral("Modificare membru") : QStringLiteral("Adaugare membru"));
    asazaControale();
    LaMargine(m_, [&] { liste_ = IncarcaListePersoana(bd_); });
    umpleListe();

    DatePersoana d;
    const auto& membri = stare_.MatriceMembri;
    if (c_.Mod == 2 && membri && c_.Index >= 0 && c_.Index < int(membri->size())) {
        d = DinMembru((*membri)[size_t(c_.Index)]);
        cnpVerificat_ = d.cboCNP.trimmed();
    } else {
        d = PersoanaNoua(stare_);
    }
    Scrie(d);
    // The labels of a stored code, without the notices that its leave gives.
    if (d.cboCNP.trimmed().size() == 13 && c_.LunaSetata > 0) {
        try {
            arataVarsta(DateDinCNP(d.cboCNP.trimmed(), c_.LunaSetata, c_.AnSetat, nullptr));
        } catch (const Eroare&) {
            // Labels only: OK does not need them.
        }
    }
    conecteaza();
    cboCNP->setFocus();
}

void frmAddMembru::asazaControale() {
    auto text = [&](int i, const char* camp, const char* tabela = "CereriMembrii") {
        auto* t = new QLineEdit(this);
        t->setObjectName(QStringLiteral("txtMembru_%1").arg(i));
        limiteaza(t, tabela, camp);
        txtMembru[size_t(i)] = t;
        return t;
    };
    auto lista = [&](int i) {
        auto* c = new QComboBox(this);
        c->setObjectName(QStringLiteral("cboMembru_%1").arg(i));
        if (ComboText(i)) {
            c->setEditable(true);
            c->setInsertPolicy(QComboBox::NoInsert);
        }
        c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        c->setMinimumContentsLength(14);
        cboMembru[size_t(i)] = c;
        return c;
    };
    auto bifa = [&](int i, const QString& eticheta) {
        auto* b = new QCheckBox(eticheta, this);
        b->setObjectName(QStringLiteral("chkMembru_%1").arg(i));
        chkMembru[size_t(i)] = b;
        return b;
    };
    auto data = [&](int i) {
        auto* d = new UiDataOptionala(this);
        d->setObjectName(QStringLiteral("dtpData_%1").arg(i));
        dtpData[size_t(i)] = d;
        return d;
    };
    auto grila = [](QWidget* pe) {
        auto* g = new QGridLayout(pe);
        g->setColumnStretch(1, 1);
        g->setColumnStretch(3, 1);
        return GrilaEtichete{g};
    };

    // Identity.
    auto* grpIdentitate = new QGroupBox(QStringLiteral("Date de identificare"), this);
    GrilaEtichete gi = grila(grpIdentitate);
    auto* cnp = new ComboCNP(this);
    cnp->setObjectName(QStringLiteral("cboCNP"));
    cnp->setEditable(true);
    cnp->setInsertPolicy(QComboBox::NoInsert);
    cnp->setMinimumContentsLength(15);
    // Completing a typed code to a known one would put another person's code in the box unseen.
    cnp->setCompleter(nullptr);
    cnp->laDeschidere = [this] { umpleCNP(); };
    cnp->laPlecare = [this] { cboCNP_LostFocus(); };
    cboCNP = cnp;
    lblDataNast = new QLabel(this);
    lblDataNast->setObjectName(QStringLiteral("lblDataNast"));
    lblVarsta = new QLabel(this);
    lblVarsta->setObjectName(QStringLiteral("lblVarsta"));
    auto* randCNP = new QHBoxLayout;
    randCNP->addWidget(cboCNP, 1);
    randCNP->addSpacing(12);
    randCNP->addWidget(new QLabel(QStringLiteral("Data nasterii:")));
    randCNP->addWidget(lblDataNast, 1);
    randCNP->addWidget(lblVarsta, 1);
    auto* lCNP = new QLabel(QStringLiteral("CNP:"));
    lCNP->setBuddy(cboCNP);
    gi.g->addWidget(lCNP, gi.rand, 0);
    gi.g->addLayout(randCNP, gi.rand++, 1, 1, 3);
    gi.pe(0, QStringLiteral("Nume:"), text(txtNume, "Nume", "Membrii"));
    gi.pe(2, QStringLiteral("Prenume:"), text(txtPrenume, "Prenume", "Membrii"));
    ++gi.rand;
    gi.pe(0, QStringLiteral("Grad de rudenie:"), lista(cboRudenie), 3);
    ++gi.rand;
    gi.pe(0, QStringLiteral("Act de identitate:"), lista(cboTipAct));
    auto* randAct = new QHBoxLayout;
    randAct->addWidget(text(txtSerieBI, "SerieBI", "Membrii"), 1);
    randAct->addWidget(new QLabel(QStringLiteral("Nr:")));
    randAct->addWidget(text(txtNrBI, "NrBI", "Membrii"), 2);
    auto* lSerie = new QLabel(QStringLiteral("Seria:"));
    lSerie->setBuddy(txtMembru[txtSerieBI]);
    gi.g->addWidget(lSerie, gi.rand, 2);
    gi.g->addLayout(randAct, gi.rand++, 3);
    gi.pe(0, QStringLiteral("Eliberat de:"), lista(cboEliberat));
    cboMembru[cboEliberat]->lineEdit()->setMaxLength(30);
    gi.pe(2, QStringLiteral("Data eliberarii:"), data(dtpDataElib));
    ++gi.rand;
    gi.pe(0, QStringLiteral("Cetatenie:"), lista(cboCetatenie));
    gi.pe(2, QStringLiteral("Tara cetateniei:"), text(txtTaraCetatenie, "TaraCetatenie"));
    ++gi.rand;
    gi.pe(0, QStringLiteral("Domiciliu / resedinta:"), lista(cboResedinta), 3);
    ++gi.rand;
    gi.pe(0, QStringLiteral("Localitatea:"), text(txtLocResedinta, "LocResedinta"));
    gi.pe(2, QStringLiteral("Tara:"), text(txtTaraResedinta, "TaraResedinta"));
    ++gi.rand;
    gi.pe(0, QStringLiteral("Stare civila:"), lista(cboStCivila), 3);
    ++gi.rand;
    gi.pe(0, QStringLiteral("Asigurari sociale:"), lista(cboDrAsSociala), 3);
    ++gi.rand;
    gi.g->addWidget(bifa(chkDizabilitate, QStringLiteral("Persoana cu dizabilitati")), gi.rand++, 1, 1, 3);

    // The adult's and the child's frames share one place: only one shows.
    picTitular = new QGroupBox(QStringLiteral("Adult: studii si ocupatie"), this);
    picTitular->setObjectName(QStringLiteral("picTitular"));
    GrilaEtichete gt = grila(picTitular);
    gt.pe(0, QStringLiteral("Studii:"), lista(cboStudii), 3);
    ++gt.rand;
    gt.pe(0, QStringLiteral("Ocupatie:"), lista(cboOcupatie), 3);
    gt.g->setRowStretch(2, 1);

    picElev = new QGroupBox(QStringLiteral("Copil: situatia scolara"), this);
    picElev->setObjectName(QStringLiteral("picElev"));
    GrilaEtichete ge = grila(picElev);
    ge.pe(0, QStringLiteral("Situatia scolara:"), lista(cboSituatieScolara), 3);
    ++ge.rand;
    ge.pe(0, QStringLiteral("Unitatea scolara:"), lista(cboUScolara));
    cboMembru[cboUScolara]->lineEdit()->setMaxLength(50);
    ge.pe(2, QStringLiteral("Localitatea:"), lista(cboLocScoala));
    cboMembru[cboLocScoala]->lineEdit()->setMaxLength(50);
    ++ge.rand;
    auto* absente = new QGridLayout;
    absente->addWidget(bifa(chkNiciUna, QStringLiteral("Nici una")), 0, 0);
    absente->addWidget(bifa(chkDiminuare20, QStringLiteral("10 - 19 absente")), 1, 0);
    absente->addWidget(bifa(chkDiminuare50, QStringLiteral("20 de absente")), 2, 0);
    absente->addWidget(bifa(chkPeste20abs, QStringLiteral("Peste 20 de absente")), 3, 0);
    absente->addWidget(
        bifa(chkNuUrmeaza, QStringLiteral("Copil de varsta scolara care nu urmeaza o forma de invatamant")), 0, 1);
    absente->addWidget(bifa(chkAbandon, QStringLiteral("Copilul a abandonat scoala")), 1, 1);
    absente->addWidget(bifa(chkRepetent, QStringLiteral("Copil repetent")), 2, 1);
    ge.g->addLayout(absente, ge.rand++, 0, 1, 4);
    ge.g->setRowStretch(ge.rand, 1);

    auto* locFrame = new QWidget(this);
    auto* stiva = new QGridLayout(locFrame);
    stiva->setContentsMargins(0, 0, 0, 0);
    stiva->addWidget(picTitular, 0, 0);
    stiva->addWidget(picElev, 0, 0);

    // Abroad in the last two years: each box shows its periods.
    auto* grpAfara = new QGroupBox(QStringLiteral("In strainatate in ultimii 2 ani"), this);
    auto* va = new QVBoxLayout(grpAfara);
    auto perioade = [&](const char* nume, int p1, const char* c1, int t1, const char* ct1, int p2, const char* c2,
                        int t2, const char* ct2) {
        auto* w = new QWidget(this);
        w->setObjectName(QLatin1String(nume));
        auto* g = new QGridLayout(w);
        g->setContentsMargins(20, 0, 0, 0);
        g->setColumnStretch(1, 1);
        g->setColumnStretch(3, 1);
        GrilaEtichete gp{g};
        gp.pe(0, QStringLiteral("Perioada:"), text(p1, c1));
        gp.pe(2, QStringLiteral("Tara:"), text(t1, ct1));
        ++gp.rand;
        gp.pe(0, QStringLiteral("Perioada:"), text(p2, c2));
        gp.pe(2, QStringLiteral("Tara:"), text(t2, ct2));
        QSizePolicy p = w->sizePolicy();
        p.setRetainSizeWhenHidden(true);
        w->setSizePolicy(p);
        return w;
    };
    va->addWidget(bifa(chkLocuitAfara, QStringLiteral("A locuit in strainatate")));
    picLocuieste = perioade("picLocuieste", txtPerioada11, "Perioada11", txtTaraAfara11, "TaraAfara11", txtPerioada22,
                            "Perioada22", txtTaraAfara22, "TaraAfara22");
    va->addWidget(picLocuieste);
    va->addWidget(bifa(chkLucreazaAfara, QStringLiteral("A lucrat in strainatate")));
    picLucreaza = perioade("picLucreaza", txtPerioada1, "Perioada1", txtTaraAfara1, "TaraAfara1", txtPerioada2,
                           "Perioada2", txtTaraAfara2, "TaraAfara2");
    va->addWidget(picLucreaza);

    // Rights and income.
    auto* grpDrepturi = new QGroupBox(QStringLiteral("Drepturi si venituri"), this);
    GrilaEtichete gd = grila(grpDrepturi);
    gd.g->addWidget(bifa(chkVMG, QStringLiteral("Beneficiaza de venit minim garantat")), gd.rand++, 0, 1, 4);
    gd.g->addWidget(bifa(chkAlocatie, QStringLiteral("Beneficiaza de alocatie de stat")), gd.rand++, 0, 1, 4);
    gd.g->addWidget(bifa(chkIncalzire, QStringLiteral("Beneficiaza de ajutor pentru incalzire")), gd.rand++, 0, 1, 4);
    gd.pe(0, QStringLiteral("Incalzire sezonul trecut:"), lista(cboTipIncalzTrecut), 3);
    ++gd.rand;
    gd.pe(0, QStringLiteral("Venituri din luna anterioara:"), text(txtVenit, "Venit"));
    txtMembru[txtVenit]->setMaxLength(20);

    // The state of the person on this request.
    auto* grpStare = new QGroupBox(QStringLiteral("Situatia membrului"), this);
    GrilaEtichete gs = grila(grpStare);
    gs.pe(0, QStringLiteral("Statut membru:"), lista(cboStareMembru), 3);
    ++gs.rand;
    gs.pe(0, QStringLiteral("Data schimbarii:"), data(dtpDataStare));
    ++gs.rand;
    gs.pe(0, QStringLiteral("Motivul schimbarii:"), lista(cboMotivID), 3);
    ++gs.rand;
    gs.g->addWidget(new QLabel(QStringLiteral("Realizeaza venituri din munca?")), gs.rand++, 0, 1, 4);
    chkVenit[chkVenitDa] = new QCheckBox(QStringLiteral("Da, in suma de"), this);
    chkVenit[chkVenitDa]->setObjectName(QStringLiteral("chkVenit_0"));
    chkVenit[chkVenitNu] = new QCheckBox(QStringLiteral("Nu"), this);
    chkVenit[chkVenitNu]->setObjectName(QStringLiteral("chkVenit_1"));
    auto* randSuma = new QHBoxLayout;
    randSuma->addWidget(chkVenit[chkVenitDa]);
    randSuma->addWidget(text(txtSuma, "Suma"), 1);
    txtMembru[txtSuma]->setMaxLength(20);
    txtMembru[txtSuma]->setMinimumWidth(90);
    randSuma->addWidget(lista(cboTipValuta), 1);
    randSuma->addSpacing(12);
    randSuma->addWidget(chkVenit[chkVenitNu]);
    gs.g->addLayout(randSuma, gs.rand++, 0, 1, 4);
    gs.pe(0, QStringLiteral("Expira la data:"), data(dtpData18Ani));
    ++gs.rand;
    gs.pe(0, QStringLiteral("Motivul expirarii:"), lista(cboMotiv), 3);
    cboMembru[cboMotiv]->lineEdit()->setMaxLength(50);

    // The certificates.
    auto* grpAdev = new QGroupBox(QStringLiteral("Adeverinte"), this);
    auto* ha = new QHBoxLayout(grpAdev);
    Grid = new QTableWidget(0, int(ColoaneAdeverinte().size()), this);
    Grid->setObjectName(QStringLiteral("Grid"));
    Grid->setHorizontalHeaderLabels(ColoaneAdeverinte());
    Grid->setColumnHidden(ColAdev::AdvCurenta, true);
    Grid->setColumnHidden(ColAdev::TipID, true);
    Grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    Grid->setSelectionMode(QAbstractItemView::ExtendedSelection);
    Grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    Grid->verticalHeader()->setVisible(false);
    Grid->horizontalHeader()->setSectionResizeMode(ColAdev::TipAdeverinta, QHeaderView::Stretch);
    Grid->setColumnWidth(ColAdev::NrAdev, 90);
    for (int c : ColoaneData)
        Grid->setColumnWidth(c, 130);
    Grid->setMinimumHeight(110);
    ha->addWidget(Grid, 1);
    auto* vb = new QVBoxLayout;
    cmdAddRand = Buton(this, vb, "cmdAddRand", QStringLiteral("Adauga"));
    cmdModAct = Buton(this, vb, "cmdModAct", QStringLiteral("Modifica"));
    cmdDelRand = Buton(this, vb, "cmdDelRand", QStringLiteral("Sterge"));
    cmdIstoricAdv = Buton(this, vb, "cmdIstoricAdv", QStringLiteral("Istoric"));
    vb->addStretch(1);
    ha->addLayout(vb);

    auto* stanga = new QVBoxLayout;
    stanga->addWidget(grpIdentitate);
    stanga->addWidget(locFrame, 1);
    auto* dreapta = new QVBoxLayout;
    dreapta->addWidget(grpAfara);
    dreapta->addWidget(grpDrepturi);
    dreapta->addWidget(grpStare, 1);
    auto* sus = new QHBoxLayout;
    sus->addLayout(stanga, 1);
    sus->addLayout(dreapta, 1);

    auto* tot = new QVBoxLayout(this);
    tot->addLayout(sus);
    tot->addWidget(grpAdev, 1);
    tot->addLayout(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Niciunul, true, [this] { cmdCancel_Click(); }));

    // Nothing chosen yet: neither frame until the kinship says which.
    picTitular->hide();
    picElev->hide();
    picLucreaza->hide();
    picLocuieste->hide();
}

void frmAddMembru::umpleListe() {
    for (size_t i = 0; i < cboMembru.size(); ++i) {
        QComboBox* c = cboMembru[i];
        for (const AlegereCombo& e : liste_.cboMembru[i])
            c->addItem(e.text, e.id);
        c->setCurrentIndex(-1);
    }
}

void frmAddMembru::conecteaza() {
    connect(cmdAddRand, &QPushButton::clicked, this, [this] { AdaugaAdeverinta(*this); });
    connect(cmdModAct, &QPushButton::clicked, this, [this] { ModificaAdeverinta(*this); });
    connect(cmdDelRand, &QPushButton::clicked, this, [this] { StergeAdeverinta(*this); });
    connect(cmdIstoricAdv, &QPushButton::clicked, this, [this] { IstoricAdeverinte(*this); });
    connect(Grid, &QTableWidget::cellDoubleClicked, this, [this](int, int) { ModificaAdeverinta(*this); });

    for (int i : {cboRudenie, cboSituatieScolara})
        connect(cboMembru[size_t(i)], &QComboBox::currentIndexChanged, this, [this, i] {
            if (scriu_) return;
            if (i == cboSituatieScolara) {
                DatePersoana d = Citeste();
                SchimbareSituatieScolara(d);
                scrieBife(d);
            }
            aplicaStarea();
        });
    for (int i : {chkLucreazaAfara, chkLocuitAfara, chkIncalzire})
        connect(chkMembru[size_t(i)], &QCheckBox::toggled, this, [this] {
            if (!scriu_) aplicaStarea();
        });
    // Clicks, not toggles: the rules are the clerk's, and Scrie sets boxes without them.
    for (int i : {chkRepetent, chkAbandon, chkPeste20abs, chkDiminuare20, chkDiminuare50, chkNiciUna})
        connect(chkMembru[size_t(i)], &QCheckBox::clicked, this, [this, i] {
            DatePersoana d = Citeste();
            ClickGrupElev(d, i, m_);
            scrieBife(d);
        });
    for (int i : {chkVenitDa, chkVenitNu})
        connect(chkVenit[size_t(i)], &QCheckBox::clicked, this, [this, i] {
            DatePersoana d = Citeste();
            ClickVenit(d, i);
            scrieBife(d);
        });
}

namespace {

AlegereCombo alegere(const QComboBox* c, bool doarText) {
    if (doarText) return {0, c->currentText()};
    if (c->currentIndex() < 0) return {};
    return {c->currentData().toLongLong(), c->currentText()};
}

void alege(QComboBox* c, const AlegereCombo& a, bool doarText) {
    if (doarText) {
        const int i = c->findText(a.text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
        c->setCurrentIndex(i);
        c->setEditText(a.text);
        return;
    }
    c->setCurrentIndex(a.id == 0 ? -1 : c->findData(QVariant(qint64(a.id))));
}

} // namespace

DatePersoana frmAddMembru::Citeste() const {
    DatePersoana d;
    d.MembruID = membruID_;
    d.cboCNP = cboCNP->currentText();
    for (size_t i = 0; i < txtMembru.size(); ++i)
        if (txtMembru[i]) d.txtMembru[i] = txtMembru[i]->text();
    for (size_t i = 0; i < cboMembru.size(); ++i)
        d.cboMembru[i] = alegere(cboMembru[i], ComboText(int(i)));
    for (size_t i = 0; i < chkMembru.size(); ++i)
        if (chkMembru[i]) d.chkMembru[i] = chkMembru[i]->isChecked();
    for (size_t i = 0; i < chkVenit.size(); ++i)
        d.chkVenit[i] = chkVenit[i]->isChecked();
    for (size_t i = 0; i < dtpData.size(); ++i)
        d.dtpData[i] = dtpData[i]->data();
    d.Grid = Adeverinte();
    return d;
}

void frmAddMembru::Scrie(const DatePersoana& d) {
    scriu_ = true;
    membruID_ = d.MembruID;
    cboCNP->setEditText(d.cboCNP);
    for (size_t i = 0; i < txtMembru.size(); ++i)
        if (txtMembru[i]) txtMembru[i]->setText(d.txtMembru[i]);
    for (size_t i = 0; i < cboMembru.size(); ++i)
        alege(cboMembru[i], d.cboMembru[i], ComboText(int(i)));
    for (size_t i = 0; i < chkMembru.size(); ++i)
        if (chkMembru[i]) chkMembru[i]->setChecked(d.chkMembru[i]);
    for (size_t i = 0; i < chkVenit.size(); ++i)
        chkVenit[i]->setChecked(d.chkVenit[i]);
    for (size_t i = 0; i < dtpData.size(); ++i)
        dtpData[i]->setData(d.dtpData[i]);
    ArataAdeverinte(d.Grid);
    scriu_ = false;
    aplicaStarea();
}

void frmAddMembru::scrieBife(const DatePersoana& d) {
    scriu_ = true;
    for (size_t i = 0; i < chkMembru.size(); ++i)
        if (chkMembru[i]) chkMembru[i]->setChecked(d.chkMembru[i]);
    for (size_t i = 0; i < chkVenit.size(); ++i)
        chkVenit[i]->setChecked(d.chkVenit[i]);
    txtMembru[txtSuma]->setText(d.txtMembru[txtSuma]);
    scriu_ = false;
    aplicaStarea();
}

void frmAddMembru::aplicaStarea() {
    const ControaleDependente s = StareControale(Citeste());
    if (s.Adult) {
        picTitular->setVisible(*s.Adult);
        picElev->setVisible(!*s.Adult);
    }
    picLucreaza->setVisible(s.picLucreaza);
    picLocuieste->setVisible(s.picLocuieste);
    cboMembru[cboTipIncalzTrecut]->setEnabled(s.cboTipIncalzTrecut);
    chkMembru[chkRepetent]->setEnabled(s.RepetentAplicabil);
    txtMembru[txtSuma]->setEnabled(s.SumaVenitActiva);
    cboMembru[cboTipValuta]->setEnabled(s.SumaVenitActiva);
}

std::vector<AdeverintaMembru> frmAddMembru::Adeverinte() const {
    std::vector<AdeverintaMembru> acte;
    for (int r = 0; r < Grid->rowCount(); ++r) {
        auto celula = [&](int c) { return Grid->item(r, c); };
        AdeverintaMembru a;
        if (const auto* i = celula(ColAdev::TipAdeverinta)) a.AdevID = i->data(Qt::UserRole).toLongLong();
        if (const auto* i = celula(ColAdev::TipID)) a.TipAdeverinta = i->text().toInt();
        if (const auto* i = celula(ColAdev::NrAdev)) a.NrAdev = i->text();
        QDate* date[] = {&a.DataAdeverinta, &a.DataDepunerii, &a.DataExpAdev};
        for (size_t k = 0; k < std::size(ColoaneData); ++k)
            if (const auto* i = celula(ColoaneData[k])) *date[k] = i->data(Qt::UserRole).toDate();
        if (const auto* i = celula(ColAdev::AdvCurenta)) a.AdvCurenta = i->text().toInt();
        acte.push_back(a);
    }
    return acte;
}

void frmAddMembru::ArataAdeverinte(const std::vector<AdeverintaMembru>& acte, std::optional<int> selectat) {
    Grid->clearContents();
    Grid->setRowCount(int(acte.size()));
    for (int r = 0; r < int(acte.size()); ++r) {
        const AdeverintaMembru& a = acte[size_t(r)];
        const auto texte = TexteAdeverinta(a, liste_.TipuriAdeverinte);
        for (int c = 0; c < int(texte.size()); ++c)
            Grid->setItem(r, c, new QTableWidgetItem(texte[size_t(c)]));
        Grid->item(r, ColAdev::TipAdeverinta)->setData(Qt::UserRole, a.AdevID);
        const QDate date[] = {a.DataAdeverinta, a.DataDepunerii, a.DataExpAdev};
        for (size_t k = 0; k < std::size(ColoaneData); ++k)
            Grid->item(r, ColoaneData[k])->setData(Qt::UserRole, date[k]);
    }
    Grid->clearSelection();
    if (selectat && *selectat >= 0 && *selectat < Grid->rowCount()) Grid->selectRow(*selectat);
}

std::vector<int> frmAddMembru::AdeverinteSelectate() const {
    std::vector<int> r;
    for (const QModelIndex& i : Grid->selectionModel()->selectedRows())
        r.push_back(i.row());
    std::sort(r.begin(), r.end());
    return r;
}

void frmAddMembru::arataVarsta(const DateCNP& date) {
    lblDataNast->setText(date.Nastere.lblDataNast);
    lblVarsta->setText(date.lblVarsta);
}

void frmAddMembru::umpleCNP() {
    const QString text = cboCNP->currentText();
    QStringList coduri;
    if (!LaMargine(m_, [&] { coduri = CnpDupaInceput(bd_, text, CoduriInLista); })) return;
    const QSignalBlocker b(cboCNP);
    cboCNP->clear();
    cboCNP->addItems(coduri);
    cboCNP->setCurrentIndex(int(coduri.indexOf(text)));
    cboCNP->setEditText(text);
}

void frmAddMembru::focus(const QString& control) {
    if (control.isEmpty()) return;
    if (auto* w = findChild<QWidget*>(control)) w->setFocus(Qt::OtherFocusReason);
}

void frmAddMembru::cboCNP_LostFocus() {
    // A message box of the leave takes the focus too; and a box left unchanged has been looked at.
    if (inPlecare_) return;
    const QString cnp = cboCNP->currentText().trimmed();
    if (cnp == cnpVerificat_) return;
    inPlecare_ = true;
    LaMargine(m_, [&] {
        DatePersoana d = Citeste();
        const RezultatPlecareCNP r = PlecareCNP(d, c_, stare_, bd_, m_);
        Scrie(d);
        if (r.Date) {
            if (r.Date->Nastere.Oprit) {
                lblDataNast->setText(r.Date->Nastere.lblDataNast);
                lblVarsta->clear();
            } else {
                arataVarsta(*r.Date);
            }
        } else {
            lblDataNast->clear();
            lblVarsta->clear();
        }
        if (r.RevinoLaCNP) {
            cnpVerificat_.clear();
            cboCNP->setFocus(Qt::OtherFocusReason);
            cboCNP->lineEdit()->selectAll();
        } else {
            cnpVerificat_ = cnp;
        }
    });
    inPlecare_ = false;
}

void frmAddMembru::cmdOK_Click() {
    const DatePersoana d = Citeste();
    RezultatOk r;
    if (!LaMargine(m_, {.fel = Mesaje::Fel::Avertisment}, [&] { r = OkPersoana(d, c_, stare_, m_); })) {
        focus(CasetaSumaInvalida(d));
        return;
    }
    if (!r.Focus.isEmpty()) {
        focus(r.Focus);
        return;
    }
    IndexScris = r.Index;
    ESTE_OK = true;
    accept();
}

void frmAddMembru::cmdCancel_Click() {
    ESTE_OK = false;
    reject();
}

frmMotiv::frmMotiv(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), m_(m) {
    setObjectName(QStringLiteral("frmMotiv"));
    setWindowTitle(QStringLiteral("Motivul iesirii din familie"));

    auto* g = new QGridLayout(this);
    g->setColumnStretch(1, 1);
    for (int i = 0; i < 2; ++i) {
        cboMembru[size_t(i)] = new QComboBox(this);
        cboMembru[size_t(i)]->setObjectName(QStringLiteral("cboMembru_%1").arg(i));
        cboMembru[size_t(i)]->setMinimumContentsLength(24);
    }
    chkVenit = new QCheckBox(QStringLiteral("Da, in suma de"), this);
    chkVenit->setObjectName(QStringLiteral("chkVenit"));
    txtMembru = new QLineEdit(this);
    txtMembru->setObjectName(QStringLiteral("txtMembru"));
    txtMembru->setMaxLength(20);
    txtMembru->setEnabled(false);

    auto* lMotiv = new QLabel(QStringLiteral("Motivul iesirii:"), this);
    lMotiv->setBuddy(cboMembru[0]);
    g->addWidget(lMotiv, 0, 0);
    g->addWidget(cboMembru[0], 0, 1, 1, 3);
    g->addWidget(new QLabel(QStringLiteral("Realizeaza venituri din munca?"), this), 1, 0, 1, 4);
    g->addWidget(chkVenit, 2, 0);
    g->addWidget(txtMembru, 2, 1);
    auto* lValuta = new QLabel(QStringLiteral("Valuta:"), this);
    lValuta->setBuddy(cboMembru[1]);
    g->addWidget(lValuta, 2, 2);
    g->addWidget(cboMembru[1], 2, 3);

    g->setRowMinimumHeight(3, 8);
    g->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }), 4, 0, 1, 4);

    LaMargine(m_, [&] {
        const ListePersoana l = IncarcaListePersoana(bd);
        for (const AlegereCombo& e : l.cboMembru[cboMotivID])
            cboMembru[0]->addItem(e.text, e.id);
        for (const AlegereCombo& e : l.cboMembru[cboTipValuta])
            cboMembru[1]->addItem(e.text, e.id);
    });
    cboMembru[0]->setCurrentIndex(-1);
    cboMembru[1]->setCurrentIndex(-1);

    connect(chkVenit, &QCheckBox::toggled, txtMembru, &QLineEdit::setEnabled);
}

void frmMotiv::cmdOK_Click() {
    const bool ales = LaMargine(m_, {.fel = Mesaje::Fel::Avertisment}, [&] {
        Rezultat = MotivDinControale(alegere(cboMembru[0], false), alegere(cboMembru[1], false), chkVenit->isChecked(),
                                     txtMembru->text());
    });
    if (!ales) {
        Rezultat.reset();
        txtMembru->setFocus(Qt::OtherFocusReason);
        txtMembru->selectAll();
        return;
    }
    accept();
}
