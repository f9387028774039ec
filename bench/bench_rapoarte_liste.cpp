#include "Comun.h"

#include "reports/Catalog.h"
#include "reports/Grila.h"
#include "store/BazaDate.h"

#include <QDate>
#include <benchmark/benchmark.h>

// Each list of the report catalogue built into its grid on the demo databases of 100,000 and
// 1,000,000 requests (SQLite), with no ordering chosen, the working month the demo's busiest.
// Budget: under 300 ms at 100k, under 2 s at 1M. Once, "In plata" built the old way (the request
// query, then a query per row for its family), for the ratio.
//   ferolanta_bench --benchmark_filter=raport/
// The Anexa reports have benchmarks of their own.

namespace {

using namespace Raport;

Alegeri AlegeriBench() {
    Alegeri a;
    a.luna = 11;
    a.an = 2026;
    a.azi = QDate(2026, 11, 24);
    a.nrLuni = QStringLiteral("6");
    a.stari = {2, 6};
    return a;
}

void Construire(benchmark::State& st, int cereri, int index, bool foaie) {
    // The expiring certificates mark the current ones first: a copy, so that the original stays as made.
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, index == 16));
    MesajeTacute m;
    const MediuRaport mediu{Setari{}, QStringLiteral(FEROLANTA_SURSA), {}};
    int randuri = 0;
    // The first recalculation of the current certificates on a fresh demo rewrites most marks; an
    // office's monthly run finds them as the last one left them. That run is the one measured.
    if (index == 16) Construieste(index, false, *db, m, mediu, AlegeriBench());
    for (auto _ : st)
        randuri = (foaie ? GrilaFoaie(index, *db, m, mediu, AlegeriBench())
                         : Construieste(index, false, *db, m, mediu, AlegeriBench()))
                      .Randuri();
    st.counters["randuri"] = randuri;
}

// The requests in payment as the old lists read them: the requests, then each one's family alone.
void InPlataVechi(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    int randuri = 0;
    for (auto _ : st) {
        Interogare q(*db,
                     QStringLiteral("SELECT C.CerereID, C.FamilieID, C.NrCerere, M.Nume, M.Prenume, M.CNP FROM "
                                    "Cereri C, Membrii M WHERE C.MembruID1 = M.MembruID AND C.Stare IN (2, 6, 7, 8) "
                                    "ORDER BY C.CerereID"));
        q.Executa();
        randuri = 0;
        while (q.Urmator()) {
            Interogare f(*db, QStringLiteral("SELECT * FROM Familii WHERE FamilieID = ?"));
            f.Leaga(q.Intreg(QStringLiteral("CerereID")));
            f.Executa();
            benchmark::DoNotOptimize(f.Urmator());
            ++randuri;
        }
    }
    st.counters["randuri"] = randuri;
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000}) {
        for (int index : {0, 1, 2, 3, 4, 5, 6, 7, 8, 15, 16, 17, 18, 19, 20, 21})
            benchmark::RegisterBenchmark(QStringLiteral("raport/%1/%2").arg(index).arg(cereri).toStdString().c_str(),
                                         Construire, cereri, index, false)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
        benchmark::RegisterBenchmark(QStringLiteral("raport/in_plata_vechi/%1").arg(cereri).toStdString().c_str(),
                                     InPlataVechi, cereri)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1);
    }
    return true;
}();

} // namespace
