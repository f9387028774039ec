#include "cases/Persoana.h"

#include "base/Eroare.h"
#include "base/Sume.h"
#include "base/Texte.h"
#include "cases/Cnp.h"
#include "store/Dialect.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"

#include <algorithm>

using namespace ElemPersoana;

namespace {

const QString TextDublura = QStringLiteral("CNP-ul acestei persoane se gaseste deja in lista ");
const QString Motiv18Ani = QStringLiteral("implinirea varstei de 18 ani");

// Keeps the one message DataNasterii gives, so that it can go to a label instead of a box.
class MesajRetinut : public Mesaje {
public:
    void Informatie(const QString& t, const QString& = {}) override { text = t; }
    void Avertisment(const QString& t, const QString& = {}) override { text = t; }
    void Critic(const QString& t, const QString& = {}) override { text = t; }
    bool Intrebare(const QString&, const QString& = {}, bool implicitDa = true) override { return implicitDa; }
    QString Intrare(const QString&, const QString& = {}, const QString& implicit = {}) override { return implicit; }
    QString text;
};

QString numeControl(const char* control, int element) {
    return QStringLiteral("%1_%2").arg(QLatin1String(control)).arg(element);
}

// Whether another element of the matrix has this CNP; `exceptie` is the element being changed.
bool CnpInLista(const QString& cnp, const StareCerere& stare, int exceptie) {
    if (!stare.MatriceMembri) return false;
    const auto& membri = *stare.MatriceMembri;
    for (int i = 0; i < int(membri.size()); ++i)
        if (i != exceptie && membri[size_t(i)].CNP.trimmed() == cnp) return true;
    return false;
}

const MembruCerere* elementCurent(const ContextPersoana& c, const StareCerere& stare) {
    if (c.Mod != 2 || !stare.MatriceMembri || c.Index < 0 || c.Index >= int(stare.MatriceMembri->size()))
        return nullptr;
    return &(*stare.MatriceMembri)[size_t(c.Index)];
}

QString textSuma(const Bani& suma) {
    return suma == Bani() ? QString() : FormatSuma(suma);
}

int bifa(bool b) {
    return b ? 1 : 0;
}

} // namespace

DatePersoana PersoanaNoua(const StareCerere& stare) {
    DatePersoana d;
    if (!stare.MatriceMembri || stare.MatriceMembri->empty())
        d.cboMembru[cboRudenie] = {1, QStringLiteral("TITULARUL")};
    return d;
}

bool EsteAdult(int rudenieID) {
    return rudenieID == 1 || rudenieID == 2 || rudenieID == 4 || rudenieID == 5;
}

DatePersoana DinMembru(const MembruCerere& m) {
    DatePersoana d;
    d.MembruID = m.MembruID;
    d.cboCNP = m.CNP;
    d.txtMembru[txtNume] = m.Nume;
    d.txtMembru[txtPrenume] = m.Prenume;
    d.cboMembru[cboRudenie] = {m.RudenieID, m.Rudenie};
    d.cboMembru[cboTipAct] = {m.TipAct, {}};
    d.txtMembru[txtSerieBI] = m.SerieBI;
    d.txtMembru[txtNrBI] = m.NrBI;
    d.cboMembru[cboEliberat] = {0, m.Eliberat};
    d.dtpData[dtpDataElib] = m.DataElib;
    d.cboMembru[cboCetatenie] = {m.CetatenieID, {}};
    d.txtMembru[txtTaraCetatenie] = m.TaraCetatenie;
    d.cboMembru[cboResedinta] = {m.ResedintaID, {}};
    d.txtMembru[txtLocResedinta] = m.LocResedinta;
    d.txtMembru[txtTaraResedinta] = m.TaraResedinta;
    d.cboMembru[cboStCivila] = {m.StCivila, {}};
    if (EsteAdult(m.RudenieID)) {
        d.cboMembru[cboStudii] = {m.Studii, {}};
        d.cboMembru[cboOcupatie] = {m.OcupatieID, m.Ocupatie};
    } else if (m.Studii != 0) {
        d.cboMembru[cboSituatieScolara] = {m.Studii, m.Ocupatie};
    }
    d.cboMembru[cboDrAsSociala] = {m.DrAsSociala, {}};
    d.chkMembru[chkLocuitAfara] = m.LocuitAfara != 0;
    d.txtMembru[txtPerioada11] = m.Perioada11;
    d.txtMembru[txtTaraAfara11] = m.TaraAfara11;
    d.txtMembru[txtPerioada22] = m.Perioada22;
    d.txtMembru[txtTaraAfara22] = m.TaraAfara22;
    d.chkMembru[chkLucreazaAfara] = m.LucreazaAfara != 0;
    d.txtMembru[txtPerioada1] = m.Perioada1;
    d.txtMembru[txtTaraAfara1] = m.TaraAfara1;
    d.txtMembru[txtPerioada2] = m.Perioada2;
    d.txtMembru[txtTaraAfara2] = m.TaraAfara2;
    d.chkMembru[chkVMG] = m.VMG != 0;
    d.chkMembru[chkAlocatie] = m.Alocatie != 0;
    d.chkMembru[chkIncalzire] = m.Incalzire != 0;
    d.cboMembru[cboTipIncalzTrecut] = {m.TipIncalzTrecut, {}};
    d.txtMembru[txtVenit] = textSuma(m.Venit);
    d.chkMembru[chkDizabilitate] = m.Dizabilitate != 0;
    d.cboMembru[cboUScolara] = {0, m.UScolara};
    d.cboMembru[cboLocScoala] = {0, m.LocScoala};
    // The 1 that a person without a school situation carries is not a mark the clerk set.
    d.chkMembru[chkRepetent] = m.Repetent != 0 && !d.cboMembru[cboSituatieScolara].text.isEmpty();
    d.chkMembru[chkAbandon] = m.Abandon != 0;
    d.chkMembru[chkPeste20abs] = m.Peste20abs != 0;
    d.chkMembru[chkDiminuare20] = m.Diminuare20 != 0;
    d.chkMembru[chkDiminuare50] = m.Diminuare50 != 0;
    d.dtpData[dtpData18Ani] = m.Data18Ani;
    d.cboMembru[cboMotiv] = {0, m.Motiv};
    d.cboMembru[cboStareMembru] = {m.StareMembru, {}};
    d.cboMembru[cboMotivID] = {m.MotivID, {}};
    d.chkVenit[chkVenitDa] = m.Suma != Bani();
    d.txtMembru[txtSuma] = textSuma(m.Suma);
    d.cboMembru[cboTipValuta] = {m.TipValuta, {}};
    d.dtpData[dtpDataStare] = m.DataStare;
    d.Grid = m.Adeverinte;
    return d;
}

int RepetentStocat(bool chkRepetent, const AlegereCombo& situatieScolara) {
    return chkRepetent || situatieScolara.text.isEmpty() ? 1 : 0;
}

MembruCerere InMembru(const DatePersoana& d, const MembruCerere& inainte) {
    MembruCerere m = inainte;
    // Amounts first: a box that holds no number stops here, before anything is copied.
    m.Venit = SumaCaseta(d.txtMembru[txtVenit]);
    m.Suma = SumaCaseta(d.txtMembru[txtSuma]);

    m.MembruID = d.MembruID;
    m.CNP = d.cboCNP.trimmed();
    m.Nume = d.txtMembru[txtNume];
    m.Prenume = d.txtMembru[txtPrenume];
    m.RudenieID = int(d.cboMembru[cboRudenie].id);
    m.Rudenie = d.cboMembru[cboRudenie].text;
    m.TipAct = int(d.cboMembru[cboTipAct].id);
    m.SerieBI = d.txtMembru[txtSerieBI];
    m.NrBI = d.txtMembru[txtNrBI];
    m.Eliberat = d.cboMembru[cboEliberat].text;
    m.DataElib = d.dtpData[dtpDataElib];
    m.CetatenieID = int(d.cboMembru[cboCetatenie].id);
    m.TaraCetatenie = d.txtMembru[txtTaraCetatenie];
    m.ResedintaID = int(d.cboMembru[cboResedinta].id);
    m.LocResedinta = d.txtMembru[txtLocResedinta];
    m.TaraResedinta = d.txtMembru[txtTaraResedinta];
    m.StCivila = int(d.cboMembru[cboStCivila].id);
    if (EsteAdult(m.RudenieID)) {
        m.Studii = int(d.cboMembru[cboStudii].id);
        m.OcupatieID = int(d.cboMembru[cboOcupatie].id);
        m.Ocupatie = d.cboMembru[cboOcupatie].text;
    } else {
        const AlegereCombo& situatie = d.cboMembru[cboSituatieScolara];
        m.Studii = int(situatie.id);
        m.OcupatieID = int(situatie.id);
        m.Ocupatie = situatie.text;
    }
    m.DrAsSociala = int(d.cboMembru[cboDrAsSociala].id);
    m.LocuitAfara = bifa(d.chkMembru[chkLocuitAfara]);
    m.Perioada11 = d.txtMembru[txtPerioada11];
    m.TaraAfara11 = d.txtMembru[txtTaraAfara11];
    m.Perioada22 = d.txtMembru[txtPerioada22];
    m.TaraAfara22 = d.txtMembru[txtTaraAfara22];
    m.LucreazaAfara = bifa(d.chkMembru[chkLucreazaAfara]);
    m.Perioada1 = d.txtMembru[txtPerioada1];
    m.TaraAfara1 = d.txtMembru[txtTaraAfara1];
    m.Perioada2 = d.txtMembru[txtPerioada2];
    m.TaraAfara2 = d.txtMembru[txtTaraAfara2];
    m.VMG = bifa(d.chkMembru[chkVMG]);
    m.Alocatie = bifa(d.chkMembru[chkAlocatie]);
    m.Incalzire = bifa(d.chkMembru[chkIncalzire]);
    m.TipIncalzTrecut = int(d.cboMembru[cboTipIncalzTrecut].id);
    m.Dizabilitate = bifa(d.chkMembru[chkDizabilitate]);
    m.UScolara = d.cboMembru[cboUScolara].text;
    m.LocScoala = d.cboMembru[cboLocScoala].text;
    m.Repetent = RepetentStocat(d.chkMembru[chkRepetent], d.cboMembru[cboSituatieScolara]);
    m.Abandon = bifa(d.chkMembru[chkAbandon]);
    m.Peste20abs = bifa(d.chkMembru[chkPeste20abs]);
    m.Diminuare20 = bifa(d.chkMembru[chkDiminuare20]);
    m.Diminuare50 = bifa(d.chkMembru[chkDiminuare50]);
    m.Data18Ani = d.dtpData[dtpData18Ani];
    m.Motiv = d.cboMembru[cboMotiv].text;
    m.MotivID = int(d.cboMembru[cboMotivID].id);
    m.TipValuta = int(d.cboMembru[cboTipValuta].id);
    m.DataStare = d.dtpData[dtpDataStare];
    m.ModificatLaSalvare = 1;
    m.StareMembru = int(d.cboMembru[cboStareMembru].id);
    const NastereCNP nastere = NastereDinCNP(m.CNP);
    m.DataNastere = nastere.DataNastere;
    m.DataNast = nastere.lblDataNast;
    m.Adeverinte.clear();
    std::copy_if(d.Grid.begin(), d.Grid.end(), std::back_inserter(m.Adeverinte),
                 [](const AdeverintaMembru& a) { return a.TipAdeverinta != 0; });
    return m;
}

QString VerificaPersoana(const DatePersoana& d, const ContextPersoana& c, const StareCerere& stare, Mesaje& m) {
    const auto esec = [&m](const QString& text, const QString& control) {
        m.Informatie(text);
        return control;
    };
    const QString cnp = d.cboCNP.trimmed();
    const QString cboCNP = QStringLiteral("cboCNP");
    if (cnp.isEmpty()) return esec(QStringLiteral("Nu puteti salva datele inainte de a introduce CNP-ul"), cboCNP);
    if (cnp.size() != 13)
        return esec(QStringLiteral("CNP incorect pentru ca are %1 caractere.").arg(cnp.size()), cboCNP);
    if (CnpInLista(cnp, stare, c.Mod == 2 ? c.Index : -1)) return esec(TextDublura, cboCNP);
    if (d.txtMembru[txtNume].trimmed().isEmpty())
        return esec(QStringLiteral("Nu puteti salva datele inainte de a introduce Numele"),
                    numeControl("txtMembru", txtNume));
    if (d.txtMembru[txtPrenume].trimmed().isEmpty())
        return esec(QStringLiteral("Nu puteti salva datele inainte de a introduce Prenumele"),
                    numeControl("txtMembru", txtPrenume));
    if (d.cboMembru[cboRudenie].id == 0)
        return esec(QStringLiteral("Nu puteti salva datele inainte de a introduce Gradul de rudenie"),
                    numeControl("cboMembru", cboRudenie));
    return {};
}

RezultatOk OkPersoana(const DatePersoana& d, const ContextPersoana& c, StareCerere& stare, Mesaje& m) {
    RezultatOk r;
    r.Focus = VerificaPersoana(d, c, stare, m);
    if (!r.Focus.isEmpty()) return r;
    if (c.Mod == 2) {
        const MembruCerere* inainte = elementCurent(c, stare);
        if (!inainte) throw Eroare(QStringLiteral("Exceptie: persoana %1 nu exista in lista membrilor.").arg(c.Index));
        (*stare.MatriceMembri)[size_t(c.Index)] = InMembru(d, *inainte);
        r.Index = c.Index;
        return r;
    }
    MembruCerere nou = InMembru(d, MembruCerere{});
    if (!stare.MatriceMembri) stare.MatriceMembri.emplace();
    stare.MatriceMembri->push_back(std::move(nou));
    r.Index = int(stare.MatriceMembri->size()) - 1;
    return r;
}

NastereCNP NastereDinCNP(const QString& cnp) {
    NastereCNP n;
    MesajRetinut motiv;
    n.DataNastere = DataNasterii(cnp, false, &motiv);
    if (!motiv.text.isEmpty()) {
        n.Oprit = true;
        n.lblDataNast = motiv.text;
        return n;
    }
    if (n.DataNastere.isValid())
        n.lblDataNast = QStringLiteral("%1 %2 %3")
                            .arg(n.DataNastere.day())
                            .arg(LuniAn()[n.DataNastere.month() - 1])
                            .arg(n.DataNastere.year());
    return n;
}

DateCNP DateDinCNP(const QString& cnp, int lunaSetata, int anSetat, Mesaje* m) {
    DateCNP r;
    r.Nastere = NastereDinCNP(cnp);
    if (r.Nastere.Oprit) return r;
    const QDate intaiaZi(anSetat, lunaSetata, 1);
    r.lblVarsta = QStringLiteral("Varsta: %1").arg(Varsta(intaiaZi, r.Nastere.DataNastere, cnp, m));
    // The year alone decides: turning 18 in January of the working year still keeps the date.
    const QDate majorat = DataNasterii(cnp, true, nullptr);
    if (majorat.isValid() && majorat.year() >= anSetat) {
        r.Data18Ani = majorat;
        r.Motiv = Motiv18Ani;
    }
    return r;
}

CautareCNP CautaDupaCNP(BazaDate& db, const QString& cnp) {
    Interogare q(
        db, QStringLiteral("SELECT M.MembruID, M.Nume, M.Prenume, M.TipAct, M.SerieBI, M.NrBI, M.Eliberat, M.DataElib, "
                           "M.Dizabilitate, C.CerereID, C.NrCerere "
                           "FROM Membrii M LEFT JOIN CereriMembrii CM ON CM.MembruID = M.MembruID "
                           "LEFT JOIN Cereri C ON C.CerereID = CM.CerereID "
                           "WHERE M.CNP = ? ORDER BY M.MembruID, C.CerereID"));
    q.Leaga(cnp).Executa();
    CautareCNP r;
    while (!(r.Persoana && r.Cerere) && q.Urmator()) {
        if (!r.Persoana) {
            PersoanaCunoscuta p;
            p.MembruID = q.Intreg(QStringLiteral("MembruID"));
            p.Nume = q.Text(QStringLiteral("Nume"));
            p.Prenume = q.Text(QStringLiteral("Prenume"));
            p.TipAct = int(q.Intreg(QStringLiteral("TipAct")));
            p.SerieBI = q.Text(QStringLiteral("SerieBI"));
            p.NrBI = q.Text(QStringLiteral("NrBI"));
            p.Eliberat = q.Text(QStringLiteral("Eliberat"));
            p.DataElib = q.Data(QStringLiteral("DataElib"));
            p.Dizabilitate = int(q.Intreg(QStringLiteral("Dizabilitate")));
            r.Persoana = p;
        }
        if (!r.Cerere && !q.EsteNul(QStringLiteral("CerereID"))) {
            const QVariant nr = q.Valoare(QStringLiteral("NrCerere"));
            r.Cerere = CerereCunoscuta{q.Intreg(QStringLiteral("MembruID")), q.Text(QStringLiteral("Nume")),
                                       q.Text(QStringLiteral("Prenume")),
                                       nr.isNull() ? QString() : QString::number(nr.toLongLong())};
        }
    }
    return r;
}

RezultatPlecareCNP PlecareCNP(DatePersoana& d, const ContextPersoana& c, const StareCerere& stare, BazaDate& db,
                              Mesaje& m) {
    RezultatPlecareCNP r;
    const QString cnp = d.cboCNP.trimmed();
    if (cnp.isEmpty()) return r;
    const CautareCNP gasit = CautaDupaCNP(db, cnp);

    if (VerificaCNP(cnp, &m) && gasit.Cerere) {
        const MembruCerere* element = elementCurent(c, stare);
        const bool altaPersoana = c.Mod != 2 || !element || element->MembruID != gasit.Cerere->MembruID;
        if (altaPersoana)
            m.Informatie(QStringLiteral("CNP-ul acestei persoane exista in Baza de Date la %1 %2, cererea nr: %3")
                             .arg(gasit.Cerere->Nume, gasit.Cerere->Prenume, gasit.Cerere->NrCerere));
    }

    if (cnp.size() == 13) {
        r.Date = DateDinCNP(cnp, c.LunaSetata, c.AnSetat, &m);
        if (!r.Date->Nastere.Oprit) {
            d.dtpData[dtpData18Ani] = r.Date->Data18Ani;
            d.cboMembru[cboMotiv] = {0, r.Date->Motiv};
        }
    }

    if (CnpInLista(cnp, stare, c.Mod == 2 ? c.Index : -1)) {
        m.Informatie(TextDublura);
        r.RevinoLaCNP = true;
        return r;
    }

    if (gasit.Persoana) {
        const PersoanaCunoscuta& p = *gasit.Persoana;
        d.MembruID = p.MembruID;
        d.txtMembru[txtNume] = p.Nume;
        d.txtMembru[txtPrenume] = p.Prenume;
        d.cboMembru[cboTipAct] = {p.TipAct, {}};
        d.txtMembru[txtSerieBI] = p.SerieBI;
        d.txtMembru[txtNrBI] = p.NrBI;
        d.cboMembru[cboEliberat] = {0, p.Eliberat};
        d.dtpData[dtpDataElib] = p.DataElib;
        d.chkMembru[chkDizabilitate] = p.Dizabilitate != 0;
        r.PersoanaReluata = true;
    } else {
        // A code nobody has: a person taken over by an earlier leave must not be written with it.
        // The element being changed keeps its own person, whose code is then corrected.
        const MembruCerere* element = elementCurent(c, stare);
        d.MembruID = element ? element->MembruID : 0;
    }
    return r;
}

ControaleDependente StareControale(const DatePersoana& d) {
    ControaleDependente s;
    const int rudenie = int(d.cboMembru[cboRudenie].id);
    if (EsteAdult(rudenie))
        s.Adult = true;
    else if (rudenie == 3 || (rudenie >= 6 && rudenie <= 10))
        s.Adult = false;
    s.picLucreaza = d.chkMembru[chkLucreazaAfara];
    s.picLocuieste = d.chkMembru[chkLocuitAfara];
    s.cboTipIncalzTrecut = d.chkMembru[chkIncalzire];
    s.RepetentAplicabil = d.cboMembru[cboSituatieScolara].text.startsWith(QLatin1String("elev"), Qt::CaseInsensitive);
    s.SumaVenitActiva = d.chkVenit[chkVenitDa];
    return s;
}

void ClickGrupElev(DatePersoana& d, int element, Mesaje& m) {
    static constexpr int grup[] = {chkRepetent, chkAbandon, chkPeste20abs, chkDiminuare20, chkDiminuare50, chkNiciUna};
    if (element == chkRepetent) {
        const AlegereCombo& situatie = d.cboMembru[cboSituatieScolara];
        if (d.chkMembru[chkRepetent] && (situatie.text.isEmpty() || situatie.id < 3)) {
            m.Avertisment(QStringLiteral("Pentru a putea fi repetent copilul trebuie sa fie elev."));
            d.chkMembru[chkRepetent] = false;
        }
        return;
    }
    if (std::find(std::begin(grup), std::end(grup), element) == std::end(grup)) return;
    for (int alt : grup)
        if (alt != element) d.chkMembru[size_t(alt)] = false;
}

void SchimbareSituatieScolara(DatePersoana& d) {
    if (!StareControale(d).RepetentAplicabil) d.chkMembru[chkRepetent] = false;
}

void ClickVenit(DatePersoana& d, int element) {
    if (element == chkVenitDa && d.chkVenit[chkVenitDa]) d.chkVenit[chkVenitNu] = false;
    if (element == chkVenitNu && d.chkVenit[chkVenitNu]) d.chkVenit[chkVenitDa] = false;
    if (!d.chkVenit[chkVenitDa]) d.txtMembru[txtSuma].clear();
}

std::vector<RandMembrii> ListaMembrii(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT M.MembruID, M.Nume, M.Prenume, M.CNP, T.DenScurt, M.SerieBI, M.NrBI "
                                    "FROM Membrii M LEFT JOIN TipuriActe T ON T.TipActID = M.TipAct "
                                    "ORDER BY M.MembruID"));
    q.Executa();
    std::vector<RandMembrii> randuri;
    while (q.Urmator())
        randuri.push_back({q.Intreg(0), q.Valoare(1).toString(), q.Valoare(2).toString(), q.Valoare(3).toString(),
                           q.Valoare(4).toString(), q.Valoare(5).toString(), q.Valoare(6).toString()});
    return randuri;
}

std::optional<qint64> CautaInMembrii(BazaDate& db, CautareMembrii camp, const QString& text, Mesaje& m) {
    QString conditie, eticheta, model;
    switch (camp) {
    case CautareMembrii::CNP:
        conditie = QStringLiteral("M.CNP LIKE ?");
        eticheta = QStringLiteral("CNP-ul: ");
        model = PrefixLike(text);
        break;
    case CautareMembrii::Prenume:
        conditie = QStringLiteral("M.PrenumeCautare LIKE ?");
        eticheta = QStringLiteral("Prenumele: ");
        model = PrefixLike(CheieCautare(text));
        break;
    case CautareMembrii::Nume:
        conditie = QStringLiteral("M.NumeCautare LIKE ?");
        eticheta = QStringLiteral("Numele: ");
        model = PrefixLike(CheieCautare(text));
        break;
    }
    Interogare q(db, QStringLiteral("SELECT M.MembruID FROM Membrii M WHERE %1 ESCAPE '\\' ORDER BY M.MembruID LIMIT 1")
                         .arg(conditie));
    q.Leaga(model);
    if (q.Exista()) return q.Intreg(0);
    m.Informatie(QStringLiteral("Nu s-a gasit ") + eticheta + text);
    return std::nullopt;
}
