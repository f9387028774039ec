#include "reports/Desen.h"

#include "base/Eroare.h"
#include "reports/Grila.h"
#include "reports/export/Fisier.h"

#include <QBuffer>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace Raport {

namespace {
constexpr double PxPeInch = 96.0;
constexpr int Spatiu = 2; // between a cell's edge and its text, in grid pixels
} // namespace

QPageLayout AsezarePagina(const Pagina& p) {
    const QPageSize::PageSizeId id = p.hartie == Hartie::A3   ? QPageSize::A3
                                     : p.hartie == Hartie::A4 ? QPageSize::A4
                                                              : QPageSize::A5;
    return QPageLayout(QPageSize(id), p.portret ? QPageLayout::Portrait : QPageLayout::Landscape,
                       QMarginsF(p.margini[0] * 10, p.margini[1] * 10, p.margini[2] * 10, p.margini[3] * 10),
                       QPageLayout::Millimeter);
}

int AliniereQt(const Aliniere& a) {
    return int((a.orizontal == Orizontal::Stanga   ? Qt::AlignLeft
                : a.orizontal == Orizontal::Centru ? Qt::AlignHCenter
                                                   : Qt::AlignRight) |
               (a.vertical == Vertical::Sus      ? Qt::AlignTop
                : a.vertical == Vertical::Centru ? Qt::AlignVCenter
                                                 : Qt::AlignBottom));
}

QFont FontQt(const Font& f) {
    QFont q(f.nume);
    q.setPointSizeF(std::max(f.marime, 1.0));
    q.setBold(f.Bold());
    q.setItalic(f.Italic());
    q.setUnderline(f.Subliniat());
    return q;
}

void DeseneazaLinii(QPainter& p, const Celula& c, const QRectF& z) {
    const QLineF laturi[] = {{z.topLeft(), z.bottomLeft()},  {z.topRight(), z.bottomRight()},
                             {z.topLeft(), z.topRight()},    {z.bottomLeft(), z.bottomRight()},
                             {z.bottomLeft(), z.topRight()}, {z.topLeft(), z.bottomRight()}};
    p.save();
    for (size_t i = 0; i < c.linii.size(); ++i)
        if (c.linii[i] != Linie::Nimic) {
            p.setPen(QPen(Qt::black, c.linii[i] == Linie::Groasa ? 2.0 : 1.0));
            p.drawLine(laturi[i]);
        }
    p.restore();
}

double Micsorare(const Grila& g, double latimeUtila) {
    double latime = 0;
    for (int c = 1; c < g.Coloane(); ++c)
        latime += g.LatimeColoana(c);
    return latime > latimeUtila && latime > 0 ? latimeUtila / latime : 1.0;
}

std::vector<std::pair<int, int>> Pagini(const Grila& g, double inaltimeUtila) {
    std::vector<std::pair<int, int>> pagini;
    double ocupat = 0;
    for (int r = 1; r < g.Randuri(); ++r) {
        const double h = g.InaltimeRand(r);
        if (pagini.empty() || ocupat + h > inaltimeUtila) {
            pagini.push_back({r, r});
            ocupat = h;
        } else {
            pagini.back().second = r;
            ocupat += h;
        }
    }
    return pagini;
}

void DeseneazaPagina(QPainter& p, const Grila& g, int primul, int ultimul, double scara) {
    p.save();
    p.scale(scara, scara);
    std::vector<double> x(size_t(g.Coloane()) + 1, 0), y;
    for (int c = 1; c < g.Coloane(); ++c)
        x[size_t(c) + 1] = x[size_t(c)] + g.LatimeColoana(c);
    y.push_back(0);
    for (int r = primul; r <= ultimul; ++r)
        y.push_back(y.back() + g.InaltimeRand(r));
    const auto sus = [&](int r) { return y[size_t(r - primul)]; };

    for (int r = primul; r <= ultimul; ++r)
        for (int c = 1; c < g.Coloane(); ++c) {
            const std::optional<Dreptunghi> u = g.UnireLa(r, c);
            // A merge is drawn once, from its first cell, down to the page's last row.
            if (u && (u->rand1 != r || u->col1 != c) && !(u->rand1 < primul && r == primul && c == u->col1)) continue;
            const int r2 = u ? std::min(u->rand2, ultimul) : r;
            const int c2 = u ? u->col2 : c;
            const QRectF zona(x[size_t(c)], sus(r), x[size_t(c2) + 1] - x[size_t(c)],
                              sus(r2) + g.InaltimeRand(r2) - sus(r));
            const int rc = u ? u->rand1 : r, cc = u ? u->col1 : c;
            const Celula& celula = g.La(rc, cc);
            if (!celula.text.isEmpty()) {
                // The painter is scaled to the grid's pixels, which a font in points must not take twice.
                QFont font = FontQt(g.FontCelula(rc, cc));
                font.setPointSizeF(font.pointSizeF() / scara);
                p.setFont(font);
                int fanioane = AliniereQt(g.AliniereCelula(rc, cc));
                if (celula.incadrare) fanioane |= Qt::TextWordWrap;
                QRectF loc = zona;
                // A line too long for its cell runs on over the empty cells beside it, as a spreadsheet
                // shows it, towards where its alignment leaves room; a total is never cut.
                if (!celula.incadrare && !u) {
                    const double lipsa = p.fontMetrics().horizontalAdvance(celula.text) + 2 * Spatiu - zona.width();
                    const Orizontal o = g.AliniereCelula(rc, cc).orizontal;
                    const auto gol = [&](int col) {
                        return col >= 1 && col < g.Coloane() && g.Text(r, col).isEmpty() && !g.UnireLa(r, col);
                    };
                    for (int st = c - 1, dr = c + 1; lipsa > 0 && loc.width() - zona.width() < lipsa;) {
                        const bool spreStanga = o != Orizontal::Stanga && gol(st);
                        const bool spreDreapta = o != Orizontal::Dreapta && gol(dr);
                        if (!spreStanga && !spreDreapta) break;
                        if (spreStanga) loc.setLeft(x[size_t(st--)]);
                        if (spreDreapta) loc.setRight(x[size_t(dr++) + 1]);
                    }
                }
                p.drawText(loc.adjusted(Spatiu, Spatiu, -Spatiu, -Spatiu), fanioane, celula.text);
            }
        }

    for (int r = primul; r <= ultimul; ++r)
        for (int c = 1; c < g.Coloane(); ++c)
            DeseneazaLinii(p, g.La(r, c), QRectF(x[size_t(c)], sus(r), g.LatimeColoana(c), g.InaltimeRand(r)));
    p.restore();
}

int Deseneaza(QPagedPaintDevice& d, const Grila& g, std::optional<int> doar) {
    d.setPageLayout(AsezarePagina(g.pagina));
    QPainter p;
    if (!p.begin(&d)) throw Eroare(QStringLiteral("Pagina nu poate fi desenata."));
    const double scara = d.logicalDpiY() / PxPeInch * Micsorare(g, d.width() / (d.logicalDpiX() / PxPeInch));
    const auto pagini = Pagini(g, d.height() / scara);
    bool prima = true;
    for (size_t i = 0; i < pagini.size(); ++i) {
        if (doar && *doar != int(i) + 1) continue;
        if (!prima) d.newPage();
        prima = false;
        DeseneazaPagina(p, g, pagini[i].first, pagini[i].second, scara);
    }
    p.end();
    return int(pagini.size());
}

int NumarPagini(const Grila& g) {
    const QRectF util = AsezarePagina(g.pagina).paintRect(QPageLayout::Inch);
    return int(Pagini(g, util.height() * PxPeInch / Micsorare(g, util.width() * PxPeInch)).size());
}

void ScriePdf(const Grila& g, const QString& fisier) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    {
        QPdfWriter pdf(&buffer);
        pdf.setResolution(300);
        pdf.setCreator(QStringLiteral("Ferolanta"));
        Deseneaza(pdf, g);
    }
    ScrieIntreg(fisier, buffer.data());
}

} // namespace Raport
