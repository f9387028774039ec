#pragma once

#include "cases/VenituriBunuri.h"

#include <QDialog>
#include <functional>

class BazaDate;
class Mesaje;
class QLineEdit;
class QListWidget;
class QPrinter;
class QPushButton;
class QTableWidget;
struct StareCerere;

// "Bunuri care duc la excludere": the exclusion check list (packed into stare.Bife) and the grid
// of goods with their quantities (stare.Bunuri) and the running net value in euro. OK copies
// both into the state and sets ESTE_OK; Cancel leaves the state as it was.
class frmBife : public QDialog {
    Q_OBJECT
public:
    frmBife(BazaDate& bd, Mesaje& m, StareCerere& stare, QWidget* parinte = nullptr);

    void cmdOK_Click();
    void cmdPrint_Click();
    void cmdPreview_Click();
    // Renders the grid as it stands onto the printer's pages.
    void Tipareste(QPrinter& imprimanta) const;

    // Chooses the printer before cmdPrint prints; false when the clerk gives up. Tests replace it.
    std::function<bool(QPrinter&)> AlegeImprimanta;
    // Shows the print preview; tests replace it so that nothing waits for a click.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };

    bool ESTE_OK = false;

    QListWidget* lstBife;
    QTableWidget* Grid;
    QLineEdit* txtVenituri;
    QPushButton* cmdPrint;
    QPushButton* cmdPreview;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void umple();

    Mesaje& m_;
    StareCerere& stare_;
    CatalogBife catalog_;
    GrilaBunuri grila_;
};
