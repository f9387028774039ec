#pragma once

#include <QString>

// Where the program's files are at run time.
namespace Foldere {

inline const QString FisierSetari = QStringLiteral("setari207.ini");

// The files delivered with the program (Acte, Rapoarte, data, web), read-only: share/ferolanta
// beside the executable's folder, in the build tree as in an installed prefix.
QString FolderLivrat();

// The program's data folder (ApplicationPath): the executable's folder when it holds the
// settings file (a portable install), else the per-user application data folder.
QString ApplicationPath();

// First start: creates the data folder and copies into it the delivered folders that it lacks.
// Returns false when the data folder can't be created.
bool PregatesteFolderDate(const QString& folderDate, const QString& folderLivrat);

} // namespace Foldere
