#include "store/frmAdSate.h"

#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Pornire.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

using namespace DateReferinta;

frmAdSate::frmAdSate(BazaDate& bd, Mesaje& m, std::optional<Strada> rec, QWidget* parinte)
    : QDialog(parinte), Adaug(!rec), Rec(rec.value_or(Strada{})), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmAdSate"));
    setWindowTitle(Adaug ? QStringLiteral("Adaugare strada / sat") : QStringLiteral("Modificare strada / sat"));
    auto* forma = new QFormLayout(this);
    auto camp = [&](QLineEdit*& t, const char* nume, const QString& eticheta, const QString& valoare) {
        t = new QLineEdit(valoare, this);
        t->setObjectName(QString::fromLatin1(nume));
        t->setMaxLength(50);
        forma->addRow(eticheta, t);
    };
    camp(txtDenumire, "txtDenumire", QStringLiteral("Nume strada / sat"), Rec.Denumire);
    txtDenumire->setToolTip(
        QStringLiteral("Denumirea strazii / satului poate fi de maxim 50 de caractere alfanumerice"));
    txtDenumire->setMinimumWidth(260);
    camp(txtOfPostal, "txtOfPostal", QStringLiteral("Oficiul Postal"), Rec.OfPostal);
    camp(txtCodPostal, "txtCodPostal", QStringLiteral("Cod Postal"), Rec.CodPostal);
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
    connect(cmdOK, &QPushButton::clicked, this, &frmAdSate::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

void frmAdSate::cmdOK_Click() {
    if (!VerificaBD(bd_, m_)) return;
    try {
        const Strada s{Rec.StradaID, txtDenumire->text(), txtOfPostal->text(), txtCodPostal->text()};
        if (const auto refuz = VerificaStrada(bd_, s.Denumire, Adaug ? std::nullopt : std::optional(Rec.StradaID))) {
            m_.Informatie(*refuz);
            txtDenumire->setFocus();
            txtDenumire->selectAll();
            return;
        }
        if (Adaug) {
            Rec = AdaugaStrada(bd_, s);
        } else {
            if (!ModificaStrada(bd_, s)) {
                m_.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
                return;
            }
            Rec = s;
        }
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    ESTE_OK = true;
    accept();
}
