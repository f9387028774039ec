#pragma once

#include <QString>
#include <functional>

class BazaDate;

// Before a tool rewrites many rows, a copy of the database is taken, so that a wrong run can be undone.
// How it is taken (a window with its progress, a line in the terminal) is set once by the program that
// runs; left unset (the tests), nothing is copied. A copy that fails never stops the tool.
namespace CopieInainte {

using Functie = std::function<void(BazaDate& db, const QString& motiv)>;

void Seteaza(Functie f);

// `motiv` names the tool, as in "inainte de recalcularea ISR".
void Fa(BazaDate& db, const QString& motiv);

} // namespace CopieInainte
