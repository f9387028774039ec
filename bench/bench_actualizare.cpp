#include "../tests/support/ServerHttpTest.h"
#include "maintenance/Updater.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The update pass of start-up against an update server on this computer. When the server answers
// and the program is current, the pass asks for the version and the thresholds and writes
// nothing: budget under 100 ms, whether it runs on the calling thread (Verifica) or, as start-up
// runs it, on a thread of its own while the window's loop waits (InFundal). When the server takes
// the request and never answers, the pass costs its time-out (3 s) and not more.
//   ferolanta_bench --benchmark_filter=Actualizare

namespace {

struct ServerActualizare {
    QTemporaryDir dir;
    ServerHttpTest server;
    Updater::Mediu m;
    std::optional<QString> praguri = QStringLiteral("210.2|557.03");

    explicit ServerActualizare(bool tace) {
        m.baza = server.Adresa(QStringLiteral("/update-ferolanta/"));
        m.exe = QStringLiteral("ferolanta");
        m.folderProgram = m.folderExecutabil = dir.path();
        m.portabil = true;
        QFile v(m.CaleVersiune());
        if (v.open(QIODevice::WriteOnly)) v.write("2.0\r\n");
        server.Pune(QStringLiteral("/update-ferolanta/ferolanta/version.txt"), {200, "2.0\n", {}, tace});
        server.Pune(QStringLiteral("/update-ferolanta/prag-asf.txt"), QByteArray("210.2|557.03\r\n"));
    }
};

void ActualizareServerRaspunde(benchmark::State& st) {
    ServerActualizare s(false);
    for (auto _ : st) {
        const auto r = Updater::Verifica(s.m, s.praguri);
        if (!r.serverRaspunde || r.predare || r.praguri) st.SkipWithError("the pass did not find itself current");
        benchmark::DoNotOptimize(r);
    }
}
BENCHMARK(ActualizareServerRaspunde)->Unit(benchmark::kMillisecond)->UseRealTime();

void ActualizareInFundalServerRaspunde(benchmark::State& st) {
    ServerActualizare s(false);
    QObject context;
    for (auto _ : st) {
        QEventLoop bucla;
        bool raspuns = false;
        Updater::InFundal<Updater::RezultatVerificare>(
            &context, [&s] { return Updater::Verifica(s.m, s.praguri); },
            [&](Updater::RezultatVerificare r) {
                raspuns = r.serverRaspunde;
                bucla.quit();
            });
        bucla.exec();
        if (!raspuns) st.SkipWithError("no answer");
    }
}
BENCHMARK(ActualizareInFundalServerRaspunde)->Unit(benchmark::kMillisecond)->UseRealTime();

void ActualizareServerTace(benchmark::State& st) {
    ServerActualizare s(true);
    for (auto _ : st) {
        const auto r = Updater::Verifica(s.m, s.praguri);
        if (r.serverRaspunde) st.SkipWithError("a silent server counted as an answer");
    }
}
BENCHMARK(ActualizareServerTace)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

} // namespace
