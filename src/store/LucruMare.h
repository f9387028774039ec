#pragma once

#include "store/BazaDate.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"

#include <QStringList>
#include <vector>

// Helpers of the bulk tools that rewrite most rows of a large table in one transaction.

// A write over most rows of a large table costs less when the indexes on the fields it changes are
// built again once at the end than when they are kept up row by row (for a few rows it is the other
// way round). Inside the tool's transaction: on a failure the indexes come back with the rows.
class IndexuriRefacute {
public:
    IndexuriRefacute(BazaDate& db, const QString& tabela, const QStringList& campuri);
    void Reface();

private:
    OperatiiSchema schema_;
    std::vector<IndexSchema> sterse_;
};

// A tool that rewrites most of a large SQLite file would spill its changed pages to the file mid-way
// with the engine's small default page cache; it gets a larger one while it works (the connection
// otherwise keeps the default).
class CacheMare {
public:
    explicit CacheMare(BazaDate& db);
    ~CacheMare();
    CacheMare(const CacheMare&) = delete;
    CacheMare& operator=(const CacheMare&) = delete;

private:
    BazaDate& db_;
};
