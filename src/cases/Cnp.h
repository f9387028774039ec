#pragma once

#include <QDate>
#include <QString>
#include <QStringView>

class Mesaje;

// The personal numeric code and what it says of its holder. Where a function may tell the clerk
// something it takes the message sink; a null sink means "check silently".

// A personal numeric code: 13 digits S YY MM DD JJ NNN C. The checks run in a fixed order and
// the first failure is the only one reported, as a critical box titled "CNP".
bool VerificaCNP(const QString& cnp, Mesaje* m);

// The control digit of a code's first twelve digits: their sum weighted 2 7 9 1 4 6 3 5 8 2 7 9,
// modulo 11, with 10 written as 1.
int CifraControlCnp(QStringView douasprezece);

// The birth date written in a CNP (with adauga18, the day of turning 18). An invalid QDate when
// the month is above 12 or the day above 31 (both reported), or when the code is too short to
// hold a date. Day and month overflow roll forward as on a calendar: 31 April is 1 May, and
// 29 February of a common year is 1 March; a 00 month or day rolls back the same way.
QDate DataNasterii(const QString& cnp, bool adauga18, Mesaje* m);

// The day a person born on that date turns 18, by the same calendar: born on 29 February, on 1 March.
QDate ZiuaMajoratului(const QDate& nastere);

// "5 Martie 1985": day without leading zero, month name, year; empty without a birth date.
QString DataNasteriiText(const QString& cnp);

// Whole years at the reference date, counting months only: in the birthday's month the person
// is still a year younger. A negative age is reported and returned as it is. Without a birth
// date the result is 0 after a message. Throws Eroare when the reference date is missing.
qint16 Varsta(const QDate& referinta, const QDate& nastere, const QString& cnp, Mesaje* m);
