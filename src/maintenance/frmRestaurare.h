#pragma once

#include "store/BazaDate.h"

#include <QDialog>

class Mesaje;
class QPushButton;
class QTreeWidget;

// The copies of the database, newest first; the one chosen is put back once the program has closed
// its connection (the caller does that with `Aleasa`).
class frmRestaurare : public QDialog {
    Q_OBJECT
public:
    frmRestaurare(const LocatieBD& loc, Mesaje& m, QWidget* parinte = nullptr);

    void cmdRestaureaza_Click();

    QString Aleasa; // the copy to put back; empty while none is chosen
    QTreeWidget* lvwCopii = nullptr;
    QPushButton* cmdRestaureaza = nullptr;

private:
    Mesaje& m_;
};
