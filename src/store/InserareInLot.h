#pragma once

#include "store/BazaDate.h"

#include <QByteArray>
#include <QStringList>
#include <memory>
#include <vector>

// Rows for one table gathered and written together, for the writers of many thousands of rows. Going
// through the SQL module costs more per value than the engine does: SQLite gets a statement prepared
// once and stepped row by row through its own interface, PostgreSQL a COPY of all the rows in one
// stream. Executa takes the row bound so far; Scrie writes every row taken, inside the caller's
// transaction, and nothing is written before it is called. Values are taken as Interogare takes them.
class InserareInLot : public LegareValori<InserareInLot> {
public:
    InserareInLot(BazaDate& db, const QString& tabela, const QStringList& campuri);
    ~InserareInLot();

    InserareInLot& LeagaValoare(const QVariant& v);
    InserareInLot& Executa();
    void Scrie();

private:
    void scrieSQLite(const std::vector<QVariant>& valori);
    void scriePostgreSQL(const std::vector<QVariant>& valori);

    BazaDate& db_;
    QString tabela_;
    QStringList campuri_;
    std::vector<QVariant> valori_;
    qsizetype legate_ = 0;
    struct Instructiune;
    std::unique_ptr<Instructiune> instructiune_; // SQLite's, prepared at the first write
};
