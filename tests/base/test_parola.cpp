#include "base/Parola.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

TEST(Parola, HashSaratValoareaVecheSchimbareaSiStergerea) {
    const QString h = Parola::Hash(T("Primăria2024"));
    EXPECT_FALSE(h.contains(T("Primăria2024")));
    EXPECT_NE(h, Parola::Hash(T("Primăria2024"))) << "salted";
    EXPECT_TRUE(Parola::Corespunde(h, T("Primăria2024")));
    EXPECT_FALSE(Parola::Corespunde(h, T("primăria2024")));
    EXPECT_FALSE(Parola::Corespunde(h, QString()));
    EXPECT_TRUE(Parola::Corespunde(T("secret"), T("secret")));
    EXPECT_FALSE(Parola::Corespunde(T("secret"), T("Secret")));
    EXPECT_TRUE(Parola::Corespunde(QString(), QString()));
    const QString veche = T("abc");
    const struct {
        QString veche, noua, repetata;
    } refuzate[] = {{T("abd"), T("x"), T("x")}, {veche, T("   "), T("   ")}, {veche, T("nou"), T("nu")}};
    for (const auto& c : refuzate)
        EXPECT_TRUE(Parola::Schimba(veche, c.veche, c.noua, c.repetata).mesaj.has_value()) << c.noua.toStdString();
    const auto bun = Parola::Schimba(veche, veche, T(" nou "), T("nou"));
    ASSERT_FALSE(bun.mesaj.has_value());
    EXPECT_TRUE(Parola::Corespunde(bun.valoareNoua, T("nou"))) << "the new password is trimmed";

    EXPECT_TRUE(Parola::Reseteaza(bun.valoareNoua, veche).mesaj.has_value());
    const auto sters = Parola::Reseteaza(bun.valoareNoua, T("nou"));
    EXPECT_FALSE(sters.mesaj.has_value());
    EXPECT_TRUE(sters.valoareNoua.isEmpty());
}
