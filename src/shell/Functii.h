#pragma once

#include "shell/Bani.h"

#include <QDate>
#include <QString>
#include <QStringList>
#include <QStringView>
#include <QVariant>
#include <cstdint>
#include <optional>

class BazaDate;
class Mesaje;

// Small functions that many dialogs share. Where a function may tell the clerk something it takes
// the message sink; a null sink means "check silently".

// A personal numeric code: 13 digits S YY MM DD JJ NNN C. The checks run in a fixed order and
// the first failure is the only one reported, as a critical box titled "CNP".
bool VerificaCNP(const QString& cnp, Mesaje* m);
// The control digit of a code's first twelve digits: their sum weighted 2 7 9 1 4 6 3 5 8 2 7 9,
// modulo 11, with 10 written as 1.
int CifraControlCnp(QStringView douasprezece);
// Only the ASCII digits 0 to 9: other scripts' digits are not part of a CNP.
bool EsteCifra(QChar c);
// Val(text) between jos and sus, both included.
bool IntreLimite(QStringView text, double jos, double sus);

// The birth date written in a CNP (with adauga18, the day of turning 18). An invalid QDate when
// the month is above 12 or the day above 31 (both reported), or when the code is too short to
// hold a date. Day and month overflow roll forward as on a calendar: 31 April is 1 May, and
// 29 February of a common year is 1 March; a 00 month or day rolls back the same way.
QDate DataNasterii(const QString& cnp, bool adauga18, Mesaje* m);
// "5 Martie 1985": day without leading zero, month name, year; empty without a birth date.
QString DataNasteriiText(const QString& cnp);
// Whole years at the reference date, counting months only: in the birthday's month the person
// is still a year younger. A negative age is reported and returned as it is. Without a birth
// date the result is 0 after a message. Throws Eroare when the reference date is missing.
qint16 Varsta(const QDate& referinta, const QDate& nastere, const QString& cnp, Mesaje* m);

// Two characters: "5" becomes "05", "12" stays; a longer text gives an empty one.
QString Doua(int n);
// At least two decimals, a point as the mark: "12" -> "12.00", "12.5" -> "12.50"; more
// decimals are kept. The text form takes a plain number with a point or a comma.
QString FormatSuma(const Bani& suma);
QString FormatSuma(const QString& numar);
// An amount as a text box shows it: no trailing zeros, a point as the mark ("1200.5", "164").
QString TextSuma(const Bani& b);
QString FormatData(const QDate& data); // dd.mm.yyyy, empty for a missing date

// A LIKE pattern (with a backslash as its ESCAPE) matching what begins with the text, its wild cards taken literally.
QString PrefixLike(const QString& text);

// The form in which names are searched and compared: lower case, each letter without its marks, so
// that "Șerban", "Şerban" (the cedilla of old files) and "serban" give the same text. Each character
// gives at most one, so the key fits wherever the name fits and the key of a prefix is a prefix of
// the key.
QString CheieCautare(const QString& text);
// The search key as a name's field stores it: none for no name, as the name itself.
QVariant CheieCautareStocata(const QString& nume);

// First character in upper case, the rest as it is.
QString MajusculaPrima(const QString& s);
// Every word (after a blank or a hyphen) with its first letter upper case and the rest lower.
QString NumeProprii(const QString& s);

// A value with decimals goes to the next whole number above it; a whole value stays.
std::int64_t RotunjireSus(const Bani& suma);
double RotunjireSus(double x);

// An amount typed by a person: a point or a comma as the decimal mark; "1.234,56" (points
// between thousands, then a decimal comma) and "1.234.567" are read with thousands marks.
// Throws Eroare for a text that is not such a number.
Bani SumaText(const QString& s);
// The amount of a box: a box left blank (or a field never set) is 0, anything else as SumaText.
Bani SumaCaseta(const QString& s);

// The income thresholds text of DateGen ("210.2|557.03"); empty after a critical message when
// it is missing, blank or not at least two values separated by "|".
QString PraguriVenit(BazaDate& db, Mesaje& m);
// The same checks over a Continut already read: nullopt stands for a missing row, and a null
// Continut is an empty text.
QString VerificaPraguriVenit(const std::optional<QString>& continut, Mesaje& m);

// Whether a font family of that name is installed (case ignored). Needs a GUI application.
bool FontInstalat(const QString& nume);

// "Ianuarie" to "Decembrie"; index 0 is January.
const QStringList& LuniAn();
