#pragma once

#include <QStringList>
#include <QTreeWidgetItem>

class QTreeWidget;

// A row of a reference list: the key in the first column sorts as a number, the other columns
// as text regardless of case.
class RandLista : public QTreeWidgetItem {
public:
    RandLista(qint64 cheie, const QStringList& texte);
    qint64 Cheie() const;
    bool operator<(const QTreeWidgetItem& alt) const override;
};

// A one-selection list with the given column captions, sorted by a click on a header.
void PregatesteLista(QTreeWidget* l, const QStringList& coloane);

// The selected row, or none.
RandLista* RandSelectat(QTreeWidget* l);

// Adds a row at the end, selects it and shows it.
void AdaugaRand(QTreeWidget* l, RandLista* r);

// Removes the row and selects the one that took its place, or the new last row.
void StergeRand(QTreeWidget* l, QTreeWidgetItem* r);

// Columns as wide as their texts.
void LatimiColoane(QTreeWidget* l);
