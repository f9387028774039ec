#include "cases/ModelCereri.h"

#include "base/Eroare.h"
#include "base/Sume.h"

#include <QBrush>
#include <QColor>

namespace {

const char* const Titluri[] = {"ID",  "Nr cerere", "Tip",      "Stare",   "Data",        "Solicitant",
                               "CNP", "Adresa",    "V. total", "Cuantum", "Nr. membrii", "Nr. copii"};

} // namespace

ModelCereri::ModelCereri(BazaDate& db, QObject* parinte) : QAbstractTableModel(parinte), db_(db) {}

void ModelCereri::Seteaza(const FiltruCautare& f) {
    beginResetModel();
    filtru_ = f;
    filtru_.Fara.clear();
    adaugate_.clear();
    pagini_.Goleste();
    total_ = 0;
    try {
        total_ = ListaCereri::Numara(db_, filtru_);
    } catch (const Eroare&) {
        // The list stays empty; the caller shows why.
        endResetModel();
        throw;
    }
    endResetModel();
}

const RandCerere* ModelCereri::Rand(int rand) const {
    if (rand < 0 || rand >= rowCount()) return nullptr;
    if (rand >= total_) return &adaugate_[size_t(rand - total_)];
    return pagini_.La(
        rand, [this](qint64 deLa, qint64 cate) { return ListaCereri::Pagina(db_, filtru_, deLa, cate, total_); },
        [this](const QString& text) { Q_EMIT EroareCitire(text); });
}

int ModelCereri::RandulCererii(qint64 cerereID) const {
    if (const qint64 i = pagini_.Cauta([&](const RandCerere& r) { return r.CerereID == cerereID; }); i >= 0)
        return int(i);
    for (size_t i = 0; i < adaugate_.size(); ++i)
        if (adaugate_[i].CerereID == cerereID) return int(total_ + qint64(i));
    return -1;
}

void ModelCereri::Inlocuieste(int rand, const RandCerere& r) {
    if (!Rand(rand)) return;
    if (rand >= total_)
        adaugate_[size_t(rand - total_)] = r;
    else if (RandCerere* citit = pagini_.Citit(rand))
        *citit = r;
    Q_EMIT dataChanged(index(rand, 0), index(rand, NrColoane - 1));
}

void ModelCereri::Adauga(const RandCerere& r) {
    const int n = rowCount();
    beginInsertRows({}, n, n);
    filtru_.Fara << r.CerereID;
    adaugate_.push_back(r);
    endInsertRows();
}

void ModelCereri::Elimina(int rand) {
    if (rand < 0 || rand >= rowCount()) return;
    beginRemoveRows({}, rand, rand);
    if (rand >= total_) {
        adaugate_.erase(adaugate_.begin() + (rand - total_));
    } else {
        // The request is gone from the database: the rows after it move up when read again.
        --total_;
        pagini_.Goleste();
    }
    endRemoveRows();
}

QString ModelCereri::Text(const RandCerere& r, int coloana) {
    switch (coloana) {
    case ID:
        return QString::number(r.CerereID);
    case NrCerere:
        return r.NrCerere;
    case Tip:
        return r.Tip;
    case Stare:
        return r.StareText;
    case Data:
        return r.DataCerere.isValid() ? r.DataCerere.toString(QStringLiteral("dd.MM.yyyy")) : QString();
    case Solicitant:
        return r.Solicitant;
    case CNP:
        return r.CNP;
    case Adresa:
        return r.Adresa;
    case VenitTotal:
        return FormatSuma(r.VenitTotal);
    case Cuantum:
        return FormatSuma(r.Cuantum);
    case NrMembrii:
        return QString::number(r.NrMembrii);
    case NrCopii:
        return QString::number(r.NrCopii);
    default:
        return {};
    }
}

int ModelCereri::rowCount(const QModelIndex& parinte) const {
    return parinte.isValid() ? 0 : int(total_ + qint64(adaugate_.size()));
}

int ModelCereri::columnCount(const QModelIndex& parinte) const {
    return parinte.isValid() ? 0 : NrColoane;
}

QVariant ModelCereri::data(const QModelIndex& index, int rol) const {
    const RandCerere* r = Rand(index.row());
    if (!r) return {};
    switch (rol) {
    case Qt::DisplayRole:
        return Text(*r, index.column());
    case Qt::ForegroundRole:
        return r->Rosu() ? QVariant(QBrush(QColor(255, 0, 0))) : QVariant();
    case Qt::TextAlignmentRole:
        return index.column() >= VenitTotal ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case Qt::UserRole:
        return r->CerereID;
    default:
        return {};
    }
}

QVariant ModelCereri::headerData(int sectiune, Qt::Orientation o, int rol) const {
    if (o == Qt::Horizontal && rol == Qt::DisplayRole && sectiune >= 0 && sectiune < NrColoane)
        return QString::fromLatin1(Titluri[sectiune]);
    return {};
}

void ModelCereri::sort(int coloana, Qt::SortOrder) {
    if (coloana < 0 || coloana >= NrColoane) return;
    FiltruCautare f = filtru_;
    f.Ordine = ListaCereri::Coloana(coloana);
    Seteaza(f);
}
