#pragma once

#include <QDialog>

class Mesaje;
struct Program;
class QLineEdit;
class QPushButton;

// "Setare parola": sets, changes or removes the program password.
class frmParola : public QDialog {
    Q_OBJECT
public:
    frmParola(Program& p, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();
    void cmdReset_Click();

    QLineEdit* txtPassOld;
    QLineEdit* txtPassNew;
    QLineEdit* txtPassRenew;
    QPushButton* cmdOK;
    QPushButton* cmdReset;
    QPushButton* cmdCancel;

private:
    void pastreaza(const QString& valoare);
    Program& p_;
    Mesaje& m_;
};
