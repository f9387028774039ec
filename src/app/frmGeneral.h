#pragma once

#include <QDialog>

class Mesaje;
class QLineEdit;
class QPushButton;

// "Selectati locatia Bazei de Date": a new database folder, taken at the next start.
class frmGeneral : public QDialog {
    Q_OBJECT
public:
    frmGeneral(const QString& fisierSetari, const QString& caleBD, Mesaje& m, QWidget* parinte = nullptr);
    void cmdOK_Click();
    void cmdBrowse_Click();

    QLineEdit* Txt;
    QPushButton* cmdBrowse;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    QString fisierSetari_;
    Mesaje& m_;
};
