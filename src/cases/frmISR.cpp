#include "cases/frmISR.h"

#include "base/Mesaje.h"
#include "cases/RecalculIsr.h"
#include "reference/Isr.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

frmISR::frmISR(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmISR"));
    setWindowTitle(QStringLiteral("Valoare ISR"));
    auto* principal = new QVBoxLayout(this);
    auto* rand = new QHBoxLayout;
    auto* cifre = new QRegularExpressionValidator(QRegularExpression(QStringLiteral("[0-9]*")), this);
    txtValoare = new QLineEdit(this);
    txtValoare->setObjectName(QStringLiteral("txtValoare"));
    txtZecimale = new QLineEdit(this);
    txtZecimale->setObjectName(QStringLiteral("txtZecimale"));
    for (QLineEdit* t : {txtValoare, txtZecimale}) {
        t->setValidator(cifre);
        t->setMaxLength(9);
        t->setMaximumWidth(90);
        t->setAlignment(Qt::AlignRight);
    }
    txtZecimale->setAlignment(Qt::AlignLeft);
    auto* eticheta = new QLabel(QStringLiteral("Valoare ISR (lei):"), this);
    eticheta->setBuddy(txtValoare);
    rand->addWidget(eticheta);
    rand->addWidget(txtValoare);
    rand->addWidget(new QLabel(QStringLiteral("."), this));
    rand->addWidget(txtZecimale);
    rand->addStretch(1);
    principal->addLayout(rand);
    principal->addWidget(
        new QLabel(QStringLiteral("La salvare se recalculeaza cuantumul tuturor cererilor in plata."), this));
    barProgres = new QProgressBar(this);
    barProgres->setObjectName(QStringLiteral("barProgres"));
    barProgres->setVisible(false);
    principal->addWidget(barProgres);
    principal->addLayout(RandOkRenunta(this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }));

    LaMargine(m_, [&] {
        const CaseteIsr c = CaseteDinIsr(CitesteIsr(bd_).value_or(QString()));
        txtValoare->setText(c.Valoare);
        txtZecimale->setText(c.Zecimale);
    });
}

void frmISR::cmdOK_Click() {
    const std::optional<QString> valoare = ValoareIsr(txtValoare->text(), txtZecimale->text());
    if (!valoare) {
        m_.Informatie(QStringLiteral("ISR invalid."));
        txtValoare->setFocus();
        return;
    }
    if (!VerificaBD(bd_, m_)) return;
    barProgres->setValue(0);
    barProgres->setVisible(true);
    cmdOK->setEnabled(false);
    cmdCancel->setEnabled(false);
    RecalculIsr::Rezultat r;
    const bool gata = LaMargine(m_, [&] {
        r = RecalculIsr::SchimbaIsr(bd_, *valoare, m_, [this](qint64 facute, qint64 total) {
            barProgres->setMaximum(int(std::max<qint64>(total, 1)));
            barProgres->setValue(int(facute));
            // One thread: the bar is painted between two lots of requests, and the clerk's clicks wait.
            QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        });
    });
    cmdOK->setEnabled(true);
    cmdCancel->setEnabled(true);
    barProgres->setVisible(false);
    if (!gata || !r.ok) return;
    accept();
}
