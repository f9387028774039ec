#include "base/Urmarire.h"

namespace {
thread_local Urmarire* curenta = nullptr;
}

Oprit::Oprit() : Eroare(QStringLiteral("Lucrul a fost oprit.")) {}

Urmarire::Urmarire(Functie f, int pas) : f_(std::move(f)), pas_(std::max(1, pas)), inainte_(curenta) {
    curenta = this;
}

Urmarire::~Urmarire() {
    curenta = inainte_;
}

int Urmarire::Avans(qint64 facute, qint64 total) {
    Urmarire* u = curenta;
    if (!u || u->ascultand_) return PasImplicit;
    u->ascultand_ = true;
    bool continua = false;
    try {
        continua = u->f_(facute, total);
    } catch (...) {
        u->ascultand_ = false;
        throw;
    }
    u->ascultand_ = false;
    if (!continua) throw Oprit();
    return u->pas_;
}
