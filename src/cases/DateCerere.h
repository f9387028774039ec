#pragma once

#include "cases/StareCerere.h"
#include "base/Bani.h"
#include "store/DateGen.h"

#include <QDate>
#include <QString>
#include <array>
#include <vector>

class BazaDate;
class Mesaje;

// A choice of a combo box: the hidden id and the text shown. Id 0 is "nothing chosen". The
// combos that take free text (street, reason, street of residence) count by their text.
struct AlegereCombo {
    qint64 id = 0;
    QString text;

    friend bool operator==(const AlegereCombo&, const AlegereCombo&) = default;
};

// The rows of a DateGen list as combo choices, in their order.
std::vector<AlegereCombo> Alegeri(const std::vector<RandDateGen>& randuri);

// The elements of the request editor's control arrays, named by the field each one holds; the
// numbers are the controls' own (their object names end in them).
namespace ElemCerere {
enum Txt : int {
    txtNrDosar = 0,
    txtNrCerere = 1,
    txtNr = 2,
    txtSc = 3,
    txtAp = 4,
    txtLocalitate = 5,
    txtJudet = 6,
    txtTelefon = 7,
    txtMobil = 8,
    txtNumeTitularCont = 9,
    txtCont = 10,
    txtBanca = 11,
    txtVenitTotal = 12,
    txtVenitPeMembru = 13,
    txtCuantum = 14,
    txtNrMembrii = 15,
    txtNrCopii = 16,
    txtBloc = 17,
    txtBlocR = 18,
    txtScR = 19,
    txtNrR = 20,
    txtApR = 21,
    txtLuniRetro = 22,
    txtLocalitateR = 23,
    txtJudetR = 24,
    // 25 to 28 are not used.
    txtNrDosar2 = 29,
    txtNrCerere2 = 30,
};
enum Cbo : int {
    cboStrada = 0,
    cboReprLegal = 1,
    cboModPlata = 2,
    cboTipCerere = 3,
    cboStare = 4,
    cboMotivStare = 5,
    cboStradaR = 6,
};
enum Dtp : int { dtpDataCerere = 0, dtpDataStare = 1 };
// opt: which address the frame shows.
enum Opt : int { optDomiciliu = 0, optResedinta = 1 };
} // namespace ElemCerere

// What the request editor holds in its controls, named by the controls and indexed by ElemCerere.
// An invalid date is an empty picker.
struct DateCerere {
    int Adaug = 1; // 1 new request, 2 existing request
    qint64 CerereID = 0, FamilieID = 0;
    std::array<QString, 31> txtCerere{};
    std::array<AlegereCombo, 7> cboCerere{};
    std::array<QDate, 2> dtpData{};
    // "Anexa 1a beneficiaza/solicita :": what the family receives, then what it asks for.
    bool chkVmg = false, chkIncalzire = false, chkSupl = false;
    bool chkVmg_s = false, chkIncalzire_s = false, chkSupl_s = false;

    friend bool operator==(const DateCerere&, const DateCerere&) = default;
};

// The two rows of cboTipCerere, by TipCerere.
QString TextTipCerere(int tipCerere);

// One row of the list of persons who left the request (lvwIesiti): the shown columns and the
// hidden ones.
struct MembruIesit {
    qint64 MembruID = 0; // the row's key
    QString Nume, Prenume, CNP, Rudenie;
    Bani Suma;
    QString SerieBI, NrBI;
    int RudenieID = 0, MotivID = 0, TipValuta = 0;

    friend bool operator==(const MembruIesit&, const MembruIesit&) = default;
};

// The first day of the month after the filing date, by the month-length rule; the date that
// dtpDataStare takes whenever dtpDataCerere changes. Invalid for an invalid date.
QDate DataStareDupaCerere(const QDate& dataCerere);

// The controls of a new request: the first county and town of their tables, today's date and
// the first of the next month. The working state of a new request is a default StareCerere.
DateCerere DefaultCerereNoua(BazaDate& db, const QDate& azi);

inline const QString TextRandNegasit = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!");

// A stored request as the editor opens it for a change.
struct CerereIncarcata {
    bool Gasita = false; // false: the request or its family is gone, and Mesaj says so
    QString Mesaj;
    DateCerere Date;
    StareCerere Stare;
    std::vector<MembruIesit> Iesiti;
};

// Reads request cerereID with its family, persons, certificates, goods, incomes, housing and
// leavers, in a few queries, and fills the controls and the working state as the editor shows
// them. The persons come titular first (by kinship); the working month counts the children.
// Tells the clerk, through m, about a child count that changed since the save and about wrong
// CNPs. Throws Eroare ("Eroare in AfisDate: ...") when the database fails.
CerereIncarcata IncarcaCerere(BazaDate& db, qint64 cerereID, int lunaSetata, int anSetat, Mesaje& m);

// The children that the database itself counts for a request in a working month: kinship 3 or 6
// to 10, none of Repetent, Abandon, Peste20abs, and Data18Ani not exactly one calendar month
// before the working month (a missing Data18Ani never counts).
int CopiiDupaBaza(const std::vector<MembruCerere>& membri, int lunaSetata, int anSetat);
