#include "reference/frmMotive.h"

#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "reference/UiListe.h"
#include "reference/frmAdMotive.h"
#include "ui/UiMargine.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace DateReferinta;

namespace {

const QString FaraSelectie = QStringLiteral("Selectati mai intai un Motiv");

} // namespace

frmMotive::frmMotive(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmMotive"));
    setWindowTitle(QStringLiteral("Motive"));
    auto* asezare = new QVBoxLayout(this);
    lvwMotive = new QTreeWidget(this);
    lvwMotive->setObjectName(QStringLiteral("lvwMotive"));
    PregatesteLista(lvwMotive, {QStringLiteral("ID"), QStringLiteral("Motiv")});
    asezare->addWidget(lvwMotive);
    asezare->addLayout(
        RandComenziLista(this, lvwMotive, cmdAdd, cmdEdit, cmdDelete, cmdClose,
                         {[this] { cmdAdd_Click(); }, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); }}));

    LaMargine(m_, [&] {
        for (const Motiv& mt : Motive(bd_))
            lvwMotive->addTopLevelItem(new RandLista(mt.MotivID, {mt.Denumire}));
    });
    LatimiColoane(lvwMotive);
    if (lvwMotive->topLevelItemCount() > 0) lvwMotive->setCurrentItem(lvwMotive->topLevelItem(0));
    resize(440, 360);
}

void frmMotive::cmdAdd_Click() {
    frmAdMotive f(bd_, m_, std::nullopt, this);
    ArataModal(f);
    if (f.ESTE_OK) AdaugaRand(lvwMotive, new RandLista(f.Rec.MotivID, {f.Rec.Denumire}));
}

void frmMotive::cmdEdit_Click() {
    QTreeWidgetItem* r = RandAles(lvwMotive, m_, FaraSelectie);
    std::optional<Motiv> mt;
    if (!r ||
        !RecitesteRandul(lvwMotive, r, m_, [&](qint64 cheie) { return (mt = CitesteMotiv(bd_, cheie)).has_value(); }))
        return;
    frmAdMotive f(bd_, m_, *mt, this);
    ArataModal(f);
    if (f.ESTE_OK) r->setText(1, f.Rec.Denumire);
}

void frmMotive::cmdDelete_Click() {
    QTreeWidgetItem* r = RandAles(lvwMotive, m_, FaraSelectie);
    if (!r || !VerificaBD(bd_, m_)) return;
    std::optional<Motiv> mt;
    if (!RecitesteRandul(lvwMotive, r, m_, [&](qint64 cheie) { return (mt = CitesteMotiv(bd_, cheie)).has_value(); }))
        return;
    const bool sters = LaMargine(m_, [&] {
        if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti Motivul ") + mt->Denumire + QStringLiteral(" ?"), {},
                          false))
            return false;
        StergeMotiv(bd_, mt->MotivID);
        return true;
    });
    if (!sters) return;
    StergeRand(lvwMotive, r);
}
