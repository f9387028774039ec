#include "base/Parola.h"

#include "base/Eroare.h"

#include <sodium.h>

namespace {

void initializeaza() {
    static const bool gata = sodium_init() >= 0;
    if (!gata) throw Eroare(QStringLiteral("Biblioteca de criptare nu a putut fi initializata."));
}

bool esteHash(const QString& s) {
    return s.startsWith(QLatin1String("$argon2"));
}

} // namespace

QString Parola::Hash(const QString& parola) {
    initializeaza();
    const QByteArray text = parola.toUtf8();
    char hash[crypto_pwhash_STRBYTES];
    if (crypto_pwhash_str(hash, text.constData(), size_t(text.size()), crypto_pwhash_OPSLIMIT_INTERACTIVE,
                          crypto_pwhash_MEMLIMIT_INTERACTIVE) != 0)
        throw Eroare(QStringLiteral("Nu este destula memorie pentru a pastra parola."));
    return QString::fromLatin1(hash);
}

bool Parola::Corespunde(const QString& pastrata, const QString& scrisa) {
    if (!esteHash(pastrata)) return pastrata == scrisa;
    initializeaza();
    const QByteArray hash = pastrata.toLatin1();
    const QByteArray text = scrisa.toUtf8();
    return crypto_pwhash_str_verify(hash.constData(), text.constData(), size_t(text.size())) == 0;
}

Parola::Schimbare Parola::Schimba(const QString& pastrata, const QString& veche, const QString& noua,
                                  const QString& repetata) {
    if (!Corespunde(pastrata, veche)) return {QStringLiteral("Parola veche este incorecta!"), {}};
    if (noua.trimmed().isEmpty()) return {QStringLiteral("Parola noua inexistenta!"), {}};
    if (noua.trimmed() != repetata.trimmed())
        return {QStringLiteral("Parola noua trebuie sa fie la fel in cele doua casute de text!"), {}};
    return {std::nullopt, Hash(noua.trimmed())};
}

Parola::Schimbare Parola::Reseteaza(const QString& pastrata, const QString& veche) {
    if (!Corespunde(pastrata, veche))
        return {
            QStringLiteral(
                "Parola veche este incorecta! Pentru a putea sterge parola trebuie sa o scrieti pe ce veche mai intai"),
            {}};
    return {std::nullopt, QString()};
}
