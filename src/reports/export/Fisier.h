#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

namespace Raport {

// Writes a file under a temporary name and puts it in place only once it is whole, so that a failure
// leaves no partial file and an older one as it was. A file that another program holds open (and
// the system keeps locked) is refused with "Inchideti mai intai" and its name.
void ScrieIntreg(const QString& fisier, const QByteArray& continut);

// The same for a library that writes to a file name of its own: `scrie` writes the whole file at a
// temporary path, which is then put in place.
void ScrieIntregPrin(const QString& fisier, const std::function<void(const QString& temporar)>& scrie);

} // namespace Raport
