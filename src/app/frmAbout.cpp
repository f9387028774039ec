#include "app/frmAbout.h"

#include "store/BazaDate.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

frmAbout::frmAbout(BazaDate& bd, QWidget* parinte) : QDialog(parinte), bd_(bd) {
    setObjectName(QStringLiteral("frmAbout"));
    setWindowTitle(QStringLiteral("Despre program"));
    auto* asezare = new QVBoxLayout(this);
    auto* titlu = new QLabel(QStringLiteral("<h2>Ferolanta</h2>"), this);
    asezare->addWidget(titlu);
    asezare->addWidget(new QLabel(QStringLiteral("Versiunea %1").arg(QStringLiteral(FEROLANTA_VERSIUNE)), this));
    auto* descriere =
        new QLabel(QStringLiteral("Evidenta dosarelor de alocatie pentru sustinerea familiei (Legea 277/2010): "
                                  "cereri, membri, venituri, bunuri, dispozitii, anchete sociale si situatiile "
                                  "lunare pentru agentia judeteana."),
                   this);
    descriere->setWordWrap(true);
    asezare->addWidget(descriere);
    auto* butoane = new QHBoxLayout;
    cmdSysInfo = new QPushButton(QStringLiteral("Informatii sistem..."), this);
    cmdSysInfo->setObjectName(QStringLiteral("cmdSysInfo"));
    cmdOK = new QPushButton(QStringLiteral("OK"), this);
    cmdOK->setObjectName(QStringLiteral("cmdOK"));
    butoane->addWidget(cmdSysInfo);
    butoane->addStretch();
    butoane->addWidget(cmdOK);
    asezare->addLayout(butoane);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(cmdSysInfo, &QPushButton::clicked, this,
            [this] { QMessageBox::information(this, QStringLiteral("Informatii sistem"), InformatiiSistem(bd_)); });
    resize(460, 220);
}

QString frmAbout::InformatiiSistem(BazaDate& bd) {
    return QStringLiteral("Sistem de operare: %1\nNucleu: %2 %3\nArhitectura: %4\nCalculator: %5\nQt: %6\n"
                          "Baza de date: %7\nLocatia: %8")
        .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
             QSysInfo::currentCpuArchitecture(), QSysInfo::machineHostName(), QString::fromLatin1(qVersion()),
             bd.dialect().NumeEngine(), bd.locatie().Descriere());
}
