#pragma once

#include <QtGlobal>
#include <functional>

class BazaDate;

// Realistic generated case files for demonstrations, screenshots and benchmarks: the same seed
// on the same database and the same day gives the same data.
namespace Demo {

// More than the largest office keeps: a number past it is a typing slip, not a wish.
inline constexpr int MaximCereri = 10'000'000;

struct Optiuni {
    int cereri = 0;
    quint64 samanta = 1;
    int lot = 5000; // requests per transaction
};

// Adds `cereri` requests after those already in the database, in batches of one transaction each.
// `progres` receives (done, total) after each batch. The database must be up to date (init or
// upgrade); the scale, the thresholds and the catalogues are read from it.
void Genereaza(BazaDate& db, const Optiuni& o, const std::function<void(int, int)>& progres = {});

} // namespace Demo
