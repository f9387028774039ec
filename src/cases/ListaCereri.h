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

// What the search boxes hold. A blank box is no filter; text boxes match by prefix.
struct FiltruCautare {
    QString CNP, Nume, Prenume, NrCerere;
    QList<int> Stari;
    int LoadTipCerere = 0;
    bool OrdineNumerica = false; // by request number; otherwise as the database returns them
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

// All requests matching the filter, with their titular, family and status text, in one query.
std::vector<RandCerere> Cauta(BazaDate& db, const FiltruCautare& f);

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
