#include "shell/UiFunctii.h"

#include <QFileDialog>

QString RasfoireFolder(const QString& titlu, const QString& radacina, QWidget* parinte) {
    return QFileDialog::getExistingDirectory(parinte, titlu, radacina, QFileDialog::ShowDirsOnly);
}
