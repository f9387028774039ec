#include "documents/DeschideDocument.h"
#include "support/MesajeInregistrate.h"
#include "support/Texte.h"

#include <QDir>
#include <QSet>
#include <gtest/gtest.h>

namespace {

const QString Cale = T("/date/Ferolanta/Disp.rtf");

// A machine with some programs installed under /usr/bin; records what it is asked to do.
struct Masina {
    QSet<QString> instalate;
    QString motivPornire; // what a start answers; empty: it starts
    bool implicitReuseste = true;
    QList<QUrl> deschise;
    QList<QPair<QString, QStringList>> pornite;

    MediuDeschidere Mediu() {
        MediuDeschidere d;
        d.CautaProgram = [this](const QString& nume, const QStringList&) {
            return instalate.contains(nume) ? T("/usr/bin/") + nume : QString();
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

// The choice by AppWord: no fallback for a program the clerk asked for, the desktop's default where a
// kind has none installed, nothing for a value that names no application; the bulk printing of
// dispositions offers less. The default application gets the file as a local URL, a program its path;
// each failure names its cause.
TEST(DeschideDocument, AlegereaSiDeschidereaDupaAppWord) {
    const struct {
        bool dispozitii;
        int appWord;
        QSet<QString> instalate;
        const char* motivPornire;
        bool implicitReuseste;
        bool deschis;
        const char* pornit; // "implicit", a program, or "" for nothing
        const char* cauza;  // a word of the message, null for none
    } cazuri[] = {
        {false, 1, {"soffice", "wps"}, "", true, true, "implicit", nullptr},
        {false, 2, {"soffice", "libreoffice"}, "", true, true, "/usr/bin/soffice", nullptr},
        {false, 2, {"libreoffice"}, "", true, true, "/usr/bin/libreoffice", nullptr},
        {false, 2, {"wps", "abiword"}, "", true, false, "", "soffice"},
        {false, 2, {"soffice"}, "Permisiune refuzata", true, false, "/usr/bin/soffice", "Permisiune refuzata"},
        {false, 3, {"wordpad", "abiword"}, "", true, true, "/usr/bin/wordpad", nullptr},
        {false, 3, {"soffice"}, "", true, true, "implicit", nullptr},
        {false, 4, {"wps", "soffice"}, "", true, true, "/usr/bin/wps", nullptr},
        {false, 5, {}, "", false, false, "implicit", "Disp.rtf"},
        {false, 6, {"soffice", "wps"}, "", true, true, "", nullptr},
        {true, 2, {}, "", true, false, "", "soffice"},
        {true, 3, {"abiword"}, "", true, false, "", "finalizata"},
        {true, 4, {"wps"}, "", true, true, "", nullptr},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(std::to_string(c.dispozitii) + " " + std::to_string(c.appWord));
        Masina m;
        m.instalate = c.instalate;
        m.motivPornire = T(c.motivPornire);
        m.implicitReuseste = c.implicitReuseste;
        MesajeInregistrate spus;
        EXPECT_EQ(c.dispozitii ? DeschideDispozitiile(Cale, c.appWord, m.Mediu(), spus)
                               : DeschideDocument(Cale, c.appWord, m.Mediu(), spus),
                  c.deschis);
        const QString pornit = T(c.pornit);
        EXPECT_EQ(m.deschise, pornit == T("implicit") ? QList<QUrl>{QUrl::fromLocalFile(Cale)} : QList<QUrl>());
        EXPECT_EQ(m.pornite.size(), pornit.startsWith(u'/') ? 1 : 0);
        if (!m.pornite.isEmpty()) {
            EXPECT_EQ(m.pornite[0].first, pornit);
            EXPECT_EQ(m.pornite[0].second, QStringList{QDir::toNativeSeparators(Cale)});
        }
        EXPECT_EQ(spus.mesaje.size(), c.cauza ? 1u : 0u);
        EXPECT_TRUE(!c.cauza || spus.Texte().join(u' ').contains(T(c.cauza))) << spus.Texte().join(u' ').toStdString();
    }
}

} // namespace
