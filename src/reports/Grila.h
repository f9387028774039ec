#pragma once

#include <QString>
#include <QVariant>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

// The report grid as the builders fill it and the view, the printer and the exporters read it: rows
// and columns with the fixed row 0 and column 0 (content from 1), cells with their text and, for
// amounts, dates and whole numbers, the typed value that a spreadsheet receives; alignment, font,
// wrap, merged rectangles, the border edges, sizes in pixels and the page set-up.
namespace Raport {

enum class Orizontal : std::uint8_t { Stanga, Centru, Dreapta };
enum class Vertical : std::uint8_t { Sus, Centru, Jos };

struct Aliniere {
    Orizontal orizontal = Orizontal::Stanga;
    Vertical vertical = Vertical::Centru;
    bool operator==(const Aliniere&) const = default;
};

// A font; on a cell, an empty name, a size of 0 or a style left unset takes the grid's default.
struct Font {
    QString nume;
    double marime = 0;
    std::optional<bool> bold, italic, subliniat;
    bool Bold() const { return bold.value_or(false); }
    bool Italic() const { return italic.value_or(false); }
    bool Subliniat() const { return subliniat.value_or(false); }
    bool operator==(const Font&) const = default;
};

// The line kinds of the templates' codes: "Thin" 1, "Thick" 2, anything else 0.
enum class Linie : std::uint8_t { Nimic = 0, Subtire = 1, Groasa = 2 };

// The eight edges, by the templates' codes.
enum class Margine {
    Stanga = 0,
    Dreapta = 1,
    Sus = 2,
    Jos = 3,
    InteriorVertical = 4,
    InteriorOrizontal = 5,
    DiagonalaSus = 6,
    DiagonalaJos = 7
};

// What a cell's typed value is, as the spreadsheets write it: none is text.
enum class FelValoare { Text, Suma, Data, Intreg };
FelValoare Felul(const QVariant& valoare);

struct Celula {
    QString text;
    QVariant valoare; // Bani, QDate or qint64 when the text stands for one; none otherwise
    Font font;
    std::optional<Aliniere> aliniere; // none: the column's
    bool incadrare = false; // wrap
    // The lines drawn on the cell's own sides and across it: left, right, top, bottom, the two
    // diagonals (the order of Margine's first four, then 6 and 7).
    std::array<Linie, 6> linii{};
    bool operator==(const Celula&) const = default;
};

// Corners included; a rectangle given upside down is the same rectangle.
struct Dreptunghi {
    int rand1 = 0, col1 = 0, rand2 = 0, col2 = 0;
    bool Contine(int rand, int col) const { return rand >= rand1 && rand <= rand2 && col >= col1 && col <= col2; }
    bool operator==(const Dreptunghi&) const = default;
};

enum class Hartie { A3, A4, A5 };

struct Pagina {
    Hartie hartie = Hartie::A4;
    bool portret = true;
    // Centimetres, in the order left, top, right, bottom.
    std::array<double, 4> margini{1.4, 0.5, 0.5, 1.0};
    bool operator==(const Pagina&) const = default;
};

class Grila {
public:
    Grila(int randuri = 2, int coloane = 2);

    int Randuri() const { return randuri_; }
    int Coloane() const { return coloane_; }
    // Grows or shrinks; what falls outside goes, merges with it.
    void SeteazaRanduri(int n);
    void SeteazaColoane(int n);

    // A cell; Eroare outside the grid.
    const Celula& La(int rand, int col) const;
    Celula& La(int rand, int col);
    QString Text(int rand, int col) const { return La(rand, col).text; }
    void Scrie(int rand, int col, const QString& text);
    // The text as the report shows it, with the value a spreadsheet takes.
    void Scrie(int rand, int col, const QString& text, const QVariant& valoare);

    // A row added at the end from a text whose columns are separated by tabs, from column 0: a text
    // that begins with a tab leaves the fixed column empty. Fields past the last column are dropped.
    void AdaugaRand(const QString& campuri);

    void Uneste(const Dreptunghi& d);
    const std::vector<Dreptunghi>& Uniri() const { return uniri_; }
    // The merged rectangle that holds a cell, if any.
    std::optional<Dreptunghi> UnireLa(int rand, int col) const;

    void Bordura(const Dreptunghi& d, Margine m, Linie l);
    void Aliniaza(const Dreptunghi& d, Aliniere a);
    void SeteazaFont(const Dreptunghi& d, const Font& f);
    void Incadreaza(const Dreptunghi& d, bool da);
    // Texts, values, formats and merges of the rectangle gone.
    void Goleste(const Dreptunghi& d);

    // Sizes in pixels; a row or column without its own takes the default.
    int InaltimeRand(int rand) const;
    void SeteazaInaltimeRand(int rand, int px);
    int LatimeColoana(int col) const;
    void SeteazaLatimeColoana(int col, int px);
    Aliniere AliniereColoana(int col) const;
    void SeteazaAliniereColoana(int col, Aliniere a);
    // What a row, a column was given itself (0, none: the default), as the grid file keeps it.
    int InaltimeProprie(int rand) const;
    int LatimeProprie(int col) const;
    std::optional<Aliniere> AliniereProprieColoana(int col) const;
    // A cell's alignment: its own, else its column's.
    Aliniere AliniereCelula(int rand, int col) const;
    // A cell's font with the grid's default where it has none of its own.
    Font FontCelula(int rand, int col) const;
    // The same text for cells that look alike (font, alignment, wrap, lines, kind of value), which
    // the spreadsheets give one shared style.
    QString CheieAspect(int rand, int col) const;

    int inaltimeImplicita = 36;
    int latimeImplicita = 64;
    Font fontImplicit{QStringLiteral("Arial"), 10, false, false, false};
    Pagina pagina;

    bool operator==(const Grila&) const = default;

private:
    Dreptunghi normal(const Dreptunghi& d) const;
    template <typename F> void fiecare(const Dreptunghi& d, F&& f);
    void redimensioneaza(int randuri, int coloane);

    int randuri_ = 0, coloane_ = 0;
    std::vector<std::vector<Celula>> celule_; // by row
    std::vector<Dreptunghi> uniri_;
    std::vector<int> inaltimi_, latimi_; // 0: the default
    std::vector<std::optional<Aliniere>> aliniereColoane_;
};

} // namespace Raport
