#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QFile>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <vector>
#include <zip.h>

// What a written spreadsheet holds, read back as a person opening it would see it.

// An entry of a zip archive (an xlsx, an ods), as text; empty when missing.
inline QString DinArhiva(const QString& arhiva, const char* intrare) {
    int eroare = 0;
    zip_t* z = zip_open(QFile::encodeName(arhiva).constData(), ZIP_RDONLY, &eroare);
    if (!z) return {};
    QByteArray r;
    zip_stat_t st;
    if (zip_stat(z, intrare, 0, &st) == 0)
        if (zip_file_t* f = zip_fopen(z, intrare, 0)) {
            r.resize(qsizetype(st.size));
            r.resize(qsizetype(std::max<zip_int64_t>(0, zip_fread(f, r.data(), st.size))));
            zip_fclose(f);
        }
    zip_close(z);
    return QString::fromUtf8(r);
}

// The first sheet's texts, a row of texts per row, the repeated rows and cells spelt out (up to 20).
inline std::vector<QStringList> TextePrimaFoaie(const QString& fisier) {
    QDomDocument doc;
    doc.setContent(DinArhiva(fisier, "content.xml").toUtf8(), true);
    const QString ns = QStringLiteral("urn:oasis:names:tc:opendocument:xmlns:table:1.0");
    std::vector<QStringList> r;
    const QDomNodeList tabele = doc.elementsByTagNameNS(ns, QStringLiteral("table"));
    if (tabele.isEmpty()) return r;
    const QDomNodeList randuri = tabele.at(0).toElement().elementsByTagNameNS(ns, QStringLiteral("table-row"));
    for (int i = 0; i < randuri.size(); ++i) {
        QStringList rand;
        for (QDomElement c = randuri.at(i).firstChildElement(); !c.isNull(); c = c.nextSiblingElement())
            for (int k = std::min(
                     20, c.attributeNS(ns, QStringLiteral("number-columns-repeated"), QStringLiteral("1")).toInt());
                 k > 0; --k)
                rand << c.text();
        for (int k = std::min(20, randuri.at(i)
                                      .toElement()
                                      .attributeNS(ns, QStringLiteral("number-rows-repeated"), QStringLiteral("1"))
                                      .toInt());
             k > 0; --k)
            r.push_back(rand);
    }
    return r;
}
