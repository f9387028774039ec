#include "cases/frmAddCerere.h"

#include "cases/UiAdeverinte.h"
#include "cases/UiIstoricCerere.h"
#include "cases/frmAddActe.h"
#include "cases/frmAddLocuinta.h"
#include "cases/frmAddMembru.h"
#include "cases/frmAddVenituri.h"
#include "cases/frmBife.h"
#include "base/Ceas.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "ui/UiButoane.h"
#include "ui/UiDataOptionala.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"
#include "store/Schema.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QStackedLayout>
#include <QTabWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace ElemCerere;

namespace {

// The boxes of the amount and the totals, which the dialog computes and the clerk reads.
constexpr std::array<int, 5> BoxeCalcul{txtVenitTotal, txtVenitPeMembru, txtCuantum, txtNrMembrii, txtNrCopii};
// The combos that take a text of their own: street, reason of the status, street of residence.
constexpr std::array<int, 3> CombouriLibere{cboStrada, cboMotivStare, cboStradaR};
// The focused free-text combo, 0xFFFFC0 as the old platform wrote blue, green, red.
const QColor CuloareFocus(0xC0, 0xFF, 0xFF);

bool EsteComboLiber(int element) {
    return std::find(CombouriLibere.begin(), CombouriLibere.end(), element) != CombouriLibere.end();
}

bool Exista(int element) {
    return element <= txtJudetR || element >= txtNrDosar2;
}

// The field behind a text box, for the limits that are not fixed by the dialog itself.
struct CampText {
    int element;
    const char* tabela;
    const char* camp;
};
constexpr CampText CampuriText[] = {
    {txtTelefon, "Familii", "Telefon"},
    {txtMobil, "Familii", "Mobil"},
    {txtNumeTitularCont, "Cereri", "NumeTitularCont"},
    {txtCont, "Cereri", "Cont"},
    {txtBanca, "Cereri", "Banca"},
    {txtBloc, "Familii", "Bloc"},
    {txtBlocR, "Familii", "BlocR"},
    {txtScR, "Familii", "ScR"},
    {txtNrR, "Familii", "NrR"},
    {txtApR, "Familii", "ApR"},
    {txtLocalitateR, "Familii", "LocalitateR"},
    {txtJudetR, "Familii", "JudetR"},
    {txtNrDosar2, "Familii", "NrDosar2"},
    {txtNrCerere2, "Cereri", "NrCerere2"},
};

int MarimeCamp(const char* tabela, const char* camp) {
    const CampSchema* c = Schema::Camp(QLatin1String(tabela), QLatin1String(camp));
    return c && c->marime > 0 ? c->marime : 255;
}

AlegereCombo Alegerea(const QComboBox* c) {
    if (c->isEditable()) return {0, c->currentText()};
    if (c->currentIndex() < 0) return {};
    return {c->currentData().toLongLong(), c->currentText()};
}

void Alege(QComboBox* c, const AlegereCombo& a) {
    if (c->isEditable()) {
        c->setCurrentIndex(-1);
        c->setEditText(a.text);
        return;
    }
    c->setCurrentIndex(a.id == 0 ? -1 : c->findData(a.id));
}

void Umple(QComboBox* c, const std::vector<AlegereCombo>& randuri) {
    const QSignalBlocker b(c);
    c->clear();
    for (const AlegereCombo& a : randuri)
        c->addItem(a.text, a.id);
    c->setCurrentIndex(-1);
}

} // namespace

frmAddCerere::frmAddCerere(BazaDate& bd, const Setari& setari, Mesaje& m, const DeschidereCerere& d, QWidget* parinte)
    : QDialog(parinte), bd_(bd), setari_(setari), m_(m), stare_(std::make_unique<StareCerere>()),
      calcul_(std::make_unique<CalculEditor>(ParametriCuantum{}, setari.LunaSetata, setari.AnSetat)),
      targetID_(d.TargetID) {
    setObjectName(QStringLiteral("frmAddCerere"));
    setWindowTitle(d.Adaug == 2 ? QStringLiteral("Modificare cerere") : QStringLiteral("Adaugare cerere"));
    DeschideMembru = [this](StareCerere& s, const ContextPersoana& c) -> std::optional<int> {
        frmAddMembru f(bd_, m_, s, c, this);
        ConecteazaAdeverinte(f, ArataModal);
        f.exec();
        return f.ESTE_OK ? f.IndexScris : std::nullopt;
    };
    DeschideMotiv = [this]() -> std::optional<MotivIesire> {
        frmMotiv f(bd_, m_, this);
        f.exec();
        return f.Rezultat;
    };
    DeschideVenituri = [this](StareCerere& s) {
        frmAddVenituri f(bd_, m_, s, setari_.CuloareVenit, this);
        ArataModal(f);
        return f.ESTE_OK;
    };
    DeschideBife = [this](StareCerere& s) {
        frmBife f(bd_, m_, s, this);
        ArataModal(f);
        return f.ESTE_OK;
    };
    DeschideActe = [this](StareCerere& s) {
        frmAddActe f(bd_, m_, s, this);
        ArataModal(f);
        return f.ESTE_OK;
    };
    DeschideLocuinta = [this](StareCerere& s) {
        frmAddLocuinta f(bd_, m_, s, this);
        ArataModal(f);
        return f.ESTE_OK;
    };
    asazaControale();
    incarca(d);
    conecteaza();
    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setSingleShot(true);
    Timer1->setInterval(250);
    connect(Timer1, &QTimer::timeout, this, &frmAddCerere::Timer1_Timer);
    if (d.AutoOpen && gasita_) Timer1->start();
}

frmAddCerere::~frmAddCerere() = default;

// ---- Layout ----

void frmAddCerere::asazaControale() {
    for (int i = 0; i < int(txtCerere.size()); ++i) {
        if (!Exista(i)) continue;
        auto* t = new QLineEdit(this);
        t->setObjectName(QStringLiteral("txtCerere_%1").arg(i));
        txtCerere[size_t(i)] = t;
    }
    for (int i : {txtNrDosar, txtNrCerere})
        txtCerere[size_t(i)]->setMaxLength(9);
    for (int i : {txtNr, txtSc, txtAp})
        txtCerere[size_t(i)]->setMaxLength(10);
    for (int i : {txtLocalitate, txtJudet})
        txtCerere[size_t(i)]->setMaxLength(50);
    for (const CampText& c : CampuriText)
        txtCerere[size_t(c.element)]->setMaxLength(MarimeCamp(c.tabela, c.camp));
    // The numbers: the dossier and request numbers are whole, the total an amount of up to
    // four decimals with a point or a comma, the months a byte.
    auto numar = [this](int i, const char* tipar) {
        txtCerere[size_t(i)]->setValidator(
            new QRegularExpressionValidator(QRegularExpression(QLatin1String(tipar)), txtCerere[size_t(i)]));
    };
    numar(txtNrDosar, "\\d{0,9}");
    numar(txtNrCerere, "\\d{0,9}");
    numar(txtVenitTotal, "\\d{0,12}([.,]\\d{0,4})?");
    numar(txtLuniRetro, "\\d{0,3}");
    // The computed boxes read as such: the window's colour behind them.
    for (int i : {txtVenitPeMembru, txtCuantum, txtNrMembrii, txtNrCopii}) {
        QLineEdit* t = txtCerere[size_t(i)];
        t->setReadOnly(true);
        t->setFocusPolicy(Qt::NoFocus);
        QPalette p = t->palette();
        p.setColor(QPalette::Base, p.color(QPalette::Window));
        t->setPalette(p);
    }
    for (QLineEdit* t : txtCerere)
        if (t) t->setMinimumWidth(40);

    for (int i = 0; i < int(cboCerere.size()); ++i) {
        auto* c = new QComboBox(this);
        c->setObjectName(QStringLiteral("cboCerere_%1").arg(i));
        if (EsteComboLiber(i)) {
            c->setEditable(true);
            c->setInsertPolicy(QComboBox::NoInsert);
            c->installEventFilter(this);
        }
        c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        c->setMinimumContentsLength(12);
        cboCerere[size_t(i)] = c;
    }
    cboCerere[cboStrada]->lineEdit()->setMaxLength(50);
    cboCerere[cboMotivStare]->lineEdit()->setMaxLength(MarimeCamp("Cereri", "MotivStare"));
    cboCerere[cboStradaR]->lineEdit()->setMaxLength(MarimeCamp("Familii", "StradaR"));

    for (int i = 0; i < int(dtpData.size()); ++i) {
        auto* d = new UiDataOptionala(this);
        d->setObjectName(QStringLiteral("dtpData_%1").arg(i));
        d->editor()->installEventFilter(this);
        d->bifa()->installEventFilter(this);
        dtpData[size_t(i)] = d;
    }
    txtCerere[txtNrDosar]->installEventFilter(this);
    txtCerere[txtNrCerere]->installEventFilter(this);

    auto* asezare = new QVBoxLayout(this);
    tabCerere = new QTabWidget(this);
    tabCerere->setObjectName(QStringLiteral("tabCerere"));
    auto* pagina = new QWidget(tabCerere);
    auto* continut = new QVBoxLayout(pagina);
    auto* sus = new QHBoxLayout;
    sus->addWidget(construiesteCererea(), 4);
    sus->addWidget(construiesteAdresa(), 4);
    sus->addWidget(construiestePlata(), 3);
    continut->addLayout(sus);
    continut->addWidget(construiesteMembrii(), 1);
    continut->addWidget(construiesteTotalurile());
    tabCerere->addTab(pagina, QStringLiteral("Cerere"));
    pagIstoric = new UiIstoricCerere(bd_, m_, [this] { return cerereID_; }, tabCerere);
    tabCerere->addTab(pagIstoric, QStringLiteral("Istoric"));
    asezare->addWidget(tabCerere, 1);

    auto* butoane = new QHBoxLayout;
    cmdVenituri = Buton(this, butoane, "cmdVenituri", QStringLiteral("Venituri..."));
    cmdBife = Buton(this, butoane, "cmdBife", QStringLiteral("Bunuri..."));
    cmdActe = Buton(this, butoane, "cmdActe", QStringLiteral("Acte doveditoare..."));
    cmdLocuinta = Buton(this, butoane, "cmdLocuinta", QStringLiteral("Locuinta..."));
    butoane->addStretch(1);
    cmdOK = Buton(this, butoane, "cmdOK", QStringLiteral("OK"));
    cmdCancel = Buton(this, butoane, "cmdCancel", QStringLiteral("Renunta"));
    asezare->addLayout(butoane);
    resize(1180, 760);
}

QWidget* frmAddCerere::construiesteCererea() {
    auto* g = new QGroupBox(QStringLiteral("Cerere"), this);
    auto* grila = new QGridLayout(g);
    GrilaEtichete gr{grila, g};
    gr.pe(0, QStringLiteral("Nr. dosar:"), txtCerere[txtNrDosar]);
    gr.pe(2, QStringLiteral("Nr. cerere:"), txtCerere[txtNrCerere]);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Data cererii:"), dtpData[dtpDataCerere]);
    gr.pe(2, QStringLiteral("Data aprobarii:"), dtpData[dtpDataStare]);
    ++gr.rand;
    auto* nou = new QGroupBox(QStringLiteral("Nr. nou dosar/cerere"), g);
    auto* n = new QHBoxLayout(nou);
    n->addWidget(new QLabel(QStringLiteral("Dosar:"), nou));
    n->addWidget(txtCerere[txtNrDosar2]);
    n->addWidget(new QLabel(QStringLiteral("Cerere:"), nou));
    n->addWidget(txtCerere[txtNrCerere2]);
    grila->addWidget(nou, gr.rand++, 0, 1, 4);
    gr.pe(0, QStringLiteral("Tip alocatie:"), cboCerere[cboTipCerere], 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Statut:"), cboCerere[cboStare], 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Motiv statut:"), cboCerere[cboMotivStare], 3);
    ++gr.rand;
    gr.pe(0, QStringLiteral("Luni retroactiv:"), txtCerere[txtLuniRetro]);
    grila->setColumnStretch(1, 1);
    grila->setColumnStretch(3, 1);
    grila->setRowStretch(gr.rand + 1, 1);
    return g;
}

QWidget* frmAddCerere::construiesteAdresa() {
    auto* g = new QGroupBox(QStringLiteral("Adresa"), this);
    auto* v = new QVBoxLayout(g);
    auto* alegere = new QHBoxLayout;
    for (int i = 0; i < int(opt.size()); ++i) {
        opt[size_t(i)] =
            new QRadioButton(i == optDomiciliu ? QStringLiteral("Domiciliu") : QStringLiteral("Resedinta"), g);
        opt[size_t(i)]->setObjectName(QStringLiteral("opt_%1").arg(i));
        alegere->addWidget(opt[size_t(i)]);
    }
    alegere->addStretch(1);
    opt[optDomiciliu]->setChecked(true);
    v->addLayout(alegere);

    // Both frames hold the same boxes: county, town, street, number, block, staircase, flat.
    auto cadru = [&](QFrame*& f, const char* nume, int judet, int localitate, int strada, int nr, int bloc, int sc,
                     int ap) {
        f = new QFrame(g);
        f->setObjectName(QLatin1String(nume));
        auto* grila = new QGridLayout(f);
        grila->setContentsMargins(0, 0, 0, 0);
        auto rand = [&](int r, const QString& text, QWidget* w, int coloana = 0, int latime = 1) {
            auto* l = new QLabel(text, f);
            l->setBuddy(w);
            grila->addWidget(l, r, coloana);
            grila->addWidget(w, r, coloana + 1, 1, latime);
        };
        rand(0, QStringLiteral("Judet:"), txtCerere[size_t(judet)], 0, 5);
        rand(1, QStringLiteral("Localitate:"), txtCerere[size_t(localitate)], 0, 5);
        rand(2, QStringLiteral("Strada/sat:"), cboCerere[size_t(strada)], 0, 5);
        rand(3, QStringLiteral("Nr.:"), txtCerere[size_t(nr)]);
        rand(3, QStringLiteral("Bloc:"), txtCerere[size_t(bloc)], 2);
        rand(4, QStringLiteral("Sc.:"), txtCerere[size_t(sc)]);
        rand(4, QStringLiteral("Ap.:"), txtCerere[size_t(ap)], 2);
        grila->setColumnStretch(1, 1);
        grila->setColumnStretch(3, 1);
        return f;
    };
    auto* cadre = new QWidget(g);
    auto* stiva = new QStackedLayout(cadre);
    stiva->addWidget(cadru(Picture1, "Picture1", txtJudet, txtLocalitate, cboStrada, txtNr, txtBloc, txtSc, txtAp));
    stiva->addWidget(
        cadru(Picture3, "Picture3", txtJudetR, txtLocalitateR, cboStradaR, txtNrR, txtBlocR, txtScR, txtApR));
    v->addWidget(cadre);

    auto* telefoane = new QGridLayout;
    telefoane->addWidget(new QLabel(QStringLiteral("Telefon:"), g), 0, 0);
    telefoane->addWidget(txtCerere[txtTelefon], 0, 1);
    telefoane->addWidget(new QLabel(QStringLiteral("Mobil:"), g), 0, 2);
    telefoane->addWidget(txtCerere[txtMobil], 0, 3);
    telefoane->setColumnStretch(1, 1);
    telefoane->setColumnStretch(3, 1);
    v->addLayout(telefoane);
    v->addStretch(1);
    return g;
}

QWidget* frmAddCerere::construiestePlata() {
    auto* g = new QGroupBox(QStringLiteral("Plata"), this);
    auto* v = new QVBoxLayout(g);
    auto* grila = new QGridLayout;
    grila->addWidget(new QLabel(QStringLiteral("Reprezentant legal:"), g), 0, 0);
    grila->addWidget(cboCerere[cboReprLegal], 0, 1);
    grila->addWidget(new QLabel(QStringLiteral("Modalitate de plata:"), g), 1, 0);
    grila->addWidget(cboCerere[cboModPlata], 1, 1);
    grila->setColumnStretch(1, 1);
    v->addLayout(grila);

    picPlata = new QFrame(g);
    picPlata->setObjectName(QStringLiteral("picPlata"));
    auto* banca = new QGridLayout(picPlata);
    banca->setContentsMargins(0, 0, 0, 0);
    const std::pair<int, const char*> boxe[] = {
        {txtNumeTitularCont, "Titular cont:"}, {txtCont, "Cont IBAN:"}, {txtBanca, "Banca:"}};
    int rand = 0;
    for (const auto& [i, text] : boxe) {
        banca->addWidget(new QLabel(QLatin1String(text), picPlata), rand, 0);
        banca->addWidget(txtCerere[size_t(i)], rand++, 1);
    }
    banca->setColumnStretch(1, 1);
    picPlata->hide();
    v->addWidget(picPlata);

    auto* anexa = new QGroupBox(QStringLiteral("Anexa 1a beneficiaza/solicita :"), g);
    auto* a = new QGridLayout(anexa);
    a->addWidget(new QLabel(QStringLiteral("beneficiaza"), anexa), 0, 1);
    a->addWidget(new QLabel(QStringLiteral("solicita"), anexa), 0, 2);
    auto bife = [&](int r, const QString& text, QCheckBox*& are, const char* numeAre, QCheckBox*& cere,
                    const char* numeCere) {
        a->addWidget(new QLabel(text, anexa), r, 0);
        are = new QCheckBox(anexa);
        are->setObjectName(QLatin1String(numeAre));
        cere = new QCheckBox(anexa);
        cere->setObjectName(QLatin1String(numeCere));
        a->addWidget(are, r, 1, Qt::AlignHCenter);
        a->addWidget(cere, r, 2, Qt::AlignHCenter);
    };
    bife(1, QStringLiteral("Venit minim garantat"), chkVmg, "chkVmg", chkVmg_s, "chkVmg_s");
    bife(2, QStringLiteral("Ajutor pentru incalzire"), chkIncalzire, "chkIncalzire", chkIncalzire_s, "chkIncalzire_s");
    bife(3, QStringLiteral("Supliment energie"), chkSupl, "chkSupl", chkSupl_s, "chkSupl_s");
    a->setColumnStretch(0, 1);
    v->addWidget(anexa);
    v->addStretch(1);
    return g;
}

QWidget* frmAddCerere::construiesteMembrii() {
    auto* g = new QGroupBox(QStringLiteral("Membrii familiei"), this);
    auto* v = new QVBoxLayout(g);
    auto lista = [&](QTreeWidget*& l, const char* nume, QStringList coloane) {
        l = new QTreeWidget(g);
        l->setObjectName(QLatin1String(nume));
        l->setRootIsDecorated(false);
        l->setUniformRowHeights(true);
        l->setAllColumnsShowFocus(true);
        l->setSelectionMode(QAbstractItemView::SingleSelection);
        l->setHeaderLabels(coloane);
        // The key is the MembruID: the program's, not the clerk's.
        l->setColumnHidden(colID, true);
        for (int c = 1; c < coloane.size(); ++c)
            l->setColumnWidth(c, fontMetrics().horizontalAdvance(coloane[c]) + 24);
        l->installEventFilter(this);
        return l;
    };
    QStringList iesiti = ColoaneLista();
    iesiti << ColoaneAscunseIesiti();
    auto* randLvw = new QHBoxLayout;
    randLvw->addWidget(lista(lvw, "lvw", ColoaneLista()), 1);
    auto* comenzi = new QVBoxLayout;
    cmdAdd = Buton(g, comenzi, "cmdAdd", QStringLiteral("Adauga persoana"));
    cmdEdit = Buton(g, comenzi, "cmdEdit", QStringLiteral("Modifica persoana"));
    cmdDelete = Buton(g, comenzi, "cmdDelete", QStringLiteral("Elimina persoana"));
    comenzi->addStretch(1);
    randLvw->addLayout(comenzi);
    v->addLayout(randLvw, 3);

    auto* titlu = new QHBoxLayout;
    titlu->addWidget(new QLabel(QStringLiteral("Persoane iesite din familie:"), g));
    titlu->addStretch(1);
    auto* indiciu = new QLabel(TextStergereIesit(), g);
    indiciu->setObjectName(QStringLiteral("lblIesiti"));
    titlu->addWidget(indiciu);
    v->addLayout(titlu);
    v->addWidget(lista(lvwIesiti, "lvwIesiti", iesiti), 1);
    for (int c = ColoaneLista().size(); c < iesiti.size(); ++c)
        lvwIesiti->setColumnHidden(c, true);
    lvw->setMinimumHeight(150);
    lvwIesiti->setMinimumHeight(70);
    return g;
}

QWidget* frmAddCerere::construiesteTotalurile() {
    auto* g = new QGroupBox(QStringLiteral("Calcul"), this);
    auto* h = new QHBoxLayout(g);
    const std::pair<int, const char*> boxe[] = {{txtVenitTotal, "Venit total:"},
                                                {txtVenitPeMembru, "Venit pe membru:"},
                                                {txtNrMembrii, "Nr. membrii:"},
                                                {txtNrCopii, "Nr. copii:"},
                                                {txtCuantum, "Cuantum:"}};
    for (const auto& [i, text] : boxe) {
        auto* l = new QLabel(QLatin1String(text), g);
        l->setBuddy(txtCerere[size_t(i)]);
        h->addWidget(l);
        h->addWidget(txtCerere[size_t(i)], i == txtVenitTotal || i == txtVenitPeMembru ? 2 : 1);
    }
    QFont gros = txtCerere[txtCuantum]->font();
    gros.setBold(true);
    txtCerere[txtCuantum]->setFont(gros);
    return g;
}

// ---- Opening ----

void frmAddCerere::umpleListele() {
    const ListeEditorCerere l = IncarcaListeEditor(bd_);
    Umple(cboCerere[cboStrada], l.Strazi);
    Umple(cboCerere[cboStradaR], l.Strazi);
    Umple(cboCerere[cboMotivStare], l.Motive);
    Umple(cboCerere[cboReprLegal], l.ReprLegal);
    Umple(cboCerere[cboModPlata], l.ModPlata);
    Umple(cboCerere[cboTipCerere], l.TipCerere);
    Umple(cboCerere[cboStare], l.Stare);
}

void frmAddCerere::incarca(const DeschidereCerere& d) {
    // The dialog stays open with what it has.
    LaMargine(m_, [&] {
        calcul_ = std::make_unique<CalculEditor>(IncarcaParametri(bd_), setari_.LunaSetata, setari_.AnSetat);
        umpleListele();
        if (d.Adaug != 2) {
            Scrie(DefaultCerereNoua(bd_, Ceas::Azi()));
        } else if (CerereIncarcata c = IncarcaCerere(bd_, d.CerereID, setari_.LunaSetata, setari_.AnSetat, m_);
                   !c.Gasita) {
            gasita_ = false;
            date_.Adaug = 2;
        } else {
            cerereID_ = c.Date.CerereID;
            *stare_ = std::move(c.Stare);
            Scrie(c.Date);
            if (stare_->MatriceMembri)
                for (const MembruCerere& p : *stare_->MatriceMembri)
                    lista_.lvw.push_back(RandMembru(p));
            if (!lista_.lvw.empty()) lista_.Selectat = 0;
            for (const MembruIesit& x : c.Iesiti)
                lista_.lvwIesiti.push_back(RandIesitIncarcat(x));
        }
    });
    arataListele();
}

void frmAddCerere::conecteaza() {
    for (int i = 0; i < int(txtCerere.size()); ++i)
        if (txtCerere[size_t(i)])
            connect(txtCerere[size_t(i)], &QLineEdit::textChanged, this, [this, i] { textSchimbat(i); });
    for (int i : {cboTipCerere, cboStare})
        connect(cboCerere[size_t(i)], &QComboBox::currentIndexChanged, this, [this] {
            if (seScrie_ || !stare_) return;
            recalculeaza([this](DateCerere& d) { calcul_->Cuantum(d, *stare_, m_); });
        });
    connect(cboCerere[cboModPlata], &QComboBox::currentIndexChanged, this, &frmAddCerere::schimbareModPlata);
    connect(dtpData[dtpDataCerere], &UiDataOptionala::dataSchimbata, this, [this](const QDate& d) {
        if (seScrie_ || !d.isValid()) return;
        dtpData[dtpDataStare]->setData(DataStareDupaCerere(d));
    });
    for (int i = 0; i < int(opt.size()); ++i)
        connect(opt[size_t(i)], &QRadioButton::toggled, this, [this, i](bool bifat) {
            if (!bifat) return;
            static_cast<QStackedLayout*>(Picture1->parentWidget()->layout())
                ->setCurrentWidget(i == optDomiciliu ? Picture1 : Picture3);
        });
    connect(lvw, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* item) {
        const int i = item ? lvw->indexOfTopLevelItem(item) : -1;
        if (i >= 0)
            lista_.Selectat = i;
        else
            lista_.Selectat.reset();
    });
    connect(lvw, &QTreeWidget::itemDoubleClicked, this, &frmAddCerere::cmdEdit_Click);
    connect(cmdAdd, &QPushButton::clicked, this, &frmAddCerere::cmdAdd_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmAddCerere::cmdEdit_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmAddCerere::cmdDelete_Click);
    connect(cmdVenituri, &QPushButton::clicked, this, &frmAddCerere::cmdVenituri_Click);
    connect(cmdBife, &QPushButton::clicked, this, &frmAddCerere::cmdBife_Click);
    connect(cmdActe, &QPushButton::clicked, this, &frmAddCerere::cmdActe_Click);
    connect(cmdLocuinta, &QPushButton::clicked, this, &frmAddCerere::cmdLocuinta_Click);
    connect(cmdOK, &QPushButton::clicked, this, &frmAddCerere::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &frmAddCerere::cmdCancel_Click);
}

// ---- The controls as one value ----

DateCerere frmAddCerere::Citeste() const {
    DateCerere d = date_;
    for (size_t i = 0; i < txtCerere.size(); ++i)
        d.txtCerere[i] = txtCerere[i] ? txtCerere[i]->text() : QString();
    for (size_t i = 0; i < cboCerere.size(); ++i)
        d.cboCerere[i] = Alegerea(cboCerere[i]);
    for (size_t i = 0; i < dtpData.size(); ++i)
        d.dtpData[i] = dtpData[i]->data();
    d.chkVmg = chkVmg->isChecked();
    d.chkIncalzire = chkIncalzire->isChecked();
    d.chkSupl = chkSupl->isChecked();
    d.chkVmg_s = chkVmg_s->isChecked();
    d.chkIncalzire_s = chkIncalzire_s->isChecked();
    d.chkSupl_s = chkSupl_s->isChecked();
    return d;
}

void frmAddCerere::Scrie(const DateCerere& d) {
    seScrie_ = true;
    date_.Adaug = d.Adaug;
    date_.CerereID = d.CerereID;
    date_.FamilieID = d.FamilieID;
    for (size_t i = 0; i < txtCerere.size(); ++i)
        if (txtCerere[i]) txtCerere[i]->setText(d.txtCerere[i]);
    for (size_t i = 0; i < cboCerere.size(); ++i)
        Alege(cboCerere[i], d.cboCerere[i]);
    for (size_t i = 0; i < dtpData.size(); ++i)
        dtpData[i]->setData(d.dtpData[i]);
    chkVmg->setChecked(d.chkVmg);
    chkIncalzire->setChecked(d.chkIncalzire);
    chkSupl->setChecked(d.chkSupl);
    chkVmg_s->setChecked(d.chkVmg_s);
    chkIncalzire_s->setChecked(d.chkIncalzire_s);
    chkSupl_s->setChecked(d.chkSupl_s);
    seScrie_ = false;
    schimbareModPlata();
}

void frmAddCerere::arataListele() {
    {
        const QSignalBlocker b(lvw);
        lvw->clear();
        for (const RandLista& r : lista_.lvw)
            new QTreeWidgetItem(lvw, QStringList(r.begin(), r.end()));
        if (lista_.Selectat && *lista_.Selectat < lvw->topLevelItemCount()) {
            QTreeWidgetItem* item = lvw->topLevelItem(*lista_.Selectat);
            lvw->setCurrentItem(item);
            lvw->scrollToItem(item);
        }
    }
    lvwIesiti->clear();
    // The leavers read as inactive.
    const QBrush inactiv(palette().color(QPalette::Disabled, QPalette::Text));
    for (const RandIesit& r : lista_.lvwIesiti) {
        QStringList coloane(r.Coloane.begin(), r.Coloane.end());
        coloane << QString::number(r.Iesit.RudenieID) << QString::number(r.Iesit.MotivID) << TextSuma(r.Iesit.Suma)
                << QString::number(r.Iesit.TipValuta);
        auto* item = new QTreeWidgetItem(lvwIesiti, coloane);
        for (int c = 0; c < coloane.size(); ++c)
            item->setForeground(c, inactiv);
    }
    // The columns widen to their texts and never shrink while the dialog is open.
    for (QTreeWidget* l : {lvw, lvwIesiti})
        for (int c = 1; c < int(ColoaneLista().size()); ++c) {
            const int latime = l->columnWidth(c);
            l->resizeColumnToContents(c);
            if (l->columnWidth(c) < latime) l->setColumnWidth(c, latime);
        }
    const bool active = ComenziActive(lista_);
    cmdEdit->setEnabled(active);
    cmdDelete->setEnabled(active);
}

// ---- The amount ----

void frmAddCerere::arataCalculul(const DateCerere& d) {
    seScrie_ = true;
    for (int i : BoxeCalcul)
        if (txtCerere[size_t(i)]->text() != d.txtCerere[size_t(i)])
            txtCerere[size_t(i)]->setText(d.txtCerere[size_t(i)]);
    seScrie_ = false;
}

void frmAddCerere::recalculeaza(const std::function<void(DateCerere&)>& pas) {
    if (!stare_) return;
    DateCerere d = Citeste();
    LaMargine(m_, [&] { pas(d); });
    // Whatever was computed before a failure is shown.
    arataCalculul(d);
}

void frmAddCerere::textSchimbat(int element) {
    if (seScrie_ || !stare_) return;
    recalculeaza([this, element](DateCerere& d) { calcul_->TextSchimbat(d, element, *stare_, m_); });
}

// ---- Box behaviours ----

void frmAddCerere::schimbareModPlata() {
    picPlata->setVisible(Alegerea(cboCerere[cboModPlata]).id == ModPlataBanca);
}

void frmAddCerere::parasesteCombo(int element) {
    QComboBox* c = cboCerere[size_t(element)];
    const QString text = c->currentText();
    if (text.isEmpty()) return;
    const QString mare = MajusculaPrima(text);
    if (mare != text) c->setEditText(mare);
}

void frmAddCerere::coloreazaCombo(int element, bool cuFocus) {
    QComboBox* c = cboCerere[size_t(element)];
    QPalette p = c->palette();
    p.setColor(QPalette::Base, cuFocus ? CuloareFocus : QColor(Qt::white));
    c->setPalette(p);
}

void frmAddCerere::focusPe(const QString& control) {
    if (control.isEmpty()) return;
    if (auto* w = findChild<QWidget*>(control)) w->setFocus();
}

bool frmAddCerere::eventFilter(QObject* obiect, QEvent* e) {
    const QEvent::Type tip = e->type();
    if (tip == QEvent::FocusIn || tip == QEvent::FocusOut) {
        const Qt::FocusReason motiv = static_cast<QFocusEvent*>(e)->reason();
        // A list dropping down or another window taking over is not leaving the box.
        const bool paraseste =
            tip == QEvent::FocusOut && motiv != Qt::PopupFocusReason && motiv != Qt::ActiveWindowFocusReason;
        for (int i : CombouriLibere)
            if (obiect == cboCerere[size_t(i)] && motiv != Qt::PopupFocusReason) {
                coloreazaCombo(i, tip == QEvent::FocusIn);
                if (paraseste) parasesteCombo(i);
            }
        if (paraseste && (obiect == txtCerere[txtNrDosar] || obiect == txtCerere[txtNrCerere]) && stare_) {
            LaMargine(m_, [&] {
                if (obiect == txtCerere[txtNrDosar])
                    VerificaNrDosar(bd_, Citeste(), 2, m_);
                else
                    VerificaNrCerere(bd_, Citeste(), 2, m_);
            });
        }
        return QDialog::eventFilter(obiect, e);
    }
    if (tip != QEvent::KeyPress) return QDialog::eventFilter(obiect, e);
    const int tasta = static_cast<QKeyEvent*>(e)->key();
    const bool enter = tasta == Qt::Key_Return || tasta == Qt::Key_Enter;
    for (UiDataOptionala* d : dtpData)
        if (enter && (obiect == d->editor() || obiect == d->bifa())) {
            focusNextChild();
            return true;
        }
    if (obiect == lvw && enter) {
        cmdEdit_Click();
        return true;
    }
    if (obiect == lvwIesiti && tasta == Qt::Key_Delete) {
        if (StergeIesit(lista_, lvwIesiti->indexOfTopLevelItem(lvwIesiti->currentItem()))) arataListele();
        return true;
    }
    return QDialog::eventFilter(obiect, e);
}

// ---- The persons ----

void frmAddCerere::deschideMembru(const Deschidere& dch) {
    ContextPersoana c;
    c.Mod = dch.Mod;
    c.Index = dch.Index;
    c.LunaSetata = setari_.LunaSetata;
    c.AnSetat = setari_.AnSetat;
    const std::optional<int> scris = DeschideMembru ? DeschideMembru(*stare_, c) : std::nullopt;
    if (!scris || !stare_) return;
    TotaluriMembri t;
    const bool reusit = LaMargine(m_, [&] {
        t = c.Mod == 1 ? DupaAdaugare(lista_, *stare_, *scris, m_) : DupaModificare(lista_, *stare_, *scris, m_);
    });
    if (!reusit) return;
    arataListele();
    lvw->setFocus();
    recalculeaza([this, &t](DateCerere& d) { calcul_->Totaluri(d, *stare_, t, m_); });
}

void frmAddCerere::cmdAdd_Click() {
    if (!stare_) return;
    const Deschidere dch = DeschideAdaugare(*stare_, int(Alegerea(cboCerere[cboTipCerere]).id), m_);
    if (!dch.Deschide) {
        focusPe(dch.Focus);
        return;
    }
    deschideMembru(dch);
}

void frmAddCerere::cmdEdit_Click() {
    if (!stare_) return;
    const Deschidere dch = DeschideModificare(lista_, int(Alegerea(cboCerere[cboTipCerere]).id), m_);
    if (!dch.Deschide) {
        focusPe(dch.Focus);
        return;
    }
    deschideMembru(dch);
}

void frmAddCerere::cmdDelete_Click() {
    if (!stare_) return;
    std::optional<TotaluriMembri> t;
    LaMargine(m_, [&] { t = EliminaMembru(lista_, *stare_, DeschideMotiv, m_); });
    if (!t) return;
    arataListele();
    lvw->setFocus();
    recalculeaza([this, &t](DateCerere& d) { calcul_->Totaluri(d, *stare_, *t, m_); });
}

void frmAddCerere::Timer1_Timer() {
    Timer1->stop();
    const QString cheie = QString::number(targetID_);
    for (size_t i = 0; i < lista_.lvw.size(); ++i)
        if (lista_.lvw[i][colID] == cheie) {
            lista_.Selectat = int(i);
            arataListele();
            cmdEdit_Click();
            return;
        }
}

// ---- Incomes, goods, documents, housing ----

void frmAddCerere::cmdVenituri_Click() {
    if (!stare_ || !DeschideVenituri || !DeschideVenituri(*stare_)) return;
    recalculeaza([this](DateCerere& d) { calcul_->DupaVenituri(d, *stare_, m_); });
}

void frmAddCerere::cmdBife_Click() {
    if (!stare_ || !DeschideBife || !DeschideBife(*stare_)) return;
    recalculeaza([this](DateCerere& d) { calcul_->DupaBunuri(d, *stare_, lvw->topLevelItemCount(), m_); });
}

void frmAddCerere::cmdActe_Click() {
    if (stare_ && DeschideActe) DeschideActe(*stare_);
}

void frmAddCerere::cmdLocuinta_Click() {
    if (stare_ && DeschideLocuinta) DeschideLocuinta(*stare_);
}

// ---- OK and Cancel ----

void frmAddCerere::cmdOK_Click() {
    if (!stare_) return;
    OptiuniSalvare o = OptiuniDinSetari(setari_);
    o.NrRanduriLista = lvw->topLevelItemCount();
    o.DupaPas = DupaPasSalvare;
    RezultatSalvare r;
    // Nothing was written; the clerk keeps what he typed and may try again.
    if (!LaMargine(m_, [&] { r = SalveazaCerere(bd_, Citeste(), *stare_, IesitiDeSalvat(lista_), o, m_); })) return;
    switch (r.stare) {
    case RezultatSalvare::Stare::Salvata:
        cerereID_ = r.CerereID;
        ESTE_OK = true;
        accept();
        return;
    case RezultatSalvare::Stare::InchideEditor:
        ESTE_OK = false;
        reject();
        return;
    case RezultatSalvare::Stare::Oprita:
        focusPe(r.Control);
        return;
    }
}

void frmAddCerere::cmdCancel_Click() {
    ESTE_OK = false;
    reject();
}

void frmAddCerere::done(int r) {
    QDialog::done(r);
    Timer1->stop();
    // The case lives only while its editor is open.
    stare_.reset();
}
