#pragma once

#include <QString>

// The small file-status and INI service that start-up and every save go through.
namespace ServiciuFisiere {

// 0 the file is there and readable; 1 the file is not there; 2 the folder can't be reached.
int StareFisier(const QString& cale);

// Windows profile semantics: section and key names are case-insensitive, absent gives "".
QString CitesteIni(const QString& fisier, const QString& sectiune, const QString& cheie);
// Creates the file, the section and the key when absent; keeps the order and the other keys.
void ScrieIni(const QString& fisier, const QString& sectiune, const QString& cheie, const QString& valoare);

} // namespace ServiciuFisiere
