#include "documents/DateDocumenteTest.h"
#include "documents/Sablon.h"
#include "cli/CliTest.h"
#include "base/Ceas.h"
#include "support/BazaTest.h"

#include <QDir>

namespace {

class CliDocument : public TestCli {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        Ceas::SeteazaAzi(QDate(2025, 6, 2));
        ASSERT_EQ(Ruleaza(QStringList{QStringLiteral("init")}).cod, 0);
        auto db = BazaDate::Deschide(Locatie());
        ScriePrimarie(*db, PrimarieA());
        ScrieCerere(*db, CerereA());
        ScrieDispozitie(*db, DispozitieA());
        ASSERT_TRUE(iesiri.isValid());
        folderInitial = QDir::currentPath();
        QDir::setCurrent(iesiri.path());
    }
    void TearDown() override {
        if (!folderInitial.isEmpty()) QDir::setCurrent(folderInitial);
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }
    QString In(const char* nume) const { return iesiri.filePath(QString::fromLatin1(nume)); }

    QTemporaryDir iesiri;
    QString folderInitial;
};

TEST_P(CliDocument, ScrieCeleTreiDocumenteCuNumeleLorFixe) {
    const IesireCli d =
        Ruleaza(QStringList{QStringLiteral("document"), QStringLiteral("dispozitie"), QStringLiteral("3")});
    ASSERT_EQ(d.cod, 0) << d.err.toStdString();
    EXPECT_EQ(d.out, QStringLiteral("Documentul a fost scris: %1\n").arg(QDir::toNativeSeparators(In("Disp.rtf"))));
    const QByteArray disp = CitesteTot(In("Disp.rtf"));
    EXPECT_TRUE(disp.startsWith("{\\rtf1"));
    EXPECT_TRUE(disp.contains(TextRtf(T("privind acordarea alocației"))));
    EXPECT_TRUE(disp.contains("{\\b Popa Vasile}, CNP 1850312410015"));
    EXPECT_TRUE(disp.contains("{\\b 82 lei}"));

    const IesireCli f = Ruleaza(QStringList{QStringLiteral("document"), QStringLiteral("fisa"), QStringLiteral("7"),
                                            QStringLiteral("--data"), QStringLiteral("15.06.2025")});
    ASSERT_EQ(f.cod, 0) << f.err.toStdString();
    EXPECT_TRUE(CitesteTot(In("FisaCerere.rtf")).contains("15.06.2025"));

    const IesireCli c =
        Ruleaza(QStringList{QStringLiteral("document"), QStringLiteral("declaratie"), QStringLiteral("7"),
                            QStringLiteral("--out"), QStringLiteral("alt/../d.rtf")});
    ASSERT_EQ(c.cod, 0) << c.err.toStdString();
    EXPECT_FALSE(QFile::exists(In("Declar.rtf")));
    EXPECT_TRUE(CitesteTot(In("d.rtf")).contains("Ionescu Dan"));
}

TEST_P(CliDocument, SetarileFolderuluiBazeiSiSablonulDat) {
    QFile ini(QDir(Locatie().caleBD).filePath(QStringLiteral("setari207.ini")));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Generale]\r\nStrSat=sat\r\nMotiv=1\r\n");
    ini.close();
    QFile s(In("s.rtf"));
    ASSERT_TRUE(s.open(QIODevice::WriteOnly));
    s.write("{\\rtf1{\\pntxta )}}#Motiv#|#Adresa#}\r\n");
    s.close();
    const IesireCli r =
        Ruleaza(QStringList{QStringLiteral("document"), QStringLiteral("dispozitie"), QStringLiteral("3"),
                            QStringLiteral("--sablon"), In("s.rtf"), QStringLiteral("--out"), In("m.rtf")});
    ASSERT_EQ(r.cod, 0) << r.err.toStdString();
    EXPECT_EQ(CitesteTot(In("m.rtf")), "{\\rtf1{\\pntxta )}}Motiv din cerere|" +
                                           TextRtf(T("Brănești, sat Florilor, nr. 12, sc. B, ap. 4")) + "}");
}

TEST_P(CliDocument, EsecurileSpunDeCeSiNuScriuNimic) {
    QFile s(In("fara.rtf"));
    ASSERT_TRUE(s.open(QIODevice::WriteOnly));
    s.write("Dispozitie pentru #Nume#\r\n");
    s.close();
    const struct {
        QStringList argumente;
        QString eroare;
    } cazuri[] = {
        {{QStringLiteral("dispozitie"), QStringLiteral("3"), QStringLiteral("--sablon"), In("fara.rtf")},
         QStringLiteral("Fisierul sablon are format gresit. Sunati la tel: 0700-111222\n")},
        {{QStringLiteral("dispozitie"), QStringLiteral("8")},
         QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!\n")},
        {{QStringLiteral("fisa"), QStringLiteral("3")},
         QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!\n")},
    };
    for (const auto& c : cazuri) {
        const IesireCli r = Ruleaza(QStringList{QStringLiteral("document")} + c.argumente);
        EXPECT_EQ(r.cod, 1) << c.argumente.join(u' ').toStdString();
        EXPECT_EQ(r.err, c.eroare);
        EXPECT_EQ(r.out, QString());
    }
    {
        auto db = BazaDate::Deschide(Locatie());
        Interogare(*db, QStringLiteral("UPDATE Dispozitii SET Actiune = 0")).Executa();
    }
    const IesireCli r =
        Ruleaza(QStringList{QStringLiteral("document"), QStringLiteral("dispozitie"), QStringLiteral("3")});
    EXPECT_EQ(r.cod, 1);
    EXPECT_TRUE(r.err.startsWith(QStringLiteral("Dispozitia 3 are un tip (Actiune)"))) << r.err.toStdString();
    EXPECT_EQ(QDir(iesiri.path()).entryList(QDir::Files), QStringList{QStringLiteral("fara.rtf")});
}

PE_AMBELE_MOTOARE(CliDocument);

} // namespace
