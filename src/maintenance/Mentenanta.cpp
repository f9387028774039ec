#include "maintenance/Mentenanta.h"

#include "store/CopieInainte.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/ServiciuFisiere.h"
#include "cases/CalculCuantum.h"
#include "reports/builders/Liste.h"
#include "store/BazaDate.h"
#include "store/Cataloage.h"
#include "store/CheiLista.h"
#include "store/DateGen.h"
#include "store/LucruMare.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"

#include <QDir>
#include <QSqlQuery>
#include <algorithm>
#include <functional>
#include <map>

namespace Mentenanta {

namespace {

// The empty date of the old engine, which some imported requests carry instead of no date.
const QDate DataZero(1899, 12, 30);

const QString StariBune = QStringLiteral("1, 2, 6, 7, 8");
const QString MotivModificare = QStringLiteral("Modificarea nivelului lunar al ASF");

// DataStare: the granted requests filed in the working month, with no status date unless told.
QString ConditieDataStare(const Optiuni& o) {
    QString c = QStringLiteral("Stare = 2 AND DataCerere >= ? AND DataCerere < ?");
    if (!o.suprascrieDataStare) c += QStringLiteral(" AND (DataStare IS NULL OR DataStare = ?)");
    return c;
}

void LeagaDataStare(Interogare& q, const Optiuni& o) {
    const QDate prima(o.an, o.luna, 1);
    q.Leaga(prima).Leaga(prima.addMonths(1));
    if (!o.suprascrieDataStare) q.Leaga(DataZero);
}

qint64 NumarCu(BazaDate& db, const QString& sql, const std::function<void(Interogare&)>& leaga = {}) {
    Interogare q(db, sql);
    if (leaga) leaga(q);
    q.Exista();
    return q.Intreg(0);
}

qint64 Schimba(BazaDate& db, const QString& sql, const std::function<void(Interogare&)>& leaga = {}) {
    Interogare q(db, sql);
    if (leaga) leaga(q);
    q.Executa();
    return q.RanduriAfectate();
}

void VerificaLuna(const Optiuni& o) {
    if (o.luna < 1 || o.luna > 12 || o.an < 1)
        throw Eroare(QStringLiteral("Luna de lucru %1/%2 nu este valida.").arg(o.luna).arg(o.an));
}

// Why bife.txt can't be loaded: missing, or empty; nothing when it can be tried.
std::optional<QString> RefuzBife(const QString& caleBD) {
    const QString cale = QDir(caleBD).filePath(QStringLiteral("bife.txt"));
    if (ServiciuFisiere::StareFisier(cale) != 0)
        return QStringLiteral("Fisierul bife.txt nu exista in ") + QDir::toNativeSeparators(caleBD);
    if (Cataloage::CitesteLinii(cale).isEmpty()) return QStringLiteral("Fisierul bife.txt este gol!");
    return std::nullopt;
}

// Every paying request becomes a change of amount on 1 November 2014. The amount depends only on the
// family kind, the children (four at most) and the income bracket, so the few amounts are computed
// first and the requests take theirs in one statement.
qint64 GenereazaCereri2014(BazaDate& db, Mesaje& m, const Optiuni& o) {
    const ParametriCuantum p = IncarcaParametri(db);
    const std::vector<TreaptaVenit> trepte = TrepteVenit(Data2014, p, m);
    db.Executa(QStringLiteral("CREATE TEMPORARY TABLE Cuantum2014 (TipCerere INTEGER NOT NULL, NrCopii INTEGER NOT "
                              "NULL, Treapta INTEGER NOT NULL, Cuantum NUMERIC(19,4), PRIMARY KEY (TipCerere, NrCopii, "
                              "Treapta))"));
    std::vector<qint64> tipuri;
    {
        // Every kind the table has, read from its index alone: an amount too many costs nothing.
        Interogare q(db, QStringLiteral("SELECT DISTINCT TipCerere FROM Cereri WHERE TipCerere IS NOT NULL"));
        q.Executa();
        while (q.Urmator())
            tipuri.push_back(q.Intreg(0));
    }
    Interogare ins(db, QStringLiteral("INSERT INTO Cuantum2014 (TipCerere, NrCopii, Treapta, Cuantum) VALUES (?, ?, "
                                      "?, ?)"));
    for (const qint64 tip : tipuri)
        for (int copii = 0; copii <= 4; ++copii)
            for (size_t k = 0; k < trepte.size(); ++k)
                ins.Leaga(tip)
                    .Leaga(copii)
                    .Leaga(qint64(k + 1))
                    .Leaga(CuantumTreapta(int(tip), copii, trepte[k].Suma, Data2014, p))
                    .Executa();

    QString treapta = QStringLiteral("CASE");
    for (size_t k = 0; k < trepte.size(); ++k)
        treapta += QStringLiteral(" WHEN COALESCE(Cereri.VenitpeMembru, 0) <= ? THEN %1").arg(k + 1);
    treapta += QStringLiteral(" ELSE 0 END");
    const QString sql =
        QStringLiteral("UPDATE Cereri SET %1Stare = 7, MotivStare = ?, DataStare = ?, Cuantum = COALESCE((SELECT "
                       "X.Cuantum FROM Cuantum2014 X WHERE X.TipCerere = Cereri.TipCerere AND X.NrCopii = CASE WHEN "
                       "Cereri.NrCopii > 4 THEN 4 ELSE Cereri.NrCopii END AND X.Treapta = %2), 0) WHERE Stare IN (%3)")
            .arg(o.pastreazaDataCerere ? QString() : QStringLiteral("DataCerere = ?, "), treapta, StariBune);
    // The registered requests are the ones that come into force: their certificates will say so.
    db.Executa(
        QStringLiteral("CREATE TEMPORARY TABLE Inregistrate2014 AS SELECT CerereID FROM Cereri WHERE Stare = 1"));
    IndexuriRefacute indexuri(db, QStringLiteral("Cereri"),
                              {QStringLiteral("Stare"), QStringLiteral("DataCerere"), QStringLiteral("DataStare"),
                               QStringLiteral("Cuantum")});
    const qint64 n = Schimba(db, sql, [&](Interogare& q) {
        if (!o.pastreazaDataCerere) q.Leaga(Data2014);
        q.Leaga(MotivModificare).Leaga(Data2014);
        for (const TreaptaVenit& t : trepte)
            q.Leaga(t.VenitMaxim);
    });
    indexuri.Reface();
    // A few of the certificates: their indexes are kept up as they change.
    CheiLista::ScrieAdeverinte(db, QStringLiteral("CerereID IN (SELECT CerereID FROM Inregistrate2014)"));
    db.Executa(QStringLiteral("DROP TABLE Cuantum2014"));
    db.Executa(QStringLiteral("DROP TABLE Inregistrate2014"));
    return n;
}

} // namespace

qint64 Numara(BazaDate& db, Unealta u, const Optiuni& o) {
    switch (u) {
    case Unealta::DataStare:
        VerificaLuna(o);
        return NumarCu(db, QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE ") + ConditieDataStare(o),
                       [&](Interogare& q) { LeagaDataStare(q, o); });
    case Unealta::Stare:
        return NumarCu(db, QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare = 3"));
    case Unealta::Rudenie:
        return NumarCu(db, QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE RudenieID IN (3, 4)"));
    case Unealta::Acte:
        return Raport::NumarAdvCurenteNemarcate(db);
    case Unealta::Bife:
        if (const auto refuz = RefuzBife(o.caleBD)) throw Eroare(*refuz);
        return Cataloage::RanduriBife;
    case Unealta::Cereri2014:
        return NumarCu(db, QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare IN (%1)").arg(StariBune));
    }
    return 0;
}

Rezultat Aplica(BazaDate& db, Mesaje& m, Unealta u, const Optiuni& o) {
    Rezultat r;
    if (u == Unealta::DataStare) VerificaLuna(o);
    if (u == Unealta::Bife)
        if (const auto refuz = RefuzBife(o.caleBD)) throw Eroare(*refuz);
    CopieInainte::Fa(db, QStringLiteral("inainte de mentenanta"));
    const CacheMare cache(db);
    Tranzactie t(db);
    switch (u) {
    case Unealta::DataStare:
        r.randuri =
            Schimba(db, QStringLiteral("UPDATE Cereri SET DataStare = DataCerere WHERE ") + ConditieDataStare(o),
                    [&](Interogare& q) { LeagaDataStare(q, o); });
        break;
    case Unealta::Stare:
        r.randuri = Schimba(db, QStringLiteral("UPDATE Cereri SET Stare = 5 WHERE Stare = 3"));
        break;
    case Unealta::Rudenie: {
        Interogare n(db,
                     QStringLiteral("SELECT SUM(CASE WHEN RudenieID = 3 THEN 1 ELSE 0 END), SUM(CASE WHEN "
                                    "RudenieID = 4 THEN 1 ELSE 0 END) FROM CereriMembrii WHERE RudenieID IN (3, 4)"));
        n.Exista();
        r.randuri = n.Intreg(0);
        r.randuri2 = n.Intreg(1);
        n.query().finish();
        // Both passes in one statement: each row is judged by the kinship it had, so a partner becomes a
        // spouse and a pupil a pupil of the new list, and never a pupil a spouse.
        Schimba(db, QStringLiteral("UPDATE CereriMembrii SET RudenieID = CASE WHEN RudenieID = 3 THEN 2 ELSE 3 END "
                                   "WHERE RudenieID IN (3, 4)"));
        break;
    }
    case Unealta::Acte:
        // Mostly a few lost marks among many: the indexes are kept up as they change.
        r.randuri = Raport::RecalculAdvCurenta(db, false);
        break;
    case Unealta::Bife:
        Cataloage::RefaListaBife(db, o.caleBD);
        r.randuri = Cataloage::RanduriBife;
        break;
    case Unealta::Cereri2014:
        r.randuri = GenereazaCereri2014(db, m, o);
        break;
    }
    t.Confirma();
    return r;
}

QStringList MesajeFinale(Unealta u, const Rezultat& r) {
    switch (u) {
    case Unealta::DataStare:
        return {QStringLiteral("A fost modificata Data Stare la %1 cereri").arg(r.randuri)};
    case Unealta::Stare:
        return {QStringLiteral("A fost modifcat Stare = 5 la %1 cereri").arg(r.randuri)};
    case Unealta::Rudenie:
        return {
            QStringLiteral("A fost modificat rudenie de la 3(concubin) la 2(sot/sotie) la %1 cereri").arg(r.randuri),
            QStringLiteral("A fost modificat rudenie de la 4(elev-prg vechi) la 3(elev-prg nou) la %1 cereri")
                .arg(r.randuri2)};
    case Unealta::Acte:
        return {QStringLiteral("Au fost refacute %1 adeverinte.").arg(r.randuri)};
    case Unealta::Bife:
        return {QStringLiteral("Lista bunuri  a fost refacuta.")};
    case Unealta::Cereri2014:
        return {QStringLiteral("Au fost create %1 cereri de modificare cu Data de 1 noiembrie 2014").arg(r.randuri)};
    }
    return {};
}

QString SumarCereri2014(BazaDate& db) {
    std::map<qint64, std::pair<qint64, qint64>> numere; // by status: all, and those of 1 November 2014
    {
        Interogare q(db, QStringLiteral("SELECT Stare, COUNT(*) AS Toate, SUM(CASE WHEN DataStare = ? THEN 1 ELSE 0 "
                                        "END) AS Din2014 FROM Cereri WHERE Stare IS NOT NULL GROUP BY Stare"));
        q.Leaga(Data2014).Executa();
        while (q.Urmator())
            numere[q.Intreg(0)] = {q.Intreg(1), q.Intreg(2)};
    }
    const std::vector<RandDateGen> stari = ListaDateGen(db, TipDateGen::Statut);
    const auto bune = [](qint64 stare) { return stare == 2 || stare == 6 || stare == 7 || stare == 8; };
    QStringList linii;
    qint64 total = 0, totalBune = 0, total2014 = 0;
    for (const RandDateGen& s : stari) {
        const qint64 n = numere.contains(s.DataID) ? numere[s.DataID].first : 0;
        linii << s.Continut + QStringLiteral(": ") + QString::number(n);
        total += n;
        if (bune(s.DataID)) totalBune += n;
    }
    linii << QStringLiteral("--------------------------") << QStringLiteral("Total: ") + QString::number(total)
          << QStringLiteral("Total bune: ") + QString::number(totalBune) << QStringLiteral("Din 1 noiembrie 2014");
    for (const RandDateGen& s : stari) {
        const qint64 n = numere.contains(s.DataID) ? numere[s.DataID].second : 0;
        linii << s.Continut + QStringLiteral(": ") + QString::number(n);
        total2014 += n;
    }
    linii << QStringLiteral("-------------------") << QStringLiteral("Total: ") + QString::number(total2014);
    return linii.join(u'\n');
}

std::optional<Rezultat> Ruleaza(BazaDate& db, Mesaje& m, Unealta u, const Optiuni& o) {
    if (u == Unealta::Bife)
        if (const auto refuz = RefuzBife(o.caleBD)) {
            m.Critic(*refuz);
            return std::nullopt;
        }
    if (u == Unealta::Cereri2014) {
        m.Informatie(SumarCereri2014(db));
        if (!m.Intrebare(QStringLiteral("Merg mai departe?"))) return std::nullopt;
        if (o.luna != Data2014.month() || o.an != Data2014.year()) {
            m.Informatie(QStringLiteral("Seteaza luna si an corect!"));
            return std::nullopt;
        }
        m.Informatie(QStringLiteral("Nr cereri bune (de schimbat): ") + QString::number(Numara(db, u, o)));
    }
    if (!m.Intrebare(IntrebareConfirmare, {}, false)) return std::nullopt;
    const Rezultat r = Aplica(db, m, u, o);
    for (const QString& text : MesajeFinale(u, r))
        m.Informatie(text);
    return r;
}

} // namespace Mentenanta
