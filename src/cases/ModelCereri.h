#pragma once

#include "base/PaginiCitite.h"
#include "cases/ListaCereri.h"

#include <QAbstractTableModel>
#include <vector>

class BazaDate;

// The rows of lvwCereri, read from the database a page at a time as the view shows them: a
// search costs the count and the first screen, whatever the size of the office. A column click
// orders the same search by that column.
class ModelCereri : public QAbstractTableModel {
    Q_OBJECT
public:
    using Coloana = ListaCereri::Coloana;
    using enum ListaCereri::Coloana;

    explicit ModelCereri(BazaDate& db, QObject* parinte = nullptr);

    // Runs the search: the count, then pages as they are asked for.
    void Seteaza(const FiltruCautare& f);
    const FiltruCautare& Filtru() const { return filtru_; }
    qint64 Total() const { return total_; }

    // The row at a position, read with its page when needed; nullptr outside the list or when the
    // read failed (the failure is signalled once).
    const RandCerere* Rand(int rand) const;
    // The position of a request among the rows read so far; -1 when not read.
    int RandulCererii(qint64 cerereID) const;
    void Inlocuieste(int rand, const RandCerere& r);
    // A request added by the clerk goes below the list, as it always did, until the next search.
    void Adauga(const RandCerere& r);
    // After the request of that row was deleted.
    void Elimina(int rand);

    static QString Text(const RandCerere& r, int coloana);

    int rowCount(const QModelIndex& parinte = {}) const override;
    int columnCount(const QModelIndex& parinte = {}) const override;
    QVariant data(const QModelIndex& index, int rol) const override;
    QVariant headerData(int sectiune, Qt::Orientation o, int rol) const override;
    void sort(int coloana, Qt::SortOrder ordine = Qt::AscendingOrder) override;

Q_SIGNALS:
    void EroareCitire(const QString& text) const;

private:
    BazaDate& db_;
    FiltruCautare filtru_;
    qint64 total_ = 0; // rows of the search, without the added ones
    std::vector<RandCerere> adaugate_;
    PaginiCitite<RandCerere> pagini_;
};
