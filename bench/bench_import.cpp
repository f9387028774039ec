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
#include <benchmark/benchmark.h>

// The import of an old office's database of 100,000 requests from its CSV dumps (as mdb-export writes
// them), into a new SQLite database: reading, the rows written with their keys, the upgrade's lift, the
// list keys and the indexes. Budget: under 60 s.
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

void Import(benchmark::State& st, int cereri) {
    QTemporaryDir dump;
    {
        auto demo = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
        Exporta(*demo, dump.path());
    }
    auto sursa = DeschideSursaVeche(dump.path());
    for (auto _ : st) {
        st.PauseTiming();
        QTemporaryDir tinta;
        MesajeTacute m;
        auto db = DateLivrate::Initializeaza(LocatieBD{tinta.path(), {}}, QStringLiteral(FEROLANTA_SURSA "/data"), m);
        st.ResumeTiming();
        const RaportImport r = ImportaBazaVeche(*db, *sursa, tinta.path());
        st.PauseTiming();
        const TabelaImportata* c = r.Tabela(QStringLiteral("Cereri"));
        if (!c || c->importate != cereri) st.SkipWithError("not every request was imported");
        st.counters["refuzate"] = double(r.Refuzate());
        db.reset();
        st.ResumeTiming();
    }
}

const bool inregistrate = [] {
    benchmark::RegisterBenchmark("import/100000", Import, 100000)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Iterations(1);
    return true;
}();

} // namespace
