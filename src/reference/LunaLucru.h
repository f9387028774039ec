#pragma once

#include <QString>
#include <optional>

class BazaDate;

// The working month: valid only when the calendar of StatePlata holds it.
namespace LunaLucru {

// The refusal text for the month dialog, or nothing when month and year may be set.
std::optional<QString> Verifica(BazaDate& db, const QString& luna, const QString& an);

// " LUNA ACTIVA: " + month name + " " + year + " ", for the status bar.
QString TextLunaActiva(int luna, int an);

} // namespace LunaLucru
