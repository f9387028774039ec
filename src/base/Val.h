#pragma once

#include <QStringView>

// The leading-number rule of the old run-time: blanks anywhere are skipped, a sign, digits with
// one decimal point and an exponent are read, and the first other character (a comma among
// them) ends the number. "&H" and "&O" introduce hexadecimal and octal. Nothing readable is 0.
double Val(QStringView text);
