#include "cases/RecalculIsr.h"

#include "store/CopieInainte.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "cases/CalculCuantum.h"
#include "reference/Isr.h"
#include "store/BazaDate.h"
#include "store/CitireRapida.h"
#include "store/InserareInLot.h"
#include "store/LucruMare.h"

#include <QVariant>
#include <algorithm>
#include <optional>
#include <vector>

namespace RecalculIsr {

namespace {

// How often the progress is told: often enough for a bar to move, rarely enough to cost nothing.
constexpr qint64 PasProgres = 4096;

struct Reduceri {
    qint64 CerereID = 0;
    int Diminuari20 = 0, Diminuari50 = 0;
};

// The children carrying a reduction, counted by request, in the order of the requests. Few rows carry
// one, so they are all held; requests not in payment are passed over when the two lists are merged.
std::vector<Reduceri> CitesteReduceri(BazaDate& db) {
    std::vector<Reduceri> r;
    // The condition is written as the partial index on the reductions has it, so that both engines read
    // only the index's few rows.
    Interogare q(db, QStringLiteral("SELECT CerereID, Diminuare20, Diminuare50 FROM CereriMembrii "
                                    "WHERE (Diminuare20 <> 0 OR Diminuare50 <> 0) AND RudenieID IN (?, ?, ?, ?, ?, ?) "
                                    "ORDER BY CerereID"));
    for (int rudenie : {3, 6, 7, 8, 9, 10})
        q.Leaga(rudenie);
    q.Executa();
    while (q.Urmator()) {
        const qint64 id = q.Intreg(0);
        if (r.empty() || r.back().CerereID != id) r.push_back({id, 0, 0});
        if (q.Intreg(1) != 0) ++r.back().Diminuari20;
        if (q.Intreg(2) != 0) ++r.back().Diminuari50;
    }
    return r;
}

qint64 NumarInPlata(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare IN (?, ?, ?, ?)"));
    for (int stare : {2, 6, 7, 8})
        q.Leaga(stare);
    return q.Exista() ? q.Intreg(0) : 0;
}

qint64 NumarCereri(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT COUNT(*) FROM Cereri"));
    return q.Exista() ? q.Intreg(0) : 0;
}

// Writes the amounts that changed in one statement: they go first into a temporary table of their own
// connection, in bulk, and one UPDATE joins it to the requests.
void ScrieCuantumuri(BazaDate& db, const std::vector<std::pair<qint64, Bani>>& noi) {
    if (noi.empty()) return;
    const Dialect& d = db.dialect();
    // Made and dropped inside the caller's unit: a failure rolls its creation back with everything else,
    // so none is ever left behind.
    db.Executa(QStringLiteral("CREATE TEMPORARY TABLE CuantumNou (CerereID %1 PRIMARY KEY, Cuantum %2)")
                   .arg(d.TipSql(TipCamp::Cheie, 0), d.TipSql(TipCamp::Currency, 0)));
    {
        InserareInLot ins(db, QStringLiteral("CuantumNou"), {QStringLiteral("CerereID"), QStringLiteral("Cuantum")});
        for (const auto& [id, cuantum] : noi)
            ins.Leaga(id).Leaga(cuantum).Executa();
        ins.Scrie();
    }
    // Past a third of the table the amount's index is cheaper built again than kept up.
    std::optional<IndexuriRefacute> indexuri;
    if (qint64(noi.size()) * 3 > NumarCereri(db))
        indexuri.emplace(db, QStringLiteral("Cereri"), QStringList{QStringLiteral("Cuantum")});
    Interogare(db, QStringLiteral("UPDATE Cereri SET Cuantum = CuantumNou.Cuantum FROM CuantumNou "
                                  "WHERE Cereri.CerereID = CuantumNou.CerereID"))
        .Executa();
    if (indexuri) indexuri->Reface();
    db.Executa(QStringLiteral("DROP TABLE CuantumNou"));
}

// On SQLite the amounts are computed and written in one pass of the engine over the table, in the order of
// its pages: a read, then a write of each row by its key, visits every page twice. A request without a
// level makes the statement fail; the caller's unit then rolls everything back.
void ScrieInTrecere(BazaDate& db, qint64 inPlata, FunctieSQLite::Corp corp) {
    // Past a third of the table the amount's index is cheaper built again than kept up.
    std::optional<IndexuriRefacute> indexuri;
    if (inPlata * 3 > NumarCereri(db))
        indexuri.emplace(db, QStringLiteral("Cereri"), QStringList{QStringLiteral("Cuantum")});
    bool oprit = false;
    {
        const FunctieSQLite f(db, "cuantum_recalculat", 6, [&](const ArgumenteSQLite& a) {
            std::optional<Bani> r = corp(a);
            oprit = !r;
            return r;
        });
        Interogare u(db, QStringLiteral("UPDATE Cereri SET Cuantum = cuantum_recalculat(CerereID, DataCerere, TipCerere, "
                                        "VenitpeMembru, NrCopii, Cuantum) WHERE +Stare IN (?, ?, ?, ?)"));
        for (int stare : {2, 6, 7, 8})
            u.Leaga(stare);
        try {
            u.Executa();
        } catch (const Eroare&) {
            if (!oprit) throw;
            return;
        }
    }
    if (indexuri) indexuri->Reface();
}

} // namespace

Rezultat SchimbaIsr(BazaDate& db, const QString& valoare, Mesaje& m, const Progres& progres) {
    Rezultat rez;
    qint64 total = 0;
    CopieInainte::Fa(db, QStringLiteral("inainte de recalcularea ISR"));
    {
        const CacheMare cache(db);
        Tranzactie t(db);
        ScrieIsr(db, valoare);
        // The scale, the thresholds and the ISR just written, read as the request editor reads them.
        const ParametriCuantum p = IncarcaParametri(db);
        CalculBarem calcul(p);

        const std::vector<Reduceri> reduceri = CitesteReduceri(db);
        total = NumarInPlata(db);
        if (progres) progres(0, total);

        // The reductions of a request, from the few requests that have any.
        const auto calculeaza = [&](qint64 id, DateBarem d) {
            const auto red = std::lower_bound(reduceri.begin(), reduceri.end(), id,
                                              [](const Reduceri& r, qint64 c) { return r.CerereID < c; });
            if (red != reduceri.end() && red->CerereID == id) {
                d.Diminuari20 = red->Diminuari20;
                d.Diminuari50 = red->Diminuari50;
            }
            return calcul.Calculeaza(d, m);
        };
        // A null amount becomes a stored 0 like any other change.
        const auto numara = [&](bool schimbat) {
            if (schimbat) ++rez.Schimbate;
            ++rez.Recalculate;
            if (progres && rez.Recalculate % PasProgres == 0)
                progres(rez.Recalculate, std::max(total, rez.Recalculate));
        };
        if (db.dialect().EsteSQLite())
            ScrieInTrecere(db, total, [&](const ArgumenteSQLite& a) -> std::optional<Bani> {
                const qint64 id = a.Intreg(0);
                const RezultatBarem r = calculeaza(id, DateBarem{int(a.Intreg(2)), a.Data(1), a.Suma(3), int(a.Intreg(4))});
                if (r.fel == RezultatBarem::Fel::FaraNivel) {
                    rez.Oprit = id;
                    return std::nullopt;
                }
                numara(a.EsteNul(5) || r.Cuantum != a.Suma(5));
                return r.Cuantum;
            });
        else {
            // Most requests are in payment: reading the table in the order of its key beats the index on
            // Stare, whose rows would be fetched at random and then sorted.
            CitireRapida q(db, QStringLiteral("SELECT CerereID, DataCerere, TipCerere, VenitpeMembru, NrCopii, "
                                              "Cuantum FROM Cereri WHERE Stare IN (?, ?, ?, ?) ORDER BY CerereID"));
            for (int stare : {2, 6, 7, 8})
                q.Leaga(stare);
            q.Executa();
            std::vector<std::pair<qint64, Bani>> noi;
            while (q.Urmator()) {
                const qint64 id = q.Intreg(0);
                const RezultatBarem r =
                    calculeaza(id, DateBarem{int(q.Intreg(2)), q.Data(1), q.Suma(3), int(q.Intreg(4))});
                if (r.fel == RezultatBarem::Fel::FaraNivel) {
                    rez.Oprit = id;
                    break;
                }
                const bool schimbat = q.EsteNul(5) || r.Cuantum != q.Suma(5);
                if (schimbat) noi.emplace_back(id, r.Cuantum);
                numara(schimbat);
            }
            if (!rez.Oprit) ScrieCuantumuri(db, noi);
        }
        if (!rez.Oprit) {
            t.Confirma();
            rez.ok = true;
        }
    }
    // Told after the unit has ended, so that no other computer waits on the file while the box is open.
    if (rez.Oprit) {
        rez.Recalculate = 0;
        m.Informatie(QStringLiteral("CerereID %1 fara copii sau data cerere mai mica de 01.11.2014 !").arg(*rez.Oprit));
        return rez;
    }
    if (progres) progres(rez.Recalculate, std::max(total, rez.Recalculate));
    m.Informatie(QStringLiteral("A fost recalculat cuantumul pentru %1 cereri.").arg(rez.Recalculate));
    return rez;
}

} // namespace RecalculIsr
