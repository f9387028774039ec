#pragma once

#include <QtGlobal>
#include <functional>

class BazaDate;

// Realistic generated case files for demonstrations, screenshots and benchmarks: the same seed
// gives the same data.
namespace Demo {

struct Optiuni {
    int cereri = 0;
    quint64 samanta = 1;
};

// Adds `cereri` requests after those already in the database, in batches of one transaction each.
// `progres` receives (done, total) after each batch.
void Genereaza(BazaDate& db, const Optiuni& o, const std::function<void(int, int)>& progres = {});

} // namespace Demo
