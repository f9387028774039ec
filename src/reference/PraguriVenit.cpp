#include "reference/PraguriVenit.h"

#include "base/Mesaje.h"
#include "store/DateGen.h"

#include <QStringView>
#include <algorithm>

QString VerificaPraguriVenit(const std::optional<QString>& continut, Mesaje& m) {
    const QString titlu = QStringLiteral("Eroare");
    const QString formatGresit = QStringLiteral("Format praguri gresit!");
    if (!continut) {
        m.Critic(QStringLiteral("PRAGURI_VENIT nu exista!"), titlu);
        return {};
    }
    const QString& praguri = *continut;
    if (praguri.trimmed().isEmpty()) {
        m.Critic(QStringLiteral("Nu sunt definite praguri venit!"), titlu);
        return {};
    }
    if (!praguri.contains(u'|')) {
        m.Critic(formatGresit, titlu);
        return {};
    }
    // A blank part is no threshold: "210.2|" holds only one.
    const auto parti = QStringView(praguri).split(u'|');
    const auto pline = std::count_if(parti.begin(), parti.end(), [](QStringView p) { return !p.trimmed().isEmpty(); });
    if (pline < 2) {
        m.Critic(formatGresit + QStringLiteral("\nTrebuie cel putin doua praguri."), titlu);
        return {};
    }
    return praguri;
}

QString PraguriVenit(BazaDate& db, Mesaje& m) {
    return VerificaPraguriVenit(ContinutDateGen(db, QStringLiteral("PRAGURI_VENIT")), m);
}
