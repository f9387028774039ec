#include "documents/ComenziDocumente.h"

#include "cases/DateCerere.h"
#include "documents/Documente.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "store/Sql.h"

#include <QDir>

namespace ComenziDocumente {

namespace {

// The sheet and the declaration start from the selected request, re-read by key.
bool CererePregatita(BazaDate& db, qint64 cerereID, Mesaje& m) {
    if (cerereID == 0) {
        m.Informatie(QStringLiteral("Selecati mai intai o cerere!"));
        return false;
    }
    if (!VerificaBD(db, m)) return false;
    if (!Sql::RandExista(db, QStringLiteral("Cereri"), QStringLiteral("CerereID"), cerereID)) {
        m.Informatie(TextRandNegasit);
        return false;
    }
    return true;
}

bool Deschide(Documente::Rezultat r, const QString& cale, const TiparireDocumente& t, Mesaje& m) {
    return r == Documente::Rezultat::Scris && DeschideDocument(cale, t.AppWord, t.mediu, m);
}

} // namespace

bool TiparesteDispozitie(BazaDate& db, qint64 dispozitieID, const TiparireDocumente& t, Mesaje& m) {
    if (dispozitieID == 0) {
        m.Informatie(QStringLiteral("Selecati mai intai o dispozitie!"));
        return false;
    }
    const QString cale = QDir(t.folder).filePath(Documente::FisierDispozitie);
    return Deschide(Documente::GenereazaDispozitie(db, dispozitieID, t.optiuni, cale, m), cale, t, m);
}

bool TiparesteFisa(BazaDate& db, qint64 cerereID, const TiparireDocumente& t, Mesaje& m) {
    if (!CererePregatita(db, cerereID, m)) return false;
    const QString cale = QDir(t.folder).filePath(Documente::FisierFisa);
    return Deschide(Documente::GenereazaFisa(db, cerereID, t.optiuni, cale, m), cale, t, m);
}

bool TiparesteDeclaratie(BazaDate& db, qint64 cerereID, const TiparireDocumente& t, Mesaje& m) {
    if (!CererePregatita(db, cerereID, m)) return false;
    const QString cale = QDir(t.folder).filePath(Documente::FisierDeclaratie);
    return Deschide(Documente::GenereazaDeclaratie(db, cerereID, t.optiuni, cale, m), cale, t, m);
}

bool TiparesteDispozitiile(BazaDate& db, const std::vector<qint64>& dispozitii, const TiparireDocumente& t, Mesaje& m) {
    const QString cale = QDir(t.folder).filePath(Documente::FisierDispozitie);
    return Documente::GenereazaDispozitii(db, dispozitii, t.optiuni, cale, m) == Documente::Rezultat::Scris &&
           DeschideDispozitiile(cale, t.AppWord, t.mediu, m);
}

} // namespace ComenziDocumente
