#pragma once

#include "maintenance/Updater.h"

#include <QDialog>
#include <QStringList>
#include <optional>

class BazaDate;
class Mesaje;
class QLabel;

// The window that stands while the start-up pass asks the update server. The asking runs on a
// thread of its own, so the window paints and the start waits no longer than the server's answer.
class frmUpdate : public QDialog {
    Q_OBJECT
public:
    frmUpdate(BazaDate& bd, const Updater::Mediu& mediu, const QStringList& argumente, Mesaje& m,
              QWidget* parinte = nullptr);

    // Starts the pass; the window closes itself when it is over.
    void Timer_Timer();

    // After the window closed: a verified build to start before this program ends.
    std::optional<Updater::Lansare> predare;
    // What the pass found, for the caller that must undo a hand-over that could not start.
    Updater::RezultatVerificare rezultat;

    QLabel* Label1;

protected:
    // The clerk cannot close it half-way: the pass decides.
    void reject() override {}

private:
    void Gata(Updater::RezultatVerificare r);

    BazaDate& bd_;
    Updater::Mediu mediu_;
    Mesaje& m_;
    std::optional<QString> praguri_;
    bool poatePorni_ = true;
};
