#include "base/Bani.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "cases/Cnp.h"
#include "store/DateLivrate.h"
#include "maintenance/Demo.h"
#include "support/BazaTest.h"

#include <QUrl>
#include <QUrlQuery>
#include <cstdlib>
#include <map>
#include <set>

namespace {

const QDate Azi(2025, 6, 18);
const std::set<int> CoduriJudet = [] {
    std::set<int> s;
    for (int i = 1; i <= 46; ++i)
        s.insert(i);
    s.insert(51);
    s.insert(52);
    return s;
}();

// The birth date that the CNP tells, invalid when it tells none (only 1, 2, 5, 6 are generated).
QDate NastereDinCnp(const QString& cnp) {
    const int s = cnp.left(1).toInt();
    const int secol = s == 1 || s == 2 ? 1900 : s == 5 || s == 6 ? 2000 : 0;
    if (secol == 0) return {};
    return QDate(secol + cnp.mid(1, 2).toInt(), cnp.mid(3, 2).toInt(), cnp.mid(5, 2).toInt());
}

int Varsta(const QDate& nastere, const QDate& la) {
    int v = la.year() - nastere.year();
    if (nastere.addYears(v) > la) --v;
    return v;
}

// A second database on the same engine as the test's own, dropped at the end.
struct AltaBaza {
    QTemporaryDir dir;
    LocatieBD loc;
    QString schema;
    std::unique_ptr<BazaDate> db;

    AltaBaza(const LocatieBD& model, const QString& sufix, const QString& folderDate, Mesaje& m) {
        loc.caleBD = dir.path();
        if (model.EstePostgreSQL()) {
            QUrl u(model.url);
            QUrlQuery q(u);
            schema = q.queryItemValue(QStringLiteral("schema")) + sufix;
            q.removeAllQueryItems(QStringLiteral("schema"));
            q.addQueryItem(QStringLiteral("schema"), schema);
            u.setQuery(q);
            loc.url = u.toString();
        }
        db = DateLivrate::Initializeaza(loc, folderDate, m);
    }
    ~AltaBaza() {
        db.reset();
        if (schema.isEmpty()) return;
        QUrl u(loc.url);
        u.setQuery(QString());
        LocatieBD curatare;
        curatare.url = u.toString();
        try {
            BazaDate::Deschide(curatare)->Executa(QStringLiteral("DROP SCHEMA IF EXISTS %1 CASCADE").arg(schema));
        } catch (...) {
        }
    }
};

void Genereaza(BazaDate& db, int cereri, quint64 samanta, int lot = 2000) {
    Demo::Optiuni o;
    o.cereri = cereri;
    o.samanta = samanta;
    o.lot = lot;
    Demo::Genereaza(db, o);
}

// Every row of the tables the generator writes, in key order, one line each.
QStringList Continut(BazaDate& db) {
    static const std::pair<const char*, const char*> tabele[] = {{"Familii", "FamilieID"},
                                                                 {"Membrii", "MembruID"},
                                                                 {"Cereri", "CerereID"},
                                                                 {"CereriMembrii", "CerereID, MembruID"},
                                                                 {"Venituri", "CerereID, CodVenit"},
                                                                 {"BifeText", "CerereID, NrBifa"},
                                                                 {"Locuinte", "CerereID, Cod"},
                                                                 {"Adeverinte", "AdevID"},
                                                                 {"Dispozitii", "DispozitieID"},
                                                                 {"Anchete", "AnchetaID"}};
    QStringList randuri;
    for (const auto& [tabela, ordine] : tabele) {
        Interogare q(db,
                     QStringLiteral("SELECT * FROM %1 ORDER BY %2").arg(QLatin1String(tabela), QLatin1String(ordine)));
        q.Executa();
        const int campuri = q.query().record().count();
        while (q.Urmator()) {
            QStringList v{QLatin1String(tabela)};
            for (int i = 0; i < campuri; ++i)
                v << (q.Valoare(i).isNull() ? QStringLiteral("NULL") : q.Valoare(i).toString());
            randuri << v.join(QLatin1Char('|'));
        }
    }
    return randuri;
}

class TestDemo : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        Ceas::SeteazaAzi(Azi);
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    qint64 NumarCu(const QString& sql, qint64 valoare) {
        Interogare q(Bd(), sql);
        q.Leaga(valoare);
        EXPECT_TRUE(q.Exista()) << sql.toStdString();
        return q.Intreg(0);
    }
};

// Reports the first line where two dumps part, rather than thousands of lines.
::testing::AssertionResult AceleasiRanduri(const QStringList& a, const QStringList& b) {
    for (qsizetype i = 0; i < std::min(a.size(), b.size()); ++i)
        if (a[i] != b[i])
            return ::testing::AssertionFailure()
                   << "randul " << i << ":\n  " << a[i].toStdString() << "\n  " << b[i].toStdString();
    if (a.size() != b.size()) return ::testing::AssertionFailure() << a.size() << " randuri fata de " << b.size();
    return ::testing::AssertionSuccess();
}

TEST_P(TestDemo, AceeasiSamantaDaAceleasiDate) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 42);
    const QStringList prima = Continut(db);
    ASSERT_GT(prima.size(), 300 * 8);

    // The size of the batches is not part of the data.
    AltaBaza aceeasi(Locatie(), QStringLiteral("_a"), FolderDate(), mesaje);
    Genereaza(*aceeasi.db, 300, 42, 70);
    EXPECT_TRUE(AceleasiRanduri(prima, Continut(*aceeasi.db)));

    AltaBaza alta(Locatie(), QStringLiteral("_b"), FolderDate(), mesaje);
    Genereaza(*alta.db, 300, 43);
    const QStringList aTreia = Continut(*alta.db);
    int comune = 0;
    for (const QString& r : aTreia)
        comune += r.startsWith(QLatin1String("Membrii|")) && prima.contains(r) ? 1 : 0;
    EXPECT_EQ(comune, 0) << "o alta samanta da alte persoane";
}

// Each rule counts the rows that break it.
struct Regula {
    const char* nume;
    const char* sql;
};

const Regula Reguli[] = {
    {"un singur titular pe cerere",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID "
     "AND CM.RudenieID = 1) <> 1"},
    {"titularul este MembruID1",
     "SELECT COUNT(*) FROM Cereri C WHERE NOT EXISTS (SELECT 1 FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID "
     "AND CM.RudenieID = 1 AND CM.MembruID = C.MembruID1)"},
    {"partener doar la familia cu sot sau sotie, si el este MembruID2",
     "SELECT COUNT(*) FROM Cereri C WHERE (C.TipCerere = 1 AND NOT EXISTS (SELECT 1 FROM CereriMembrii CM "
     "WHERE CM.CerereID = C.CerereID AND CM.RudenieID = 2 AND CM.MembruID = C.MembruID2)) "
     "OR (C.TipCerere = 2 AND (C.MembruID2 IS NOT NULL OR EXISTS (SELECT 1 FROM CereriMembrii CM "
     "WHERE CM.CerereID = C.CerereID AND CM.RudenieID = 2))) OR C.TipCerere NOT IN (1, 2)"},
    {"cel mult un partener",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID "
     "AND CM.RudenieID = 2) > 1"},
    {"intre 1 si 8 persoane, cate spune NrMembrii",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID) "
     "NOT BETWEEN 1 AND 8 OR (SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID = C.CerereID) <> C.NrMembrii"},
    {"familia are numarul cererii",
     "SELECT COUNT(*) FROM Cereri C WHERE C.FamilieID <> C.CerereID OR NOT EXISTS (SELECT 1 FROM Familii F "
     "WHERE F.FamilieID = C.CerereID)"},
    {"fiecare persoana sta pe o cerere",
     "SELECT COUNT(*) FROM Membrii M WHERE NOT EXISTS (SELECT 1 FROM CereriMembrii CM WHERE CM.MembruID = M.MembruID)"},
    {"NrCopii nu trece de copiii din lista",
     "SELECT COUNT(*) FROM Cereri C WHERE C.NrCopii > (SELECT COUNT(*) FROM CereriMembrii CM "
     "WHERE CM.CerereID = C.CerereID AND CM.RudenieID IN (3, 6, 7, 8, 9, 10))"},
    {"Data18Ani si Alocatie la copii, ocupatia lor din lista 33",
     "SELECT COUNT(*) FROM CereriMembrii WHERE (RudenieID IN (3, 6, 7, 8, 9, 10)) <> (Data18Ani IS NOT NULL) "
     "OR (RudenieID IN (3, 6, 7, 8, 9, 10)) <> (Alocatie = 1) "
     "OR (RudenieID IN (3, 6, 7, 8, 9, 10) AND OcupatieID NOT BETWEEN 1 AND 4) OR OcupatieID IS NULL "
     "OR StareMembru IS NULL OR Repetent <> 0"},
    {"o singura reducere sau absenta pe copil, doar la elevi",
     "SELECT COUNT(*) FROM CereriMembrii WHERE Diminuare20 + Diminuare50 + Peste20abs > 1 "
     "OR (Diminuare20 + Diminuare50 + Peste20abs = 1 AND (RudenieID NOT IN (3, 6, 7, 8, 9, 10) "
     "OR OcupatieID NOT IN (3, 4)))"},
    {"cel mult 3 venituri, de feluri diferite din catalog, pozitive",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM Venituri V WHERE V.CerereID = C.CerereID) > 3 "
     "OR (SELECT COUNT(DISTINCT CodVenit) FROM Venituri V WHERE V.CerereID = C.CerereID) <> "
     "(SELECT COUNT(*) FROM Venituri V WHERE V.CerereID = C.CerereID) "
     "OR EXISTS (SELECT 1 FROM Venituri V WHERE V.CerereID = C.CerereID AND (V.CodVenit NOT BETWEEN 1 AND 78 "
     "OR V.Valoare <= 0))"},
    {"cel mult 2 bunuri, pe randuri pe care editorul le citeste",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM BifeText B WHERE B.CerereID = C.CerereID) > 2 "
     "OR EXISTS (SELECT 1 FROM BifeText B WHERE B.CerereID = C.CerereID AND (B.NrBifa NOT BETWEEN 9 AND 83 "
     "OR B.Valoare <= 0))"},
    {"cel mult 2 locuinte, cu coduri 1-7",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM Locuinte L WHERE L.CerereID = C.CerereID) > 2 "
     "OR EXISTS (SELECT 1 FROM Locuinte L WHERE L.CerereID = C.CerereID AND (L.Cod NOT BETWEEN 1 AND 7 "
     "OR L.NrCamere < 1 OR L.Suprafata <= 0))"},
    {"cel mult 3 adeverinte, ale membrilor cererii, de feluri 1-9",
     "SELECT COUNT(*) FROM Adeverinte A WHERE A.TipAdeverinta NOT BETWEEN 1 AND 9 OR NOT EXISTS (SELECT 1 "
     "FROM CereriMembrii CM WHERE CM.CerereID = A.CerereID AND CM.MembruID = A.MembruID) "
     "OR (SELECT COUNT(*) FROM Adeverinte B WHERE B.CerereID = A.CerereID) > 3"},
    {"o adeverinta curenta pe persoana si fel, cea care expira ultima",
     "SELECT COUNT(*) FROM Adeverinte A WHERE (SELECT SUM(B.AdvCurenta) FROM Adeverinte B WHERE B.CerereID = "
     "A.CerereID AND B.MembruID = A.MembruID AND B.TipAdeverinta = A.TipAdeverinta) <> 1 "
     "OR (A.AdvCurenta = 1 AND EXISTS (SELECT 1 FROM Adeverinte B WHERE B.CerereID = A.CerereID "
     "AND B.MembruID = A.MembruID AND B.TipAdeverinta = A.TipAdeverinta AND B.DataExpAdev > A.DataExpAdev))"},
    {"adeverinta de elev doar la elevi",
     "SELECT COUNT(*) FROM Adeverinte A JOIN CereriMembrii CM ON CM.CerereID = A.CerereID AND CM.MembruID = A.MembruID "
     "WHERE A.TipAdeverinta = 3 AND (CM.RudenieID NOT IN (3, 6, 7, 8, 9, 10) OR CM.OcupatieID NOT IN (3, 4))"},
    {"intre 1 si 3 dispozitii, niciuna la cererile neinregistrate inca",
     "SELECT COUNT(*) FROM Cereri C WHERE (SELECT COUNT(*) FROM Dispozitii D WHERE D.CerereID = C.CerereID) "
     "NOT BETWEEN CASE WHEN C.Stare = 1 THEN 0 ELSE 1 END AND CASE WHEN C.Stare = 1 THEN 0 ELSE 3 END"},
    {"dispozitiile sunt ale titularului, CuantumVechi doar la modificare",
     "SELECT COUNT(*) FROM Dispozitii D JOIN Cereri C ON C.CerereID = D.CerereID WHERE D.BeneficiarID <> C.MembruID1 "
     "OR (D.Actiune = 2) <> (D.CuantumVechi IS NOT NULL) OR D.Actiune NOT BETWEEN 1 AND 6"},
    {"prima dispozitie acorda sau respinge",
     "SELECT COUNT(*) FROM Dispozitii D WHERE D.DispozitieID = (SELECT MIN(X.DispozitieID) FROM Dispozitii X "
     "WHERE X.CerereID = D.CerereID) AND D.Actiune NOT IN (1, 4)"},
    {"ultima dispozitie duce la starea cererii, din DataStare, cu cuantumul cererii",
     "SELECT COUNT(*) FROM Dispozitii D JOIN Cereri C ON C.CerereID = D.CerereID WHERE D.DispozitieID = "
     "(SELECT MAX(X.DispozitieID) FROM Dispozitii X WHERE X.CerereID = D.CerereID) AND (D.Actiune <> CASE C.Stare "
     "WHEN 2 THEN 1 WHEN 3 THEN 3 WHEN 4 THEN 5 WHEN 5 THEN 4 WHEN 6 THEN 6 WHEN 7 THEN 2 WHEN 8 THEN 2 END "
     "OR D.DinData <> C.DataStare OR D.Cuantum <> C.Cuantum)"},
    {"o suspendare precede reluarea",
     "SELECT COUNT(*) FROM Dispozitii D WHERE D.Actiune = 6 AND NOT EXISTS (SELECT 1 FROM Dispozitii X "
     "WHERE X.CerereID = D.CerereID AND X.Actiune = 3 AND X.DispozitieID < D.DispozitieID)"},
    {"cererile cu drepturi in plata au copii si cuantum",
     "SELECT COUNT(*) FROM Cereri WHERE Stare IN (2, 6, 7, 8) AND (NrCopii < 1 OR Cuantum <= 0)"},
    {"cererile respinse nu au cuantum", "SELECT COUNT(*) FROM Cereri WHERE Stare = 5 AND Cuantum <> 0"},
    {"bifele de excludere: zece cifre, iar o bifa doar la respinse",
     "SELECT COUNT(*) FROM Cereri WHERE Bife IS NULL OR (Bife <> '0000000000' AND Stare <> 5)"},
    {"plata in cont are cont si banca",
     "SELECT COUNT(*) FROM Cereri WHERE ModPlata NOT IN (1, 2) OR (ModPlata = 2 AND (Cont IS NULL OR Banca IS NULL)) "
     "OR (ModPlata = 1 AND Cont IS NOT NULL)"},
    {"ancheta numara membrii si copiii",
     "SELECT COUNT(*) FROM Anchete A JOIN Cereri C ON C.CerereID = A.CerereID WHERE A.NrMembrii NOT BETWEEN 1 "
     "AND C.NrMembrii OR A.NrCopii NOT BETWEEN 1 AND A.NrMembrii OR A.TipDetinere NOT IN (1, 2) "
     "OR A.Intocmitor IS NULL OR A.DataAncheta < C.DataCerere"},
};

TEST_P(TestDemo, CererileRespectaRegulileProgramului) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 7);
    ASSERT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 300);
    for (const char* tabela : {"Familii", "Membrii", "CereriMembrii", "Venituri", "BifeText", "Locuinte", "Adeverinte",
                               "Dispozitii", "Anchete"})
        EXPECT_GT(Numar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(tabela))), 0) << tabela;
    for (const Regula& r : Reguli)
        EXPECT_EQ(Numar(QString::fromLatin1(r.sql)), 0) << r.nume;
}

TEST_P(TestDemo, AcoperaToateValorileListelor) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 11);
    const struct {
        const char* sql;
        int de, pana;
    } liste[] = {
        {"SELECT COUNT(*) FROM Cereri WHERE Stare = ?", 1, 8},
        {"SELECT COUNT(*) FROM Cereri WHERE TipCerere = ?", 1, 2},
        {"SELECT COUNT(*) FROM Cereri WHERE ModPlata = ?", 1, 2},
        {"SELECT COUNT(*) FROM CereriMembrii WHERE RudenieID = ?", 1, 10},
        {"SELECT COUNT(*) FROM CereriMembrii WHERE RudenieID IN (3, 6, 7, 8, 9, 10) AND OcupatieID = ?", 1, 4},
        {"SELECT COUNT(*) FROM Dispozitii WHERE Actiune = ?", 1, 6},
        {"SELECT COUNT(*) FROM Anchete WHERE TipDetinere = ?", 1, 2},
        {"SELECT COUNT(*) FROM Cereri WHERE NrMembrii = ?", 2, 8},
    };
    for (const auto& l : liste)
        for (int v = l.de; v <= l.pana; ++v)
            EXPECT_GT(NumarCu(QString::fromLatin1(l.sql), v), 0) << l.sql << " cu " << v;
    for (const char* marca : {"Diminuare20", "Diminuare50", "Peste20abs"})
        EXPECT_GT(Numar(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE %1 = 1").arg(QLatin1String(marca))), 0)
            << marca;
}

TEST_P(TestDemo, CnpValideUniceSiPotriviteCuPersoana) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 3);
    Interogare q(db, QStringLiteral("SELECT M.CNP, M.TipAct, CM.RudenieID, CM.Data18Ani, C.DataCerere "
                                    "FROM Membrii M JOIN CereriMembrii CM ON CM.MembruID = M.MembruID "
                                    "JOIN Cereri C ON C.CerereID = CM.CerereID"));
    q.Executa();
    std::set<QString> vazute;
    int persoane = 0;
    while (q.Urmator()) {
        ++persoane;
        const QString cnp = q.Text(QStringLiteral("CNP"));
        SCOPED_TRACE(cnp.toStdString());
        EXPECT_TRUE(VerificaCNP(cnp, nullptr));
        EXPECT_TRUE(vazute.insert(cnp).second) << "CNP repetat";
        const QDate nastere = NastereDinCnp(cnp);
        ASSERT_TRUE(nastere.isValid());
        EXPECT_EQ(cnp.left(1).toInt() >= 5, nastere.year() >= 2000);
        EXPECT_TRUE(CoduriJudet.count(cnp.mid(7, 2).toInt()));
        EXPECT_NE(cnp.mid(9, 3), QStringLiteral("000"));
        const int rudenie = int(q.Intreg(QStringLiteral("RudenieID")));
        const bool copil = rudenie == 3 || rudenie >= 6;
        if (copil)
            EXPECT_EQ(q.Data(QStringLiteral("Data18Ani")), nastere.addYears(18));
        else
            EXPECT_GE(Varsta(nastere, q.Data(QStringLiteral("DataCerere"))), 18);
        // An identity card from 14, a birth certificate before.
        const bool certificat = q.Intreg(QStringLiteral("TipAct")) == 4;
        EXPECT_EQ(certificat, Varsta(nastere, q.Data(QStringLiteral("DataCerere"))) < 14);
    }
    EXPECT_GT(persoane, 600);
}

TEST_P(TestDemo, CopiiDeToateVarsteleSiParintiPotriviti) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 5);
    Interogare q(
        db, QStringLiteral("SELECT CM.CerereID, CM.RudenieID, M.CNP, C.DataCerere FROM CereriMembrii CM "
                           "JOIN Membrii M ON M.MembruID = CM.MembruID JOIN Cereri C ON C.CerereID = CM.CerereID"));
    q.Executa();
    std::set<int> varste;
    std::map<qint64, QDate> celMaiVarstnicCopil, celMaiTanarParinte;
    while (q.Urmator()) {
        const int rudenie = int(q.Intreg(QStringLiteral("RudenieID")));
        const QDate nastere = NastereDinCnp(q.Text(QStringLiteral("CNP")));
        const QDate dataCerere = q.Data(QStringLiteral("DataCerere"));
        const qint64 cerere = q.Intreg(QStringLiteral("CerereID"));
        if (rudenie == 3 || rudenie >= 6) {
            if (nastere <= dataCerere) varste.insert(Varsta(nastere, dataCerere));
            if (!celMaiVarstnicCopil.count(cerere) || nastere < celMaiVarstnicCopil[cerere])
                celMaiVarstnicCopil[cerere] = nastere;
        } else if (rudenie <= 2) {
            if (!celMaiTanarParinte.count(cerere) || nastere > celMaiTanarParinte[cerere])
                celMaiTanarParinte[cerere] = nastere;
        }
    }
    for (int v = 0; v <= 17; ++v)
        EXPECT_TRUE(varste.count(v)) << "niciun copil de " << v << " ani la data cererii";
    EXPECT_TRUE(varste.count(18) || varste.count(19)) << "niciun copil major";
    // The titular and the partner are the parents: both of age when the eldest child was born.
    for (const auto& [cerere, copil] : celMaiVarstnicCopil)
        EXPECT_GE(Varsta(celMaiTanarParinte[cerere], copil), 18) << "cererea " << cerere;
}

TEST_P(TestDemo, VeniturileDauVenitulTotal) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 9);
    std::map<qint64, Bani> suma;
    Interogare v(db, QStringLiteral("SELECT CerereID, Valoare FROM Venituri"));
    v.Executa();
    while (v.Urmator())
        suma[v.Intreg(QStringLiteral("CerereID"))] += v.Suma(QStringLiteral("Valoare"));
    Interogare c(db, QStringLiteral("SELECT CerereID, VenitTotal, VenitpeMembru, NrMembrii FROM Cereri"));
    c.Executa();
    int cuVenit = 0, faraVenit = 0;
    while (c.Urmator()) {
        const qint64 id = c.Intreg(QStringLiteral("CerereID"));
        const Bani total = c.Suma(QStringLiteral("VenitTotal"));
        EXPECT_EQ(total.Unitati(), suma[id].Unitati()) << "cererea " << id;
        const qint64 membri = c.Intreg(QStringLiteral("NrMembrii"));
        const qint64 abatere = (c.Suma(QStringLiteral("VenitpeMembru")) * membri - total).Unitati();
        EXPECT_LT(std::abs(abatere), membri) << "venitul pe membru al cererii " << id;
        (total > Bani() ? cuVenit : faraVenit)++;
    }
    EXPECT_GT(cuVenit, 0);
    EXPECT_GT(faraVenit, 0);
}

TEST_P(TestDemo, DateleDispozitiilorAdeverintelorSiAnchetelor) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 300, 13);
    {
        Interogare q(db, QStringLiteral("SELECT D.DataDisp, D.DinData, D.Luna, D.An, C.DataCerere FROM Dispozitii D "
                                        "JOIN Cereri C ON C.CerereID = D.CerereID"));
        q.Executa();
        while (q.Urmator()) {
            const QDate din = q.Data(QStringLiteral("DinData"));
            EXPECT_EQ(din.day(), 1);
            EXPECT_EQ(q.Intreg(QStringLiteral("Luna")), din.month());
            EXPECT_EQ(q.Intreg(QStringLiteral("An")), din.year());
            // The editor refuses a month before the request's.
            EXPECT_GE(din, QDate(q.Data(QStringLiteral("DataCerere")).year(),
                                 q.Data(QStringLiteral("DataCerere")).month(), 1));
            EXPECT_LE(q.Data(QStringLiteral("DataDisp")), Azi);
        }
    }
    {
        Interogare q(db,
                     QStringLiteral("SELECT A.DataAdeverinta, A.DataExpAdev, A.DataDepunerii, A.AdvCurenta, C.Stare "
                                    "FROM Adeverinte A JOIN Cereri C ON C.CerereID = A.CerereID"));
        q.Executa();
        int expiraLunaAceasta = 0;
        while (q.Urmator()) {
            const QDate data = q.Data(QStringLiteral("DataAdeverinta")), exp = q.Data(QStringLiteral("DataExpAdev"));
            EXPECT_LT(data, exp);
            EXPECT_LE(data, Azi);
            EXPECT_LE(q.Data(QStringLiteral("DataDepunerii")), Azi);
            EXPECT_GE(q.Data(QStringLiteral("DataDepunerii")), data);
            const int stare = int(q.Intreg(QStringLiteral("Stare")));
            if (q.Intreg(QStringLiteral("AdvCurenta")) == 1 && (stare == 2 || stare >= 6) && exp.year() == Azi.year() &&
                exp.month() == Azi.month())
                ++expiraLunaAceasta;
        }
        EXPECT_GT(expiraLunaAceasta, 0) << "lista actelor care expira in luna curenta ar fi goala";
    }
    {
        Interogare q(db, QStringLiteral("SELECT DataAncheta, DataExpirarii, Motiv FROM Anchete"));
        q.Executa();
        while (q.Urmator()) {
            EXPECT_EQ(q.Data(QStringLiteral("DataExpirarii")), q.Data(QStringLiteral("DataAncheta")).addMonths(6));
            EXPECT_LE(q.Data(QStringLiteral("DataAncheta")), Azi);
            EXPECT_EQ(q.Text(QStringLiteral("Motiv")), QStringLiteral("valabilitate 6 luni"));
        }
    }
}

TEST_P(TestDemo, ODouaRulareAdaugaDupaCeleExistente) {
    BazaDate& db = BazaNoua();
    Genereaza(db, 150, 5);
    const qint64 cereri = Numar(QStringLiteral("SELECT MAX(CerereID) FROM Cereri"));
    const qint64 membri = Numar(QStringLiteral("SELECT MAX(MembruID) FROM Membrii"));
    const qint64 nrCerere = Numar(QStringLiteral("SELECT MAX(NrCerere) FROM Cereri"));
    const qint64 dispozitii = Numar(QStringLiteral("SELECT MAX(DispozitieID) FROM Dispozitii"));
    const qint64 adeverinte = Numar(QStringLiteral("SELECT MAX(AdevID) FROM Adeverinte"));
    const qint64 anchete = Numar(QStringLiteral("SELECT MAX(AnchetaID) FROM Anchete"));
    const QStringList inainte = Continut(db);

    // The same seed again: the same families, yet new keys and new personal codes.
    Genereaza(db, 150, 5, 40);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 300);
    EXPECT_EQ(NumarCu(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE CerereID > ?"), cereri), 150);
    EXPECT_EQ(NumarCu(QStringLiteral("SELECT MIN(CerereID) FROM Cereri WHERE CerereID > ?"), cereri), cereri + 1);
    EXPECT_EQ(NumarCu(QStringLiteral("SELECT MIN(MembruID) FROM Membrii WHERE MembruID > ?"), membri), membri + 1);
    EXPECT_EQ(NumarCu(QStringLiteral("SELECT MIN(NrCerere) FROM Cereri WHERE CerereID > ?"), cereri), nrCerere + 1);
    EXPECT_GT(NumarCu(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE DispozitieID > ?"), dispozitii), 0);
    EXPECT_GT(NumarCu(QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE AdevID > ?"), adeverinte), 0);
    EXPECT_GT(NumarCu(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE AnchetaID > ?"), anchete), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(DISTINCT CNP) FROM Membrii")),
              Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(DISTINCT NrCerere) FROM Cereri")), 300);
    EXPECT_EQ(NumarCu(QStringLiteral("SELECT COUNT(*) FROM CereriMembrii CM WHERE CM.CerereID > ? AND NOT EXISTS "
                                     "(SELECT 1 FROM Cereri C WHERE C.CerereID = CM.CerereID)"),
                      cereri),
              0);
    // What was there is left as it was.
    const QStringList dupa = Continut(db);
    for (const QString& r : inainte)
        EXPECT_TRUE(dupa.contains(r)) << r.toStdString();
    for (const Regula& r : Reguli)
        EXPECT_EQ(Numar(QString::fromLatin1(r.sql)), 0) << r.nume;
}

TEST_P(TestDemo, ProgresDupaFiecareLot) {
    BazaDate& db = BazaNoua();
    Demo::Optiuni o;
    o.cereri = 200;
    o.samanta = 2;
    o.lot = 70;
    std::vector<std::pair<int, int>> apeluri;
    Demo::Genereaza(db, o, [&](int facute, int total) {
        apeluri.push_back({facute, total});
        // Each batch is committed when it is reported.
        EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), facute);
    });
    const std::vector<std::pair<int, int>> asteptate{{70, 200}, {140, 200}, {200, 200}};
    EXPECT_EQ(apeluri, asteptate);
    EXPECT_FALSE(db.InTranzactie());
}

TEST_P(TestDemo, NumarNegativRefuzatFaraScriere) {
    BazaDate& db = BazaNoua();
    Demo::Optiuni o;
    o.cereri = -1;
    EXPECT_THROW(Demo::Genereaza(db, o), Eroare);
    o.cereri = 0;
    Demo::Genereaza(db, o);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), 0);
}

PE_AMBELE_MOTOARE(TestDemo);

} // namespace
