#include "documents/InlocuireCerere.h"

#include "cases/DateCerere.h"
#include "documents/Sablon.h"
#include "base/Ceas.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

#include <map>
#include <utility>

using namespace TextOptional;

namespace {

const QString Puncte = QStringLiteral(".....................");

QByteArray Marcaj(const char* inceput, int n) {
    return QByteArray(inceput) + QByteArray::number(n) + '#';
}

bool Esuat(const Completare& k, Mesaje& m) {
    if (k.Reusita()) return false;
    m.Critic(k.MesajEsec());
    return true;
}

} // namespace

bool InlocuiesteFisa(BazaDate& db, qint64 cerereID, const QDate& dataFisa, QByteArray& corp, Mesaje& m) {
    Interogare q(db, QStringLiteral("SELECT C.NrCerere, C.DataCerere, C.NrMembrii, C.NrCopii, C.VenitTotal, "
                                    "C.VenitpeMembru, C.Cuantum, M.Nume, M.Prenume "
                                    "FROM Cereri C LEFT JOIN Membrii M ON M.MembruID = C.MembruID1 "
                                    "WHERE C.CerereID = ?"));
    q.Leaga(cerereID);
    if (!q.Exista()) {
        m.Avertisment(TextRandNegasit);
        return false;
    }
    const auto primarie = CitestePrimaria(db).value_or(PrimarieDocument{});

    Completare k(corp);
    k.Pune("#NrC#", Numar(Camp::Intreg(q, QStringLiteral("NrCerere"))), QStringLiteral("NrCerere"));
    k.Pune("#DataCerere#", Data(Camp::Data(q, QStringLiteral("DataCerere"))), QStringLiteral("DataCerere"));
    k.Pune("#NrMembrii#", Numar(Camp::Intreg(q, QStringLiteral("NrMembrii"))), QStringLiteral("NrMembrii"));
    k.Pune("#NrCopii#", Numar(Camp::Intreg(q, QStringLiteral("NrCopii"))), QStringLiteral("NrCopii"));
    k.Pune("#VenitTotal#", Suma(Camp::Suma(q, QStringLiteral("VenitTotal"))), QStringLiteral("VenitTotal"));
    k.Pune("#VenitpeMembru#", Suma(Camp::Suma(q, QStringLiteral("VenitpeMembru"))).value_or(QString()));
    k.Pune("#Cuantum#", Suma(Camp::Suma(q, QStringLiteral("Cuantum"))), QStringLiteral("Cuantum"));
    k.Pune("#Titular#", NumeIntreg(Camp::Text(q, QStringLiteral("Nume")), Camp::Text(q, QStringLiteral("Prenume"))));
    k.Pune("##data##", TextData(dataFisa.isValid() ? dataFisa : Ceas::Azi()));
    k.Pune("#Jud#", primarie.Judet.value_or(Puncte));
    k.Pune("#Loc#", primarie.Localitate.value_or(Puncte));
    k.Pune("#AsSocial#", primarie.AsSocial.value_or(QString()));
    return !Esuat(k, m);
}

bool InlocuiesteDeclaratie(BazaDate& db, qint64 cerereID, const OptiuniDocumente& o, QByteArray& corp, Mesaje& m) {
    Interogare c(db, QStringLiteral("SELECT C.NrCerere, C.DataCerere, M.Nume, M.Prenume, M.CNP, F.Localitate, "
                                    "F.Strada, F.Nr, F.Sc, F.Ap "
                                    "FROM Cereri C LEFT JOIN Membrii M ON M.MembruID = C.MembruID1 "
                                    "LEFT JOIN Familii F ON F.FamilieID = C.FamilieID WHERE C.CerereID = ?"));
    c.Leaga(cerereID);
    if (!c.Exista()) {
        m.Avertisment(TextRandNegasit);
        return false;
    }
    const auto primarie = CitestePrimaria(db).value_or(PrimarieDocument{});

    Completare k(corp);
    k.Pune("#Judet#", primarie.Judet.value_or(Puncte));
    k.Pune("#Localitate#", primarie.Localitate.value_or(Puncte));
    k.Pune("#NrC#", Numar(Camp::Intreg(c, QStringLiteral("NrCerere"))), QStringLiteral("NrCerere"));
    k.Pune("#DataC#", Data(Camp::Data(c, QStringLiteral("DataCerere"))), QStringLiteral("DataCerere"));

    Interogare v(db, QStringLiteral("SELECT CodVenit, Valoare FROM Venituri WHERE CerereID = ? ORDER BY CodVenit"));
    v.Leaga(cerereID).Executa();
    int venituri = 0;
    std::optional<Bani> total = Bani();
    while (v.Urmator()) {
        ++venituri;
        const auto valoare = Camp::Suma(v, QStringLiteral("Valoare"));
        k.Pune(Marcaj("#c", venituri).constData(), Numar(Camp::Intreg(v, QStringLiteral("CodVenit"))),
               QStringLiteral("CodVenit al venitului %1").arg(venituri));
        k.Pune(Marcaj("#cu", venituri).constData(), Suma(valoare),
               QStringLiteral("Valoare a venitului %1").arg(venituri));
        if (total) total = valoare ? std::optional<Bani>(*total + *valoare) : std::nullopt;
    }
    k.Pune("#tot#", Suma(total), QStringLiteral("Valoare a unui venit"));

    AdresaFamilie a;
    a.Localitate = Camp::Text(c, QStringLiteral("Localitate"));
    a.Strada = Camp::Text(c, QStringLiteral("Strada"));
    a.Nr = Camp::Text(c, QStringLiteral("Nr"));
    a.Sc = Camp::Text(c, QStringLiteral("Sc"));
    a.Ap = Camp::Text(c, QStringLiteral("Ap"));
    k.Pune("#adresa#", TextAdresa(a, o.StrSat, false));
    k.Pune("#nume#", NumeIntreg(Camp::Text(c, QStringLiteral("Nume")), Camp::Text(c, QStringLiteral("Prenume"))));
    k.Pune("#cnp#", Camp::Text(c, QStringLiteral("CNP")), QStringLiteral("CNP al titularului"));
    if (Esuat(k, m)) return false;

    // The DateGen texts that a declaration names: kinship, occupation, school situation.
    const auto texte = TexteDupaId(db, {TipDateGen::Rudenie, TipDateGen::Ocupatie, TipDateGen::SitScolaraElev});
    auto text = [&](TipDateGen tip, const std::optional<qint64>& id) -> std::optional<QString> {
        if (!id) return std::nullopt;
        const auto it = texte.find({tip, *id});
        if (it == texte.end()) return std::nullopt;
        return TextPanaLaParanteza(it->second).toLower();
    };
    Interogare p(db, QStringLiteral("SELECT M.Nume, M.Prenume, M.CNP, CM.RudenieID, CM.OcupatieID, CM.Studii "
                                    "FROM CereriMembrii CM INNER JOIN Membrii M ON M.MembruID = CM.MembruID "
                                    "WHERE CM.CerereID = ? "
                                    "ORDER BY CASE WHEN CM.RudenieID IS NULL THEN 0 ELSE 1 END, CM.RudenieID, "
                                    "CM.MembruID"));
    p.Leaga(cerereID).Executa();
    int membri = 0;
    while (p.Urmator()) {
        ++membri;
        const auto rudenie = Camp::Intreg(p, QStringLiteral("RudenieID"));
        k.Pune(Marcaj("#nume", membri).constData(),
               NumeIntreg(Camp::Text(p, QStringLiteral("Nume")), Camp::Text(p, QStringLiteral("Prenume"))));
        k.Pune(Marcaj("#cnp", membri).constData(), Camp::Text(p, QStringLiteral("CNP")),
               QStringLiteral("CNP al membrului %1").arg(membri));
        k.Pune(Marcaj("#n", membri).constData(), QString::number(membri));
        k.Pune(Marcaj("#r", membri).constData(), text(TipDateGen::Rudenie, rudenie).value_or(QString()));
        auto ocupatie = text(TipDateGen::Ocupatie, Camp::Intreg(p, QStringLiteral("OcupatieID")));
        const qint64 r = rudenie.value_or(0);
        if (!ocupatie && (r == 3 || (r >= 6 && r <= 10)))
            ocupatie = text(TipDateGen::SitScolaraElev, Camp::Intreg(p, QStringLiteral("Studii")));
        k.Pune(Marcaj("#o", membri).constData(), ocupatie.value_or(QString()));
    }

    for (int n = venituri + 1; n <= RanduriDeclaratie; ++n)
        for (const char* pref : {"#c", "#cu"})
            k.Pune(Marcaj(pref, n).constData(), QString());
    for (int n = membri + 1; n <= RanduriDeclaratie; ++n)
        for (const char* pref : {"#nume", "#cnp", "#n", "#r", "#o"})
            k.Pune(Marcaj(pref, n).constData(), QString());
    return !Esuat(k, m);
}
