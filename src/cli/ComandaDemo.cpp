#include "cli/ArgumenteCli.h"

#include "maintenance/Demo.h"

#include <QElapsedTimer>
#include <limits>

namespace Cli {

int ComandaDemo(const QCommandLineParser& p, QTextStream& out, QTextStream&) {
    Demo::Optiuni o;
    o.cereri = int(OptiuneIntre(p, QStringLiteral("cereri"), 0, Demo::MaximCereri, std::nullopt));
    o.samanta = quint64(OptiuneIntre(p, QStringLiteral("seed"), 0, std::numeric_limits<qint64>::max(), 1));
    auto db = BazaDate::Deschide(Locatie(p));
    QElapsedTimer ceas;
    ceas.start();
    Demo::Genereaza(*db, o, [&](int facute, int total) {
        out << facute << " / " << total << " cereri (" << QString::number(ceas.elapsed() / 1000.0, 'f', 1) << " s)"
            << Qt::endl;
    });
    out << o.cereri << " cereri adaugate in " << QString::number(ceas.elapsed() / 1000.0, 'f', 1) << " s" << Qt::endl;
    return 0;
}

} // namespace Cli
