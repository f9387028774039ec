#include "store/Sql.h"

#include "base/Eroare.h"
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

bool RandExista(BazaDate& db, const QString& tabela, const QString& camp, qint64 cheie) {
    return Interogare(db, QStringLiteral("SELECT 1 FROM %1 WHERE %2 = ?").arg(tabela, camp)).Leaga(cheie).Exista();
}

qint64 NumarRanduri(BazaDate& db, const QString& tabela, const QString& camp, qint64 cheie) {
    Interogare q(db, QStringLiteral("SELECT COUNT(*) FROM %1 WHERE %2 = ?").arg(tabela, camp));
    q.Leaga(cheie);
    return q.Exista() ? q.Intreg(0) : 0;
}

qint64 RanduriCuCheie(BazaDate& db, const QString& tabela, const QString& camp, qint64 id) {
    try {
        return NumarRanduri(db, tabela, camp, id);
    } catch (const Eroare&) {
        return 0;
    }
}

} // namespace Sql
