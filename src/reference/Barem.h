#pragma once

#include "base/Bani.h"

#include <QDate>
#include <QString>
#include <array>
#include <optional>
#include <vector>

class BazaDate;

// One row of Barem: the coefficient of a family kind, a number of children and an income
// bracket, valid from DataInceput to DataStop (invalid: open-ended).
struct RandBarem {
    int Tip = 0;
    int NrPers = 0;
    Bani Suma;                 // the bracket key: 0.4, 0.74 or 1.06
    std::optional<Bani> Barem; // the coefficient; nullopt when the field is empty
    QDate DataInceput, DataStop;
};

// Every row of the scale, in one query.
std::vector<RandBarem> CitesteBarem(BazaDate& db);

// ---- The levels of the scale in force since 1 November 2014, as the scale editor shows them ----

// The four families of the editor, each with one box per number of children (1 to 4): kind 1 and
// kind 2, each with the brackets 0.4 and 1.06.
inline constexpr int NrFamiliiBarem = 4;
inline constexpr int NrPersFamilie = 4;
inline constexpr int NrNivele = NrFamiliiBarem * NrPersFamilie;

struct FamilieBarem {
    int Tip = 0;
    Bani Suma;
};
// The family of box i is FamiliiBarem()[i / NrPersFamilie], its NrPers is i % NrPersFamilie + 1.
const std::array<FamilieBarem, NrFamiliiBarem>& FamiliiBarem();

struct NiveleBarem {
    std::array<QString, NrNivele> Barem;        // the coefficients as the boxes show them
    std::array<QString, NrNivele> BaremPerPers; // the amounts beside them
    // Set when a family does not have exactly its four rows, one per number of children: the
    // boxes would be matched to the wrong rows, so nothing can be saved.
    QString Problema;
};
NiveleBarem CitesteNivele(BazaDate& db);

// The first box that refuses a save: its value, read as a typed number is, is 0.
struct RefuzNivel {
    int caseta = 0;
    QString mesaj;
};
std::optional<RefuzNivel> VerificaNivele(const std::array<QString, NrNivele>& texte);

// Writes the sixteen coefficients in one transaction; throws Eroare, writing nothing, when a family
// does not have its four rows.
void SalveazaNivele(BazaDate& db, const std::array<QString, NrNivele>& texte);

// Stores the two thresholds of the boxes as TextPraguri writes them; false, writing nothing, when it
// refuses them. Throws Eroare when PRAGURI_VENIT has no row.
bool SalveazaPraguri(BazaDate& db, const QString& inferior, const QString& superior);
