#pragma once

#include "maintenance/SursaVeche.h"

// An Access file of the old program (Jet 3 or Jet 4), read with libmdb: every table but the engine's
// own, each value as text in the form mdb-export gives it. Texts of Jet 3 files are read in the
// Windows-1250 code page unless MDB_JET3_CHARSET says otherwise.
std::unique_ptr<SursaVeche> DeschideMdb(const QString& fisier);
