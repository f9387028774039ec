#include "maintenance/frmRestaurare.h"

#include "base/Mesaje.h"
#include "maintenance/Copii.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

frmRestaurare::frmRestaurare(const LocatieBD& loc, Mesaje& m, QWidget* parinte) : QDialog(parinte), m_(m) {
    setObjectName(QStringLiteral("frmRestaurare"));
    setWindowTitle(QStringLiteral("Restaurare copie"));
    auto* asezare = new QVBoxLayout(this);
    asezare->addWidget(new QLabel(QStringLiteral("Copiile bazei de date din %1:")
                                      .arg(QDir::toNativeSeparators(QDir(loc.caleBD).filePath(Copii::NumeFolder))),
                                  this));
    lvwCopii = new QTreeWidget(this);
    lvwCopii->setObjectName(QStringLiteral("lvwCopii"));
    lvwCopii->setRootIsDecorated(false);
    lvwCopii->setHeaderLabels({QStringLiteral("Data"), QStringLiteral("Marime"), QStringLiteral("Fisier")});
    const QLocale ro(QLocale::Romanian, QLocale::Romania);
    for (const Copii::CopieGasita& c : Copii::Lista(loc)) {
        auto* r = new QTreeWidgetItem(lvwCopii, {c.cand.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss")),
                                                 ro.formattedDataSize(c.marime), QFileInfo(c.fisier).fileName()});
        r->setData(0, Qt::UserRole, c.fisier);
        r->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
    }
    lvwCopii->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    if (lvwCopii->topLevelItemCount() > 0) lvwCopii->setCurrentItem(lvwCopii->topLevelItem(0));
    asezare->addWidget(lvwCopii);

    auto* butoane = new QDialogButtonBox(this);
    butoane->addButton(QStringLiteral("Inchide"), QDialogButtonBox::RejectRole);
    cmdRestaureaza = butoane->addButton(QStringLiteral("Restaureaza"), QDialogButtonBox::ActionRole);
    cmdRestaureaza->setObjectName(QStringLiteral("cmdRestaureaza"));
    cmdRestaureaza->setEnabled(lvwCopii->topLevelItemCount() > 0);
    asezare->addWidget(butoane);
    connect(cmdRestaureaza, &QPushButton::clicked, this, &frmRestaurare::cmdRestaureaza_Click);
    connect(butoane, &QDialogButtonBox::rejected, this, &QDialog::reject);
    resize(620, 420);
}

void frmRestaurare::cmdRestaureaza_Click() {
    const QTreeWidgetItem* r = lvwCopii->currentItem();
    if (!r) {
        m_.Informatie(QStringLiteral("Selectati copia care va fi pusa inapoi!"));
        return;
    }
    if (!m_.Intrebare(QStringLiteral("Baza de date va fi inlocuita cu copia din %1.\nBaza de date de acum se pastreaza "
                                     "in folderul copiilor. Programul se inchide si porneste din nou.\n%2")
                          .arg(r->text(0), Copii::IntrebareRestaurare),
                      {}, false))
        return;
    Aleasa = r->data(0, Qt::UserRole).toString();
    accept();
}
