#pragma once

#include "documents/DateDocument.h"

#include <QString>
#include <vector>

class BazaDate;
class Mesaje;

// The documents merged from the town hall's templates, each written whole over the last one of
// its kind. Nothing here opens the written file: the print commands hand it to the word processor.
namespace Documente {

inline const QString FisierDispozitie = QStringLiteral("Disp.rtf");
inline const QString FisierFisa = QStringLiteral("FisaCerere.rtf");
inline const QString FisierDeclaratie = QStringLiteral("Declar.rtf");
inline const QString SablonFisa = QStringLiteral("fisa.rtf");
inline const QString SablonDeclaratie = QStringLiteral("declaratie.rtf");

// The template of a disposition by its Actiune, 1 to 6; empty for any other value.
QString SablonDispozitie(int actiune);

enum class Rezultat {
    Scris,      // the document is written
    Esuat,      // the clerk was told why; nothing was written
    FaraSablon, // a disposition whose Actiune has no template: nothing said, nothing written
};

// One disposition into `caleIesire`: its template by Actiune from o.FolderActe, or `sablon` when
// one is given. VerificaBD first; a disposition that is gone is reported.
Rezultat GenereazaDispozitie(BazaDate& db, qint64 dispozitieID, const OptiuniDocumente& o, const QString& caleIesire,
                             Mesaje& m, const QString& sablon = {});

// The calculation sheet (o.DataFisa) and the income declaration of a request.
Rezultat GenereazaFisa(BazaDate& db, qint64 cerereID, const OptiuniDocumente& o, const QString& caleIesire, Mesaje& m,
                       const QString& sablon = {});
Rezultat GenereazaDeclaratie(BazaDate& db, qint64 cerereID, const OptiuniDocumente& o, const QString& caleIesire,
                             Mesaje& m, const QString& sablon = {});

// Many dispositions into one document, in the order given, each after a page break: the head
// of the last template read, the merged bodies, "}". Any failure (a template, a merge, a
// disposition gone, an Actiune without template) ends the run and writes nothing.
Rezultat GenereazaDispozitii(BazaDate& db, const std::vector<qint64>& dispozitii, const OptiuniDocumente& o,
                             const QString& caleIesire, Mesaje& m);

} // namespace Documente
