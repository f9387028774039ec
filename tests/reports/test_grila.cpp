#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Urmarire.h"
#include "reports/Desen.h"
#include "reports/Grila.h"
#include "reports/export/Cel.h"
#include "reports/export/Csv.h"
#include "reports/export/Ods.h"
#include "reports/export/SablonOds.h"
#include "reports/export/Xlsx.h"
#include "support/Ods.h"
#include "support/Texte.h"

#include <QDate>
#include <QDomDocument>
#include <QFile>
#include <QLocale>
#include <QTemporaryDir>
#include <QXmlStreamReader>
#include <gtest/gtest.h>
#include <set>
#include <tuple>
#include <zip.h>

using namespace Raport;

namespace {

// The sides that carry a line, as (row, column, side) with the sides left 0, right 1, top 2, bottom
// 3 and the diagonals 4, 5.
std::set<std::tuple<int, int, int>> Linii(const Grila& g) {
    std::set<std::tuple<int, int, int>> r;
    for (int rand = 0; rand < g.Randuri(); ++rand)
        for (int col = 0; col < g.Coloane(); ++col)
            for (int latura = 0; latura < 6; ++latura)
                if (g.La(rand, col).linii[size_t(latura)] != Linie::Nimic) r.insert({rand, col, latura});
    return r;
}

// Each edge code of the templates on the rectangle of rows 1-2 and columns 1-3 (upside down, as a
// template may give it) draws on those sides only.
TEST(Grila, MarginileDupaCodLaLaturileLor) {
    using L = std::set<std::tuple<int, int, int>>;
    const std::pair<Margine, L> cazuri[] = {
        {Margine::Stanga, {{1, 1, 0}, {2, 1, 0}}},
        {Margine::Dreapta, {{1, 3, 1}, {2, 3, 1}}},
        {Margine::Sus, {{1, 1, 2}, {1, 2, 2}, {1, 3, 2}}},
        {Margine::Jos, {{2, 1, 3}, {2, 2, 3}, {2, 3, 3}}},
        {Margine::InteriorVertical, {{1, 1, 1}, {1, 2, 1}, {2, 1, 1}, {2, 2, 1}}},
        {Margine::InteriorOrizontal, {{1, 1, 3}, {1, 2, 3}, {1, 3, 3}}},
        {Margine::DiagonalaSus, {{1, 1, 4}, {1, 2, 4}, {1, 3, 4}, {2, 1, 4}, {2, 2, 4}, {2, 3, 4}}},
        {Margine::DiagonalaJos, {{1, 1, 5}, {1, 2, 5}, {1, 3, 5}, {2, 1, 5}, {2, 2, 5}, {2, 3, 5}}},
    };
    for (const auto& [margine, asteptate] : cazuri) {
        Grila g(5, 5);
        g.Bordura({2, 3, 1, 1}, margine, Linie::Groasa);
        EXPECT_EQ(Linii(g), asteptate) << int(margine);
        g.Bordura({1, 1, 2, 3}, margine, Linie::Nimic);
        EXPECT_TRUE(Linii(g).empty()) << int(margine);
    }
    Grila g(3, 3);
    EXPECT_THROW(g.Bordura({1, 1, 3, 1}, Margine::Sus, Linie::Subtire), Eroare);
}

// A merge laid over others replaces them, a single cell is no merge; clearing and shrinking drop
// what they cover; a tab-separated row fills from the fixed column.
TEST(Grila, UniriRanduriSiGolire) {
    Grila g(4, 4);
    g.Uneste({1, 1, 1, 3});
    g.Uneste({2, 2, 3, 3});
    g.Uneste({1, 3, 2, 3}); // over both
    EXPECT_EQ(g.Uniri(), (std::vector<Dreptunghi>{{1, 3, 2, 3}}));
    EXPECT_EQ(g.UnireLa(2, 3), (Dreptunghi{1, 3, 2, 3}));
    EXPECT_FALSE(g.UnireLa(1, 1));
    g.Uneste({3, 1, 3, 1});
    EXPECT_EQ(g.Uniri().size(), 1u);

    g.AdaugaRand(T("\tA\tB\tC\tD"));
    ASSERT_EQ(g.Randuri(), 5);
    EXPECT_EQ(QStringList({g.Text(4, 0), g.Text(4, 1), g.Text(4, 2), g.Text(4, 3)}), QStringList({"", "A", "B", "C"}));

    g.Scrie(2, 1, T("x"), QVariant::fromValue(B("12.5")));
    g.Incadreaza({2, 1, 2, 1}, true);
    g.Goleste({2, 1, 2, 3});
    EXPECT_EQ(g.La(2, 1), Celula{});
    EXPECT_TRUE(g.Uniri().empty());

    g.Uneste({3, 2, 4, 3});
    g.SeteazaRanduri(4);
    EXPECT_TRUE(g.Uniri().empty());
    EXPECT_THROW(g.La(4, 0), Eroare);
    EXPECT_THROW(Grila(0, 3), Eroare);
}

// A large grid keeps every cell through growth, a change of width and a shrink: rows given up come
// back empty, and cells that look alike share their look without changing each other's.
TEST(Grila, CrestereSiMicsorare) {
    Grila g(2, 3);
    const int n = 20000;
    for (int r = 1; r < n; ++r) {
        g.SeteazaRanduri(r + 1);
        // Half the rows by each way of writing: both must read back alike.
        if (r % 2)
            g.Scrie(r, 1, QString::number(r), qint64(r));
        else
            g.ScrieIntreg(r, 1, r);
        g.Scrie(r, 2, QString(r % 7, u'x'));
        g.Bordura({r, 1, r, 2}, Margine::Jos, r % 2 ? Linie::Subtire : Linie::Groasa);
    }
    g.SeteazaColoane(5);
    g.Scrie(n - 1, 4, T("ultima"));
    for (int r : {1, 8191, 8192, 16383, 16384, n - 1}) {
        EXPECT_EQ(g.Text(r, 1), QString::number(r)) << r;
        EXPECT_EQ(g.La(r, 1).valoare, QVariant(qint64(r))) << r;
        EXPECT_EQ(g.Text(r, 2), QString(r % 7, u'x')) << r;
        EXPECT_EQ(g.La(r, 2).linii[3], r % 2 ? Linie::Subtire : Linie::Groasa) << r;
        EXPECT_TRUE(g.EsteGoala(r, 3)) << r;
    }
    EXPECT_EQ(g.Text(n - 1, 4), T("ultima"));
    const Grila copie = g;
    EXPECT_EQ(copie, g);
    g.SeteazaRanduri(9000);
    g.SeteazaRanduri(n);
    EXPECT_TRUE(g.EsteGoala(16384, 1));
    EXPECT_TRUE(g.EsteGoala(n - 1, 4));
    EXPECT_EQ(g.Text(8999, 1), T("8999"));
    EXPECT_FALSE(copie == g);
}

TEST(Grila, TextDinBucatiInOriceCodare) {
    Grila g(4, 3);
    const QByteArray utf8 = QStringLiteral("Ștefan Țăruș").toUtf8();
    const QString lung(5 << 19, u'a'); // longer than a block of text
    struct Caz {
        std::vector<QAnyStringView> bucati;
        QString asteptat;
    };
    const std::vector<Caz> cazuri{
        {{QUtf8StringView(utf8), u", ", QLatin1StringView("nr. 12A")}, T("Ștefan Țăruș, nr. 12A")},
        {{QUtf8StringView("Ion"), u" ", QUtf8StringView("\xc8\x98" "erban")}, T("Ion Șerban")},
        {{QLatin1StringView("caf\xe9"), QStringView(lung)}, T("café") + lung},
        {{QUtf8StringView(""), QStringView()}, QString()},
    };
    for (const Caz& c : cazuri) {
        g.ScriePiese(1, 1, std::span(c.bucati.data(), c.bucati.size()));
        EXPECT_EQ(g.Text(1, 1), c.asteptat) << c.asteptat.left(30).toStdString();
        // Texts written after a long one land whole.
        g.ScriePiese(2, 1, {u"dupa"});
        EXPECT_EQ(g.Text(2, 1), T("dupa"));
    }
    EXPECT_TRUE(g.EsteGoala(1, 1));

    g.ScrieIntreg(1, 2, -1234567890123);
    EXPECT_EQ(g.Text(1, 2), T("-1234567890123"));
    EXPECT_EQ(g.Fel(1, 2), FelValoare::Intreg);
    // A cell shown again takes the text and the value, and keeps its own look.
    g.Bordura({3, 2, 3, 2}, Margine::Jos, Linie::Groasa);
    g.CopiazaContinut(3, 2, 1, 2);
    EXPECT_EQ(g.La(3, 2).text, T("-1234567890123"));
    EXPECT_EQ(g.La(3, 2).valoare, QVariant(qint64(-1234567890123)));
    EXPECT_EQ(g.La(3, 2).linii[3], Linie::Groasa);
}

Grila GrilaBogata() {
    Grila g(5, 4);
    g.inaltimeImplicita = 30;
    g.fontImplicit = {T("Arial"), 9, true, false, false};
    g.pagina = {Hartie::A3, false, {1.4, 0.5, 0.5, 1.0}};
    g.Scrie(1, 1, T("LISTA; \"copii\"\nluna Noiembrie"));
    g.Uneste({1, 1, 1, 3});
    g.Scrie(2, 1, T("Ștefan"));
    g.Scrie(2, 2, T("12.5"), QVariant::fromValue(B("12.5")));
    g.Scrie(2, 3, T("01.11.2026"), QDate(2026, 11, 1));
    g.Scrie(3, 1, T("7"), qint64(7));
    g.Aliniaza({2, 2, 3, 3}, {Orizontal::Dreapta, Vertical::Jos});
    g.SeteazaFont({1, 1, 1, 1}, {T("Times New Roman"), 14, true, true, {}});
    g.Incadreaza({2, 1, 2, 1}, true);
    g.Bordura({2, 1, 3, 3}, Margine::Jos, Linie::Groasa);
    g.SeteazaInaltimeRand(1, 36);
    g.SeteazaLatimeColoana(2, 120);
    g.SeteazaAliniereColoana(3, {Orizontal::Centru, Vertical::Sus});
    return g;
}

// The csv of the agency's tools: content rows and columns only, a merge's text once, RFC 4180 quotes.
TEST(Grila, CsvDoarContinutulCuGhilimele) {
    EXPECT_EQ(Csv(GrilaBogata()), QByteArray("\"LISTA; \"\"copii\"\"\nluna Noiembrie\";;\r\n"
                                             "\xC8\x98tefan;12.5;01.11.2026\r\n"
                                             "7;;\r\n"
                                             ";;\r\n"));
}

// A grid saved and loaded again is the same grid, typed values included; a foreign file is refused.
TEST(Grila, FisierulCelPastreazaTotul) {
    const Grila g = GrilaBogata();
    EXPECT_EQ(GrilaDinCel(Cel(g)), g);
    QTemporaryDir dir;
    const QString fisier = dir.filePath(T("Lista copii.cel"));
    SalveazaCel(g, fisier);
    EXPECT_EQ(IncarcaCel(fisier), g);
    EXPECT_THROW(GrilaDinCel("{\"format\": \"altceva\"}"), Eroare);
    EXPECT_THROW(GrilaDinCel("nu e json"), Eroare);
    EXPECT_THROW(IncarcaCel(dir.filePath(T("lipsa.cel"))), Eroare);
}

// The spreadsheet holds the content with the sheet's own types: amounts and whole numbers as numbers,
// dates as day numbers, the merge, the paper and the orientation; texts written in the sheet itself.
TEST(Grila, XlsxCuNumereDateSiUniri) {
    QTemporaryDir dir;
    const QString fisier = dir.filePath(T("Lista copii.xlsx"));
    ScrieXlsx(GrilaBogata(), fisier);
    const QString foaie = DinArhiva(fisier, "xl/worksheets/sheet1.xml");
    ASSERT_FALSE(foaie.isEmpty());
    const int ziua = int(QDate(1899, 12, 30).daysTo(QDate(2026, 11, 1)));
    for (const QString& parte :
         {T("<mergeCell ref=\"A1:C1\"/>"), T("<v>12.5</v>"), QStringLiteral("<v>%1</v>").arg(ziua), T("r=\"A3\""),
          T("<v>7</v>"), T("paperSize=\"8\""), T("orientation=\"landscape\"")})
        EXPECT_TRUE(foaie.contains(parte)) << S(parte);
    EXPECT_TRUE(foaie.contains(T("<is><t>Ștefan</t></is>")));
    EXPECT_TRUE(DinArhiva(fisier, "xl/styles.xml").contains(T("formatCode=\"0.00\"")));

    EXPECT_THROW(ScrieXlsx(GrilaBogata(), dir.filePath(T("lipsa/foaie.xlsx"))), Eroare);
    EXPECT_FALSE(QFile::exists(dir.filePath(T("lipsa/foaie.xlsx"))));

    // A row more than a sheet holds is refused before anything is written.
    const QString mare = dir.filePath(T("mare.xlsx"));
    EXPECT_NO_THROW(ScrieXlsx(Grila(1048576 + 1, 2), mare));
    EXPECT_THROW(ScrieXlsx(Grila(1048576 + 2, 2), mare), Eroare);
    EXPECT_TRUE(QFile::exists(mare)) << "the earlier file stays as it was";
}

// A file being written tells its watcher how far it has come, every `pas` rows, of how many; the
// watcher stops it, the file then absent; nobody hears of the work once the watcher is gone.
TEST(Grila, ScriereaUrmaritaSiOprita) {
    using Auzit = std::pair<qint64, qint64>;
    std::vector<Auzit> auzite;
    QTemporaryDir dir;
    const QString fisier = dir.filePath(T("oprit.xlsx"));
    const Grila g(25, 3);
    bool opreste = false;
    {
        const Urmarire u(
            [&](qint64 facute, qint64 total) {
                auzite.push_back({facute, total});
                return !opreste;
            },
            10);
        Csv(g);
        EXPECT_EQ(auzite, (std::vector<Auzit>{{0, 24}, {10, 24}, {20, 24}}));
        opreste = true;
        EXPECT_THROW(ScrieXlsx(g, fisier), Oprit);
        EXPECT_FALSE(QFile::exists(fisier));
    }
    auzite.clear();
    ScrieXlsx(g, fisier);
    EXPECT_TRUE(auzite.empty());
    EXPECT_TRUE(QFile::exists(fisier));

    // The window adds up the rows of a report's queries, each counting from one; a file's rows fill a
    // bar in thousands; its closing step has no end to show.
    AfisareUrmarire afisare;
    afisare.Auzit(30000, 0);
    const auto citite = afisare.Auzit(20000, 0);
    EXPECT_TRUE(citite.text.contains(QLocale().toString(50000)));
    EXPECT_EQ(citite.maxim, 0);
    const auto scrise = afisare.Auzit(500000, 1000000);
    EXPECT_EQ(std::pair(scrise.maxim, scrise.valoare), std::pair(1001, 500));
    EXPECT_EQ(afisare.Auzit(1000000, 1000000).maxim, 0);
}

bool BineFormat(const QString& xml) {
    QXmlStreamReader r(xml);
    while (!r.atEnd())
        r.readNext();
    return !r.hasError() && !xml.isEmpty();
}

// The OpenDocument file: its media type stored first, well-formed parts, merges spanned and covered,
// typed values, the page.
TEST(Grila, OdsCuTipuriUniriSiPagina) {
    QTemporaryDir dir;
    const QString fisier = dir.filePath(T("Lista copii.ods"));
    ScrieOds(GrilaBogata(), fisier);
    int cod = 0;
    zip_t* z = zip_open(QFile::encodeName(fisier).constData(), ZIP_RDONLY, &cod);
    ASSERT_TRUE(z);
    zip_stat_t st;
    ASSERT_EQ(zip_stat_index(z, 0, 0, &st), 0);
    EXPECT_STREQ(st.name, "mimetype");
    EXPECT_EQ(st.comp_method, ZIP_CM_STORE);
    zip_close(z);
    EXPECT_EQ(DinArhiva(fisier, "mimetype"), T("application/vnd.oasis.opendocument.spreadsheet"));

    const QString continut = DinArhiva(fisier, "content.xml"), stiluri = DinArhiva(fisier, "styles.xml");
    EXPECT_TRUE(BineFormat(continut));
    EXPECT_TRUE(BineFormat(stiluri));
    EXPECT_TRUE(BineFormat(DinArhiva(fisier, "META-INF/manifest.xml")));
    for (const QString& parte :
         {T("table:number-columns-spanned=\"3\""), T("<table:covered-table-cell"), T("office:value=\"12.5000\""),
          T("office:date-value=\"2026-11-01\""), T("office:value=\"7\""), T("<text:p>Ștefan</text:p>"),
          T("<text:p>luna Noiembrie</text:p>")})
        EXPECT_TRUE(continut.contains(parte)) << S(parte);
    EXPECT_TRUE(stiluri.contains(T("style:print-orientation=\"landscape\"")));
    EXPECT_TRUE(stiluri.contains(T("fo:page-width=\"42.000cm\"")));
}

// Rows fill a page and the next row that does not fit starts another; a row taller than a page
// stands alone.
TEST(Grila, RandurileSeImpartPePagini) {
    using P = std::vector<std::pair<int, int>>;
    const struct {
        std::vector<int> inaltimi;
        double pagina;
        P asteptate;
    } cazuri[] = {
        {{36, 36, 36}, 80, {{1, 2}, {3, 3}}},
        {{36, 36, 36}, 108, {{1, 3}}},
        {{20, 200, 20}, 80, {{1, 1}, {2, 2}, {3, 3}}},
        {{}, 80, P{}},
    };
    for (const auto& [inaltimi, pagina, asteptate] : cazuri) {
        Grila g(int(inaltimi.size()) + 1, 2);
        for (size_t i = 0; i < inaltimi.size(); ++i)
            g.SeteazaInaltimeRand(int(i) + 1, inaltimi[i]);
        EXPECT_EQ(Pagini(g, pagina), asteptate) << pagina;
    }
}

} // namespace

// A delivered template keeps what it holds; the texts land in the cells asked for even inside
// repeated rows and cells or past the end; a removed column shifts the ones after it and narrows a
// merge over it.
TEST(Grila, SablonOdsCompletatSiColoaneSterse) {
    QTemporaryDir dir;
    const QString sablon = dir.filePath(T("ANEXA3.ods")), fisier = dir.filePath(T("Asf_Anexa3_Noi.ods"));
    const QByteArray continut =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
        "<office:document-content xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
        "xmlns:table=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\" "
        "xmlns:text=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\" office:version=\"1.2\">"
        "<office:body><office:spreadsheet><table:table table:name=\"Foaie1\">"
        "<table:table-column table:number-columns-repeated=\"4\"/>"
        "<table:table-row><table:table-cell table:number-columns-spanned=\"3\" office:value-type=\"string\">"
        "<text:p>BORDEROU</text:p></table:table-cell><table:covered-table-cell table:number-columns-repeated=\"2\"/>"
        "<table:table-cell office:value-type=\"string\"><text:p>Anexa</text:p></table:table-cell></table:table-row>"
        "<table:table-row table:number-rows-repeated=\"3\"><table:table-cell table:number-columns-repeated=\"4\"/>"
        "</table:table-row></table:table></office:spreadsheet></office:body></office:document-content>";
    int cod = 0;
    zip_t* z = zip_open(QFile::encodeName(sablon).constData(), ZIP_CREATE | ZIP_TRUNCATE, &cod);
    ASSERT_TRUE(z);
    const QByteArray tip("application/vnd.oasis.opendocument.spreadsheet");
    zip_file_add(z, "mimetype", zip_source_buffer(z, tip.constData(), zip_uint64_t(tip.size()), 0), 0);
    zip_file_add(z, "content.xml", zip_source_buffer(z, continut.constData(), zip_uint64_t(continut.size()), 0), 0);
    ASSERT_EQ(zip_close(z), 0);

    CompleteazaSablonOds(sablon, fisier, {{2, 1, T("Ștefan"), true}, {2, 3, T("X")}, {5, 0, T("ultimul")}}, {1});
    // Rows past the end are made to reach the one written.
    const std::vector<QStringList> asteptat{{T("BORDEROU"), T(""), T("Anexa")},
                                            {T(""), T(""), T("")},
                                            {T(""), T(""), T("X")},
                                            {T(""), T(""), T("")},
                                            {T("")},
                                            {T("ultimul")}};
    EXPECT_EQ(TextePrimaFoaie(fisier), asteptat);
    const QString xml = DinArhiva(fisier, "content.xml");
    EXPECT_TRUE(xml.contains(T("table:number-columns-spanned=\"2\""))) << "the merge lost the removed column";
    EXPECT_EQ(DinArhiva(fisier, "mimetype"), QString::fromLatin1(tip));
    EXPECT_TRUE(xml.contains(T("fo:border=\"0.5pt solid #000000\"")));
    EXPECT_THROW(CompleteazaSablonOds(dir.filePath(T("lipsa.ods")), dir.filePath(T("x.ods")), {}), Eroare);
    EXPECT_FALSE(QFile::exists(dir.filePath(T("x.ods"))));
}
