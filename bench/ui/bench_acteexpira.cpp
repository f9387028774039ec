#include "Comun.h"

#include "cases/frmListaActeExpira.h"
#include "base/Ceas.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QTreeView>
#include <benchmark/benchmark.h>

// The list of expiring certificates as the clerk gets it on a demo database of 100,000 requests
// (SQLite): AfisLista reads the month's rows and shows them. Budget: 200 ms.
//   ferolanta_bench_ui --benchmark_filter=ActeExpira
// - AfisLista: the list filled again in an open dialog (after a save in the request editor).
// - DeschideActeExpira: the dialog made, filled, shown and painted offscreen.

namespace {

constexpr int Cereri = 100000;

void AfisLista(benchmark::State& st) {
    const QDate azi = Ceas::Azi();
    auto db = BazaDate::Deschide(BazaDemoCuActeInLuna(Cereri, azi));
    MesajeTacute m;
    frmListaActeExpira f(*db, m);
    f.show();
    QApplication::processEvents();
    for (auto _ : st) {
        f.AfisLista();
        QApplication::processEvents();
    }
    st.counters["randuri"] = double(f.lvwActe->model()->rowCount());
}

void DeschideActeExpira(benchmark::State& st) {
    const QDate azi = Ceas::Azi();
    auto db = BazaDate::Deschide(BazaDemoCuActeInLuna(Cereri, azi));
    MesajeTacute m;
    int randuri = 0;
    for (auto _ : st) {
        frmListaActeExpira f(*db, m);
        f.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(f.grab());
        randuri = f.lvwActe->model()->rowCount();
    }
    st.counters["randuri"] = double(randuri);
}

const bool inregistrate = [] {
    benchmark::RegisterBenchmark("ActeExpira/AfisLista_100k", AfisLista)->Unit(benchmark::kMillisecond)->UseRealTime();
    benchmark::RegisterBenchmark("ActeExpira/DeschideActeExpira_100k", DeschideActeExpira)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    return true;
}();

} // namespace
