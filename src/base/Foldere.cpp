#include "base/Foldere.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QStandardPaths>

namespace {

bool copiazaArbore(const QString& sursa, const QString& tinta) {
    QDir().mkpath(tinta);
    QDirIterator it(sursa, QDir::Files | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString f = it.next();
        const QString dest = QDir(tinta).filePath(QDir(sursa).relativeFilePath(f));
        if (QFile::exists(dest)) continue;
        QDir().mkpath(QFileInfo(dest).absolutePath());
        if (!QFile::copy(f, dest)) return false;
        // The copies are what the town hall edits.
        QFile::setPermissions(dest, QFile::permissions(dest) | QFileDevice::WriteOwner);
    }
    return true;
}

} // namespace

QString Foldere::FolderLivrat() {
    const QString langaProgram =
        QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(QStringLiteral("../share/ferolanta"));
    if (QDir(langaProgram).exists()) return QDir::cleanPath(langaProgram);
#ifdef FEROLANTA_SURSA
    return QStringLiteral(FEROLANTA_SURSA);
#else
    return QDir::cleanPath(langaProgram);
#endif
}

QString Foldere::ApplicationPath() {
    const QString program = QCoreApplication::applicationDirPath();
    if (QFile::exists(QDir(program).filePath(FisierSetari))) return program;
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
}

bool Foldere::PregatesteFolderDate(const QString& folderDate, const QString& folderLivrat) {
    if (!QDir().mkpath(folderDate)) return false;
    for (const QString& sub : {QStringLiteral("Acte"), QStringLiteral("Rapoarte"), QStringLiteral("web")}) {
        const QString sursa = QDir(folderLivrat).filePath(sub);
        if (QDir(sursa).exists() && !copiazaArbore(sursa, QDir(folderDate).filePath(sub))) return false;
    }
    return true;
}
