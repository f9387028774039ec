#include "maintenance/frmUpdate.h"

#include "ui/UiMargine.h"

#include <QLabel>
#include <QTimer>
#include <QVBoxLayout>

frmUpdate::frmUpdate(BazaDate& bd, const Updater::Mediu& mediu, const QStringList& argumente, Mesaje& m,
                     QWidget* parinte)
    : QDialog(parinte), bd_(bd), mediu_(mediu), m_(m) {
    setObjectName(QStringLiteral("frmUpdate"));
    setWindowTitle(QStringLiteral("Actualizare"));
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    auto* l = new QVBoxLayout(this);
    Label1 = new QLabel(QStringLiteral("Actualizare aplicatie . . ."), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    Label1->setMinimumWidth(280);
    Label1->setAlignment(Qt::AlignCenter);
    l->addWidget(Label1);

    if (Updater::TocmaActualizat(argumente, mediu_)) Label1->setText(QStringLiteral("Aplicatie actualizata."));
    poatePorni_ = LaMargine(m_, [&] { praguri_ = Updater::PraguriCurente(bd_); });
    QTimer::singleShot(0, this, &frmUpdate::Timer_Timer);
}

void frmUpdate::Timer_Timer() {
    if (!poatePorni_) {
        accept();
        return;
    }
    poatePorni_ = false;
    Updater::Mediu mediu = mediu_;
    // The window outlives the pass, and a report that comes after it is gone is dropped.
    mediu.progresBuild = [this](qint64 primit, qint64 total) {
        QMetaObject::invokeMethod(
            this, [this, primit, total] { Label1->setText(Updater::TextProgres(primit, total)); },
            Qt::QueuedConnection);
    };
    const std::optional<QString> praguri = praguri_;
    Updater::InFundal<Updater::RezultatVerificare>(
        this, [mediu, praguri] { return Updater::Verifica(mediu, praguri); },
        [this](Updater::RezultatVerificare r) { Gata(std::move(r)); });
}

void frmUpdate::Gata(Updater::RezultatVerificare r) {
    if (r.praguri) LaMargine(m_, [&] { Updater::AplicaPraguri(bd_, *r.praguri); });
    predare = r.predare;
    rezultat = std::move(r);
    accept();
}
