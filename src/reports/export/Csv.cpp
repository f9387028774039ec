#include "reports/export/Csv.h"

#include "base/Urmarire.h"
#include "reports/Grila.h"
#include "reports/export/Fisier.h"

namespace Raport {

QByteArray Csv(const Grila& g) {
    QByteArray r;
    int semn = 0;
    for (int rand = 1; rand < g.Randuri(); ++rand) {
        if (rand >= semn) semn = rand + Urmarire::Avans(rand - 1, g.Randuri() - 1);
        for (int col = 1; col < g.Coloane(); ++col) {
            if (col > 1) r += ';';
            const std::optional<Dreptunghi> unire = g.UnireLa(rand, col);
            if (unire && (unire->rand1 != rand || unire->col1 != col)) continue;
            const QByteArray camp = g.Text(rand, col).toUtf8();
            if (camp.contains(';') || camp.contains('"') || camp.contains('\n') || camp.contains('\r')) {
                QByteArray citat = camp;
                citat.replace("\"", "\"\"");
                r += '"' + citat + '"';
            } else {
                r += camp;
            }
        }
        r += "\r\n";
    }
    return r;
}

void ScrieCsv(const Grila& g, const QString& fisier) {
    ScrieIntreg(fisier, Csv(g));
}

} // namespace Raport
