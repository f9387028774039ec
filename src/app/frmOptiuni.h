#pragma once

#include "base/Setari.h"

#include <QDialog>
#include <QFont>

class Mesaje;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabWidget;

// The options dialog: the report font, the export file names, what is printed, and the rest of the
// per-computer choices. OK writes the settings file and the program's settings; Cancel changes nothing.
class frmOptiuni : public QDialog {
    Q_OBJECT
public:
    frmOptiuni(Setari& setari, const QString& fisierIni, Mesaje& m, QWidget* parinte = nullptr);

    // What the font and colour dialogs hand back. A font whose size is out of bounds is refused
    // with its message and the previous one stays.
    void AlegeFont(const QFont& font);
    void AlegeCuloare(const QColor& culoare);

public Q_SLOTS:
    void OK();

private:
    void AsazaControale();
    void ArataValori(const ValoriOptiuni& v);
    ValoriOptiuni CitesteValori() const;
    void ArataFont();
    void ArataCuloare();
    void cmdFont_Click();
    void cmdCuloare_Click();
    void cmdDelColor_Click();

    Setari& setari_;
    QString fisierIni_;
    Mesaje& m_;

    // The font and the colour have no control of their own: the dialog keeps them.
    QString fontName0_;
    int fontSize0_ = 10;
    bool fontB0_ = false;
    bool fontI0_ = false;
    bool fontU0_ = false;
    QString culoareVenit_;

    QTabWidget* tabOptiuni = nullptr;
    QComboBox* cboNrCerereAnexa3 = nullptr;
    QComboBox* cboNrCerere = nullptr;
    QComboBox* cboAppWord = nullptr;
    QComboBox* cboDataCerere = nullptr;
    QCheckBox* chkAfisCereri = nullptr;
    QLineEdit* txtAnexa3 = nullptr;
    QLineEdit* txtAnexa4 = nullptr;
    QLineEdit* txtStatPlata = nullptr;
    QCheckBox* chkAnexa2ExportWord = nullptr;
    QLineEdit* txtStrSat = nullptr;
    QCheckBox* chkSerieStatPlata = nullptr;
    QCheckBox* chkReteaSetat = nullptr;
    QCheckBox* chkMotiv = nullptr;
    QLineEdit* txtHeightRowBorderou = nullptr;
    QLineEdit* txtHeightRowRaport = nullptr;
    QCheckBox* chkCerere13Pag = nullptr;
    QCheckBox* chkAncheta14Pag = nullptr;
    QCheckBox* chkNotifActe = nullptr;
    QCheckBox* chkAngPlata = nullptr;
    QCheckBox* chkCertificare = nullptr;
    QCheckBox* chkNrCerereInAncheta = nullptr;
    QCheckBox* chkNrCerere = nullptr;
    QLineEdit* txtServerCerere = nullptr;
    QLineEdit* txtServerActualizare = nullptr;
    QLineEdit* txtFolderExport = nullptr;
    QPushButton* cmdFolderExport = nullptr;
    QCheckBox* chk_update_off = nullptr;
    QLabel* lblFont = nullptr;
    QPushButton* cmdFont = nullptr;
    QPushButton* cmdCuloare = nullptr;
    QLabel* lblFundal = nullptr;
    QPushButton* cmdDelColor = nullptr;
    QPushButton* cmdOK = nullptr;
    QPushButton* cmdCancel = nullptr;
};
