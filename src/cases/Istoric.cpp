#include "cases/Istoric.h"

#include "base/Ceas.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "base/Utilizator.h"
#include "store/BazaDate.h"
#include "store/Schema.h"

#include <algorithm>
#include <optional>

namespace {

const QString Tabela = QStringLiteral("IstoricCereri");
const QString FormatStocat = QStringLiteral("yyyy-MM-dd HH:mm:ss");

QDate DataDin(const QVariant& v) {
    if (v.typeId() == QMetaType::QDate) return v.toDate();
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
    return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

QVariant NumarSauNul(const QVariant& v) {
    return v.isNull() || !v.isValid() ? QVariant() : QVariant(v.toLongLong());
}

QString Gol(const QString& s) {
    return s.isEmpty() ? QStringLiteral("(gol)") : s;
}

// The columns a list reads.
const QString CampuriLista = QStringLiteral("SELECT DataOra, DataTranzactie, Utilizator, Tranzactie, MotivTranzactie, "
                                            "Detalii, NrCerere FROM IstoricCereri WHERE ");
// The order of writing; rows that older programs wrote have no key and come last, by day.
const QString OrdineLista = QStringLiteral(" ORDER BY IstoricID DESC NULLS LAST, DataTranzactie DESC NULLS LAST");

std::vector<RandIstoric> Citeste(Interogare& q) {
    std::vector<RandIstoric> r;
    q.Executa();
    while (q.Urmator()) {
        RandIstoric x;
        const QDateTime ora = QDateTime::fromString(q.Valoare(0).toString(), FormatStocat);
        x.DataOra = ora.isValid() ? ora.toString(QStringLiteral("dd.MM.yyyy HH:mm:ss"))
                                  : FormatData(q.Data(QStringLiteral("DataTranzactie")));
        x.Utilizator = q.Valoare(2).toString();
        x.Fel = int(q.Intreg(3));
        x.Motiv = q.Valoare(4).toString();
        x.Detalii = q.Valoare(5).toString();
        x.NrCerere = NumarSauNul(q.Valoare(6));
        r.push_back(std::move(x));
    }
    return r;
}

} // namespace

QString Istoric::TextValoare(const QString& tabela, const QString& camp, const QVariant& v) {
    if (!v.isValid() || v.isNull()) return {};
    const CampSchema* c = Schema::Camp(tabela, camp);
    switch (c ? c->tip : TipCamp::Text) {
    case TipCamp::Cheie:
    case TipCamp::Byte:
    case TipCamp::Integer:
    case TipCamp::Long:
        return QString::number(v.toLongLong());
    case TipCamp::Currency:
    case TipCamp::Zecimal:
        return FormatSuma(v.metaType() == QMetaType::fromType<Bani>() ? v.value<Bani>() : Bani::DinVariant(v));
    case TipCamp::Single:
        // Six digits: what a single-precision field keeps, whichever way it comes back.
        return QString::number(v.toDouble(), 'g', 6);
    case TipCamp::Data:
        return FormatData(DataDin(v));
    case TipCamp::Boolean:
        return v.toLongLong() != 0 ? QStringLiteral("Da") : QStringLiteral("Nu");
    case TipCamp::Text:
    case TipCamp::Memo:
        break;
    }
    return v.toString();
}

std::vector<Schimbare> Istoric::Compara(const QString& tabela, const Sql::Rand& nou, const QVariantList& vechi) {
    std::vector<Schimbare> r;
    for (qsizetype i = 0; i < qsizetype(nou.size()); ++i) {
        const auto& [camp, valoare] = nou[size_t(i)];
        Schimbare s{camp, i < vechi.size() ? TextValoare(tabela, camp, vechi[i]) : QString(),
                    TextValoare(tabela, camp, valoare)};
        if (s.Vechi != s.Nou) r.push_back(std::move(s));
    }
    return r;
}

std::vector<Schimbare> Istoric::Diferente(BazaDate& db, const QString& tabela, const QString& cheie, qint64 id,
                                          const Sql::Rand& nou) {
    const QStringList campuri = Sql::Campuri(nou);
    Interogare q(
        db, QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?").arg(campuri.join(QStringLiteral(", ")), tabela, cheie));
    q.Leaga(id);
    QVariantList vechi;
    if (q.Exista())
        for (int i = 0; i < campuri.size(); ++i)
            vechi << q.Valoare(i);
    return Compara(tabela, nou, vechi);
}

std::vector<PersoanaIstoric> Istoric::Persoane(BazaDate& db, qint64 cerereID) {
    Interogare q(db, QStringLiteral("SELECT CM.MembruID, M.Nume, M.Prenume FROM CereriMembrii CM "
                                    "LEFT JOIN Membrii M ON M.MembruID = CM.MembruID WHERE CM.CerereID = ? "
                                    "ORDER BY CM.MembruID"));
    q.Leaga(cerereID).Executa();
    std::vector<PersoanaIstoric> r;
    while (q.Urmator())
        r.push_back(
            {q.Intreg(0), QStringLiteral("%1 %2").arg(q.Valoare(1).toString(), q.Valoare(2).toString()).trimmed()});
    return r;
}

std::vector<Schimbare> Istoric::ComparaPersoane(const std::vector<PersoanaIstoric>& vechi,
                                                const std::vector<PersoanaIstoric>& noi) {
    const QString camp = QStringLiteral("Persoana");
    std::vector<Schimbare> r;
    auto gaseste = [](const std::vector<PersoanaIstoric>& l, qint64 id) {
        return std::find_if(l.begin(), l.end(), [id](const PersoanaIstoric& p) { return p.MembruID == id; });
    };
    for (const PersoanaIstoric& p : noi) {
        const auto v = gaseste(vechi, p.MembruID);
        if (v == vechi.end())
            r.push_back({camp, {}, p.Nume});
        else if (v->Nume != p.Nume)
            r.push_back({camp, v->Nume, p.Nume});
    }
    for (const PersoanaIstoric& p : vechi)
        if (gaseste(noi, p.MembruID) == noi.end()) r.push_back({camp, p.Nume, {}});
    return r;
}

QString Istoric::TextSchimbari(const std::vector<Schimbare>& s, FelSchimbare fel) {
    QStringList parti;
    for (const Schimbare& x : s)
        parti << (fel == FelSchimbare::Adaugare ? QStringLiteral("%1: %2").arg(x.Camp, Gol(x.Nou))
                                                : QStringLiteral("%1: %2 -> %3").arg(x.Camp, Gol(x.Vechi), Gol(x.Nou)));
    return parti.join(QStringLiteral("; "));
}

void Istoric::Scrie(BazaDate& db, const IntrareIstoric& i) {
    Tranzactie t(db);
    IntrareIstoric cuNumar = i;
    cuNumar.NrCerere = NumarSauNul(i.NrCerere);
    if (cuNumar.NrCerere.isNull() && i.CerereID > 0) {
        Interogare q(db, QStringLiteral("SELECT NrCerere FROM Cereri WHERE CerereID = ?"));
        q.Leaga(i.CerereID);
        if (q.Exista()) cuNumar.NrCerere = NumarSauNul(q.Valoare(0));
    }
    ScrieLot(db, {cuNumar});
    t.Confirma();
}

void Istoric::ScrieLot(BazaDate& db, const std::vector<IntrareIstoric>& randuri) {
    if (randuri.empty()) return;
    const QStringList campuri = {
        QStringLiteral("IstoricID"),  QStringLiteral("CerereID"),        QStringLiteral("NrCerere"),
        QStringLiteral("Tranzactie"), QStringLiteral("DataTranzactie"),  QStringLiteral("DataOra"),
        QStringLiteral("Utilizator"), QStringLiteral("MotivTranzactie"), QStringLiteral("Detalii")};
    const auto insert = [&](size_t n) {
        QStringList valori;
        for (size_t k = 0; k < n; ++k)
            valori << QStringLiteral("(%1)").arg(Sql::Semne(campuri.size()));
        return QStringLiteral("INSERT INTO IstoricCereri (%1) VALUES %2")
            .arg(campuri.join(QStringLiteral(", ")), valori.join(QStringLiteral(", ")));
    };
    constexpr size_t PeLot = 100;
    Tranzactie t(db);
    const QDateTime acum = Ceas::Acum();
    const QString ora = acum.toString(FormatStocat);
    const QString utilizator = NumeUtilizator().left(50);
    qint64 cheie = db.CheieNoua(Tabela, QStringLiteral("IstoricID"));
    std::optional<Interogare> lot;
    for (size_t i = 0; i < randuri.size(); i += PeLot) {
        const size_t n = std::min(PeLot, randuri.size() - i);
        if (n < PeLot || !lot) lot.emplace(db, insert(n));
        for (size_t k = i; k < i + n; ++k) {
            const IntrareIstoric& r = randuri[k];
            lot->Leaga(cheie++)
                .Leaga(r.CerereID > 0 ? QVariant(r.CerereID) : QVariant())
                .Leaga(NumarSauNul(r.NrCerere))
                .Leaga(r.Fel)
                .Leaga(acum.date())
                .Leaga(ora)
                .Leaga(utilizator)
                .Leaga(r.Motiv.left(255))
                .Leaga(r.Detalii);
        }
        lot->Executa();
    }
    t.Confirma();
}

void Istoric::ScrieSchimbari(BazaDate& db, qint64 cerereID, const QVariant& nrCerere, FelSchimbare fel,
                             const QString& prefix, const std::vector<Schimbare>& s) {
    if (s.empty()) return;
    Scrie(db, {cerereID, nrCerere, fel, prefix, prefix + QStringLiteral(": ") + TextSchimbari(s, fel)});
}

void Istoric::StergereCerere(BazaDate& db, qint64 cerereID) {
    Tranzactie t(db);
    Interogare c(db, QStringLiteral("SELECT NrCerere, DataCerere, TitularNume, TitularPrenume, TitularCNP, Stare, "
                                    "Cuantum FROM Cereri WHERE CerereID = ?"));
    c.Leaga(cerereID);
    if (!c.Exista()) {
        t.Confirma();
        return;
    }
    const QVariant nr = NumarSauNul(c.Valoare(0));
    const QString cereri = QStringLiteral("Cereri");
    const Sql::Rand cum = {
        {QStringLiteral("NrCerere"), c.Valoare(0)},
        {QStringLiteral("DataCerere"), c.Valoare(1)},
        {QStringLiteral("Titular"),
         QStringLiteral("%1 %2").arg(c.Valoare(2).toString(), c.Valoare(3).toString()).trimmed()},
        {QStringLiteral("CNP"), c.Valoare(4)},
        {QStringLiteral("Stare"), c.Valoare(5)},
        {QStringLiteral("Cuantum"), c.Valoare(6)},
    };
    c.query().finish();
    Interogare(db, QStringLiteral("UPDATE IstoricCereri SET CerereID = NULL, NrCerere = ? WHERE CerereID = ?"))
        .Leaga(nr)
        .Leaga(cerereID)
        .Executa();
    const QString motiv = QStringLiteral("Cerere stearsa");
    Scrie(db, {0, nr, FelSchimbare::Stergere, motiv,
               motiv + QStringLiteral(": ") + TextSchimbari(Compara(cereri, cum, {}), FelSchimbare::Adaugare)});
    t.Confirma();
}

void Istoric::StergereRand(BazaDate& db, const QString& tabela, const QString& cheie, qint64 id,
                           const QString& descriere, const QString& camp) {
    Interogare q(db, QStringLiteral("SELECT CerereID, %1 FROM %2 WHERE %3 = ?").arg(camp, tabela, cheie));
    q.Leaga(id);
    if (!q.Exista() || q.Intreg(0) <= 0) return;
    const qint64 cerereID = q.Intreg(0);
    const QString text = descriere.arg(TextValoare(tabela, camp, q.Valoare(1))).simplified();
    q.query().finish();
    Scrie(db, {cerereID, {}, FelSchimbare::Stergere, text, text});
}

namespace {
// The rows meeting `conditie`, which binds the same key twice, newest first.
std::vector<RandIstoric> Listeaza(BazaDate& db, const QString& conditie, qint64 cheie) {
    Interogare q(db, CampuriLista + conditie + OrdineLista);
    q.Leaga(cheie).Leaga(cheie);
    return Citeste(q);
}
} // namespace

std::vector<RandIstoric> Istoric::Lista(BazaDate& db, qint64 cerereID) {
    return Listeaza(db,
                    QStringLiteral("CerereID = ? OR (CerereID IS NULL AND NrCerere = "
                                   "(SELECT NrCerere FROM Cereri WHERE CerereID = ?))"),
                    cerereID);
}

std::vector<RandIstoric> Istoric::ListaNumar(BazaDate& db, qint64 nrCerere) {
    return Listeaza(db,
                    QStringLiteral("(CerereID IS NULL AND NrCerere = ?) OR CerereID IN "
                                   "(SELECT CerereID FROM Cereri WHERE NrCerere = ?)"),
                    nrCerere);
}
