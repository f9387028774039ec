#include "reference/LunaLucru.h"

#include "base/Texte.h"
#include "base/Val.h"
#include "store/BazaDate.h"

#include <QStringList>

std::optional<QString> LunaLucru::Verifica(BazaDate& db, const QString& luna, const QString& an) {
    const double l = Val(luna);
    if (l < 1 || l > 12) return QStringLiteral("Luna incorecta!");
    const double a = Val(an);
    if (a < 2008 || a > 2500) return QStringLiteral("An incorect!");
    Interogare q(db, QStringLiteral("SELECT 1 FROM StatePlata WHERE An = ? AND Luna = ?"));
    q.Leaga(qint64(a)).Leaga(qint64(l));
    if (!q.Exista()) return QStringLiteral("An sau Luna incorecta!");
    return std::nullopt;
}

QString LunaLucru::TextLunaActiva(int luna, int an) {
    const QString nume = luna >= 1 && luna <= 12 ? ::LuniAn()[luna - 1] : QString();
    return QStringLiteral(" LUNA ACTIVA: %1 %2 ").arg(nume).arg(an);
}
