#pragma once

#include "base/Bani.h"
#include "cases/StareCerere.h"
#include "reference/Barem.h"
#include "reference/PraguriVenit.h"

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

// What the scale decides once the children are counted and the goods allowed: the family kind, the
// date the scale is read at, the income per member, the children counted (more than four get the
// amount of four) and how many children of the list carry each reduction, counted or not.
struct DateBarem {
    int TipCerere = 0;
    QDate Data;
    Bani VenitPeMembru;
    int NrCopii = 0;
    int Diminuari20 = 0, Diminuari50 = 0;
};

struct RezultatBarem {
    enum class Fel {
        Calculat,   // Cuantum and InainteDeReduceri hold the amount
        PesteVenit, // the income is above the upper limit: 0
        FaraNivel,  // no row of the scale for the kind, children, bracket and date: 0
    };
    Fel fel = Fel::FaraNivel;
    Bani Cuantum;
    Bani InainteDeReduceri; // the amount after the rounding up, before the reductions
};

// One income bracket: incomes per member up to VenitMaxim take the Barem rows whose Suma is Suma.
struct TreaptaVenit {
    Bani VenitMaxim;
    Bani Suma;
};

// The one place where the scale, the ISR and the thresholds turn into an amount: the request
// editor runs it for one request, the ISR change for every paying request. The thresholds and the
// ISR are read from their texts at their first use and kept, so one object serves a whole run.
class CalculBarem {
public:
    explicit CalculBarem(const ParametriCuantum& p) : p_(p) {}
    // Throws Eroare as CalculCuantum does for the thresholds, the ISR and the one-child row.
    RezultatBarem Calculeaza(const DateBarem& d, Mesaje& m);
    // The brackets in force at a date, lowest first (see TrepteVenit).
    std::vector<TreaptaVenit> Trepte(const QDate& data, Mesaje& m);
    // The scale's amount for a kind, children (four at most counted) and bracket: ISR x the
    // coefficient, rounded up to whole lei when the ISR is not 500; no reductions; 0 without a row.
    Bani SumaTreapta(int tipCerere, int nrCopii, const Bani& treapta, const QDate& data);

private:
    Bani suma(const RandBarem& barem);
    struct Praguri {
        Bani jos, sus;
    };
    const Praguri& praguri(Mesaje& m);
    const Bani& isr();

    const ParametriCuantum& p_;
    std::optional<Praguri> praguri_;
    std::optional<Bani> isr_;
};

// The monthly amount of a request. Shows the messages of the computation through m; throws
// Eroare when VenitPeMembru, a threshold or the ISR value is not a number, when the income
// thresholds are unusable on a date from 1 July 2013 (after their message), and when the
// reductions need the one-child Barem row of the bracket and it is missing.
RezultatCuantum CalculCuantum(const IntrareCuantum& intrare, const ParametriCuantum& p, Mesaje& m);

// The brackets in force at `data`, lowest first: the fixed ones before 1 July 2013, the thresholds of
// PRAGURI_VENIT from then on (throws Eroare, after their message, when those are unusable). An income
// above the last one has no amount.
std::vector<TreaptaVenit> TrepteVenit(const QDate& data, const ParametriCuantum& p, Mesaje& m);
std::optional<Bani> TreaptaPentruVenit(const Bani& venit, const std::vector<TreaptaVenit>& trepte);

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
