#include "store/LucruMare.h"

#include <QSqlQuery>
#include <algorithm>

IndexuriRefacute::IndexuriRefacute(BazaDate& db, const QString& tabela, const QStringList& campuri) : schema_(db) {
    for (const IndexSchema& ix : Schema::Indexuri()) {
        const bool atins = std::any_of(campuri.begin(), campuri.end(),
                                       [&](const QString& c) { return ix.campuri.contains(c, Qt::CaseInsensitive); });
        if (ix.tabela.compare(tabela, Qt::CaseInsensitive) == 0 && atins && schema_.IndexExista(ix)) {
            schema_.StergeIndex(ix);
            sterse_.push_back(ix);
        }
    }
}

void IndexuriRefacute::Reface() {
    for (const IndexSchema& ix : sterse_)
        schema_.CreazaIndex(ix);
}

CacheMare::CacheMare(BazaDate& db) : db_(db) {
    if (!db_.dialect().EsteSQLite()) return;
    db_.Executa(QStringLiteral("PRAGMA cache_size = -262144"));
    // Past that size the changed pages stay in memory rather than go to the file before the commit:
    // spilled mid-way, each is written twice and the journal synced once more.
    db_.Executa(QStringLiteral("PRAGMA cache_spill = OFF"));
    db_.Executa(QStringLiteral("PRAGMA temp_store = MEMORY"));
    // An index built again sorts its entries on a second core as well.
    db_.Executa(QStringLiteral("PRAGMA threads = 2"));
}

CacheMare::~CacheMare() {
    // Nothing to report from here: a failure only leaves the larger cache until the program ends.
    if (!db_.dialect().EsteSQLite()) return;
    QSqlQuery q(db_.conexiune());
    q.exec(QStringLiteral("PRAGMA cache_size = -2000"));
    q.exec(QStringLiteral("PRAGMA cache_spill = ON"));
    q.exec(QStringLiteral("PRAGMA temp_store = DEFAULT"));
    q.exec(QStringLiteral("PRAGMA threads = 0"));
}
