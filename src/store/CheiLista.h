#pragma once

#include <QString>
#include <QVariantList>

class BazaDate;

// Each request keeps its titular's name and first-name search keys and CNP, and its family's address
// as one text: the request list filters and orders by them from the request's own indexes, without
// joining a person or a family for every request of the office. Whatever writes a titular, a person
// or an address writes them again here, in its own transaction.
namespace CheiLista {

// Writes the keys of the requests that match `conditie` (a condition on Cereri with its values).
void Scrie(BazaDate& db, const QString& conditie, const QVariantList& valori = {});

// The same for the list of the month's expiring certificates: each certificate keeps its person's
// name as one search key and whether its request is in force (statuses 2, 6, 7, 8, with a family).
// Whatever writes a certificate, a person's name or a request's status writes them again here.
void ScrieAdeverinte(BazaDate& db, const QString& conditie, const QVariantList& valori = {});

// The requests and certificates whose keys were never written, by a database of before them or by
// an older program: written now. Returns how many rows.
qint64 Completeaza(BazaDate& db);

} // namespace CheiLista
