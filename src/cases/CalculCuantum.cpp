#include "cases/CalculCuantum.h"

#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
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

    DateBarem d;
    d.TipCerere = intrare.TipCerere;
    d.Data = intrare.DataStare;
    d.VenitPeMembru = SumaCaseta(intrare.VenitPeMembru);
    d.NrCopii = copii;
    for (const MembruCerere& membru : membri) {
        if (!membru.EsteCopil()) continue;
        if (membru.Diminuare20 != 0) ++d.Diminuari20;
        if (membru.Diminuare50 != 0) ++d.Diminuari50;
    }
    CalculBarem barem(p);
    const RezultatBarem rb = barem.Calculeaza(d, m);
    switch (rb.fel) {
    case RezultatBarem::Fel::FaraNivel:
        m.Informatie(intrare.DataStare.year() < 2012
                         ? QStringLiteral("Modificati Data statut de la 2012 in sus!")
                         : QStringLiteral("A aparut o exceptie in CalculCuantum. Sunati la 0700-111222"));
        return r;
    case RezultatBarem::Fel::PesteVenit:
        return r;
    case RezultatBarem::Fel::Calculat:
        break;
    }
    r.CuantumInainteDeReduceri = rb.InainteDeReduceri;
    r.Cuantum = rb.Cuantum;
    return r;
}

const CalculBarem::Praguri& CalculBarem::praguri(Mesaje& m) {
    if (!praguri_) {
        const QString text = VerificaPraguriVenit(p_.PraguriVenit, m);
        if (text.isEmpty())
            throw Eroare(
                QStringLiteral("Pragurile de venit (PRAGURI_VENIT) nu pot fi citite: cuantumul nu se poate calcula."));
        const QStringList parti = text.split(u'|');
        praguri_ = Praguri{SumaText(parti[0]), SumaText(parti[1])};
    }
    return *praguri_;
}

const Bani& CalculBarem::isr() {
    if (!isr_) isr_ = p_.ISR.size() == 1 ? SumaText(p_.ISR.front()) : IsrImplicit;
    return *isr_;
}

std::vector<TreaptaVenit> CalculBarem::Trepte(const QDate& data, Mesaje& m) {
    // Constant limits before the thresholds existed, then the stored ones.
    if (!data.isValid() || data < DataPraguriVenit)
        return {{Bani::DinLei(200), TreaptaJoasa}, {Bani::DinLei(370), TreaptaMedieVeche}};
    const Praguri& pr = praguri(m);
    return {{pr.jos, TreaptaJoasa}, {pr.sus, TreaptaMedie}};
}

Bani CalculBarem::suma(const RandBarem& barem) {
    const Bani& valoare = isr();
    // An empty coefficient counts as 0.
    Bani s = valoare.Inmultit(barem.Barem.value_or(Bani()));
    if (valoare != IsrImplicit && s > Bani()) s = Bani::DinLei(RotunjireSus(s));
    return s;
}

Bani CalculBarem::SumaTreapta(int tipCerere, int nrCopii, const Bani& treapta, const QDate& data) {
    const RandBarem* barem = gasesteBarem(p_, std::min(nrCopii, 4), tipCerere, treapta, data);
    return barem ? suma(*barem) : Bani();
}

RezultatBarem CalculBarem::Calculeaza(const DateBarem& d, Mesaje& m) {
    RezultatBarem r;
    // An income exactly on a limit stays in the lower bracket.
    const std::optional<Bani> gasita = TreaptaPentruVenit(d.VenitPeMembru, Trepte(d.Data, m));
    if (!gasita) {
        r.fel = RezultatBarem::Fel::PesteVenit;
        return r;
    }
    const Bani treapta = *gasita;

    const RandBarem* barem = gasesteBarem(p_, std::min(d.NrCopii, 4), d.TipCerere, treapta, d.Data);
    if (!barem) return r; // FaraNivel

    const Bani suma = this->suma(*barem);

    // The reductions take the one-child coefficient of the same bracket, always with 500 and never
    // with the ISR, for every child of the list, counted or not. There is a child here, so the row
    // is always needed; the old program stopped with a run-time error without it.
    const RandBarem* unCopil = gasesteBarem(p_, 1, d.TipCerere, treapta, d.Data);
    if (!unCopil)
        throw Eroare(QStringLiteral("Lipseste randul din Barem pentru un copil (NrPers = 1, Tip = %1, Suma = %2) "
                                    "valabil la %3: diminuarile nu se pot calcula.")
                         .arg(d.TipCerere)
                         .arg(FormatSuma(treapta))
                         .arg(FormatData(d.Data)));
    const Bani coeficientCopil = unCopil->Barem.value_or(Bani());
    const Bani reduceri = coeficientCopil * (100 * qint64(d.Diminuari20)) + // 0.2 x 500
                          coeficientCopil * (250 * qint64(d.Diminuari50));  // 0.5 x 500
    r.fel = RezultatBarem::Fel::Calculat;
    r.InainteDeReduceri = suma;
    r.Cuantum = suma - Bani::DinLei(reduceri.RotunjitPar());
    return r;
}

std::vector<TreaptaVenit> TrepteVenit(const QDate& data, const ParametriCuantum& p, Mesaje& m) {
    return CalculBarem(p).Trepte(data, m);
}

std::optional<Bani> TreaptaPentruVenit(const Bani& venit, const std::vector<TreaptaVenit>& trepte) {
    for (const TreaptaVenit& t : trepte)
        if (venit <= t.VenitMaxim) return t.Suma;
    return std::nullopt;
}

Bani CuantumTreapta(int tipCerere, int nrCopii, const Bani& treapta, const QDate& data, const ParametriCuantum& p) {
    return CalculBarem(p).SumaTreapta(tipCerere, nrCopii, treapta, data);
}

Bani CuantumLaData(int tipCerere, const Bani& venitPeMembru, int nrCopii, const QDate& data, const ParametriCuantum& p,
                   Mesaje& m) {
    CalculBarem calcul(p);
    const auto treapta = TreaptaPentruVenit(venitPeMembru, calcul.Trepte(data, m));
    return treapta ? calcul.SumaTreapta(tipCerere, nrCopii, *treapta, data) : Bani();
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
