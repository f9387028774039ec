#pragma once

#include <QMainWindow>

class BazaDate;
class QLabel;

// The one top-level window. For now it shows which database is open.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    explicit frmMain(BazaDate& bd, QWidget* parinte = nullptr);

private:
    BazaDate& bd_;
    QLabel* lblBaza_;
};
