#pragma once

#include "cases/StareCerere.h"

#include <QDialog>
#include <vector>

class BazaDate;
class Mesaje;
class QPushButton;
class QTreeWidget;

// "Istoric adeverinte": the certificates of one person of the open request, read only.
class frmIstoricAdv : public QDialog {
    Q_OBJECT
public:
    frmIstoricAdv(BazaDate& db, Mesaje& m, const std::vector<AdeverintaMembru>& acte, QWidget* parinte = nullptr);

    QTreeWidget* lvwIstoric;
    QPushButton* cmdClose;
};
