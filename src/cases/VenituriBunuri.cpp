#include "cases/VenituriBunuri.h"

#include "base/Eroare.h"
#include "base/Sume.h"
#include "store/BazaDate.h"

namespace {

QString textDin(const QVariant& v) {
    return v.isNull() ? QString() : v.toString();
}

std::vector<ElementCatalog> citesteCatalog(BazaDate& db, const QString& sql) {
    Interogare q(db, sql);
    q.Executa();
    std::vector<ElementCatalog> r;
    while (q.Urmator())
        r.push_back({int(q.Intreg(0)), textDin(q.Valoare(1))});
    return r;
}

// ce: what the cell holds, as the message names it ("suma", "cantitatea").
Bani citesteCelula(const QString& text, const QString& ce) {
    const Bani b = SumaCaseta(text); // its own message for a text that isn't a number
    if (b < Bani()) throw Eroare(QStringLiteral("\"%1\": %2 nu poate fi negativa.").arg(text.trimmed(), ce));
    if (b > MaximCelula)
        throw Eroare(
            QStringLiteral("\"%1\": %2 este prea mare; cel mult %3.").arg(text.trimmed(), ce, FormatSuma(MaximCelula)));
    return b;
}

template <size_t N> std::vector<Bani> primele(const std::array<Bani, N>& a, size_t n) {
    std::vector<Bani> r(n);
    for (size_t i = 0; i < n && i < N; ++i)
        r[i] = a[i];
    return r;
}

template <size_t N> void copiaza(const std::vector<Bani>& v, std::array<Bani, N>& a) {
    for (size_t i = 0; i < v.size() && i < N; ++i)
        a[i] = v[i];
}

} // namespace

CatalogBife CitesteListaBife(BazaDate& db) {
    Interogare q(db, QStringLiteral("SELECT NrBifa, Tip, Cod, Denumire, Valoare FROM ListaBife ORDER BY NrBifa"));
    q.Executa();
    CatalogBife c;
    while (q.Urmator()) {
        const int nr = int(q.Intreg(0));
        if (nr <= 10)
            c.Excludere.push_back({nr, textDin(q.Valoare(3))});
        else
            c.Bunuri.push_back(
                {nr, textDin(q.Valoare(1)), int(q.Intreg(2)), textDin(q.Valoare(3)), Bani::DinVariant(q.Valoare(4))});
    }
    return c;
}

std::vector<ElementCatalog> CitesteListaVenituri(BazaDate& db) {
    return citesteCatalog(db, QStringLiteral("SELECT CodVenit, Denumire FROM ListaVenituri ORDER BY CodVenit"));
}

std::vector<ElementCatalog> CitesteListaActe(BazaDate& db) {
    return citesteCatalog(db, QStringLiteral("SELECT NrAct, Denumire FROM ListaActe ORDER BY NrAct"));
}

QString TextRandBifa(const ElementCatalog& e) {
    return QStringLiteral("%1. - %2").arg(e.Nr).arg(e.Denumire);
}

std::vector<bool> DespacheteazaBife(const QString& text, size_t randuri) {
    std::vector<bool> r(randuri, false);
    for (size_t i = 0; i < randuri && i < size_t(text.size()); ++i)
        r[i] = text[qsizetype(i)] == u'1';
    return r;
}

QString ImpacheteazaBife(const std::vector<bool>& bifate) {
    QString t;
    t.reserve(qsizetype(bifate.size()));
    for (bool b : bifate)
        t += b ? u'1' : u'0';
    return t;
}

Bani CitesteSuma(const QString& text) {
    return citesteCelula(text, QStringLiteral("suma"));
}

Bani CitesteCantitate(const QString& text) {
    return citesteCelula(text, QStringLiteral("cantitatea"));
}

QString TextCelula(const Bani& b) {
    return b == Bani() ? QString() : FormatSuma(b);
}

GrilaVenituri::GrilaVenituri(std::vector<ElementCatalog> randuri, const std::array<Bani, 79>& venituri)
    : randuri_(std::move(randuri)), sume_(primele(venituri, randuri_.size())) {}

const Bani& GrilaVenituri::Seteaza(size_t rand, const QString& text) {
    Bani& s = sume_.at(rand);
    s = CitesteSuma(text);
    return s;
}

Bani GrilaVenituri::Total() const {
    Bani t;
    for (const Bani& s : sume_)
        t += s;
    return t;
}

QString GrilaVenituri::TextTotal() const {
    return QStringLiteral("Total venituri: ") + FormatSuma(Total()) + QStringLiteral(" lei");
}

void GrilaVenituri::CopiazaIn(std::array<Bani, 79>& venituri) const {
    copiaza(sume_, venituri);
}

GrilaBunuri::GrilaBunuri(std::vector<BunCatalog> randuri, const std::array<Bani, 75>& bunuri)
    : randuri_(std::move(randuri)), cantitati_(primele(bunuri, randuri_.size())) {}

const Bani& GrilaBunuri::Seteaza(size_t rand, const QString& text) {
    Bani& c = cantitati_.at(rand);
    c = CitesteCantitate(text);
    return c;
}

Bani GrilaBunuri::Valoare() const {
    Bani v;
    for (size_t i = 0; i < randuri_.size(); ++i)
        v += cantitati_[i].Inmultit(randuri_[i].Valoare);
    return v;
}

void GrilaBunuri::CopiazaIn(std::array<Bani, 75>& bunuri) const {
    copiaza(cantitati_, bunuri);
}

QString GrilaBunuri::Html() const {
    QString h = QStringLiteral("<html><body><h3>%1</h3>"
                               "<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\" width=\"100%\"><tr>")
                    .arg(TitluBife.toHtmlEscaped());
    for (const QString& c : ColoaneBunuri)
        h += QStringLiteral("<th>%1</th>").arg(c.toHtmlEscaped());
    h += QStringLiteral("</tr>");
    for (size_t i = 0; i < randuri_.size(); ++i) {
        const BunCatalog& b = randuri_[i];
        h += QStringLiteral("<tr><td>%1</td><td align=\"right\">%2</td><td>%3</td><td align=\"right\">%4</td>"
                            "<td align=\"right\">%5</td></tr>")
                 .arg(b.Tip.toHtmlEscaped(), QString::number(b.Cod), b.Denumire.toHtmlEscaped(), FormatSuma(b.Valoare),
                      TextCelula(cantitati_[i]));
    }
    h += QStringLiteral("</table><p><b>VENITUL NET (EURO): %1</b></p></body></html>").arg(FormatSuma(Valoare()));
    return h;
}
