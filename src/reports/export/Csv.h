#pragma once

#include <QByteArray>
#include <QString>

namespace Raport {
class Grila;

// The grid for scripts and the agency's tools: UTF-8 without a byte-order mark, ";" between fields,
// a field quoted as RFC 4180 says when it holds ";", a quote or a line break; a line per row from row
// 1 to the last, a field per column from column 1 to the last. A merged rectangle's text stands in
// its top-left cell, its other cells are empty.
QByteArray Csv(const Grila& g);

// Written whole or not at all.
void ScrieCsv(const Grila& g, const QString& fisier);

} // namespace Raport
