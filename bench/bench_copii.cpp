#include "Comun.h"

#include "maintenance/Copii.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <benchmark/benchmark.h>

// A copy of the demo databases of 100,000 and 1,000,000 requests (SQLite) as the daily copy takes it,
// from its own connection while the program's stays open: the engine's page copy, timed (budget: under
// 10 s at 1M), then its check, which goes on behind the clerk's work (counter verificare_s).
//   ferolanta_bench --benchmark_filter=copie/

namespace {

void Copie(benchmark::State& st, int cereri) {
    const LocatieBD loc = BazaDemoSQLite(cereri, false);
    auto db = BazaDate::Deschide(loc);
    for (auto _ : st) {
        const QString copie = Copii::Copiaza(loc, QDateTime::currentDateTime());
        st.PauseTiming();
        QElapsedTimer t;
        t.start();
        Copii::VerificaSiRoteste(copie);
        st.counters["verificare_s"] = double(t.elapsed()) / 1000.0;
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
