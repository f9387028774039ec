#include "cases/Cnp.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/Texte.h"
#include "base/Val.h"

#include <algorithm>
#include <array>

namespace {

int cifra(const QString& cnp, int pozitie) {
    return cnp[pozitie].unicode() - u'0';
}

// The number written at a 0-based position over two characters, read as Val reads it.
int numarDinDoua(const QString& cnp, int pozitie) {
    // Two digits, as nearly every code has them, are read straight; anything else as Val reads it.
    const QStringView doua = QStringView(cnp).mid(pozitie, 2);
    if (doua.size() == 2 && doua[0].isDigit() && doua[1].isDigit() && doua[0].unicode() < 128 && doua[1].unicode() < 128)
        return (doua[0].unicode() - u'0') * 10 + (doua[1].unicode() - u'0');
    return static_cast<int>(Val(doua));
}

// A date from a year, a month and a day that may overflow: the surplus carries into the next
// month or year and a zero or negative value borrows from the previous one.
QDate dataCuDepasire(int an, int luna, int zi) {
    const int luniTotal = an * 12 + (luna - 1);
    // The calendar has no year 0; a code that lands there or before has no date.
    if (luniTotal < 12) return {};
    return QDate(luniTotal / 12, luniTotal % 12 + 1, 1).addDays(zi - 1);
}

} // namespace

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

QDate ZiuaMajoratului(const QDate& nastere) {
    return nastere.isValid() ? dataCuDepasire(nastere.year() + 18, nastere.month(), nastere.day()) : QDate();
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
