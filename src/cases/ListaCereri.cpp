#include "cases/ListaCereri.h"

#include "base/Texte.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"
#include "store/Dialect.h"
#include "store/Sql.h"

#include <QRegularExpression>

namespace {

// A request whose titular is gone still shows, with no name, so that it can be opened and deleted.
// The rows come from `sursa`, which names the requests C; the one parameter of the columns, the
// DateGen list of the states, comes after the source's own.
QString SelectLista(const QString& sursa) {
    return QStringLiteral(
               "SELECT C.CerereID, C.FamilieID, C.NrCerere, C.NrCerere2, C.TipCerere, C.Stare, C.DataCerere, "
               "C.VenitTotal, C.Cuantum, C.NrMembrii, C.NrCopii, M.Nume, M.Prenume, M.CNP, F.NrDosar2, F.Localitate, "
               "F.Strada, F.Nr, F.Sc, F.Ap, G.Continut AS StareText "
               "FROM %1 LEFT JOIN Membrii M ON C.MembruID1 = M.MembruID "
               "LEFT JOIN Familii F ON F.FamilieID = C.FamilieID "
               "LEFT JOIN DateGen G ON G.Tip = ? AND G.DataID = C.Stare")
        .arg(sursa);
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

namespace {

// The WHERE of a filter with its values, and the tables it needs besides the requests.
struct Selectie {
    QStringList conditii;
    QVariantList valori;
    bool dupaText = false; // a code, a name or a number was typed: few rows, found by their own index

    QString Where() const {
        return conditii.isEmpty() ? QString() : QStringLiteral(" WHERE ") + conditii.join(QStringLiteral(" AND "));
    }
};

bool cuTitular(const FiltruCautare& f) {
    return !f.CNP.isEmpty() || !f.Nume.isEmpty() || !f.Prenume.isEmpty();
}

Selectie selectie(const FiltruCautare& f) {
    Selectie s;
    if (!f.CNP.isEmpty()) {
        // A code is digits: the prefix becomes a range that the index on CNP serves.
        static const QRegularExpression cifre(QStringLiteral("^[0-9]+$"));
        if (cifre.match(f.CNP).hasMatch()) {
            QString sus = f.CNP;
            while (sus.endsWith(QLatin1Char('9')))
                sus.chop(1);
            s.conditii << QStringLiteral("M.CNP >= ?");
            s.valori << f.CNP;
            if (!sus.isEmpty()) {
                sus[sus.size() - 1] = QChar(sus.back().unicode() + 1);
                s.conditii << QStringLiteral("M.CNP < ?");
                s.valori << sus;
            }
        } else {
            s.conditii << QStringLiteral("M.CNP LIKE ? ESCAPE '\\'");
            s.valori << PrefixLike(f.CNP);
        }
    }
    // Names are searched in their stored search keys, by prefix, which their indexes serve.
    if (!f.Nume.isEmpty()) {
        s.conditii << QStringLiteral("M.NumeCautare LIKE ? ESCAPE '\\'");
        s.valori << PrefixLike(CheieCautare(f.Nume));
    }
    if (!f.Prenume.isEmpty()) {
        s.conditii << QStringLiteral("M.PrenumeCautare LIKE ? ESCAPE '\\'");
        s.valori << PrefixLike(CheieCautare(f.Prenume));
    }
    if (!f.NrCerere.isEmpty()) {
        s.conditii << QStringLiteral("C.NrCerere = ?");
        s.valori << qint64(Val(f.NrCerere));
    }
    if (!f.Stari.isEmpty()) {
        for (int st : f.Stari)
            s.valori << st;
        s.conditii << QStringLiteral("C.Stare IN (%1)").arg(Sql::Semne(f.Stari.size()));
    }
    if (f.LoadTipCerere != 0) {
        s.conditii << QStringLiteral("C.TipCerere = ?");
        s.valori << f.LoadTipCerere;
    }
    if (!f.Fara.isEmpty()) {
        for (qint64 id : f.Fara)
            s.valori << id;
        s.conditii << QStringLiteral("C.CerereID NOT IN (%1)").arg(Sql::Semne(f.Fara.size()));
    }
    s.dupaText = cuTitular(f) || !f.NrCerere.isEmpty();
    return s;
}

// The fields a column orders by; the key breaks ties, so that a position always names one row.
QStringList cheiOrdine(ListaCereri::Coloana c) {
    switch (c) {
    case ListaCereri::ID:
        return {};
    case ListaCereri::NrCerere:
        return {QStringLiteral("C.NrCerere")};
    case ListaCereri::Tip:
        return {QStringLiteral("C.TipCerere")};
    case ListaCereri::Stare:
        return {QStringLiteral("C.Stare")};
    case ListaCereri::Data:
        return {QStringLiteral("C.DataCerere")};
    case ListaCereri::Solicitant:
        return {QStringLiteral("M.NumeCautare"), QStringLiteral("M.PrenumeCautare")};
    case ListaCereri::CNP:
        return {QStringLiteral("M.CNP")};
    case ListaCereri::Adresa:
        return {QStringLiteral("F.Localitate"), QStringLiteral("F.Strada"), QStringLiteral("F.Nr"),
                QStringLiteral("F.Sc"), QStringLiteral("F.Ap")};
    case ListaCereri::VenitTotal:
        return {QStringLiteral("C.VenitTotal")};
    case ListaCereri::Cuantum:
        return {QStringLiteral("C.Cuantum")};
    case ListaCereri::NrMembrii:
        return {QStringLiteral("C.NrMembrii")};
    case ListaCereri::NrCopii:
        return {QStringLiteral("C.NrCopii")};
    case ListaCereri::NrColoane:
        break;
    }
    return {};
}

// ORDER BY of a column, from the end when `invers`. After a typed search on SQLite the first field
// gets a unary "+", which keeps the planner from walking the whole table in that field's index to
// spare a sort: it starts from the index of what the clerk typed, and the few rows found are sorted.
QString orderBy(const FiltruCautare& f, bool invers, bool sqlite, bool dupaText) {
    QStringList chei = cheiOrdine(f.Ordine);
    chei << QStringLiteral("C.CerereID");
    if (sqlite && dupaText) chei[0].prepend(QLatin1Char('+'));
    if (invers)
        for (QString& c : chei)
            c += QStringLiteral(" DESC");
    return QStringLiteral(" ORDER BY ") + chei.join(QStringLiteral(", "));
}

// The joins that the filter and the order need before the rows are chosen.
QString tabeleSelectie(const FiltruCautare& f) {
    QString t = QStringLiteral("Cereri C");
    // A search by the titular joins it plainly: the planner then starts from the index of what was
    // typed, which it doesn't do from the outer side of a LEFT JOIN.
    if (cuTitular(f))
        t += QStringLiteral(" INNER JOIN Membrii M ON C.MembruID1 = M.MembruID");
    else if (f.Ordine == ListaCereri::Solicitant || f.Ordine == ListaCereri::CNP)
        t += QStringLiteral(" LEFT JOIN Membrii M ON C.MembruID1 = M.MembruID");
    if (f.Ordine == ListaCereri::Adresa) t += QStringLiteral(" LEFT JOIN Familii F ON F.FamilieID = C.FamilieID");
    return t;
}

} // namespace

qint64 ListaCereri::Numara(BazaDate& db, const FiltruCautare& f) {
    const Selectie s = selectie(f);
    FiltruCautare faraOrdine = f;
    faraOrdine.Ordine = ListaCereri::ID;
    Interogare q(db, QStringLiteral("SELECT COUNT(*) FROM ") + tabeleSelectie(faraOrdine) + s.Where());
    for (const QVariant& v : s.valori)
        q.Leaga(v);
    q.Exista();
    return q.Intreg(0);
}

std::vector<RandCerere> ListaCereri::Pagina(BazaDate& db, const FiltruCautare& f, qint64 deLa, qint64 cate,
                                            qint64 total) {
    std::vector<RandCerere> randuri;
    if (deLa < 0 || cate <= 0 || (total >= 0 && deLa >= total)) return randuri;
    const Selectie s = selectie(f);
    const bool sqlite = db.dialect().EsteSQLite();
    // The keys before a deep position are stepped over one by one, so the shorter way is taken.
    const bool invers = total >= 0 && deLa > total / 2;
    qint64 limita = cate, salt = deLa;
    if (invers) {
        limita = std::min(cate, total - deLa);
        salt = total - deLa - limita;
    }
    const QString chei = QStringLiteral("SELECT C.CerereID FROM ") + tabeleSelectie(f) + s.Where() +
                         orderBy(f, invers, sqlite, s.dupaText) + QStringLiteral(" LIMIT ? OFFSET ?");
    Interogare q(db, SelectLista(QStringLiteral("(%1) P INNER JOIN Cereri C ON C.CerereID = P.CerereID").arg(chei)) +
                         orderBy(f, false, false, false));
    for (const QVariant& v : s.valori)
        q.Leaga(v);
    q.Leaga(limita).Leaga(salt).Leaga(TipDateGen::Statut);
    q.Executa();
    randuri.reserve(size_t(std::min<qint64>(limita, 10000)));
    while (q.Urmator())
        randuri.push_back(randDin(q));
    return randuri;
}

RandCerere ListaCereri::Citeste(BazaDate& db, qint64 cerereID) {
    Interogare q(db, SelectLista(QStringLiteral("Cereri C")) + QStringLiteral(" WHERE C.CerereID = ?"));
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
