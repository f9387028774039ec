#include "app/frmGeneral.h"

#include "base/Mesaje.h"
#include "base/ServiciuFisiere.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmGeneral::frmGeneral(const QString& fisierSetari, const QString& caleBD, Mesaje& m, QWidget* parinte)
    : QDialog(parinte), fisierSetari_(fisierSetari), m_(m) {
    setObjectName(QStringLiteral("frmGeneral"));
    const QString titlu = QStringLiteral("Selectati locatia Bazei de Date");
    setWindowTitle(titlu);
    auto* asezare = new QVBoxLayout(this);
    asezare->addWidget(new QLabel(titlu, this));
    auto* rand = new QHBoxLayout;
    Txt = new QLineEdit(caleBD, this);
    Txt->setObjectName(QStringLiteral("Txt"));
    Txt->setMinimumWidth(380);
    cmdBrowse = new QPushButton(QStringLiteral("..."), this);
    cmdBrowse->setObjectName(QStringLiteral("cmdBrowse"));
    rand->addWidget(Txt);
    rand->addWidget(cmdBrowse);
    asezare->addLayout(rand);
    asezare->addLayout(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Focalizat));
    connect(cmdBrowse, &QPushButton::clicked, this, &frmGeneral::cmdBrowse_Click);
}

void frmGeneral::cmdBrowse_Click() {
    const QString ales = QFileDialog::getExistingDirectory(
        this, QStringLiteral("Selectati Folderul/directorul in care este baza de date..."), Txt->text());
    if (!ales.isEmpty()) Txt->setText(ales);
}

void frmGeneral::cmdOK_Click() {
    LaMargine(m_, [&] {
        if (!Txt->text().trimmed().isEmpty())
            ServiciuFisiere::ScrieIni(fisierSetari_, QStringLiteral("Generale"), QStringLiteral("CaleBD"),
                                      Txt->text().trimmed());
    });
    m_.Informatie(QStringLiteral("Programul se va inchide. Dati clic pe OK si reporniti-l din nou"));
    accept();
}
