#pragma once

#include <QString>
#include <functional>
#include <optional>

class BazaDate;
class Mesaje;

// A new ISR value and the amount of every paying request computed again with it.
namespace RecalculIsr {

// Told (done, total) as the requests are computed.
using Progres = std::function<void(qint64, qint64)>;

struct Rezultat {
    bool ok = false;             // the value and the amounts are written
    qint64 Recalculate = 0;      // the paying requests computed
    qint64 Schimbate = 0;        // of them, those whose amount changed
    std::optional<qint64> Oprit; // the request without a level that stopped the run
};

// Stores `valoare` (as ValoareIsr gives it) and recomputes the amount of every request in payment (2, 6,
// 7, 8) by the rules of the request editor, at the request's date, from its stored kind, income per
// member and number of children and the reductions of its children, in one transaction. A request that
// finds no level stops the run with its message and nothing is written; at the end the count is told.
// Throws Eroare (nothing written) for a failure of the database or of the scale.
Rezultat SchimbaIsr(BazaDate& db, const QString& valoare, Mesaje& m, const Progres& progres = {});

} // namespace RecalculIsr
