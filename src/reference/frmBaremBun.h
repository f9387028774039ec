#pragma once

#include "reference/Barem.h"

#include <QDialog>
#include <array>

class BazaDate;
class Mesaje;
class QLabel;
class QLineEdit;
class QPushButton;

// "Nivel Alocatii": the coefficients of the scale in force since 1 November 2014 and the two income
// thresholds.
class frmBaremBun : public QDialog {
    Q_OBJECT
public:
    frmBaremBun(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();
    void cmdSave_Click();

    // By the boxes' order of Barem.h: four families, each with its boxes for one to four children.
    std::array<QLineEdit*, NrNivele> Txt{};
    std::array<QLabel*, NrNivele> lblPerPers{};
    QLineEdit* txtPrag1;
    QLineEdit* txtPrag2;
    QPushButton* cmdSave;
    QLabel* lblInfo;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    bool eventFilter(QObject* obiect, QEvent* e) override;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
