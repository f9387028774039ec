#include "store/frmMotive.h"

#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Pornire.h"
#include "store/UiListe.h"
#include "store/frmAdMotive.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace DateReferinta;

frmMotive::frmMotive(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmMotive"));
    setWindowTitle(QStringLiteral("Motive"));
    auto* asezare = new QVBoxLayout(this);
    lvwMotive = new QTreeWidget(this);
    lvwMotive->setObjectName(QStringLiteral("lvwMotive"));
    PregatesteLista(lvwMotive, {QStringLiteral("ID"), QStringLiteral("Motiv")});
    asezare->addWidget(lvwMotive);
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
    connect(cmdAdd, &QPushButton::clicked, this, &frmMotive::cmdAdd_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmMotive::cmdEdit_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmMotive::cmdDelete_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(lvwMotive, &QTreeWidget::itemDoubleClicked, this, &frmMotive::cmdEdit_Click);

    try {
        for (const Motiv& mt : Motive(bd_))
            lvwMotive->addTopLevelItem(new RandLista(mt.MotivID, {mt.Denumire}));
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
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
    RandLista* r = RandSelectat(lvwMotive);
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati mai intai un Motiv"));
        return;
    }
    std::optional<Motiv> mt;
    try {
        mt = CitesteMotiv(bd_, r->Cheie());
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    if (!mt) {
        m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
        StergeRand(lvwMotive, r);
        return;
    }
    frmAdMotive f(bd_, m_, *mt, this);
    ArataModal(f);
    if (f.ESTE_OK) r->setText(1, f.Rec.Denumire);
}

void frmMotive::cmdDelete_Click() {
    RandLista* r = RandSelectat(lvwMotive);
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati mai intai un Motiv"));
        return;
    }
    if (!VerificaBD(bd_, m_)) return;
    try {
        const std::optional<Motiv> mt = CitesteMotiv(bd_, r->Cheie());
        if (!mt) {
            m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
            StergeRand(lvwMotive, r);
            return;
        }
        if (!m_.Intrebare(QStringLiteral("Sigur doriti sa stergeti Motivul ") + mt->Denumire + QStringLiteral(" ?"), {},
                          false))
            return;
        StergeMotiv(bd_, mt->MotivID);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    StergeRand(lvwMotive, r);
}
