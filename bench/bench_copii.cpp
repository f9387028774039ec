#include "Comun.h"

#include "maintenance/Copii.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QFile>
#include <benchmark/benchmark.h>

// A copy of the demo databases of 100,000 and 1,000,000 requests (SQLite) as the daily copy takes it:
// the engine's page copy, then its check. Budget: under 10 s at 1M.
//   ferolanta_bench --benchmark_filter=copie/

namespace {

void Copie(benchmark::State& st, int cereri) {
    const LocatieBD loc = BazaDemoSQLite(cereri, false);
    auto db = BazaDate::Deschide(loc);
    for (auto _ : st) {
        const QString copie = Copii::FaCopie(*db, loc);
        st.PauseTiming();
        QFile::remove(copie);
        st.ResumeTiming();
    }
    QDir(QDir(loc.caleBD).filePath(Copii::NumeFolder)).removeRecursively();
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000})
        benchmark::RegisterBenchmark(QStringLiteral("copie/%1").arg(cereri).toStdString().c_str(), Copie, cereri)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1);
    return true;
}();

} // namespace
