#include "reference/DateReferinta.h"

#include "base/Texte.h"
#include "store/BazaDate.h"
#include "store/Schema.h"
#include "store/Sql.h"

#include <algorithm>

namespace DateReferinta {

namespace {

QString camp(int i) {
    return QString::fromLatin1(CampuriPrimarie[size_t(i)]);
}

// The keys of the streets named `denumire` as AceeasiDenumire compares. The comparison is done
// here and not in SQL, whose lower() folds only ASCII letters on SQLite and keeps the marks on both
// engines; the list is short.
std::vector<qint64> StraziNumite(BazaDate& db, const QString& denumire) {
    Interogare q(db, QStringLiteral("SELECT StradaID, Denumire FROM Strazi"));
    q.Executa();
    std::vector<qint64> r;
    while (q.Urmator())
        if (AceeasiDenumire(q.Text(QStringLiteral("Denumire")), denumire))
            r.push_back(q.Intreg(QStringLiteral("StradaID")));
    return r;
}

// Refused when a street of that name exists whose key is not `pastrata`.
bool AltaStradaNumita(BazaDate& db, const QString& denumire, std::optional<qint64> pastrata) {
    for (qint64 id : StraziNumite(db, denumire))
        if (!pastrata || id != *pastrata) return true;
    return false;
}

// The names of a small table, in the order of its key: the delivered lists are in alphabetical
// order, which the two engines would not sort alike for names with diacritics.
QStringList Denumiri(BazaDate& db, const QString& sql) {
    Interogare q(db, sql);
    q.Executa();
    QStringList r;
    while (q.Urmator())
        r << q.Text(QStringLiteral("Denumire"));
    return r;
}

} // namespace

bool AceeasiDenumire(const QString& a, const QString& b) {
    return CheieCautare(a) == CheieCautare(b);
}

// ---- The town hall ----

int LatimeCampPrimarie(int i) {
    const CampSchema* c = Schema::Camp(QStringLiteral("DatePrimarie"), camp(i));
    return c ? c->marime : 0;
}

const std::optional<QString>& RandPrimarie::Text(std::string_view nume) const {
    const auto it = std::find(CampuriPrimarie.begin(), CampuriPrimarie.end(), nume);
    return text.at(size_t(it - CampuriPrimarie.begin()));
}

std::optional<RandPrimarie> CitesteRandPrimarie(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT * FROM DatePrimarie"));
    if (!q.Exista()) return std::nullopt;
    RandPrimarie r;
    for (int i = 0; i < NrCampuriPrimarie; ++i)
        if (!q.EsteNul(camp(i))) r.text[size_t(i)] = q.Text(camp(i));
    if (const QString tip = QStringLiteral("TipLocalitate"); !q.EsteNul(tip)) r.TipLocalitate = q.Intreg(tip);
    return r;
}

DatePrimarie CitesteDatePrimarie(BazaDate& db) {
    DatePrimarie d;
    const auto r = CitesteRandPrimarie(db);
    if (!r) return d;
    for (size_t i = 0; i < d.text.size(); ++i)
        d.text[i] = r->text[i].value_or(QString());
    d.TipLocalitate = int(r->TipLocalitate.value_or(0));
    return d;
}

std::optional<Refuz> VerificaDatePrimarie(const DatePrimarie& d) {
    for (int i = 0; i < NrCampuriPrimarie; ++i)
        if (d.text[size_t(i)].trimmed().isEmpty()) return Refuz{QStringLiteral("Toate campurile sunt obligatorii!"), i};
    if (d.TipLocalitate < 1 || d.TipLocalitate > 3)
        return Refuz{QStringLiteral("Selectati Tip Localitate din lista"), IndexTipLocalitate};
    return std::nullopt;
}

std::optional<QString> SalveazaDatePrimarie(BazaDate& db, const DatePrimarie& d) {
    Tranzactie t(db);
    Interogare numar(db, QStringLiteral("SELECT COUNT(*) FROM DatePrimarie"));
    numar.Exista();
    const qint64 randuri = numar.Intreg(0);
    if (randuri > 1) return QStringLiteral("Tabela Date Primarie contine mai mult de un rand. Sunati la: 0700111222!");

    QStringList campuri;
    for (int i = 0; i < NrCampuriPrimarie; ++i)
        campuri << camp(i);
    campuri << QStringLiteral("TipLocalitate");
    const QString tabela = QStringLiteral("DatePrimarie");
    // The one row, whatever its key.
    Interogare scrie(db, randuri == 0 ? Sql::Insert(tabela, campuri) : Sql::Update(tabela, campuri));
    for (const QString& v : d.text)
        scrie.Leaga(v);
    scrie.Leaga(d.TipLocalitate).Executa();
    t.Confirma();
    return std::nullopt;
}

QStringList Judete(BazaDate& db) {
    return Denumiri(db, QStringLiteral("SELECT Denumire FROM Judete ORDER BY JudetID"));
}

QStringList Localitati(BazaDate& db) {
    return Denumiri(db, QStringLiteral("SELECT Denumire FROM Localitati ORDER BY LocalitateID"));
}

// ---- Streets and villages ----

namespace {
Strada StradaDin(const Interogare& q) {
    return {q.Intreg(QStringLiteral("StradaID")), q.Text(QStringLiteral("Denumire")),
            q.Text(QStringLiteral("OfPostal")), q.Text(QStringLiteral("CodPostal"))};
}
} // namespace

std::vector<Strada> Strazi(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT StradaID, Denumire, OfPostal, CodPostal FROM Strazi ORDER BY StradaID"));
    q.Executa();
    std::vector<Strada> r;
    while (q.Urmator())
        r.push_back(StradaDin(q));
    return r;
}

std::optional<Strada> CitesteStrada(BazaDate& db, qint64 stradaID) {
    Interogare q(db, QStringLiteral("SELECT StradaID, Denumire, OfPostal, CodPostal FROM Strazi WHERE StradaID = ?"));
    q.Leaga(stradaID);
    if (!q.Exista()) return std::nullopt;
    return StradaDin(q);
}

std::optional<QString> VerificaStrada(BazaDate& db, const QString& denumire, std::optional<qint64> editata) {
    if (denumire.trimmed().isEmpty()) return QStringLiteral("Nu ati completat denumirea strazii / satului");
    if (AltaStradaNumita(db, denumire, editata)) return QStringLiteral("Aceasta strada / sat exista deja");
    return std::nullopt;
}

bool StradaFolosita(BazaDate& db, const QString& denumire) {
    Interogare q(db, QStringLiteral("SELECT DISTINCT Strada FROM Familii WHERE Strada IS NOT NULL"));
    q.Executa();
    while (q.Urmator())
        if (AceeasiDenumire(q.Text(QStringLiteral("Strada")), denumire)) return true;
    return false;
}

Strada AdaugaStrada(BazaDate& db, Strada s) {
    Tranzactie t(db);
    s.StradaID = db.CheieNoua(QStringLiteral("Strazi"), QStringLiteral("StradaID"));
    Interogare(db, QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, OfPostal, CodPostal) VALUES (?, ?, ?, ?)"))
        .Leaga(s.StradaID)
        .Leaga(s.Denumire)
        .Leaga(s.OfPostal)
        .Leaga(s.CodPostal)
        .Executa();
    t.Confirma();
    return s;
}

bool ModificaStrada(BazaDate& db, const Strada& s) {
    Interogare q(db, QStringLiteral("UPDATE Strazi SET Denumire = ?, OfPostal = ?, CodPostal = ? WHERE StradaID = ?"));
    q.Leaga(s.Denumire).Leaga(s.OfPostal).Leaga(s.CodPostal).Leaga(s.StradaID).Executa();
    return q.RanduriAfectate() > 0;
}

bool StergeStrada(BazaDate& db, qint64 stradaID) {
    Interogare q(db, QStringLiteral("DELETE FROM Strazi WHERE StradaID = ?"));
    q.Leaga(stradaID).Executa();
    return q.RanduriAfectate() > 0;
}

// ---- Reasons ----

std::vector<Motiv> Motive(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT MotivID, Denumire FROM Motive ORDER BY MotivID"));
    q.Executa();
    std::vector<Motiv> r;
    while (q.Urmator())
        r.push_back({q.Intreg(QStringLiteral("MotivID")), q.Text(QStringLiteral("Denumire"))});
    return r;
}

std::optional<Motiv> CitesteMotiv(BazaDate& db, qint64 motivID) {
    Interogare q(db, QStringLiteral("SELECT MotivID, Denumire FROM Motive WHERE MotivID = ?"));
    q.Leaga(motivID);
    if (!q.Exista()) return std::nullopt;
    return Motiv{q.Intreg(QStringLiteral("MotivID")), q.Text(QStringLiteral("Denumire"))};
}

std::optional<QString> VerificaMotiv(BazaDate& db, const QString& denumire, std::optional<qint64> editat) {
    if (denumire.trimmed().isEmpty()) return QStringLiteral("Nu ati completat denumirea Motivului");
    if (AltaStradaNumita(db, denumire, editat)) return QStringLiteral("Acest Motiv exista deja");
    return std::nullopt;
}

Motiv AdaugaMotiv(BazaDate& db, Motiv m) {
    Tranzactie t(db);
    m.MotivID = db.CheieNoua(QStringLiteral("Motive"), QStringLiteral("MotivID"));
    Interogare(db, QStringLiteral("INSERT INTO Motive (MotivID, Denumire) VALUES (?, ?)"))
        .Leaga(m.MotivID)
        .Leaga(m.Denumire)
        .Executa();
    t.Confirma();
    return m;
}

bool ModificaMotiv(BazaDate& db, const Motiv& m) {
    Interogare q(db, QStringLiteral("UPDATE Motive SET Denumire = ? WHERE MotivID = ?"));
    q.Leaga(m.Denumire).Leaga(m.MotivID).Executa();
    return q.RanduriAfectate() > 0;
}

bool StergeMotiv(BazaDate& db, qint64 motivID) {
    Interogare q(db, QStringLiteral("DELETE FROM Motive WHERE MotivID = ?"));
    q.Leaga(motivID).Executa();
    return q.RanduriAfectate() > 0;
}

} // namespace DateReferinta
