#pragma once

#include <QDialog>

class Mesaje;
class QLineEdit;
class QPushButton;

// The program password at start. Attempts are not counted.
class frmLogin : public QDialog {
    Q_OBJECT
public:
    frmLogin(const QString& parolaPastrata, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();
    bool LoginSucceeded = false;

    QLineEdit* txtUserName;
    QLineEdit* txtPassword;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    QString pastrata_;
    Mesaje& m_;
};
