#pragma once

#include "maintenance/Updater.h"

#include <QDialog>

class QPlainTextEdit;

// "Istoric actualizari": the update history as the server keeps it, fetched while the window is up.
class frmUpdateLog : public QDialog {
    Q_OBJECT
public:
    explicit frmUpdateLog(const Updater::Mediu& mediu, QWidget* parinte = nullptr);

    QPlainTextEdit* Txt;
};
