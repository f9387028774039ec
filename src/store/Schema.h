#pragma once

#include "store/Dialect.h"

#include <QString>
#include <QStringList>
#include <vector>

// The present shape of the database: every table and field with its type, the keys, the
// cascading relations and the indexes. The upgrade reaches this shape from any older one.
struct CampSchema {
    QString nume;
    TipCamp tip;
    int marime = 0; // Text width
};

struct TabelaSchema {
    QString nume;
    std::vector<CampSchema> campuri;
    QStringList cheiePrimara;
    bool livrata = false; // exists in every database from its creation, in its base fields
};

// A cascading relation: deleting or renumbering the row of `tabela` carries to `tabelaStraina`.
struct RelatieSchema {
    QString nume;
    QString tabela, camp;
    QString tabelaStraina, campStrain;
};

struct IndexSchema {
    QString tabela;
    QStringList campuri;
    // Its first field is searched by a prefix LIKE: the index is built so that each engine serves
    // LIKE with it.
    bool cautarePrefix = false;
    // A partial index holds only the rows meeting this condition (written the same on both engines),
    // and `sufix` tells it from a whole index on the same fields.
    QString conditie = {};
    QString sufix = {};
    QString Nume() const {
        return QStringLiteral("ix_%1_%2%3%4")
            .arg(tabela, campuri.join(QLatin1Char('_')), cautarePrefix ? QStringLiteral("_like") : QString(),
                 sufix.isEmpty() ? QString() : u'_' + sufix)
            .toLower();
    }
};

// A field that older databases had: removed, or renamed, by the upgrade.
struct CampVechi {
    QString tabela;
    CampSchema camp;
    QString redenumitIn; // empty: the field is removed
};

namespace Schema {

const std::vector<TabelaSchema>& Tabele();
const TabelaSchema* Tabela(const QString& nume);
const CampSchema* Camp(const QString& tabela, const QString& camp);
const std::vector<RelatieSchema>& Relatii();
const RelatieSchema* Relatie(const QString& nume);
// The relation whose foreign side is this field, if any.
const RelatieSchema* RelatiePeCamp(const QString& tabelaStraina, const QString& campStrain);
const std::vector<IndexSchema>& Indexuri();
// Indexes of earlier versions that a wider one of the list now serves: the upgrade drops them.
const std::vector<IndexSchema>& IndexuriInlocuite();
const std::vector<CampVechi>& CampuriVechi();

// The fields a delivered table is created with: those the upgrade doesn't add. With `formaVeche`,
// the shape of the oldest files: the fields since removed are there, the renamed ones carry
// their old names.
std::vector<CampSchema> CampuriDeBaza(const TabelaSchema& t, bool formaVeche);

// Column definition for CREATE TABLE and ADD COLUMN, with the inline reference when the field
// is the foreign side of a relation.
QString DefinitieCamp(const Dialect& d, const QString& tabela, const CampSchema& c);

} // namespace Schema
