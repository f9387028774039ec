#pragma once

#include "cases/Adeverinte.h"

#include <QDialog>
#include <array>

class BazaDate;
class Mesaje;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class UiDataOptionala;

// "Adaugare adeverinta" / "Modificare adeverinta": one certificate of a pupil, written straight to
// Adeverinte. adaug 1 adds a certificate to the request and person of `rec`; 2 changes `rec`.
class frmAdAdeverinte : public QDialog {
    Q_OBJECT
public:
    frmAdAdeverinte(BazaDate& db, Mesaje& m, int adaug, const AdeverintaScolara& rec, QWidget* parinte = nullptr);
    void cmdOK_Click();

    const int Adaug;
    AdeverintaScolara RecAdev; // after OK, the row as written, with its key
    bool ESTE_OK = false;

    QLabel* lblNrCerere;
    QLabel* lblTitular;
    QLabel* lblScolar;
    QComboBox* cboTipAdev;
    QLineEdit* txtNrAdev;
    // 0 the date of issue, 1 of filing, 2 of expiry.
    std::array<UiDataOptionala*, 3> dtpData{};
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void asazaControale();
    AdeverintaScolara citesteControalele() const;

    BazaDate& db_;
    Mesaje& m_;
};
