#include "app/frmMain.h"

#include "base/Mesaje.h"
#include "maintenance/CopieInFundal.h"
#include "maintenance/frmRestaurare.h"
#include "store/BazaDate.h"
#include "store/Program.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLabel>
#include <QProgressDialog>

CopieInFundal* frmMain::pornesteCopia(const QString& motiv) {
    auto* c = new CopieInFundal(p_.bd.locatie(), QDateTime::currentDateTime(), this);
    connect(c, &CopieInFundal::progres, this, [this, motiv](int procent) {
        sbrMain[3]->setText(QStringLiteral("Copia bazei de date %1: %2%").arg(motiv).arg(procent));
    });
    connect(c, &CopieInFundal::gata, this, [this, c](const QString&, const QString& eroare) {
        anuntaCopia(eroare);
        c->deleteLater();
    });
    c->Porneste();
    return c;
}

void frmMain::anuntaCopia(const QString& eroare) {
    if (eroare.isEmpty()) {
        if (!eroareCopieAratata_) sbrMain[3]->setText(ContactSuport);
        return;
    }
    // Once: the clerk goes on working, and the next failure would only say the same.
    if (eroareCopieAratata_) return;
    eroareCopieAratata_ = true;
    sbrMain[3]->setText(QStringLiteral("Copia de siguranta nu a putut fi facuta"));
    sbrMain[3]->setToolTip(eroare);
    sbrMain[3]->setStyleSheet(QStringLiteral("color: #b00000"));
}

void frmMain::PornesteCopiaZilei() {
    if (Copii::DeFacutLaPornire(p_.bd.locatie(), QDate::currentDate())) pornesteCopia(QStringLiteral("a zilei"));
}

namespace {

// Waits, with its progress in a window, until the copy sends `pana` (its pages written) or, without one,
// until it ends.
void AsteaptaCopia(CopieInFundal* c, const QString& text, void (CopieInFundal::*pana)(const QString&),
                   QWidget* parinte) {
    QProgressDialog d(text, QString(), 0, 100, parinte);
    d.setWindowTitle(QStringLiteral("Copie de siguranta"));
    d.setWindowModality(Qt::WindowModal);
    d.setMinimumDuration(300);
    QEventLoop bucla;
    QObject::connect(c, &CopieInFundal::progres, &d, &QProgressDialog::setValue);
    if (pana) QObject::connect(c, pana, &bucla, &QEventLoop::quit);
    QObject::connect(c, &CopieInFundal::gata, &bucla, &QEventLoop::quit);
    bucla.exec();
}

} // namespace

void frmMain::CopieDeSiguranta(const QString& motiv) {
    AsteaptaCopia(pornesteCopia(motiv), QStringLiteral("Copie de siguranta a bazei de date %1...").arg(motiv),
                  &CopieInFundal::copiata, this);
}

void frmMain::mnuCopie_Click() {
    CopieInFundal* c = pornesteCopia(QStringLiteral("ceruta"));
    QString fisier, eroare;
    connect(c, &CopieInFundal::gata, this, [&](const QString& f, const QString& e) {
        fisier = f;
        eroare = e;
    });
    // The check is waited for too: the clerk asked for a copy that can be relied on.
    AsteaptaCopia(c, QStringLiteral("Copia bazei de date se face si se verifica..."), nullptr, this);
    if (eroare.isEmpty())
        m_.Informatie(
            QStringLiteral("Copia bazei de date a fost facuta si verificata:\n%1").arg(QDir::toNativeSeparators(fisier)));
    else
        m_.Avertisment(eroare);
}

void frmMain::mnuRestaurare_Click() {
    frmRestaurare f(p_.bd.locatie(), m_, this);
    ArataModal(f);
    if (f.Aleasa.isEmpty()) return;
    RestaurareCeruta = f.Aleasa;
    QApplication::exit(0);
}
