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

AfisareUrmarire::Afisare AfisareUrmarire::Auzit(qint64 facute, qint64 total) {
    if (total > 0) {
        ultimul_ = 0;
        if (facute >= total) return {QStringLiteral("Se incheie fisierul: %L1 randuri").arg(total)};
        // The bar counts in thousands, which an int holds for any sheet.
        return {QStringLiteral("Se scrie fisierul: %L1 din %L2 randuri").arg(facute).arg(total),
                int(total / 1000) + 1, int(facute / 1000)};
    }
    if (facute < ultimul_) inainte_ += ultimul_;
    ultimul_ = facute;
    return {QStringLiteral("Se citesc datele raportului: %L1 randuri").arg(inainte_ + facute)};
}
