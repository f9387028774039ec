#include "base/Foldere.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <functional>
#include <gtest/gtest.h>

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
    QByteArray Octeti() const {
        QFile f(Ini());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    std::string Citeste(const char* sectiune, const char* cheie) const {
        return S(SF::CitesteIni(Ini(), QLatin1String(sectiune), QLatin1String(cheie)));
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

TEST_F(FisierSetari, FisierLipsaPrimesteDoarImpliciteleScriseInapoi) {
    EXPECT_EQ(SF::StareFisier(QFileInfo(Ini()).absolutePath() + T("/lipsa/x.ini")), 2);
    EXPECT_TRUE(IncarcaSetari(Ini(), false) == Setari{});
    EXPECT_EQ(SF::StareFisier(Ini()), 1) << "read only: nothing written";
    EXPECT_TRUE(IncarcaSetari(Ini()) == Setari{});
    // The nine keys written back when 0 or empty, and only they.
    EXPECT_EQ(Octeti().count('='), 9) << Octeti().toStdString();
    EXPECT_EQ(Citeste("Fonturi", "FontName0"), "Times New Roman");
    // The next start finds them and writes nothing.
    const QByteArray dupaPrima = Octeti();
    EXPECT_TRUE(IncarcaSetari(Ini()) == Setari{});
    EXPECT_EQ(Octeti(), dupaPrima);
}

// How a stored value is read; inFisier is what the file holds afterwards, null where the stored
// text is never written back (rules kept in memory, values out of their type's range).
TEST_F(FisierSetari, CheieCititaSiCeRamaneInFisier) {
    const struct {
        const char* sectiune;
        const char* cheie;
        const char* stocat;
        Membru membru;
        std::string inMemorie;
        const char* inFisier;
    } cazuri[] = {
        {"Borderou", "HeightRowBorderou", "0", M(&Setari::HeightRowBorderou), "36", "36"},
        {"Fonturi", "FontSize0", "0.4", M(&Setari::FontSize0), "10", "10"},
        {"Fonturi", "FontSize0", "0.6", M(&Setari::FontSize0), "1", "0.6"},
        {"Fonturi", "FontSize0", " 1 2 ", M(&Setari::FontSize0), "12", "1 2"},
        {"Fisiere", "StatPlata", "", M(&Setari::StatPlata), "StatPlata.xls", "StatPlata.xls"},
        {"Afisari", "AfisCereri", "0", M(&Setari::AfisCereri), "1", nullptr},
        {"Generale", "AfisSerieStatPlata", "1", M(&Setari::AfisSerieStatPlata), "0", nullptr},
        {"Generale", "ServerCerere", "", M(&Setari::ServerCerere), S(ServerCerereImplicit), nullptr},
        {"Generale", "ServerActualizare", "https://a.ro/u/", M(&Setari::ServerActualizare), "https://a.ro/u/", nullptr},
        {"Generale", "pass", "Secret 1", M(&Setari::Parola), "Secret 1", nullptr},
        {"Cale", "CaleWord", "C:\\Word", M(&Setari::CaleWord), "", nullptr},
        {"Fonturi", "FontSize0", "-3", M(&Setari::FontSize0), "10", nullptr},
        {"Setari", "AnSetat", "2101", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "AnSetat", "1999", M(&Setari::AnSetat), "2013", nullptr},
        {"Setari", "LunaSetata", "13", M(&Setari::LunaSetata), "1", nullptr},
        {"Setari", "LunaSetata", "12,7", M(&Setari::LunaSetata), "12", nullptr},
        {"Borderou", "HeightRowBorderou", "&HFF", M(&Setari::HeightRowBorderou), "255", nullptr},
        // Rounded half to even before the range is checked.
        {"Oblig", "NrCaractSerie", "254.5", M(&Setari::NrCaractSerie), "254", nullptr},
        {"Oblig", "NrCaractSerie", "255.5", M(&Setari::NrCaractSerie), "0", nullptr},
        {"Generale", "LoadTipCerere", "1.5", M(&Setari::LoadTipCerere), "2", nullptr},
        // A flag is set by any number but 0.
        {"Fonturi", "FontB0", "-1", M(&Setari::FontB0), "1", nullptr},
        {"Cereri", "Cerere13Pag", "da", M(&Setari::Cerere13Pag), "0", nullptr},
    };
    for (const auto& c : cazuri) {
        ScrieOcteti(QByteArray("[") + c.sectiune + "]\n" + c.cheie + '=' + c.stocat + '\n');
        EXPECT_EQ(c.membru(IncarcaSetari(Ini())), c.inMemorie) << c.cheie << '=' << c.stocat;
        EXPECT_EQ(Citeste(c.sectiune, c.cheie), c.inFisier ? c.inFisier : c.stocat) << c.cheie << '=' << c.stocat;
    }
}

// A file of the old program: Windows-1250, CRLF, names in any case, a key written twice, keys we don't
// know. It is read as such, and what is written into it leaves the rest as it was.
TEST_F(FisierSetari, FisierVechiSeCitesteSiSeCompleteazaFaraASchimbaRestul) {
    // "Străduţă": ă = E3, ţ = FE.
    const QByteArray strSat = "Str\xE3"
                              "du\xFE\xE3";
    ScrieOcteti("[generale]\r\nstrsat=" + strSat +
                "\r\nCheieStraina=x\r\n[Setari]\r\nLunaSetata=4\r\nlunasetata=9\r\n");
    const Setari s = IncarcaSetari(Ini());
    EXPECT_EQ(S(s.StrSat), "Străduţă");
    EXPECT_EQ(s.LunaSetata, 4);
    SF::ScrieIni(Ini(), T("SETARI"), T("lunaSetata"), T("6"));
    const QByteArray dupa = Octeti();
    EXPECT_TRUE(dupa.contains(strSat) && dupa.contains("CheieStraina=x")) << dupa.toStdString();
    EXPECT_EQ(Citeste("Fisiere", "Anexa4"), "Statistica.xls");
    // The first of the two is the one changed; the later copy goes with the write.
    EXPECT_TRUE(dupa.toLower().contains("lunasetata=6") && !dupa.contains("=9")) << dupa.toStdString();
}

// Every key of the options dialog away from its default.
Setari SetariSchimbate() {
    Setari s;
    s.OpresteActualizareAutomata = s.FontB0 = s.FontU0 = s.Anexa2ExportWord = s.AfisSerieStatPlata = s.ReteaSetat =
        s.Motiv = s.Cerere13Pag = s.Ancheta14Pag = s.NotificareActe = s.AngajamentPlata = s.CertificarePrimar =
            s.NrCerereInAncheta = s.NrCerereTiparita = true;
    s.AfisCereri = false;
    s.NrCerereAnexa3 = T("NrDispozitie");
    s.FontSize0 = 12;
    s.FontName0 = s.Anexa3 = s.Anexa4 = s.StatPlata = s.StrSat = T("Sat");
    s.HeightRowBorderou = 20;
    s.HeightRowRaport = 255;
    s.AppWord = 5;
    s.DataCerereTiparita = 2;
    s.ServerCerere = T("https://asf.primarie.ro/cereri/");
    s.CuloareVenit = T("197121");
    s.FolderExport = T("/srv/rapoarte asf");
    return s;
}

TEST_F(FisierSetari, ScrieOptiuniApoiIncarcaSetari) {
    ScrieOptiuni(Ini(), SetariSchimbate());
    EXPECT_EQ(Citeste("Fonturi", "FontB0"), "255");
    EXPECT_EQ(Citeste("Fonturi", "FontI0"), "0");
    EXPECT_EQ(Citeste("Generale", "Motiv"), "1");
    Setari asteptate = SetariSchimbate();
    asteptate.AfisCereri = true;          // always on at start
    asteptate.AfisSerieStatPlata = false; // lasts until the program closes
    EXPECT_TRUE(IncarcaSetari(Ini()) == asteptate);
    // The default address is left blank; keys that are not the dialog's are never written.
    QFile::remove(Ini());
    ScrieOptiuni(Ini(), Setari{});
    EXPECT_EQ(Citeste("Generale", "ServerCerere"), "");
    for (const char* straina :
         {"pass=", "CaleBD=", "LunaSetata=", "AnSetat=", "LoadTipCerere=", "NrCaractSerie=", "ObligEmailPrimarie="})
        EXPECT_FALSE(Octeti().contains(straina)) << straina;
    EXPECT_TRUE(IncarcaSetari(Ini()) == Setari{});
}

TEST(Optiuni, VerificaSiAplicaCeSeTasteaza) {
    const std::pair<int, bool> marimi[] = {{1, false}, {2, true}, {72, true}, {73, false}};
    for (const auto& [marime, permisa] : marimi) {
        ValoriOptiuni v = ValoriDinSetari(Setari{});
        v.FontSize0 = marime;
        EXPECT_EQ(VerificaOptiuni(v).has_value(), !permisa) << marime;
    }
    // A build comes only over an encrypted link or from this computer.
    const std::pair<const char*, bool> servere[] = {{"", true},
                                                    {"https://actualizari.ferolanta.ro/", true},
                                                    {"http://127.0.0.1:8080/x/", true},
                                                    {"http://actualizari.ferolanta.ro/", false},
                                                    {"ftp://localhost/", false},
                                                    {"actualizari", false}};
    for (const auto& [server, permis] : servere) {
        ValoriOptiuni v = ValoriDinSetari(Setari{});
        v.ServerActualizare = QString::fromLatin1(server);
        EXPECT_EQ(VerificaOptiuni(v).has_value(), !permis) << server;
    }
    const std::pair<const char*, int> inaltimi[] = {{" 4 0 ", 40}, {"12,5", 12}, {"abc", 0}, {"255", 255}, {"256", 36}};
    for (const auto& [tastat, citit] : inaltimi) {
        ValoriOptiuni v = ValoriDinSetari(Setari{});
        v.HeightRowBorderou = v.HeightRowRaport = QString::fromLatin1(tastat);
        const Setari s = AplicaOptiuni(Setari{}, v);
        EXPECT_EQ(s.HeightRowBorderou, citit) << tastat;
        EXPECT_EQ(s.HeightRowRaport, citit) << tastat;
    }
    ValoriOptiuni v = ValoriDinSetari(Setari{});
    v.DataCerereTiparita = -1;
    v.ServerCerere = T("   ");
    EXPECT_EQ(AplicaOptiuni(Setari{}, v).DataCerereTiparita, 1);
    EXPECT_EQ(AplicaOptiuni(Setari{}, v).ServerCerere, ServerCerereImplicit);
    v.ServerCerere = T(" https://asf.primarie.ro/ ");
    EXPECT_EQ(S(AplicaOptiuni(Setari{}, v).ServerCerere), "https://asf.primarie.ro/");
    // What the dialog doesn't show is left as it was, and every value it shows goes through.
    Setari inainte;
    inainte.Parola = inainte.CaleBD = inainte.CaleWord = T("x");
    inainte.LunaSetata = inainte.NrCaractSerie = 5;
    EXPECT_TRUE(AplicaOptiuni(inainte, ValoriDinSetari(inainte)) == inainte);
    EXPECT_TRUE(AplicaOptiuni(Setari{}, ValoriDinSetari(SetariSchimbate())) == SetariSchimbate());
}

// A colour is kept as red + green * 256 + blue * 65536; anything else is no colour.
TEST(Optiuni, CuloareaCaNumar) {
    EXPECT_EQ(S(CuloareInText(QColor(1, 2, 3))), "197121");
    EXPECT_EQ(CuloareDinText(T("16777215")).value_or(QColor()).rgb(), QColor(Qt::white).rgb());
    for (const char* nimic : {"", "-1", "16777216", "abc"})
        EXPECT_FALSE(CuloareDinText(QString::fromLatin1(nimic)).has_value()) << '"' << nimic << '"';
    EXPECT_EQ(CuloareTextPe(QColor(127, 127, 127)), QColor(Qt::white));
    EXPECT_EQ(CuloareTextPe(QColor(128, 128, 128)), QColor(Qt::black));
}

} // namespace
