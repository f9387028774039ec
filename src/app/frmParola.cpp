#include "app/frmParola.h"

#include "base/Foldere.h"
#include "base/Mesaje.h"
#include "base/Parola.h"
#include "store/Program.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "ui/UiMargine.h"

#include <QDir>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

frmParola::frmParola(Program& p, Mesaje& m, QWidget* parinte) : QDialog(parinte), p_(p), m_(m) {
    setObjectName(QStringLiteral("frmParola"));
    setWindowTitle(QStringLiteral("Setare parola"));
    auto* forma = new QFormLayout(this);
    auto camp = [&](QLineEdit*& t, const char* nume, const QString& eticheta) {
        t = new QLineEdit(this);
        t->setObjectName(QString::fromLatin1(nume));
        t->setEchoMode(QLineEdit::Password);
        forma->addRow(eticheta, t);
    };
    camp(txtPassOld, "txtPassOld", QStringLiteral("Parola veche:"));
    camp(txtPassNew, "txtPassNew", QStringLiteral("Parola noua:"));
    camp(txtPassRenew, "txtPassRenew", QStringLiteral("Repetati parola noua:"));
    auto* butoane = new QHBoxLayout;
    auto buton = [&](QPushButton*& b, const char* nume, const QString& text) {
        b = new QPushButton(text, this);
        b->setObjectName(QString::fromLatin1(nume));
        butoane->addWidget(b);
    };
    buton(cmdOK, "cmdOK", QStringLiteral("OK"));
    buton(cmdReset, "cmdReset", QStringLiteral("Sterge parola"));
    buton(cmdCancel, "cmdCancel", QStringLiteral("Renunta"));
    forma->addRow(butoane);
    connect(cmdOK, &QPushButton::clicked, this, &frmParola::cmdOK_Click);
    connect(cmdReset, &QPushButton::clicked, this, &frmParola::cmdReset_Click);
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
}

// The key goes to the settings file beside the database, which is the program's own file only
// when the database lies in the program folder.
void frmParola::pastreaza(const QString& valoare) {
    p_.setari.Parola = valoare;
    ServiciuFisiere::ScrieIni(QDir(p_.setari.CaleBD).filePath(Foldere::FisierSetari), QStringLiteral("Generale"),
                              QStringLiteral("pass"), valoare);
}

void frmParola::cmdOK_Click() {
    const bool schimbata = LaMargine(m_, [&] {
        const Parola::Schimbare s =
            Parola::Schimba(p_.setari.Parola, txtPassOld->text(), txtPassNew->text(), txtPassRenew->text());
        if (s.mesaj) {
            m_.Informatie(*s.mesaj);
            return false;
        }
        pastreaza(s.valoareNoua);
        return true;
    });
    if (!schimbata) return;
    accept();
}

void frmParola::cmdReset_Click() {
    LaMargine(m_, [&] {
        const Parola::Schimbare s = Parola::Reseteaza(p_.setari.Parola, txtPassOld->text());
        if (s.mesaj) {
            m_.Informatie(*s.mesaj);
            return;
        }
        pastreaza(QString());
    });
}
