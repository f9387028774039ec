#include "reference/Calendar.h"

#include "base/Mesaje.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "store/BazaDate.h"

#include <cmath>
#include <map>

namespace Calendar {

namespace {

constexpr int AnMaxim = 9999;

LunaPlata Citeste(const Interogare& q) {
    return {q.Intreg(QStringLiteral("StatPlataID")), int(q.Intreg(QStringLiteral("An"))),
            int(q.Intreg(QStringLiteral("Luna")))};
}

// The year typed, as the leading-number rule reads it; 0 for nothing or a year past four digits.
int AnTastat(const QString& text) {
    const double v = Val(text);
    return v >= 1 && v <= AnMaxim ? int(std::floor(v)) : 0;
}

// Each listed month name is followed by ", ", the last one too.
QString ListaLuni(const std::vector<int>& luni) {
    QString t;
    for (const int l : luni)
        t += LuniAn().value(l - 1) + QStringLiteral(", ");
    return t;
}

// The messages for one year from how many rows each of its months has.
QStringList Probleme(int an, const std::map<int, qint64>& randuri) {
    std::vector<int> lipsa, dublate;
    for (int l = 1; l <= 12; ++l) {
        const auto it = randuri.find(l);
        if (it == randuri.end())
            lipsa.push_back(l);
        else if (it->second > 1)
            dublate.push_back(l);
    }
    QStringList r;
    if (!lipsa.empty())
        r << QStringLiteral("Pentru anul %1 nu exista lunile: %2. Corectati!").arg(an).arg(ListaLuni(lipsa));
    if (!dublate.empty())
        r << QStringLiteral("Pentru anul %1 lunile: %2se gasesc de mai multe ori. Corectati! ")
                 .arg(an)
                 .arg(ListaLuni(dublate));
    return r;
}

// Rows by year and month, for one year or all of them, in one query.
std::map<int, std::map<int, qint64>> Numere(BazaDate& db, std::optional<int> an) {
    Interogare q(db, QStringLiteral("SELECT An, Luna, COUNT(*) AS Nr FROM StatePlata WHERE An IS NOT NULL AND Luna "
                                    "BETWEEN 1 AND 12") +
                         (an ? QStringLiteral(" AND An = ?") : QString()) + QStringLiteral(" GROUP BY An, Luna"));
    if (an) q.Leaga(*an);
    q.Executa();
    std::map<int, std::map<int, qint64>> r;
    while (q.Urmator())
        r[int(q.Intreg(0))][int(q.Intreg(1))] = q.Intreg(2);
    return r;
}

bool ExistaAltRand(BazaDate& db, int an, int luna, std::optional<qint64> exceptat) {
    Interogare q(db, QStringLiteral("SELECT 1 FROM StatePlata WHERE An = ? AND Luna = ?") +
                         (exceptat ? QStringLiteral(" AND StatPlataID <> ?") : QString()));
    q.Leaga(an).Leaga(luna);
    if (exceptat) q.Leaga(*exceptat);
    return q.Exista();
}

} // namespace

int AnAfisat(const QString& anText, int anSetat) {
    const int an = AnTastat(anText);
    return an > 0 ? an : anSetat;
}

std::vector<LunaPlata> Luni(BazaDate& db, std::optional<int> an) {
    Interogare q(db, an ? QStringLiteral("SELECT StatPlataID, An, Luna FROM StatePlata WHERE An = ? ORDER BY Luna, "
                                         "StatPlataID")
                        : QStringLiteral("SELECT StatPlataID, An, Luna FROM StatePlata ORDER BY StatPlataID"));
    if (an) q.Leaga(*an);
    q.Executa();
    std::vector<LunaPlata> r;
    while (q.Urmator())
        r.push_back(Citeste(q));
    return r;
}

std::optional<LunaPlata> CitesteLuna(BazaDate& db, qint64 statPlataID) {
    Interogare q(db, QStringLiteral("SELECT StatPlataID, An, Luna FROM StatePlata WHERE StatPlataID = ?"));
    q.Leaga(statPlataID);
    if (!q.Exista()) return std::nullopt;
    return Citeste(q);
}

QStringList VerificaAn(BazaDate& db, int an) {
    const auto numere = Numere(db, an);
    const auto it = numere.find(an);
    return Probleme(an, it == numere.end() ? std::map<int, qint64>{} : it->second);
}

QStringList VerificaToti(BazaDate& db) {
    // A year whose rows all have an impossible month still counts as a year with rows.
    std::map<int, std::map<int, qint64>> numere = Numere(db, std::nullopt);
    Interogare ani(db, QStringLiteral("SELECT DISTINCT An FROM StatePlata WHERE An IS NOT NULL"));
    ani.Executa();
    while (ani.Urmator())
        numere.try_emplace(int(ani.Intreg(0)));
    QStringList r;
    for (const auto& [an, luni] : numere)
        r << Probleme(an, luni);
    return r;
}

std::optional<int> GenereazaAn(BazaDate& db, Mesaje& m, const QString& anText) {
    const int an = AnTastat(anText);
    if (an <= 2009) {
        m.Informatie(QStringLiteral("Introduceti un an mai mare decat 2009!"));
        return std::nullopt;
    }
    Tranzactie t(db);
    const auto numere = Numere(db, an);
    if (!numere.empty()) {
        const std::map<int, qint64>& luni = numere.begin()->second;
        const QStringList probleme = Probleme(an, luni);
        if (probleme.isEmpty()) m.Informatie(QStringLiteral("Anul %1 exista.").arg(an));
        for (const QString& p : probleme)
            m.Informatie(p);
        return std::nullopt;
    }
    Interogare ins(db, QStringLiteral("INSERT INTO StatePlata (StatPlataID, An, Luna) VALUES (?, ?, ?)"));
    const qint64 prima = db.CheieNoua(QStringLiteral("StatePlata"), QStringLiteral("StatPlataID"));
    for (int l = 1; l <= 12; ++l)
        ins.Leaga(prima + l - 1).Leaga(an).Leaga(l).Executa();
    t.Confirma();
    m.Informatie(QStringLiteral("Generarea a avut loc cu succes!"));
    return an;
}

RezultatLuna SalveazaLuna(BazaDate& db, Mesaje& m, const DateLuna& d, std::optional<qint64> editat) {
    RezultatLuna r;
    const int an = AnTastat(d.anText);
    if (an <= 2010) {
        m.Informatie(QStringLiteral("Introduceti un an mai mare decat 2010!"));
        r.refuz = CampLuna::An;
        return r;
    }
    if (d.luna < 1 || d.luna > 12) {
        m.Informatie(QStringLiteral("Selectati luna pe care doriti sa o adaugati!"));
        r.refuz = CampLuna::Luna;
        return r;
    }
    Tranzactie t(db);
    if (ExistaAltRand(db, an, d.luna, editat)) {
        m.Informatie(editat ? QStringLiteral("Pentru anul %1 si luna %2 exista deja pe un alt rand. Corectati!!")
                                  .arg(an)
                                  .arg(d.luna)
                            : QStringLiteral("Anul %1, luna %2 exista!").arg(an).arg(d.luna));
        r.refuz = CampLuna::Luna;
        return r;
    }
    LunaPlata l{0, an, d.luna};
    if (editat) {
        l.StatPlataID = *editat;
        Interogare q(db, QStringLiteral("UPDATE StatePlata SET An = ?, Luna = ? WHERE StatPlataID = ?"));
        q.Leaga(an).Leaga(d.luna).Leaga(*editat).Executa();
        if (q.RanduriAfectate() == 0) {
            m.Informatie(RandDisparut);
            r.randDisparut = true;
            return r;
        }
    } else {
        l.StatPlataID = db.CheieNoua(QStringLiteral("StatePlata"), QStringLiteral("StatPlataID"));
        Interogare q(db, QStringLiteral("INSERT INTO StatePlata (StatPlataID, An, Luna) VALUES (?, ?, ?)"));
        q.Leaga(l.StatPlataID).Leaga(an).Leaga(d.luna).Executa();
    }
    t.Confirma();
    r.scris = l;
    return r;
}

bool StergeLuna(BazaDate& db, qint64 statPlataID) {
    Interogare q(db, QStringLiteral("DELETE FROM StatePlata WHERE StatPlataID = ?"));
    q.Leaga(statPlataID).Executa();
    return q.RanduriAfectate() > 0;
}

} // namespace Calendar
