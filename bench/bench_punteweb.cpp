#include "Comun.h"

#include "documents/web/PunteWeb.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The data of one request for the web page, with the delivered statements, on the demo database of
// 100,000 requests (SQLite): the statements alone (JsonInterogari), and the whole print command as
// StartCerereWeb runs it (query file read, statements, vb6_output.js written). Requests taken
// across the whole table. No budget is set for it.
//   ferolanta_bench --benchmark_filter=Web

namespace {

constexpr int Cereri = 100000;

struct MediuBench {
    std::unique_ptr<BazaDate> db;
    QTemporaryDir dir;
    PunteWeb::MediuWeb mediu;
    QString sql;
    std::vector<qint64> chei;

    MediuBench() {
        db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
        mediu = PunteWeb::MediuWeb::DinApplicationPath(dir.path(), QString());
        QDir().mkpath(QFileInfo(mediu.fisierInterogari).absolutePath());
        QDir().mkpath(QFileInfo(mediu.pagina).absolutePath());
        QFile::copy(QStringLiteral(FEROLANTA_SURSA "/Acte/sql_cerere.txt"), mediu.fisierInterogari);
        QFile::copy(QStringLiteral(FEROLANTA_SURSA "/web/StartCerereWeb.html"), mediu.pagina);
        QFile f(mediu.fisierInterogari);
        if (f.open(QIODevice::ReadOnly)) sql = QString::fromUtf8(f.readAll());
        Interogare q(*db, QStringLiteral("SELECT CerereID FROM Cereri ORDER BY CerereID"));
        q.Executa();
        while (q.Urmator())
            chei.push_back(q.Intreg(0));
    }
    qint64 Cheie(size_t pas) const { return chei[(pas * 7919) % chei.size()]; }
};

MediuBench& Mediu() {
    static MediuBench m;
    return m;
}

void WebJsonInterogari(benchmark::State& st) {
    MediuBench& e = Mediu();
    size_t pas = 0, octeti = 0;
    for (auto _ : st) {
        const QString json = PunteWeb::JsonInterogari(*e.db, e.sql, e.Cheie(pas++));
        octeti += size_t(json.size());
        benchmark::DoNotOptimize(json);
    }
    st.counters["caractere/cerere"] = double(octeti) / double(pas);
}
BENCHMARK(WebJsonInterogari)->Unit(benchmark::kMillisecond);

void WebStartCerereWeb(benchmark::State& st) {
    MediuBench& e = Mediu();
    MesajeTacute m;
    size_t pas = 0;
    for (auto _ : st) {
        const auto p = PunteWeb::StartCerereWeb(*e.db, e.mediu, e.Cheie(pas++), PunteWeb::DocCerere, false, m);
        if (!p) {
            st.SkipWithError("pagina nu s-a putut pregati");
            return;
        }
    }
}
BENCHMARK(WebStartCerereWeb)->Unit(benchmark::kMillisecond);

void WebFormularGol(benchmark::State& st) {
    MediuBench& e = Mediu();
    MesajeTacute m;
    for (auto _ : st)
        benchmark::DoNotOptimize(PunteWeb::StartCerereWeb(*e.db, e.mediu, 0, PunteWeb::DocAncheta, false, m));
}
BENCHMARK(WebFormularGol)->Unit(benchmark::kMillisecond);

} // namespace
