#pragma once

#include "reports/Catalog.h"

#include <vector>

// Each family of reports puts its builders into the catalogue's entries, by index.
namespace Raport {

// The lists: requests, children, pupils, the six months, expiring certificates, adults, all the
// beneficiaries, the Borderou of beneficiaries, the members (0-8, 15-21).
void InregistreazaListe(std::vector<IntrareRaport>& catalog);
// Anexa 3 and Anexa 4 for the county agency (9-14).
void InregistreazaAnexe(std::vector<IntrareRaport>& catalog);

} // namespace Raport
