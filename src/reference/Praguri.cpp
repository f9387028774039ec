#include "reference/Praguri.h"

#include "base/Bani.h"

namespace {

// A threshold as stored: a plain decimal with a point, above zero.
std::optional<QString> Prag(const QString& tastat) {
    QString t = tastat.trimmed();
    t.replace(u',', u'.');
    const auto suma = Bani::DinText(t);
    if (!suma || *suma <= Bani()) return std::nullopt;
    return t;
}

} // namespace

std::optional<QString> TextPraguri(const QString& inferior, const QString& superior) {
    const auto p1 = Prag(inferior), p2 = Prag(superior);
    if (!p1 || !p2) return std::nullopt;
    return *p1 + u'|' + *p2;
}

bool PraguriValide(const QString& text) {
    const auto parti = text.split(u'|');
    return parti.size() == 2 && Prag(parti[0]) == parti[0].trimmed() && Prag(parti[1]) == parti[1].trimmed() &&
           !parti[0].contains(u',') && !parti[1].contains(u',');
}
