#pragma once

#include "base/Eroare.h"
#include "base/Mesaje.h"

#include <QString>
#include <type_traits>
#include <utility>

// How a form shows the Eroare that stopped one of its handlers.
struct Margine {
    Mesaje::Fel fel = Mesaje::Fel::Critic; // Critic, or Avertisment for a value the clerk can correct
    QString titlu{};                       // empty: the program's own title
    QString inainte{};                     // put before the error's text
};

void ArataEroarea(Mesaje& m, const Eroare& e, const Margine& cum);

// Runs a handler's body at the form's edge: an Eroare it throws is shown through m, and the handler
// learns from the result whether to go on. A body returning bool passes its own answer through; a body
// returning nothing answers true when it ran to its end.
template <class F> bool LaMargine(Mesaje& m, const Margine& cum, F&& corp) {
    try {
        if constexpr (std::is_void_v<std::invoke_result_t<F&&>>) {
            std::forward<F>(corp)();
            return true;
        } else {
            static_assert(std::is_same_v<std::invoke_result_t<F&&>, bool>, "the body returns nothing or bool");
            return std::forward<F>(corp)();
        }
    } catch (const Eroare& e) {
        ArataEroarea(m, e, cum);
        return false;
    }
}

template <class F> bool LaMargine(Mesaje& m, F&& corp) {
    return LaMargine(m, Margine{}, std::forward<F>(corp));
}
