#include "base/Eroare.h"
#include "reports/builders/Bas.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/Ods.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Raport;

namespace {

class Bas : public TestBaza {};

// The table of a written form from its first row, a row as its cells joined by "|".
QStringList Tabel(const QString& fisier, int primulRand, int coloane) {
    QStringList r;
    const std::vector<QStringList> foaie = TextePrimaFoaie(fisier);
    for (size_t i = size_t(primulRand); i < foaie.size(); ++i)
        r << foaie[i].mid(0, coloane).join(u'|');
    return r;
}

// The two forms from the requests of every status, by request (members by key, from 11):
//   1 POPESCU, in payment (2), complementary (B), full address; his wife (S), son (C) and an unrelated
//     adult (no code) under him
//   2 IONESCU, suspended on 31.12.2017: left out of A23
//   3 ANDREI, stopped on 30.06.2018, single-parent (M): stopped in 2018 (1) on that date; its child is not
//     listed, the request counting one member
//   4 BALAN, stopped, no date: kept (0, no date); no county, no street, no amount
//   5 CONSTANTIN, stopped on 01.02.2019: kept (0)
//   6 FLOREA registered, 8 GHEORGHE rejected: on neither form
//   7 DUMITRU, back in payment (6), 82.25
//   9 ENE, suspended on 01.03.2018: kept, columns 12 and 13 being only for a stop
// A23 lists them by name from sheet row 6; A25 only those in payment (2, 6, 7, 8) from row 7.
TEST_P(Bas, FormulareleCompletate) {
    BazaDate& db = BazaNoua();
    // clang-format off
    const std::tuple<qint64, int, int, QDate, const char*, const char*, const char*, const char*> cereri[] = {
        {1, 2, 1, {}, "POPESCU", "Ilfov", "Garii", "A2"}, {2, 3, 2, {2017, 12, 31}, "IONESCU", "Ilfov", "Garii", ""},
        {3, 4, 2, {2018, 6, 30}, "ANDREI", "Ilfov", "Morii", ""}, {4, 4, 1, {}, "BALAN", nullptr, "", ""},
        {5, 4, 2, {2019, 2, 1}, "CONSTANTIN", "Ilfov", "Florilor", ""}, {6, 1, 1, {}, "FLOREA", "Ilfov", "Garii", ""},
        {7, 6, 1, {}, "DUMITRU", "Ilfov", "Garii", ""}, {8, 5, 2, {}, "GHEORGHE", "Ilfov", "Garii", ""},
        {9, 3, 1, {2018, 3, 1}, "ENE", "Ilfov", "Viilor", ""}};
    // clang-format on
    for (const auto& [id, stare, tip, dataStare, nume, judet, strada, bloc] : cereri) {
        CerereTest c;
        c.cerereID = id;
        c.nrCerere = 100 + id;
        c.stare = stare;
        c.tipCerere = tip;
        c.persoane = {{id * 10, T(nume), T("ION"), T("18503124100") + QString::number(id * 11), 1}};
        if (id == 1)
            for (int rudenie : {2, 3, 5})
                c.persoane.append({10 + rudenie, T("POPESCU"), QString::number(rudenie), T("2860101410011"), rudenie});
        if (id == 3) c.persoane.append({33, T("ANDREI"), T("IOANA"), T("6100101410044"), 6});
        AdaugaCerereTest(db, c);
        ExecutaCu(db, T("UPDATE Familii SET Judet = ?, Strada = ?, Bloc = ?, Sc = ?, Ap = ? WHERE FamilieID = ?"),
                  judet ? QVariant(T(judet)) : QVariant(), T(strada), T(bloc), T(bloc).isEmpty() ? T("") : T("1"),
                  T(bloc).isEmpty() ? T("") : T("5"), id);
        ExecutaCu(db, T("UPDATE Cereri SET DataStare = ? WHERE CerereID = ?"), dataStare, id);
    }
    ExecutaCu(db, T("UPDATE Cereri SET NrMembrii = 1 WHERE CerereID = 3"));
    ExecutaCu(db, T("UPDATE Cereri SET Cuantum = NULL WHERE CerereID = 4"));
    ExecutaCu(db, T("UPDATE Cereri SET Cuantum = ? WHERE CerereID = 7"), B("82.25"));

    QTemporaryDir iesiri;
    const QString livrat = T(FEROLANTA_SURSA);
    const QString a23 = ExportaBas(db, FormularBas::A23, Locatie().caleBD, livrat, iesiri.path());
    EXPECT_EQ(QFileInfo(a23).fileName(), T("A23BAS_ASF.ods"));
    // clang-format off
    EXPECT_EQ(Tabel(a23, 6, 14),
              QStringList({T("1|Ilfov|Branesti|Branesti, str. Morii, nr. 12|ANDREI ION|1850312410033|T|1|164|M|||1|30.06.2018"),
                           T("2||Branesti|Branesti, nr. 12|BALAN ION|1850312410044|T|1||B|||0|"),
                           T("3|Ilfov|Branesti|Branesti, str. Florilor, nr. 12|CONSTANTIN ION|1850312410055|T|1|164|M|||0|01.02.2019"),
                           T("4|Ilfov|Branesti|Branesti, str. Garii, nr. 12|DUMITRU ION|1850312410077|T|1|82.25|B||||"),
                           T("5|Ilfov|Branesti|Branesti, str. Viilor, nr. 12|ENE ION|1850312410099|T|1|164|B||||"),
                           T("6|Ilfov|Branesti|Branesti, str. Garii, nr. 12, bl. A2, sc. 1, ap. 5|POPESCU ION|1850312410011|T|1|164|B||||"),
                           T("||||POPESCU 2|2860101410011|S|||||||"), T("||||POPESCU 3|2860101410011|C|||||||"),
                           T("||||POPESCU 5|2860101410011||||||||")}));
    // clang-format on
    // The template's head stays as delivered.
    const std::vector<QStringList> cap = TextePrimaFoaie(SablonBas(FormularBas::A23, Locatie().caleBD, livrat));
    ASSERT_GE(cap.size(), 6u);
    EXPECT_EQ(TextePrimaFoaie(a23)[5], cap[5]);

    const QString a25 = ExportaBas(db, FormularBas::A25, Locatie().caleBD, livrat, iesiri.path());
    const QString luni = T("|1").repeated(13);
    EXPECT_EQ(Tabel(a25, 7, 19), QStringList({T("1|Ilfov|Branesti|ASF|DUMITRU ION|1850312410077") + luni,
                                              T("2|Ilfov|Branesti|ASF|POPESCU ION|1850312410011") + luni}));

    // The data folder's own template comes first; without one there either, the clerk is told the file and
    // whom to call, and nothing is written.
    const QString date = Locatie().caleBD;
    QDir(date).mkpath(T("Acte"));
    const QString propriu = QDir(date).filePath(T("Acte/A25BAS.ods"));
    ASSERT_TRUE(QFile::copy(QDir(livrat).filePath(T("Acte/A25BAS.ods")), propriu));
    EXPECT_EQ(SablonBas(FormularBas::A25, date, livrat), propriu);
    QTemporaryDir gol;
    try {
        ExportaBas(db, FormularBas::A23, date, gol.path(), gol.path());
        ADD_FAILURE() << "no template, yet a form was written";
    } catch (const Eroare& e) {
        EXPECT_TRUE(e.text().contains(T("A23BAS.ods")) && e.text().contains(T("0700-111222"))) << S(e.text());
    }
    EXPECT_TRUE(QDir(gol.path()).isEmpty());
}

PE_AMBELE_MOTOARE(Bas);

} // namespace
