#include "Comun.h"
#include "store/ActualizareBD.h"
#include "store/BazaDate.h"
#include "store/DateLivrate.h"
#include "maintenance/Demo.h"

#include <QFile>
#include <QTemporaryDir>
#include <QUrl>
#include <QUrlQuery>
#include <benchmark/benchmark.h>

// The database benchmarks: on SQLite in a temporary folder, and on PostgreSQL when
// FEROLANTA_TEST_PG names a server, in a schema of their own that is dropped afterwards.
//   ferolanta_bench --benchmark_filter=demo_100k/SQLite

namespace {

const QString FolderDate = QStringLiteral(FEROLANTA_SURSA "/data");
const QString SchemaBench = QStringLiteral("bench_x");

// Where one benchmark keeps its database, and the way to clear it for the next iteration.
class Loc {
public:
    explicit Loc(Motor m) {
        loc_.caleBD = dir_.path();
        if (m == Motor::PostgreSQL) {
            QUrl u(qEnvironmentVariable("FEROLANTA_TEST_PG"));
            server_ = u.toString();
            QUrlQuery q(u);
            q.addQueryItem(QStringLiteral("schema"), SchemaBench);
            u.setQuery(q);
            loc_.url = u.toString();
        }
        Goleste();
    }
    ~Loc() {
        try {
            Goleste();
        } catch (...) {
        }
    }
    Loc(const Loc&) = delete;
    Loc& operator=(const Loc&) = delete;

    const LocatieBD& Locatie() const { return loc_; }

    void Goleste() {
        if (loc_.EstePostgreSQL()) {
            LocatieBD server;
            server.url = server_;
            BazaDate::Deschide(server)->Executa(QStringLiteral("DROP SCHEMA IF EXISTS %1 CASCADE").arg(SchemaBench));
        } else {
            QFile::remove(loc_.FisierSQLite());
        }
    }

    std::unique_ptr<BazaDate> Noua() {
        MesajeTacute m;
        return DateLivrate::Initializeaza(loc_, FolderDate, m);
    }

private:
    QTemporaryDir dir_;
    LocatieBD loc_;
    QString server_;
};

void Genereaza(BazaDate& db, int cereri) {
    Demo::Optiuni o;
    o.cereri = cereri;
    o.samanta = 1;
    Demo::Genereaza(db, o);
}

void Init(benchmark::State& st, Motor m) {
    Loc loc(m);
    for (auto _ : st) {
        st.PauseTiming();
        loc.Goleste();
        st.ResumeTiming();
        auto db = loc.Noua();
        st.PauseTiming();
        db.reset();
        st.ResumeTiming();
    }
}

// The upgrade that runs at every start, on a database that needs nothing.
void Upgrade(benchmark::State& st, Motor m, int cereri) {
    Loc loc(m);
    auto db = loc.Noua();
    Genereaza(*db, cereri);
    MesajeTacute mes;
    for (auto _ : st) {
        const RezultatActualizare r = ActualizareBD(*db, loc.Locatie().caleBD, mes);
        if (!r.Reusit() || r.schimbari != 0) {
            st.SkipWithError("baza nu era la zi");
            break;
        }
    }
}

void DemoCereri(benchmark::State& st, Motor m, int cereri) {
    Loc loc(m);
    for (auto _ : st) {
        st.PauseTiming();
        loc.Goleste();
        auto db = loc.Noua();
        st.ResumeTiming();
        Genereaza(*db, cereri);
        st.PauseTiming();
        db.reset();
        st.ResumeTiming();
    }
    st.SetItemsProcessed(st.iterations() * cereri);
}

void Inregistreaza(Motor m) {
    const std::string motor = m == Motor::SQLite ? "SQLite" : "PostgreSQL";
    auto nume = [&](const char* n) { return std::string(n) + "/" + motor; };
    benchmark::RegisterBenchmark(nume("init").c_str(), Init, m)->Unit(benchmark::kMillisecond)->UseRealTime();
    benchmark::RegisterBenchmark(nume("upgrade").c_str(), Upgrade, m, 0)->Unit(benchmark::kMillisecond)->UseRealTime();
    benchmark::RegisterBenchmark(nume("upgrade_10k").c_str(), Upgrade, m, 10000)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark(nume("demo_10k").c_str(), DemoCereri, m, 10000)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark(nume("demo_100k").c_str(), DemoCereri, m, 100000)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(1);
}

const bool inregistrate = [] {
    Inregistreaza(Motor::SQLite);
    if (!qEnvironmentVariable("FEROLANTA_TEST_PG").isEmpty()) Inregistreaza(Motor::PostgreSQL);
    return true;
}();

} // namespace
