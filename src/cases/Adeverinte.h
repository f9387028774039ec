#pragma once

#include "cases/StareCerere.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// One kind of certificate, a row of the DateGen list TipAct.
struct TipAdeverinta {
    int DataID = 0;
    QString Continut;
};

// The kinds in their Ordine, with the text of each.
class TipuriAdeverinte {
public:
    TipuriAdeverinte() = default;
    explicit TipuriAdeverinte(std::vector<TipAdeverinta> tipuri) : tipuri_(std::move(tipuri)) {}
    static TipuriAdeverinte Citeste(BazaDate& db);

    const std::vector<TipAdeverinta>& Toate() const { return tipuri_; }
    // Empty for a kind that the list lacks.
    QString Text(int tip) const;

private:
    std::vector<TipAdeverinta> tipuri_;
};

// What frmAddAct holds in its controls. TipAdeverinta 0 is "no kind chosen"; an invalid date is
// an empty date box.
struct DateAct {
    int TipAdeverinta = 0;
    QString TipText; // the kind's text as the combo shows it
    QString NrAdev;
    QDate DataAdeverinta, DataDepunerii, DataExpAdev;
};

enum class ModAct { Adaugare, Modificare };

// What OK of frmAddAct did.
struct RezultatAct {
    QString Focus;        // a check failed: the objectName of the control that takes the focus
    bool Dublura = false; // the same certificate is already in the list
    int Index = -1;       // the row written, when it was
    bool Scris() const { return Index >= 0; }
};

// One row of frmIstoricAdv, every column as it is shown.
struct RandIstoricAdv {
    qint64 AdevID = 0;
    QString Tip, NrAdev, DataAdev, DataDep, DataExp;
};

// One row of the list of certificates that expire this month.
struct RandActExpira {
    qint64 AdevID = 0;
    qint64 CerereID = 0;
    qint64 MembruID = 0;
    QString Membru; // Nume, a blank, Prenume
    QString TipAct;
    QDate DataExpAdev;
};

// One certificate of a request, as the main window lists it under the request.
struct RandAdeverintaCerere {
    qint64 AdevID = 0;
    qint64 MembruID = 0;
    QString Membru; // Nume, a blank, Prenume
    QString TipAdeverinta;
    QString NrAdev;
    QDate DataAdeverinta, DataDepunerii, DataExpAdev;
    bool Curenta = false;
};

// One row of frmAdeverinte: a certificate of a pupil, every column as it is shown.
struct RandAdeverintaScolara {
    qint64 AdevID = 0;
    qint64 CerereID = 0;
    qint64 MembruID = 0;
    QString NrCerere, NumeTitular, NumeScolar, DataNast, Varsta, NrAdev, DataDep, DataAdev, DataExpirarii,
        TipAdeverinta;
};

// A row of Adeverinte as frmAdAdeverinte edits it.
struct AdeverintaScolara {
    qint64 AdevID = 0; // 0 until an add is saved
    qint64 CerereID = 0;
    qint64 MembruID = 0;
    QString NrAdev;
    QDate DataAdeverinta, DataDepunerii, DataExpAdev;
    int TipAdeverinta = 0; // 0: none chosen

    friend bool operator==(const AdeverintaScolara&, const AdeverintaScolara&) = default;
};

// What frmAdAdeverinte shows above its boxes.
struct AntetAdeverinta {
    QString NrCerere;
    QString Titular;
    QString Scolar;
};

namespace Adeverinte {

inline constexpr int TipScoala = 3; // "de la scoala (pt elevi)"

// ---- Dates ----

// "yyyyMMdd": text order is date order. Empty for a missing date, so that it sorts below all.
QString reverseDate(const QDate& d);
// A date typed as day, month, year separated by one of ".", "-", "/" (the same one twice; the
// month may be its name, as the grid of a person writes it), or as eight digits ddmmyyyy. The
// year has four digits. Anything else, and a day that the month lacks, gives an invalid date.
QDate convertToDate(const QString& text);
// How the grid of a person shows a date: "05-martie-2024"; empty for a missing date.
QString DataGrid(const QDate& d);

// ---- The certificates of one person (frmAddAct and the grid of frmAddMembru) ----

// The rows that have a kind.
int NumarAdeverinte(const std::vector<AdeverintaMembru>& acte);

// The checks of OK, in order, stopping at the first failure with its message; the objectName of
// the control that takes the focus, empty when all passed.
QString VerificaAct(const DateAct& d, Mesaje& m);

// Whether the certificate is already in the list: a row of the same kind with the same expiry
// date. On a change (index is the row changed) the search runs only when the expiry date
// changed. A match is told to the clerk.
bool ExistaDubluri(const std::vector<AdeverintaMembru>& acte, ModAct mod, int index, const DateAct& d, Mesaje& m);

// Marks the current certificate of a kind: of its rows, the one with the latest expiry date gets
// AdvCurenta 1 and the others 0. Of rows with the same date the one higher in the list wins.
void AdeverintaCurenta(std::vector<AdeverintaMembru>& acte, int tip);

// OK of frmAddAct: the checks, the duplicate search, then the row appended (Adaugare) or
// rewritten (Modificare of row index, keeping its AdevID) and the current certificate of its
// kind marked again (of both kinds when the kind changed). Nothing changes when a check fails.
RezultatAct OkAct(std::vector<AdeverintaMembru>& acte, ModAct mod, int index, const DateAct& d, Mesaje& m);

// The controls of frmAddAct for row index (a new certificate for -1).
DateAct DinAct(const std::vector<AdeverintaMembru>& acte, int index, const TipuriAdeverinte& tipuri);

// cmdDelRand: exactly one selected row (the indexes of the selected rows), the question, then
// the row removed. The current mark is not moved to another row. True when a row was removed.
bool StergeAct(std::vector<AdeverintaMembru>& acte, const std::vector<int>& selectate, const TipuriAdeverinte& tipuri,
               Mesaje& m);

// frmIstoricAdv: the certificates of a person in their order.
std::vector<RandIstoricAdv> Istoric(const std::vector<AdeverintaMembru>& acte, const TipuriAdeverinte& tipuri);

// ---- The certificates that expire (frmListaActeExpira) ----

// How many current certificates of requests with rights in force (Stare 2, 6, 7, 8) expire in the
// calendar month of `azi`.
qint64 NumarActeExpira(BazaDate& db, const QDate& azi);
// Those certificates from position `deLa`, at most `cate` (all when negative), in the order of their
// persons' names (as searched: case and marks aside), then expiry and key. Given the count
// (`total`), a position past the middle is read from the end.
std::vector<RandActExpira> ListaActeExpira(BazaDate& db, const QDate& azi, qint64 deLa = 0, qint64 cate = -1,
                                           qint64 total = -1);
// "Lista Membrilor ale caror acte expira in luna <month>"
QString TitluActeExpira(const QDate& azi);
// The request to open for a row of the list: the one of the row while that person still has a
// certificate expiring in the month on it, else another request of the person with one; nullopt
// when the person has none left.
std::optional<qint64> CerereActExpira(BazaDate& db, qint64 membruID, qint64 cerereID, const QDate& azi);

// ---- The certificates of one request (the main window) ----

// Every certificate of the request, person by person, by kind, the latest expiry first; one query.
std::vector<RandAdeverintaCerere> ListaAdeverinteCerere(BazaDate& db, qint64 cerereID);

// ---- School certificates (frmAdeverinte, frmAdAdeverinte) ----

// The certificates of the pupils (occupation 8 or 9) of every request with a titular, by
// request; the age is counted at `azi`. One query.
std::vector<RandAdeverintaScolara> ListaAdeverinteScolare(BazaDate& db, const QDate& azi);
// The row by its key; nullopt when it is gone.
std::optional<AdeverintaScolara> CitesteAdeverinta(BazaDate& db, qint64 adevID);
// The request's number and titular and the pupil's name; nullopt when the request is gone.
std::optional<AntetAdeverinta> Antet(BazaDate& db, qint64 cerereID, qint64 membruID);
// The one check of OK: the number. The objectName of the box, empty when it passed.
QString VerificaAdeverintaScolara(const AdeverintaScolara& a, Mesaje& m);
// Writes the certificate in one transaction, with the next key on an add; returns its AdevID.
// Throws Eroare when the row to change is gone or the request or the person is.
qint64 SalveazaAdeverintaScolara(BazaDate& db, const AdeverintaScolara& a, bool adaugare);
// cmdDelete: the row re-read by its key, the question, then the delete. True when the row is no
// longer in the database (deleted now, or already gone, which is told); false when the clerk said no.
bool StergeAdeverintaScolara(BazaDate& db, Mesaje& m, qint64 adevID, const QString& nrAdev);

// Whether a paying request has a current certificate that expires in the month of `azi`.
bool ActeCareExpira(BazaDate& db, const QDate& azi);
QString TextNotificare(const QDate& azi);

} // namespace Adeverinte
