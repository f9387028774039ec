#pragma once

#include "cases/Persoana.h"

#include <QDialog>
#include <array>
#include <optional>

class BazaDate;
class Mesaje;
class ModelMembrii;
class QLineEdit;
class QPushButton;
class QTableView;

// The browser of every person known to the program, with the search by CNP, first name and name.
// Persons change only through a request: the list's own add, change and delete do nothing.
class frmMembrii : public QDialog {
    Q_OBJECT
public:
    frmMembrii(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);

    // Enter in Txt `camp` (0 CNP, 1 first name, 2 name): the first person of the list whose field
    // begins with the text is selected and shown.
    void Txt_KeyPress(int camp);
    std::optional<qint64> MembruSelectat() const;
    int NrRanduri() const;
    // The texts of row `rand`, column by column.
    QStringList TexteRand(int rand) const;

    std::array<QLineEdit*, 3> Txt{};
    QTableView* lvwMembrii = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdEdit = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    BazaDate& bd_;
    Mesaje& m_;
    ModelMembrii* model_ = nullptr;
};
