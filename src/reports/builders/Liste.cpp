#include "reports/builders/Constructori.h"

namespace Raport {

void InregistreazaListe(std::vector<IntrareRaport>&) {}

} // namespace Raport
