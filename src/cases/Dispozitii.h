#pragma once

#include "base/Bani.h"
#include "base/Sume.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// A disposition as its editor holds it. What the clerk types stays text until the save, which
// reads it by the leading-number rule.
struct Dispozitie {
    qint64 DispozitieID = 0;
    qint64 CerereID = 0;
    QString NrDisp; // txtDispoz(0)
    QDate DataDisp;
    std::optional<int> Actiune; // cboDispoz(0); nullopt: nothing chosen
    std::optional<int> Luna;    // cboDispoz(1), 1 to 12
    QString An;                 // txtDispoz(1)
    QString Suma;               // txtDispoz(2): the amount, or the old one for a change
    QString SumaNoua;           // txtDispoz(3): the new amount of a change
    QString Motiv;              // txtDispoz(4)
};

enum class ModDispozitie { Adaugare = 1, Modificare = 2 };

// What the editor shows when it opens: the disposition and the request's number and date.
struct DeschidereDispozitie {
    Dispozitie d;
    QString NrCerere;
    QDate DataCerere;
};

// The parts of the editor that follow the kind of decision. An unset member is one that the
// kind leaves as it was.
struct BlocuriDispozitie {
    QString lblModificarea = QStringLiteral("se stabileste suma de:");
    QString lblMotiv = QStringLiteral("Motivul");
    bool picMiddle = true; // the amount
    bool SumaNoua = false; // lblInSuma, txtDispoz(3), lblInSumaLei
    bool Motiv = true;     // lblMotiv, txtDispoz(4)
};

// One kind of decision: its template and what choosing it does to the editor.
struct TipActiune {
    int Actiune;
    const char* Sablon;
    std::optional<QString> lblModificarea;
    std::optional<QString> lblMotiv;
    bool picMiddle;
    std::optional<bool> SumaNoua;
    bool Motiv;
};

// The outcome of the checks on OK. `control` names the control that gets the focus.
struct VerificareDispozitie {
    bool ok = false;
    bool inchide = false; // the disposition is gone: the editor closes without saving
    QString control;
};

// The bulk generation of frmAnexa2, from its controls.
struct ParametriGenerare {
    QString NrStart;              // txtDispoz(0), "Incepand cu nr dispozitie:"
    std::optional<int> TipCerere; // cboTipCerere
    QDate DataDisp;               // dtpData
    std::optional<int> Luna;      // cboDispoz(1)
    QString An;                   // txtDispoz(1)
    // Told (done, total) as the run goes; false stops it, and nothing of it is kept.
    std::function<bool(qint64, qint64)> Progres;
    // Called before each disposition is written, with its request: lets a test fail a run midway.
    std::function<void(qint64)> InainteDeScriere;
};

struct RezultatGenerare {
    bool ok = false;     // the run was made and kept
    bool oprita = false; // stopped through Progres: nothing written
    QString control;     // the control to fix when the parameters were refused
    qint64 Generate = 0;
    qint64 NrStart = 0;
    QString PrimaCerere, UltimaCerere; // NrCerere of the first and the last request
};

// What the bulk printing chooses, from the controls of frmAnexa2.
struct SelectieTiparire {
    std::optional<int> Actiune;   // cboCerere(0)
    std::optional<int> TipCerere; // cboTipDisp
    std::optional<int> Luna;      // cboLuna
    QString NrMin, NrMax;         // txtDispozitieMin, txtDispozitieMax
};

struct DispozitieDeTiparit {
    qint64 DispozitieID = 0;
    int Actiune = 0;
};

// A row of the main window's dispositions list.
struct RandDispozitie {
    qint64 DispozitieID = 0;
    QString NrDisp;
    QDate DataDisp;
    QString TipDecizie; // the action's text
    Bani Cuantum;
    QString Luna, An;
};

namespace Dispozitii {

// The six kinds, in the order of Actiune.
const std::vector<TipActiune>& Actiuni();
// The kind of that value; nullptr outside 1 to 6.
const TipActiune* Actiune(int actiune);
// The template of a kind ("acordare.rtf"...); empty outside 1 to 6.
QString Sablon(int actiune);
// What choosing a kind does to the editor; any other value leaves it as it is.
void AplicaActiune(BlocuriDispozitie& b, std::optional<int> actiune);

// The kind proposed for a request's Stare; nullopt for the states that have no decision.
std::optional<int> ActiunePropusa(int stare);

// The amount as a text box shows it: no trailing zeros ("164", "12.5").
using ::TextSuma;
// An amount as the clerk typed it, read from its start: "12,50" gives 12. Throws Eroare when it
// does not fit an amount.
Bani SumaTastata(const QString& text);

// Opening for an add, from the request. nullopt when the request is gone (after its message).
std::optional<DeschidereDispozitie> DeschideAdaugare(BazaDate& db, Mesaje& m, qint64 cerereID);
// Opening for a change. nullopt when the disposition or its request is gone (after a message).
std::optional<DeschidereDispozitie> DeschideModificare(BazaDate& db, Mesaje& m, qint64 dispozitieID);

// The checks of OK, in order, stopping at the first failure with its message. VerificaBD first.
VerificareDispozitie VerificaControale(BazaDate& db, Mesaje& m, const Dispozitie& d, ModDispozitie mod);

// Writes the disposition in one transaction and returns its DispozitieID. CuantumVechi is
// written only for a change (Actiune 2), so a change to another kind keeps the old value. Throws
// Eroare when the row to change is gone or a number does not fit its field.
qint64 Salveaza(BazaDate& db, const Dispozitie& d, ModDispozitie mod);

// What the commands of the dispositions panel check before the editor opens; each says why not.
// 0 stands for no selected row.
bool PoateAdauga(BazaDate& db, Mesaje& m, qint64 cerereID);
bool PoateModifica(BazaDate& db, Mesaje& m, qint64 dispozitieID);

// A grant for every request of the kind chosen, numbered from the start number up in the order
// of NrCerere, in one transaction: a failure or a stop leaves no disposition of the run. Shows
// its messages: a refused parameter, and the count at the end. Throws Eroare on a failure of the
// engine.
RezultatGenerare Genereaza(BazaDate& db, Mesaje& m, const ParametriGenerare& p);
// The two closing messages of a run.
QStringList MesajeGenerare(const RezultatGenerare& r);

// The dispositions that the bulk printing takes, by NrDisp, with the month of the working year
// anSetat; an unset choice or an empty number counts as 0. None: its message, and an empty list.
std::vector<DispozitieDeTiparit> SelecteazaPentruTiparire(BazaDate& db, Mesaje& m, const SelectieTiparire& s,
                                                          int anSetat);

// The main window's list of a request's dispositions, newest first.
std::vector<RandDispozitie> ListaDispozitii(BazaDate& db, qint64 cerereID);
QString TitluDispozitii(const QString& solicitant, size_t randuri);
// Deletes one disposition; false when it was already gone.
bool StergeDispozitie(BazaDate& db, qint64 dispozitieID);

} // namespace Dispozitii
