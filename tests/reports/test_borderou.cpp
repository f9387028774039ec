#include "reference/DateReferinta.h"
#include "reports/builders/Borderou.h"
#include "reports/export/Csv.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/Texte.h"

#include <QFileInfo>
#include <QTemporaryDir>

using namespace Raport;

namespace {

// OK needs a report, then an allowance, each refused with the focus on its list.
TEST(BorderouAlegeri, RaportulApoiAlocatia) {
    using C = RefuzBorderou::Control;
    const std::tuple<int, int, std::optional<C>> cazuri[] = {
        {-1, -1, C::TipRaport}, {5, 0, C::TipRaport}, {0, -1, C::TipAloc}, {3, 3, C::TipAloc}, {4, 2, std::nullopt}};
    for (const auto& [raport, aloc, control] : cazuri) {
        const auto refuz = VerificaBorderou({raport, aloc, 0, 0, 3, 2024});
        EXPECT_EQ(refuz ? std::optional<C>(refuz->control) : std::optional<C>(), control) << raport << "," << aloc;
    }
}

class Borderou : public TestBaza {};

// Every report with the allowances and orderings, as its CSV without the column titles: the head (the
// month only named), a row per request, the total and the foot. The requests, one per edge:
//   1 nr 101 POPESCU, in payment (2), complementary, Lege416 true, 164
//   2 nr 102 IONESCU, suspended (3), single-parent, false, staircase and flat, 107.5
//   3 nr 3 DUMITRU, stopped (4), complementary, Lege416 missing (NU), no amount (empty, counts 0), family
//     30 on Morii (family 3, on Gresita, is not hers)
//   4 nr 104 STAN, rejected (5), single-parent, true, 0
//   5 nr 99 ANDREI, modified amount (7, in payment), single-parent, false, 82.25
//   6 nr 105 BALAN, registered (1, in payment), complementary, true, no street, 246, filed 03.11.2014
// The office calls its streets "sat": the Borderou says "str." all the same.
TEST_P(Borderou, RapoarteAlocatiiSiOrdine) {
    BazaDate& db = BazaNoua();
    DateReferinta::DatePrimarie p;
    for (auto& t : p.text)
        t = T("x");
    p.text[3] = T("Ilfov");
    p.text[4] = T("Branesti");
    p.text[9] = T("Ene Maria");
    p.TipLocalitate = 1;
    ASSERT_FALSE(DateReferinta::SalveazaDatePrimarie(db, p));
    const QVariant nul;
    // clang-format off
    const std::tuple<qint64, qint64, qint64, int, int, const char*, QVariant, QVariant, QVariant, QVariant, QDate> cereri[] = {
        {1, 1, 101, 2, 1, "POPESCU", T("Garii"), nul, 1, 164, QDate(2024, 3, 15)},
        {2, 2, 102, 3, 2, "IONESCU", T("Florilor"), T("B"), 0, QVariant::fromValue(B("107.5")), QDate(2024, 3, 15)},
        {3, 30, 3, 4, 1, "DUMITRU", T("Morii"), nul, nul, nul, QDate(2024, 3, 15)},
        {4, 4, 104, 5, 2, "STAN", T("Garii"), nul, 1, 0, QDate(2024, 3, 15)},
        {5, 5, 99, 7, 2, "ANDREI", T("Florilor"), nul, 0, QVariant::fromValue(B("82.25")), QDate(2024, 3, 15)},
        {6, 6, 105, 1, 1, "BALAN", nul, nul, 1, 246, QDate(2014, 11, 3)}};
    // clang-format on
    for (const auto& [id, familie, nr, stare, tip, nume, strada, sc, lege416, cuantum, data] : cereri) {
        CerereTest c;
        c.cerereID = id;
        c.familieID = familie;
        c.nrCerere = nr;
        c.stare = stare;
        c.tipCerere = tip;
        c.persoane = {{id * 10, T(nume), T("ION"), T("18503124100") + QString::number(id * 11), 1}};
        AdaugaCerereTest(db, c);
        ExecutaCu(db, T("UPDATE Familii SET Strada = ?, Sc = ?, Ap = ? WHERE FamilieID = ?"), strada, sc,
                  sc.isNull() ? nul : QVariant(T("14")), familie);
        ExecutaCu(db, T("UPDATE Cereri SET Lege416 = ?, NrMembrii = 2, Cuantum = ?, DataCerere = ? WHERE CerereID = ?"),
                  lege416, cuantum, data, id);
    }
    ExecutaCu(db, T("INSERT INTO Familii (FamilieID, Localitate, Strada, Nr) VALUES (?, ?, ?, ?)"), qint64(3),
              T("Branesti"), T("Gresita"), T("9"));
    const QStringList rand{
        {}, // by request, without the counter
        T("101 / 15.03.2024;POPESCU ION;1850312410011;Branesti, str. Garii, nr. 12;DA;2;1;164"),
        T("102 / 15.03.2024;IONESCU ION;1850312410022;Branesti, str. Florilor, nr. 12, sc. B, ap. 14;NU;2;1;107.5"),
        T("3 / 15.03.2024;DUMITRU ION;1850312410033;Branesti, str. Morii, nr. 12;NU;2;1;"),
        T("104 / 15.03.2024;STAN ION;1850312410044;Branesti, str. Garii, nr. 12;DA;2;1;0"),
        T("99 / 15.03.2024;ANDREI ION;1850312410055;Branesti, str. Florilor, nr. 12;NU;2;1;82.25"),
        T("105 / 03.11.2014;BALAN ION;1850312410066;Branesti, nr. 12;DA;2;1;246")};
    const char* inPlata = "privind cererile In plata pentru alocatia de sustinere a familiei";
    const char* respinse = "privind cererile Respinse pentru alocatia de sustinere a familiei";
    // clang-format off
    const std::tuple<int, int, int, int, const char*, std::vector<int>, const char*> cazuri[] = {
        {0, 0, 0, 0, "", {1, 2, 3, 4, 5, 6}, "599.75"}, // in the order of entry; 164 + 107.5 + 82.25 + 246
        {0, 0, 2, 0, "", {5, 6, 3, 2, 1, 4}, "599.75"}, // by name
        {0, 0, 3, 1, "", {6, 5, 2, 1, 4, 3}, "599.75"}, // by street, the missing one first, then by number
        {1, 0, 1, 0, inPlata, {5, 1, 6}, "492.25"},     // statuses 1, 2, 6, 7, 8 by number
        {1, 0, 0, 2, inPlata, {1, 5, 6}, "492.25"},     // the second ordering alone orders nothing
        {1, 2, 0, 0, inPlata, {5}, "82.25"},
        {2, 0, 0, 0, "privind cererile Suspendate pentru alocatia de sustinere a familiei", {2}, "107.50"},
        {3, 1, 0, 0, "privind cererile Incetate pentru alocatia de sustinere a familiei", {3}, "0.00"},
        {4, 1, 0, 0, respinse, {}, "0.00"},             // nothing: an empty table, a zero total
        {4, 2, 0, 0, respinse, {4}, "0.00"}};
    // clang-format on
    Setari s;
    s.StrSat = T("sat");
    for (const auto& [raport, aloc, ord1, ord2, titlu, cereriListate, total] : cazuri) {
        SCOPED_TRACE(testing::Message() << raport << " x " << aloc << " ord " << ord1 << "," << ord2);
        QStringList asteptat{T("ROMANIA;;;;;;;;"),     T("Consiliul local Branesti;;;;;;;;"),
                             T("Ilfov;;;;;;;;"),       T("BORDEROU;;;;;;;;"),
                             T(titlu) + T(";;;;;;;;"), T("Luna Martie anul 2024;;;;;;;;")};
        for (size_t i = 0; i < cereriListate.size(); ++i)
            asteptat << QString::number(i + 1) + u';' + rand[cereriListate[i]];
        asteptat << T(";;;;TOTAL GENERAL;;;;") + T(total) << T(";;;;;;;;") << T(";;;As Social,;;;;;")
                 << T(";;;Ene Maria;;;;;");
        const AlegeriBorderou a{raport, aloc, ord1, ord2, 3, 2024};
        QStringList linii = QString::fromUtf8(Csv(Raport::Borderou(db, mesaje, s, a))).split(T("\r\n"));
        QStringList foaie = QString::fromUtf8(Csv(Raport::Borderou(db, mesaje, s, a, true))).split(T("\r\n"));
        // The twin has its own column titles, and the rest the same.
        ASSERT_GT(linii.size(), 7);
        EXPECT_NE(linii.takeAt(6), foaie.takeAt(6));
        EXPECT_EQ(foaie, linii);
        linii.removeLast();
        EXPECT_EQ(linii, asteptat);
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << S(mesaje.Texte().join(u'|'));

    // The export writes the twin as xlsx, or as ods when the office program is LibreOffice.
    QTemporaryDir folder;
    for (int appWord : {1, 2}) {
        s.AppWord = appWord;
        const QString fisier = ExportaBorderou(db, mesaje, s, {2, 0, 0, 0, 3, 2024}, folder.path());
        EXPECT_EQ(QFileInfo(fisier).suffix(), appWord == 2 ? T("ods") : T("xlsx"));
        EXPECT_GT(QFileInfo(fisier).size(), 0);
    }
}

PE_AMBELE_MOTOARE(Borderou);

} // namespace
