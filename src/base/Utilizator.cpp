#include "base/Utilizator.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <pwd.h>
#include <unistd.h>
#endif

QString NumeUtilizator() {
    // USERNAME on Windows, USER on Linux; LOGNAME where a service or cron leaves USER unset.
    for (const char* variabila : {"USERNAME", "USER", "LOGNAME"}) {
        const QString nume = qEnvironmentVariable(variabila).trimmed();
        if (!nume.isEmpty()) return nume;
    }
#ifdef Q_OS_UNIX
    // A session started without a login shell: the account the process runs under.
    if (const passwd* p = getpwuid(geteuid()); p && p->pw_name && *p->pw_name)
        return QString::fromLocal8Bit(p->pw_name);
#endif
    return QStringLiteral("necunoscut");
}
