#include "Comun.h"

#include "cases/Adeverinte.h"
#include "shell/Ceas.h"
#include "store/BazaDate.h"

#include <benchmark/benchmark.h>

// The list of current certificates that expire this month (AfisLista, budget 200 ms) on a demo
// database of 100,000 requests (SQLite).
//   ferolanta_bench --benchmark_filter=adeverinte

namespace {

constexpr int Cereri = 100000;
constexpr int MinimLuna = 2000; // fewer rows than this in the month say little about the query

// The demo data expire around the day they were generated; run in another month, the database
// gets a certificate expiring this month for every fifth request in force.
LocatieBD BazaCuActeInLuna(const QDate& azi) {
    {
        auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
        if (Adeverinte::ListaActeExpira(*db, azi).size() >= size_t(MinimLuna)) return BazaDemoSQLite(Cereri, false);
    }
    const LocatieBD loc = BazaDemoSQLite(Cereri, true);
    auto db = BazaDate::Deschide(loc);
    Tranzactie t(*db);
    const qint64 baza = db->CheieNoua(QStringLiteral("Adeverinte"), QStringLiteral("AdevID"));
    Interogare(*db, QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                                   "DataAdeverinta, DataDepunerii, DataExpAdev, AdvCurenta) "
                                   "SELECT ? + CerereID, CerereID, MembruID1, ?, ?, ?, ?, ?, 1 FROM Cereri "
                                   "WHERE Stare IN (2, 6, 7, 8) AND MembruID1 IS NOT NULL AND CerereID % 5 = 0"))
        .Leaga(baza)
        .Leaga(8)
        .Leaga(QStringLiteral("B-1"))
        .Leaga(azi.addMonths(-6))
        .Leaga(azi.addMonths(-6))
        .Leaga(QDate(azi.year(), azi.month(), 15))
        .Executa();
    t.Confirma();
    return loc;
}

// `luni` months after today: the generator crowds this month with expiries (about one in eight
// certificates), the next month holds somewhat fewer.
void ActeExpira(benchmark::State& st, int luni) {
    const QDate azi = Ceas::Azi().addMonths(luni);
    auto db = BazaDate::Deschide(BazaCuActeInLuna(azi));
    size_t randuri = 0;
    for (auto _ : st)
        randuri = Adeverinte::ListaActeExpira(*db, azi).size();
    st.counters["randuri"] = double(randuri);
}

const bool inregistrate = [] {
    benchmark::RegisterBenchmark("adeverinte/acte_expira_100k", ActeExpira, 0)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("adeverinte/acte_expira_100k_luna_viitoare", ActeExpira, 1)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    return true;
}();

} // namespace
