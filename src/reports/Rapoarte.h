#pragma once

#include <QString>
#include <optional>

class BazaDate;
class Mesaje;

// What the report windows check and decide, apart from their widgets.
namespace Raport {

// Reports need the town hall's data: false, and the clerk told, when there are none.
bool VerificaPrimaria(BazaDate& db, Mesaje& m);

// The two buttons of the exports made for one town hall only.
bool ButoaneBAS(BazaDate& db);

// Which filters an entry of the report list uses.
struct FiltreRaport {
    bool membri = false;    // "Titular + membrii" enabled
    bool tipCerere = false; // the request kind shown
    bool nrLuni = false;    // the number of months shown
};
FiltreRaport Filtre(int index);

// The page to print from what the clerk typed: only a whole number from 1 to the page count.
std::optional<int> PaginaDeTiparit(const QString& tastat, int nrPagini);

} // namespace Raport
