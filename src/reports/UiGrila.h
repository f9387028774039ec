#pragma once

#include "reports/Grila.h"

#include <QTableView>

class QAbstractTableModel;

// The report grid on screen: a view of the model, with its merges, fonts, alignment, wrap, the cells'
// lines, widths and heights as the model says; the fixed row and column as the headers.
class UiGrila : public QTableView {
    Q_OBJECT
public:
    explicit UiGrila(QWidget* parinte = nullptr);

    // Shows a grid anew (after a builder ran, or a file was loaded).
    // Taken by value: a report just built is moved in rather than copied, a million rows included.
    void Arata(Raport::Grila g);
    const Raport::Grila& Grila() const { return grila_; }

private:
    Raport::Grila grila_;
    QAbstractTableModel* model_;
};
