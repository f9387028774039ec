#pragma once

#include "reports/Catalog.h"

#include <QDialog>
#include <QUrl>
#include <array>
#include <functional>

class BazaDate;
class Mesaje;
class QCheckBox;
class QComboBox;
class QDateEdit;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPrinter;
class QPushButton;
class QTimer;
class UiGrila;
struct Program;

// The report window: a report chosen from the list with its orderings and filters, built into the
// grid, then previewed, printed or exported.
class frmRapoarte : public QDialog {
    Q_OBJECT
public:
    frmRapoarte(Program& p, Mesaje& m, QWidget* parinte = nullptr);

    // What the window hands to the desktop and the printer; tests replace them.
    std::function<bool(const QUrl&)> DeschideFisier;
    std::function<void(QPrinter&)> Tipareste;

    void cmdOK_Click();
    void cmdPreview_Click();
    void cmdPrint_Click();
    void cmdPrintPage_Click();
    void cmdExport_Click();
    void cmdExportGrid_Click();
    const Raport::Grila& GrilaAfisata() const;

    QComboBox* cboTipRaport = nullptr;
    std::array<QComboBox*, 2> cboOrd{};
    QComboBox* cboTipCerere = nullptr;
    QCheckBox* chkMembrii = nullptr;
    QLineEdit* txtNrLuni = nullptr;
    QLabel* lblNrLuni = nullptr;
    QListWidget* lstStare = nullptr;
    QLineEdit* txtNrBord = nullptr;
    QDateEdit* dtpBorderou = nullptr;
    QCheckBox* chkTipBenefic = nullptr;
    QGroupBox* dataNrFrame = nullptr;
    QComboBox* cboFormatPagina = nullptr;
    QCheckBox* chkPortret = nullptr;
    QComboBox* cboPrinter = nullptr;
    QPushButton *cmdOK = nullptr, *cmdPreview = nullptr, *cmdPrint = nullptr, *cmdPrintPage = nullptr,
                *cmdExport = nullptr, *cmdExportGrid = nullptr, *cmdClose = nullptr;
    std::array<QPushButton*, 2> cmdBAS{};
    QTimer* Timer1 = nullptr;
    QLabel* lblMesaj = nullptr;
    QWidget* picSus = nullptr;
    UiGrila* Grid = nullptr;

protected:
    void resizeEvent(QResizeEvent* e) override;

private:
    void cboTipRaport_Click();
    void Timer1_Timer();
    Raport::Alegeri Alegerile() const;
    Raport::MediuRaport Mediul() const;
    void Construieste();
    // The chosen printer with the grid's page set up; false when the printer is not there.
    void AsazaImprimanta(QPrinter& pr) const;

    Program& p_;
    Mesaje& m_;
};
