#pragma once

#include <QString>
#include <QStringList>
#include <map>
#include <optional>
#include <vector>

class BazaDate;

// The lists that DateGen holds, by their Tip; the names are the lists' Denumire.
enum class TipDateGen : int {
    Parametru = 0, // the named values (ISR, PRAGURI_VENIT), read by Denumire
    Statut = 1,
    Rudenie = 2,
    Ocupatie = 3,
    FelLocuinta = 4,
    RegimJuridic = 5,
    Incalzire = 6,
    Locuire = 7,
    Detinere = 8,
    Resedinta = 11,
    ModPlata = 12,
    Actiune = 20,
    StareaCivila = 21,
    SitScolara = 22,
    AsigurariSociale = 24,
    Cetatenie = 25,
    Gospodarie = 26,
    Reprezentant = 27,
    ActIdentitate = 28,
    TipLocuinta = 29,
    TipAct = 30,
    ResedintaDisp = 31,
    TipDobandire = 32,
    SitScolaraElev = 33,
    TipValuta = 34,
    Motiv = 35,
    StareMembru = 36,
};

// One row of a list: its id within the list and its text as stored (a null is an empty text).
struct RandDateGen {
    qint64 DataID = 0;
    QString Continut;
};

// The rows of one list in their Ordine (then DataID).
std::vector<RandDateGen> ListaDateGen(BazaDate& db, TipDateGen tip);
// The rows of several lists, each in its Ordine, in one query.
std::map<TipDateGen, std::vector<RandDateGen>> ListeDateGen(BazaDate& db, const std::vector<TipDateGen>& tipuri);

// The text of each (Tip, DataID) of the lists, as a look-up by value finds it: the first row in Ordine.
std::map<std::pair<TipDateGen, qint64>, QString> TexteDupaId(BazaDate& db, const std::vector<TipDateGen>& tipuri);

// The Continut of every row named `denumire` (a null is an empty text).
QStringList ContinuturiDateGen(BazaDate& db, const QString& denumire);
// The Continut of the row named `denumire`; nullopt without one.
std::optional<QString> ContinutDateGen(BazaDate& db, const QString& denumire);
// Sets the Continut of the rows named `denumire`; returns how many there were.
int ScrieContinutDateGen(BazaDate& db, const QString& denumire, const QString& continut);
