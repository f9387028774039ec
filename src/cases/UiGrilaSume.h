#pragma once

#include <functional>

class Mesaje;
class QString;
class QTableWidget;

// A grid of fixed rows where the clerk types the amounts of one column.
void PregatesteGrilaSume(QTableWidget* g);

// Sends each text typed in `coloana` to `seteaza`, whose refusal (an Eroare) is shown as a warning;
// the cell then shows `text` of its row, the value taken or the one it had before a refused text,
// and `dupa` runs, to show the new total.
void ConecteazaColoanaSume(QTableWidget* g, int coloana, Mesaje& m, std::function<void(size_t, const QString&)> seteaza,
                           std::function<QString(size_t)> text, std::function<void()> dupa);
