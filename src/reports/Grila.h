#pragma once

#include "base/MemorieMare.h"

#include <QAnyStringView>
#include <QString>
#include <QStringView>
#include <QVariant>
#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <utility>
#include <vector>

class Bani;

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

// A text put at `p` as UTF-8, from whichever encoding its view has; returns where it ends. There
// must be room for MarimeUtf8 bytes, the most it can take.
char* PuneUtf8(char* p, QAnyStringView text);
std::size_t MarimeUtf8(QAnyStringView text);

// What a cell's typed value is, as the spreadsheets write it: none is text.
enum class FelValoare : std::uint8_t { Text, Suma, Data, Intreg };
FelValoare Felul(const QVariant& valoare);

// How a cell looks: the cells that look alike share one, which keeps a large grid small.
struct Aspect {
    Font font;
    std::optional<Aliniere> aliniere; // none: the column's
    bool incadrare = false; // wrap
    // The lines drawn on the cell's own sides and across it: left, right, top, bottom, the two
    // diagonals (the order of Margine's first four, then 6 and 7).
    std::array<Linie, 6> linii{};
    bool operator==(const Aspect&) const = default;
};

// A cell whole, as it is read from the grid and written to it.
struct Celula {
    QString text;
    QVariant valoare; // Bani, QDate or qint64 when the text stands for one; none otherwise
    Font font;
    std::optional<Aliniere> aliniere;
    bool incadrare = false;
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
    Celula La(int rand, int col) const;
    void Seteaza(int rand, int col, const Celula& c);
    QString Text(int rand, int col) const { return TextVedere(rand, col).toString(); }
    // The text as kept, in UTF-8, without a copy; good until the grid next changes.
    QUtf8StringView TextVedere(int rand, int col) const;
    FelValoare Fel(int rand, int col) const { return loc(rand, col).fel; }
    QVariant Valoare(int rand, int col) const;
    const Aspect& AspectLa(int rand, int col) const { return aspecte_[loc(rand, col).aspect]; }
    // No text, no value and the default look.
    bool EsteGoala(int rand, int col) const;
    void Scrie(int rand, int col, const QString& text);
    // The text as the report shows it, with the value a spreadsheet takes.
    void Scrie(int rand, int col, const QString& text, const QVariant& valoare);

    // A text written from pieces one after another straight into the grid's store, with no string
    // made for the whole: what a list of a million rows writes into each of its cells.
    void ScriePiese(int rand, int col, std::span<const QAnyStringView> piese);
    void ScriePiese(int rand, int col, std::initializer_list<QAnyStringView> piese) {
        ScriePiese(rand, col, std::span(piese.begin(), piese.size()));
    }
    // A whole number as its text and its value.
    void ScrieIntreg(int rand, int col, qint64 n);
    // An amount as a text box shows it ("1200.5", "164") and its value.
    void ScrieSuma(int rand, int col, const Bani& suma);
    // The text and value of another cell, sharing its text rather than writing it again; the look stays.
    void CopiazaContinut(int rand, int col, int randSursa, int colSursa);

    // A row added at the end from a text whose columns are separated by tabs, from column 0: a text
    // that begins with a tab leaves the fixed column empty. Fields past the last column are dropped.
    void AdaugaRand(const QString& campuri);

    // Changes the look of every cell of the rectangle.
    template <typename F> void ModificaAspect(const Dreptunghi& d, F&& f);

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
    // The same key for cells that look alike (font, alignment, wrap, lines, kind of value), which
    // the spreadsheets give one shared style.
    std::uint64_t CheieAspect(int rand, int col) const;

    int inaltimeImplicita = 36;
    int latimeImplicita = 64;
    Font fontImplicit{QStringLiteral("Arial"), 10, false, false, false};
    Pagina pagina;

    bool operator==(const Grila& alta) const;

private:
    // A cell as kept: its text in the grid's text store, its value packed, its look by number.
    struct Loc {
        std::uint32_t text = 0, lungime = 0;
        // Units of Bani, the Julian day, or the number; with `mare`, its place among the values that
        // need more than 32 bits: a cell in 16 bytes.
        std::int32_t valoare = 0;
        std::uint16_t aspect = 0;
        FelValoare fel = FelValoare::Text;
        bool mare = false;
    };
    std::int64_t valoareLa(const Loc& l) const { return l.mare ? valoriMari_[size_t(l.valoare)] : l.valoare; }
    void puneValoare(Loc& l, std::int64_t v);
    const Loc& loc(int rand, int col) const;
    Loc& loc(int rand, int col) { return const_cast<Loc&>(std::as_const(*this).loc(rand, col)); }
    Dreptunghi normal(const Dreptunghi& d) const;
    void redimensioneaza(int randuri, int coloane);
    std::uint16_t numarAspect(const Aspect& a);
    void scrieText(Loc& l, QStringView text);
    // Room for up to n bytes of a cell's text, then the count written there.
    char* rezerva(Loc& l, std::size_t n);
    void fixeaza(Loc& l, std::size_t n);

    int randuri_ = 0, coloane_ = 0;
    // Rows in blocks that never move as the grid grows: the first of 2^BitiPrimulBloc rows, each
    // next as many rows as all before it. A large block is then a whole number of the system's 2 MB
    // pages, none zeroed in vain, and a small grid stays small.
    static constexpr int BitiPrimulBloc = 10;
    static std::size_t blocRand(std::size_t rand) {
        return rand >> BitiPrimulBloc == 0 ? 0 : std::size_t(std::bit_width(rand)) - BitiPrimulBloc;
    }
    static std::size_t primulRandBloc(std::size_t bloc) {
        return bloc == 0 ? 0 : std::size_t(1) << (BitiPrimulBloc + bloc - 1);
    }
    static std::size_t randuriBloc(std::size_t bloc) {
        return std::size_t(1) << (bloc == 0 ? BitiPrimulBloc : BitiPrimulBloc + bloc - 1);
    }
    std::vector<std::vector<Loc, AlocatorMare<Loc, true>>> blocuri_;
    // Texts one after another in blocks that never move, so that a grid of a million rows does not
    // hold a million separate strings; in UTF-8, which is half the size for the mostly plain letters
    // of names and addresses, and what the spreadsheets and the engine speak.
    std::vector<std::vector<char, AlocatorMare<char, false>>> texte_;
    std::size_t blocCurent_ = 0;
    std::vector<std::int64_t> valoriMari_;
    std::vector<Aspect> aspecte_{Aspect{}};
    std::vector<Dreptunghi> uniri_;
    std::vector<int, AlocatorMare<int, false>> inaltimi_; // 0: the default
    std::vector<int> latimi_;
    std::vector<std::optional<Aliniere>> aliniereColoane_;
};

template <typename F> void Grila::ModificaAspect(const Dreptunghi& d, F&& f) {
    const Dreptunghi n = normal(d);
    // A rectangle holds few looks: each is changed once, then reused.
    std::vector<std::pair<std::uint16_t, std::uint16_t>> schimbate;
    for (int r = n.rand1; r <= n.rand2; ++r)
        for (int c = n.col1; c <= n.col2; ++c) {
            Loc& l = loc(r, c);
            auto gasit = std::find_if(schimbate.begin(), schimbate.end(), [&](const auto& p) { return p.first == l.aspect; });
            if (gasit == schimbate.end()) {
                Aspect a = aspecte_[l.aspect];
                f(a);
                schimbate.push_back({l.aspect, numarAspect(a)});
                gasit = schimbate.end() - 1;
            }
            l.aspect = gasit->second;
        }
}

} // namespace Raport
