#pragma once

#include "cases/Dispozitii.h"

#include <QDialog>
#include <array>
#include <functional>

class BazaDate;
class Mesaje;
class QComboBox;
class QDateEdit;
class QLineEdit;
class QPushButton;
class QRadioButton;

// "Selectati modul de tiparire a dispozitiilor": the bulk generation of dispositions
// (cmdGenerate) and the choice of the dispositions to print (cmdOK). The working month and year
// preset the month boxes. After OK, ESTE_OK is true and Selectie holds the choice, which
// Dispozitii::SelecteazaPentruTiparire turns into dispositions. A generation closes the dialog
// with ESTE_OK false; Generate then tells how many dispositions it wrote.
class frmAnexa2 : public QDialog {
    Q_OBJECT
public:
    frmAnexa2(BazaDate& db, Mesaje& m, int lunaSetata = 0, int anSetat = 0, QWidget* parinte = nullptr);

    void cmdGenerate_Click();
    void cmdOK_Click();

    bool ESTE_OK = false;
    SelectieTiparire Selectie;
    qint64 Generate = 0;

    // Runs a bulk generation with its progress shown; tests replace it to watch or stop the run.
    // The default shows a progress window once a run lasts more than a moment.
    std::function<RezultatGenerare(ParametriGenerare)> RuleazaGenerarea;

    std::array<QComboBox*, 1> cboCerere{};
    QComboBox* cboTipDisp;
    QComboBox* cboTipCerere;
    QComboBox* cboCuantum;
    QComboBox* cboLuna;
    QComboBox* cboOrder;
    QComboBox* cboDispoz_1; // the month of the generation; the form has no cboDispoz(0)
    std::array<QLineEdit*, 2> txtDispoz{};
    std::array<QRadioButton*, 4> opt{};
    QLineEdit* txtCerereMin;
    QLineEdit* txtCerereMax;
    QLineEdit* txtDispozitieMin;
    QLineEdit* txtDispozitieMax;
    QDateEdit* dtpData;
    QPushButton* cmdGenerate;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void asazaControale();
    RezultatGenerare genereazaCuProgres(ParametriGenerare p);

    BazaDate& db_;
    Mesaje& m_;
};
