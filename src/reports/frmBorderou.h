#pragma once

#include "reports/UiFereastraRaport.h"
#include "reports/builders/Borderou.h"

class QLineEdit;

// The Borderou window: the requests of a kind of status and of allowance in one table with their
// amounts and the grand total, built into the grid, then previewed, printed on A4 landscape or
// exported.
class frmBorderou : public UiFereastraRaport {
    Q_OBJECT
public:
    frmBorderou(Program& p, Mesaje& m, QWidget* parinte = nullptr);

    void cmdOK_Click();
    void cmdExport_Click();
    void cmdExportGrid_Click();

    QComboBox* cboTipAloc = nullptr;
    QLineEdit *txtCodFiscal = nullptr, *txtNumeAsSoc = nullptr;
    QPushButton* cmdExportGrid = nullptr;
    QWidget* picSus = nullptr;

protected:
    void resizeEvent(QResizeEvent* e) override;
    // The page is fixed: A4 landscape.
    Raport::Alegeri Alegerile() const override;

private:
    Raport::AlegeriBorderou AlegerileBorderou() const;
    // The choices OK and the export need; when one is missing the clerk is told and the focus goes to it.
    bool Alese();
};
