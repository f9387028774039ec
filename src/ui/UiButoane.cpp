#include "ui/UiButoane.h"

#include <QDialog>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>

QPushButton* Buton(QWidget* parinte, QBoxLayout* rand, const char* nume, const QString& text) {
    auto* b = new QPushButton(text, parinte);
    b->setObjectName(QLatin1String(nume));
    b->setAutoDefault(false);
    rand->addWidget(b);
    return b;
}

QHBoxLayout* RandOkRenunta(QDialog* d, QPushButton*& ok, QPushButton*& renunta, std::function<void()> laOK,
                           EnterOK enter, bool laDreapta, std::function<void()> laRenunta) {
    auto* rand = new QHBoxLayout;
    if (laDreapta) rand->addStretch(1);
    ok = new QPushButton(QStringLiteral("OK"), d);
    ok->setObjectName(QStringLiteral("cmdOK"));
    renunta = new QPushButton(QStringLiteral("Renunta"), d);
    renunta->setObjectName(QStringLiteral("cmdCancel"));
    if (enter == EnterOK::Implicit) {
        ok->setDefault(true);
    } else if (enter == EnterOK::Niciunul) {
        ok->setAutoDefault(false);
        renunta->setAutoDefault(false);
    }
    rand->addWidget(ok);
    rand->addWidget(renunta);
    QObject::connect(ok, &QPushButton::clicked, d, std::move(laOK));
    if (laRenunta)
        QObject::connect(renunta, &QPushButton::clicked, d, std::move(laRenunta));
    else
        QObject::connect(renunta, &QPushButton::clicked, d, &QDialog::reject);
    return rand;
}

bool UrmeazaVerificarea(QDialog* d, bool ok, bool inchide, const QString& control) {
    if (inchide) {
        d->reject();
        return false;
    }
    if (!ok) {
        if (auto* w = d->findChild<QWidget*>(control)) w->setFocus();
        return false;
    }
    return true;
}

bool EnterCaTab(QObject* obiect, QEvent* e) {
    if (e->type() == QEvent::KeyPress) {
        const int tasta = static_cast<QKeyEvent*>(e)->key();
        return tasta == Qt::Key_Return || tasta == Qt::Key_Enter;
    }
    if (e->type() == QEvent::FocusIn) {
        // Deferred, so that the click which brought the focus doesn't undo the selection.
        if (auto* t = qobject_cast<QLineEdit*>(obiect)) QTimer::singleShot(0, t, &QLineEdit::selectAll);
    }
    return false;
}
