#pragma once

#include "reports/Catalog.h"

#include <QDialog>
#include <QUrl>
#include <array>
#include <functional>

class Mesaje;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPrinter;
class QPushButton;
class UiGrila;
struct Program;

// What the two report windows share: the grid, the page and printer choices, and preview, print and
// print one page over the grid shown.
class UiFereastraRaport : public QDialog {
    Q_OBJECT
public:
    // What the window hands to the desktop and the printer; tests replace them.
    std::function<bool(const QUrl&)> DeschideFisier;
    std::function<void(QPrinter&)> Tipareste;

    void cmdPreview_Click();
    void cmdPrint_Click();
    void cmdPrintPage_Click();
    const Raport::Grila& GrilaAfisata() const;

    QComboBox* cboTipRaport = nullptr;
    std::array<QComboBox*, 2> cboOrd{};
    QComboBox* cboTipCerere = nullptr;
    QLineEdit* txtNrLuni = nullptr;
    QLabel* lblNrLuni = nullptr;
    QComboBox* cboFormatPagina = nullptr;
    QCheckBox* chkPortret = nullptr;
    QComboBox* cboPrinter = nullptr;
    QPushButton *cmdOK = nullptr, *cmdPreview = nullptr, *cmdPrint = nullptr, *cmdPrintPage = nullptr,
                *cmdExport = nullptr, *cmdClose = nullptr;
    UiGrila* Grid = nullptr;

protected:
    UiFereastraRaport(Program& p, Mesaje& m, QWidget* parinte);
    // The report list (its first `nrIntrari` entries), the orderings, the request kind, the number of
    // months, the page and the printer, laid out in four rows for the derived window to add to; the
    // buttons made, for it to place.
    QGridLayout* ControaleAlegeri(QWidget* parinte, int nrIntrari);
    QPushButton* Buton(QWidget* parinte, const char* nume, const QString& text);
    // OK, preview, print, print page, export and close; the last four wired here.
    void ButoaneComune(QWidget* parinte);
    // The printers, the current one chosen: for a window whose page is fixed, the only page control.
    QComboBox* ListaImprimante(QWidget* parinte);
    // The filters that the chosen entry uses are shown.
    virtual void cboTipRaport_Click();
    // The choices of the window; the derived window adds its own filters.
    virtual Raport::Alegeri Alegerile() const;
    Raport::MediuRaport Mediul() const;
    // Opens a written file on the desktop; told when nothing could open it.
    void Deschide(const QString& fisier);
    // Long work of the window (a report built, a file written) under a progress window that shows once
    // the work lasts, with a button that stops it. An error is shown to the clerk, a stop is not. True
    // when the work ran to its end.
    bool LucruLung(const std::function<void()>& corp);

    Program& p_;
    Mesaje& m_;

private:
    // The grid shown, with the page chosen; the chosen printer set up for it.
    Raport::Grila GrilaDeTiparit() const;
    void AsazaImprimanta(QPrinter& pr, const Raport::Grila& g) const;
};
