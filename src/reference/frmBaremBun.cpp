#include "reference/frmBaremBun.h"

#include "base/Mesaje.h"
#include "reference/Isr.h"
#include "reference/PraguriVenit.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

const char* const TitluriFamilii[NrFamiliiBarem] = {
    "Familie (sot si sotie) - venit pana la pragul 1", "Familie (sot si sotie) - venit intre pragul 1 si 2",
    "Familie monoparentala - venit pana la pragul 1", "Familie monoparentala - venit intre pragul 1 si 2"};
const char* const Copii[NrPersFamilie] = {"1 copil", "2 copii", "3 copii", "4 copii si peste"};

} // namespace

frmBaremBun::frmBaremBun(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmBaremBun"));
    setWindowTitle(QStringLiteral("Nivel Alocatii"));
    auto* principal = new QVBoxLayout(this);

    auto* familii = new QGridLayout;
    for (int f = 0; f < NrFamiliiBarem; ++f) {
        auto* grup = new QGroupBox(QString::fromLatin1(TitluriFamilii[f]), this);
        auto* grila = new QGridLayout(grup);
        for (int n = 0; n < NrPersFamilie; ++n) {
            const int i = f * NrPersFamilie + n;
            auto* t = new QLineEdit(grup);
            t->setObjectName(QStringLiteral("Txt_%1").arg(i));
            t->setMaximumWidth(90);
            t->installEventFilter(this);
            Txt[size_t(i)] = t;
            auto* eticheta = new QLabel(QString::fromLatin1(Copii[n]), grup);
            eticheta->setBuddy(t);
            lblPerPers[size_t(i)] = new QLabel(grup);
            grila->addWidget(eticheta, n, 0);
            grila->addWidget(t, n, 1);
            grila->addWidget(lblPerPers[size_t(i)], n, 2);
        }
        grila->setColumnStretch(2, 1);
        familii->addWidget(grup, f / 2, f % 2);
    }
    principal->addLayout(familii);

    auto* praguri = new QGroupBox(QStringLiteral("Praguri venit pe membru de familie (lei)"), this);
    auto* randPraguri = new QHBoxLayout(praguri);
    txtPrag1 = new QLineEdit(praguri);
    txtPrag1->setObjectName(QStringLiteral("txtPrag1"));
    txtPrag2 = new QLineEdit(praguri);
    txtPrag2->setObjectName(QStringLiteral("txtPrag2"));
    for (QLineEdit* t : {txtPrag1, txtPrag2}) {
        t->setMaximumWidth(90);
        t->installEventFilter(this);
    }
    auto* p1 = new QLabel(QStringLiteral("Pragul 1:"), praguri);
    p1->setBuddy(txtPrag1);
    auto* p2 = new QLabel(QStringLiteral("Pragul 2:"), praguri);
    p2->setBuddy(txtPrag2);
    randPraguri->addWidget(p1);
    randPraguri->addWidget(txtPrag1);
    randPraguri->addSpacing(12);
    randPraguri->addWidget(p2);
    randPraguri->addWidget(txtPrag2);
    randPraguri->addStretch(1);
    cmdSave = Buton(praguri, randPraguri, "cmdSave", QStringLiteral("Salveaza pragurile"));
    connect(cmdSave, &QPushButton::clicked, this, &frmBaremBun::cmdSave_Click);
    principal->addWidget(praguri);

    lblInfo = new QLabel(this);
    lblInfo->setObjectName(QStringLiteral("lblInfo"));
    principal->addWidget(lblInfo);
    principal->addLayout(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Focalizat));

    LaMargine(m_, [&] {
        const NiveleBarem n = CitesteNivele(bd_);
        for (int i = 0; i < NrNivele; ++i) {
            Txt[size_t(i)]->setText(n.Barem[size_t(i)]);
            lblPerPers[size_t(i)]->setText(n.BaremPerPers[size_t(i)] + QStringLiteral(" LEI"));
        }
        const QStringList parti = PraguriVenit(bd_, m_).split(u'|');
        txtPrag1->setText(parti.value(0));
        txtPrag2->setText(parti.value(1));
        lblInfo->setText(QStringLiteral("Valoarea ISR: %1").arg(CitesteIsr(bd_).value_or(QString())));
    });
}

void frmBaremBun::cmdOK_Click() {
    if (!VerificaBD(bd_, m_)) return;
    std::array<QString, NrNivele> texte;
    for (int i = 0; i < NrNivele; ++i)
        texte[size_t(i)] = Txt[size_t(i)]->text();
    if (const auto refuz = VerificaNivele(texte)) {
        m_.Informatie(refuz->mesaj);
        Txt[size_t(refuz->caseta)]->setFocus();
        return;
    }
    if (!LaMargine(m_, [&] { SalveazaNivele(bd_, texte); })) return;
    accept();
}

void frmBaremBun::cmdSave_Click() {
    if (!VerificaBD(bd_, m_)) return;
    LaMargine(m_, [&] {
        if (!SalveazaPraguri(bd_, txtPrag1->text(), txtPrag2->text()))
            m_.Informatie(QStringLiteral("Valorile trebuie sa fie mai mari ca zero!"),
                          QStringLiteral("Eroare valori introduse."));
    });
}

bool frmBaremBun::eventFilter(QObject* obiect, QEvent* e) {
    if (EnterCaTab(obiect, e)) {
        focusNextChild();
        return true;
    }
    return QDialog::eventFilter(obiect, e);
}
