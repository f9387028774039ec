#pragma once

#include "store/BazaDate.h"

#include <QStringList>
#include <map>
#include <vector>

// Rows for one table gathered and written many to a statement. A PostgreSQL server answers each
// statement over the network, so a row per statement costs a round trip per row; a few hundred rows
// per statement cost about one. Executa takes the row bound so far; Scrie writes every row taken,
// inside the caller's transaction, and nothing is written before it is called.
class InserareInLot : public LegareValori<InserareInLot> {
public:
    InserareInLot(BazaDate& db, const QString& tabela, const QStringList& campuri);

    InserareInLot& LeagaValoare(const QVariant& v);
    InserareInLot& Executa();
    void Scrie();

private:
    QString instructiune(qsizetype randuri) const;

    BazaDate& db_;
    QString tabela_;
    QStringList campuri_;
    qsizetype randuriPeInstructiune_;
    std::vector<QVariant> valori_;
    std::map<qsizetype, Interogare> instructiuni_;
    qsizetype legate_ = 0;
};
