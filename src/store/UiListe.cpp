#include "store/UiListe.h"

#include <QHeaderView>
#include <QTreeWidget>

RandLista::RandLista(qint64 cheie, const QStringList& texte)
    : QTreeWidgetItem(QStringList{QString::number(cheie)} + texte) {
    setData(0, Qt::UserRole, cheie);
}

qint64 RandLista::Cheie() const {
    return data(0, Qt::UserRole).toLongLong();
}

bool RandLista::operator<(const QTreeWidgetItem& alt) const {
    const int coloana = treeWidget() ? treeWidget()->sortColumn() : 0;
    if (coloana == 0) return Cheie() < alt.data(0, Qt::UserRole).toLongLong();
    return text(coloana).compare(alt.text(coloana), Qt::CaseInsensitive) < 0;
}

void PregatesteLista(QTreeWidget* l, const QStringList& coloane) {
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setAllColumnsShowFocus(true);
    l->setSelectionMode(QAbstractItemView::SingleSelection);
    l->setHeaderLabels(coloane);
    l->header()->setSortIndicatorShown(true);
    l->setSortingEnabled(true);
    l->sortByColumn(0, Qt::AscendingOrder);
}

RandLista* RandSelectat(QTreeWidget* l) {
    const auto selectate = l->selectedItems();
    return selectate.isEmpty() ? nullptr : static_cast<RandLista*>(selectate.first());
}

void AdaugaRand(QTreeWidget* l, RandLista* r) {
    l->addTopLevelItem(r);
    l->setCurrentItem(r);
    l->scrollToItem(r);
}

void StergeRand(QTreeWidget* l, QTreeWidgetItem* r) {
    int pozitie = l->indexOfTopLevelItem(r);
    delete r;
    if (l->topLevelItemCount() == 0) return;
    pozitie = qMin(pozitie, l->topLevelItemCount() - 1);
    l->setCurrentItem(l->topLevelItem(pozitie));
    l->scrollToItem(l->currentItem());
}

void LatimiColoane(QTreeWidget* l) {
    for (int c = 0; c < l->columnCount(); ++c)
        l->resizeColumnToContents(c);
}
