#pragma once

#include "cases/Anchete.h"

#include <QDialog>
#include <array>

class BazaDate;
class Mesaje;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class UiDataOptionala;

// "Adaugare Ancheta" / "Modificare Ancheta": one social inquiry of a request. adaug is 1 to add
// and 2 to change the inquiry anchetaID; nrCopiiCerere is the request's NrCopii, against which the
// inquiry's child count is checked. ESTE_OK tells the caller that the inquiry was saved.
class frmAddAnchete : public QDialog {
    Q_OBJECT
public:
    frmAddAnchete(BazaDate& db, Mesaje& m, int adaug, qint64 cerereID, qint64 anchetaID, int nrCopiiCerere,
                  QWidget* parinte = nullptr);

    void dtpData_Change();
    void cmdOK_Click();
    // The inquiry's key: the new one after an add.
    qint64 AnchetaID() const { return anchetaID_; }

    bool ESTE_OK = false;

    UiDataOptionala* dtpData;
    std::array<QLineEdit*, 12> txtCerere{};
    std::array<QComboBox*, 4> cboCerere{};
    QLabel* lblDataExp;
    QLabel* lblMotiv;
    QLabel* lblNrMembrii;
    QLabel* lblNrCopii;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

private:
    void asazaControale();
    void incarcaListe();
    void arata(const Ancheta& a);
    void arataExpirare(const QDate& dataExp, const QString& motiv, const QString& nrMembrii, const QString& nrCopii);
    Ancheta citesteControalele() const;

    BazaDate& db_;
    Mesaje& m_;
    ModAncheta mod_;
    qint64 cerereID_;
    qint64 anchetaID_;
    int nrCopiiCerere_;
};
