#include "documents/web/PunteWeb.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/ServiciuFisiere.h"
#include "base/Setari.h"
#include "store/BazaDate.h"
#include "store/Schema.h"

#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QSaveFile>
#include <QSet>
#include <QSqlField>
#include <QSqlRecord>
#include <algorithm>
#include <array>
#include <utility>

namespace {

// Windows-1250 from 0x80 on; 0 where the code page has no character.
constexpr char16_t Cp1250[128] = {
    0x20AC, 0x0000, 0x201A, 0x0000, 0x201E, 0x2026, 0x2020, 0x2021, 0x0000, 0x2030, 0x0160, 0x2039, 0x015A,
    0x0164, 0x017D, 0x0179, 0x0000, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x0000, 0x2122,
    0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, 0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6,
    0x00A7, 0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, 0x00B0, 0x00B1, 0x02DB, 0x0142,
    0x00B4, 0x00B5, 0x00B6, 0x00B7, 0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, 0x0154,
    0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, 0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD,
    0x00CE, 0x010E, 0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, 0x0158, 0x016E, 0x00DA,
    0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, 0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7,
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, 0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4,
    0x0151, 0x00F6, 0x00F7, 0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9,
};

using Pereche = std::pair<char16_t, unsigned char>;

const std::vector<Pereche>& Invers1250() {
    static const std::vector<Pereche> v = [] {
        std::vector<Pereche> r;
        for (int i = 0; i < 128; ++i)
            if (Cp1250[i]) r.emplace_back(Cp1250[i], static_cast<unsigned char>(0x80 + i));
        std::sort(r.begin(), r.end());
        return r;
    }();
    return v;
}

unsigned char Octet1250(char32_t c) {
    if (c < 0x80) return static_cast<unsigned char>(c);
    // The code page has only the cedilla forms of these letters.
    switch (c) {
    case 0x0218:
        return 0xAA;
    case 0x0219:
        return 0xBA;
    case 0x021A:
        return 0xDE;
    case 0x021B:
        return 0xFE;
    default:
        break;
    }
    if (c > 0xFFFF) return '?';
    const auto& v = Invers1250();
    const auto it = std::lower_bound(v.begin(), v.end(), Pereche{char16_t(c), 0});
    return it != v.end() && it->first == c ? it->second : '?';
}

// Trim as the old program did it: blanks only, so that a leading line break stays in the value.
QStringView FaraBlancuri(QStringView s) {
    qsizetype inceput = 0, sfarsit = s.size();
    while (inceput < sfarsit && s[inceput] == u' ')
        ++inceput;
    while (sfarsit > inceput && s[sfarsit - 1] == u' ')
        --sfarsit;
    return s.mid(inceput, sfarsit - inceput);
}

QString PentruJs(QString s) {
    s.remove(u'\r').remove(u'\n');
    s.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    s.replace(QLatin1Char('\''), QLatin1String("\\'"));
    return s;
}

QString CheieJson(const QString& nume) {
    QString r;
    r.reserve(nume.size());
    for (const QChar c : nume) {
        if (c == u'"' || c == u'\\')
            r += u'\\';
        else if (c.unicode() < 0x20)
            continue;
        r += c;
    }
    return r;
}

// SQLite keeps a date as ISO text and its driver gives such a column as text: there a column is a
// date when the schema knows a date field by its name.
const QSet<QString>& NumeDate() {
    static const QSet<QString> s = [] {
        QSet<QString> r;
        for (const auto& t : Schema::Tabele())
            for (const auto& c : t.campuri)
                if (c.tip == TipCamp::Data) r.insert(c.nume.toLower());
        return r;
    }();
    return s;
}

QString TextData(const QVariant& v) {
    QDate d;
    if (v.typeId() == QMetaType::QDate)
        d = v.toDate();
    else if (v.typeId() == QMetaType::QDateTime)
        d = v.toDateTime().date();
    else
        d = QDate::fromString(v.toString().left(10), Qt::ISODate);
    return d.isValid() ? d.toString(QStringLiteral("dd.MM.yyyy")) : v.toString();
}

// Amounts and surfaces written the same from both engines: no trailing zeros, at most four decimals.
QString TextNumar(double x) {
    QString t = QString::number(x, 'f', 4);
    while (t.endsWith(u'0'))
        t.chop(1);
    if (t.endsWith(u'.')) t.chop(1);
    if (t == QLatin1String("-0")) t = QStringLiteral("0");
    return t;
}

// PostgreSQL gives its exact decimals as text ("1000.5000").
QString TextZecimal(QString t) {
    if (!t.contains(u'.') || t.contains(u'e', Qt::CaseInsensitive)) return t;
    while (t.endsWith(u'0'))
        t.chop(1);
    if (t.endsWith(u'.')) t.chop(1);
    return t;
}

QString TextValoare(const QVariant& v, bool data, bool zecimal) {
    if (data) return TextData(v);
    if (zecimal && v.typeId() == QMetaType::QString) return TextZecimal(v.toString());
    switch (v.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float:
        return TextNumar(v.toDouble());
    case QMetaType::Bool:
        return v.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    case QMetaType::QDate:
    case QMetaType::QDateTime:
        return TextData(v);
    default:
        return v.toString();
    }
}

void AdaugaRezultat(QString& json, Interogare& q, int nrInterogare) {
    const QSqlRecord rec = q.query().record();
    const int n = rec.count();
    std::vector<QString> chei(n);
    std::vector<bool> date(n), zecimale(n);
    QSet<QString> vazute;
    for (int i = 0; i < n; ++i) {
        const QString nume = rec.fieldName(i);
        // The page reads the names whatever their case, as PostgreSQL gives them in lower case.
        if (vazute.contains(nume.toLower()))
            throw Eroare(QStringLiteral("Interogarea %1 are doua coloane cu numele %2.").arg(nrInterogare).arg(nume));
        vazute.insert(nume.toLower());
        chei[i] = CheieJson(nume);
        const int tip = rec.field(i).metaType().id();
        date[i] = tip == QMetaType::QDate || tip == QMetaType::QDateTime ||
                  (tip == QMetaType::QString && NumeDate().contains(nume.toLower()));
        zecimale[i] = tip == QMetaType::Double || tip == QMetaType::Float;
    }
    json += u'[';
    bool primul = true;
    while (q.Urmator()) {
        json += primul ? QLatin1String("{") : QLatin1String(",{");
        primul = false;
        for (int i = 0; i < n; ++i) {
            if (i) json += u',';
            json += u'"';
            json += chei[i];
            json += QLatin1String("\":\"");
            if (!q.query().isNull(i)) json += PunteWeb::HexText(TextValoare(q.Valoare(i), date[i], zecimale[i]));
            json += u'"';
        }
        json += u'}';
    }
    json += u']';
}

} // namespace

namespace PunteWeb {

MediuWeb MediuWeb::DinApplicationPath(const QString& applicationPath, const QString& serverCerere) {
    const QDir d(applicationPath);
    MediuWeb m;
    m.fisierInterogari = d.filePath(FisierInterogari);
    m.pagina = d.filePath(FolderPagina + QLatin1Char('/') + Pagina);
    m.folderProgram = applicationPath;
    m.serverCerere = serverCerere;
    return m;
}

QString MediuWeb::FisierIesire() const {
    return QFileInfo(pagina).absoluteDir().filePath(FisierDate);
}

QString HexText(const QString& s) {
    static const char cifre[] = "0123456789ABCDEF";
    const QStringView t = FaraBlancuri(s);
    QString r;
    r.reserve(t.size() * 3);
    for (qsizetype i = 0; i < t.size(); ++i) {
        char32_t c = t[i].unicode();
        if (QChar::isHighSurrogate(c) && i + 1 < t.size() && t[i + 1].isLowSurrogate()) {
            c = QChar::surrogateToUcs4(t[i], t[i + 1]);
            ++i;
        }
        const unsigned char b = Octet1250(c);
        if (!r.isEmpty()) r += u' ';
        r += QLatin1Char(cifre[b >> 4]);
        r += QLatin1Char(cifre[b & 0xF]);
    }
    return r;
}

std::vector<InterogareFisier> Interogari(const QString& t) {
    std::vector<InterogareFisier> r;
    QString curenta;
    int linie = 1, inceput = 0;
    const auto incheie = [&] {
        const QString text = curenta.trimmed();
        if (!text.isEmpty()) r.push_back({text, inceput});
        curenta.clear();
        inceput = 0;
    };
    for (qsizetype i = 0; i < t.size(); ++i) {
        const QChar c = t[i];
        const QChar urm = i + 1 < t.size() ? t[i + 1] : QChar();
        if (c == u'-' && urm == u'-') {
            while (i < t.size() && t[i] != u'\n')
                ++i;
            --i; // the line end is counted below
            curenta += u' ';
            continue;
        }
        if (c == u'/' && urm == u'*') {
            for (i += 2; i < t.size() && !(t[i] == u'*' && i + 1 < t.size() && t[i + 1] == u'/'); ++i)
                if (t[i] == u'\n') {
                    ++linie;
                    curenta += u'\n';
                }
            ++i;
            curenta += u' ';
            continue;
        }
        if (c == u';') {
            incheie();
            continue;
        }
        if (inceput == 0 && !c.isSpace()) inceput = linie;
        if (c == u'\n') ++linie;
        if (c == u'\r') continue;
        curenta += c;
        if (c == u'\'' || c == u'"') {
            // A quoted text or name runs to its closing mark; a doubled mark stays inside.
            for (++i; i < t.size(); ++i) {
                if (t[i] == u'\n') ++linie;
                if (t[i] != u'\r') curenta += t[i];
                if (t[i] == c) {
                    if (i + 1 < t.size() && t[i + 1] == c) {
                        curenta += t[++i];
                        continue;
                    }
                    break;
                }
            }
        }
    }
    incheie();
    return r;
}

QString FisierSetariPagina(const QString& numeProgram, const QString& folderProgram) {
    QString nume;
    if (numeProgram.contains(QLatin1String("318")))
        nume = QStringLiteral("setari318.ini");
    else if (numeProgram.contains(QLatin1String("207")))
        nume = QStringLiteral("setari207.ini");
    else
        return {};
    const QString cale = QDir(folderProgram).filePath(nume);
    return QFileInfo(cale).isFile() ? cale : QString();
}

std::optional<QString> TextSetari(const QString& numeProgram, const QString& folderProgram) {
    const QString fisier = FisierSetariPagina(numeProgram, folderProgram);
    if (fisier.isEmpty()) return std::nullopt;
    const QString sectiune = QStringLiteral("Generale");
    return QStringLiteral("dct:") +
           ServiciuFisiere::CitesteIni(fisier, sectiune, QStringLiteral("DataCerereTiparita")) +
           QStringLiteral(";nct:") + ServiciuFisiere::CitesteIni(fisier, sectiune, QStringLiteral("NrCerereTiparita")) +
           QLatin1Char(';');
}

QString LiniePrefix(const QString& document, const QString& serverCerere) {
    const QString server = serverCerere.trimmed().isEmpty() ? ServerCerereImplicit : serverCerere;
    return QStringLiteral("location.hash='#") + PentruJs(document) + QStringLiteral("_asf_vmg';SERVER_CERERE='") +
           PentruJs(server) + QStringLiteral("';");
}

std::optional<InterogareFisier> PrimaCareNuCiteste(const std::vector<InterogareFisier>& interogari) {
    static const QRegularExpression citire(QStringLiteral("^[\\s(]*(SELECT|WITH)\\b"),
                                           QRegularExpression::CaseInsensitiveOption);
    for (const auto& s : interogari)
        if (!citire.match(s.text).hasMatch()) return s;
    return std::nullopt;
}

QString JsonInterogari(BazaDate& db, const QString& continutFisier, qint64 cerereID) {
    const std::vector<InterogareFisier> interogari = Interogari(continutFisier);
    if (const auto s = PrimaCareNuCiteste(interogari))
        throw Eroare(QStringLiteral("Linia %1 a fisierului de interogari: sunt permise numai interogari care "
                                    "citesc date (SELECT). Nu s-a rulat nimic.\n%2")
                         .arg(s->linie)
                         .arg(s->text));
    TranzactieCitire doarCitire(db);
    QString json = QStringLiteral("[");
    int nr = 0;
    for (const auto& s : interogari) {
        try {
            const qsizetype marcaje = s.text.count(MarcajCerere);
            QString text = s.text;
            text.replace(MarcajCerere, QStringLiteral("?"));
            Interogare q(db, text);
            for (qsizetype i = 0; i < marcaje; ++i)
                q.Leaga(cerereID);
            q.Executa();
            if (nr) json += u',';
            AdaugaRezultat(json, q, nr);
        } catch (const Eroare& e) {
            throw Eroare(QStringLiteral("Linia %1 a fisierului de interogari: %2").arg(s.linie).arg(e.text()));
        }
        ++nr;
    }
    json += u']';
    return json;
}

QString Sql2Json(BazaDate& db, const QString& sql, qint64 cerereID, bool cuSetari, const QString& prefix,
                 const MediuWeb& mediu, Mesaje& m) {
    try {
        const QString json = JsonInterogari(db, sql, cerereID);
        QString text;
        if (cuSetari)
            if (const auto setari = TextSetari(mediu.numeProgram, mediu.folderProgram))
                text += QStringLiteral("SETARI_INI='") + PentruJs(*setari) + QStringLiteral("';\n");
        if (!prefix.trimmed().isEmpty()) text += prefix + u'\n';
        text += QStringLiteral("VB6_OUTPUT=") + json + u'\n';

        // Whole or not at all: the page may be loading the file while it is written.
        QSaveFile f(mediu.FisierIesire());
        if (!f.open(QIODevice::WriteOnly) || f.write(text.toUtf8()) < 0 || !f.commit())
            throw Eroare(QStringLiteral("Fisierul %1 nu poate fi scris: %2")
                             .arg(QDir::toNativeSeparators(mediu.FisierIesire()), f.errorString()));
        return json;
    } catch (const Eroare& e) {
        m.Critic(e.text(), QStringLiteral("Eroare Sql2Json"));
        return {};
    }
}

std::optional<PaginaWeb> StartCerereWeb(BazaDate& db, const MediuWeb& mediu, qint64 cerereID, const QString& document,
                                        bool aplicatie, Mesaje& m) {
    const QString titlu = QStringLiteral("StartCerereWeb");
    if (!QFileInfo(mediu.fisierInterogari).isFile()) return std::nullopt;
    QFile f(mediu.fisierInterogari);
    if (!f.open(QIODevice::ReadOnly)) {
        m.Critic(QStringLiteral("Fisierul %1 nu poate fi citit: %2")
                     .arg(QDir::toNativeSeparators(mediu.fisierInterogari), f.errorString()),
                 titlu);
        return std::nullopt;
    }
    const QString sql = QString::fromUtf8(f.readAll());
    if (Interogari(sql).empty()) return std::nullopt;

    // Before the data, since they are written beside the page.
    const QFileInfo pagina(mediu.pagina);
    if (!pagina.isFile()) {
        m.Critic(QStringLiteral("Fisierul '%1' nu exista in %2")
                     .arg(pagina.fileName(), QDir::toNativeSeparators(pagina.absolutePath())),
                 titlu);
        return std::nullopt;
    }
    if (Sql2Json(db, sql, cerereID, true, LiniePrefix(document, mediu.serverCerere), mediu, m).isEmpty())
        return std::nullopt;

    PaginaWeb p;
    p.adresa = QUrl::fromLocalFile(pagina.absoluteFilePath());
    p.adresa.setFragment(document);
    if (aplicatie) {
        static const char* const browsere[] = {
            "C:/Program Files (x86)/Microsoft/Edge/Application/msedge.exe",
            "C:/Program Files (x86)/Google/Chrome/Application/chrome.exe",
            "C:/Program Files/Google/Chrome/Application/chrome.exe",
            "/usr/bin/chromium",
            "/usr/bin/google-chrome",
            "/usr/bin/microsoft-edge",
        };
        for (const char* b : browsere)
            if (QFileInfo(QString::fromLatin1(b)).isFile()) {
                p.browser = QString::fromLatin1(b);
                p.argumente = {QStringLiteral("--app=") + p.adresa.toString(QUrl::FullyEncoded)};
                break;
            }
    }
    return p;
}

bool DeschidePagina(const PaginaWeb& p) {
    if (p.browser.isEmpty()) return QDesktopServices::openUrl(p.adresa);
    return QProcess::startDetached(p.browser, p.argumente);
}

} // namespace PunteWeb
