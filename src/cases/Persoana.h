#pragma once

#include "cases/DateCerere.h"
#include "cases/StareCerere.h"

#include <QDate>
#include <QString>
#include <array>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// Elements of the control arrays of frmAddMembru, by the field each one holds.
namespace ElemPersoana {
enum Txt : int {
    txtNume = 0,
    txtPrenume = 1,
    txtSerieBI = 2,
    txtNrBI = 3,
    txtTaraCetatenie = 5,
    txtLocResedinta = 6,
    txtTaraResedinta = 7,
    txtPerioada11 = 10,
    txtPerioada22 = 11,
    txtTaraAfara11 = 12,
    txtTaraAfara22 = 13,
    txtTaraAfara1 = 14,
    txtTaraAfara2 = 15,
    txtPerioada2 = 16,
    txtPerioada1 = 17,
    txtVenit = 18,
    txtSuma = 19,
};
enum Cbo : int {
    cboRudenie = 0,
    cboTipAct = 1,
    cboCetatenie = 2,
    cboResedinta = 3,
    cboStCivila = 4,
    cboStudii = 5,   // an adult's schooling
    cboOcupatie = 6, // an adult's occupation
    cboDrAsSociala = 7,
    cboStareMembru = 8,
    cboEliberat = 9,
    cboUScolara = 10,
    cboMotivID = 11,
    cboSituatieScolara = 12, // a child's school situation
    cboLocScoala = 13,
    cboTipIncalzTrecut = 14,
    cboMotiv = 15,
    cboTipValuta = 16,
};
enum Chk : int {
    chkLucreazaAfara = 0,
    chkRepetent = 2,
    chkAbandon = 3,
    chkLocuitAfara = 4,
    chkDizabilitate = 5,
    chkVMG = 6,
    chkAlocatie = 7,
    chkIncalzire = 8,
    // "Copil de varsta scolara care nu urmeaza o forma de invatamant": no field holds it, so it
    // stores nothing, and it stands outside the group of school states that exclude each other.
    chkNuUrmeaza = 9,
    chkPeste20abs = 10,
    chkDiminuare20 = 11,
    chkDiminuare50 = 12,
    chkNiciUna = 13, // "Nici una": stores nothing
};
enum Dtp : int { dtpDataElib = 0, dtpDataStare = 1, dtpData18Ani = 2 };
// chkVenit: "Da, in suma de" and "Nu".
enum Venit : int { chkVenitDa = 0, chkVenitNu = 1 };
} // namespace ElemPersoana

// What the controls of frmAddMembru hold about one person. The form reads its widgets into this,
// calls the functions below, and writes the result back. A combo that holds only a text (issuer,
// school, its town, reason of expiry) leaves its id at 0; a list combo is empty when its text is.
struct DatePersoana {
    qint64 MembruID = 0; // the person's Membrii row, 0 for a new one
    QString cboCNP;
    std::array<QString, 20> txtMembru{};
    std::array<AlegereCombo, 17> cboMembru{};
    std::array<bool, 14> chkMembru{};
    std::array<bool, 2> chkVenit{};
    std::array<QDate, 3> dtpData{};
    std::vector<AdeverintaMembru> Grid; // the certificates; a row without a type is not kept
};

// Where the dialog stands: mode 1 adds a person, mode 2 changes element Index of the matrix.
struct ContextPersoana {
    int Mod = 1;
    int Index = -1;
    int LunaSetata = 0, AnSetat = 0; // the working month, for the age
};

// The controls of a new person: the first one of an empty list is preset as "TITULARUL".
DatePersoana PersoanaNoua(const StareCerere& stare);
// The controls of an element, for changing it.
DatePersoana DinMembru(const MembruCerere& m);
// The element as OK writes it: the controls copied over `inainte`, whose fields without a
// control (MotivStare) are kept. Throws Eroare when an amount box holds no number.
MembruCerere InMembru(const DatePersoana& d, const MembruCerere& inainte);
// Repeating is 1 when the box is checked and also when no school situation is chosen: a child
// without one drops out of the count of children, and every adult carries 1.
int RepetentStocat(bool chkRepetent, const AlegereCombo& situatieScolara);

// The checks of OK, stopping at the first failure: shows its message and returns the objectName
// of the control to focus; an empty text when all passed.
QString VerificaPersoana(const DatePersoana& d, const ContextPersoana& c, const StareCerere& stare, Mesaje& m);

struct RezultatOk {
    QString Focus;            // set when a check failed: the dialog stays open
    std::optional<int> Index; // the element written
};
// OK: the checks, then the element written into the matrix (mode 1 appends it). The matrix is
// unchanged when a check fails or an amount can't be read.
RezultatOk OkPersoana(const DatePersoana& d, const ContextPersoana& c, StareCerere& stare, Mesaje& m);

// The birth date in a CNP as the dialog shows it.
struct NastereCNP {
    bool Oprit = false; // month above 12 or day above 31: the label says which, no date
    QDate DataNastere;
    QString lblDataNast; // "5 Martie 1985", "Luna incorecta", "Zi incorecta"
};
NastereCNP NastereDinCNP(const QString& cnp);

// DateDinCNP: the birth date, the age on the first day of the working month and the date of
// turning 18, kept only when it falls in the working year or later.
struct DateCNP {
    NastereCNP Nastere;
    QString lblVarsta; // "Varsta: 38"
    QDate Data18Ani;   // for dtpData 2; invalid: cleared
    QString Motiv;     // for cboMembru 15; empty: cleared
};
// Age messages (a negative age) go to m. With Nastere.Oprit nothing else is set. Throws Eroare
// without a working month.
DateCNP DateDinCNP(const QString& cnp, int lunaSetata, int anSetat, Mesaje* m);

// A person found in Membrii by CNP.
struct PersoanaCunoscuta {
    qint64 MembruID = 0;
    QString Nume, Prenume;
    int TipAct = 0;
    QString SerieBI, NrBI, Eliberat;
    QDate DataElib;
    int Dizabilitate = 0;
};
// A request a person with that CNP stands on.
struct CerereCunoscuta {
    qint64 MembruID = 0;
    QString Nume, Prenume;
    QString NrCerere;
};
struct CautareCNP {
    std::optional<PersoanaCunoscuta> Persoana; // the first Membrii row with the code
    std::optional<CerereCunoscuta> Cerere;     // the first request row of a person with the code
};
// One query: the persons with exactly this CNP and the requests they stand on.
CautareCNP CautaDupaCNP(BazaDate& db, const QString& cnp);

// What the dialog does after the leave of cboCNP; the controls are already updated.
struct RezultatPlecareCNP {
    bool RevinoLaCNP = false;     // the CNP is already in the list: focus goes back to cboCNP
    std::optional<DateCNP> Date;  // the labels, set for a 13-character code
    bool PersoanaReluata = false; // a known person's identity was copied
};
// The leave of cboCNP: the notice of a known person, the dates from the code, the refusal of a
// code already in the list, the re-use of a known person. An empty box does nothing. A code that
// no person has gives back the element's own MembruID (0 for a new element), so that a person
// taken over by an earlier leave is not overwritten.
RezultatPlecareCNP PlecareCNP(DatePersoana& d, const ContextPersoana& c, const StareCerere& stare, BazaDate& db,
                              Mesaje& m);

// What the kinship, the check boxes and the combos enable or show.
struct ControaleDependente {
    // true: picTitular shown, picElev hidden; false: the opposite; nullopt: no known kinship,
    // both frames stay as they are.
    std::optional<bool> Adult;
    bool picLucreaza = false;
    bool picLocuieste = false;
    bool cboTipIncalzTrecut = false; // enabled
    bool RepetentAplicabil = false;  // chkMembru 2
    bool SumaVenitActiva = false;    // txtMembru 19 and cboMembru 16
};
ControaleDependente StareControale(const DatePersoana& d);
bool EsteAdult(int rudenieID);

// A click on an element of the school group, with the box's new value already in d: elements
// 3, 10, 11, 12 and 13 clear the others of the group; element 2 only checks that the child is a
// pupil and is cleared, after a warning, when not.
void ClickGrupElev(DatePersoana& d, int element, Mesaje& m);
// After cboMembru 12 changed: a repeating mark that no longer applies is cleared.
void SchimbareSituatieScolara(DatePersoana& d);
// A click on chkVenit element (Da or Nu), its new value already in d: the two exclude each
// other, and the amount and its currency are kept only with "Da, in suma de".
void ClickVenit(DatePersoana& d, int element);

// frmMembrii: the browser of all persons.
struct RandMembrii {
    qint64 MembruID = 0;
    QString Nume, Prenume, CNP, TipAct, SerieBI, NrBI;
};
std::vector<RandMembrii> ListaMembrii(BazaDate& db);

enum class CautareMembrii { CNP, Prenume, Nume };
// The first person of the browser's order whose field begins with the text (names by CheieCautare);
// with none, "Nu s-a gasit " and the field's label are shown.
std::optional<qint64> CautaInMembrii(BazaDate& db, CautareMembrii camp, const QString& text, Mesaje& m);
