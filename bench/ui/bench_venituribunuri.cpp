#include "Comun.h"

#include "cases/DateCerere.h"
#include "cases/frmAddVenituri.h"
#include "cases/frmBife.h"
#include "store/BazaDate.h"

#include <QApplication>
#include <algorithm>
#include <benchmark/benchmark.h>

// The incomes and goods dialogs of the request editor opened on a stored request of the demo
// database of 100,000 requests: built, filled from the catalogues and the working state, shown
// offscreen and painted once. Budget: 100 ms each.
//   ferolanta_bench_ui --benchmark_filter=Deschide

namespace {

constexpr int Cereri = 100000;

// A request of the demo data with incomes and goods.
StareCerere StareDemo(BazaDate& db) {
    MesajeTacute m;
    for (qint64 id = 1; id < 200; ++id) {
        CerereIncarcata c = IncarcaCerere(db, id, 6, 2025, m);
        const auto areCeva = [](const auto& a) {
            return std::any_of(a.begin(), a.end(), [](const Bani& b) { return b > Bani(); });
        };
        if (c.Gasita && areCeva(c.Stare.Venituri) && areCeva(c.Stare.Bunuri)) return c.Stare;
    }
    return {};
}

template <class Dialog> void Deschide(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    StareCerere stare = StareDemo(*db);
    const auto nenule = [](const auto& a) {
        return double(std::count_if(a.begin(), a.end(), [](const Bani& b) { return b > Bani(); }));
    };
    if (nenule(stare.Venituri) == 0 || nenule(stare.Bunuri) == 0) {
        st.SkipWithError("nicio cerere cu venituri si bunuri in baza demonstrativa");
        return;
    }
    st.counters["venituri"] = nenule(stare.Venituri);
    st.counters["bunuri"] = nenule(stare.Bunuri);
    MesajeTacute m;
    for (auto _ : st) {
        Dialog f(*db, m, stare, nullptr);
        f.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(f.grab());
    }
}

void DeschideVenituri(benchmark::State& st) {
    Deschide<frmAddVenituri>(st);
}
void DeschideBife(benchmark::State& st) {
    Deschide<frmBife>(st);
}

} // namespace

BENCHMARK(DeschideVenituri)->Unit(benchmark::kMillisecond);
BENCHMARK(DeschideBife)->Unit(benchmark::kMillisecond);
