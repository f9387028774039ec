#include "documents/InlocuireDispozitie.h"
#include "documents/Sablon.h"
#include "support/MesajeInregistrate.h"
#include "support/Texte.h"

#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// The head ends at the last marker; without one (as newer word processors save a template) where the
// body starts: the first \pard of the document's level, else after its last group. The body ends before
// the final brace. Bytes above 127 pass as they are: the template is never decoded.
TEST(Sablon, CapulSiCorpul) {
    QTemporaryDir dir;
    MesajeInregistrate m;
    const struct {
        const char* continut;
        const char* cap;
        const char* corp;
    } cazuri[] = {
        {"{\\rtf1 A{\\pntxta )}}B{\\pntxtb (}{\\pntxta )}}\r\n\\pard #Nume#\\par\r\n}\r\n",
         "{\\rtf1 A{\\pntxta )}}B{\\pntxtb (}{\\pntxta )}}", "\r\n\\pard #Nume#\\par\r\n"},
        {"{\\pntxta )}}Bra\xe3\xba}\r\n", "{\\pntxta )}}", "Bra\xe3\xba"},
        {"{\\pntxta )}}}\n", "{\\pntxta )}}", ""},
        // a marker cut short by one character is no marker; a \pard inside a group is not the body
        {"{\\rtf1{\\pntxta )}\\pard #Nume#\\par}\r\n", "{\\rtf1{\\pntxta )}", "\\pard #Nume#\\par"},
        {"{\\rtf1{\\stylesheet{\\s1\\pard Normal;}}\n\\pard\\plain #Nume#\\par\n}",
         "{\\rtf1{\\stylesheet{\\s1\\pard Normal;}}\n", "\\pard\\plain #Nume#\\par\n"},
        {"{\\rtf1{\\fonttbl{\\f0 Arial;}}\\{#Nume#\\}}  \n\n", "{\\rtf1{\\fonttbl{\\f0 Arial;}}", "\\{#Nume#\\}"},
    };
    for (const auto& c : cazuri) {
        const QString cale = dir.filePath(T("s.rtf"));
        QFile f(cale);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(c.continut);
        f.close();
        const auto s = CitesteSablon(cale, m);
        ASSERT_TRUE(s) << c.continut;
        EXPECT_EQ(s->Cap, QByteArray(c.cap)) << c.continut;
        EXPECT_EQ(s->Corp, QByteArray(c.corp)) << c.continut;
        EXPECT_EQ(DocumentRtf(s->Cap, s->Corp), s->Cap + s->Corp + '}');
    }
    EXPECT_TRUE(m.mesaje.empty());
    // A missing file and one that is no RTF are refused, each with its message.
    QFile f(dir.filePath(T("fara.rtf")));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write("Dispozitia nr. #NrDisp# pentru #Nume#\r\n");
    f.close();
    EXPECT_FALSE(CitesteSablon(dir.filePath(T("lipsa.rtf")), m));
    EXPECT_FALSE(CitesteSablon(f.fileName(), m));
    EXPECT_EQ(m.mesaje.size(), 2u);
}

TEST(Sablon, ValorileDevinTextRtf) {
    // U+FB01 is above 32767: a negative 16-bit number.
    const std::pair<const char*, const char*> cazuri[] = {
        {"a\\b{c}d", "a\\\\b\\{c\\}d"},
        {"ășȘ", "{\\uc1\\u259\\'e3}{\\uc1\\u537\\'ba}{\\uc1\\u536\\'aa}"},
        {"şŢ", "{\\uc1\\u351\\'ba}{\\uc1\\u354\\'de}"},
        {"rând 1\r\nrând\t2", "r{\\uc1\\u226\\'e2}nd 1\\line r{\\uc1\\u226\\'e2}nd\\tab 2"},
        {"100 €", "100 {\\uc1\\u8364?}"},
        {"\xef\xac\x81", "{\\uc1\\u-1279?}"}};
    for (const auto& [valoare, rtf] : cazuri)
        EXPECT_EQ(TextRtf(QString::fromUtf8(valoare)), QByteArray(rtf)) << valoare;
}

TEST(Sablon, ParantezaSexulSiOrasulCuNumeProprii) {
    EXPECT_EQ(TextPanaLaParanteza(T("  RUDA ADULTA (PARINTE, BUNIC) (X)")), T("RUDA ADULTA"));
    EXPECT_EQ(TextPanaLaParanteza(T("CASNIC(A)")), T("CASNIC"));
    EXPECT_EQ(TextPanaLaParanteza(T("(intre paranteze)")), QString());
    // A man: the code starts with 1, or its first five characters read as the number 1.
    const std::pair<const char*, bool> sexe[] = {
        {"1850312410015", true}, {"2870506410021", false}, {"5100203410034", false}, {"3000101410011", false},
        {"00001", true},         {"0001x", true},          {"00002", false},         {"", false},
        {" 0001", true},         {"01000", false},
    };
    for (const auto& [cnp, masculin] : sexe)
        EXPECT_EQ(EsteMasculin(QString::fromLatin1(cnp)), masculin) << cnp;
    const std::pair<const char*, bool> orase[] = {
        {"FIZESU GHERLII", true}, {"Fizeşu Gherlii", true}, {"comuna fizesu", true}, {"FIZES", false}, {"", false},
    };
    for (const auto& [localitate, special] : orase)
        EXPECT_EQ(EsteOrasSpecial(QString::fromUtf8(localitate)), special) << localitate;
}

} // namespace
