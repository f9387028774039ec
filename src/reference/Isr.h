#pragma once

#include <QString>
#include <optional>

class BazaDate;

// The reference value ISR of DateGen: a decimal with a point, the base of every amount.

// The two boxes of its editor: the whole part, and the decimals padded on the right to at least three
// digits ("525.5" shows as 525 and 500).
struct CaseteIsr {
    QString Valoare, Zecimale;
};
CaseteIsr CaseteDinIsr(const QString& continut);

// The stored text, or none when there is no ISR row.
std::optional<QString> CitesteIsr(BazaDate& db);

// The text to store for the two boxes (digits only, the whole part and the decimals joined by a point),
// or none when it is refused: not digits, or a value below 1.
std::optional<QString> ValoareIsr(const QString& valoare, const QString& zecimale);
// The same for a value written whole, with a point or a comma before the decimals.
std::optional<QString> ValoareIsr(const QString& text);

// Writes the value (as ValoareIsr gives it) into every ISR row, inside the caller's transaction when
// there is one; throws Eroare when there is no ISR row.
void ScrieIsr(BazaDate& db, const QString& valoare);
