#include "base/Urmarire.h"
#include "reports/Catalog.h"
#include "reports/builders/ComunListe.h"
#include "reports/export/Csv.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QDate>

using namespace Raport;

namespace {

// Five requests of one village, working month November 2026, today 24 November 2026:
//  1  family 1 (dossier 11, Garii 12A, sc. B, ap. 4), no. 101 of 10.05.2026, in payment (2) since
//     05.11.2026, 2 children, 3 members: POPESCU ION (titular), POPESCU ANA (child, turns 18 on
//     17.12.2026, high school, certificate of kind 3 valid to 30.11.2026), POPESCU DAN (child born
//     05.08.2019, pupil, certificate of no kind valid to 24.11.2026, today).
//  2  family 2 (dossier 22, Morii 3), no. 102 of 01.06.2026, suspended (3) on 10.11.2026, single
//     parent: IONESCU MARIA, IONESCU RADU (child born 12.11.2019, no schooling recorded).
//  3  family 30 (dossier 30, Garii 1): the family number is not the request's. No. 103 of 20.05.2026,
//     resumed (6) on 02.11.2026, 2 members: ANGHEL VASILE, ANGHEL ELENA (kinship 10, pupil, turns 18
//     on 01.12.2026, the first day of December).
//  4  family 4 (dossier 44, no street), no. 104 of 31.05.2026, rejected (5): DOBRE ION alone.
//  5  family 5 (dossier 55, no street), no. 105 of 31.05.2026, registered (1), 0 children: ENE GEO
//     alone though 2 members are stored.
class Liste : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaDate& db = BazaNoua();
        Tranzactie t(db);
        ExecutaCu(db, T("INSERT INTO DatePrimarie (Denumire, Localitate, Judet, AsSocial) VALUES (?, ?, ?, ?)"),
                  T("Primaria Branesti"), T("Branesti"), T("Ilfov"), T("Maria Ene"));
        const auto familie = [&](int id, int dosar, const char* strada, const char* nr, const char* sc,
                                 const char* ap) {
            ExecutaCu(db,
                      T("INSERT INTO Familii (FamilieID, NrDosar, Localitate, Strada, Nr, Sc, Ap) VALUES "
                        "(?, ?, ?, ?, ?, ?, ?)"),
                      id, dosar, T("Branesti"), Nul(strada), Nul(nr), Nul(sc), Nul(ap));
        };
        familie(1, 11, "Garii", "12A", "B", "4");
        familie(2, 22, "Morii", "3", nullptr, nullptr);
        familie(30, 30, "Garii", "1", nullptr, nullptr);
        familie(4, 44, nullptr, nullptr, nullptr, nullptr);
        familie(5, 55, nullptr, nullptr, nullptr, nullptr);
        const auto cerere = [&](int id, int fam, int nr, QDate data, int stare, QDate dataStare, int tip, int copii,
                                int membri, int titular) {
            ExecutaCu(db,
                      T("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, MembruID1, Stare, DataStare, "
                        "TipCerere, NrCopii, NrMembrii) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
                      id, fam, nr, data, titular, stare, dataStare, tip, copii, membri);
        };
        cerere(1, 1, 101, {2026, 5, 10}, 2, {2026, 11, 5}, 1, 2, 3, 11);
        cerere(2, 2, 102, {2026, 6, 1}, 3, {2026, 11, 10}, 2, 1, 3, 21);
        cerere(3, 30, 103, {2026, 5, 20}, 6, {2026, 11, 2}, 1, 1, 2, 31);
        cerere(4, 4, 104, {2026, 5, 31}, 5, {2026, 10, 1}, 1, 1, 1, 41);
        cerere(5, 5, 105, {2026, 5, 31}, 1, {}, 1, 0, 2, 51);
        const auto persoana = [&](int cerereID, int id, const char* nume, const char* prenume, const char* cnp,
                                  int rudenie, QDate data18, QVariant studii) {
            ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)"), id,
                      QString::fromUtf8(nume), QString::fromUtf8(prenume), QString::fromLatin1(cnp));
            ExecutaCu(db,
                      T("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, Data18Ani, Studii) VALUES "
                        "(?, ?, ?, ?, ?)"),
                      cerereID, id, rudenie, data18, studii);
        };
        persoana(1, 11, "POPESCU", "ION", "1800101400011", 1, {1998, 1, 1}, {});
        persoana(1, 12, "POPESCU", "ANA", "6081217400012", 3, {2026, 12, 17}, 4);
        persoana(1, 13, "POPESCU", "DAN", "5190805400013", 3, {2037, 8, 5}, 3);
        persoana(2, 21, "IONESCU", "MARIA", "2850315400021", 1, {2003, 3, 15}, {});
        persoana(2, 22, "IONESCU", "RADU", "5191112400022", 3, {2037, 11, 12}, {});
        persoana(3, 31, "ANGHEL", "VASILE", "1790202400031", 1, {1997, 2, 2}, {});
        persoana(3, 32, "ANGHEL", "ELENA", "6081201400032", 10, {2026, 12, 1}, 3);
        persoana(4, 41, "DOBRE", "ION", "1700101400041", 1, {1988, 1, 1}, {});
        persoana(5, 51, "ENE", "GEO", "1750505400051", 1, {1993, 5, 5}, {});
        ExecutaCu(db,
                  T("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataAdeverinta, DataExpAdev, "
                    "DataDepunerii) VALUES (1, 1, 12, 3, ?, ?, ?)"),
                  QDate(2026, 9, 1), QDate(2026, 11, 30), QDate(2026, 9, 2));
        ExecutaCu(db, T("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, DataExpAdev) VALUES (2, 1, 13, ?)"),
                  QDate(2026, 11, 24));
        t.Confirma();
    }
    static QVariant Nul(const char* s) {
        return s ? QVariant(QString::fromLatin1(s)) : QVariant(QMetaType::fromType<QString>());
    }
};

// The grid's lines as csv, from the first data row to the last before the foot.
QStringList Randuri(const Grila& g, int primul, int subsol) {
    QStringList linii = QString::fromUtf8(Csv(g)).split(T("\r\n"));
    linii.removeLast(); // after the last line end
    return linii.mid(primul - 1, linii.size() - (primul - 1) - subsol);
}

struct Caz {
    int index;
    bool foaie;
    int luna;
    Alegeri alegeri;
    QStringList randuri;
    QStringList mesaje;
};

const QString AdresaPopescu = T("Branesti, str. Garii, nr. 12A, sc. B, ap. 4");

TEST_P(Liste, RanduriDupaReguli) {
    Alegeri baza;
    baza.an = 2026;
    baza.azi = QDate(2026, 11, 24);
    baza.nrLuni = T("6");
    const auto cu = [&](auto&& f) {
        Alegeri a = baza;
        f(a);
        return a;
    };
    const QString ion = T("1;11;101 / 10.05.2026  ;POPESCU ION;1800101400011;2;") + AdresaPopescu;
    // clang-format off
    const Caz cazuri[] = {
        // All requests, the family found by the request's own number: request 3 (family 30) is not listed.
        {0, false, 11, baza, {ion, T("2;22;102 / 01.06.2026  ;IONESCU MARIA;2850315400021;1;Branesti, str. Morii, nr. 3"),
                              T("3;44;104 / 31.05.2026  ;DOBRE ION;1700101400041;1;Branesti"),
                              T("4;55;105 / 31.05.2026  ;ENE GEO;1750505400051;0;Branesti")}, {}},
        // By name, then only the single-parent requests.
        {0, false, 11, cu([](Alegeri& a) { a.ord1 = 2; }),
         {T("1;44;104 / 31.05.2026  ;DOBRE ION;1700101400041;1;Branesti"), T("2;55;105 / 31.05.2026  ;ENE GEO;1750505400051;0;Branesti"),
          T("3;22;102 / 01.06.2026  ;IONESCU MARIA;2850315400021;1;Branesti, str. Morii, nr. 3"), T("4") + ion.mid(1)}, {}},
        {0, false, 11, cu([](Alegeri& a) { a.tipCerere = 2; }),
         {T("1;22;102 / 01.06.2026  ;IONESCU MARIA;2850315400021;1;Branesti, str. Morii, nr. 3")}, {}},
        // In payment, with the members after their titular, by name, each row counted.
        {1, false, 11, cu([](Alegeri& a) { a.membri = true; }),
         {ion, T("2;11;101 / 10.05.2026  ;POPESCU ANA;6081217400012;2;") + AdresaPopescu,
          T("3;11;101 / 10.05.2026  ;POPESCU DAN;5190805400013;2;") + AdresaPopescu}, {}},
        {3, false, 11, baza, {}, {}},
        // Turning 18 in December (1 to 17 December); for December, February of the next year: nobody.
        {5, false, 11, baza, {T("1;11;101 / 10.05.2026  ;POPESCU ANA;6081217400012;2"),
                              T("2;30;103 / 20.05.2026  ;ANGHEL ELENA;6081201400032;1")}, {}},
        {5, false, 12, baza, {}, {}},
        // Pupils: Ana's certificate runs past today; Dan's ends today and Elena has none.
        {6, false, 11, baza, {T("1;POPESCU ION;1800101400011")}, {}},
        {7, false, 11, baza, {T("1;POPESCU ION;1800101400011"), T("2;ANGHEL VASILE;1790202400031")}, {}},
        // Born in November 2019 (seven years before 2026), then in August 2019.
        {8, false, 11, baza, {T("1;22;102 / 01.06.2026  ;IONESCU RADU;5191112400022;1")}, {}},
        {8, false, 8, baza, {T("1;11;101 / 10.05.2026  ;POPESCU DAN;5190805400013;2")}, {}},
        // Six months before November: May, the rejected request left out, the 31st in.
        {15, false, 11, baza, {T("1;11;101 / 10.05.2026  ;POPESCU ION;1800101400011;2"),
                               T("2;30;103 / 20.05.2026  ;ANGHEL VASILE;1790202400031;1"),
                               T("3;55;105 / 31.05.2026  ;ENE GEO;1750505400051;0")}, {}},
        {15, false, 11, cu([](Alegeri& a) { a.nrLuni = T("5"); }), {}, {}},
        // The spreadsheet: everything filed before 1 June.
        {15, true, 11, baza, {T("1;11;101 / 10.05.2026  ;POPESCU ION;1800101400011;2"),
                              T("2;30;103 / 20.05.2026  ;ANGHEL VASILE;1790202400031;1"),
                              T("3;55;105 / 31.05.2026  ;ENE GEO;1750505400051;0")}, {}},
        // The window's list marks current certificates only for person numbers up to the number of
        // certificates (2): none here. The spreadsheet lists both of November.
        {16, false, 11, baza, {}, {}},
        {16, true, 11, baza, {T("1;POPESCU;ANA;6081217400012;") + AdresaPopescu + T(";de la scoala (pt elevi);02.09.2026;01.09.2026;30.11.2026;"),
                              T("2;POPESCU;DAN;5190805400013;") + AdresaPopescu + T(";nesetat;-;-;24.11.2026;")}, {}},
        // Children of requests in force, aged on 1 December (Ana still 17 in her birthday's month);
        // kinship 10 is not a child here. 2 rows for 3 children stored.
        {17, false, 11, baza, {T("1;11;101 / 10.05.2026  ;POPESCU ANA;6081217400012;") + AdresaPopescu + T(";POPESCU ION;17"),
                               T("2;11;101 / 10.05.2026  ;POPESCU DAN;5190805400013;") + AdresaPopescu + T(";POPESCU ION;7")},
         {T("2"), T("Sunt 3 copii")}},
        {18, false, 11, baza, {T("1;11;101 / 10.05.2026  ;POPESCU ION;1800101400011;") + AdresaPopescu + T(";POPESCU ION;46"),
                               T("2;30;103 / 20.05.2026  ;ANGHEL VASILE;1790202400031;Branesti, str. Garii, nr. 1;ANGHEL VASILE;47"),
                               T("3;55;105 / 31.05.2026  ;ENE GEO;1750505400051;Branesti;ENE GEO;51")}, {}},
        // Members by name after each titular of a request in force.
        {21, false, 11, baza, {T("1;POPESCU ION;Branesti;") + AdresaPopescu + T(";1800101400011;;11;ASF"),
                               T("2;POPESCU ANA;Branesti;") + AdresaPopescu + T(";6081217400012;;11;ASF"),
                               T("3;POPESCU DAN;Branesti;") + AdresaPopescu + T(";5190805400013;;11;ASF"),
                               T("4;ANGHEL VASILE;Branesti;Branesti, str. Garii, nr. 1;1790202400031;;30;ASF"),
                               T("5;ANGHEL ELENA;Branesti;Branesti, str. Garii, nr. 1;6081201400032;;30;ASF"),
                               T("6;ENE GEO;Branesti;Branesti;1750505400051;;55;ASF")}, {}},
    };
    // clang-format on
    MediuRaport mediu{Setari{}, T(FEROLANTA_SURSA), {}};
    mediu.setari.StrSat = T("str.");
    for (const Caz& c : cazuri) {
        Alegeri a = c.alegeri;
        a.luna = c.luna;
        mesaje.mesaje.clear();
        const Grila g = c.foaie ? GrilaFoaie(c.index, Bd(), mesaje, mediu, Alegeri{a})
                                : Construieste(c.index, false, Bd(), mesaje, mediu, a);
        EXPECT_EQ(Randuri(g, 8, 3), c.randuri) << c.index << " luna " << c.luna;
        QStringList asteptate = c.mesaje;
        if (c.foaie && !a.hartie) asteptate.prepend(T("Nesetat formatul paginii!"));
        EXPECT_EQ(mesaje.Texte(), asteptate) << c.index;
    }
}

// The central situation, family by family, with the stored member count checked; the Borderou of
// the statuses chosen in the month, written into the delivered template from its second row.
TEST_P(Liste, SituatiaSiBorderoul) {
    MediuRaport mediu{Setari{}, T(FEROLANTA_SURSA), {}};
    Alegeri a;
    a.luna = 11;
    a.an = 2026;
    const Grila s = Construieste(19, false, Bd(), mesaje, mediu, a);
    EXPECT_EQ(Randuri(s, 7, 4), (QStringList{T("1;POPESCU ION;1800101400011;3;POPESCU ANA;6081217400012"),
                                             T(";;;;POPESCU DAN;5190805400013"), T("2;ENE GEO;1750505400051;2;;"),
                                             T("3;ANGHEL VASILE;1790202400031;2;ANGHEL ELENA;6081201400032")}));
    EXPECT_EQ(mesaje.Texte(),
              (QStringList{T("Cererea 105 ENE GEO are 1 membrii in loc de 2"), T("3 cereri parcurse")}));

    a.stari = {2, 6};
    a.nrBord = T("7");
    a.dataBord = QDate(2026, 11, 30);
    const Grila b = Construieste(20, false, Bd(), mesaje, mediu, a);
    EXPECT_EQ(Randuri(b, 2, 0), (QStringList{T(";1;Primaria Branesti;POPESCU ION;1800101400011;ASF;7/30.11.2026"),
                                             T(";2;Primaria Branesti;ANGHEL VASILE;1790202400031;ASF;7/30.11.2026")}));
    a.stari.clear();
    EXPECT_EQ(Construieste(20, false, Bd(), mesaje, mediu, a).Randuri(), 2) << "no status chosen: no rows";
    mediu.applicationPath = Locatie().caleBD;
    EXPECT_THROW(Construieste(20, false, Bd(), mesaje, mediu, a), Eroare);
}

// A report read under a watcher tells it of the rows read (here, of each), and stops at its asking.
TEST_P(Liste, CitireaUrmaritaSiOprita) {
    MediuRaport mediu{Setari{}, T(FEROLANTA_SURSA), {}};
    Alegeri a;
    a.luna = 11;
    a.an = 2026;
    std::vector<qint64> auzite;
    {
        const Urmarire u(
            [&](qint64 facute, qint64) {
                auzite.push_back(facute);
                return facute < 3;
            },
            1);
        EXPECT_THROW(Construieste(0, false, Bd(), mesaje, mediu, a), Oprit);
    }
    ASSERT_FALSE(auzite.empty());
    EXPECT_EQ(auzite.back(), 3);
    // Unwatched, the whole list: head, four requests (the third has no family of its own number), foot.
    EXPECT_EQ(Construieste(0, false, Bd(), mesaje, mediu, a).Randuri(), Lista::PrimulRand + 4 + 3);
}

PE_AMBELE_MOTOARE(Liste);

} // namespace
