#include "documents/Sablon.h"

#include "base/Mesaje.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cctype>
#include <utility>

namespace {

// The Windows-1250 byte of a letter that a reader without Unicode should still show right;
// 0 for none. The comma-below letters have no code there and fall back to their cedilla twins.
unsigned char Cod1250(char16_t c) {
    static constexpr std::pair<char16_t, unsigned char> coduri[] = {
        {u'\u0103', 0xE3}, {u'\u0102', 0xC3}, {u'\u00E2', 0xE2}, {u'\u00C2', 0xC2}, {u'\u00EE', 0xEE},
        {u'\u00CE', 0xCE}, {u'\u0219', 0xBA}, {u'\u015F', 0xBA}, {u'\u0218', 0xAA}, {u'\u015E', 0xAA},
        {u'\u021B', 0xFE}, {u'\u0163', 0xFE}, {u'\u021A', 0xDE}, {u'\u0162', 0xDE}, {u'\u00E9', 0xE9},
        {u'\u00C9', 0xC9}, {u'\u00E1', 0xE1}, {u'\u00C1', 0xC1}, {u'\u00ED', 0xED}, {u'\u00F3', 0xF3},
        {u'\u00F6', 0xF6}, {u'\u00D6', 0xD6}, {u'\u00FC', 0xFC}, {u'\u00DC', 0xDC}, {u'\u0151', 0xF5},
        {u'\u0171', 0xFB},
    };
    for (const auto& [litera, cod] : coduri)
        if (litera == c) return cod;
    return 0;
}

} // namespace

namespace {

// Where the head of a template without the marker ends, as newer word processors save it: before
// the first \pard of the document's own level, else after its last group. -1 for a file that is not RTF at all.
qsizetype SfarsitCapFaraMarcaj(const QByteArray& t) {
    if (!t.startsWith("{\\rtf")) return -1;
    int adancime = 0;
    qsizetype ultimulGrup = -1;
    for (qsizetype i = 0; i < t.size(); ++i) {
        const char c = t[i];
        if (c == '\\') {
            if (adancime == 1 && t.mid(i, 5) == "\\pard" &&
                (i + 5 >= t.size() || !std::isalpha(static_cast<unsigned char>(t[i + 5]))))
                return i;
            ++i; // an escaped brace or backslash is text
        } else if (c == '{') {
            ++adancime;
        } else if (c == '}') {
            if (--adancime == 1) ultimulGrup = i + 1;
            if (adancime <= 0) break;
        }
    }
    return ultimulGrup;
}

} // namespace

std::optional<Sablon> CitesteSablon(const QString& cale, Mesaje& m) {
    QFile f(cale);
    if (!QFileInfo(cale).isFile()) {
        m.Critic(QStringLiteral("Fisierul %1 nu exista").arg(QDir::toNativeSeparators(cale)));
        return std::nullopt;
    }
    if (!f.open(QIODevice::ReadOnly)) {
        m.Critic(
            QStringLiteral("Fisierul %1 nu poate fi citit: %2").arg(QDir::toNativeSeparators(cale), f.errorString()));
        return std::nullopt;
    }
    const QByteArray tot = f.readAll();
    const qsizetype poz = tot.lastIndexOf(MarcajSablon);
    qsizetype sfarsitCap = poz < 0 ? SfarsitCapFaraMarcaj(tot) : poz + MarcajSablon.size();
    if (sfarsitCap < 0) {
        m.Critic(QStringLiteral("Fisierul sablon are format gresit. Sunati la tel: 0700-111222"));
        return std::nullopt;
    }
    // The body stops before the closing "}" of the file, whatever line end or blanks follow it.
    qsizetype sfarsitCorp = tot.size();
    while (sfarsitCorp > sfarsitCap && std::isspace(static_cast<unsigned char>(tot[sfarsitCorp - 1])))
        --sfarsitCorp;
    if (sfarsitCorp > sfarsitCap && tot[sfarsitCorp - 1] == '}') --sfarsitCorp;
    Sablon s;
    s.Cap = tot.left(sfarsitCap);
    s.Corp = tot.mid(sfarsitCap, sfarsitCorp - sfarsitCap);
    return s;
}

QByteArray DocumentRtf(const QByteArray& cap, const QByteArray& corp) {
    QByteArray d;
    d.reserve(cap.size() + corp.size() + 1);
    d.append(cap).append(corp).append('}');
    return d;
}

QByteArray TextRtf(const QString& valoare) {
    QByteArray r;
    r.reserve(valoare.size() + 8);
    for (const QChar qc : valoare) {
        const char16_t c = qc.unicode();
        if (c < 0x80) {
            switch (c) {
            case u'\\':
            case u'{':
            case u'}':
                r.append('\\').append(char(c));
                break;
            case u'\n':
                r.append("\\line ");
                break;
            case u'\r':
                break;
            case u'\t':
                r.append("\\tab ");
                break;
            default:
                r.append(char(c));
            }
            continue;
        }
        // Its own group with its own \uc1, so that the fallback byte is skipped whatever the
        // template around it declared.
        r.append("{\\uc1\\u").append(QByteArray::number(qint16(c)));
        if (const unsigned char b = Cod1250(c)) {
            static const char hex[] = "0123456789abcdef";
            r.append("\\'").append(hex[b >> 4]).append(hex[b & 0xF]);
        } else {
            r.append('?');
        }
        r.append('}');
    }
    return r;
}

QString TextPanaLaParanteza(const QString& text) {
    const qsizetype p = text.indexOf(u'(');
    return (p < 0 ? text : text.left(p)).trimmed();
}

void Completare::Pune(const char* marcaj, const QString& valoare) {
    if (!Reusita() || !corp_.contains(marcaj)) return;
    corp_.replace(marcaj, TextRtf(valoare));
}

void Completare::Pune(const char* marcaj, const std::optional<QString>& valoare, const QString& camp) {
    if (!Reusita() || !corp_.contains(marcaj)) return;
    if (!valoare) {
        esec_ = camp;
        marcajEsec_ = QString::fromLatin1(marcaj);
        return;
    }
    corp_.replace(marcaj, TextRtf(*valoare));
}

QString Completare::MesajEsec() const {
    return QStringLiteral("Documentul nu poate fi completat: campul %1 este gol, iar sablonul il cere in %2.")
        .arg(esec_, marcajEsec_);
}

bool ScrieDocument(const QString& cale, const QByteArray& continut, const QString& mesajDeschis, Mesaje& m) {
    QSaveFile f(cale);
    if (f.open(QIODevice::WriteOnly) && f.write(continut) == continut.size() && f.commit()) return true;
    const QString cauza = f.errorString();
    const QFileDevice::FileError eroare = f.error();
    f.cancelWriting();
    const QFileInfo fi(cale);
    if (fi.exists() && (fi.isDir() || !fi.isWritable() || eroare == QFileDevice::PermissionsError ||
                        eroare == QFileDevice::RenameError || eroare == QFileDevice::OpenError)) {
        m.Avertisment(mesajDeschis);
        return false;
    }
    m.Critic(QStringLiteral("Documentul %1 nu a putut fi scris: %2").arg(QDir::toNativeSeparators(cale), cauza));
    return false;
}
