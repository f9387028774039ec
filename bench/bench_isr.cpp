#include "Comun.h"

#include "base/Eroare.h"
#include "cases/RecalculIsr.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QFile>
#include <benchmark/benchmark.h>

// A new ISR and the amount of every paying request computed again, in one transaction, on a copy of
// the demo databases of 100,000 and 1,000,000 requests (SQLite). The value alternates between two
// that change nearly every amount, so that each run writes as much as a real change does.
// Budget at 1M: under 5 s.
//   ferolanta_bench --benchmark_filter=isr/

namespace {

// A copy of its own, beside the demo database: the shared working copy is replaced whenever another
// benchmark asks for one, and SQLite fails on a file replaced under an open connection.
LocatieBD Copie(int cereri) {
    const LocatieBD demo = BazaDemoSQLite(cereri, false);
    const LocatieBD copie{demo.caleBD + QStringLiteral("-isr"), {}};
    QDir().mkpath(copie.caleBD);
    QFile::remove(copie.FisierSQLite());
    if (!QFile::copy(demo.FisierSQLite(), copie.FisierSQLite()))
        throw Eroare(QStringLiteral("Nu pot copia %1").arg(demo.FisierSQLite()));
    return copie;
}

void Recalcul(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(Copie(cereri));
    MesajeTacute m;
    const QString valori[] = {QStringLiteral("600.75"), QStringLiteral("610.25")};
    int rulari = 0;
    RecalculIsr::Rezultat r;
    for (auto _ : st) {
        r = RecalculIsr::SchimbaIsr(*db, valori[rulari++ % 2], m);
        if (!r.ok) {
            st.SkipWithError("the recompute stopped");
            break;
        }
    }
    st.counters["cereri"] = double(r.Recalculate);
    st.counters["schimbate"] = double(r.Schimbate);
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000})
        benchmark::RegisterBenchmark(QStringLiteral("isr/recalcul/%1").arg(cereri).toStdString().c_str(), Recalcul,
                                     cereri)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(4);
    return true;
}();

} // namespace
