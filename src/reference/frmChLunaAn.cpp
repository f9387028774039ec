#include "reference/frmChLunaAn.h"

#include "reference/LunaLucru.h"
#include "base/Mesaje.h"
#include "store/Program.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"
#include "base/Val.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

frmChLunaAn::frmChLunaAn(Program& p, Mesaje& m, QWidget* parinte) : QDialog(parinte), p_(p), m_(m) {
    setObjectName(QStringLiteral("frmChLunaAn"));
    setWindowTitle(QStringLiteral("Schimbare Luna si An"));
    auto* forma = new QFormLayout(this);
    txtLuna = new QLineEdit(QString::number(p_.setari.LunaSetata), this);
    txtLuna->setObjectName(QStringLiteral("txtLuna"));
    txtAn = new QLineEdit(QString::number(p_.setari.AnSetat), this);
    txtAn->setObjectName(QStringLiteral("txtAn"));
    forma->addRow(QStringLiteral("Luna:"), txtLuna);
    forma->addRow(QStringLiteral("Anul:"), txtAn);
    forma->addRow(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Implicit, false));
}

void frmChLunaAn::cmdOK_Click() {
    const bool scrisa = LaMargine(m_, [&] {
        if (const auto refuz = LunaLucru::Verifica(p_.bd, txtLuna->text(), txtAn->text())) {
            m_.Informatie(*refuz);
            return false;
        }
        const int luna = int(Val(txtLuna->text()));
        const int an = int(Val(txtAn->text()));
        ServiciuFisiere::ScrieIni(p_.FisierSetari(), QStringLiteral("Setari"), QStringLiteral("LunaSetata"),
                                  QString::number(luna));
        ServiciuFisiere::ScrieIni(p_.FisierSetari(), QStringLiteral("Setari"), QStringLiteral("AnSetat"),
                                  QString::number(an));
        p_.setari.LunaSetata = luna;
        p_.setari.AnSetat = an;
        return true;
    });
    if (!scrisa) return;
    accept();
}
