#include "base/Bani.h"
#include "reports/Desen.h"
#include "reports/Grila.h"
#include "reports/UiGrila.h"
#include "reports/export/Cel.h"
#include "reports/export/Csv.h"
#include "reports/export/Ods.h"
#include "reports/export/Xlsx.h"

#include <QApplication>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// The report grid of a large list, 10,000 rows of 8 columns (texts, amounts, dates, whole numbers,
// a merged title, a line under each row), written by each exporter, shown in the grid, previewed.
// Budgets: xlsx and ods under 1 s, pdf under 3 s, csv under 100 ms, the grid shown under 200 ms,
// the preview open under 1 s.
//   ferolanta_bench_ui --benchmark_filter=Raport

namespace {

using namespace Raport;

const Grila& GrilaMare() {
    static const Grila g = [] {
        constexpr int Randuri = 10000;
        Grila g(Randuri + 3, 9);
        g.Scrie(1, 1, QStringLiteral("LISTA persoanelor"));
        g.Uneste({1, 1, 1, 8});
        const int latimi[] = {30, 60, 130, 200, 110, 60, 250, 80};
        for (int c = 1; c <= 8; ++c)
            g.SeteazaLatimeColoana(c, latimi[c - 1]);
        for (int r = 3; r < Randuri + 3; ++r) {
            const int i = r - 2;
            g.Scrie(r, 1, QString::number(i), qint64(i));
            g.Scrie(r, 2, QString::number(1000 + i), qint64(1000 + i));
            const QDate d = QDate(2024, 1, 1).addDays(i % 700);
            g.Scrie(r, 3, QStringLiteral("%1 / %2  ").arg(i).arg(d.toString(QStringLiteral("dd.MM.yyyy"))));
            g.Scrie(r, 4, QStringLiteral("POPESCU-IONESCU MARIA %1").arg(i));
            g.Scrie(r, 5, QStringLiteral("28503154%1").arg(i % 100000, 5, 10, QLatin1Char('0')));
            const Bani suma = Bani::DinUnitati(qint64(82 + i % 300) * 10000 + 5000);
            g.Scrie(r, 6, suma.Text(), QVariant::fromValue(suma));
            g.Scrie(r, 7, QStringLiteral("Branesti, str. Garii, nr. %1, sc. A, ap. %2").arg(i % 90).arg(i % 40));
            g.Scrie(r, 8, d.toString(QStringLiteral("dd.MM.yyyy")), d);
        }
        g.Bordura({3, 1, Randuri + 2, 8}, Margine::InteriorOrizontal, Linie::Subtire);
        g.Bordura({Randuri + 2, 1, Randuri + 2, 8}, Margine::Jos, Linie::Groasa);
        return g;
    }();
    return g;
}

void Exporta(benchmark::State& st, void (*scrie)(const Grila&, const QString&), const char* ext) {
    const Grila& g = GrilaMare();
    QTemporaryDir dir;
    const QString fisier = dir.filePath(QStringLiteral("Lista.") + QLatin1String(ext));
    for (auto _ : st)
        scrie(g, fisier);
    st.counters["octeti"] = double(QFileInfo(fisier).size());
}

void RaportXlsx(benchmark::State& st) {
    Exporta(st, &ScrieXlsx, "xlsx");
}
void RaportOds(benchmark::State& st) {
    Exporta(st, &ScrieOds, "ods");
}
void RaportPdf(benchmark::State& st) {
    Exporta(st, &ScriePdf, "pdf");
}
void RaportCsv(benchmark::State& st) {
    Exporta(st, &ScrieCsv, "csv");
}
void RaportCel(benchmark::State& st) {
    Exporta(st, &SalveazaCel, "cel");
}

// The grid shown after a builder ran: the model handed to the view and its first screen painted.
void RaportGrilaArata(benchmark::State& st) {
    const Grila& g = GrilaMare();
    UiGrila v;
    v.resize(1280, 700);
    v.show();
    QApplication::processEvents();
    for (auto _ : st) {
        v.Arata(g);
        benchmark::DoNotOptimize(v.grab());
    }
}

// The preview dialog opened on the grid, at 100%, its pages laid out and the first ones painted.
void RaportPrevizualizare(benchmark::State& st) {
    const Grila& g = GrilaMare();
    int pagini = 0;
    for (auto _ : st) {
        QPrinter pr(QPrinter::HighResolution);
        QPrintPreviewDialog d(&pr);
        QObject::connect(&d, &QPrintPreviewDialog::paintRequested, &d, [&](QPrinter* p) { pagini = Deseneaza(*p, g); });
        d.resize(1280, 800);
        d.show();
        QApplication::processEvents();
        benchmark::DoNotOptimize(d.grab());
        d.close();
    }
    st.counters["pagini"] = pagini;
}

BENCHMARK(RaportXlsx)->Unit(benchmark::kMillisecond);
BENCHMARK(RaportOds)->Unit(benchmark::kMillisecond);
BENCHMARK(RaportPdf)->Unit(benchmark::kMillisecond);
BENCHMARK(RaportCsv)->Unit(benchmark::kMillisecond);
BENCHMARK(RaportCel)->Unit(benchmark::kMillisecond);
BENCHMARK(RaportGrilaArata)->Unit(benchmark::kMillisecond);
BENCHMARK(RaportPrevizualizare)->Unit(benchmark::kMillisecond);

} // namespace
