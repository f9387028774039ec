#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// The calendar of payment months (StatePlata): one row for each month that exists for the statements
// and for choosing the working month.
namespace Calendar {

struct LunaPlata {
    qint64 StatPlataID = 0;
    int An = 0;
    int Luna = 0;
};

// Every row in the order of its key, or the rows of one year by month.
std::vector<LunaPlata> Luni(BazaDate& db, std::optional<int> an);
// The year the list shows when not all years are: the one typed, else the working year.
int AnAfisat(const QString& anText, int anSetat);
std::optional<LunaPlata> CitesteLuna(BazaDate& db, qint64 statPlataID);

// What is wrong with the year's months: a message for the missing ones and one for the doubled ones;
// empty when each month is there once. Months outside 1-12 are not looked at.
QStringList VerificaAn(BazaDate& db, int an);
// The same for every year that has a row, each year once, in ascending order.
QStringList VerificaToti(BazaDate& db);

// cmdGenerare: the year typed in `anText` (read as numbers typed by people are) gets its twelve
// months, in one transaction, when it is above 2009 and has none of them; otherwise the clerk is told
// why and nothing is written. The year written, or nothing.
std::optional<int> GenereazaAn(BazaDate& db, Mesaje& m, const QString& anText);

// What frmAddLuna writes: the year as typed and the month chosen (0 for none).
struct DateLuna {
    QString anText;
    int luna = 0;
};

// Which control of frmAddLuna a refusal concerns.
enum class CampLuna { Niciunul, An, Luna };

// OK of frmAddLuna: the year above 2010, a month, then no other row for the same year and month. On
// a change, `editat` is the row's key. The control the refusal concerns, or Niciunul once written
// (`scris` then holds the row); a row to change that is gone gives Niciunul with nothing written and
// its message, and `randDisparut` set.
struct RezultatLuna {
    CampLuna refuz = CampLuna::Niciunul;
    bool randDisparut = false;
    std::optional<LunaPlata> scris;
};
RezultatLuna SalveazaLuna(BazaDate& db, Mesaje& m, const DateLuna& d, std::optional<qint64> editat);

// Deletes the row; false when it was already gone.
bool StergeLuna(BazaDate& db, qint64 statPlataID);

// The message for a row that has vanished from under the list.
inline const QString RandDisparut = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Refresh lista!");

} // namespace Calendar
