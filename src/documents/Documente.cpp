#include "documents/Documente.h"

#include "documents/InlocuireCerere.h"
#include "documents/InlocuireDispozitie.h"
#include "documents/Sablon.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"

#include <QDir>
#include <map>

namespace Documente {

namespace {

const QString MesajDispDeschisa = QStringLiteral("Inchideti documentul deschis anterior!");
const QString MesajDeclaratieDeschisa = QStringLiteral("Inchideti Declaratia anteriora!");
const QString MesajDispozitieNegasita = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!");
const QByteArray SaltPagina = QByteArrayLiteral("\\page");

QString CaleSablon(const OptiuniDocumente& o, const QString& sablonDat, const QString& implicit) {
    return sablonDat.isEmpty() ? QDir(o.FolderActe).filePath(implicit) : sablonDat;
}

} // namespace

QString SablonDispozitie(int actiune) {
    static const char* const nume[] = {"acordare.rtf",   "modificare.rtf", "suspendare.rtf",
                                       "respingere.rtf", "incetare.rtf",   "reluare.rtf"};
    if (actiune < 1 || actiune > 6) return {};
    return QString::fromLatin1(nume[actiune - 1]);
}

Rezultat GenereazaDispozitie(BazaDate& db, qint64 dispozitieID, const OptiuniDocumente& o, const QString& caleIesire,
                             Mesaje& m, const QString& sablon) {
    if (!VerificaBD(db, m)) return Rezultat::Esuat;
    const auto date = CitesteDispozitii(db, {dispozitieID});
    if (!date.front()) {
        m.Avertisment(MesajDispozitieNegasita);
        return Rezultat::Esuat;
    }
    const DateDispozitie& d = *date.front();
    const QString nume = SablonDispozitie(d.Actiune);
    if (nume.isEmpty()) return Rezultat::FaraSablon;
    auto s = CitesteSablon(CaleSablon(o, sablon, nume), m);
    if (!s) return Rezultat::Esuat;
    if (!InlocuiesteDispozitie(d, CitesteContextDispozitii(db), o, s->Corp, m)) return Rezultat::Esuat;
    return ScrieDocument(caleIesire, DocumentRtf(s->Cap, s->Corp), MesajDispDeschisa, m) ? Rezultat::Scris
                                                                                         : Rezultat::Esuat;
}

Rezultat GenereazaFisa(BazaDate& db, qint64 cerereID, const OptiuniDocumente& o, const QString& caleIesire, Mesaje& m,
                       const QString& sablon) {
    if (!VerificaBD(db, m)) return Rezultat::Esuat;
    auto s = CitesteSablon(CaleSablon(o, sablon, SablonFisa), m);
    if (!s || !InlocuiesteFisa(db, cerereID, o.DataFisa, s->Corp, m)) return Rezultat::Esuat;
    return ScrieDocument(caleIesire, DocumentRtf(s->Cap, s->Corp), MesajDispDeschisa, m) ? Rezultat::Scris
                                                                                         : Rezultat::Esuat;
}

Rezultat GenereazaDeclaratie(BazaDate& db, qint64 cerereID, const OptiuniDocumente& o, const QString& caleIesire,
                             Mesaje& m, const QString& sablon) {
    if (!VerificaBD(db, m)) return Rezultat::Esuat;
    auto s = CitesteSablon(CaleSablon(o, sablon, SablonDeclaratie), m);
    if (!s || !InlocuiesteDeclaratie(db, cerereID, o, s->Corp, m)) return Rezultat::Esuat;
    return ScrieDocument(caleIesire, DocumentRtf(s->Cap, s->Corp), MesajDeclaratieDeschisa, m) ? Rezultat::Scris
                                                                                               : Rezultat::Esuat;
}

Rezultat GenereazaDispozitii(BazaDate& db, const std::vector<qint64>& dispozitii, const OptiuniDocumente& o,
                             const QString& caleIesire, Mesaje& m) {
    if (!VerificaBD(db, m)) return Rezultat::Esuat;
    if (dispozitii.empty()) {
        m.Informatie(QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!"));
        return Rezultat::Esuat;
    }
    const ContextDispozitii context = CitesteContextDispozitii(db);
    const auto date = CitesteDispozitii(db, dispozitii);
    // Each template is read once for the run: the six files do not change under it.
    std::map<int, Sablon> sabloane;
    QByteArray cap, corpuri;
    for (const auto& d : date) {
        if (!d) {
            m.Avertisment(MesajDispozitieNegasita);
            return Rezultat::Esuat;
        }
        const QString nume = SablonDispozitie(d->Actiune);
        if (nume.isEmpty()) return Rezultat::FaraSablon;
        auto it = sabloane.find(d->Actiune);
        if (it == sabloane.end()) {
            auto s = CitesteSablon(QDir(o.FolderActe).filePath(nume), m);
            if (!s) return Rezultat::Esuat;
            it = sabloane.emplace(d->Actiune, std::move(*s)).first;
        }
        QByteArray corp = it->second.Corp;
        if (!InlocuiesteDispozitie(*d, context, o, corp, m)) return Rezultat::Esuat;
        if (corpuri.isEmpty()) corpuri.reserve(qsizetype(corp.size() + SaltPagina.size()) * qsizetype(date.size()));
        corpuri.append(corp).append(SaltPagina);
        cap = it->second.Cap;
    }
    corpuri.chop(SaltPagina.size());
    return ScrieDocument(caleIesire, DocumentRtf(cap, corpuri), MesajDispDeschisa, m) ? Rezultat::Scris
                                                                                      : Rezultat::Esuat;
}

} // namespace Documente
