#pragma once

#include "reference/DateReferinta.h"

#include <QDialog>
#include <optional>

class BazaDate;
class Mesaje;
class QLineEdit;
class QPushButton;

// "Adaugare Motiv" or "Modificare Motiv".
class frmAdMotive : public QDialog {
    Q_OBJECT
public:
    // `rec` is the reason to change; none to add one.
    frmAdMotive(BazaDate& bd, Mesaje& m, std::optional<DateReferinta::Motiv> rec = std::nullopt,
                QWidget* parinte = nullptr);
    void cmdOK_Click();

    const bool Adaug;
    DateReferinta::Motiv Rec; // after OK, the row as written, with its key
    bool ESTE_OK = false;

    QLineEdit* txtDenumire;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
