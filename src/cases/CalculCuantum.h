#pragma once

#include "base/Bani.h"
#include "cases/StareCerere.h"
#include "reference/Barem.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <array>
#include <map>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// What the amount's computation reads from the database, loaded once so that the computation
// itself is pure.
struct ParametriCuantum {
    std::vector<RandBarem> Barem;
    std::map<int, Bani> ListaBife; // Valoare by NrBifa
    QStringList ISR;               // Continut of every ISR row; the value counts only when there is one
    // Continut of the PRAGURI_VENIT row as stored (a null is an empty text); nullopt without a row.
    std::optional<QString> PraguriVenit;
};

// A few queries, no message: the thresholds are checked only when a computation needs them.
ParametriCuantum IncarcaParametri(BazaDate& db);

struct IntrareCuantum {
    const StareCerere& stare; // MatriceMembri, Bunuri, Bife
    int TipCerere = 0;
    QDate DataStare;
    QString VenitPeMembru; // the box's text
    int LunaSetata = 0, AnSetat = 0;
};

struct RezultatCuantum {
    Bani Cuantum;
    // Set only when children were counted; otherwise the NrCopii box keeps what it shows.
    std::optional<int> NrCopii;
    // The amount after the rounding up and before the reductions; set only when the computation
    // got that far, otherwise the editor keeps the previous one.
    std::optional<Bani> CuantumInainteDeReduceri;
};

// The monthly amount of a request. Shows the messages of the computation through m; throws
// Eroare when VenitPeMembru, a threshold or the ISR value is not a number, when the income
// thresholds are unusable on a date from 1 July 2013 (after their message), and when the
// reductions need the one-child Barem row of the bracket and it is missing.
RezultatCuantum CalculCuantum(const IntrareCuantum& intrare, const ParametriCuantum& p, Mesaje& m);

// One income bracket: incomes per member up to VenitMaxim take the Barem rows whose Suma is Suma.
struct TreaptaVenit {
    Bani VenitMaxim;
    Bani Suma;
};

// The brackets in force at `data`, lowest first: the fixed ones before 1 July 2013, the thresholds of
// PRAGURI_VENIT from then on (throws Eroare, after their message, when those are unusable). An income
// above the last one has no amount.
std::vector<TreaptaVenit> TrepteVenit(const QDate& data, const ParametriCuantum& p, Mesaje& m);
std::optional<Bani> TreaptaPentruVenit(const Bani& venit, const std::vector<TreaptaVenit>& trepte);

// ISR x the row's coefficient, rounded up to whole lei when the ISR is not the default 500.
Bani CuantumDinBarem(const RandBarem& barem, const ParametriCuantum& p);

// The amount of the scale alone at `data` for a family kind, a number of children (more than four
// count as four) and a bracket: no reductions, 0 when the scale has no row for them.
Bani CuantumTreapta(int tipCerere, int nrCopii, const Bani& treapta, const QDate& data, const ParametriCuantum& p);

// The same for an income per member: its bracket at `data` first, 0 above the last one.
Bani CuantumLaData(int tipCerere, const Bani& venitPeMembru, int nrCopii, const QDate& data, const ParametriCuantum& p,
                   Mesaje& m);

// The total of the income array.
Bani SumaVenituri(const std::array<Bani, 79>& venituri);

// What the editor writes after the list of persons changed: NrMembrii is the list's count;
// Exceptie is the text to show (and go on) when the matrix disagrees with the list, else empty.
struct TotaluriMembri {
    int NrMembrii = 0;
    QString Exceptie;
};
TotaluriMembri RecalculTotaluri(int nrInLista, const std::optional<std::vector<MembruCerere>>& matrice);

// VenitTotal / NrMembrii as the old run-time wrote a double: up to 15 significant digits, a
// point, no trailing zeros ("333.333333333333"). Empty when NrMembrii is not above 0: the box
// then keeps its text.
QString VenitPeMembruText(const Bani& venitTotal, int nrMembrii);

// The income thresholds text of DateGen ("210.2|557.03"); empty after a critical message when
// it is missing, blank or not at least two values separated by "|".
QString PraguriVenit(BazaDate& db, Mesaje& m);

// The same checks over a Continut already read: nullopt stands for a missing row, and a null
// Continut is an empty text.
QString VerificaPraguriVenit(const std::optional<QString>& continut, Mesaje& m);
