#pragma once

#include <QDialog>
#include <functional>

struct Program;
class Mesaje;
class QCheckBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QTreeWidget;

// "Generare An Nou": the payment calendar, a year at a time or whole; a new year's twelve months in
// one step, and single months added, changed or deleted.
class frmGenerareAn : public QDialog {
    Q_OBJECT
public:
    frmGenerareAn(Program& p, Mesaje& m, QWidget* parinte = nullptr);
    void cmdGenerare_Click();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    // The list again: every row, or the year of txtAn (the working year when it holds none).
    void Reincarca();

    // Shows frmAddLuna; tests replace it to fill the dialog and press its OK.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };

    QLineEdit* txtAn;
    QCheckBox* chkTotiAnii;
    QTreeWidget* lvwLuni;
    QPushButton* cmdGenerare;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;
    // What is left of an older payroll: the frames open and close, and nothing is saved.
    QGroupBox* fraModOre;
    QLineEdit* txtLunaModOre;
    QLineEdit* txtModNrOre;
    QPushButton* cmdModificareNrOre;
    QGroupBox* fraModSalar;

private:
    Program& p_;
    Mesaje& m_;
};
