#pragma once

#include "base/Setari.h"
#include "store/BazaDate.h"

#include <QString>
#include <memory>

class Mesaje;

// The start of the program up to the open, upgraded database.
struct RezultatPornire {
    enum class Stare { Deschisa, Terminat, AlegeLocatie };
    Stare stare = Stare::Terminat;
    std::unique_ptr<BazaDate> bd;
    QString applicationPath;
    QString caleBD;
    Setari setari;
};

// `applicationPath` is the data folder; `folderLivrat` the delivered files. On a machine with no
// settings file the data folder is prepared and a new database created in it. Then: the database
// location and its checks, the opening, the settings, the upgrade.
RezultatPornire PornesteBaza(const QString& applicationPath, const QString& folderLivrat, Mesaje& m);

// Before every write: true when the database is still there; otherwise the clerk is told why.
