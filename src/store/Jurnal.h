#pragma once

#include <QString>
#include <functional>

// Receives one line for each change that a long operation makes (the command-line tool prints
// them; the program ignores them).
using Jurnal = std::function<void(const QString&)>;
