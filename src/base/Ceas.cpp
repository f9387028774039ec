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

QDateTime Ceas::Acum() {
    const QDateTime acum = QDateTime::currentDateTime();
    const QTime ora = acum.time();
    return QDateTime(Azi(), QTime(ora.hour(), ora.minute(), ora.second()));
}
