#include "Comun.h"

#include "cases/Adeverinte.h"
#include "base/Ceas.h"
#include "store/BazaDate.h"

#include <benchmark/benchmark.h>

// The list of current certificates that expire this month (AfisLista, budget 200 ms) on a demo
// database of 100,000 requests (SQLite).
//   ferolanta_bench --benchmark_filter=adeverinte

namespace {

constexpr int Cereri = 100000;

// `luni` months after today: the generator crowds this month with expiries (about one in eight
// certificates), the next month holds somewhat fewer.
void ActeExpira(benchmark::State& st, int luni) {
    const QDate azi = Ceas::Azi().addMonths(luni);
    auto db = BazaDate::Deschide(BazaDemoCuActeInLuna(Cereri, azi));
    size_t randuri = 0;
    for (auto _ : st)
        randuri = Adeverinte::ListaActeExpira(*db, azi).size();
    st.counters["randuri"] = double(randuri);
}

const bool inregistrate = [] {
    benchmark::RegisterBenchmark("adeverinte/acte_expira_100k", ActeExpira, 0)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("adeverinte/acte_expira_100k_luna_viitoare", ActeExpira, 1)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    return true;
}();

} // namespace
