#pragma once

#include "reports/export/SablonOds.h"

#include <QString>
#include <vector>

class BazaDate;

// The two forms of one office's reporting to the social benefit agency, filled straight from the
// database into copies of the delivered spreadsheets: A23 lists the families (the titular and the
// other members) of the requests in force or stopped since the reporting year, A25 the titulars of
// the requests in payment.
namespace Raport {

enum class FormularBas { A23 = 0, A25 = 1 };

// "A23BAS", "A25BAS": the template's name, and the written copy's with "_ASF".
QString NumeBas(FormularBas f);

// The texts of the first sheet, the table's rows under the template's head, each cell of a row in the
// table's width with its lines.
std::vector<CelulaOds> CeluleBas(BazaDate& db, FormularBas f);

// The template: in the data folder's Acte, else in the one delivered with the program. Eroare naming it
// and the support telephone when neither has it.
QString SablonBas(FormularBas f, const QString& applicationPath, const QString& folderLivrat);

// The filled copy, written whole or not at all. Eroare "Inchideti mai intai ods-ul deschis anterior"
// when an older copy is held open.
void ScrieBas(BazaDate& db, FormularBas f, const QString& sablon, const QString& fisier);

// The button's work: the template found, the copy written into `folder`; returns its path.
QString ExportaBas(BazaDate& db, FormularBas f, const QString& applicationPath, const QString& folderLivrat,
                   const QString& folder);

} // namespace Raport
