#include "reference/frmDatePrimarie2.h"

#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "ui/UiButoane.h"
#include "ui/UiMargine.h"

#include <QComboBox>
#include <QCompleter>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

using namespace DateReferinta;

namespace {

const char* const Etichete[NrCampuriPrimarie] = {
    "Denumire (*)",       "Cod Fiscal (*)", "Cod Judet (*)", "Judet (*)",    "Localitate (*)",
    "Str. (*)",           "Nr. (*)",        "Primar (*)",    "Secretar (*)", "As. Social (*)",
    "CNP As. Social (*)", "Of. Postal (*)", "Cod Postal (*)"};

constexpr int Judet = 3;
constexpr int Localitate = 4;
constexpr int Str = 5;
constexpr int Nr = 6;

QCompleter* ListaAjutatoare(const QStringList& denumiri, QObject* parinte) {
    auto* c = new QCompleter(denumiri, parinte);
    c->setCaseSensitivity(Qt::CaseInsensitive);
    c->setFilterMode(Qt::MatchStartsWith);
    c->setCompletionMode(QCompleter::PopupCompletion);
    return c;
}

} // namespace

frmDatePrimarie2::frmDatePrimarie2(BazaDate& bd, Mesaje& m, QWidget* parinte) : QDialog(parinte), bd_(bd), m_(m) {
    setObjectName(QStringLiteral("frmDatePrimarie2"));
    setWindowTitle(QStringLiteral("Date Primarie 2"));
    auto* forma = new QFormLayout(this);
    for (int i = 0; i < NrCampuriPrimarie; ++i) {
        auto* t = new QLineEdit(this);
        t->setObjectName(QStringLiteral("txtText_%1").arg(i));
        if (const int latime = LatimeCampPrimarie(i); latime > 0) t->setMaxLength(latime);
        t->installEventFilter(this);
        txtText[size_t(i)] = t;
    }
    cbo = new QComboBox(this);
    cbo->setObjectName(QStringLiteral("cbo"));
    cbo->installEventFilter(this);
    txtText[0]->setMinimumWidth(320);

    for (int i = 0; i < NrCampuriPrimarie; ++i) {
        if (i == Nr) continue;
        auto* eticheta = new QLabel(QString::fromLatin1(Etichete[i]), this);
        eticheta->setBuddy(txtText[size_t(i)]);
        if (i == Str) {
            // Street and number share a row.
            auto* rand = new QHBoxLayout;
            rand->addWidget(txtText[Str], 1);
            auto* nr = new QLabel(QString::fromLatin1(Etichete[Nr]), this);
            nr->setBuddy(txtText[Nr]);
            rand->addWidget(nr);
            txtText[Nr]->setMaximumWidth(80);
            rand->addWidget(txtText[Nr]);
            forma->addRow(eticheta, rand);
        } else {
            forma->addRow(eticheta, txtText[size_t(i)]);
        }
    }
    auto* eticheta = new QLabel(QStringLiteral("Tip Localitate (*)"), this);
    eticheta->setBuddy(cbo);
    forma->addRow(eticheta, cbo);

    forma->addRow(RandOkRenunta(
        this, cmdOK, cmdCancel, [this] { cmdOK_Click(); }, EnterOK::Focalizat));

    LaMargine(m_, [&] {
        txtText[Judet]->setCompleter(ListaAjutatoare(Judete(bd_), this));
        txtText[Localitate]->setCompleter(ListaAjutatoare(Localitati(bd_), this));
        cbo->addItem(QStringLiteral("Comuna"), 1);
        cbo->addItem(QStringLiteral("Oras"), 2);
        cbo->addItem(QStringLiteral("Municipiu"), 3);
        InControale(CitesteDatePrimarie(bd_));
    });
}

DatePrimarie frmDatePrimarie2::DinControale() const {
    DatePrimarie d;
    for (int i = 0; i < NrCampuriPrimarie; ++i)
        d.text[size_t(i)] = txtText[size_t(i)]->text();
    d.TipLocalitate = cbo->currentIndex() < 0 ? 0 : cbo->currentData().toInt();
    return d;
}

void frmDatePrimarie2::InControale(const DatePrimarie& d) {
    for (int i = 0; i < NrCampuriPrimarie; ++i)
        txtText[size_t(i)]->setText(d.text[size_t(i)]);
    cbo->setCurrentIndex(cbo->findData(d.TipLocalitate));
}

QWidget* frmDatePrimarie2::Control(int index) const {
    return index < NrCampuriPrimarie ? static_cast<QWidget*>(txtText[size_t(index)]) : cbo;
}

void frmDatePrimarie2::cmdOK_Click() {
    if (!VerificaBD(bd_, m_)) return;
    const DatePrimarie d = DinControale();
    if (const auto refuz = VerificaDatePrimarie(d)) {
        m_.Informatie(refuz->mesaj);
        Control(refuz->control)->setFocus();
        return;
    }
    const bool salvate = LaMargine(m_, [&] {
        if (const auto refuz = SalveazaDatePrimarie(bd_, d)) {
            m_.Informatie(*refuz);
            return false;
        }
        return true;
    });
    if (!salvate) return;
    accept();
}

bool frmDatePrimarie2::eventFilter(QObject* obiect, QEvent* e) {
    if (EnterCaTab(obiect, e)) {
        focusNextChild();
        return true;
    }
    return QDialog::eventFilter(obiect, e);
}
