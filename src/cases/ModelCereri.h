#pragma once

#include "cases/ListaCereri.h"

#include <QAbstractTableModel>
#include <vector>

// The rows of lvwCereri. Sorting by a column compares the texts shown, as the old list did.
class ModelCereri : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Coloana {
        ID,
        NrCerere,
        Tip,
        Stare,
        Data,
        Solicitant,
        CNP,
        Adresa,
        VenitTotal,
        Cuantum,
        NrMembrii,
        NrCopii,
        NrColoane
    };

    using QAbstractTableModel::QAbstractTableModel;

    void Seteaza(std::vector<RandCerere> randuri);
    const RandCerere* Rand(int rand) const;
    int RandulCererii(qint64 cerereID) const;
    void Inlocuieste(int rand, const RandCerere& r);
    void Adauga(const RandCerere& r);
    void Elimina(int rand);

    static QString Text(const RandCerere& r, int coloana);

    int rowCount(const QModelIndex& parinte = {}) const override;
    int columnCount(const QModelIndex& parinte = {}) const override;
    QVariant data(const QModelIndex& index, int rol) const override;
    QVariant headerData(int sectiune, Qt::Orientation o, int rol) const override;
    void sort(int coloana, Qt::SortOrder ordine = Qt::AscendingOrder) override;

private:
    std::vector<RandCerere> randuri_;
};
