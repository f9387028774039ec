#include "cases/ModelCereri.h"

#include "base/Sume.h"

#include <QBrush>
#include <QColor>
#include <algorithm>

namespace {

const char* const Titluri[] = {"ID",  "Nr cerere", "Tip",      "Stare",   "Data",        "Solicitant",
                               "CNP", "Adresa",    "V. total", "Cuantum", "Nr. membrii", "Nr. copii"};

} // namespace

void ModelCereri::Seteaza(std::vector<RandCerere> randuri) {
    beginResetModel();
    randuri_ = std::move(randuri);
    endResetModel();
}

const RandCerere* ModelCereri::Rand(int rand) const {
    return rand >= 0 && rand < int(randuri_.size()) ? &randuri_[size_t(rand)] : nullptr;
}

int ModelCereri::RandulCererii(qint64 cerereID) const {
    for (size_t i = 0; i < randuri_.size(); ++i)
        if (randuri_[i].CerereID == cerereID) return int(i);
    return -1;
}

void ModelCereri::Inlocuieste(int rand, const RandCerere& r) {
    if (!Rand(rand)) return;
    randuri_[size_t(rand)] = r;
    Q_EMIT dataChanged(index(rand, 0), index(rand, NrColoane - 1));
}

void ModelCereri::Adauga(const RandCerere& r) {
    const int n = int(randuri_.size());
    beginInsertRows({}, n, n);
    randuri_.push_back(r);
    endInsertRows();
}

void ModelCereri::Elimina(int rand) {
    if (!Rand(rand)) return;
    beginRemoveRows({}, rand, rand);
    randuri_.erase(randuri_.begin() + rand);
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
    return parinte.isValid() ? 0 : int(randuri_.size());
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

void ModelCereri::sort(int coloana, Qt::SortOrder ordine) {
    // Each text is made once: a large office's list holds a hundred thousand rows.
    std::vector<std::pair<QString, size_t>> chei;
    chei.reserve(randuri_.size());
    for (size_t i = 0; i < randuri_.size(); ++i)
        chei.emplace_back(Text(randuri_[i], coloana).toCaseFolded(), i);
    std::stable_sort(chei.begin(), chei.end(), [&](const auto& a, const auto& b) {
        return ordine == Qt::AscendingOrder ? a.first < b.first : b.first < a.first;
    });
    Q_EMIT layoutAboutToBeChanged();
    std::vector<RandCerere> sortate;
    sortate.reserve(randuri_.size());
    for (const auto& c : chei)
        sortate.push_back(std::move(randuri_[c.second]));
    randuri_ = std::move(sortate);
    Q_EMIT layoutChanged();
}
