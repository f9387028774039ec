#include "Comun.h"

#include "reports/builders/Borderou.h"
#include "reports/export/Xlsx.h"
#include "store/BazaDate.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The Borderou of every request (no filter, in the order of entry) on the demo databases of 100,000 and
// 1,000,000 requests (SQLite): the grid as OK builds it, and its twin written as xlsx as the export
// writes it. Budget at 1M: under 3 s for the grid, under 5 s for the xlsx.
//   ferolanta_bench --benchmark_filter=borderou/

namespace {

using namespace Raport;

const AlegeriBorderou Toate{0, 0, 0, 0, 11, 2026};

void Grila(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    MesajeTacute m;
    int randuri = 0;
    for (auto _ : st)
        randuri = Borderou(*db, m, Setari{}, Toate).Randuri();
    st.counters["randuri"] = randuri;
}

void Xlsx(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    MesajeTacute m;
    QTemporaryDir dir;
    for (auto _ : st)
        benchmark::DoNotOptimize(ExportaBorderou(*db, m, Setari{}, Toate, dir.path()));
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000}) {
        benchmark::RegisterBenchmark(QStringLiteral("borderou/grila/%1").arg(cereri).toStdString().c_str(), Grila,
                                     cereri)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
        benchmark::RegisterBenchmark(QStringLiteral("borderou/xlsx/%1").arg(cereri).toStdString().c_str(), Xlsx,
                                     cereri)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime();
    }
    return true;
}();

} // namespace
