#pragma once

#include "cases/DateCerere.h"
#include "cases/SalvareCerere.h"
#include "store/BazaDate.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

#include <QSqlRecord>
#include <gtest/gtest.h>
#include <map>

// A whole case file for the tests of loading and saving, and what they compare it with.

inline void PrintTo(const Bani& b, std::ostream* os) {
    *os << b.Text().toStdString();
}
inline void PrintTo(const QDate& d, std::ostream* os) {
    *os << (d.isValid() ? d.toString(Qt::ISODate).toStdString() : std::string("(fara data)"));
}

// The text of a DateGen value, straight from the table.
inline QString ContinutDateGen(BazaDate& db, int tip, int id) {
    Interogare q(db, QStringLiteral("SELECT Continut FROM DateGen WHERE Tip = ? AND DataID = ?"));
    q.Leaga(tip).Leaga(id);
    return q.Exista() ? q.Valoare(0).toString() : QString();
}

struct Dosar {
    DateCerere date;
    StareCerere stare;
    std::vector<MembruIesit> iesiti;
};

// The working month of the case file: December 2014, when the seeded scale gives the family
// (kind 1, two counted children, 100 lei per member) 0.328 x 525.5 = 172.364, rounded up to 173.
constexpr int LunaDosar = 12, AnDosar = 2014;
inline const Bani CuantumDosar = Bani::DinLei(173);

inline OptiuniSalvare OptiuniDosar() {
    OptiuniSalvare o;
    o.LunaSetata = LunaDosar;
    o.AnSetat = AnDosar;
    return o;
}

inline AdeverintaMembru Adeverinta(int tip, const char* nr, QDate emisa, QDate depusa, QDate expira, int curenta) {
    AdeverintaMembru a;
    a.TipAdeverinta = tip;
    a.NrAdev = T(nr);
    a.DataAdeverinta = emisa;
    a.DataDepunerii = depusa;
    a.DataExpAdev = expira;
    a.AdvCurenta = curenta;
    return a;
}

// A person as the person dialog leaves it, with the texts that the list shows: the kinship's,
// and the occupation's (a child's school situation).
inline MembruCerere Persoana(BazaDate& db, int rudenie, const char* nume, const char* prenume, const char* cnp,
                             const char* dataNast, QDate nastere) {
    MembruCerere p;
    p.Nume = T(nume);
    p.Prenume = T(prenume);
    p.CNP = T(cnp);
    p.RudenieID = rudenie;
    p.Rudenie = ContinutDateGen(db, 2, rudenie);
    p.DataNast = T(dataNast);
    p.DataNastere = nastere;
    p.ModificatLaSalvare = 1;
    return p;
}
inline void Ocupatie(BazaDate& db, MembruCerere& p, int ocupatieID, int studii) {
    p.OcupatieID = ocupatieID;
    p.Studii = studii;
    p.Ocupatie = p.EsteCopil() ? ContinutDateGen(db, 33, studii) : ContinutDateGen(db, 3, ocupatieID);
}

// Six persons (titular, partner, two natural children of whom one repeats a year, an adult
// relative, a child in tutelage), certificates, incomes, goods, housing, every box filled.
inline Dosar DosarComplet(BazaDate& db) {
    Dosar d;
    DateCerere& c = d.date;
    c.Adaug = 1;
    // By the element numbers of txtCerere; 14 and 15 hold stale values that the save recomputes.
    // clang-format off
    const std::pair<int, const char*> texte[] = {
        {0, "1234"}, {1, "77"}, {2, "12A"}, {3, "B"}, {4, "7"}, {5, "  Branesti "}, {6, "Ilfov"},
        {7, "0213334444"}, {8, "0722111222"}, {9, "Popescu Ion"}, {10, "RO49AAAA1B31007593840000"},
        {11, "BCR"}, {12, "600.5"}, {13, "100"}, {14, "999"}, {15, "5"}, {16, "2"}, {17, "P3"}, {18, "C2"},
        {19, "1"}, {20, "14"}, {21, "22"}, {22, "3"}, {23, "Buftea"}, {24, "Ilfov"}, {29, " 12/A "},
        {30, "77/2014"}};
    // clang-format on
    for (const auto& [i, text] : texte)
        c.txtCerere[size_t(i)] = T(text);
    c.cboCerere[0] = {0, T("Strada Morii")};
    c.cboCerere[1] = {3, ContinutDateGen(db, 27, 3)};
    c.cboCerere[2] = {2, ContinutDateGen(db, 12, 2)};
    c.cboCerere[3] = {1, TextTipCerere(1)};
    c.cboCerere[4] = {2, ContinutDateGen(db, 1, 2)};
    c.cboCerere[5] = {0, T("Indeplineste conditiile")};
    c.cboCerere[6] = {0, T("Strada Garii")};
    c.dtpData = {QDate(2014, 11, 14), QDate(2014, 12, 1)};
    c.chkVmg = true;
    c.chkSupl = true;
    c.chkIncalzire_s = true;
    c.chkSupl_s = true;

    std::vector<MembruCerere> m;
    MembruCerere t = Persoana(db, 1, "Popescu", "Ion", "1850305400011", "05 Martie 1985", QDate(1985, 3, 5));
    Ocupatie(db, t, 1, 4);
    t.TipAct = 2;
    t.SerieBI = T("RX");
    t.NrBI = T("123456");
    t.Eliberat = T("SPCLEP Branesti");
    t.DataElib = QDate(2010, 6, 1);
    t.CetatenieID = 1;
    t.TaraCetatenie = T("Romania");
    t.ResedintaID = 1;
    t.LocResedinta = T("Branesti");
    t.StCivila = 2;
    t.DrAsSociala = 1;
    t.MotivStare = T("Schimbare domiciliu");
    t.DataStare = QDate(2014, 11, 20);
    t.LocuitAfara = 1;
    t.Perioada11 = T("2012-2013");
    t.TaraAfara11 = T("Italia");
    t.Perioada22 = T("2013");
    t.TaraAfara22 = T("Spania");
    t.LucreazaAfara = 1;
    t.Perioada1 = T("2012");
    t.TaraAfara1 = T("Italia");
    t.Perioada2 = T("2013");
    t.TaraAfara2 = T("Germania");
    t.VMG = 1;
    t.Incalzire = 1;
    t.TipIncalzTrecut = 2;
    t.Venit = B("450.25");
    t.MotivID = 2;
    t.Suma = B("120.5");
    t.TipValuta = 1;
    t.StareMembru = 1;
    // Latest expiry first, as the list of a person is read back.
    t.Adeverinte = {Adeverinta(6, "A-17", {2014, 11, 2}, {2014, 11, 10}, {2015, 2, 28}, 1),
                    Adeverinta(2, "F 9", {2014, 10, 1}, {2014, 10, 5}, {2014, 12, 31}, 1)};
    m.push_back(t);

    MembruCerere p = Persoana(db, 2, "Popescu", "Maria", "2870912400022", "12 Septembrie 1987", QDate(1987, 9, 12));
    Ocupatie(db, p, 5, 3);
    p.Dizabilitate = 1;
    p.Alocatie = 1;
    // A certificate without expiry comes after those with one, on both engines.
    p.Adeverinte = {Adeverinta(1, "AJ-3", {2014, 8, 1}, {2014, 8, 3}, {2014, 11, 1}, 1),
                    Adeverinta(9, "N1", {}, {2014, 9, 1}, {}, 0)};
    m.push_back(p);

    MembruCerere a = Persoana(db, 3, "Popescu", "Andrei", "5080417400033", "17 Aprilie 2008", QDate(2008, 4, 17));
    Ocupatie(db, a, 8, 3);
    a.Data18Ani = QDate(2026, 4, 17);
    a.Motiv = T("implinirea varstei de 18 ani");
    a.UScolara = T("Scoala Gimnaziala nr. 1");
    a.LocScoala = T("Branesti");
    a.Alocatie = 1;
    a.Adeverinte = {Adeverinta(3, "S-55", {2014, 9, 15}, {2014, 9, 20}, {2015, 6, 30}, 1)};
    m.push_back(a);

    MembruCerere e = Persoana(db, 3, "Popescu", "Elena", "6050101400044", "01 Ianuarie 2005", QDate(2005, 1, 1));
    Ocupatie(db, e, 8, 4);
    e.Data18Ani = QDate(2023, 1, 1);
    e.Repetent = 1;
    e.UScolara = T("Liceul Teoretic");
    e.LocScoala = T("Buftea");
    e.Adeverinte = {Adeverinta(3, "S-56", {2014, 9, 16}, {2014, 9, 21}, {2015, 6, 30}, 1)};
    m.push_back(e);

    MembruCerere r = Persoana(db, 4, "Ionescu", "Vasile", "1500720400055", "20 Iulie 1950", QDate(1950, 7, 20));
    Ocupatie(db, r, 2, 2);
    r.Eliberat = T("spclep BRANESTI"); // the titular's issuer in other letters: one row of Politii
    r.MotivStare = T("Indeplineste conditiile");
    m.push_back(r);

    MembruCerere u = Persoana(db, 6, "Marin", "Ana", "6100228400066", "28 Februarie 2010", QDate(2010, 2, 28));
    Ocupatie(db, u, 8, 3);
    u.Data18Ani = QDate(2028, 2, 28);
    u.UScolara = T("Scoala Gimnaziala nr. 1");
    u.LocScoala = T("Branesti");
    u.Diminuare20 = 0;
    m.push_back(u);
    d.stare.MatriceMembri = m;

    StareCerere& s = d.stare;
    s.Venituri[0] = B("300.5");
    s.Venituri[5] = B("200");
    s.Venituri[78] = B("100.0001");
    s.Bunuri[1] = B("2");    // NrBifa 10, valued as row 11: 2 x 150
    s.Bunuri[20] = B("1.5"); // NrBifa 29, valued as row 31: 1.5 x 600
    s.Bunuri[74] = B("3");   // NrBifa 83, valued as row 84: 3 x 2
    s.LocuinteSel[0] = {3, true};
    s.LocuinteSel[2] = {0, true};
    s.LocuinteSel[7] = {1, true};
    s.Bife = T("0000000000");
    s.ActeBife = T("1101000000000000000000000001");
    s.LunaGospod = 4;
    s.GospodLoc = 1;
    s.NrCamere = 3;
    s.TipDobandire = 2;
    s.RegimJuridLoc = 1;
    s.TipIncalzire = 3;
    s.TipLocuinta = 1;
    s.Polita = true;
    s.SocietatePolita = T("Omniasig");
    s.NrPolita = T("PAD123");
    s.DataStartPolita = QDate(2014, 5, 1);
    s.DataStopPolita = QDate(2015, 4, 30);
    s.AcoperaRiscuri = true;
    return d;
}

// Every row of the tables that a save writes, as text, sorted: two equal snapshots mean that
// nothing was written in between.
inline std::map<QString, QStringList> Instantaneu(BazaDate& db) {
    std::map<QString, QStringList> r;
    for (const char* t : {"Familii", "Cereri", "Membrii", "CereriMembrii", "Adeverinte", "Venituri", "Locuinte",
                          "BifeText", "CMIesiti", "Strazi", "Politii", "Scoli", "LocScolare", "Motive"}) {
        Interogare q(db, QStringLiteral("SELECT * FROM %1").arg(QLatin1String(t)));
        q.Executa();
        QStringList randuri;
        while (q.Urmator()) {
            QStringList v;
            const QSqlRecord rec = q.query().record();
            for (int i = 0; i < rec.count(); ++i)
                v << (q.Valoare(i).isNull() ? QStringLiteral("NULL") : q.Valoare(i).toString());
            randuri << v.join(QLatin1Char('|'));
        }
        randuri.sort();
        r[QLatin1String(t)] = randuri;
    }
    return r;
}

inline qint64 NumarRanduri(BazaDate& db, const QString& sql, qint64 id) {
    Interogare q(db, sql);
    q.Leaga(id);
    return q.Exista() ? q.Intreg(0) : -1;
}

// Field by field, so that a difference names its field.
#define FEROLANTA_CAMPURI_MEMBRU(X)                                                                                    \
    X(MembruID)                                                                                                        \
    X(Nume)                                                                                                            \
    X(Prenume)                                                                                                         \
    X(CNP)                                                                                                             \
    X(RudenieID) X(Rudenie) X(TipAct) X(SerieBI) X(NrBI) X(Eliberat) X(DataElib) X(CetatenieID) X(TaraCetatenie)       \
        X(ResedintaID) X(LocResedinta) X(TaraResedinta) X(StCivila) X(Studii) X(OcupatieID) X(Ocupatie) X(DrAsSociala) \
            X(Data18Ani) X(Motiv) X(ModificatLaSalvare) X(MotivStare) X(DataNastere) X(DataStare) X(DataNast)          \
                X(LocuitAfara) X(Perioada11) X(TaraAfara11) X(Perioada22) X(TaraAfara22) X(LucreazaAfara) X(Perioada1) \
                    X(TaraAfara1) X(Perioada2) X(TaraAfara2) X(UScolara) X(LocScoala) X(VMG) X(Alocatie) X(Incalzire)  \
                        X(TipIncalzTrecut) X(Venit) X(Dizabilitate) X(Repetent) X(Abandon) X(Peste20abs) X(MotivID)    \
                            X(Suma) X(TipValuta) X(StareMembru) X(Diminuare20) X(Diminuare50)

inline void ExpectMembruEgal(const MembruCerere& a, const MembruCerere& b) {
#define FEROLANTA_COMPARA(F) EXPECT_EQ(a.F, b.F) << #F;
    FEROLANTA_CAMPURI_MEMBRU(FEROLANTA_COMPARA)
#undef FEROLANTA_COMPARA
    ASSERT_EQ(a.Adeverinte.size(), b.Adeverinte.size()) << a.Nume.toStdString() << " " << a.Prenume.toStdString();
    for (size_t i = 0; i < a.Adeverinte.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "adeverinta " << i);
        const AdeverintaMembru &x = a.Adeverinte[i], &y = b.Adeverinte[i];
        EXPECT_EQ(x.AdevID, y.AdevID);
        EXPECT_EQ(x.TipAdeverinta, y.TipAdeverinta);
        EXPECT_EQ(x.NrAdev, y.NrAdev);
        EXPECT_EQ(x.DataAdeverinta, y.DataAdeverinta);
        EXPECT_EQ(x.DataDepunerii, y.DataDepunerii);
        EXPECT_EQ(x.DataExpAdev, y.DataExpAdev);
        EXPECT_EQ(x.AdvCurenta, y.AdvCurenta);
    }
    // Whatever the list above forgets.
    EXPECT_TRUE(a == b) << a.Nume.toStdString() << " " << a.Prenume.toStdString();
}

inline void ExpectStareEgala(const StareCerere& a, const StareCerere& b) {
    ASSERT_EQ(a.MatriceMembri.has_value(), b.MatriceMembri.has_value());
    if (a.MatriceMembri) {
        ASSERT_EQ(a.MatriceMembri->size(), b.MatriceMembri->size());
        for (size_t i = 0; i < a.MatriceMembri->size(); ++i) {
            SCOPED_TRACE(testing::Message() << "persoana " << i);
            ExpectMembruEgal((*a.MatriceMembri)[i], (*b.MatriceMembri)[i]);
        }
    }
    for (size_t i = 0; i < a.Venituri.size(); ++i)
        EXPECT_EQ(a.Venituri[i], b.Venituri[i]) << "Venituri " << i;
    for (size_t i = 0; i < a.Bunuri.size(); ++i)
        EXPECT_EQ(a.Bunuri[i], b.Bunuri[i]) << "Bunuri " << i;
    for (size_t i = 0; i < a.LocuinteSel.size(); ++i) {
        EXPECT_EQ(a.LocuinteSel[i].Bifat, b.LocuinteSel[i].Bifat) << "LocuinteSel " << i;
        EXPECT_EQ(a.LocuinteSel[i].NrCamere, b.LocuinteSel[i].NrCamere) << "LocuinteSel " << i;
    }
#define FEROLANTA_COMPARA(F) EXPECT_EQ(a.F, b.F) << #F;
    FEROLANTA_COMPARA(Bife)
    FEROLANTA_COMPARA(ActeBife)
    FEROLANTA_COMPARA(Gospodarire)
    FEROLANTA_COMPARA(LunaGospod)
    FEROLANTA_COMPARA(GospodLoc) FEROLANTA_COMPARA(NrCamere) FEROLANTA_COMPARA(TipDobandire)
        FEROLANTA_COMPARA(RegimJuridLoc) FEROLANTA_COMPARA(TipIncalzire) FEROLANTA_COMPARA(TipLocuinta)
            FEROLANTA_COMPARA(Polita) FEROLANTA_COMPARA(AcoperaRiscuri) FEROLANTA_COMPARA(SocietatePolita)
                FEROLANTA_COMPARA(NrPolita) FEROLANTA_COMPARA(DataStartPolita) FEROLANTA_COMPARA(DataStopPolita)
#undef FEROLANTA_COMPARA
                    EXPECT_TRUE(a == b);
}

inline void ExpectDateEgale(const DateCerere& a, const DateCerere& b) {
    EXPECT_EQ(a.Adaug, b.Adaug);
    EXPECT_EQ(a.CerereID, b.CerereID);
    EXPECT_EQ(a.FamilieID, b.FamilieID);
    for (size_t i = 0; i < a.txtCerere.size(); ++i)
        EXPECT_EQ(a.txtCerere[i], b.txtCerere[i]) << "txtCerere " << i;
    for (size_t i = 0; i < a.cboCerere.size(); ++i) {
        EXPECT_EQ(a.cboCerere[i].id, b.cboCerere[i].id) << "cboCerere " << i;
        EXPECT_EQ(a.cboCerere[i].text, b.cboCerere[i].text) << "cboCerere " << i;
    }
    for (size_t i = 0; i < a.dtpData.size(); ++i)
        EXPECT_EQ(a.dtpData[i], b.dtpData[i]) << "dtpData " << i;
    EXPECT_EQ(a.chkVmg, b.chkVmg);
    EXPECT_EQ(a.chkIncalzire, b.chkIncalzire);
    EXPECT_EQ(a.chkSupl, b.chkSupl);
    EXPECT_EQ(a.chkVmg_s, b.chkVmg_s);
    EXPECT_EQ(a.chkIncalzire_s, b.chkIncalzire_s);
    EXPECT_EQ(a.chkSupl_s, b.chkSupl_s);
    EXPECT_TRUE(a == b);
}
