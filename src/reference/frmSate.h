#pragma once

#include "reference/DateReferinta.h"

#include <QDialog>
#include <functional>

class BazaDate;
class Mesaje;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// "Sate / strazi": the list of streets and villages.
class frmSate : public QDialog {
    Q_OBJECT
public:
    frmSate(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();

    // Shows the add/edit dialog; tests replace it to fill the dialog and press its OK.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };

    QTreeWidget* lvwSate;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;

private:
    static void ScrieRand(QTreeWidgetItem* r, const DateReferinta::Strada& s);

    BazaDate& bd_;
    Mesaje& m_;
};
