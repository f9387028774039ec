#pragma once

#include <QString>
#include <QVariant>
#include <compare>
#include <cstdint>
#include <optional>

// A money amount: a whole number of ten-thousandths of a leu on 64 bits, as the Currency of the
// old program. No amount ever passes through a double.
class Bani {
public:
    static constexpr std::int64_t Scala = 10000;

    constexpr Bani() = default;
    static constexpr Bani DinUnitati(std::int64_t unitati) { return Bani(unitati); }
    static constexpr Bani DinLei(std::int64_t lei) { return Bani(lei * Scala); }

    // A decimal written with a point or a comma as its separator, an optional sign and no
    // thousands marks; digits past the fourth decimal are rounded half to even.
    static std::optional<Bani> DinText(QStringView text);
    // A value read from the database: an integer, a decimal string or a double.
    static Bani DinVariant(const QVariant& v);

    constexpr std::int64_t Unitati() const { return unitati_; }
    QString Text() const; // "12.5000": always four decimals, a point
    double ToDouble() const { return double(unitati_) / Scala; }

    // Product of two amounts rounded half to even on the fourth decimal.
    Bani Inmultit(const Bani& alt) const;
    // Whole number rounded half to even, as the old Currency-to-Integer conversion.
    std::int64_t RotunjitPar() const;

    constexpr Bani operator+(Bani b) const { return Bani(unitati_ + b.unitati_); }
    constexpr Bani operator-(Bani b) const { return Bani(unitati_ - b.unitati_); }
    constexpr Bani operator-() const { return Bani(-unitati_); }
    constexpr Bani operator*(std::int64_t n) const { return Bani(unitati_ * n); }
    Bani& operator+=(Bani b) {
        unitati_ += b.unitati_;
        return *this;
    }
    Bani& operator-=(Bani b) {
        unitati_ -= b.unitati_;
        return *this;
    }
    constexpr auto operator<=>(const Bani&) const = default;

private:
    constexpr explicit Bani(std::int64_t u) : unitati_(u) {}
    std::int64_t unitati_ = 0;
};
