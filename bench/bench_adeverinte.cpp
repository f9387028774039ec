#include "Comun.h"

#include "cases/Adeverinte.h"
#include "base/Ceas.h"
#include "store/BazaDate.h"

#include <benchmark/benchmark.h>

// The list of current certificates that expire this month as the dialog reads it, the count and the
// first screen (budget 300 ms), and the notice at start-up, on the demo databases of 100,000 and
// 1,000,000 requests (SQLite).
//   ferolanta_bench --benchmark_filter=adeverinte

namespace {

// `luni` months after today: the generator crowds this month with expiries (about one in eight
// certificates), the next month holds somewhat fewer.
void ActeExpira(benchmark::State& st, int Cereri, int luni) {
    const QDate azi = Ceas::Azi().addMonths(luni);
    auto db = BazaDate::Deschide(BazaDemoCuActeInLuna(Cereri, azi));
    qint64 randuri = 0;
    for (auto _ : st) {
        randuri = Adeverinte::NumarActeExpira(*db, azi);
        benchmark::DoNotOptimize(Adeverinte::ListaActeExpira(*db, azi, 0, 40, randuri));
    }
    st.counters["randuri"] = double(randuri);
}

// The notice at start-up: whether any such certificate exists.
void Notificare(benchmark::State& st, int Cereri) {
    const QDate azi = Ceas::Azi();
    auto db = BazaDate::Deschide(BazaDemoCuActeInLuna(Cereri, azi));
    for (auto _ : st)
        benchmark::DoNotOptimize(Adeverinte::ActeCareExpira(*db, azi));
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000})
        benchmark::RegisterBenchmark(QStringLiteral("adeverinte/notificare/%1").arg(cereri).toStdString().c_str(),
                                     Notificare, cereri)
            ->Unit(benchmark::kMillisecond);
    for (int cereri : {100000, 1000000})
        for (const auto& [ce, luni] : {std::pair{"", 0}, std::pair{"_luna_viitoare", 1}})
            benchmark::RegisterBenchmark(
                QStringLiteral("adeverinte/acte_expira%1/%2").arg(QLatin1String(ce)).arg(cereri).toStdString().c_str(),
                ActeExpira, cereri, luni)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
    return true;
}();

} // namespace
