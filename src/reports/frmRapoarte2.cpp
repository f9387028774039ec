#include "reports/frmRapoarte2.h"

#include "reports/Rapoarte.h"
#include "reports/SablonXml.h"
#include "reports/UiGrila.h"
#include "store/Program.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Raport;

namespace {

// The entries of the first list up to "Lista copii"; the one whose export this window keeps.
constexpr int NrIntrari = 18;
constexpr int IndexCopii7 = 8;

} // namespace

frmRapoarte2::frmRapoarte2(Program& p, Mesaje& m, QWidget* parinte) : UiFereastraRaport(p, m, parinte) {
    setObjectName(QStringLiteral("frmRapoarte2"));
    setWindowTitle(QStringLiteral("Rapoarte2 ..."));
    auto* asezare = new QVBoxLayout(this);
    QGridLayout* sus = ControaleAlegeri(this, NrIntrari);
    sus->setColumnStretch(3, 1);
    asezare->addLayout(sus);
    auto* butoane = new QHBoxLayout;
    for (QPushButton* b : {cmdOK, cmdPreview, cmdPrint, cmdPrintPage, cmdExport, cmdClose})
        butoane->addWidget(b);
    butoane->addStretch();
    asezare->addLayout(butoane);
    asezare->addWidget(Grid, 1);

    connect(cmdOK, &QPushButton::clicked, this, &frmRapoarte2::cmdOK_Click);
    connect(cmdExport, &QPushButton::clicked, this, &frmRapoarte2::cmdExport_Click);
    LaMargine(m_, [&] { VerificaPrimaria(p_.bd, m_); });
    cboTipRaport_Click();
    resize(1100, 700);
}

// The one template wired in, whatever the list shows; a failing template leaves the page shown.
void frmRapoarte2::cmdOK_Click() {
    LucruLung([&] {
        const MediuRaport mediu = Mediul();
        Grid->Arata(
            IncarcaSablonXml(p_.bd, CaleSablonXml(mediu.folderBD, mediu.applicationPath), GrilaNoua(p_.setari, true)));
    });
}

void frmRapoarte2::cmdExport_Click() {
    if (cboTipRaport->currentIndex() < 0) {
        m_.Informatie(QStringLiteral("Selectati din lista un tip de raport!"));
        return;
    }
    if (cboTipRaport->currentIndex() != IndexCopii7) return;
    std::optional<QString> fisier;
    LucruLung([&] {
        // This window always wrote that list through the spreadsheet program, whatever the settings say.
        MediuRaport mediu = Mediul();
        mediu.setari.AppWord = 1;
        fisier = Exporta(IndexCopii7, p_.bd, m_, mediu, Alegerile(), FolderExportEfectiv(p_.setari), {});
    });
    if (fisier) Deschide(*fisier);
}
