#pragma once

#include "cases/CalculCuantum.h"
#include "cases/DateCerere.h"
#include "cases/StareCerere.h"

#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// The rows of the request editor's list combos, each in the order the clerk sees it: the id
// (hidden) and the text.
struct ListeEditorCerere {
    std::vector<AlegereCombo> Strazi;    // cboStrada and cboStradaR, by StradaID
    std::vector<AlegereCombo> Motive;    // cboMotivStare, by MotivID
    std::vector<AlegereCombo> ReprLegal; // cboReprLegal, DateGen Reprezentant by Ordine
    std::vector<AlegereCombo> ModPlata;  // cboModPlata, DateGen ModPlata by Ordine
    std::vector<AlegereCombo> TipCerere; // cboTipCerere, the two kinds of allowance
    std::vector<AlegereCombo> Stare;     // cboStare, DateGen Statut by Ordine
};
ListeEditorCerere IncarcaListeEditor(BazaDate& db);

// The method of payment whose bank data the editor shows (frame picPlata).
constexpr qint64 ModPlataBanca = 2;

// The amount and the totals of the open request as the editor keeps them in its boxes
// (txtVenitTotal, txtVenitPeMembru, txtCuantum, txtNrMembrii, txtNrCopii), computed
// with the scale read when the editor opened and the working month.
class CalculEditor {
public:
    CalculEditor(ParametriCuantum p, int lunaSetata, int anSetat);

    // A txtCerere element changed: with a member count above 0 the income per member follows
    // the total; a change of the total also recomputes the amount. A total that is not an amount
    // leaves the boxes as they are: OK refuses it.
    void TextSchimbat(DateCerere& d, int element, const StareCerere& s, Mesaje& m);
    // The amount into txtCuantum and, when children were counted, their number into txtNrCopii. The
    // computation's own messages go to m; throws Eroare as CalculCuantum does.
    void Cuantum(DateCerere& d, const StareCerere& s, Mesaje& m);
    // The incomes dialog confirmed: the total is their sum, and everything that follows it.
    void DupaVenituri(DateCerere& d, const StareCerere& s, Mesaje& m);
    // The list of persons changed (its totals already told): the count of the list into txtNrMembrii,
    // then the income per member and the amount.
    void Totaluri(DateCerere& d, const StareCerere& s, const TotaluriMembri& t, Mesaje& m);
    // The goods dialog confirmed: the totals of a list of nrInLista rows; a matrix out of step
    // with the list is told through m and the computation goes on.
    void DupaBunuri(DateCerere& d, const StareCerere& s, int nrInLista, Mesaje& m);

    // The amount before the reductions of the last computation that got that far.
    const std::optional<Bani>& CuantumInainteDeReduceri() const { return inainteDeReduceri_; }

private:
    ParametriCuantum p_;
    int luna_, an_;
    std::optional<Bani> inainteDeReduceri_;
};
