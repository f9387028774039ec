#include "cases/ListaMembri.h"

#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Mesaje.h"

#include <algorithm>

namespace {

const QString SelectatiOCerere = QStringLiteral("Selectati o cerere");

QString cheie(const MembruCerere& m) {
    return QString::number(m.MembruID);
}

// The totals after the list changed; the disagreement of list and matrix is told and the editor
// goes on.
TotaluriMembri totaluri(const ListaMembri& l, const StareCerere& s, Mesaje& m) {
    TotaluriMembri t = RecalculTotaluri(int(l.lvw.size()), s.MatriceMembri);
    if (!t.Exceptie.isEmpty()) m.Informatie(t.Exceptie);
    return t;
}

const MembruCerere& element(const StareCerere& s, int index) {
    if (!s.MatriceMembri || index < 0 || index >= int(s.MatriceMembri->size()))
        throw Eroare(QStringLiteral("Exceptie: persoana %1 nu exista in lista membrilor.").arg(index));
    return (*s.MatriceMembri)[size_t(index)];
}

// No person opens before the kind of allowance is chosen: the clerk is sent to its list.
bool alesTipul(int tipCerere, Mesaje& m, Deschidere& d) {
    if (tipCerere != 0) return true;
    m.Informatie(QStringLiteral("Introduceti tipul de alocatie!"));
    d.Focus = QStringLiteral("cboCerere_3");
    return false;
}

} // namespace

const QStringList& ColoaneLista() {
    static const QStringList c{
        QStringLiteral("ID"),         QStringLiteral("Nume"),
        QStringLiteral("Prenume"),    QStringLiteral("CNP"),
        QStringLiteral("Ocupatie"),   QStringLiteral("Rudenie"),
        QStringLiteral("Venit"),      QStringLiteral("Alte venituri"),
        QStringLiteral("Data Exp."),  QStringLiteral("Motivul Expirarii"),
        QStringLiteral("Data nast."), QStringLiteral("Serie"),
        QStringLiteral("Numar"),
    };
    return c;
}

const QStringList& ColoaneAscunseIesiti() {
    static const QStringList c{QStringLiteral("RudenieID"), QStringLiteral("MotivID"), QStringLiteral("Suma"),
                               QStringLiteral("TipValuta")};
    return c;
}

QString TextStergereIesit() {
    return QStringLiteral("Pentru stergere membru iesit folositi tasta DEL");
}

RandLista RandMembru(const MembruCerere& m) {
    RandLista r;
    r[colID] = cheie(m);
    r[colNume] = m.Nume;
    r[colPrenume] = m.Prenume;
    r[colCNP] = m.CNP;
    r[colOcupatie] = m.Ocupatie;
    r[colRudenie] = m.Rudenie;
    r[colVenit] = FormatSuma(m.Venit);
    r[colDataExp] = FormatData(m.Data18Ani);
    r[colMotivExpirare] = m.Motiv;
    r[colDataNast] = m.DataNast;
    r[colSerie] = m.SerieBI;
    r[colNumar] = m.NrBI;
    return r;
}

RandIesit RandIesitIncarcat(const MembruIesit& m) {
    RandIesit r;
    r.Coloane[colID] = QString::number(m.MembruID);
    r.Coloane[colNume] = m.Nume;
    r.Coloane[colPrenume] = m.Prenume;
    r.Coloane[colCNP] = m.CNP;
    r.Coloane[colRudenie] = m.Rudenie;
    r.Coloane[colVenit] = FormatSuma(m.Suma);
    r.Coloane[colSerie] = m.SerieBI;
    r.Coloane[colNumar] = m.NrBI;
    r.Iesit = m;
    return r;
}

std::vector<MembruIesit> IesitiDeSalvat(const ListaMembri& l) {
    std::vector<MembruIesit> v;
    v.reserve(l.lvwIesiti.size());
    for (const RandIesit& r : l.lvwIesiti)
        v.push_back(r.Iesit);
    return v;
}

int MatriceNrElemente(const StareCerere& s) {
    return s.MatriceMembri ? int(s.MatriceMembri->size()) : 0;
}

void AfisMembru(ListaMembri& l, const StareCerere& s, int mod, int index) {
    RandLista rand = RandMembru(element(s, index));
    if (mod == 1) {
        l.lvw.push_back(std::move(rand));
    } else if (l.Selectat && *l.Selectat >= 0 && *l.Selectat < int(l.lvw.size())) {
        l.lvw[size_t(*l.Selectat)] = std::move(rand);
    }
}

void StergeElement(StareCerere& s, int index) {
    element(s, index);
    s.MatriceMembri->erase(s.MatriceMembri->begin() + index);
}

void MutaLaIesiti(ListaMembri& l, const MembruCerere* element) {
    if (!l.Selectat || *l.Selectat < 0 || *l.Selectat >= int(l.lvw.size())) return;
    RandIesit r;
    r.Coloane = l.lvw[size_t(*l.Selectat)];
    MembruIesit& x = r.Iesit;
    x.MembruID = r.Coloane[colID].toLongLong();
    x.Nume = r.Coloane[colNume];
    x.Prenume = r.Coloane[colPrenume];
    x.CNP = r.Coloane[colCNP];
    x.Rudenie = r.Coloane[colRudenie];
    x.SerieBI = r.Coloane[colSerie];
    x.NrBI = r.Coloane[colNumar];
    if (element) {
        // The element's own kinship: the row's text names the same DateGen row.
        x.RudenieID = element->RudenieID;
        x.MotivID = element->MotivID;
        x.Suma = element->Suma;
        x.TipValuta = element->TipValuta;
    }
    l.lvwIesiti.push_back(std::move(r));
}

bool ListaInPas(const ListaMembri& l, const StareCerere& s) {
    if (int(l.lvw.size()) != MatriceNrElemente(s)) return false;
    for (size_t i = 0; i < l.lvw.size(); ++i) {
        const MembruCerere& m = (*s.MatriceMembri)[i];
        if (l.lvw[i][colID] != cheie(m) || l.lvw[i][colCNP] != m.CNP) return false;
    }
    return true;
}

Deschidere DeschideAdaugare(const StareCerere& s, int tipCerere, Mesaje& m) {
    Deschidere d;
    if (!alesTipul(tipCerere, m, d)) return d;
    d.Deschide = true;
    d.Mod = 1;
    d.Index = MatriceNrElemente(s);
    return d;
}

Deschidere DeschideModificare(const ListaMembri& l, int tipCerere, Mesaje& m) {
    Deschidere d;
    if (!alesTipul(tipCerere, m, d)) return d;
    if (l.lvw.empty()) return d;
    if (!l.Selectat || *l.Selectat < 0 || *l.Selectat >= int(l.lvw.size())) {
        m.Informatie(SelectatiOCerere);
        return d;
    }
    d.Deschide = true;
    d.Mod = 2;
    d.Index = *l.Selectat;
    return d;
}

TotaluriMembri DupaAdaugare(ListaMembri& l, const StareCerere& s, int index, Mesaje& m) {
    AfisMembru(l, s, 1, index);
    l.Selectat = int(l.lvw.size()) - 1;
    const qint64 cheieNoua = l.lvw.back()[colID].toLongLong();
    if (cheieNoua > 0) {
        const auto iesit = std::find_if(l.lvwIesiti.begin(), l.lvwIesiti.end(),
                                        [&](const RandIesit& r) { return r.Iesit.MembruID == cheieNoua; });
        if (iesit != l.lvwIesiti.end()) l.lvwIesiti.erase(iesit);
    }
    return totaluri(l, s, m);
}

TotaluriMembri DupaModificare(ListaMembri& l, const StareCerere& s, int index, Mesaje& m) {
    AfisMembru(l, s, 2, index);
    return totaluri(l, s, m);
}

MotivIesire MotivDinControale(const AlegereCombo& motiv, const AlegereCombo& valuta, bool chkVenit,
                              const QString& txtMembru) {
    MotivIesire r;
    r.MotivID = int(motiv.id);
    r.TipValuta = int(valuta.id);
    if (chkVenit) r.Suma = SumaCaseta(txtMembru);
    return r;
}

std::optional<TotaluriMembri> EliminaMembru(ListaMembri& l, StareCerere& s,
                                            const std::function<std::optional<MotivIesire>()>& frmMotiv, Mesaje& m) {
    if (!l.Selectat || *l.Selectat < 0 || *l.Selectat >= int(l.lvw.size())) {
        m.Informatie(SelectatiOCerere);
        return std::nullopt;
    }
    const int i = *l.Selectat;
    const RandLista& rand = l.lvw[size_t(i)];
    if (!m.Intrebare(QStringLiteral("Sigur doriti sa eliminati datele persoanei %1 %2 din aceasta cerere?")
                         .arg(rand[colNume], rand[colPrenume])))
        return std::nullopt;

    const std::optional<MotivIesire> motiv = frmMotiv ? frmMotiv() : std::nullopt;
    // A list out of step with the matrix may have a row without its element: the row still
    // goes, and the totals tell the disagreement.
    MembruCerere* el = i < MatriceNrElemente(s) ? &(*s.MatriceMembri)[size_t(i)] : nullptr;
    if (el && motiv) {
        el->MotivID = motiv->MotivID;
        el->Suma = motiv->Suma;
        el->TipValuta = motiv->TipValuta;
    }
    MutaLaIesiti(l, el);
    if (el) StergeElement(s, i);
    l.lvw.erase(l.lvw.begin() + i);
    if (l.lvw.empty())
        l.Selectat.reset();
    else
        l.Selectat = std::min(i, int(l.lvw.size()) - 1);
    return totaluri(l, s, m);
}

bool StergeIesit(ListaMembri& l, int index) {
    if (index < 0 || index >= int(l.lvwIesiti.size())) return false;
    l.lvwIesiti.erase(l.lvwIesiti.begin() + index);
    return true;
}

bool ComenziActive(const ListaMembri& l) {
    return !l.lvw.empty();
}
