#include "store/OperatiiSchema.h"
#include "store/Schema.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

namespace {

// What an outside tool sees of a column: the declared type on SQLite, the data type on PostgreSQL.
QMap<QString, QString> tipuriDeclarate(BazaDate& db, const QString& tabela) {
    QMap<QString, QString> r;
    Interogare q(db, db.dialect().EsteSQLite()
                         ? T("SELECT name, type FROM pragma_table_info(?)")
                         : T("SELECT column_name AS name, data_type AS type FROM information_schema.columns "
                             "WHERE table_schema = current_schema() AND table_name = ?"));
    q.Leaga(tabela.toLower()).Executa();
    while (q.Urmator())
        r.insert(q.Text(T("name")).toLower(), q.Text(T("type")).toLower());
    return r;
}

// The type each kind of field gets: on SQLite, on PostgreSQL.
QString tipAsteptat(TipCamp t, bool sqlite) {
    // clang-format off
    const struct {
        TipCamp tip;
        const char *sqlite, *pg;
    } tipuri[] = {{TipCamp::Cheie, "integer", "bigint"}, {TipCamp::Byte, "integer", "smallint"},
                  {TipCamp::Boolean, "integer", "smallint"}, {TipCamp::Integer, "integer", "integer"},
                  {TipCamp::Long, "integer", "integer"}, {TipCamp::Single, "real", "real"},
                  {TipCamp::Currency, "numeric", "numeric"}, {TipCamp::Zecimal, "numeric", "numeric"},
                  {TipCamp::Data, "date", "date"}, {TipCamp::Text, "text", "character varying"},
                  {TipCamp::Memo, "text", "text"}};
    // clang-format on
    for (const auto& x : tipuri)
        if (x.tip == t) return QString::fromLatin1(sqlite ? x.sqlite : x.pg);
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
        for (const auto& c : t.campuri)
            EXPECT_EQ(tipuri.value(c.nume.toLower()), tipAsteptat(c.tip, db.dialect().EsteSQLite()))
                << t.nume.toStdString() << "." << c.nume.toStdString();
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
        ExecutaCu(db, T("INSERT INTO Familii (FamilieID, Strada) VALUES (1, ?)"), T("Str. Mihai Viteazu'l"));
        ExecutaCu(db, T("INSERT INTO Membrii (MembruID, Nume) VALUES (1, ?)"), T("Șerban"));
        ExecutaCu(db,
                  T("INSERT INTO Cereri (CerereID, FamilieID, MembruID1, DataCerere, Cuantum, VenitTotal, Vmg, "
                    "DataStare) VALUES (1, 1, 1, ?, ?, ?, ?, ?)"),
                  QDate(2024, 2, 29), *Bani::DinText(T("1234567.8901")), *Bani::DinText(T("0.0001")), true, QDate());
        t.Confirma();
    }
    Interogare q(db, T("SELECT C.DataCerere, C.Cuantum, C.VenitTotal, C.Vmg, C.DataStare, F.Strada, M.Nume "
                       "FROM Cereri C JOIN Familii F ON F.FamilieID = C.FamilieID "
                       "JOIN Membrii M ON M.MembruID = C.MembruID1"));
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Data(T("DataCerere")), QDate(2024, 2, 29));
    EXPECT_EQ(q.Suma(T("Cuantum")).Text(), T("1234567.8901"));
    EXPECT_EQ(q.Suma(T("VenitTotal")).Unitati(), 1);
    EXPECT_EQ(q.Intreg(T("Vmg")), 1);
    EXPECT_FALSE(q.Data(T("DataStare")).isValid());
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri WHERE DataStare IS NULL")), 1) << "no date is a null";
    EXPECT_EQ(q.Text(T("Strada")), T("Str. Mihai Viteazu'l"));
    EXPECT_EQ(q.Text(T("Nume")), T("Șerban"));

    // What the sqlite3 shell shows: an ISO date and a plain decimal.
    if (db.dialect().EsteSQLite()) {
        EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Cereri WHERE typeof(DataCerere) = 'text' AND "
                          "DataCerere = '2024-02-29' AND CAST(Cuantum AS TEXT) = '1234567.8901'")),
                  1);
    }
}

PE_AMBELE_MOTOARE(Schema_);

} // namespace
