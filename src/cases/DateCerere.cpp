#include "cases/DateCerere.h"

#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "cases/Cnp.h"
#include "base/Mesaje.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

#include <map>
#include <unordered_map>

using namespace ElemCerere;

namespace {

// Lists of DateGen whose texts the editor shows.
class TexteDateGen {
public:
    explicit TexteDateGen(BazaDate& db)
        : texte_(TexteDupaId(db, {TipDateGen::Statut, TipDateGen::Rudenie, TipDateGen::Ocupatie, TipDateGen::ModPlata,
                                  TipDateGen::Reprezentant, TipDateGen::SitScolaraElev})) {}
    const QString* Text(TipDateGen tip, qint64 id) const {
        const auto i = texte_.find({tip, id});
        return i == texte_.end() ? nullptr : &i->second;
    }
    QString TextSauGol(TipDateGen tip, qint64 id) const {
        const QString* t = Text(tip, id);
        return t ? *t : QString();
    }
    // The combo's choice for a stored value: nothing when the list has no such row.
    AlegereCombo Alegere(TipDateGen tip, qint64 id) const {
        const QString* t = Text(tip, id);
        return t ? AlegereCombo{id, *t} : AlegereCombo{};
    }

private:
    std::map<std::pair<TipDateGen, qint64>, QString> texte_;
};

QString NumarText(const QVariant& v) {
    return v.isNull() ? QString() : QString::number(v.toLongLong());
}
QString SumaText(const QVariant& v) {
    return v.isNull() ? QString() : TextSuma(Bani::DinVariant(v));
}
int Octet(const Interogare& q, const QString& camp) {
    return int(q.Intreg(camp));
}
bool Fanion(const Interogare& q, const QString& camp) {
    return q.Intreg(camp) != 0;
}

// The birth fields of the list from the CNP, with the notices of a wrong code.
void DateNastere(MembruCerere& p, const QVariant& cnp, Mesaje& m) {
    if (cnp.isNull()) return;
    if (p.CNP.size() != 13) {
        m.Avertisment(QStringLiteral("CNP gresit!"));
        return;
    }
    const int luna = int(Val(QStringView(p.CNP).mid(3, 2)));
    if (luna > 12 || luna < 1) {
        m.Avertisment(QStringLiteral("CNP este gresit. Va rog sa corectati!"));
        p.DataNast = QStringLiteral("GRESIT");
        return;
    }
    int baza = 0;
    if (p.CNP[0] == u'1' || p.CNP[0] == u'2')
        baza = 1900;
    else if (p.CNP[0] == u'5' || p.CNP[0] == u'6')
        baza = 2000;
    const int an = baza + int(Val(QStringView(p.CNP).mid(1, 2)));
    p.DataNast = p.CNP.mid(5, 2) + QLatin1Char(' ') + LuniAn()[luna - 1] + QLatin1Char(' ') + QString::number(an);
    p.DataNastere = DataNasterii(p.CNP, false, nullptr);
}

std::vector<MembruCerere> IncarcaMembri(BazaDate& db, qint64 cerereID, const TexteDateGen& dg, Mesaje& m) {
    std::vector<MembruCerere> membri;
    Interogare q(
        db,
        QStringLiteral(
            "SELECT M.MembruID, M.Nume, M.Prenume, M.CNP, M.TipAct, M.SerieBI, M.NrBI, M.Eliberat, M.DataElib, "
            "M.Dizabilitate, CM.RudenieID, CM.CetatenieID, CM.TaraCetatenie, CM.ResedintaID, CM.LocResedinta, "
            "CM.TaraResedinta, CM.StCivila, CM.Studii, CM.OcupatieID, CM.DrAsSociala, CM.Data18Ani, CM.Motiv, "
            "CM.MotivStare, CM.DataStare, CM.LocuitAfara, CM.Perioada11, CM.TaraAfara11, CM.Perioada22, "
            "CM.TaraAfara22, "
            "CM.LucreazaAfara, CM.Perioada1, CM.TaraAfara1, CM.Perioada2, CM.TaraAfara2, CM.UScolara, CM.LocScoala, "
            "CM.VMG, CM.Alocatie, CM.Incalzire, CM.TipIncalzTrecut, CM.Venit, CM.Repetent, CM.Abandon, CM.Peste20abs, "
            "CM.MotivID, CM.Suma, CM.TipValuta, CM.StareMembru, CM.Diminuare20, CM.Diminuare50 "
            "FROM Membrii M INNER JOIN CereriMembrii CM ON M.MembruID = CM.MembruID WHERE CM.CerereID = ? "
            // The titular first, the partner second; a missing kinship sorts first on both engines.
            "ORDER BY CASE WHEN CM.RudenieID IS NULL THEN 0 ELSE 1 END, CM.RudenieID, CM.MembruID"));
    q.Leaga(cerereID).Executa();
    while (q.Urmator()) {
        MembruCerere p;
        p.MembruID = q.Intreg(QStringLiteral("MembruID"));
        p.Nume = q.Text(QStringLiteral("Nume"));
        p.Prenume = q.Text(QStringLiteral("Prenume"));
        p.CNP = q.Text(QStringLiteral("CNP"));
        p.RudenieID = Octet(q, QStringLiteral("RudenieID"));
        p.Rudenie = dg.TextSauGol(TipDateGen::Rudenie, p.RudenieID);
        p.TipAct = Octet(q, QStringLiteral("TipAct"));
        p.SerieBI = q.Text(QStringLiteral("SerieBI"));
        p.NrBI = q.Text(QStringLiteral("NrBI"));
        p.Eliberat = q.Text(QStringLiteral("Eliberat"));
        p.DataElib = q.Data(QStringLiteral("DataElib"));
        p.CetatenieID = Octet(q, QStringLiteral("CetatenieID"));
        p.TaraCetatenie = q.Text(QStringLiteral("TaraCetatenie"));
        p.ResedintaID = Octet(q, QStringLiteral("ResedintaID"));
        p.LocResedinta = q.Text(QStringLiteral("LocResedinta"));
        p.TaraResedinta = q.Text(QStringLiteral("TaraResedinta"));
        p.StCivila = Octet(q, QStringLiteral("StCivila"));
        p.Studii = Octet(q, QStringLiteral("Studii"));
        p.OcupatieID = Octet(q, QStringLiteral("OcupatieID"));
        // A child's occupation is its school situation, kept in Studii.
        p.Ocupatie = p.Rudenie.contains(QStringLiteral("COPIL")) ? dg.TextSauGol(TipDateGen::SitScolaraElev, p.Studii)
                                                                 : dg.TextSauGol(TipDateGen::Ocupatie, p.OcupatieID);
        p.DrAsSociala = Octet(q, QStringLiteral("DrAsSociala"));
        p.Data18Ani = q.Data(QStringLiteral("Data18Ani"));
        p.Motiv = q.Text(QStringLiteral("Motiv"));
        p.MotivStare = q.Text(QStringLiteral("MotivStare"));
        p.DataStare = q.Data(QStringLiteral("DataStare"));
        p.LocuitAfara = Fanion(q, QStringLiteral("LocuitAfara")) ? 1 : 0;
        p.Perioada11 = q.Text(QStringLiteral("Perioada11"));
        p.TaraAfara11 = q.Text(QStringLiteral("TaraAfara11"));
        p.Perioada22 = q.Text(QStringLiteral("Perioada22"));
        p.TaraAfara22 = q.Text(QStringLiteral("TaraAfara22"));
        p.LucreazaAfara = Fanion(q, QStringLiteral("LucreazaAfara")) ? 1 : 0;
        p.Perioada1 = q.Text(QStringLiteral("Perioada1"));
        p.TaraAfara1 = q.Text(QStringLiteral("TaraAfara1"));
        p.Perioada2 = q.Text(QStringLiteral("Perioada2"));
        p.TaraAfara2 = q.Text(QStringLiteral("TaraAfara2"));
        p.UScolara = q.Text(QStringLiteral("UScolara"));
        p.LocScoala = q.Text(QStringLiteral("LocScoala"));
        p.VMG = Octet(q, QStringLiteral("VMG"));
        p.Alocatie = Octet(q, QStringLiteral("Alocatie"));
        p.Incalzire = Octet(q, QStringLiteral("Incalzire"));
        p.TipIncalzTrecut = Octet(q, QStringLiteral("TipIncalzTrecut"));
        p.Venit = q.Suma(QStringLiteral("Venit"));
        p.Dizabilitate = Octet(q, QStringLiteral("Dizabilitate"));
        p.Repetent = Octet(q, QStringLiteral("Repetent"));
        p.Abandon = Octet(q, QStringLiteral("Abandon"));
        p.Peste20abs = Octet(q, QStringLiteral("Peste20abs"));
        p.MotivID = Octet(q, QStringLiteral("MotivID"));
        p.Suma = q.Suma(QStringLiteral("Suma"));
        p.TipValuta = Octet(q, QStringLiteral("TipValuta"));
        p.StareMembru = Octet(q, QStringLiteral("StareMembru"));
        p.Diminuare20 = Octet(q, QStringLiteral("Diminuare20"));
        p.Diminuare50 = Octet(q, QStringLiteral("Diminuare50"));
        DateNastere(p, q.Valoare(QStringLiteral("CNP")), m);
        membri.push_back(std::move(p));
    }
    return membri;
}

// All certificates of the request in one query, each under its person, the latest expiry first.
void IncarcaAdeverinte(BazaDate& db, qint64 cerereID, std::vector<MembruCerere>& membri) {
    std::unordered_map<qint64, MembruCerere*> dupaID;
    for (MembruCerere& p : membri)
        dupaID.try_emplace(p.MembruID, &p);
    Interogare q(
        db,
        QStringLiteral(
            "SELECT AdevID, MembruID, TipAdeverinta, NrAdev, DataAdeverinta, DataDepunerii, DataExpAdev, AdvCurenta "
            "FROM Adeverinte WHERE CerereID = ? "
            "ORDER BY MembruID, CASE WHEN DataExpAdev IS NULL THEN 1 ELSE 0 END, DataExpAdev DESC, AdevID"));
    q.Leaga(cerereID).Executa();
    while (q.Urmator()) {
        const auto p = dupaID.find(q.Intreg(QStringLiteral("MembruID")));
        if (p == dupaID.end()) continue; // a person no longer on the list
        AdeverintaMembru a;
        a.AdevID = q.Intreg(QStringLiteral("AdevID"));
        a.TipAdeverinta = Octet(q, QStringLiteral("TipAdeverinta"));
        a.NrAdev = q.Text(QStringLiteral("NrAdev"));
        a.DataAdeverinta = q.Data(QStringLiteral("DataAdeverinta"));
        a.DataDepunerii = q.Data(QStringLiteral("DataDepunerii"));
        a.DataExpAdev = q.Data(QStringLiteral("DataExpAdev"));
        a.AdvCurenta = Octet(q, QStringLiteral("AdvCurenta"));
        p->second->Adeverinte.push_back(std::move(a));
    }
}

// Rows of (code, value) of a child table of the request; a code seen twice keeps its first value.
template <typename F> void CitesteCoduri(BazaDate& db, const QString& sql, qint64 cerereID, F&& pune) {
    Interogare q(db, sql);
    q.Leaga(cerereID).Executa();
    while (q.Urmator())
        pune(q);
}

void IncarcaIesiti(BazaDate& db, qint64 cerereID, const TexteDateGen& dg, std::vector<MembruIesit>& iesiti) {
    Interogare q(db,
                 QStringLiteral("SELECT X.MembruID, X.RudenieID, X.MotivID, X.Suma, X.TipValuta, M.Nume, M.Prenume, "
                                "M.CNP, M.SerieBI, M.NrBI "
                                "FROM CMIesiti X LEFT JOIN Membrii M ON M.MembruID = X.MembruID WHERE X.CerereID = ? "
                                "ORDER BY X.MembruID, X.RudenieID"));
    q.Leaga(cerereID).Executa();
    while (q.Urmator()) {
        MembruIesit r;
        r.MembruID = q.Intreg(QStringLiteral("MembruID"));
        r.Nume = q.Text(QStringLiteral("Nume"));
        r.Prenume = q.Text(QStringLiteral("Prenume"));
        r.CNP = q.Text(QStringLiteral("CNP"));
        r.RudenieID = Octet(q, QStringLiteral("RudenieID"));
        r.Rudenie = dg.TextSauGol(TipDateGen::Rudenie, r.RudenieID);
        r.Suma = q.Suma(QStringLiteral("Suma"));
        r.SerieBI = q.Text(QStringLiteral("SerieBI"));
        r.NrBI = q.Text(QStringLiteral("NrBI"));
        r.MotivID = Octet(q, QStringLiteral("MotivID"));
        r.TipValuta = Octet(q, QStringLiteral("TipValuta"));
        iesiti.push_back(std::move(r));
    }
}

// The request's own fields and its family's, into the controls and the housing state.
void AfisDate(const Interogare& q, const TexteDateGen& dg, DateCerere& d, StareCerere& s) {
    auto& t = d.txtCerere;
    auto text = [&](const char* camp) { return q.Text(QString::fromLatin1(camp)); };
    t[txtNrDosar] = NumarText(q.Valoare(QStringLiteral("NrDosar")));
    t[txtNrCerere] = NumarText(q.Valoare(QStringLiteral("NrCerere")));
    t[txtNrDosar2] = text("NrDosar2");
    t[txtNrCerere2] = text("NrCerere2");
    d.dtpData[dtpDataCerere] = q.Data(QStringLiteral("DataCerere"));

    t[txtJudet] = text("Judet");
    t[txtLocalitate] = text("Localitate");
    d.cboCerere[cboStrada] = {0, text("Strada")};
    t[txtNr] = text("Nr");
    t[txtBloc] = text("Bloc");
    t[txtSc] = text("Sc");
    t[txtAp] = text("Ap");
    t[txtTelefon] = text("Telefon");
    t[txtMobil] = text("Mobil");
    t[txtJudetR] = text("JudetR");
    t[txtLocalitateR] = text("LocalitateR");
    d.cboCerere[cboStradaR] = {0, text("StradaR")};
    t[txtNrR] = text("NrR");
    t[txtBlocR] = text("BlocR");
    t[txtScR] = text("ScR");
    t[txtApR] = text("ApR");

    d.cboCerere[cboReprLegal] = dg.Alegere(TipDateGen::Reprezentant, q.Intreg(QStringLiteral("ReprLegal")));
    d.cboCerere[cboModPlata] = dg.Alegere(TipDateGen::ModPlata, q.Intreg(QStringLiteral("ModPlata")));
    t[txtNumeTitularCont] = text("NumeTitularCont");
    t[txtCont] = text("Cont");
    t[txtBanca] = text("Banca");
    const int tip = int(q.Intreg(QStringLiteral("TipCerere")));
    d.cboCerere[cboTipCerere] = tip == 1 || tip == 2 ? AlegereCombo{tip, TextTipCerere(tip)} : AlegereCombo{};
    d.cboCerere[cboStare] = dg.Alegere(TipDateGen::Statut, q.Intreg(QStringLiteral("Stare")));
    t[txtVenitTotal] = SumaText(q.Valoare(QStringLiteral("VenitTotal")));
    t[txtVenitPeMembru] = SumaText(q.Valoare(QStringLiteral("VenitPeMembru")));
    t[txtCuantum] = SumaText(q.Valoare(QStringLiteral("Cuantum")));
    t[txtNrMembrii] = NumarText(q.Valoare(QStringLiteral("NrMembrii")));
    t[txtNrCopii] = NumarText(q.Valoare(QStringLiteral("NrCopii")));

    d.dtpData[dtpDataStare] = q.Data(QStringLiteral("DataStare"));
    d.cboCerere[cboMotivStare] = {0, text("MotivStare")};
    t[txtLuniRetro] = NumarText(q.Valoare(QStringLiteral("LuniRetro")));
    d.chkVmg = Fanion(q, QStringLiteral("Vmg"));
    d.chkIncalzire = Fanion(q, QStringLiteral("Inc"));
    d.chkSupl = Fanion(q, QStringLiteral("Supl"));
    const QString a1 = text("A1Solicita");
    d.chkVmg_s = a1.mid(0, 1) == QLatin1String("1");
    d.chkIncalzire_s = a1.mid(1, 1) == QLatin1String("1");
    d.chkSupl_s = a1.mid(2, 1) == QLatin1String("1");

    s.Gospodarire = Octet(q, QStringLiteral("Gospodarire"));
    s.LunaGospod = Octet(q, QStringLiteral("LunaGospod"));
    s.GospodLoc =
        q.EsteNul(QStringLiteral("GospodLoc")) ? (s.Gospodarire != 0 ? 2 : 0) : Octet(q, QStringLiteral("GospodLoc"));
    s.NrCamere = Octet(q, QStringLiteral("NrCamere"));
    s.TipDobandire = Octet(q, QStringLiteral("TipDobandire"));
    s.RegimJuridLoc = Octet(q, QStringLiteral("RegimJuridLoc"));
    s.TipIncalzire = Octet(q, QStringLiteral("TipIncalzire"));
    s.TipLocuinta = Octet(q, QStringLiteral("TipLocuinta"));
    s.Polita = Fanion(q, QStringLiteral("Polita"));
    s.SocietatePolita = text("SocietatePolita");
    s.NrPolita = text("NrPolita");
    s.DataStartPolita = q.Data(QStringLiteral("DataStartPolita"));
    s.DataStopPolita = q.Data(QStringLiteral("DataStopPolita"));
    s.AcoperaRiscuri = Fanion(q, QStringLiteral("AcoperaRiscuri"));
    s.Bife = text("Bife");
    s.ActeBife = text("ActeBife");
}

CerereIncarcata Incarca(BazaDate& db, qint64 cerereID, int lunaSetata, int anSetat, Mesaje& m) {
    CerereIncarcata r;
    const TexteDateGen dg(db);
    qint64 nrCopiiSalvat = 0;
    {
        Interogare q(
            db,
            QStringLiteral(
                "SELECT C.CerereID, C.FamilieID, C.NrCerere, C.NrCerere2, C.DataCerere, C.Stare, C.MotivStare, "
                "C.DataStare, C.VenitTotal, C.VenitPeMembru, C.Cuantum, C.NrMembrii, C.NrCopii, C.TipCerere, "
                "C.ReprLegal, "
                "C.ModPlata, C.NumeTitularCont, C.Cont, C.Banca, C.LuniRetro, C.Vmg, C.Inc, C.Supl, C.A1Solicita, "
                "C.Gospodarire, C.LunaGospod, C.GospodLoc, C.NrCamere, C.TipDobandire, C.RegimJuridLoc, "
                "C.TipIncalzire, "
                "C.TipLocuinta, C.Polita, C.SocietatePolita, C.NrPolita, C.DataStartPolita, C.DataStopPolita, "
                "C.AcoperaRiscuri, C.Bife, C.ActeBife, F.FamilieID AS FamiliaGasita, F.NrDosar, F.NrDosar2, F.Judet, "
                "F.Localitate, F.Strada, F.Nr, F.Bloc, F.Sc, F.Ap, F.Telefon, F.Mobil, F.JudetR, F.LocalitateR, "
                "F.StradaR, F.NrR, F.BlocR, F.ScR, F.ApR "
                "FROM Cereri C LEFT JOIN Familii F ON F.FamilieID = C.FamilieID WHERE C.CerereID = ?"));
        q.Leaga(cerereID);
        if (!q.Exista() || q.EsteNul(QStringLiteral("FamiliaGasita"))) {
            r.Mesaj = TextRandNegasit;
            return r;
        }
        r.Gasita = true;
        r.Date.Adaug = 2;
        r.Date.CerereID = q.Intreg(QStringLiteral("CerereID"));
        r.Date.FamilieID = q.Intreg(QStringLiteral("FamilieID"));
        AfisDate(q, dg, r.Date, r.Stare);
        nrCopiiSalvat = q.Intreg(QStringLiteral("NrCopii"));
    }

    std::vector<MembruCerere> membri = IncarcaMembri(db, cerereID, dg, m);
    IncarcaAdeverinte(db, cerereID, membri);
    const int numarati = CopiiDupaBaza(membri, lunaSetata, anSetat);
    if (numarati != nrCopiiSalvat) {
        r.Date.txtCerere[txtNrCopii] = QString::number(numarati);
        m.Avertisment(QStringLiteral("Numarul de copii salvati in baza de date este diferit") + QLatin1Char('\n') +
                      QStringLiteral("si se va recalcula."));
    }
    // A request with nobody on it leaves the matrix as never set up, as the list does.
    if (!membri.empty()) r.Stare.MatriceMembri = std::move(membri);

    StareCerere& s = r.Stare;
    CitesteCoduri(db, QStringLiteral("SELECT NrBifa, Valoare FROM BifeText WHERE CerereID = ? ORDER BY NrBifa"),
                  cerereID, [&, vazute = std::array<bool, 75>{}](const Interogare& b) mutable {
                      const qint64 i = b.Intreg(0) - 9;
                      if (i < 0 || i >= 75 || vazute[size_t(i)]) return;
                      vazute[size_t(i)] = true;
                      s.Bunuri[size_t(i)] = Bani::DinVariant(b.Valoare(1));
                  });
    CitesteCoduri(db, QStringLiteral("SELECT CodVenit, Valoare FROM Venituri WHERE CerereID = ? ORDER BY CodVenit"),
                  cerereID, [&, vazute = std::array<bool, 79>{}](const Interogare& v) mutable {
                      const qint64 i = v.Intreg(0) - 1;
                      if (i < 0 || i >= 79 || vazute[size_t(i)]) return;
                      vazute[size_t(i)] = true;
                      s.Venituri[size_t(i)] = Bani::DinVariant(v.Valoare(1));
                  });
    CitesteCoduri(db, QStringLiteral("SELECT Cod, NrCamere FROM Locuinte WHERE CerereID = ? ORDER BY Cod"), cerereID,
                  [&](const Interogare& l) {
                      const qint64 i = l.Intreg(0) - 1;
                      if (i < 0 || i >= 8 || s.LocuinteSel[size_t(i)].Bifat) return;
                      s.LocuinteSel[size_t(i)] = {int(l.Intreg(1)), true};
                  });
    IncarcaIesiti(db, cerereID, dg, r.Iesiti);
    return r;
}

} // namespace

std::vector<AlegereCombo> Alegeri(const std::vector<RandDateGen>& randuri) {
    std::vector<AlegereCombo> a;
    a.reserve(randuri.size());
    for (const RandDateGen& r : randuri)
        a.push_back({r.DataID, r.Continut});
    return a;
}

QString TextTipCerere(int tipCerere) {
    switch (tipCerere) {
    case 1:
        return QStringLiteral("alocatiei pt familiile cu sot, etc");
    case 2:
        return QStringLiteral("alocatiei de sustinere pentru familia monoparentala");
    default:
        return {};
    }
}

QDate DataStareDupaCerere(const QDate& dataCerere) {
    if (!dataCerere.isValid()) return {};
    const int an = dataCerere.year();
    int zile = 31;
    switch (dataCerere.month()) {
    case 4:
    case 6:
    case 9:
    case 11:
        zile = 30;
        break;
    case 2:
        zile = (an % 4 == 0 && an % 100 != 0) || an % 400 == 0 ? 29 : 28;
        break;
    default:
        break;
    }
    return dataCerere.addDays(zile - dataCerere.day() + 1);
}

DateCerere DefaultCerereNoua(BazaDate& db, const QDate& azi) {
    DateCerere d;
    d.Adaug = 1;
    Interogare judet(db, QStringLiteral("SELECT Denumire FROM Judete ORDER BY JudetID"));
    if (judet.Exista()) d.txtCerere[txtJudet] = judet.Valoare(0).toString();
    Interogare localitate(db, QStringLiteral("SELECT Denumire FROM Localitati ORDER BY LocalitateID"));
    if (localitate.Exista()) d.txtCerere[txtLocalitate] = localitate.Valoare(0).toString();
    d.dtpData[dtpDataCerere] = azi;
    d.dtpData[dtpDataStare] = DataStareDupaCerere(azi);
    return d;
}

CerereIncarcata IncarcaCerere(BazaDate& db, qint64 cerereID, int lunaSetata, int anSetat, Mesaje& m) {
    try {
        return Incarca(db, cerereID, lunaSetata, anSetat, m);
    } catch (const Eroare& e) {
        throw Eroare(QStringLiteral("Eroare in AfisDate: ") + e.text());
    }
}

int CopiiDupaBaza(const std::vector<MembruCerere>& membri, int lunaSetata, int anSetat) {
    const int lunaLucru = anSetat * 12 + lunaSetata;
    int n = 0;
    for (const MembruCerere& p : membri) {
        if (!p.EsteCopil() || p.Repetent != 0 || p.Abandon != 0 || p.Peste20abs != 0 || !p.Data18Ani.isValid())
            continue;
        // Months between the two dates counted by calendar month, as DateDiff("m") counts them.
        if (lunaLucru - (p.Data18Ani.year() * 12 + p.Data18Ani.month()) != 1) ++n;
    }
    return n;
}
