#include "store/PasiActualizare.h"

#include <QStringList>

namespace {

// The schema changes in the order they were made over the years. Each runs only when the
// database lacks it, so the list lifts a file of any age to the present shape.
const char* const Etapa1 = R"(
add Familii.NrDosar2; add Cereri.NrCerere2; add Familii.NrDosar; add Familii.CodDosar; add Familii.Bloc; add
Familii.Etaj; add Familii.Telefon; add Familii.Mobil; add Familii.JudetR; add Familii.LocalitateR; add
Familii.StradaR; add Familii.NrR; add Familii.BlocR; add Familii.ScR; add Familii.ApR; add Familii.EtR; add
DatePrimarie.CodFiscal; add DatePrimarie.AsSocial; delete field DatePrimarie.Tribunal; add
DatePrimarie.TipLocalitate; add DatePrimarie.CodJudet; add DatePrimarie.Email; add DatePrimarie.OfPostal; add
DatePrimarie.CodPostal; add DatePrimarie.CNPAsSocial; add DatePrimarie.Politia; add DateGen.CuloareBkg; add
Cereri.MotivStare; add Cereri.DataStare; add Cereri.VenitTotal; add Cereri.VenitpeMembru; delete field
Cereri.PlataNatura; add Cereri.ReprLegal; add Cereri.ModPlata; add Cereri.NumeTitularCont; add Cereri.Cont;
add Cereri.Banca; add Cereri.Gospodarire; add Cereri.LunaGospod; add Cereri.GospodLoc; add
Cereri.RegimJuridLoc; add Cereri.TipIncalzire; add Cereri.TipLocuinta; add Cereri.Bife
)";

const char* const Etapa3 = R"(
add Cereri.TipCerere; delete field Cereri.VenitPermanent; delete field Cereri.VenitVanzari; delete field
Cereri.VenitAlte; add Cereri.LuniRetro; rename CereriMembrii.CodRudenie to RudenieID; add
CereriMembrii.CetatenieID; add CereriMembrii.TaraCetatenie; add CereriMembrii.ResedintaID; add
CereriMembrii.LocResedinta; add CereriMembrii.TaraResedinta; add CereriMembrii.StCivila; add
CereriMembrii.Studii; add CereriMembrii.DrAsSociala; rename CereriMembrii.CodOcupatie to OcupatieID; add
CereriMembrii.LucreazaAfara; add CereriMembrii.UScolara; add CereriMembrii.Clasa; add
CereriMembrii.RealizeazaVenit; add CereriMembrii.Stare; add CereriMembrii.MotivStare; add
CereriMembrii.DataStare; delete field CereriMembrii.CodVenit; delete field CereriMembrii.VenitPermanent;
delete field CereriMembrii.CodVenitAlte; delete field CereriMembrii.VenitAlte; add Membrii.TipAct; add
Membrii.Eliberat; add Membrii.DataElib; add Membrii.Politie; add Dispozitii.NumeTitularVechi; add
Dispozitii.DataStop; add Barem.DataInceput; add Barem.DataStop; create table CMIesiti; add CMIesiti.MembruID;
add CMIesiti.RudenieID; add CMIesiti.MotivID; add CMIesiti.Suma; add CMIesiti.TipValuta; add
CereriMembrii.MotivID; add CereriMembrii.Suma; add CereriMembrii.TipValuta; add CereriMembrii.StareMembru;
create relation CMIesitiMembrii; create relation CMIesitiCereri; add CereriMembrii.Diminuare20; add
CereriMembrii.Diminuare50; create table Venituri; create relation CereriVenituri; add Venituri.CodVenit; add
Venituri.Valoare; create table Locuinte; create relation CereriLocuinte; add Locuinte.Cod; add
Locuinte.NrCamere; add Locuinte.Suprafata; create table ListaVenituri; add ListaVenituri.Denumire; create
table Adeverinte; add Adeverinte.CerereID; add Adeverinte.MembruID; create relation CereriAdeverinte; create
relation MembriiAdeverinte; add Adeverinte.TipAdeverinta; add Adeverinte.NrAdev; add
Adeverinte.DataAdeverinta; add Adeverinte.DataExpAdev; add Adeverinte.DataDepunerii; create table
IstoricCereri; create relation CereriIstoricCereri; add IstoricCereri.Tranzactie; add
IstoricCereri.DataTranzactie; add IstoricCereri.MotivTranzactie; create table Politii; add Politii.Denumire;
add Politii.LocalitateID; create table Scoli; add Scoli.Denumire; add Scoli.LocalitateID; create table Motive;
add Motive.Denumire; add Strazi.OfPostal; add Strazi.CodPostal; add Cereri.Vmg; add Cereri.Inc; add
Cereri.Supl; add Cereri.A1Solicita; add Cereri.ActeBife; add Cereri.TipDobandire; add Cereri.Polita; add
Cereri.SocietatePolita; add Cereri.NrPolita; add Cereri.DataStartPolita; add Cereri.DataStopPolita; add
Cereri.AcoperaRiscuri; add Cereri.NrCamere; add Membrii.Dizabilitate; add CereriMembrii.Perioada1; add
CereriMembrii.TaraAfara1; add CereriMembrii.Perioada2; add CereriMembrii.TaraAfara2; add
CereriMembrii.LocuitAfara; add CereriMembrii.Perioada11; add CereriMembrii.TaraAfara11; add
CereriMembrii.Perioada22; add CereriMembrii.TaraAfara22; add CereriMembrii.Venit; add
CereriMembrii.TipIncalzTrecut; add CereriMembrii.VMG; add CereriMembrii.Alocatie; add CereriMembrii.Incalzire;
add CereriMembrii.LocScoala; add CereriMembrii.Repetent; add CereriMembrii.Abandon; add
CereriMembrii.Peste20abs; create table ListaBife; add ListaBife.Denumire; add ListaBife.Valoare; add
ListaBife.Tip; add ListaBife.Cod; create table BifeText; create relation CereriBifeText; add BifeText.NrBifa;
add BifeText.Valoare; create table LocScolare; add LocScolare.Denumire; create table ListaActe; add
ListaActe.Denumire; add Adeverinte.AdvCurenta; add Membrii.NumeCautare; add Membrii.PrenumeCautare
)";

void adauga(std::vector<PasActualizare>& pasi, const char* text, int etapa) {
    const QStringList bucati = QString::fromLatin1(text).simplified().split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const QString& b : bucati) {
        const QStringList w = b.trimmed().split(QLatin1Char(' '));
        auto tabelaCamp = [](const QString& s) { return s.split(QLatin1Char('.')); };
        PasActualizare p{};
        p.etapa = etapa;
        if (w[0] == QLatin1String("add")) {
            const auto tc = tabelaCamp(w[1]);
            p = {PasActualizare::Fel::AdaugaCamp, tc[0], tc[1], {}, etapa};
        } else if (w[0] == QLatin1String("delete")) {
            const auto tc = tabelaCamp(w[2]);
            p = {PasActualizare::Fel::StergeCamp, tc[0], tc[1], {}, etapa};
        } else if (w[0] == QLatin1String("rename")) {
            const auto tc = tabelaCamp(w[1]);
            p = {PasActualizare::Fel::RedenumesteCamp, tc[0], tc[1], w[3], etapa};
        } else if (w[1] == QLatin1String("table")) {
            p = {PasActualizare::Fel::CreazaTabela, w[2], {}, {}, etapa};
        } else {
            p = {PasActualizare::Fel::CreazaRelatie, {}, w[2], {}, etapa};
        }
        pasi.push_back(p);
    }
}

} // namespace

const std::vector<PasActualizare>& PasiActualizare::Lista() {
    static const std::vector<PasActualizare> pasi = [] {
        std::vector<PasActualizare> p;
        adauga(p, Etapa1, 1);
        adauga(p, Etapa3, 3);
        return p;
    }();
    return pasi;
}
