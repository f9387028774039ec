#pragma once

#include <QDialog>

class BazaDate;
class Mesaje;
class QListWidget;
class QPushButton;
struct StareCerere;

// The check list of the documents handed in with the request, one row per document of
// ListaActe. OK packs the marks into stare.ActeBife and sets ESTE_OK; Cancel leaves the state
// as it was.
class frmAddActe : public QDialog {
    Q_OBJECT
public:
    frmAddActe(BazaDate& bd, Mesaje& m, StareCerere& stare, QWidget* parinte = nullptr);

    void cmdOK_Click();

    bool ESTE_OK = false;

    QListWidget* lstBife;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    StareCerere& stare_;
    bool citit_ = false; // the catalogue was read
};
