#pragma once

#include <QDialog>

class BazaDate;
class Mesaje;
class QLineEdit;
class QProgressBar;
class QPushButton;

// "Valoare ISR": the reference value, and with it the amount of every paying request.
class frmISR : public QDialog {
    Q_OBJECT
public:
    frmISR(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();

    QLineEdit* txtValoare;
    QLineEdit* txtZecimale;
    QProgressBar* barProgres;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
