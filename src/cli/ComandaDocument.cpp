#include "cli/ArgumenteCli.h"

#include "base/Foldere.h"
#include "documents/Documente.h"

#include <QDir>
#include <limits>

namespace Cli {

// One merged document, written as the print commands write it but not opened: the template
// delivered with the program (or --sablon), the settings of the database folder when it has a
// settings file, and the fixed file name in the current folder (or --out).
int ComandaDocument(const QCommandLineParser& p, const QString& fel, const QString& idText, QTextStream& out,
                    QTextStream& err) {
    const bool dispozitie = fel == QLatin1String("dispozitie"), fisa = fel == QLatin1String("fisa");
    if (!dispozitie && !fisa && fel != QLatin1String("declaratie"))
        throw EroareArgumente{QStringLiteral("documentul poate fi dispozitie, fisa sau declaratie, nu %1").arg(fel)};
    const qint64 id = NumarIntre(idText, 1, std::numeric_limits<qint64>::max(),
                                 dispozitie ? QStringLiteral("ID-ul dispozitiei") : QStringLiteral("ID-ul cererii"));
    QDate dataFisa;
    if (p.isSet(QStringLiteral("data"))) {
        if (!fisa) throw EroareArgumente{QStringLiteral("--data este doar pentru fisa")};
        dataFisa = QDate::fromString(p.value(QStringLiteral("data")), QStringLiteral("dd.MM.yyyy"));
        if (!dataFisa.isValid()) throw EroareArgumente{QStringLiteral("--data cere o data ZZ.LL.AAAA")};
    }

    const LocatieBD loc = Locatie(p);
    OptiuniDocumente o = OptiuniDinSetari(SetariBazei(loc).value_or(Setari()), Foldere::FolderLivrat());
    o.DataFisa = dataFisa;
    const QString sablon = p.value(QStringLiteral("sablon"));
    const QString implicit = dispozitie ? Documente::FisierDispozitie
                             : fisa     ? Documente::FisierFisa
                                        : Documente::FisierDeclaratie;
    const QString iesire = QDir::cleanPath(
        QDir::current().absoluteFilePath(p.isSet(QStringLiteral("out")) ? p.value(QStringLiteral("out")) : implicit));

    MesajeFlux m(err, err);
    auto db = BazaDate::Deschide(loc);
    const Documente::Rezultat r = dispozitie ? Documente::GenereazaDispozitie(*db, id, o, iesire, m, sablon)
                                  : fisa     ? Documente::GenereazaFisa(*db, id, o, iesire, m, sablon)
                                             : Documente::GenereazaDeclaratie(*db, id, o, iesire, m, sablon);
    switch (r) {
    case Documente::Rezultat::Scris:
        out << "Documentul a fost scris: " << QDir::toNativeSeparators(iesire) << Qt::endl;
        return 0;
    case Documente::Rezultat::FaraSablon:
        err << QStringLiteral("Dispozitia %1 are un tip (Actiune) pentru care nu exista sablon; nu s-a scris nimic.")
                   .arg(id)
            << Qt::endl;
        return 1;
    case Documente::Rezultat::Esuat:
        break;
    }
    return 1;
}

} // namespace Cli
