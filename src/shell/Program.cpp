#include "shell/Program.h"

#include "shell/Foldere.h"

#include <QDir>

QString Program::FisierSetari() const {
    return QDir(applicationPath).filePath(Foldere::FisierSetari);
}
