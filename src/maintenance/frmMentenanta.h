#pragma once

#include "maintenance/Mentenanta.h"

#include <QDialog>

struct Program;
class Mesaje;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;

// "Mentenanta": the one-off repairs of the support staff, each a button over the open database. The
// tools of the old program that need tables this database lacks stand disabled.
class frmMentenanta : public QDialog {
    Q_OBJECT
public:
    frmMentenanta(Program& p, Mesaje& m, QWidget* parinte = nullptr);

    // The tool behind a button, with the options of the window and the working month.
    void Ruleaza(Mentenanta::Unealta u);

    QLabel* lblAtentie;
    QPushButton* cmdCereri;
    QCheckBox* chkVeche;
    QPushButton* cmdRecalculare;
    QCheckBox* chkSuprascrieDataStare;
    QPushButton* cmdRecalculStare;
    QPushButton* cmdRecalculRudenie;
    QPushButton* reCalculActe;
    QPushButton* Command3;
    QPushButton* cmdNrCerere;
    QLineEdit* txtNrCerere;
    QLabel* lblNrCerere;
    QPushButton* cmdExecuta;
    QPushButton* cmdImport;
    QPushButton* Command1;
    QPushButton* cmdExit;

private:
    Program& p_;
    Mesaje& m_;
};
