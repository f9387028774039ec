#include "cases/CalculCuantum.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

#include <algorithm>

namespace {

const QDate DataPraguriVenit(2013, 7, 1);
const Bani IsrImplicit = Bani::DinLei(500);
// Bracket keys of Barem.Suma.
const Bani TreaptaJoasa = Bani::DinUnitati(4000);      // 0.4
const Bani TreaptaMedieVeche = Bani::DinUnitati(7400); // 0.74
const Bani TreaptaMedie = Bani::DinUnitati(10600);     // 1.06

// The row that the old criteria "NrPers = n AND Tip = t AND Suma = s AND DataInceput <= d AND
// (DataStop >= d OR DataStop IS NULL)" select first; a missing DataInceput never matches.
const RandBarem* gasesteBarem(const ParametriCuantum& p, int nrPers, int tip, const Bani& treapta, const QDate& data) {
    if (!data.isValid()) return nullptr;
    for (const RandBarem& r : p.Barem)
        if (r.NrPers == nrPers && r.Tip == tip && r.Suma == treapta && r.DataInceput.isValid() &&
            r.DataInceput <= data && (!r.DataStop.isValid() || r.DataStop >= data))
            return &r;
    return nullptr;
}

} // namespace

std::vector<TreaptaVenit> TrepteVenit(const QDate& data, const ParametriCuantum& p, Mesaje& m) {
    if (!data.isValid() || data < DataPraguriVenit)
        return {{Bani::DinLei(200), TreaptaJoasa}, {Bani::DinLei(370), TreaptaMedieVeche}};
    const QString praguri = VerificaPraguriVenit(p.PraguriVenit, m);
    if (praguri.isEmpty())
        throw Eroare(
            QStringLiteral("Pragurile de venit (PRAGURI_VENIT) nu pot fi citite: cuantumul nu se poate calcula."));
    const QStringList parti = praguri.split(u'|');
    return {{SumaText(parti[0]), TreaptaJoasa}, {SumaText(parti[1]), TreaptaMedie}};
}

std::optional<Bani> TreaptaPentruVenit(const Bani& venit, const std::vector<TreaptaVenit>& trepte) {
    for (const TreaptaVenit& t : trepte)
        if (venit <= t.VenitMaxim) return t.Suma;
    return std::nullopt;
}

Bani CuantumDinBarem(const RandBarem& barem, const ParametriCuantum& p) {
    const Bani isr = p.ISR.size() == 1 ? SumaText(p.ISR.front()) : IsrImplicit;
    // An empty coefficient counts as 0.
    Bani suma = isr.Inmultit(barem.Barem.value_or(Bani()));
    if (isr != IsrImplicit && suma > Bani()) suma = Bani::DinLei(RotunjireSus(suma));
    return suma;
}

Bani CuantumTreapta(int tipCerere, int nrCopii, const Bani& treapta, const QDate& data, const ParametriCuantum& p) {
    const RandBarem* barem = gasesteBarem(p, std::min(nrCopii, 4), tipCerere, treapta, data);
    return barem ? CuantumDinBarem(*barem, p) : Bani();
}

Bani CuantumLaData(int tipCerere, const Bani& venitPeMembru, int nrCopii, const QDate& data, const ParametriCuantum& p,
                   Mesaje& m) {
    const auto treapta = TreaptaPentruVenit(venitPeMembru, TrepteVenit(data, p, m));
    return treapta ? CuantumTreapta(tipCerere, nrCopii, *treapta, data, p) : Bani();
}

ParametriCuantum IncarcaParametri(BazaDate& db) {
    ParametriCuantum p;
    p.Barem = CitesteBarem(db);
    {
        Interogare q(db, QStringLiteral("SELECT NrBifa, Valoare FROM ListaBife"));
        q.Executa();
        while (q.Urmator())
            p.ListaBife.emplace(int(q.Intreg(QStringLiteral("NrBifa"))), q.Suma(QStringLiteral("Valoare")));
    }
    p.ISR = ContinuturiDateGen(db, QStringLiteral("ISR"));
    p.PraguriVenit = ContinutDateGen(db, QStringLiteral("PRAGURI_VENIT"));
    return p;
}

RezultatCuantum CalculCuantum(const IntrareCuantum& intrare, const ParametriCuantum& p, Mesaje& m) {
    // An impossible month would count every child as under 18: no amount is computed for it.
    if (!LunaLucruValida(intrare.LunaSetata, intrare.AnSetat))
        throw Eroare(QStringLiteral("Luna de lucru %1/%2 nu este valida: alegeti o luna intre 1 si 12 si un an intre "
                                    "%3 si %4.")
                         .arg(intrare.LunaSetata)
                         .arg(intrare.AnSetat)
                         .arg(AnLucruMinim)
                         .arg(AnLucruMaxim));
    RezultatCuantum r;
    const StareCerere& stare = intrare.stare;
    if (!stare.MatriceMembri) return r;
    const std::vector<MembruCerere>& membri = *stare.MatriceMembri;

    const QDate intaiaZiALunii(intrare.AnSetat, intrare.LunaSetata, 1);
    int copii = 0;
    for (const MembruCerere& membru : membri)
        if (membru.EsteCopil() && membru.Data18Ani.isValid() && membru.Data18Ani >= intaiaZiALunii &&
            membru.Abandon == 0 && membru.Repetent == 0 && membru.Peste20abs == 0)
            ++copii;
    if (copii == 0) return r;
    r.NrCopii = copii;

    const int nrMembrii = int(membri.size());
    if (Val(stare.Bife) > 0) return r;

    Bani valoareBunuri;
    for (int i = 0; i < int(stare.Bunuri.size()); ++i) {
        const Bani& cantitate = stare.Bunuri[size_t(i)];
        if (cantitate <= Bani()) continue;
        const auto bifa = p.ListaBife.find(i + 10);
        if (bifa == p.ListaBife.end()) {
            m.Informatie(QStringLiteral("Eroare: nu exista in ListaBife, bifa cu Nr %1").arg(i + 10));
            continue;
        }
        valoareBunuri += cantitate.Inmultit(bifa->second);
    }
    if (valoareBunuri > Bani::DinLei(nrMembrii == 1 ? 1000 : 2500)) return r;

    const Bani venit = SumaCaseta(intrare.VenitPeMembru);
    const auto treapta = TreaptaPentruVenit(venit, TrepteVenit(intrare.DataStare, p, m));
    if (!treapta) return r;

    const RandBarem* barem = gasesteBarem(p, std::min(copii, 4), intrare.TipCerere, *treapta, intrare.DataStare);
    if (!barem) {
        m.Informatie(intrare.DataStare.year() < 2012
                         ? QStringLiteral("Modificati Data statut de la 2012 in sus!")
                         : QStringLiteral("A aparut o exceptie in CalculCuantum. Sunati la 0700-111222"));
        return r;
    }

    const Bani suma = CuantumDinBarem(*barem, p);
    r.CuantumInainteDeReduceri = suma;

    // The reductions take the one-child coefficient of the same bracket, always with 500 and
    // never with the ISR, for every child of the list, counted or not. There is a child here, so
    // the row is always needed; the old program stopped with a run-time error without it.
    const RandBarem* unCopil = gasesteBarem(p, 1, intrare.TipCerere, *treapta, intrare.DataStare);
    if (!unCopil)
        throw Eroare(QStringLiteral("Lipseste randul din Barem pentru un copil (NrPers = 1, Tip = %1, Suma = %2) "
                                    "valabil la %3: diminuarile nu se pot calcula.")
                         .arg(intrare.TipCerere)
                         .arg(FormatSuma(*treapta))
                         .arg(FormatData(intrare.DataStare)));
    const Bani coeficientCopil = unCopil->Barem.value_or(Bani());
    Bani reduceri;
    for (const MembruCerere& membru : membri) {
        if (!membru.EsteCopil()) continue;
        if (membru.Diminuare20 != 0) reduceri += coeficientCopil * 100; // 0.2 x 500
        if (membru.Diminuare50 != 0) reduceri += coeficientCopil * 250; // 0.5 x 500
    }
    r.Cuantum = suma - Bani::DinLei(reduceri.RotunjitPar());
    return r;
}

Bani SumaVenituri(const std::array<Bani, 79>& venituri) {
    Bani total;
    for (const Bani& v : venituri)
        total += v;
    return total;
}

TotaluriMembri RecalculTotaluri(int nrInLista, const std::optional<std::vector<MembruCerere>>& matrice) {
    TotaluriMembri t;
    t.NrMembrii = nrInLista;
    if (matrice && qsizetype(matrice->size()) != nrInLista)
        t.Exceptie = QStringLiteral(
            "Exceptie Tarn in Calcule: Nr Membrii din lista este diferite de cel din matrice. Sunati la 0700-111222");
    return t;
}

QString VenitPeMembruText(const Bani& venitTotal, int nrMembrii) {
    if (nrMembrii <= 0) return {};
    const double x = double(venitTotal.Unitati()) / double(Bani::Scala) / nrMembrii;
    QString t = QString::number(x, 'g', 15);
    // Below 0.0001 the old run-time switched to an exponent, which SumaText can't read back;
    // the same digits are written without it.
    if (t.contains(u'e')) {
        const int exponent = t.mid(t.indexOf(u'e') + 1).toInt();
        t = QString::number(x, 'f', std::max(0, 14 - exponent));
        if (t.contains(u'.')) {
            while (t.endsWith(u'0'))
                t.chop(1);
            if (t.endsWith(u'.')) t.chop(1);
        }
    }
    return t;
}

QString VerificaPraguriVenit(const std::optional<QString>& continut, Mesaje& m) {
    const QString titlu = QStringLiteral("Eroare");
    const QString formatGresit = QStringLiteral("Format praguri gresit!");
    if (!continut) {
        m.Critic(QStringLiteral("PRAGURI_VENIT nu exista!"), titlu);
        return {};
    }
    const QString& praguri = *continut;
    if (praguri.trimmed().isEmpty()) {
        m.Critic(QStringLiteral("Nu sunt definite praguri venit!"), titlu);
        return {};
    }
    if (!praguri.contains(u'|')) {
        m.Critic(formatGresit, titlu);
        return {};
    }
    // A blank part is no threshold: "210.2|" holds only one.
    const auto parti = QStringView(praguri).split(u'|');
    const auto pline = std::count_if(parti.begin(), parti.end(), [](QStringView p) { return !p.trimmed().isEmpty(); });
    if (pline < 2) {
        m.Critic(formatGresit + QStringLiteral("\nTrebuie cel putin doua praguri."), titlu);
        return {};
    }
    return praguri;
}

QString PraguriVenit(BazaDate& db, Mesaje& m) {
    return VerificaPraguriVenit(ContinutDateGen(db, QStringLiteral("PRAGURI_VENIT")), m);
}
