#include "maintenance/FisiereWeb.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringDecoder>

namespace {

bool scrie(const QString& cale, const QByteArray& continut) {
    QDir().mkpath(QFileInfo(cale).absolutePath());
    QSaveFile f(cale);
    if (!f.open(QIODevice::WriteOnly)) return false;
    f.write(continut);
    return f.commit();
}

std::optional<QString> textUtf8(const QByteArray& corp) {
    QStringDecoder d(QStringDecoder::Utf8);
    QString t = d.decode(corp);
    if (d.hasError()) return std::nullopt;
    return t;
}

QString faraRupturi(QString t) {
    return t.remove(u'\r').remove(u'\n');
}

} // namespace

QUrl FisiereWeb::AdresaPagina(const Updater::Mediu& m) {
    return m.Adresa(PunteWeb::Pagina);
}

QUrl FisiereWeb::AdresaInterogari(const Updater::Mediu& m) {
    return m.Adresa(m.exe + u'/' + PunteWeb::FisierInterogari);
}

QUrl FisiereWeb::AdresaFont(const Updater::Mediu& m) {
    return m.Adresa(Font);
}

QString FisiereWeb::CaleFont(const QString& applicationPath) {
    return QDir(applicationPath).filePath(QStringLiteral("Acte/") + Font);
}

bool FisiereWeb::PaginaValida(const QByteArray& corp) {
    const auto t = textUtf8(corp);
    return t && t->contains(QStringLiteral("<html"), Qt::CaseInsensitive);
}

bool FisiereWeb::InterogariValide(const QByteArray& corp) {
    const auto t = textUtf8(corp);
    if (!t) return false;
    const auto interogari = PunteWeb::Interogari(*t);
    return !interogari.empty() && !PunteWeb::PrimaCareNuCiteste(interogari);
}

bool FisiereWeb::FontValid(const QByteArray& corp) {
    // The sfnt tables need more than their directory; the four bytes name the outline kind.
    return corp.size() > 256 &&
           (corp.startsWith(QByteArray("\x00\x01\x00\x00", 4)) || corp.startsWith("true") || corp.startsWith("OTTO"));
}

FisiereWeb::Rezultat FisiereWeb::Actualizeaza(const Updater::Mediu& m, const PunteWeb::MediuWeb& w) {
    Rezultat r;
    if (!m.Activ()) return r;
    if (!QFileInfo::exists(w.pagina)) {
        const auto pagina = Descarcare::Descarca(AdresaPagina(m), m.timpMaximMs);
        // A server that does not answer in time is not asked again.
        if (pagina.stare == Descarcare::Raspuns::Stare::Expirat) return r;
        if (pagina.Reusit() && PaginaValida(pagina.corp)) r.paginaScrisa = scrie(w.pagina, pagina.corp);
    }
    const auto interogari = Descarcare::Descarca(AdresaInterogari(m), m.timpMaximMs);
    if (!interogari.Reusit() || !InterogariValide(interogari.corp)) return r;
    QFile local(w.fisierInterogari);
    const bool exista = local.open(QIODevice::ReadOnly);
    const QString textLocal = exista ? QString::fromUtf8(local.readAll()) : QString();
    local.close();
    if (!exista || faraRupturi(textLocal) != faraRupturi(QString::fromUtf8(interogari.corp)))
        r.interogariScrise = scrie(w.fisierInterogari, interogari.corp);
    return r;
}

QString FisiereWeb::DescarcaFont(const Updater::Mediu& m, const QString& applicationPath) {
    const QString cale = CaleFont(applicationPath);
    if (QFileInfo::exists(cale)) return cale;
    if (!m.Activ()) return {};
    const auto font = Descarcare::Descarca(AdresaFont(m), m.timpMaximMs);
    if (font.Reusit() && FontValid(font.corp) && scrie(cale, font.corp)) return cale;
    return {};
}
