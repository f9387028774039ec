#pragma once

#include "documents/web/ComenziWeb.h"
#include "documents/DeschideDocument.h"
#include "cases/ListaCereri.h"

#include <QDialog>
#include <QMainWindow>
#include <QString>
#include <array>
#include <functional>

class CopieInFundal;
class Mesaje;
class ModelCereri;
struct Program;
class QAction;
class QComboBox;
class QLabel;
class QMenu;
class QLineEdit;
class QListWidget;
class QPushButton;
class QTableView;
class QTabWidget;
class QTimer;
class QTreeWidget;
class UiDataOptionala;
struct TiparireDocumente;

// The support line of the status bar.
inline const QString ContactSuport = QStringLiteral(" Suport: suport@ferolanta.ro ");

// Captions of the bulk-printing menu entries; while they print, their caption is the stop command.
namespace TextTiparire {
inline const QString Opreste = QStringLiteral("Opreste tiparirea");
inline const QString MnuAnexa2 = QStringLiteral("Tiparire toate dispozitiile ...");
inline const QString MnuToateDisp = QStringLiteral("Tiparire toate dispozitiile (Anexele 2) ...");
} // namespace TextTiparire

// The one top-level window: the search and the request list above, the lists of the selected
// request below, the menus and the status bar.
class frmMain : public QMainWindow {
    Q_OBJECT
public:
    frmMain(Program& p, Mesaje& m, QWidget* parinte = nullptr);

    // The handlers, public so that tests drive them without a modal loop.
    void cmdCauta_Click();
    void cmdDelete_Click();
    void cmdEdit_Click();
    void cmdAdd_Click();
    void ColumnClick(int coloana);
    void ItemClick();
    void SelecteazaRand(int rand);
    int RandSelectat() const;
    void ScrieLunaActiva();
    void ListaDispozitii(qint64 cerereID);
    void ListaAdeverinte(qint64 cerereID);
    void cmdAddDisp_Click();
    void cmdEditDisp_Click();
    void cmdDelDisp_Click();
    void cmdPrintDisp_Click();
    void cmdFisaCalcul_Click();
    void cmdDeclaratie_Click();
    void mnuToateDisp_Click();
    void mnuAnexa2_Click();
    void picNotific_Click();
    // The forms printed by the web page: the selected request's, or a blank one.
    void TiparesteWeb(ComenziWeb::Comanda c);
    // The commands that follow the request list, and the web ones only while the page is there.
    void ActivareComenzi();
    void ListaAnchete(qint64 cerereID);
    void cmdAddAncheta_Click();
    void cmdEditAncheta_Click();
    void cmdDelAncheta_Click();
    void mnuDatePrimarie_Click();

    // The copy of the day, made while the clerk works; its progress and a failure show in the status bar.
    void PornesteCopiaZilei();
    // A copy before a tool that rewrites many rows: the window waits for the pages to be copied, the
    // check goes on behind. A failure shows in the status bar and the tool goes on.
    void CopieDeSiguranta(const QString& motiv);
    void mnuCopie_Click();
    void mnuRestaurare_Click();
    // The copy chosen to be put back once the window has closed; empty otherwise.
    QString RestaurareCeruta;

    // Shows a modal dialog; tests replace it to fill the dialog and press its buttons.
    std::function<int(QDialog&)> ArataModal = [](QDialog& d) { return d.exec(); };
    // How written documents reach the word processor; tests replace it so that nothing starts.
    MediuDeschidere MediuDocumente;
    // Opens the web page in the browser; tests replace it so that nothing starts.
    std::function<bool(const PunteWeb::PaginaWeb&)> DeschidePagina = PunteWeb::DeschidePagina;
    // Set by a click on "Opreste tiparirea" while the dispositions are being printed.
    bool StopTiparire = false;
    void TimerMSG_UPD_Timer();

    ModelCereri* model() const { return model_; }

    // The controls, named as the old window named them.
    std::array<QLineEdit*, 5> txtCauta{}; // CNP, Nume, Prenume, Nr cerere, Nr dosar
    QComboBox* cboStrada = nullptr;
    QListWidget* lstStare = nullptr;
    QPushButton* cmdCauta = nullptr;
    QPushButton* cmdAdd = nullptr;
    QPushButton* cmdEdit = nullptr;
    QPushButton* cmdDelete = nullptr;
    QPushButton* cmdSelect = nullptr;
    QPushButton* cmdCerere = nullptr;
    QPushButton* cmdDeclaratie = nullptr;
    QPushButton* cmdFisaCalcul = nullptr;
    UiDataOptionala* dtpDataFisa = nullptr; // "Data emiterii fisei"; empty: today
    QPushButton* cmdExit = nullptr;
    QLabel* lblRezul = nullptr;
    QTableView* lvwCereri = nullptr;
    QTabWidget* opt = nullptr;
    QTreeWidget* lvwAnchete = nullptr;
    QTreeWidget* lvwAdeverinte = nullptr;
    QTreeWidget* lvwDispozitii = nullptr;
    QLabel* lblAnchete = nullptr;
    QLabel* lblDispozitii = nullptr;
    QPushButton* cmdAddAncheta = nullptr;
    QPushButton* cmdEditAncheta = nullptr;
    QPushButton* cmdDelAncheta = nullptr;
    QPushButton* cmdPrintAncheta = nullptr;
    QPushButton* cmdAddDisp = nullptr;
    QPushButton* cmdEditDisp = nullptr;
    QPushButton* cmdDelDisp = nullptr;
    QPushButton* cmdPrintDisp = nullptr;
    QLabel* picNotific = nullptr;
    QAction* mnuToateDisp = nullptr;
    QAction* mnuAnexa2 = nullptr;
    QMenu* mnuCerere = nullptr; // the pop-up of cmdSelect
    std::array<QLabel*, 5> sbrMain{};

protected:
    bool eventFilter(QObject* obiect, QEvent* e) override;
    void closeEvent(QCloseEvent* e) override;

private:
    void construiesteCautarea(QWidget* sus);
    void construiesteMeniurile();
    void construiesteListeleDeJos(QWidget* jos);
    void construiesteBaraDeStare();
    QAction* meniu(QMenu* parinte, const char* nume, const QString& text, bool activ);
    void Form_Load();
    bool ScrieTitlul(bool cuMesaj);
    void ListaCereri(const FiltruCautare& f);
    void GolireFiltre();
    FiltruCautare FiltruDinControale() const;
    void Iesire();
    void ArataLunaLucru(bool dinMeniu);
    void ArataNotificarea();
    void resizeEvent(QResizeEvent* e) override;
    void TiparireToateDispozitiile(QAction* comanda, const QString& textInapoi);
    TiparireDocumente Tiparire() const;
    qint64 CerereSelectata() const;
    qint64 DispozitieSelectata() const;
    void SelecteazaDispozitia(qint64 dispozitieID);
    void RescrieRandul(qint64 cerereID);
    // The lists under the request list, for the request (0: none, they are emptied).
    void ListeleCererii(qint64 cerereID);
    CopieInFundal* pornesteCopia(const QString& motiv);
    void anuntaCopia(const QString& eroare);

    Program& p_;
    Mesaje& m_;
    ModelCereri* model_;
    QTimer* timerNotificare_ = nullptr;
    bool eroareCopieAratata_ = false;
};
