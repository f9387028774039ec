#pragma once

#include <QString>
#include <optional>

class QComboBox;
class QFrame;
class QGridLayout;
class QLabel;
class QWidget;

// A grid of label-control pairs filled row by row; each label names its control for the keyboard.
struct GrilaEtichete {
    QGridLayout* g;
    QWidget* parinte = nullptr; // of the labels; none: the grid's widget takes them
    int rand = 0;
    // The pair at `coloana` of the current row, the control `latime` columns wide.
    void pe(int coloana, const QString& eticheta, QWidget* w, int latime = 1) const;
};

// A sunken label showing a value the clerk does not type.
QLabel* EtichetaValoare(QWidget* parinte, const char* nume, int latimeMinima);

// A sunken line across a form, between two groups of fields.
QFrame* LinieOrizontala(QWidget* parinte);

// The key (item data) of the chosen item of a list; none when nothing is chosen.
std::optional<int> CheieAleasa(const QComboBox* c);
// Chooses the item with that key; none, or a key not in the list, leaves nothing chosen.
void AlegeCheia(QComboBox* c, const std::optional<int>& cheie);
