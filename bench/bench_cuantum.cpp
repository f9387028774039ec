#include "cases/CalculCuantum.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "store/DateLivrate.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The amount of one request as the editor recomputes it at each keystroke: a family of eight
// (two adults, six children, two of them with reductions) holding twelve kinds of goods, on the
// scale a new database installs.
//   ferolanta_bench --benchmark_filter=Cuantum

namespace {

std::unique_ptr<BazaDate> BazaSeminte(const QTemporaryDir& dir) {
    LocatieBD loc;
    loc.caleBD = dir.path();
    MesajeTacute m;
    return DateLivrate::Initializeaza(loc, QStringLiteral(FEROLANTA_SURSA "/data"), m);
}

StareCerere FamilieDeOpt() {
    StareCerere s;
    std::vector<MembruCerere> membri(8);
    membri[0].RudenieID = 1;
    membri[1].RudenieID = 2;
    for (int i = 2; i < 8; ++i) {
        membri[size_t(i)].RudenieID = i == 7 ? 6 : 3;
        membri[size_t(i)].Data18Ani = QDate(2030, 1, 1);
    }
    membri[3].Diminuare20 = 1;
    membri[5].Diminuare50 = 1;
    s.MatriceMembri = std::move(membri);
    for (int i = 0; i < 12; ++i)
        s.Bunuri[size_t(i * 6)] = Bani::DinUnitati(2500); // a quarter of a unit of each
    s.Bife = QStringLiteral("0000000000");
    return s;
}

void CalculCuantumFamilieDeOpt(benchmark::State& st) {
    QTemporaryDir dir;
    const ParametriCuantum p = IncarcaParametri(*BazaSeminte(dir));
    const StareCerere stare = FamilieDeOpt();
    const IntrareCuantum intrare{stare, 1, QDate(2014, 12, 1), QStringLiteral("150.5"), 12, 2014};
    MesajeTacute m;
    if (!CalculCuantum(intrare, p, m).CuantumInainteDeReduceri) {
        st.SkipWithError("calculul s-a oprit inaintea reducerilor");
        return;
    }
    for (auto _ : st) {
        const RezultatCuantum r = CalculCuantum(intrare, p, m);
        benchmark::DoNotOptimize(r);
    }
}

// The load that comes before a computation when the editor reads the tables afresh.
void IncarcaParametriSQLite(benchmark::State& st) {
    QTemporaryDir dir;
    auto db = BazaSeminte(dir);
    for (auto _ : st) {
        const ParametriCuantum p = IncarcaParametri(*db);
        benchmark::DoNotOptimize(p);
    }
}

} // namespace

BENCHMARK(CalculCuantumFamilieDeOpt)->Unit(benchmark::kMicrosecond);
BENCHMARK(IncarcaParametriSQLite)->Unit(benchmark::kMicrosecond);
