#pragma once

#include "reports/UiFereastraRaport.h"

// The report page painted from the delivered XML template, in the same grid, with the same page,
// print and preview; its export serves one list of the catalogue.
class frmRapoarte2 : public UiFereastraRaport {
    Q_OBJECT
public:
    frmRapoarte2(Program& p, Mesaje& m, QWidget* parinte = nullptr);

    void cmdOK_Click();
    void cmdExport_Click();
};
