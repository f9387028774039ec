#include "cases/UiIstoricCerere.h"

#include "cases/Istoric.h"
#include "ui/UiMargine.h"

#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

UiIstoricCerere::UiIstoricCerere(BazaDate& bd, Mesaje& m, std::function<qint64()> cerere, QWidget* parinte)
    : QWidget(parinte), bd_(bd), m_(m), cerere_(std::move(cerere)) {
    setObjectName(QStringLiteral("UiIstoricCerere"));
    auto* asezare = new QVBoxLayout(this);
    lblIstoric = new QLabel(this);
    lblIstoric->setObjectName(QStringLiteral("lblIstoric"));
    asezare->addWidget(lblIstoric);
    lvwIstoric = new QTreeWidget(this);
    lvwIstoric->setObjectName(QStringLiteral("lvwIstoric"));
    lvwIstoric->setRootIsDecorated(false);
    lvwIstoric->setAllColumnsShowFocus(true);
    lvwIstoric->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwIstoric->setHeaderLabels(
        {QStringLiteral("Data si ora"), QStringLiteral("Utilizator"), QStringLiteral("Ce s-a schimbat")});
    lvwIstoric->header()->setStretchLastSection(true);
    asezare->addWidget(lvwIstoric, 3);
    txtDetalii = new QPlainTextEdit(this);
    txtDetalii->setObjectName(QStringLiteral("txtDetalii"));
    txtDetalii->setReadOnly(true);
    asezare->addWidget(txtDetalii, 1);
    connect(lvwIstoric, &QTreeWidget::currentItemChanged, this, [this](QTreeWidgetItem* rand) {
        // One change a line: the list's text joins them with "; ".
        txtDetalii->setPlainText(rand ? rand->toolTip(2).replace(QStringLiteral("; "), QStringLiteral("\n"))
                                      : QString());
    });
}

void UiIstoricCerere::showEvent(QShowEvent* e) {
    QWidget::showEvent(e);
    Incarca();
}

void UiIstoricCerere::Incarca() {
    lvwIstoric->clear();
    txtDetalii->clear();
    const qint64 id = cerere_ ? cerere_() : 0;
    if (id <= 0) {
        lblIstoric->setText(QStringLiteral("Istoricul apare dupa prima salvare a cererii."));
        return;
    }
    std::vector<RandIstoric> randuri;
    if (!LaMargine(m_, [&] { randuri = Istoric::Lista(bd_, id); })) return;
    lblIstoric->setText(randuri.empty() ? QStringLiteral("Nicio schimbare inregistrata pentru aceasta cerere.")
                                        : QStringLiteral("Schimbari inregistrate: %1").arg(randuri.size()));
    for (const RandIstoric& r : randuri) {
        const QString ce = r.Detalii.isEmpty() ? r.Motiv : r.Detalii;
        auto* rand = new QTreeWidgetItem(QStringList{r.DataOra, r.Utilizator, ce});
        rand->setToolTip(2, ce);
        lvwIstoric->addTopLevelItem(rand);
    }
    if (lvwIstoric->topLevelItemCount() > 0) lvwIstoric->setCurrentItem(lvwIstoric->topLevelItem(0));
    lvwIstoric->resizeColumnToContents(0);
    lvwIstoric->resizeColumnToContents(1);
}
