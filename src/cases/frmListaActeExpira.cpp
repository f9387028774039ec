#include "cases/frmListaActeExpira.h"

#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "base/Ceas.h"
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

class ModelActeExpira : public QAbstractTableModel {
public:
    using QAbstractTableModel::QAbstractTableModel;

    void Pune(std::vector<RandActExpira> randuri) {
        beginResetModel();
        randuri_ = std::move(randuri);
        endResetModel();
    }
    const RandActExpira& Rand(int rand) const { return randuri_[size_t(rand)]; }

    int rowCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : int(randuri_.size()); }
    int columnCount(const QModelIndex& p = {}) const override { return p.isValid() ? 0 : 5; }
    QVariant data(const QModelIndex& i, int rol) const override {
        if (rol != Qt::DisplayRole || !i.isValid() || size_t(i.row()) >= randuri_.size()) return {};
        const RandActExpira& r = randuri_[size_t(i.row())];
        switch (i.column()) {
        case 0:
            return QString::number(r.MembruID);
        case 1:
            return QString::number(i.row() + 1);
        case 2:
            return r.Membru;
        case 3:
            return r.TipAct;
        case 4:
            return FormatData(r.DataExpAdev);
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
    std::vector<RandActExpira> randuri_;
};

frmListaActeExpira::frmListaActeExpira(BazaDate& db, Mesaje& m, QWidget* parinte) : QDialog(parinte), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmListaActeExpira"));
    auto* asezare = new QVBoxLayout(this);
    model_ = new ModelActeExpira(this);
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
    std::vector<RandActExpira> randuri;
    if (!LaMargine(m_, [&] { randuri = Adeverinte::ListaActeExpira(db_, azi); })) return;
    const bool gol = randuri.empty();
    model_->Pune(std::move(randuri));
    if (gol) {
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
    const RandActExpira& r = model_->Rand(selectate.first().row());
    const qint64 membru = r.MembruID;
    std::optional<qint64> cerere;
    if (!LaMargine(m_, [&] { cerere = Adeverinte::CerereActExpira(db_, membru, r.CerereID, Ceas::Azi()); })) return;
    if (!cerere) {
        m_.Informatie(TextRandNegasit);
        AfisLista();
        return;
    }
    if (DeschideCerere(*cerere, membru)) AfisLista();
}
