#include "Comun.h"

#include "cases/ListaCereri.h"
#include "cases/ModelCereri.h"
#include "base/Setari.h"
#include "store/ActualizareBD.h"
#include "store/BazaDate.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The request list on a demo database of 100,000 requests (SQLite): what start-up does up to a
// filled list, the searches of the main window, and a delete.
//   ferolanta_bench --benchmark_filter=lista

namespace {

constexpr int Cereri = 100000;

// Start-up: open, settings, upgrade check, the whole list into the model.
void Pornire(benchmark::State& st) {
    const LocatieBD loc = BazaDemoSQLite(Cereri, false);
    QTemporaryDir dir;
    const QString ini = dir.filePath(QStringLiteral("setari207.ini"));
    MesajeTacute m;
    for (auto _ : st) {
        auto db = BazaDate::Deschide(loc);
        const Setari s = IncarcaSetari(ini);
        ActualizareBD(*db, loc.caleBD, m);
        FiltruCautare f;
        f.LoadTipCerere = s.LoadTipCerere;
        ModelCereri model;
        model.Seteaza(ListaCereri::Cauta(*db, f));
        benchmark::DoNotOptimize(model.rowCount());
    }
}

void Cauta(benchmark::State& st, FiltruCautare f) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    size_t gasite = 0;
    for (auto _ : st)
        gasite = ListaCereri::Cauta(*db, f).size();
    st.counters["randuri"] = double(gasite);
}

FiltruCautare filtru(QString cnp, QString nume, QList<int> stari) {
    FiltruCautare f;
    f.CNP = cnp;
    f.Nume = nume;
    f.Stari = stari;
    f.OrdineNumerica = true;
    return f;
}

void Sterge(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, true));
    qint64 id = 1;
    for (auto _ : st)
        ListaCereri::Sterge(*db, id++);
}

const bool inregistrate = [] {
    benchmark::RegisterBenchmark("lista/pornire_100k", Pornire)->Unit(benchmark::kMillisecond)->UseRealTime();
    benchmark::RegisterBenchmark("lista/cauta_cnp", Cauta, filtru(QStringLiteral("2850"), {}, {}))
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("lista/cauta_nume", Cauta, filtru({}, QStringLiteral("Pop"), {}))
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("lista/filtru_stare", Cauta, filtru({}, {}, {3}))
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("lista/sterge", Sterge)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(200);
    return true;
}();

} // namespace
