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

void CheiLista::ScrieAdeverinte(BazaDate& db, const QString& conditie, const QVariantList& valori) {
    static const QString sql = QStringLiteral(
        "UPDATE Adeverinte SET MembruOrdine = (SELECT COALESCE(M.NumeCautare, '') || ' ' || "
        "COALESCE(M.PrenumeCautare, '') FROM Membrii M WHERE M.MembruID = Adeverinte.MembruID), "
        "CerereInVigoare = COALESCE((SELECT CASE WHEN C.Stare IN (2, 6, 7, 8) AND C.FamilieID IS NOT NULL "
        "THEN 1 ELSE 0 END FROM Cereri C WHERE C.CerereID = Adeverinte.CerereID), 0) WHERE ");
    Interogare q(db, sql + conditie);
    for (const QVariant& v : valori)
        q.Leaga(v);
    q.Executa();
}

qint64 CheiLista::Completeaza(BazaDate& db) {
    qint64 scrise = 0;
    // A written key is never missing: the CNP key is empty for a titular without a code or a request
    // without one, the flag of a certificate 0 for a request gone.
    const auto completeaza = [&](const QString& tabela, const QString& conditie, auto scrie) {
        Interogare n(db, QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2").arg(tabela, conditie));
        n.Exista();
        const qint64 lipsa = n.Intreg(0);
        n.query().finish();
        if (lipsa > 0) scrie(db, conditie, QVariantList{});
        scrise += lipsa;
    };
    completeaza(QStringLiteral("Cereri"), QStringLiteral("TitularCNP IS NULL"), &CheiLista::Scrie);
    completeaza(QStringLiteral("Adeverinte"), QStringLiteral("CerereInVigoare IS NULL"), &CheiLista::ScrieAdeverinte);
    return scrise;
}
