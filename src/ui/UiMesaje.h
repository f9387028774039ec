#pragma once

#include "base/Mesaje.h"

class QWidget;

// Message boxes over the active window.
class UiMesaje : public Mesaje {
public:
    explicit UiMesaje(QWidget* parinte = nullptr) : parinte_(parinte) {}
    void Informatie(const QString& text, const QString& titlu = {}) override;
    void Avertisment(const QString& text, const QString& titlu = {}) override;
    void Critic(const QString& text, const QString& titlu = {}) override;
    bool Intrebare(const QString& text, const QString& titlu = {}, bool implicitDa = true) override;
    QString Intrare(const QString& text, const QString& titlu = {}, const QString& implicit = {}) override;

private:
    QWidget* parinte_;
};
