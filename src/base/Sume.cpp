#include "base/Sume.h"

#include "base/Eroare.h"

#include <algorithm>
#include <cmath>

namespace {

bool areCifraNenula(QStringView t) {
    return std::any_of(t.begin(), t.end(), [](QChar c) { return c >= u'1' && c <= u'9'; });
}

[[noreturn]] void nuEsteSuma(const QString& s) {
    throw Eroare(QStringLiteral("\"%1\" nu este o suma valida: se asteapta un numar, cu virgula sau punct "
                                "inaintea zecimalelor.")
                     .arg(s));
}

// The whole part of "1.234.567" or "-1.234,56": groups of three digits after the first one.
bool grupeDeMii(QStringView intreg) {
    if (intreg.startsWith(u'-') || intreg.startsWith(u'+')) intreg = intreg.mid(1);
    const auto grupe = intreg.split(u'.');
    if (grupe.front().isEmpty() || grupe.front().size() > 3) return false;
    return std::all_of(grupe.begin() + 1, grupe.end(), [](QStringView g) { return g.size() == 3; });
}

} // namespace

QString FormatSuma(const QString& numar) {
    QString t = numar.trimmed();
    bool negativ = false;
    if (t.startsWith(u'-')) {
        t.remove(0, 1);
        negativ = areCifraNenula(t);
    }
    qsizetype i = 0;
    while (i < t.size() && t[i] != u',' && t[i] != u'.')
        ++i;
    const QString intreg = t.left(i);
    const QString zecimale = i < t.size() ? t.mid(i + 1) : QString();
    QString rezultat;
    if (zecimale.isEmpty())
        rezultat = intreg + QStringLiteral(".00");
    else if (zecimale.size() == 1)
        rezultat = intreg + QLatin1Char('.') + zecimale + QLatin1Char('0');
    else
        rezultat = intreg + QLatin1Char('.') + zecimale;
    return negativ ? QLatin1Char('-') + rezultat : rezultat;
}
QString FormatSuma(const Bani& suma) {
    return FormatSuma(TextSuma(suma));
}

char* ScrieTextSuma(const Bani& b, char* loc) {
    char* sfarsit = b.ScrieText(loc);
    while (sfarsit[-1] == '0')
        --sfarsit;
    if (sfarsit[-1] == '.') --sfarsit;
    return sfarsit;
}

QString TextSuma(const Bani& b) {
    char t[Bani::LungimeText];
    return QString::fromLatin1(t, ScrieTextSuma(b, t) - t);
}

std::int64_t RotunjireSus(const Bani& suma) {
    // An amount has decimals in its text exactly when it is not a whole number of lei.
    const std::int64_t intreg = suma.Unitati() / Bani::Scala;
    const bool areZecimale = suma.Unitati() % Bani::Scala != 0;
    return areZecimale && suma.Unitati() > 0 ? intreg + 1 : intreg;
}
double RotunjireSus(double x) {
    if (!std::isfinite(x)) return x;
    // The value as the old run-time wrote it, to 15 significant digits: a computing residue
    // such as 3.0000000000000004 is a whole 3 there.
    const double aratat = QString::number(x, 'g', 15).toDouble();
    const double intreg = std::floor(aratat);
    return aratat == intreg ? intreg : intreg + 1;
}

Bani SumaText(const QString& s) {
    const QString t = s.trimmed();
    QString numar = t;
    const auto puncte = t.count(u'.');
    const auto virgule = t.count(u',');
    if ((puncte > 0 && virgule > 0) || puncte > 1) {
        const qsizetype virgula = t.indexOf(u',');
        const QStringView intreg = virgula < 0 ? QStringView(t) : QStringView(t).left(virgula);
        if (virgula >= 0 && t.lastIndexOf(u'.') > virgula) nuEsteSuma(s);
        if (!grupeDeMii(intreg)) nuEsteSuma(s);
        numar.remove(u'.');
    }
    const auto suma = Bani::DinText(numar);
    if (!suma) nuEsteSuma(s);
    return *suma;
}

Bani SumaCaseta(const QString& s) {
    return s.trimmed().isEmpty() ? Bani() : SumaText(s);
}
