#include "store/CopieInainte.h"

#include "store/BazaDate.h"

namespace CopieInainte {

namespace {
Functie& functia() {
    static Functie f;
    return f;
}
} // namespace

void Seteaza(Functie f) {
    functia() = std::move(f);
}

void Fa(BazaDate& db, const QString& motiv) {
    // Inside a transaction of its own connection the copy, made from another one, could wait for it.
    if (!functia() || db.InTranzactie()) return;
    functia()(db, motiv);
}

} // namespace CopieInainte
