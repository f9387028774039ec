#pragma once

#include "base/Eroare.h"
#include "base/MemorieMare.h"
#include "reports/Grila.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <vector>

class BazaDate;
class Mesaje;

// What the list reports share: the town hall's lines of the head and foot, the address and
// request texts, and the row plan of a list.
//
// Row plan of a list (content columns 1..n, no column after the last one listed):
//   1 "ROMANIA", 2 "Consiliul local " + locality, 3 the county;
//   4 "LISTA" and 5 the report's text, each merged across the columns and centred (a title that
//     is a whole list's name stands alone on row 4, row 5 stays empty);
//   6 "Luna " + month + " anul " + year;
//   7 the column titles, wrapped, 36 pixels high;
//   8 on, a row per record with a thin line under it, a thick one under the last;
//   then an empty row, "As Social," in the fourth column, and the social worker's name.
namespace Raport {

struct PrimarieRaport {
    QString Denumire, Localitate, Judet, AsSocial, CNPAsSocial;
    bool gasita = false;
};
// The town hall's row; when there is none the clerk is told and the head stays empty.
PrimarieRaport CitestePrimariaRaport(BazaDate& db, Mesaje& m);

// Locality, then ", " + the word for street + " " + street, ", nr. ", ", sc. ", ", ap. ", each piece
// only when there is something to show.
QString AdresaRaport(const QString& localitate, const QString& cuvantStrada, const QString& strada, const QString& nr,
                     const QString& sc, const QString& ap);
// The same address written straight into a cell.
void ScrieAdresa(Grila& g, int rand, int col, QAnyStringView localitate, QAnyStringView cuvantStrada,
                 QAnyStringView strada, QAnyStringView nr, QAnyStringView sc, QAnyStringView ap);

// Short texts one after another in one store, each known by its place: the millions of names of a
// list's rows without a string for each.
class Depozit {
public:
    struct Felie {
        std::uint32_t start = 0, lungime = 0;
    };
    Felie Pune(QAnyStringView text) {
        const size_t inceput = t_.size();
        t_.resize(inceput + MarimeUtf8(text));
        const size_t sfarsit = size_t(PuneUtf8(t_.data() + inceput, text) - t_.data());
        t_.resize(sfarsit);
        if (sfarsit > UINT32_MAX) throw Eroare(QStringLiteral("Lista are prea mult text."));
        return {std::uint32_t(inceput), std::uint32_t(sfarsit - inceput)};
    }
    QUtf8StringView operator[](Felie f) const { return QUtf8StringView(t_.data() + f.start, qsizetype(f.lungime)); }

private:
    VectorMare<char> t_;
};

struct ColoanaLista {
    QString titlu;
    int latime = 64;
    Aliniere aliniere;
};

// A list being written by the row plan above.
class Lista {
public:
    static constexpr int RandTitluri = 7;
    static constexpr int PrimulRand = 8;

    // `titlu` is the report's text under "LISTA"; with `titluPropriu` it stands alone on row 4.
    Lista(Grila& g, const std::vector<ColoanaLista>& coloane, const PrimarieRaport& p, const QString& titlu,
          bool titluPropriu, int luna, int an);

    // A row of texts (and, where given, the typed values the spreadsheets receive), a record's with
    // a thin line under it; returns its row.
    int Rand(const QStringList& texte, const std::vector<QVariant>& valori = {}, bool cuLinie = true);
    // A record's row with its thin line, its cells left for the caller to write; returns its row.
    int RandNou();
    // The thick line under the last record's row.
    void LinieGroasa();
    // The empty row, "As Social," and the name.
    void Subsol();
    // The thick line, then the foot.
    void Incheie();
    int Randuri() const { return randuri_; }

private:
    Grila& g_;
    int coloane_;
    int randuri_ = 0;
    QString asSocial_;
};

} // namespace Raport
