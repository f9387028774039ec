#pragma once

#include <QStringList>
#include <QTextStream>

// The command-line tool: `ferolanta-cli COMANDA [optiuni]`. Returns the exit code: 0 done,
// 1 a failure (told on `err`), 2 bad arguments (a one-line usage error).
int RuleazaCli(const QStringList& argumente, QTextStream& out, QTextStream& err);
