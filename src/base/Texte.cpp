#include "base/Texte.h"

#include "base/Val.h"

#include <QList>
#include <algorithm>

namespace {

bool esteSemn(char32_t c) {
    switch (QChar::category(c)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
        return true;
    default:
        return false;
    }
}

// The letter a character is written on ('ș', 'ş' and 's' give 's'), following its canonical
// decomposition while the rest of it is marks; a syllable that decomposes into letters stays whole.
char32_t faraSemne(char32_t c) {
    while (QChar::decompositionTag(c) == QChar::Canonical) {
        const QList<uint> parti = QChar::decomposition(c).toUcs4();
        if (parti.isEmpty() || !std::all_of(parti.begin() + 1, parti.end(), esteSemn)) break;
        c = parti.front();
    }
    return c;
}

} // namespace

bool EsteCifra(QChar c) {
    return c.unicode() >= 48 && c.unicode() <= 57;
}

bool IntreLimite(QStringView text, double jos, double sus) {
    const double v = Val(text);
    return v >= jos && v <= sus;
}

QString Doua(int n) {
    const QString t = QString::number(n);
    if (t.size() == 1) return QLatin1Char('0') + t;
    return t.size() == 2 ? t : QString();
}

DataScrisa::DataScrisa(const QDate& data) {
    if (!data.isValid()) return;
    int z = 0, l = 0, a = 0;
    data.getDate(&a, &l, &z);
    // Digits by hand rather than through the locale.
    if (a < 1 || a > 9999) {
        lunga_ = data.toString(QStringLiteral("dd.MM.yyyy"));
        return;
    }
    const char16_t t[10] = {char16_t(u'0' + z / 10), char16_t(u'0' + z % 10), u'.',
                            char16_t(u'0' + l / 10), char16_t(u'0' + l % 10), u'.',
                            char16_t(u'0' + a / 1000), char16_t(u'0' + a / 100 % 10),
                            char16_t(u'0' + a / 10 % 10), char16_t(u'0' + a % 10)};
    std::copy_n(t, 10, t_);
    n_ = 10;
}

QString FormatData(const QDate& data) {
    return DataScrisa(data).Vedere().toString();
}

QString CheieCautare(const QString& text) {
    QString r;
    r.reserve(text.size());
    for (const char32_t c : text.toUcs4()) {
        if (esteSemn(c)) continue;
        const char32_t l = QChar::toLower(faraSemne(c));
        if (QChar::requiresSurrogates(l)) {
            r += QChar(QChar::highSurrogate(l));
            r += QChar(QChar::lowSurrogate(l));
        } else {
            r += QChar(char16_t(l));
        }
    }
    return r;
}

QVariant CheieCautareStocata(const QString& nume) {
    return nume.isEmpty() ? QVariant() : QVariant(CheieCautare(nume));
}

QString MajusculaPrima(const QString& s) {
    if (s.isEmpty()) return s;
    return s.left(1).toUpper() + s.mid(1);
}

QString NumeProprii(const QString& s) {
    QString rezultat;
    rezultat.reserve(s.size());
    bool inceputDeCuvant = true;
    for (QChar c : s) {
        rezultat.append(inceputDeCuvant ? c.toUpper() : c.toLower());
        inceputDeCuvant = c.isSpace() || c == u'-';
    }
    return rezultat;
}

const QStringList& LuniAn() {
    static const QStringList luni{
        QStringLiteral("Ianuarie"),  QStringLiteral("Februarie"), QStringLiteral("Martie"),
        QStringLiteral("Aprilie"),   QStringLiteral("Mai"),       QStringLiteral("Iunie"),
        QStringLiteral("Iulie"),     QStringLiteral("August"),    QStringLiteral("Septembrie"),
        QStringLiteral("Octombrie"), QStringLiteral("Noiembrie"), QStringLiteral("Decembrie"),
    };
    return luni;
}
