#include "Comun.h"

#include "cases/ControalePersoana.h"
#include "cases/DateCerere.h"
#include "cases/frmAddMembru.h"
#include "cases/frmMembrii.h"
#include "store/BazaDate.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTableView>
#include <benchmark/benchmark.h>

// The person dialogs on the demo database of 100,000 requests (about 420,000 persons, SQLite).
//   ferolanta_bench_ui --benchmark_filter='Membru|Membrii|CNP'
// - DeschideMembru: frmAddMembru opened on a person of a stored request (lists read, controls
//   filled), then also shown and painted offscreen. Budget: 100 ms.
// - CNPDupaInceput: the list of cboCNP when it opens on four typed digits. Budget: 20 ms.
// - ToateCNPInCombo: what a list of every known code would cost instead (one item per person), the
//   reason the box offers only the codes that begin with the text.
// - ListaMembriiCore: every row of the browser read at once, what the dialog avoids.
// - DeschideMembrii: the browser as it opens (every key, the texts of the rows in view), shown and
//   painted. Budget: 200 ms.
// - CautaInMembrii: one search of the browser by name. Budget: 200 ms.

namespace {

constexpr int Cereri = 100000;

void DeschideMembru(benchmark::State& st, bool afisat) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    MesajeTacute m;
    qint64 pas = 0;
    for (auto _ : st) {
        st.PauseTiming();
        // The request is the editor's, already in memory: only the dialog is timed.
        const qint64 id = 1 + (pas++ * 7919) % Cereri;
        CerereIncarcata c = IncarcaCerere(*db, id, 6, 2025, m);
        if (!c.Gasita || !c.Stare.MatriceMembri || c.Stare.MatriceMembri->empty()) {
            st.SkipWithError("cererea lipseste din baza demonstrativa");
            return;
        }
        const int index = int(pas % qint64(c.Stare.MatriceMembri->size()));
        st.ResumeTiming();
        frmAddMembru f(*db, m, c.Stare, ContextPersoana{2, index, 6, 2025});
        if (afisat) {
            f.show();
            QApplication::processEvents();
            benchmark::DoNotOptimize(f.grab());
        }
        benchmark::DoNotOptimize(f.Citeste());
    }
}
void DeschideMembruConstruit(benchmark::State& st) {
    DeschideMembru(st, false);
}
void DeschideMembruAfisat(benchmark::State& st) {
    DeschideMembru(st, true);
}

void CNPDupaInceput(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    const QString prefixe[] = {QStringLiteral("1850"), QStringLiteral("2910"), QStringLiteral("5120"),
                               QStringLiteral("6070")};
    qint64 pas = 0, coduri = 0;
    for (auto _ : st) {
        const QStringList l = CnpDupaInceput(*db, prefixe[pas++ % 4], 200);
        coduri += l.size();
    }
    st.counters["coduri/lista"] = double(coduri) / double(std::max<qint64>(pas, 1));
}

void ToateCNPInCombo(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    qint64 randuri = 0;
    for (auto _ : st) {
        Interogare q(*db, QStringLiteral("SELECT MembruID, CNP FROM Membrii"));
        q.Executa();
        QComboBox c;
        while (q.Urmator())
            c.addItem(q.Valoare(1).toString(), q.Valoare(0));
        randuri = c.count();
    }
    st.counters["persoane"] = double(randuri);
}

void ListaMembriiCore(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    size_t randuri = 0;
    for (auto _ : st)
        randuri = ListaMembrii(*db).size();
    st.counters["persoane"] = double(randuri);
}

void DeschideMembrii(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    MesajeTacute m;
    int randuri = 0;
    for (auto _ : st) {
        frmMembrii f(*db, m);
        f.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(f.grab());
        randuri = f.NrRanduri();
    }
    st.counters["persoane"] = double(randuri);
}

void CautaMembriiDupaNume(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    MesajeTacute m;
    frmMembrii f(*db, m);
    // Names of the demo data, and one that no person has, which reads the whole index.
    const QString nume[] = {QStringLiteral("pop"), QStringLiteral("Stan"), QStringLiteral("ion"),
                            QStringLiteral("Zzz")};
    qint64 pas = 0;
    for (auto _ : st) {
        f.Txt[2]->setText(nume[pas++ % 4]);
        f.Txt_KeyPress(2);
        benchmark::DoNotOptimize(f.MembruSelectat());
    }
}

} // namespace

BENCHMARK(DeschideMembruConstruit)->Unit(benchmark::kMillisecond);
BENCHMARK(DeschideMembruAfisat)->Unit(benchmark::kMillisecond);
BENCHMARK(CNPDupaInceput)->Unit(benchmark::kMillisecond);
BENCHMARK(ToateCNPInCombo)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(ListaMembriiCore)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(DeschideMembrii)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(CautaMembriiDupaNume)->Unit(benchmark::kMillisecond);
