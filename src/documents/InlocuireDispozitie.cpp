#include "documents/InlocuireDispozitie.h"

#include "cases/DateCerere.h"
#include "documents/Sablon.h"
#include "base/Ceas.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Mesaje.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/Sql.h"

#include <unordered_map>

using namespace TextOptional;

namespace {

struct FormaSex {
    const char* marcaj;
    const char* masculin;
    const char* feminin;
};

// The doubled n's of three paired forms are what the town halls' templates have always printed.
constexpr FormaSex FormeSex[] = {
    {"#sex#", "d-lui", "d-nei"},
    {"#sex0#", "domnului", "doamnei"},
    {"#sex1#", "domnul", "doamna"},
    {"#sex2#", "Domnul", "Doamna"},
    {"#numit#", "numitului", "numitei"},
    {"#numit1#", "numitul", "numita"},
    {"#susnumit#", "susnumitul", "susnumita"},
    {"#solicitant#", "solicitantului", "solicitantei"},
    {"#titular#", "titularul", "titulara"},
    {"#domiciliul#", "domiciliat", "domiciliata"},
    {"#dl/dna#", "dl", "dna"},
    {"#dlui/dnei#", "dlui", "dnei"},
    {"#d-lui/d-nei#", "d-lui", "d-nei"},
    {"#domnului/doamnei#", "domnnului", "doamnei"},
    {"#domnul/doamna#", "domnnul", "doamna"},
    {"#Domnul/Doamna#", "Domnnul", "Doamna"},
    {"#numitul/numita#", "numitul", "numita"},
    {"#numitului/numitei#", "numitului", "numitei"},
    {"#susnumitul/susnumita#", "susnumitul", "susnumita"},
    {"#solicitantului/solicitantei#", "solicitantului", "solicitantei"},
    {"#titularul/titulara#", "titularul", "titulara"},
    {"#domiciliat/domiciliata#", "domiciliat", "domiciliata"},
};

const Bani TreaptaBarem = *Bani::DinText(u"0.4");

DateDispozitie CitesteRand(const Interogare& q) {
    DateDispozitie d;
    d.DispozitieID = q.Intreg(QStringLiteral("DispozitieID"));
    d.Actiune = int(Camp::Intreg(q, QStringLiteral("Actiune")).value_or(0));
    d.NrDisp = Camp::Intreg(q, QStringLiteral("NrDisp"));
    d.DataDisp = Camp::Data(q, QStringLiteral("DataDisp"));
    d.DinData = Camp::Data(q, QStringLiteral("DinData"));
    d.Cuantum = Camp::Suma(q, QStringLiteral("Cuantum"));
    d.CuantumVechi = Camp::Suma(q, QStringLiteral("CuantumVechi"));
    d.Motiv = Camp::Text(q, QStringLiteral("Motiv"));
    d.CerereGasita = !q.EsteNul(QStringLiteral("CCerereID"));
    d.NrCerere = Camp::Intreg(q, QStringLiteral("NrCerere"));
    d.TipCerere = Camp::Intreg(q, QStringLiteral("TipCerere"));
    d.NrCopii = Camp::Intreg(q, QStringLiteral("NrCopii"));
    d.DataCerere = Camp::Data(q, QStringLiteral("DataCerere"));
    d.MotivStare = Camp::Text(q, QStringLiteral("MotivStare"));
    d.Nume = Camp::Text(q, QStringLiteral("Nume"));
    d.Prenume = Camp::Text(q, QStringLiteral("Prenume"));
    d.CNP = Camp::Text(q, QStringLiteral("CNP"));
    d.JudetFamilie = Camp::Text(q, QStringLiteral("FJudet"));
    d.Adresa.Localitate = Camp::Text(q, QStringLiteral("FLocalitate"));
    d.Adresa.Strada = Camp::Text(q, QStringLiteral("FStrada"));
    d.Adresa.Nr = Camp::Text(q, QStringLiteral("FNr"));
    d.Adresa.Sc = Camp::Text(q, QStringLiteral("FSc"));
    d.Adresa.Ap = Camp::Text(q, QStringLiteral("FAp"));
    return d;
}

} // namespace

ContextDispozitii CitesteContextDispozitii(BazaDate& db) {
    ContextDispozitii c;
    c.Primarie = CitestePrimaria(db);
    c.Barem = CitesteBarem(db);
    return c;
}

std::vector<std::optional<DateDispozitie>> CitesteDispozitii(BazaDate& db, const std::vector<qint64>& ids) {
    std::unordered_map<qint64, DateDispozitie> gasite;
    for (const auto& grupa : GrupeChei(ids)) {
        Interogare q(
            db, QStringLiteral(
                    "SELECT D.DispozitieID, D.Actiune, D.NrDisp, D.DataDisp, D.DinData, D.Cuantum, D.CuantumVechi, "
                    "D.Motiv, C.CerereID AS CCerereID, C.NrCerere, C.DataCerere, C.TipCerere, C.NrCopii, "
                    "C.MotivStare, M.Nume, M.Prenume, M.CNP, F.Judet AS FJudet, F.Localitate AS FLocalitate, "
                    "F.Strada AS FStrada, F.Nr AS FNr, F.Sc AS FSc, F.Ap AS FAp "
                    "FROM Dispozitii D LEFT JOIN Cereri C ON C.CerereID = D.CerereID "
                    "LEFT JOIN Membrii M ON M.MembruID = C.MembruID1 "
                    "LEFT JOIN Familii F ON F.FamilieID = C.FamilieID "
                    "WHERE D.DispozitieID IN (%1)")
                    .arg(Sql::Semne(qsizetype(grupa.size()))));
        for (const qint64 id : grupa)
            q.Leaga(id);
        q.Executa();
        while (q.Urmator()) {
            DateDispozitie d = CitesteRand(q);
            gasite.emplace(d.DispozitieID, std::move(d));
        }
    }
    std::vector<std::optional<DateDispozitie>> r;
    r.reserve(ids.size());
    for (const qint64 id : ids) {
        const auto it = gasite.find(id);
        r.push_back(it == gasite.end() ? std::nullopt : std::optional<DateDispozitie>(it->second));
    }
    return r;
}

bool EsteMasculin(const QString& cnp) {
    return cnp.startsWith(u'1') || Val(QStringView(cnp).left(5)) == 1.0;
}

bool EsteOrasSpecial(const QString& localitate) {
    QString t = localitate.toUpper();
    for (QChar& c : t) {
        switch (c.unicode()) {
        case u'\u0218':
        case u'\u015E':
            c = u'S';
            break;
        case u'\u021A':
        case u'\u0162':
            c = u'T';
            break;
        case u'\u0102':
        case u'\u00C2':
            c = u'A';
            break;
        case u'\u00CE':
            c = u'I';
            break;
        default:
            break;
        }
    }
    return t.contains(QLatin1String("FIZESU"));
}

const RandBarem* BaremDispozitie(const ContextDispozitii& c, const DateDispozitie& d) {
    if (!d.NrCopii || !d.TipCerere || !d.DinData) return nullptr;
    const int nrPers = int(std::min<qint64>(*d.NrCopii, 4));
    const RandBarem* gasit = nullptr;
    for (const RandBarem& r : c.Barem) {
        if (r.NrPers != nrPers || r.Tip != *d.TipCerere || r.Suma != TreaptaBarem) continue;
        if (!r.DataInceput.isValid() || r.DataInceput > *d.DinData) continue;
        if (r.DataStop.isValid() && r.DataStop < *d.DinData) continue;
        // Overlapping periods should not exist; if they do, the newest scale speaks.
        if (!gasit || r.DataInceput > gasit->DataInceput) gasit = &r;
    }
    return gasit;
}

bool InlocuiesteDispozitie(const DateDispozitie& d, const ContextDispozitii& c, const OptiuniDocumente& o,
                           QByteArray& corp, Mesaje& m) {
    if (!c.Primarie) {
        m.Avertisment(QStringLiteral("Introduceti mai intai datele primariei!"));
        return false;
    }
    if (!d.CerereGasita) {
        m.Avertisment(TextRandNegasit);
        return false;
    }
    const PrimarieDocument& p = *c.Primarie;
    const bool orasSpecial = EsteOrasSpecial(p.Localitate.value_or(QString()));

    Completare k(corp);
    k.Pune("#Judet#", p.Judet, QStringLiteral("Judet al primariei"));
    k.Pune("#COD#", QString());
    k.Pune("#CodFiscal#", p.CodFiscal.value_or(QString()));
    k.Pune("#Localitate#", p.Localitate, QStringLiteral("Localitate al primariei"));
    k.Pune("#Primar#", p.Primar, QStringLiteral("Primar"));
    k.Pune("#secretar#", p.Secretar, QStringLiteral("Secretar"));
    if (!p.TipLocalitate)
        k.Pune("#TipLoc#", QString());
    else if (*p.TipLocalitate >= 1 && *p.TipLocalitate <= 3)
        k.Pune("#TipLoc#", QStringList{QStringLiteral("comuna"), QStringLiteral("orasul"),
                                       QStringLiteral("municipiul")}[int(*p.TipLocalitate) - 1]);
    k.Pune("#NrC#", Numar(d.NrCerere), QStringLiteral("NrCerere"));
    k.Pune("#DataC#", Data(d.DataCerere), QStringLiteral("DataCerere"));
    if (d.TipCerere == 1)
        k.Pune("#tip#", QStringLiteral("complementara"));
    else if (d.TipCerere == 2)
        k.Pune("#tip#", QStringLiteral("monoparentala"));
    k.Pune("#NrCopii#", Numar(d.NrCopii), QStringLiteral("NrCopii"));
    k.Pune("#copii#", d.NrCopii == 1 ? QStringLiteral("copil") : QStringLiteral("copii"));
    k.Pune("#locuit#", d.NrCopii == 1 ? QStringLiteral("locuieste") : QStringLiteral("locuiesc"));
    k.Pune("#Nr#", d.NrDisp.value_or(0) == 0 ? QStringLiteral(".......") : QString::number(*d.NrDisp));
    k.Pune("#DataDisp#", d.DataDisp ? TextData(*d.DataDisp) : QStringLiteral(".................."));
    k.Pune("#DinData#", d.DinData ? TextData(*d.DinData) : QString());
    k.Pune("#suma#", Suma(d.Cuantum), QStringLiteral("Cuantum al dispozitiei"));
    k.Pune("#sumav#", Suma(d.CuantumVechi), QStringLiteral("CuantumVechi"));
    if (!k.Reusita()) {
        m.Critic(k.MesajEsec());
        return false;
    }

    if (d.NrCopii.value_or(0) <= 0) {
        m.Avertisment(QStringLiteral("Nu exista copii in cerere, motiv pentru care nu se poate tipari dispozitia."));
        return false;
    }
    if (const RandBarem* r = BaremDispozitie(c, d)) k.Pune("#barem#", r->Barem ? TextSuma(*r->Barem) : QString());

    k.Pune("#Motiv#", (o.Motiv ? d.MotivStare : d.Motiv).value_or(QString()));
    k.Pune("#NumeF#", d.Nume, QStringLiteral("Nume al titularului"));
    const QString nume = NumeIntreg(d.Nume, d.Prenume);
    k.Pune("#Nume#", orasSpecial ? NumeProprii(nume) : nume);
    const bool masculin = EsteMasculin(d.CNP.value_or(QString()));
    for (const FormaSex& f : FormeSex)
        k.Pune(f.marcaj, QString::fromLatin1(masculin ? f.masculin : f.feminin));
    k.Pune("#CNP#", d.CNP, QStringLiteral("CNP al titularului"));
    k.Pune("#Adresa#", TextAdresa(d.Adresa, o.StrSat, orasSpecial));
    k.Pune("#JudetD#", d.JudetFamilie, QStringLiteral("Judet al familiei"));
    k.Pune("#Data#", TextData(Ceas::Azi()));
    if (!k.Reusita()) {
        m.Critic(k.MesajEsec());
        return false;
    }
    return true;
}

bool InlocuiesteDispozitie(BazaDate& db, qint64 dispozitieID, const OptiuniDocumente& o, QByteArray& corp, Mesaje& m) {
    const auto d = CitesteDispozitii(db, {dispozitieID});
    if (!d.front()) {
        m.Avertisment(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!"));
        return false;
    }
    return InlocuiesteDispozitie(*d.front(), CitesteContextDispozitii(db), o, corp, m);
}
