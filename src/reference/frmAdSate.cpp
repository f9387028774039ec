#include "reference/frmAdSate.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "reference/UiListe.h"

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
    forma->addRow(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));
}

void frmAdSate::cmdOK_Click() {
    const ScriereRand<Strada> f{VerificaStrada, AdaugaStrada, ModificaStrada};
    const Strada s{Rec.StradaID, txtDenumire->text(), txtOfPostal->text(), txtCodPostal->text()};
    if (!ScrieRandLista(bd_, m_, txtDenumire, f, Adaug, Rec.StradaID, s, Rec)) return;
    ESTE_OK = true;
    accept();
}
