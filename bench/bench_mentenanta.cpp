#include "Comun.h"

#include "maintenance/Mentenanta.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QFile>
#include <benchmark/benchmark.h>

// Each maintenance tool over the demo database of 1,000,000 requests (SQLite), on a copy made once.
// Every run is undone by the transaction around it, so each iteration does the same work; the rollback
// is not timed. Budget: under 10 s each.
//   ferolanta_bench --benchmark_filter=mentenanta/

namespace {

using Mentenanta::Unealta;

// A copy of its own beside the demo database, made once through the engine (the demo file may be
// written by another benchmark at that moment) and kept: every run here is rolled back.
const LocatieBD& Copie(int cereri) {
    static const LocatieBD loc = [&] {
        const LocatieBD demo = BazaDemoSQLite(cereri, false);
        LocatieBD l{demo.caleBD + QStringLiteral("-mentenanta"), {}};
        if (!QFile::exists(l.FisierSQLite())) {
            QDir().mkpath(l.caleBD);
            auto db = BazaDate::Deschide(demo);
            Interogare(*db, QStringLiteral("VACUUM INTO ?")).Leaga(l.FisierSQLite()).Executa();
        }
        // The goods list is reloaded from the catalogue delivered with the program.
        const QString bife = QDir(l.caleBD).filePath(QStringLiteral("bife.txt"));
        QFile::remove(bife);
        QFile::copy(QStringLiteral(FEROLANTA_SURSA "/data/bife.txt"), bife);
        return l;
    }();
    return loc;
}

void Unealta_(benchmark::State& st, Unealta u, int cereri) {
    const LocatieBD& loc = Copie(cereri);
    auto db = BazaDate::Deschide(loc);
    MesajeTacute m;
    Mentenanta::Optiuni o;
    // The month of the latest granted request.
    {
        Interogare q(*db, QStringLiteral("SELECT MAX(DataCerere) FROM Cereri WHERE Stare = 2"));
        q.Exista();
        const QDate ultima = QDate::fromString(q.Valoare(0).toString().left(10), Qt::ISODate);
        o.luna = ultima.month();
        o.an = ultima.year();
    }
    o.suprascrieDataStare = true;
    o.caleBD = loc.caleBD;
    qint64 randuri = 0;
    for (auto _ : st) {
        auto t = std::make_unique<Tranzactie>(*db);
        if (u == Unealta::Acte) {
            // A tenth of the marks lost, for the tool to find again.
            st.PauseTiming();
            db->Executa(QStringLiteral("UPDATE Adeverinte SET AdvCurenta = NULL WHERE AdevID % 10 = 0"));
            st.ResumeTiming();
        }
        const Mentenanta::Rezultat r = Mentenanta::Aplica(*db, m, u, o);
        randuri = r.randuri + r.randuri2;
        st.PauseTiming();
        t.reset();
        st.ResumeTiming();
    }
    st.counters["randuri"] = double(randuri);
}

const bool inregistrate = [] {
    const std::pair<const char*, Unealta> unelte[] = {
        {"datastare", Unealta::DataStare}, {"stare", Unealta::Stare}, {"rudenie", Unealta::Rudenie},
        {"acte", Unealta::Acte},           {"bife", Unealta::Bife},   {"cereri2014", Unealta::Cereri2014}};
    for (const auto& [nume, u] : unelte)
        benchmark::RegisterBenchmark(
            QStringLiteral("mentenanta/%1/1000000").arg(QLatin1String(nume)).toStdString().c_str(), Unealta_, u,
            1000000)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(2);
    return true;
}();

} // namespace
