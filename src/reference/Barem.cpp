#include "reference/Barem.h"

#include "store/BazaDate.h"

std::vector<RandBarem> CitesteBarem(BazaDate& db) {
    std::vector<RandBarem> r;
    Interogare q(db, QStringLiteral("SELECT Tip, NrPers, Suma, Barem, DataInceput, DataStop FROM Barem"));
    q.Executa();
    while (q.Urmator()) {
        RandBarem b;
        b.Tip = int(q.Intreg(QStringLiteral("Tip")));
        b.NrPers = int(q.Intreg(QStringLiteral("NrPers")));
        b.Suma = q.Suma(QStringLiteral("Suma"));
        if (!q.EsteNul(QStringLiteral("Barem"))) b.Barem = q.Suma(QStringLiteral("Barem"));
        b.DataInceput = q.Data(QStringLiteral("DataInceput"));
        b.DataStop = q.Data(QStringLiteral("DataStop"));
        r.push_back(b);
    }
    return r;
}
