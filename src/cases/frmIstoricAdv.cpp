#include "cases/frmIstoricAdv.h"

#include "cases/Adeverinte.h"
#include "base/Mesaje.h"
#include "ui/UiMargine.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmIstoricAdv::frmIstoricAdv(BazaDate& db, Mesaje& m, const std::vector<AdeverintaMembru>& acte, QWidget* parinte)
    : QDialog(parinte) {
    setObjectName(QStringLiteral("frmIstoricAdv"));
    setWindowTitle(QStringLiteral("Istoric adeverinte"));
    auto* asezare = new QVBoxLayout(this);
    lvwIstoric = new QTreeWidget(this);
    lvwIstoric->setObjectName(QStringLiteral("lvwIstoric"));
    lvwIstoric->setRootIsDecorated(false);
    lvwIstoric->setUniformRowHeights(true);
    lvwIstoric->setAllColumnsShowFocus(true);
    lvwIstoric->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwIstoric->setHeaderLabels({QStringLiteral("ID"), QStringLiteral("Tip Adeverinta"), QStringLiteral("Nr. Adev"),
                                 QStringLiteral("Data Adev"), QStringLiteral("Data Dep"), QStringLiteral("Data Exp")});
    asezare->addWidget(lvwIstoric);
    auto* butoane = new QHBoxLayout;
    butoane->addStretch(1);
    cmdClose = new QPushButton(QStringLiteral("Inchide"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setDefault(true);
    butoane->addWidget(cmdClose);
    asezare->addLayout(butoane);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);

    TipuriAdeverinte tipuri;
    LaMargine(m, [&] { tipuri = TipuriAdeverinte::Citeste(db); });
    for (const RandIstoricAdv& r : Adeverinte::Istoric(acte, tipuri))
        lvwIstoric->addTopLevelItem(new QTreeWidgetItem(
            QStringList{QString::number(r.AdevID), r.Tip, r.NrAdev, r.DataAdev, r.DataDep, r.DataExp}));
    for (int c = 0; c < lvwIstoric->columnCount(); ++c)
        lvwIstoric->resizeColumnToContents(c);
    resize(640, 300);
}
