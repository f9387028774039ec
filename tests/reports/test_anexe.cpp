#include "base/Eroare.h"
#include "reference/DateReferinta.h"
#include "reports/Catalog.h"
#include "reports/builders/Anexe.h"
#include "reports/export/Csv.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/DispozitiiTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QDomDocument>
#include <QFile>
#include <QTemporaryDir>
#include <zip.h>

using namespace Raport;

namespace {

// The working months of the fixture: March 2024 is [01.03, 01.04), April 2024 is [01.04, 01.05).
// Key, family, Stare, DataStare (invalid: NULL), TipCerere (0: NULL), titular, street and number,
// VenitPeMembru, the request's Cuantum, NrCopii.
struct CerereAnexa {
    qint64 id, familie;
    int stare;
    QDate dataStare;
    int tip;
    const char *nume, *prenume, *cnp, *strada, *nr, *venit, *cuantum;
    int copii;
};

// Every status of the two forms lands in March and in April and just outside them; the families of
// requests 2 and 7 are not numbered as their requests; request 3 has no TipCerere, request 19 no
// DataStare; "Lalelelor" is missing from Strazi, "FLORILOR" is "Florilor" spelt otherwise.
// clang-format off
const CerereAnexa Cereri[] = {
    {1, 1, 2, {2024, 3, 1}, 1, "Popa", "Ana", "2850312400011", "Florilor", "12", "250.5", "164", 2},
    {2, 7, 6, {2024, 3, 31}, 2, "Ionescu", "Maria", "2900405400022", "Florilor", "12A", "180", "214", 2},
    {3, 3, 2, {2024, 4, 1}, 0, "Stan", "Ioana", "2920611400033", "Lalelelor", "3", "300", "82", 1},
    {4, 4, 4, {2024, 3, 15}, 1, "Dobre", "Vasile", "1800101400044", "Mihai Viteazu", "5", "400", "0", 1},
    {5, 5, 7, {2024, 3, 20}, 2, "Enache", "Elena", "2870202400055", "FLORILOR", "9", "120", "246", 3},
    {6, 6, 8, {2024, 3, 5}, 1, "Florea", "Ion", "1830303400066", "Mihai Viteazu", "5", "90", "82", 1},
    {7, 27, 3, {2024, 3, 10}, 2, "Gheorghe", "Dan", "1840404400077", "Florilor", "30", "150", "164", 1},
    {8, 8, 3, {2024, 2, 29}, 1, "Husar", "Paul", "1850505400088", "Florilor", "1", "100", "164", 1},
    {9, 9, 6, {2024, 4, 15}, 1, "Ilie", "Carmen", "2860606400099", "Mihai Viteazu", "7", "210", "164", 2},
    {10, 10, 7, {2024, 4, 1}, 2, "Jitaru", "Oana", "2870707400101", "Florilor", "2", "140", "107.5", 1},
    {11, 11, 4, {2024, 2, 10}, 1, "Lazar", "Mihai", "1870707400112", "Florilor", "6", "100", "0", 1},
    {12, 12, 8, {2024, 4, 30}, 1, "Manea", "Sorin", "1880808400123", "Mihai Viteazu", "11", "95", "164", 2},
    {13, 13, 5, {2024, 3, 12}, 1, "Nistor", "Ana", "2880808400134", "Florilor", "8", "900", "0", 1},
    {14, 14, 2, {2024, 3, 25}, 2, "Iordache", "Radu", "1890909400134", "Florilor", "9", "310.25", "107", 1},
    {15, 15, 6, {2024, 2, 15}, 1, "Olaru", "Dan", "1890909400145", "Florilor", "10", "100", "164", 1},
    {16, 16, 2, {2024, 5, 1}, 1, "Pavel", "Ion", "1890909400156", "Florilor", "11", "100", "164", 1},
    {17, 17, 3, {2024, 4, 10}, 1, "Neagu", "Victor", "1900110400145", "Florilor", "4", "130", "82", 1},
    {18, 18, 4, {2024, 4, 20}, 2, "Oprea", "Lia", "2910211400156", "Lalelelor", "8", "500", "0", 1},
    {19, 19, 2, {}, 1, "Radu", "Ilinca", "2910211400167", "Florilor", "13", "100", "164", 1},
};
// clang-format on

// The newest of a request's dispositions is the one listed: request 2's older one has the higher key,
// request 4's undated one comes after its dated one, request 5's two of the same day go by the key,
// request 7's only one has no date.
// clang-format off
const DispTest Dispozitii[] = {
    {1, 1, 501, 1, {2024, 3, 1}, 164, QVariant(), {2024, 3, 10}},
    {20, 2, 450, 1, {2023, 11, 1}, 107, QVariant(), {2023, 11, 5}},
    {5, 2, 520, 1, {2024, 3, 31}, 214, QVariant(), {2024, 3, 28}}, {30, 4, 540, 1, {2024, 3, 15}, 0, 164, QDate()},
    {8, 4, 530, 1, {2024, 3, 15}, 0, 164, {2024, 3, 16}}, {9, 5, 535, 1, {2024, 3, 20}, 214, 164, {2024, 3, 18}},
    {10, 5, 536, 1, {2024, 3, 20}, 246, 164, {2024, 3, 18}}, {11, 6, 510, 1, {2024, 3, 5}, 82, 0, {2024, 3, 4}},
    {12, 7, 515, 1, {2024, 3, 10}, 0, QVariant(), QDate()}, {13, 9, 600, 1, {2024, 4, 15}, 164, 0, {2024, 4, 12}},
    {14, 10, 601, 1, {2024, 4, 1}, QVariant::fromValue(B("107.5")), 82, {2024, 4, 2}},
    {15, 12, 602, 1, {2024, 4, 30}, 164, QVariant(), {2024, 4, 29}},
    {16, 14, 525, 1, {2024, 3, 25}, 107, QVariant(), {2024, 3, 26}},
    {17, 17, 603, 1, {2024, 4, 10}, 0, 82, {2024, 4, 11}},
};
// clang-format on

class Anexe : public TestBaza {
protected:
    BazaDate& Fixtura() {
        BazaDate& db = BazaNoua();
        ExecutaCu(db,
                  T("INSERT INTO DatePrimarie (Denumire, CodFiscal, Judet, Localitate, Str, Nr, AsSocial, CNPAsSocial, "
                    "OfPostal, CodPostal) VALUES ('Primaria Branesti', '4420775', 'Ilfov', 'Branesti', 'Principala', "
                    "'1', 'Dumitrescu Elena Maria', '2800101230012', 'Branesti', '077025')"));
        // The second "florilor" comes after the first and is never the one found.
        ExecutaCu(db, T("INSERT INTO Strazi (StradaID, Denumire, LocalitateID, OfPostal, CodPostal) VALUES "
                        "(1, 'Florilor', 1, 'Of. 1', '077025'), (2, 'Mihai Viteazu', 1, 'Of. 2', '077026'), "
                        "(3, 'florilor', 1, 'Of. 9', '077099')"));
        for (const CerereAnexa& c : Cereri) {
            AdaugaCerereTest(db, {c.id,
                                  c.familie,
                                  100 + c.id,
                                  c.stare,
                                  c.tip,
                                  T("Branesti"),
                                  T(c.strada),
                                  {{1000 + c.id, T(c.nume), T(c.prenume), T(c.cnp), 1}}});
            ExecutaCu(db,
                      T("UPDATE Cereri SET DataStare = ?, VenitPeMembru = ?, Cuantum = ?, NrCopii = ?, TipCerere = ? "
                        "WHERE CerereID = ?"),
                      c.dataStare.isValid() ? QVariant(c.dataStare) : QVariant(), B(c.venit), B(c.cuantum), c.copii,
                      c.tip ? QVariant(c.tip) : QVariant(), c.id);
            ExecutaCu(db, T("UPDATE Familii SET Nr = ? WHERE FamilieID = ?"), c.nr, c.familie);
        }
        ExecutaCu(db, T("UPDATE Familii SET Bloc = 'B2', Sc = 'A', Etaj = '3', Ap = '14' WHERE FamilieID = 6"));
        for (const DispTest& d : Dispozitii)
            AdaugaDispozitie(db, d);
        return db;
    }

    Grila Construit(int index, int luna, int ord1 = 0, int ord2 = 0, bool foaie = false) {
        Alegeri a;
        a.luna = luna;
        a.an = 2024;
        a.ord1 = ord1;
        a.ord2 = ord2;
        return Construieste(index, foaie, Bd(), mesaje, MediuRaport{}, a);
    }
};

// Each entry's grid for each month, as text, against the file worked out by hand. The head is the
// town hall's row (the address "str. Principala, nr. 1"; the delegate "Dumitrescu" and "Elena Maria",
// split at the first blank). A row's street finds its codes whatever the case ("FLORILOR"), none for
// "Lalelelor"; "Tip familie*" is 2 for TipCerere 1 and 1 for 2, empty for request 3. Without an
// order the rows go by CerereID and the last row is left empty.
TEST_P(Anexe, RanduriDupaFelSiLuna) {
    Fixtura();
    // clang-format off
    const std::tuple<int, int, int, int, bool, const char*> cazuri[] = {
        // Stare 2 or 6 in March: 1 (01.03), 2 (31.03), 14; not 3 (01.04), 8 or 15 (February), 16 (May),
        // 19 (no date), 13 (rejected). Request 2 shows its disposition of 28.03 (key 5, not key 20).
        {9, 3, 0, 0, false, "anexa09_2024-03.csv"},
        // April: 3 (01.04) without a disposition, columns 19 and 20 empty and still both marks; 9.
        {9, 4, 0, 0, false, "anexa09_2024-04.csv"},
        // Stare 2 only: 1 and 14 in March, 3 in April.
        {10, 3, 0, 0, false, "anexa10_2024-03.csv"},
        {10, 4, 0, 0, false, "anexa10_2024-04.csv"},
        // Stare 6 only: 2 in March, 9 in April.
        {11, 3, 0, 0, false, "anexa11_2024-03.csv"},
        {11, 4, 0, 0, false, "anexa11_2024-04.csv"},
        // Stare 4, 7, 8 in March: 4 ended, "X" and no amounts, its dated disposition 530 before the
        // undated 540; 5 changed, of the two dispositions of 18.03 the higher key 536 (164 to 246);
        // 6 changed from 0, so only the new 82. Not 11 (February). Columns 23 and 24 are hidden.
        {12, 3, 0, 0, false, "anexa12_2024-03.csv"},
        // April: 10 (107.5 after 82), 12 (no old amount), 18 ended without a disposition.
        {12, 4, 0, 0, false, "anexa12_2024-04.csv"},
        // Stare 3: 7 in March, its undated disposition 515; not 8 (29.02). 17 in April. The mark goes
        // in column 22, titled for suspensions.
        {13, 3, 0, 0, false, "anexa13_2024-03.csv"},
        {13, 4, 0, 0, false, "anexa13_2024-04.csv"},
        // Stare 3, 4, 6, 7, 8 in March: 2 resumed (mark in 24, no amounts), 4 ended (22), 5 and 6
        // changed (amounts), 7 suspended (23).
        {14, 3, 0, 0, false, "anexa14_2024-03.csv"},
        // April: 9 resumed, 10 and 12 changed, 17 suspended, 18 ended.
        {14, 4, 0, 0, false, "anexa14_2024-04.csv"},
        // By "Strada" then "Nr": all three on Florilor, the grid by the number's value (9, 12, 12A)...
        {9, 3, 3, 4, false, "anexa09_2024-03_strada_nr.csv"},
        // ...the spreadsheet as text (12, 12A, 9), with the delegate's "Prenume".
        {9, 3, 3, 4, true, "anexa09_2024-03_strada_nr_foaie.csv"},
        // By "Nume, Prenume": Dobre, Enache, Florea, Gheorghe, Ionescu.
        {14, 3, 2, 0, false, "anexa14_2024-03_nume.csv"},
    };
    // clang-format on
    for (const auto& [index, luna, ord1, ord2, foaie, fisier] : cazuri) {
        QFile f(QStringLiteral(FEROLANTA_TESTE_DATE "/rapoarte/") + T(fisier));
        ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << fisier;
        // The golden files keep plain line ends.
        EXPECT_EQ(Csv(Construit(index, luna, ord1, ord2, foaie)).replace("\r\n", "\n").toStdString(),
                  f.readAll().toStdString())
            << fisier;
    }
}

// The first sheet of a spreadsheet file: its texts by row and column, repeats spelt out (up to 40), and
// the number of its columns.
struct Foaie {
    std::vector<QStringList> randuri;
    int coloane = 0;
    QString La(int rand, int col) const {
        return size_t(rand) < randuri.size() ? randuri[size_t(rand)].value(col) : T("");
    }
};

Foaie CitesteFoaie(const QString& fisier) {
    zip_t* z = zip_open(QFile::encodeName(fisier).constData(), ZIP_RDONLY, nullptr);
    zip_stat_t st;
    zip_file_t* intrare = z && zip_stat(z, "content.xml", 0, &st) == 0 ? zip_fopen(z, "content.xml", 0) : nullptr;
    QByteArray continut(intrare ? qsizetype(st.size) : 0, '\0');
    if (intrare) {
        zip_fread(intrare, continut.data(), st.size);
        zip_fclose(intrare);
    }
    if (z) zip_close(z);
    QDomDocument doc;
    doc.setContent(continut, true);
    const QString ns = T("urn:oasis:names:tc:opendocument:xmlns:table:1.0");
    const auto repetat = [&](const QDomNode& e, const char* atribut) {
        return std::min(40, e.toElement().attributeNS(ns, T(atribut), T("1")).toInt());
    };
    Foaie f;
    const QDomElement tabel = doc.elementsByTagNameNS(ns, T("table")).at(0).toElement();
    const QDomNodeList coloane = tabel.elementsByTagNameNS(ns, T("table-column")),
                       randuri = tabel.elementsByTagNameNS(ns, T("table-row"));
    for (int i = 0; i < coloane.size(); ++i)
        f.coloane += repetat(coloane.at(i), "number-columns-repeated");
    for (int i = 0; i < randuri.size(); ++i) {
        QStringList rand;
        for (QDomElement c = randuri.at(i).firstChildElement(); !c.isNull(); c = c.nextSiblingElement())
            for (int k = repetat(c, "number-columns-repeated"); k > 0; --k)
                rand << c.text();
        f.randuri.insert(f.randuri.end(), size_t(repetat(randuri.at(i), "number-rows-repeated")), rand);
    }
    return f;
}

// The copy for LibreOffice: the delivered template filled in the export folder under the entry's name,
// the head's values and the rows where the grid has them (row and column less one), the columns a kind
// does not use taken out of the template's 24.
TEST_P(Anexe, CopieInSablon) {
    Fixtura();
    QTemporaryDir date, exporturi;
    QDir().mkpath(date.filePath(T("Acte")));
    for (const char* sablon : {"ANEXA3.ods", "ANEXA4.ods"})
        ASSERT_TRUE(
            QFile::copy(QStringLiteral(FEROLANTA_SURSA "/Acte/") + T(sablon), date.filePath(T("Acte/") + T(sablon))));
    const MediuRaport mediu{Setari{}, date.path(), {}};

    // The entry's text from its tenth character, "/" made "+". Index 12 drops the template's columns
    // 23 and 24, index 13 its 22 and 24 (the suspension's mark in 22 lands under the template's
    // "Suspendare drept"), index 14 none.
    const std::tuple<int, const char*, int> cazuri[] = {{9, "Asf_Anexa3_ Plati noi + repuneri.ods", 24},
                                                        {12, "Asf_Anexa4_ Modificari+Incetari.ods", 22},
                                                        {13, "Asf_Anexa4_ Suspendari.ods", 22},
                                                        {14, "Asf_Anexa4_ Modificari+Incetari+Susp+Reluari.ods", 24}};
    for (const auto& [index, nume, coloane] : cazuri) {
        const Grila g = Construit(index, 3);
        const QString fisier = Catalog()[size_t(index)].copieCalc(g, mesaje, mediu, exporturi.path());
        EXPECT_EQ(S(fisier), S(QDir(exporturi.path()).filePath(T(nume))));
        const Foaie f = CitesteFoaie(fisier);
        EXPECT_EQ(f.coloane, coloane) << index;
        for (int r = 2; r <= 10; ++r)
            EXPECT_EQ(S(f.La(r - 1, r <= 7 ? 2 : 9)), S(g.Text(r, r <= 7 ? 3 : 10))) << index << " rand " << r;
        EXPECT_EQ(S(f.La(3, 2)), "str. Principala, nr. 1");
        EXPECT_EQ(S(f.La(1, 4)), S(g.Text(2, 5)));
        ASSERT_GT(g.Randuri(), PrimulRandDate + 1);
        for (int r = PrimulRandDate; r < g.Randuri() - 1; ++r)
            for (int c = 1; c <= coloane; ++c)
                EXPECT_EQ(S(f.La(r - 1, c - 1)), S(g.Text(r, c))) << index << " rand " << r << " col " << c;
        // Nothing is written under the grid's empty last row.
        EXPECT_LE(f.randuri.size(), size_t(g.Randuri() - 2));
    }
    // Request 7's suspension sits under the title the template keeps for it.
    const Foaie suspendari = CitesteFoaie(QDir(exporturi.path()).filePath(T("Asf_Anexa4_ Suspendari.ods")));
    EXPECT_EQ(S(suspendari.La(PrimulRandDate - 1, 21)), "X");
    const QString titlu = Construit(13, 3).Text(16, 22);
    EXPECT_TRUE(std::any_of(suspendari.randuri.begin(), suspendari.randuri.begin() + PrimulRandDate - 1,
                            [&](const QStringList& r) { return r.value(21) == titlu; }))
        << S(titlu);

    // A document LibreOffice holds open is not written over.
    ASSERT_TRUE(QFile(QDir(exporturi.path()).filePath(T(".~lock.Asf_Anexa3_ Noi.ods#"))).open(QIODevice::WriteOnly));
    const auto mesaj = [&](int index, const MediuRaport& m) {
        try {
            CopieAnexaCalc(index, Construit(index, 3), m, exporturi.path());
        } catch (const Eroare& e) {
            return e.text();
        }
        return QString();
    };
    EXPECT_EQ(S(mesaj(10, mediu)), "Inchideti mai intai Anexa 3 - Noi !");

    // Without the templates nothing is written.
    const MediuRaport faraSabloane{Setari{}, exporturi.path(), {}};
    EXPECT_EQ(S(mesaj(11, faraSabloane)), "Nu exista fisierul sablon Anexa3.ods. Sunati la 0700-111222!");
    EXPECT_EQ(S(mesaj(13, faraSabloane)), "Nu exista fisierul sablon Anexa4.ods. Sunati la 0700-111222!");
    EXPECT_FALSE(QFile::exists(QDir(exporturi.path()).filePath(T("Asf_Anexa3_ Repuneri.ods"))));
}

PE_AMBELE_MOTOARE(Anexe);

} // namespace
