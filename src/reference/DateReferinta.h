#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <optional>
#include <string_view>
#include <vector>

class BazaDate;

// The reference data a clerk owns: the town hall's own record, the streets and villages, and
// the reasons for leaving a request.
namespace DateReferinta {

// ---- The town hall: one row of DatePrimarie ----

inline constexpr int NrCampuriPrimarie = 13;
// The fields of the thirteen text boxes, in the order of the boxes.
inline constexpr std::array<const char*, NrCampuriPrimarie> CampuriPrimarie = {
    "Denumire", "CodFiscal", "CodJudet", "Judet",       "Localitate", "Str",      "Nr",
    "Primar",   "Secretar",  "AsSocial", "CNPAsSocial", "OfPostal",   "CodPostal"};
// The box index given for the locality type combo, after the thirteen text boxes.
inline constexpr int IndexTipLocalitate = NrCampuriPrimarie;

struct DatePrimarie {
    std::array<QString, NrCampuriPrimarie> text;
    int TipLocalitate = 0; // 1 Comuna, 2 Oras, 3 Municipiu; 0 none chosen
};

// What stops a save: the message and the box that gets the focus.
struct Refuz {
    QString mesaj;
    int control = 0;
};

// The width the database keeps for the field of box i.
int LatimeCampPrimarie(int i);

// The first row of DatePrimarie as stored, a null field as none.
struct RandPrimarie {
    std::array<std::optional<QString>, NrCampuriPrimarie> text;
    std::optional<qint64> TipLocalitate;
    // The text of the field named `camp`, one of CampuriPrimarie.
    const std::optional<QString>& Text(std::string_view camp) const;
};
// Nothing when the table is empty.
std::optional<RandPrimarie> CitesteRandPrimarie(BazaDate& db);

// The first row of DatePrimarie; empty values when the table is empty.
DatePrimarie CitesteDatePrimarie(BazaDate& db);

// The first empty box (after trimming), then a locality type must be chosen.
std::optional<Refuz> VerificaDatePrimarie(const DatePrimarie& d);

// Inserts the row into an empty table or rewrites the one row. With two or more rows nothing is
// written and the refusal text comes back.
std::optional<QString> SalveazaDatePrimarie(BazaDate& db, const DatePrimarie& d);

// The names of the list helpers for Judet and Localitate.
QStringList Judete(BazaDate& db);
QStringList Localitati(BazaDate& db);

// ---- Streets and villages ----

struct Strada {
    qint64 StradaID = 0;
    QString Denumire;
    QString OfPostal;
    QString CodPostal;
};

std::vector<Strada> Strazi(BazaDate& db);
std::optional<Strada> CitesteStrada(BazaDate& db, qint64 stradaID);

// A blank name, then a name that another street already has (AceeasiDenumire: no wild cards,
// blanks kept). `editata` is the street being changed, none when adding.
std::optional<QString> VerificaStrada(BazaDate& db, const QString& denumire, std::optional<qint64> editata);

// A family's address names the street, compared as VerificaStrada compares.
bool StradaFolosita(BazaDate& db, const QString& denumire);

// Adds the street under MAX+1 and returns the row with its key.
Strada AdaugaStrada(BazaDate& db, Strada s);
// Rewrites the street by key; false when it is gone.
bool ModificaStrada(BazaDate& db, const Strada& s);
// Deletes the street by key; false when it was already gone.
bool StergeStrada(BazaDate& db, qint64 stradaID);

// ---- Reasons ----

struct Motiv {
    qint64 MotivID = 0;
    QString Denumire;
};

std::vector<Motiv> Motive(BazaDate& db);
std::optional<Motiv> CitesteMotiv(BazaDate& db, qint64 motivID);

// A blank name, then a name found among the streets (not among the reasons) whose StradaID is
// not the key of the reason being changed: so a reason named like a street is refused and two
// equal reasons pass.
std::optional<QString> VerificaMotiv(BazaDate& db, const QString& denumire, std::optional<qint64> editat);

Motiv AdaugaMotiv(BazaDate& db, Motiv m);
bool ModificaMotiv(BazaDate& db, const Motiv& m);
bool StergeMotiv(BazaDate& db, qint64 motivID);

// The same name up to case and diacritics (a cedilla and a comma below are one letter), as the
// duplicate and use tests compare; blanks count.
bool AceeasiDenumire(const QString& a, const QString& b);

} // namespace DateReferinta
