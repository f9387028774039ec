#include "cases/DateCerere.h"
#include "cases/ListaCereri.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

namespace {

class Lista : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaDate& db = BazaNoua();
        // Requests 1 and 2 share a family and a child; request 3 stands alone.
        const CerereTest::Persoana ion{1, "Popescu", "Ion", "1800101400123", 1},
            ana{2, "Popescu", "Ana", "6150101400127", 3}, maria{3, "popa", "Maria", "2850315400128", 1},
            dan{4, "Popa", "Dan", "5120505400121", 3}, vasile{5, "Ionescu", "Vasile", "1790202123456", 1};
        AdaugaCerereTest(db, {1, 0, 10, 2, 1, QStringLiteral("Branesti"), QStringLiteral("Garii"), {ion, ana}});
        AdaugaCerereTest(db, {2, 1, 9, 3, 2, {}, {}, {maria, ana, dan}});
        AdaugaCerereTest(db, {3, 0, 2, 4, 1, QStringLiteral("Cernica"), {}, {vasile}});
    }

    QList<qint64> Id(const FiltruCautare& f) {
        QList<qint64> r;
        for (const auto& rand : ListaCereri::Cauta(Bd(), f))
            r << rand.CerereID;
        return r;
    }
};

TEST_P(Lista, UnRandAreTextulFiecareiColoane) {
    const auto randuri = ListaCereri::Cauta(Bd(), {});
    ASSERT_EQ(randuri.size(), 3u);
    const RandCerere& r = randuri[0];
    EXPECT_EQ(r.NrCerere, QStringLiteral("10  "));
    EXPECT_EQ(r.Tip, QStringLiteral("Cu sot"));
    EXPECT_EQ(r.StareText, QStringLiteral("ACORDATA"));
    EXPECT_EQ(r.DataCerere, QDate(2024, 3, 15));
    EXPECT_EQ(r.Solicitant, QStringLiteral("Popescu Ion"));
    EXPECT_EQ(r.CNP, QStringLiteral("1800101400123"));
    EXPECT_EQ(r.Adresa, QStringLiteral("Branesti, Garii, nr. 12"));
    EXPECT_EQ(r.VenitTotal.Text(), QStringLiteral("1200.5000"));
    EXPECT_EQ(r.NrMembrii, 2);
    EXPECT_FALSE(r.Rosu());
    EXPECT_EQ(randuri[1].Tip, QStringLiteral("Mono"));
    EXPECT_TRUE(randuri[1].Rosu());
    EXPECT_TRUE(randuri[2].Rosu());
}

TEST_P(Lista, FiltreleCautaDupaInceput) {
    struct Caz {
        FiltruCautare f;
        QList<qint64> id;
    };
    auto filtru = [](QString cnp, QString nume, QString prenume, QString nr, QList<int> stari = {}, int tip = 0) {
        FiltruCautare f;
        f.CNP = cnp;
        f.Nume = nume;
        f.Prenume = prenume;
        f.NrCerere = nr;
        f.Stari = stari;
        f.LoadTipCerere = tip;
        f.OrdineNumerica = true;
        return f;
    };
    const Caz cazuri[] = {
        {filtru({}, {}, {}, {}), {3, 2, 1}},
        {filtru(QStringLiteral("1800"), {}, {}, {}), {1}},
        {filtru(QStringLiteral("2"), {}, {}, {}), {2}},
        {filtru(QStringLiteral("1"), {}, {}, {}), {3, 1}},
        {filtru(QStringLiteral("179"), {}, {}, {}), {3}},
        {filtru(QStringLiteral("1800101400123"), {}, {}, {}), {1}},
        {filtru(QStringLiteral("9"), {}, {}, {}), {}},
        {filtru(QStringLiteral("18x"), {}, {}, {}), {}},
        {filtru({}, QStringLiteral("pop"), {}, {}), {2, 1}},
        {filtru({}, QStringLiteral("Popa"), {}, {}), {2}},
        {filtru({}, {}, QStringLiteral("ION"), {}), {1}},
        {filtru({}, QStringLiteral("Pop"), QStringLiteral("Ion"), {}), {1}},
        {filtru({}, {}, {}, QStringLiteral("9")), {2}},
        {filtru({}, {}, {}, QStringLiteral("9 bis")), {2}},
        {filtru({}, {}, {}, {}, {3, 4}), {3, 2}},
        {filtru({}, {}, {}, {}, {}, 1), {3, 1}},
        {filtru({}, QStringLiteral("Pop"), {}, {}, {2}, 1), {1}},
        {filtru({}, QStringLiteral("%"), {}, {}), {}},
        {filtru({}, QStringLiteral("P_pa"), {}, {}), {}},
        {filtru(QStringLiteral("999"), {}, {}, {}), {}},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(Id(c.f), c.id) << c.f.CNP.toStdString() << "|" << c.f.Nume.toStdString() << "|"
                                 << c.f.Prenume.toStdString() << "|" << c.f.NrCerere.toStdString();
}

// Names are found whatever their case and diacritics: a comma below, an old file's cedilla, or none.
TEST_P(Lista, NumeleSeGasescFaraMajusculeSiDiacritice) {
    const struct {
        qint64 id;
        const char* nume;
        const char* prenume;
    } titulari[] = {
        {4, "\u0218erban", "Ana"},             // Șerban
        {5, "\u015EERBAN", "\u015Etefan"},     // ŞERBAN Ştefan, cedillas
        {6, "\u021A\u00EErlea", "Ionu\u021B"}, // Țîrlea Ionuț
        {7, "\u00CErimia", "\u0102urel"},      // Îrimia Ăurel
        {8, "\u00C2rdeleanu", "\u0162icu"},    // Ârdeleanu Ţicu
    };
    for (const auto& t : titulari) {
        CerereTest c;
        c.cerereID = t.id;
        c.nrCerere = 20 + t.id;
        c.persoane = {{t.id + 2, QString::fromUtf8(t.nume), QString::fromUtf8(t.prenume), {}, 1}};
        AdaugaCerereTest(Bd(), c);
    }
    const struct {
        const char* nume;
        const char* prenume;
        QList<qint64> id;
    } cazuri[] = {
        {"serban", "", {4, 5}},
        {"\u0218ERB", "", {4, 5}},
        {"\u015Ferban", "", {4, 5}},
        {"S\u0327er", "", {4, 5}}, // a cedilla typed as a mark after its letter
        {"serbanescu", "", {}},
        {"", "STEFAN", {5}},
        {"", "\u0219tefan", {5}},
        {"tirlea", "", {6}},
        {"\u0162\u00CER", "", {6}},
        {"", "ionut", {6}},
        {"", "ion", {1, 6}},
        {"i", "", {3, 7}},
        {"\u00EE", "", {3, 7}},
        {"", "aurel", {7}},
        {"ar", "", {8}},
        {"\u0103r", "", {8}},
        {"", "\u021B", {8}},
        {"s%", "", {}},
    };
    for (const auto& c : cazuri) {
        FiltruCautare f;
        f.Nume = QString::fromUtf8(c.nume);
        f.Prenume = QString::fromUtf8(c.prenume);
        f.OrdineNumerica = true;
        EXPECT_EQ(Id(f), c.id) << c.nume << "|" << c.prenume;
    }
}

// A titular removed by an older program or an import leaves a row with no name, which opens and deletes.
TEST_P(Lista, CerereaFaraTitularSeVedeSiSeSterge) {
    ExecutaCu(Bd(), QStringLiteral("UPDATE Cereri SET MembruID1 = NULL WHERE CerereID = 3"));
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Membrii WHERE MembruID = 5"));
    EXPECT_EQ(Id({}), (QList<qint64>{1, 2, 3}));
    const RandCerere r = ListaCereri::Citeste(Bd(), 3);
    EXPECT_EQ(r.CerereID, 3);
    EXPECT_EQ(r.Solicitant, QString());
    EXPECT_EQ(r.Adresa, QStringLiteral("Cernica, nr. 12"));

    const CerereIncarcata c = IncarcaCerere(Bd(), 3, 3, 2024, mesaje);
    EXPECT_TRUE(c.Gasita);
    EXPECT_FALSE(c.Stare.MatriceMembri);

    ListaCereri::Sterge(Bd(), 3);
    EXPECT_EQ(Id({}), (QList<qint64>{1, 2}));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = 3")), 0);
}

// The family goes by the request's family key: here request 5 of family 6, while family 5 is
// another household's.
TEST_P(Lista, StergereaIaFamiliaCereriiNuPeCeaCuNumarulEi) {
    AdaugaCerereTest(Bd(), {5, 6, 40, 2, 1, {}, {}, {{6, "Stan", "Ion", {}, 1}}});
    AdaugaCerereTest(Bd(), {7, 5, 41, 2, 1, {}, {}, {{7, "Dinu", "Ana", {}, 1}}});
    ListaCereri::Sterge(Bd(), 5);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = 6")), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = 5")), 1);
    EXPECT_EQ(Id({}), (QList<qint64>{1, 2, 3, 7}));
}

TEST_P(Lista, StergereaPastreazaFamiliaSiPersoaneleComune) {
    ListaCereri::Sterge(Bd(), 2);
    EXPECT_EQ(Id({}), (QList<qint64>{1, 3}));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = 1")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE MembruID IN (1, 2)")), 2)
        << "shared child stays";
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE MembruID IN (3, 4)")), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = 2")), 0);

    ListaCereri::Sterge(Bd(), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = 1")), 0)
        << "the last request takes the family";
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), 1);
    ListaCereri::Sterge(Bd(), 1); // already gone: nothing happens
    EXPECT_EQ(Id({}), (QList<qint64>{3}));
}

TEST_P(Lista, TitularSiFamilieComuneNuOpresteStergerea) {
    // A request whose titular and family both belong to another one too.
    AdaugaCerereTest(Bd(), {4, 1, 11, 1, 1, {}, {}, {{1, "Popescu", "Ion", "1800101400123", 1}}});
    ListaCereri::Sterge(Bd(), 4);
    EXPECT_EQ(Id({}), (QList<qint64>{1, 2, 3}));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE MembruID = 1")), 1);
}

TEST_P(Lista, TitlulSiTextulRezultatului) {
    bool exista = true;
    EXPECT_EQ(ListaCereri::DenumirePrimarie(Bd(), &exista), QString());
    EXPECT_FALSE(exista);
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria Comunei Branesti')"));
    EXPECT_EQ(ListaCereri::DenumirePrimarie(Bd(), &exista), QStringLiteral("Primaria Comunei Branesti"));
    EXPECT_TRUE(exista);
    EXPECT_EQ(ListaCereri::TextRezultat(0), QStringLiteral(" Nu exista nici o cerere"));
    EXPECT_EQ(ListaCereri::TextRezultat(1), QStringLiteral(" o cerere"));
    EXPECT_EQ(ListaCereri::TextRezultat(25), QStringLiteral("25 cereri"));
}

PE_AMBELE_MOTOARE(Lista);

} // namespace

// The list's model: a column sorts by its text whatever the case, and a row the rules mark red is
// drawn red in every column.
#include "cases/ModelCereri.h"

#include <QBrush>

namespace {

TEST_P(Lista, ModelulSorteazaFaraMajusculeSiColoreazaRandurileRosii) {
    ModelCereri m;
    m.Seteaza(ListaCereri::Cauta(Bd(), {}));
    m.sort(ModelCereri::Solicitant);
    QStringList solicitanti;
    int rosii = 0;
    for (int i = 0; i < m.rowCount(); ++i) {
        rosii += m.Rand(i)->Rosu();
        solicitanti << m.index(i, ModelCereri::Solicitant).data().toString();
        const QVariant culoare = m.index(i, ModelCereri::Adresa).data(Qt::ForegroundRole);
        EXPECT_EQ(culoare.isValid() && culoare.value<QBrush>().color() == QColor(255, 0, 0), m.Rand(i)->Rosu()) << i;
    }
    EXPECT_EQ(solicitanti, (QStringList{QStringLiteral("Ionescu Vasile"), QStringLiteral("popa Maria"),
                                        QStringLiteral("Popescu Ion")}));
    EXPECT_EQ(rosii, 2);
}

} // namespace
