#include "maintenance/frmUpdateLog.h"

#include "ui/UiButoane.h"

#include <QHBoxLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmUpdateLog::frmUpdateLog(const Updater::Mediu& mediu, QWidget* parinte) : QDialog(parinte) {
    setObjectName(QStringLiteral("frmUpdateLog"));
    setWindowTitle(QStringLiteral("Istoric actualizari"));
    resize(560, 420);
    auto* l = new QVBoxLayout(this);
    Txt = new QPlainTextEdit(this);
    Txt->setObjectName(QStringLiteral("Txt"));
    Txt->setReadOnly(true);
    l->addWidget(Txt);
    auto* rand = new QHBoxLayout;
    rand->addStretch();
    connect(Buton(this, rand, "cmdClose", QStringLiteral("Inchide")), &QPushButton::clicked, this, &QDialog::reject);
    l->addLayout(rand);

    if (!mediu.Activ()) {
        Txt->setPlainText(QStringLiteral("Adresa serverului de actualizare nu este setata."));
        return;
    }
    Txt->setPlainText(QStringLiteral("Se citeste istoricul actualizarilor . . ."));
    Updater::InFundal<std::optional<QString>>(
        this, [mediu] { return Updater::Istoric(mediu); },
        [this](std::optional<QString> text) {
            Txt->setPlainText(text ? *text
                                   : QStringLiteral("Istoricul actualizarilor nu a putut fi citit de pe server."));
        });
}
