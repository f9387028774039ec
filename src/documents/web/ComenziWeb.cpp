#include "documents/web/ComenziWeb.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"

#include <QFileInfo>

namespace ComenziWeb {

QString Document(Comanda c, int stare) {
    switch (c) {
    case Comanda::cmdCerere:
        return stare == 7 ? PunteWeb::DocCerere1a : PunteWeb::DocCerere;
    case Comanda::mnuAnexa1:
    case Comanda::mnuCerereGoala:
        return PunteWeb::DocCerere;
    case Comanda::mnuAnexa1a:
    case Comanda::mnucerereMod:
        return PunteWeb::DocCerere1a;
    case Comanda::cmdPrintAncheta:
    case Comanda::mnuAnchetaGoala:
        return PunteWeb::DocAncheta;
    }
    return PunteWeb::DocCerere;
}

bool PeCerereSelectata(Comanda c) {
    return c == Comanda::cmdCerere || c == Comanda::mnuAnexa1 || c == Comanda::mnuAnexa1a ||
           c == Comanda::cmdPrintAncheta;
}

std::optional<PunteWeb::PaginaWeb> Tipareste(BazaDate& db, const PunteWeb::MediuWeb& mediu, Comanda c,
                                             qint64 cerereSelectata, Mesaje& m) {
    if (!PeCerereSelectata(c)) return PunteWeb::StartCerereWeb(db, mediu, 0, Document(c, 0), false, m);
    if (!VerificaBD(db, m)) return std::nullopt;
    if (cerereSelectata <= 0) {
        m.Informatie(QStringLiteral("Selecati mai intai o cerere!"));
        return std::nullopt;
    }
    int stare = 0;
    try {
        Interogare q(db, QStringLiteral("SELECT Stare FROM Cereri WHERE CerereID = ?"));
        q.Leaga(cerereSelectata);
        if (!q.Exista()) {
            m.Informatie(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"));
            return std::nullopt;
        }
        stare = int(q.Intreg(0));
    } catch (const Eroare& e) {
        m.Critic(e.text());
        return std::nullopt;
    }
    return PunteWeb::StartCerereWeb(db, mediu, cerereSelectata, Document(c, stare), false, m);
}

bool FisiereWebExista(const PunteWeb::MediuWeb& mediu) {
    return QFileInfo(mediu.fisierInterogari).isFile() && QFileInfo(mediu.pagina).isFile();
}

StareComenzi ActivareComenzi(int nrCereri, StareComenzi actuala, bool fisiereWeb) {
    const bool on = nrCereri > 0;
    StareComenzi s = actuala;
    s.cmdEdit = on;
    s.cmdDelete = on;
    s.cmdFisaCalcul = on;
    s.cmdAddAncheta = on;
    s.cmdAddDisp = on;
    if (fisiereWeb) {
        s.cmdCerere = on;
        s.cmdSelect = on;
        s.cmdPrintAncheta = on;
    }
    return s;
}

} // namespace ComenziWeb
