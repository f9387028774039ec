#pragma once

#include "cases/ListaMembri.h"
#include "cases/Persoana.h"
#include "cases/StareCerere.h"

#include <QDialog>
#include <array>
#include <functional>
#include <optional>

class BazaDate;
class Mesaje;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class UiDataOptionala;

// "Adaugare membru" / "Modificare membru": one person of the open request. The dialog works on
// the editor's StareCerere; nothing reaches the database.
class frmAddMembru : public QDialog {
    Q_OBJECT
public:
    // c.Mod 1 adds a person to stare.MatriceMembri, 2 changes element c.Index.
    frmAddMembru(BazaDate& bd, Mesaje& m, StareCerere& stare, const ContextPersoana& c, QWidget* parinte = nullptr);

    bool ESTE_OK = false;          // true once OK wrote the element
    std::optional<int> IndexScris; // the element written

    // The certificate commands; until their editor is plugged in they do nothing. They receive
    // the dialog, whose Citeste/Scrie give the grid as DatePersoana::Grid.
    std::function<void(frmAddMembru&)> AdaugaAdeverinta = [](frmAddMembru&) {};
    std::function<void(frmAddMembru&)> ModificaAdeverinta = [](frmAddMembru&) {};
    std::function<void(frmAddMembru&)> StergeAdeverinta = [](frmAddMembru&) {};
    std::function<void(frmAddMembru&)> IstoricAdeverinte = [](frmAddMembru&) {};

    // The controls as one value, and back.
    DatePersoana Citeste() const;
    void Scrie(const DatePersoana& d);

    void cboCNP_LostFocus();
    void cmdOK_Click();

    QComboBox* cboCNP = nullptr;
    std::array<QLineEdit*, 20> txtMembru{};
    std::array<QComboBox*, 17> cboMembru{};
    std::array<QCheckBox*, 14> chkMembru{};
    std::array<QCheckBox*, 2> chkVenit{};
    std::array<UiDataOptionala*, 3> dtpData{};
    QLabel* lblDataNast = nullptr;
    QLabel* lblVarsta = nullptr;
    QTableWidget* grdAdev = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    BazaDate& bd_;
    Mesaje& m_;
    StareCerere& stare_;
    ContextPersoana c_;
    qint64 membruID_ = 0;
};

// "Motivul iesirii": why a person leaves the request, and the amount of the change.
class frmMotiv : public QDialog {
    Q_OBJECT
public:
    frmMotiv(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);

    std::optional<MotivIesire> Rezultat; // set by OK, nullopt after Cancel

    void cmdOK_Click();

    std::array<QComboBox*, 2> cboMembru{};
    QCheckBox* chkVenit = nullptr;
    QLineEdit* txtMembru = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    BazaDate& bd_;
    Mesaje& m_;
};
