#pragma once

#include "cases/DateCerere.h"
#include "cases/EditorCerere.h"
#include "cases/ListaMembri.h"
#include "cases/Persoana.h"
#include "cases/SalvareCerere.h"
#include "cases/StareCerere.h"

#include <QDialog>
#include <array>
#include <functional>
#include <memory>
#include <optional>

class BazaDate;
class Mesaje;
struct Setari;
class QCheckBox;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTabWidget;
class QTimer;
class QTreeWidget;
class UiDataOptionala;
class UiIstoricCerere;

// How the main window opens the request editor.
struct DeschidereCerere {
    int Adaug = 1;         // 1 a new request, 2 the stored request CerereID
    qint64 CerereID = 0;   // with Adaug 2
    bool AutoOpen = false; // opened from the expiring certificates: person TargetID opens at once
    qint64 TargetID = 0;   // a MembruID of the request
};

// "Adaugare cerere" / "Modificare cerere": one request with its household, persons, incomes,
// goods, housing and documents. The whole case lives in the dialog's StareCerere until OK writes
// it in one go; the sub-dialogs receive that state and write only to it. ESTE_OK tells the caller
// that the request was saved (its key in CerereID()).
class frmAddCerere : public QDialog {
    Q_OBJECT
public:
    frmAddCerere(BazaDate& bd, const Setari& setari, Mesaje& m, const DeschidereCerere& d, QWidget* parinte = nullptr);
    ~frmAddCerere() override;

    bool ESTE_OK = false;
    // With Adaug 2: false when the request or its household is gone (the caller says so and
    // does not show the dialog).
    bool Gasita() const { return gasita_; }
    // The request's key: the stored one, or the new one after a save.
    qint64 CerereID() const { return cerereID_; }
    // The working state of the open request; null once the dialog has closed.
    StareCerere* Stare() { return stare_.get(); }
    const ListaMembri& Lista() const { return lista_; }
    const CalculEditor& Calcul() const { return *calcul_; }

    // The controls as one value, and back.
    DateCerere Citeste() const;
    void Scrie(const DateCerere& d);

    // The handlers, public so that tests drive them without a modal loop.
    void cmdOK_Click();
    void cmdCancel_Click();
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdVenituri_Click();
    void cmdBife_Click();
    void cmdActe_Click();
    void cmdLocuinta_Click();
    void Timer1_Timer();

    // The person dialog: the element it wrote, nullopt when cancelled. Tests replace it.
    std::function<std::optional<int>(StareCerere&, const ContextPersoana&)> DeschideMembru;
    // The leave reason of a person removed from the list, nullopt when cancelled.
    std::function<std::optional<MotivIesire>()> DeschideMotiv;
    // The incomes, goods, documents and housing dialogs: true when the clerk confirmed.
    std::function<bool(StareCerere&)> DeschideVenituri, DeschideBife, DeschideActe, DeschideLocuinta;
    // Shows the sub-dialogs above; tests replace it to work the real dialogs without a modal loop.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };
    // Runs after each step of the save, inside its transaction; an exception undoes the save.
    std::function<void(PasSalvare)> DupaPasSalvare;

    // The control arrays, indexed by ElemCerere; txtCerere 25 to 28 do not exist.
    std::array<QLineEdit*, 31> txtCerere{};
    std::array<QComboBox*, 7> cboCerere{};
    std::array<UiDataOptionala*, 2> dtpData{};
    QCheckBox* chkVmg = nullptr;
    QCheckBox* chkIncalzire = nullptr;
    QCheckBox* chkSupl = nullptr;
    QCheckBox* chkVmg_s = nullptr;
    QCheckBox* chkIncalzire_s = nullptr;
    QCheckBox* chkSupl_s = nullptr;
    std::array<QRadioButton*, 2> opt{};
    QFrame* Picture1 = nullptr; // domicile
    QFrame* Picture3 = nullptr; // residence
    QFrame* picPlata = nullptr; // bank data
    QTreeWidget* lvw = nullptr;
    QTreeWidget* lvwIesiti = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdEdit = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdVenituri = nullptr;
    QPushButton* cmdBife = nullptr;
    QPushButton* cmdActe = nullptr;
    QPushButton* cmdLocuinta = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
    QTimer* Timer1 = nullptr;
    // The request on its first page, its history on the second.
    QTabWidget* tabCerere = nullptr;
    UiIstoricCerere* pagIstoric = nullptr;

protected:
    bool eventFilter(QObject* obiect, QEvent* e) override;
    void done(int r) override;

private:
    void asazaControale();
    QWidget* construiesteCererea();
    QWidget* construiesteAdresa();
    QWidget* construiestePlata();
    QWidget* construiesteMembrii();
    QWidget* construiesteTotalurile();
    void umpleListele();
    void incarca(const DeschidereCerere& d);
    void conecteaza();
    void arataListele();
    void arataCalculul(const DateCerere& d);
    void textSchimbat(int element);
    void recalculeaza(const std::function<void(DateCerere&)>& pas);
    void parasesteCombo(int element);
    void coloreazaCombo(int element, bool cuFocus);
    void schimbareModPlata();
    void focusPe(const QString& control);
    void deschideMembru(const Deschidere& dch);

    BazaDate& bd_;
    const Setari& setari_;
    Mesaje& m_;
    std::unique_ptr<StareCerere> stare_;
    std::unique_ptr<CalculEditor> calcul_;
    ListaMembri lista_;
    DateCerere date_; // Adaug and the keys of the request; the controls hold the rest
    bool gasita_ = true;
    qint64 cerereID_ = 0;
    qint64 targetID_ = 0;
    bool seScrie_ = false; // the dialog itself is writing its boxes
};
