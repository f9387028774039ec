#include "Comun.h"

#include "cases/DateCerere.h"
#include "cases/Istoric.h"
#include "cases/SalvareCerere.h"
#include "store/BazaDate.h"
#include "store/Schema.h"

#include <benchmark/benchmark.h>
#include <optional>

// The request editor on the demo databases of 100,000 and 1,000,000 requests (SQLite): opening a
// stored request, and saving a case file of eight persons with their certificates, as a new request
// and as a change of a stored one. Budgets: 50 ms for each.
// The history of a change on the 100,000 one: a save whose telephone changes at each round, so that
// each writes a history row, against the same save whose row the database drops; and the history's
// own part of a save (the stored household, request and persons read back, compared, and the row
// written), undone at each round. Budget: 2 ms for the history's part.
//   ferolanta_bench --benchmark_filter='Cerere|Istoric'

namespace {

void DeschideCerere(benchmark::State& st, int Cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, false));
    MesajeTacute m;
    qint64 pas = 0, persoane = 0;
    for (auto _ : st) {
        // Spread over the whole table, so that no page stays warm by accident.
        const qint64 id = 1 + (pas++ * 7919) % Cereri;
        const CerereIncarcata c = IncarcaCerere(*db, id, 6, 2025, m);
        if (!c.Gasita) {
            st.SkipWithError("cererea lipseste din baza demonstrativa");
            return;
        }
        persoane += c.Stare.MatriceMembri ? qint64(c.Stare.MatriceMembri->size()) : 0;
    }
    st.counters["persoane/cerere"] = double(persoane) / double(std::max<qint64>(pas, 1));
}

QString Cnp(int prima, qint64 numar) {
    return QStringLiteral("%1%2").arg(prima).arg(numar, 12, 10, QLatin1Char('0'));
}

AdeverintaMembru Adeverinta(int tip, int luni) {
    AdeverintaMembru a;
    a.TipAdeverinta = tip;
    a.NrAdev = QStringLiteral("B-%1").arg(tip);
    a.DataAdeverinta = QDate(2025, 5, 2);
    a.DataDepunerii = QDate(2025, 5, 6);
    a.DataExpAdev = QDate(2025, 5, 31).addMonths(luni);
    a.AdvCurenta = 1;
    return a;
}

// Two adults and six children, two certificates each, incomes, goods and housing; `serie`
// makes the CNPs new.
void FamilieDeOpt(DateCerere& d, StareCerere& s, qint64 serie) {
    d = {};
    d.Adaug = 1;
    d.txtCerere[0] = QString::number(900000 + serie);
    d.txtCerere[1] = QString::number(900000 + serie);
    d.txtCerere[5] = QStringLiteral("Branesti");
    d.txtCerere[6] = QStringLiteral("Ilfov");
    d.txtCerere[12] = QStringLiteral("1200");
    d.txtCerere[13] = QStringLiteral("150");
    d.txtCerere[16] = QStringLiteral("6");
    d.cboCerere[0] = {0, QStringLiteral("Strada Morii")};
    d.cboCerere[1] = {3, QStringLiteral("IN NUME PROPRIU")};
    d.cboCerere[2] = {1, QStringLiteral("NUMERAR / MANDAT POSTAL")};
    d.cboCerere[3] = {1, TextTipCerere(1)};
    d.cboCerere[4] = {2, QStringLiteral("ACORDATA")};
    d.dtpData = {QDate(2025, 5, 12), QDate(2025, 6, 1)};

    s = {};
    std::vector<MembruCerere> membri(8);
    for (int i = 0; i < 8; ++i) {
        MembruCerere& p = membri[size_t(i)];
        p.RudenieID = i == 0 ? 1 : i == 1 ? 2 : 3;
        p.Nume = QStringLiteral("Popescu");
        p.Prenume = QStringLiteral("Persoana %1").arg(i);
        p.CNP = Cnp(i < 2 ? 1 : 5, serie * 8 + i);
        p.Eliberat = QStringLiteral("SPCLEP Branesti");
        if (i >= 2) {
            p.Data18Ani = QDate(2030 + i, 3, 1);
            p.UScolara = QStringLiteral("Scoala Gimnaziala nr. 1");
            p.LocScoala = QStringLiteral("Branesti");
        }
        p.Adeverinte = {Adeverinta(i >= 2 ? 3 : 6, 6), Adeverinta(2, 12)};
    }
    s.MatriceMembri = std::move(membri);
    s.Venituri[0] = Bani::DinLei(900);
    s.Venituri[5] = Bani::DinLei(300);
    s.Bunuri[1] = Bani::DinLei(2);
    s.LocuinteSel[0] = {3, true};
    s.Bife = QStringLiteral("0000000000");
}

void SalveazaCerereNoua(benchmark::State& st, int Cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, true));
    MesajeTacute m;
    OptiuniSalvare o;
    o.LunaSetata = 6;
    o.AnSetat = 2025;
    DateCerere d;
    StareCerere s;
    qint64 serie = 0;
    for (auto _ : st) {
        FamilieDeOpt(d, s, ++serie);
        if (SalveazaCerere(*db, d, s, {}, o, m).stare != RezultatSalvare::Stare::Salvata) {
            st.SkipWithError("salvarea s-a oprit");
            return;
        }
    }
}

// A family of eight saved once and read back as the editor holds it, for the saves that follow.
std::optional<CerereIncarcata> CerereSalvata(BazaDate& db, qint64 nr, const OptiuniSalvare& o, Mesaje& m) {
    DateCerere d;
    StareCerere s;
    FamilieDeOpt(d, s, nr);
    const RezultatSalvare r = SalveazaCerere(db, d, s, {}, o, m);
    CerereIncarcata c = IncarcaCerere(db, r.CerereID, o.LunaSetata, o.AnSetat, m);
    if (!c.Gasita) return std::nullopt;
    return c;
}

// A family saved once, then again at each round with a member's income changed. With `telefon` the family's
// telephone changes too, so that each save writes a history row; with `faraRand` the database drops that row
// as it comes (what the history's reads and comparisons cost without the row's own pages).
void SalveazaDinNou(benchmark::State& st, int Cereri, bool telefon, bool faraRand) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, true));
    if (faraRand)
        db->Executa(QStringLiteral("CREATE TRIGGER fara_istoric BEFORE INSERT ON IstoricCereri "
                                   "BEGIN SELECT RAISE(IGNORE); END"));
    MesajeTacute m;
    OptiuniSalvare o;
    o.LunaSetata = 6;
    o.AnSetat = 2025;
    auto salvata = CerereSalvata(*db, telefon ? 777778 : 777777, o, m);
    if (!salvata) {
        st.SkipWithError("cererea salvata nu se gaseste");
        return;
    }
    CerereIncarcata& c = *salvata;
    int runda = 0;
    for (auto _ : st) {
        (*c.Stare.MatriceMembri)[0].Venit = Bani::DinLei(++runda % 1000);
        if (telefon)
            c.Date.txtCerere[ElemCerere::txtTelefon] = QStringLiteral("07%1").arg(runda, 8, 10, QLatin1Char('0'));
        if (SalveazaCerere(*db, c.Date, c.Stare, c.Iesiti, o, m).stare != RezultatSalvare::Stare::Salvata) {
            st.SkipWithError("salvarea s-a oprit");
            return;
        }
    }
    if (!telefon) return;
    Interogare n(*db, QStringLiteral("SELECT COUNT(*) FROM IstoricCereri"));
    n.Exista();
    st.counters["randuri istoric"] = double(n.Intreg(0));
}

void SalveazaCerereModificata(benchmark::State& st, int Cereri) {
    SalveazaDinNou(st, Cereri, false, false);
}

void SalveazaCerereTelefon(benchmark::State& st, int Cereri, bool faraRand) {
    SalveazaDinNou(st, Cereri, true, faraRand);
}

// The stored values of every field of a table's row, as a save would write them back.
Sql::Rand RandStocat(BazaDate& db, const QString& tabela, const QString& cheie, qint64 id) {
    QStringList campuri;
    for (const CampSchema& c : Schema::Tabela(tabela)->campuri)
        if (c.nume.compare(cheie, Qt::CaseInsensitive) != 0) campuri << c.nume;
    Interogare q(
        db, QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(campuri.join(QStringLiteral(", ")), tabela, cheie));
    q.Leaga(id);
    Sql::Rand r;
    if (q.Exista())
        for (int i = 0; i < campuri.size(); ++i)
            r.push_back({campuri[i], q.Valoare(i)});
    return r;
}

// What the history adds to a save: the household, the request and its persons read back and compared
// with the values to write, one field changed, and the row written; each round undone.
void IstoricLaSalvare(benchmark::State& st, int Cereri) {
    auto db = BazaDate::Deschide(BazaDemoSQLite(Cereri, true));
    qint64 pas = 0;
    for (auto _ : st) {
        const qint64 id = 1 + (pas++ * 7919) % Cereri;
        st.PauseTiming();
        Sql::Rand familie = RandStocat(*db, QStringLiteral("Familii"), QStringLiteral("FamilieID"), id);
        Sql::Rand cerere = RandStocat(*db, QStringLiteral("Cereri"), QStringLiteral("CerereID"), id);
        for (auto& [camp, valoare] : cerere)
            if (camp == QLatin1String("VenitTotal")) valoare = QVariant::fromValue(Bani::DinLei(pas));
        st.ResumeTiming();
        Tranzactie t(*db);
        auto schimbari = Istoric::Diferente(*db, QStringLiteral("Familii"), QStringLiteral("FamilieID"), id, familie);
        const auto c = Istoric::Diferente(*db, QStringLiteral("Cereri"), QStringLiteral("CerereID"), id, cerere);
        schimbari.insert(schimbari.end(), c.begin(), c.end());
        const std::vector<PersoanaIstoric> persoane = Istoric::Persoane(*db, id);
        const auto p = Istoric::ComparaPersoane(persoane, persoane);
        schimbari.insert(schimbari.end(), p.begin(), p.end());
        Istoric::ScrieSchimbari(*db, id, {}, FelSchimbare::Modificare, QStringLiteral("Cerere modificata"), schimbari);
        benchmark::DoNotOptimize(schimbari.size());
    }
}

const bool inregistrate = [] {
    for (int cereri : {100000, 1000000})
        for (const auto& [nume, f] : {std::pair{"DeschideCerere", &DeschideCerere},
                                      std::pair{"SalveazaCerereNoua", &SalveazaCerereNoua},
                                      std::pair{"SalveazaCerereModificata", &SalveazaCerereModificata}})
            benchmark::RegisterBenchmark(QStringLiteral("%1/%2").arg(QLatin1String(nume)).arg(cereri).toStdString().c_str(),
                                         f, cereri)
                ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("SalveazaCerereCuIstoric/100000", &SalveazaCerereTelefon, 100000, false)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("SalveazaCerereFaraRandIstoric/100000", &SalveazaCerereTelefon, 100000, true)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("IstoricLaSalvare/100000", &IstoricLaSalvare, 100000)->Unit(benchmark::kMillisecond);
    return true;
}();

} // namespace
