#include "documents/web/ComenziWeb.h"
#include "documents/web/PunteWebTest.h"
#include "support/BazaTest.h"

using namespace ComenziWeb;

namespace {

TEST(ComenziWeb, DocumentulFiecareiComenzi) {
    const struct {
        Comanda c;
        int stare;
        const char* document;
        bool selectata;
    } cazuri[] = {
        {Comanda::cmdCerere, 2, "cerere", true},         {Comanda::cmdCerere, 7, "cerere_1a", true},
        {Comanda::cmdCerere, 8, "cerere", true},         {Comanda::mnuAnexa1, 7, "cerere", true},
        {Comanda::mnuAnexa1a, 2, "cerere_1a", true},     {Comanda::cmdPrintAncheta, 7, "ancheta", true},
        {Comanda::mnuCerereGoala, 7, "cerere", false},   {Comanda::mnucerereMod, 0, "cerere_1a", false},
        {Comanda::mnuAnchetaGoala, 0, "ancheta", false},
    };
    for (const auto& c : cazuri) {
        EXPECT_EQ(Document(c.c, c.stare), QString::fromLatin1(c.document)) << int(c.c) << " " << c.stare;
        EXPECT_EQ(PeCerereSelectata(c.c), c.selectata) << int(c.c);
    }
}

TEST(ComenziWeb, ActivareComenzi) {
    StareComenzi toate;
    toate.cmdEdit = toate.cmdDelete = toate.cmdCerere = toate.cmdSelect = toate.cmdPrintAncheta = toate.cmdFisaCalcul =
        toate.cmdAddAncheta = toate.cmdAddDisp = true;
    const StareComenzi niciuna;

    EXPECT_EQ(ActivareComenzi(3, niciuna, true), toate);
    EXPECT_EQ(ActivareComenzi(0, toate, true), niciuna);
    EXPECT_EQ(ActivareComenzi(0, niciuna, true), niciuna);

    // Without the web files the three web commands keep the state they had, whichever it was.
    StareComenzi s = ActivareComenzi(5, niciuna, false);
    EXPECT_TRUE(s.cmdEdit && s.cmdDelete && s.cmdFisaCalcul && s.cmdAddAncheta && s.cmdAddDisp);
    EXPECT_FALSE(s.cmdCerere || s.cmdSelect || s.cmdPrintAncheta);
    s = ActivareComenzi(0, toate, false);
    EXPECT_FALSE(s.cmdEdit || s.cmdDelete || s.cmdFisaCalcul || s.cmdAddAncheta || s.cmdAddDisp);
    EXPECT_TRUE(s.cmdCerere && s.cmdSelect && s.cmdPrintAncheta);
    StareComenzi amestec = niciuna;
    amestec.cmdSelect = true;
    s = ActivareComenzi(0, amestec, false);
    EXPECT_TRUE(s.cmdSelect);
    EXPECT_FALSE(s.cmdCerere);
}

TEST(ComenziWeb, FisiereleWebTrebuieSaFieAmandoua) {
    FolderProgram cu;
    EXPECT_TRUE(FisiereWebExista(cu.mediu));
    FolderProgram fara(false);
    EXPECT_FALSE(FisiereWebExista(fara.mediu));
    QFile::remove(cu.mediu.pagina);
    EXPECT_FALSE(FisiereWebExista(cu.mediu));
    FolderProgram faraInterogari;
    QFile::remove(faraInterogari.mediu.fisierInterogari);
    EXPECT_FALSE(FisiereWebExista(faraInterogari.mediu));
}

class ComenziWebTest : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        ScrieDosarWeb(Bd());
    }
    std::optional<PunteWeb::PaginaWeb> Tipareste(Comanda c, qint64 selectata) {
        return ComenziWeb::Tipareste(Bd(), program.mediu, c, selectata, m);
    }
    FolderProgram program;
    MesajeCuTitlu m;
};

TEST_P(ComenziWebTest, CerereaSelectataSiFormulareleGoale) {
    EXPECT_FALSE(Tipareste(Comanda::cmdCerere, 0).has_value());
    EXPECT_FALSE(Tipareste(Comanda::cmdPrintAncheta, 404).has_value());
    ASSERT_EQ(m.mesaje.size(), 2u);
    EXPECT_EQ(m.mesaje[0].text, QStringLiteral("Selecati mai intai o cerere!"));
    EXPECT_EQ(m.mesaje[1].text, QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
    EXPECT_FALSE(QFile::exists(program.mediu.FisierIesire()));
    m.mesaje.clear();

    auto p = Tipareste(Comanda::cmdCerere, 7);
    ASSERT_TRUE(p.has_value());
    EXPECT_EQ(p->adresa.fragment(), QStringLiteral("cerere"));
    EXPECT_TRUE(p->browser.isEmpty());

    Interogare(Bd(), QStringLiteral("UPDATE Cereri SET Stare = 7 WHERE CerereID = 7")).Executa();
    p = Tipareste(Comanda::cmdCerere, 7);
    ASSERT_TRUE(p.has_value());
    EXPECT_EQ(p->adresa.fragment(), QStringLiteral("cerere_1a"));
    EXPECT_TRUE(program.Date().startsWith(QStringLiteral("location.hash='#cerere_1a_asf_vmg';")));
    EXPECT_EQ(CitesteJson(JsonDinFisier(program.Date()))[0].size(), 1u);
    p = Tipareste(Comanda::mnuAnexa1, 7);
    ASSERT_TRUE(p.has_value());
    EXPECT_EQ(p->adresa.fragment(), QStringLiteral("cerere"));

    // A blank form needs no selection and gets no row.
    p = Tipareste(Comanda::mnuAnchetaGoala, 0);
    ASSERT_TRUE(p.has_value());
    EXPECT_EQ(p->adresa.fragment(), QStringLiteral("ancheta"));
    EXPECT_EQ(JsonDinFisier(program.Date()), QStringLiteral("[[],[],[],[],[],[],[],[],[],[],[]]"));
    EXPECT_TRUE(m.mesaje.empty());
}

PE_AMBELE_MOTOARE(ComenziWebTest);

} // namespace
