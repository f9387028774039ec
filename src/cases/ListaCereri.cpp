#include "cases/ListaCereri.h"

#include "cases/Istoric.h"
#include "base/PaginiCitite.h"
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

// `prefixPlus`: on SQLite, a unary "+" before the status and the kind keeps their indexes out of a
// page's read. A status is shared by a large part of the office, and sorting all its requests to
// show a screen costs more than walking the order's index and skipping the others; after a typed
// search, it leaves the planner the index of what was typed. A count wants the status index.
Selectie selectie(const FiltruCautare& f, bool prefixPlus = false) {
    Selectie s;
    const QString plus = prefixPlus ? QStringLiteral("+") : QString();
    if (!f.CNP.isEmpty()) {
        // A code is digits: the prefix becomes a range that the index on CNP serves.
        static const QRegularExpression cifre(QStringLiteral("^[0-9]+$"));
        if (cifre.match(f.CNP).hasMatch()) {
            QString sus = f.CNP;
            while (sus.endsWith(QLatin1Char('9')))
                sus.chop(1);
            s.conditii << QStringLiteral("C.TitularCNP >= ?");
            s.valori << f.CNP;
            if (!sus.isEmpty()) {
                sus[sus.size() - 1] = QChar(sus.back().unicode() + 1);
                s.conditii << QStringLiteral("C.TitularCNP < ?");
                s.valori << sus;
            }
        } else {
            s.conditii << QStringLiteral("C.TitularCNP LIKE ? ESCAPE '\\'");
            s.valori << PrefixLike(f.CNP);
        }
    }
    // Names are searched in the titular's search keys that the request keeps, by prefix, which
    // their indexes serve.
    if (!f.Nume.isEmpty()) {
        s.conditii << QStringLiteral("C.TitularNume LIKE ? ESCAPE '\\'");
        s.valori << PrefixLike(CheieCautare(f.Nume));
    }
    if (!f.Prenume.isEmpty()) {
        s.conditii << QStringLiteral("C.TitularPrenume LIKE ? ESCAPE '\\'");
        s.valori << PrefixLike(CheieCautare(f.Prenume));
    }
    if (!f.NrCerere.isEmpty()) {
        s.conditii << QStringLiteral("C.NrCerere = ?");
        s.valori << qint64(Val(f.NrCerere));
    }
    if (!f.Stari.isEmpty()) {
        for (int st : f.Stari)
            s.valori << st;
        s.conditii << QStringLiteral("%1C.Stare IN (%2)").arg(plus, Sql::Semne(f.Stari.size()));
    }
    if (f.LoadTipCerere != 0) {
        s.conditii << plus + QStringLiteral("C.TipCerere = ?");
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
        return {QStringLiteral("C.TitularNume"), QStringLiteral("C.TitularPrenume")};
    case ListaCereri::CNP:
        return {QStringLiteral("C.TitularCNP"), QStringLiteral("C.NrCerere")};
    case ListaCereri::Adresa:
        return {QStringLiteral("C.AdresaOrdine")};
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

} // namespace

qint64 ListaCereri::Numara(BazaDate& db, const FiltruCautare& f) {
    const Selectie s = selectie(f);
    Interogare q(db, QStringLiteral("SELECT COUNT(*) FROM Cereri C") + s.Where());
    for (const QVariant& v : s.valori)
        q.Leaga(v);
    q.Exista();
    return q.Intreg(0);
}

std::vector<RandCerere> ListaCereri::Pagina(BazaDate& db, const FiltruCautare& f, qint64 deLa, qint64 cate,
                                            qint64 total) {
    std::vector<RandCerere> randuri;
    if (deLa < 0 || cate <= 0 || (total >= 0 && deLa >= total)) return randuri;
    const bool sqlite = db.dialect().EsteSQLite();
    const Selectie s = selectie(f, sqlite);
    const auto [invers, limita, salt] = Drum(deLa, cate, total);
    const QString chei = QStringLiteral("SELECT C.CerereID FROM Cereri C") + s.Where() +
                         orderBy(f, invers, sqlite, s.dupaText) + QStringLiteral(" LIMIT ? OFFSET ?");
    // CROSS JOIN: SQLite takes the joined tables in the order written, so the page's keys lead; with
    // the limit bound, it would otherwise guess the page large and walk the whole table into it.
    Interogare q(db, SelectLista(QStringLiteral("(%1) P CROSS JOIN Cereri C").arg(chei)) +
                         QStringLiteral(" WHERE C.CerereID = P.CerereID") + orderBy(f, false, false, false));
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
    Istoric::StergereCerere(db, cerereID);

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
