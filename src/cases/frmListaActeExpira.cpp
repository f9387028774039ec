#include "cases/frmListaActeExpira.h"

#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "base/Ceas.h"
#include "base/PaginiCitite.h"
#include "base/Texte.h"
#include "base/Mesaje.h"
#include "ui/UiMargine.h"

#include <QAbstractTableModel>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QVBoxLayout>

// The month's certificates read a page at a time as the view shows them: a month of a large office
// holds more than a clerk scrolls through.
class ModelActeExpira : public QAbstractTableModel {
public:
    ModelActeExpira(BazaDate& db, Mesaje& m, QObject* parinte) : QAbstractTableModel(parinte), db_(db), m_(m) {}

    void Seteaza(const QDate& azi, qint64 total) {
        beginResetModel();
        azi_ = azi;
        total_ = total;
        pagini_.Goleste();
        endResetModel();
    }
    // The row at a position, read with its page when needed; nullptr when the read failed (said once).
    const RandActExpira* Rand(int rand) const {
        if (rand < 0 || rand >= total_) return nullptr;
        return pagini_.La(
            rand,
            [this](qint64 deLa, qint64 cate) { return Adeverinte::ListaActeExpira(db_, azi_, deLa, cate, total_); },
            // Met while the view paints: told after the paint.
            [this](const QString& text) {
                QMetaObject::invokeMethod(
                    const_cast<ModelActeExpira*>(this), [this, text] { m_.Critic(text); }, Qt::QueuedConnection);
            });
    }

    int rowCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : int(total_); }
    int columnCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : 5; }
    QVariant data(const QModelIndex& i, int rol) const override {
        if (rol != Qt::DisplayRole || !i.isValid()) return {};
        const RandActExpira* r = Rand(i.row());
        if (!r) return {};
        switch (i.column()) {
        case 0:
            return QString::number(r->MembruID);
        case 1:
            return QString::number(i.row() + 1);
        case 2:
            return r->Membru;
        case 3:
            return r->TipAct;
        case 4:
            return FormatData(r->DataExpAdev);
        }
        return {};
    }
    QVariant headerData(int sectiune, Qt::Orientation o, int rol) const override {
        static const QString antet[] = {QStringLiteral("ID"), QStringLiteral("#"), QStringLiteral("Membru"),
                                        QStringLiteral("Tip Act"), QStringLiteral("Data Exp")};
        if (o != Qt::Horizontal || rol != Qt::DisplayRole || sectiune < 0 || sectiune >= 5) return {};
        return antet[sectiune];
    }

private:
    BazaDate& db_;
    Mesaje& m_;
    QDate azi_;
    qint64 total_ = 0;
    PaginiCitite<RandActExpira> pagini_;
};

frmListaActeExpira::frmListaActeExpira(BazaDate& db, Mesaje& m, QWidget* parinte) : QDialog(parinte), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmListaActeExpira"));
    auto* asezare = new QVBoxLayout(this);
    model_ = new ModelActeExpira(db_, m_, this);
    lvwActe = new QTreeView(this);
    lvwActe->setObjectName(QStringLiteral("lvwActe"));
    lvwActe->setModel(model_);
    lvwActe->setRootIsDecorated(false);
    lvwActe->setItemsExpandable(false);
    lvwActe->setUniformRowHeights(true);
    lvwActe->setAllColumnsShowFocus(true);
    lvwActe->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwActe->setSelectionBehavior(QAbstractItemView::SelectRows);
    lvwActe->setEditTriggers(QAbstractItemView::NoEditTriggers);
    asezare->addWidget(lvwActe);
    auto* jos = new QHBoxLayout;
    lblInfo = new QLabel(QStringLiteral("Dublu click pe membru pentru detalii."), this);
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    jos->addWidget(lblInfo, 1);
    cmdClose = new QPushButton(QStringLiteral("Inchide"), this);
    cmdClose->setObjectName(QStringLiteral("cmdClose"));
    cmdClose->setAutoDefault(false);
    jos->addWidget(cmdClose);
    asezare->addLayout(jos);

    Timer1 = new QTimer(this);
    Timer1->setObjectName(QStringLiteral("Timer1"));
    Timer1->setInterval(250);
    connect(Timer1, &QTimer::timeout, this, &frmListaActeExpira::Timer1_Timer);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(lvwActe, &QAbstractItemView::doubleClicked, this, &frmListaActeExpira::lvwActe_DblClick);

    resize(620, 420);
    AfisLista();
}

void frmListaActeExpira::AfisLista() {
    const QDate azi = Ceas::Azi();
    setWindowTitle(Adeverinte::TitluActeExpira(azi));
    qint64 total = 0;
    if (!LaMargine(m_, [&] { total = Adeverinte::NumarActeExpira(db_, azi); })) return;
    model_->Seteaza(azi, total);
    if (total == 0) {
        AscundeNotificarea();
        Timer1->start();
        return;
    }
    // Sized from the rows in view and the header's sample, never from every row of the month.
    for (int c = 0; c < model_->columnCount(); ++c)
        lvwActe->resizeColumnToContents(c);
    lvwActe->setCurrentIndex(model_->index(0, 0));
}

void frmListaActeExpira::Timer1_Timer() {
    Timer1->stop();
    AscundeNotificarea();
    close();
}

void frmListaActeExpira::lvwActe_DblClick() {
    const auto selectate = lvwActe->selectionModel()->selectedRows();
    if (selectate.isEmpty()) {
        m_.Informatie(QStringLiteral("Selectati o cerere"));
        return;
    }
    const RandActExpira* r = model_->Rand(selectate.first().row());
    if (!r) return;
    const qint64 membru = r->MembruID, cerereRand = r->CerereID;
    std::optional<qint64> cerere;
    if (!LaMargine(m_, [&] { cerere = Adeverinte::CerereActExpira(db_, membru, cerereRand, Ceas::Azi()); })) return;
    if (!cerere) {
        m_.Informatie(TextRandNegasit);
        AfisLista();
        return;
    }
    if (DeschideCerere(*cerere, membru)) AfisLista();
}
