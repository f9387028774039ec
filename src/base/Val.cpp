#include "base/Val.h"

#include <QString>
#include <cmath>

namespace {

bool esteBlanc(QChar c) {
    return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

QString faraBlancuri(QStringView text) {
    QString curat;
    curat.reserve(text.size());
    for (QChar c : text)
        if (!esteBlanc(c)) curat.append(c);
    return curat;
}

double bazaSpeciala(const QString& s, int baza) {
    double rezultat = 0;
    for (QChar c : s) {
        const int cifra = QStringView(&c, 1).toInt(nullptr, 16);
        const bool ok = c.isDigit() || (baza == 16 && QStringLiteral("abcdefABCDEF").contains(c));
        if (!ok || cifra >= baza) break;
        rezultat = rezultat * baza + cifra;
    }
    return rezultat;
}

} // namespace

double Val(QStringView text) {
    const QString s = faraBlancuri(text);
    if (s.startsWith(QLatin1String("&H"), Qt::CaseInsensitive)) return bazaSpeciala(s.mid(2), 16);
    if (s.startsWith(QLatin1String("&O"), Qt::CaseInsensitive)) return bazaSpeciala(s.mid(2), 8);

    qsizetype i = 0;
    QString numar;
    if (i < s.size() && (s[i] == u'-' || s[i] == u'+')) numar.append(s[i++]);
    bool punct = false, cifre = false;
    for (; i < s.size(); ++i) {
        const QChar c = s[i];
        if (c.isDigit() && c.unicode() < 128) {
            numar.append(c);
            cifre = true;
        } else if (c == u'.' && !punct) {
            punct = true;
            numar.append(c);
        } else {
            break;
        }
    }
    if (!cifre) return 0;
    // An exponent counts only when digits follow it.
    if (i < s.size() && QStringLiteral("eEdD").contains(s[i])) {
        qsizetype j = i + 1;
        QString exponent = QStringLiteral("e");
        if (j < s.size() && (s[j] == u'-' || s[j] == u'+')) exponent.append(s[j++]);
        const qsizetype inceput = j;
        while (j < s.size() && s[j].isDigit() && s[j].unicode() < 128)
            exponent.append(s[j++]);
        if (j > inceput) numar.append(exponent);
    }
    bool ok = false;
    const double v = numar.toDouble(&ok);
    return ok && std::isfinite(v) ? v : 0;
}
