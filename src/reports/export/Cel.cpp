#include "reports/export/Cel.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Urmarire.h"
#include "reports/Grila.h"
#include "reports/export/Fisier.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace Raport {

namespace {

const QString Format = QStringLiteral("ferolanta-grila");
constexpr int Versiune = 1;

// A style left unset is left out, so that it stays the grid's default when loaded.
QJsonObject dinFont(const Font& f) {
    QJsonObject o{{QStringLiteral("nume"), f.nume}, {QStringLiteral("marime"), f.marime}};
    const std::pair<const char*, const std::optional<bool>&> stiluri[] = {
        {"bold", f.bold}, {"italic", f.italic}, {"subliniat", f.subliniat}};
    for (const auto& [cheie, v] : stiluri)
        if (v) o.insert(QLatin1String(cheie), *v);
    return o;
}
Font inFont(const QJsonObject& o) {
    Font f{o.value(QStringLiteral("nume")).toString(), o.value(QStringLiteral("marime")).toDouble(), {}, {}, {}};
    const std::pair<const char*, std::optional<bool>&> stiluri[] = {
        {"bold", f.bold}, {"italic", f.italic}, {"subliniat", f.subliniat}};
    for (const auto& [cheie, v] : stiluri)
        if (o.contains(QLatin1String(cheie))) v = o.value(QLatin1String(cheie)).toBool();
    return f;
}
QJsonObject dinAliniere(const Aliniere& a) {
    return {{QStringLiteral("h"), int(a.orizontal)}, {QStringLiteral("v"), int(a.vertical)}};
}
Aliniere inAliniere(const QJsonObject& o) {
    return {Orizontal(std::clamp(o.value(QStringLiteral("h")).toInt(), 0, 2)),
            Vertical(std::clamp(o.value(QStringLiteral("v")).toInt(), 0, 2))};
}

QJsonValue dinValoare(const QVariant& v) {
    if (v.metaType() == QMetaType::fromType<Bani>())
        return QJsonObject{{QStringLiteral("suma"), v.value<Bani>().Text()}};
    if (v.typeId() == QMetaType::QDate) return QJsonObject{{QStringLiteral("data"), v.toDate().toString(Qt::ISODate)}};
    if (v.typeId() == QMetaType::LongLong || v.typeId() == QMetaType::Int)
        return QJsonObject{{QStringLiteral("intreg"), QString::number(v.toLongLong())}};
    return QJsonValue::Null;
}
QVariant inValoare(const QJsonValue& j) {
    const QJsonObject o = j.toObject();
    if (o.contains(QStringLiteral("suma"))) {
        if (const auto b = Bani::DinText(o.value(QStringLiteral("suma")).toString())) return QVariant::fromValue(*b);
        throw Eroare(QStringLiteral("suma invalida"));
    }
    if (o.contains(QStringLiteral("data"))) {
        const QDate d = QDate::fromString(o.value(QStringLiteral("data")).toString(), Qt::ISODate);
        if (!d.isValid()) throw Eroare(QStringLiteral("data invalida"));
        return d;
    }
    if (o.contains(QStringLiteral("intreg"))) {
        bool ok = false;
        const qint64 n = o.value(QStringLiteral("intreg")).toString().toLongLong(&ok);
        if (!ok) throw Eroare(QStringLiteral("numar invalid"));
        return n;
    }
    return {};
}

} // namespace

QByteArray Cel(const Grila& g) {
    QJsonArray inaltimi, latimi, aliniereColoane, uniri, celule;
    for (int r = 0; r < g.Randuri(); ++r)
        inaltimi.append(g.InaltimeProprie(r));
    for (int c = 0; c < g.Coloane(); ++c) {
        latimi.append(g.LatimeProprie(c));
        const std::optional<Aliniere> a = g.AliniereProprieColoana(c);
        aliniereColoane.append(a ? QJsonValue(dinAliniere(*a)) : QJsonValue());
    }
    for (const Dreptunghi& u : g.Uniri())
        uniri.append(QJsonArray{u.rand1, u.col1, u.rand2, u.col2});
    const Celula gol;
    int semn = 0;
    for (int r = 0; r < g.Randuri(); ++r) {
        if (r >= semn) semn = r + Urmarire::Avans(r, g.Randuri());
        for (int c = 0; c < g.Coloane(); ++c) {
            if (g.EsteGoala(r, c)) continue;
            const Celula x = g.La(r, c);
            QJsonObject o{{QStringLiteral("r"), r}, {QStringLiteral("c"), c}, {QStringLiteral("text"), x.text}};
            if (x.valoare.isValid()) o.insert(QStringLiteral("valoare"), dinValoare(x.valoare));
            if (x.aliniere) o.insert(QStringLiteral("aliniere"), dinAliniere(*x.aliniere));
            if (x.font != Font{}) o.insert(QStringLiteral("font"), dinFont(x.font));
            if (x.incadrare) o.insert(QStringLiteral("incadrare"), true);
            if (x.linii != gol.linii) {
                QJsonArray linii;
                for (Linie l : x.linii)
                    linii.append(int(l));
                o.insert(QStringLiteral("linii"), linii);
            }
            celule.append(o);
        }
    }
    const QJsonObject radacina{
        {QStringLiteral("format"), Format},
        {QStringLiteral("versiune"), Versiune},
        {QStringLiteral("randuri"), g.Randuri()},
        {QStringLiteral("coloane"), g.Coloane()},
        {QStringLiteral("inaltimeImplicita"), g.inaltimeImplicita},
        {QStringLiteral("latimeImplicita"), g.latimeImplicita},
        {QStringLiteral("font"), dinFont(g.fontImplicit)},
        {QStringLiteral("pagina"),
         QJsonObject{{QStringLiteral("hartie"), int(g.pagina.hartie)},
                     {QStringLiteral("portret"), g.pagina.portret},
                     {QStringLiteral("margini"), QJsonArray{g.pagina.margini[0], g.pagina.margini[1],
                                                            g.pagina.margini[2], g.pagina.margini[3]}}}},
        {QStringLiteral("inaltimi"), inaltimi},
        {QStringLiteral("latimi"), latimi},
        {QStringLiteral("aliniereColoane"), aliniereColoane},
        {QStringLiteral("uniri"), uniri},
        {QStringLiteral("celule"), celule},
    };
    return QJsonDocument(radacina).toJson(QJsonDocument::Compact);
}

Grila GrilaDinCel(const QByteArray& json) {
    QJsonParseError e;
    const QJsonDocument d = QJsonDocument::fromJson(json, &e);
    const QJsonObject o = d.object();
    if (e.error != QJsonParseError::NoError || o.value(QStringLiteral("format")).toString() != Format)
        throw Eroare(QStringLiteral("nu este o grila Ferolanta (%1)")
                         .arg(e.error != QJsonParseError::NoError ? e.errorString() : QStringLiteral("format")));
    if (o.value(QStringLiteral("versiune")).toInt() > Versiune)
        throw Eroare(QStringLiteral("grila este scrisa de o versiune mai noua a programului"));
    Grila g(o.value(QStringLiteral("randuri")).toInt(), o.value(QStringLiteral("coloane")).toInt());
    g.inaltimeImplicita = o.value(QStringLiteral("inaltimeImplicita")).toInt(g.inaltimeImplicita);
    g.latimeImplicita = o.value(QStringLiteral("latimeImplicita")).toInt(g.latimeImplicita);
    g.fontImplicit = inFont(o.value(QStringLiteral("font")).toObject());
    const QJsonObject p = o.value(QStringLiteral("pagina")).toObject();
    g.pagina.hartie = Hartie(std::clamp(p.value(QStringLiteral("hartie")).toInt(1), 0, 2));
    g.pagina.portret = p.value(QStringLiteral("portret")).toBool(true);
    const QJsonArray margini = p.value(QStringLiteral("margini")).toArray();
    for (qsizetype i = 0; i < std::min<qsizetype>(4, margini.size()); ++i)
        g.pagina.margini[size_t(i)] = margini[i].toDouble();
    const QJsonArray inaltimi = o.value(QStringLiteral("inaltimi")).toArray();
    for (int r = 0; r < std::min<int>(g.Randuri(), int(inaltimi.size())); ++r)
        g.SeteazaInaltimeRand(r, inaltimi[r].toInt());
    const QJsonArray latimi = o.value(QStringLiteral("latimi")).toArray();
    const QJsonArray aliniereColoane = o.value(QStringLiteral("aliniereColoane")).toArray();
    for (int c = 0; c < g.Coloane(); ++c) {
        if (c < latimi.size()) g.SeteazaLatimeColoana(c, latimi[c].toInt());
        if (c < aliniereColoane.size() && aliniereColoane[c].isObject())
            g.SeteazaAliniereColoana(c, inAliniere(aliniereColoane[c].toObject()));
    }
    for (const QJsonValue& u : o.value(QStringLiteral("uniri")).toArray()) {
        const QJsonArray a = u.toArray();
        g.Uneste({a[0].toInt(), a[1].toInt(), a[2].toInt(), a[3].toInt()});
    }
    for (const QJsonValue& v : o.value(QStringLiteral("celule")).toArray()) {
        const QJsonObject x = v.toObject();
        const int r = x.value(QStringLiteral("r")).toInt(), col = x.value(QStringLiteral("c")).toInt();
        Celula c;
        c.text = x.value(QStringLiteral("text")).toString();
        c.valoare = inValoare(x.value(QStringLiteral("valoare")));
        if (x.contains(QStringLiteral("aliniere"))) c.aliniere = inAliniere(x.value(QStringLiteral("aliniere")).toObject());
        if (x.contains(QStringLiteral("font"))) c.font = inFont(x.value(QStringLiteral("font")).toObject());
        c.incadrare = x.value(QStringLiteral("incadrare")).toBool();
        const QJsonArray linii = x.value(QStringLiteral("linii")).toArray();
        for (qsizetype i = 0; i < std::min<qsizetype>(qsizetype(c.linii.size()), linii.size()); ++i)
            c.linii[size_t(i)] = Linie(std::clamp(linii[i].toInt(), 0, 2));
        g.Seteaza(r, col, c);
    }
    return g;
}

void SalveazaCel(const Grila& g, const QString& fisier) {
    ScrieIntreg(fisier, Cel(g));
}

Grila IncarcaCel(const QString& fisier) {
    QFile f(fisier);
    if (!f.open(QIODevice::ReadOnly))
        throw Eroare(QStringLiteral("Fisierul %1 nu poate fi citit: %2").arg(QDir::toNativeSeparators(fisier), f.errorString()));
    try {
        return GrilaDinCel(f.readAll());
    } catch (const Eroare& e) {
        throw Eroare(QStringLiteral("Fisierul %1: %2").arg(QDir::toNativeSeparators(fisier), e.text()));
    }
}

} // namespace Raport
