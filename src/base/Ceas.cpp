#include "base/Ceas.h"

namespace {
QDate ziFixata;
}

QDate Ceas::Azi() {
    return ziFixata.isValid() ? ziFixata : QDate::currentDate();
}

void Ceas::SeteazaAzi(const QDate& zi) {
    ziFixata = zi;
}
