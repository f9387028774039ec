#include "Comun.h"

#include "base/Setari.h"
#include "cases/Adeverinte.h"
#include "cases/Anchete.h"
#include "cases/Dispozitii.h"
#include "cases/ListaCereri.h"
#include "cases/ModelCereri.h"
#include "store/ActualizareBD.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The request list on demo databases of 100,000 and 1,000,000 requests (SQLite): what start-up does
// up to a filled first screen, the searches of the main window, a jump to any position, a column
// click, a row change and a delete; and, once, the list filled as the old program filled it (every
// request, then a query per row for its titular, family and status), for the ratio.
//   ferolanta_bench --benchmark_filter=lista/.*/1000000

namespace {

constexpr int Ecran = 40; // rows a list shows at once

void primulEcran(ModelCereri& m) {
    for (int i = 0; i < std::min(Ecran, m.rowCount()); ++i)
        benchmark::DoNotOptimize(m.Rand(i));
}

// Start-up: open, settings, upgrade check, the count and the first screen.
void Pornire(benchmark::State& st, int cereri) {
    const LocatieBD loc = BazaDemoSQLite(cereri, false);
    QTemporaryDir dir;
    const QString ini = dir.filePath(QStringLiteral("setari207.ini"));
    MesajeTacute m;
    for (auto _ : st) {
        auto db = BazaDate::Deschide(loc);
        const Setari s = IncarcaSetari(ini);
        ActualizareBD(*db, loc.caleBD, m);
        FiltruCautare f;
        f.LoadTipCerere = s.LoadTipCerere;
        ModelCereri model(*db);
        model.Seteaza(f);
        primulEcran(model);
    }
}

// A search as the main window runs it: the count and the first screen.
void Cauta(benchmark::State& st, int cereri, FiltruCautare f) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    ModelCereri model(*db);
    for (auto _ : st) {
        model.Seteaza(f);
        primulEcran(model);
    }
    st.counters["randuri"] = double(model.rowCount());
}

// A jump of the scroll bar: a screen at each tenth of the list, in turn.
void Derulare(benchmark::State& st, int cereri, ListaCereri::Coloana ordine) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    FiltruCautare f;
    f.Ordine = ordine;
    const qint64 total = ListaCereri::Numara(*db, f);
    int zecime = 0;
    for (auto _ : st) {
        const qint64 deLa = std::min(total - Ecran, total * (zecime++ % 11) / 10);
        benchmark::DoNotOptimize(ListaCereri::Pagina(*db, f, deLa, Ecran, total));
    }
}

// A column click: the same list in the column's order, to its first screen.
void Ordonare(benchmark::State& st, int cereri, ListaCereri::Coloana ordine) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    ModelCereri model(*db);
    model.Seteaza({});
    for (auto _ : st) {
        model.sort(int(ordine));
        primulEcran(model);
    }
}

// A row change: the three lists under the request list, for requests across the table.
void SchimbareRand(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    qint64 id = 1;
    for (auto _ : st) {
        id = (id * 7919) % cereri + 1;
        benchmark::DoNotOptimize(ListaCereri::Citeste(*db, id));
        benchmark::DoNotOptimize(Anchete::ListaAnchete(*db, id));
        benchmark::DoNotOptimize(Dispozitii::ListaDispozitii(*db, id));
        benchmark::DoNotOptimize(Adeverinte::ListaAdeverinteCerere(*db, id));
    }
}

// The old fill: every request, then its titular, its family and its status text, one query each.
void UmplereRandCuRand(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    for (auto _ : st) {
        Interogare c(*db, QStringLiteral("SELECT CerereID, FamilieID, MembruID1, Stare FROM Cereri"));
        Interogare m(*db, QStringLiteral("SELECT Nume, Prenume, CNP FROM Membrii WHERE MembruID = ?"));
        Interogare fam(*db, QStringLiteral("SELECT Localitate, Strada, Nr, Sc, Ap FROM Familii WHERE FamilieID = ?"));
        Interogare g(*db, QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = ? AND DataID = ?"));
        c.Executa();
        qint64 n = 0;
        while (c.Urmator()) {
            benchmark::DoNotOptimize(m.Leaga(c.Intreg(2)).Exista());
            benchmark::DoNotOptimize(fam.Leaga(c.Intreg(1)).Exista());
            benchmark::DoNotOptimize(g.Leaga(TipDateGen::Statut).Leaga(c.Intreg(3)).Exista());
            ++n;
        }
        st.counters["randuri"] = double(n);
    }
}

void Sterge(benchmark::State& st) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(100000, true));
    qint64 id = 1;
    for (auto _ : st)
        ListaCereri::Sterge(*db, id++);
}

FiltruCautare filtru(const char* cnp, const char* nume, const char* prenume, const char* nr, QList<int> stari) {
    FiltruCautare f;
    f.CNP = QString::fromUtf8(cnp);
    f.Nume = QString::fromUtf8(nume);
    f.Prenume = QString::fromUtf8(prenume);
    f.NrCerere = QString::fromUtf8(nr);
    f.Stari = stari;
    f.Ordine = ListaCereri::NrCerere;
    return f;
}

const bool inregistrate = [] {
    const auto ms = [](benchmark::internal::Benchmark* b) { b->Unit(benchmark::kMillisecond)->UseRealTime(); };
    for (int cereri : {100000, 1000000}) {
        const auto nume = [&](const char* ce) {
            return QStringLiteral("lista/%1/%2").arg(ce).arg(cereri).toStdString();
        };
        ms(benchmark::RegisterBenchmark(nume("pornire").c_str(), Pornire, cereri));
        const std::pair<const char*, FiltruCautare> cautari[] = {
            {"cauta_cnp", filtru("2850", "", "", "", {})},
            {"cauta_nume", filtru("", "Pop", "", "", {})},
            {"cauta_prenume_diacritice", filtru("", "", "ȘTEF", "", {})},
            {"cauta_prenume", filtru("", "", "ion", "", {})},
            {"cauta_nr_cerere", filtru("", "", "", "4711", {})},
            {"cauta_stare", filtru("", "", "", "", {3})},
            {"cauta_stari", filtru("", "", "", "", {2, 7})},
        };
        for (const auto& [ce, f] : cautari)
            ms(benchmark::RegisterBenchmark(nume(ce).c_str(), Cauta, cereri, f));
        for (int c = 0; c <= int(ListaCereri::NrCopii); ++c) {
            const auto col = QStringLiteral("_%1").arg(c).toStdString();
            ms(benchmark::RegisterBenchmark(nume(("derulare" + col).c_str()).c_str(), Derulare, cereri,
                                            ListaCereri::Coloana(c)));
            ms(benchmark::RegisterBenchmark(nume(("ordonare" + col).c_str()).c_str(), Ordonare, cereri,
                                            ListaCereri::Coloana(c)));
        }
        ms(benchmark::RegisterBenchmark(nume("schimbare_rand").c_str(), SchimbareRand, cereri));
        ms(benchmark::RegisterBenchmark(nume("umplere_rand_cu_rand").c_str(), UmplereRandCuRand, cereri)
               ->Iterations(1));
    }
    ms(benchmark::RegisterBenchmark("lista/sterge/100000", Sterge)->Iterations(200));
    return true;
}();

} // namespace
