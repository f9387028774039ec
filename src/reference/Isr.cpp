#include "reference/Isr.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"

namespace {

const QString DenumireIsr = QStringLiteral("ISR");

bool DoarCifre(const QString& s) {
    for (const QChar c : s)
        if (c < u'0' || c > u'9') return false;
    return true;
}

} // namespace

CaseteIsr CaseteDinIsr(const QString& continut) {
    QString t = continut.trimmed();
    t.replace(u',', u'.');
    const qsizetype punct = t.indexOf(u'.');
    CaseteIsr c;
    c.Valoare = punct < 0 ? t : t.left(punct);
    c.Zecimale = punct < 0 ? QString() : t.mid(punct + 1);
    if (c.Zecimale.size() < 3) c.Zecimale = c.Zecimale.leftJustified(3, u'0');
    return c;
}

std::optional<QString> CitesteIsr(BazaDate& db) {
    return ContinutDateGen(db, DenumireIsr);
}

std::optional<QString> ValoareIsr(const QString& valoare, const QString& zecimale) {
    const QString v = valoare.trimmed(), z = zecimale.trimmed();
    if (v.isEmpty() || !DoarCifre(v) || !DoarCifre(z)) return std::nullopt;
    const QString text = z.isEmpty() ? v : v + u'.' + z;
    const std::optional<Bani> suma = Bani::DinText(text);
    if (!suma || *suma < Bani::DinLei(1)) return std::nullopt;
    return text;
}

std::optional<QString> ValoareIsr(const QString& text) {
    QString t = text.trimmed();
    t.replace(u',', u'.');
    const qsizetype punct = t.indexOf(u'.');
    return punct < 0 ? ValoareIsr(t, QString()) : ValoareIsr(t.left(punct), t.mid(punct + 1));
}

void ScrieIsr(BazaDate& db, const QString& valoare) {
    Interogare u(db, QStringLiteral("UPDATE DateGen SET Continut = ? WHERE Denumire = ?"));
    u.Leaga(valoare).Leaga(DenumireIsr).Executa();
    if (u.RanduriAfectate() == 0)
        throw Eroare(QStringLiteral("Valoarea ISR nu exista in baza de date. Redeschideti programul ca sa fie "
                                    "refacuta, apoi schimbati-o din nou."));
}
