#include "reference/UiListe.h"

#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

RandLista::RandLista(qint64 cheie, const QStringList& texte)
    : QTreeWidgetItem(QStringList{QString::number(cheie)} + texte) {
    setData(0, Qt::UserRole, cheie);
}

qint64 RandLista::Cheie() const {
    return data(0, Qt::UserRole).toLongLong();
}

bool RandLista::operator<(const QTreeWidgetItem& alt) const {
    const int coloana = treeWidget() ? treeWidget()->sortColumn() : 0;
    if (coloana == 0) return Cheie() < alt.data(0, Qt::UserRole).toLongLong();
    return text(coloana).compare(alt.text(coloana), Qt::CaseInsensitive) < 0;
}

void PregatesteLista(QTreeWidget* l, const QStringList& coloane, bool sortare) {
    l->setRootIsDecorated(false);
    l->setUniformRowHeights(true);
    l->setAllColumnsShowFocus(true);
    l->setSelectionMode(QAbstractItemView::SingleSelection);
    l->setHeaderLabels(coloane);
    if (!sortare) return;
    l->header()->setSortIndicatorShown(true);
    l->setSortingEnabled(true);
    l->sortByColumn(0, Qt::AscendingOrder);
}

void AdaugaRand(QTreeWidget* l, RandLista* r) {
    l->addTopLevelItem(r);
    l->setCurrentItem(r);
    l->scrollToItem(r);
}

void StergeRand(QTreeWidget* l, QTreeWidgetItem* r) {
    int pozitie = l->indexOfTopLevelItem(r);
    delete r;
    if (l->topLevelItemCount() == 0) return;
    pozitie = qMin(pozitie, l->topLevelItemCount() - 1);
    l->setCurrentItem(l->topLevelItem(pozitie));
    l->scrollToItem(l->currentItem());
}

void LatimiColoane(QTreeWidget* l) {
    for (int c = 0; c < l->columnCount(); ++c)
        l->resizeColumnToContents(c);
}

QTreeWidgetItem* RandAles(QTreeWidget* l, Mesaje& m, const QString& faraSelectie) {
    const auto selectate = l->selectedItems();
    if (selectate.isEmpty()) {
        m.Informatie(faraSelectie);
        return nullptr;
    }
    return selectate.first();
}

bool RecitesteRandul(QTreeWidget* l, QTreeWidgetItem* r, Mesaje& m, const std::function<bool(qint64)>& citeste) {
    bool exista = false;
    if (!LaMargine(m, [&] { exista = citeste(r->data(0, Qt::UserRole).toLongLong()); })) return false;
    if (!exista) {
        m.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
        StergeRand(l, r);
    }
    return exista;
}

QHBoxLayout* RandComenziLista(QDialog* d, QTreeWidget* l, QPushButton*& adauga, QPushButton*& modifica,
                              QPushButton*& sterge, QPushButton*& inchide, const ComenziLista& c) {
    auto* rand = new QHBoxLayout;
    adauga = Buton(d, rand, "cmdAdd", QStringLiteral("Adauga"));
    modifica = Buton(d, rand, "cmdEdit", QStringLiteral("Modifica"));
    sterge = Buton(d, rand, "cmdDelete", QStringLiteral("Sterge"));
    rand->addStretch(1);
    inchide = Buton(d, rand, "cmdClose", QStringLiteral("Inchide"));
    QObject::connect(adauga, &QPushButton::clicked, d, c.Adauga);
    QObject::connect(modifica, &QPushButton::clicked, d, c.Modifica);
    QObject::connect(sterge, &QPushButton::clicked, d, c.Sterge);
    QObject::connect(inchide, &QPushButton::clicked, d, &QDialog::accept);
    QObject::connect(l, &QTreeWidget::itemDoubleClicked, d, c.Modifica);
    return rand;
}

bool ScrieRandLista(BazaDate& bd, Mesaje& m, QLineEdit* denumire,
                    const std::function<std::optional<QString>()>& verifica, const std::function<bool()>& scrie) {
    if (!VerificaBD(bd, m)) return false;
    return LaMargine(m, [&] {
        if (const auto refuz = verifica()) {
            m.Informatie(*refuz);
            denumire->setFocus();
            denumire->selectAll();
            return false;
        }
        if (!scrie()) {
            m.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
            return false;
        }
        return true;
    });
}
