#include "maintenance/Updater.h"
#include "support/BazaTest.h"
#include "support/ServerHttpTest.h"
#include "support/Texte.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using Updater::Mediu;

namespace {

const QByteArray BuildVechi = "program vechi";
const QByteArray BuildNou = QByteArray("program nou\0\x01\xff", 15);

QByteArray Suma(const QByteArray& b) {
    return QCryptographicHash::hash(b, QCryptographicHash::Sha256).toHex();
}

QByteArray Citeste(const QString& cale) {
    QFile f(cale);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<lipsa>");
}

void Scrie(const QString& cale, const QByteArray& b) {
    QFile f(cale);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(b);
}

// A portable install in a temporary folder, its old executable and version.txt, and a server that
// publishes a newer build with its checksum and the thresholds.
struct Instalare {
    QTemporaryDir dir;
    ServerHttpTest server;
    Mediu m;

    Instalare(const QByteArray& versiuneLocala = "1.9\r\n") {
        m.baza = server.Adresa(QStringLiteral("/update-ferolanta/"));
        m.exe = QStringLiteral("ferolanta");
        m.folderProgram = m.folderExecutabil = dir.path();
        m.portabil = true;
        m.timpMaximMs = 2000;
        Scrie(Executabil(), BuildVechi);
        if (!versiuneLocala.isNull()) Scrie(Versiune(), versiuneLocala);
        server.Pune(Cale("ferolanta/version.txt"), QByteArray("2.0\n"));
        server.Pune(Cale("ferolanta/") + Updater::NumeExecutabil(m.exe), BuildNou);
        server.Pune(Cale("ferolanta/") + Updater::NumeExecutabil(m.exe) + QStringLiteral(".sha256"),
                    Suma(BuildNou).toUpper() + "  ferolanta\n");
        server.Pune(Cale("prag-asf.txt"), QByteArray("300.5|700\r\n"));
    }
    static QString Cale(const char* relativ) { return QStringLiteral("/update-ferolanta/") + T(relativ); }
    QString Executabil() const { return QDir(dir.path()).filePath(Updater::NumeExecutabil(m.exe)); }
    QString Versiune() const { return QDir(dir.path()).filePath(QStringLiteral("version.txt")); }
    QString Nou() const { return QDir(dir.path()).filePath(Updater::NumeExecutabil(Updater::Nou)); }
    bool BuildCerut() const { return server.cereri.contains(Cale("ferolanta/") + Updater::NumeExecutabil(m.exe)); }
    // Nothing of the program folder changed.
    void Neatins(const QByteArray& versiune) const {
        EXPECT_EQ(Citeste(Executabil()), BuildVechi);
        EXPECT_EQ(Citeste(Versiune()), versiune);
        EXPECT_FALSE(QFile::exists(Nou()));
    }
};

TEST(AdresaActualizare, NumaiHttpsSauCalculatorulPropriu) {
    const std::pair<const char*, bool> cazuri[] = {
        {"https://actualizari.ferolanta.ro/update-ferolanta/", true},
        {"https://10.1.1.1/u/", true},
        {"http://127.0.0.1:8080/update-ferolanta/", true},
        {"http://127.0.0.9/", true},
        {"http://localhost/update-ferolanta/", true},
        {"http://[::1]:81/", true},
        {"http://actualizari.ferolanta.ro/update-ferolanta/", false},
        {"http://192.168.0.10/", false},
        {"http://127.0.0.1.nip.io/", false},
        {"ftp://127.0.0.1/", false},
        {"file:///tmp/update-ferolanta/", false},
        {"", false},
    };
    for (const auto& [adresa, permis] : cazuri)
        EXPECT_EQ(Descarcare::AdresaPermisa(QUrl(T(adresa))), permis) << adresa;
}

TEST(AdresaActualizare, BazaEsteUnFolder) {
    EXPECT_EQ(Updater::BazaDinText(T(" https://a.ro/update-ferolanta ")).toString(),
              T("https://a.ro/update-ferolanta/"));
    EXPECT_TRUE(Updater::BazaDinText(T("   ")).isEmpty());
    EXPECT_TRUE(Updater::BazaDinText(T("update-ferolanta")).isEmpty());
}

TEST(TextActualizare, CuratareSiSumaDeControl) {
    const std::pair<const char*, const char*> texte[] = {
        {" 2.0 \r\n", "2.0"}, {"2.\r\n0\n", "2.0"}, {"\r\n\r\n", ""}, {"a b\rc", "a bc"}};
    for (const auto& [text, curat] : texte)
        EXPECT_EQ(Updater::CuratareText(T(text)), T(curat)) << text;

    const QByteArray s = Suma(BuildNou);
    const std::pair<QByteArray, bool> sume[] = {
        {s, true},
        {"  " + s.toUpper() + " *ferolanta.exe\r\n", true},
        {s.left(63), false},
        {s.left(63) + "g", false},
        {Suma(BuildVechi), false},
        {"", false},
    };
    for (const auto& [fisier, corespunde] : sume)
        EXPECT_EQ(Updater::SumaCorespunde(BuildNou, fisier), corespunde) << fisier.constData();
}

class ActualizareProgram : public TestBaza {
protected:
    std::optional<QString> Praguri() { return Updater::PraguriCurente(Bd()); }
    // The pass as start-up runs it: the network and the folder, then the database.
    Updater::RezultatVerificare Pas(const Mediu& m) {
        auto r = Updater::Verifica(m, Praguri());
        if (r.praguri) Updater::AplicaPraguri(Bd(), *r.praguri);
        return r;
    }
};

// The three steps: the old build takes the verified one and hands over, the helper copies itself
// over the old file, the new build cleans up, finds itself current and takes the thresholds.
TEST_P(ActualizareProgram, VersiuneNouaInTreiPasi) {
    BazaNoua();
    Instalare i;
    const auto praguriInainte = Praguri();
    qint64 primit = 0;
    i.m.progresBuild = [&](qint64 p, qint64) { primit = p; };

    const auto r = Pas(i.m);
    EXPECT_EQ(primit, BuildNou.size()) << "the window hears the build come in";
    ASSERT_TRUE(r.predare) << S(r.refuz);
    EXPECT_EQ(r.predare->program, i.Nou());
    EXPECT_EQ(r.predare->argumente, QStringList{T("--clone@ferolanta")});
    EXPECT_EQ(Citeste(i.Nou()), BuildNou);
    EXPECT_TRUE(QFileInfo(i.Nou()).isExecutable());
    EXPECT_EQ(Citeste(i.Versiune()), "2.0");
    EXPECT_EQ(Citeste(i.Executabil()), BuildVechi) << "the running file is left to the helper";
    EXPECT_EQ(Praguri(), praguriInainte) << "the program ends before the thresholds";

    const auto a = Updater::CitesteArgumente(r.predare->argumente);
    ASSERT_TRUE(a);
    EXPECT_EQ(a->verb, T("--clone"));
    const auto c = Updater::Cloneaza(i.Nou(), a->operand);
    EXPECT_TRUE(c.reusit);
    EXPECT_EQ(Citeste(i.Executabil()), BuildNou);
    EXPECT_TRUE(QFileInfo(i.Executabil()).isExecutable());
    EXPECT_EQ(c.urmator.program, i.Executabil());

    EXPECT_TRUE(Updater::TocmaActualizat(c.urmator.argumente, i.m));
    EXPECT_FALSE(QFile::exists(i.Nou()));
    i.server.cereri.clear();
    const auto dupa = Pas(i.m);
    EXPECT_FALSE(dupa.predare);
    EXPECT_FALSE(i.BuildCerut());
    EXPECT_EQ(Praguri(), T("300.5|700"));
}

// The server's text differs only in blanks and line ends: nothing is downloaded or written, and
// the thresholds are taken only in the form the scale editor writes.
TEST_P(ActualizareProgram, AceeasiVersiuneSiPraguri) {
    BazaNoua();
    const auto livrate = Praguri();
    ASSERT_TRUE(livrate);
    const std::pair<const char*, std::optional<QString>> praguri[] = {
        {"", livrate},
        {"\r\n  \r\n", livrate},
        {"300,5|700", livrate},
        {"300.5", livrate},
        {"0|700", livrate},
        {"<html>eroare</html>", livrate},
        {" 250.75|600 \r\n", T("250.75|600")},
    };
    for (const auto& [text, asteptat] : praguri) {
        Instalare i("2.0");
        i.server.Pune(Instalare::Cale("ferolanta/version.txt"), QByteArray(" 2.0 \r\n\r\n"));
        i.server.Pune(Instalare::Cale("prag-asf.txt"), QByteArray(text));
        const auto r = Pas(i.m);
        EXPECT_FALSE(r.predare) << text;
        EXPECT_FALSE(i.BuildCerut()) << text;
        i.Neatins("2.0");
        EXPECT_EQ(Praguri(), asteptat) << text;
    }
}

// A due build that can't be trusted or may not be replaced: nothing is written and the pass goes
// on to the thresholds.
TEST_P(ActualizareProgram, BuildRefuzat) {
    BazaNoua();
    const QString build = Instalare::Cale("ferolanta/") + Updater::NumeExecutabil(T("ferolanta"));
    enum class Caz { SumaGresita, FaraSuma, BuildLipsa, Instalat };
    for (const Caz caz : {Caz::SumaGresita, Caz::FaraSuma, Caz::BuildLipsa, Caz::Instalat}) {
        Instalare i;
        if (caz == Caz::SumaGresita) i.server.Pune(build + T(".sha256"), Suma(BuildVechi));
        if (caz == Caz::FaraSuma) i.server.Pune(build + T(".sha256"), {404, "lipsa", {}, false});
        if (caz == Caz::BuildLipsa) i.server.Pune(build, {500, "", {}, false});
        if (caz == Caz::Instalat) i.m.portabil = false;
        const auto r = Pas(i.m);
        EXPECT_FALSE(r.predare) << int(caz);
        EXPECT_EQ(r.refuz.isEmpty(), caz == Caz::Instalat) << int(caz);
        EXPECT_EQ(i.BuildCerut(), caz != Caz::Instalat) << int(caz);
        i.Neatins("1.9\r\n");
        EXPECT_TRUE(i.server.cereri.contains(Instalare::Cale("prag-asf.txt"))) << int(caz);
    }
    EXPECT_EQ(Praguri(), T("300.5|700"));
}

// A redirect to another host, of the version or of the build, is not followed; one within the
// same server is.
TEST_P(ActualizareProgram, RedirectareCatreAltServer) {
    BazaNoua();
    const QString build = Instalare::Cale("ferolanta/") + Updater::NumeExecutabil(T("ferolanta"));
    for (const bool laBuild : {false, true}) {
        Instalare i;
        const QString tinta = laBuild ? build : Instalare::Cale("ferolanta/version.txt");
        const QString mutat = T("/mutat") + tinta;
        i.server.Pune(mutat, laBuild ? BuildNou : QByteArray("2.0"));
        i.server.Pune(tinta, {302, "", i.server.Adresa(mutat, T("localhost")).toEncoded(), false});
        const auto r = Pas(i.m);
        EXPECT_FALSE(r.predare) << laBuild;
        EXPECT_FALSE(i.server.cereri.contains(mutat)) << laBuild;
        i.Neatins("1.9\r\n");
    }
    Instalare i;
    const QString mutat = T("/update-ferolanta/ferolanta/v2.txt");
    i.server.Pune(mutat, QByteArray("2.0"));
    i.server.Pune(Instalare::Cale("ferolanta/version.txt"), {301, "", i.server.Adresa(mutat).toEncoded(), false});
    EXPECT_TRUE(Pas(i.m).predare);
}

// A server that takes the request and never answers: the pass gives up after its time-out, asks
// for nothing more and writes nothing.
TEST_P(ActualizareProgram, ServerCareNuRaspunde) {
    BazaNoua();
    const auto livrate = Praguri();
    Instalare i{QByteArray()};
    i.m.timpMaximMs = 300;
    i.server.Pune(Instalare::Cale("ferolanta/version.txt"), {200, "", {}, true});
    const auto r = Pas(i.m);
    EXPECT_FALSE(r.serverRaspunde);
    EXPECT_EQ(i.server.cereri, QStringList{Instalare::Cale("ferolanta/version.txt")});
    EXPECT_EQ(Citeste(i.Executabil()), BuildVechi);
    EXPECT_FALSE(QFile::exists(i.Versiune()));
    EXPECT_FALSE(QFile::exists(i.Nou()));
    EXPECT_EQ(Praguri(), livrate);
}

PE_AMBELE_MOTOARE(ActualizareProgram);

TEST(PredareActualizare, ArgumenteSiNume) {
    const std::tuple<QStringList, const char*, const char*> cazuri[] = {
        {{T("--clone@ferolanta")}, "--clone", "ferolanta"},
        {{T("--delete@new")}, "--delete", "new"},
        {{T("x"), T("--clone@a"), T("b")}, "x --clone", "a b"},
    };
    for (const auto& [arg, verb, operand] : cazuri) {
        const auto a = Updater::CitesteArgumente(arg);
        ASSERT_TRUE(a) << S(arg.join(u' '));
        EXPECT_EQ(a->verb, T(verb));
        EXPECT_EQ(a->operand, T(operand));
    }
    EXPECT_FALSE(Updater::CitesteArgumente({T("--delete"), T("new")}));

    // The helper copies only over a program of its own folder.
    QTemporaryDir dir;
    const QString sursa = QDir(dir.path()).filePath(Updater::NumeExecutabil(Updater::Nou));
    Scrie(sursa, BuildNou);
    for (const char* operand : {"../ferolanta", "/tmp/ferolanta", "", "..", "a/b"}) {
        const auto c = Updater::Cloneaza(sursa, T(operand));
        EXPECT_FALSE(c.reusit) << operand;
        EXPECT_TRUE(c.urmator.program.isEmpty()) << operand;
    }

    // With updates switched off, or no server set, the command line is not looked at.
    const QString ini = QDir(dir.path()).filePath(T("setari207.ini"));
    Scrie(ini, "[Generale]\r\nOpresteActualizareAutomata=1\r\nServerActualizare=https://a.ro/u/\r\n");
    EXPECT_FALSE(Updater::ClonareLaPornire({T("--clone@ferolanta")}, ini, sursa));
    Scrie(ini, "[Generale]\r\nOpresteActualizareAutomata=0\r\n");
    EXPECT_FALSE(Updater::ClonareLaPornire({T("--clone@ferolanta")}, ini, sursa));
    Scrie(ini, "[Generale]\r\nOpresteActualizareAutomata=0\r\nServerActualizare=https://a.ro/u/\r\n");
    EXPECT_FALSE(Updater::ClonareLaPornire({T("--delete@new")}, ini, sursa));
    const auto c = Updater::ClonareLaPornire({T("--clone@ferolanta")}, ini, sursa);
    ASSERT_TRUE(c);
    EXPECT_TRUE(c->reusit);
    EXPECT_EQ(Citeste(c->tinta), BuildNou);
}

} // namespace
