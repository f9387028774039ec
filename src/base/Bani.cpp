#include "base/Bani.h"

#include <charconv>
#include <cmath>

namespace {

// Whether one unit is added away from zero: the dropped part is more than a half, or exactly a half
// and the kept part is odd. `rest` and `divizor` are magnitudes; `sticky` says digits beyond `rest`
// were not zero.
bool RotunjesteInSus(std::int64_t cat, std::int64_t rest, std::int64_t divizor, bool sticky) {
    const std::int64_t dublu = rest * 2;
    return dublu > divizor || (dublu == divizor && (sticky || cat % 2 != 0));
}

std::int64_t RotunjestePar(std::int64_t cat, std::int64_t rest, std::int64_t divizor, bool negativ) {
    if (!RotunjesteInSus(cat, rest, divizor, false)) return cat;
    return negativ ? cat - 1 : cat + 1;
}

} // namespace

void Bani::Depasire() {
    throw Eroare(QStringLiteral("Suma depaseste valoarea maxima care poate fi pastrata (922337203685477.5807 lei)."));
}

std::optional<Bani> Bani::DinText(QStringView text) {
    text = text.trimmed();
    if (text.isEmpty()) return std::nullopt;
    bool negativ = false;
    qsizetype i = 0;
    if (text[0] == u'-' || text[0] == u'+') {
        negativ = text[0] == u'-';
        ++i;
    }
    std::int64_t unitati = 0; // magnitude in ten-thousandths, up to the fourth decimal
    int zecimale = 0, primaPierduta = -1;
    bool separator = false, oCifra = false, sticky = false, depasit = false;
    for (; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isDigit() && c.unicode() < 128) {
            const int cifra = c.unicode() - u'0';
            oCifra = true;
            if (separator && zecimale >= 4) {
                if (primaPierduta < 0) primaPierduta = cifra;
                else if (cifra != 0) sticky = true;
                continue;
            }
            if (separator) ++zecimale;
            if (__builtin_mul_overflow(unitati, 10, &unitati) || __builtin_add_overflow(unitati, cifra, &unitati))
                depasit = true;
        } else if ((c == u'.' || c == u',') && !separator) {
            separator = true;
        } else {
            return std::nullopt;
        }
    }
    if (!oCifra) return std::nullopt;
    for (int k = zecimale; k < 4 && !depasit; ++k)
        depasit = __builtin_mul_overflow(unitati, 10, &unitati);
    if (depasit) return std::nullopt;
    if (primaPierduta >= 0) {
        // the dropped digits as a fraction of 10: compare against a half
        if (RotunjesteInSus(unitati, primaPierduta, 10, sticky && primaPierduta == 5)) {
            if (unitati == Maxim) return std::nullopt;
            ++unitati;
        }
    }
    return Bani(negativ ? -unitati : unitati);
}

Bani Bani::DinVariant(const QVariant& v) {
    if (v.isNull() || !v.isValid()) return Bani();
    const auto dinDouble = [](double d) {
        const double u = d * Scala;
        // 2^63 is the first double past the range; NaN fails both comparisons
        if (!(u < 9223372036854775808.0 && u > -9223372036854775808.0)) Depasire();
        return DinUnitati(static_cast<std::int64_t>(std::llround(u)));
    };
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
        return DinLei(v.toLongLong());
    case QMetaType::ULongLong: {
        const qulonglong n = v.toULongLong();
        if (n > qulonglong(Maxim)) Depasire();
        return DinLei(static_cast<std::int64_t>(n));
    }
    case QMetaType::Double:
    case QMetaType::Float:
        // SQLite keeps a decimal as a double; four decimals survive the round trip exactly.
        return dinDouble(v.toDouble());
    default: {
        const QString s = v.toString();
        if (auto b = DinText(s)) return *b;
        bool ok = false;
        const double d = s.toDouble(&ok);
        if (!ok) return Bani();
        return dinDouble(d);
    }
    }
}

char* Bani::ScrieText(char* loc) const {
    const std::uint64_t absolut = unitati_ < 0 ? 0 - std::uint64_t(unitati_) : std::uint64_t(unitati_);
    if (unitati_ < 0) *loc++ = '-';
    loc = std::to_chars(loc, loc + 20, absolut / Scala).ptr;
    *loc++ = '.';
    for (std::uint64_t zecimale = absolut % Scala, cifra = Scala / 10; cifra > 0; cifra /= 10)
        *loc++ = char('0' + zecimale / cifra % 10);
    return loc;
}

QString Bani::Text() const {
    char t[LungimeText];
    return QString::fromLatin1(t, ScrieText(t) - t);
}

Bani Bani::Inmultit(const Bani& alt) const {
    // (aq*S + ar) * (bq*S + br) / S = aq*bq*S + aq*br + ar*bq + ar*br/S, each part of the sign of the
    // product, so the exact quotient is the sum and only ar*br leaves a remainder.
    const std::int64_t a = unitati_, b = alt.unitati_;
    const std::int64_t aq = a / Scala, ar = a % Scala, bq = b / Scala, br = b % Scala;
    const std::int64_t mic = ar * br; // |ar|, |br| < 10^4
    std::int64_t cat = Suma(Suma(Produs(Produs(aq, bq), Scala), Produs(aq, br)), Suma(Produs(ar, bq), mic / Scala));
    const std::int64_t rest = mic % Scala;
    const bool negativ = (a < 0) != (b < 0);
    const std::int64_t absCat = cat < 0 ? -cat : cat;
    const std::int64_t absRest = rest < 0 ? -rest : rest;
    if (absCat == Maxim && RotunjesteInSus(absCat, absRest, Scala, false)) Depasire();
    const std::int64_t rotunjit = RotunjestePar(absCat, absRest, Scala, false);
    return DinUnitati(negativ ? -rotunjit : rotunjit);
}

std::int64_t Bani::RotunjitPar() const {
    const std::int64_t cat = unitati_ / Scala, rest = unitati_ % Scala;
    return RotunjestePar(cat, rest < 0 ? -rest : rest, Scala, unitati_ < 0);
}
