#include "store/DateGen.h"

#include "store/BazaDate.h"
#include "store/Sql.h"

std::vector<RandDateGen> ListaDateGen(BazaDate& db, TipDateGen tip) {
    return std::move(ListeDateGen(db, {tip})[tip]);
}

std::map<TipDateGen, std::vector<RandDateGen>> ListeDateGen(BazaDate& db, const std::vector<TipDateGen>& tipuri) {
    Interogare q(db, QStringLiteral("SELECT Tip, DataID, Continut FROM DateGen WHERE Tip IN (%1) "
                                    "ORDER BY Tip, Ordine, DataID")
                         .arg(Sql::Semne(qsizetype(tipuri.size()))));
    for (TipDateGen t : tipuri)
        q.Leaga(t);
    q.Executa();
    std::map<TipDateGen, std::vector<RandDateGen>> r;
    while (q.Urmator())
        r[TipDateGen(q.Intreg(0))].push_back({q.Intreg(1), q.Valoare(2).toString()});
    return r;
}

std::map<std::pair<TipDateGen, qint64>, QString> TexteDupaId(BazaDate& db, const std::vector<TipDateGen>& tipuri) {
    std::map<std::pair<TipDateGen, qint64>, QString> t;
    for (const auto& [tip, randuri] : ListeDateGen(db, tipuri))
        for (const RandDateGen& r : randuri)
            t.try_emplace({tip, r.DataID}, r.Continut);
    return t;
}

QStringList ContinuturiDateGen(BazaDate& db, const QString& denumire) {
    Interogare q(db, QStringLiteral("SELECT Continut FROM DateGen WHERE Denumire = ?"));
    q.Leaga(denumire).Executa();
    QStringList r;
    while (q.Urmator())
        r << q.Valoare(0).toString();
    return r;
}

std::optional<QString> ContinutDateGen(BazaDate& db, const QString& denumire) {
    Interogare q(db, QStringLiteral("SELECT Continut FROM DateGen WHERE Denumire = ?"));
    if (!q.Leaga(denumire).Exista()) return std::nullopt;
    return q.Valoare(0).toString();
}

int ScrieContinutDateGen(BazaDate& db, const QString& denumire, const QString& continut) {
    Interogare q(db, QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"));
    q.Leaga(continut).Leaga(denumire).Executa();
    return q.RanduriAfectate();
}
