#include "reports/builders/Liste.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/MemorieMare.h"
#include "base/Mesaje.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "cases/Cnp.h"
#include "reports/builders/ComunListe.h"
#include "reports/builders/Constructori.h"
#include "reports/export/Cel.h"
#include "store/BazaDate.h"
#include "store/CitireRapida.h"

#include <QDir>
#include <QFileInfo>
#include <cmath>
#include <algorithm>
#include <array>
#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace Raport {
namespace {

const Aliniere Stanga{Orizontal::Stanga, Vertical::Centru};
const Aliniere Dreapta{Orizontal::Dreapta, Vertical::Centru};
const Aliniere Centru{Orizontal::Centru, Vertical::Centru};

// The other members of many requests, read in one query ordered by request, then looked up by
// request: one block of rows rather than a small list for every request.
template <typename T> class PeCerere {
public:
    void Adauga(qint64 cerere, T x) {
        if (inceputuri_.empty() || inceputuri_.back().first != cerere) inceputuri_.push_back({cerere, randuri_.size()});
        randuri_.push_back(std::move(x));
    }
    std::span<const T> Al(qint64 cerere) const {
        const auto gasit = std::lower_bound(inceputuri_.begin(), inceputuri_.end(), cerere,
                                            [](const auto& p, qint64 c) { return p.first < c; });
        if (gasit == inceputuri_.end() || gasit->first != cerere) return {};
        const size_t sfarsit = gasit + 1 == inceputuri_.end() ? randuri_.size() : (gasit + 1)->second;
        return std::span<const T>(randuri_).subspan(gasit->second, sfarsit - gasit->second);
    }

    // Each request's rows put in order among themselves.
    template <typename Cmp> void Ordoneaza(Cmp cmp) {
        for (size_t i = 0; i < inceputuri_.size(); ++i) {
            const size_t sfarsit = i + 1 == inceputuri_.size() ? randuri_.size() : inceputuri_[i + 1].second;
            std::sort(randuri_.begin() + std::ptrdiff_t(inceputuri_[i].second),
                      randuri_.begin() + std::ptrdiff_t(sfarsit), cmp);
        }
    }

private:
    VectorMare<std::pair<qint64, size_t>> inceputuri_;
    VectorMare<T> randuri_;
};

struct AltMembru {
    Depozit::Felie nume, prenume, cnp, bi;
    qint64 id = 0;
};

struct Membri {
    PeCerere<AltMembru> pe;
    Depozit texte;
    std::span<const AltMembru> Al(qint64 cerere) const { return pe.Al(cerere); }
    // The name as the lists print it: family name, a blank, the given names.
    std::array<QAnyStringView, 3> Nume(const AltMembru& x) const { return {texte[x.nume], u" ", texte[x.prenume]}; }
};

// The other members (kinship above 1) of the requests that the subquery `cereri` selects, each
// request's by name. The engine returns them in its key's order and the few of each request are
// sorted here: sorting millions of rows by request and name would cost the engine far more.
Membri AltiMembri(BazaDate& db, const QString& cereri, const std::function<void(CitireRapida&)>& leaga) {
    Membri m;
    CitireRapida q(db, QStringLiteral("SELECT CM.CerereID, CM.MembruID, M.Nume, M.Prenume, M.CNP, M.NrBI FROM "
                                      "CereriMembrii CM, Membrii M WHERE CM.MembruID = M.MembruID AND "
                                      "CM.RudenieID > 1 AND CM.CerereID IN (") +
                           cereri + QStringLiteral(") ORDER BY CM.CerereID"));
    leaga(q);
    q.Executa();
    while (q.Urmator())
        m.pe.Adauga(q.Intreg(0), {m.texte.Pune(q.Vedere(2)), m.texte.Pune(q.Vedere(3)), m.texte.Pune(q.Vedere(4)),
                                  m.texte.Pune(q.Vedere(5)), q.Intreg(1)});
    // UTF-8 bytes compare in the order of the characters, as the names' texts do.
    const auto octeti = [&t = m.texte](Depozit::Felie f) { return std::string_view(t[f].data(), size_t(t[f].size())); };
    m.pe.Ordoneaza([&](const AltMembru& x, const AltMembru& y) {
        if (const int c = octeti(x.nume).compare(octeti(y.nume))) return c < 0;
        if (const int c = octeti(x.prenume).compare(octeti(y.prenume))) return c < 0;
        return x.id < y.id;
    });
    return m;
}

QDate PrimaZi(int an, int luna) {
    return QDate(an, 1, 1).addMonths(luna - 1);
}

// A status test written "+C.Stare" keeps the engines off the status index: the sets the lists ask for
// cover most requests, which the index would fetch one at a time, out of the order the list wants.

// The ordering chosen, then the keys, so that rows come in the order they were entered when nothing
// is chosen and equal rows keep a fixed order.
QString Ordine(const Alegeri& a, const QString& chei) {
    const QString clauza = ClauzaOrdonare(a.ord1, a.ord2);
    return clauza.isEmpty() ? QStringLiteral(" ORDER BY ") + chei : clauza + QStringLiteral(", ") + chei;
}

// The keys of a list of members, named on the member's row: the engine then walks the members' own key
// in that order instead of sorting a million rows (the request's key is the same value).
const QString CheiMembri = QStringLiteral("CM.CerereID, CM.MembruID");

QString Text(const CitireRapida& q, const char* camp) {
    return q.Text(camp);
}

QString NumarText(const CitireRapida& q, const char* camp) {
    return q.EsteNul(camp) ? QString() : QString::number(q.Intreg(camp));
}

QString NumePrenume(const CitireRapida& q, const char* nume = "Nume", const char* prenume = "Prenume") {
    return Text(q, nume) + QLatin1Char(' ') + Text(q, prenume);
}

// The family's address with the office's word for street.
QString Adresa(const CitireRapida& q, const MediuRaport& mediu) {
    return AdresaRaport(Text(q, "Localitate"), mediu.setari.StrSat, Text(q, "Strada"), Text(q, "Nr"), Text(q, "Sc"),
                        Text(q, "Ap"));
}

void ScrieAdresa(Grila& g, int rand, int col, const CitireRapida& q, const MediuRaport& mediu) {
    ScrieAdresa(g, rand, col, q.Vedere("Localitate"), mediu.setari.StrSat, q.Vedere("Strada"), q.Vedere("Nr"),
                q.Vedere("Sc"), q.Vedere("Ap"));
}

// A whole number of the row as text and value, or an empty cell for none.
void ScrieNumar(Grila& g, int rand, int col, const CitireRapida& q, const char* camp) {
    if (!q.EsteNul(camp)) g.ScrieIntreg(rand, col, q.Intreg(camp));
}

// "12 / 03.04.2014  ": the request's number and date, with the two blanks the lists keep.
void ScrieNrDataCerere(Grila& g, int rand, int col, const CitireRapida& q) {
    g.ScriePiese(rand, col, {q.Vedere("NrCerere"), u" / ", DataScrisa(q.Data("DataCerere")).Vedere(), u"  "});
}

std::array<QAnyStringView, 3> NumePrenumeV(const CitireRapida& q, const char* nume = "Nume",
                                           const char* prenume = "Prenume") {
    return {q.Vedere(nume), u" ", q.Vedere(prenume)};
}

Grila Incepe(const MediuRaport& mediu) {
    return GrilaNoua(mediu.setari);
}

// The fields of the family and the request that the lists of requests and children print.
const QString CampuriCerere = QStringLiteral(
    "C.CerereID, C.NrCerere, C.DataCerere, C.NrCopii, C.NrMembrii, C.MembruID1, F.NrDosar, F.Localitate, F.Strada, "
    "F.Nr, F.Sc, F.Ap");

const std::vector<ColoanaLista> ColoaneCopii{{QStringLiteral("Nr. Crt."), 30, Dreapta},
                                             {QStringLiteral("Nr dosar"), 60, Dreapta},
                                             {QStringLiteral("Nr/Data cerere"), 130, Stanga},
                                             {QStringLiteral("Nume si Prenume"), 200, Stanga},
                                             {QStringLiteral("CNP"), 110, Centru},
                                             {QStringLiteral("Nr copii"), 60, Dreapta}};

// A row of the lists of requests and children: counter, dossier, number and date, name, code,
// children; the address, where the list has one, is the caller's.
int RandCerere(Lista& l, Grila& g, const CitireRapida& q, std::span<const QAnyStringView> nume, QAnyStringView cnp) {
    const int r = l.RandNou();
    g.ScrieIntreg(r, 1, l.Randuri());
    ScrieNumar(g, r, 2, q, "NrDosar");
    ScrieNrDataCerere(g, r, 3, q);
    g.ScriePiese(r, 4, nume);
    g.ScriePiese(r, 5, {cnp});
    ScrieNumar(g, r, 6, q, "NrCopii");
    return r;
}

// A list of one row per record of the family, request and person joined as `tabele` and `conditie`
// say: counter, dossier, number and date, the person's name and code, children.
Grila ListaSimpla(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, const QString& titlu,
                  const QString& tabele, const QString& conditie, const QString& chei, const QVariantList& valori) {
    Grila g = Incepe(mediu);
    Lista l(g, ColoaneCopii, CitestePrimariaRaport(db, m), titlu, false, a.luna, a.an);
    CitireRapida q(db, QStringLiteral("SELECT ") + CampuriCerere + QStringLiteral(", M.Nume, M.Prenume, M.CNP FROM ") +
                         tabele + QStringLiteral(" WHERE ") + conditie + Ordine(a, chei));
    for (const QVariant& v : valori)
        q.Leaga(v);
    q.Executa();
    while (q.Urmator())
        RandCerere(l, g, q, NumePrenumeV(q), q.Vedere("CNP"));
    l.Incheie();
    return g;
}

// The children's lists: the common join of family, request, member and person.
Grila ListaCopii(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, const QString& titlu,
                 const QString& conditie, const QVariantList& valori) {
    return ListaSimpla(db, m, mediu, a, titlu, QStringLiteral("Familii F, Cereri C, CereriMembrii CM, Membrii M"),
                       QStringLiteral("F.FamilieID = C.FamilieID AND C.CerereID = CM.CerereID AND CM.MembruID = "
                                      "M.MembruID AND ") +
                           conditie,
                       CheiMembri, valori);
}

QString TextData(const CitireRapida& q, const char* camp) {
    const QDate d = q.Data(camp);
    return d.isValid() ? FormatData(d) : QStringLiteral("-");
}

} // namespace

Grila ListaCereri(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, int stare, bool foaie) {
    Grila g = Incepe(mediu);
    std::vector<ColoanaLista> coloane = ColoaneCopii;
    coloane.push_back({QStringLiteral("Adresa"), 250, Stanga});
    if (foaie) {
        // The spreadsheet's widths were characters: 4, 6, 16, 31, 14, 6, 36.
        const int caractere[] = {4, 6, 16, 31, 14, 6, 36};
        const Aliniere alinieri[] = {Dreapta, Dreapta, Dreapta, Stanga, Centru, Centru, Stanga};
        for (size_t i = 0; i < coloane.size(); ++i) {
            coloane[i].latime = caractere[i] * 7 + 5;
            coloane[i].aliniere = alinieri[i];
        }
        coloane[3].titlu = QStringLiteral("Nume si prenume");
    }
    Lista l(g, coloane, CitestePrimariaRaport(db, m), QStringLiteral("persoanelor"), false, a.luna, a.an);
    if (foaie) g.Scrie(4, 1, QStringLiteral("Lista"));

    // The family is found by the request's own number: the old lists did so, and an office whose
    // family numbers differ from its request numbers sees it here as it always did.
    QString conditii = QStringLiteral("F.FamilieID = C.CerereID AND C.MembruID1 = M.MembruID");
    if (stare == 2)
        conditii += QStringLiteral(" AND +C.Stare IN (2, 6, 7, 8)");
    else if (stare != 0)
        conditii += QStringLiteral(" AND C.Stare = ?");
    if (!foaie && (a.tipCerere == 1 || a.tipCerere == 2)) conditii += QStringLiteral(" AND C.TipCerere = ?");
    const auto leaga = [&](CitireRapida& q) {
        if (stare != 0 && stare != 2) q.Leaga(stare);
        if (!foaie && (a.tipCerere == 1 || a.tipCerere == 2)) q.Leaga(a.tipCerere);
    };

    // The other members of the listed requests, all at once, by request.
    Membri membri;
    if (a.membri && !foaie)
        membri = AltiMembri(db, QStringLiteral("SELECT C.CerereID FROM Familii F, Cereri C, Membrii M WHERE ") + conditii,
                            leaga);
    CitireRapida q(db, QStringLiteral("SELECT ") + CampuriCerere +
                         QStringLiteral(", M.Nume, M.Prenume, M.CNP FROM Familii F, Cereri C, Membrii M WHERE ") +
                         conditii + Ordine(a, QStringLiteral("C.CerereID")));
    leaga(q);
    q.Executa();
    while (q.Urmator()) {
        const int primul = RandCerere(l, g, q, NumePrenumeV(q), q.Vedere("CNP"));
        ScrieAdresa(g, primul, 7, q, mediu);
        for (const AltMembru& x : membri.Al(q.Intreg("CerereID"))) {
            const int r = RandCerere(l, g, q, membri.Nume(x), membri.texte[x.cnp]);
            g.CopiazaContinut(r, 7, primul, 7);
        }
    }
    l.Incheie();
    return g;
}

Grila ListaCopii18(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    // December looks at February of the next year, and January is never listed: the rule the office keeps.
    const int luna = a.luna == 12 ? 1 : a.luna;
    const int an = a.luna == 12 ? a.an + 1 : a.an;
    const QDate d1 = PrimaZi(an, luna).addMonths(1), d2 = PrimaZi(an, luna).addMonths(2);
    return ListaCopii(db, m, mediu, a, QStringLiteral("persoanelor care implinesc 18 ani "),
                      QStringLiteral("CM.Data18Ani >= ? AND CM.Data18Ani < ?"), {d1, d2});
}

Grila ListaCopii7(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    // The code's year and month digits, compared as the numbers they are.
    const int an = a.an - 2000 - 7;
    if (an < 0)
        return ListaCopii(db, m, mediu, a, QStringLiteral("copiilor care implinesc 7 ani "), QStringLiteral("1 = 0"),
                          {});
    return ListaCopii(db, m, mediu, a, QStringLiteral("copiilor care implinesc 7 ani "),
                      QStringLiteral("M.CNP IS NOT NULL AND SUBSTR(M.CNP, 2, 2) = ? AND SUBSTR(M.CNP, 4, 2) = ?"),
                      {QStringLiteral("%1").arg(an, 2, 10, QLatin1Char('0')),
                       QStringLiteral("%1").arg(a.luna, 2, 10, QLatin1Char('0'))});
}

Grila ListaElevi(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, int cuAdeverinta) {
    Grila g = Incepe(mediu);
    const std::vector<ColoanaLista> coloane{{QStringLiteral("Nr. Crt."), 30, Dreapta},
                                            {QStringLiteral("Titular"), 200, Stanga},
                                            {QStringLiteral("CNP"), 200, Centru}};
    Lista l(g, coloane, CitestePrimariaRaport(db, m),
            cuAdeverinta == 1 ? QStringLiteral("elevi care au adeverinta de scolarizare ")
                              : QStringLiteral("elevi fara adeverinta de scolarizare "),
            false, a.luna, a.an);
    // A pupil counts as covered by any certificate of his on that request still valid after today.
    CitireRapida q(db, QStringLiteral("SELECT M.Nume, M.Prenume, M.CNP FROM Familii F, Cereri C, Membrii M, "
                                    "CereriMembrii CM WHERE F.FamilieID = C.FamilieID AND C.MembruID1 = M.MembruID AND "
                                    "CM.CerereID = C.CerereID AND CM.RudenieID IN (3, 6, 7, 8, 9, 10) AND "
                                    "CM.Studii IN (3, 4) AND ") +
                         (cuAdeverinta == 1 ? QString() : QStringLiteral("NOT ")) +
                         QStringLiteral("EXISTS (SELECT 1 FROM Adeverinte A WHERE A.CerereID = C.CerereID AND "
                                        "A.MembruID = CM.MembruID AND A.DataExpAdev > ?)") +
                         Ordine(a, CheiMembri));
    q.Leaga(a.azi);
    q.Executa();
    while (q.Urmator()) {
        const int r = l.RandNou();
        g.ScrieIntreg(r, 1, l.Randuri());
        g.ScriePiese(r, 2, NumePrenumeV(q));
        g.ScriePiese(r, 3, {q.Vedere("CNP")});
    }
    l.Incheie();
    return g;
}

Grila ListaCereri6Luni(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, bool foaie) {
    QString conditie;
    QVariantList valori;
    if (foaie) {
        // The spreadsheet lists every request filed before the month five months back.
        conditie = QStringLiteral("C.DataCerere < ?");
        valori = {PrimaZi(a.an, a.luna).addMonths(-5)};
    } else {
        const double citit = Val(a.nrLuni);
        const int n = citit > 0 ? int(std::floor(citit)) : 0;
        const int ani = n / 12, luni = n % 12;
        const int luna = a.luna <= luni ? 12 + a.luna - luni : a.luna - luni;
        const int an = a.luna <= luni ? a.an - ani - 1 : a.an - ani;
        conditie = QStringLiteral("C.DataCerere >= ? AND C.DataCerere < ?");
        valori = {PrimaZi(an, luna), PrimaZi(an, luna).addMonths(1)};
    }
    return ListaSimpla(db, m, mediu, a, QStringLiteral("cererilor care implinesc 6 luni "),
                       QStringLiteral("Familii F, Cereri C, Membrii M"),
                       QStringLiteral("F.FamilieID = C.FamilieID AND C.MembruID1 = M.MembruID AND "
                                      "+C.Stare IN (1, 2, 6, 7, 8) AND ") +
                           conditie,
                       QStringLiteral("C.CerereID"), valori);
}

namespace {

// Each person's latest certificate of each kind, for person numbers up to the number of certificates
// and the kinds the catalogue has; of two alike, the first written.
const QString AdvCurente = QStringLiteral(
    "SELECT AdevID FROM (SELECT AdevID, ROW_NUMBER() OVER (PARTITION BY MembruID, TipAdeverinta ORDER BY CASE WHEN "
    "DataExpAdev IS NULL THEN 1 ELSE 0 END, DataExpAdev DESC, AdevID) AS Loc FROM Adeverinte WHERE MembruID <= "
    "(SELECT COUNT(*) FROM Adeverinte) AND TipAdeverinta >= 1 AND TipAdeverinta <= (SELECT COALESCE(MAX(DataID), 0) "
    "FROM DateGen WHERE Tip = 30)) P WHERE Loc = 1");

} // namespace

qint64 RecalculAdvCurenta(BazaDate& db, bool stergeMarcileVechi) {
    Tranzactie t(db);
    // Only the marks that change are written: month after month most stay as they were.
    db.Executa(QStringLiteral("CREATE TEMPORARY TABLE AdvCurente (AdevID BIGINT PRIMARY KEY)"));
    db.Executa(QStringLiteral("INSERT INTO AdvCurente (AdevID) ") + AdvCurente);
    if (stergeMarcileVechi)
        db.Executa(QStringLiteral("UPDATE Adeverinte SET AdvCurenta = NULL WHERE AdvCurenta IS NOT NULL AND NOT EXISTS "
                                  "(SELECT 1 FROM AdvCurente X WHERE X.AdevID = Adeverinte.AdevID)"));
    Interogare marcheaza(db, QStringLiteral("UPDATE Adeverinte SET AdvCurenta = 1 WHERE (AdvCurenta IS NULL OR "
                                            "AdvCurenta <> 1) AND AdevID IN (SELECT AdevID FROM AdvCurente)"));
    marcheaza.Executa();
    const qint64 marcate = marcheaza.RanduriAfectate();
    db.Executa(QStringLiteral("DROP TABLE AdvCurente"));
    t.Confirma();
    return marcate;
}

qint64 NumarAdvCurenteNemarcate(BazaDate& db) {
    Interogare q(db,
                 QStringLiteral("SELECT COUNT(*) FROM Adeverinte A WHERE (A.AdvCurenta IS NULL OR A.AdvCurenta <> 1) "
                                "AND A.AdevID IN (") +
                     AdvCurente + QStringLiteral(")"));
    q.Exista();
    return q.Intreg(0);
}

Grila ListaActeExpira(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, bool foaie) {
    if (!foaie) RecalculAdvCurenta(db);
    Grila g = Incepe(mediu);
    const std::vector<ColoanaLista> coloane{
        {QStringLiteral("Nr. Crt."), 38, Dreapta},       {QStringLiteral("Numele"), 80, Stanga},
        {QStringLiteral("Prenumele"), 110, Stanga},      {QStringLiteral("CNP"), 100, Centru},
        {QStringLiteral("Adresa"), 160, Stanga},         {QStringLiteral("Tip act"), 100, Stanga},
        {QStringLiteral("Data Dep"), 100, Centru},       {QStringLiteral("Data Act"), 100, Centru},
        {QStringLiteral("Data expirarii"), 100, Centru}, {QStringLiteral("Motivul"), 160, Stanga}};
    Lista l(g, coloane, CitestePrimariaRaport(db, m),
            QStringLiteral("LISTA ACTE CARE EXPIRA IN LUNA ") + LuniAn().value(a.luna - 1), true, a.luna, a.an);
    CitireRapida q(
        db, QStringLiteral("SELECT F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, C.MotivStare, A.TipAdeverinta, "
                           "A.DataDepunerii, A.DataAdeverinta, A.DataExpAdev, P.Nume, P.Prenume, P.CNP, D.Continut "
                           "FROM Familii F, Cereri C, Adeverinte A LEFT JOIN Membrii P ON P.MembruID = A.MembruID "
                           "LEFT JOIN DateGen D ON D.Tip = 30 AND D.DataID = A.TipAdeverinta WHERE "
                           "F.FamilieID = C.FamilieID AND C.CerereID = A.CerereID AND +C.Stare IN (2, 3, 6, 7, 8) AND "
                           "A.DataExpAdev >= ? AND A.DataExpAdev < ?") +
                (foaie ? QString() : QStringLiteral(" AND A.AdvCurenta = 1")) +
                QStringLiteral(" ORDER BY C.NrCerere, A.AdevID"));
    q.Leaga(PrimaZi(a.an, a.luna)).Leaga(PrimaZi(a.an, a.luna).addMonths(1));
    q.Executa();
    while (q.Urmator()) {
        const qint64 nr = l.Randuri() + 1;
        const QString tip = q.EsteNul("TipAdeverinta") ? QStringLiteral("nesetat")
                            : q.EsteNul("Continut")    ? QStringLiteral("necunoscut")
                                                                       : Text(q, "Continut");
        l.Rand({QString::number(nr), Text(q, "Nume"), Text(q, "Prenume"), Text(q, "CNP"), Adresa(q, mediu), tip,
                TextData(q, "DataDepunerii"), TextData(q, "DataAdeverinta"), TextData(q, "DataExpAdev"),
                Text(q, "MotivStare")},
               {nr});
    }
    l.Incheie();
    return g;
}

Grila ListaPersoane(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a, bool copii) {
    Grila g = Incepe(mediu);
    const std::vector<ColoanaLista> coloane{
        {QStringLiteral("Nr. Crt."), 30, Dreapta},
        {QStringLiteral("Nr dosar"), 60, Dreapta},
        {QStringLiteral("Nr/Data cerere"), 130, Stanga},
        {copii ? QStringLiteral("Nume si prenume copil") : QStringLiteral("Nume si prenume adult"), 200, Stanga},
        {copii ? QStringLiteral("CNP copil") : QStringLiteral("CNP"), 120, Centru},
        {QStringLiteral("Adresa"), 250, Stanga},
        {QStringLiteral("Titular cerere"), 200, Stanga},
        {QStringLiteral("Varsta"), 60, Dreapta}};
    Lista l(g, coloane, CitestePrimariaRaport(db, m),
            copii ? QStringLiteral("LISTA COPII") : QStringLiteral("LISTA ADULTI"), true, a.luna, a.an);
    CitireRapida q(db,
                 QStringLiteral("SELECT ") + CampuriCerere +
                     QStringLiteral(", M.Nume, M.Prenume, M.CNP, T.Nume AS TitularN, T.Prenume AS TitularP FROM "
                                    "Familii F, Cereri C LEFT JOIN Membrii T ON T.MembruID = C.MembruID1, "
                                    "CereriMembrii CM, Membrii M "
                                    "WHERE F.FamilieID = C.FamilieID AND C.CerereID = CM.CerereID AND "
                                    "M.MembruID = CM.MembruID AND +C.Stare IN (1, 2, 6, 7, 8) AND CM.RudenieID IN ") +
                     (copii ? QStringLiteral("(3, 6, 7, 8, 9)") : QStringLiteral("(1, 2, 4, 5)")) +
                     Ordine(a, CheiMembri));
    q.Executa();
    // The age on the first day of the month after the working one.
    const QDate referinta = PrimaZi(a.an, a.luna).addMonths(1);
    while (q.Urmator()) {
        const int r = l.RandNou();
        const QString cnp = Text(q, "CNP");
        g.ScrieIntreg(r, 1, l.Randuri());
        ScrieNumar(g, r, 2, q, "NrDosar");
        ScrieNrDataCerere(g, r, 3, q);
        g.ScriePiese(r, 4, NumePrenumeV(q));
        g.ScriePiese(r, 5, {cnp});
        ScrieAdresa(g, r, 6, q, mediu);
        g.ScriePiese(r, 7, NumePrenumeV(q, "TitularN", "TitularP"));
        g.ScrieIntreg(r, 8, Varsta(referinta, DataNasterii(cnp, false, nullptr), cnp, &m));
    }
    l.Incheie();
    if (copii) {
        m.Informatie(QString::number(l.Randuri()));
        Interogare s(db, QStringLiteral("SELECT SUM(NrCopii) AS NrCop FROM Cereri WHERE Stare IN (1, 2, 6, 7, 8)"));
        s.Executa();
        const qint64 nrCop = s.Urmator() ? s.Intreg(QStringLiteral("NrCop")) : 0;
        if (nrCop != l.Randuri()) m.Informatie(QStringLiteral("Sunt %1 copii").arg(nrCop));
    }
    return g;
}

Grila SituatieCentralizata(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    Grila g = Incepe(mediu);
    const PrimarieRaport p = CitestePrimariaRaport(db, m);
    constexpr int Coloane = 6, RandTitluri = 6;
    g.SeteazaColoane(Coloane + 1);
    g.SeteazaRanduri(RandTitluri + 1);
    const int latimi[] = {50, 160, 105, 60, 160, 105};
    const char* titluri[] = {"Nr. Crt.",
                             "Nume si prenume titular",
                             "CNP titular",
                             "Numar membrii familie",
                             "Nume si prenume membrii familie",
                             "CNP membru familie "};
    for (int c = 1; c <= Coloane; ++c) {
        g.SeteazaLatimeColoana(c, latimi[c - 1]);
        g.Scrie(RandTitluri, c, QString::fromUtf8(titluri[c - 1]));
    }
    g.Scrie(1, 1,
            p.Denumire.isEmpty()
                ? QStringLiteral("CONSILIUL LOCAL.........................................................")
                : QStringLiteral("CONSILIUL LOCAL ") + p.Denumire);
    g.Uneste({1, 1, 1, 3});
    g.Scrie(1, 5, QStringLiteral("CERTIFICARE"));
    g.Scrie(2, 5, QStringLiteral("PRIMAR"));
    g.Scrie(3, 1, QStringLiteral("SITUATIA CENTRALIZATA"));
    g.Scrie(4, 1, QStringLiteral("privind beneficiarii de alocatie de sustinere - %1").arg(a.an));
    for (int r : {1, 2})
        g.Uneste({r, 5, r, 6});
    for (int r : {3, 4}) {
        g.Uneste({r, 1, r, Coloane});
        g.Aliniaza({r, 1, r, Coloane}, Centru);
    }
    g.SeteazaFont({3, 1, 3, Coloane}, {QString(), 0, true, {}, {}});
    g.SeteazaInaltimeRand(RandTitluri, 36);
    g.Incadreaza({RandTitluri, 1, RandTitluri, Coloane}, true);
    g.Bordura({RandTitluri, 1, RandTitluri, Coloane}, Margine::Jos, Linie::Groasa);

    // Ordering by name or street needs the titular and the family; without a choice, the family's
    // requests together in the order they came.
    const QString clauza = ClauzaOrdonare(a.ord1, a.ord2);
    const QString ordine = clauza.isEmpty() ? QStringLiteral(" ORDER BY C.FamilieID, C.CerereID")
                                            : clauza + QStringLiteral(", C.CerereID");
    const QString stari = QStringLiteral("+C.Stare IN (1, 2, 6, 7, 8, 9)");
    const QString cereri = QStringLiteral("FROM Cereri C LEFT JOIN Membrii M ON M.MembruID = C.MembruID1 LEFT JOIN "
                                          "Familii F ON F.FamilieID = C.FamilieID WHERE ") + stari;
    Membri altii;
    {
        // The request joined on each member's row, rather than looked up twice per member.
        CitireRapida q(db, QStringLiteral("SELECT CM.CerereID, P.Nume, P.Prenume, P.CNP FROM CereriMembrii CM JOIN "
                                          "Cereri C ON C.CerereID = CM.CerereID LEFT JOIN Membrii P ON P.MembruID = "
                                          "CM.MembruID WHERE ") +
                               stari + QStringLiteral(" AND CM.MembruID <> C.MembruID1 ORDER BY CM.CerereID, CM.MembruID"));
        q.Executa();
        while (q.Urmator())
            altii.pe.Adauga(q.Intreg("CerereID"), {altii.texte.Pune(q.Vedere("Nume")),
                                                   altii.texte.Pune(q.Vedere("Prenume")),
                                                   altii.texte.Pune(q.Vedere("CNP")), {}, 0});
    }
    CitireRapida q(db, QStringLiteral("SELECT C.CerereID, C.NrCerere, C.NrMembrii, M.Nume, M.Prenume, M.CNP ") + cereri +
                         ordine);
    q.Executa();
    qint64 nr = 0;
    int r = RandTitluri + 1;
    const auto rand = [&] {
        g.SeteazaRanduri(r + 1);
        g.Bordura({r, 1, r, Coloane}, Margine::Jos, Linie::Subtire);
        return r++;
    };
    while (q.Urmator()) {
        ++nr;
        const int primul = rand();
        g.ScrieIntreg(primul, 1, nr);
        g.ScriePiese(primul, 2, NumePrenumeV(q));
        g.ScriePiese(primul, 3, {q.Vedere("CNP")});
        ScrieNumar(g, primul, 4, q, "NrMembrii");
        const auto membri = altii.Al(q.Intreg("CerereID"));
        for (size_t i = 0; i < membri.size(); ++i) {
            const int rm = i == 0 ? primul : rand();
            g.ScriePiese(rm, 5, altii.Nume(membri[i]));
            g.ScriePiese(rm, 6, {altii.texte[membri[i].cnp]});
        }
        const qint64 gasiti = qint64(membri.size()) + 1;
        if (gasiti != q.Intreg("NrMembrii"))
            m.Informatie(QStringLiteral("Cererea %1 %2 %3 are %4 membrii in loc de %5")
                             .arg(Text(q, "NrCerere"), Text(q, "Nume"), Text(q, "Prenume"))
                             .arg(gasiti)
                             .arg(NumarText(q, "NrMembrii")));
    }
    if (r > RandTitluri + 1) g.Bordura({r - 1, 1, r - 1, Coloane}, Margine::Jos, Linie::Groasa);
    m.Informatie(QStringLiteral("%1 cereri parcurse").arg(nr));
    g.SeteazaRanduri(r + 4);
    g.Scrie(r + 1, 2, QStringLiteral("Intocmit"));
    g.Scrie(r + 2, 2,
            p.AsSocial.isEmpty() ? QStringLiteral("Nume.......................")
                                 : QStringLiteral("Nume ") + p.AsSocial);
    g.Scrie(r + 3, 2, QStringLiteral("Semnatura.............................."));
    return g;
}

Grila BorderouBeneficiari(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    const QString sablon = QDir(mediu.applicationPath).filePath(QStringLiteral("Acte/Borderou_beneficiari.cel"));
    if (!QFileInfo::exists(sablon))
        throw Eroare(QStringLiteral("Nu exista fisierul sablon 'Borderou_beneficiari.cel'") +
                     QStringLiteral(". Sunati la 0700-111222!"));
    Grila g = IncarcaCel(sablon);
    const PrimarieRaport p = CitestePrimariaRaport(db, m);
    // The statuses chosen, each bound; none chosen filters on 0, which no request has.
    QList<qint64> stari = a.stari;
    if (stari.isEmpty()) stari << 0;
    QString semne;
    for (qsizetype i = 0; i < stari.size(); ++i)
        semne += i ? QStringLiteral(", ?") : QStringLiteral("?");
    CitireRapida q(db, QStringLiteral("SELECT M.Nume, M.Prenume, M.CNP FROM Familii F, Cereri C, Membrii M WHERE "
                                    "F.FamilieID = C.FamilieID AND C.MembruID1 = M.MembruID AND +C.Stare IN (") +
                         semne + QStringLiteral(") AND C.DataStare >= ? AND C.DataStare < ?") +
                         Ordine(a, QStringLiteral("C.CerereID")));
    for (qint64 s : stari)
        q.Leaga(s);
    q.Leaga(PrimaZi(a.an, a.luna)).Leaga(PrimaZi(a.an, a.luna).addMonths(1));
    q.Executa();
    constexpr int PrimaColoana = 2, Coloane = 6;
    if (g.Coloane() < PrimaColoana + Coloane) g.SeteazaColoane(PrimaColoana + Coloane);
    const QString borderou = a.nrBord + QLatin1Char('/') + FormatData(a.dataBord);
    int r = 2;
    qint64 nr = 0;
    while (q.Urmator()) {
        if (g.Randuri() <= r) g.SeteazaRanduri(r + 1);
        ++nr;
        g.Scrie(r, PrimaColoana, QString::number(nr), nr);
        g.Scrie(r, PrimaColoana + 1, p.Denumire);
        g.Scrie(r, PrimaColoana + 2, NumePrenume(q));
        g.Scrie(r, PrimaColoana + 3, Text(q, "CNP"));
        g.Scrie(r, PrimaColoana + 4, QStringLiteral("ASF"));
        g.Scrie(r, PrimaColoana + 5, borderou);
        ++r;
    }
    if (nr > 0) {
        const Dreptunghi zona{2, PrimaColoana, r - 1, PrimaColoana + Coloane - 1};
        for (Margine l : {Margine::Stanga, Margine::Dreapta, Margine::Sus, Margine::Jos, Margine::InteriorVertical,
                          Margine::InteriorOrizontal})
            g.Bordura(zona, l, Linie::Subtire);
    }
    return g;
}

Grila ListaMembrii(BazaDate& db, Mesaje& m, const MediuRaport& mediu, const Alegeri& a) {
    Grila g = Incepe(mediu);
    const std::vector<ColoanaLista> coloane{
        {QStringLiteral("Nr. Crt."), 30, Dreapta},
        {QStringLiteral("Nume si Prenume"), 200, Stanga},
        {QStringLiteral("Comuna / Municipiul / Orasul"), 130, Stanga},
        {QStringLiteral("Adresa"), 250, Stanga},
        {QStringLiteral("CNP"), 120, Centru},
        {QStringLiteral("BI/CI"), 80, Stanga},
        {QStringLiteral("Nr dosar"), 60, Dreapta},
        {QStringLiteral("Tip beneficiar handicapat/ pensionar/somer/ VMG)"), 165, Stanga}};
    Lista l(g, coloane, CitestePrimariaRaport(db, m), QStringLiteral("LISTA MEMBRII"), true, a.luna, a.an);
    const QString titulari =
        QStringLiteral("FROM Familii F, Cereri C, CereriMembrii CM, Membrii M WHERE "
                       "F.FamilieID = C.FamilieID AND C.CerereID = CM.CerereID AND "
                       "M.MembruID = CM.MembruID AND CM.RudenieID = 1 AND +C.Stare IN (1, 2, 6, 7, 8)");
    // The other members of every request of the statuses: those of a request that has no row here are
    // never asked for, and the narrower set would cost the engine the whole join again.
    const Membri membri = AltiMembri(
        db, QStringLiteral("SELECT C.CerereID FROM Cereri C WHERE +C.Stare IN (1, 2, 6, 7, 8)"), [](CitireRapida&) {});
    CitireRapida q(db, QStringLiteral("SELECT C.CerereID, F.NrDosar, F.Localitate, F.Strada, F.Nr, F.Sc, F.Ap, M.Nume, "
                                    "M.Prenume, M.CNP, M.NrBI ") +
                         titulari + Ordine(a, CheiMembri));
    q.Executa();
    while (q.Urmator()) {
        const int primul = l.RandNou();
        g.ScrieIntreg(primul, 1, l.Randuri());
        g.ScriePiese(primul, 2, NumePrenumeV(q));
        g.ScriePiese(primul, 3, {q.Vedere("Localitate")});
        ScrieAdresa(g, primul, 4, q, mediu);
        g.ScriePiese(primul, 5, {q.Vedere("CNP")});
        g.ScriePiese(primul, 6, {q.Vedere("NrBI")});
        ScrieNumar(g, primul, 7, q, "NrDosar");
        g.ScriePiese(primul, 8, {u"ASF"});
        // What the family's rows share is written once and shown again on the others.
        for (const AltMembru& x : membri.Al(q.Intreg("CerereID"))) {
            const int r = l.RandNou();
            g.ScrieIntreg(r, 1, l.Randuri());
            g.ScriePiese(r, 2, membri.Nume(x));
            g.ScriePiese(r, 5, {membri.texte[x.cnp]});
            g.ScriePiese(r, 6, {membri.texte[x.bi]});
            for (int c : {3, 4, 7, 8})
                g.CopiazaContinut(r, c, primul, c);
        }
    }
    l.Incheie();
    return g;
}

void InregistreazaListe(std::vector<IntrareRaport>& c) {
    const auto ambele = [&](int index, const Constructor& f) {
        c[size_t(index)].grila = f;
        if (!c[size_t(index)].faraFoaie) c[size_t(index)].foaie = f;
    };
    for (const auto& [index, stare] : {std::pair{0, 0}, {1, 2}, {2, 3}, {3, 4}, {4, 5}}) {
        c[size_t(index)].grila = [stare](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
            return ListaCereri(db, m, md, a, stare, false);
        };
        c[size_t(index)].foaie = [stare](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
            return ListaCereri(db, m, md, a, stare, true);
        };
    }
    ambele(5, ListaCopii18);
    ambele(6, [](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
        return ListaElevi(db, m, md, a, 1);
    });
    ambele(7, [](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
        return ListaElevi(db, m, md, a, 0);
    });
    ambele(8, ListaCopii7);
    for (int index : {15, 16}) {
        const auto f = index == 15 ? &ListaCereri6Luni : &ListaActeExpira;
        c[size_t(index)].grila = [f](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
            return f(db, m, md, a, false);
        };
        c[size_t(index)].foaie = [f](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
            return f(db, m, md, a, true);
        };
    }
    ambele(17, [](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
        return ListaPersoane(db, m, md, a, true);
    });
    ambele(18, [](BazaDate& db, Mesaje& m, const MediuRaport& md, const Alegeri& a) {
        return ListaPersoane(db, m, md, a, false);
    });
    ambele(19, SituatieCentralizata);
    ambele(20, BorderouBeneficiari);
    ambele(21, ListaMembrii);
}

} // namespace Raport
