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

// What the request editor holds in its controls, named by the controls.
//
// txtCerere: 0 NrDosar, 1 NrCerere, 2 Nr, 3 Sc, 4 Ap, 5 Localitate, 6 Judet, 7 Telefon,
// 8 Mobil, 9 NumeTitularCont, 10 Cont, 11 Banca, 12 VenitTotal, 13 VenitPeMembru, 14 Cuantum,
// 15 NrMembrii, 16 NrCopii, 17 Bloc, 18 BlocR, 19 ScR, 20 NrR, 21 ApR, 22 LuniRetro,
// 23 LocalitateR, 24 JudetR, 29 NrDosar2, 30 NrCerere2 (25 to 28 are not used).
// cboCerere: 0 Strada, 1 ReprLegal, 2 ModPlata, 3 TipCerere, 4 Stare, 5 MotivStare, 6 StradaR.
// dtpData: 0 DataCerere, 1 DataStare; an invalid date is an empty picker.
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

// The two rows of cboCerere 3, by TipCerere.
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
// dtpData 1 takes whenever dtpData 0 changes. Invalid for an invalid date.
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
