#pragma once

#include "base/Texte.h"
#include "store/BazaDate.h"
#include "store/CheiLista.h"
#include "support/SqlTest.h"

#include <QDate>
#include <QList>
#include <QString>

// A request written straight to the tables, for tests that need a few known case files.
struct CerereTest {
    qint64 cerereID = 0;
    qint64 familieID = 0; // 0: same as cerereID
    qint64 nrCerere = 0;
    int stare = 2;
    int tipCerere = 1;
    QString localitate = QStringLiteral("Branesti");
    QString strada;
    struct Persoana {
        qint64 membruID;
        QString nume, prenume, cnp;
        int rudenie;
    };
    QList<Persoana> persoane; // the first is the titular
};

inline void AdaugaCerereTest(BazaDate& db, const CerereTest& c) {
    Tranzactie t(db);
    const qint64 familie = c.familieID ? c.familieID : c.cerereID;
    Interogare existaFamilie(db, QStringLiteral("SELECT 1 FROM Familii WHERE FamilieID = ?"));
    existaFamilie.Leaga(familie);
    if (!existaFamilie.Exista())
        ExecutaCu(db, QStringLiteral("INSERT INTO Familii (FamilieID, Localitate, Strada, Nr) VALUES (?, ?, ?, ?)"),
                  familie, c.localitate, c.strada, QStringLiteral("12"));
    ExecutaCu(
        db,
        QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, MembruID1, Stare, TipCerere, "
                       "NrMembrii, NrCopii, VenitTotal, Cuantum) VALUES (?, ?, ?, ?, ?, ?, ?, ?, 1, 1200.5, 164)"),
        c.cerereID, familie, c.nrCerere, QDate(2024, 3, 15), c.persoane.first().membruID, c.stare, c.tipCerere,
        qint64(c.persoane.size()));
    for (const auto& p : c.persoane) {
        Interogare exista(db, QStringLiteral("SELECT 1 FROM Membrii WHERE MembruID = ?"));
        exista.Leaga(p.membruID);
        if (!exista.Exista())
            ExecutaCu(db,
                      QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, NumeCautare, PrenumeCautare) "
                                     "VALUES (?, ?, ?, ?, ?, ?)"),
                      p.membruID, p.nume, p.prenume, p.cnp, CheieCautare(p.nume), CheieCautare(p.prenume));
        ExecutaCu(db, QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID) VALUES (?, ?, ?)"),
                  c.cerereID, p.membruID, p.rudenie);
    }
    CheiLista::Scrie(db, QStringLiteral("CerereID = ?"), {c.cerereID});
    t.Confirma();
}
