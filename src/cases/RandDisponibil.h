#pragma once

#include <QString>

class BazaDate;
class Mesaje;

// The checks before an editor opens on a row, or before the row is deleted: a usable database, a
// row chosen (else the clerk is told `faraSelectie`), and the row of `tabela` whose `camp` is
// `cheie` still in the database (else he is told `negasit`).
bool RandDisponibil(BazaDate& db, Mesaje& m, qint64 cheie, const QString& faraSelectie, const QString& tabela,
                    const QString& camp, const QString& negasit);
