#pragma once

#include <QString>

class QWidget;

// A folder chosen by the clerk, starting in radacina; empty when he cancels.
QString RasfoireFolder(const QString& titlu, const QString& radacina, QWidget* parinte);
