#pragma once

#include <QDate>
#include <QDateTime>

// "Today" for the whole program: documents, expiry months and default dates read it here,
// so that tests can pin the date.
namespace Ceas {
QDate Azi();
void SeteazaAzi(const QDate& zi); // an invalid date goes back to the system clock
// This moment, local time, to the second; on a pinned day, that day at the present hour.
QDateTime Acum();
} // namespace Ceas
