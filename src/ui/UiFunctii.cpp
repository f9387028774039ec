#include "ui/UiFunctii.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGuiApplication>
#include <algorithm>

QString RasfoireFolder(const QString& titlu, const QString& radacina, QWidget* parinte) {
    return QFileDialog::getExistingDirectory(parinte, titlu, radacina, QFileDialog::ShowDirsOnly);
}

bool FontInstalat(const QString& nume) {
    // The font database exists only in a GUI application; the command-line tool has no fonts to show.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return false;
    const QStringList familii = QFontDatabase::families();
    return std::any_of(familii.begin(), familii.end(),
                       [&](const QString& f) { return f.compare(nume, Qt::CaseInsensitive) == 0; });
}
