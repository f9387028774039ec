#pragma once

#include "base/Setari.h"
#include "reports/Grila.h"

#include <QString>
#include <QStringList>
#include <optional>

class BazaDate;
class Mesaje;

// The Borderou: every request of a kind of status and of allowance in one table with its amount
// and a grand total, on A4 landscape; its spreadsheet twin; the checks of its OK.
//
// Row plan: the lists' head (Lista) with "BORDEROU" alone on row 4 and, for a report other than all
// the requests, what it lists on row 5; the requests from row 8, a thick line under the last; then a
// row with the grand total under the address and the amount columns, and the lists' foot.
namespace Raport {

// The entries of the window's lists, by index.
QStringList TipuriRaportBorderou();
QStringList TipuriAlocatieBorderou();
// Both orderings take the same entries; the first stands for the order the requests were entered.
QStringList OrdonareBorderou();

struct AlegeriBorderou {
    int tipRaport = -1; // -1: nothing chosen
    int tipAloc = -1;   // the allowance's index is the request's TipCerere; 0 all of them
    int ord1 = 0, ord2 = 0;
    int luna = 1, an = 2013; // only named in the head: the requests are not filtered by month
};

// What refuses OK: the message and the list that takes the focus.
struct RefuzBorderou {
    enum class Control { TipRaport, TipAloc };
    QString mesaj;
    Control control = Control::TipRaport;
    bool operator==(const RefuzBorderou&) const = default;
};
std::optional<RefuzBorderou> VerificaBorderou(const AlegeriBorderou& a);

// " ORDER BY " and the chosen fields, the order of entry (the request's key) when none is chosen;
// the key last, so that equal values come in the same order on both engines.
QString ClauzaOrdonareBorderou(int ord1, int ord2);

// The report as the window shows it (`foaie`: as the spreadsheet receives it, with its own column
// titles and the spreadsheet's page). The street is always written "str.", whatever the office calls
// its streets; a request without an amount counts 0 in the total. Eroare for a choice not in the lists.
Grila Borderou(BazaDate& db, Mesaje& m, const Setari& s, const AlegeriBorderou& a, bool foaie = false);

// The file the export writes in `folder`: xlsx, ods with LibreOffice as the office application.
QString FisierExportBorderou(const Setari& s, const QString& folder);
// The twin written to that file; returns its path.
QString ExportaBorderou(BazaDate& db, Mesaje& m, const Setari& s, const AlegeriBorderou& a, const QString& folder);

// The name of the saved grid, in the export folder.
inline const QString GrilaBorderou = QStringLiteral("BorderouASF.cel");

// Opening the window: the town hall's fiscal code and social worker for the two boxes (none where the
// field is empty in the database); nothing, and the clerk asked for the town hall's data, without them.
struct AntetBorderou {
    std::optional<QString> codFiscal, asSocial;
};
std::optional<AntetBorderou> DeschideBorderou(BazaDate& db, Mesaje& m);

} // namespace Raport
