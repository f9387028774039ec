#pragma once

#include <QWidget>
#include <functional>

class BazaDate;
class Mesaje;
class QLabel;
class QPlainTextEdit;
class QTreeWidget;

// The history page of the request editor: who changed what of the request and when, newest
// first, read-only; the whole text of the selected change below the list. Read from the database each time the page comes into view, so that it shows
// the saves made since the editor opened.
class UiIstoricCerere : public QWidget {
    Q_OBJECT
public:
    // `cerere` gives the request's key when the page is shown; 0 for a request not saved yet.
    UiIstoricCerere(BazaDate& bd, Mesaje& m, std::function<qint64()> cerere, QWidget* parinte = nullptr);

    void Incarca();

    QTreeWidget* lvwIstoric = nullptr;
    QLabel* lblIstoric = nullptr;
    QPlainTextEdit* txtDetalii = nullptr;

protected:
    void showEvent(QShowEvent* e) override;

private:
    BazaDate& bd_;
    Mesaje& m_;
    std::function<qint64()> cerere_;
};
