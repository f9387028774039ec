#pragma once

#include "reference/DateReferinta.h"

#include <QDialog>
#include <functional>

class BazaDate;
class Mesaje;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// "Motive": the reasons for leaving a request.
class frmMotive : public QDialog {
    Q_OBJECT
public:
    frmMotive(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();

    // Shows the add/edit dialog; tests replace it to fill the dialog and press its OK.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };

    QTreeWidget* lvwMotive;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
