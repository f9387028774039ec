#include "reference/frmGenerareAn.h"

#include "base/Mesaje.h"
#include "base/Setari.h"
#include "reference/Calendar.h"
#include "reference/UiListe.h"
#include "reference/frmAddLuna.h"
#include "store/BazaDate.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace Calendar;

namespace {

QLineEdit* Cifre(QWidget* parinte, const char* nume, int cifre) {
    auto* t = new QLineEdit(parinte);
    t->setObjectName(QString::fromLatin1(nume));
    t->setMaxLength(cifre);
    t->setValidator(new QIntValidator(0, 999999, t));
    return t;
}

// A frame that a click on its title opens and closes; closed at first.
QGroupBox* Pliabil(QWidget* parinte, const char* nume, const QString& titlu, const QString& indemn,
                   QWidget*& continut) {
    auto* f = new QGroupBox(titlu, parinte);
    f->setObjectName(QString::fromLatin1(nume));
    f->setCheckable(true);
    f->setChecked(false);
    f->setToolTip(indemn);
    auto* a = new QVBoxLayout(f);
    continut = new QWidget(f);
    continut->setVisible(false);
    a->addWidget(continut);
    QObject::connect(f, &QGroupBox::toggled, continut, &QWidget::setVisible);
    return f;
}

} // namespace

frmGenerareAn::frmGenerareAn(Program& p, Mesaje& m, QWidget* parinte) : QDialog(parinte), p_(p), m_(m) {
    setObjectName(QStringLiteral("frmGenerareAn"));
    setWindowTitle(QStringLiteral("Generare An Nou"));
    auto* asezare = new QVBoxLayout(this);

    auto* sus = new QHBoxLayout;
    sus->addWidget(new QLabel(QStringLiteral("An"), this));
    txtAn = Cifre(this, "txtAn", 4);
    txtAn->setMaximumWidth(80);
    sus->addWidget(txtAn);
    cmdGenerare = new QPushButton(QStringLiteral("Genereaza"), this);
    cmdGenerare->setObjectName(QStringLiteral("cmdGenerare"));
    cmdGenerare->setAutoDefault(false);
    sus->addWidget(cmdGenerare);
    sus->addStretch();
    chkTotiAnii = new QCheckBox(QStringLiteral("Toti anii"), this);
    chkTotiAnii->setObjectName(QStringLiteral("chkTotiAnii"));
    sus->addWidget(chkTotiAnii);
    asezare->addLayout(sus);

    lvwLuni = new QTreeWidget(this);
    lvwLuni->setObjectName(QStringLiteral("lvwLuni"));
    PregatesteLista(lvwLuni, {QStringLiteral("Stat Plata ID"), QStringLiteral("Luna"), QStringLiteral("An")});
    asezare->addWidget(lvwLuni, 1);
    asezare->addLayout(
        RandComenziLista(this, lvwLuni, cmdAdd, cmdEdit, cmdDelete, cmdClose,
                         {[this] { cmdAdd_Click(); }, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); }}));

    QWidget* ore = nullptr;
    fraModOre = Pliabil(this, "fraModOre", QStringLiteral("Modificare numar ore"),
                        QStringLiteral("Dati click pentru a modifica numar ore"), ore);
    auto* fOre = new QFormLayout(ore);
    txtLunaModOre = Cifre(ore, "txtLunaModOre", 2);
    txtModNrOre = Cifre(ore, "txtModNrOre", 3);
    fOre->addRow(QStringLiteral("Din luna"), txtLunaModOre);
    fOre->addRow(QStringLiteral("Numar ore nou"), txtModNrOre);
    cmdModificareNrOre = new QPushButton(QStringLiteral("Modifica"), ore);
    cmdModificareNrOre->setObjectName(QStringLiteral("cmdModificareNrOre"));
    cmdModificareNrOre->setAutoDefault(false);
    fOre->addRow(cmdModificareNrOre);
    asezare->addWidget(fraModOre);
    QWidget* salar = nullptr;
    fraModSalar = Pliabil(this, "fraModSalar", QStringLiteral("Modificare salar minim"),
                          QStringLiteral("Dati click pentru a modifica salarul minim"), salar);
    auto* fSalar = new QFormLayout(salar);
    fSalar->addRow(QStringLiteral("Salar minim nou"), Cifre(salar, "txtModSalar", 6));
    asezare->addWidget(fraModSalar);

    connect(cmdGenerare, &QPushButton::clicked, this, &frmGenerareAn::cmdGenerare_Click);
    connect(chkTotiAnii, &QCheckBox::toggled, this, &frmGenerareAn::Reincarca);

    // A doubled or missing month is told, and the window stays usable to correct it.
    LaMargine(m_, [&] {
        for (const QString& problema : VerificaToti(p_.bd))
            m_.Avertisment(problema);
    });
    Reincarca();
    resize(460, 520);
}

void frmGenerareAn::Reincarca() {
    lvwLuni->clear();
    std::optional<int> an;
    if (!chkTotiAnii->isChecked()) an = AnAfisat(txtAn->text(), int(p_.setari.AnSetat));
    LaMargine(m_, [&] {
        for (const LunaPlata& l : Luni(p_.bd, an))
            lvwLuni->addTopLevelItem(new RandLista(l.StatPlataID, {QString::number(l.Luna), QString::number(l.An)}));
    });
    LatimiColoane(lvwLuni);
    if (lvwLuni->topLevelItemCount() > 0) lvwLuni->setCurrentItem(lvwLuni->topLevelItem(0));
}

void frmGenerareAn::cmdGenerare_Click() {
    if (!VerificaBD(p_.bd, m_)) return;
    std::optional<int> an;
    LaMargine(m_, [&] { an = GenereazaAn(p_.bd, m_, txtAn->text()); });
    if (!an) return;
    txtAn->setText(QString::number(*an));
    chkTotiAnii->setChecked(false);
    Reincarca();
}

void frmGenerareAn::cmdAdd_Click() {
    frmAddLuna f(p_.bd, m_, std::nullopt, this);
    ArataModal(f);
    if (f.ESTE_OK) Reincarca();
}

void frmGenerareAn::cmdEdit_Click() {
    QTreeWidgetItem* r = RandAles(lvwLuni, m_, QStringLiteral("Selectati mai intai o luna"));
    if (!r) return;
    std::optional<LunaPlata> l;
    if (!LaMargine(m_, [&] { l = CitesteLuna(p_.bd, static_cast<RandLista*>(r)->Cheie()); })) return;
    if (!l) {
        m_.Informatie(RandDisparut);
        StergeRand(lvwLuni, r);
        return;
    }
    frmAddLuna f(p_.bd, m_, *l, this);
    ArataModal(f);
    if (f.ESTE_OK) Reincarca();
}

void frmGenerareAn::cmdDelete_Click() {
    QTreeWidgetItem* r = RandAles(lvwLuni, m_, QStringLiteral("Selectati un rand!"));
    if (!r || !VerificaBD(p_.bd, m_)) return;
    if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti?"), {}, false)) return;
    bool sters = false;
    if (!LaMargine(m_, [&] { sters = StergeLuna(p_.bd, static_cast<RandLista*>(r)->Cheie()); })) return;
    if (!sters) m_.Informatie(RandDisparut);
    StergeRand(lvwLuni, r);
}
