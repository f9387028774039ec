#include "cases/frmAdeverinte.h"

#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "cases/frmAdAdeverinte.h"
#include "shell/Ceas.h"
#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Pornire.h"
#include "store/UiListe.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

enum Coloana { ColID = 0, ColNrAdev = 6 };
enum Rol { RolCerere = Qt::UserRole + 1, RolMembru };

const QString FaraSelectie = QStringLiteral("Selectati mai intai o adeverinta");

} // namespace

frmAdeverinte::frmAdeverinte(BazaDate& db, Mesaje& m, QWidget* parinte) : QDialog(parinte), db_(db), m_(m) {
    setObjectName(QStringLiteral("frmAdeverinte"));
    setWindowTitle(QStringLiteral("Adeverinte scolarizare"));
    auto* asezare = new QVBoxLayout(this);
    lvwAdeverinte = new QTreeWidget(this);
    lvwAdeverinte->setObjectName(QStringLiteral("lvwAdeverinte"));
    lvwAdeverinte->setRootIsDecorated(false);
    lvwAdeverinte->setUniformRowHeights(true);
    lvwAdeverinte->setAllColumnsShowFocus(true);
    lvwAdeverinte->setSelectionMode(QAbstractItemView::SingleSelection);
    lvwAdeverinte->setHeaderLabels({QStringLiteral("ID"), QStringLiteral("Nr Cerere"), QStringLiteral("Nume Titular"),
                                    QStringLiteral("Nume Scolar"), QStringLiteral("Data nast"),
                                    QStringLiteral("Varsta"), QStringLiteral("Nr Adev"), QStringLiteral("Data Dep"),
                                    QStringLiteral("Data Adev"), QStringLiteral("Data expirarii"),
                                    QStringLiteral("Tip adeverinta")});
    asezare->addWidget(lvwAdeverinte);
    auto* butoane = new QHBoxLayout;
    auto buton = [&](QPushButton*& b, const char* nume, const QString& text) {
        b = new QPushButton(text, this);
        b->setObjectName(QString::fromLatin1(nume));
        b->setAutoDefault(false);
        butoane->addWidget(b);
    };
    buton(cmdAdd, "cmdAdd", QStringLiteral("Adauga"));
    buton(cmdEdit, "cmdEdit", QStringLiteral("Modifica"));
    buton(cmdDelete, "cmdDelete", QStringLiteral("Sterge"));
    butoane->addStretch(1);
    buton(cmdClose, "cmdClose", QStringLiteral("Inchide"));
    asezare->addLayout(butoane);
    connect(cmdAdd, &QPushButton::clicked, this, &frmAdeverinte::cmdAdd_Click);
    connect(cmdEdit, &QPushButton::clicked, this, &frmAdeverinte::cmdEdit_Click);
    connect(cmdDelete, &QPushButton::clicked, this, &frmAdeverinte::cmdDelete_Click);
    connect(cmdClose, &QPushButton::clicked, this, &QDialog::accept);
    connect(lvwAdeverinte, &QTreeWidget::itemDoubleClicked, this, &frmAdeverinte::cmdEdit_Click);

    resize(1000, 460);
    Incarca();
}

void frmAdeverinte::Incarca(qint64 selectat) {
    std::vector<RandAdeverintaScolara> randuri;
    try {
        randuri = Adeverinte::ListaAdeverinteScolare(db_, Ceas::Azi());
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    lvwAdeverinte->clear();
    QList<QTreeWidgetItem*> iteme;
    iteme.reserve(qsizetype(randuri.size()));
    QTreeWidgetItem* ales = nullptr;
    for (const RandAdeverintaScolara& r : randuri) {
        auto* i = new QTreeWidgetItem(QStringList{QString::number(r.AdevID), r.NrCerere, r.NumeTitular, r.NumeScolar,
                                                  r.DataNast, r.Varsta, r.NrAdev, r.DataDep, r.DataAdev,
                                                  r.DataExpirarii, r.TipAdeverinta});
        i->setData(ColID, Qt::UserRole, r.AdevID);
        i->setData(ColID, RolCerere, r.CerereID);
        i->setData(ColID, RolMembru, r.MembruID);
        if (r.AdevID == selectat) ales = i;
        iteme << i;
    }
    lvwAdeverinte->addTopLevelItems(iteme);
    for (int c = 0; c < lvwAdeverinte->columnCount(); ++c)
        lvwAdeverinte->resizeColumnToContents(c);
    if (!ales && !iteme.isEmpty()) ales = iteme.first();
    if (ales) {
        lvwAdeverinte->setCurrentItem(ales);
        lvwAdeverinte->scrollToItem(ales);
    }
}

void frmAdeverinte::cmdAdd_Click() {
    const auto selectate = lvwAdeverinte->selectedItems();
    if (selectate.isEmpty()) {
        m_.Informatie(FaraSelectie);
        return;
    }
    // The new certificate goes to the pupil of the selected row, on the same request.
    AdeverintaScolara rec;
    rec.CerereID = selectate.first()->data(ColID, RolCerere).toLongLong();
    rec.MembruID = selectate.first()->data(ColID, RolMembru).toLongLong();
    rec.TipAdeverinta = Adeverinte::TipScoala;
    frmAdAdeverinte f(db_, m_, 1, rec, this);
    ArataModal(f);
    if (f.ESTE_OK) Incarca(f.RecAdev.AdevID);
}

void frmAdeverinte::cmdEdit_Click() {
    const auto selectate = lvwAdeverinte->selectedItems();
    if (selectate.isEmpty()) {
        m_.Informatie(FaraSelectie);
        return;
    }
    QTreeWidgetItem* r = selectate.first();
    std::optional<AdeverintaScolara> rec;
    try {
        rec = Adeverinte::CitesteAdeverinta(db_, r->data(ColID, Qt::UserRole).toLongLong());
    } catch (const Eroare& e) {
        m_.Critic(e.text());
        return;
    }
    if (!rec) {
        m_.Informatie(TextRandNegasit);
        StergeRand(lvwAdeverinte, r);
        return;
    }
    frmAdAdeverinte f(db_, m_, 2, *rec, this);
    ArataModal(f);
    if (f.ESTE_OK) Incarca(f.RecAdev.AdevID);
}

void frmAdeverinte::cmdDelete_Click() {
    const auto selectate = lvwAdeverinte->selectedItems();
    if (selectate.isEmpty()) {
        m_.Informatie(FaraSelectie);
        return;
    }
    if (!VerificaBD(db_, m_)) return;
    QTreeWidgetItem* r = selectate.first();
    try {
        if (Adeverinte::StergeAdeverintaScolara(db_, m_, r->data(ColID, Qt::UserRole).toLongLong(), r->text(ColNrAdev)))
            StergeRand(lvwAdeverinte, r);
    } catch (const Eroare& e) {
        m_.Critic(e.text());
    }
}
