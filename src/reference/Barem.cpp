#include "reference/Barem.h"

#include "base/Eroare.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "reference/Praguri.h"
#include "store/BazaDate.h"

#include <QStringList>
#include <cmath>

std::vector<RandBarem> CitesteBarem(BazaDate& db) {
    std::vector<RandBarem> r;
    Interogare q(db, QStringLiteral("SELECT Tip, NrPers, Suma, Barem, DataInceput, DataStop FROM Barem"));
    q.Executa();
    while (q.Urmator()) {
        RandBarem b;
        b.Tip = int(q.Intreg(QStringLiteral("Tip")));
        b.NrPers = int(q.Intreg(QStringLiteral("NrPers")));
        b.Suma = q.Suma(QStringLiteral("Suma"));
        if (!q.EsteNul(QStringLiteral("Barem"))) b.Barem = q.Suma(QStringLiteral("Barem"));
        b.DataInceput = q.Data(QStringLiteral("DataInceput"));
        b.DataStop = q.Data(QStringLiteral("DataStop"));
        r.push_back(b);
    }
    return r;
}

namespace {

const QDate InceputNivele(2014, 11, 1);

// The value of a box as the old run-time read a typed number (a comma ends it), kept to the four
// decimals the scale is read with; none when it is out of the money range.
std::optional<Bani> ValoareCaseta(const QString& text) {
    const double v = Val(text);
    if (!std::isfinite(v) || std::abs(v) > 1e12) return std::nullopt;
    return Bani::DinText(QString::number(v, 'f', 8));
}

// The rows of the levels by family, each in its NrPers; the problem text when one of them does not
// have NrPers 1 to 4 exactly once.
struct RanduriNivele {
    std::array<std::vector<std::pair<int, std::optional<Bani>>>, NrFamiliiBarem> nrPers;
    std::array<std::vector<Bani>, NrFamiliiBarem> perPers;
    QString problema;
};

RanduriNivele citesteRanduri(BazaDate& db) {
    RanduriNivele r;
    Interogare q(db, QStringLiteral("SELECT Tip, Suma, NrPers, Barem, BaremPerPers FROM Barem WHERE DataInceput = ? "
                                    "ORDER BY Tip, Suma, NrPers"));
    q.Leaga(InceputNivele).Executa();
    const auto& familii = FamiliiBarem();
    while (q.Urmator()) {
        const int tip = int(q.Intreg(QStringLiteral("Tip")));
        const Bani suma = q.Suma(QStringLiteral("Suma"));
        for (int f = 0; f < NrFamiliiBarem; ++f) {
            if (familii[size_t(f)].Tip != tip || familii[size_t(f)].Suma != suma) continue;
            std::optional<Bani> barem;
            if (!q.EsteNul(QStringLiteral("Barem"))) barem = q.Suma(QStringLiteral("Barem"));
            r.nrPers[size_t(f)].push_back({int(q.Intreg(QStringLiteral("NrPers"))), barem});
            r.perPers[size_t(f)].push_back(q.Suma(QStringLiteral("BaremPerPers")));
        }
    }
    QStringList gresite;
    for (int f = 0; f < NrFamiliiBarem; ++f) {
        const auto& randuri = r.nrPers[size_t(f)];
        bool bune = randuri.size() == size_t(NrPersFamilie);
        for (size_t i = 0; bune && i < randuri.size(); ++i)
            bune = randuri[i].first == int(i) + 1;
        if (!bune)
            gresite << QStringLiteral("Tip %1, Suma %2 (%3 randuri)")
                           .arg(familii[size_t(f)].Tip)
                           .arg(FormatSuma(familii[size_t(f)].Suma))
                           .arg(randuri.size());
    }
    if (!gresite.isEmpty())
        r.problema = QStringLiteral("Nivelurile din %1 trebuie sa aiba cate un rand pentru 1, 2, 3 si 4 copii. "
                                    "Nu corespund: %2. Nivelurile nu se pot salva.")
                         .arg(FormatData(InceputNivele), gresite.join(QStringLiteral("; ")));
    return r;
}

} // namespace

const std::array<FamilieBarem, NrFamiliiBarem>& FamiliiBarem() {
    static const std::array<FamilieBarem, NrFamiliiBarem> f = {{{1, Bani::DinUnitati(4000)},
                                                                {1, Bani::DinUnitati(10600)},
                                                                {2, Bani::DinUnitati(4000)},
                                                                {2, Bani::DinUnitati(10600)}}};
    return f;
}

NiveleBarem CitesteNivele(BazaDate& db) {
    const RanduriNivele r = citesteRanduri(db);
    NiveleBarem n;
    n.Problema = r.problema;
    // A family whose rows are not in step still shows what it has, in the order of NrPers.
    for (int f = 0; f < NrFamiliiBarem; ++f)
        for (size_t i = 0; i < r.nrPers[size_t(f)].size() && i < size_t(NrPersFamilie); ++i) {
            const size_t caseta = size_t(f * NrPersFamilie) + i;
            if (const auto& b = r.nrPers[size_t(f)][i].second) n.Barem[caseta] = TextSuma(*b);
            n.BaremPerPers[caseta] = TextSuma(r.perPers[size_t(f)][i]);
        }
    return n;
}

std::optional<RefuzNivel> VerificaNivele(const std::array<QString, NrNivele>& texte) {
    for (int i = 0; i < NrNivele; ++i) {
        const auto v = ValoareCaseta(texte[size_t(i)]);
        if (!v) return RefuzNivel{i, QStringLiteral("Nivelul de venit este prea mare.")};
        if (*v == Bani()) return RefuzNivel{i, QStringLiteral("Nivelul de venit trebuie sa fie diferit de 0 (zero)")};
    }
    return std::nullopt;
}

void SalveazaNivele(BazaDate& db, const std::array<QString, NrNivele>& texte) {
    if (const auto refuz = VerificaNivele(texte)) throw Eroare(refuz->mesaj);
    Tranzactie t(db);
    // Read again inside the unit: another computer may have changed the rows since the editor opened.
    const RanduriNivele r = citesteRanduri(db);
    if (!r.problema.isEmpty()) throw Eroare(r.problema);
    Interogare u(db, QStringLiteral("UPDATE Barem SET Barem = ? WHERE DataInceput = ? AND Tip = ? AND Suma = ? AND "
                                    "NrPers = ?"));
    for (int i = 0; i < NrNivele; ++i) {
        const FamilieBarem& f = FamiliiBarem()[size_t(i / NrPersFamilie)];
        u.Leaga(*ValoareCaseta(texte[size_t(i)]))
            .Leaga(InceputNivele)
            .Leaga(f.Tip)
            .Leaga(f.Suma)
            .Leaga(i % NrPersFamilie + 1)
            .Executa();
    }
    t.Confirma();
}

bool SalveazaPraguri(BazaDate& db, const QString& inferior, const QString& superior) {
    const std::optional<QString> text = TextPraguri(inferior, superior);
    if (!text) return false;
    Interogare u(db, QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"));
    u.Leaga(*text).Leaga(QStringLiteral("PRAGURI_VENIT")).Executa();
    if (u.RanduriAfectate() == 0)
        throw Eroare(QStringLiteral("PRAGURI_VENIT nu exista! Redeschideti programul ca sa fie refacut randul, apoi "
                                    "salvati din nou pragurile."));
    return true;
}
