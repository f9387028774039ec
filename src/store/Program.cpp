#include "store/Program.h"

#include "base/Foldere.h"

#include <QDir>

QString Program::FisierSetari() const {
    return QDir(applicationPath).filePath(Foldere::FisierSetari);
}
