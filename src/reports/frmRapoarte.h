#pragma once

#include "reports/UiFereastraRaport.h"

#include <array>

class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QTimer;

// The report window: a report chosen from the list with its orderings and filters, built into the
// grid, then previewed, printed or exported.
class frmRapoarte : public UiFereastraRaport {
    Q_OBJECT
public:
    frmRapoarte(Program& p, Mesaje& m, QWidget* parinte = nullptr);

    void cmdOK_Click();
    void cmdExport_Click();
    void cmdExportGrid_Click();

    QCheckBox* chkMembrii = nullptr;
    QListWidget* lstStare = nullptr;
    QLineEdit* txtNrBord = nullptr;
    QDateEdit* dtpBorderou = nullptr;
    QCheckBox* chkTipBenefic = nullptr;
    QGroupBox* dataNrFrame = nullptr;
    QPushButton* cmdExportGrid = nullptr;
    std::array<QPushButton*, 2> cmdBAS{};
    QTimer* Timer1 = nullptr;
    QLabel* lblMesaj = nullptr;
    QWidget* picSus = nullptr;

protected:
    void resizeEvent(QResizeEvent* e) override;
    Raport::Alegeri Alegerile() const override;

    void cboTipRaport_Click() override;

private:
    void Timer1_Timer();
    void Construieste();
};
