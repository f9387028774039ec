#pragma once

#include "reference/DateReferinta.h"

#include <QDialog>
#include <optional>

class BazaDate;
class Mesaje;
class QLineEdit;
class QPushButton;

// "Adaugare strada / sat" or "Modificare strada / sat".
class frmAdSate : public QDialog {
    Q_OBJECT
public:
    // `rec` is the street to change; none to add one.
    frmAdSate(BazaDate& bd, Mesaje& m, std::optional<DateReferinta::Strada> rec = std::nullopt,
              QWidget* parinte = nullptr);
    void cmdOK_Click();

    const bool Adaug;
    DateReferinta::Strada Rec; // after OK, the row as written, with its key
    bool ESTE_OK = false;

    QLineEdit* txtDenumire;
    QLineEdit* txtOfPostal;
    QLineEdit* txtCodPostal;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
