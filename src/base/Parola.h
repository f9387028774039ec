#pragma once

#include <QString>
#include <optional>

// The program password, kept as a salted hash. A clear-text value from an old settings file is
// still accepted.
namespace Parola {

QString Hash(const QString& parola);
// True when `scrisa` is the password whose stored form is `pastrata`; an empty stored value
// means there is no password.
bool Corespunde(const QString& pastrata, const QString& scrisa);

// What the password dialog decides: the message to show, or the new stored value (empty for
// no password) once the checks pass.
struct Schimbare {
    std::optional<QString> mesaj;
    QString valoareNoua;
};
Schimbare Schimba(const QString& pastrata, const QString& veche, const QString& noua, const QString& repetata);
Schimbare Reseteaza(const QString& pastrata, const QString& veche);

} // namespace Parola
