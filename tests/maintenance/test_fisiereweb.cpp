#include "maintenance/FisiereWeb.h"
#include "support/ServerHttpTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

const QByteArray Pagina = "<!DOCTYPE html>\n<HTML><body>formulare</body></HTML>\n";
const QByteArray Interogari = "SELECT * FROM Cereri WHERE CerereID = ${CerereID};\r\nSELECT 1;\r\n";

QByteArray Citeste(const QString& cale) {
    QFile f(cale);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<lipsa>");
}

void Scrie(const QString& cale, const QByteArray& b) {
    QDir().mkpath(QFileInfo(cale).absolutePath());
    QFile f(cale);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(b);
}

struct Birou {
    QTemporaryDir dir;
    ServerHttpTest server;
    Updater::Mediu m;
    PunteWeb::MediuWeb w;
    Birou() {
        m.baza = server.Adresa(T("/update-ferolanta/"));
        m.exe = T("ferolanta");
        m.folderProgram = m.folderExecutabil = dir.path();
        m.timpMaximMs = 2000;
        w = PunteWeb::MediuWeb::DinApplicationPath(dir.path(), QString());
    }
};

// What the office has and what the server gives, and what the office has afterwards. A file
// is replaced only by one that passes its check, and the query file only when its text changed.
TEST(FisiereWeb, PaginaSiInterogari) {
    const QByteArray lipsa = "<lipsa>";
    const QByteArray alteRupturi = QByteArray(Interogari).replace("\r\n", "\n");
    const QByteArray modificare = "SELECT 2;\r\n";
    struct Caz {
        const char* nume;
        QByteArray paginaLocala, paginaServer, sqlLocal, sqlServer;
        QByteArray paginaDupa, sqlDupa;
    };
    const Caz cazuri[] = {
        {"lipsesc amandoua", lipsa, Pagina, lipsa, Interogari, Pagina, Interogari},
        {"pagina nu e html", lipsa, "eroare 500", lipsa, Interogari, lipsa, Interogari},
        {"pagina locala ramane", "a mea <html>", Pagina, Interogari, Interogari, "a mea <html>", Interogari},
        {"alte capete de rand", Pagina, Pagina, alteRupturi, Interogari, Pagina, alteRupturi},
        {"interogari schimbate", Pagina, Pagina, Interogari, modificare, Pagina, modificare},
        {"interogare care scrie", Pagina, Pagina, Interogari, "SELECT 1;\nDELETE FROM Cereri;", Pagina, Interogari},
        {"interogari goale", Pagina, Pagina, Interogari, "-- nimic\n", Pagina, Interogari},
        {"nu e utf-8", Pagina, Pagina, Interogari, "SELECT '\xff\xfe';", Pagina, Interogari},
    };
    for (const Caz& c : cazuri) {
        Birou b;
        if (c.paginaLocala != lipsa) Scrie(b.w.pagina, c.paginaLocala);
        if (c.sqlLocal != lipsa) Scrie(b.w.fisierInterogari, c.sqlLocal);
        b.server.Pune(T("/update-ferolanta/StartCerereWeb.html"), c.paginaServer);
        b.server.Pune(T("/update-ferolanta/ferolanta/Acte/sql_cerere.txt"), c.sqlServer);
        const auto r = FisiereWeb::Actualizeaza(b.m, b.w);
        EXPECT_EQ(Citeste(b.w.pagina), c.paginaDupa) << c.nume;
        EXPECT_EQ(Citeste(b.w.fisierInterogari), c.sqlDupa) << c.nume;
        EXPECT_EQ(r.paginaScrisa, c.paginaLocala != c.paginaDupa) << c.nume;
        EXPECT_EQ(r.interogariScrise, c.sqlLocal != c.sqlDupa) << c.nume;
    }
}

TEST(FisiereWeb, FontulDoarDacaEsteFont) {
    const QByteArray umplutura(400, 'x');
    const std::pair<QByteArray, bool> cazuri[] = {
        {QByteArray("\x00\x01\x00\x00", 4) + umplutura, true},
        {"OTTO" + umplutura, true},
        {"true" + umplutura, true},
        {"<html>" + umplutura, false},
        {QByteArray("\x00\x01\x00\x00", 4), false},
    };
    for (const auto& [corp, valid] : cazuri) {
        Birou b;
        b.server.Pune(T("/update-ferolanta/MTCORSVA.TTF"), corp);
        const QString cale = FisiereWeb::DescarcaFont(b.m, b.dir.path());
        EXPECT_EQ(cale.isEmpty(), !valid) << corp.left(6).toHex().constData();
        EXPECT_EQ(QFile::exists(FisiereWeb::CaleFont(b.dir.path())), valid);
    }
    // A font the office already has is not asked for again.
    Birou b;
    Scrie(FisiereWeb::CaleFont(b.dir.path()), "al biroului");
    EXPECT_EQ(FisiereWeb::DescarcaFont(b.m, b.dir.path()), FisiereWeb::CaleFont(b.dir.path()));
    EXPECT_TRUE(b.server.cereri.isEmpty());
}

} // namespace
