#include "shell/frmMain.h"

#include "store/BazaDate.h"

#include <QLabel>
#include <QStatusBar>
#include <QVBoxLayout>

frmMain::frmMain(BazaDate& bd, QWidget* parinte) : QMainWindow(parinte), bd_(bd) {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Alocatii-207"));
    auto* centru = new QWidget(this);
    auto* asezare = new QVBoxLayout(centru);
    lblBaza_ = new QLabel(centru);
    lblBaza_->setObjectName(QStringLiteral("lblBaza"));
    lblBaza_->setText(QStringLiteral("Baza de date: %1 (%2)").arg(bd_.locatie().Descriere(), bd_.dialect().NumeEngine()));
    lblBaza_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    asezare->addWidget(lblBaza_);
    asezare->addStretch();
    setCentralWidget(centru);
    statusBar()->showMessage(QStringLiteral("Versiune: %1").arg(QStringLiteral(FEROLANTA_VERSIUNE)));
    resize(900, 600);
}
