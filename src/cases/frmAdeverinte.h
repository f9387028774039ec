#pragma once

#include <QDialog>
#include <functional>

class BazaDate;
class Mesaje;
class QPushButton;
class QTreeWidget;

// "Adeverinte scolarizare": the certificates of the pupils of all requests, with their editor.
class frmAdeverinte : public QDialog {
    Q_OBJECT
public:
    frmAdeverinte(BazaDate& db, Mesaje& m, QWidget* parinte = nullptr);

    // Fills the list again and selects the certificate with that key, or the first row.
    void Incarca(qint64 selectat = 0);
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();

    // Shows frmAdAdeverinte; tests replace it to fill the editor and press its OK.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };

    QTreeWidget* lvwAdeverinte;
    QPushButton* cmdAdd;
    QPushButton* cmdEdit;
    QPushButton* cmdDelete;
    QPushButton* cmdClose;

private:
    BazaDate& db_;
    Mesaje& m_;
};
