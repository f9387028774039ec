#include "reference/frmAdMotive.h"

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
    forma->addRow(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));
}

void frmAdMotive::cmdOK_Click() {
    const ScriereRand<Motiv> f{VerificaMotiv, AdaugaMotiv, ModificaMotiv};
    if (!ScrieRandLista(bd_, m_, txtDenumire, f, Adaug, Rec.MotivID, Motiv{Rec.MotivID, txtDenumire->text()}, Rec))
        return;
    ESTE_OK = true;
    accept();
}
