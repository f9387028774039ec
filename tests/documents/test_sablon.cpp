#include "documents/InlocuireDispozitie.h"
#include "documents/Sablon.h"
#include "support/MesajeInregistrate.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

QString Scrie(const QTemporaryDir& dir, const char* nume, const QByteArray& continut) {
    const QString cale = dir.filePath(QString::fromLatin1(nume));
    QFile f(cale);
    EXPECT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(continut);
    return cale;
}

TEST(Sablon, FisierLipsaSauCareNuEsteRtfSuntRefuzateCuMesajulLor) {
    QTemporaryDir dir;
    MesajeInregistrate m;
    const QString lipsa = dir.filePath(QStringLiteral("lipsa.rtf"));
    EXPECT_FALSE(CitesteSablon(lipsa, m));
    const QString fara = Scrie(dir, "fara.rtf", "Dispozitia nr. #NrDisp# pentru #Nume#\r\n");
    EXPECT_FALSE(CitesteSablon(fara, m));
    EXPECT_EQ(m.Texte(),
              (QStringList{QStringLiteral("Fisierul %1 nu exista").arg(lipsa),
                           QStringLiteral("Fisierul sablon are format gresit. Sunati la tel: 0700-111222")}));
}

// Without the marker (as newer word processors save a template) the head ends where the body
// starts: the first \pard of the document's level, else after its last group.
TEST(Sablon, FaraMarcajCapulSeOpresteLaInceputulCorpului) {
    QTemporaryDir dir;
    MesajeInregistrate m;
    const struct {
        const char* continut;
        const char* cap;
        const char* corp;
    } cazuri[] = {
        // a marker cut short by one character is no marker; a \pard inside a group is not the body
        {"{\\rtf1{\\pntxta )}\\pard #Nume#\\par}\r\n", "{\\rtf1{\\pntxta )}", "\\pard #Nume#\\par"},
        {"{\\rtf1{\\stylesheet{\\s1\\pard Normal;}}\n\\pard\\plain #Nume#\\par\n}", "{\\rtf1{\\stylesheet{\\s1\\pard Normal;}}\n",
         "\\pard\\plain #Nume#\\par\n"},
        {"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\pardeftab709 #Nume#}", "{\\rtf1{\\fonttbl{\\f0 Arial;}}", "\\pardeftab709 #Nume#"},
        {"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\{#Nume#\\}}  \n\n", "{\\rtf1{\\fonttbl{\\f0 Arial;}}", "\\{#Nume#\\}"},
    };
    for (const auto& c : cazuri) {
        const auto s = CitesteSablon(Scrie(dir, "lf.rtf", c.continut), m);
        ASSERT_TRUE(s) << c.continut;
        EXPECT_EQ(s->Cap, QByteArray(c.cap)) << c.continut;
        EXPECT_EQ(s->Corp, QByteArray(c.corp)) << c.continut;
    }
    EXPECT_TRUE(m.mesaje.empty());
}

TEST(Sablon, CapulMergePanaLaUltimulMarcajIarCorpulPanaLaAcoladaFinala) {
    QTemporaryDir dir;
    MesajeInregistrate m;
    const auto s = CitesteSablon(
        Scrie(dir, "doi.rtf", "{\\rtf1 A{\\pntxta )}}B{\\pntxtb (}{\\pntxta )}}\r\n\\pard #Nume#\\par\r\n}\r\n"), m);
    ASSERT_TRUE(s);
    EXPECT_EQ(s->Cap, QByteArray("{\\rtf1 A{\\pntxta )}}B{\\pntxtb (}{\\pntxta )}}"));
    EXPECT_EQ(s->Corp, QByteArray("\r\n\\pard #Nume#\\par\r\n"));
    EXPECT_EQ(DocumentRtf(s->Cap, s->Corp), QByteArray("{\\rtf1 A{\\pntxta )}}B{\\pntxtb (}{\\pntxta )}}\r\n"
                                                       "\\pard #Nume#\\par\r\n}"));
    // Bytes above 127 pass as they are: the template is never decoded.
    const auto latin = CitesteSablon(Scrie(dir, "latin.rtf", "{\\pntxta )}}Bra\xe3\xba}\r\n"), m);
    ASSERT_TRUE(latin);
    EXPECT_EQ(latin->Corp, QByteArray("Bra\xe3\xba"));
    // Less than the closing characters after the marker leaves an empty body.
    const auto scurt = CitesteSablon(Scrie(dir, "scurt.rtf", "{\\pntxta )}}}\n"), m);
    ASSERT_TRUE(scurt);
    EXPECT_TRUE(scurt->Corp.isEmpty());
    EXPECT_TRUE(m.mesaje.empty());
}

TEST(Sablon, ValorileDevinTextRtf) {
    const struct {
        const char* valoare;
        const char* rtf;
    } cazuri[] = {
        {"Popa Vasile 12", "Popa Vasile 12"},
        {"a\\b{c}d", "a\\\\b\\{c\\}d"},
        {"ăâîșțĂÂÎȘȚ", "{\\uc1\\u259\\'e3}{\\uc1\\u226\\'e2}{\\uc1\\u238\\'ee}{\\uc1\\u537\\'ba}{\\uc1\\u539\\'fe}"
                       "{\\uc1\\u258\\'c3}{\\uc1\\u194\\'c2}{\\uc1\\u206\\'ce}{\\uc1\\u536\\'aa}{\\uc1\\u538\\'de}"},
        {"şţŞŢ", "{\\uc1\\u351\\'ba}{\\uc1\\u355\\'fe}{\\uc1\\u350\\'aa}{\\uc1\\u354\\'de}"},
        {"rând 1\r\nrând\t2", "r{\\uc1\\u226\\'e2}nd 1\\line r{\\uc1\\u226\\'e2}nd\\tab 2"},
        {"100 €", "100 {\\uc1\\u8364?}"},
        {"\xef\xac\x81", "{\\uc1\\u-1279?}"}, // U+FB01 is above 32767: a negative 16-bit number
        {"", ""},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(TextRtf(QString::fromUtf8(c.valoare)), QByteArray(c.rtf)) << c.valoare;
}

TEST(Sablon, TextPanaLaParanteza) {
    const std::pair<const char*, const char*> cazuri[] = {
        {"RUDA ADULTA (PARINTE, BUNIC, FRATE MAJOR)", "RUDA ADULTA"},
        {"  CASNIC(A)", "CASNIC"},
        {"ELEV CL I-VIII", "ELEV CL I-VIII"},
        {" SALARIAT ", "SALARIAT"},
        {"(intre paranteze)", ""},
        {"A (b) c (d)", "A"},
        {"", ""},
    };
    for (const auto& [text, asteptat] : cazuri)
        EXPECT_EQ(TextPanaLaParanteza(QString::fromUtf8(text)), QString::fromUtf8(asteptat)) << text;
}

TEST(Sablon, SexulTitularuluiDupaCNP) {
    const std::pair<const char*, bool> cazuri[] = {
        {"1850312410015", true},
        {"2870506410021", false},
        {"5100203410034", false},
        {"6100203410034", false},
        {"3000101410011", false},
        {"7000101410011", false},
        {"00001", true},
        {"0001x", true},
        {"00001234", true},
        {"00002", false},
        {"", false},
        {"1", true},
        {" 0001", true},
        {"10", true},
        {"01000", false},
    };
    for (const auto& [cnp, masculin] : cazuri)
        EXPECT_EQ(EsteMasculin(QString::fromLatin1(cnp)), masculin) << cnp;
}

TEST(Sablon, OrasulCuNumeProprii) {
    const std::pair<const char*, bool> cazuri[] = {
        {"FIZESU GHERLII", true},
        {"Fizeșu Gherlii", true},
        {"Fizeşu Gherlii", true},
        {"comuna fizesu", true},
        {"Gherla", false},
        {"FIZES", false},
        {"", false},
    };
    for (const auto& [localitate, special] : cazuri)
        EXPECT_EQ(EsteOrasSpecial(QString::fromUtf8(localitate)), special) << localitate;
}

} // namespace
