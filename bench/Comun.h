#pragma once

#include "shell/Mesaje.h"
#include "store/BazaDate.h"

#include <QString>

// What the benchmarks share: a message sink that says nothing, and generated databases.
class MesajeTacute : public Mesaje {
public:
    void Informatie(const QString&, const QString&) override {}
    void Avertisment(const QString&, const QString&) override {}
    void Critic(const QString&, const QString&) override {}
    bool Intrebare(const QString&, const QString&, bool implicitDa) override { return implicitDa; }
    QString Intrare(const QString&, const QString&, const QString& implicit) override { return implicit; }
};

// An SQLite demo database of `cereri` requests (seed 1), made once and kept in the temporary
// folder for later runs; a copy is opened so that benchmarks that write leave the original intact.
LocatieBD BazaDemoSQLite(int cereri, bool copie);
