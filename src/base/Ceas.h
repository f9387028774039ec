#pragma once

#include <QDate>

// "Today" for the whole program: documents, expiry months and default dates read it here,
// so that tests can pin the date.
namespace Ceas {
QDate Azi();
void SeteazaAzi(const QDate& zi); // an invalid date goes back to the system clock
} // namespace Ceas
