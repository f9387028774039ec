#include "documents/DateDocument.h"

#include "cases/DateCerere.h"
#include "base/Texte.h"
#include "base/Sume.h"
#include "base/Setari.h"
#include "store/BazaDate.h"
#include "reference/DateReferinta.h"

#include <QDir>

OptiuniDocumente OptiuniDinSetari(const Setari& s, const QString& applicationPath) {
    OptiuniDocumente o;
    o.FolderActe = QDir(applicationPath).filePath(QStringLiteral("Acte"));
    o.Motiv = s.Motiv;
    o.StrSat = s.StrSat;
    return o;
}

std::optional<PrimarieDocument> CitestePrimaria(BazaDate& db) {
    const auto r = DateReferinta::CitesteRandPrimarie(db);
    if (!r) return std::nullopt;
    PrimarieDocument p;
    p.Judet = r->Text("Judet");
    p.Localitate = r->Text("Localitate");
    p.Primar = r->Text("Primar");
    p.Secretar = r->Text("Secretar");
    p.CodFiscal = r->Text("CodFiscal");
    p.AsSocial = r->Text("AsSocial");
    p.TipLocalitate = r->TipLocalitate;
    return p;
}

QString TextAdresa(const AdresaFamilie& a, const QString& strSat, bool numeProprii) {
    auto are = [](const std::optional<QString>& v) { return v && !v->isEmpty(); };
    QString t;
    if (are(a.Localitate)) t += numeProprii ? NumeProprii(*a.Localitate) : *a.Localitate;
    if (are(a.Strada))
        t += QStringLiteral(", ") + strSat + QLatin1Char(' ') + (numeProprii ? NumeProprii(*a.Strada) : *a.Strada);
    if (are(a.Nr)) t += QStringLiteral(", nr. ") + *a.Nr;
    if (are(a.Sc)) t += QStringLiteral(", sc. ") + *a.Sc;
    if (are(a.Ap)) t += QStringLiteral(", ap. ") + *a.Ap;
    return t;
}

QString TextData(const QDate& d) {
    return FormatData(d);
}

namespace TextOptional {

std::optional<QString> Numar(const std::optional<qint64>& v) {
    if (!v) return std::nullopt;
    return QString::number(*v);
}

std::optional<QString> Data(const std::optional<QDate>& v) {
    if (!v) return std::nullopt;
    return TextData(*v);
}

std::optional<QString> Suma(const std::optional<Bani>& v) {
    if (!v) return std::nullopt;
    return TextSuma(*v);
}

} // namespace TextOptional

QString NumeIntreg(const std::optional<QString>& nume, const std::optional<QString>& prenume) {
    return nume.value_or(QString()) + QLatin1Char(' ') + prenume.value_or(QString());
}

namespace Camp {

std::optional<QString> Text(const Interogare& q, const QString& camp) {
    const QVariant v = q.Valoare(camp);
    if (v.isNull()) return std::nullopt;
    return v.toString();
}

std::optional<qint64> Intreg(const Interogare& q, const QString& camp) {
    const QVariant v = q.Valoare(camp);
    if (v.isNull()) return std::nullopt;
    return v.toLongLong();
}

std::optional<QDate> Data(const Interogare& q, const QString& camp) {
    if (q.EsteNul(camp)) return std::nullopt;
    const QDate d = q.Data(camp);
    if (!d.isValid()) return std::nullopt;
    return d;
}

std::optional<Bani> Suma(const Interogare& q, const QString& camp) {
    if (q.EsteNul(camp)) return std::nullopt;
    return q.Suma(camp);
}

} // namespace Camp

std::vector<std::vector<qint64>> GrupeChei(const std::vector<qint64>& chei, size_t marime) {
    std::vector<std::vector<qint64>> g;
    for (size_t i = 0; i < chei.size(); i += marime)
        g.emplace_back(chei.begin() + qsizetype(i), chei.begin() + qsizetype(std::min(chei.size(), i + marime)));
    return g;
}
