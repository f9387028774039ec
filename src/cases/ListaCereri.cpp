#include "cases/ListaCereri.h"

#include "base/Texte.h"
#include "store/Dialect.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"
#include "store/Sql.h"

#include <QRegularExpression>

namespace {

// A request whose titular is gone still shows, with no name, so that it can be opened and deleted.
// A search by the titular's code or names finds no such request anyway, and joins the titular
// plainly: the planner then starts from the index of what was typed, which it doesn't do from the
// outer side of a LEFT JOIN. Its one parameter, the DateGen list of the states, comes before the
// caller's own.
QString SelectLista(bool dupaTitular = false) {
    return QStringLiteral(
               "SELECT C.CerereID, C.FamilieID, C.NrCerere, C.NrCerere2, C.TipCerere, C.Stare, C.DataCerere, "
               "C.VenitTotal, C.Cuantum, C.NrMembrii, C.NrCopii, M.Nume, M.Prenume, M.CNP, F.NrDosar2, F.Localitate, "
               "F.Strada, F.Nr, F.Sc, F.Ap, G.Continut AS StareText "
               "FROM Cereri C %1 JOIN Membrii M ON C.MembruID1 = M.MembruID "
               "LEFT JOIN Familii F ON F.FamilieID = C.FamilieID "
               "LEFT JOIN DateGen G ON G.Tip = ? AND G.DataID = C.Stare")
        .arg(dupaTitular ? QStringLiteral("INNER") : QStringLiteral("LEFT"));
}

RandCerere randDin(const Interogare& q) {
    RandCerere r;
    r.CerereID = q.Intreg(0);
    r.FamilieID = q.Intreg(1);
    const QVariant nr = q.Valoare(2);
    r.NrCerereNumar = nr.toLongLong();
    r.NrCerere = (nr.isNull() ? QString() : QString::number(r.NrCerereNumar)) + QLatin1Char(' ') +
                 q.Valoare(14).toString() + QLatin1Char(' ') + q.Valoare(3).toString();
    const qint64 tip = q.Intreg(4);
    r.Tip = tip == 1 ? QStringLiteral("Cu sot") : tip == 2 ? QStringLiteral("Mono") : QString();
    r.Stare = int(q.Intreg(5));
    r.StareText = q.Valoare(20).toString();
    const QVariant data = q.Valoare(6);
    r.DataCerere =
        data.typeId() == QMetaType::QDate ? data.toDate() : QDate::fromString(data.toString().left(10), Qt::ISODate);
    r.VenitTotal = Bani::DinVariant(q.Valoare(7));
    r.Cuantum = Bani::DinVariant(q.Valoare(8));
    r.NrMembrii = q.Intreg(9);
    r.NrCopii = q.Intreg(10);
    if (!q.Valoare(11).isNull() || !q.Valoare(12).isNull())
        r.Solicitant = q.Valoare(11).toString() + QLatin1Char(' ') + q.Valoare(12).toString();
    r.CNP = q.Valoare(13).toString();
    QString adresa = q.Valoare(15).toString();
    const std::pair<int, const char*> parti[] = {{16, ", "}, {17, ", nr. "}, {18, ", sc. "}, {19, ", ap. "}};
    for (const auto& [i, eticheta] : parti) {
        const QString v = q.Valoare(i).toString();
        if (!v.isEmpty()) adresa += QLatin1String(eticheta) + v;
    }
    r.Adresa = adresa;
    return r;
}

} // namespace

std::vector<RandCerere> ListaCereri::Cauta(BazaDate& db, const FiltruCautare& f) {
    QStringList conditii;
    QVariantList valori;
    if (!f.CNP.isEmpty()) {
        // A code is digits: the prefix becomes a range that the index on CNP serves.
        static const QRegularExpression cifre(QStringLiteral("^[0-9]+$"));
        if (cifre.match(f.CNP).hasMatch()) {
            QString sus = f.CNP;
            while (sus.endsWith(QLatin1Char('9')))
                sus.chop(1);
            conditii << QStringLiteral("M.CNP >= ?");
            valori << f.CNP;
            if (!sus.isEmpty()) {
                sus[sus.size() - 1] = QChar(sus.back().unicode() + 1);
                conditii << QStringLiteral("M.CNP < ?");
                valori << sus;
            }
        } else {
            conditii << QStringLiteral("M.CNP LIKE ? ESCAPE '\\'");
            valori << PrefixLike(f.CNP);
        }
    }
    // Names are searched in their stored search keys, by prefix, which their indexes serve.
    if (!f.Nume.isEmpty()) {
        conditii << QStringLiteral("M.NumeCautare LIKE ? ESCAPE '\\'");
        valori << PrefixLike(CheieCautare(f.Nume));
    }
    if (!f.Prenume.isEmpty()) {
        conditii << QStringLiteral("M.PrenumeCautare LIKE ? ESCAPE '\\'");
        valori << PrefixLike(CheieCautare(f.Prenume));
    }
    if (!f.NrCerere.isEmpty()) {
        conditii << QStringLiteral("C.NrCerere = ?");
        valori << qint64(Val(f.NrCerere));
    }
    if (!f.Stari.isEmpty()) {
        for (int s : f.Stari)
            valori << s;
        conditii << QStringLiteral("C.Stare IN (%1)").arg(Sql::Semne(f.Stari.size()));
    }
    if (f.LoadTipCerere != 0) {
        conditii << QStringLiteral("C.TipCerere = ?");
        valori << f.LoadTipCerere;
    }
    QString sql = SelectLista(!f.CNP.isEmpty() || !f.Nume.isEmpty() || !f.Prenume.isEmpty());
    if (!conditii.isEmpty()) sql += QStringLiteral(" WHERE ") + conditii.join(QStringLiteral(" AND "));
    // "+ 0" keeps the planner from walking the whole table in NrCerere order to spare a sort,
    // so that a search starts from the index of what the clerk typed.
    sql += f.OrdineNumerica ? QStringLiteral(" ORDER BY C.NrCerere + 0, C.CerereID")
                            : QStringLiteral(" ORDER BY C.CerereID");
    Interogare q(db, sql);
    q.Leaga(TipDateGen::Statut);
    for (const QVariant& v : valori)
        q.Leaga(v);
    q.Executa();
    std::vector<RandCerere> randuri;
    while (q.Urmator())
        randuri.push_back(randDin(q));
    return randuri;
}

RandCerere ListaCereri::Citeste(BazaDate& db, qint64 cerereID) {
    Interogare q(db, SelectLista() + QStringLiteral(" WHERE C.CerereID = ?"));
    q.Leaga(TipDateGen::Statut).Leaga(cerereID);
    return q.Exista() ? randDin(q) : RandCerere{};
}

namespace {
std::vector<ElementLista> elemente(BazaDate& db, const QString& sql) {
    Interogare q(db, sql);
    q.Executa();
    std::vector<ElementLista> r;
    while (q.Urmator())
        r.push_back({q.Intreg(0), q.Valoare(1).toString()});
    return r;
}
} // namespace

std::vector<ElementLista> ListaCereri::Strazi(BazaDate& db) {
    return elemente(db, QStringLiteral("SELECT StradaID, Denumire FROM Strazi ORDER BY Denumire"));
}

std::vector<ElementLista> ListaCereri::Stari(BazaDate& db) {
    std::vector<ElementLista> r;
    for (const RandDateGen& e : ListaDateGen(db, TipDateGen::Statut))
        r.push_back({e.DataID, e.Continut});
    return r;
}

QString ListaCereri::TextRezultat(qsizetype n) {
    if (n == 0) return QStringLiteral(" Nu exista nici o cerere");
    if (n == 1) return QStringLiteral(" o cerere");
    return QStringLiteral("%1 cereri").arg(n);
}

QString ListaCereri::DenumirePrimarie(BazaDate& db, bool* exista) {
    Interogare q(db, QStringLiteral("SELECT Denumire FROM DatePrimarie"));
    const bool gasit = q.Exista();
    if (exista) *exista = gasit;
    return gasit ? q.Text(QStringLiteral("Denumire")) : QString();
}

void ListaCereri::Sterge(BazaDate& db, qint64 cerereID) {
    Tranzactie t(db);
    Interogare cerere(db, QStringLiteral("SELECT FamilieID FROM Cereri WHERE CerereID = ?"));
    cerere.Leaga(cerereID);
    if (!cerere.Exista()) {
        t.Confirma();
        return;
    }
    const QVariant familie = cerere.Valoare(0);
    cerere.query().finish();

    // A person who is on another request stays.
    Interogare(db, QStringLiteral(
                       "DELETE FROM Membrii WHERE MembruID IN (SELECT MembruID FROM CereriMembrii WHERE CerereID = ?) "
                       "AND NOT EXISTS (SELECT 1 FROM CereriMembrii X WHERE X.MembruID = Membrii.MembruID "
                       "AND X.CerereID <> ?)"))
        .Leaga(cerereID)
        .Leaga(cerereID)
        .Executa();

    // The request itself may already be gone with its titular: only the other requests count.
    Interogare alte(db,
                    QStringLiteral("SELECT COUNT(CerereID) AS Nr FROM Cereri WHERE FamilieID = ? AND CerereID <> ?"));
    alte.Leaga(familie).Leaga(cerereID).Exista();
    // By the request's family key, never by its own: in an imported database the two numbers may
    // differ, and the family that bears the request's number is another household's.
    if (alte.Intreg(QStringLiteral("Nr")) == 0)
        Interogare(db, QStringLiteral("DELETE FROM Familii WHERE FamilieID = ?")).Leaga(familie).Executa();

    // When both the titular and the family are shared, no cascade reaches the request itself.
    Interogare(db, QStringLiteral("DELETE FROM Cereri WHERE CerereID = ?")).Leaga(cerereID).Executa();
    t.Confirma();
}
