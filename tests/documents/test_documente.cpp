#include "documents/DateDocumenteTest.h"
#include "documents/Documente.h"
#include "documents/InlocuireCerere.h"
#include "documents/InlocuireDispozitie.h"
#include "documents/Sablon.h"
#include "base/Ceas.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <QDir>
#include <QRegularExpression>
#include <functional>

namespace {

using Documente::Rezultat;

class DocumenteTest : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        Ceas::SeteazaAzi(QDate(2025, 6, 2));
        BazaNoua();
        o.FolderActe = QStringLiteral(FEROLANTA_SURSA "/Acte");
        o.StrSat = QStringLiteral("str.");
        iesire = QDir(Locatie().caleBD).filePath(QStringLiteral("Disp.rtf"));
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    void CazA() {
        ScriePrimarie(Bd(), PrimarieA());
        ScrieCerere(Bd(), CerereA());
        ScrieDispozitie(Bd(), DispozitieA());
    }

    // A template of one line around `corp`, written beside the database.
    QString Sablon(const QByteArray& corp, const char* nume = "sablon.rtf") {
        const QString cale = QDir(Locatie().caleBD).filePath(QString::fromLatin1(nume));
        QFile f(cale);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("{\\rtf1{\\pntxta )}}" + corp + "}\r\n");
        return cale;
    }
    // The merged body of a one-line template.
    QByteArray Corp() const {
        const QByteArray tot = CitesteTot(iesire);
        return tot.mid(18, tot.size() - 19);
    }

    OptiuniDocumente o;
    QString iesire;
};

TEST_P(DocumenteTest, DispozitieTitularBarbatCuUnCopil) {
    CazA();
    ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje, TestDate("dispozitie.rtf")), Rezultat::Scris)
        << mesaje.Texte().join(u'\n').toStdString();
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/dispozitie_barbat_un_copil.rtf")));
    EXPECT_TRUE(mesaje.mesaje.empty());
}

TEST_P(DocumenteTest, DispozitieTitularaCuCinciCopiiInOrasulCuNumeProprii) {
    ScriePrimarie(Bd(), PrimarieB());
    ScrieCerere(Bd(), CerereB());
    ScrieDispozitie(Bd(), DispozitieB());
    o.Motiv = true;
    o.StrSat = QStringLiteral("sat");
    ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 4, o, iesire, mesaje, TestDate("dispozitie.rtf")), Rezultat::Scris)
        << mesaje.Texte().join(u'\n').toStdString();
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/dispozitie_femeie_cinci_copii.rtf")));
}

TEST_P(DocumenteTest, BaremulTreptei04DupaTipCopiiSiDinData) {
    CazA();
    const QString s = Sablon("[#barem#]");
    const struct {
        int tip, copii;
        QDate dinData;
        const char* barem;
    } cazuri[] = {
        {1, 1, QDate(2013, 3, 1), "[0.06]"},      {1, 2, QDate(2013, 6, 30), "[0.12]"},
        {1, 2, QDate(2013, 7, 1), "[0.16]"},      {2, 3, QDate(2014, 10, 31), "[0.39]"},
        {2, 4, QDate(2014, 11, 1), "[0.856]"},    {1, 9, QDate(2020, 1, 1), "[0.656]"},
        {1, 1, QDate(2011, 12, 31), "[#barem#]"}, {3, 1, QDate(2015, 1, 1), "[#barem#]"},
    };
    for (const auto& c : cazuri) {
        ExecutaCu(Bd(), QStringLiteral("UPDATE Cereri SET TipCerere = ?, NrCopii = ? WHERE CerereID = 7"), c.tip,
                  c.copii);
        ExecutaCu(Bd(), QStringLiteral("UPDATE Dispozitii SET DinData = ? WHERE DispozitieID = 3"), c.dinData);
        ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje, s), Rezultat::Scris);
        EXPECT_EQ(Corp(), QByteArray(c.barem)) << c.tip << " " << c.copii << " " << c.dinData.toString().toStdString();
    }
}

TEST_P(DocumenteTest, ValoriNeprevazuteRamanInText) {
    CazA();
    Interogare(Bd(), QStringLiteral("UPDATE DatePrimarie SET TipLocalitate = 7")).Executa();
    Interogare(Bd(), QStringLiteral("UPDATE Cereri SET TipCerere = 3 WHERE CerereID = 7")).Executa();
    ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje, Sablon("#TipLoc#|#tip#|#judet#|#NUME#")),
              Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("#TipLoc#|#tip#|#judet#|#NUME#"));
}

TEST_P(DocumenteTest, DispozitiaEsuataNuScrieNimic) {
    CazA();
    // A document of an earlier run stays as it was.
    QFile vechi(iesire);
    ASSERT_TRUE(vechi.open(QIODevice::WriteOnly));
    vechi.write("vechi");
    vechi.close();
    const QString fara = Sablon("#Nume#", "nu_este_rtf.rtf");
    {
        QFile f(fara);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("Dispozitie pentru #Nume#\r\n");
    }
    const struct {
        const char* caz;
        std::function<void()> pregateste;
        QString sablon;
        QString mesaj;
        Rezultat rezultat;
    } cazuri[] = {
        {"nu este RTF", [] {}, fara, QStringLiteral("Fisierul sablon are format gresit. Sunati la tel: 0700-111222"),
         Rezultat::Esuat},
        {"sablon lipsa", [] {}, QDir(Locatie().caleBD).filePath(QStringLiteral("nu.rtf")),
         QStringLiteral("Fisierul %1 nu exista").arg(QDir(Locatie().caleBD).filePath(QStringLiteral("nu.rtf"))),
         Rezultat::Esuat},
        {"CuantumVechi cerut si gol", [] {}, Sablon("#suma# #sumav#", "sumav.rtf"),
         QStringLiteral("Documentul nu poate fi completat: campul CuantumVechi este gol, iar sablonul il cere in "
                        "#sumav#."),
         Rezultat::Esuat},
        {"CNP cerut si gol",
         [&] { Interogare(Bd(), QStringLiteral("UPDATE Membrii SET CNP = NULL WHERE MembruID = 70")).Executa(); },
         Sablon("#CNP#", "cnp.rtf"),
         QStringLiteral("Documentul nu poate fi completat: campul CNP al titularului este gol, iar sablonul il cere "
                        "in #CNP#."),
         Rezultat::Esuat},
        {"fara copii",
         [&] { Interogare(Bd(), QStringLiteral("UPDATE Cereri SET NrCopii = 0 WHERE CerereID = 7")).Executa(); },
         Sablon("#Nume#", "copii.rtf"),
         QStringLiteral("Nu exista copii in cerere, motiv pentru care nu se poate tipari dispozitia."),
         Rezultat::Esuat},
        {"fara date ale primariei", [&] { Interogare(Bd(), QStringLiteral("DELETE FROM DatePrimarie")).Executa(); },
         Sablon("#Nume#", "primarie.rtf"), QStringLiteral("Introduceti mai intai datele primariei!"), Rezultat::Esuat},
    };
    for (const auto& c : cazuri) {
        mesaje.mesaje.clear();
        c.pregateste();
        EXPECT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje, c.sablon), c.rezultat) << c.caz;
        EXPECT_EQ(mesaje.Texte(), QStringList{c.mesaj}) << c.caz;
        EXPECT_EQ(CitesteTot(iesire), QByteArray("vechi")) << c.caz;
    }

    mesaje.mesaje.clear();
    EXPECT_EQ(Documente::GenereazaDispozitie(Bd(), 99, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!")});
    // An action without a template ends the command without a word.
    mesaje.mesaje.clear();
    Interogare(Bd(), QStringLiteral("UPDATE Dispozitii SET Actiune = 9 WHERE DispozitieID = 3")).Executa();
    EXPECT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje), Rezultat::FaraSablon);
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_EQ(CitesteTot(iesire), QByteArray("vechi"));
}

TEST_P(DocumenteTest, CuantumVechiGolNuConteazaCandSablonulNuIlCere) {
    CazA();
    ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje, Sablon("#suma#")), Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("82"));
    ExecutaCu(Bd(), QStringLiteral("UPDATE Dispozitii SET CuantumVechi = ?, Actiune = 2 WHERE DispozitieID = 3"),
              Suma("64.5"));
    ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje, Sablon("#sumav#-#suma#")), Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("64.5-82"));
}

// The delivered templates: every placeholder they hold is one the merge fills, the head is theirs,
// and the braces of the written document close.
void VerificaDocument(const QByteArray& doc, const QString& sablon, const QStringList& continut) {
    const QString nume = QFileInfo(sablon).fileName();
    MesajeInregistrate m;
    const auto s = CitesteSablon(sablon, m);
    ASSERT_TRUE(s) << nume.toStdString();
    EXPECT_TRUE(doc.startsWith(s->Cap)) << nume.toStdString();
    EXPECT_TRUE(doc.endsWith(s->Corp.right(16) + "}")) << nume.toStdString();
    const QRegularExpression ramas(QStringLiteral("#[A-Za-z0-9/-]+#"));
    const auto gasit = ramas.match(QString::fromLatin1(doc));
    EXPECT_FALSE(gasit.hasMatch()) << nume.toStdString() << ": " << gasit.captured().toStdString();
    int adancime = 0, minim = 0;
    for (qsizetype i = 0; i < doc.size(); ++i) {
        if (doc[i] == '\\') {
            ++i;
            continue;
        }
        if (doc[i] == '{') ++adancime;
        if (doc[i] == '}') minim = std::min(minim, --adancime);
    }
    EXPECT_EQ(adancime, 0) << nume.toStdString();
    EXPECT_EQ(minim, 0) << nume.toStdString();
    for (const QString& c : continut)
        EXPECT_TRUE(doc.contains(TextRtf(c))) << nume.toStdString() << ": " << c.toStdString();
}

TEST_P(DocumenteTest, SabloaneleLivrateSeCompleteazaIntregi) {
    CazA();
    ExecutaCu(Bd(), QStringLiteral("UPDATE Dispozitii SET CuantumVechi = ? WHERE DispozitieID = 3"), Suma("64"));
    const char* titluri[] = {"acordarea", "modificarea", "suspendarea", "respingerea", "încetarea", "reluarea"};
    for (int actiune = 1; actiune <= 6; ++actiune) {
        ExecutaCu(Bd(), QStringLiteral("UPDATE Dispozitii SET Actiune = ? WHERE DispozitieID = 3"), actiune);
        ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje), Rezultat::Scris)
            << actiune << mesaje.Texte().join(u'\n').toStdString();
        VerificaDocument(CitesteTot(iesire), QDir(o.FolderActe).filePath(Documente::SablonDispozitie(actiune)),
                         {T("Popa Vasile"), T("1850312410015"), T("Brănești"), T("Ion Ionescu"),
                          T("privind ") + T(titluri[actiune - 1])});
    }
    const QString fisa = QDir(Locatie().caleBD).filePath(QStringLiteral("FisaCerere.rtf"));
    ASSERT_EQ(Documente::GenereazaFisa(Bd(), 7, o, fisa, mesaje), Rezultat::Scris);
    VerificaDocument(CitesteTot(fisa), QDir(o.FolderActe).filePath(Documente::SablonFisa),
                     {T("Popa Vasile"), T("1200.5 lei"), T("02.06.2025"), T("Elena Dumitru")});
    const QString declaratie = QDir(Locatie().caleBD).filePath(QStringLiteral("Declar.rtf"));
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, declaratie, mesaje), Rezultat::Scris);
    VerificaDocument(CitesteTot(declaratie), QDir(o.FolderActe).filePath(Documente::SablonDeclaratie),
                     {T("Popa Vasile"), T("Ionescu Dan"), T("elev cl i-viii"), T("Brănești, str. Florilor")});
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(u'\n').toStdString();
}

// A template saved again by LibreOffice (no marker, no line end after the last brace) and one with
// Unix line ends merge like the delivered ones.
TEST_P(DocumenteTest, SabloaneleSalvateDeAlteProcesoareSeCompleteaza) {
    CazA();
    ExecutaCu(Bd(), QStringLiteral("UPDATE Dispozitii SET Actiune = 1 WHERE DispozitieID = 3"));
    QTemporaryDir acte;
    o.FolderActe = acte.path();
    const QString sablon = QDir(acte.path()).filePath(Documente::SablonDispozitie(1));
    const QByteArray lf = CitesteTot(QStringLiteral(FEROLANTA_SURSA "/Acte/") + Documente::SablonDispozitie(1))
                              .replace("\r\n", "\n");
    for (const QByteArray& continut : {CitesteTot(QStringLiteral(FEROLANTA_TESTE_DATE "/documente/acordare-libreoffice.rtf")), lf}) {
        QFile::remove(sablon);
        QFile f(sablon);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(continut);
        f.close();
        ASSERT_EQ(Documente::GenereazaDispozitie(Bd(), 3, o, iesire, mesaje), Rezultat::Scris)
            << mesaje.Texte().join(u'\n').toStdString();
        VerificaDocument(CitesteTot(iesire), sablon, {T("Popa Vasile"), T("1850312410015"), T("privind acordarea")});
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(u'\n').toStdString();
}

TEST_P(DocumenteTest, MaiMulteDispozitiiIntrUnSinguDocument) {
    CazA();
    ScrieDispozitie(Bd(), {5, 7, 46, QDate(2015, 5, 2), QDate(2015, 6, 1), 3, Suma("0"), QVariant(), T("Absențe")});
    ScrieDispozitie(Bd(), {6, 7, 47, QDate(2015, 8, 2), QDate(2015, 9, 1), 2, Suma("90"), Suma("82"), T("Venit nou")});
    ASSERT_EQ(Documente::GenereazaDispozitii(Bd(), {5, 3, 6}, o, iesire, mesaje), Rezultat::Scris)
        << mesaje.Texte().join(u'\n').toStdString();
    const QByteArray doc = CitesteTot(iesire);
    MesajeInregistrate m;
    const auto ultimul = CitesteSablon(QDir(o.FolderActe).filePath(QStringLiteral("modificare.rtf")), m);
    ASSERT_TRUE(ultimul);
    ASSERT_TRUE(doc.startsWith(ultimul->Cap));
    // Three bodies, two page breaks between them, none after the last.
    EXPECT_EQ(doc.count("\\page"), 2);
    EXPECT_TRUE(doc.endsWith("\\par\r\n}"));
    const qsizetype a = doc.indexOf("nr. 46 din"), b = doc.indexOf("nr. 45 din"), c = doc.indexOf("nr. 47 din");
    const qsizetype p1 = doc.indexOf("\\page"), p2 = doc.lastIndexOf("\\page");
    EXPECT_TRUE(a > 0 && a < p1 && p1 < b && b < p2 && p2 < c) << a << " " << p1 << " " << b << " " << p2 << " " << c;
    EXPECT_TRUE(doc.contains(TextRtf(T("suspendarea plății"))));
    EXPECT_TRUE(doc.contains("de la {\\b 82 lei} la {\\b 90 lei}"));

    // Any disposition that can't be merged stops the run before anything is written.
    QFile::remove(iesire);
    Interogare(Bd(), QStringLiteral("UPDATE Dispozitii SET Actiune = 0 WHERE DispozitieID = 6")).Executa();
    EXPECT_EQ(Documente::GenereazaDispozitii(Bd(), {5, 3, 6}, o, iesire, mesaje), Rezultat::FaraSablon);
    EXPECT_EQ(Documente::GenereazaDispozitii(Bd(), {5, 3, 98}, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_EQ(Documente::GenereazaDispozitii(Bd(), {}, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_FALSE(QFile::exists(iesire));
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!"),
                                           QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta "
                                                          "selectie!")}));
}

TEST_P(DocumenteTest, FisaDeCalcul) {
    PrimarieTest p = PrimarieA();
    p.Judet = QVariant();
    p.AsSocial = QVariant();
    ScriePrimarie(Bd(), p);
    ScrieCerere(Bd(), CerereA());
    o.DataFisa = QDate(2025, 6, 15);
    ASSERT_EQ(Documente::GenereazaFisa(Bd(), 7, o, iesire, mesaje, TestDate("fisa.rtf")), Rezultat::Scris);
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/fisa.rtf")));

    // Without the sheet's date, today; without the town hall row, dots.
    Interogare(Bd(), QStringLiteral("DELETE FROM DatePrimarie")).Executa();
    o.DataFisa = QDate();
    ASSERT_EQ(Documente::GenereazaFisa(Bd(), 7, o, iesire, mesaje, Sablon("##data##|#Jud#|#Loc#|#AsSocial#")),
              Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("02.06.2025|.....................|.....................|"));

    EXPECT_EQ(Documente::GenereazaFisa(Bd(), 70, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!")});
}

TEST_P(DocumenteTest, DeclaratieCuTreispreceVenituriSiCinciPersoane) {
    ScriePrimarie(Bd(), PrimarieA());
    ScrieCerere(Bd(), CerereA());
    {
        Tranzactie t(Bd());
        Interogare v(Bd(), QStringLiteral("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (7, ?, ?)"));
        // Written out of order: the rows follow the income code.
        for (int i = 13; i >= 1; --i)
            v.Leaga(i * 3).Leaga(QVariant(i % 2 ? i * 10 + 0.25 : i * 10.0)).Executa();
        t.Confirma();
    }
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, iesire, mesaje, TestDate("declaratie.rtf")), Rezultat::Scris)
        << mesaje.Texte().join(u'\n').toStdString();
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/declaratie.rtf")));
}

TEST_P(DocumenteTest, DeclaratieFaraVenituriGolesteDoisprezeceRanduri) {
    ScrieCerere(Bd(), CerereA());
    o.StrSat = QString();
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, iesire, mesaje, TestDate("declaratie.rtf")), Rezultat::Scris);
    const QByteArray doc = CitesteTot(iesire);
    EXPECT_TRUE(doc.contains("Judet=.....................|Localitate=.....................|"));
    EXPECT_TRUE(doc.contains("|adresa=Br{\\uc1\\u259\\'e3}ne{\\uc1\\u537\\'ba}ti,  Florilor, nr. 12, sc. B, ap. 4|"));
    EXPECT_TRUE(doc.contains("|tot=0\\par"));
    EXPECT_TRUE(doc.contains("V1=[][]\\par"));
    EXPECT_TRUE(doc.contains("V12=[][]\\par"));
    EXPECT_TRUE(doc.contains("V13=[#c13#][#cu13#]\\par"));

    // The same request in the special town: the declaration's address stays as stored.
    ScriePrimarie(Bd(), PrimarieB());
    ExecutaCu(Bd(), QStringLiteral("UPDATE Familii SET Localitate = ? WHERE FamilieID = 7"), T("fizeșu gherlii"));
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, iesire, mesaje, Sablon("#adresa#")), Rezultat::Scris);
    EXPECT_EQ(Corp(), TextRtf(T("fizeșu gherlii,  Florilor, nr. 12, sc. B, ap. 4")));
    EXPECT_TRUE(mesaje.mesaje.empty());
}

PE_AMBELE_MOTOARE(DocumenteTest);

} // namespace
