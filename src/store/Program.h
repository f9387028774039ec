#pragma once

#include <QString>

class BazaDate;
struct Setari;

// What every window of a run shares: the open database, the settings read at start and where
// the settings file is.
struct Program {
    BazaDate& bd;
    Setari& setari;
    QString applicationPath; // the program's data folder, holding setari207.ini
    QString FisierSetari() const;
};
