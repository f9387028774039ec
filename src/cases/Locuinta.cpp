#include "cases/Locuinta.h"

#include "cases/StareCerere.h"
#include "base/Val.h"

#include <cmath>

std::array<std::vector<OptiuneLista>, 5> CitesteListeLocuinta(BazaDate& db) {
    auto liste = ListeDateGen(db, {TipListaLocuinta.begin(), TipListaLocuinta.end()});
    std::array<std::vector<OptiuneLista>, 5> r;
    for (size_t i = 0; i < TipListaLocuinta.size(); ++i)
        for (const RandDateGen& e : liste[TipListaLocuinta[i]])
            r[i].push_back({int(e.DataID), e.Continut});
    return r;
}

DateLocuinta DateDinStare(const StareCerere& s) {
    DateLocuinta d;
    for (size_t i = 0; i < d.chkLocuinta.size(); ++i)
        d.chkLocuinta[i] = s.LocuinteSel[i].Bifat;
    d.txtNrCamere = s.NrCamere == 0 ? QString() : QString::number(s.NrCamere);
    d.cboLocuinta = {s.TipDobandire, s.RegimJuridLoc, s.GospodLoc, s.TipLocuinta, s.TipIncalzire};
    d.chkPolita = {s.Polita, s.AcoperaRiscuri};
    d.txtLocuinta = {s.SocietatePolita, s.NrPolita};
    d.dtpData = {s.DataStartPolita, s.DataStopPolita};
    return d;
}

std::optional<int> NrCamereDinText(const QString& text) {
    // Rounded as the old run-time stored a number into a byte: halves to the even neighbour.
    const double v = std::nearbyint(Val(text));
    if (!(v >= 0 && v <= 255)) return std::nullopt;
    return int(v);
}

std::optional<RefuzLocuinta> CopiazaInStare(const DateLocuinta& d, StareCerere& s) {
    const auto camere = NrCamereDinText(d.txtNrCamere);
    if (!camere)
        return RefuzLocuinta{QStringLiteral("Numarul de camere trebuie sa fie un numar intre 0 si 255."),
                             QStringLiteral("txtNrCamere")};
    for (auto& l : s.LocuinteSel)
        l.Bifat = false;
    for (size_t i = 0; i < d.chkLocuinta.size(); ++i)
        if (d.chkLocuinta[i]) s.LocuinteSel[i].Bifat = true;
    s.NrCamere = *camere;
    s.TipDobandire = d.cboLocuinta[0];
    s.RegimJuridLoc = d.cboLocuinta[1];
    s.GospodLoc = d.cboLocuinta[2];
    s.TipLocuinta = d.cboLocuinta[3];
    s.TipIncalzire = d.cboLocuinta[4];
    s.Polita = d.chkPolita[0];
    s.SocietatePolita = d.txtLocuinta[0];
    s.NrPolita = d.txtLocuinta[1];
    s.DataStartPolita = d.dtpData[0];
    s.DataStopPolita = d.dtpData[1];
    s.AcoperaRiscuri = d.chkPolita[1];
    return std::nullopt;
}
