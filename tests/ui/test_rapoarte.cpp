#include "reports/Desen.h"
#include "reports/Grila.h"
#include "support/Texte.h"

#include <QFile>
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

} // namespace
