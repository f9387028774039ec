#include "shell/Bani.h"

#include <cmath>

namespace {

// Divides by a power of ten, rounding half to even.
std::int64_t imparteRotunjitPar(__int128 valoare, __int128 divizor) {
    __int128 cat = valoare / divizor;
    __int128 rest = valoare % divizor;
    __int128 dublu = (rest < 0 ? -rest : rest) * 2;
    if (dublu > divizor || (dublu == divizor && (cat % 2) != 0)) cat += valoare < 0 ? -1 : 1;
    return static_cast<std::int64_t>(cat);
}

} // namespace

std::optional<Bani> Bani::DinText(QStringView text) {
    text = text.trimmed();
    if (text.isEmpty()) return std::nullopt;
    bool negativ = false;
    qsizetype i = 0;
    if (text[0] == u'-' || text[0] == u'+') {
        negativ = text[0] == u'-';
        ++i;
    }
    __int128 cifre = 0;
    int zecimale = 0;
    bool separator = false, oCifra = false;
    for (; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c.isDigit() && c.unicode() < 128) {
            if (cifre > __int128(1) << 100) return std::nullopt;
            cifre = cifre * 10 + (c.unicode() - u'0');
            oCifra = true;
            if (separator) ++zecimale;
        } else if ((c == u'.' || c == u',') && !separator) {
            separator = true;
        } else {
            return std::nullopt;
        }
    }
    if (!oCifra) return std::nullopt;
    __int128 unitati;
    if (zecimale <= 4) {
        unitati = cifre;
        for (int k = zecimale; k < 4; ++k)
            unitati *= 10;
    } else {
        __int128 divizor = 1;
        for (int k = 4; k < zecimale; ++k)
            divizor *= 10;
        unitati = imparteRotunjitPar(cifre, divizor);
    }
    if (unitati > INT64_MAX) return std::nullopt;
    const auto u = static_cast<std::int64_t>(unitati);
    return Bani(negativ ? -u : u);
}

Bani Bani::DinVariant(const QVariant& v) {
    if (v.isNull() || !v.isValid()) return Bani();
    switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::ULongLong:
        return DinLei(v.toLongLong());
    case QMetaType::Double:
    case QMetaType::Float:
        // SQLite keeps a decimal as a double; four decimals survive the round trip exactly.
        return Bani(static_cast<std::int64_t>(std::llround(v.toDouble() * Scala)));
    default:
        if (auto b = DinText(v.toString())) return *b;
        return Bani(static_cast<std::int64_t>(std::llround(v.toDouble() * Scala)));
    }
}

QString Bani::Text() const {
    const std::int64_t absolut = unitati_ < 0 ? -unitati_ : unitati_;
    return QStringLiteral("%1%2.%3")
        .arg(unitati_ < 0 ? QStringLiteral("-") : QString())
        .arg(absolut / Scala)
        .arg(absolut % Scala, 4, 10, QLatin1Char('0'));
}

Bani Bani::Inmultit(const Bani& alt) const {
    return Bani(imparteRotunjitPar(__int128(unitati_) * alt.unitati_, Scala));
}

std::int64_t Bani::RotunjitPar() const {
    return imparteRotunjitPar(unitati_, Scala);
}
