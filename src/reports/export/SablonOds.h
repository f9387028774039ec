#pragma once

#include <QString>
#include <vector>

namespace Raport {

// A text for a cell of the first sheet, by sheet row and column from 0; `linii` draws thin lines
// round it.
struct CelulaOds {
    int rand = 0, col = 0;
    QString text;
    bool linii = false;
};

// Fills a copy of a delivered spreadsheet: the texts go into the cells of its first sheet (whatever
// those cells held), then the columns are removed by index, one after the other, as each removal
// shifts the columns after it. Everything else of the template stays as the town hall made it. The
// copy is written whole or not at all; Eroare for a template that is missing or not a spreadsheet.
void CompleteazaSablonOds(const QString& sablon, const QString& fisier, const std::vector<CelulaOds>& celule,
                          const std::vector<int>& coloaneSterse = {});

} // namespace Raport
