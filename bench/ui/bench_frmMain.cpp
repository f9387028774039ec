#include "Comun.h"

#include "cases/Dispozitii.h"
#include "cases/frmAnexa2.h"
#include "cases/ModelCereri.h"
#include "store/Program.h"
#include "base/Setari.h"
#include "app/frmMain.h"
#include "store/BazaDate.h"

#include <QApplication>
#include <QComboBox>
#include <QTableView>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <benchmark/benchmark.h>

// The main window's print commands on the demo database of 100,000 requests (SQLite, a copy with
// the town hall's row), the documents written into a data folder with the delivered templates and
// handed to a recorder instead of a word processor:
//   RandSiDispozitie   a request selected (its inquiries and dispositions listed) and its newest
//                      disposition printed through cmdPrintDisp. Budget: 50 ms.
//   TiparireLuna       mnuAnexa2 on the month with most grants: the selection and one Disp.rtf of
//                      all of them. Budget: 5 s.
//   ferolanta_bench_ui --benchmark_filter='RandSiDispozitie|TiparireLuna'
// And the resident memory of the process with the main window open on the list of 1,000,000
// requests, after jumps to its end and its middle (Memorie, counter MB; budget 250 MB).

namespace {

constexpr int Cereri = 100000;

// Without the town hall's row the window asks for it first.
void ScriePrimaria(BazaDate& db) {
    Tranzactie t(db);
    Interogare(db, QStringLiteral("DELETE FROM DatePrimarie")).Executa();
    Interogare(db, QStringLiteral("INSERT INTO DatePrimarie (Denumire, Judet, Localitate, Primar, Secretar, "
                                  "TipLocalitate) VALUES (?, ?, ?, ?, ?, 1)"))
        .Leaga(QStringLiteral("Primaria Comunei Branesti"))
        .Leaga(QStringLiteral("Ilfov"))
        .Leaga(QStringLiteral("Branesti"))
        .Leaga(QStringLiteral("Ion Ionescu"))
        .Leaga(QStringLiteral("Maria Georgescu"))
        .Executa();
    t.Confirma();
}

struct Fereastra {
    std::unique_ptr<BazaDate> db;
    QTemporaryDir folder;
    Setari setari;
    std::unique_ptr<Program> program;
    MesajeTacute m;
    std::unique_ptr<frmMain> f;
    qint64 deschise = 0;

    Fereastra() {
        db = BazaDate::Deschide(BazaDemoSQLite(Cereri, true));
        ScriePrimaria(*db);
        QDir(folder.path()).mkpath(QStringLiteral("Acte"));
        const QDir acte(QStringLiteral(FEROLANTA_SURSA "/Acte"));
        for (const QString& s : acte.entryList({QStringLiteral("*.rtf")}, QDir::Files))
            QFile::copy(acte.filePath(s), QDir(folder.path()).filePath(QStringLiteral("Acte/") + s));
        program = std::make_unique<Program>(Program{*db, setari, folder.path()});
        f = std::make_unique<frmMain>(*program, m);
        f->MediuDocumente.DeschideImplicit = [this](const QUrl&) {
            ++deschise;
            return true;
        };
    }
};

void RandSiDispozitie(benchmark::State& st) {
    Fereastra e;
    const int randuri = e.f->model()->rowCount();
    if (randuri == 0) {
        st.SkipWithError("lista de cereri e goala");
        return;
    }
    qint64 pas = 0, tiparite = 0;
    for (auto _ : st) {
        // Spread over the list, so that no page stays warm by accident.
        e.f->SelecteazaRand(int((pas++ * 7919) % randuri));
        const qint64 inainte = e.deschise;
        e.f->cmdPrintDisp_Click();
        tiparite += e.deschise - inainte;
    }
    // Requests without a disposition, or without children, print nothing: the share that did.
    st.counters["tiparite"] = double(tiparite) / double(std::max<qint64>(pas, 1));
}

void TiparireLuna(benchmark::State& st) {
    Fereastra e;
    Interogare q(*e.db, QStringLiteral("SELECT D.An, D.Luna, COUNT(*) FROM Dispozitii D INNER JOIN Cereri C ON "
                                       "C.CerereID = D.CerereID WHERE D.Actiune = 1 AND C.TipCerere = 1 AND "
                                       "C.NrCopii > 0 GROUP BY D.An, D.Luna ORDER BY COUNT(*) DESC"));
    q.Executa();
    if (!q.Urmator()) {
        st.SkipWithError("nicio acordare in baza demonstrativa");
        return;
    }
    e.setari.AnSetat = std::int16_t(q.Intreg(0));
    const int luna = int(q.Intreg(1));
    e.f->ArataModal = [luna](QDialog& d) {
        auto& x = static_cast<frmAnexa2&>(d);
        x.cboCerere[0]->setCurrentIndex(x.cboCerere[0]->findData(1));
        x.cboTipDisp->setCurrentIndex(x.cboTipDisp->findData(1));
        x.cboLuna->setCurrentIndex(x.cboLuna->findData(luna));
        x.txtDispozitieMin->setText(QStringLiteral("0"));
        x.txtDispozitieMax->setText(QStringLiteral("999999999"));
        x.cmdOK_Click();
        return x.result();
    };
    for (auto _ : st)
        e.f->mnuAnexa2_Click();
    if (e.deschise != qint64(st.iterations())) st.SkipWithError("documentul nu s-a deschis la fiecare rulare");
    st.counters["dispozitii"] = double(q.Intreg(2));
    st.counters["MB"] = double(QFileInfo(QDir(e.folder.path()).filePath(QStringLiteral("Disp.rtf"))).size()) / 1e6;
}

double RezidentMB() {
    QFile f(QStringLiteral("/proc/self/status"));
    if (!f.open(QIODevice::ReadOnly)) return -1;
    for (const QByteArray& linie : f.readAll().split('\n'))
        if (linie.startsWith("VmRSS:")) return linie.mid(6).trimmed().split(' ').value(0).toDouble() / 1024.0;
    return -1;
}

void Memorie(benchmark::State& st, int cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(cereri, false));
    ScriePrimaria(*db);
    QTemporaryDir folder;
    Setari setari;
    Program program{*db, setari, folder.path()};
    MesajeTacute m;
    for (auto _ : st) {
        frmMain f(program, m);
        f.ArataModal = [](QDialog&) { return int(QDialog::Rejected); };
        f.show();
        QApplication::processEvents();
        f.lvwCereri->scrollToBottom();
        QApplication::processEvents();
        f.lvwCereri->scrollTo(f.model()->index(f.model()->rowCount() / 2, 0));
        QApplication::processEvents();
        benchmark::DoNotOptimize(f.grab());
        st.counters["MB"] = RezidentMB();
        st.counters["randuri"] = f.model()->rowCount();
    }
}

} // namespace

BENCHMARK_CAPTURE(Memorie, 1000000, 1000000)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(RandSiDispozitie)->Unit(benchmark::kMillisecond);
BENCHMARK(TiparireLuna)->Unit(benchmark::kMillisecond);
