#include "Comun.h"

#include "base/Setari.h"
#include "reports/Catalog.h"
#include "reports/builders/Anexe.h"
#include "store/BazaDate.h"

#include <benchmark/benchmark.h>

// Anexa 3 (new and reinstated) and Anexa 4 (every change) for the month with the most status changes,
// the grid built whole, on the demo databases of 100,000 and 1,000,000 requests (SQLite); budget 500 ms
// at 1,000,000.
//   ferolanta_bench --benchmark_filter=anexe

namespace {

// The working month in which most requests changed their status (the demo dates every change on the
// first of a month).
Raport::Alegeri LunaAglomerata(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT DataStare, COUNT(*) AS N FROM Cereri WHERE DataStare IS NOT NULL "
                                    "GROUP BY DataStare ORDER BY N DESC"));
    Raport::Alegeri a;
    if (q.Exista()) {
        const QDate d = QDate::fromString(q.Text(QStringLiteral("DataStare")).left(10), Qt::ISODate);
        a.luna = d.month();
        a.an = d.year();
    }
    return a;
}

void Anexa(benchmark::State& st, int cereri, int fel) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    const Raport::Alegeri a = LunaAglomerata(*db);
    const Setari s;
    int randuri = 0;
    for (auto _ : st) {
        const Raport::Grila g = Raport::BorderouAgentie(fel, *db, s, a);
        randuri = g.Randuri() - Raport::PrimulRandDate - 1;
        benchmark::DoNotOptimize(g);
    }
    st.counters["randuri"] = randuri;
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000})
        for (const auto& [nume, fel] : {std::pair{"anexa3", 1}, std::pair{"anexa4", 6}})
            benchmark::RegisterBenchmark(
                QStringLiteral("anexe/%1/%2").arg(QLatin1String(nume)).arg(cereri).toStdString().c_str(), Anexa, cereri,
                fel)
                ->Unit(benchmark::kMillisecond)
                ->UseRealTime();
    return true;
}();

} // namespace
