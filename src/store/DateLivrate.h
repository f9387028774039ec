#pragma once

#include "store/ActualizareBD.h"
#include "store/BazaDate.h"
#include "store/Jurnal.h"

#include <QDate>
#include <QString>

class Mesaje;

// A new database: every table, the starting rows from the files of the program's data folder,
// the catalogues from their files (copied beside the database), and the upgrade's seeds. All of
// it is one transaction: a failure leaves no database behind.
namespace DateLivrate {

// The delivered tables in their base fields; `formaVeche` gives the shape of the oldest files.
void CreeazaTabeleLivrate(BazaDate& db, bool formaVeche = false);

// Every table in its present shape, with its keys, references and indexes.
void CreeazaSchemaCompleta(BazaDate& db);

// Rows of DateGen, Judete, TipuriActe and TipIncalzire from the .tsv files of folderDate, and the
// working months of StatePlata from January 2013 to December of the year after `azi`.
void IncarcaDateLivrate(BazaDate& db, const QString& folderDate, const QDate& azi);

// Copies venituri.txt, bife.txt and acte.txt into caleBD, keeping files already there.
void CopiazaCataloage(const QString& folderDate, const QString& caleBD);

// Creates the database at `loc` (refused when one is there already). Throws Eroare on failure.
std::unique_ptr<BazaDate> Initializeaza(const LocatieBD& loc, const QString& folderDate, Mesaje& m,
                                        const Jurnal& jurnal = {});

} // namespace DateLivrate
