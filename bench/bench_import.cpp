#include "Comun.h"

#include "maintenance/ImportVechi.h"
#include "maintenance/SursaVeche.h"
#include "store/DateLivrate.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <QUrl>
#include <QUrlQuery>
#include <benchmark/benchmark.h>

// The import of an old office's database of 100,000 requests from its CSV dumps (as mdb-export writes
// them), into a new database: reading, the rows written with their keys, the upgrade's lift, the
// list keys and the indexes; on PostgreSQL too when FEROLANTA_TEST_PG names a server. Budget: under 60 s.
//   ferolanta_bench --benchmark_filter=import/

namespace {

// Fields the old program never had: the import has to write them.
const QStringList CampuriNoi = {QStringLiteral("TitularNume"),  QStringLiteral("TitularPrenume"),
                                QStringLiteral("TitularCNP"),   QStringLiteral("AdresaOrdine"),
                                QStringLiteral("NumeCautare"),  QStringLiteral("PrenumeCautare"),
                                QStringLiteral("MembruOrdine"), QStringLiteral("CerereInVigoare")};

QByteArray TextCsv(const CampSchema* c, const QVariant& v) {
    if (v.isNull()) return {};
    if (c && c->tip == TipCamp::Data) {
        const QDate d =
            v.typeId() == QMetaType::QDate ? v.toDate() : QDate::fromString(v.toString().left(10), Qt::ISODate);
        return d.toString(QStringLiteral("yyyy-MM-dd 00:00:00")).toUtf8();
    }
    if (c && (c->tip == TipCamp::Text || c->tip == TipCamp::Memo)) {
        QByteArray t = v.toString().toUtf8();
        t.replace('"', "\"\"");
        return '"' + t + '"';
    }
    return v.toString().toUtf8();
}

// The demo database dumped table by table into `folder`, without the fields of the present shape that
// only this program writes.
void Exporta(BazaDate& db, const QString& folder) {
    OperatiiSchema ops(db);
    for (const QString& tabela : ops.Tabele()) {
        const TabelaSchema* t = Schema::Tabela(tabela);
        if (!t) continue;
        QStringList campuri;
        for (const QString& c : ops.Campuri(tabela))
            if (!CampuriNoi.contains(c, Qt::CaseInsensitive)) campuri << c;
        QSaveFile f(QDir(folder).filePath(t->nume + QStringLiteral(".csv")));
        if (!f.open(QIODevice::WriteOnly)) return;
        f.write(campuri.join(QLatin1Char(',')).toUtf8() + "\r\n");
        std::vector<const CampSchema*> scheme;
        for (const QString& c : campuri)
            scheme.push_back(Schema::Camp(t->nume, c));
        Interogare q(db, QStringLiteral("SELECT %1 FROM %2").arg(campuri.join(QStringLiteral(", ")), tabela));
        q.Executa();
        QByteArray linie;
        while (q.Urmator()) {
            linie.clear();
            for (int i = 0; i < campuri.size(); ++i) {
                if (i > 0) linie += ',';
                linie += TextCsv(scheme[size_t(i)], q.Valoare(i));
            }
            linie += "\r\n";
            f.write(linie);
        }
        f.commit();
    }
}

// Where an iteration imports: a new SQLite file in a temporary folder, or a schema of its own on the server
// of FEROLANTA_TEST_PG, dropped afterwards.
LocatieBD Tinta(Motor m, const QString& folder) {
    LocatieBD loc{folder, {}};
    if (m == Motor::PostgreSQL) {
        QUrl u(qEnvironmentVariable("FEROLANTA_TEST_PG"));
        QUrlQuery q(u);
        q.addQueryItem(QStringLiteral("schema"), QStringLiteral("bench_import"));
        u.setQuery(q);
        loc.url = u.toString();
    }
    return loc;
}

void StergeSchema(Motor m) {
    if (m != Motor::PostgreSQL) return;
    LocatieBD server;
    server.url = qEnvironmentVariable("FEROLANTA_TEST_PG");
    BazaDate::Deschide(server)->Executa(QStringLiteral("DROP SCHEMA IF EXISTS bench_import CASCADE"));
}

void Import(benchmark::State& st, int cereri, Motor motor) {
    if (motor == Motor::PostgreSQL && qEnvironmentVariableIsEmpty("FEROLANTA_TEST_PG")) {
        st.SkipWithError("FEROLANTA_TEST_PG is not set");
        return;
    }
    QTemporaryDir dump;
    {
        auto demo = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
        Exporta(*demo, dump.path());
    }
    auto sursa = DeschideSursaVeche(dump.path());
    for (auto _ : st) {
        st.PauseTiming();
        QTemporaryDir tinta;
        StergeSchema(motor);
        MesajeTacute m;
        auto db = DateLivrate::Initializeaza(Tinta(motor, tinta.path()), QStringLiteral(FEROLANTA_SURSA "/data"), m);
        st.ResumeTiming();
        const RaportImport r = ImportaBazaVeche(*db, *sursa, tinta.path());
        st.PauseTiming();
        const TabelaImportata* c = r.Tabela(QStringLiteral("Cereri"));
        if (!c || c->importate != cereri) st.SkipWithError("not every request was imported");
        st.counters["refuzate"] = double(r.Refuzate());
        db.reset();
        StergeSchema(motor);
        st.ResumeTiming();
    }
}

const bool inregistrate = [] {
    for (Motor m : {Motor::SQLite, Motor::PostgreSQL})
        benchmark::RegisterBenchmark(
            QStringLiteral("import/100000/%1").arg(m == Motor::SQLite ? "SQLite" : "PostgreSQL").toStdString().c_str(),
            Import, 100000, m)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Iterations(1);
    return true;
}();

} // namespace
