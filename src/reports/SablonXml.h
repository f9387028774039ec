#pragma once

#include "reports/Grila.h"

#include <QString>

class BazaDate;

// A report page described by an XML template: the size of the lattice, its rows and columns, the
// queries that feed it and the ranges and cells to format and fill. Only the first record of each
// query is ever read, so a template draws a one-page form, never a list.
namespace Raport {

// Paints the template `cale` into a copy of `grilaGoala` (already cleared, with its default font and
// row height) and returns it. Every failure is one Eroare naming the file and the element, so the
// caller's page stays as it was. The queries only read, inside one unit of work that rolls back.
Grila IncarcaSablonXml(BazaDate& db, const QString& cale, const Grila& grilaGoala);

// The parameters {name} of a template's query, with the results the templates in use were written
// for: each replacement starts again from `sql`, so only the last ordinary parameter goes (replaced
// by nothing) and the others stay; a text whose only parameter is {sOrder} gives `precedent`, the
// result of the query before it. The keys are still read from section Setari of `fisierSetari`, so
// a key that is not a number from 0 to 255 is refused.
QString InlocuiesteParametri(const QString& sql, const QString& fisierSetari, const QString& precedent = {});

// The template's file: under folderBD/Rapoarte when it is there (an SQLite office keeps its own
// templates beside its database), else under applicationPath/Rapoarte. Neither there: the last
// path tried, for the message.
QString CaleSablonXml(const QString& folderBD, const QString& applicationPath,
                      const QString& nume = QStringLiteral("Anexa3.xml"));

} // namespace Raport
