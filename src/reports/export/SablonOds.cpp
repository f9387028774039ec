#include "reports/export/SablonOds.h"

#include "base/Eroare.h"
#include "reports/export/Fisier.h"
#include "reports/export/SpatiiOdf.h"

#include <QDomDocument>
#include <QFile>
#include <QFileInfo>
#include <map>
#include <zip.h>

namespace Raport {
using namespace Odf;
namespace {


const QString RanduriRepetate = QStringLiteral("number-rows-repeated");
const QString ColoaneRepetate = QStringLiteral("number-columns-repeated");
const QString ColoaneUnite = QStringLiteral("number-columns-spanned");

bool Este(const QDomNode& n, const QString& nume) {
    return n.isElement() && n.namespaceURI() == NsTable && n.localName() == nume;
}
bool EsteCelula(const QDomNode& n) {
    return Este(n, QStringLiteral("table-cell")) || Este(n, QStringLiteral("covered-table-cell"));
}

int Repetari(const QDomElement& e, const QString& atribut) {
    return std::max(1, e.attributeNS(NsTable, atribut, QStringLiteral("1")).toInt());
}
void SeteazaRepetari(QDomElement& e, const QString& atribut, int n) {
    if (n > 1)
        e.setAttributeNS(NsTable, QStringLiteral("table:") + atribut, n);
    else
        e.removeAttributeNS(NsTable, atribut);
}

// A row or a cell that stands for several alike, cut so that its `n`-th copy (from 0) stands alone.
QDomElement Desparte(QDomElement e, int n, const QString& atribut) {
    const int total = Repetari(e, atribut);
    if (total == 1) return e;
    QDomNode parinte = e.parentNode();
    if (n > 0) {
        QDomElement inainte = e.cloneNode(true).toElement();
        SeteazaRepetari(inainte, atribut, n);
        parinte.insertBefore(inainte, e);
    }
    if (n < total - 1) {
        QDomElement dupa = e.cloneNode(true).toElement();
        SeteazaRepetari(dupa, atribut, total - n - 1);
        parinte.insertAfter(dupa, e);
    }
    SeteazaRepetari(e, atribut, 1);
    return e;
}

// The elements named `nume` of a table in order, including those within its row or column groups,
// but not those of a table inside a cell.
void Colecteaza(const QDomElement& parinte, const QString& nume, std::vector<QDomElement>& r) {
    for (QDomNode n = parinte.firstChild(); !n.isNull(); n = n.nextSibling()) {
        if (!n.isElement() || n.namespaceURI() != NsTable) continue;
        if (n.localName() == nume)
            r.push_back(n.toElement());
        else if (n.localName() != QLatin1String("table-row") && n.localName() != QLatin1String("table-column") &&
                 !EsteCelula(n))
            Colecteaza(n.toElement(), nume, r);
    }
}

QDomElement Celula(QDomDocument& doc) {
    return doc.createElementNS(NsTable, QStringLiteral("table:table-cell"));
}

QDomElement Rand(QDomDocument& doc, QDomElement& tabel, int rand) {
    std::vector<QDomElement> randuri;
    Colecteaza(tabel, QStringLiteral("table-row"), randuri);
    int inceput = 0;
    for (QDomElement& e : randuri) {
        const int n = Repetari(e, RanduriRepetate);
        if (rand < inceput + n) return Desparte(e, rand - inceput, RanduriRepetate);
        inceput += n;
    }
    QDomElement nou;
    for (; inceput <= rand; ++inceput) {
        nou = doc.createElementNS(NsTable, QStringLiteral("table:table-row"));
        nou.appendChild(Celula(doc));
        tabel.appendChild(nou);
    }
    return nou;
}

QDomElement CelulaLa(QDomDocument& doc, QDomElement& rand, int col) {
    int inceput = 0;
    for (QDomNode n = rand.firstChild(); !n.isNull(); n = n.nextSibling()) {
        if (!EsteCelula(n)) continue;
        QDomElement e = n.toElement();
        const int k = Repetari(e, ColoaneRepetate);
        if (col < inceput + k) return Desparte(e, col - inceput, ColoaneRepetate);
        inceput += k;
    }
    QDomElement nou;
    for (; inceput <= col; ++inceput) {
        nou = Celula(doc);
        rand.appendChild(nou);
    }
    return nou;
}

void ScrieText(QDomDocument& doc, QDomElement& celula, const QString& text) {
    if (celula.localName() != QLatin1String("table-cell")) celula.setTagName(QStringLiteral("table:table-cell"));
    while (!celula.firstChild().isNull())
        celula.removeChild(celula.firstChild());
    for (const QString& atribut :
         {QStringLiteral("value"), QStringLiteral("date-value"), QStringLiteral("time-value"),
          QStringLiteral("boolean-value"), QStringLiteral("string-value"), QStringLiteral("currency")})
        celula.removeAttributeNS(NsOffice, atribut);
    celula.removeAttributeNS(NsTable, QStringLiteral("formula"));
    celula.removeAttributeNS(NsCalcExt, QStringLiteral("value-type"));
    celula.setAttributeNS(NsOffice, QStringLiteral("office:value-type"), QStringLiteral("string"));
    for (const QString& linie : text.split(QLatin1Char('\n'))) {
        QDomElement p = doc.createElementNS(NsText, QStringLiteral("text:p"));
        p.appendChild(doc.createTextNode(linie));
        celula.appendChild(p);
    }
}

// The cell's look with thin lines round it: a copy of its own automatic style, or a new style
// built on the named one, made once per look.
class Linii {
public:
    explicit Linii(QDomDocument& doc) : doc_(doc) {
        auto stiluri = doc.documentElement().elementsByTagNameNS(NsOffice, QStringLiteral("automatic-styles"));
        if (stiluri.isEmpty()) {
            automate_ = doc.createElementNS(NsOffice, QStringLiteral("office:automatic-styles"));
            auto corp = doc.documentElement().elementsByTagNameNS(NsOffice, QStringLiteral("body"));
            doc.documentElement().insertBefore(automate_, corp.isEmpty() ? QDomNode() : corp.at(0));
        } else {
            automate_ = stiluri.at(0).toElement();
        }
    }

    void Aplica(QDomElement& celula) {
        const QString vechi = celula.attributeNS(NsTable, QStringLiteral("style-name"));
        auto gasit = facute_.find(vechi);
        if (gasit == facute_.end()) gasit = facute_.emplace(vechi, fa(vechi)).first;
        celula.setAttributeNS(NsTable, QStringLiteral("table:style-name"), gasit->second);
    }

private:
    QString fa(const QString& vechi) {
        const QString nume = QStringLiteral("ceFerolantaLinii%1").arg(facute_.size() + 1);
        QDomElement stil;
        for (QDomElement e = automate_.firstChildElement(); !e.isNull(); e = e.nextSiblingElement())
            if (e.attributeNS(NsStyle, QStringLiteral("name")) == vechi && !vechi.isEmpty())
                stil = e.cloneNode(true).toElement();
        if (stil.isNull()) {
            stil = doc_.createElementNS(NsStyle, QStringLiteral("style:style"));
            stil.setAttributeNS(NsStyle, QStringLiteral("style:family"), QStringLiteral("table-cell"));
            stil.setAttributeNS(NsStyle, QStringLiteral("style:parent-style-name"),
                                vechi.isEmpty() ? QStringLiteral("Default") : vechi);
        }
        stil.setAttributeNS(NsStyle, QStringLiteral("style:name"), nume);
        QDomElement proprietati = stil.firstChildElement(QStringLiteral("style:table-cell-properties"));
        if (proprietati.isNull()) {
            proprietati = doc_.createElementNS(NsStyle, QStringLiteral("style:table-cell-properties"));
            stil.insertBefore(proprietati, stil.firstChild());
        }
        for (const char* latura : {"border-left", "border-right", "border-top", "border-bottom"})
            proprietati.removeAttributeNS(NsFo, QLatin1String(latura));
        proprietati.setAttributeNS(NsFo, QStringLiteral("fo:border"), QStringLiteral("0.5pt solid #000000"));
        automate_.appendChild(stil);
        return nume;
    }

    QDomDocument& doc_;
    QDomElement automate_;
    std::map<QString, QString> facute_;
};

// One column less: its description, and in every row its cell; a merge that crosses it narrows.
void StergeColoana(QDomElement& tabel, int col) {
    std::vector<QDomElement> coloane;
    Colecteaza(tabel, QStringLiteral("table-column"), coloane);
    int inceput = 0;
    for (QDomElement& e : coloane) {
        const int n = Repetari(e, ColoaneRepetate);
        if (col < inceput + n) {
            if (n > 1)
                SeteazaRepetari(e, ColoaneRepetate, n - 1);
            else
                e.parentNode().removeChild(e);
            break;
        }
        inceput += n;
    }
    std::vector<QDomElement> randuri;
    Colecteaza(tabel, QStringLiteral("table-row"), randuri);
    for (QDomElement& rand : randuri) {
        inceput = 0;
        for (QDomNode n = rand.firstChild(); !n.isNull(); n = n.nextSibling()) {
            if (!EsteCelula(n)) continue;
            QDomElement e = n.toElement();
            const int k = Repetari(e, ColoaneRepetate);
            const int unite = std::max(1, e.attributeNS(NsTable, ColoaneUnite, QStringLiteral("1")).toInt());
            if (col >= inceput + k) {
                // A merge that starts before the column and covers it loses a column.
                if (unite > 1 && col < inceput + unite) SeteazaRepetari(e, ColoaneUnite, unite - 1);
                inceput += k;
                continue;
            }
            if (k > 1) {
                SeteazaRepetari(e, ColoaneRepetate, k - 1);
            } else {
                // A merge that starts in the removed column goes on from the next one.
                if (unite > 1) {
                    QDomElement urmator = e.nextSiblingElement();
                    if (!urmator.isNull()) {
                        Desparte(urmator, 0, ColoaneRepetate);
                        QDomElement nou = e.cloneNode(true).toElement();
                        SeteazaRepetari(nou, ColoaneUnite, unite - 1);
                        rand.replaceChild(nou, urmator);
                    }
                }
                rand.removeChild(e);
            }
            break;
        }
    }
}

QByteArray Citeste(zip_t* z, const char* nume) {
    zip_stat_t st;
    zip_file_t* f = zip_stat(z, nume, 0, &st) == 0 ? zip_fopen(z, nume, 0) : nullptr;
    if (!f) return {};
    QByteArray date(qsizetype(st.size), Qt::Uninitialized);
    const zip_int64_t citit = zip_fread(f, date.data(), st.size);
    zip_fclose(f);
    return citit == zip_int64_t(st.size) ? date : QByteArray();
}

} // namespace

void CompleteazaSablonOds(const QString& sablon, const QString& fisier, const std::vector<CelulaOds>& celule,
                          const std::vector<int>& coloaneSterse) {
    if (!QFileInfo::exists(sablon))
        throw Eroare(QStringLiteral("Nu exista fisierul sablon %1").arg(QFileInfo(sablon).fileName()));
    const auto nuEFoaie = [&] {
        return Eroare(QStringLiteral("Fisierul sablon %1 nu este o foaie de calcul OpenDocument.").arg(sablon));
    };
    ScrieIntregPrin(fisier, [&](const QString& temporar) {
        QFile::remove(temporar);
        if (!QFile::copy(sablon, temporar))
            throw Eroare(QStringLiteral("Fisierul sablon %1 nu poate fi copiat.").arg(sablon));
        QFile::setPermissions(temporar, QFile::permissions(temporar) | QFileDevice::WriteOwner);
        int cod = 0;
        zip_t* z = zip_open(QFile::encodeName(temporar).constData(), 0, &cod);
        if (!z) throw nuEFoaie();
        QDomDocument doc;
        if (!doc.setContent(Citeste(z, "content.xml"), true)) {
            zip_discard(z);
            throw nuEFoaie();
        }
        QDomElement tabel =
            doc.documentElement().elementsByTagNameNS(NsTable, QStringLiteral("table")).at(0).toElement();
        if (tabel.isNull()) {
            zip_discard(z);
            throw nuEFoaie();
        }
        Linii linii(doc);
        for (const CelulaOds& c : celule) {
            QDomElement rand = Rand(doc, tabel, c.rand);
            QDomElement celula = CelulaLa(doc, rand, c.col);
            ScrieText(doc, celula, c.text);
            if (c.linii) linii.Aplica(celula);
        }
        for (int col : coloaneSterse)
            StergeColoana(tabel, col);
        const QByteArray continut = doc.toByteArray(-1);
        zip_source_t* s = zip_source_buffer(z, continut.constData(), zip_uint64_t(continut.size()), 0);
        const zip_int64_t index = zip_name_locate(z, "content.xml", 0);
        const auto esec = [&] {
            const QString motiv = QString::fromUtf8(zip_strerror(z));
            zip_discard(z);
            return Eroare(QStringLiteral("Foaia de calcul nu poate fi scrisa: %1").arg(motiv));
        };
        if (!s || index < 0 || zip_file_replace(z, zip_uint64_t(index), s, 0) != 0) {
            if (s) zip_source_free(s);
            throw esec();
        }
        if (zip_close(z) != 0) throw esec();
    });
}

} // namespace Raport
