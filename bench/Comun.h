#pragma once

#include "base/Mesaje.h"
#include "store/BazaDate.h"

#include <QString>

// What the benchmarks share: generated databases. Messages go to MesajeTacute.

// An SQLite demo database of `cereri` requests (seed 1), made once and kept in the temporary
// folder for later runs; a copy is opened so that benchmarks that write leave the original intact.
LocatieBD BazaDemoSQLite(int cereri, bool copie);

// The demo database of `cereri` requests where at least a few thousand current certificates of
// requests in force expire in the month of `azi`, as the list of expiring certificates shows them.
LocatieBD BazaDemoCuActeInLuna(int cereri, const QDate& azi);
