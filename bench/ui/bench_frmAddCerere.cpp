#include "Comun.h"

#include "cases/frmAddCerere.h"
#include "base/Setari.h"
#include "store/BazaDate.h"

#include <QApplication>
#include <QTreeWidget>
#include <benchmark/benchmark.h>

// The request editor opened on a stored request of the demo database of 100,000 requests: the
// dialog built, its lists filled, the request with its persons, incomes, goods and leavers read
// and shown in the boxes; then the same, laid out offscreen and painted once. Budget: 50 ms.
//   ferolanta_bench_ui --benchmark_filter=EditorCerere

namespace {

constexpr int Cereri = 100000;

void EditorCerere(benchmark::State& st, bool afisat) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    Setari setari;
    setari.LunaSetata = 6;
    setari.AnSetat = 2025;
    MesajeTacute m;
    qint64 pas = 0, persoane = 0;
    for (auto _ : st) {
        // Spread over the whole table, so that no page stays warm by accident.
        const qint64 id = 1 + (pas++ * 7919) % Cereri;
        frmAddCerere f(*db, setari, m, DeschidereCerere{2, id, false, 0});
        if (!f.Gasita()) {
            st.SkipWithError("cererea lipseste din baza demonstrativa");
            return;
        }
        persoane += f.lvw->topLevelItemCount();
        if (afisat) {
            f.show();
            QApplication::processEvents();
            benchmark::DoNotOptimize(f.grab());
        }
    }
    st.counters["persoane/cerere"] = double(persoane) / double(std::max<qint64>(pas, 1));
}

void EditorCerereDeschis(benchmark::State& st) {
    EditorCerere(st, false);
}
void EditorCerereAfisat(benchmark::State& st) {
    EditorCerere(st, true);
}

} // namespace

BENCHMARK(EditorCerereDeschis)->Unit(benchmark::kMillisecond);
BENCHMARK(EditorCerereAfisat)->Unit(benchmark::kMillisecond);
