#include "store/frmAdMotive.h"

#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Pornire.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace DateReferinta;

frmAdMotive::frmAdMotive(BazaDate& bd, Mesaje& m, std::optional<Motiv> rec, QWidget* parinte)
    : QDialog(parinte), Adaug(!rec), Rec(rec.value_or(Motiv{})), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmAdMotive"));
    setWindowTitle(Adaug ? QStringLiteral("Adaugare Motiv") : QStringLiteral("Modificare Motiv"));
    auto* forma = new QFormLayout(this);
    txtDenumire = new QLineEdit(Rec.Denumire, this);
    txtDenumire->setObjectName(QStringLiteral("txtDenumire"));
    txtDenumire->setMaxLength(50);
    txtDenumire->setMinimumWidth(300);
    txtDenumire->setToolTip(QStringLiteral("Denumirea Motivului poate fi de maxim 50 de caractere alfanumerice"));
    forma->addRow(QStringLiteral("Denumire motiv"), txtDenumire);
    auto* butoane = new QHBoxLayout;
    butoane->addStretch();
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true);
    cmdCancel = new QPushButton(QStringLiteral("Renunta"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    butoane->addWidget(cmdOK);
    butoane->addWidget(cmdCancel);
    forma->addRow(butoane);
    connect(cmdOK, &QPushButton::clicked, this, &frmAdMotive::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAdMotive::cmdOK_Click() {
    if (!VerificaBD(bd_, m_)) return;
    try {
        const Motiv mt{Rec.MotivID, txtDenumire->text()};
        if (const auto refuz = VerificaMotiv(bd_, mt.Denumire, Adaug ? std::nullopt : std::optional(Rec.MotivID))) {
            m_.Informatie(*refuz);
            txtDenumire->setFocus();
            txtDenumire->selectAll();
            return;
        }
        if (Adaug) {
            Rec = AdaugaMotiv(bd_, mt);
        } else {
            if (!ModificaMotiv(bd_, mt)) {
                m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
                return;
            }
            Rec = mt;
        }
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    ESTE_OK = true;
    accept();
}
