#include "cli/ComenziCli.h"

#include <QCoreApplication>

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ferolanta"));
    QTextStream out(stdout), err(stderr);
    return RuleazaCli(QCoreApplication::arguments(), out, err);
}
