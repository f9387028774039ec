#include "reference/DateReferinta.h"
#include "reports/builders/Borderou.h"
#include "reports/export/Csv.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/Ods.h"
#include "support/Texte.h"

#include <QDir>
#include <QTemporaryDir>

using namespace Raport;

namespace {

// OK needs a report, then an allowance, each refused with the focus on its list.
TEST(BorderouAlegeri, RaportulApoiAlocatia) {
    using C = RefuzBorderou::Control;
    const std::tuple<int, int, std::optional<C>> cazuri[] = {{-1, -1, C::TipRaport}, {-1, 1, C::TipRaport},
                                                             {5, 0, C::TipRaport},   {0, -1, C::TipAloc},
                                                             {3, 3, C::TipAloc},     {4, 2, std::nullopt}};
    for (const auto& [raport, aloc, control] : cazuri) {
        const auto refuz = VerificaBorderou({raport, aloc, 0, 0, 3, 2024});
        ASSERT_EQ(refuz.has_value(), control.has_value()) << raport << "," << aloc;
        if (refuz) {
            EXPECT_EQ(refuz->control, *control) << raport << "," << aloc;
            EXPECT_FALSE(refuz->mesaj.isEmpty());
        }
    }
}

// Six requests, one per edge: each status group, both allowances, Lege416 true, false and missing, an
// amount missing, a street missing, and one whose family's key is neither its key nor its number
// (a family stored under its key holds another address, which must not show).
class Borderou : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaDate& db = BazaNoua();
        DateReferinta::DatePrimarie p;
        p.text[3] = T("Ilfov");
        p.text[4] = T("Branesti");
        p.text[9] = T("Ene Maria");
        for (int i : {0, 1, 2, 5, 6, 7, 8, 10, 11, 12})
            p.text[size_t(i)] = T("x");
        p.TipLocalitate = 1;
        ASSERT_FALSE(DateReferinta::SalveazaDatePrimarie(db, p));

        struct Rand {
            qint64 id, familie, nr;
            int stare, tip;
            const char *nume, *prenume, *cnp, *strada, *nrCasa, *sc, *ap;
            QVariant lege416;
            qint64 membri, copii;
            QVariant cuantum;
            QDate data;
        };
        const QDate martie(2024, 3, 15);
        const Rand randuri[] = {
            {1, 1, 101, 2, 1, "POPESCU", "ION", "1850312410015", "Garii", "12", "", "", 1, 3, 1, 164, martie},
            {2, 2, 102, 3, 2, "IONESCU", "MARIA", "2900415410021", "Florilor", "7", "B", "14", 0, 2, 1,
             QVariant::fromValue(B("107.5")), martie},
            {3, 30, 3, 4, 1, "DUMITRU", "ANA", "2870722410034", "Morii", "3A", "", "", QVariant(), 2, 1, QVariant(),
             martie},
            {4, 4, 104, 5, 2, "STAN", "ELENA", "2920101410047", "Garii", "40", "", "", 1, 2, 1, 0, martie},
            {5, 5, 99, 7, 2, "ANDREI", "VASILE", "1780930410052", "Florilor", "2", "", "", 0, 2, 1,
             QVariant::fromValue(B("82.25")), martie},
            {6, 6, 105, 1, 1, "BALAN", "DAN", "1830506410068", nullptr, "5", "", "", 1, 4, 2, 246, QDate(2014, 11, 3)},
        };
        for (const Rand& r : randuri) {
            CerereTest c;
            c.cerereID = r.id;
            c.familieID = r.familie;
            c.nrCerere = r.nr;
            c.stare = r.stare;
            c.tipCerere = r.tip;
            c.persoane = {{r.id * 10, T(r.nume), T(r.prenume), T(r.cnp), 1}};
            AdaugaCerereTest(db, c);
            ExecutaCu(db, T("UPDATE Familii SET Strada = ?, Nr = ?, Sc = ?, Ap = ? WHERE FamilieID = ?"),
                      r.strada ? QVariant(T(r.strada)) : QVariant(), T(r.nrCasa), T(r.sc), T(r.ap), r.familie);
            ExecutaCu(db,
                      T("UPDATE Cereri SET Lege416 = ?, NrMembrii = ?, NrCopii = ?, Cuantum = ?, DataCerere = ? "
                        "WHERE CerereID = ?"),
                      r.lege416, r.membri, r.copii, r.cuantum, r.data, r.id);
        }
        ExecutaCu(db, T("INSERT INTO Familii (FamilieID, Localitate, Strada, Nr) VALUES (?, ?, ?, ?)"), qint64(3),
                  T("Branesti"), T("Gresita"), T("99"));
        // The office calls its streets "sat": the Borderou says "str." all the same.
        setari.StrSat = T("sat");
        setari.HeightRowBorderou = 50;
    }

    Setari setari;
};

// The fields of a CSV line, padded to the nine columns.
QString L(std::initializer_list<const char*> campuri) {
    QStringList r;
    for (const char* c : campuri)
        r << T(c);
    while (r.size() < 9)
        r << QString();
    return r.join(u';');
}

// Every report of the list with each allowance, in the orders of the lists, as its CSV without the
// column titles: the head (the month only named), a row per request, the total and the foot.
// The rows follow from the fixture:
//   C1 101 / 15.03.2024 POPESCU ION, in payment (2), complementary, Lege416 true, 3 members, 1 child, 164
//   C2 102 IONESCU MARIA, suspended (3), single-parent, false, street with staircase and flat, 107.5
//   C3 3 DUMITRU ANA, stopped (4), complementary, Lege416 missing (NU), no amount (empty, counts 0),
//      family 30 on Morii 3A (family 3 on Gresita is not hers)
//   C4 104 STAN ELENA, rejected (5), single-parent, true, 0
//   C5 99 ANDREI VASILE, modified amount (7, in payment), single-parent, false, 82.25
//   C6 105 / 03.11.2014 BALAN DAN, registered (1, in payment), complementary, true, no street, 246
TEST_P(Borderou, RapoarteAlocatiiSiOrdine) {
    const QString c1 = L({"", "101 / 15.03.2024", "POPESCU ION", "1850312410015", "Branesti, str. Garii, nr. 12", "DA",
                          "3", "1", "164"}),
                  c2 = L({"", "102 / 15.03.2024", "IONESCU MARIA", "2900415410021",
                          "Branesti, str. Florilor, nr. 7, sc. B, ap. 14", "NU", "2", "1", "107.5"}),
                  c3 = L({"", "3 / 15.03.2024", "DUMITRU ANA", "2870722410034", "Branesti, str. Morii, nr. 3A", "NU",
                          "2", "1", ""}),
                  c4 = L({"", "104 / 15.03.2024", "STAN ELENA", "2920101410047", "Branesti, str. Garii, nr. 40", "DA",
                          "2", "1", "0"}),
                  c5 = L({"", "99 / 15.03.2024", "ANDREI VASILE", "1780930410052", "Branesti, str. Florilor, nr. 2",
                          "NU", "2", "1", "82.25"}),
                  c6 = L(
                      {"", "105 / 03.11.2014", "BALAN DAN", "1830506410068", "Branesti, nr. 5", "DA", "4", "2", "246"});
    struct Caz {
        int raport, aloc, ord1, ord2;
        const char* titlu; // the line under "BORDEROU"
        std::vector<QString> randuri;
        const char* total;
    };
    const char* inPlata = "privind cererile In plata pentru alocatia de sustinere a familiei";
    const Caz cazuri[] = {
        // All of them in the order of entry; 164 + 107.5 + 0 + 0 + 82.25 + 246.
        {0, 0, 0, 0, "", {c1, c2, c3, c4, c5, c6}, "599.75"},
        // By name: Andrei, Balan, Dumitru, Ionescu, Popescu, Stan.
        {0, 0, 2, 0, "", {c5, c6, c3, c2, c1, c4}, "599.75"},
        // By street, the missing one first, then by number: Florilor 99, 102; Garii 101, 104; Morii.
        {0, 0, 3, 1, "", {c6, c5, c2, c1, c4, c3}, "599.75"},
        // In payment: statuses 1, 2, 6, 7, 8; 164 + 82.25 + 246.
        {1, 0, 0, 0, inPlata, {c1, c5, c6}, "492.25"},
        // By number: 99, 101, 105; the second ordering alone orders nothing.
        {1, 0, 1, 0, inPlata, {c5, c1, c6}, "492.25"},
        {1, 0, 0, 2, inPlata, {c1, c5, c6}, "492.25"},
        {1, 2, 0, 0, inPlata, {c5}, "82.25"},
        {2, 0, 0, 0, "privind cererile Suspendate pentru alocatia de sustinere a familiei", {c2}, "107.50"},
        {3, 1, 0, 0, "privind cererile Incetate pentru alocatia de sustinere a familiei", {c3}, "0.00"},
        // No rejected complementary request: the table is empty and the total zero.
        {4, 1, 0, 0, "privind cererile Respinse pentru alocatia de sustinere a familiei", {}, "0.00"},
        {4, 2, 0, 0, "privind cererile Respinse pentru alocatia de sustinere a familiei", {c4}, "0.00"},
    };
    for (const Caz& caz : cazuri) {
        SCOPED_TRACE(testing::Message() << caz.raport << " x " << caz.aloc << " ord " << caz.ord1 << "," << caz.ord2);
        QStringList asteptat{L({"ROMANIA"}), L({"Consiliul local Branesti"}), L({"Ilfov"}), L({"BORDEROU"}),
                             L({caz.titlu}), L({"Luna Martie anul 2024"})};
        int nr = 0;
        for (const QString& r : caz.randuri)
            asteptat << QString::number(++nr) + r;
        asteptat << L({"", "", "", "", "TOTAL GENERAL", "", "", "", caz.total}) << L({})
                 << L({"", "", "", "As Social,"}) << L({"", "", "", "Ene Maria"});

        const Grila g = Raport::Borderou(Bd(), mesaje, setari, {caz.raport, caz.aloc, caz.ord1, caz.ord2, 3, 2024});
        QStringList linii = QString::fromUtf8(Csv(g)).split(T("\r\n"), Qt::SkipEmptyParts);
        ASSERT_GT(linii.size(), 6);
        linii.removeAt(6); // the column titles
        EXPECT_EQ(linii, asteptat);

        // The twin: the same, but for its column titles; A4 both, landscape only on the grid's page.
        const Grila foaie =
            Raport::Borderou(Bd(), mesaje, setari, {caz.raport, caz.aloc, caz.ord1, caz.ord2, 3, 2024}, true);
        QStringList liniiFoaie = QString::fromUtf8(Csv(foaie)).split(T("\r\n"), Qt::SkipEmptyParts);
        ASSERT_GT(liniiFoaie.size(), 6);
        EXPECT_NE(liniiFoaie.takeAt(6), QString::fromUtf8(Csv(g)).split(T("\r\n")).at(6));
        EXPECT_EQ(liniiFoaie, linii);
        EXPECT_EQ(g.pagina.hartie, Hartie::A4);
        EXPECT_FALSE(g.pagina.portret);
        EXPECT_EQ(foaie.pagina.hartie, Hartie::A4);
        EXPECT_EQ(g.inaltimeImplicita, 50);
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << S(mesaje.Texte().join(u'|'));
    EXPECT_EQ(setari.StrSat, T("sat"));
}

// The export writes the twin, as xlsx or, when the office program is LibreOffice, as ods.
TEST_P(Borderou, ExportulDupaProgram) {
    QTemporaryDir folder;
    const AlegeriBorderou a{2, 0, 0, 0, 3, 2024};
    const QString xlsx = ExportaBorderou(Bd(), mesaje, setari, a, folder.path());
    EXPECT_TRUE(xlsx.endsWith(T(".xlsx")));
    EXPECT_TRUE(DinArhiva(xlsx, "xl/sharedStrings.xml").contains(T("IONESCU MARIA")));
    setari.AppWord = 2;
    const QString ods = ExportaBorderou(Bd(), mesaje, setari, a, folder.path());
    EXPECT_TRUE(ods.endsWith(T(".ods")));
    EXPECT_EQ(QFileInfo(ods).absolutePath(), QFileInfo(xlsx).absolutePath());
    const std::vector<QStringList> foaie = TextePrimaFoaie(ods);
    ASSERT_GT(foaie.size(), 7u);
    EXPECT_EQ(foaie[7].value(2), T("IONESCU MARIA")) << "sheet row 7 is grid row 8, the first request";
}

PE_AMBELE_MOTOARE(Borderou);

} // namespace
