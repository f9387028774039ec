#pragma once

#include "base/Setari.h"
#include "reports/Grila.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// The reports of the report window and of `ferolanta-cli raport`: the catalogue (index, entry text,
// builders), the choices a builder reads, the ordering clause, the grid's reset and the page set-up.
namespace Raport {

// The choices of the report window, as plain values.
struct Alegeri {
    int luna = 1, an = 2013; // the working month
    QDate azi;               // for the reports that read today
    int ord1 = 0, ord2 = 0;  // entries of the two orderings; 0: none
    int tipCerere = 0;       // "Toate", "Complementare", "Monoparentale"
    bool membri = false;     // "Titular + membrii", checked where it is enabled
    QString nrLuni;          // as typed
    QList<qint64> stari;     // the statuses selected for the Borderou
    QString nrBord;
    QDate dataBord;
    std::optional<Hartie> hartie; // none: no page format chosen
    bool portret = false;
};

// What a builder reads besides the database.
struct MediuRaport {
    Setari setari;
    QString applicationPath; // the data folder: Acte/, Rapoarte/, the settings file
    QString folderBD;        // the database file's folder; empty on PostgreSQL
};

using Constructor = std::function<Grila(BazaDate&, Mesaje&, const MediuRaport&, const Alegeri&)>;
// How a report goes to LibreOffice when that is the office application: its grid as a whole
// spreadsheet, into a delivered template, or not at all. Returns the file written.
using CopieCalc = std::function<QString(const Grila&, Mesaje&, const MediuRaport&, const QString& folder)>;

struct IntrareRaport {
    QString text;
    Constructor grila;          // empty: not in this version yet
    Constructor foaie;          // the spreadsheet twin; empty: none (see faraFoaie)
    bool faraFoaie = false;     // the report has no twin, and exporting it does nothing
    bool faraCopieCalc = false; // with LibreOffice nothing is exported
    CopieCalc copieCalc;        // empty: the grid as a spreadsheet named after the entry
};

// The 22 entries, by index.
const std::vector<IntrareRaport>& Catalog();
QStringList TexteCatalog();

// The entries of the two orderings (the second also has "Nr"); an entry's text is its field list.
QStringList ListaOrdonare(bool cuNr);
// " ORDER BY " and the chosen fields, or nothing when the first ordering is none or the first entry.
// With `nrNumeric` given, a second ordering on "Nr" sorts by that expression first.
QString ClauzaOrdonare(int ord1, int ord2, const QString& nrNumeric = {});

// A grid before a builder runs: empty, the default font Arial (a template's: the report font's
// name) with the report font's size and bold, the report row height.
Grila GrilaNoua(const Setari& s, bool fontSablon = false);

// The page chosen in the window (paper, orientation, the fixed margins) on a grid.
void AsazaPagina(Grila& g, const Alegeri& a);

// The grid builder of an entry (`foaie`: its spreadsheet twin). Eroare for an index outside the
// list, and for an entry whose builder this version does not have yet.
Grila Construieste(int index, bool foaie, BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);

// A file name from an entry's text: "/" would make a folder of it.
QString NumeFisier(const QString& text, const QString& extensie);

// Whether the export writes anything for the entry with that office application.
bool AreExport(int index, int appWord);

// The grid the export writes: with LibreOffice the grid builder's, as OK builds it; otherwise the
// spreadsheet twin's, the page set as the office programs were told it.
Grila GrilaFoaie(int index, BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a);

// The export of the report window: with LibreOffice the grid is built anew (`arata` shows it) and
// copied into a spreadsheet; otherwise the spreadsheet twin is written as xlsx. Returns the file
// written, or nothing for a report that exports nothing.
std::optional<QString> Exporta(int index, BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a,
                               const QString& folder, const std::function<void(const Grila&)>& arata);

// The grid written by the extension of the file: csv, xlsx, ods, pdf or cel. Eroare for another.
void ScrieDupaExtensie(const Grila& g, const QString& fisier);

} // namespace Raport
