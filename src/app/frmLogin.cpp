#include "app/frmLogin.h"

#include "base/Mesaje.h"
#include "base/Parola.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

frmLogin::frmLogin(const QString& parolaPastrata, Mesaje& m, QWidget* parinte)
    : QDialog(parinte), pastrata_(parolaPastrata), m_(m) {
    setObjectName(QStringLiteral("frmLogin"));
    setWindowTitle(QStringLiteral("Login"));
    auto* forma = new QFormLayout(this);
    txtUserName = new QLineEdit(this);
    txtUserName->setObjectName(QStringLiteral("txtUserName"));
    txtPassword = new QLineEdit(this);
    txtPassword->setObjectName(QStringLiteral("txtPassword"));
    txtPassword->setEchoMode(QLineEdit::Password);
    forma->addRow(QStringLiteral("Utilizator:"), txtUserName);
    forma->addRow(QStringLiteral("Parola:"), txtPassword);
    auto* butoane = new QHBoxLayout;
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    cmdOK->setDefault(true); // Enter in the password box
    cmdCancel = new QPushButton(QStringLiteral("Renunta"), this);
    cmdCancel->setObjectName(QStringLiteral("cmdCancel"));
    butoane->addWidget(cmdOK);
    butoane->addWidget(cmdCancel);
    forma->addRow(butoane);
    connect(cmdOK, &QPushButton::clicked, this, &frmLogin::cmdOK_Click);
    connect(cmdCancel, &QPushButton::clicked, this, [this] {
        LoginSucceeded = false;
        reject();
    });
    txtPassword->setFocus();
}

void frmLogin::cmdOK_Click() {
    if (Parola::Corespunde(pastrata_, txtPassword->text())) {
        LoginSucceeded = true;
        accept();
        return;
    }
    m_.Informatie(QStringLiteral("Parola gresita, mai incercati!"), QStringLiteral("Login"));
    txtPassword->setFocus();
    txtPassword->selectAll();
}
