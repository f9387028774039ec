#include "cases/DateCerere.h"
#include "cases/ListaCereri.h"
#include "cases/ModelCereri.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

#include <QBrush>

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

    QList<qint64> Id(const char* cnp, const char* nume, const char* prenume = "", const char* nr = "",
                     QList<int> stari = {}, int tip = 0) {
        const FiltruCautare f{QString::fromUtf8(cnp),
                              QString::fromUtf8(nume),
                              QString::fromUtf8(prenume),
                              QString::fromUtf8(nr),
                              stari,
                              tip,
                              ListaCereri::NrCerere,
                              {}};
        QList<qint64> r;
        for (const auto& rand : ListaCereri::Pagina(Bd(), f, 0, 1000))
            r << rand.CerereID;
        EXPECT_EQ(ListaCereri::Numara(Bd(), f), r.size()) << cnp << nume << prenume << nr;
        return r;
    }
    QList<qint64> Toate() { return Id("", ""); }
};

// Boxes filter by beginning, LIKE's wild cards as typed; names whatever their case and diacritics.
TEST_P(Lista, FiltreleCautaDupaInceput) {
    const struct {
        qint64 id;
        const char *nume, *prenume;
    } titulari[] = {{4, "\u0218erban", "Ana"},
                    {5, "\u015EERBAN", "\u015Etefan"},
                    {6, "\u021A\u00EErlea", "Ionu\u021B"},
                    {7, "\u00CErimia", "\u0102urel"}};
    for (const auto& t : titulari) {
        CerereTest c;
        c.cerereID = t.id;
        c.nrCerere = 20 + t.id;
        c.persoane = {{t.id + 2, QString::fromUtf8(t.nume), QString::fromUtf8(t.prenume), {}, 1}};
        AdaugaCerereTest(Bd(), c);
    }
    EXPECT_EQ(Toate(), (QList<qint64>{3, 2, 1, 4, 5, 6, 7}));
    EXPECT_EQ(Id("1800", ""), QList<qint64>{1});
    EXPECT_EQ(Id("1", ""), (QList<qint64>{3, 1}));
    EXPECT_EQ(Id("18x", ""), QList<qint64>{});
    EXPECT_EQ(Id("", "pop"), (QList<qint64>{2, 1}));
    EXPECT_EQ(Id("", "", "ION"), (QList<qint64>{1, 6}));
    EXPECT_EQ(Id("", "", "", "9 bis"), QList<qint64>{2});
    EXPECT_EQ(Id("", "", "", "", {3, 4}), (QList<qint64>{3, 2}));
    EXPECT_EQ(Id("", "Pop", "", "", {2}, 1), QList<qint64>{1});
    EXPECT_EQ(Id("", "%"), QList<qint64>{});
    EXPECT_EQ(Id("", "P_pa"), QList<qint64>{});
    EXPECT_EQ(Id("", "serban"), (QList<qint64>{4, 5}));
    EXPECT_EQ(Id("", "S\u0327er"), (QList<qint64>{4, 5}));
    EXPECT_EQ(Id("", "", "\u0219tefan"), QList<qint64>{5});
    EXPECT_EQ(Id("", "\u0162\u00CER"), QList<qint64>{6});
    EXPECT_EQ(Id("", "\u00EE"), (QList<qint64>{3, 7}));
    EXPECT_EQ(Id("", "serbanescu"), QList<qint64>{});
}

// A request without its titular shows, opens and deletes.
TEST_P(Lista, CerereaFaraTitularSeVedeSiSeSterge) {
    ExecutaCu(Bd(), QStringLiteral("UPDATE Cereri SET MembruID1 = NULL WHERE CerereID = 3"));
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Membrii WHERE MembruID = 5"));
    EXPECT_EQ(Toate(), (QList<qint64>{3, 2, 1}));
    const RandCerere r = ListaCereri::Citeste(Bd(), 3);
    EXPECT_EQ(r.Solicitant + u'|' + r.Adresa, QStringLiteral("|Cernica, nr. 12"));
    EXPECT_TRUE(IncarcaCerere(Bd(), 3, 3, 2024, mesaje).Gasita);
    ListaCereri::Sterge(Bd(), 3);
    EXPECT_EQ(Toate(), (QList<qint64>{2, 1}));
    EXPECT_EQ(ListaCereri::Citeste(Bd(), 3).CerereID, 0);
}

// A delete keeps what another request holds; the last takes its family, found by its family key.
TEST_P(Lista, StergereaPastreazaFamiliaSiPersoaneleComune) {
    AdaugaCerereTest(Bd(), {5, 6, 40, 2, 1, {}, {}, {{6, "Stan", "Ion", {}, 1}}});
    AdaugaCerereTest(Bd(), {7, 5, 41, 2, 1, {}, {}, {{7, "Dinu", "Ana", {}, 1}}});
    AdaugaCerereTest(Bd(), {8, 1, 11, 1, 1, {}, {}, {{1, "Popescu", "Ion", "1800101400123", 1}}});
    const auto numar = [&](const char* sql) { return Numar(QLatin1String(sql)); };
    ListaCereri::Sterge(Bd(), 5);
    EXPECT_EQ(numar("SELECT COUNT(*) FROM Familii WHERE FamilieID IN (5, 6)"), 1);
    EXPECT_EQ(numar("SELECT FamilieID FROM Familii WHERE FamilieID IN (5, 6)"), 5);
    ListaCereri::Sterge(Bd(), 8); // titular and family both held by another request
    ListaCereri::Sterge(Bd(), 2);
    EXPECT_EQ(numar("SELECT COUNT(*) FROM Membrii WHERE MembruID IN (1, 2)"), 2) << "shared persons stay";
    EXPECT_EQ(numar("SELECT COUNT(*) FROM Membrii WHERE MembruID IN (3, 4)") +
                  numar("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID IN (2, 8)"),
              0);
    EXPECT_EQ(numar("SELECT COUNT(*) FROM Familii WHERE FamilieID = 1"), 1);
    ListaCereri::Sterge(Bd(), 1);
    EXPECT_EQ(numar("SELECT COUNT(*) FROM Familii WHERE FamilieID = 1"), 0);
    ListaCereri::Sterge(Bd(), 1); // already gone: nothing happens
    EXPECT_EQ(Toate(), (QList<qint64>{3, 7}));
}

// Any window of the list, read from either end, is that part of the whole list, in every order;
// the rows left out and the filters hold in every window.
TEST_P(Lista, FerestreleListeiSuntPartiAleIntregii) {
    for (qint64 id = 10; id < 23; ++id) {
        CerereTest c;
        c.cerereID = id;
        c.nrCerere = (id * 7) % 5; // repeated numbers: the key breaks the ties
        c.stare = int(id % 4) + 1;
        c.localitate = id % 2 ? QStringLiteral("Cernica") : QStringLiteral("Branesti");
        c.persoane = {{id + 10, id % 3 ? QStringLiteral("Pop") : QStringLiteral("Ban"), QString::number(id), {}, 1}};
        AdaugaCerereTest(Bd(), c);
    }
    const auto ids = [](const std::vector<RandCerere>& r) {
        QList<qint64> l;
        for (const RandCerere& x : r)
            l << x.CerereID;
        return l;
    };
    FiltruCautare cuStare;
    cuStare.Stari = {2, 3};
    cuStare.Fara = {14};
    for (const FiltruCautare& baza : {FiltruCautare{}, cuStare}) {
        for (int c = 0; c <= int(ListaCereri::NrCopii); ++c) {
            FiltruCautare f = baza;
            f.Ordine = ListaCereri::Coloana(c);
            SCOPED_TRACE(testing::Message() << "coloana " << c << ", stari " << f.Stari.size());
            const QList<qint64> toate = ids(ListaCereri::Pagina(Bd(), f, 0, 1000));
            const qint64 total = ListaCereri::Numara(Bd(), f);
            ASSERT_EQ(toate.size(), total);
            QList<qint64> pePagini;
            for (qint64 deLa = 0; deLa < total; deLa += 3)
                pePagini << ids(ListaCereri::Pagina(Bd(), f, deLa, 3, total));
            EXPECT_EQ(pePagini, toate);
            EXPECT_EQ(toate.contains(14), f.Fara.isEmpty());
            EXPECT_TRUE(ListaCereri::Pagina(Bd(), f, total, 3, total).empty());
        }
    }
    FiltruCautare f;
    f.Ordine = ListaCereri::NrCerere;
    f.Nume = QStringLiteral("ban");
    EXPECT_EQ(ids(ListaCereri::Pagina(Bd(), f, 0, 100)), (QList<qint64>{15, 18, 21, 12}));
    f.Nume.clear();
    f.Stari = {4};
    f.Ordine = ListaCereri::Solicitant;
    EXPECT_EQ(ids(ListaCereri::Pagina(Bd(), f, 1, 100, 4)), (QList<qint64>{3, 11, 19}));
    EXPECT_EQ(ids(ListaCereri::Pagina(Bd(), f, 3, 100, 4)), (QList<qint64>{19}));
}

// The list's model reads what the view shows, keeps added rows below the list and follows a delete;
// a column click orders the same search by that column, and a row the rules mark red is drawn red in
// every column.
TEST_P(Lista, ModelulCitestePePaginiSiColoreazaRandurileRosii) {
    ModelCereri m(Bd());
    m.Seteaza({});
    ASSERT_EQ(m.rowCount(), 3);
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

    AdaugaCerereTest(Bd(), {9, 0, 1, 2, 1, {}, {}, {{9, "Albu", "Ion", {}, 1}}});
    m.Adauga(ListaCereri::Citeste(Bd(), 9));
    EXPECT_EQ(m.rowCount(), 4);
    EXPECT_EQ(m.Rand(3)->CerereID, 9) << "below the list, not in its order";
    EXPECT_EQ(m.RandulCererii(9), 3);
    ListaCereri::Sterge(Bd(), 2);
    m.Elimina(1);
    QList<qint64> ramase;
    for (int i = 0; i < m.rowCount(); ++i)
        ramase << m.Rand(i)->CerereID;
    EXPECT_EQ(ramase, (QList<qint64>{3, 1, 9}));
    m.sort(ModelCereri::NrCerere);
    EXPECT_EQ(m.Rand(0)->CerereID, 9) << "a new order reads the added row in its place";
}

PE_AMBELE_MOTOARE(Lista);

} // namespace
