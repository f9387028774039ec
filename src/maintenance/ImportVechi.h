#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>
#include <functional>
#include <optional>
#include <vector>

class BazaDate;
class Dialect;
class SursaVeche;
struct CampSchema;
struct LocatieBD;

// The import of an office's old database, of any earlier shape: each table the program knows is
// made again in the shape the old file has, its rows are copied with their keys (so printed request
// and document numbers stay true), and the upgrade lifts it to the present shape and adds the seeds,
// exactly as it lifts an old database at start. A row that the schema cannot hold (a key seen twice,
// a reference to a row that isn't there, a value that isn't one) is left out and listed; nothing is
// dropped without a line in the report.

struct RandRefuzat {
    QString loc;   // where it stands in the old file, with its key
    QString motiv; // why it was left out
};

struct TabelaImportata {
    QString tabela; // as the old file names it
    QString tinta;  // the table it went into; empty when the program has no such table
    qint64 citite = 0;
    qint64 importate = 0;
    std::vector<RandRefuzat> refuzate;
    QStringList campuriIgnorate; // fields of the old file that the program doesn't keep
    QStringList campuriLargite;  // texts longer than their field, which was widened to hold them
};

struct RaportImport {
    std::vector<TabelaImportata> tabele;
    int schimbari = 0;       // changes the upgrade made to lift the imported tables to the present shape
    QStringList actualizare; // what the upgrade said (the incomes summed, the catalogues reloaded)
    qint64 Refuzate() const;
    const TabelaImportata* Tabela(const QString& tabela) const;
    // The report as the clerk reads it: table by table, what was read, imported and refused.
    QStringList Linii() const;
};

// Work done and work in all, in the same unit; called often enough to keep a window painted.
using ProgresImport = std::function<void(qint64 facute, qint64 total)>;

// An old value as the export writes it, turned into what the field holds: Jet's -1 and the words for
// true, the zero date 1899-12-30 for no date, amounts with a point or a comma. A null text is no value;
// nullopt when the text is no value of the field (or one the engine can't hold).
std::optional<QVariant> ValoareVeche(const CampSchema& c, const QString& text, const Dialect& d);

// Whether the database already holds requests: such a database takes no import.
bool AreCereri(BazaDate& db);

// Imports `sursa` into `db` in one transaction: on any failure nothing of it is left. Refused when the
// database holds requests or the old file lacks a table without which it is no database of the
// program. caleBD is the folder of the catalogue files the upgrade reloads from. Throws Eroare.
RaportImport ImportaBazaVeche(BazaDate& db, SursaVeche& sursa, const QString& caleBD,
                              const ProgresImport& progres = {});

struct RezultatImport {
    RaportImport raport;
    bool creata = false; // the database was made for the import
};

// The import of the file or CSV folder `cale` into the open database, after a copy of it as before every
// tool that rewrites many rows; the catalogue files the upgrade reads are copied beside it from folderDate when missing.
RezultatImport ImportaInBaza(BazaDate& db, const QString& cale, const QString& folderDate,
                             const ProgresImport& progres = {});

// The same into the database at `loc`, made new (as by init, from folderDate) when there is none; a new
// SQLite file is removed again when the import fails.
RezultatImport ImportaInLocatie(const LocatieBD& loc, const QString& cale, const QString& folderDate,
                                const ProgresImport& progres = {});
