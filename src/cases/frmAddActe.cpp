#include "cases/frmAddActe.h"

#include "cases/StareCerere.h"
#include "cases/VenituriBunuri.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

frmAddActe::frmAddActe(BazaDate& bd, Mesaje& m, StareCerere& stare, QWidget* parinte)
    : QDialog(parinte), stare_(stare) {
    setObjectName(QStringLiteral("frmAddActe"));
    setWindowTitle(QStringLiteral("Acte depuse la dosar"));
    auto* asezare = new QVBoxLayout(this);
    lstBife = new QListWidget(this);
    lstBife->setObjectName(QStringLiteral("lstBife"));
    lstBife->setWordWrap(true);
    lstBife->setTextElideMode(Qt::ElideNone);
    asezare->addWidget(lstBife);

    asezare->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));

    LaMargine(m, [&] {
        const std::vector<ElementCatalog> acte = CitesteListaActe(bd);
        const std::vector<bool> bifate = DespacheteazaBife(stare.ActeBife, acte.size());
        for (size_t i = 0; i < acte.size(); ++i) {
            auto* r = new QListWidgetItem(TextRandBifa(acte[i]), lstBife);
            r->setFlags(Qt::ItemIsEnabled | Qt::ItemIsUserCheckable);
            r->setCheckState(bifate[i] ? Qt::Checked : Qt::Unchecked);
        }
        citit_ = true;
    });
    resize(760, 620);
}

void frmAddActe::cmdOK_Click() {
    // Without the catalogue the list is empty, and its marks would wipe the stored ones.
    if (citit_) {
        std::vector<bool> bifate;
        for (int i = 0; i < lstBife->count(); ++i)
            bifate.push_back(lstBife->item(i)->checkState() == Qt::Checked);
        stare_.ActeBife = ImpacheteazaBife(bifate);
    }
    ESTE_OK = true;
    accept();
}
