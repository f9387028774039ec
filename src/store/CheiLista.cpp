#include "store/CheiLista.h"

#include "store/BazaDate.h"

namespace {

QString dinTitular(const char* camp) {
    return QStringLiteral("(SELECT M.%1 FROM Membrii M WHERE M.MembruID = Cereri.MembruID1)").arg(QLatin1String(camp));
}

} // namespace

void CheiLista::Scrie(BazaDate& db, const QString& conditie, const QVariantList& valori) {
    // The address in the order of its parts, as the list shows it.
    static const QString sql =
        QStringLiteral("UPDATE Cereri SET TitularNume = %1, TitularPrenume = %2, TitularCNP = COALESCE(%3, ''), AdresaOrdine = "
                       "(SELECT COALESCE(F.Localitate, '') || ' ' || COALESCE(F.Strada, '') || ' ' || "
                       "COALESCE(F.Nr, '') || ' ' || COALESCE(F.Sc, '') || ' ' || COALESCE(F.Ap, '') "
                       "FROM Familii F WHERE F.FamilieID = Cereri.FamilieID) WHERE ")
            .arg(dinTitular("NumeCautare"), dinTitular("PrenumeCautare"), dinTitular("CNP"));
    Interogare q(db, sql + conditie);
    for (const QVariant& v : valori)
        q.Leaga(v);
    q.Executa();
}

qint64 CheiLista::Completeaza(BazaDate& db) {
    // A written CNP key is never missing, empty for a titular without a code or a request without one.
    static const QString conditie = QStringLiteral("TitularCNP IS NULL");
    Interogare n(db, QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE ") + conditie);
    n.Exista();
    const qint64 lipsa = n.Intreg(0);
    if (lipsa > 0) Scrie(db, conditie);
    return lipsa;
}
