#include "cases/frmMembrii.h"

#include "cases/ControalePersoana.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QAbstractTableModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <functional>
#include <unordered_map>

// The browser's rows as the view asks for them: every key is read at the opening, the texts a page
// at a time when the view first shows a row of the page.
class ModelMembrii : public QAbstractTableModel {
public:
    ModelMembrii(BazaDate& db, QObject* parinte) : QAbstractTableModel(parinte), db_(db) {}

    void Citeste() {
        std::vector<qint64> chei = CheiMembrii(db_);
        beginResetModel();
        chei_ = std::move(chei);
        pagini_.clear();
        endResetModel();
    }
    // The row of a person; the keys are in order.
    std::optional<int> Rand(qint64 membruID) const {
        const auto i = std::lower_bound(chei_.begin(), chei_.end(), membruID);
        if (i == chei_.end() || *i != membruID) return std::nullopt;
        return int(i - chei_.begin());
    }
    qint64 Cheie(int rand) const { return chei_[size_t(rand)]; }

    int rowCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : int(chei_.size()); }
    int columnCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : 7; }
    QVariant data(const QModelIndex& i, int rol) const override {
        if (rol != Qt::DisplayRole || !i.isValid() || i.row() >= int(chei_.size())) return {};
        const RandMembrii& r = rand(i.row());
        switch (i.column()) {
        case 0:
            return QString::number(chei_[size_t(i.row())]);
        case 1:
            return r.Nume;
        case 2:
            return r.Prenume;
        case 3:
            return r.CNP;
        case 4:
            return r.TipAct;
        case 5:
            return r.SerieBI;
        case 6:
            return r.NrBI;
        }
        return {};
    }
    QVariant headerData(int sectiune, Qt::Orientation o, int rol) const override {
        static const QStringList titluri{QStringLiteral("ID"),   QStringLiteral("Nume"),    QStringLiteral("Prenume"),
                                         QStringLiteral("CNP"),  QStringLiteral("Tip Act"), QStringLiteral("Serie BI"),
                                         QStringLiteral("Nr BI")};
        if (o == Qt::Horizontal && rol == Qt::DisplayRole && sectiune >= 0 && sectiune < titluri.size())
            return titluri[sectiune];
        return QAbstractTableModel::headerData(sectiune, o, rol);
    }

private:
    static constexpr int Pagina = 256;

    const RandMembrii& rand(int i) const {
        const int pagina = i / Pagina;
        auto p = pagini_.find(pagina);
        if (p == pagini_.end()) p = pagini_.emplace(pagina, citestePagina(pagina)).first;
        return p->second[size_t(i % Pagina)];
    }
    // The rows of one page in the places of their keys. A person deleted since the keys were read
    // leaves an empty row; a failed read leaves the page empty rather than stop the painting.
    std::vector<RandMembrii> citestePagina(int pagina) const {
        const size_t inceput = size_t(pagina) * Pagina;
        const size_t sfarsit = std::min(chei_.size(), inceput + Pagina);
        std::vector<RandMembrii> r(sfarsit - inceput);
        std::vector<RandMembrii> citite;
        try {
            citite = RanduriMembrii(db_, chei_[inceput], chei_[sfarsit - 1]);
        } catch (const Eroare&) {
        }
        auto c = citite.begin();
        for (size_t k = inceput; k < sfarsit; ++k) {
            while (c != citite.end() && c->MembruID < chei_[k])
                ++c;
            if (c != citite.end() && c->MembruID == chei_[k]) r[k - inceput] = *c;
        }
        return r;
    }

    BazaDate& db_;
    std::vector<qint64> chei_;
    mutable std::unordered_map<int, std::vector<RandMembrii>> pagini_;
};

namespace {

// Enter in a search box runs its search instead of closing the dialog.
class CasetaCautare : public QLineEdit {
public:
    using QLineEdit::QLineEdit;
    std::function<void()> laEnter;

protected:
    void keyPressEvent(QKeyEvent* e) override {
        if ((e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && laEnter) {
            laEnter();
            e->accept();
            return;
        }
        QLineEdit::keyPressEvent(e);
    }
};

} // namespace

frmMembrii::frmMembrii(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmMembrii"));
    setWindowTitle(QStringLiteral("Membrii"));

    auto* cautare = new QHBoxLayout;
    const QString etichete[3] = {QStringLiteral("CNP:"), QStringLiteral("Prenume:"), QStringLiteral("Nume:")};
    for (int i = 0; i < 3; ++i) {
        auto* t = new CasetaCautare(this);
        t->setObjectName(QStringLiteral("Txt_%1").arg(i));
        t->setMaxLength(i == 0 ? 13 : 50);
        t->laEnter = [this, i] { Txt_KeyPress(i); };
        Txt[size_t(i)] = t;
        auto* l = new QLabel(etichete[i], this);
        l->setBuddy(t);
        cautare->addWidget(l);
        cautare->addWidget(t, 1);
    }
    auto* indiciu = new QLabel(QStringLiteral("Scrieti inceputul si apasati Enter pentru cautare."), this);

    model_ = new ModelMembrii(bd_, this);
    lvwMembrii = new QTableView(this);
    lvwMembrii->setObjectName(QStringLiteral("lvwMembrii"));
    lvwMembrii->setModel(model_);
    lvwMembrii->setSelectionBehavior(QAbstractItemView::SelectRows);
    lvwMembrii->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwMembrii->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lvwMembrii->setAlternatingRowColors(true);
    lvwMembrii->verticalHeader()->setVisible(false);
    // Fixed heights and widths: measuring hundreds of thousands of rows would hold the window.
    lvwMembrii->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    lvwMembrii->verticalHeader()->setDefaultSectionSize(lvwMembrii->fontMetrics().height() + 6);
    lvwMembrii->horizontalHeader()->setStretchLastSection(true);
    const int latimi[] = {70, 170, 170, 130, 80, 80};
    for (int i = 0; i < 6; ++i)
        lvwMembrii->setColumnWidth(i, latimi[i]);

    auto* butoane = new QHBoxLayout;
    cmdAdd = Buton(this, butoane, "cmdAdd", QStringLiteral("Adauga"));
    cmdEdit = Buton(this, butoane, "cmdEdit", QStringLiteral("Modifica"));
    cmdDelete = Buton(this, butoane, "cmdDelete", QStringLiteral("Sterge"));
    for (QPushButton* b : {cmdAdd, cmdEdit, cmdDelete}) {
        b->setEnabled(false);
        b->setToolTip(QStringLiteral("Persoanele se modifica din cererea lor."));
    }
    butoane->addStretch(1);
    cmdCancel = Buton(this, butoane, "cmdCancel", QStringLiteral("Inchide"));
    connect(cmdCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto* tot = new QVBoxLayout(this);
    tot->addLayout(cautare);
    tot->addWidget(indiciu);
    tot->addWidget(lvwMembrii, 1);
    tot->addLayout(butoane);
    resize(900, 560);

    LaMargine(m_, [&] { model_->Citeste(); });
}

void frmMembrii::Txt_KeyPress(int camp) {
    static constexpr CautareMembrii campuri[] = {CautareMembrii::CNP, CautareMembrii::Prenume, CautareMembrii::Nume};
    if (camp < 0 || camp > 2) return;
    const QString text = Txt[size_t(camp)]->text();
    std::optional<qint64> gasit;
    if (!LaMargine(m_, [&] { gasit = CautaInMembrii(bd_, campuri[camp], text, m_); })) return;
    if (!gasit) return;
    // A person added after the list was read: the list is read again to show it.
    std::optional<int> rand = model_->Rand(*gasit);
    if (!rand) {
        if (!LaMargine(m_, [&] { model_->Citeste(); })) return;
        rand = model_->Rand(*gasit);
        if (!rand) return;
    }
    const QModelIndex i = model_->index(*rand, 0);
    lvwMembrii->selectionModel()->setCurrentIndex(i, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    lvwMembrii->scrollTo(i, QAbstractItemView::PositionAtCenter);
}

std::optional<qint64> frmMembrii::MembruSelectat() const {
    const QModelIndexList r = lvwMembrii->selectionModel()->selectedRows();
    if (r.isEmpty()) return std::nullopt;
    return model_->Cheie(r.first().row());
}

int frmMembrii::NrRanduri() const {
    return model_->rowCount();
}

QStringList frmMembrii::TexteRand(int rand) const {
    QStringList t;
    for (int c = 0; c < model_->columnCount(); ++c)
        t << model_->data(model_->index(rand, c), Qt::DisplayRole).toString();
    return t;
}
