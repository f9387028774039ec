#include "Comun.h"

#include "cases/Anchete.h"
#include "cases/Dispozitii.h"
#include "cases/ListaCereri.h"

#include "store/BazaDate.h"

#include <QDate>
#include <benchmark/benchmark.h>

// Dispositions on demo databases (SQLite):
//   generare_50k    the bulk generation of frmAnexa2 for every request of a 50,000-request
//                   database (both kinds of request, one run each), on a fresh copy each time;
//   schimbare_rand  what a row change of the main window reads: the request again, its
//                   inquiries and its dispositions, on 100,000 requests.
//   ferolanta_bench --benchmark_filter=dispozitii

namespace {

ParametriGenerare parametri(int tip) {
    ParametriGenerare p;
    p.NrStart = QStringLiteral("1");
    p.TipCerere = tip;
    p.DataDisp = QDate(2024, 6, 3);
    p.Luna = 7;
    p.An = QStringLiteral("2024");
    qint64 pasi = 0;
    p.Progres = [pasi](qint64, qint64) mutable {
        benchmark::DoNotOptimize(++pasi);
        return true;
    };
    return p;
}

void Generare(benchmark::State& st) {
    MesajeTacute m;
    qint64 generate = 0;
    for (auto _ : st) {
        st.PauseTiming();
        auto db = BazaDate::Deschide(BazaDemoSQLite(50000, true));
        st.ResumeTiming();
        generate =
            Dispozitii::Genereaza(*db, m, parametri(1)).Generate + Dispozitii::Genereaza(*db, m, parametri(2)).Generate;
        st.PauseTiming();
        db.reset();
        st.ResumeTiming();
    }
    st.counters["dispozitii"] = double(generate);
}

void SchimbareRand(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(100000, false));
    {
        Interogare q(*db, QStringLiteral("SELECT COUNT(*) FROM Dispozitii"));
        q.Exista();
        if (q.Intreg(0) == 0) {
            // A database from before the demo wrote dispositions: a working copy gets them.
            db = BazaDate::Deschide(BazaDemoSQLite(100000, true));
            MesajeTacute m;
            Dispozitii::Genereaza(*db, m, parametri(1));
            Dispozitii::Genereaza(*db, m, parametri(2));
        }
    }
    qint64 id = 1;
    size_t randuri = 0, cereri = 0;
    for (auto _ : st) {
        const RandCerere r = ListaCereri::Citeste(*db, id);
        const auto anchete = Anchete::ListaAnchete(*db, id);
        const auto dispozitii = Dispozitii::ListaDispozitii(*db, id);
        benchmark::DoNotOptimize(r.CerereID);
        randuri += anchete.size() + dispozitii.size();
        ++cereri;
        // Spread over the table, as the clerk's clicks are.
        id = (id + 7919) % 100000 + 1;
    }
    st.counters["randuri_pe_cerere"] = double(randuri) / double(std::max<size_t>(cereri, 1));
}

const bool inregistrate = [] {
    benchmark::RegisterBenchmark("dispozitii/generare_50k", Generare)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(3);
    benchmark::RegisterBenchmark("dispozitii/schimbare_rand_100k", SchimbareRand)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    return true;
}();

} // namespace
