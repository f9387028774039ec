#pragma once

#include "documents/web/PunteWeb.h"

#include <optional>

class BazaDate;
class Mesaje;

// The print commands of the main window that go to the web page, and when they are available.
namespace ComenziWeb {

enum class Comanda {
    cmdCerere,       // the selected request: the modification form for Stare 7, else the request form
    mnuAnexa1,       // the selected request, request form
    mnuAnexa1a,      // the selected request, modification form
    cmdPrintAncheta, // the selected request, social inquiry
    mnuCerereGoala,  // blank request form
    mnucerereMod,    // blank modification form
    mnuAnchetaGoala, // blank social inquiry
};

// The page's document for a command; `stare` matters only to cmdCerere.
QString Document(Comanda c, int stare);
bool PeCerereSelectata(Comanda c);

// Runs a command. On the selected request (`cerereSelectata`, 0 for none): VerificaBD, then
// "Selecati mai intai o cerere!" with none selected, "Randul curent nu a fost gasit. Dati clic pe
// Cauta!" when it is gone. The blank forms go with the key 0. Then StartCerereWeb without the
// application window; what it returns is what the caller opens (PunteWeb::DeschidePagina).
std::optional<PunteWeb::PaginaWeb> Tipareste(BazaDate& db, const PunteWeb::MediuWeb& mediu, Comanda c,
                                             qint64 cerereSelectata, Mesaje& m);

// The enabled state of the commands that follow the request list.
struct StareComenzi {
    bool cmdEdit = false;
    bool cmdDelete = false;
    bool cmdCerere = false;
    bool cmdSelect = false;
    bool cmdPrintAncheta = false;
    bool cmdFisaCalcul = false;
    bool cmdAddAncheta = false;
    bool cmdAddDisp = false;
    friend bool operator==(const StareComenzi&, const StareComenzi&) = default;
};

// Both the query file and the page are there.
bool FisiereWebExista(const PunteWeb::MediuWeb& mediu);

// The commands after the list was filled with `nrCereri` rows: enabled with rows, disabled without.
// cmdCerere, cmdSelect and cmdPrintAncheta change only when the two web files exist, and keep
// their state otherwise.
StareComenzi ActivareComenzi(int nrCereri, StareComenzi actuala, bool fisiereWeb);

} // namespace ComenziWeb
