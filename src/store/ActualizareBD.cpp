#include "store/ActualizareBD.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "store/Cataloage.h"
#include "store/CheiLista.h"
#include "store/DateGen.h"
#include "store/OperatiiSchema.h"
#include "store/PasiActualizare.h"
#include "store/SeminteDateGen.h"
#include "store/Sql.h"

#include <QSet>
#include <limits>
#include <set>
#include <tuple>

namespace {

const QStringList TabeleObligatorii = {QStringLiteral("Familii"), QStringLiteral("Cereri"), QStringLiteral("Membrii"),
                                       QStringLiteral("CereriMembrii"), QStringLiteral("DateGen")};
// What a DateGen row is written with, by the seeds and by the named values.
const QStringList CampuriDateGen = {QStringLiteral("Denumire"), QStringLiteral("Tip"), QStringLiteral("DataID"),
                                    QStringLiteral("Continut"), QStringLiteral("Ordine")};

class Actualizator {
public:
    Actualizator(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& j)
        : db_(db), ops_(db), caleBD_(caleBD), m_(m), jurnal_(j) {}

    RezultatActualizare Ruleaza() {
        for (const QString& t : TabeleObligatorii)
            if (!ops_.TabelaExista(t))
                throw Eroare(QStringLiteral("%1 nu este o baza de date Ferolanta: lipseste tabela %2.")
                                 .arg(db_.locatie().Descriere(), t));
        for (const auto& p : PasiActualizare::Lista())
            if (p.etapa == 1) pasSchema(p);
        if (ops_.CampExista(QStringLiteral("Cereri"), QStringLiteral("VenitPermanent")))
            pasProtejat(QStringLiteral("RecalculVenitTotal"), [&] { recalculVenit(); });
        for (const auto& p : PasiActualizare::Lista())
            if (p.etapa == 3) pasSchema(p);
        completeazaSchema();
        pasProtejat(QStringLiteral("Membrii"), [&] { cheiCautare(); });
        pasProtejat(QStringLiteral("Cereri"), [&] {
            if (const qint64 n = CheiLista::Completeaza(db_); n > 0)
                schimbare(QStringLiteral("Cereri si Adeverinte: chei ale listelor scrise: %1").arg(n));
        });
        pasProtejat(QStringLiteral("Adeverinte"), [&] { reparaAdeverinte(); });
        pasProtejat(QStringLiteral("Adeverinte"), [&] { marcheazaCurente(); });
        catalog([&] { return Cataloage::IncarcaListaVenituri(db_, caleBD_, m_, jurnal_); });
        catalog([&] { return Cataloage::IncarcaListaBife(db_, caleBD_, m_, jurnal_); });
        catalog([&] { return Cataloage::IncarcaListaActe(db_, caleBD_, m_, jurnal_); });
        pasProtejat(QStringLiteral("DateGen"), [&] { seminteDateGen(); });
        pasProtejat(QStringLiteral("Barem"), [&] { seminteBarem(); });
        pasProtejat(QStringLiteral("Indexuri"), [&] { indexuri(); });
        return r_;
    }

private:
    void schimbare(const QString& linie) {
        ++r_.schimbari;
        if (jurnal_) jurnal_(linie);
    }

    void eroare(const QString& text) {
        m_.Critic(text);
        r_.erori << text;
    }

    // A step in its own transaction; a failure is shown, rolled back, and the upgrade goes on.
    template <typename F> void pasProtejat(const QString& loc, F&& f) {
        try {
            Tranzactie t(db_);
            f();
            t.Confirma();
        } catch (const Eroare& e) {
            eroare(QStringLiteral("Eroare in %1: %2").arg(loc, e.text()));
        }
    }

    template <typename F> void catalog(F&& f) {
        try {
            switch (f()) {
            case Cataloage::Rezultat::Reincarcat:
                ++r_.schimbari;
                break;
            case Cataloage::Rezultat::FisierLipsa: // already shown
                r_.erori << QStringLiteral("Lipseste un fisier de catalog din %1").arg(caleBD_);
                break;
            case Cataloage::Rezultat::Neschimbat:
                break;
            }
        } catch (const Eroare& e) {
            eroare(e.text());
        }
    }

    const CampSchema& campDinSchema(const QString& tabela, const QString& camp) {
        const CampSchema* c = Schema::Camp(tabela, camp);
        if (!c)
            throw Eroare(QStringLiteral("Exceptie: campul %1.%2 lipseste din schema programului").arg(tabela, camp));
        return *c;
    }

    void pasSchema(const PasActualizare& p) {
        switch (p.fel) {
        case PasActualizare::Fel::AdaugaCamp:
            if (!ops_.CampExista(p.tabela, p.camp))
                pasProtejat(QStringLiteral("AddField %1.%2").arg(p.tabela, p.camp), [&] {
                    ops_.AdaugaCamp(p.tabela, campDinSchema(p.tabela, p.camp));
                    schimbare(QStringLiteral("Camp adaugat: %1.%2").arg(p.tabela, p.camp));
                });
            break;
        case PasActualizare::Fel::StergeCamp:
            if (ops_.CampExista(p.tabela, p.camp)) {
                try {
                    Tranzactie t(db_);
                    ops_.StergeCamp(p.tabela, p.camp);
                    t.Confirma();
                    schimbare(QStringLiteral("Camp sters: %1.%2").arg(p.tabela, p.camp));
                } catch (const Eroare& e) {
                    eroare(QStringLiteral("Eroare in DeleteField la tabela: %1, campul: %2\n%3")
                               .arg(p.tabela, p.camp, e.text()));
                }
            }
            break;
        case PasActualizare::Fel::RedenumesteCamp:
            if (ops_.CampExista(p.tabela, p.camp) && !ops_.CampExista(p.tabela, p.numeNou))
                pasProtejat(QStringLiteral("SchimbaCamp %1.%2").arg(p.tabela, p.camp), [&] {
                    ops_.RedenumesteCamp(p.tabela, p.camp, p.numeNou);
                    schimbare(QStringLiteral("Camp redenumit: %1.%2 in %3").arg(p.tabela, p.camp, p.numeNou));
                });
            break;
        case PasActualizare::Fel::CreazaTabela:
            if (!ops_.TabelaExista(p.tabela))
                pasProtejat(QStringLiteral("CreateTable %1").arg(p.tabela), [&] { creazaTabela(p.tabela); });
            break;
        case PasActualizare::Fel::CreazaRelatie: {
            const RelatieSchema* r = Schema::Relatie(p.camp);
            if (!r) {
                eroare(QStringLiteral("Exceptie: relatia %1 lipseste din schema programului").arg(p.camp));
                break;
            }
            if (ops_.RelatieExista(*r)) break;
            try {
                Tranzactie t(db_);
                ops_.CreazaRelatie(*r);
                t.Confirma();
                schimbare(QStringLiteral("Relatie creata: %1").arg(r->nume));
            } catch (const Eroare& e) {
                eroare(QStringLiteral("Relatia %1 nu a putut fi creata. \n%2").arg(r->nume, e.text()));
            }
            break;
        }
        }
    }

    // Files were also shaped by hand and by versions whose steps are lost: whatever field or table
    // of the present shape is still missing after the listed steps is added now.
    void completeazaSchema() {
        for (const auto& t : Schema::Tabele()) {
            if (!ops_.TabelaExista(t.nume))
                pasProtejat(QStringLiteral("CreateTable %1").arg(t.nume), [&] { creazaTabela(t.nume); });
            for (const auto& c : t.campuri)
                if (!ops_.CampExista(t.nume, c.nume))
                    pasSchema({PasActualizare::Fel::AdaugaCamp, t.nume, c.nume, {}, 3});
        }
    }

    void creazaTabela(const QString& nume) {
        // Older files kept the goods catalogue under the name Bife.
        if (nume.compare(QLatin1String("ListaBife"), Qt::CaseInsensitive) == 0 &&
            ops_.TabelaExista(QStringLiteral("Bife"))) {
            ops_.RedenumesteTabela(QStringLiteral("Bife"), QStringLiteral("ListaBife"));
            schimbare(QStringLiteral("Tabela redenumita: Bife in ListaBife"));
            return;
        }
        const TabelaSchema* t = Schema::Tabela(nume);
        if (!t) throw Eroare(QStringLiteral("Exceptie: tabela %1 lipseste din schema programului").arg(nume));
        ops_.CreazaTabela(*t, {t->campuri.front()});
        schimbare(QStringLiteral("Tabela creata: %1").arg(nume));
    }

    void recalculVenit() {
        const int n = RecalculVenitTotal(db_);
        m_.Informatie(QStringLiteral("%1 cereri calculate").arg(n));
        schimbare(QStringLiteral("VenitTotal recalculat pentru %1 cereri").arg(n));
    }

    // The search keys of the persons written before they existed, or since by an older program,
    // which knows nothing of them. Read in pages by key, so that no page is read while it changes.
    void cheiCautare() {
        if (!ops_.CampExista(QStringLiteral("Membrii"), QStringLiteral("NumeCautare")) ||
            !ops_.CampExista(QStringLiteral("Membrii"), QStringLiteral("PrenumeCautare")))
            return;
        Interogare citeste(db_, QStringLiteral("SELECT MembruID, Nume, Prenume FROM Membrii WHERE MembruID > ? "
                                               "AND ((NumeCautare IS NULL AND Nume <> '') "
                                               "OR (PrenumeCautare IS NULL AND Prenume <> '')) "
                                               "ORDER BY MembruID LIMIT 5000"));
        Interogare scrie(db_,
                         QStringLiteral("UPDATE Membrii SET NumeCautare = ?, PrenumeCautare = ? WHERE MembruID = ?"));
        struct Rand {
            qint64 id;
            QString nume, prenume;
        };
        qint64 dupa = std::numeric_limits<qint64>::min();
        qint64 completate = 0;
        for (;;) {
            std::vector<Rand> pagina;
            citeste.Leaga(dupa).Executa();
            while (citeste.Urmator())
                pagina.push_back({citeste.Intreg(0), citeste.Valoare(1).toString(), citeste.Valoare(2).toString()});
            if (pagina.empty()) break;
            for (const Rand& r : pagina)
                scrie.Leaga(CheieCautareStocata(r.nume)).Leaga(CheieCautareStocata(r.prenume)).Leaga(r.id).Executa();
            completate += qint64(pagina.size());
            dupa = pagina.back().id;
        }
        if (completate > 0) schimbare(QStringLiteral("Membrii: chei de cautare scrise: %1").arg(completate));
    }

    // Certificates whose three dates are all the old engine's zero date are left-overs of an old
    // fault. A missing date is not a zero date: a certificate kept with its number only stays.
    void reparaAdeverinte() {
        const QDate prag(1900, 1, 1);
        const QString conditie =
            QStringLiteral("DataAdeverinta < ? AND DataExpAdev < ? AND DataDepunerii < ?");
        Interogare gasite(db_, QStringLiteral("SELECT COUNT(*) AS Nr FROM Adeverinte WHERE ") + conditie);
        gasite.Leaga(prag).Leaga(prag).Leaga(prag).Exista();
        const qint64 n = gasite.Intreg(QStringLiteral("Nr"));
        if (n == 0) return;
        Interogare(db_, QStringLiteral("DELETE FROM Adeverinte WHERE ") + conditie)
            .Leaga(prag)
            .Leaga(prag)
            .Leaga(prag)
            .Executa();
        schimbare(QStringLiteral("Adeverinte: %1 randuri fara nicio data sterse").arg(n));
    }

    // Done once, on a database whose certificates were never marked: the latest expiry of each
    // kind for each person becomes the current one. As in the old program, persons are walked
    // by MembruID from 1 up to the number of certificates and kinds up to the last one listed.
    void marcheazaCurente() {
        if (Interogare(db_, QStringLiteral("SELECT 1 FROM Adeverinte WHERE AdvCurenta = 1")).Exista()) return;
        Interogare total(db_, QStringLiteral("SELECT COUNT(*) AS Nr FROM Adeverinte"));
        total.Exista();
        const qint64 randuri = total.Intreg(QStringLiteral("Nr"));
        if (randuri == 0) return;
        Interogare tipuri(db_, QStringLiteral("SELECT MAX(DataID) AS NrActe FROM DateGen WHERE Tip = ?"));
        tipuri.Leaga(TipDateGen::TipAct).Exista();
        const qint64 nrActe = tipuri.Intreg(QStringLiteral("NrActe"));
        Interogare marcheaza(
            db_, QStringLiteral("UPDATE Adeverinte SET AdvCurenta = 1 WHERE AdevID IN (SELECT AdevID FROM ("
                                "SELECT AdevID, ROW_NUMBER() OVER (PARTITION BY MembruID, TipAdeverinta "
                                "ORDER BY DataExpAdev DESC NULLS LAST, AdevID) AS Rand FROM Adeverinte "
                                "WHERE MembruID BETWEEN 1 AND ? AND TipAdeverinta BETWEEN 1 AND ?) x WHERE Rand = 1)"));
        marcheaza.Leaga(randuri).Leaga(nrActe).Executa();
        if (marcheaza.RanduriAfectate() > 0)
            schimbare(QStringLiteral("Adeverinte: %1 documente marcate curente").arg(marcheaza.RanduriAfectate()));
    }

    void seminteDateGen() {
        std::set<std::pair<qint64, qint64>> existente;
        Interogare q(db_,
                     QStringLiteral("SELECT Tip, DataID FROM DateGen WHERE Tip IS NOT NULL AND DataID IS NOT NULL"));
        q.Executa();
        while (q.Urmator())
            existente.insert({q.Intreg(0), q.Intreg(1)});

        Interogare ins(db_, Sql::Insert(QStringLiteral("DateGen"), CampuriDateGen));
        for (const auto& s : Seminte::DateGen()) {
            if (existente.count({s.tip, s.dataID})) continue;
            ins.Leaga(s.denumire).Leaga(s.tip).Leaga(s.dataID).Leaga(s.continut).Leaga(s.ordine).Executa();
            schimbare(QStringLiteral("DateGen: adaugat Tip %1 DataID %2 %3")
                          .arg(s.tip)
                          .arg(s.dataID)
                          .arg(QString::fromUtf8(s.continut)));
        }

        corecteaza(TipDateGen::Rudenie, 2, QStringLiteral("PARTENER"), -1);
        corecteaza(TipDateGen::Rudenie, 3, QStringLiteral("COPIL NATURAL"), 6);
        corecteaza(TipDateGen::Gospodarie, 2, QStringLiteral("IMPREUNA CU ALTA PERSOANA SINGURA SAU FAMILIE"), -1);
        Interogare sterge(db_, QStringLiteral("DELETE FROM DateGen WHERE Tip = ? AND DataID = 3"));
        sterge.Leaga(TipDateGen::Gospodarie).Executa();
        if (sterge.RanduriAfectate() > 0) schimbare(QStringLiteral("DateGen: sters Tip 26 DataID 3"));

        parametru(QStringLiteral("ISR"), 1, QStringLiteral("525.5"));
        parametru(QStringLiteral("PRAGURI_VENIT"), 2, QStringLiteral("210.2|557.03"));
    }

    // A delivered row whose text must be this one; a clerk's edit of it does not last.
    void corecteaza(TipDateGen tip, int dataID, const QString& continut, int ordine) {
        QString sql = QStringLiteral("UPDATE DateGen SET Continut = ?");
        if (ordine >= 0) sql += QStringLiteral(", Ordine = ?");
        sql += QStringLiteral(" WHERE Tip = ? AND DataID = ? AND (Continut IS NULL OR Continut <> ?)");
        Interogare u(db_, sql);
        u.Leaga(continut);
        if (ordine >= 0) u.Leaga(ordine);
        u.Leaga(tip).Leaga(dataID).Leaga(continut).Executa();
        if (u.RanduriAfectate() > 0)
            schimbare(
                QStringLiteral("DateGen: corectat Tip %1 DataID %2 in %3").arg(int(tip)).arg(dataID).arg(continut));
    }

    void parametru(const QString& denumire, int dataID, const QString& valoare) {
        if (ContinutDateGen(db_, denumire)) return;
        Interogare(db_, Sql::Insert(QStringLiteral("DateGen"), CampuriDateGen))
            .Leaga(denumire)
            .Leaga(TipDateGen::Parametru)
            .Leaga(dataID)
            .Leaga(valoare)
            .Leaga(0)
            .Executa();
        schimbare(QStringLiteral("DateGen: adaugat %1 = %2").arg(denumire, valoare));
    }

    void seminteBarem() {
        using Cheie = std::tuple<qint64, qint64, qint64, QDate>;
        std::set<Cheie> existente;
        Interogare q(db_, QStringLiteral("SELECT Tip, NrPers, Suma, DataInceput FROM Barem"));
        q.Executa();
        while (q.Urmator())
            existente.insert({q.Intreg(QStringLiteral("Tip")), q.Intreg(QStringLiteral("NrPers")),
                              q.Suma(QStringLiteral("Suma")).Unitati(), q.Data(QStringLiteral("DataInceput"))});

        Interogare ins(db_,
                       QStringLiteral("INSERT INTO Barem (Tip, Descriere, NrPers, Barem, Suma, PerPers, BaremPerPers, "
                                      "DataInceput) VALUES (?, ?, ?, ?, ?, 0, 0, ?)"));
        for (const QDate& set : {QDate(2012, 1, 1), QDate(2013, 7, 1), QDate(2014, 11, 1)}) {
            for (const auto& s : Seminte::Barem()) {
                if (s.dataInceput != set) continue;
                const Bani suma = *Bani::DinText(QString::fromLatin1(s.suma));
                for (int nr = 1; nr <= 4; ++nr) {
                    if (existente.count({s.tip, nr, suma.Unitati(), s.dataInceput})) continue;
                    ins.Leaga(s.tip)
                        .Leaga(s.descriere)
                        .Leaga(nr)
                        .Leaga(*Bani::DinText(QString::fromLatin1(s.valori[nr - 1])))
                        .Leaga(suma)
                        .Leaga(s.dataInceput)
                        .Executa();
                    schimbare(
                        QStringLiteral("Barem: adaugat Tip %1 NrPers %2 Suma %3 din %4")
                            .arg(s.tip)
                            .arg(nr)
                            .arg(QString::fromLatin1(s.suma), s.dataInceput.toString(QStringLiteral("dd.MM.yyyy"))));
                }
            }
            for (const auto& inchidere : Seminte::InchideriBarem()) {
                if (inchidere.dataInceput != set) continue;
                Interogare u(db_, QStringLiteral("UPDATE Barem SET DataStop = ? WHERE DataInceput = ? "
                                                 "AND (DataStop IS NULL OR DataStop <> ?)"));
                u.Leaga(inchidere.dataStop).Leaga(inchidere.dataInceput).Leaga(inchidere.dataStop).Executa();
                if (u.RanduriAfectate() > 0)
                    schimbare(QStringLiteral("Barem: setul din %1 inchis la %2")
                                  .arg(inchidere.dataInceput.toString(QStringLiteral("dd.MM.yyyy")),
                                       inchidere.dataStop.toString(QStringLiteral("dd.MM.yyyy"))));
            }
        }
    }

    void indexuri() {
        for (const auto& ix : Schema::IndexuriInlocuite())
            if (ops_.TabelaExista(ix.tabela) && ops_.IndexExista(ix)) {
                ops_.StergeIndex(ix);
                schimbare(QStringLiteral("Index sters: %1").arg(ix.Nume()));
            }
        for (const auto& ix : Schema::Indexuri()) {
            if (!ops_.TabelaExista(ix.tabela) || ops_.IndexExista(ix)) continue;
            bool campuri = true;
            for (const auto& c : ix.campuri)
                campuri = campuri && ops_.CampExista(ix.tabela, c);
            if (!campuri) continue;
            ops_.CreazaIndex(ix);
            schimbare(QStringLiteral("Index creat: %1").arg(ix.Nume()));
        }
    }

    BazaDate& db_;
    OperatiiSchema ops_;
    QString caleBD_;
    Mesaje& m_;
    const Jurnal& jurnal_;
    RezultatActualizare r_;
};

} // namespace

RezultatActualizare ActualizareBD(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal) {
    return Actualizator(db, caleBD, m, jurnal).Ruleaza();
}

int RecalculVenitTotal(BazaDate& db) {
    Tranzactie t(db);
    Interogare u(db,
                 QStringLiteral("UPDATE Cereri SET VenitTotal = COALESCE(VenitPermanent, 0) + COALESCE(VenitAlte, 0)"));
    u.Executa();
    t.Confirma();
    return u.RanduriAfectate();
}
