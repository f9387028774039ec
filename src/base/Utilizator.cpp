#include "base/Utilizator.h"

#include <QtGlobal>

QString NumeUtilizator() {
    // USERNAME on Windows, USER on Linux; LOGNAME where a service or cron leaves USER unset.
    for (const char* variabila : {"USERNAME", "USER", "LOGNAME"}) {
        const QString nume = qEnvironmentVariable(variabila).trimmed();
        if (!nume.isEmpty()) return nume;
    }
    return QStringLiteral("necunoscut");
}
