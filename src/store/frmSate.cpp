#include "store/frmSate.h"

#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Pornire.h"
#include "store/UiListe.h"
#include "store/frmAdSate.h"

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
    auto* butoane = new QHBoxLayout;
    auto buton = [&](QPushButton*& b, const char* nume, const QString& text) {
        b = new QPushButton(text, this);
        b->setObjectName(QString::fromLatin1(nume));
        b->setAutoDefault(false);
        butoane->addWidget(b);
    };
    buton(cmdAdd, "cmdAdd", QStringLiteral("Adauga"));
    buton(cmdEdit, "cmdEdit", QStringLiteral("Modifica"));
    buton(cmdDelete, "cmdDelete", QStringLiteral("Sterge"));
    butoane->addStretch();
    buton(cmdClose, "cmdClose", QStringLiteral("Inchide"));
    asezare->addLayout(butoane);
    connect(cmdAdd, &QPushButton::clicked, this, &frmSate::cmdAdd_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmSate::cmdEdit_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmSate::cmdDelete_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(lvwSate, &QTreeWidget::itemDoubleClicked, this, &frmSate::cmdEdit_Click);

    try {
        for (const Strada& s : Strazi(bd_)) {
            auto* r = new RandLista(s.StradaID, {});
            ScrieRand(r, s);
            lvwSate->addTopLevelItem(r);
        }
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
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
    RandLista* r = RandSelectat(lvwSate);
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati mai intai un sat / strada /"));
        return;
    }
    std::optional<Strada> s;
    try {
        s = CitesteStrada(bd_, r->Cheie());
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    if (!s) {
        m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
        StergeRand(lvwSate, r);
        return;
    }
    frmAdSate f(bd_, m_, *s, this);
    ArataModal(f);
    if (f.ESTE_OK) ScrieRand(r, f.Rec);
}

void frmSate::cmdDelete_Click() {
    RandLista* r = RandSelectat(lvwSate);
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati mai intai un sat /strada"));
        return;
    }
    if (!VerificaBD(bd_, m_)) return;
    try {
        const std::optional<Strada> s = CitesteStrada(bd_, r->Cheie());
        if (!s) {
            m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
            StergeRand(lvwSate, r);
            return;
        }
        if (StradaFolosita(bd_, s->Denumire)) {
            m_.Informatie(QStringLiteral("Strada / satul ") + s->Denumire +
                          QStringLiteral(" nu poate fi sters pentru ca face parte din cel putin o cerere"));
            return;
        }
        if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti datele satului/strazii ") + s->Denumire +
                              QStringLiteral(" ?"),
                          {}, false))
            return;
        StergeStrada(bd_, s->StradaID);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    StergeRand(lvwSate, r);
}
