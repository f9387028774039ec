#include <QApplication>
#include <benchmark/benchmark.h>

// As BENCHMARK_MAIN, with the application object that widgets need; offscreen unless told
// otherwise, so that the dialogs are built and laid out without a screen.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
