#pragma once

#include <QStringList>
#include <QTreeWidgetItem>
#include <functional>
#include <optional>

class BazaDate;
class Mesaje;
class QLineEdit;
class QDialog;
class QHBoxLayout;
class QPushButton;
class QTreeWidget;

// A row of a reference list: the key in the first column sorts as a number, the other columns
// as text regardless of case.
class RandLista : public QTreeWidgetItem {
public:
    RandLista(qint64 cheie, const QStringList& texte);
    qint64 Cheie() const;
    bool operator<(const QTreeWidgetItem& alt) const override;
};

// A one-selection list with the given column captions; with `sortare` sorted by a click on a header.
void PregatesteLista(QTreeWidget* l, const QStringList& coloane, bool sortare = true);

// Adds a row at the end, selects it and shows it.
void AdaugaRand(QTreeWidget* l, RandLista* r);

// Removes the row and selects the one that took its place, or the new last row.
void StergeRand(QTreeWidget* l, QTreeWidgetItem* r);

// Columns as wide as their texts.
void LatimiColoane(QTreeWidget* l);

// The selected row; with none the clerk is told `faraSelectie`.
QTreeWidgetItem* RandAles(QTreeWidget* l, Mesaje& m, const QString& faraSelectie);

// Reads again the row `r`, whose key is in its first column, through `citeste`, which answers
// whether the row is still in the database. False when reading fails (the clerk is told) or when
// the row is gone (he is told, and it leaves the list).
bool RecitesteRandul(QTreeWidget* l, QTreeWidgetItem* r, Mesaje& m, const std::function<bool(qint64)>& citeste);

// What the commands under a list do.
struct ComenziLista {
    std::function<void()> Adauga, Modifica, Sterge;
};

// The row Adauga, Modifica, Sterge ... Inchide (cmdAdd, cmdEdit, cmdDelete, cmdClose) under the
// list `l` of dialog `d`. A double click on a row runs Modifica; Inchide closes the dialog. The
// caller places the row.
QHBoxLayout* RandComenziLista(QDialog* d, QTreeWidget* l, QPushButton*& adauga, QPushButton*& modifica,
                              QPushButton*& sterge, QPushButton*& inchide, const ComenziLista& c);

// Writes the row of a list's add/edit dialog: `verifica` may refuse the name in `denumire`, which
// is then selected; `scrie` adds the row or changes it, false when the row to change is gone.
// True once written; otherwise the clerk has been told why not.
bool ScrieRandLista(BazaDate& bd, Mesaje& m, QLineEdit* denumire,
                    const std::function<std::optional<QString>()>& verifica, const std::function<bool()>& scrie);

// The store's functions for the rows of a reference list.
template <class Rand> struct ScriereRand {
    // Refuses a name that another row has; `editat` is the key of the row being changed.
    std::optional<QString> (*verifica)(BazaDate&, const QString&, std::optional<qint64> editat);
    Rand (*adauga)(BazaDate&, Rand);          // gives back the row with its new key
    bool (*modifica)(BazaDate&, const Rand&); // false when the row is gone
};

// ScrieRandLista for the row `nou` named in `denumire`: a new row when `adaug`, else the change of
// the row with key `cheie`. Once written, `rec` holds the row as written, with its key.
template <class Rand>
bool ScrieRandLista(BazaDate& bd, Mesaje& m, QLineEdit* denumire, const ScriereRand<Rand>& f, bool adaug, qint64 cheie,
                    const Rand& nou, Rand& rec) {
    const auto verifica = [&] { return f.verifica(bd, nou.Denumire, adaug ? std::nullopt : std::optional(cheie)); };
    const auto scrie = [&] {
        if (adaug)
            rec = f.adauga(bd, nou);
        else if (f.modifica(bd, nou))
            rec = nou;
        else
            return false;
        return true;
    };
    return ScrieRandLista(bd, m, denumire, verifica, scrie);
}
