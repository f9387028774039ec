#pragma once

#include <QString>

namespace Raport {
class Grila;

// The grid as a spreadsheet: content rows and columns only (grid row r is sheet row r - 1, column c
// column c - 1), with merges, borders, fonts, alignment, wrap, widths, heights, paper and orientation;
// amounts as numbers with two decimals and dates as dates, so that the spreadsheet sums and sorts them.
// Written whole or not at all.
void ScrieXlsx(const Grila& g, const QString& fisier);

} // namespace Raport
