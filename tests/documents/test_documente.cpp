#include "base/Ceas.h"
#include "documents/DateDocumenteTest.h"
#include "documents/Documente.h"
#include "documents/InlocuireCerere.h"
#include "documents/InlocuireDispozitie.h"
#include "documents/Sablon.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <QDir>
#include <QRegularExpression>

namespace {

using Documente::Rezultat;

class DocumenteTest : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        Ceas::SeteazaAzi(QDate(2025, 6, 2));
        BazaNoua();
        o.FolderActe = T(FEROLANTA_SURSA "/Acte");
        o.StrSat = T("str.");
        iesire = QDir(Locatie().caleBD).filePath(T("Disp.rtf"));
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
    void Sql(const char* sql) { Bd().Executa(QString::fromLatin1(sql)); }
    Rezultat Dispozitie(const QString& sablon = {}, qint64 id = 3) {
        return Documente::GenereazaDispozitie(Bd(), id, o, iesire, mesaje, sablon);
    }
    std::string Spus() const { return mesaje.Texte().join(u'\n').toStdString(); }

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

// The documents merged from the test templates, byte for byte as reviewed.
TEST_P(DocumenteTest, DocumenteleIdenticeCuCeleRevazute) {
    CazA();
    ASSERT_EQ(Dispozitie(TestDate("dispozitie.rtf")), Rezultat::Scris) << Spus();
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/dispozitie_barbat_un_copil.rtf")));
    {
        Tranzactie t(Bd());
        Interogare v(Bd(), T("INSERT INTO Venituri (CerereID, CodVenit, Valoare) VALUES (7, ?, ?)"));
        // Written out of order: the rows follow the income code.
        for (int i = 13; i >= 1; --i)
            v.Leaga(i * 3).Leaga(QVariant(i % 2 ? i * 10 + 0.25 : i * 10.0)).Executa();
        t.Confirma();
    }
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, iesire, mesaje, TestDate("declaratie.rtf")), Rezultat::Scris);
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/declaratie.rtf")));
    Sql("DELETE FROM Venituri");
    Sql("UPDATE DatePrimarie SET Judet = NULL, AsSocial = NULL");
    o.DataFisa = QDate(2025, 6, 15);
    ASSERT_EQ(Documente::GenereazaFisa(Bd(), 7, o, iesire, mesaje, TestDate("fisa.rtf")), Rezultat::Scris);
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/fisa.rtf")));

    // A mother of five in the town whose names are printed with capitals at each word.
    Sql("DELETE FROM DatePrimarie");
    ScriePrimarie(Bd(), PrimarieB());
    ScrieCerere(Bd(), CerereB());
    ScrieDispozitie(Bd(), DispozitieB());
    o.Motiv = true;
    o.StrSat = T("sat");
    ASSERT_EQ(Dispozitie(TestDate("dispozitie.rtf"), 4), Rezultat::Scris);
    EXPECT_EQ(CitesteTot(iesire), CitesteTot(TestDate("asteptat/dispozitie_femeie_cinci_copii.rtf")));
    EXPECT_TRUE(mesaje.mesaje.empty()) << Spus();
}

TEST_P(DocumenteTest, CampurileCalculateSiValorileNeprevazute) {
    CazA();
    const QString barem = Sablon("[#barem#]");
    const struct {
        int tip, copii;
        QDate dinData;
        const char* corp;
    } cazuri[] = {
        {1, 2, QDate(2013, 6, 30), "[0.12]"},   {1, 2, QDate(2013, 7, 1), "[0.16]"},
        {2, 3, QDate(2014, 10, 31), "[0.39]"},  {2, 4, QDate(2014, 11, 1), "[0.856]"},
        {1, 9, QDate(2020, 1, 1), "[0.656]"},   {1, 1, QDate(2011, 12, 31), "[#barem#]"},
        {3, 1, QDate(2015, 1, 1), "[#barem#]"},
    };
    for (const auto& c : cazuri) {
        ExecutaCu(Bd(), T("UPDATE Cereri SET TipCerere = ?, NrCopii = ? WHERE CerereID = 7"), c.tip, c.copii);
        ExecutaCu(Bd(), T("UPDATE Dispozitii SET DinData = ? WHERE DispozitieID = 3"), c.dinData);
        ASSERT_EQ(Dispozitie(barem), Rezultat::Scris);
        EXPECT_EQ(Corp(), QByteArray(c.corp)) << c.tip << " " << c.copii << " " << S(c.dinData.toString());
    }
    Sql("UPDATE DatePrimarie SET TipLocalitate = 7");
    ASSERT_EQ(Dispozitie(Sablon("#TipLoc#|#tip#|#judet#|#NUME#")), Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("#TipLoc#|#tip#|#judet#|#NUME#"));
    // An empty CuantumVechi counts only where the template asks for it.
    ASSERT_EQ(Dispozitie(Sablon("#suma#")), Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("82"));
    ExecutaCu(Bd(), T("UPDATE Dispozitii SET CuantumVechi = ? WHERE DispozitieID = 3"), Suma("64.5"));
    ASSERT_EQ(Dispozitie(Sablon("#sumav#-#suma#")), Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("64.5-82"));

    // Without the sheet's date, today; without the town hall row, dots. The declaration's address as stored.
    Sql("DELETE FROM DatePrimarie");
    ASSERT_EQ(Documente::GenereazaFisa(Bd(), 7, o, iesire, mesaje, Sablon("##data##|#Jud#|#AsSocial#")),
              Rezultat::Scris);
    EXPECT_EQ(Corp(), QByteArray("02.06.2025|.....................|"));
    ScriePrimarie(Bd(), PrimarieB());
    ExecutaCu(Bd(), T("UPDATE Familii SET Localitate = ? WHERE FamilieID = 7"), T("fizeșu gherlii"));
    o.StrSat = QString();
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, iesire, mesaje, Sablon("#adresa#|#c1#|#tot#")),
              Rezultat::Scris);
    EXPECT_EQ(Corp(), TextRtf(T("fizeșu gherlii,  Florilor, nr. 12, sc. B, ap. 4||0")));
    EXPECT_TRUE(mesaje.mesaje.empty()) << Spus();
}

// Each failure tells why (one key word here) and leaves the document of an earlier run as it was; an
// action without a template ends the command without a word.
TEST_P(DocumenteTest, DocumentulEsuatNuScrieNimic) {
    CazA();
    QFile vechi(iesire);
    ASSERT_TRUE(vechi.open(QIODevice::WriteOnly));
    vechi.write("vechi");
    vechi.close();
    const QString fara = Sablon("#Nume#", "nu_este_rtf.rtf");
    {
        QFile f(fara);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write("Dispozitie pentru #Nume#\r\n");
    }
    const struct {
        const char* sql; // run before the case, when there is one
        qint64 id;
        QString sablon;
        const char* cuvant;
    } cazuri[] = {
        {nullptr, 3, fara, "format gresit"},
        {nullptr, 3, QDir(Locatie().caleBD).filePath(T("nu.rtf")), "nu.rtf"},
        {nullptr, 3, Sablon("#suma# #sumav#", "sumav.rtf"), "CuantumVechi"},
        {"UPDATE Membrii SET CNP = NULL WHERE MembruID = 70", 3, Sablon("#CNP#", "cnp.rtf"), "#CNP#"},
        {"UPDATE Cereri SET NrCopii = 0", 3, Sablon("#Nume#", "c.rtf"), "copii"},
        {"DELETE FROM DatePrimarie", 3, Sablon("#Nume#", "p.rtf"), "primariei"},
        {nullptr, 99, {}, "Randul curent"},
        {"UPDATE Dispozitii SET Actiune = 9", 3, {}, nullptr},
    };
    for (const auto& c : cazuri) {
        mesaje.mesaje.clear();
        if (c.sql) Sql(c.sql);
        EXPECT_EQ(Dispozitie(c.sablon, c.id), c.cuvant ? Rezultat::Esuat : Rezultat::FaraSablon) << c.cuvant;
        EXPECT_EQ(mesaje.mesaje.size(), c.cuvant ? 1u : 0u) << Spus();
        EXPECT_TRUE(!c.cuvant || mesaje.Texte().join(u'\n').contains(QString::fromUtf8(c.cuvant))) << Spus();
        EXPECT_EQ(CitesteTot(iesire), QByteArray("vechi")) << c.cuvant;
    }
    EXPECT_EQ(Documente::GenereazaFisa(Bd(), 70, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_EQ(CitesteTot(iesire), QByteArray("vechi"));
}

// A written document: it starts with the template's head, no placeholder is left, the braces close,
// and it holds the texts given.
void VerificaDocument(const QByteArray& doc, const QString& sablon, const QStringList& continut) {
    const std::string nume = QFileInfo(sablon).fileName().toStdString();
    MesajeInregistrate m;
    const auto s = CitesteSablon(sablon, m);
    ASSERT_TRUE(s) << nume;
    EXPECT_TRUE(doc.startsWith(s->Cap)) << nume;
    const auto gasit = QRegularExpression(T("#[A-Za-z0-9/-]+#")).match(QString::fromLatin1(doc));
    EXPECT_FALSE(gasit.hasMatch()) << nume << ": " << gasit.captured().toStdString();
    int adancime = 0;
    for (qsizetype i = 0; i < doc.size() && adancime >= 0; ++i)
        adancime += doc[i] == '\\' ? (++i, 0) : doc[i] == '{' ? 1 : doc[i] == '}' ? -1 : 0;
    EXPECT_EQ(adancime, 0) << nume;
    for (const QString& c : continut)
        EXPECT_TRUE(doc.contains(TextRtf(c))) << nume << ": " << c.toStdString();
}

TEST_P(DocumenteTest, SabloaneleLivrateSiCeleSalvateDeAlteProcesoareSeCompleteazaIntregi) {
    CazA();
    ExecutaCu(Bd(), T("UPDATE Dispozitii SET CuantumVechi = ? WHERE DispozitieID = 3"), Suma("64"));
    const char* titluri[] = {"acordarea", "modificarea", "suspendarea", "respingerea", "încetarea", "reluarea"};
    for (int actiune = 1; actiune <= 6; ++actiune) {
        ExecutaCu(Bd(), T("UPDATE Dispozitii SET Actiune = ? WHERE DispozitieID = 3"), actiune);
        ASSERT_EQ(Dispozitie(), Rezultat::Scris) << actiune << Spus();
        VerificaDocument(
            CitesteTot(iesire), QDir(o.FolderActe).filePath(Documente::SablonDispozitie(actiune)),
            {T("Popa Vasile"), T("1850312410015"), T("Ion Ionescu"), T("privind ") + T(titluri[actiune - 1])});
    }
    ASSERT_EQ(Documente::GenereazaFisa(Bd(), 7, o, iesire, mesaje), Rezultat::Scris);
    VerificaDocument(CitesteTot(iesire), QDir(o.FolderActe).filePath(Documente::SablonFisa),
                     {T("Popa Vasile"), T("1200.5 lei"), T("Elena Dumitru")});
    ASSERT_EQ(Documente::GenereazaDeclaratie(Bd(), 7, o, iesire, mesaje), Rezultat::Scris);
    VerificaDocument(CitesteTot(iesire), QDir(o.FolderActe).filePath(Documente::SablonDeclaratie),
                     {T("Ionescu Dan"), T("elev cl i-viii"), T("Brănești, str. Florilor")});

    // Saved again by LibreOffice: no marker, no line end after the last brace.
    ExecutaCu(Bd(), T("UPDATE Dispozitii SET Actiune = 1 WHERE DispozitieID = 3"));
    ASSERT_EQ(Dispozitie(TestDate("acordare-libreoffice.rtf")), Rezultat::Scris) << Spus();
    VerificaDocument(CitesteTot(iesire), TestDate("acordare-libreoffice.rtf"),
                     {T("Popa Vasile"), T("privind acordarea")});
    EXPECT_TRUE(mesaje.mesaje.empty()) << Spus();
}

TEST_P(DocumenteTest, MaiMulteDispozitiiIntrUnSingurDocument) {
    CazA();
    ScrieDispozitie(Bd(), {5, 7, 46, QDate(2015, 5, 2), QDate(2015, 6, 1), 3, Suma("0"), QVariant(), T("Absențe")});
    ScrieDispozitie(Bd(), {6, 7, 47, QDate(2015, 8, 2), QDate(2015, 9, 1), 2, Suma("90"), Suma("82"), T("Venit nou")});
    ASSERT_EQ(Documente::GenereazaDispozitii(Bd(), {5, 3, 6}, o, iesire, mesaje), Rezultat::Scris) << Spus();
    const QByteArray doc = CitesteTot(iesire);
    // The head of the last template read.
    VerificaDocument(doc, QDir(o.FolderActe).filePath(T("modificare.rtf")), {T("suspendarea")});
    // Three bodies in the order given, two page breaks between them, none after the last.
    EXPECT_EQ(doc.count("\\page"), 2);
    EXPECT_TRUE(doc.endsWith("\\par\r\n}"));
    const qsizetype a = doc.indexOf("nr. 46 din"), b = doc.indexOf("nr. 45 din"), c = doc.indexOf("nr. 47 din");
    const qsizetype p1 = doc.indexOf("\\page"), p2 = doc.lastIndexOf("\\page");
    EXPECT_TRUE(a > 0 && a < p1 && p1 < b && b < p2 && p2 < c) << a << " " << p1 << " " << b << " " << p2 << " " << c;
    EXPECT_TRUE(doc.contains("de la {\\b 82 lei} la {\\b 90 lei}"));

    // Any disposition that can't be merged stops the run before anything is written.
    QFile::remove(iesire);
    Sql("UPDATE Dispozitii SET Actiune = 0 WHERE DispozitieID = 6");
    EXPECT_EQ(Documente::GenereazaDispozitii(Bd(), {5, 3, 6}, o, iesire, mesaje), Rezultat::FaraSablon);
    EXPECT_EQ(Documente::GenereazaDispozitii(Bd(), {5, 3, 98}, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_EQ(Documente::GenereazaDispozitii(Bd(), {}, o, iesire, mesaje), Rezultat::Esuat);
    EXPECT_FALSE(QFile::exists(iesire));
    EXPECT_EQ(mesaje.mesaje.size(), 2u) << Spus();
}

PE_AMBELE_MOTOARE(DocumenteTest);

} // namespace
