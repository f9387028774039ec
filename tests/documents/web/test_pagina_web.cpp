#include "documents/web/PunteWebTest.h"
#include "support/BazaTest.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

// The delivered page, loaded by a headless Chromium with the data file the program wrote.
// With FEROLANTA_CAPTURI set to a folder, a screenshot of each form is kept there.

namespace {

QString Chromium() {
    for (const char* nume : {"chromium", "chromium-browser", "google-chrome"}) {
        const QString cale = QStandardPaths::findExecutable(QString::fromLatin1(nume));
        if (!cale.isEmpty()) return cale;
    }
    return {};
}

// What the page shows as text: tags out, the escapes of the serializer undone.
QString TextVizibil(QString dom) {
    dom.remove(QRegularExpression(QStringLiteral("<script[^>]*>.*?</script>"),
                                  QRegularExpression::DotMatchesEverythingOption));
    dom.remove(QRegularExpression(QStringLiteral("<[^>]*>")));
    dom.replace(QLatin1String("&lt;"), QLatin1String("<"));
    dom.replace(QLatin1String("&gt;"), QLatin1String(">"));
    dom.replace(QLatin1String("&nbsp;"), QStringLiteral("\u00A0"));
    dom.replace(QLatin1String("&amp;"), QLatin1String("&"));
    return dom;
}

// How a text node holding `s` is written by the serializer.
QString CaInDom(QString s) {
    s.replace(u'&', QLatin1String("&amp;"));
    s.replace(u'<', QLatin1String("&lt;"));
    s.replace(u'>', QLatin1String("&gt;"));
    s.replace(QChar(0x00A0), QLatin1String("&nbsp;"));
    return s;
}

// The page writes the comma-below letters whatever form the code page carried.
QString CuVirgula(QString s) {
    s.replace(QChar(0x015F), QChar(0x0219));
    s.replace(QChar(0x015E), QChar(0x0218));
    s.replace(QChar(0x0163), QChar(0x021B));
    s.replace(QChar(0x0162), QChar(0x021A));
    return s;
}

class PaginaWeb : public TestBaza {
protected:
    void SetUp() override {
        chromium = Chromium();
        if (chromium.isEmpty())
            GTEST_SKIP() << "chromium nu este instalat (pachetele Debian chromium, chromium-driver)";
        TestBaza::SetUp();
        if (IsSkipped()) return;
        ASSERT_TRUE(profil.isValid());
        BazaNoua();
        ScrieDosarWeb(Bd());
    }

    QStringList Argumente() const {
        return {QStringLiteral("--headless"),
                QStringLiteral("--no-sandbox"),
                QStringLiteral("--disable-gpu"),
                QStringLiteral("--no-first-run"),
                QStringLiteral("--disable-dev-shm-usage"),
                QStringLiteral("--user-data-dir=") + profil.path()};
    }

    // The page of `document` for request `id`, as its DOM after the scripts ran.
    QString Dom(qint64 id, const QString& document) {
        const auto p = PunteWeb::StartCerereWeb(Bd(), program.mediu, id, document, false, m);
        EXPECT_TRUE(p.has_value());
        if (!p) return {};
        QProcess proces;
        proces.start(chromium, Argumente() << QStringLiteral("--dump-dom") << p->adresa.toString(QUrl::FullyEncoded));
        EXPECT_TRUE(proces.waitForFinished(120000)) << "chromium nu a terminat";
        const QString dom = QString::fromUtf8(proces.readAllStandardOutput());
        EXPECT_TRUE(dom.contains(QStringLiteral("</html>"))) << proces.readAllStandardError().toStdString();

        const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
        if (!capturi.isEmpty()) {
            QDir().mkpath(capturi);
            const QString png =
                QDir(capturi).filePath(QStringLiteral("%1_%2_%3.png")
                                           .arg(document)
                                           .arg(id)
                                           .arg(NumeMotor(::testing::TestParamInfo<Motor>(GetParam(), 0))));
            QProcess captura;
            captura.start(chromium, Argumente() << QStringLiteral("--hide-scrollbars")
                                                << QStringLiteral("--window-size=900,3600")
                                                << QStringLiteral("--screenshot=") + png
                                                << p->adresa.toString(QUrl::FullyEncoded));
            captura.waitForFinished(120000);
        }
        return dom;
    }

    QString chromium;
    QTemporaryDir profil;
    FolderProgram program;
    MesajeCuTitlu m;
};

TEST_P(PaginaWeb, FiecareFormularArataTitularulSiCnpul) {
    const QString nume = CuVirgula(NumeTitular() + u' ' + PrenumeTitular());
    for (const QString& document : {PunteWeb::DocCerere, PunteWeb::DocCerere1a, PunteWeb::DocAncheta}) {
        const QString dom = Dom(7, document);
        const QString text = TextVizibil(dom);
        EXPECT_TRUE(dom.contains(QStringLiteral("data-document=\"%1\"").arg(document))) << document.toStdString();
        EXPECT_TRUE(text.contains(nume)) << document.toStdString() << "\n" << text.left(3000).toStdString();
        EXPECT_TRUE(text.contains(QString::fromLatin1(CnpTitular))) << document.toStdString();
        // A name holding a tag stays text.
        EXPECT_FALSE(dom.contains(QStringLiteral("<b>"))) << document.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("nu au fost găsite"))) << document.toStdString();
    }
    EXPECT_TRUE(m.mesaje.empty());
}

TEST_P(PaginaWeb, ValorileAjungNeatinseInPagina) {
    const QString cerere = TextVizibil(Dom(7, PunteWeb::DocCerere));
    EXPECT_TRUE(cerere.contains(QStringLiteral("PRIMĂRIA COMUNEI BRĂNEȘTI"))) << cerere.left(600).toStdString();
    EXPECT_TRUE(cerere.contains(QStringLiteral("RO49AAAA1B31007593840000")));
    EXPECT_TRUE(cerere.contains(QStringLiteral("1.200,50")));
    EXPECT_TRUE(cerere.contains(QStringLiteral("Școala Gimnazială nr. 1")));
    EXPECT_TRUE(cerere.contains(QStringLiteral("01.07.2012")));

    const QString modificare = TextVizibil(Dom(7, PunteWeb::DocCerere1a));
    EXPECT_TRUE(modificare.contains(QStringLiteral("Încredințare"))) << "the leaver's reason";
    EXPECT_TRUE(modificare.contains(QStringLiteral("10.01.2016"))) << "the newest granting disposition";

    // Every character of the code page, a line break and both forms of ș ț.
    const QString ancheta = Dom(7, PunteWeb::DocAncheta);
    EXPECT_TRUE(ancheta.contains(CaInDom(CuVirgula(AspecteAncheta()))));
    EXPECT_TRUE(TextVizibil(ancheta).contains(QStringLiteral("Elena Dumitru")));
}

TEST_P(PaginaWeb, CheiaZeroDaFormulareGoale) {
    for (const QString& document : {PunteWeb::DocCerere, PunteWeb::DocCerere1a, PunteWeb::DocAncheta}) {
        const QString dom = Dom(0, document);
        const QString text = TextVizibil(dom);
        EXPECT_TRUE(dom.contains(QStringLiteral("data-document=\"%1\"").arg(document))) << document.toStdString();
        EXPECT_TRUE(text.contains(QStringLiteral("Formular necompletat"))) << document.toStdString();
        EXPECT_FALSE(text.contains(QStringLiteral("Popescu"))) << document.toStdString();
        EXPECT_FALSE(text.contains(QString::fromLatin1(CnpTitular))) << document.toStdString();
        // The thirteen boxes of the CNP are there, all empty.
        EXPECT_TRUE(dom.contains(QStringLiteral("<span class=\"cnp\">") + QStringLiteral("<span></span>").repeated(13)))
            << document.toStdString();
    }
    const QString cerere = TextVizibil(Dom(0, PunteWeb::DocCerere));
    EXPECT_TRUE(cerere.contains(QStringLiteral("CERERE-DECLARAȚIE PE PROPRIA RĂSPUNDERE")));
    EXPECT_TRUE(cerere.contains(QStringLiteral("Depozite bancare cu o valoare totală de peste 3.000 lei")));
}

PE_AMBELE_MOTOARE(PaginaWeb);

} // namespace
