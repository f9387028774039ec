#include "reports/builders/ComunListe.h"

#include "base/Mesaje.h"
#include "base/Texte.h"
#include "reference/DateReferinta.h"

#include <array>
#include <span>

namespace Raport {

PrimarieRaport CitestePrimariaRaport(BazaDate& db, Mesaje& m) {
    const auto rand = DateReferinta::CitesteRandPrimarie(db);
    if (!rand) {
        m.Informatie(QStringLiteral("Dupa ce iesiti din aceasta fereastra Introduceti datele primariei!"));
        return {};
    }
    const auto text = [&](const char* camp) { return rand->Text(camp).value_or(QString()); };
    return {text("Denumire"), text("Localitate"), text("Judet"), text("AsSocial"), text("CNPAsSocial"), true};
}

namespace {
// The address rule as the pieces of its text: at most 14.
size_t PieseAdresa(std::array<QAnyStringView, 14>& p, QAnyStringView localitate, QAnyStringView cuvantStrada,
                   QAnyStringView strada, QAnyStringView nr, QAnyStringView sc, QAnyStringView ap) {
    size_t n = 0;
    p[n++] = localitate;
    if (!strada.isEmpty()) {
        p[n++] = u", ";
        p[n++] = cuvantStrada;
        p[n++] = u" ";
        p[n++] = strada;
    }
    for (const auto& [eticheta, text] : {std::pair{u", nr. ", nr}, {u", sc. ", sc}, {u", ap. ", ap}})
        if (!text.isEmpty()) {
            p[n++] = eticheta;
            p[n++] = text;
        }
    return n;
}
} // namespace

QString AdresaRaport(const QString& localitate, const QString& cuvantStrada, const QString& strada, const QString& nr,
                     const QString& sc, const QString& ap) {
    std::array<QAnyStringView, 14> p;
    const size_t n = PieseAdresa(p, localitate, cuvantStrada, strada, nr, sc, ap);
    QString a;
    for (size_t i = 0; i < n; ++i)
        a += p[i].toString();
    return a;
}

void ScrieAdresa(Grila& g, int rand, int col, QAnyStringView localitate, QAnyStringView cuvantStrada,
                 QAnyStringView strada, QAnyStringView nr, QAnyStringView sc, QAnyStringView ap) {
    std::array<QAnyStringView, 14> p;
    g.ScriePiese(rand, col, std::span(p.data(), PieseAdresa(p, localitate, cuvantStrada, strada, nr, sc, ap)));
}

Lista::Lista(Grila& g, const std::vector<ColoanaLista>& coloane, const PrimarieRaport& p, const QString& titlu,
             bool titluPropriu, int luna, int an)
    : g_(g), coloane_(int(coloane.size())), asSocial_(p.AsSocial) {
    g_.SeteazaColoane(coloane_ + 1);
    g_.SeteazaRanduri(PrimulRand);
    for (int c = 1; c <= coloane_; ++c) {
        const ColoanaLista& col = coloane[size_t(c - 1)];
        g_.SeteazaLatimeColoana(c, col.latime);
        g_.SeteazaAliniereColoana(c, col.aliniere);
        g_.Scrie(RandTitluri, c, col.titlu);
    }
    g_.Scrie(1, 1, QStringLiteral("ROMANIA"));
    g_.Scrie(2, 1, p.gasita ? QStringLiteral("Consiliul local ") + p.Localitate : QString());
    g_.Scrie(3, 1, p.Judet);
    g_.Scrie(4, 1, titluPropriu ? titlu : QStringLiteral("LISTA"));
    if (!titluPropriu) g_.Scrie(5, 1, titlu);
    g_.Scrie(6, 1, QStringLiteral("Luna %1 anul %2").arg(LuniAn().value(luna - 1)).arg(an));
    // The head's lines run over the first columns, which alone are too narrow for them.
    const int latime = std::min(4, coloane_);
    for (int r : {1, 2, 3}) {
        g_.Uneste({r, 1, r, latime});
        g_.Aliniaza({r, 1, r, latime}, {Orizontal::Stanga, Vertical::Centru});
    }
    g_.Uneste({6, 1, 6, coloane_});
    g_.Aliniaza({6, 1, 6, coloane_}, {Orizontal::Centru, Vertical::Centru});
    const Font titluri{QString(), 0, true, {}, {}};
    for (int r : {4, 5}) {
        g_.Uneste({r, 1, r, coloane_});
        g_.Aliniaza({r, 1, r, coloane_}, {Orizontal::Centru, Vertical::Centru});
        g_.SeteazaFont({r, 1, r, coloane_}, titluri);
    }
    g_.SeteazaInaltimeRand(RandTitluri, 36);
    g_.Incadreaza({RandTitluri, 1, RandTitluri, coloane_}, true);
    g_.SeteazaFont({RandTitluri, 1, RandTitluri, coloane_}, titluri);
    g_.Aliniaza({RandTitluri, 1, RandTitluri, coloane_}, {Orizontal::Centru, Vertical::Centru});
    g_.Bordura({RandTitluri, 1, RandTitluri, coloane_}, Margine::Jos, Linie::Subtire);
}

int Lista::RandNou() {
    const int r = g_.Randuri();
    g_.SeteazaRanduri(r + 1);
    g_.Bordura({r, 1, r, coloane_}, Margine::Jos, Linie::Subtire);
    ++randuri_;
    return r;
}

int Lista::Rand(const QStringList& texte, const std::vector<QVariant>& valori, bool cuLinie) {
    int r = g_.Randuri();
    if (cuLinie)
        RandNou();
    else
        g_.SeteazaRanduri(r + 1);
    for (int c = 1; c <= coloane_ && c <= texte.size(); ++c) {
        const QVariant v = size_t(c - 1) < valori.size() ? valori[size_t(c - 1)] : QVariant();
        if (v.isValid())
            g_.Scrie(r, c, texte[c - 1], v);
        else
            g_.Scrie(r, c, texte[c - 1]);
    }
    return r;
}

void Lista::LinieGroasa() {
    const int ultim = g_.Randuri() - 1;
    if (randuri_ > 0) g_.Bordura({ultim, 1, ultim, coloane_}, Margine::Jos, Linie::Groasa);
}

void Lista::Incheie() {
    LinieGroasa();
    Subsol();
}

void Lista::Subsol() {
    const int r = g_.Randuri();
    g_.SeteazaRanduri(r + 3);
    g_.Scrie(r + 1, std::min(4, coloane_), QStringLiteral("As Social,"));
    g_.Scrie(r + 2, std::min(4, coloane_), asSocial_);
}

} // namespace Raport
