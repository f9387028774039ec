#include "store/OperatiiSchema.h"
#include "store/PasiActualizare.h"
#include "store/Schema.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <QSet>

namespace {

// What an outside tool sees of a column: the declared type on SQLite, the data type on PostgreSQL.
QMap<QString, QString> tipuriDeclarate(BazaDate& db, const QString& tabela) {
    QMap<QString, QString> r;
    Interogare q(db,
                 db.dialect().EsteSQLite()
                     ? QStringLiteral("SELECT name, type FROM pragma_table_info(?)")
                     : QStringLiteral("SELECT column_name AS name, data_type AS type FROM information_schema.columns "
                                      "WHERE table_schema = current_schema() AND table_name = ?"));
    q.Leaga(tabela.toLower()).Executa();
    while (q.Urmator())
        r.insert(q.Text(QStringLiteral("name")).toLower(), q.Text(QStringLiteral("type")).toLower());
    return r;
}

QStringList claseAcceptate(TipCamp t, bool sqlite) {
    switch (t) {
    case TipCamp::Cheie:
        return sqlite ? QStringList{"integer"} : QStringList{"bigint"};
    case TipCamp::Byte:
    case TipCamp::Boolean:
        return sqlite ? QStringList{"integer"} : QStringList{"smallint"};
    case TipCamp::Integer:
    case TipCamp::Long:
        return {"integer"};
    case TipCamp::Single:
        return {"real"};
    case TipCamp::Currency:
    case TipCamp::Zecimal:
        return {"numeric"};
    case TipCamp::Data:
        return {"date"};
    case TipCamp::Text:
        return sqlite ? QStringList{"text"} : QStringList{"character varying"};
    case TipCamp::Memo:
        return {"text"};
    }
    return {};
}

class Schema_ : public TestBaza {};

TEST_P(Schema_, OBazaNouaAreFiecareCampCuTipulPotrivit) {
    BazaDate& db = BazaNoua();
    OperatiiSchema ops(db);
    for (const auto& t : Schema::Tabele()) {
        const auto tipuri = tipuriDeclarate(db, t.nume);
        ASSERT_FALSE(tipuri.isEmpty()) << "lipseste tabela " << t.nume.toStdString();
        EXPECT_EQ(tipuri.size(), qsizetype(t.campuri.size())) << t.nume.toStdString();
        for (const auto& c : t.campuri) {
            const QString tip = tipuri.value(c.nume.toLower());
            EXPECT_TRUE(claseAcceptate(c.tip, db.dialect().EsteSQLite()).contains(tip))
                << t.nume.toStdString() << "." << c.nume.toStdString() << " este " << tip.toStdString();
        }
    }
    for (const auto& r : Schema::Relatii())
        EXPECT_TRUE(ops.RelatieExista(r)) << r.nume.toStdString();
    for (const auto& ix : Schema::Indexuri())
        EXPECT_TRUE(ops.IndexExista(ix)) << ix.Nume().toStdString();
}

TEST_P(Schema_, ValorileSeCitescInapoiExact) {
    BazaDate& db = BazaNoua();
    {
        Tranzactie t(db);
        ExecutaCu(db, QStringLiteral("INSERT INTO Familii (FamilieID, Strada) VALUES (1, ?)"),
                  QStringLiteral("Str. Mihai Viteazu'l"));
        ExecutaCu(db, QStringLiteral("INSERT INTO Membrii (MembruID, Nume) VALUES (1, ?)"), QStringLiteral("Șerban"));
        ExecutaCu(
            db,
            QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, MembruID1, DataCerere, Cuantum, VenitTotal, Vmg) "
                           "VALUES (1, 1, 1, ?, ?, ?, ?)"),
            QDate(2024, 2, 29), *Bani::DinText(QStringLiteral("1234567.8901")),
            *Bani::DinText(QStringLiteral("0.0001")), true);
        t.Confirma();
    }
    Interogare q(db,
                 QStringLiteral("SELECT C.DataCerere, C.Cuantum, C.VenitTotal, C.Vmg, C.DataStare, F.Strada, M.Nume "
                                "FROM Cereri C JOIN Familii F ON F.FamilieID = C.FamilieID "
                                "JOIN Membrii M ON M.MembruID = C.MembruID1"));
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Data(QStringLiteral("DataCerere")), QDate(2024, 2, 29));
    EXPECT_EQ(q.Suma(QStringLiteral("Cuantum")).Text(), QStringLiteral("1234567.8901"));
    EXPECT_EQ(q.Suma(QStringLiteral("VenitTotal")).Unitati(), 1);
    EXPECT_EQ(q.Intreg(QStringLiteral("Vmg")), 1);
    EXPECT_FALSE(q.Data(QStringLiteral("DataStare")).isValid());
    EXPECT_EQ(q.Text(QStringLiteral("Strada")), QStringLiteral("Str. Mihai Viteazu'l"));
    EXPECT_EQ(q.Text(QStringLiteral("Nume")), QStringLiteral("Șerban"));

    if (db.dialect().EsteSQLite()) {
        // What the sqlite3 shell shows: an ISO date and a plain decimal.
        Interogare brut(
            db,
            QStringLiteral("SELECT typeof(DataCerere) AS t, DataCerere AS d, CAST(Cuantum AS TEXT) AS c FROM Cereri"));
        ASSERT_TRUE(brut.Exista());
        EXPECT_EQ(brut.Text(QStringLiteral("t")), QStringLiteral("text"));
        EXPECT_EQ(brut.Text(QStringLiteral("d")), QStringLiteral("2024-02-29"));
        EXPECT_EQ(brut.Text(QStringLiteral("c")), QStringLiteral("1234567.8901"));
    }
}

PE_AMBELE_MOTOARE(Schema_);

// The upgrade list and the schema must describe the same database.
TEST(SchemaSiActualizare, FiecarePasNumesteCeExistaInSchema) {
    QSet<QString> adaugate, create;
    for (const auto& p : PasiActualizare::Lista()) {
        switch (p.fel) {
        case PasActualizare::Fel::AdaugaCamp:
            EXPECT_NE(Schema::Camp(p.tabela, p.camp), nullptr) << p.tabela.toStdString() << "." << p.camp.toStdString();
            adaugate.insert((p.tabela + QLatin1Char('.') + p.camp).toLower());
            break;
        case PasActualizare::Fel::CreazaTabela:
            ASSERT_NE(Schema::Tabela(p.tabela), nullptr) << p.tabela.toStdString();
            EXPECT_FALSE(Schema::Tabela(p.tabela)->livrata) << p.tabela.toStdString();
            create.insert(p.tabela.toLower());
            break;
        case PasActualizare::Fel::CreazaRelatie:
            EXPECT_NE(Schema::Relatie(p.camp), nullptr) << p.camp.toStdString();
            break;
        case PasActualizare::Fel::RedenumesteCamp:
            EXPECT_NE(Schema::Camp(p.tabela, p.numeNou), nullptr) << p.numeNou.toStdString();
            break;
        case PasActualizare::Fel::StergeCamp:
            EXPECT_EQ(Schema::Camp(p.tabela, p.camp), nullptr) << p.camp.toStdString();
            break;
        }
    }
    // Every field of a table the upgrade creates is its first field or is added by it.
    for (const auto& t : Schema::Tabele()) {
        if (t.livrata) {
            EXPECT_FALSE(create.contains(t.nume.toLower())) << t.nume.toStdString();
            continue;
        }
        EXPECT_TRUE(create.contains(t.nume.toLower())) << t.nume.toStdString();
        for (size_t i = 1; i < t.campuri.size(); ++i)
            EXPECT_TRUE(adaugate.contains((t.nume + QLatin1Char('.') + t.campuri[i].nume).toLower()))
                << t.nume.toStdString() << "." << t.campuri[i].nume.toStdString();
    }
}

TEST(SchemaSiActualizare, ListaAreOrdineaPasilor) {
    const auto& l = PasiActualizare::Lista();
    ASSERT_EQ(l.size(), 176u);
    EXPECT_EQ(l.front().camp, QStringLiteral("NrDosar2"));
    EXPECT_EQ(l[43].camp, QStringLiteral("Bife"));
    EXPECT_EQ(l[43].etapa, 1);
    EXPECT_EQ(l[44].camp, QStringLiteral("TipCerere"));
    EXPECT_EQ(l[44].etapa, 3);
    EXPECT_EQ(l.back().camp, QStringLiteral("PrenumeCautare"));
}

} // namespace
