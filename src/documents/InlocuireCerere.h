#pragma once

#include "documents/DateDocument.h"

#include <QByteArray>
#include <QDate>

class BazaDate;
class Mesaje;

// The rows of a declaration's tables that a template holds: incomes and members alike.
constexpr int RanduriDeclaratie = 12;

// Fills the calculation sheet of request cerereID. `dataFisa` is the date of the sheet; an
// invalid one stands for today. False after telling the clerk: the request is gone, or a field
// that the body needs is null.
bool InlocuiesteFisa(BazaDate& db, qint64 cerereID, const QDate& dataFisa, QByteArray& corp, Mesaje& m);

// Fills the income declaration of request cerereID: its incomes and its members in numbered
// rows, every row that the request has (a template may hold more than twelve), then the rows up
// to twelve left empty. Same failures as the sheet.
bool InlocuiesteDeclaratie(BazaDate& db, qint64 cerereID, const OptiuniDocumente& o, QByteArray& corp, Mesaje& m);
