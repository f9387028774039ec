#include "documents/DeschideDocument.h"
#include "support/MesajeInregistrate.h"

#include <QDir>
#include <QSet>
#include <gtest/gtest.h>

namespace {

using Fel = ProgramDocument::Fel;

const QString Cale = QStringLiteral("/date/Ferolanta/Disp.rtf");
const QString SfatOptiuni =
    QStringLiteral("Setati corect din Optiuni, aplicatia pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer");
const QString SfatDispozitii =
    QStringLiteral("Setati corect aplicatia pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer");

// A machine with some programs installed under /usr/bin; records what it is asked to do.
struct Masina {
    QSet<QString> instalate;
    QString motivPornire; // what a start answers; empty: it starts
    bool implicitReuseste = true;
    QStringList cautate;
    QList<QUrl> deschise;
    QList<QPair<QString, QStringList>> pornite;

    MediuDeschidere Mediu() {
        MediuDeschidere d;
        d.CautaProgram = [this](const QString& nume, const QStringList&) {
            cautate << nume;
            return instalate.contains(nume) ? QStringLiteral("/usr/bin/") + nume : QString();
        };
        d.DeschideImplicit = [this](const QUrl& u) {
            deschise << u;
            return implicitReuseste;
        };
        d.PornesteProgram = [this](const QString& p, const QStringList& a) {
            pornite.append({p, a});
            return motivPornire;
        };
        return d;
    }
};

TEST(DeschideDocument, AlegereaDupaAppWord) {
    const QStringList fisier{QDir::toNativeSeparators(Cale)};
    const struct {
        int appWord;
        QSet<QString> instalate;
        Fel fel;
        const char* program;
    } cazuri[] = {
        {1, {"soffice", "wps", "abiword"}, Fel::Implicit, ""},
        {2, {"soffice", "libreoffice"}, Fel::Program, "/usr/bin/soffice"},
        {2, {"libreoffice"}, Fel::Program, "/usr/bin/libreoffice"},
        {2, {"wps", "abiword"}, Fel::Absent, "soffice"}, // no fallback: the clerk asked for it
        {3, {"abiword", "ted"}, Fel::Program, "/usr/bin/abiword"},
        {3, {"wordpad", "abiword"}, Fel::Program, "/usr/bin/wordpad"},
        {3, {"ted"}, Fel::Program, "/usr/bin/ted"},
        {3, {"soffice"}, Fel::Implicit, ""},
        {4, {"wps", "soffice"}, Fel::Program, "/usr/bin/wps"},
        {4, {"soffice"}, Fel::Implicit, ""},
        {5, {"wps"}, Fel::Program, "/usr/bin/wps"},
        {5, {}, Fel::Implicit, ""},
        {0, {"soffice"}, Fel::Nimic, ""},
        {6, {"soffice", "wps"}, Fel::Nimic, ""},
        {-1, {}, Fel::Nimic, ""},
    };
    for (const auto& c : cazuri) {
        Masina m;
        m.instalate = c.instalate;
        const ProgramDocument p = AlegeProgram(c.appWord, Cale, m.Mediu());
        EXPECT_EQ(p.fel, c.fel) << c.appWord << " " << QStringList(c.instalate.values()).join(u',').toStdString();
        EXPECT_EQ(p.program, QString::fromLatin1(c.program)) << c.appWord;
        EXPECT_EQ(p.argumente, c.fel == Fel::Program ? fisier : QStringList()) << c.appWord;
        EXPECT_TRUE(m.deschise.isEmpty() && m.pornite.isEmpty()) << "choosing starts nothing";
    }
}

TEST(DeschideDocument, AlegereaRedusaATiparirii) {
    const struct {
        int appWord;
        QSet<QString> instalate;
        Fel fel;
        const char* program;
    } cazuri[] = {
        {1, {"soffice"}, Fel::Implicit, ""}, {2, {"soffice"}, Fel::Program, "/usr/bin/soffice"},
        {2, {}, Fel::Absent, "soffice"},     {3, {"abiword"}, Fel::Nefinalizat, ""},
        {4, {"wps"}, Fel::Nimic, ""},        {5, {"wps"}, Fel::Nimic, ""},
        {9, {"soffice"}, Fel::Nimic, ""},
    };
    for (const auto& c : cazuri) {
        Masina m;
        m.instalate = c.instalate;
        const ProgramDocument p = AlegeProgramDispozitii(c.appWord, Cale, m.Mediu());
        EXPECT_EQ(p.fel, c.fel) << c.appWord;
        EXPECT_EQ(p.program, QString::fromLatin1(c.program)) << c.appWord;
    }
}

TEST(DeschideDocument, DeschidereaSiMesajeleEi) {
    // The default application gets the file as a local URL.
    {
        Masina m;
        MesajeInregistrate mesaje;
        EXPECT_TRUE(DeschideDocument(Cale, 1, m.Mediu(), mesaje));
        EXPECT_EQ(m.deschise, QList<QUrl>{QUrl::fromLocalFile(Cale)});
        EXPECT_TRUE(mesaje.mesaje.empty());
    }
    // A program gets the path as its one argument.
    {
        Masina m;
        m.instalate = {"soffice"};
        MesajeInregistrate mesaje;
        EXPECT_TRUE(DeschideDocument(Cale, 2, m.Mediu(), mesaje));
        ASSERT_EQ(m.pornite.size(), 1);
        EXPECT_EQ(m.pornite[0].first, QStringLiteral("/usr/bin/soffice"));
        EXPECT_EQ(m.pornite[0].second, QStringList{QDir::toNativeSeparators(Cale)});
        EXPECT_TRUE(m.deschise.isEmpty());
        EXPECT_TRUE(mesaje.mesaje.empty());
    }
    // Each failure names its cause, then the advice on its own line.
    const struct {
        int appWord;
        QSet<QString> instalate;
        const char* motivPornire;
        bool implicitReuseste;
        QString mesaj;
    } esecuri[] = {
        {2, {}, "", true, QStringLiteral("Programul soffice nu este instalat. \n") + SfatOptiuni},
        {2, {"soffice"}, "Permisiune refuzata", true, QStringLiteral("Permisiune refuzata \n") + SfatOptiuni},
        {1,
         {},
         "",
         false,
         QStringLiteral("Nici o aplicatie nu a deschis fisierul %1. \n").arg(QDir::toNativeSeparators(Cale)) +
             SfatOptiuni},
        {4,
         {},
         "",
         false,
         QStringLiteral("Nici o aplicatie nu a deschis fisierul %1. \n").arg(QDir::toNativeSeparators(Cale)) +
             SfatOptiuni},
    };
    for (const auto& e : esecuri) {
        Masina m;
        m.instalate = e.instalate;
        m.motivPornire = QString::fromLatin1(e.motivPornire);
        m.implicitReuseste = e.implicitReuseste;
        MesajeInregistrate mesaje;
        EXPECT_FALSE(DeschideDocument(Cale, e.appWord, m.Mediu(), mesaje)) << e.appWord;
        EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Critic), QStringList{e.mesaj}) << e.appWord;
    }
    // A value that names no application opens nothing and says nothing.
    {
        Masina m;
        MesajeInregistrate mesaje;
        EXPECT_TRUE(DeschideDocument(Cale, 7, m.Mediu(), mesaje));
        EXPECT_TRUE(m.deschise.isEmpty() && m.pornite.isEmpty() && mesaje.mesaje.empty());
    }
}

TEST(DeschideDocument, DeschidereaTiparirii) {
    {
        Masina m;
        MesajeInregistrate mesaje;
        EXPECT_FALSE(DeschideDispozitiile(Cale, 3, m.Mediu(), mesaje));
        EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Informatie),
                  QStringList{QStringLiteral("Aceasta varianta nu e finalizata!")});
        EXPECT_TRUE(m.deschise.isEmpty() && m.pornite.isEmpty());
    }
    {
        Masina m;
        m.instalate = {"wps"};
        MesajeInregistrate mesaje;
        EXPECT_TRUE(DeschideDispozitiile(Cale, 5, m.Mediu(), mesaje));
        EXPECT_TRUE(m.deschise.isEmpty() && m.pornite.isEmpty() && mesaje.mesaje.empty());
    }
    {
        Masina m;
        MesajeInregistrate mesaje;
        EXPECT_FALSE(DeschideDispozitiile(Cale, 2, m.Mediu(), mesaje));
        EXPECT_EQ(mesaje.Texte(),
                  QStringList{QStringLiteral("Programul soffice nu este instalat. \n") + SfatDispozitii});
    }
    {
        Masina m;
        MesajeInregistrate mesaje;
        EXPECT_TRUE(DeschideDispozitiile(Cale, 1, m.Mediu(), mesaje));
        EXPECT_EQ(m.deschise, QList<QUrl>{QUrl::fromLocalFile(Cale)});
    }
}

TEST(DeschideDocument, FaraDeschizatorImplicitNuSeDeschideNimicSiSeSpune) {
    // The system environment leaves the default application to the window; a caller that forgets
    // it is told rather than silently ignored.
    MediuDeschidere d = MediuDeschidere::Sistem();
    EXPECT_FALSE(d.DeschideImplicit);
    MesajeInregistrate mesaje;
    EXPECT_FALSE(DeschideDocument(Cale, 1, d, mesaje));
    ASSERT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_TRUE(mesaje.mesaje[0].text.endsWith(SfatOptiuni));
    // A program that is not there is not found.
    EXPECT_TRUE(
        d.CautaProgram(QStringLiteral("ferolanta-program-inexistent"), {QStringLiteral("/nu/exista")}).isEmpty());
    EXPECT_FALSE(d.PornesteProgram(QStringLiteral("/nu/exista/program"), {}).isEmpty());
}

} // namespace
