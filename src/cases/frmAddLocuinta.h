#pragma once

#include "cases/Locuinta.h"

#include <QDialog>
#include <array>

class BazaDate;
class Mesaje;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class UiDataOptionala;
struct StareCerere;

// The family's housing and its insurance. OK copies the controls into the working state and sets
// ESTE_OK; Cancel leaves the state as it was. Enter moves on as Tab does.
class frmAddLocuinta : public QDialog {
    Q_OBJECT
public:
    frmAddLocuinta(BazaDate& bd, Mesaje& m, StareCerere& stare, QWidget* parinte = nullptr);

    void cmdOK_Click();
    void chkPolita_Click();

    bool ESTE_OK = false;

    std::array<QCheckBox*, 7> chkLocuinta{};
    QLineEdit* txtNrCamere;
    std::array<QComboBox*, 5> cboLocuinta{};
    std::array<QCheckBox*, 2> chkPolita{};
    QGroupBox* fraPolita;
    std::array<QLineEdit*, 2> txtLocuinta{};
    std::array<UiDataOptionala*, 2> dtpData{};
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    bool eventFilter(QObject* obiect, QEvent* e) override;

private:
    void asazaControale();
    void arata(const DateLocuinta& d);
    DateLocuinta citesteControalele() const;

    Mesaje& m_;
    StareCerere& stare_;
};
