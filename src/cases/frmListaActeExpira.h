#pragma once

#include <QDialog>
#include <functional>

class BazaDate;
class Mesaje;
class QLabel;
class QPushButton;
class QTimer;
class QTreeView;
class ModelActeExpira;

// "Lista Membrilor ale caror acte expira in luna ...": the current certificates of requests in
// force that expire in this calendar month. A double click opens the request on that person.
class frmListaActeExpira : public QDialog {
    Q_OBJECT
public:
    frmListaActeExpira(BazaDate& db, Mesaje& m, QWidget* parinte = nullptr);

    // Fills the list again; an empty list hides the notice and closes the window shortly after.
    void AfisLista();
    void lvwActe_DblClick();
    void Timer1_Timer();

    // Opens the request editor on the request, positioned on the person; true when the request
    // was saved, after which the list is filled again.
    std::function<bool(qint64 cerereID, qint64 membruID)> DeschideCerere = [](qint64, qint64) { return false; };
    // Hides the main window's notice of expiring certificates.
    std::function<void()> AscundeNotificarea = [] {};

    // The rows are shown through a model: a month of a large office holds thousands of them.
    QTreeView* lvwActe;
    QLabel* lblInfo;
    QPushButton* cmdClose;
    QTimer* Timer1;

private:
    BazaDate& db_;
    Mesaje& m_;
    ModelActeExpira* model_;
};
