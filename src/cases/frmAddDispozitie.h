#pragma once

#include "cases/Dispozitii.h"

#include <QDialog>
#include <array>

class BazaDate;
class Mesaje;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;
class QPushButton;

// "Adaugare dispozitii" / "Modificare Dispozitie": one decision of the mayor on a request. adaug is
// 1 to add a disposition to the request cerereID, 2 to change the disposition dispozitieID (its
// request is read from it). ESTE_OK tells the caller that the disposition was saved.
class frmAddDispozitie : public QDialog {
    Q_OBJECT
public:
    frmAddDispozitie(BazaDate& db, Mesaje& m, int adaug, qint64 cerereID, qint64 dispozitieID,
                     QWidget* parinte = nullptr);

    void cboDispoz_Click();
    void cmdOK_Click();
    // False when the request or the disposition was gone at opening (the clerk was told): the
    // dialog closes as soon as it is shown, and need not be.
    bool Deschisa() const { return deschisa_; }
    // The disposition's key: the new one after an add.
    qint64 DispozitieID() const { return dispozitieID_; }

    bool ESTE_OK = false;

    std::array<QLineEdit*, 5> txtDispoz{};
    std::array<QComboBox*, 2> cboDispoz{};
    QDateEdit* dtpData;
    QLabel* lblInfo;
    QLabel* lblNrCerere;
    QLabel* lblDataCerere;
    QWidget* picMiddle;
    QLabel* lblModificarea;
    QLabel* lblInSuma;
    QLabel* lblInSumaLei;
    QLabel* lblMotiv;
    QPushButton* cmdOK;
    QPushButton* cmdCancel;

protected:
    bool eventFilter(QObject* obiect, QEvent* e) override;

private:
    void asazaControale();
    void arata(const DeschidereDispozitie& d);
    void arataBlocurile();
    Dispozitie citesteControalele() const;

    BazaDate& db_;
    Mesaje& m_;
    ModDispozitie mod_;
    qint64 cerereID_;
    qint64 dispozitieID_;
    bool deschisa_ = false;
    BlocuriDispozitie blocuri_;
};
