#include "cases/frmListaActeExpira.h"

#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "shell/Ceas.h"
#include "shell/Eroare.h"
#include "shell/Functii.h"
#include "shell/Mesaje.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {
enum Rol { RolCerere = Qt::UserRole + 1, RolAdev };
}

frmListaActeExpira::frmListaActeExpira(BazaDate& db, Mesaje& m, QWidget* parinte) : QDialog(parinte), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmListaActeExpira"));
    auto* asezare = new QVBoxLayout(this);
    lvwActe = new QTreeWidget(this);
    lvwActe->setObjectName(QStringLiteral("lvwActe"));
    lvwActe->setRootIsDecorated(false);
    lvwActe->setUniformRowHeights(true);
    lvwActe->setAllColumnsShowFocus(true);
    lvwActe->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwActe->setHeaderLabels({QStringLiteral("ID"), QStringLiteral("#"), QStringLiteral("Membru"),
                              QStringLiteral("Tip Act"), QStringLiteral("Data Exp")});
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
    connect(lvwActe, &QTreeWidget::itemDoubleClicked, this, &frmListaActeExpira::lvwActe_DblClick);

    resize(620, 420);
    AfisLista();
}

void frmListaActeExpira::AfisLista() {
    const QDate azi = Ceas::Azi();
    setWindowTitle(Adeverinte::TitluActeExpira(azi));
    std::vector<RandActExpira> randuri;
    try {
        randuri = Adeverinte::ListaActeExpira(db_, azi);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    lvwActe->clear();
    if (randuri.empty()) {
        AscundeNotificarea();
        Timer1->start();
        return;
    }
    QList<QTreeWidgetItem*> iteme;
    iteme.reserve(qsizetype(randuri.size()));
    int nr = 0;
    for (const RandActExpira& r : randuri) {
        auto* i = new QTreeWidgetItem(QStringList{QString::number(r.MembruID), QString::number(++nr), r.Membru,
                                                  r.TipAct, FormatData(r.DataExpAdev)});
        i->setData(0, RolCerere, r.CerereID);
        i->setData(0, RolAdev, r.AdevID);
        iteme << i;
    }
    lvwActe->addTopLevelItems(iteme);
    for (int c = 0; c < lvwActe->columnCount(); ++c)
        lvwActe->resizeColumnToContents(c);
    lvwActe->setCurrentItem(lvwActe->topLevelItem(0));
}

void frmListaActeExpira::Timer1_Timer() {
    Timer1->stop();
    AscundeNotificarea();
    close();
}

void frmListaActeExpira::lvwActe_DblClick() {
    const auto selectate = lvwActe->selectedItems();
    if (selectate.isEmpty()) {
        m_.Informatie(QStringLiteral("Selectati o cerere"));
        return;
    }
    const QTreeWidgetItem* r = selectate.first();
    const qint64 membru = r->text(0).toLongLong();
    std::optional<qint64> cerere;
    try {
        cerere = Adeverinte::CerereActExpira(db_, membru, r->data(0, RolCerere).toLongLong(), Ceas::Azi());
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    if (!cerere) {
        m_.Informatie(TextRandNegasit);
        AfisLista();
        return;
    }
    if (DeschideCerere(*cerere, membru)) AfisLista();
}
