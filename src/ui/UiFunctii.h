#pragma once

#include <QString>

class QWidget;

// A folder chosen by the clerk, starting in radacina; empty when he cancels.
QString RasfoireFolder(const QString& titlu, const QString& radacina, QWidget* parinte);

// Whether a font family of that name is installed (case ignored). Needs a GUI application.
bool FontInstalat(const QString& nume);
