#pragma once

#include "maintenance/SursaVeche.h"

#include <QByteArray>
#include <QDir>

// The text of a file in UTF-8, or in Windows-1250 when it is not valid UTF-8 (files written on the
// office's computers by the old tools); a leading byte order mark is dropped.
QString TextCsv(const QByteArray& octeti);

// The fields of one CSV record read from `text` at `poz` (RFC 4180: commas, double quotes doubled inside
// quoted values, line ends inside quotes kept, CR LF or LF between records). An unquoted empty field is
// null, a quoted one an empty text. Moves `poz` past the record and counts the line ends in `linii`.
// False at the end of the text.
bool CitesteRandCsv(const QString& text, qsizetype& poz, QStringList& campuri, qint64& linii);

// A folder of TABELA.csv files with a header row of field names, as mdb-export writes them.
class SursaCsv : public SursaVeche {
public:
    explicit SursaCsv(const QString& folder);
    QString Descriere() const override;
    QStringList Tabele() const override;
    qint64 Volum(const QString& tabela) const override;
    std::unique_ptr<TabelaVeche> Deschide(const QString& tabela) override;
    QStringList Campuri(const QString& tabela) override;

private:
    QString fisier(const QString& tabela) const;

    QDir dir_;
    QStringList fisiere_;
};
