#pragma once

#include "cases/StareCerere.h"
#include "cases/Cnp.h"

// A code with the control digit of its first twelve.
inline QString CuControl(const QString& douasprezece) {
    return douasprezece + QString::number(CifraControlCnp(douasprezece));
}

// Three elements that fill every field their kind of person has, for the round trips through
// the person's controls: an adult away from every default, a pupil who repeats a year, and a
// child whose school situation is unknown (its Repetent 1 is no mark). The texts are those of
// the delivered lists, except an issuer that is not in its list.
struct ElementeComplete {
    MembruCerere adult, elev, faraScoala;
};

inline ElementeComplete Complete(const QString& cnpAdult, const QString& cnpElev, const QString& cnpFaraScoala) {
    const auto element = [](qint64 id, const QString& cnp, int rudenie, const char* textRudenie) {
        MembruCerere m;
        m.MembruID = id;
        m.CNP = cnp;
        m.Nume = QStringLiteral("Ionescu");
        m.Prenume = QStringLiteral("Dan");
        m.RudenieID = rudenie;
        m.Rudenie = QString::fromLatin1(textRudenie);
        return m;
    };
    const auto lei = [](const char* s) { return *Bani::DinText(QString::fromLatin1(s)); };
    ElementeComplete e;
    MembruCerere& a = e.adult = element(31, cnpAdult, 2, "PARTENER");
    a.TipAct = 8;
    a.SerieBI = QStringLiteral("IF");
    a.NrBI = QStringLiteral("123456");
    a.Eliberat = QStringLiteral("SPCLEP Otopeni");
    a.DataElib = QDate(2019, 4, 2);
    a.CetatenieID = 2;
    a.TaraCetatenie = QStringLiteral("Italia");
    a.ResedintaID = 3;
    a.LocResedinta = QStringLiteral("Roma");
    a.TaraResedinta = QStringLiteral("Italia");
    a.StCivila = 6;
    a.Studii = 3;
    a.OcupatieID = 12;
    a.Ocupatie = QStringLiteral("LUCREAZA IN STRAINATATE");
    a.DrAsSociala = 4;
    a.Motiv = QStringLiteral("alt motiv scris");
    a.MotivStare = QStringLiteral("pastrat");
    a.DataStare = QDate(2025, 2, 1);
    a.LocuitAfara = 1;
    a.Perioada11 = QStringLiteral("2022-2023");
    a.TaraAfara11 = QStringLiteral("Italia");
    a.Perioada22 = QStringLiteral("2024");
    a.TaraAfara22 = QStringLiteral("Spania");
    a.LucreazaAfara = 1;
    a.Perioada1 = QStringLiteral("ian-iun 2023");
    a.TaraAfara1 = QStringLiteral("Germania");
    a.Perioada2 = QStringLiteral("2024");
    a.TaraAfara2 = QStringLiteral("Austria");
    a.VMG = a.Alocatie = a.Incalzire = 1;
    a.TipIncalzTrecut = 3;
    a.Venit = lei("980.25");
    a.Dizabilitate = 1;
    a.Repetent = 1;
    a.MotivID = 4;
    a.Suma = lei("1200.5");
    a.TipValuta = 4;
    a.StareMembru = 3;
    a.Adeverinte = {{5, 2, QStringLiteral("77"), QDate(2024, 1, 1), QDate(2024, 1, 2), QDate(2025, 12, 31), 1},
                    {6, 9, QStringLiteral("N-1"), QDate(), QDate(2024, 1, 3), QDate(), 0}};

    MembruCerere& c = e.elev = element(32, cnpElev, 7, "COPIL ADOPTAT");
    c.Studii = c.OcupatieID = 4;
    c.Ocupatie = QStringLiteral("ELEV CL IX-XII");
    c.UScolara = QStringLiteral("Scoala Gimnaziala nr. 1");
    c.LocScoala = QStringLiteral("Branesti");
    c.Repetent = 1;
    c.Diminuare50 = 1;
    c.Data18Ani = QDate(2032, 2, 3);
    c.Motiv = QStringLiteral("implinirea varstei de 18 ani");
    c.StareMembru = 1;

    MembruCerere& f = e.faraScoala = element(0, cnpFaraScoala, 3, "COPIL NATURAL");
    f.Repetent = 1;
    f.Abandon = 1;
    return e;
}
