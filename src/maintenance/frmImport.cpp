#include "maintenance/frmImport.h"

#include "base/Mesaje.h"
#include "maintenance/ImportVechi.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

frmImport::frmImport(BazaDate& bd, Mesaje& m, const QString& folderDate, QWidget* parinte)
    : QDialog(parinte), bd_(bd), m_(m), folderDate_(folderDate) {
    setObjectName(QStringLiteral("frmImport"));
    setWindowTitle(QStringLiteral("Import baza de date veche"));
    resize(640, 420);
    auto* principal = new QVBoxLayout(this);
    principal->addWidget(new QLabel(QStringLiteral("Baza de date veche: fisierul .mdb sau folderul cu fisierele .csv "
                                                   "(cate unul pentru fiecare tabela)."),
                                    this));
    auto* rand = new QHBoxLayout;
    txtSursa = new QLineEdit(this);
    txtSursa->setObjectName(QStringLiteral("txtSursa"));
    cmdFisier = new QPushButton(QStringLiteral("Fisier .mdb..."), this);
    cmdFisier->setObjectName(QStringLiteral("cmdFisier"));
    cmdFolder = new QPushButton(QStringLiteral("Folder .csv..."), this);
    cmdFolder->setObjectName(QStringLiteral("cmdFolder"));
    rand->addWidget(txtSursa, 1);
    rand->addWidget(cmdFisier);
    rand->addWidget(cmdFolder);
    principal->addLayout(rand);
    barProgres = new QProgressBar(this);
    barProgres->setObjectName(QStringLiteral("barProgres"));
    barProgres->setVisible(false);
    principal->addWidget(barProgres);
    txtRaport = new QPlainTextEdit(this);
    txtRaport->setObjectName(QStringLiteral("txtRaport"));
    txtRaport->setReadOnly(true);
    txtRaport->setLineWrapMode(QPlainTextEdit::NoWrap);
    principal->addWidget(txtRaport, 1);
    principal->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));
    cmdOK->setText(QStringLiteral("Importa"));
    cmdCancel->setText(QStringLiteral("Inchide"));

    connect(cmdFisier, &QPushButton::clicked, this, [this] {
        const QString f = QFileDialog::getOpenFileName(this, QStringLiteral("Baza de date veche"), txtSursa->text(),
                                                       QStringLiteral("Baze de date Access (*.mdb);;Toate (*)"));
        if (!f.isEmpty()) txtSursa->setText(QDir::toNativeSeparators(f));
    });
    connect(cmdFolder, &QPushButton::clicked, this, [this] {
        const QString d =
            QFileDialog::getExistingDirectory(this, QStringLiteral("Folderul cu fisierele .csv"), txtSursa->text());
        if (!d.isEmpty()) txtSursa->setText(QDir::toNativeSeparators(d));
    });
}

void frmImport::cmdOK_Click() {
    const QString sursa = txtSursa->text().trimmed();
    if (sursa.isEmpty()) {
        m_.Informatie(QStringLiteral("Alegeti fisierul .mdb sau folderul cu fisierele .csv."));
        txtSursa->setFocus();
        return;
    }
    if (!VerificaBD(bd_, m_)) return;
    txtRaport->clear();
    barProgres->setValue(0);
    barProgres->setVisible(true);
    for (QWidget* w : std::initializer_list<QWidget*>{cmdOK, cmdCancel, cmdFisier, cmdFolder, txtSursa})
        w->setEnabled(false);
    QApplication::setOverrideCursor(Qt::WaitCursor);
    RezultatImport r;
    const bool gata = LaMargine(m_, [&] {
        r = ImportaInBaza(bd_, QDir::fromNativeSeparators(sursa), folderDate_, [this](qint64 facute, qint64 total) {
            // One thread, as in the other long tools: the bar is painted between two lots of rows.
            const int scala = 1000;
            barProgres->setMaximum(scala);
            barProgres->setValue(int(facute * scala / std::max<qint64>(total, 1)));
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        });
    });
    QApplication::restoreOverrideCursor();
    barProgres->setVisible(false);
    cmdCancel->setEnabled(true);
    if (!gata) {
        for (QWidget* w : std::initializer_list<QWidget*>{cmdOK, cmdFisier, cmdFolder, txtSursa})
            w->setEnabled(true);
        return;
    }
    importat_ = true;
    txtRaport->setPlainText(r.raport.Linii().join(QLatin1Char('\n')));
    m_.Informatie(QStringLiteral("Importul s-a incheiat. Randuri refuzate: %1.").arg(r.raport.Refuzate()));
}
