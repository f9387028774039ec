#include "ui/UiDataOptionala.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QHBoxLayout>
#include <QSignalBlocker>

UiDataOptionala::UiDataOptionala(QWidget* parinte) : QWidget(parinte) {
    auto* asezare = new QHBoxLayout(this);
    asezare->setContentsMargins(0, 0, 0, 0);
    asezare->setSpacing(4);
    bifa_ = new QCheckBox(this);
    bifa_->setChecked(true);
    editor_ = new QDateEdit(this);
    editor_->setDisplayFormat(QStringLiteral("dd.MM.yyyy"));
    editor_->setCalendarPopup(true);
    editor_->setMinimumDate(QDate(1900, 1, 1));
    editor_->setMaximumDate(QDate(9999, 12, 31));
    asezare->addWidget(bifa_);
    asezare->addWidget(editor_, 1);
    setFocusProxy(editor_);
    ultima_ = data();
    connect(bifa_, &QCheckBox::toggled, this, [this](bool bifat) {
        arataStarea(bifat);
        anunta();
    });
    connect(editor_, &QDateEdit::dateChanged, this, &UiDataOptionala::anunta);
}

QDate UiDataOptionala::data() const {
    return bifa_->isChecked() ? editor_->date() : QDate();
}

void UiDataOptionala::setData(const QDate& d) {
    {
        const QSignalBlocker b1(bifa_), b2(editor_);
        if (d.isValid()) editor_->setDate(d);
        bifa_->setChecked(d.isValid());
    }
    arataStarea(d.isValid());
    anunta();
}

// An empty box takes the focus on its tick, the only part the clerk can use then.
void UiDataOptionala::arataStarea(bool bifat) {
    editor_->setEnabled(bifat);
    setFocusProxy(bifat ? static_cast<QWidget*>(editor_) : bifa_);
}

void UiDataOptionala::anunta() {
    const QDate d = data();
    if (d == ultima_) return;
    ultima_ = d;
    Q_EMIT dataSchimbata(d);
}
