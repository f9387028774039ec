#pragma once

#include <QDialog>

class Mesaje;
struct Program;
class QLineEdit;
class QPushButton;

// "Schimbare Luna si An": the working month.
class frmChLunaAn : public QDialog {
    Q_OBJECT
public:
    frmChLunaAn(Program& p, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();

    QLineEdit* txtLuna;
    QLineEdit* txtAn;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    Program& p_;
    Mesaje& m_;
};
