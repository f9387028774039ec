#include "cases/CalculCuantum.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

namespace {

class PraguriVenitBaza : public TestBaza {};

// Each stored text in turn (none: the row deleted): the text as stored, or nothing after one critical
// box titled "Eroare".
TEST_P(PraguriVenitBaza, TextulSalvatOriEroare) {
    BazaDate& db = BazaNoua();
    const QString formatGresit = T("Format praguri gresit!");
    const QString nedefinite = T("Nu sunt definite praguri venit!");
    const struct {
        std::optional<QVariant> continut;
        QString rezultat, mesaj;
    } cazuri[] = {
        {T("210.2|557.03"), T("210.2|557.03"), {}},
        {T(" 100 | 200 |300"), T(" 100 | 200 |300"), {}},
        {QVariant(), {}, nedefinite},
        {T("  \t "), {}, nedefinite},
        {T("210.2;557.03"), {}, formatGresit},
        {T(" | "), {}, formatGresit + T("\nTrebuie cel putin doua praguri.")},
        {std::nullopt, {}, T("PRAGURI_VENIT nu exista!")},
    };
    for (const auto& c : cazuri) {
        const std::string caz = c.continut ? S(c.continut->toString()) : "(fara rand)";
        if (!c.continut)
            ExecutaCu(db, T("DELETE FROM DateGen WHERE Denumire = ?"), "PRAGURI_VENIT");
        else
            ExecutaCu(db, T("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"), *c.continut, "PRAGURI_VENIT");
        struct : MesajeInregistrate {
            void Critic(const QString& text, const QString& titlu) override {
                MesajeInregistrate::Critic(text + u'|' + titlu, titlu);
            }
        } m;
        EXPECT_EQ(PraguriVenit(db, m), c.rezultat) << caz;
        EXPECT_EQ(m.Texte(), c.mesaj.isEmpty() ? QStringList() : QStringList{c.mesaj + T("|Eroare")}) << caz;
    }
}

PE_AMBELE_MOTOARE(PraguriVenitBaza);

} // namespace
