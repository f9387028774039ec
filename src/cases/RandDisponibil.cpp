#include "cases/RandDisponibil.h"

#include "base/Mesaje.h"
#include "store/BazaDate.h"

bool RandDisponibil(BazaDate& db, Mesaje& m, qint64 cheie, const QString& faraSelectie, const QString& sql,
                    const QString& negasit) {
    if (!VerificaBD(db, m)) return false;
    if (cheie == 0) {
        m.Informatie(faraSelectie);
        return false;
    }
    Interogare q(db, sql);
    q.Leaga(cheie);
    if (!q.Exista()) {
        m.Informatie(negasit);
        return false;
    }
    return true;
}
