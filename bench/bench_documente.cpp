#include "Comun.h"

#include "documents/Documente.h"
#include "store/BazaDate.h"

#include <QDir>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

// Dispositions merged from the delivered templates on the demo database of 10,000 requests
// (SQLite, a copy with the town hall's row): one disposition read, merged and written as Disp.rtf
// (budget 20 ms), and 1,000 dispositions into one Disp.rtf (budget 3 s).
//   ferolanta_bench --benchmark_filter=Dispozit

namespace {

constexpr int Cereri = 10000;

struct Mediu {
    std::unique_ptr<BazaDate> db;
    OptiuniDocumente o;
    QTemporaryDir iesiri;
    std::vector<qint64> dispozitii; // those the templates can print: children, and an old amount for a change

    Mediu() {
        db = BazaDate::Deschide(BazaDemoSQLite(Cereri, true));
        Interogare(*db, QStringLiteral("DELETE FROM DatePrimarie")).Executa();
        Interogare(*db, QStringLiteral("INSERT INTO DatePrimarie (Judet, Localitate, Primar, Secretar, CodFiscal, "
                                       "TipLocalitate, AsSocial) VALUES (?, ?, ?, ?, ?, 1, ?)"))
            .Leaga(QStringLiteral("Ilfov"))
            .Leaga(QString::fromUtf8("Brănești"))
            .Leaga(QStringLiteral("Ion Ionescu"))
            .Leaga(QStringLiteral("Maria Georgescu"))
            .Leaga(QStringLiteral("4420636"))
            .Leaga(QStringLiteral("Elena Dumitru"))
            .Executa();
        o.FolderActe = QStringLiteral(FEROLANTA_SURSA "/Acte");
        o.StrSat = QStringLiteral("str.");
        Interogare q(*db, QStringLiteral("SELECT D.DispozitieID FROM Dispozitii D INNER JOIN Cereri C ON "
                                         "C.CerereID = D.CerereID WHERE C.NrCopii > 0 AND D.Actiune BETWEEN 1 AND 6 "
                                         "AND (D.Actiune <> 2 OR D.CuantumVechi IS NOT NULL) ORDER BY D.DispozitieID"));
        q.Executa();
        while (q.Urmator())
            dispozitii.push_back(q.Intreg(0));
    }
    QString Iesire() const { return QDir(iesiri.path()).filePath(QStringLiteral("Disp.rtf")); }
};

void DispozitieUna(benchmark::State& st) {
    Mediu e;
    MesajeTacute m;
    if (e.dispozitii.empty()) {
        st.SkipWithError("nicio dispozitie tiparibila in baza demonstrativa");
        return;
    }
    size_t pas = 0;
    for (auto _ : st) {
        const qint64 id = e.dispozitii[(pas++ * 7919) % e.dispozitii.size()];
        if (Documente::GenereazaDispozitie(*e.db, id, e.o, e.Iesire(), m) != Documente::Rezultat::Scris) {
            st.SkipWithError("dispozitia nu s-a putut genera");
            return;
        }
    }
    st.counters["octeti"] = double(QFileInfo(e.Iesire()).size());
}

void Dispozitii1000(benchmark::State& st) {
    Mediu e;
    MesajeTacute m;
    if (e.dispozitii.size() < 1000) {
        st.SkipWithError("mai putin de 1000 de dispozitii tiparibile in baza demonstrativa");
        return;
    }
    // Spread over the table, as a month's selection would be.
    std::vector<qint64> alese;
    const size_t pasAlegere = e.dispozitii.size() / 1000;
    for (size_t i = 0; i < 1000; ++i)
        alese.push_back(e.dispozitii[i * pasAlegere]);
    for (auto _ : st) {
        if (Documente::GenereazaDispozitii(*e.db, alese, e.o, e.Iesire(), m) != Documente::Rezultat::Scris) {
            st.SkipWithError("dispozitiile nu s-au putut genera");
            return;
        }
    }
    st.counters["MB"] = double(QFileInfo(e.Iesire()).size()) / 1e6;
}

} // namespace

BENCHMARK(DispozitieUna)->Unit(benchmark::kMillisecond);
BENCHMARK(Dispozitii1000)->Unit(benchmark::kMillisecond);
