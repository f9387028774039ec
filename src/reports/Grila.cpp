#include "reports/Grila.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Sume.h"

#include <QDate>
#include <QStringEncoder>

#include <algorithm>
#include <charconv>
#include <climits>
#include <type_traits>
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

namespace {
// Bytes of a text block, a page of 2 MB; a longer text gets a block of its own. A cell's place
// holds the block's number above the offset's bits.
constexpr int BitiLoc = 21;
constexpr std::size_t MarimeBloc = std::size_t(1) << BitiLoc;
constexpr std::size_t MaximBlocuri = std::size_t(1) << (32 - BitiLoc);
} // namespace

Grila::Grila(int randuri, int coloane) {
    static_assert(sizeof(Loc) == 16, "a cell of a large list is kept in 16 bytes");
    redimensioneaza(randuri, coloane);
}

void Grila::redimensioneaza(int randuri, int coloane) {
    if (randuri < 1 || coloane < 1)
        throw Eroare(
            QStringLiteral("Grila are cel putin un rand si o coloana fixe (%1 x %2 cerute)").arg(randuri).arg(coloane));
    const size_t blocuri = blocRand(size_t(randuri) - 1) + 1;
    if (coloane != coloane_) {
        decltype(blocuri_) noi(blocuri);
        for (size_t b = 0; b < blocuri; ++b)
            noi[b].resize(randuriBloc(b) * size_t(coloane));
        for (int r = 0; r < std::min(randuri, randuri_); ++r) {
            const size_t b = blocRand(size_t(r));
            std::copy_n(&loc(r, 0), std::min(coloane, coloane_),
                        noi[b].begin() + std::ptrdiff_t((size_t(r) - primulRandBloc(b)) * size_t(coloane)));
        }
        blocuri_ = std::move(noi);
    } else {
        // Rows given up are emptied, so that they come back empty if the grid grows again.
        for (int r = randuri; r < randuri_ && blocRand(size_t(r)) < blocuri; ++r)
            std::fill_n(&loc(r, 0), coloane_, Loc{});
        // Only the blocks added are filled: a grid grown a row at a time would otherwise pass over all its
        // blocks for every row.
        const size_t vechi = blocuri_.size();
        blocuri_.resize(blocuri);
        for (size_t b = vechi; b < blocuri; ++b)
            blocuri_[b].resize(randuriBloc(b) * size_t(coloane));
    }
    const bool micsorata = randuri < randuri_ || coloane < coloane_;
    randuri_ = randuri;
    coloane_ = coloane;
    inaltimi_.resize(size_t(randuri), 0);
    latimi_.resize(size_t(coloane), 0);
    aliniereColoane_.resize(size_t(coloane));
    if (micsorata)
        std::erase_if(uniri_, [&](const Dreptunghi& d) { return d.rand2 >= randuri || d.col2 >= coloane; });
}

void Grila::SeteazaRanduri(int n) {
    redimensioneaza(n, coloane_);
}

void Grila::SeteazaColoane(int n) {
    redimensioneaza(randuri_, n);
}

const Grila::Loc& Grila::loc(int rand, int col) const {
    if (rand < 0 || rand >= randuri_ || col < 0 || col >= coloane_)
        throw Eroare(QStringLiteral("Celula (%1, %2) este in afara grilei de %3 x %4")
                         .arg(rand)
                         .arg(col)
                         .arg(randuri_)
                         .arg(coloane_));
    const size_t b = blocRand(size_t(rand));
    return blocuri_[b][(size_t(rand) - primulRandBloc(b)) * size_t(coloane_) + size_t(col)];
}

QUtf8StringView Grila::TextVedere(int rand, int col) const {
    const Loc& l = loc(rand, col);
    if (l.lungime == 0) return {};
    return QUtf8StringView(texte_[l.text >> BitiLoc].data() + (l.text & (MarimeBloc - 1)), qsizetype(l.lungime));
}

char* Grila::rezerva(Loc& l, std::size_t n) {
    l.lungime = 0;
    l.text = 0;
    size_t bloc = blocCurent_;
    if (n > MarimeBloc || texte_.empty() || texte_[bloc].size() + n > MarimeBloc) {
        if (texte_.size() >= MaximBlocuri) throw Eroare(QStringLiteral("Grila nu mai poate primi texte."));
        texte_.emplace_back().reserve(std::max(n, MarimeBloc));
        bloc = texte_.size() - 1;
        if (n <= MarimeBloc) blocCurent_ = bloc;
    }
    auto& t = texte_[bloc];
    l.text = uint32_t(bloc << BitiLoc | t.size());
    t.resize(t.size() + n);
    return t.data() + (l.text & (MarimeBloc - 1));
}

void Grila::fixeaza(Loc& l, std::size_t n) {
    auto& t = texte_[l.text >> BitiLoc];
    t.resize(size_t(l.text & (MarimeBloc - 1)) + n);
    l.lungime = uint32_t(n);
    if (n == 0) l.text = 0;
}

void Grila::scrieText(Loc& l, QStringView text) {
    char* p = rezerva(l, MarimeUtf8(text));
    fixeaza(l, size_t(PuneUtf8(p, text) - p));
}

std::size_t MarimeUtf8(QAnyStringView text) {
    return text.visit([](auto v) -> std::size_t {
        using V = decltype(v);
        if constexpr (std::is_same_v<V, QStringView>)
            return 3 * size_t(v.size());
        else if constexpr (std::is_same_v<V, QLatin1StringView>)
            return 2 * size_t(v.size());
        else
            return size_t(v.size());
    });
}

char* PuneUtf8(char* p, QAnyStringView text) {
    return text.visit([p](auto v) -> char* {
        using V = decltype(v);
        if constexpr (std::is_same_v<V, QStringView>) {
            // Most names and addresses are plain ASCII, copied a character at a time; the rest goes
            // through the encoder.
            const char16_t* s = v.utf16();
            const char16_t* const sfarsit = s + v.size();
            char* o = p;
            while (s != sfarsit && *s < 0x80)
                *o++ = char(*s++);
            if (s == sfarsit) return o;
            QStringEncoder e(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
            return e.appendToBuffer(o, QStringView(s, sfarsit));
        } else if constexpr (std::is_same_v<V, QLatin1StringView>) {
            char* o = p;
            for (const char c : v) {
                const auto u = uchar(c);
                if (u < 0x80) {
                    *o++ = c;
                } else {
                    *o++ = char(0xC0 | u >> 6);
                    *o++ = char(0x80 | (u & 0x3F));
                }
            }
            return o;
        } else {
            return std::copy_n(v.data(), v.size(), p);
        }
    });
}

void Grila::ScriePiese(int rand, int col, std::span<const QAnyStringView> piese) {
    Loc& l = loc(rand, col);
    size_t maxim = 0;
    for (const QAnyStringView& x : piese)
        maxim += MarimeUtf8(x);
    char* const inceput = rezerva(l, maxim);
    char* p = inceput;
    for (const QAnyStringView& x : piese)
        p = PuneUtf8(p, x);
    fixeaza(l, size_t(p - inceput));
    l.fel = FelValoare::Text;
    puneValoare(l, 0);
}

void Grila::puneValoare(Loc& l, std::int64_t v) {
    l.mare = v < INT32_MIN || v > INT32_MAX;
    if (!l.mare) {
        l.valoare = std::int32_t(v);
        return;
    }
    if (valoriMari_.size() > size_t(INT32_MAX)) throw Eroare(QStringLiteral("Grila nu mai poate primi valori."));
    l.valoare = std::int32_t(valoriMari_.size());
    valoriMari_.push_back(v);
}

void Grila::ScrieIntreg(int rand, int col, qint64 n) {
    char t[24];
    const auto r = std::to_chars(t, t + sizeof t, n);
    ScriePiese(rand, col, {QLatin1StringView(t, r.ptr)});
    Loc& l = loc(rand, col);
    l.fel = FelValoare::Intreg;
    puneValoare(l, n);
}

void Grila::ScrieSuma(int rand, int col, const Bani& suma) {
    char t[Bani::LungimeText];
    ScriePiese(rand, col, {QLatin1StringView(t, ScrieTextSuma(suma, t))});
    Loc& l = loc(rand, col);
    l.fel = FelValoare::Suma;
    puneValoare(l, suma.Unitati());
}

void Grila::CopiazaContinut(int rand, int col, int randSursa, int colSursa) {
    const Loc sursa = loc(randSursa, colSursa);
    Loc& l = loc(rand, col);
    const std::uint16_t aspect = l.aspect;
    l = sursa;
    l.aspect = aspect;
}

QVariant Grila::Valoare(int rand, int col) const {
    const Loc& l = loc(rand, col);
    switch (l.fel) {
    case FelValoare::Suma:
        return QVariant::fromValue(Bani::DinUnitati(valoareLa(l)));
    case FelValoare::Data:
        return QDate::fromJulianDay(valoareLa(l));
    case FelValoare::Intreg:
        return qint64(valoareLa(l));
    case FelValoare::Text:
        break;
    }
    return {};
}

bool Grila::EsteGoala(int rand, int col) const {
    const Loc& l = loc(rand, col);
    return l.lungime == 0 && l.fel == FelValoare::Text && l.aspect == 0;
}

Celula Grila::La(int rand, int col) const {
    const Aspect& a = AspectLa(rand, col);
    return {Text(rand, col), Valoare(rand, col), a.font, a.aliniere, a.incadrare, a.linii};
}

void Grila::Seteaza(int rand, int col, const Celula& c) {
    Scrie(rand, col, c.text, c.valoare);
    loc(rand, col).aspect = numarAspect({c.font, c.aliniere, c.incadrare, c.linii});
}

std::uint16_t Grila::numarAspect(const Aspect& a) {
    const auto gasit = std::find(aspecte_.begin(), aspecte_.end(), a);
    if (gasit != aspecte_.end()) return std::uint16_t(gasit - aspecte_.begin());
    if (aspecte_.size() > 0xFFFF) throw Eroare(QStringLiteral("Grila are prea multe formate diferite."));
    aspecte_.push_back(a);
    return std::uint16_t(aspecte_.size() - 1);
}

void Grila::Scrie(int rand, int col, const QString& text) {
    Scrie(rand, col, text, {});
}

void Grila::Scrie(int rand, int col, const QString& text, const QVariant& valoare) {
    Loc& l = loc(rand, col);
    scrieText(l, text);
    l.fel = Felul(valoare);
    switch (l.fel) {
    case FelValoare::Suma:
        puneValoare(l, valoare.value<Bani>().Unitati());
        break;
    case FelValoare::Data:
        puneValoare(l, valoare.toDate().toJulianDay());
        break;
    case FelValoare::Intreg:
        puneValoare(l, valoare.toLongLong());
        break;
    case FelValoare::Text:
        puneValoare(l, 0);
        break;
    }
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
    loc(n.rand1, n.col1);
    loc(n.rand2, n.col2);
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
    // Each edge touches one side (or the diagonal) of some cells of the rectangle.
    const auto latura = [&](const Dreptunghi& z, int i) {
        ModificaAspect(z, [&](Aspect& a) { a.linii[size_t(i)] = l; });
    };
    switch (m) {
    case Margine::Stanga:
        latura({n.rand1, n.col1, n.rand2, n.col1}, 0);
        break;
    case Margine::Dreapta:
        latura({n.rand1, n.col2, n.rand2, n.col2}, 1);
        break;
    case Margine::Sus:
        latura({n.rand1, n.col1, n.rand1, n.col2}, 2);
        break;
    case Margine::Jos:
        latura({n.rand2, n.col1, n.rand2, n.col2}, 3);
        break;
    case Margine::InteriorVertical:
        if (n.col2 > n.col1) latura({n.rand1, n.col1, n.rand2, n.col2 - 1}, 1);
        break;
    case Margine::InteriorOrizontal:
        if (n.rand2 > n.rand1) latura({n.rand1, n.col1, n.rand2 - 1, n.col2}, 3);
        break;
    case Margine::DiagonalaSus:
        latura(n, 4);
        break;
    case Margine::DiagonalaJos:
        latura(n, 5);
        break;
    }
}

void Grila::Aliniaza(const Dreptunghi& d, Aliniere a) {
    ModificaAspect(d, [&](Aspect& x) { x.aliniere = a; });
}

void Grila::SeteazaFont(const Dreptunghi& d, const Font& f) {
    ModificaAspect(d, [&](Aspect& x) { x.font = f; });
}

void Grila::Incadreaza(const Dreptunghi& d, bool da) {
    ModificaAspect(d, [&](Aspect& x) { x.incadrare = da; });
}

void Grila::Goleste(const Dreptunghi& d) {
    const Dreptunghi n = normal(d);
    for (int r = n.rand1; r <= n.rand2; ++r)
        for (int c = n.col1; c <= n.col2; ++c)
            loc(r, c) = Loc{};
    std::erase_if(uniri_, [&](const Dreptunghi& u) { return seSuprapun(u, n); });
}

int Grila::InaltimeRand(int rand) const {
    loc(rand, 0);
    return inaltimi_[size_t(rand)] > 0 ? inaltimi_[size_t(rand)] : inaltimeImplicita;
}

void Grila::SeteazaInaltimeRand(int rand, int px) {
    loc(rand, 0);
    inaltimi_[size_t(rand)] = std::max(px, 0);
}

int Grila::LatimeColoana(int col) const {
    loc(0, col);
    return latimi_[size_t(col)] > 0 ? latimi_[size_t(col)] : latimeImplicita;
}

void Grila::SeteazaLatimeColoana(int col, int px) {
    loc(0, col);
    latimi_[size_t(col)] = std::max(px, 0);
}

Aliniere Grila::AliniereColoana(int col) const {
    loc(0, col);
    return aliniereColoane_[size_t(col)].value_or(Aliniere{});
}

void Grila::SeteazaAliniereColoana(int col, Aliniere a) {
    loc(0, col);
    aliniereColoane_[size_t(col)] = a;
}

int Grila::InaltimeProprie(int rand) const {
    loc(rand, 0);
    return inaltimi_[size_t(rand)];
}

int Grila::LatimeProprie(int col) const {
    loc(0, col);
    return latimi_[size_t(col)];
}

std::optional<Aliniere> Grila::AliniereProprieColoana(int col) const {
    loc(0, col);
    return aliniereColoane_[size_t(col)];
}

Aliniere Grila::AliniereCelula(int rand, int col) const {
    const std::optional<Aliniere>& a = AspectLa(rand, col).aliniere;
    return a ? *a : AliniereColoana(col);
}

} // namespace Raport

namespace Raport {

Font Grila::FontCelula(int rand, int col) const {
    const Font& f = AspectLa(rand, col).font;
    return {f.nume.isEmpty() ? fontImplicit.nume : f.nume, f.marime > 0 ? f.marime : fontImplicit.marime,
            f.bold ? f.bold : fontImplicit.bold, f.italic ? f.italic : fontImplicit.italic,
            f.subliniat ? f.subliniat : fontImplicit.subliniat};
}

std::uint64_t Grila::CheieAspect(int rand, int col) const {
    const Loc& l = loc(rand, col);
    // A cell that takes its column's alignment looks like the others of its column only.
    const std::uint64_t coloana = aspecte_[l.aspect].aliniere ? 0 : std::uint64_t(col) + 1;
    return std::uint64_t(l.aspect) << 40 | std::uint64_t(l.fel) << 32 | coloana;
}

bool Grila::operator==(const Grila& alta) const {
    if (randuri_ != alta.randuri_ || coloane_ != alta.coloane_ || uniri_ != alta.uniri_ ||
        inaltimi_ != alta.inaltimi_ || latimi_ != alta.latimi_ || aliniereColoane_ != alta.aliniereColoane_ ||
        inaltimeImplicita != alta.inaltimeImplicita || latimeImplicita != alta.latimeImplicita ||
        fontImplicit != alta.fontImplicit || pagina != alta.pagina)
        return false;
    for (int r = 0; r < randuri_; ++r)
        for (int c = 0; c < coloane_; ++c) {
            const Loc &a = loc(r, c), &b = alta.loc(r, c);
            if (a.fel != b.fel || valoareLa(a) != alta.valoareLa(b) || AspectLa(r, c) != alta.AspectLa(r, c) ||
                TextVedere(r, c) != alta.TextVedere(r, c))
                return false;
        }
    return true;
}

} // namespace Raport
