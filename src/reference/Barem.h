#pragma once

#include "base/Bani.h"

#include <QDate>
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
