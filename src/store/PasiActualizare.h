#pragma once

#include <QString>
#include <vector>

// One change of the schema upgrade, in the order it runs.
struct PasActualizare {
    enum class Fel { AdaugaCamp, StergeCamp, RedenumesteCamp, CreazaTabela, CreazaRelatie };
    Fel fel;
    QString tabela;
    QString camp;    // the field; for a relation, its name
    QString numeNou; // for a rename
    int etapa;       // 1: before the income recalculation, 3: after it
};

namespace PasiActualizare {
// Parsed once from the written list below; throws nothing, the list is checked by the tests.
const std::vector<PasActualizare>& Lista();
} // namespace PasiActualizare
