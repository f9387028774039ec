#pragma once

#include "base/Bani.h"

#include <QString>
#include <array>
#include <vector>

class BazaDate;

// A row of a catalogue shown in a check list or a grid: ListaVenituri (CodVenit), ListaActe
// (NrAct), or an exclusion row of ListaBife (NrBifa).
struct ElementCatalog {
    int Nr = 0;
    QString Denumire;

    friend bool operator==(const ElementCatalog&, const ElementCatalog&) = default;
};

// A good of ListaBife that the goods grid shows, valued per unit in euro.
struct BunCatalog {
    int NrBifa = 0;
    QString Tip;
    int Cod = 0;
    QString Denumire;
    Bani Valoare;

    friend bool operator==(const BunCatalog&, const BunCatalog&) = default;
};

// ListaBife split as the goods dialog shows it: the exclusion check list (NrBifa up to 10) and
// the goods grid (NrBifa above 10), each in NrBifa order. One query.
struct CatalogBife {
    std::vector<ElementCatalog> Excludere;
    std::vector<BunCatalog> Bunuri;
};
CatalogBife CitesteListaBife(BazaDate& db);
std::vector<ElementCatalog> CitesteListaVenituri(BazaDate& db); // by CodVenit
std::vector<ElementCatalog> CitesteListaActe(BazaDate& db);     // by NrAct

// "<Nr>. - <Denumire>", a row of a check list.
QString TextRandBifa(const ElementCatalog& e);

// A packed check list (Bife, ActeBife): one character per row, "1" checked. Row i is checked
// when character i is "1"; any other character, or a text shorter than the list, leaves it
// unchecked, and characters past the last row are ignored.
std::vector<bool> DespacheteazaBife(const QString& text, size_t randuri);
// One "1" or "0" per row, first row first.
QString ImpacheteazaBife(const std::vector<bool>& bifate);

// The largest amount or quantity a cell takes: far above any real income or holding, and small
// enough that no total of the grids can overflow.
inline constexpr Bani MaximCelula = Bani::DinLei(999'999'999);

// A cell of the editable column as the clerk typed it, with a point or a comma before the
// decimals ("1.234,5", "1234,5", "1234.5"); an empty cell is 0. Throws Eroare with the text to
// show for anything else: not a number, negative, or above MaximCelula.
Bani CitesteSuma(const QString& text);      // an income, in lei
Bani CitesteCantitate(const QString& text); // a quantity of a good, in ha or pieces
// How a cell shows a value: empty for 0, else at least two decimals with a point.
QString TextCelula(const Bani& b);

// The incomes grid: one row per kind of ListaVenituri, row i showing entry i of Venituri.
class GrilaVenituri {
public:
    GrilaVenituri(std::vector<ElementCatalog> randuri, const std::array<Bani, 79>& venituri);

    const std::vector<ElementCatalog>& Randuri() const { return randuri_; }
    const Bani& Suma(size_t rand) const { return sume_.at(rand); }
    // Reads the typed text as the amount of the row. A text that isn't an amount throws Eroare
    // and leaves the row's amount as it was.
    const Bani& Seteaza(size_t rand, const QString& text);
    Bani Total() const;
    // "Total venituri: <total> lei".
    QString TextTotal() const;
    // Row i into entry i; entries that no row shows stay as they are.
    void CopiazaIn(std::array<Bani, 79>& venituri) const;

private:
    std::vector<ElementCatalog> randuri_;
    std::vector<Bani> sume_;
};

// The goods grid: one row per good of ListaBife above NrBifa 10, row i showing entry i of
// Bunuri as its quantity.
class GrilaBunuri {
public:
    GrilaBunuri(std::vector<BunCatalog> randuri, const std::array<Bani, 75>& bunuri);

    const std::vector<BunCatalog>& Randuri() const { return randuri_; }
    const Bani& Cantitate(size_t rand) const { return cantitati_.at(rand); }
    // As GrilaVenituri::Seteaza, for a quantity.
    const Bani& Seteaza(size_t rand, const QString& text);
    // The sum of quantity times Valoare over the rows, in euro.
    Bani Valoare() const;
    // Row i into entry i, an empty row being 0; entries that no row shows stay as they are.
    void CopiazaIn(std::array<Bani, 75>& bunuri) const;
    // The grid as a printed page: a table with the grid's columns and the net income line.
    QString Html() const;

private:
    std::vector<BunCatalog> randuri_;
    std::vector<Bani> cantitati_;
};

// The grid's column headings, the first being Tip.
inline const std::array<QString, 5> ColoaneBunuri = {QStringLiteral("Tip"), QStringLiteral("Cod"),
                                                     QStringLiteral("Denumire"), QStringLiteral("Valoare (EUR)"),
                                                     QStringLiteral("Cantitate (ha, buc)")};
inline const QString TitluBife = QStringLiteral("Bunuri care duc la excludere");
inline const QString IntrebareTiparireBunuri = QStringLiteral("Doriti sa tipariti lista de bunuri?");
