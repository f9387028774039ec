#include "cli/ArgumenteCli.h"

#include "base/Eroare.h"
#include "maintenance/Copii.h"
#include "store/BazaDate.h"

#include <QDir>

namespace Cli {

int ComandaCopie(const QCommandLineParser& p, QTextStream& out) {
    const LocatieBD loc = Locatie(p);
    try {
        auto db = BazaDate::Deschide(loc);
        out << QDir::toNativeSeparators(Copii::FaCopie(loc)) << Qt::endl;
    } catch (const Eroare& e) {
        out << e.text() << Qt::endl;
        return 1;
    }
    return 0;
}

int ComandaRestaurare(const QCommandLineParser& p, const QString& copie, QTextStream& out) {
    const LocatieBD loc = Locatie(p);
    try {
        const QString deoparte = Copii::Restaureaza(copie, loc);
        out << "Copia a fost pusa inapoi. Baza de date de dinainte este in " << QDir::toNativeSeparators(deoparte)
            << Qt::endl;
    } catch (const Eroare& e) {
        out << e.text() << Qt::endl;
        return 1;
    }
    return 0;
}

} // namespace Cli
