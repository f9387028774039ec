#pragma once

#include "base/Mesaje.h"

#include <QStringList>
#include <deque>
#include <vector>

// Keeps every message and answers questions from a script (Yes when the script is empty).
class MesajeInregistrate : public Mesaje {
public:
    struct Mesaj {
        Fel fel;
        QString text;
    };

    void Informatie(const QString& text, const QString& = {}) override { mesaje.push_back({Fel::Informatie, text}); }
    void Avertisment(const QString& text, const QString& = {}) override { mesaje.push_back({Fel::Avertisment, text}); }
    void Critic(const QString& text, const QString& = {}) override { mesaje.push_back({Fel::Critic, text}); }
    bool Intrebare(const QString& text, const QString& = {}, bool = true) override {
        mesaje.push_back({Fel::Intrebare, text});
        if (raspunsuri.empty()) return true;
        const bool r = raspunsuri.front();
        raspunsuri.pop_front();
        return r;
    }
    QString Intrare(const QString& text, const QString& = {}, const QString& implicit = {}) override {
        mesaje.push_back({Fel::Intrare, text});
        if (intrari.empty()) return implicit;
        const QString r = intrari.front();
        intrari.pop_front();
        return r;
    }

    QStringList Texte() const {
        QStringList t;
        for (const auto& m : mesaje)
            t << m.text;
        return t;
    }
    QStringList Texte(Fel fel) const {
        QStringList t;
        for (const auto& m : mesaje)
            if (m.fel == fel) t << m.text;
        return t;
    }

    std::vector<Mesaj> mesaje;
    std::deque<bool> raspunsuri;
    std::deque<QString> intrari; // what the input boxes are answered, in order
};
