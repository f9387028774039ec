#include "reference/frmSate.h"

#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "reference/UiListe.h"
#include "reference/frmAdSate.h"
#include "ui/UiMargine.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace DateReferinta;

frmSate::frmSate(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmSate"));
    setWindowTitle(QStringLiteral("Sate / strazi"));
    auto* asezare = new QVBoxLayout(this);
    lvwSate = new QTreeWidget(this);
    lvwSate->setObjectName(QStringLiteral("lvwSate"));
    PregatesteLista(lvwSate, {QStringLiteral("ID"), QStringLiteral("Denumire sat /strada"), QStringLiteral("Of Postal"),
                              QStringLiteral("Cod Postal")});
    asezare->addWidget(lvwSate);
    asezare->addLayout(
        RandComenziLista(this, lvwSate, cmdAdd, cmdEdit, cmdDelete, cmdClose,
                         {[this] { cmdAdd_Click(); }, [this] { cmdEdit_Click(); }, [this] { cmdDelete_Click(); }}));

    LaMargine(m_, [&] {
        for (const Strada& s : Strazi(bd_)) {
            auto* r = new RandLista(s.StradaID, {});
            ScrieRand(r, s);
            lvwSate->addTopLevelItem(r);
        }
    });
    LatimiColoane(lvwSate);
    if (lvwSate->topLevelItemCount() > 0) lvwSate->setCurrentItem(lvwSate->topLevelItem(0));
    resize(560, 400);
}

void frmSate::ScrieRand(QTreeWidgetItem* r, const Strada& s) {
    r->setText(1, s.Denumire);
    r->setText(2, s.OfPostal);
    r->setText(3, s.CodPostal);
}

void frmSate::cmdAdd_Click() {
    frmAdSate f(bd_, m_, std::nullopt, this);
    ArataModal(f);
    if (!f.ESTE_OK) return;
    auto* r = new RandLista(f.Rec.StradaID, {});
    ScrieRand(r, f.Rec);
    AdaugaRand(lvwSate, r);
}

void frmSate::cmdEdit_Click() {
    QTreeWidgetItem* r = RandAles(lvwSate, m_, QStringLiteral("Selectati mai intai un sat / strada /"));
    std::optional<Strada> s;
    if (!r ||
        !RecitesteRandul(lvwSate, r, m_, [&](qint64 cheie) { return (s = CitesteStrada(bd_, cheie)).has_value(); }))
        return;
    frmAdSate f(bd_, m_, *s, this);
    ArataModal(f);
    if (f.ESTE_OK) ScrieRand(r, f.Rec);
}

void frmSate::cmdDelete_Click() {
    QTreeWidgetItem* r = RandAles(lvwSate, m_, QStringLiteral("Selectati mai intai un sat /strada"));
    if (!r || !VerificaBD(bd_, m_)) return;
    std::optional<Strada> s;
    if (!RecitesteRandul(lvwSate, r, m_, [&](qint64 cheie) { return (s = CitesteStrada(bd_, cheie)).has_value(); }))
        return;
    const bool stearsa = LaMargine(m_, [&] {
        if (StradaFolosita(bd_, s->Denumire)) {
            m_.Informatie(QStringLiteral("Strada / satul ") + s->Denumire +
                          QStringLiteral(" nu poate fi sters pentru ca face parte din cel putin o cerere"));
            return false;
        }
        if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti datele satului/strazii ") + s->Denumire +
                              QStringLiteral(" ?"),
                          {}, false))
            return false;
        StergeStrada(bd_, s->StradaID);
        return true;
    });
    if (!stearsa) return;
    StergeRand(lvwSate, r);
}
