#pragma once

#include "reference/DateReferinta.h"

#include <QDialog>
#include <array>

class BazaDate;
class Mesaje;
class QComboBox;
class QLineEdit;
class QPushButton;

// "Date Primarie 2": the town hall's own record.
class frmDatePrimarie2 : public QDialog {
    Q_OBJECT
public:
    frmDatePrimarie2(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();

    // In the order of DateReferinta::CampuriPrimarie; Judet (3) and Localitate (4) complete
    // from the tables Judete and Localitati.
    std::array<QLineEdit*, DateReferinta::NrCampuriPrimarie> txtText{};
    QComboBox* cbo; // Tip Localitate
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    bool eventFilter(QObject* obiect, QEvent* e) override;

private:
    DateReferinta::DatePrimarie DinControale() const;
    void InControale(const DateReferinta::DatePrimarie& d);
    QWidget* Control(int index) const;

    BazaDate& bd_;
    Mesaje& m_;
};
