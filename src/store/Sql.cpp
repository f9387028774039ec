#include "store/Sql.h"

#include "store/BazaDate.h"

namespace Sql {

QString Semne(qsizetype n) {
    return QStringList(n, QStringLiteral("?")).join(QStringLiteral(", "));
}

QString Insert(const QString& tabela, const QStringList& campuri) {
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(tabela, campuri.join(QStringLiteral(", ")), Semne(campuri.size()));
}

QString Update(const QString& tabela, const QStringList& campuri, const QString& cheie) {
    QStringList atribuiri;
    for (const QString& c : campuri)
        atribuiri << c + QStringLiteral(" = ?");
    QString sql = QStringLiteral("UPDATE %1 SET %2").arg(tabela, atribuiri.join(QStringLiteral(", ")));
    if (!cheie.isEmpty()) sql += QStringLiteral(" WHERE %1 = ?").arg(cheie);
    return sql;
}

QStringList Campuri(const Rand& r) {
    QStringList c;
    c.reserve(qsizetype(r.size()));
    for (const auto& [camp, valoare] : r)
        c << camp;
    return c;
}

Interogare& Leaga(Interogare& q, const Rand& r) {
    for (const auto& [camp, valoare] : r)
        q.Leaga(valoare);
    return q;
}

void Insereaza(BazaDate& db, const QString& tabela, const Rand& r) {
    Interogare q(db, Insert(tabela, Campuri(r)));
    Leaga(q, r).Executa();
}

int Actualizeaza(BazaDate& db, const QString& tabela, const Rand& r, const QString& cheie,
                 const QVariant& valoareCheie) {
    Interogare q(db, Update(tabela, Campuri(r), cheie));
    Leaga(q, r).Leaga(valoareCheie).Executa();
    return q.RanduriAfectate();
}

} // namespace Sql
