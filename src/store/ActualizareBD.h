#pragma once

#include "store/Jurnal.h"

#include <QString>
#include <QStringList>

class BazaDate;
class Mesaje;

struct RezultatActualizare {
    int schimbari = 0; // changes made; 0 on an up-to-date database
    QStringList erori; // what could not be done (each also shown through Mesaje)
    bool Reusit() const { return erori.isEmpty(); }
};

// Brings a database of any earlier shape to the present one, reloads the catalogues from the
// files in caleBD when their row counts differ, and adds the lookup rows and scales the program
// relies on. Each step runs only when needed, so a second run changes nothing. Each step is
// one transaction: a failed step leaves the database as the step found it.
RezultatActualizare ActualizareBD(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal = {});

// Sets VenitTotal from the old income fields of every request; part of the upgrade.
int RecalculVenitTotal(BazaDate& db);
