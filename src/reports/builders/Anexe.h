#pragma once

#include "reports/Catalog.h"

#include <QString>

class BazaDate;
struct Setari;

// The monthly tables of new, resumed, changed, ended and suspended rights that the town hall sends the
// county agency: Anexa 3 and Anexa 4, in six kinds chosen by the entries 9 to 14 of the catalogue.
//
// Kinds: 1 Anexa 3, new and reinstated (Stare 2, 6); 3 new (2); 4 reinstated (6); 2 Anexa 4, changes
// and ends (4, 7, 8); 5 suspensions (3); 6 changes, ends, suspensions and resumptions (3, 4, 6, 7, 8).
// A request is listed when its Stare is one of its kind's and its DataStare falls in the working month.
//
// Row plan of the grid (25 columns, the table in 1 to 24):
//   1        "BORDEROU" (5-10) and the annex mark at the right end
//   2        the subject (5-17) and "la normele metodologice" under the mark
//   2-7      the town hall block: labels in 1-2, values in 3-4
//   7        "DELEGAT PRIMARIE" (8-12)
//   8-10     the delegate block: labels in 8-9, values in 10-12 (name, first name, CNP)
//   9, 10    "Nr." and "Data", left blank for the registration number written by hand
//   11       "INSUSIT PRIMAR"
//   12, 13   empty
//   14-20    the table's head: a column without an upper title spans 14-20; upper titles take 14-15
//            and the titles under them 16-20 (Anexa 4: "Tip decizie" 14-15, "Modificare cuantum"
//            16-17 and its two titles 18-20)
//   21..     a row per request
//   last     empty: the copy into the delivered template takes the rows from 21 to the last but one
// So that grid row r and column c are row r-1 and column c-1 of the template's first sheet.
namespace Raport {

inline constexpr int RandCapTabel = 14;
inline constexpr int PrimulRandDate = 21;

// The kind of an entry of the catalogue (9-14), 0 for any other entry.
int FelAnexa(int index);

// The grid. With the orderings "..., Nr", house numbers sort by their leading number, then as text.
Grila BorderouAgentie(int fel, BazaDate& db, const Setari& s, const Alegeri& a);
// Its spreadsheet twin: the same page, the delegate's "Prenume" spelt right, house numbers sorted as
// text.
Grila BorderouAgentieFoaie(int fel, BazaDate& db, const Setari& s, const Alegeri& a);

// For LibreOffice: the delivered template Acte/ANEXA3.ods or ANEXA4.ods of the data folder filled from
// the grid of entry `index` into `folder`; returns the file written. Eroare for a missing template, or
// when the file is open in LibreOffice.
QString CopieAnexaCalc(int index, const Grila& g, const MediuRaport& mediu, const QString& folder);

} // namespace Raport
