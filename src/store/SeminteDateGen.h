#pragma once

#include <QDate>
#include <QString>
#include <vector>

// Rows the program itself guarantees in DateGen and Barem, whatever the database was delivered with.
struct SamantaDateGen {
    const char* denumire;
    int tip;
    int dataID;
    const char* continut;
    int ordine;
};

struct SamantaBarem {
    QDate dataInceput;
    int tip;
    const char* descriere;
    const char* suma;      // income bracket, in shares of ISR
    const char* valori[4]; // NrPers 1 to 4
};

namespace Seminte {
const std::vector<SamantaDateGen>& DateGen();
const std::vector<SamantaBarem>& Barem();
// Each older scale closes the day before the next one starts.
struct InchidereBarem {
    QDate dataInceput;
    QDate dataStop;
};
const std::vector<InchidereBarem>& InchideriBarem();
} // namespace Seminte
