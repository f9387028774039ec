#include "cases/RandDisponibil.h"

#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "store/Sql.h"

bool RandDisponibil(BazaDate& db, Mesaje& m, qint64 cheie, const QString& faraSelectie, const QString& tabela,
                    const QString& camp, const QString& negasit) {
    if (!VerificaBD(db, m)) return false;
    if (cheie == 0) {
        m.Informatie(faraSelectie);
        return false;
    }
    if (!Sql::RandExista(db, tabela, camp, cheie)) {
        m.Informatie(negasit);
        return false;
    }
    return true;
}
