#pragma once

#include "reference/Calendar.h"

#include <QDialog>
#include <optional>

class BazaDate;
class Mesaje;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Adaugare luna" or "Modificare luna": one month of the payment calendar.
class frmAddLuna : public QDialog {
    Q_OBJECT
public:
    // `rec` is the month to change; none to add one.
    frmAddLuna(BazaDate& bd, Mesaje& m, std::optional<Calendar::LunaPlata> rec = std::nullopt,
               QWidget* parinte = nullptr);
    void cmdOK_Click();

    const bool Adaug;
    Calendar::LunaPlata Rec; // after OK, the row as written
    bool ESTE_OK = false;

    QLineEdit* txtAddLuna;
    QComboBox* cboLuna;
    // Kept from an older payroll: typed, never stored.
    QLineEdit* txtNrOre;
    QLineEdit* txtSalarMinim;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
