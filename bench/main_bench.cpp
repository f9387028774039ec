#include <QCoreApplication>
#include <benchmark/benchmark.h>

// As BENCHMARK_MAIN, with the application object that the Qt SQL drivers expect.
int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
