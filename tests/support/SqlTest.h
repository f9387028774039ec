#pragma once

#include "store/BazaDate.h"

// One statement with its values bound in order, each by the Leaga overload for its type.
template <class... V> void ExecutaCu(BazaDate& db, const QString& sql, const V&... valori) {
    Interogare q(db, sql);
    (q.Leaga(valori), ...);
    q.Executa();
}
