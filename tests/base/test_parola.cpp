#include "base/Parola.h"

#include <gtest/gtest.h>

TEST(Parola, SePastreazaCaHashSiSeVerifica) {
    const QString h = Parola::Hash(QStringLiteral("Primăria2024"));
    EXPECT_TRUE(h.startsWith(QStringLiteral("$argon2"))) << h.toStdString();
    EXPECT_FALSE(h.contains(QStringLiteral("Primăria2024")));
    EXPECT_NE(h, Parola::Hash(QStringLiteral("Primăria2024"))) << "salted";
    EXPECT_TRUE(Parola::Corespunde(h, QStringLiteral("Primăria2024")));
    EXPECT_FALSE(Parola::Corespunde(h, QStringLiteral("primăria2024")));
    EXPECT_FALSE(Parola::Corespunde(h, QString()));
}

TEST(Parola, ValoareaVecheInClarEsteAcceptata) {
    EXPECT_TRUE(Parola::Corespunde(QStringLiteral("secret"), QStringLiteral("secret")));
    EXPECT_FALSE(Parola::Corespunde(QStringLiteral("secret"), QStringLiteral("Secret")));
    EXPECT_TRUE(Parola::Corespunde(QString(), QString()));
}

TEST(Parola, SchimbareaSiStergereaAuMesajeleLor) {
    const QString veche = QStringLiteral("abc");
    struct {
        QString veche, noua, repetata;
        const char* mesaj;
    } cazuri[] = {
        {QStringLiteral("abd"), QStringLiteral("x"), QStringLiteral("x"), "Parola veche este incorecta!"},
        {QStringLiteral("abc"), QStringLiteral("   "), QStringLiteral("   "), "Parola noua inexistenta!"},
        {QStringLiteral("abc"), QStringLiteral("nou"), QStringLiteral("nu"),
         "Parola noua trebuie sa fie la fel in cele doua casute de text!"},
    };
    for (const auto& c : cazuri) {
        const auto s = Parola::Schimba(veche, c.veche, c.noua, c.repetata);
        ASSERT_TRUE(s.mesaj.has_value()) << c.mesaj;
        EXPECT_EQ(*s.mesaj, QString::fromLatin1(c.mesaj));
    }
    const auto bun = Parola::Schimba(veche, QStringLiteral("abc"), QStringLiteral(" nou "), QStringLiteral("nou"));
    ASSERT_FALSE(bun.mesaj.has_value());
    EXPECT_TRUE(Parola::Corespunde(bun.valoareNoua, QStringLiteral("nou"))) << "the new password is trimmed";

    EXPECT_EQ(
        *Parola::Reseteaza(bun.valoareNoua, QStringLiteral("abc")).mesaj,
        QStringLiteral(
            "Parola veche este incorecta! Pentru a putea sterge parola trebuie sa o scrieti pe ce veche mai intai"));
    const auto sters = Parola::Reseteaza(bun.valoareNoua, QStringLiteral("nou"));
    EXPECT_FALSE(sters.mesaj.has_value());
    EXPECT_TRUE(sters.valoareNoua.isEmpty());
}
