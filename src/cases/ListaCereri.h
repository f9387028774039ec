#pragma once

#include "base/Bani.h"

#include <QDate>
#include <QList>
#include <QString>
#include <vector>

class BazaDate;

// One row of the request list, as the main window shows it.
struct RandCerere {
    qint64 CerereID = 0;
    qint64 FamilieID = 0;
    QString NrCerere; // number, dossier and request text, blank-separated
    qint64 NrCerereNumar = 0;
    QString Tip; // "Cu sot", "Mono"
    int Stare = 0;
    QString StareText;
    QDate DataCerere;
    QString Solicitant;
    QString CNP;
    QString Adresa;
    Bani VenitTotal;
    Bani Cuantum;
    qint64 NrMembrii = 0;
    qint64 NrCopii = 0;

    // Suspended, ended and refused requests are drawn in red.
    bool Rosu() const { return Stare == 3 || Stare == 4 || Stare == 5; }
};

namespace ListaCereri {
// The list's columns, in their order; a list is ordered by one of them, ties by the key.
enum Coloana : int {
    ID,
    NrCerere,
    Tip,
    Stare,
    Data,
    Solicitant,
    CNP,
    Adresa,
    VenitTotal,
    Cuantum,
    NrMembrii,
    NrCopii,
    NrColoane
};
} // namespace ListaCereri

// What the search boxes hold. A blank box is no filter; text boxes match by prefix.
struct FiltruCautare {
    QString CNP, Nume, Prenume, NrCerere;
    QList<int> Stari;
    int LoadTipCerere = 0;
    // ID: the order the requests were entered in; NrCerere: by number, as a search gives them.
    ListaCereri::Coloana Ordine = ListaCereri::ID;
    // Requests left out of the result: the rows a clerk added below the list stand there, whatever
    // the order.
    QList<qint64> Fara;
};

// One entry of a combo or list filled from a table: its key and its text.
struct ElementLista {
    qint64 id = 0;
    QString text;
};

namespace ListaCereri {

// The streets and villages, by name, for the search box.
std::vector<ElementLista> Strazi(BazaDate& db);
// The request statuses in their order, for the status filter.
std::vector<ElementLista> Stari(BazaDate& db);

// How many requests match the filter.
qint64 Numara(BazaDate& db, const FiltruCautare& f);

// The requests matching the filter from position `deLa` (0: the first) in the filter's order, at
// most `cate`, with their titular, family and status text, in one query. Only the rows asked for
// are read: a deep position reads the keys before it from an index and nothing else. Given the
// count (`total`), a position in the second half is read from the end.
std::vector<RandCerere> Pagina(BazaDate& db, const FiltruCautare& f, qint64 deLa, qint64 cate, qint64 total = -1);

// One request by key; CerereID 0 when it is gone.
RandCerere Citeste(BazaDate& db, qint64 cerereID);

// The count text under the list.
QString TextRezultat(qsizetype n);

// "Alocatii-207: " and the town hall's name; empty name when no row exists.
QString DenumirePrimarie(BazaDate& db, bool* exista);

// Deletes a request in one transaction: its persons that are on no other request, its family
// when no other request has it, the request and, by the cascades, everything hanging on it.
// Dispositions and inquiries stay, as they always did.
void Sterge(BazaDate& db, qint64 cerereID);

} // namespace ListaCereri
