#pragma once

#include "cases/CalculCuantum.h"
#include "cases/DateCerere.h"
#include "cases/Persoana.h"
#include "cases/StareCerere.h"

#include <QString>
#include <QStringList>
#include <array>
#include <functional>
#include <optional>
#include <vector>

class Mesaje;

// The texts of one row of lvw (and of lvwIesiti), by column; column 0 is the row's key, the MembruID.
using RandLista = std::array<QString, 13>;
enum ColoanaLista : int {
    colID = 0,
    colNume,
    colPrenume,
    colCNP,
    colOcupatie,
    colRudenie,
    colVenit,
    colAlteVenituri,
    colDataExp,
    colMotivExpirare,
    colDataNast,
    colSerie,
    colNumar,
};
// The headers of lvw and lvwIesiti.
const QStringList& ColoaneLista();
// The headers of the four hidden columns of lvwIesiti.
const QStringList& ColoaneAscunseIesiti();
// The hint under lvwIesiti.
QString TextStergereIesit();

// A person who left the family: the row as shown, and the key with the hidden columns that the
// save writes.
struct RandIesit {
    RandLista Coloane{};
    MembruIesit Iesit;
};

// What the request editor shows of its persons: lvw in step with MatriceMembri (row i is
// element i), its selected row, and lvwIesiti.
struct ListaMembri {
    std::vector<RandLista> lvw;
    std::optional<int> Selectat;
    std::vector<RandIesit> lvwIesiti;
};

// The row of an element, loaded or written by the person dialog.
RandLista RandMembru(const MembruCerere& m);
// The row of a leaver read from CMIesiti: the person, the relationship's text, the amount of the
// change in the income column, and the hidden columns.
RandIesit RandIesitIncarcat(const MembruIesit& m);
// The leavers as the save writes them, in the list's order.
std::vector<MembruIesit> IesitiDeSalvat(const ListaMembri& l);

// Elements of the matrix, 0 when it was never dimensioned.
int MatriceNrElemente(const StareCerere& s);
// Writes element `index` to lvw: mode 1 appends a row, mode 2 rewrites the selected one.
void AfisMembru(ListaMembri& l, const StareCerere& s, int mod, int index);
// Removes an element; the later ones move one place forward.
void StergeElement(StareCerere& s, int index);
// Copies the selected row of lvw to lvwIesiti with the hidden columns of its element (none
// when the matrix has no such element).
void MutaLaIesiti(ListaMembri& l, const MembruCerere* element);
// Same count, and row i carries the key and the CNP of element i.
bool ListaInPas(const ListaMembri& l, const StareCerere& s);

// Whether the person dialog opens, and how; when it doesn't, a message has been shown or
// nothing was to be done.
struct Deschidere {
    bool Deschide = false;
    QString Focus; // the control to focus when it doesn't open: "cboCerere_3"
    int Mod = 0;
    int Index = -1;
};
// cmdAdd: the kind of allowance must be chosen (tipCerere 0: none).
Deschidere DeschideAdaugare(const StareCerere& s, int tipCerere, Mesaje& m);
// cmdEdit, double click, Enter: the kind of allowance, a non-empty list, a selected row.
Deschidere DeschideModificare(const ListaMembri& l, int tipCerere, Mesaje& m);

// After the dialog confirmed an addition of element `index`: the row added and selected, the
// person's leaver row dropped (the person came back), the totals. Totals that disagree show the
// exception text through m.
TotaluriMembri DupaAdaugare(ListaMembri& l, const StareCerere& s, int index, Mesaje& m);
// After the dialog confirmed a change of element `index`: the selected row rewritten, the totals.
TotaluriMembri DupaModificare(ListaMembri& l, const StareCerere& s, int index, Mesaje& m);

// What frmMotiv writes to the element that leaves.
struct MotivIesire {
    int MotivID = 0;
    Bani Suma;
    int TipValuta = 0;
};
// frmMotiv's controls: the reason (cboMembru 0), the currency (cboMembru 1), "Da, in suma de"
// and the amount. An empty combo gives 0; the amount counts only with its box checked. Throws
// Eroare when the amount is not a number.
MotivIesire MotivDinControale(const AlegereCombo& motiv, const AlegereCombo& valuta, bool chkVenit,
                              const QString& txtMembru);

// cmdDelete on the selected row: the question, frmMotiv (nullopt: cancelled, the element keeps
// what it had), the move to the leavers, the removal, the new selection, the totals. nullopt
// when nothing was removed.
std::optional<TotaluriMembri> EliminaMembru(ListaMembri& l, StareCerere& s,
                                            const std::function<std::optional<MotivIesire>()>& frmMotiv, Mesaje& m);
// Delete on lvwIesiti: drops the row; false when there is none at that place.
bool StergeIesit(ListaMembri& l, int index);
// cmdEdit and cmdDelete are enabled while the list has rows.
bool ComenziActive(const ListaMembri& l);
