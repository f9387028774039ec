#pragma once

#include "cases/Adeverinte.h"

#include <QDialog>
#include <array>
#include <vector>

class BazaDate;
class Mesaje;
class QComboBox;
class QLineEdit;
class QPushButton;
class UiDataOptionala;

// "Adaugare act" / "Modificare act": one certificate of the person being edited. It works on that
// person's list of certificates: index -1 adds a row at the end, another index changes that row.
// On OK the list holds the row and the current marks of its kind; ESTE_OK tells the caller to
// show the list again (every row of the kind, since the marks may have moved).
class frmAddAct : public QDialog {
    Q_OBJECT
public:
    frmAddAct(BazaDate& db, Mesaje& m, std::vector<AdeverintaMembru>& acte, int index, QWidget* parinte = nullptr);

    void cmdOK_Click();
    // The row written: the new one after an add.
    int Index() const { return index_; }

    bool ESTE_OK = false;

    QComboBox* cboTipAct;
    QLineEdit* txtNrAct;
    // 0 the date of issue, 1 of filing, 2 of expiry.
    std::array<UiDataOptionala*, 3> dtpData{};
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void asazaControale();
    DateAct citesteControalele() const;

    Mesaje& m_;
    std::vector<AdeverintaMembru>& acte_;
    int index_;
    ModAct mod_;
};
