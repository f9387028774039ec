#pragma once

#include "cases/ControalePersoana.h"
#include "cases/ListaMembri.h"
#include "cases/Persoana.h"
#include "cases/StareCerere.h"

#include <QDialog>
#include <array>
#include <functional>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableWidget;
class QWidget;
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

    // The certificate commands (cmdAddRand, cmdModAct, cmdDelRand, cmdIstoricAdv; a double click
    // on a row changes it). They do nothing until their editor is plugged in; they work on the
    // grid through Adeverinte/ArataAdeverinte/AdeverinteSelectate.
    std::function<void(frmAddMembru&)> AdaugaAdeverinta = [](frmAddMembru&) {};
    std::function<void(frmAddMembru&)> ModificaAdeverinta = [](frmAddMembru&) {};
    std::function<void(frmAddMembru&)> StergeAdeverinta = [](frmAddMembru&) {};
    std::function<void(frmAddMembru&)> IstoricAdeverinte = [](frmAddMembru&) {};

    // The controls as one value, and back. Scrie fills the controls without running the click
    // rules; the dependent frames follow.
    DatePersoana Citeste() const;
    void Scrie(const DatePersoana& d);

    // The certificates' grid: its rows, rewritten (and one of them selected), the selected rows.
    std::vector<AdeverintaMembru> Adeverinte() const;
    void ArataAdeverinte(const std::vector<AdeverintaMembru>& acte, std::optional<int> selectat = std::nullopt);
    std::vector<int> AdeverinteSelectate() const;
    const std::vector<AlegereCombo>& TipuriAdeverinte() const { return liste_.TipuriAdeverinte; }

    BazaDate& Bd() { return bd_; }
    Mesaje& M() { return m_; }
    StareCerere& Stare() { return stare_; }
    const ContextPersoana& Context() const { return c_; }

    // The leave of cboCNP; the box calls it when the focus goes to another control of the dialog.
    void cboCNP_LostFocus();
    void cmdOK_Click();
    void cmdCancel_Click();

    QComboBox* cboCNP = nullptr;
    std::array<QLineEdit*, 20> txtMembru{}; // 4, 8 and 9 are not used
    std::array<QComboBox*, 17> cboMembru{};
    std::array<QCheckBox*, 14> chkMembru{}; // 1 is not used
    std::array<QCheckBox*, 2> chkVenit{};
    std::array<UiDataOptionala*, 3> dtpData{};
    QLabel* lblDataNast = nullptr;
    QLabel* lblVarsta = nullptr;
    QGroupBox* picTitular = nullptr;
    QGroupBox* picElev = nullptr;
    QWidget* picLucreaza = nullptr;
    QWidget* picLocuieste = nullptr;
    QTableWidget* Grid = nullptr;
    QPushButton* cmdAddRand = nullptr;
    QPushButton* cmdModAct = nullptr;
    QPushButton* cmdDelRand = nullptr;
    QPushButton* cmdIstoricAdv = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    void asazaControale();
    void umpleListe();
    void conecteaza();
    void aplicaStarea();
    void scrieBife(const DatePersoana& d);
    void arataVarsta(const DateCNP& date);
    void focus(const QString& control);
    void umpleCNP();

    BazaDate& bd_;
    Mesaje& m_;
    StareCerere& stare_;
    ContextPersoana c_;
    ListePersoana liste_;
    qint64 membruID_ = 0;
    QString cnpVerificat_; // the code of the last leave: leaving an unchanged box does nothing
    bool scriu_ = false;   // Scrie is filling the controls
    bool inPlecare_ = false;
};

// "Motivul iesirii": why a person leaves the request, and the amount of the change.
class frmMotiv : public QDialog {
    Q_OBJECT
public:
    frmMotiv(BazaDate& bd, Mesaje& m, QWidget* parinte = nullptr);

    std::optional<MotivIesire> Rezultat; // set by OK, nullopt after Cancel

    void cmdOK_Click();

    std::array<QComboBox*, 2> cboMembru{}; // 0 the reason, 1 the currency
    QCheckBox* chkVenit = nullptr;         // "Da, in suma de"
    QLineEdit* txtMembru = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;

private:
    Mesaje& m_;
};
