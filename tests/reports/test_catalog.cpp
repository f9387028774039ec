#include "base/Eroare.h"
#include "reference/DateReferinta.h"
#include "reports/Catalog.h"
#include "reports/Rapoarte.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Raport;

namespace {

// The ordering clause of every report, from the two lists' indexes (0 and none order by nothing);
// house numbers sort by number only where a builder asks.
TEST(Catalog, ClauzaDeOrdonare) {
    // clang-format off
    const std::tuple<int, int, const char*, const char*> cazuri[] = {
        {-1, 2, "", ""}, {0, 3, "", ""}, {1, -1, "", " ORDER BY NrCerere"}, {2, 0, "", " ORDER BY Nume, Prenume"},
        {3, 2, "", " ORDER BY Strada, Nume, Prenume"}, {3, 4, "", " ORDER BY Strada, Nr"},
        {3, 4, "NrNumeric", " ORDER BY Strada, NrNumeric, Nr"}, {1, 3, "NrNumeric", " ORDER BY NrCerere, Strada"},
        {4, 1, "", ""}};
    // clang-format on
    for (const auto& [o1, o2, nr, clauza] : cazuri)
        EXPECT_EQ(ClauzaOrdonare(o1, o2, QString::fromLatin1(nr)), QString::fromLatin1(clauza)) << o1 << "," << o2;
}

// Only a whole number from 1 to the page count is a page to print.
TEST(Catalog, PaginaDeTiparit) {
    const std::tuple<const char*, int, std::optional<int>> cazuri[] = {{"1", 3, 1},    {" 3 ", 3, 3}, {"4", 3, {}},
                                                                       {"0", 3, {}},   {"-1", 3, {}}, {"2.5", 3, {}},
                                                                       {"abc", 3, {}}, {"", 3, {}}};
    for (const auto& [tastat, pagini, asteptat] : cazuri)
        EXPECT_EQ(PaginaDeTiparit(QString::fromLatin1(tastat), pagini), asteptat) << tastat;
}

// A file's extension picks its writer.
TEST(Catalog, ScriereDupaExtensie) {
    QTemporaryDir dir;
    Grila g(3, 3);
    g.Scrie(1, 1, T("a"));
    ScrieDupaExtensie(g, dir.filePath(T("g.CSV")));
    EXPECT_TRUE(QFile::exists(dir.filePath(T("g.CSV"))));
    EXPECT_THROW(ScrieDupaExtensie(g, dir.filePath(T("g.doc"))), Eroare);
}

class DeschidereRapoarte : public TestBaza {};

// The window needs the town hall's data; the two exports of one town hall show only for it.
TEST_P(DeschidereRapoarte, PrimariaSiButoaneleBAS) {
    BazaDate& db = BazaNoua();
    EXPECT_FALSE(VerificaPrimaria(db, mesaje));
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_FALSE(ButoaneBAS(db));
    const std::tuple<const char*, const char*, bool> cazuri[] = {{" carei ", "123", true},
                                                                 {"Careii", "6619245", true},
                                                                 {"Carei Mare", " 6619245 ", true},
                                                                 {"Branesti", "661924", false}};
    for (const auto& [localitate, cod, vizibile] : cazuri) {
        DateReferinta::DatePrimarie p;
        for (auto& t : p.text)
            t = T("x");
        p.text[4] = QString::fromUtf8(localitate);
        p.text[1] = QString::fromUtf8(cod);
        p.TipLocalitate = 1;
        ASSERT_FALSE(DateReferinta::SalveazaDatePrimarie(db, p));
        EXPECT_EQ(ButoaneBAS(db), vizibile) << localitate << " " << cod;
    }
    EXPECT_TRUE(VerificaPrimaria(db, mesaje));

    // The reports without a spreadsheet export write nothing and ask for nothing; an index out of the
    // list is refused.
    mesaje.mesaje.clear();
    const MediuRaport mediu{Setari{}, {}, {}};
    QTemporaryDir dir;
    for (int index : {5, 6, 7})
        EXPECT_EQ(Exporta(index, db, mesaje, mediu, Alegeri{}, dir.path(), {}), std::nullopt);
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
    EXPECT_THROW(Construieste(22, false, db, mesaje, mediu, Alegeri{}), Eroare);
}
PE_AMBELE_MOTOARE(DeschidereRapoarte);

} // namespace
