#include "store/OperatiiSchema.h"

#include "base/Eroare.h"
#include "store/BazaDate.h"

void OperatiiSchema::uita(const QString& tabela) {
    campuri_.remove(tabela.toLower());
    tabele_.reset();
}

QStringList OperatiiSchema::Tabele() {
    if (tabele_) return *tabele_;
    QStringList r;
    Interogare q(
        db_, db_.dialect().EsteSQLite()
                 ? QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'")
                 : QStringLiteral("SELECT table_name AS name FROM information_schema.tables "
                                  "WHERE table_schema = current_schema() AND table_type = 'BASE TABLE'"));
    q.Executa();
    while (q.Urmator())
        r << q.Text(QStringLiteral("name"));
    tabele_ = r;
    return r;
}

bool OperatiiSchema::TabelaExista(const QString& tabela) {
    return Tabele().contains(tabela, Qt::CaseInsensitive);
}

QStringList OperatiiSchema::Campuri(const QString& tabela) {
    const auto gasit = campuri_.constFind(tabela.toLower());
    if (gasit != campuri_.constEnd()) return *gasit;
    QStringList r;
    Interogare q(db_, db_.dialect().EsteSQLite()
                          ? QStringLiteral("SELECT name FROM pragma_table_info(?) ORDER BY cid")
                          : QStringLiteral("SELECT column_name AS name FROM information_schema.columns "
                                           "WHERE table_schema = current_schema() AND table_name = ? "
                                           "ORDER BY ordinal_position"));
    q.Leaga(tabela.toLower());
    q.Executa();
    while (q.Urmator())
        r << q.Text(QStringLiteral("name"));
    campuri_.insert(tabela.toLower(), r);
    return r;
}

bool OperatiiSchema::CampExista(const QString& tabela, const QString& camp) {
    return Campuri(tabela).contains(camp, Qt::CaseInsensitive);
}

bool OperatiiSchema::RelatieExista(const RelatieSchema& r) {
    if (db_.dialect().EsteSQLite()) {
        Interogare q(db_, QStringLiteral("SELECT 1 FROM pragma_foreign_key_list(?) "
                                         "WHERE lower(\"from\") = ? AND lower(\"table\") = ?"));
        q.Leaga(r.tabelaStraina).Leaga(r.campStrain.toLower()).Leaga(r.tabela.toLower());
        return q.Exista();
    }
    Interogare q(db_, QStringLiteral("SELECT 1 FROM pg_constraint c JOIN pg_namespace n ON n.oid = c.connamespace "
                                     "WHERE n.nspname = current_schema() AND c.contype = 'f' AND c.conname = ?"));
    q.Leaga(r.nume.toLower());
    return q.Exista();
}

bool OperatiiSchema::IndexExista(const IndexSchema& ix) {
    Interogare q(db_, db_.dialect().EsteSQLite()
                          ? QStringLiteral("SELECT 1 FROM sqlite_master WHERE type = 'index' AND lower(name) = ?")
                          : QStringLiteral("SELECT 1 FROM pg_indexes WHERE schemaname = current_schema() "
                                           "AND indexname = ?"));
    q.Leaga(ix.Nume().toLower());
    return q.Exista();
}

void OperatiiSchema::CreazaTabela(const TabelaSchema& t, const std::vector<CampSchema>& campuri) {
    uita(t.nume);
    QStringList definitii;
    QStringList numeCampuri;
    for (const auto& c : campuri) {
        definitii << Schema::DefinitieCamp(db_.dialect(), t.nume, c);
        numeCampuri << c.nume.toLower();
    }
    bool cheieCompleta = !t.cheiePrimara.isEmpty();
    for (const auto& k : t.cheiePrimara)
        cheieCompleta = cheieCompleta && numeCampuri.contains(k.toLower());
    if (cheieCompleta) definitii << QStringLiteral("PRIMARY KEY (%1)").arg(t.cheiePrimara.join(QStringLiteral(", ")));
    db_.Executa(QStringLiteral("CREATE TABLE %1 (%2)").arg(t.nume, definitii.join(QStringLiteral(", "))));
}

void OperatiiSchema::AdaugaCamp(const QString& tabela, const CampSchema& c) {
    uita(tabela);
    db_.Executa(
        QStringLiteral("ALTER TABLE %1 ADD COLUMN %2").arg(tabela, Schema::DefinitieCamp(db_.dialect(), tabela, c)));
}

void OperatiiSchema::StergeCamp(const QString& tabela, const QString& camp) {
    uita(tabela);
    db_.Executa(QStringLiteral("ALTER TABLE %1 DROP COLUMN %2").arg(tabela, camp));
}

void OperatiiSchema::RedenumesteCamp(const QString& tabela, const QString& camp, const QString& numeNou) {
    uita(tabela);
    db_.Executa(QStringLiteral("ALTER TABLE %1 RENAME COLUMN %2 TO %3").arg(tabela, camp, numeNou));
}

void OperatiiSchema::RedenumesteTabela(const QString& tabela, const QString& numeNou) {
    uita(tabela);
    uita(numeNou);
    db_.Executa(QStringLiteral("ALTER TABLE %1 RENAME TO %2").arg(tabela, numeNou));
}

void OperatiiSchema::StergeTabela(const QString& tabela) {
    uita(tabela);
    db_.Executa(QStringLiteral("DROP TABLE IF EXISTS %1%2")
                    .arg(tabela, db_.dialect().EsteSQLite() ? QString() : QStringLiteral(" CASCADE")));
}

void OperatiiSchema::LargesteText(const QString& tabela, const QString& camp, int marime) {
    if (db_.dialect().EsteSQLite()) return;
    db_.Executa(QStringLiteral("ALTER TABLE %1 ALTER COLUMN %2 TYPE %3")
                    .arg(tabela, camp, db_.dialect().TipSql(TipCamp::Text, marime)));
}

void OperatiiSchema::VerificaReferinte() {
    if (!db_.dialect().EsteSQLite()) {
        db_.Executa(QStringLiteral("SET CONSTRAINTS ALL IMMEDIATE"));
        return;
    }
    Interogare q(db_, QStringLiteral("SELECT \"table\", rowid, parent FROM pragma_foreign_key_check LIMIT 10"));
    q.Executa();
    QStringList randuri;
    while (q.Urmator())
        randuri << QStringLiteral("%1, randul %2: lipseste randul din %3")
                       .arg(q.Valoare(0).toString(), q.Valoare(1).toString(), q.Valoare(2).toString());
    if (!randuri.isEmpty())
        throw Eroare(
            QStringLiteral("Randuri care trimit la randuri inexistente:\n%1").arg(randuri.join(QLatin1Char('\n'))));
}

void OperatiiSchema::CreazaRelatie(const RelatieSchema& r) {
    uita(r.tabelaStraina);
    if (db_.dialect().EsteSQLite())
        throw Eroare(QStringLiteral("SQLite nu poate adauga o relatie unui camp existent (%1.%2)")
                         .arg(r.tabelaStraina, r.campStrain));
    db_.Executa(QStringLiteral("ALTER TABLE %1 ADD CONSTRAINT %2 FOREIGN KEY (%3) REFERENCES %4 (%5) "
                               "ON DELETE CASCADE ON UPDATE CASCADE DEFERRABLE INITIALLY DEFERRED")
                    .arg(r.tabelaStraina, r.nume, r.campStrain, r.tabela, r.camp));
}

void OperatiiSchema::CreazaIndex(const IndexSchema& ix) {
    QStringList campuri = ix.campuri;
    // SQLite's LIKE ignores ASCII case and so takes an index in NOCASE order; PostgreSQL's takes
    // one in plain character order whatever the database's collation.
    if (ix.cautarePrefix)
        campuri[0] +=
            db_.dialect().EsteSQLite() ? QStringLiteral(" COLLATE NOCASE") : QStringLiteral(" varchar_pattern_ops");
    db_.Executa(QStringLiteral("CREATE INDEX IF NOT EXISTS %1 ON %2 (%3)%4")
                    .arg(ix.Nume(), ix.tabela, campuri.join(QStringLiteral(", ")),
                         ix.conditie.isEmpty() ? QString() : QStringLiteral(" WHERE ") + ix.conditie));
}

void OperatiiSchema::StergeIndex(const IndexSchema& ix) {
    db_.Executa(QStringLiteral("DROP INDEX IF EXISTS %1").arg(ix.Nume()));
}
