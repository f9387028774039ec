#pragma once

#include <QString>
#include <QStringList>
#include <memory>

// An old office's database as the import reads it: its tables, each a header of field names and rows
// of values as text, the way `mdb-export -D '%Y-%m-%d %H:%M:%S'` writes them (dates as
// "2012-03-01 00:00:00", amounts with a decimal point, booleans as numbers). A null QString is a value
// the file does not hold; an empty one is an empty text.
class TabelaVeche {
public:
    virtual ~TabelaVeche() = default;
    virtual QStringList Campuri() const = 0;
    // The next row, as many values as fields; false at the end. Throws Eroare on a damaged file.
    virtual bool Urmator(QStringList& valori) = 0;
    // How far the reading has come, in the unit of SursaVeche::Volum.
    virtual qint64 Pozitie() const = 0;
    // Where the row just read stands in the file, for the report ("randul 12").
    virtual QString Loc() const = 0;
};

class SursaVeche {
public:
    virtual ~SursaVeche() = default;
    // The file or folder, for messages.
    virtual QString Descriere() const = 0;
    // The tables of the user's data, in the file's order (the engine's own tables left out).
    virtual QStringList Tabele() const = 0;
    // How much there is to read in a table (octets or rows), for the progress bar.
    virtual qint64 Volum(const QString& tabela) const = 0;
    virtual std::unique_ptr<TabelaVeche> Deschide(const QString& tabela) = 0;
    // A table's field names, without reading its rows where the file allows it.
    virtual QStringList Campuri(const QString& tabela) { return Deschide(tabela)->Campuri(); }
};

// A folder of CSV files (one TABELA.csv for each table) or an Access file (.mdb), by what the path is.
// Throws Eroare when it is neither or can't be read.
std::unique_ptr<SursaVeche> DeschideSursaVeche(const QString& cale);
