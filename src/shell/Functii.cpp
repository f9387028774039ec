#include "shell/Functii.h"

#include "shell/Eroare.h"
#include "shell/Mesaje.h"
#include "shell/Val.h"
#include "store/BazaDate.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QGuiApplication>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

int cifra(const QString& cnp, int pozitie) {
    return cnp[pozitie].unicode() - u'0';
}

// The number written at a 0-based position over two characters, read as Val reads it.
int numarDinDoua(const QString& cnp, int pozitie) {
    return static_cast<int>(Val(QStringView(cnp).mid(pozitie, 2)));
}

// A date from a year, a month and a day that may overflow: the surplus carries into the next
// month or year and a zero or negative value borrows from the previous one.
QDate dataCuDepasire(int an, int luna, int zi) {
    const int luniTotal = an * 12 + (luna - 1);
    // The calendar has no year 0; a code that lands there or before has no date.
    if (luniTotal < 12) return {};
    return QDate(luniTotal / 12, luniTotal % 12 + 1, 1).addDays(zi - 1);
}

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

bool EsteCifra(QChar c) {
    return c.unicode() >= 48 && c.unicode() <= 57;
}

bool IntreLimite(QStringView text, double jos, double sus) {
    const double v = Val(text);
    return v >= jos && v <= sus;
}

bool VerificaCNP(const QString& cnp, Mesaje* m) {
    const auto respins = [m](const QString& motiv) {
        if (m) m->Critic(QStringLiteral("CNP invalid.\n") + motiv, QStringLiteral("CNP"));
        return false;
    };
    const QString judetSauControl = QStringLiteral("CNP-ul e posibil sa aiba codul judetului incorect.");

    if (cnp.size() != 13) return respins(QStringLiteral("Nr caractere insuficiente"));
    if (!std::all_of(cnp.begin(), cnp.end(), EsteCifra))
        return respins(QStringLiteral("Codul numeric personal nu este un numar"));

    const int luna = cifra(cnp, 3) * 10 + cifra(cnp, 4);
    if (luna < 1 || luna > 12) return respins(QStringLiteral("LUNA nasterii din CNP nu este una valida."));

    // February always allows the 29th: the year's century is not known for every first digit.
    const int zi = cifra(cnp, 5) * 10 + cifra(cnp, 6);
    const int ultimaZi = luna == 2 ? 29 : (luna == 4 || luna == 6 || luna == 9 || luna == 11) ? 30 : 31;
    if (zi < 1 || zi > ultimaZi) return respins(QStringLiteral("ZIUA nasterii din CNP nu este una valida."));

    const int judet = cifra(cnp, 7) * 10 + cifra(cnp, 8);
    if (!((judet >= 1 && judet <= 47) || judet == 51 || judet == 52 || judet == 99)) return respins(judetSauControl);

    if (CifraControlCnp(cnp) != cifra(cnp, 12)) return respins(judetSauControl);
    return true;
}

int CifraControlCnp(QStringView douasprezece) {
    static constexpr std::array<int, 12> ponderi{2, 7, 9, 1, 4, 6, 3, 5, 8, 2, 7, 9};
    int suma = 0;
    for (int i = 0; i < 12; ++i)
        suma += (douasprezece[i].unicode() - u'0') * ponderi[size_t(i)];
    return suma % 11 == 10 ? 1 : suma % 11;
}

QDate DataNasterii(const QString& cnp, bool adauga18, Mesaje* m) {
    if (cnp.size() < 7) return {};
    int baza = 0;
    if (cnp[0] == u'1' || cnp[0] == u'2')
        baza = 1900;
    else if (cnp[0] == u'5' || cnp[0] == u'6')
        baza = 2000;
    const int an = baza + numarDinDoua(cnp, 1) + (adauga18 ? 18 : 0);
    const int luna = numarDinDoua(cnp, 3);
    if (luna > 12) {
        if (m) m->Avertisment(QStringLiteral("Luna incorecta"));
        return {};
    }
    const int zi = numarDinDoua(cnp, 5);
    if (zi > 31) {
        if (m) m->Avertisment(QStringLiteral("Zi incorecta"));
        return {};
    }
    return dataCuDepasire(an, luna, zi);
}

QString DataNasteriiText(const QString& cnp) {
    if (!(Val(cnp) > 0)) return {};
    const QDate d = DataNasterii(cnp, false, nullptr);
    if (!d.isValid()) return {};
    return QStringLiteral("%1 %2 %3").arg(d.day()).arg(LuniAn()[d.month() - 1]).arg(d.year());
}

qint16 Varsta(const QDate& referinta, const QDate& nastere, const QString& cnp, Mesaje* m) {
    if (!nastere.isValid()) {
        if (m)
            m->Avertisment(cnp.trimmed().isEmpty() ? QStringLiteral("Nu s-a transmis Data Nasterii")
                                                   : QStringLiteral("Partea asta nu e facuta inca!"));
        return 0;
    }
    if (!referinta.isValid()) throw Eroare(QStringLiteral("Exceptie: varsta ceruta fara data de referinta."));
    int ani = referinta.year() - nastere.year();
    if (referinta.month() <= nastere.month()) --ani;
    if (ani < 0 && m)
        m->Avertisment(QStringLiteral("Varsta e negativa pentru ca Luna setata este anterioara lunii nasterii!"));
    return static_cast<qint16>(ani);
}

QString Doua(int n) {
    const QString t = QString::number(n);
    if (t.size() == 1) return QLatin1Char('0') + t;
    return t.size() == 2 ? t : QString();
}

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

QString TextSuma(const Bani& b) {
    QString t = b.Text();
    while (t.endsWith(u'0'))
        t.chop(1);
    if (t.endsWith(u'.')) t.chop(1);
    return t;
}

QString FormatSuma(const Bani& suma) {
    return FormatSuma(TextSuma(suma));
}

QString PrefixLike(const QString& text) {
    QString t = text;
    t.replace(QLatin1Char('\\'), QStringLiteral("\\\\"));
    t.replace(QLatin1Char('%'), QStringLiteral("\\%"));
    t.replace(QLatin1Char('_'), QStringLiteral("\\_"));
    return t + QLatin1Char('%');
}

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

QString FormatData(const QDate& data) {
    return data.isValid() ? data.toString(QStringLiteral("dd.MM.yyyy")) : QString();
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

QString VerificaPraguriVenit(const std::optional<QString>& continut, Mesaje& m) {
    const QString titlu = QStringLiteral("Eroare");
    const QString formatGresit = QStringLiteral("Format praguri gresit!");
    if (!continut) {
        m.Critic(QStringLiteral("PRAGURI_VENIT nu exista!"), titlu);
        return {};
    }
    const QString& praguri = *continut;
    if (praguri.trimmed().isEmpty()) {
        m.Critic(QStringLiteral("Nu sunt definite praguri venit!"), titlu);
        return {};
    }
    if (!praguri.contains(u'|')) {
        m.Critic(formatGresit, titlu);
        return {};
    }
    // A blank part is no threshold: "210.2|" holds only one.
    const auto parti = QStringView(praguri).split(u'|');
    const auto pline = std::count_if(parti.begin(), parti.end(), [](QStringView p) { return !p.trimmed().isEmpty(); });
    if (pline < 2) {
        m.Critic(formatGresit + QStringLiteral("\nTrebuie cel putin doua praguri."), titlu);
        return {};
    }
    return praguri;
}

QString PraguriVenit(BazaDate& db, Mesaje& m) {
    Interogare q(db, QStringLiteral("SELECT Continut FROM DateGen WHERE Denumire = ?"));
    q.Leaga(QStringLiteral("PRAGURI_VENIT"));
    if (!q.Exista()) return VerificaPraguriVenit(std::nullopt, m);
    return VerificaPraguriVenit(q.Valoare(0).toString(), m);
}

bool FontInstalat(const QString& nume) {
    // The font database exists only in a GUI application; the command-line tool has no fonts to show.
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance())) return false;
    const QStringList familii = QFontDatabase::families();
    return std::any_of(familii.begin(), familii.end(),
                       [&](const QString& f) { return f.compare(nume, Qt::CaseInsensitive) == 0; });
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
