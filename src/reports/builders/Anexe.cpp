#include "reports/builders/Constructori.h"

namespace Raport {

void InregistreazaAnexe(std::vector<IntrareRaport>&) {}

} // namespace Raport
