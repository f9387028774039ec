#pragma once

#include <QString>

namespace Raport {
class Grila;

// The grid as an OpenDocument spreadsheet, for the offices on LibreOffice: the same content and look
// as the xlsx (content rows and columns, merges, borders, fonts, alignment, wrap, sizes, the page),
// amounts and whole numbers as numbers, dates as dates. Written whole or not at all.
void ScrieOds(const Grila& g, const QString& fisier);

} // namespace Raport
