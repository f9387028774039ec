#include "reports/Grila.h"

#include "base/Bani.h"
#include "base/Eroare.h"

#include <QDate>

#include <algorithm>
#include <utility>

namespace Raport {

namespace {
bool seSuprapun(const Dreptunghi& a, const Dreptunghi& b) {
    return a.rand1 <= b.rand2 && b.rand1 <= a.rand2 && a.col1 <= b.col2 && b.col1 <= a.col2;
}
} // namespace

FelValoare Felul(const QVariant& v) {
    if (v.metaType() == QMetaType::fromType<Bani>()) return FelValoare::Suma;
    if (v.typeId() == QMetaType::QDate && v.toDate().isValid()) return FelValoare::Data;
    if (v.typeId() == QMetaType::LongLong || v.typeId() == QMetaType::Int) return FelValoare::Intreg;
    return FelValoare::Text;
}

Grila::Grila(int randuri, int coloane) {
    redimensioneaza(randuri, coloane);
}

void Grila::redimensioneaza(int randuri, int coloane) {
    if (randuri < 1 || coloane < 1)
        throw Eroare(
            QStringLiteral("Grila are cel putin un rand si o coloana fixe (%1 x %2 cerute)").arg(randuri).arg(coloane));
    // A row of its own each: a row added at the end, as builders add them, moves no cell.
    const size_t pastrate = coloane == coloane_ ? std::min(size_t(randuri), celule_.size()) : 0;
    celule_.resize(size_t(randuri));
    for (size_t r = pastrate; r < celule_.size(); ++r)
        celule_[r].resize(size_t(coloane));
    randuri_ = randuri;
    coloane_ = coloane;
    inaltimi_.resize(size_t(randuri), 0);
    latimi_.resize(size_t(coloane), 0);
    aliniereColoane_.resize(size_t(coloane));
    std::erase_if(uniri_, [&](const Dreptunghi& d) { return d.rand2 >= randuri || d.col2 >= coloane; });
}

void Grila::SeteazaRanduri(int n) {
    redimensioneaza(n, coloane_);
}

void Grila::SeteazaColoane(int n) {
    redimensioneaza(randuri_, n);
}

const Celula& Grila::La(int rand, int col) const {
    if (rand < 0 || rand >= randuri_ || col < 0 || col >= coloane_)
        throw Eroare(QStringLiteral("Celula (%1, %2) este in afara grilei de %3 x %4")
                         .arg(rand)
                         .arg(col)
                         .arg(randuri_)
                         .arg(coloane_));
    return celule_[size_t(rand)][size_t(col)];
}

Celula& Grila::La(int rand, int col) {
    return const_cast<Celula&>(std::as_const(*this).La(rand, col));
}

void Grila::Scrie(int rand, int col, const QString& text) {
    Scrie(rand, col, text, {});
}

void Grila::Scrie(int rand, int col, const QString& text, const QVariant& valoare) {
    Celula& c = La(rand, col);
    c.text = text;
    c.valoare = valoare;
}

void Grila::AdaugaRand(const QString& campuri) {
    SeteazaRanduri(randuri_ + 1);
    const QStringList parti = campuri.split(QLatin1Char('\t'));
    for (int c = 0; c < std::min<int>(int(parti.size()), coloane_); ++c)
        Scrie(randuri_ - 1, c, parti[c]);
}

Dreptunghi Grila::normal(const Dreptunghi& d) const {
    Dreptunghi n{std::min(d.rand1, d.rand2), std::min(d.col1, d.col2), std::max(d.rand1, d.rand2),
                 std::max(d.col1, d.col2)};
    La(n.rand1, n.col1);
    La(n.rand2, n.col2);
    return n;
}

void Grila::Uneste(const Dreptunghi& d) {
    const Dreptunghi n = normal(d);
    // A merge laid over others takes their place.
    std::erase_if(uniri_, [&](const Dreptunghi& u) { return seSuprapun(u, n); });
    if (n.rand1 != n.rand2 || n.col1 != n.col2) uniri_.push_back(n);
}

std::optional<Dreptunghi> Grila::UnireLa(int rand, int col) const {
    for (const Dreptunghi& u : uniri_)
        if (u.Contine(rand, col)) return u;
    return std::nullopt;
}

void Grila::Bordura(const Dreptunghi& d, Margine m, Linie l) {
    const Dreptunghi n = normal(d);
    const auto linie = [&](int r, int c, int latura) { La(r, c).linii[size_t(latura)] = l; };
    for (int r = n.rand1; r <= n.rand2; ++r)
        for (int c = n.col1; c <= n.col2; ++c) {
            switch (m) {
            case Margine::Stanga:
                if (c == n.col1) linie(r, c, 0);
                break;
            case Margine::Dreapta:
                if (c == n.col2) linie(r, c, 1);
                break;
            case Margine::Sus:
                if (r == n.rand1) linie(r, c, 2);
                break;
            case Margine::Jos:
                if (r == n.rand2) linie(r, c, 3);
                break;
            case Margine::InteriorVertical:
                if (c < n.col2) linie(r, c, 1);
                break;
            case Margine::InteriorOrizontal:
                if (r < n.rand2) linie(r, c, 3);
                break;
            case Margine::DiagonalaSus:
                linie(r, c, 4);
                break;
            case Margine::DiagonalaJos:
                linie(r, c, 5);
                break;
            }
        }
}

template <typename F> void Grila::fiecare(const Dreptunghi& d, F&& f) {
    const Dreptunghi n = normal(d);
    for (int r = n.rand1; r <= n.rand2; ++r)
        for (int c = n.col1; c <= n.col2; ++c)
            f(La(r, c));
}

void Grila::Aliniaza(const Dreptunghi& d, Aliniere a) {
    fiecare(d, [&](Celula& c) { c.aliniere = a; });
}

void Grila::SeteazaFont(const Dreptunghi& d, const Font& f) {
    fiecare(d, [&](Celula& c) { c.font = f; });
}

void Grila::Incadreaza(const Dreptunghi& d, bool da) {
    fiecare(d, [&](Celula& c) { c.incadrare = da; });
}

void Grila::Goleste(const Dreptunghi& d) {
    fiecare(d, [](Celula& c) { c = Celula{}; });
    const Dreptunghi n = normal(d);
    std::erase_if(uniri_, [&](const Dreptunghi& u) { return seSuprapun(u, n); });
}

int Grila::InaltimeRand(int rand) const {
    La(rand, 0);
    return inaltimi_[size_t(rand)] > 0 ? inaltimi_[size_t(rand)] : inaltimeImplicita;
}

void Grila::SeteazaInaltimeRand(int rand, int px) {
    La(rand, 0);
    inaltimi_[size_t(rand)] = std::max(px, 0);
}

int Grila::LatimeColoana(int col) const {
    La(0, col);
    return latimi_[size_t(col)] > 0 ? latimi_[size_t(col)] : latimeImplicita;
}

void Grila::SeteazaLatimeColoana(int col, int px) {
    La(0, col);
    latimi_[size_t(col)] = std::max(px, 0);
}

Aliniere Grila::AliniereColoana(int col) const {
    La(0, col);
    return aliniereColoane_[size_t(col)].value_or(Aliniere{});
}

void Grila::SeteazaAliniereColoana(int col, Aliniere a) {
    La(0, col);
    aliniereColoane_[size_t(col)] = a;
}

int Grila::InaltimeProprie(int rand) const {
    La(rand, 0);
    return inaltimi_[size_t(rand)];
}

int Grila::LatimeProprie(int col) const {
    La(0, col);
    return latimi_[size_t(col)];
}

std::optional<Aliniere> Grila::AliniereProprieColoana(int col) const {
    La(0, col);
    return aliniereColoane_[size_t(col)];
}

Aliniere Grila::AliniereCelula(int rand, int col) const {
    return La(rand, col).aliniere.value_or(AliniereColoana(col));
}

} // namespace Raport

namespace Raport {

Font Grila::FontCelula(int rand, int col) const {
    const Font& f = La(rand, col).font;
    return {f.nume.isEmpty() ? fontImplicit.nume : f.nume, f.marime > 0 ? f.marime : fontImplicit.marime,
            f.bold ? f.bold : fontImplicit.bold, f.italic ? f.italic : fontImplicit.italic,
            f.subliniat ? f.subliniat : fontImplicit.subliniat};
}

QString Grila::CheieAspect(int rand, int col) const {
    const Celula& c = La(rand, col);
    const Font f = FontCelula(rand, col);
    const Aliniere a = AliniereCelula(rand, col);
    // Asked for every cell of a large export: built by hand rather than by formatting.
    const auto cifra = [](int n) { return char('0' + n); };
    const char semne[] = {'|',
                          cifra(f.Bold()),
                          cifra(f.Italic()),
                          cifra(f.Subliniat()),
                          cifra(int(a.orizontal)),
                          cifra(int(a.vertical)),
                          cifra(c.incadrare),
                          cifra(int(Felul(c.valoare))),
                          cifra(int(c.linii[0])),
                          cifra(int(c.linii[1])),
                          cifra(int(c.linii[2])),
                          cifra(int(c.linii[3])),
                          cifra(int(c.linii[4])),
                          cifra(int(c.linii[5]))};
    QString cheie;
    cheie.reserve(f.nume.size() + 24);
    cheie += f.nume;
    cheie += QLatin1Char('|');
    cheie += QString::number(f.marime);
    cheie += QLatin1String(semne, qsizetype(sizeof semne));
    return cheie;
}

} // namespace Raport
