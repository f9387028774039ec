#include "cases/SalvareCerere.h"

#include "cases/CalculCuantum.h"
#include "cases/Istoric.h"
#include "base/BlocareFisier.h"
#include "base/Eroare.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "base/Setari.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/CheiLista.h"
#include "store/Schema.h"
#include "store/Sql.h"

#include <QDir>
#include <QSet>
#include <cmath>
#include <limits>
#include <map>
#include <unordered_map>
#include <unordered_set>

using namespace ElemCerere;

namespace {

using Randuri = Sql::Rand;

// Rows of one table, built by the same code and so with the same fields: one statement for all.
void ScrieToate(BazaDate& db, const char* tabela, const std::vector<Randuri>& randuri) {
    if (randuri.empty()) return;
    Interogare q(db, Sql::Insert(QLatin1String(tabela), Sql::Campuri(randuri.front())));
    for (const Randuri& r : randuri)
        Sql::Leaga(q, r).Executa();
}

// A text for a field: NULL when empty, refused when longer than the field, so that both
// engines take or refuse the same values.
QVariant Text(const char* tabela, const char* camp, const QString& v) {
    if (v.isEmpty()) return {};
    const CampSchema* c = Schema::Camp(QLatin1String(tabela), QLatin1String(camp));
    if (c && c->tip == TipCamp::Text && c->marime > 0 && v.size() > c->marime)
        throw Eroare(QStringLiteral("Textul \"%1\" are %2 caractere, iar campul %3 din %4 primeste cel mult %5.")
                         .arg(v)
                         .arg(v.size())
                         .arg(QLatin1String(camp), QLatin1String(tabela))
                         .arg(c->marime));
    return v;
}
QVariant Data(const QDate& d) {
    return d.isValid() ? QVariant(d) : QVariant();
}
QVariant Cheie(qint64 id) {
    return id > 0 ? QVariant(id) : QVariant();
}

// A whole number typed in a box, as the field takes it: the leading number, rounded half to even.
qint64 Numar(const QString& text, qint64 maxim, const QString& eticheta) {
    const double v = std::nearbyint(Val(text));
    if (!(std::fabs(v) <= double(maxim)))
        throw Eroare(QStringLiteral("%1 \"%2\" nu este un numar valid.").arg(eticheta, text.trimmed()));
    return qint64(v);
}

QString Cifra(bool b) {
    return b ? QStringLiteral("1") : QStringLiteral("0");
}

// The names of one reference list that the case file uses and the list lacks are added, each
// with the next key; names are compared by their search keys, so that neither case nor
// diacritics (a cedilla against a comma below, say) make a second entry.
void ExtindeLista(BazaDate& db, const char* tabela, const char* cheie, bool cuLocalitate, const QStringList& nume) {
    QStringList noi;
    for (const QString& n : nume)
        if (!n.trimmed().isEmpty()) noi << n.trimmed();
    if (noi.isEmpty()) return;
    QSet<QString> cunoscute;
    {
        Interogare q(db, QStringLiteral("SELECT Denumire FROM %1").arg(QLatin1String(tabela)));
        q.Executa();
        while (q.Urmator())
            cunoscute.insert(CheieCautare(q.Valoare(0).toString()));
    }
    std::optional<Interogare> ins;
    qint64 urmatoarea = 0;
    for (const QString& n : noi) {
        if (cunoscute.contains(CheieCautare(n))) continue;
        if (!ins) {
            urmatoarea = db.CheieNoua(QLatin1String(tabela), QLatin1String(cheie));
            QStringList campuri{QLatin1String(cheie), QStringLiteral("Denumire")};
            if (cuLocalitate) campuri << QStringLiteral("LocalitateID");
            ins.emplace(db, Sql::Insert(QLatin1String(tabela), campuri));
        }
        ins->Leaga(urmatoarea++).Leaga(Text(tabela, "Denumire", n));
        if (cuLocalitate) ins->Leaga(1);
        ins->Executa();
        cunoscute.insert(CheieCautare(n));
    }
}

class Salvare {
public:
    Salvare(BazaDate& db, const DateCerere& d, const StareCerere& s, const std::vector<MembruIesit>& iesiti,
            const OptiuniSalvare& o, Bani cuantum)
        : db_(db), d_(d), s_(s), iesiti_(iesiti), o_(o), cuantum_(cuantum) {
        if (s.MatriceMembri)
            for (const MembruCerere& p : *s.MatriceMembri)
                membri_.push_back(&p);
    }

    RezultatSalvare Scrie() {
        Tranzactie t(db_);
        ListeReferinta();
        pas(PasSalvare::ListeReferinta);
        Familii();
        pas(PasSalvare::Familii);
        const std::vector<PersoanaIstoric> persoaneVechi =
            d_.Adaug == 1 ? std::vector<PersoanaIstoric>{} : Istoric::Persoane(db_, cerereID_);
        Membrii();
        persoane_ = Istoric::ComparaPersoane(persoaneVechi, persoaneNoi());
        pas(PasSalvare::Membrii);
        Cereri();
        CheiListei();
        ScrieIstoric();
        pas(PasSalvare::Cereri);
        CereriMembrii();
        pas(PasSalvare::CereriMembrii);
        Adeverinte();
        // This request's certificates (its status may have changed) and those of the persons saved
        // here, on any request (their names may have).
        CheiLista::ScrieAdeverinte(db_, conditieCheiPersoane(), valoriCheiPersoane());
        pas(PasSalvare::Adeverinte);
        Venituri();
        pas(PasSalvare::Venituri);
        Locuinte();
        pas(PasSalvare::Locuinte);
        BifeText();
        pas(PasSalvare::BifeText);
        CMIesiti();
        pas(PasSalvare::CMIesiti);
        t.Confirma();
        RezultatSalvare r;
        r.stare = RezultatSalvare::Stare::Salvata;
        r.CerereID = cerereID_;
        r.FamilieID = familieID_;
        r.Cuantum = cuantum_;
        return r;
    }

private:
    void pas(PasSalvare p) {
        if (o_.DupaPas) o_.DupaPas(p);
    }
    void stergeAleCererii(const char* tabela) {
        Interogare(db_, QStringLiteral("DELETE FROM %1 WHERE CerereID = ?").arg(QLatin1String(tabela)))
            .Leaga(cerereID_)
            .Executa();
    }

    void ListeReferinta() {
        QStringList politii, scoli, locuri, motive{d_.cboCerere[cboMotivStare].text};
        for (const MembruCerere* p : membri_) {
            politii << p->Eliberat;
            scoli << p->UScolara;
            locuri << p->LocScoala;
        }
        for (const MembruCerere* p : membri_)
            motive << p->MotivStare;
        ExtindeLista(db_, "Strazi", "StradaID", true, {d_.cboCerere[cboStrada].text});
        ExtindeLista(db_, "Politii", "PolitiaID", true, politii);
        ExtindeLista(db_, "Scoli", "ScoalaID", true, scoli);
        ExtindeLista(db_, "LocScolare", "LocScolaraID", false, locuri);
        ExtindeLista(db_, "Motive", "MotivID", false, motive);
    }

    void Familii() {
        const auto& t = d_.txtCerere;
        auto text = [&](const char* camp, int i) { return Text("Familii", camp, t[size_t(i)].trimmed()); };
        const Randuri r = {
            {"NrDosar", Numar(t[txtNrDosar], std::numeric_limits<qint32>::max(), QStringLiteral("Numarul dosarului"))},
            {"NrDosar2", Text("Familii", "NrDosar2", t[txtNrDosar2])},
            {"Judet", text("Judet", txtJudet)},
            {"Localitate", text("Localitate", txtLocalitate)},
            {"Strada", Text("Familii", "Strada", d_.cboCerere[cboStrada].text.trimmed())},
            {"Nr", text("Nr", txtNr)},
            {"Bloc", text("Bloc", txtBloc)},
            {"Sc", text("Sc", txtSc)},
            {"Ap", text("Ap", txtAp)},
            {"Telefon", text("Telefon", txtTelefon)},
            {"Mobil", text("Mobil", txtMobil)},
            {"JudetR", text("JudetR", txtJudetR)},
            {"LocalitateR", text("LocalitateR", txtLocalitateR)},
            {"StradaR", Text("Familii", "StradaR", d_.cboCerere[cboStradaR].text.trimmed())},
            {"NrR", text("NrR", txtNrR)},
            {"BlocR", text("BlocR", txtBlocR)},
            {"ScR", text("ScR", txtScR)},
            {"ApR", text("ApR", txtApR)},
        };
        if (d_.Adaug == 1) {
            // The request takes its family's number, so the number must be free in both tables.
            familieID_ = std::max(db_.CheieNoua(QStringLiteral("Familii"), QStringLiteral("FamilieID")),
                                  db_.CheieNoua(QStringLiteral("Cereri"), QStringLiteral("CerereID")));
            cerereID_ = familieID_;
            Randuri cuCheie{{"FamilieID", familieID_}};
            cuCheie.insert(cuCheie.end(), r.begin(), r.end());
            Sql::Insereaza(db_, QStringLiteral("Familii"), cuCheie);
            schimbari(Istoric::Compara(QStringLiteral("Familii"), r, {}));
            return;
        }
        familieID_ = d_.FamilieID;
        cerereID_ = d_.CerereID;
        schimbari(Istoric::Diferente(db_, QStringLiteral("Familii"), QStringLiteral("FamilieID"), familieID_, r));
        if (Sql::Actualizeaza(db_, QStringLiteral("Familii"), r, QStringLiteral("FamilieID"), familieID_) == 0)
            throw Eroare(TextRandNegasit);
    }

    // Each person of the list is the Membrii row of its CNP, or a new one; a person without a
    // CNP keeps its own row when it has one.
    void Membrii() {
        QStringList cnpuri;
        QList<qint64> iduri;
        for (const MembruCerere* p : membri_) {
            if (!p->CNP.isEmpty())
                cnpuri << p->CNP;
            else if (p->MembruID > 0)
                iduri << p->MembruID;
        }
        std::map<QString, qint64> dupaCnp;
        std::unordered_set<qint64> existente;
        if (!cnpuri.isEmpty() || !iduri.isEmpty()) {
            QString sql = QStringLiteral("SELECT MembruID, CNP FROM Membrii WHERE ");
            if (!cnpuri.isEmpty()) sql += QStringLiteral("CNP IN (%1)").arg(Sql::Semne(cnpuri.size()));
            if (!iduri.isEmpty())
                sql += (cnpuri.isEmpty() ? QString() : QStringLiteral(" OR ")) +
                       QStringLiteral("MembruID IN (%1)").arg(Sql::Semne(iduri.size()));
            Interogare q(db_, sql + QStringLiteral(" ORDER BY MembruID"));
            for (const QString& c : cnpuri)
                q.Leaga(c);
            for (qint64 id : iduri)
                q.Leaga(id);
            q.Executa();
            while (q.Urmator()) {
                existente.insert(q.Intreg(0));
                dupaCnp.try_emplace(q.Valoare(1).toString(), q.Intreg(0));
            }
        }

        qint64 urmatoarea = 0;
        std::unordered_map<qint64, const MembruCerere*> folosite;
        std::optional<Interogare> actualizare, adaugare;
        for (const MembruCerere* p : membri_) {
            qint64 id = 0;
            if (!p->CNP.isEmpty()) {
                if (const auto i = dupaCnp.find(p->CNP); i != dupaCnp.end()) id = i->second;
            } else if (p->MembruID > 0 && existente.contains(p->MembruID)) {
                id = p->MembruID;
            }
            const Randuri r = {
                {"Nume", Text("Membrii", "Nume", p->Nume)},
                {"Prenume", Text("Membrii", "Prenume", p->Prenume)},
                {"NumeCautare", CheieCautareStocata(p->Nume)},
                {"PrenumeCautare", CheieCautareStocata(p->Prenume)},
                {"CNP", Text("Membrii", "CNP", p->CNP)},
                {"TipAct", p->TipAct},
                {"SerieBI", Text("Membrii", "SerieBI", p->SerieBI)},
                {"NrBI", Text("Membrii", "NrBI", p->NrBI)},
                {"Eliberat", Text("Membrii", "Eliberat", p->Eliberat)},
                {"DataElib", Data(p->DataElib)},
                {"Dizabilitate", p->Dizabilitate},
            };
            if (id > 0) {
                if (!actualizare)
                    actualizare.emplace(
                        db_, Sql::Update(QStringLiteral("Membrii"), Sql::Campuri(r), QStringLiteral("MembruID")));
                Sql::Leaga(*actualizare, r).Leaga(id).Executa();
            } else {
                if (urmatoarea == 0) urmatoarea = db_.CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID"));
                id = urmatoarea++;
                Randuri cuCheie{{"MembruID", id}};
                cuCheie.insert(cuCheie.end(), r.begin(), r.end());
                if (!adaugare) adaugare.emplace(db_, Sql::Insert(QStringLiteral("Membrii"), Sql::Campuri(cuCheie)));
                Sql::Leaga(*adaugare, cuCheie).Executa();
                if (!p->CNP.isEmpty()) dupaCnp.emplace(p->CNP, id);
            }
            if (const auto [alta, nou] = folosite.emplace(id, p); !nou)
                throw Eroare(QStringLiteral("Persoana %1 %2 (CNP %3) apare de doua ori in lista persoanelor cererii. "
                                            "Eliminati unul dintre randuri si salvati din nou.")
                                 .arg(p->Nume, p->Prenume, p->CNP));
            iduri_.push_back(id);
            if (p->RudenieID == 1) titular_ = id;
            if (p->RudenieID == 2) partener_ = id;
        }
    }

    void Cereri() {
        const auto& t = d_.txtCerere;
        auto text = [&](const char* camp, const QString& v) { return Text("Cereri", camp, v); };
        const qint64 nrCerere =
            Numar(t[txtNrCerere], std::numeric_limits<qint32>::max(), QStringLiteral("Numarul cererii"));
        const Randuri r = {
            {"NrCerere", nrCerere},
            {"NrCerere2", text("NrCerere2", t[txtNrCerere2])},
            {"DataCerere", Data(d_.dtpData[dtpDataCerere])},
            {"MembruID1", Cheie(titular_)},
            {"MembruID2", Cheie(partener_)},
            {"Stare", d_.cboCerere[cboStare].id},
            {"MotivStare", text("MotivStare", d_.cboCerere[cboMotivStare].text.trimmed())},
            {"DataStare", Data(d_.dtpData[dtpDataStare])},
            {"VenitTotal", Sql::Suma(SumaCaseta(t[txtVenitTotal]))},
            {"VenitPeMembru", Sql::Suma(SumaCaseta(t[txtVenitPeMembru]))},
            {"NrMembrii", qint64(membri_.size())},
            {"NrCopii", Numar(t[txtNrCopii], std::numeric_limits<qint16>::max(), QStringLiteral("Numarul copiilor"))},
            {"Cuantum", Sql::Suma(cuantum_)},
            {"TipCerere", d_.cboCerere[cboTipCerere].id},
            {"ReprLegal", d_.cboCerere[cboReprLegal].id},
            {"ModPlata", d_.cboCerere[cboModPlata].id},
            {"NumeTitularCont", text("NumeTitularCont", t[txtNumeTitularCont].trimmed())},
            {"Cont", text("Cont", t[txtCont].trimmed())},
            {"Banca", text("Banca", t[txtBanca].trimmed())},
            {"Gospodarire", s_.Gospodarire},
            {"LunaGospod", s_.LunaGospod},
            {"GospodLoc", s_.GospodLoc},
            {"NrCamere", s_.NrCamere},
            {"TipDobandire", s_.TipDobandire},
            {"RegimJuridLoc", s_.RegimJuridLoc},
            {"TipIncalzire", s_.TipIncalzire},
            {"TipLocuinta", s_.TipLocuinta},
            {"Polita", s_.Polita},
            {"SocietatePolita", text("SocietatePolita", s_.SocietatePolita)},
            {"NrPolita", text("NrPolita", s_.NrPolita)},
            {"DataStartPolita", Data(s_.DataStartPolita)},
            {"DataStopPolita", Data(s_.DataStopPolita)},
            {"AcoperaRiscuri", s_.AcoperaRiscuri},
            {"Bife", text("Bife", s_.Bife)},
            {"ActeBife", text("ActeBife", s_.ActeBife)},
            {"LuniRetro", Numar(t[txtLuniRetro], 255, QStringLiteral("Numarul lunilor retroactive"))},
            {"Vmg", d_.chkVmg},
            {"Inc", d_.chkIncalzire},
            {"Supl", d_.chkSupl},
            {"A1Solicita", Cifra(d_.chkVmg_s) + Cifra(d_.chkIncalzire_s) + Cifra(d_.chkSupl_s)},
        };
        nrCerere_ = nrCerere;
        if (d_.Adaug == 1) {
            Randuri cuCheie{{"CerereID", cerereID_}, {"FamilieID", familieID_}};
            cuCheie.insert(cuCheie.end(), r.begin(), r.end());
            Sql::Insereaza(db_, QStringLiteral("Cereri"), cuCheie);
            schimbari(Istoric::Compara(QStringLiteral("Cereri"), r, {}));
            return;
        }
        schimbari(Istoric::Diferente(db_, QStringLiteral("Cereri"), QStringLiteral("CerereID"), cerereID_, r));
        if (Sql::Actualizeaza(db_, QStringLiteral("Cereri"), r, QStringLiteral("CerereID"), cerereID_) == 0)
            throw Eroare(TextRandNegasit);
    }

    void schimbari(std::vector<Schimbare> s) {
        schimbari_.insert(schimbari_.end(), std::make_move_iterator(s.begin()), std::make_move_iterator(s.end()));
    }
    std::vector<PersoanaIstoric> persoaneNoi() const {
        std::vector<PersoanaIstoric> r;
        for (size_t i = 0; i < membri_.size(); ++i)
            r.push_back({iduri_[i], QStringLiteral("%1 %2").arg(membri_[i]->Nume, membri_[i]->Prenume).trimmed()});
        return r;
    }
    // The household's and the request's fields that this save changes, read before they were written,
    // then the persons who came, left or changed their names.
    void ScrieIstoric() {
        schimbari(std::move(persoane_));
        const bool nou = d_.Adaug == 1;
        Istoric::ScrieSchimbari(db_, cerereID_, nrCerere_, nou ? FelSchimbare::Adaugare : FelSchimbare::Modificare,
                                nou ? QStringLiteral("Cerere adaugata") : QStringLiteral("Cerere modificata"),
                                schimbari_);
    }

    // This request's titular and address may have changed, and so may those of the other requests of
    // this family and of the persons saved here.
    void CheiListei() {
        QVariantList valori{cerereID_, familieID_};
        for (qint64 id : iduri_)
            valori << id;
        CheiLista::Scrie(db_, QStringLiteral("CerereID = ? OR FamilieID = ? OR MembruID1 IN (%1)").arg(semneIduri()),
                         valori);
    }
    QString semneIduri() const {
        return iduri_.empty() ? QStringLiteral("NULL") : Sql::Semne(qsizetype(iduri_.size()));
    }
    QString conditieCheiPersoane() const { return QStringLiteral("CerereID = ? OR MembruID IN (%1)").arg(semneIduri()); }
    QVariantList valoriCheiPersoane() const {
        QVariantList valori{cerereID_};
        for (qint64 id : iduri_)
            valori << id;
        return valori;
    }

    void CereriMembrii() {
        stergeAleCererii("CereriMembrii");
        std::vector<Randuri> randuri;
        for (size_t i = 0; i < membri_.size(); ++i) {
            const MembruCerere& p = *membri_[i];
            auto text = [&](const char* camp, const QString& v) { return Text("CereriMembrii", camp, v); };
            randuri.push_back({
                {"CerereID", cerereID_},
                {"MembruID", iduri_[i]},
                {"RudenieID", p.RudenieID},
                {"CetatenieID", p.CetatenieID},
                {"TaraCetatenie", text("TaraCetatenie", p.TaraCetatenie)},
                {"ResedintaID", p.ResedintaID},
                {"LocResedinta", text("LocResedinta", p.LocResedinta)},
                {"TaraResedinta", text("TaraResedinta", p.TaraResedinta)},
                {"StCivila", p.StCivila},
                {"Studii", p.Studii},
                {"DrAsSociala", p.DrAsSociala},
                {"OcupatieID", p.OcupatieID},
                {"LucreazaAfara", p.LucreazaAfara != 0},
                {"UScolara", text("UScolara", p.UScolara)},
                {"Repetent", p.Repetent},
                {"Abandon", p.Abandon},
                {"Peste20abs", p.Peste20abs},
                {"Diminuare20", p.Diminuare20},
                {"Diminuare50", p.Diminuare50},
                {"Data18Ani", Data(p.Data18Ani)},
                {"Motiv", text("Motiv", p.Motiv)},
                {"MotivID", p.MotivID},
                {"StareMembru", p.StareMembru},
                {"Suma", Sql::Suma(p.Suma)},
                {"TipValuta", p.TipValuta},
                {"MotivStare", text("MotivStare", p.MotivStare)},
                {"DataStare", Data(p.DataStare)},
                {"Perioada1", text("Perioada1", p.Perioada1)},
                {"TaraAfara1", text("TaraAfara1", p.TaraAfara1)},
                {"Perioada2", text("Perioada2", p.Perioada2)},
                {"TaraAfara2", text("TaraAfara2", p.TaraAfara2)},
                {"LocuitAfara", p.LocuitAfara != 0},
                {"Perioada11", text("Perioada11", p.Perioada11)},
                {"TaraAfara11", text("TaraAfara11", p.TaraAfara11)},
                {"Perioada22", text("Perioada22", p.Perioada22)},
                {"TaraAfara22", text("TaraAfara22", p.TaraAfara22)},
                {"Venit", Sql::Suma(p.Venit)},
                {"LocScoala", text("LocScoala", p.LocScoala)},
                {"VMG", p.VMG},
                {"Alocatie", p.Alocatie},
                {"Incalzire", p.Incalzire},
                {"TipIncalzTrecut", p.TipIncalzTrecut},
            });
        }
        ScrieToate(db_, "CereriMembrii", randuri);
    }

    // The certificates of the listed persons are rewritten with their keys; a new certificate,
    // or one whose key another row has taken, gets the next free key. Those of persons no longer
    // listed stay.
    void Adeverinte() {
        if (iduri_.empty()) return;
        {
            Interogare q(db_, QStringLiteral("DELETE FROM Adeverinte WHERE CerereID = ? AND MembruID IN (%1)")
                                  .arg(Sql::Semne(qsizetype(iduri_.size()))));
            q.Leaga(cerereID_);
            for (qint64 id : iduri_)
                q.Leaga(id);
            q.Executa();
        }
        std::vector<qint64> pastrate;
        qint64 maxim = 0;
        for (const MembruCerere* p : membri_)
            for (const AdeverintaMembru& a : p->Adeverinte)
                if (a.AdevID > 0) {
                    pastrate.push_back(a.AdevID);
                    maxim = std::max(maxim, a.AdevID);
                }
        std::unordered_set<qint64> ocupate;
        if (!pastrate.empty()) {
            Interogare q(db_, QStringLiteral("SELECT AdevID FROM Adeverinte WHERE AdevID IN (%1)")
                                  .arg(Sql::Semne(qsizetype(pastrate.size()))));
            for (qint64 id : pastrate)
                q.Leaga(id);
            q.Executa();
            while (q.Urmator())
                ocupate.insert(q.Intreg(0));
        }
        qint64 urmatoarea = 0;
        std::vector<Randuri> randuri;
        for (size_t i = 0; i < membri_.size(); ++i)
            for (const AdeverintaMembru& a : membri_[i]->Adeverinte) {
                qint64 id = a.AdevID;
                if (id <= 0 || !ocupate.insert(id).second) {
                    if (urmatoarea == 0)
                        urmatoarea =
                            std::max(db_.CheieNoua(QStringLiteral("Adeverinte"), QStringLiteral("AdevID")), maxim + 1);
                    id = urmatoarea++;
                }
                randuri.push_back({
                    {"AdevID", id},
                    {"CerereID", cerereID_},
                    {"MembruID", iduri_[i]},
                    {"TipAdeverinta", a.TipAdeverinta},
                    {"NrAdev", Text("Adeverinte", "NrAdev", a.NrAdev)},
                    {"DataAdeverinta", Data(a.DataAdeverinta)},
                    {"DataExpAdev", Data(a.DataExpAdev)},
                    {"DataDepunerii", Data(a.DataDepunerii)},
                    {"AdvCurenta", a.AdvCurenta},
                });
            }
        ScrieToate(db_, "Adeverinte", randuri);
    }

    void Venituri() {
        stergeAleCererii("Venituri");
        std::vector<Randuri> randuri;
        for (size_t i = 0; i < s_.Venituri.size(); ++i)
            if (s_.Venituri[i] > Bani())
                randuri.push_back(
                    {{"CerereID", cerereID_}, {"CodVenit", qint64(i + 1)}, {"Valoare", Sql::Suma(s_.Venituri[i])}});
        ScrieToate(db_, "Venituri", randuri);
    }

    void Locuinte() {
        stergeAleCererii("Locuinte");
        std::vector<Randuri> randuri;
        for (size_t i = 0; i < s_.LocuinteSel.size(); ++i)
            if (s_.LocuinteSel[i].Bifat)
                randuri.push_back(
                    {{"CerereID", cerereID_}, {"Cod", qint64(i + 1)}, {"NrCamere", s_.LocuinteSel[i].NrCamere}});
        ScrieToate(db_, "Locuinte", randuri);
    }

    void BifeText() {
        stergeAleCererii("BifeText");
        std::vector<Randuri> randuri;
        for (size_t i = 0; i < s_.Bunuri.size(); ++i)
            if (s_.Bunuri[i] > Bani())
                randuri.push_back(
                    {{"CerereID", cerereID_}, {"NrBifa", qint64(i + 9)}, {"Valoare", Sql::Suma(s_.Bunuri[i])}});
        ScrieToate(db_, "BifeText", randuri);
    }

    // A person who left before ever being stored has no row to point at and is not kept.
    void CMIesiti() {
        stergeAleCererii("CMIesiti");
        std::vector<Randuri> randuri;
        for (const MembruIesit& r : iesiti_)
            if (r.MembruID > 0)
                randuri.push_back({{"CerereID", cerereID_},
                                   {"MembruID", r.MembruID},
                                   {"RudenieID", r.RudenieID},
                                   {"MotivID", r.MotivID},
                                   {"Suma", Sql::Suma(r.Suma)},
                                   {"TipValuta", r.TipValuta}});
        ScrieToate(db_, "CMIesiti", randuri);
    }

    BazaDate& db_;
    const DateCerere& d_;
    const StareCerere& s_;
    const std::vector<MembruIesit>& iesiti_;
    const OptiuniSalvare& o_;
    const Bani cuantum_;
    std::vector<const MembruCerere*> membri_;
    std::vector<qint64> iduri_; // MembruID of each person, in the order of the list
    qint64 cerereID_ = 0, familieID_ = 0, titular_ = 0, partener_ = 0;
    QVariant nrCerere_;
    std::vector<Schimbare> schimbari_, persoane_;
};

} // namespace

OptiuniSalvare OptiuniDinSetari(const Setari& s) {
    OptiuniSalvare o;
    o.ReteaSetat = s.ReteaSetat;
    o.CaleBD = s.CaleBD;
    o.LunaSetata = s.LunaSetata;
    o.AnSetat = s.AnSetat;
    return o;
}

RezultatSalvare SalveazaCerere(BazaDate& db, const DateCerere& d, const StareCerere& s,
                               const std::vector<MembruIesit>& iesiti, const OptiuniSalvare& o, Mesaje& m) {
    RezultatSalvare oprita;
    if (!VerificaBD(db, m)) return oprita;
    const int nrMembri = s.MatriceMembri ? int(s.MatriceMembri->size()) : 0;
    const int nrRanduri = o.NrRanduriLista < 0 ? nrMembri : o.NrRanduriLista;
    if (const auto esec = VerificaControale(db, d, s, nrRanduri, m)) {
        m.Informatie(esec->Mesaj);
        oprita.Control = esec->Control;
        if (esec->InchideDialogul) oprita.stare = RezultatSalvare::Stare::InchideEditor;
        return oprita;
    }

    std::optional<BlocareFisier> blocare;
    if (o.ReteaSetat) {
        blocare.emplace(QDir(o.CaleBD).filePath(QStringLiteral("snet.txt")));
        if (!blocare->Obtine()) {
            m.Informatie(TextSalvareInCurs);
            return oprita;
        }
        if (!m.Intrebare(QStringLiteral("Salvati?"))) return oprita;
    }

    if (nrRanduri != nrMembri)
        m.Avertisment(QStringLiteral("Exceptie Tarn in Calcule: Nr Membrii din lista este diferite de cel din matrice. "
                                     "Sunati la 0700-111222"));
    const IntrareCuantum intrare{s,
                                 int(d.cboCerere[cboTipCerere].id),
                                 d.dtpData[dtpDataStare],
                                 d.txtCerere[txtVenitPeMembru],
                                 o.LunaSetata,
                                 o.AnSetat};
    const Bani cuantum = CalculCuantum(intrare, IncarcaParametri(db), m).Cuantum;

    RezultatSalvare r;
    try {
        r = Salvare(db, d, s, iesiti, o, cuantum).Scrie();
    } catch (const Eroare& e) {
        throw Eroare(QStringLiteral("Cererea nu a fost salvata: ") + e.text());
    } catch (const std::exception& e) {
        throw Eroare(QStringLiteral("Cererea nu a fost salvata: ") + QString::fromLocal8Bit(e.what()));
    }
    blocare.reset();

    const QDate& dataStare = d.dtpData[dtpDataStare];
    if (dataStare.day() > 1)
        m.Informatie(QStringLiteral("Data aprobarii este diferita  de : 01-") + LuniAn()[dataStare.month() - 1] +
                     QLatin1Char('-') + QString::number(dataStare.year()));
    return r;
}
