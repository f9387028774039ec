#include "shell/PaneluriCerere.h"

#include "shell/Functii.h"
#include "store/BazaDate.h"

std::vector<RandDispozitie> PaneluriCerere::ListaDispozitii(BazaDate& db, qint64 cerereID) {
    Interogare q(
        db,
        QStringLiteral("SELECT D.DispozitieID, D.NrDisp, D.DataDisp, G.Continut AS TipDecizie, D.Cuantum, D.Luna, D.An "
                       "FROM Dispozitii D LEFT JOIN DateGen G ON G.Tip = 20 AND G.DataID = D.Actiune "
                       "WHERE D.CerereID = ? ORDER BY D.DataDisp DESC, D.DispozitieID DESC"));
    q.Leaga(cerereID).Executa();
    std::vector<RandDispozitie> r;
    while (q.Urmator()) {
        auto text = [&](const char* camp) {
            const QVariant v = q.Valoare(QString::fromLatin1(camp));
            return v.isNull() ? QString() : v.toString();
        };
        r.push_back({q.Intreg(QStringLiteral("DispozitieID")), text("NrDisp"), q.Data(QStringLiteral("DataDisp")),
                     text("TipDecizie"), q.Suma(QStringLiteral("Cuantum")), text("Luna"), text("An")});
    }
    return r;
}

QString PaneluriCerere::TitluDispozitii(const QString& solicitant, size_t randuri) {
    return randuri == 0 ? QString() : QStringLiteral("Dispozitiile lui %1.").arg(solicitant);
}

bool PaneluriCerere::StergeDispozitie(BazaDate& db, qint64 dispozitieID) {
    Tranzactie t(db);
    Interogare d(db, QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?"));
    d.Leaga(dispozitieID).Executa();
    t.Confirma();
    return d.RanduriAfectate() > 0;
}

bool PaneluriCerere::ActeCareExpira(BazaDate& db, const QDate& azi) {
    const QDate inceput(azi.year(), azi.month(), 1);
    Interogare q(db, QStringLiteral("SELECT 1 FROM Familii F INNER JOIN Cereri C ON F.FamilieID = C.FamilieID "
                                    "INNER JOIN Adeverinte A ON C.CerereID = A.CerereID "
                                    "WHERE C.Stare IN (2, 6, 7, 8) AND A.DataExpAdev >= ? AND A.DataExpAdev < ? "
                                    "AND A.AdvCurenta = 1"));
    q.Leaga(inceput).Leaga(inceput.addMonths(1));
    return q.Exista();
}

QString PaneluriCerere::TextNotificare(const QDate& azi) {
    return QStringLiteral("Aveti acte care expira in luna %1 !\nClick pentru a detalii.")
        .arg(LuniAn()[azi.month() - 1]);
}
