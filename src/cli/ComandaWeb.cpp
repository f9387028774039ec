#include "cli/ArgumenteCli.h"

#include "base/Foldere.h"
#include "documents/web/PunteWeb.h"
#include "store/Sql.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <limits>

namespace Cli {

// The data of the web page for one request (0: the blank forms), written beside a copy of the page
// in --out (the current folder by default), and the address that opens it on stdout. The query file
// and the page are the town hall's copies in the database folder when it has them, else the
// delivered ones; the settings file is the database folder's.
int ComandaWeb(const QCommandLineParser& p, const QString& document, const QString& idText, QTextStream& out,
               QTextStream& err) {
    if (document != PunteWeb::DocCerere && document != PunteWeb::DocCerere1a && document != PunteWeb::DocAncheta)
        throw EroareArgumente{QStringLiteral("documentul poate fi cerere, cerere_1a sau ancheta, nu %1").arg(document)};
    const qint64 id =
        NumarIntre(idText, 0, std::numeric_limits<qint64>::max(), QStringLiteral("ID-ul cererii (0: formular gol)"));
    const LocatieBD loc = Locatie(p);
    const Setari setari = SetariBazei(loc).value_or(Setari());
    auto deLuat = [&](const QString& relativ) {
        const QString local = QDir(loc.caleBD).filePath(relativ);
        return QFileInfo(local).isFile() ? local : QDir(Foldere::FolderLivrat()).filePath(relativ);
    };
    const QString sursaPagina = deLuat(PunteWeb::FolderPagina + QLatin1Char('/') + PunteWeb::Pagina);
    const QString iesire = QDir::cleanPath(QDir::current().absoluteFilePath(
        p.isSet(QStringLiteral("out")) ? p.value(QStringLiteral("out")) : QStringLiteral(".")));
    PunteWeb::MediuWeb mediu;
    mediu.fisierInterogari = deLuat(PunteWeb::FisierInterogari);
    mediu.pagina = QDir(iesire).filePath(PunteWeb::Pagina);
    mediu.folderProgram = loc.caleBD;
    mediu.serverCerere = setari.ServerCerere;
    for (const QString& f : {mediu.fisierInterogari, sursaPagina})
        if (!QFileInfo(f).isFile()) {
            err << QStringLiteral("Fisierul %1 nu exista.").arg(QDir::toNativeSeparators(f)) << Qt::endl;
            return 1;
        }

    MesajeFlux m(err, err);
    auto db = BazaDate::Deschide(loc);
    if (id > 0) {
        if (!Sql::RandExista(*db, QStringLiteral("Cereri"), QStringLiteral("CerereID"), id)) {
            err << QStringLiteral("Cererea cu ID-ul %1 nu exista in baza de date.").arg(id) << Qt::endl;
            return 1;
        }
    }

    // A failed command leaves --out as it found it: what it created goes again.
    const bool folderNou = !QFileInfo(iesire).exists();
    const bool paginaNoua = !QFileInfo::exists(mediu.pagina);
    bool reusit = false;
    const auto curata = qScopeGuard([&] {
        if (reusit) return;
        if (paginaNoua) QFile::remove(mediu.pagina);
        if (folderNou) QDir().rmpath(iesire);
    });
    if (!QDir().mkpath(iesire)) {
        err << QStringLiteral("Folderul %1 nu poate fi creat.").arg(QDir::toNativeSeparators(iesire)) << Qt::endl;
        return 1;
    }
    if (QFileInfo(sursaPagina).canonicalFilePath() != QFileInfo(mediu.pagina).canonicalFilePath()) {
        QFile::remove(mediu.pagina);
        if (!QFile::copy(sursaPagina, mediu.pagina)) {
            err << QStringLiteral("Pagina nu a putut fi copiata in %1.").arg(QDir::toNativeSeparators(iesire))
                << Qt::endl;
            return 1;
        }
        // The delivered page is read-only; the copy is overwritten at the next run.
        QFile::setPermissions(mediu.pagina, QFile::permissions(mediu.pagina) | QFileDevice::WriteOwner);
    }
    const auto pagina = PunteWeb::StartCerereWeb(*db, mediu, id, document, false, m);
    if (!pagina) return 1;
    reusit = true;
    out << pagina->adresa.toString() << Qt::endl;
    return 0;
}

} // namespace Cli
