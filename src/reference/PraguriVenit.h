#pragma once

#include <QString>
#include <optional>

class BazaDate;
class Mesaje;

// The income thresholds text of DateGen ("210.2|557.03"); empty after a critical message when
// it is missing, blank or not at least two values separated by "|".
QString PraguriVenit(BazaDate& db, Mesaje& m);

// The same checks over a Continut already read: nullopt stands for a missing row, and a null
// Continut is an empty text.
QString VerificaPraguriVenit(const std::optional<QString>& continut, Mesaje& m);
