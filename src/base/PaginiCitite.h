#pragma once

#include "base/Eroare.h"

#include <QString>
#include <algorithm>
#include <functional>
#include <map>
#include <vector>

// How a page at position `deLa` of a list of `total` rows (unknown: -1) is read: the keys before a
// deep position are stepped over one by one, so a position past the middle is read from the end,
// `salt` rows after the last, at most `limita` rows, in reverse order.
struct DrumPagina {
    bool dinCapat = false;
    qint64 limita = 0, salt = 0;
};

inline DrumPagina Drum(qint64 deLa, qint64 cate, qint64 total) {
    if (total < 0 || deLa <= total / 2) return {false, cate, deLa};
    const qint64 limita = std::min(cate, total - deLa);
    return {true, limita, total - deLa - limita};
}

// The rows of a long list read a page at a time as a view asks for them, the pages kept few: a view
// shows a few screens of a list that the database holds by the hundred thousand.
template <class R> class PaginiCitite {
public:
    static constexpr qint64 Marime = 200;
    using Citire = std::function<std::vector<R>(qint64 deLa, qint64 cate)>;

    // The row at a position, read with its page when needed. nullptr when the read failed (the
    // failure is told to `laEroare` once, until Goleste) or when fewer rows came than were counted
    // (another computer deleted some since).
    const R* La(qint64 pozitie, const Citire& citeste, const std::function<void(const QString&)>& laEroare) const {
        const qint64 pagina = pozitie / Marime;
        auto it = pagini_.find(pagina);
        if (it == pagini_.end()) {
            if (eroare_) return nullptr;
            if (pagini_.size() >= 64) pagini_.clear();
            try {
                it = pagini_.emplace(pagina, citeste(pagina * Marime, Marime)).first;
            } catch (const Eroare& e) {
                eroare_ = true;
                laEroare(e.text());
                return nullptr;
            }
        }
        const qint64 i = pozitie - pagina * Marime;
        return i < qint64(it->second.size()) ? &it->second[size_t(i)] : nullptr;
    }

    // A row already read, to change in place; nullptr when not read.
    R* Citit(qint64 pozitie) {
        auto it = pagini_.find(pozitie / Marime);
        const size_t i = size_t(pozitie % Marime);
        return it != pagini_.end() && i < it->second.size() ? &it->second[i] : nullptr;
    }

    // The position of the first row read that matches; -1 when none.
    template <class F> qint64 Cauta(F&& potrivit) const {
        for (const auto& [pagina, randuri] : pagini_)
            for (size_t i = 0; i < randuri.size(); ++i)
                if (potrivit(randuri[i])) return pagina * Marime + qint64(i);
        return -1;
    }

    void Goleste() {
        pagini_.clear();
        eroare_ = false;
    }

private:
    mutable std::map<qint64, std::vector<R>> pagini_;
    mutable bool eroare_ = false;
};
