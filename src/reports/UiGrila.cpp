#include "reports/UiGrila.h"

#include "reports/Desen.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <utility>

namespace {

using namespace Raport;

// Content cells of the grid at view positions one less, the fixed row and column in the headers.
class ModelGrila : public QAbstractTableModel {
public:
    ModelGrila(const Grila& g, QObject* parinte) : QAbstractTableModel(parinte), g_(g) {}

    void Reincarca() {
        beginResetModel();
        endResetModel();
    }

    int rowCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : g_.Randuri() - 1; }
    int columnCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : g_.Coloane() - 1; }

    QVariant data(const QModelIndex& i, int rol) const override {
        if (!i.isValid()) return {};
        const int r = i.row() + 1, c = i.column() + 1;
        const Celula& x = g_.La(r, c);
        switch (rol) {
        case Qt::DisplayRole:
            return x.text;
        case Qt::FontRole:
            return FontQt(g_.FontCelula(r, c));
        case Qt::TextAlignmentRole:
            return AliniereQt(g_.AliniereCelula(r, c));
        }
        return {};
    }

    QVariant headerData(int sectiune, Qt::Orientation o, int rol) const override {
        if (rol != Qt::DisplayRole) return {};
        const QString text = o == Qt::Horizontal ? g_.Text(0, sectiune + 1) : g_.Text(sectiune + 1, 0);
        return text.isEmpty() ? QVariant(QString::number(sectiune + 1)) : QVariant(text);
    }

    const Grila& grila() const { return g_; }

private:
    const Grila& g_;
};

// Text as the view draws it, wrapped where the cell says, and the cell's own lines over it.
class DelegatGrila : public QStyledItemDelegate {
public:
    DelegatGrila(const Grila& g, QObject* parinte) : QStyledItemDelegate(parinte), g_(g) {}

    void initStyleOption(QStyleOptionViewItem* o, const QModelIndex& i) const override {
        QStyledItemDelegate::initStyleOption(o, i);
        if (g_.La(i.row() + 1, i.column() + 1).incadrare) o->features |= QStyleOptionViewItem::WrapText;
    }

    void paint(QPainter* p, const QStyleOptionViewItem& o, const QModelIndex& i) const override {
        QStyledItemDelegate::paint(p, o, i);
        DeseneazaLinii(*p, g_.La(i.row() + 1, i.column() + 1), QRectF(o.rect).adjusted(0, 0, -1, -1));
    }

private:
    const Grila& g_;
};

} // namespace

UiGrila::UiGrila(QWidget* parinte) : QTableView(parinte) {
    model_ = new ModelGrila(grila_, this);
    setModel(model_);
    setItemDelegate(new DelegatGrila(grila_, this));
    setShowGrid(false);
    setWordWrap(true);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    // The look the legacy grid took before each report.
    setStyleSheet(QStringLiteral("QTableView { background: rgb(231,235,247); selection-background-color: "
                                 "rgb(148,190,231); } QHeaderView::section { background: rgb(90,158,214); }"));
}

void UiGrila::Arata(Raport::Grila g) {
    grila_ = std::move(g);
    clearSpans();
    static_cast<ModelGrila*>(model_)->Reincarca();
    for (int c = 1; c < grila_.Coloane(); ++c)
        setColumnWidth(c - 1, grila_.LatimeColoana(c));
    verticalHeader()->setDefaultSectionSize(grila_.inaltimeImplicita);
    for (int r = 1; r < grila_.Randuri(); ++r)
        if (grila_.InaltimeProprie(r) > 0) setRowHeight(r - 1, grila_.InaltimeRand(r));
    for (const Dreptunghi& u : grila_.Uniri())
        if (u.rand1 >= 1 && u.col1 >= 1) setSpan(u.rand1 - 1, u.col1 - 1, u.rand2 - u.rand1 + 1, u.col2 - u.col1 + 1);
}
