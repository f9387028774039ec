#pragma once

#include "store/Schema.h"

#include <QHash>
#include <QString>
#include <optional>

class BazaDate;

// What the schema holds, and the single changes the upgrade makes, on either engine.
// Names compare case-insensitively, as PostgreSQL folds unquoted ones to lower case. What it
// reads of the catalogue is kept until it changes something, so that a walk over many fields
// asks the server once per table.
class OperatiiSchema {
public:
    explicit OperatiiSchema(BazaDate& db) : db_(db) {}

    bool TabelaExista(const QString& tabela);
    bool CampExista(const QString& tabela, const QString& camp);
    bool RelatieExista(const RelatieSchema& r);
    bool IndexExista(const IndexSchema& ix);
    QStringList Campuri(const QString& tabela);
    QStringList Tabele();

    // A table with its first field (and its primary key, when that field is the whole key).
    void CreazaTabela(const TabelaSchema& t, const std::vector<CampSchema>& campuri);
    void AdaugaCamp(const QString& tabela, const CampSchema& c);
    void StergeCamp(const QString& tabela, const QString& camp);
    void RedenumesteCamp(const QString& tabela, const QString& camp, const QString& numeNou);
    void RedenumesteTabela(const QString& tabela, const QString& numeNou);
    // Drops the table and its indexes; on PostgreSQL also the references other tables hold to it.
    void StergeTabela(const QString& tabela);
    // A text field made wide enough for `marime` characters (SQLite's texts have no width).
    void LargesteText(const QString& tabela, const QString& camp, int marime);
    // The references written so far checked now, not at commit, so that the tables can be changed after
    // rows were written (PostgreSQL refuses it while checks are pending). Throws Eroare naming the rows
    // whose parent is missing.
    void VerificaReferinte();
    // Adds the cascading reference to an existing field. Throws when the engine can't (SQLite
    // declares references only with the field) or the rows already break it.
    void CreazaRelatie(const RelatieSchema& r);
    void CreazaIndex(const IndexSchema& ix);
    void StergeIndex(const IndexSchema& ix);

private:
    void uita(const QString& tabela);

    BazaDate& db_;
    QHash<QString, QStringList> campuri_;
    std::optional<QStringList> tabele_;
};
