#include "reports/Rapoarte.h"

#include "base/Mesaje.h"
#include "reference/DateReferinta.h"

namespace Raport {

bool VerificaPrimaria(BazaDate& db, Mesaje& m) {
    if (DateReferinta::CitesteRandPrimarie(db)) return true;
    m.Informatie(QStringLiteral("Introduceti mai intai datele primariei si abia apoi continuati!"));
    return false;
}

bool ButoaneBAS(BazaDate& db) {
    const auto rand = DateReferinta::CitesteRandPrimarie(db);
    if (!rand) return false;
    return rand->Text("Localitate").value_or(QString()).trimmed().toUpper() == QLatin1String("CAREI") ||
           rand->Text("CodFiscal").value_or(QString()).trimmed() == QLatin1String("6619245");
}

FiltreRaport Filtre(int index) {
    return {index == 1, index >= 0 && index <= 4, index == 15};
}

std::optional<int> PaginaDeTiparit(const QString& tastat, int nrPagini) {
    bool numar = false;
    const int pagina = tastat.trimmed().toInt(&numar);
    if (!numar || pagina < 1 || pagina > nrPagini) return std::nullopt;
    return pagina;
}

} // namespace Raport
