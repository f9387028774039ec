#include "cases/EditorCerere.h"

#include "base/Eroare.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

using namespace ElemCerere;

namespace {

std::vector<AlegereCombo> Randuri(BazaDate& db, const QString& sql) {
    std::vector<AlegereCombo> r;
    Interogare q(db, sql);
    q.Executa();
    while (q.Urmator())
        r.push_back({q.Intreg(0), q.Valoare(1).toString()});
    return r;
}

// The total typed in txtVenitTotal: blank is nothing, anything else must be an amount.
std::optional<Bani> VenitTotal(const QString& text) {
    const QString t = text.trimmed();
    if (t.isEmpty()) return Bani();
    try {
        return SumaText(t);
    } catch (const Eroare&) {
        return std::nullopt;
    }
}

} // namespace

ListeEditorCerere IncarcaListeEditor(BazaDate& db) {
    ListeEditorCerere l;
    l.Strazi = Randuri(db, QStringLiteral("SELECT StradaID, Denumire FROM Strazi ORDER BY StradaID"));
    l.Motive = Randuri(db, QStringLiteral("SELECT MotivID, Denumire FROM Motive ORDER BY MotivID"));
    auto liste = ListeDateGen(db, {TipDateGen::Statut, TipDateGen::ModPlata, TipDateGen::Reprezentant});
    l.Stare = Alegeri(liste[TipDateGen::Statut]);
    l.ModPlata = Alegeri(liste[TipDateGen::ModPlata]);
    l.ReprLegal = Alegeri(liste[TipDateGen::Reprezentant]);
    l.TipCerere = {{1, TextTipCerere(1)}, {2, TextTipCerere(2)}};
    return l;
}

CalculEditor::CalculEditor(ParametriCuantum p, int lunaSetata, int anSetat)
    : p_(std::move(p)), luna_(lunaSetata), an_(anSetat) {}

void CalculEditor::TextSchimbat(DateCerere& d, int element, const StareCerere& s, Mesaje& m) {
    auto& t = d.txtCerere;
    const std::optional<Bani> total = VenitTotal(t[txtVenitTotal]);
    if (!total) return;
    const double membri = Val(t[txtNrMembrii]);
    if (membri > 0 && membri <= 1e9) t[txtVenitPeMembru] = VenitPeMembruText(*total, int(membri));
    if (element == txtVenitTotal) Cuantum(d, s, m);
}

void CalculEditor::Cuantum(DateCerere& d, const StareCerere& s, Mesaje& m) {
    auto& t = d.txtCerere;
    const IntrareCuantum intrare{
        s, int(d.cboCerere[cboTipCerere].id), d.dtpData[dtpDataStare], t[txtVenitPeMembru], luna_, an_};
    const RezultatCuantum r = CalculCuantum(intrare, p_, m);
    t[txtCuantum] = TextSuma(r.Cuantum);
    if (r.NrCopii) t[txtNrCopii] = QString::number(*r.NrCopii);
    if (r.CuantumInainteDeReduceri) inainteDeReduceri_ = r.CuantumInainteDeReduceri;
}

void CalculEditor::DupaVenituri(DateCerere& d, const StareCerere& s, Mesaje& m) {
    d.txtCerere[txtVenitTotal] = TextSuma(SumaVenituri(s.Venituri));
    TextSchimbat(d, txtVenitTotal, s, m);
}

void CalculEditor::Totaluri(DateCerere& d, const StareCerere& s, const TotaluriMembri& t, Mesaje& m) {
    d.txtCerere[txtNrMembrii] = QString::number(t.NrMembrii);
    TextSchimbat(d, txtNrMembrii, s, m);
    Cuantum(d, s, m);
}

void CalculEditor::DupaBunuri(DateCerere& d, const StareCerere& s, int nrInLista, Mesaje& m) {
    const TotaluriMembri t = RecalculTotaluri(nrInLista, s.MatriceMembri);
    if (!t.Exceptie.isEmpty()) m.Informatie(t.Exceptie);
    Totaluri(d, s, t, m);
}
