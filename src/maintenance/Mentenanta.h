#pragma once

#include <QDate>
#include <QString>
#include <QStringList>
#include <optional>

class BazaDate;
class Mesaje;

// The repair tools of the maintenance window and of `ferolanta-cli mentenanta`. Each tool can say how
// many rows it would change without changing anything (Numara), and change them in one transaction
// that leaves the database as it was on any failure (Aplica). Ruleaza is the whole tool as the clerk
// meets it: its checks and questions, the change, and the message with the count.
namespace Mentenanta {

enum class Unealta {
    DataStare,  // DataStare = DataCerere for the requests granted in the working month
    Stare,      // the old code of a rejected request (3) becomes 5
    Rudenie,    // kinships renumbered: 3 (partner) to 2, then 4 (pupil) to 3
    Acte,       // the current certificate of each person and kind marked, no mark cleared
    Bife,       // the catalogue of goods reloaded from bife.txt
    Cereri2014, // every paying request turned into a change of amount on 1 November 2014
};

// What the tools read besides the database.
struct Optiuni {
    int luna = 0, an = 0;             // the working month
    bool suprascrieDataStare = false; // DataStare: also the requests that already have one
    bool pastreazaDataCerere = false; // Cereri2014: DataCerere is kept
    QString caleBD;                   // Bife: the folder of bife.txt
};

// The day of the change of the benefit levels.
inline const QDate Data2014(2014, 11, 1);

// The question every tool asks before it changes a row.
inline const QString IntrebareConfirmare = QStringLiteral("Sigur doriti sa continuati?");

// How many rows the tool would change now (Rudenie: both passes; Bife: the rows of the file, which
// must be there and not empty, else Eroare with the tool's message).
qint64 Numara(BazaDate& db, Unealta u, const Optiuni& o);

// The change itself, in one transaction; the rows changed (Rudenie: the two passes, in order).
struct Rezultat {
    qint64 randuri = 0;
    qint64 randuri2 = 0; // Rudenie: the second pass
};
// `m` tells what the amount's computation has to say (Cereri2014: unusable income thresholds).
Rezultat Aplica(BazaDate& db, Mesaje& m, Unealta u, const Optiuni& o);

// The tool's end messages for what Aplica returned (Rudenie: one for each pass).
QStringList MesajeFinale(Unealta u, const Rezultat& r);

// The counts by status that the 1 November 2014 tool shows before its question: every status of the
// list, its total and the total of the good ones (2, 6, 7, 8), then the same for the requests whose
// status dates from that day.
QString SumarCereri2014(BazaDate& db);

// The tool as its button runs it: the checks and questions (each tool asks IntrebareConfirmare before
// changing anything; No stops it), the change, the end message. The rows changed; nullopt when it
// stopped before changing. An Eroare of the change reaches the caller with nothing changed.
std::optional<Rezultat> Ruleaza(BazaDate& db, Mesaje& m, Unealta u, const Optiuni& o);

} // namespace Mentenanta
