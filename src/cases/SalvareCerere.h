#pragma once

#include "cases/DateCerere.h"
#include "cases/StareCerere.h"
#include "base/Bani.h"

#include <QString>
#include <functional>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;
struct Setari;

// The check that stopped the save: the text to show and the object name of the control that
// takes the focus ("txtCerere_0", "dtpData_1", "cboCerere_3", "cmdAdd", "lvw"; empty for none).
// With InchideDialogul the request is gone and the editor closes after the message.
struct EsecVerificare {
    QString Mesaj;
    QString Control;
    bool InchideDialogul = false;

    friend bool operator==(const EsecVerificare&, const EsecVerificare&) = default;
};

// The checks of OK, in their order; the first failure is returned and not shown. The warnings
// that let the checks go on (a request id found twice, a dossier or request number used
// elsewhere) are shown through m. nrRanduriLista is the number of rows of lvw.
std::optional<EsecVerificare> VerificaControale(BazaDate& db, const DateCerere& d, const StareCerere& s,
                                                int nrRanduriLista, Mesaje& m);

// A number that another dossier or request already holds is a warning, never a stop.
struct AvertizareNumar {
    bool Avertizat = false; // the warning was shown
    QString Control;        // where the focus goes after it; empty for none
};
// Mode 1 runs at OK and sends the focus to txtCerere_0; mode 2 runs on leaving the box and
// leaves the focus where it is.
AvertizareNumar VerificaNrDosar(BazaDate& db, const DateCerere& d, int mod, Mesaje& m);
// Either mode: the warning only.
AvertizareNumar VerificaNrCerere(BazaDate& db, const DateCerere& d, int mod, Mesaje& m);

// The steps of the write, in their order, all inside one transaction.
enum class PasSalvare {
    ListeReferinta,
    Familii,
    Membrii,
    Cereri,
    CereriMembrii,
    Adeverinte,
    Venituri,
    Locuinte,
    BifeText,
    CMIesiti
};

struct OptiuniSalvare {
    bool ReteaSetat = false;
    QString CaleBD; // the folder of the lock file snet.txt
    int LunaSetata = 1, AnSetat = 2013;
    int NrRanduriLista = -1; // rows of lvw; -1: as many as the matrix has persons
    // Called inside the transaction after each step; an exception thrown here undoes the save.
    std::function<void(PasSalvare)> DupaPas;
};
OptiuniSalvare OptiuniDinSetari(const Setari& s);

inline const QString TextSalvareInCurs =
    QStringLiteral("Tocmai se salveaza pe alt calculator. Asteptati putin si dati 'OK' din nou!");

struct RezultatSalvare {
    enum class Stare {
        Salvata,      // written; ESTE_OK of the caller becomes true
        Oprita,       // a check, the lock or the clerk stopped it; nothing written, the editor stays open
        InchideEditor // the request was deleted by someone else; nothing written, the editor closes
    };
    Stare stare = Stare::Oprita;
    QString Control; // after a failed check: the control that takes the focus
    qint64 CerereID = 0, FamilieID = 0;
    Bani Cuantum;
};

// The OK button of the request editor: VerificaBD, VerificaControale (whose stopping message is
// shown here), the lock file and "Salvati?" when ReteaSetat is on, then the whole case file
// written as one transaction: the reference lists, Familii, Membrii, Cereri (with the amount of
// CalculCuantum), CereriMembrii, Adeverinte, Venituri, Locuinte, BifeText, CMIesiti. Afterwards
// the reminder about a DataStare that is not the first of its month.
// Throws Eroare when the write fails: then nothing of it remains in the database. The inputs
// are never changed, so the editor keeps its data either way.
RezultatSalvare SalveazaCerere(BazaDate& db, const DateCerere& d, const StareCerere& s,
                               const std::vector<MembruIesit>& iesiti, const OptiuniSalvare& o, Mesaje& m);
