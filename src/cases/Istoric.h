#pragma once

#include "store/Sql.h"

#include <QString>
#include <QVariant>
#include <vector>

class BazaDate;

// The history of a request (IstoricCereri): one row for each save that changed something of the
// request, its dispositions, inquiries or certificates, written in the transaction of that save,
// so that a save that fails leaves no row. A row keeps the request's number beside its key: when
// the request is deleted its rows leave the key, which the cascade would take, and stay readable
// under the number.

// Tranzactie of a row.
enum class FelSchimbare : int { Adaugare = 1, Modificare = 2, Stergere = 3 };

// One field whose value a save changes, both values as the clerk reads them ("" for none).
struct Schimbare {
    QString Camp, Vechi, Nou;
    friend bool operator==(const Schimbare&, const Schimbare&) = default;
};

// A row to write. CerereID 0 writes none (the row of a deleted request); NrCerere null is read
// from the request.
struct IntrareIstoric {
    qint64 CerereID = 0;
    QVariant NrCerere;
    FelSchimbare Fel = FelSchimbare::Modificare;
    QString Motiv;   // short: "Cerere modificata"
    QString Detalii; // what changed, readable
};

// A row as the request editor lists it.
struct RandIstoric {
    QString DataOra; // dd.mm.yyyy hh:mm:ss; the day alone for rows written without the hour
    QString Utilizator;
    int Fel = 0;
    QString Motiv;
    QString Detalii;
    QVariant NrCerere;
};

// A person of a request as its history names it.
struct PersoanaIstoric {
    qint64 MembruID = 0;
    QString Nume; // "Nume Prenume"
};

namespace Istoric {

// A value of a field of `tabela` as lists and boxes show it, by the field's type: amounts with two
// decimals, dates dd.mm.yyyy, yes/no as "Da"/"Nu", "" for none. The values a save binds and those
// either engine reads back give the same text for the same value.
QString TextValoare(const QString& tabela, const QString& camp, const QVariant& v);

// The fields of `nou` whose text differs from the stored one, in the order of `nou`; `vechi` holds
// the stored values in that order, empty for a row that does not exist yet.
std::vector<Schimbare> Compara(const QString& tabela, const Sql::Rand& nou, const QVariantList& vechi);

// Compara against the row of `tabela` whose `cheie` is `id`, read in one query. Inside the save's
// transaction, before the row is written.
std::vector<Schimbare> Diferente(BazaDate& db, const QString& tabela, const QString& cheie, qint64 id,
                                 const Sql::Rand& nou);

// The persons of a stored request, read in one query.
std::vector<PersoanaIstoric> Persoane(BazaDate& db, qint64 cerereID);
// Who came onto the request ("Persoana: (gol) -> Pop Ana"), who left it ("Persoana: Pop Ion -> (gol)")
// and whose name changed, in the order of the new list, those who left last.
std::vector<Schimbare> ComparaPersoane(const std::vector<PersoanaIstoric>& vechi,
                                       const std::vector<PersoanaIstoric>& noi);

// "Stare: 1 -> 3; VenitTotal: 1200.00 -> 1350.00". For a new row the stored side is left out:
// "NrCerere: 12; Stare: 1".
QString TextSchimbari(const std::vector<Schimbare>& s, FelSchimbare fel);

// Writes one row with the time, today's date and the user of this computer. Inside the caller's
// transaction.
void Scrie(BazaDate& db, const IntrareIstoric& i);

// Many rows of one bulk run, written a hundred at a time: one statement for each hundred.
void ScrieLot(BazaDate& db, const std::vector<IntrareIstoric>& randuri);

// Writes the row of a save when it changed something: `prefix` then the changes ("Cerere
// modificata: Stare: 1 -> 3"). Nothing for no change.
void ScrieSchimbari(BazaDate& db, qint64 cerereID, const QVariant& nrCerere, FelSchimbare fel, const QString& prefix,
                    const std::vector<Schimbare>& s);

// Inside the delete's transaction, before the request goes: its rows leave its key and take the
// number it has now, and a row tells of the delete with the titular and the amount it had.
// Nothing when the request is already gone.
void StergereCerere(BazaDate& db, qint64 cerereID);

// The delete of a row of a request (a disposition, an inquiry, a certificate): the row of the
// history, with `descriere` whose %1 takes the row's field `camp` as the clerk reads it
// ("Dispozitie nr %1 stearsa", "NrDisp"). Reads the request from the row, which must still be
// there; nothing when it is not.
void StergereRand(BazaDate& db, const QString& tabela, const QString& cheie, qint64 id, const QString& descriere,
                  const QString& camp);

// The history of a request, newest first: its own rows and those kept under its number from a
// request deleted before.
std::vector<RandIstoric> Lista(BazaDate& db, qint64 cerereID);
// Everything under a request number, newest first: the rows of the requests that bear it now and
// those kept under it from requests deleted.
std::vector<RandIstoric> ListaNumar(BazaDate& db, qint64 nrCerere);

} // namespace Istoric
