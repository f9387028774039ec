#include "reports/Desen.h"
#include "reports/Grila.h"
#include "reports/UiGrila.h"
#include "support/Texte.h"

#include <QFile>
#include <QFont>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

// The painter needs the fonts of a running application, which this binary has.
using namespace Raport;

namespace {

// A hundred rows of 36 pixels fill four A4 pages under the margins of the reports (29 to a page).
TEST(Grila, PdfulArePaginileGrilei) {
    Grila g(101, 4);
    for (int r = 1; r <= 100; ++r)
        g.Scrie(r, 1, QString::number(r));
    g.Bordura({1, 1, 100, 3}, Margine::Jos, Linie::Groasa);
    QTemporaryDir dir;
    const QString fisier = dir.filePath(T("Lista.pdf"));
    ScriePdf(g, fisier);
    QFile f(fisier);
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray pdf = f.readAll();
    EXPECT_TRUE(pdf.startsWith("%PDF"));
    EXPECT_EQ(QString::fromLatin1(pdf).count(QRegularExpression(T("/Type\\s*/Page[^s]"))), 4);
}

// The view shows the model: its content cells from the view's first, merges as spans, sizes, fonts.
TEST(Grila, VedereaArataModelul) {
    Grila g(4, 4);
    g.Scrie(1, 1, T("LISTA"));
    g.Uneste({1, 1, 1, 3});
    g.SeteazaFont({1, 1, 1, 1}, {T(""), 14, true, {}, {}});
    g.Scrie(2, 2, T("12.50"));
    g.Aliniaza({2, 2, 2, 2}, {Orizontal::Dreapta, Vertical::Jos});
    g.SeteazaLatimeColoana(2, 150);
    g.SeteazaInaltimeRand(1, 60);
    UiGrila v;
    v.Arata(g);
    v.resize(500, 300);
    v.show();
    EXPECT_EQ(v.model()->rowCount(), 3);
    EXPECT_EQ(v.model()->columnCount(), 3);
    EXPECT_EQ(v.columnSpan(0, 0), 3);
    EXPECT_EQ(v.columnWidth(1), 150);
    EXPECT_EQ(v.rowHeight(0), 60);
    EXPECT_EQ(v.rowHeight(1), g.inaltimeImplicita);
    EXPECT_EQ(v.model()->index(1, 1).data().toString(), T("12.50"));
    EXPECT_EQ(v.model()->index(1, 1).data(Qt::TextAlignmentRole).toInt(), int(Qt::AlignRight | Qt::AlignBottom));
    EXPECT_TRUE(v.model()->index(0, 0).data(Qt::FontRole).value<QFont>().bold());
    // Shown again with another grid, nothing of the first stays.
    v.Arata(Grila(3, 2));
    EXPECT_EQ(v.columnSpan(0, 0), 1);
    EXPECT_EQ(v.model()->columnCount(), 1);
}

} // namespace
