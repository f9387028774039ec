#pragma once

#include "store/Jurnal.h"

#include <QString>
#include <QStringList>

class BazaDate;
class Mesaje;

// The three catalogues that live in text files beside the database and are reloaded when the
// table's row count differs from the one the program expects.
namespace Cataloage {

inline constexpr int RanduriVenituri = 78;
inline constexpr int RanduriBife = 85;
inline constexpr int RanduriActe = 28;

enum class Rezultat { Neschimbat, Reincarcat, FisierLipsa };

// A table of the right size is left alone. Otherwise the count is shown through `m` and the
// table is reloaded from its file; a missing file is reported through `m` and leaves the table
// as it is. A short or malformed file throws Eroare naming the file, with the table untouched.
Rezultat IncarcaListaVenituri(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal = {});
Rezultat IncarcaListaBife(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal = {});
Rezultat IncarcaListaActe(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal = {});

// Rebuilds ListaBife from bife.txt whatever its row count (maintenance).
void RefaListaBife(BazaDate& db, const QString& caleBD);
// Loads all three catalogues of a new database; a missing or short file throws Eroare.
void IncarcaToate(BazaDate& db, const QString& caleBD);

// The lines of a text file in UTF-8 (or, failing that, Windows-1250), without line ends.
QStringList CitesteLinii(const QString& fisier);

} // namespace Cataloage
