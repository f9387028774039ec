#pragma once

#include <QByteArray>
#include <QString>

namespace Raport {

// Writes a file under a temporary name and puts it in place only once it is whole, so that a failure
// leaves no partial file and an older one as it was. A file that another program holds open (and
// the system keeps locked) is refused with "Inchideti mai intai" and its name.
void ScrieIntreg(const QString& fisier, const QByteArray& continut);

} // namespace Raport
