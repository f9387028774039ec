#include "reports/export/Ods.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Urmarire.h"
#include "reports/Grila.h"
#include "reports/export/Fisier.h"
#include "reports/export/SpatiiOdf.h"

#include <QDate>
#include <QFile>
#include <QXmlStreamWriter>
#include <unordered_map>
#include <zip.h>

namespace Raport {
using namespace Odf;

namespace {


QString cm(double valoare) {
    return QString::number(valoare, 'f', 3) + QStringLiteral("cm");
}
QString cmDinPx(int px) {
    return cm(px * 2.54 / 96.0);
}


QString linie(Linie l) {
    switch (l) {
    case Linie::Subtire:
        return QStringLiteral("0.5pt solid #000000");
    case Linie::Groasa:
        return QStringLiteral("1.5pt solid #000000");
    case Linie::Nimic:
        break;
    }
    return QStringLiteral("none");
}

void incepe(QXmlStreamWriter& x, const char* radacina) {
    x.setAutoFormatting(false);
    x.writeStartDocument();
    x.writeNamespace(NsOffice, QStringLiteral("office"));
    x.writeNamespace(NsStyle, QStringLiteral("style"));
    x.writeNamespace(NsText, QStringLiteral("text"));
    x.writeNamespace(NsTable, QStringLiteral("table"));
    x.writeNamespace(NsFo, QStringLiteral("fo"));
    x.writeNamespace(NsNumber, QStringLiteral("number"));
    x.writeStartElement(NsOffice, QLatin1String(radacina));
    x.writeAttribute(NsOffice, QStringLiteral("version"), QStringLiteral("1.2"));
}

// The cell styles of the grid, one per look, named by their order.
class Stiluri {
public:
    explicit Stiluri(const Grila& g) : g_(g) {}

    QString Al(int rand, int col) {
        const std::uint64_t cheie = g_.CheieAspect(rand, col);
        auto it = nume_.find(cheie);
        if (it == nume_.end()) {
            it = nume_.emplace(cheie, QStringLiteral("ce%1").arg(nume_.size() + 1)).first;
            ordine_.push_back({it->second, rand, col});
        }
        return it->second;
    }

    void Scrie(QXmlStreamWriter& x) const {
        x.writeStartElement(NsNumber, QStringLiteral("number-style"));
        x.writeAttribute(NsStyle, QStringLiteral("name"), QStringLiteral("N2"));
        x.writeEmptyElement(NsNumber, QStringLiteral("number"));
        x.writeAttribute(NsNumber, QStringLiteral("decimal-places"), QStringLiteral("2"));
        x.writeAttribute(NsNumber, QStringLiteral("min-integer-digits"), QStringLiteral("1"));
        x.writeEndElement();
        x.writeStartElement(NsNumber, QStringLiteral("date-style"));
        x.writeAttribute(NsStyle, QStringLiteral("name"), QStringLiteral("D1"));
        for (const char* parte : {"day", ".", "month", ".", "year"}) {
            if (*parte == '.') {
                x.writeTextElement(NsNumber, QStringLiteral("text"), QStringLiteral("."));
                continue;
            }
            x.writeEmptyElement(NsNumber, QLatin1String(parte));
            x.writeAttribute(NsNumber, QStringLiteral("style"), QStringLiteral("long"));
        }
        x.writeEndElement();
        for (const auto& [nume, rand, col] : ordine_) {
            const Celula& c = g_.La(rand, col);
            const Aliniere a = g_.AliniereCelula(rand, col);
            x.writeStartElement(NsStyle, QStringLiteral("style"));
            x.writeAttribute(NsStyle, QStringLiteral("name"), nume);
            x.writeAttribute(NsStyle, QStringLiteral("family"), QStringLiteral("table-cell"));
            const FelValoare fel = Felul(c.valoare);
            if (fel == FelValoare::Suma) x.writeAttribute(NsStyle, QStringLiteral("data-style-name"), QStringLiteral("N2"));
            if (fel == FelValoare::Data) x.writeAttribute(NsStyle, QStringLiteral("data-style-name"), QStringLiteral("D1"));
            x.writeEmptyElement(NsStyle, QStringLiteral("table-cell-properties"));
            x.writeAttribute(NsStyle, QStringLiteral("vertical-align"),
                             a.vertical == Vertical::Sus      ? QStringLiteral("top")
                             : a.vertical == Vertical::Centru ? QStringLiteral("middle")
                                                              : QStringLiteral("bottom"));
            if (c.incadrare) x.writeAttribute(NsFo, QStringLiteral("wrap-option"), QStringLiteral("wrap"));
            x.writeAttribute(NsFo, QStringLiteral("border-left"), linie(c.linii[0]));
            x.writeAttribute(NsFo, QStringLiteral("border-right"), linie(c.linii[1]));
            x.writeAttribute(NsFo, QStringLiteral("border-top"), linie(c.linii[2]));
            x.writeAttribute(NsFo, QStringLiteral("border-bottom"), linie(c.linii[3]));
            if (c.linii[4] != Linie::Nimic)
                x.writeAttribute(NsStyle, QStringLiteral("diagonal-bl-tr"), linie(c.linii[4]));
            if (c.linii[5] != Linie::Nimic)
                x.writeAttribute(NsStyle, QStringLiteral("diagonal-tl-br"), linie(c.linii[5]));
            x.writeEmptyElement(NsStyle, QStringLiteral("paragraph-properties"));
            x.writeAttribute(NsFo, QStringLiteral("text-align"),
                             a.orizontal == Orizontal::Stanga   ? QStringLiteral("start")
                             : a.orizontal == Orizontal::Centru ? QStringLiteral("center")
                                                                : QStringLiteral("end"));
            x.writeEmptyElement(NsStyle, QStringLiteral("text-properties"));
            const Font f = g_.FontCelula(rand, col);
            if (!f.nume.isEmpty()) x.writeAttribute(NsFo, QStringLiteral("font-family"), f.nume);
            if (f.marime > 0) x.writeAttribute(NsFo, QStringLiteral("font-size"), QString::number(f.marime) + QStringLiteral("pt"));
            if (f.Bold()) x.writeAttribute(NsFo, QStringLiteral("font-weight"), QStringLiteral("bold"));
            if (f.Italic()) x.writeAttribute(NsFo, QStringLiteral("font-style"), QStringLiteral("italic"));
            if (f.Subliniat()) {
                x.writeAttribute(NsStyle, QStringLiteral("text-underline-style"), QStringLiteral("solid"));
                x.writeAttribute(NsStyle, QStringLiteral("text-underline-width"), QStringLiteral("auto"));
                x.writeAttribute(NsStyle, QStringLiteral("text-underline-color"), QStringLiteral("font-color"));
            }
            x.writeEndElement();
        }
    }

private:
    struct Stil {
        QString nume;
        int rand, col;
    };
    const Grila& g_;
    std::unordered_map<std::uint64_t, QString> nume_;
    std::vector<Stil> ordine_;
};

void scrieCelula(QXmlStreamWriter& x, const Celula& c, const QString& stil, const std::optional<Dreptunghi>& unire) {
    x.writeStartElement(NsTable, QStringLiteral("table-cell"));
    x.writeAttribute(NsTable, QStringLiteral("style-name"), stil);
    if (unire) {
        x.writeAttribute(NsTable, QStringLiteral("number-columns-spanned"), QString::number(unire->col2 - unire->col1 + 1));
        x.writeAttribute(NsTable, QStringLiteral("number-rows-spanned"), QString::number(unire->rand2 - unire->rand1 + 1));
    }
    switch (Felul(c.valoare)) {
    case FelValoare::Suma:
        x.writeAttribute(NsOffice, QStringLiteral("value-type"), QStringLiteral("float"));
        x.writeAttribute(NsOffice, QStringLiteral("value"), c.valoare.value<Bani>().Text());
        break;
    case FelValoare::Intreg:
        x.writeAttribute(NsOffice, QStringLiteral("value-type"), QStringLiteral("float"));
        x.writeAttribute(NsOffice, QStringLiteral("value"), QString::number(c.valoare.toLongLong()));
        break;
    case FelValoare::Data:
        x.writeAttribute(NsOffice, QStringLiteral("value-type"), QStringLiteral("date"));
        x.writeAttribute(NsOffice, QStringLiteral("date-value"), c.valoare.toDate().toString(Qt::ISODate));
        break;
    case FelValoare::Text:
        if (!c.text.isEmpty()) x.writeAttribute(NsOffice, QStringLiteral("value-type"), QStringLiteral("string"));
        break;
    }
    // One paragraph per line of the text, as the spreadsheet keeps line breaks.
    if (!c.text.isEmpty())
        for (const QString& rand : c.text.split(QLatin1Char('\n')))
            x.writeTextElement(NsText, QStringLiteral("p"), rand);
    x.writeEndElement();
}

QByteArray continut(const Grila& g) {
    // The cells' looks first, so that their styles stand before the table that names them.
    Stiluri stiluri(g);
    for (int r = 1; r < g.Randuri(); ++r)
        for (int c = 1; c < g.Coloane(); ++c)
            stiluri.Al(r, c);

    QByteArray rezultat;
    QXmlStreamWriter x(&rezultat);
    incepe(x, "document-content");
    x.writeStartElement(NsOffice, QStringLiteral("automatic-styles"));
    x.writeStartElement(NsStyle, QStringLiteral("style"));
    x.writeAttribute(NsStyle, QStringLiteral("name"), QStringLiteral("ta1"));
    x.writeAttribute(NsStyle, QStringLiteral("family"), QStringLiteral("table"));
    x.writeAttribute(NsStyle, QStringLiteral("master-page-name"), QStringLiteral("Pagina"));
    x.writeEndElement();
    const auto marime = [&](const QString& nume, const char* familie, const char* proprietati, const char* camp,
                            int px) {
        x.writeStartElement(NsStyle, QStringLiteral("style"));
        x.writeAttribute(NsStyle, QStringLiteral("name"), nume);
        x.writeAttribute(NsStyle, QStringLiteral("family"), QLatin1String(familie));
        x.writeEmptyElement(NsStyle, QLatin1String(proprietati));
        x.writeAttribute(NsStyle, QLatin1String(camp), cmDinPx(px));
        x.writeEndElement();
    };
    for (int c = 1; c < g.Coloane(); ++c)
        marime(QStringLiteral("co%1").arg(c), "table-column", "table-column-properties", "column-width",
               g.LatimeColoana(c));
    for (int r = 1; r < g.Randuri(); ++r)
        marime(QStringLiteral("ro%1").arg(r), "table-row", "table-row-properties", "row-height", g.InaltimeRand(r));
    stiluri.Scrie(x);
    x.writeEndElement();

    x.writeStartElement(NsOffice, QStringLiteral("body"));
    x.writeStartElement(NsOffice, QStringLiteral("spreadsheet"));
    x.writeStartElement(NsTable, QStringLiteral("table"));
    x.writeAttribute(NsTable, QStringLiteral("name"), QStringLiteral("Foaie1"));
    x.writeAttribute(NsTable, QStringLiteral("style-name"), QStringLiteral("ta1"));
    for (int c = 1; c < g.Coloane(); ++c) {
        x.writeEmptyElement(NsTable, QStringLiteral("table-column"));
        x.writeAttribute(NsTable, QStringLiteral("style-name"), QStringLiteral("co%1").arg(c));
    }
    int semn = 0;
    for (int r = 1; r < g.Randuri(); ++r) {
        if (r >= semn) semn = r + Urmarire::Avans(r - 1, g.Randuri() - 1);
        x.writeStartElement(NsTable, QStringLiteral("table-row"));
        x.writeAttribute(NsTable, QStringLiteral("style-name"), QStringLiteral("ro%1").arg(r));
        for (int c = 1; c < g.Coloane(); ++c) {
            const std::optional<Dreptunghi> u = g.UnireLa(r, c);
            // A merge that starts in the fixed row or column is not in the sheet.
            const bool inFoaie = u && u->rand1 >= 1 && u->col1 >= 1;
            if (inFoaie && (u->rand1 != r || u->col1 != c)) {
                x.writeEmptyElement(NsTable, QStringLiteral("covered-table-cell"));
                x.writeAttribute(NsTable, QStringLiteral("style-name"), stiluri.Al(r, c));
                continue;
            }
            scrieCelula(x, g.La(r, c), stiluri.Al(r, c), inFoaie ? u : std::nullopt);
        }
        x.writeEndElement();
    }
    x.writeEndElement();
    x.writeEndElement();
    x.writeEndElement();
    x.writeEndElement();
    x.writeEndDocument();
    return rezultat;
}

QByteArray stiluriPagina(const Grila& g) {
    QByteArray r;
    QXmlStreamWriter x(&r);
    incepe(x, "document-styles");
    static const std::pair<double, double> hartii[] = {{29.7, 42.0}, {21.0, 29.7}, {14.8, 21.0}};
    auto [latime, inaltime] = hartii[int(g.pagina.hartie)];
    if (!g.pagina.portret) std::swap(latime, inaltime);
    x.writeStartElement(NsOffice, QStringLiteral("automatic-styles"));
    x.writeStartElement(NsStyle, QStringLiteral("page-layout"));
    x.writeAttribute(NsStyle, QStringLiteral("name"), QStringLiteral("pm1"));
    x.writeEmptyElement(NsStyle, QStringLiteral("page-layout-properties"));
    x.writeAttribute(NsFo, QStringLiteral("page-width"), cm(latime));
    x.writeAttribute(NsFo, QStringLiteral("page-height"), cm(inaltime));
    x.writeAttribute(NsStyle, QStringLiteral("print-orientation"),
                     g.pagina.portret ? QStringLiteral("portrait") : QStringLiteral("landscape"));
    x.writeAttribute(NsFo, QStringLiteral("margin-left"), cm(g.pagina.margini[0]));
    x.writeAttribute(NsFo, QStringLiteral("margin-top"), cm(g.pagina.margini[1]));
    x.writeAttribute(NsFo, QStringLiteral("margin-right"), cm(g.pagina.margini[2]));
    x.writeAttribute(NsFo, QStringLiteral("margin-bottom"), cm(g.pagina.margini[3]));
    x.writeEndElement();
    x.writeEndElement();
    x.writeStartElement(NsOffice, QStringLiteral("master-styles"));
    x.writeEmptyElement(NsStyle, QStringLiteral("master-page"));
    x.writeAttribute(NsStyle, QStringLiteral("name"), QStringLiteral("Pagina"));
    x.writeAttribute(NsStyle, QStringLiteral("page-layout-name"), QStringLiteral("pm1"));
    x.writeEndElement();
    x.writeEndElement();
    x.writeEndDocument();
    return r;
}

const QByteArray TipMime = "application/vnd.oasis.opendocument.spreadsheet";

QByteArray manifest() {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<manifest:manifest xmlns:manifest=\"urn:oasis:names:tc:opendocument:xmlns:manifest:1.0\" "
           "manifest:version=\"1.2\">\n"
           " <manifest:file-entry manifest:full-path=\"/\" manifest:version=\"1.2\" manifest:media-type=\"" +
           TipMime +
           "\"/>\n"
           " <manifest:file-entry manifest:full-path=\"content.xml\" manifest:media-type=\"text/xml\"/>\n"
           " <manifest:file-entry manifest:full-path=\"styles.xml\" manifest:media-type=\"text/xml\"/>\n"
           "</manifest:manifest>\n";
}

} // namespace

void ScrieOds(const Grila& g, const QString& fisier) {
    // The archive's entries, in order: the media type first and stored, as the format asks.
    const std::pair<const char*, QByteArray> intrari[] = {{"mimetype", TipMime},
                                                          {"META-INF/manifest.xml", manifest()},
                                                          {"styles.xml", stiluriPagina(g)},
                                                          {"content.xml", continut(g)}};
    ScrieIntregPrin(fisier, [&](const QString& temporar) {
        int cod = 0;
        zip_t* z = zip_open(QFile::encodeName(temporar).constData(), ZIP_CREATE | ZIP_TRUNCATE, &cod);
        if (!z) throw Eroare(QStringLiteral("Foaia de calcul nu poate fi creata (zip %1).").arg(cod));
        const auto esec = [&] {
            const QString motiv = QString::fromUtf8(zip_strerror(z));
            zip_discard(z);
            return Eroare(QStringLiteral("Foaia de calcul nu poate fi scrisa: %1").arg(motiv));
        };
        for (const auto& [nume, date] : intrari) {
            zip_source_t* s = zip_source_buffer(z, date.constData(), zip_uint64_t(date.size()), 0);
            const zip_int64_t i = s ? zip_file_add(z, nume, s, ZIP_FL_ENC_UTF_8) : -1;
            if (i < 0) {
                if (s) zip_source_free(s);
                throw esec();
            }
            if (qstrcmp(nume, "mimetype") == 0) zip_set_file_compression(z, zip_uint64_t(i), ZIP_CM_STORE, 0);
        }
        // The buffers above live until the archive is closed, which is when it reads them.
        if (Urmarire::Incheie(g.Randuri() - 1, [z] { return zip_close(z); }) != 0) throw esec();
    });
}

} // namespace Raport
