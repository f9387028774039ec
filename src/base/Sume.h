#pragma once

#include "base/Bani.h"

#include <QString>
#include <cstdint>

// Amounts as the clerk types and reads them.

// At least two decimals, a point as the mark: "12" -> "12.00", "12.5" -> "12.50"; more
// decimals are kept. The text form takes a plain number with a point or a comma.
QString FormatSuma(const Bani& suma);

QString FormatSuma(const QString& numar);

// An amount as a text box shows it: no trailing zeros, a point as the mark ("1200.5", "164").
QString TextSuma(const Bani& b);
// The same text written at `loc`, which has room for Bani::LungimeText characters; returns its end.
char* ScrieTextSuma(const Bani& b, char* loc);

// A value with decimals goes to the next whole number above it; a whole value stays.
std::int64_t RotunjireSus(const Bani& suma);

double RotunjireSus(double x);

// An amount typed by a person: a point or a comma as the decimal mark; "1.234,56" (points
// between thousands, then a decimal comma) and "1.234.567" are read with thousands marks.
// Throws Eroare for a text that is not such a number.
Bani SumaText(const QString& s);

// The amount of a box: a box left blank (or a field never set) is 0, anything else as SumaText.
Bani SumaCaseta(const QString& s);
