#pragma once

#include "base/Eroare.h"

#include <QString>
#include <QtGlobal>
#include <chrono>
#include <functional>
#include <future>

// Long work over many rows (a report's rows read, a file of many rows written) tells how far it has
// come to whoever watches on its thread, and stops when the watcher asks. Nobody watching costs a
// comparison per row.

// The work stopped at the watcher's asking: nothing of it is kept.
class Oprit : public Eroare {
public:
    Oprit();
};

class Urmarire {
public:
    // Rows done, of `total` (0 while the total is not known yet); false stops the work.
    using Functie = std::function<bool(qint64 facute, qint64 total)>;
    static constexpr int PasImplicit = 16384;

    // Watches the work done on this thread while it lives, hearing of it every `pas` rows.
    explicit Urmarire(Functie f, int pas = PasImplicit);
    ~Urmarire();
    Urmarire(const Urmarire&) = delete;
    Urmarire& operator=(const Urmarire&) = delete;

    // The work has reached row `facute`: the watcher, if any, hears it (Oprit is thrown when it asks to
    // stop). Returns how many rows on the work should tell again.
    static int Avans(qint64 facute, qint64 total = 0);

    // The last step of a work of `total` rows that cannot tell how far it has come (a library putting a
    // file together and compressing it) runs on another thread, while the watcher hears every tenth of
    // a second that the work is at its end. When the watcher stops it, the step still ends first.
    template <class F> static auto Incheie(qint64 total, F&& pas) {
        auto rezultat = std::async(std::launch::async, std::forward<F>(pas));
        while (rezultat.wait_for(std::chrono::milliseconds(100)) != std::future_status::ready)
            Avans(total, total);
        return rezultat.get();
    }

private:
    Functie f_;
    int pas_;
    Urmarire* inainte_;
    bool ascultand_ = false; // work that the watcher itself sets off while it hears is not told again
};

// What a progress window shows of a watched work: the rows that a report's queries read (each counts
// from one, so they are added up), then the rows of the file being written, then its closing step.
class AfisareUrmarire {
public:
    struct Afisare {
        QString text;
        int maxim = 0, valoare = 0; // a maximum of 0: no end known, the bar only moves
    };
    Afisare Auzit(qint64 facute, qint64 total);

private:
    qint64 inainte_ = 0, ultimul_ = 0;
};
