#pragma once

#include "base/Bani.h"
#include "store/BazaDate.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QDate>
#include <QFile>
#include <QString>
#include <QVariant>
#include <vector>

// Case files written straight to the tables for the document tests. A QVariant() is a null.

inline QString TestDate(const char* nume) {
    return QStringLiteral(FEROLANTA_TESTE_DATE "/documente/") + QString::fromUtf8(nume);
}

inline QByteArray CitesteTot(const QString& cale) {
    QFile f(cale);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

inline QVariant Suma(const char* text) {
    return QVariant(Bani::DinText(QString::fromLatin1(text))->ToDouble());
}

struct PrimarieTest {
    QVariant Judet, Localitate, Primar, Secretar, CodFiscal, TipLocalitate, AsSocial;
};

struct PersoanaTest {
    qint64 MembruID;
    QString Nume, Prenume;
    QVariant CNP;
    QVariant RudenieID, OcupatieID, Studii;
};

struct CerereDocTest {
    qint64 CerereID = 0;
    QVariant NrCerere, DataCerere, TipCerere, NrMembrii, NrCopii, VenitTotal, VenitpeMembru, Cuantum, MotivStare;
    QVariant Judet, Localitate, Strada, Nr, Sc, Ap; // the family
    std::vector<PersoanaTest> Persoane;             // the first is the holder
};

struct DispozitieTest {
    qint64 DispozitieID = 0, CerereID = 0;
    QVariant NrDisp, DataDisp, DinData, Actiune, Cuantum, CuantumVechi, Motiv;
};

inline void ScriePrimarie(BazaDate& db, const PrimarieTest& p) {
    ExecutaCu(db,
              QStringLiteral("INSERT INTO DatePrimarie (Denumire, Judet, Localitate, Primar, Secretar, CodFiscal, "
                             "TipLocalitate, AsSocial) VALUES ('Primaria', ?, ?, ?, ?, ?, ?, ?)"),
              p.Judet, p.Localitate, p.Primar, p.Secretar, p.CodFiscal, p.TipLocalitate, p.AsSocial);
}

inline void ScrieCerere(BazaDate& db, const CerereDocTest& c) {
    Tranzactie t(db);
    ExecutaCu(db,
              QStringLiteral("INSERT INTO Familii (FamilieID, Judet, Localitate, Strada, Nr, Sc, Ap) "
                             "VALUES (?, ?, ?, ?, ?, ?, ?)"),
              c.CerereID, c.Judet, c.Localitate, c.Strada, c.Nr, c.Sc, c.Ap);
    ExecutaCu(
        db,
        QStringLiteral("INSERT INTO Cereri (CerereID, FamilieID, NrCerere, DataCerere, MembruID1, Stare, TipCerere, "
                       "NrMembrii, NrCopii, VenitTotal, VenitpeMembru, Cuantum, MotivStare) "
                       "VALUES (?, ?, ?, ?, ?, 2, ?, ?, ?, ?, ?, ?, ?)"),
        c.CerereID, c.CerereID, c.NrCerere, c.DataCerere, c.Persoane.front().MembruID, c.TipCerere, c.NrMembrii,
        c.NrCopii, c.VenitTotal, c.VenitpeMembru, c.Cuantum, c.MotivStare);
    for (const PersoanaTest& p : c.Persoane) {
        ExecutaCu(db, QStringLiteral("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)"),
                  p.MembruID, p.Nume, p.Prenume, p.CNP);
        ExecutaCu(db,
                  QStringLiteral("INSERT INTO CereriMembrii (CerereID, MembruID, RudenieID, OcupatieID, Studii) "
                                 "VALUES (?, ?, ?, ?, ?)"),
                  c.CerereID, p.MembruID, p.RudenieID, p.OcupatieID, p.Studii);
    }
    t.Confirma();
}

inline void ScrieDispozitie(BazaDate& db, const DispozitieTest& d) {
    ExecutaCu(db,
              QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Actiune, "
                             "Cuantum, CuantumVechi, Motiv) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
              d.DispozitieID, d.CerereID, d.NrDisp, d.DataDisp, d.DinData, d.Actiune, d.Cuantum, d.CuantumVechi,
              d.Motiv);
}

// Town hall A: an ordinary commune.
inline PrimarieTest PrimarieA() {
    return {T("Ilfov"), T("Brănești"), T("Ion Ionescu"), T("Maria Georgescu"), T("4420636"), 1, T("Elena Dumitru")};
}

// Request 7: a father with one child (and the rest of the household for the declaration).
inline CerereDocTest CerereA() {
    // clang-format off
    return {7, 125, QDate(2015, 2, 10), 1, 3, 1, Suma("1200.5"), QVariant(), Suma("82"), T("Motiv din cerere"),
            T("Ilfov"), T("Brănești"), T("Florilor"), T("12"), T("B"), T("4"),
            {{70, T("Popa"), T("Vasile"), T("1850312410015"), 1, 1, QVariant()},
             {71, T("Popa"), T("Ioana"), T("2870506410021"), 2, 99, 3},
             {72, T("Popa"), T("Mihai"), T("5100203410034"), 3, QVariant(), 3},
             {73, T("Ionescu"), T("Dan"), T("5120808410047"), 6, 8, QVariant()},
             {74, T("Popa"), T("Gheorghe"), T("1500101410055"), 4, QVariant(), 2}}};
    // clang-format on
}

inline DispozitieTest DispozitieA() {
    return {3, 7, 45, QDate(2015, 2, 20), QDate(2015, 3, 1), 1, Suma("82"), QVariant(), T("Îndeplinește condițiile")};
}

// Town hall B: the town whose names are printed with capitals at each word.
inline PrimarieTest PrimarieB() {
    return {T("Cluj"), T("FIZEȘU GHERLII"), T("Dan Pop"), T("Ana Rus"), QVariant(), QVariant(), QVariant()};
}

// Request 8: a single mother of five.
inline CerereDocTest CerereB() {
    // clang-format off
    return {8, 9, QDate(2016, 5, 3), 2, 6, 5, Suma("300"), Suma("50"), Suma("428"), T("Mutare în localitate"),
            T("Cluj"), T("fizeșu gherlii"), T("LIBERTĂȚII"), T("3"), QVariant(), T(""),
            {{80, T("MUREȘAN"), T("ana-maria"), T("2900715123456"), 1, 4, QVariant()}}};
    // clang-format on
}

inline DispozitieTest DispozitieB() {
    return {4, 8, QVariant(), QVariant(), QDate(2016, 6, 1), 1, Suma("428"), QVariant(), T("motiv din dispozitie")};
}
