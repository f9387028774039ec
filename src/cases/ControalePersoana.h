#pragma once

#include "cases/DateCerere.h"
#include "cases/Persoana.h"
#include "cases/StareCerere.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <vector>

class BazaDate;

// What the combos of frmAddMembru offer, read once at its opening. A list combo holds DateGen
// rows with their ids and their texts as stored; a text combo (issuer, school, its town, reason
// of expiry) only suggests texts, whatever their ids.
struct ListePersoana {
    std::array<std::vector<AlegereCombo>, 17> cboMembru{};
    std::vector<AlegereCombo> TipuriAdeverinte; // DateGen TipAct, the certificates' kinds
};

// The combos whose value is the text typed or chosen, not a list row.
bool ComboText(int element);

// Two queries: the DateGen lists in their Ordine, then issuers, schools and school towns.
ListePersoana IncarcaListePersoana(BazaDate& db);

// The known CNPs that begin with `inceput`, in order, at most `limita` of them: cboCNP offers
// these rather than every person of the database.
QStringList CnpDupaInceput(BazaDate& db, const QString& inceput, int limita);

// The certificates' grid of frmAddMembru, by column; the last two are hidden.
namespace ColAdev {
enum : int {
    TipAdeverinta = 0,
    NrAdev,
    DataAdev,
    DataDep,
    DataExp,
    AdvCurenta, // "0" or "1"
    TipID,      // the kind's DataID
};
} // namespace ColAdev
const QStringList& ColoaneAdeverinte(); // the headers, the hidden ones included
// A date as the grid shows it: "05-martie-2024"; empty for none.
QString DataAdeverintaGrid(const QDate& d);
// The texts of one row; the kind's text is taken from `tipuri`, empty for a kind it lacks.
std::array<QString, 7> TexteAdeverinta(const AdeverintaMembru& a, const std::vector<AlegereCombo>& tipuri);

// The amount box (objectName) whose text is not a number, so that OK can put the focus there;
// empty when both read.
QString CasetaSumaInvalida(const DatePersoana& d);

// frmMembrii reads its rows a page at a time, so that a list of several hundred thousand persons
// opens at once: first every key in the browser's order, then the rows of the keys in view.
std::vector<qint64> CheiMembrii(BazaDate& db);
// The browser's rows whose keys lie from `primul` to `ultimul`, in order.
std::vector<RandMembrii> RanduriMembrii(BazaDate& db, qint64 primul, qint64 ultimul);
