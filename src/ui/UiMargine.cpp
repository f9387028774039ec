#include "ui/UiMargine.h"

void ArataEroarea(Mesaje& m, const Eroare& e, const Margine& cum) {
    const QString text = cum.inainte + e.text();
    if (cum.fel == Mesaje::Fel::Avertisment)
        m.Avertisment(text, cum.titlu);
    else
        m.Critic(text, cum.titlu);
}
