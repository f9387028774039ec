#include "Comun.h"

#include "cases/frmListaActeExpira.h"
#include "base/Ceas.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QTreeView>
#include <benchmark/benchmark.h>

// The list of expiring certificates as the clerk gets it on the demo databases of 100,000 and
// 1,000,000 requests (SQLite): AfisLista reads the month's rows and shows them. Budget: 200 ms.
//   ferolanta_bench_ui --benchmark_filter=ActeExpira
// - AfisLista: the list filled again in an open dialog (after a save in the request editor).
// - DeschideActeExpira: the dialog made, filled, shown and painted offscreen.

namespace {

void AfisLista(benchmark::State& st, int Cereri) {
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

void DeschideActeExpira(benchmark::State& st, int Cereri) {
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
    for (int cereri : {100000, 1000000})
        for (const auto& [ce, f] : {std::pair{"AfisLista", &AfisLista}, std::pair{"DeschideActeExpira", &DeschideActeExpira}})
            benchmark::RegisterBenchmark(
                QStringLiteral("ActeExpira/%1/%2").arg(QLatin1String(ce)).arg(cereri).toStdString().c_str(), f, cereri)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
    return true;
}();

} // namespace
