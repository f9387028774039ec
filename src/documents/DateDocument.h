#pragma once

#include "base/Bani.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

class BazaDate;
class Interogare;
struct Setari;

// What a merge takes from the settings and from the print command.
struct OptiuniDocumente {
    QString FolderActe; // where the templates are
    bool Motiv = false; // the reason of a disposition comes from the request (MotivStare)
    QString StrSat;     // the word before a street in an address
    QDate DataFisa;     // the date of the calculation sheet; invalid: today
};

// FolderActe is `applicationPath`/Acte.
OptiuniDocumente OptiuniDinSetari(const Setari& s, const QString& applicationPath);

// The town hall's single row, as documents print it; nothing when the table is empty.
struct PrimarieDocument {
    std::optional<QString> Judet, Localitate, Primar, Secretar, CodFiscal, AsSocial;
    std::optional<qint64> TipLocalitate;
};
std::optional<PrimarieDocument> CitestePrimaria(BazaDate& db);

// The part of a family's row that makes its address.
struct AdresaFamilie {
    std::optional<QString> Localitate, Strada, Nr, Sc, Ap;
};

// Locality, then ", " + strSat + " " + street, ", nr. ", ", sc. ", ", ap. ", each left out when
// null or empty. With numeProprii the locality and the street get capitals at each word.
QString TextAdresa(const AdresaFamilie& a, const QString& strSat, bool numeProprii);

// A date as documents write it: dd.mm.yyyy.
QString TextData(const QDate& d);

// The texts of nullable values as documents write them; a null stays null.
namespace TextOptional {
std::optional<QString> Numar(const std::optional<qint64>& v);
std::optional<QString> Data(const std::optional<QDate>& v);
std::optional<QString> Suma(const std::optional<Bani>& v);
} // namespace TextOptional

// "Nume Prenume"; a missing part counts as empty.
QString NumeIntreg(const std::optional<QString>& nume, const std::optional<QString>& prenume);

// The typed readers of a nullable column.
namespace Camp {
std::optional<QString> Text(const Interogare& q, const QString& camp);
std::optional<qint64> Intreg(const Interogare& q, const QString& camp);
std::optional<QDate> Data(const Interogare& q, const QString& camp);
std::optional<Bani> Suma(const Interogare& q, const QString& camp);
} // namespace Camp

// The keys in groups small enough for one statement's parameters (Sql::Semne writes their "?, ?, ...").
std::vector<std::vector<qint64>> GrupeChei(const std::vector<qint64>& chei, size_t marime = 500);
