#include "ui/UiMesaje.h"

#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>

namespace {
QString titluSau(const QString& titlu) {
    return titlu.isEmpty() ? QStringLiteral("Ferolanta") : titlu;
}
} // namespace

void UiMesaje::Informatie(const QString& text, const QString& titlu) {
    QMessageBox::information(parinte_, titluSau(titlu), text);
}

void UiMesaje::Avertisment(const QString& text, const QString& titlu) {
    QMessageBox::warning(parinte_, titluSau(titlu), text);
}

void UiMesaje::Critic(const QString& text, const QString& titlu) {
    QMessageBox::critical(parinte_, titluSau(titlu), text);
}

bool UiMesaje::Intrebare(const QString& text, const QString& titlu, bool implicitDa) {
    return QMessageBox::question(parinte_, titluSau(titlu), text, QMessageBox::Yes | QMessageBox::No,
                                 implicitDa ? QMessageBox::Yes : QMessageBox::No) == QMessageBox::Yes;
}

QString UiMesaje::Intrare(const QString& text, const QString& titlu, const QString& implicit) {
    bool ok = false;
    const QString r = QInputDialog::getText(parinte_, titluSau(titlu), text, QLineEdit::Normal, implicit, &ok);
    return ok ? r : QString();
}
