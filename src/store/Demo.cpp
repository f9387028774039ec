#include "store/Demo.h"

#include "shell/Eroare.h"

void Demo::Genereaza(BazaDate&, const Optiuni&, const std::function<void(int, int)>&) {
    throw Eroare(QStringLiteral("demo: inca nu este disponibil"));
}
