#include "reference/frmAddLuna.h"

#include "base/Mesaje.h"
#include "base/Texte.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiFormular.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLineEdit>
#include <QPushButton>

using namespace Calendar;

frmAddLuna::frmAddLuna(BazaDate& bd, Mesaje& m, std::optional<LunaPlata> rec, QWidget* parinte)
    : QDialog(parinte), Adaug(!rec), Rec(rec.value_or(LunaPlata{})), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmAddLuna"));
    setWindowTitle(Adaug ? QStringLiteral("Adaugare luna ") : QStringLiteral("Modificare luna "));
    auto* forma = new QFormLayout(this);
    auto numar = [&](QLineEdit*& t, const char* nume, int cifre) {
        t = new QLineEdit(this);
        t->setObjectName(QString::fromLatin1(nume));
        t->setMaxLength(cifre);
        t->setValidator(new QIntValidator(0, 999999, t));
    };
    numar(txtAddLuna, "txtAddLuna", 4);
    if (!Adaug) txtAddLuna->setText(QString::number(Rec.An));
    cboLuna = new QComboBox(this);
    cboLuna->setObjectName(QStringLiteral("cboLuna"));
    for (int l = 1; l <= 12; ++l)
        cboLuna->addItem(LuniAn().value(l - 1), l);
    AlegeCheia(cboLuna, Adaug ? std::nullopt : std::optional<int>(Rec.Luna));
    numar(txtNrOre, "txtNrOre", 3);
    numar(txtSalarMinim, "txtSalarMinim", 6);
    forma->addRow(QStringLiteral("An"), txtAddLuna);
    forma->addRow(QStringLiteral("Luna"), cboLuna);
    forma->addRow(QStringLiteral("Nr. ore munca"), txtNrOre);
    forma->addRow(QStringLiteral("Salar minim"), txtSalarMinim);
    forma->addRow(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));
}

void frmAddLuna::cmdOK_Click() {
    if (!VerificaBD(bd_, m_)) return;
    RezultatLuna r;
    const DateLuna d{txtAddLuna->text(), CheieAleasa(cboLuna).value_or(0)};
    if (!LaMargine(m_, [&] { r = SalveazaLuna(bd_, m_, d, Adaug ? std::nullopt : std::optional(Rec.StatPlataID)); }))
        return;
    const QString control = r.refuz == CampLuna::An ? txtAddLuna->objectName() : cboLuna->objectName();
    if (!UrmeazaVerificarea(this, r.scris.has_value(), r.randDisparut, control)) return;
    Rec = *r.scris;
    ESTE_OK = true;
    accept();
}
