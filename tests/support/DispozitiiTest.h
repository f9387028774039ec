#pragma once

#include "base/Bani.h"
#include "store/BazaDate.h"
#include "support/SqlTest.h"

#include <QDate>
#include <QString>
#include <QVariant>
#include <optional>

// Requests and dispositions written straight to the tables, and a disposition read back as it
// is stored, for the tests of the dispositions.

struct CerereDisp {
    qint64 id = 0;
    qint64 nrCerere = 0;
    int tip = 1;
    int stare = 2;
    std::optional<Bani> cuantum = Bani::DinLei(164);
    QDate dataCerere = QDate(2024, 3, 15);
    QDate dataStare = QDate(2024, 4, 1);
    QString motivStare = QStringLiteral("Indeplineste conditiile legii");
    int nrCopii = 2;
};

inline void AdaugaCereri(BazaDate& db, const std::vector<CerereDisp>& cereri) {
    Tranzactie t(db);
    Interogare f(db, QStringLiteral("INSERT INTO Familii (FamilieID, Localitate) VALUES (?, ?)"));
    Interogare c(db, QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, Stare, TipCerere, "
                                    "Cuantum, DataStare, MotivStare, NrCopii) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    for (const CerereDisp& r : cereri) {
        f.Leaga(r.id).Leaga("Branesti").Executa();
        c.Leaga(r.id).Leaga(r.id).Leaga(r.nrCerere).Leaga(r.dataCerere).Leaga(r.stare).Leaga(r.tip);
        if (r.cuantum)
            c.Leaga(*r.cuantum);
        else
            c.Leaga(QVariant());
        c.Leaga(r.dataStare).Leaga(r.motivStare).Leaga(r.nrCopii).Executa();
    }
    t.Confirma();
}

struct DispTest {
    qint64 id = 0, cerereID = 0;
    qint64 nrDisp = 0;
    int actiune = 1;
    QDate dinData = QDate(2024, 4, 1);
    QVariant cuantum = 164;
    QVariant cuantumVechi = QVariant();
    QDate dataDisp = QDate(2024, 4, 20);
};

inline void AdaugaDispozitie(BazaDate& db, const DispTest& d) {
    ExecutaCu(db,
              QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Luna, "
                             "An, Actiune, Cuantum, CuantumVechi, Motiv) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
              d.id, d.cerereID, d.nrDisp, d.dataDisp, d.dinData, d.dinData.month(), d.dinData.year(), d.actiune,
              d.cuantum, d.cuantumVechi, "motiv vechi");
}

// A stored disposition, every field as text ("" for NULL) or as its type.
struct RandDisp {
    bool gasit = false;
    qint64 cerereID = 0;
    QString nrDisp;
    QDate dataDisp, dinData;
    QString luna, an, actiune;
    std::optional<Bani> cuantum, cuantumVechi;
    QString motiv;
};

inline RandDisp CitesteDisp(BazaDate& db, qint64 id) {
    Interogare q(db, QStringLiteral("SELECT CerereID, NrDisp, DataDisp, DinData, Luna, An, Actiune, Cuantum, "
                                    "CuantumVechi, Motiv FROM Dispozitii WHERE DispozitieID = ?"));
    q.Leaga(id);
    RandDisp r;
    if (!q.Exista()) return r;
    auto text = [&](int i) { return q.Valoare(i).isNull() ? QString() : q.Valoare(i).toString(); };
    auto suma = [&](int i) {
        return q.Valoare(i).isNull() ? std::nullopt : std::optional<Bani>(Bani::DinVariant(q.Valoare(i)));
    };
    r.gasit = true;
    r.cerereID = q.Intreg(0);
    r.nrDisp = text(1);
    r.dataDisp = q.Data(QStringLiteral("DataDisp"));
    r.dinData = q.Data(QStringLiteral("DinData"));
    r.luna = text(4);
    r.an = text(5);
    r.actiune = text(6);
    r.cuantum = suma(7);
    r.cuantumVechi = suma(8);
    r.motiv = text(9);
    return r;
}
