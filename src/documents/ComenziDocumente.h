#pragma once

#include "documents/DateDocument.h"
#include "documents/DeschideDocument.h"

#include <vector>

class BazaDate;
class Mesaje;

// The main window's commands that merge a template and open the written document: one
// disposition, the calculation sheet, the income declaration, and the dispositions chosen for
// bulk printing. Each document is written into the program's data folder over the last one of
// its kind.
struct TiparireDocumente {
    OptiuniDocumente optiuni; // templates, reason and street word; DataFisa for the sheet
    QString folder;           // where the documents are written: the program's data folder
    int AppWord = 1;
    MediuDeschidere mediu;
};

namespace ComenziDocumente {

// cmdPrintDisp on the selected disposition (0: none). True when the document was written and
// handed to the word processor; otherwise the clerk was told why, except for a disposition whose
// kind has no template.
bool TiparesteDispozitie(BazaDate& db, qint64 dispozitieID, const TiparireDocumente& t, Mesaje& m);

// cmdFisaCalcul and cmdDeclaratie on the selected request (0: none).
bool TiparesteFisa(BazaDate& db, qint64 cerereID, const TiparireDocumente& t, Mesaje& m);
bool TiparesteDeclaratie(BazaDate& db, qint64 cerereID, const TiparireDocumente& t, Mesaje& m);

// The dispositions of a bulk printing, in the order given, into one document opened with the
// reduced choice of applications of that command.
bool TiparesteDispozitiile(BazaDate& db, const std::vector<qint64>& dispozitii, const TiparireDocumente& t, Mesaje& m);

} // namespace ComenziDocumente
