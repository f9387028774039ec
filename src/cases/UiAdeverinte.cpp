#include "cases/UiAdeverinte.h"

#include "cases/Adeverinte.h"
#include "cases/frmAddAct.h"
#include "cases/frmAddMembru.h"
#include "cases/frmIstoricAdv.h"

void ConecteazaAdeverinte(frmAddMembru& f, std::function<int(QDialog&)> arata) {
    f.AdaugaAdeverinta = [arata](frmAddMembru& p) {
        auto acte = p.Adeverinte();
        frmAddAct d(p.Bd(), p.M(), acte, -1, &p);
        arata(d);
        if (d.ESTE_OK) p.ArataAdeverinte(acte, d.Index());
    };
    f.ModificaAdeverinta = [arata](frmAddMembru& p) {
        const std::vector<int> sel = p.AdeverinteSelectate();
        if (sel.size() != 1) return;
        auto acte = p.Adeverinte();
        frmAddAct d(p.Bd(), p.M(), acte, sel.front(), &p);
        arata(d);
        if (d.ESTE_OK) p.ArataAdeverinte(acte, d.Index());
    };
    f.StergeAdeverinta = [](frmAddMembru& p) {
        auto acte = p.Adeverinte();
        if (Adeverinte::StergeAct(acte, p.AdeverinteSelectate(), TipuriAdeverinte::Citeste(p.Bd()), p.M()))
            p.ArataAdeverinte(acte);
    };
    f.IstoricAdeverinte = [arata](frmAddMembru& p) {
        const ContextPersoana& c = p.Context();
        const auto& matrice = p.Stare().MatriceMembri;
        const bool element = c.Mod == 2 && matrice && c.Index >= 0 && size_t(c.Index) < matrice->size();
        const std::vector<AdeverintaMembru> acte = element ? (*matrice)[size_t(c.Index)].Adeverinte : p.Adeverinte();
        frmIstoricAdv d(p.Bd(), p.M(), acte, &p);
        arata(d);
    };
}
