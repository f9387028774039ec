#pragma once

#include "cases/VenituriBunuri.h"

#include <QDialog>
#include <optional>

class BazaDate;
class Mesaje;
class QLabel;
class QPushButton;
class QTableWidget;
struct StareCerere;

// The incomes of the open request: one row per kind of ListaVenituri with its amount, and the
// running total. OK copies the amounts into stare.Venituri and sets ESTE_OK; Cancel leaves the
// state as it was. The background is the colour chosen in the options (CuloareVenit as stored),
// the usual one when none is.
class frmAddVenituri : public QDialog {
    Q_OBJECT
public:
    frmAddVenituri(BazaDate& bd, Mesaje& m, StareCerere& stare, const QString& culoareVenit,
                   QWidget* parinte = nullptr);

    void cmdOK_Click();

    bool ESTE_OK = false;

    QTableWidget* Grid;
    QLabel* lblTotalVenituri;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void umple();

    Mesaje& m_;
    StareCerere& stare_;
    GrilaVenituri grila_;
};
