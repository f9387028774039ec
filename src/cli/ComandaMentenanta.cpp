#include "cli/ArgumenteCli.h"

#include "base/Eroare.h"
#include "maintenance/Mentenanta.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Cli {

namespace {

using Mentenanta::Unealta;

const std::array<std::pair<const char*, Unealta>, 6> Unelte{{{"datastare", Unealta::DataStare},
                                                             {"stare", Unealta::Stare},
                                                             {"rudenie", Unealta::Rudenie},
                                                             {"acte", Unealta::Acte},
                                                             {"bife", Unealta::Bife},
                                                             {"cereri2014", Unealta::Cereri2014}}};

// --da: every question of the tool is answered Yes, and shown with its answer.
class MesajeDa : public MesajeFlux {
public:
    explicit MesajeDa(QTextStream& out) : MesajeFlux(out, out), out_(out) {}
    bool Intrebare(const QString& text, const QString&, bool) override {
        out_ << text << " Da" << Qt::endl;
        return true;
    }

private:
    QTextStream& out_;
};

QStringList NumeUnelte() {
    QStringList r;
    for (const auto& [nume, u] : Unelte)
        r << QLatin1String(nume);
    return r;
}

} // namespace

// One repair tool of the maintenance window. Without --da it only tells how many rows it would change;
// with --da it runs as its button does, the questions answered Yes. Everything goes to the standard
// output; exit 1 when the tool stops on a check or fails (nothing is then changed).
int ComandaMentenanta(const QCommandLineParser& p, const QString& unealta, QTextStream& out) {
    const auto it =
        std::find_if(Unelte.begin(), Unelte.end(), [&](const auto& u) { return unealta == QLatin1String(u.first); });
    if (it == Unelte.end())
        throw EroareArgumente{QStringLiteral("unealta necunoscuta: %1 (una din %2)")
                                  .arg(unealta, NumeUnelte().join(QStringLiteral(", ")))};
    const Unealta u = it->second;
    if (p.isSet(QStringLiteral("suprascrie")) && u != Unealta::DataStare)
        throw EroareArgumente{QStringLiteral("--suprascrie este doar pentru datastare")};
    if (p.isSet(QStringLiteral("data-veche")) && u != Unealta::Cereri2014)
        throw EroareArgumente{QStringLiteral("--data-veche este doar pentru cereri2014")};
    const bool areLuna = p.isSet(QStringLiteral("luna")), areAn = p.isSet(QStringLiteral("an"));
    if (areLuna != areAn) throw EroareArgumente{QStringLiteral("--luna si --an se dau impreuna")};

    const LocatieBD loc = Locatie(p);
    const Setari setari = SetariBazei(loc).value_or(Setari{});
    Mentenanta::Optiuni o;
    o.luna = setari.LunaSetata;
    o.an = setari.AnSetat;
    if (areLuna) {
        o.luna = int(NumarIntre(p.value(QStringLiteral("luna")), 1, 12, QStringLiteral("--luna")));
        o.an = int(NumarIntre(p.value(QStringLiteral("an")), AnLucruMinim, AnLucruMaxim, QStringLiteral("--an")));
    }
    o.suprascrieDataStare = p.isSet(QStringLiteral("suprascrie"));
    o.pastreazaDataCerere = p.isSet(QStringLiteral("data-veche"));
    o.caleBD = loc.caleBD;

    try {
        auto db = BazaDate::Deschide(loc);
        if (!p.isSet(QStringLiteral("da"))) {
            if (u == Unealta::Cereri2014) out << Mentenanta::SumarCereri2014(*db) << Qt::endl;
            out << QStringLiteral("Ar fi modificate %1 randuri. Nu s-a schimbat nimic: adaugati --da pentru a le "
                                  "modifica.")
                       .arg(Mentenanta::Numara(*db, u, o))
                << Qt::endl;
            return 0;
        }
        MesajeDa m(out);
        return Mentenanta::Ruleaza(*db, m, u, o) ? 0 : 1;
    } catch (const Eroare& e) {
        out << e.text() << Qt::endl;
        return 1;
    }
}

} // namespace Cli
