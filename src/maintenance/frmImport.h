#pragma once

#include <QDialog>

class BazaDate;
class Mesaje;
class QLineEdit;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

// The import of an old office's database (an Access file or a folder of CSV dumps) into the open
// database, which must hold no request: progress while it runs, then the report of what was read,
// imported and refused. The dialog stays open on the report, and on a failure with the error shown.
class frmImport : public QDialog {
    Q_OBJECT
public:
    frmImport(BazaDate& bd, Mesaje& m, const QString& folderDate, QWidget* parinte = nullptr);
    void cmdOK_Click();
    // Whether the database now holds the imported rows (the main window then reads them again).
    bool Importat() const { return importat_; }

    QLineEdit* txtSursa;
    QPushButton* cmdFisier;
    QPushButton* cmdFolder;
    QProgressBar* barProgres;
    QPlainTextEdit* txtRaport;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    BazaDate& bd_;
    Mesaje& m_;
    QString folderDate_;
    bool importat_ = false;
};
