#include "cli/ArgumenteCli.h"

#include "cases/ListaCereri.h"

#include <limits>

namespace Cli {

// The main window's search: its count line, then the first rows in its order, tab-separated.
int ComandaCauta(const QCommandLineParser& p, QTextStream& out, QTextStream&) {
    FiltruCautare f;
    f.CNP = p.value(QStringLiteral("cnp")).trimmed();
    f.Nume = p.value(QStringLiteral("nume")).trimmed();
    f.Prenume = p.value(QStringLiteral("prenume")).trimmed();
    f.NrCerere = p.value(QStringLiteral("nr-cerere")).trimmed();
    if (!f.NrCerere.isEmpty())
        f.NrCerere = QString::number(
            NumarIntre(f.NrCerere, 0, std::numeric_limits<qint64>::max(), QStringLiteral("--nr-cerere")));
    const QString stari = p.value(QStringLiteral("stari"));
    if (p.isSet(QStringLiteral("stari")))
        for (const QString& s : stari.split(QLatin1Char(',')))
            f.Stari << int(NumarIntre(s.trimmed(), 0, 255, QStringLiteral("--stari")));
    f.Ordine = ListaCereri::NrCerere;
    const qint64 primele = OptiuneIntre(p, QStringLiteral("primele"), 0, 1000000, 50);

    const LocatieBD loc = Locatie(p);
    auto db = BazaDate::Deschide(loc);
    if (const auto s = SetariBazei(loc)) f.LoadTipCerere = s->LoadTipCerere;
    const qint64 total = ListaCereri::Numara(*db, f);
    out << ListaCereri::TextRezultat(total) << Qt::endl;
    for (const RandCerere& r : ListaCereri::Pagina(*db, f, 0, primele, total))
        out << QStringList{r.NrCerere.section(QLatin1Char(' '), 0, 0), r.Solicitant, r.CNP, r.StareText, r.Adresa}.join(
                   QLatin1Char('\t'))
            << Qt::endl;
    return 0;
}

} // namespace Cli
