#pragma once

#include <QDialog>

class BazaDate;
class QPushButton;

// "Despre program": title, version, description and the system information box.
class frmAbout : public QDialog {
    Q_OBJECT
public:
    explicit frmAbout(BazaDate& bd, QWidget* parinte = nullptr);
    static QString InformatiiSistem(BazaDate& bd);

    QPushButton* cmdSysInfo;
    QPushButton* cmdOK;

private:
    BazaDate& bd_;
};
