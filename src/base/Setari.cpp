#include "base/Setari.h"

#include "base/ServiciuFisiere.h"
#include "base/Val.h"

#include <QStandardPaths>
#include <QUrl>
#include <cmath>
#include <limits>

namespace {

namespace SF = ServiciuFisiere;

const QString Generale = QStringLiteral("Generale");
const QString Oblig = QStringLiteral("Oblig");
const QString Ordonari = QStringLiteral("Ordonari");
const QString Fonturi = QStringLiteral("Fonturi");
const QString Afisari = QStringLiteral("Afisari");
const QString Fisiere = QStringLiteral("Fisiere");
const QString Borderou = QStringLiteral("Borderou");
const QString Raport = QStringLiteral("Raport");
const QString App = QStringLiteral("App");
const QString SectiuneSetari = QStringLiteral("Setari");
const QString Cereri = QStringLiteral("Cereri");
const QString Cale = QStringLiteral("Cale");

// A number goes into an integer variable rounded half to even, as the old run-time stored it.
std::optional<int> Intreg(double v, int minim, int maxim) {
    if (!std::isfinite(v)) return std::nullopt;
    double r = std::floor(v);
    const double rest = v - r;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(r, 2.0) != 0.0)) r += 1;
    if (r < minim || r > maxim) return std::nullopt;
    return static_cast<int>(r);
}

int Octet(double v, int implicit) {
    return Intreg(v, 0, 255).value_or(implicit);
}

QString Flag(bool b) {
    return b ? QStringLiteral("1") : QStringLiteral("0");
}
QString FlagFont(bool b) {
    return b ? QStringLiteral("255") : QStringLiteral("0");
}

class Cititor {
public:
    Cititor(const QString& fisier, bool scrie) : fisier_(fisier), scrie_(scrie) {}

    QString Text(const QString& sectiune, const QString& cheie) const {
        return SF::CitesteIni(fisier_, sectiune, cheie);
    }
    bool Flag(const QString& sectiune, const QString& cheie) const { return Val(Text(sectiune, cheie)) != 0; }
    int Octet(const QString& sectiune, const QString& cheie, int implicit) const {
        return ::Octet(Val(Text(sectiune, cheie)), implicit);
    }
    // The written-back keys: 0 or empty takes the default, in memory and in the file.
    int OctetScris(const QString& sectiune, const QString& cheie, int implicit) const {
        const int v = Octet(sectiune, cheie, implicit);
        if (v != 0) return v;
        if (scrie_) SF::ScrieIni(fisier_, sectiune, cheie, QString::number(implicit));
        return implicit;
    }
    QString TextScris(const QString& sectiune, const QString& cheie, const QString& implicit) const {
        const QString v = Text(sectiune, cheie);
        if (!v.isEmpty()) return v;
        if (scrie_) SF::ScrieIni(fisier_, sectiune, cheie, implicit);
        return implicit;
    }

private:
    QString fisier_;
    bool scrie_;
};

} // namespace

Setari IncarcaSetari(const QString& fisierIni, bool scrieImplicite) {
    const Setari implicit;
    const Cititor c(fisierIni, scrieImplicite);
    Setari s;
    s.CaleBD = c.Text(Generale, QStringLiteral("CaleBD"));
    s.Parola = c.Text(Generale, QStringLiteral("pass"));
    s.NrCaractSerie = c.Octet(Oblig, QStringLiteral("NrCaractSerie"), implicit.NrCaractSerie);
    s.ObligEmailPrimarie = c.Flag(Oblig, QStringLiteral("ObligEmailPrimarie"));
    s.NrCerereAnexa3 = c.Text(Ordonari, QStringLiteral("NrCerereAnexa3"));
    s.FontSize0 = c.OctetScris(Fonturi, QStringLiteral("FontSize0"), implicit.FontSize0);
    s.FontName0 = c.TextScris(Fonturi, QStringLiteral("FontName0"), implicit.FontName0);
    s.FontB0 = c.Flag(Fonturi, QStringLiteral("FontB0"));
    s.FontI0 = c.Flag(Fonturi, QStringLiteral("FontI0"));
    s.FontU0 = c.Flag(Fonturi, QStringLiteral("FontU0"));
    // The list of requests is always filled at start, whatever the file says.
    s.AfisCereri = true;
    s.Anexa3 = c.TextScris(Fisiere, QStringLiteral("Anexa3"), implicit.Anexa3);
    s.Anexa4 = c.TextScris(Fisiere, QStringLiteral("Anexa4"), implicit.Anexa4);
    s.StatPlata = c.TextScris(Fisiere, QStringLiteral("StatPlata"), implicit.StatPlata);
    s.Anexa2ExportWord = c.Flag(Generale, QStringLiteral("Anexa2ExportWord"));
    s.StrSat = c.Text(Generale, QStringLiteral("StrSat"));
    // Read into a local that is dropped: the choice of the options dialog lasts until the program closes.
    [[maybe_unused]] const bool afisSerieStatPlata = c.Flag(Generale, QStringLiteral("AfisSerieStatPlata"));
    s.ReteaSetat = c.Flag(Generale, QStringLiteral("ReteaSetat"));
    s.Motiv = c.Flag(Generale, QStringLiteral("Motiv"));
    s.HeightRowBorderou = c.OctetScris(Borderou, QStringLiteral("HeightRowBorderou"), implicit.HeightRowBorderou);
    s.HeightRowRaport = c.OctetScris(Raport, QStringLiteral("HeightRowRaport"), implicit.HeightRowRaport);
    s.AppWord = c.OctetScris(App, QStringLiteral("AppWord"), implicit.AppWord);
    // Out of its range each falls back to the default, so no amount is computed for a month that
    // cannot be.
    s.LunaSetata = Intreg(Val(c.Text(SectiuneSetari, QStringLiteral("LunaSetata"))), 1, 12).value_or(implicit.LunaSetata);
    s.AnSetat = static_cast<std::int16_t>(
        Intreg(Val(c.Text(SectiuneSetari, QStringLiteral("AnSetat"))), AnLucruMinim, AnLucruMaxim)
            .value_or(implicit.AnSetat));
    s.LoadTipCerere = c.Octet(Generale, QStringLiteral("LoadTipCerere"), implicit.LoadTipCerere);
    s.DataCerereTiparita = c.OctetScris(Generale, QStringLiteral("DataCerereTiparita"), implicit.DataCerereTiparita);
    s.Cerere13Pag = c.Flag(Cereri, QStringLiteral("Cerere13Pag"));
    s.Ancheta14Pag = c.Flag(Cereri, QStringLiteral("Ancheta14Pag"));
    s.NotificareActe = c.Flag(Generale, QStringLiteral("NotificareActe"));
    s.AngajamentPlata = c.Flag(Cereri, QStringLiteral("AngajamentPlata"));
    s.CertificarePrimar = c.Flag(Cereri, QStringLiteral("CertificarePrimar"));
    s.NrCerereInAncheta = c.Flag(Generale, QStringLiteral("NrCerereInAncheta"));
    s.NrCerereTiparita = c.Flag(Generale, QStringLiteral("NrCerereTiparita"));
    const QString server = c.Text(Generale, QStringLiteral("ServerCerere")).trimmed();
    s.ServerCerere = server.isEmpty() ? ServerCerereImplicit : server;
    s.OpresteActualizareAutomata = c.Flag(Generale, QStringLiteral("OpresteActualizareAutomata"));
    s.ServerActualizare = c.Text(Generale, QStringLiteral("ServerActualizare")).trimmed();
    // Read so that the options dialog shows the stored colour and its OK does not erase it.
    s.CuloareVenit = c.Text(Generale, QStringLiteral("CuloareVenit"));
    s.FolderExport = c.Text(Cale, QStringLiteral("FolderExport")).trimmed();
    return s;
}

void ScrieSetare(const QString& fisierIni, const QString& sectiune, const QString& cheie, const QString& valoare) {
    SF::ScrieIni(fisierIni, sectiune, cheie, valoare);
}

void ScrieOptiuni(const QString& f, const Setari& s) {
    const auto numar = [](int n) { return QString::number(n); };
    ScrieSetare(f, Generale, QStringLiteral("OpresteActualizareAutomata"), Flag(s.OpresteActualizareAutomata));
    ScrieSetare(f, Generale, QStringLiteral("ServerActualizare"), s.ServerActualizare);
    ScrieSetare(f, Ordonari, QStringLiteral("NrCerereAnexa3"), s.NrCerereAnexa3);
    ScrieSetare(f, Fonturi, QStringLiteral("FontSize0"), numar(s.FontSize0));
    ScrieSetare(f, Fonturi, QStringLiteral("FontName0"), s.FontName0);
    ScrieSetare(f, Fonturi, QStringLiteral("FontB0"), FlagFont(s.FontB0));
    ScrieSetare(f, Fonturi, QStringLiteral("FontI0"), FlagFont(s.FontI0));
    ScrieSetare(f, Fonturi, QStringLiteral("FontU0"), FlagFont(s.FontU0));
    ScrieSetare(f, Afisari, QStringLiteral("AfisCereri"), Flag(s.AfisCereri));
    ScrieSetare(f, Fisiere, QStringLiteral("Anexa3"), s.Anexa3);
    ScrieSetare(f, Fisiere, QStringLiteral("Anexa4"), s.Anexa4);
    ScrieSetare(f, Fisiere, QStringLiteral("StatPlata"), s.StatPlata);
    ScrieSetare(f, Generale, QStringLiteral("Anexa2ExportWord"), Flag(s.Anexa2ExportWord));
    ScrieSetare(f, Generale, QStringLiteral("StrSat"), s.StrSat);
    ScrieSetare(f, Generale, QStringLiteral("AfisSerieStatPlata"), Flag(s.AfisSerieStatPlata));
    ScrieSetare(f, Generale, QStringLiteral("ReteaSetat"), Flag(s.ReteaSetat));
    ScrieSetare(f, Generale, QStringLiteral("Motiv"), Flag(s.Motiv));
    ScrieSetare(f, Borderou, QStringLiteral("HeightRowBorderou"), numar(s.HeightRowBorderou));
    ScrieSetare(f, Raport, QStringLiteral("HeightRowRaport"), numar(s.HeightRowRaport));
    ScrieSetare(f, App, QStringLiteral("AppWord"), numar(s.AppWord));
    ScrieSetare(f, Generale, QStringLiteral("DataCerereTiparita"), numar(s.DataCerereTiparita));
    ScrieSetare(f, Cereri, QStringLiteral("Cerere13Pag"), Flag(s.Cerere13Pag));
    ScrieSetare(f, Cereri, QStringLiteral("Ancheta14Pag"), Flag(s.Ancheta14Pag));
    ScrieSetare(f, Generale, QStringLiteral("NotificareActe"), Flag(s.NotificareActe));
    ScrieSetare(f, Cereri, QStringLiteral("AngajamentPlata"), Flag(s.AngajamentPlata));
    ScrieSetare(f, Cereri, QStringLiteral("CertificarePrimar"), Flag(s.CertificarePrimar));
    ScrieSetare(f, Generale, QStringLiteral("NrCerereInAncheta"), Flag(s.NrCerereInAncheta));
    ScrieSetare(f, Generale, QStringLiteral("NrCerereTiparita"), Flag(s.NrCerereTiparita));
    ScrieSetare(f, Generale, QStringLiteral("ServerCerere"),
                s.ServerCerere == ServerCerereImplicit ? QString() : s.ServerCerere);
    ScrieSetare(f, Generale, QStringLiteral("CuloareVenit"), s.CuloareVenit);
    ScrieSetare(f, Cale, QStringLiteral("CaleWord"), s.CaleWord);
    ScrieSetare(f, Cale, QStringLiteral("FolderExport"), s.FolderExport);
}

ValoriOptiuni ValoriDinSetari(const Setari& s) {
    ValoriOptiuni v;
    v.OpresteActualizareAutomata = s.OpresteActualizareAutomata;
    v.NrCerereAnexa3 = s.NrCerereAnexa3;
    v.FontSize0 = s.FontSize0;
    v.FontName0 = s.FontName0;
    v.FontB0 = s.FontB0;
    v.FontI0 = s.FontI0;
    v.FontU0 = s.FontU0;
    v.AfisCereri = s.AfisCereri;
    v.Anexa3 = s.Anexa3;
    v.Anexa4 = s.Anexa4;
    v.StatPlata = s.StatPlata;
    v.Anexa2ExportWord = s.Anexa2ExportWord;
    v.StrSat = s.StrSat;
    v.AfisSerieStatPlata = s.AfisSerieStatPlata;
    v.ReteaSetat = s.ReteaSetat;
    v.Motiv = s.Motiv;
    v.HeightRowBorderou = QString::number(s.HeightRowBorderou);
    v.HeightRowRaport = QString::number(s.HeightRowRaport);
    v.AppWord = s.AppWord;
    v.DataCerereTiparita = s.DataCerereTiparita;
    v.Cerere13Pag = s.Cerere13Pag;
    v.Ancheta14Pag = s.Ancheta14Pag;
    v.NotificareActe = s.NotificareActe;
    v.AngajamentPlata = s.AngajamentPlata;
    v.CertificarePrimar = s.CertificarePrimar;
    v.NrCerereInAncheta = s.NrCerereInAncheta;
    v.NrCerereTiparita = s.NrCerereTiparita;
    v.ServerCerere = s.ServerCerere;
    v.ServerActualizare = s.ServerActualizare;
    v.CuloareVenit = s.CuloareVenit;
    v.FolderExport = s.FolderExport;
    return v;
}

std::optional<QString> VerificaMarimeFont(int marime) {
    if (marime > 72) return QStringLiteral("Marimea caracterelor nu poate fi mai mare de 72");
    if (marime < 2) return QStringLiteral("Marimea caracterelor nu poate fi mai mica de 2");
    return std::nullopt;
}

std::optional<QString> VerificaOptiuni(const ValoriOptiuni& v) {
    if (auto refuz = VerificaMarimeFont(v.FontSize0)) return refuz;
    // A build is taken only over an encrypted link, or from this computer.
    const QString server = v.ServerActualizare.trimmed();
    if (!server.isEmpty()) {
        const QUrl u(server, QUrl::StrictMode);
        const QString gazda = u.host().toLower();
        const bool local = gazda == QLatin1String("localhost") || gazda == QLatin1String("::1") ||
                           gazda.startsWith(QLatin1String("127."));
        if (!u.isValid() || gazda.isEmpty() ||
            !(u.scheme() == QLatin1String("https") || (u.scheme() == QLatin1String("http") && local)))
            return QStringLiteral("Adresa serverului de actualizare trebuie sa fie de forma https://server/folder/");
    }
    return std::nullopt;
}

Setari AplicaOptiuni(Setari s, const ValoriOptiuni& v) {
    const Setari implicit;
    s.OpresteActualizareAutomata = v.OpresteActualizareAutomata;
    s.NrCerereAnexa3 = v.NrCerereAnexa3;
    s.FontSize0 = Octet(v.FontSize0, implicit.FontSize0);
    s.FontName0 = v.FontName0;
    s.FontB0 = v.FontB0;
    s.FontI0 = v.FontI0;
    s.FontU0 = v.FontU0;
    s.AfisCereri = v.AfisCereri;
    s.Anexa3 = v.Anexa3;
    s.Anexa4 = v.Anexa4;
    s.StatPlata = v.StatPlata;
    s.Anexa2ExportWord = v.Anexa2ExportWord;
    s.StrSat = v.StrSat;
    s.AfisSerieStatPlata = v.AfisSerieStatPlata;
    s.ReteaSetat = v.ReteaSetat;
    s.Motiv = v.Motiv;
    s.HeightRowBorderou = Octet(Val(v.HeightRowBorderou), implicit.HeightRowBorderou);
    s.HeightRowRaport = Octet(Val(v.HeightRowRaport), implicit.HeightRowRaport);
    s.AppWord = Octet(v.AppWord, implicit.AppWord);
    s.DataCerereTiparita = Octet(v.DataCerereTiparita, implicit.DataCerereTiparita);
    s.Cerere13Pag = v.Cerere13Pag;
    s.Ancheta14Pag = v.Ancheta14Pag;
    s.NotificareActe = v.NotificareActe;
    s.AngajamentPlata = v.AngajamentPlata;
    s.CertificarePrimar = v.CertificarePrimar;
    s.NrCerereInAncheta = v.NrCerereInAncheta;
    s.NrCerereTiparita = v.NrCerereTiparita;
    const QString server = v.ServerCerere.trimmed();
    s.ServerCerere = server.isEmpty() ? ServerCerereImplicit : server;
    s.ServerActualizare = v.ServerActualizare.trimmed();
    s.CuloareVenit = v.CuloareVenit;
    s.FolderExport = v.FolderExport.trimmed();
    return s;
}

QString TextMostraFont(const QString& nume, int marime, bool b, bool i, bool u) {
    QString t = QStringLiteral("%1, %2").arg(nume).arg(marime);
    if (b) t += QStringLiteral(", B");
    if (i) t += QStringLiteral(", I");
    if (u) t += QStringLiteral(", U");
    return t;
}

QString CuloareInText(const QColor& c) {
    const QColor rgb = c.toRgb();
    return QString::number(rgb.red() + rgb.green() * 256 + rgb.blue() * 65536);
}

std::optional<QColor> CuloareDinText(const QString& text) {
    bool ok = false;
    const qlonglong n = text.trimmed().toLongLong(&ok);
    if (!ok || n < 0 || n > 0xFFFFFF) return std::nullopt;
    return QColor(int(n & 0xFF), int((n >> 8) & 0xFF), int((n >> 16) & 0xFF));
}

QColor CuloareTextPe(const QColor& fundal) {
    const QColor c = fundal.toRgb();
    // Perceived brightness, in thousandths of a channel step.
    const int luminozitate = 299 * c.red() + 587 * c.green() + 114 * c.blue();
    return luminozitate < 128000 ? QColor(Qt::white) : QColor(Qt::black);
}

const std::vector<ElementCombo>& ListaNrCerereAnexa3() {
    static const std::vector<ElementCombo> l{
        {0, QStringLiteral("Nr crt")}, {1, QStringLiteral("NrCerere")}, {2, QStringLiteral("NrDispozitie")}};
    return l;
}

const std::vector<ElementCombo>& ListaNrCerere() {
    static const std::vector<ElementCombo> l{{0, QStringLiteral("Nu")},
                                             {1, QStringLiteral("Urmatorul din perioada activa")},
                                             {2, QStringLiteral("Urmatorul din cele nealocate")}};
    return l;
}

const std::vector<ElementCombo>& ListaAppWord() {
    static const std::vector<ElementCombo> l{{1, QStringLiteral("Microsoft WORD")},
                                             {2, QStringLiteral("Open/Libre Office WRITER")},
                                             {3, QStringLiteral("Word Pad")},
                                             {4, QStringLiteral("Kingsoft Writer")},
                                             {5, QStringLiteral("Kingsoft Writer 2013")}};
    return l;
}

const std::vector<ElementCombo>& ListaDataCerere() {
    static const std::vector<ElementCombo> l{
        {0, QStringLiteral("Nimic")}, {1, QStringLiteral("Data Cerere")}, {2, QStringLiteral("Data Calculator")}};
    return l;
}

QString FolderExportEfectiv(const Setari& s) {
    if (!s.FolderExport.isEmpty()) return s.FolderExport;
    const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
    return desktop.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::HomeLocation) : desktop;
}
