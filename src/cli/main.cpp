#include "cli/ComenziCli.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <memory>

int main(int argc, char** argv) {
    // Reports draw their pages (pdf) with fonts, which need the GUI side of Qt, but never a screen.
    std::unique_ptr<QCoreApplication> app;
    if (argc > 1 && qstrcmp(argv[1], "raport") == 0) {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    QCoreApplication::setApplicationName(QStringLiteral("Ferolanta"));
    QTextStream out(stdout), err(stderr);
    return RuleazaCli(QCoreApplication::arguments(), out, err);
}
