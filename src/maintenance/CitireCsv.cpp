#include "maintenance/CitireCsv.h"

#include "base/Eroare.h"

#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <iconv.h>

namespace {

// Qt decodes Windows-1250 only when built with ICU; glibc's iconv always can.
QString din1250(const QByteArray& octeti) {
    QStringDecoder cp1250("windows-1250");
    if (cp1250.isValid()) return cp1250(octeti);
    iconv_t cd = iconv_open("UTF-16LE", "WINDOWS-1250");
    if (cd == iconv_t(-1)) throw Eroare(QStringLiteral("Codificarea Windows-1250 nu este disponibila."));
    QByteArray iesire(octeti.size() * 2, Qt::Uninitialized);
    char* in = const_cast<char*>(octeti.constData());
    size_t ramas = size_t(octeti.size());
    char* out = iesire.data();
    size_t loc = size_t(iesire.size());
    const size_t r = iconv(cd, &in, &ramas, &out, &loc);
    iconv_close(cd);
    if (r == size_t(-1)) throw Eroare(QStringLiteral("Fisierul nu este nici UTF-8, nici Windows-1250."));
    return QString(reinterpret_cast<const QChar*>(iesire.constData()), (iesire.size() - qsizetype(loc)) / 2);
}

class TabelaCsv : public TabelaVeche {
public:
    TabelaCsv(const QString& fisier) : fisier_(fisier) {
        QFile f(fisier);
        if (!f.open(QIODevice::ReadOnly))
            throw Eroare(QStringLiteral("Fisierul %1 nu poate fi citit.").arg(QDir::toNativeSeparators(fisier)));
        text_ = TextCsv(f.readAll());
        qint64 linii = 0;
        if (CitesteRandCsv(text_, poz_, antet_, linii))
            for (QString& c : antet_)
                c = c.trimmed();
        linie_ = 1 + linii;
    }

    QStringList Campuri() const override { return antet_; }

    bool Urmator(QStringList& valori) override {
        for (;;) {
            qint64 linii = 0;
            inceput_ = linie_;
            if (!CitesteRandCsv(text_, poz_, valori, linii)) return false;
            linie_ += linii;
            // A blank line (the last one of many files) is no row.
            if (valori.size() == 1 && valori.first().isNull() && antet_.size() != 1) continue;
            if (valori.size() != antet_.size())
                throw Eroare(QStringLiteral("Fisierul %1, randul %2: %3 campuri in loc de %4.")
                                 .arg(QDir::toNativeSeparators(fisier_))
                                 .arg(inceput_)
                                 .arg(valori.size())
                                 .arg(antet_.size()));
            return true;
        }
    }

    qint64 Pozitie() const override { return poz_; }
    QString Loc() const override { return QStringLiteral("randul %1").arg(inceput_); }

private:
    QString fisier_;
    QString text_;
    QStringList antet_;
    qsizetype poz_ = 0;
    qint64 linie_ = 1, inceput_ = 1;
};

} // namespace

QString TextCsv(const QByteArray& octeti) {
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(octeti);
    if (utf8.hasError()) text = din1250(octeti);
    if (text.startsWith(QChar(0xFEFF))) text.remove(0, 1);
    return text;
}

bool CitesteRandCsv(const QString& text, qsizetype& poz, QStringList& campuri, qint64& linii) {
    campuri.clear();
    const qsizetype n = text.size();
    if (poz >= n) return false;
    const QChar* s = text.constData();
    for (;;) {
        QString valoare;
        if (poz < n && s[poz] == u'"') {
            valoare = QString::fromLatin1(""); // quoted: an empty text, not a missing value
            ++poz;
            for (;;) {
                qsizetype sfarsit = poz;
                while (sfarsit < n && s[sfarsit] != u'"')
                    ++sfarsit;
                for (qsizetype i = poz; i < sfarsit; ++i)
                    if (s[i] == u'\n') ++linii;
                valoare.append(QStringView(s + poz, sfarsit - poz));
                poz = sfarsit + 1;
                if (sfarsit >= n) break; // an unclosed quote runs to the end of the file
                if (poz < n && s[poz] == u'"') {
                    valoare.append(u'"');
                    ++poz;
                    continue;
                }
                break;
            }
            // Whatever stands between the closing quote and the separator belongs to the value.
            const qsizetype inceput = poz;
            while (poz < n && s[poz] != u',' && s[poz] != u'\r' && s[poz] != u'\n')
                ++poz;
            if (poz > inceput) valoare.append(QStringView(s + inceput, poz - inceput));
        } else {
            const qsizetype inceput = poz;
            while (poz < n && s[poz] != u',' && s[poz] != u'\r' && s[poz] != u'\n')
                ++poz;
            if (poz > inceput) valoare = QString(s + inceput, poz - inceput);
        }
        campuri.append(valoare);
        if (poz >= n) return true;
        if (s[poz] == u',') {
            ++poz;
            continue;
        }
        if (s[poz] == u'\r') ++poz;
        if (poz < n && s[poz] == u'\n') ++poz;
        ++linii;
        return true;
    }
}

SursaCsv::SursaCsv(const QString& folder) : dir_(folder) {
    if (!dir_.exists()) throw Eroare(QStringLiteral("Folderul %1 nu exista.").arg(QDir::toNativeSeparators(folder)));
    for (const QFileInfo& fi : dir_.entryInfoList(QDir::Files, QDir::Name))
        if (fi.suffix().compare(QLatin1String("csv"), Qt::CaseInsensitive) == 0) fisiere_ << fi.fileName();
    if (fisiere_.isEmpty())
        throw Eroare(QStringLiteral("Folderul %1 nu are fisiere .csv.").arg(QDir::toNativeSeparators(folder)));
}

QString SursaCsv::Descriere() const {
    return QDir::toNativeSeparators(dir_.absolutePath());
}

QStringList SursaCsv::Tabele() const {
    QStringList r;
    for (const QString& f : fisiere_)
        r << QFileInfo(f).completeBaseName();
    return r;
}

QString SursaCsv::fisier(const QString& tabela) const {
    for (const QString& f : fisiere_)
        if (QFileInfo(f).completeBaseName().compare(tabela, Qt::CaseInsensitive) == 0) return dir_.filePath(f);
    throw Eroare(QStringLiteral("Tabela %1 nu are fisier in %2.").arg(tabela, Descriere()));
}

qint64 SursaCsv::Volum(const QString& tabela) const {
    return QFileInfo(fisier(tabela)).size();
}

std::unique_ptr<TabelaVeche> SursaCsv::Deschide(const QString& tabela) {
    return std::make_unique<TabelaCsv>(fisier(tabela));
}

QStringList SursaCsv::Campuri(const QString& tabela) {
    const QString cale = fisier(tabela);
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly))
        throw Eroare(QStringLiteral("Fisierul %1 nu poate fi citit.").arg(QDir::toNativeSeparators(cale)));
    // The header is the first record; a header longer than this is no export of a table.
    const QString text = TextCsv(f.read(1 << 16));
    qsizetype poz = 0;
    qint64 linii = 0;
    QStringList antet;
    CitesteRandCsv(text, poz, antet, linii);
    for (QString& c : antet)
        c = c.trimmed();
    return antet;
}
