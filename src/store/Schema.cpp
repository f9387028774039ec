#include "store/Schema.h"

#include "store/PasiActualizare.h"

#include <QSet>

namespace {

using T = TipCamp;

CampSchema K(const char* n) {
    return {QString::fromLatin1(n), T::Cheie, 0};
}
CampSchema B(const char* n) {
    return {QString::fromLatin1(n), T::Byte, 0};
}
CampSchema I(const char* n) {
    return {QString::fromLatin1(n), T::Integer, 0};
}
CampSchema L(const char* n) {
    return {QString::fromLatin1(n), T::Long, 0};
}
CampSchema S(const char* n) {
    return {QString::fromLatin1(n), T::Single, 0};
}
CampSchema C(const char* n) {
    return {QString::fromLatin1(n), T::Currency, 0};
}
CampSchema Z(const char* n) {
    return {QString::fromLatin1(n), T::Zecimal, 0};
}
CampSchema D(const char* n) {
    return {QString::fromLatin1(n), T::Data, 0};
}
CampSchema O(const char* n) {
    return {QString::fromLatin1(n), T::Boolean, 0};
}
CampSchema X(const char* n, int w) {
    return {QString::fromLatin1(n), T::Text, w};
}
CampSchema M(const char* n) {
    return {QString::fromLatin1(n), T::Memo, 0};
}

QStringList chei(std::initializer_list<const char*> l) {
    QStringList r;
    for (auto s : l)
        r << QString::fromLatin1(s);
    return r;
}

std::vector<TabelaSchema> construiesteTabele() {
    std::vector<TabelaSchema> t;
    t.push_back({"Familii",
                 {K("FamilieID"),       X("Judet", 50),   X("Localitate", 50), X("Strada", 50), X("Nr", 10),
                  X("Sc", 10),          X("Ap", 10),      X("NrDosar2", 10),   L("NrDosar"),    X("CodDosar", 15),
                  X("Bloc", 15),        X("Etaj", 10),    X("Telefon", 15),    X("Mobil", 15),  X("JudetR", 50),
                  X("LocalitateR", 50), X("StradaR", 50), X("NrR", 10),        X("BlocR", 50),  X("ScR", 10),
                  X("ApR", 10),         X("EtR", 10)},
                 chei({"FamilieID"}),
                 true});
    t.push_back({"Membrii",
                 {K("MembruID"), X("Nume", 50), X("Prenume", 50), X("CNP", 13), X("SerieBI", 10), X("NrBI", 15),
                  B("TipAct"), X("Eliberat", 30), D("DataElib"), X("Politie", 50), B("Dizabilitate"),
                  X("NumeCautare", 50), X("PrenumeCautare", 50)},
                 chei({"MembruID"}),
                 true});
    t.push_back({"Cereri",
                 {K("CerereID"),
                  K("FamilieID"),
                  L("NrCerere"),
                  D("DataCerere"),
                  K("MembruID1"),
                  K("MembruID2"),
                  I("Stare"),
                  I("NrMembrii"),
                  I("NrCopii"),
                  C("Cuantum"),
                  X("NrCerere2", 10),
                  X("MotivStare", 50),
                  D("DataStare"),
                  C("VenitTotal"),
                  C("VenitpeMembru"),
                  B("ReprLegal"),
                  B("ModPlata"),
                  X("NumeTitularCont", 34),
                  X("Cont", 32),
                  X("Banca", 30),
                  B("Gospodarire"),
                  B("LunaGospod"),
                  B("GospodLoc"),
                  B("RegimJuridLoc"),
                  B("TipIncalzire"),
                  B("TipLocuinta"),
                  X("Bife", 30),
                  B("TipCerere"),
                  B("LuniRetro"),
                  O("Vmg"),
                  O("Inc"),
                  O("Supl"),
                  O("Lege416"),
                  X("A1Solicita", 3),
                  X("ActeBife", 30),
                  B("TipDobandire"),
                  O("Polita"),
                  X("SocietatePolita", 50),
                  X("NrPolita", 15),
                  D("DataStartPolita"),
                  D("DataStopPolita"),
                  O("AcoperaRiscuri"),
                  B("NrCamere"),
                  // The request list's keys, copied from the titular and the family (CheiLista).
                  X("TitularNume", 50),
                  X("TitularPrenume", 50),
                  X("TitularCNP", 13),
                  X("AdresaOrdine", 150)},
                 chei({"CerereID"}),
                 true});
    t.push_back({"CereriMembrii",
                 {K("CerereID"),
                  K("MembruID"),
                  B("RudenieID"),
                  B("OcupatieID"),
                  D("Data18Ani"),
                  X("Motiv", 50),
                  B("CetatenieID"),
                  X("TaraCetatenie", 30),
                  B("ResedintaID"),
                  X("LocResedinta", 30),
                  X("TaraResedinta", 30),
                  B("StCivila"),
                  B("Studii"),
                  B("DrAsSociala"),
                  O("LucreazaAfara"),
                  X("UScolara", 50),
                  X("Clasa", 30),
                  O("RealizeazaVenit"),
                  B("Stare"),
                  X("MotivStare", 30),
                  D("DataStare"),
                  I("MotivID"),
                  C("Suma"),
                  I("TipValuta"),
                  B("StareMembru"),
                  B("Diminuare20"),
                  B("Diminuare50"),
                  X("Perioada1", 50),
                  X("TaraAfara1", 30),
                  X("Perioada2", 50),
                  X("TaraAfara2", 30),
                  O("LocuitAfara"),
                  X("Perioada11", 50),
                  X("TaraAfara11", 30),
                  X("Perioada22", 50),
                  X("TaraAfara22", 30),
                  C("Venit"),
                  B("TipIncalzTrecut"),
                  B("VMG"),
                  B("Alocatie"),
                  B("Incalzire"),
                  X("LocScoala", 50),
                  B("Repetent"),
                  B("Abandon"),
                  B("Peste20abs")},
                 chei({"CerereID", "MembruID"}),
                 true});
    t.push_back({"DatePrimarie",
                 {X("Denumire", 50), X("Judet", 50), X("Localitate", 50), X("Str", 50), X("Nr", 10), X("Primar", 50),
                  X("Secretar", 50), X("CodFiscal", 50), X("AsSocial", 50), B("TipLocalitate"), X("CodJudet", 5),
                  X("Email", 50), X("OfPostal", 10), X("CodPostal", 10), X("CNPAsSocial", 13), X("Politia", 30)},
                 {},
                 true});
    t.push_back({"DateGen",
                 {X("Denumire", 50), I("Tip"), I("DataID"), X("Continut", 255), I("Ordine"), L("CuloareBkg")},
                 {},
                 true});
    t.push_back({"Dispozitii",
                 {K("DispozitieID"), K("CerereID"), L("NrDisp"), D("DataDisp"), D("DinData"), I("Luna"), I("An"),
                  I("Actiune"), C("Cuantum"), C("CuantumVechi"), X("Motiv", 255), K("BeneficiarID"),
                  X("NumeTitularVechi", 50), D("DataStop")},
                 chei({"DispozitieID"}),
                 true});
    t.push_back({"Barem",
                 {I("Tip"), X("Descriere", 50), I("NrPers"), Z("Barem"), Z("Suma"), O("PerPers"), C("BaremPerPers"),
                  D("DataInceput"), D("DataStop")},
                 {},
                 true});
    t.push_back({"Strazi",
                 {K("StradaID"), X("Denumire", 50), K("LocalitateID"), X("OfPostal", 50), X("CodPostal", 50)},
                 chei({"StradaID"}),
                 true});
    t.push_back(
        {"Anchete",
         {K("AnchetaID"),          K("CerereID"),   D("DataAncheta"),  X("Intocmitor", 50), D("DataExpirarii"),
          X("Motiv", 100),         I("NrMembrii"),  I("NrCopii"),      I("TipLocuinta"),    I("RegimJuridic"),
          I("NrCamere"),           S("SuprUtila"),  X("Bunuri", 255),  X("Igiena", 255),    I("TipLocuire"),
          I("TipDetinere"),        X("Teren", 255), X("Cladiri", 255), X("Spatii", 255),    X("AlteBunuri", 255),
          X("StareSanatate", 255), X("Nevoi", 255), X("Aspecte", 255)},
         chei({"AnchetaID"}),
         true});
    t.push_back({"StatePlata", {K("StatPlataID"), I("An"), I("Luna")}, chei({"StatPlataID"}), true});
    t.push_back({"Judete", {K("JudetID"), X("Denumire", 50), X("Cod", 2)}, chei({"JudetID"}), true});
    t.push_back({"Localitati", {K("LocalitateID"), X("Denumire", 50)}, chei({"LocalitateID"}), true});
    t.push_back({"TipuriActe", {K("TipActID"), X("DenScurt", 10), X("Denumire", 50)}, chei({"TipActID"}), true});
    t.push_back({"TipIncalzire", {K("TipID"), X("Denumire", 50)}, chei({"TipID"}), true});

    t.push_back({"CMIesiti",
                 {K("CerereID"), K("MembruID"), I("RudenieID"), I("MotivID"), C("Suma"), I("TipValuta")},
                 {},
                 false});
    t.push_back({"Venituri", {K("CerereID"), B("CodVenit"), C("Valoare")}, {}, false});
    t.push_back({"Locuinte", {K("CerereID"), B("Cod"), B("NrCamere"), S("Suprafata")}, {}, false});
    t.push_back({"ListaVenituri", {B("CodVenit"), M("Denumire")}, chei({"CodVenit"}), false});
    t.push_back({"Adeverinte",
                 {K("AdevID"), K("CerereID"), K("MembruID"), B("TipAdeverinta"), X("NrAdev", 15), D("DataAdeverinta"),
                  D("DataExpAdev"), D("DataDepunerii"), B("AdvCurenta"),
                  // The list of the month's expiring certificates, copied from the person and the
                  // request (CheiLista).
                  X("MembruOrdine", 101), I("CerereInVigoare")},
                 chei({"AdevID"}),
                 false});
    t.push_back({"IstoricCereri",
                 {K("CerereID"), B("Tranzactie"), D("DataTranzactie"), X("MotivTranzactie", 255),
                  // Who changed what and when. The request's number is kept beside its key, which a
                  // deleted request's rows give up to escape the cascade, so that they stay readable.
                  L("IstoricID"), L("NrCerere"), X("DataOra", 19), X("Utilizator", 50), M("Detalii")},
                 {},
                 false});
    t.push_back({"Politii", {K("PolitiaID"), X("Denumire", 50), K("LocalitateID")}, chei({"PolitiaID"}), false});
    t.push_back({"Scoli", {K("ScoalaID"), X("Denumire", 50), K("LocalitateID")}, chei({"ScoalaID"}), false});
    t.push_back({"Motive", {K("MotivID"), X("Denumire", 50)}, chei({"MotivID"}), false});
    t.push_back(
        {"ListaBife", {B("NrBifa"), X("Tip", 2), I("Cod"), X("Denumire", 255), C("Valoare")}, chei({"NrBifa"}), false});
    t.push_back({"BifeText", {K("CerereID"), B("NrBifa"), C("Valoare")}, {}, false});
    t.push_back({"LocScolare", {K("LocScolaraID"), X("Denumire", 50)}, chei({"LocScolaraID"}), false});
    t.push_back({"ListaActe", {B("NrAct"), X("Denumire", 255)}, chei({"NrAct"}), false});
    return t;
}

std::vector<RelatieSchema> construiesteRelatii() {
    auto r = [](const char* n, const char* t, const char* c, const char* ts, const char* cs) {
        return RelatieSchema{QString::fromLatin1(n), QString::fromLatin1(t), QString::fromLatin1(c),
                             QString::fromLatin1(ts), QString::fromLatin1(cs)};
    };
    return {
        // A request goes with its family or its titular, and its persons' links with it.
        r("FamiliiCereri", "Familii", "FamilieID", "Cereri", "FamilieID"),
        r("MembriiCereri", "Membrii", "MembruID", "Cereri", "MembruID1"),
        r("CereriCereriMembrii", "Cereri", "CerereID", "CereriMembrii", "CerereID"),
        r("MembriiCereriMembrii", "Membrii", "MembruID", "CereriMembrii", "MembruID"),
        r("CMIesitiMembrii", "Membrii", "MembruID", "CMIesiti", "MembruID"),
        r("CMIesitiCereri", "Cereri", "CerereID", "CMIesiti", "CerereID"),
        r("CereriVenituri", "Cereri", "CerereID", "Venituri", "CerereID"),
        r("CereriLocuinte", "Cereri", "CerereID", "Locuinte", "CerereID"),
        r("CereriAdeverinte", "Cereri", "CerereID", "Adeverinte", "CerereID"),
        r("MembriiAdeverinte", "Membrii", "MembruID", "Adeverinte", "MembruID"),
        r("CereriIstoricCereri", "Cereri", "CerereID", "IstoricCereri", "CerereID"),
        r("CereriBifeText", "Cereri", "CerereID", "BifeText", "CerereID"),
    };
}

std::vector<IndexSchema> construiesteIndexuri() {
    auto ix = [](const char* t, std::initializer_list<const char*> c) {
        return IndexSchema{QString::fromLatin1(t), chei(c)};
    };
    auto prefix = [](const char* t, std::initializer_list<const char*> c) {
        return IndexSchema{QString::fromLatin1(t), chei(c), true};
    };
    return {
        ix("Familii", {"NrDosar"}),
        ix("Cereri", {"FamilieID"}),
        ix("Cereri", {"MembruID1"}),
        ix("Cereri", {"MembruID2"}),
        ix("Cereri", {"NrCerere"}),
        ix("Cereri", {"Stare"}),
        // The request list's orders by a column: each is read a screen at a time from its index.
        ix("Cereri", {"TipCerere", "CerereID"}),
        ix("Cereri", {"DataCerere", "CerereID"}),
        ix("Cereri", {"VenitTotal", "CerereID"}),
        ix("Cereri", {"Cuantum", "CerereID"}),
        ix("Cereri", {"NrMembrii", "CerereID"}),
        ix("Cereri", {"NrCopii", "CerereID"}),
        // The agency's monthly tables and the Borderou pick the requests whose status changed in a month.
        ix("Cereri", {"DataStare", "CerereID"}),
        // A search by the titular reads its rows and their order by number from one index.
        prefix("Cereri", {"TitularNume", "NrCerere"}),
        prefix("Cereri", {"TitularPrenume", "NrCerere"}),
        ix("Cereri", {"TitularCNP", "NrCerere"}),
        ix("Cereri", {"TitularNume", "TitularPrenume"}),
        ix("Cereri", {"AdresaOrdine"}),
        ix("CereriMembrii", {"MembruID"}),
        // The list of the children who come of age in a month.
        ix("CereriMembrii", {"Data18Ani"}),
        // The few children carrying a reduction of the amount, which its recompute for every request reads.
        IndexSchema{QStringLiteral("CereriMembrii"), chei({"CerereID"}), false,
                    QStringLiteral("(Diminuare20 <> 0 OR Diminuare50 <> 0)"), QStringLiteral("diminuari")},
        ix("Membrii", {"CNP"}),
        prefix("Membrii", {"NumeCautare"}),
        prefix("Membrii", {"PrenumeCautare"}),
        ix("DateGen", {"Tip", "DataID"}),
        ix("DateGen", {"Denumire"}),
        // A request's dispositions, and its newest one read from the index alone.
        ix("Dispozitii", {"CerereID", "DataDisp", "DispozitieID"}),
        ix("Dispozitii", {"BeneficiarID"}),
        ix("Anchete", {"CerereID"}),
        ix("Strazi", {"LocalitateID"}),
        ix("StatePlata", {"An", "Luna"}),
        ix("Barem", {"Tip", "DataInceput"}),
        ix("CMIesiti", {"CerereID"}),
        ix("CMIesiti", {"MembruID"}),
        ix("Venituri", {"CerereID"}),
        ix("Locuinte", {"CerereID"}),
        ix("Adeverinte", {"CerereID"}),
        ix("Adeverinte", {"MembruID"}),
        // The month's expiring certificates: counted from the first, read a page at a time in the
        // order of their persons' names from the second.
        ix("Adeverinte", {"DataExpAdev", "AdvCurenta", "CerereInVigoare"}),
        // Led by the flag, it also finds the certificates whose keys were never written.
        ix("Adeverinte", {"CerereInVigoare", "AdvCurenta", "MembruOrdine", "DataExpAdev"}),
        // A request's history by its key; the rows of deleted requests, kept under their numbers, are
        // those of no key, few enough to be read through it too. One index less to write at each save.
        ix("IstoricCereri", {"CerereID"}),
        // The next history key.
        ix("IstoricCereri", {"IstoricID"}),
        ix("BifeText", {"CerereID"}),
        ix("Politii", {"LocalitateID"}),
        ix("Scoli", {"LocalitateID"}),
    };
}

} // namespace

const std::vector<TabelaSchema>& Schema::Tabele() {
    static const auto t = construiesteTabele();
    return t;
}

const TabelaSchema* Schema::Tabela(const QString& nume) {
    for (const auto& t : Tabele())
        if (t.nume.compare(nume, Qt::CaseInsensitive) == 0) return &t;
    return nullptr;
}

const CampSchema* Schema::Camp(const QString& tabela, const QString& camp) {
    const TabelaSchema* t = Tabela(tabela);
    if (!t) return nullptr;
    for (const auto& c : t->campuri)
        if (c.nume.compare(camp, Qt::CaseInsensitive) == 0) return &c;
    return nullptr;
}

const std::vector<RelatieSchema>& Schema::Relatii() {
    static const auto r = construiesteRelatii();
    return r;
}

const RelatieSchema* Schema::Relatie(const QString& nume) {
    for (const auto& r : Relatii())
        if (r.nume.compare(nume, Qt::CaseInsensitive) == 0) return &r;
    return nullptr;
}

const RelatieSchema* Schema::RelatiePeCamp(const QString& tabelaStraina, const QString& campStrain) {
    for (const auto& r : Relatii())
        if (r.tabelaStraina.compare(tabelaStraina, Qt::CaseInsensitive) == 0 &&
            r.campStrain.compare(campStrain, Qt::CaseInsensitive) == 0)
            return &r;
    return nullptr;
}

const std::vector<IndexSchema>& Schema::Indexuri() {
    static const auto i = construiesteIndexuri();
    return i;
}

const std::vector<IndexSchema>& Schema::IndexuriInlocuite() {
    static const std::vector<IndexSchema> i{{QStringLiteral("Dispozitii"), {QStringLiteral("CerereID")}}};
    return i;
}

const std::vector<CampVechi>& Schema::CampuriVechi() {
    static const std::vector<CampVechi> v = {
        {"DatePrimarie", X("Tribunal", 50), {}},
        {"Cereri", O("PlataNatura"), {}},
        {"Cereri", C("VenitPermanent"), {}},
        {"Cereri", C("VenitVanzari"), {}},
        {"Cereri", C("VenitAlte"), {}},
        {"CereriMembrii", B("CodRudenie"), "RudenieID"},
        {"CereriMembrii", B("CodOcupatie"), "OcupatieID"},
        {"CereriMembrii", B("CodVenit"), {}},
        {"CereriMembrii", C("VenitPermanent"), {}},
        {"CereriMembrii", B("CodVenitAlte"), {}},
        {"CereriMembrii", C("VenitAlte"), {}},
    };
    return v;
}

std::vector<CampSchema> Schema::CampuriDeBaza(const TabelaSchema& t, bool formaVeche) {
    QSet<QString> adaugate;
    for (const auto& pas : PasiActualizare::Lista())
        if (pas.fel == PasActualizare::Fel::AdaugaCamp && pas.tabela.compare(t.nume, Qt::CaseInsensitive) == 0)
            adaugate.insert(pas.camp.toLower());

    std::vector<CampSchema> baza;
    for (const auto& c : t.campuri) {
        if (adaugate.contains(c.nume.toLower())) continue;
        const CampVechi* vechi = nullptr;
        for (const auto& v : CampuriVechi())
            if (formaVeche && v.tabela == t.nume && v.redenumitIn.compare(c.nume, Qt::CaseInsensitive) == 0) vechi = &v;
        baza.push_back(vechi ? vechi->camp : c);
    }
    if (formaVeche)
        for (const auto& v : CampuriVechi())
            if (v.tabela == t.nume && v.redenumitIn.isEmpty()) baza.push_back(v.camp);
    return baza;
}

QString Schema::DefinitieCamp(const Dialect& d, const QString& tabela, const CampSchema& c) {
    QString def = c.nume + QLatin1Char(' ') + d.TipSql(c.tip, c.marime);
    if (const RelatieSchema* r = RelatiePeCamp(tabela, c.nume)) {
        // Checked at commit, so that a save may write a request before the persons it names.
        def += QStringLiteral(" CONSTRAINT %1 REFERENCES %2 (%3) ON DELETE CASCADE ON UPDATE CASCADE"
                              " DEFERRABLE INITIALLY DEFERRED")
                   .arg(r->nume, r->tabela, r->camp);
    }
    return def;
}
