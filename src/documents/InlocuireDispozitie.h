#pragma once

#include "documents/DateDocument.h"
#include "base/Bani.h"
#include "reference/Barem.h"

#include <QByteArray>
#include <QDate>
#include <QString>
#include <optional>
#include <vector>

class BazaDate;
class Mesaje;

// One disposition with what its document prints of its request, the holder and the family.
struct DateDispozitie {
    qint64 DispozitieID = 0;
    int Actiune = 0; // 0 when null
    std::optional<qint64> NrDisp;
    std::optional<QDate> DataDisp, DinData;
    std::optional<Bani> Cuantum, CuantumVechi;
    std::optional<QString> Motiv;

    bool CerereGasita = false;
    std::optional<qint64> NrCerere, TipCerere, NrCopii;
    std::optional<QDate> DataCerere;
    std::optional<QString> MotivStare;

    std::optional<QString> Nume, Prenume, CNP; // the holder, MembruID1

    std::optional<QString> JudetFamilie;
    AdresaFamilie Adresa;
};

// What every disposition of a run shares: the town hall and the scale.
struct ContextDispozitii {
    std::optional<PrimarieDocument> Primarie;
    std::vector<RandBarem> Barem;
};

ContextDispozitii CitesteContextDispozitii(BazaDate& db);

// The dispositions of `ids`, in that order; nullopt where there is no such row. One joined
// query for each group of keys.
std::vector<std::optional<DateDispozitie>> CitesteDispozitii(BazaDate& db, const std::vector<qint64>& ids);

// Masculine forms for a CNP whose first character is 1 or whose first five characters read as
// the number 1; feminine forms for every other holder.
bool EsteMasculin(const QString& cnp);

// The town whose names a disposition prints with capitals at each word: its locality holds
// FIZESU, in any case, written with or without diacritics.
bool EsteOrasSpecial(const QString& localitate);

// The coefficient row of the scale for a disposition: the lowest income rung, the children
// counted up to 4, the family kind, valid on DinData. Nothing without such a row.
const RandBarem* BaremDispozitie(const ContextDispozitii& c, const DateDispozitie& d);

// Fills the placeholders of a disposition's body. False after telling the clerk: no town hall
// data, the request gone, no child in the request, a field that the body needs and that is null.
bool InlocuiesteDispozitie(const DateDispozitie& d, const ContextDispozitii& c, const OptiuniDocumente& o,
                           QByteArray& corp, Mesaje& m);

// The same for a stored disposition, read by its key; false when it is gone.
bool InlocuiesteDispozitie(BazaDate& db, qint64 dispozitieID, const OptiuniDocumente& o, QByteArray& corp, Mesaje& m);
