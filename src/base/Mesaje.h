#pragma once

#include <QString>

// Where the core tells the clerk something or asks him. The program shows message boxes;
// the command-line tool prints; tests record and answer from a script.
class Mesaje {
public:
    enum class Fel { Informatie, Avertisment, Critic, Intrebare, Intrare };

    virtual ~Mesaje() = default;
    virtual void Informatie(const QString& text, const QString& titlu = {}) = 0;
    virtual void Avertisment(const QString& text, const QString& titlu = {}) = 0;
    virtual void Critic(const QString& text, const QString& titlu = {}) = 0;
    // A Yes/No question; true for Yes.
    virtual bool Intrebare(const QString& text, const QString& titlu = {}, bool implicitDa = true) = 0;
    // An input box; an empty string when the clerk cancels.
    virtual QString Intrare(const QString& text, const QString& titlu = {}, const QString& implicit = {}) = 0;
};

// The command-line tool's sink: information on standard output, the rest on standard error.
// Questions take their default answer, since nobody is there to answer them.
class MesajeConsola : public Mesaje {
public:
    void Informatie(const QString& text, const QString& titlu = {}) override;
    void Avertisment(const QString& text, const QString& titlu = {}) override;
    void Critic(const QString& text, const QString& titlu = {}) override;
    bool Intrebare(const QString& text, const QString& titlu = {}, bool implicitDa = true) override;
    QString Intrare(const QString& text, const QString& titlu = {}, const QString& implicit = {}) override;
};

// Says nothing and takes the default answers: for generated data and benchmarks.
class MesajeTacute : public Mesaje {
public:
    void Informatie(const QString&, const QString& = {}) override {}
    void Avertisment(const QString&, const QString& = {}) override {}
    void Critic(const QString&, const QString& = {}) override {}
    bool Intrebare(const QString&, const QString& = {}, bool implicitDa = true) override { return implicitDa; }
    QString Intrare(const QString&, const QString& = {}, const QString& implicit = {}) override { return implicit; }
};
