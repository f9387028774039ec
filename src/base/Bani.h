#pragma once

#include "base/Eroare.h"

#include <QString>
#include <QVariant>
#include <compare>
#include <cstdint>
#include <optional>

// A money amount: a whole number of ten-thousandths of a leu on 64 bits, as the Currency of the
// old program. No amount ever passes through a double. The range is symmetric, ±Maxim units;
// every operation that would leave it throws Eroare instead of wrapping.
class Bani {
public:
    static constexpr std::int64_t Scala = 10000;
    static constexpr std::int64_t Maxim = INT64_MAX;

    constexpr Bani() = default;
    static constexpr Bani DinUnitati(std::int64_t unitati) { return Bani(Verificat(unitati)); }
    static constexpr Bani DinLei(std::int64_t lei) { return Bani(Produs(lei, Scala)); }

    // A decimal written with a point or a comma as its separator, an optional sign and no
    // thousands marks; digits past the fourth decimal are rounded half to even. Text outside the
    // range is refused like any other bad text.
    static std::optional<Bani> DinText(QStringView text);
    // A value read from the database: an integer, a decimal string or a double. A value outside
    // the range throws.
    static Bani DinVariant(const QVariant& v);

    constexpr std::int64_t Unitati() const { return unitati_; }
    QString Text() const; // "12.5000": always four decimals, a point
    // The same text written at `loc`, which has room for LungimeText characters; returns its end.
    static constexpr int LungimeText = 32;
    char* ScrieText(char* loc) const;
    double ToDouble() const { return double(unitati_) / Scala; }

    // Product of two amounts rounded half to even on the fourth decimal.
    Bani Inmultit(const Bani& alt) const;
    // Whole number rounded half to even, as the old Currency-to-Integer conversion.
    std::int64_t RotunjitPar() const;

    constexpr Bani operator+(Bani b) const { return Bani(Suma(unitati_, b.unitati_)); }
    constexpr Bani operator-(Bani b) const { return Bani(Suma(unitati_, -b.unitati_)); }
    constexpr Bani operator-() const { return Bani(-unitati_); }
    constexpr Bani operator*(std::int64_t n) const { return Bani(Produs(unitati_, n)); }
    constexpr Bani& operator+=(Bani b) { return *this = *this + b; }
    constexpr Bani& operator-=(Bani b) { return *this = *this - b; }
    constexpr auto operator<=>(const Bani&) const = default;

    [[noreturn]] static void Depasire();

private:
    constexpr explicit Bani(std::int64_t u) : unitati_(u) {}

    static constexpr std::int64_t Verificat(std::int64_t u) {
        if (u < -Maxim) Depasire();
        return u;
    }
    static constexpr std::int64_t Suma(std::int64_t a, std::int64_t b) {
        std::int64_t r = 0;
        if (__builtin_add_overflow(a, b, &r)) Depasire();
        return Verificat(r);
    }
    static constexpr std::int64_t Produs(std::int64_t a, std::int64_t b) {
        std::int64_t r = 0;
        if (__builtin_mul_overflow(a, b, &r)) Depasire();
        return Verificat(r);
    }

    std::int64_t unitati_ = 0;
};
