#include "base/Foldere.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

namespace SF = ServiciuFisiere;

class FisierSetari : public ::testing::Test {
protected:
    QString Ini() const { return QDir(dir_.path()).filePath(Foldere::FisierSetari); }

    void ScrieOcteti(const QByteArray& continut) const {
        QFile f(Ini());
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(continut);
    }
    void ScrieCheie(const char* sectiune, const char* cheie, const char* valoare) const {
        ScrieOcteti(QByteArray("[") + sectiune + "]\n" + cheie + '=' + valoare + '\n');
    }
    QByteArray Octeti() const {
        QFile f(Ini());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    std::string Citeste(const char* sectiune, const char* cheie) const {
        return S(SF::CitesteIni(Ini(), QLatin1String(sectiune), QLatin1String(cheie)));
    }
    // "Sectiune/Cheie" for every key of the file, in file order.
    std::vector<std::string> Chei() const {
        std::vector<std::string> chei;
        QString sectiune;
        for (const QByteArray& rand : Octeti().split('\n')) {
            const QString r = QString::fromLatin1(rand).trimmed();
            if (r.startsWith(u'[') && r.endsWith(u']'))
                sectiune = r.mid(1, r.size() - 2);
            else if (r.contains(u'='))
                chei.push_back(S(sectiune + u'/' + r.section(u'=', 0, 0).trimmed()));
        }
        return chei;
    }

private:
    QTemporaryDir dir_;
};

// A member of Setari as text, so that one table can name members of any type.
using Membru = std::function<std::string(const Setari&)>;
template <class T> Membru M(T Setari::*m) {
    return [m](const Setari& s) {
        if constexpr (std::is_same_v<T, QString>)
            return S(s.*m);
        else
            return std::to_string(s.*m);
    };
}

// The keys that a start writes back when they are 0 or empty, in the order of reading, with their defaults.
struct CheieScrisa {
    const char* sectiune;
    const char* cheie;
    const char* implicit;
};
const CheieScrisa ScriseInapoi[] = {
    {"Fonturi", "FontSize0", "10"},
    {"Fonturi", "FontName0", "Times New Roman"},
    {"Fisiere", "Anexa3", "Centralizator.xls"},
    {"Fisiere", "Anexa4", "Statistica.xls"},
    {"Fisiere", "StatPlata", "StatPlata.xls"},
    {"Borderou", "HeightRowBorderou", "36"},
    {"Raport", "HeightRowRaport", "36"},
    {"App", "AppWord", "1"},
    {"Generale", "DataCerereTiparita", "1"},
};

TEST_F(FisierSetari, FisierLipsaPrimesteDoarImpliciteleScriseInapoi) {
    // Read only: the same defaults in memory, nothing written.
    EXPECT_TRUE(IncarcaSetari(Ini(), false) == Setari{});
    EXPECT_TRUE(Chei().empty());

    const Setari s = IncarcaSetari(Ini());
    EXPECT_TRUE(s == Setari{}) << "a missing file gives the defaults in memory";
    EXPECT_EQ(s.FontSize0, 10);
    EXPECT_EQ(S(s.FontName0), "Times New Roman");
    EXPECT_EQ(s.LunaSetata, 1);
    EXPECT_EQ(s.AnSetat, 2013);
    EXPECT_TRUE(s.AfisCereri);
    EXPECT_EQ(S(s.ServerCerere), S(ServerCerereImplicit));
    EXPECT_TRUE(ServerCerereImplicit.startsWith(QStringLiteral("https://")));
    EXPECT_TRUE(s.CaleBD.isEmpty()) << "the empty rule of CaleBD belongs to start-up";

    std::vector<std::string> asteptate;
    for (const auto& c : ScriseInapoi) {
        asteptate.push_back(std::string(c.sectiune) + '/' + c.cheie);
        EXPECT_EQ(Citeste(c.sectiune, c.cheie), c.implicit) << c.cheie;
    }
    EXPECT_EQ(Chei(), asteptate) << "only the written-back keys are created, in the order of reading";

    // The next start finds them and writes nothing.
    const QByteArray dupaPrima = Octeti();
    EXPECT_TRUE(IncarcaSetari(Ini()) == s);
    EXPECT_EQ(Octeti(), dupaPrima);
}

// How each key is read at start; inFisier is what the file holds afterwards, null where the stored
// text is never written back (rules kept in memory, values out of their type's range).
TEST_F(FisierSetari, CheieCititaSiCeRamaneInFisier) {
    struct {
        const char* sectiune;
        const char* cheie;
        const char* stocat;
        Membru membru;
        std::string inMemorie;
        const char* inFisier;
    } cazuri[] = {
        {"Borderou", "HeightRowBorderou", "0", M(&Setari::HeightRowBorderou), "36", "36"},
        {"Borderou", "HeightRowBorderou", "20", M(&Setari::HeightRowBorderou), "20", "20"},
        {"Raport", "HeightRowRaport", "", M(&Setari::HeightRowRaport), "36", "36"},
        {"Raport", "HeightRowRaport", "abc", M(&Setari::HeightRowRaport), "36", "36"},
        {"Fonturi", "FontSize0", "0.4", M(&Setari::FontSize0), "10", "10"},
        {"Fonturi", "FontSize0", "0.6", M(&Setari::FontSize0), "1", "0.6"},
        {"Fonturi", "FontSize0", " 1 2 ", M(&Setari::FontSize0), "12", "1 2"},
        {"Fonturi", "FontName0", "", M(&Setari::FontName0), "Times New Roman", "Times New Roman"},
        {"Fonturi", "FontName0", "Arial", M(&Setari::FontName0), "Arial", "Arial"},
        {"Fisiere", "Anexa3", "", M(&Setari::Anexa3), "Centralizator.xls", "Centralizator.xls"},
        {"Fisiere", "Anexa4", "", M(&Setari::Anexa4), "Statistica.xls", "Statistica.xls"},
        {"Fisiere", "StatPlata", "", M(&Setari::StatPlata), "StatPlata.xls", "StatPlata.xls"},
        {"Fisiere", "StatPlata", "Plata mai.xls", M(&Setari::StatPlata), "Plata mai.xls", "Plata mai.xls"},
        {"App", "AppWord", "0", M(&Setari::AppWord), "1", "1"},
        {"App", "AppWord", "2", M(&Setari::AppWord), "2", "2"},
        {"Generale", "DataCerereTiparita", "0", M(&Setari::DataCerereTiparita), "1", "1"},
        {"Generale", "DataCerereTiparita", "2", M(&Setari::DataCerereTiparita), "2", "2"},

        {"Afisari", "AfisCereri", "0", M(&Setari::AfisCereri), "1", nullptr},
        {"Setari", "LunaSetata", "0", M(&Setari::LunaSetata), "1", nullptr},
        {"Setari", "LunaSetata", "7", M(&Setari::LunaSetata), "7", nullptr},
        {"Setari", "AnSetat", "0", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "AnSetat", "2024", M(&Setari::AnSetat), "2024", nullptr},
        {"Generale", "ServerCerere", "", M(&Setari::ServerCerere), S(ServerCerereImplicit), nullptr},
        {"Generale", "ServerCerere", "https://asf.primarie.ro/", M(&Setari::ServerCerere), "https://asf.primarie.ro/",
         nullptr},
        {"Generale", "AfisSerieStatPlata", "1", M(&Setari::AfisSerieStatPlata), "0", nullptr},
        {"Generale", "pass", "Secret 1", M(&Setari::Parola), "Secret 1", nullptr},
        {"Generale", "CaleBD", "", M(&Setari::CaleBD), "", nullptr},
        {"Generale", "CaleBD", "/srv/asf", M(&Setari::CaleBD), "/srv/asf", nullptr},
        {"Generale", "CuloareVenit", "197121", M(&Setari::CuloareVenit), "197121", nullptr},
        {"Cale", "CaleWord", "C:\\Word", M(&Setari::CaleWord), "", nullptr},
        {"Ordonari", "NrCerereAnexa3", "NrDispozitie", M(&Setari::NrCerereAnexa3), "NrDispozitie", nullptr},
        {"Generale", "StrSat", "Satul", M(&Setari::StrSat), "Satul", nullptr},
        {"Generale", "LoadTipCerere", "2", M(&Setari::LoadTipCerere), "2", nullptr},
        {"Oblig", "NrCaractSerie", "8", M(&Setari::NrCaractSerie), "8", nullptr},

        {"Fonturi", "FontSize0", "300", M(&Setari::FontSize0), "10", nullptr},
        {"Fonturi", "FontSize0", "255", M(&Setari::FontSize0), "255", nullptr},
        {"Fonturi", "FontSize0", "-3", M(&Setari::FontSize0), "10", nullptr},
        {"Setari", "AnSetat", "40000", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "AnSetat", "2100", M(&Setari::AnSetat), "2100", nullptr},
        {"Setari", "AnSetat", "2101", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "AnSetat", "1999", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "AnSetat", "-3", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "LunaSetata", "13", M(&Setari::LunaSetata), "1", nullptr},
        {"Setari", "LunaSetata", "-1", M(&Setari::LunaSetata), "1", nullptr},
        {"App", "AppWord", "-1", M(&Setari::AppWord), "1", nullptr},
        {"Setari", "LunaSetata", "abc", M(&Setari::LunaSetata), "1", nullptr},
        {"Setari", "LunaSetata", "12,7", M(&Setari::LunaSetata), "12", nullptr},
        {"Setari", "LunaSetata", "1e3", M(&Setari::LunaSetata), "1", nullptr},
        {"Raport", "HeightRowRaport", "256", M(&Setari::HeightRowRaport), "36", nullptr},
        {"Borderou", "HeightRowBorderou", "&HFF", M(&Setari::HeightRowBorderou), "255", nullptr},
        // Rounded half to even before the range is checked.
        {"Oblig", "NrCaractSerie", "254.5", M(&Setari::NrCaractSerie), "254", nullptr},
        {"Oblig", "NrCaractSerie", "255.5", M(&Setari::NrCaractSerie), "0", nullptr},
        {"Generale", "LoadTipCerere", "2.5", M(&Setari::LoadTipCerere), "2", nullptr},
        {"Generale", "LoadTipCerere", "1.5", M(&Setari::LoadTipCerere), "2", nullptr},
        {"Generale", "LoadTipCerere", "-0.4", M(&Setari::LoadTipCerere), "0", nullptr},
        {"Generale", "DataCerereTiparita", "1000", M(&Setari::DataCerereTiparita), "1", nullptr},
    };
    for (const auto& c : cazuri) {
        ScrieCheie(c.sectiune, c.cheie, c.stocat);
        const Setari s = IncarcaSetari(Ini());
        EXPECT_EQ(c.membru(s), c.inMemorie) << c.cheie << '=' << c.stocat;
        EXPECT_EQ(Citeste(c.sectiune, c.cheie), c.inFisier ? c.inFisier : c.stocat) << c.cheie << '=' << c.stocat;
    }
}

TEST_F(FisierSetari, FlaguriCitite) {
    struct {
        const char* sectiune;
        const char* cheie;
        Membru membru;
    } flaguri[] = {
        {"Generale", "OpresteActualizareAutomata", M(&Setari::OpresteActualizareAutomata)},
        {"Oblig", "ObligEmailPrimarie", M(&Setari::ObligEmailPrimarie)},
        {"Fonturi", "FontB0", M(&Setari::FontB0)},
        {"Fonturi", "FontI0", M(&Setari::FontI0)},
        {"Fonturi", "FontU0", M(&Setari::FontU0)},
        {"Generale", "Anexa2ExportWord", M(&Setari::Anexa2ExportWord)},
        {"Generale", "ReteaSetat", M(&Setari::ReteaSetat)},
        {"Generale", "Motiv", M(&Setari::Motiv)},
        {"Cereri", "Cerere13Pag", M(&Setari::Cerere13Pag)},
        {"Cereri", "Ancheta14Pag", M(&Setari::Ancheta14Pag)},
        {"Generale", "NotificareActe", M(&Setari::NotificareActe)},
        {"Cereri", "AngajamentPlata", M(&Setari::AngajamentPlata)},
        {"Cereri", "CertificarePrimar", M(&Setari::CertificarePrimar)},
        {"Generale", "NrCerereInAncheta", M(&Setari::NrCerereInAncheta)},
        {"Generale", "NrCerereTiparita", M(&Setari::NrCerereTiparita)},
    };
    const struct {
        const char* stocat;
        const char* citit;
    } valori[] = {{"1", "1"}, {"255", "1"}, {"-1", "1"}, {"0", "0"}, {"", "0"}, {"da", "0"}, {"1000", "1"}};
    for (const auto& v : valori) {
        QFile::remove(Ini());
        for (const auto& f : flaguri)
            SF::ScrieIni(Ini(), QLatin1String(f.sectiune), QLatin1String(f.cheie), QLatin1String(v.stocat));
        const Setari s = IncarcaSetari(Ini());
        for (const auto& f : flaguri)
            EXPECT_EQ(f.membru(s), v.citit) << f.cheie << '=' << v.stocat;
    }
}

TEST_F(FisierSetari, CheiaScrisaDeDouaOriSeCitesteSiSeSchimbaPrimaData) {
    ScrieOcteti("[Setari]\nLunaSetata=4\nAnSetat=2024\nlunasetata=9\n[Generale]\nStrSat=Sat\n");
    EXPECT_EQ(IncarcaSetari(Ini(), false).LunaSetata, 4);
    SF::ScrieIni(Ini(), QStringLiteral("Setari"), QStringLiteral("LunaSetata"), QStringLiteral("6"));
    EXPECT_EQ(IncarcaSetari(Ini(), false).LunaSetata, 6);
    EXPECT_EQ(Chei(), (std::vector<std::string>{"Setari/LunaSetata", "Setari/AnSetat", "Generale/StrSat"}));
}

TEST_F(FisierSetari, FisierVechiInWindows1250) {
    // "Străduţă" and "Centralizator Brăneşti.xls" in Windows-1250: ă = E3, ţ = FE, ş = BA.
    const QByteArray strSat = "Str\xE3"
                              "du\xFE\xE3";
    const QByteArray anexa3 = "Centralizator Br\xE3ne\xBAti.xls";
    ScrieOcteti("[generale]\r\nstrsat=" + strSat + "\r\nCaleBD=C:\\Prim\xE3ria\r\n[FISIERE]\r\nANEXA3=" + anexa3 +
                "\r\n");
    const Setari s = IncarcaSetari(Ini());
    EXPECT_EQ(S(s.StrSat), "Străduţă");
    EXPECT_EQ(S(s.Anexa3), "Centralizator Brăneşti.xls");
    EXPECT_EQ(S(s.CaleBD), "C:\\Primăria");
    EXPECT_EQ(S(s.Anexa4), "Statistica.xls");

    // The defaults written back beside them leave the old bytes as they were.
    const QByteArray dupa = Octeti();
    EXPECT_TRUE(dupa.contains(strSat)) << dupa.toStdString();
    EXPECT_TRUE(dupa.contains(anexa3)) << dupa.toStdString();
    EXPECT_EQ(Citeste("Fisiere", "Anexa4"), "Statistica.xls");
    EXPECT_TRUE(IncarcaSetari(Ini()) == s);
}

// Every key of the options dialog away from its default.
Setari SetariSchimbate() {
    Setari s;
    s.OpresteActualizareAutomata = true;
    s.NrCerereAnexa3 = QStringLiteral("NrDispozitie");
    s.FontSize0 = 12;
    s.FontName0 = QStringLiteral("Arial");
    s.FontB0 = true;
    s.FontI0 = false;
    s.FontU0 = true;
    s.AfisCereri = false;
    s.Anexa3 = QStringLiteral("A3 ianuarie.xls");
    s.Anexa4 = QStringLiteral("A4.xls");
    s.StatPlata = QStringLiteral("Plata.xls");
    s.Anexa2ExportWord = true;
    s.StrSat = QStringLiteral("Sat");
    s.AfisSerieStatPlata = true;
    s.ReteaSetat = true;
    s.Motiv = true;
    s.HeightRowBorderou = 20;
    s.HeightRowRaport = 255;
    s.AppWord = 5;
    s.DataCerereTiparita = 2;
    s.Cerere13Pag = true;
    s.Ancheta14Pag = true;
    s.NotificareActe = true;
    s.AngajamentPlata = true;
    s.CertificarePrimar = true;
    s.NrCerereInAncheta = true;
    s.NrCerereTiparita = true;
    s.ServerCerere = QStringLiteral("https://asf.primarie.ro/cereri/");
    s.CuloareVenit = QStringLiteral("197121");
    return s;
}

TEST_F(FisierSetari, ScrieOptiuniApoiIncarcaSetari) {
    const Setari scrise = SetariSchimbate();
    ScrieOptiuni(Ini(), scrise);

    // The keys in the order the dialog writes them.
    const QString ordine = QStringLiteral(
        "Generale/OpresteActualizareAutomata Ordonari/NrCerereAnexa3 Fonturi/FontSize0 Fonturi/FontName0 "
        "Fonturi/FontB0 Fonturi/FontI0 Fonturi/FontU0 Afisari/AfisCereri Fisiere/Anexa3 Fisiere/Anexa4 "
        "Fisiere/StatPlata Generale/Anexa2ExportWord Generale/StrSat Generale/AfisSerieStatPlata "
        "Generale/ReteaSetat Generale/Motiv Borderou/HeightRowBorderou Raport/HeightRowRaport App/AppWord "
        "Generale/DataCerereTiparita Cereri/Cerere13Pag Cereri/Ancheta14Pag Generale/NotificareActe "
        "Cereri/AngajamentPlata Cereri/CertificarePrimar Generale/NrCerereInAncheta Generale/NrCerereTiparita "
        "Generale/ServerCerere Generale/CuloareVenit Cale/CaleWord");
    // A new file takes the sections in the order they are first written.
    std::vector<std::string> dupaSectiune;
    for (const char* sectiune :
         {"Generale", "Ordonari", "Fonturi", "Afisari", "Fisiere", "Borderou", "Raport", "App", "Cereri", "Cale"})
        for (const QString& c : ordine.split(u' '))
            if (c.startsWith(QLatin1String(sectiune) + u'/')) dupaSectiune.push_back(S(c));
    EXPECT_EQ(Chei(), dupaSectiune);

    const struct {
        const char* sectiune;
        const char* cheie;
        const char* valoare;
    } inFisier[] = {
        {"Generale", "OpresteActualizareAutomata", "1"},
        {"Fonturi", "FontB0", "255"},
        {"Fonturi", "FontI0", "0"},
        {"Fonturi", "FontU0", "255"},
        {"Afisari", "AfisCereri", "0"},
        {"Generale", "Motiv", "1"},
        {"Raport", "HeightRowRaport", "255"},
        {"App", "AppWord", "5"},
        {"Generale", "DataCerereTiparita", "2"},
        {"Generale", "CuloareVenit", "197121"},
        {"Cale", "CaleWord", ""},
    };
    for (const auto& c : inFisier)
        EXPECT_EQ(Citeste(c.sectiune, c.cheie), c.valoare) << c.cheie;

    Setari asteptate = scrise;
    asteptate.AfisCereri = true;          // always on at start
    asteptate.AfisSerieStatPlata = false; // lasts until the program closes
    EXPECT_TRUE(IncarcaSetari(Ini()) == asteptate);
}

TEST_F(FisierSetari, ScrieOptiuniLasaGoaleAdresaImplicitaSiListaNealeasa) {
    Setari s;
    s.NrCerereAnexa3.clear();
    ScrieOptiuni(Ini(), s);
    EXPECT_EQ(Citeste("Generale", "ServerCerere"), "");
    EXPECT_EQ(Citeste("Ordonari", "NrCerereAnexa3"), "");
    EXPECT_EQ(Citeste("Fonturi", "FontB0"), "0");
    EXPECT_EQ(Citeste("Afisari", "AfisCereri"), "1");
    const std::vector<std::string> chei = Chei();
    for (const char* straina : {"Generale/pass", "Generale/CaleBD", "Setari/LunaSetata", "Setari/AnSetat",
                                "Generale/LoadTipCerere", "Oblig/NrCaractSerie", "Oblig/ObligEmailPrimarie"})
        EXPECT_EQ(std::count(chei.begin(), chei.end(), straina), 0) << straina << " is not the dialog's";
    EXPECT_TRUE(IncarcaSetari(Ini()) == s);
}

TEST(Optiuni, VerificaMarimeaFontului) {
    const QString mare = QStringLiteral("Marimea caracterelor nu poate fi mai mare de 72");
    const QString mica = QStringLiteral("Marimea caracterelor nu poate fi mai mica de 2");
    const struct {
        int marime;
        QString refuz;
    } cazuri[] = {{-5, mica}, {0, mica}, {1, mica}, {2, {}}, {10, {}}, {72, {}}, {73, mare}, {255, mare}};
    for (const auto& c : cazuri) {
        ValoriOptiuni v = ValoriDinSetari(Setari{});
        v.FontSize0 = c.marime;
        EXPECT_EQ(S(VerificaOptiuni(v).value_or(QString())), S(c.refuz)) << c.marime;
    }
}

TEST(Optiuni, AplicaOptiuniCitesteNumereleTastate) {
    const struct {
        const char* tastat;
        int citit;
    } inaltimi[] = {{"40", 40}, {" 4 0 ", 40}, {"12,5", 12}, {"12.5", 12}, {"abc", 0},
                    {"", 0},    {"255", 255},  {"256", 36},  {"-3", 36},   {"36.5", 36}};
    for (const auto& c : inaltimi) {
        ValoriOptiuni v = ValoriDinSetari(Setari{});
        v.HeightRowBorderou = QString::fromLatin1(c.tastat);
        v.HeightRowRaport = QString::fromLatin1(c.tastat);
        const Setari s = AplicaOptiuni(Setari{}, v);
        EXPECT_EQ(s.HeightRowBorderou, c.citit) << c.tastat;
        EXPECT_EQ(s.HeightRowRaport, c.citit) << c.tastat;
    }

    const struct {
        int appWord;
        int dataCerere;
        const char* server;
        int appCitit;
        int dataCitita;
        QString serverCitit;
    } liste[] = {
        {0, -1, "", 0, 1, ServerCerereImplicit},
        {3, 0, "   ", 3, 0, ServerCerereImplicit},
        {5, 2, " https://asf.primarie.ro/ ", 5, 2, QStringLiteral("https://asf.primarie.ro/")},
    };
    for (const auto& c : liste) {
        ValoriOptiuni v = ValoriDinSetari(Setari{});
        v.AppWord = c.appWord;
        v.DataCerereTiparita = c.dataCerere;
        v.ServerCerere = QString::fromLatin1(c.server);
        const Setari s = AplicaOptiuni(Setari{}, v);
        EXPECT_EQ(s.AppWord, c.appCitit) << c.appWord;
        EXPECT_EQ(s.DataCerereTiparita, c.dataCitita) << c.dataCerere;
        EXPECT_EQ(S(s.ServerCerere), S(c.serverCitit)) << c.server;
    }

    // What the dialog doesn't show is left as it was.
    Setari inainte;
    inainte.Parola = QStringLiteral("x");
    inainte.CaleBD = QStringLiteral("/srv/asf");
    inainte.LunaSetata = 5;
    inainte.AnSetat = 2024;
    inainte.LoadTipCerere = 2;
    inainte.NrCaractSerie = 7;
    inainte.ObligEmailPrimarie = true;
    inainte.CaleWord = QStringLiteral("C:\\Word");
    Setari fara = AplicaOptiuni(inainte, ValoriDinSetari(inainte));
    EXPECT_TRUE(fara == inainte);
    // And every value of the dialog goes through.
    const Setari schimbate = SetariSchimbate();
    EXPECT_TRUE(AplicaOptiuni(Setari{}, ValoriDinSetari(schimbate)) == schimbate);
}

TEST(Optiuni, MostraFontului) {
    const struct {
        bool b, i, u;
        const char* text;
    } cazuri[] = {
        {false, false, false, "Arial, 12"},       {true, false, false, "Arial, 12, B"},
        {false, true, false, "Arial, 12, I"},     {false, false, true, "Arial, 12, U"},
        {true, true, true, "Arial, 12, B, I, U"}, {true, false, true, "Arial, 12, B, U"},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(S(TextMostraFont(QStringLiteral("Arial"), 12, c.b, c.i, c.u)), c.text);
}

TEST(Optiuni, CuloareaCaNumarWindows) {
    const struct {
        QColor culoare;
        const char* text;
    } cazuri[] = {{QColor(0, 0, 0), "0"},          {QColor(255, 0, 0), "255"},  {QColor(0, 255, 0), "65280"},
                  {QColor(0, 0, 255), "16711680"}, {QColor(1, 2, 3), "197121"}, {QColor(255, 255, 255), "16777215"}};
    for (const auto& c : cazuri) {
        EXPECT_EQ(S(CuloareInText(c.culoare)), c.text);
        const std::optional<QColor> inapoi = CuloareDinText(QString::fromLatin1(c.text));
        ASSERT_TRUE(inapoi.has_value()) << c.text;
        EXPECT_EQ(inapoi->rgb(), c.culoare.rgb()) << c.text;
    }
    for (const char* nimic : {"", "  ", "-1", "16777216", "abc"})
        EXPECT_FALSE(CuloareDinText(QString::fromLatin1(nimic)).has_value()) << '"' << nimic << '"';

    // The text on such a background stays readable.
    const struct {
        QColor fundal, text;
    } texte[] = {{QColor(10, 20, 30), Qt::white},    {QColor(0, 0, 255), Qt::white},
                 {QColor(127, 127, 127), Qt::white}, {QColor(128, 128, 128), Qt::black},
                 {QColor(0, 255, 0), Qt::black},     {QColor(255, 255, 200), Qt::black}};
    for (const auto& t : texte)
        EXPECT_EQ(CuloareTextPe(t.fundal), t.text) << S(t.fundal.name());
}

} // namespace
