#include "reports/SablonXml.h"

#include "base/Eroare.h"
#include "base/ServiciuFisiere.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "store/BazaDate.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QSqlField>
#include <QSqlRecord>
#include <QXmlStreamReader>
#include <array>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace Raport {

namespace {

// A template is one page: a lattice larger than this is a typing slip, and it would take the
// memory of the whole program before anything is drawn.
constexpr qint64 CeluleMaxime = 100000;

// One node of the template. The attributes keep the order they were written in, which the list
// sections read by position (a DOM's attribute map has no order to rely on).
struct Nod {
    enum class Fel { Element, Text, Altul };
    Fel fel = Fel::Element;
    QString nume; // an element's local name; for the others the words a message names them by
    QXmlStreamAttributes atribute;
    QString continut; // of a text
    std::vector<Nod> copii;
    qint64 linie = 0;

    // The text of every descendant, as the DOM's text gives it.
    QString Text() const {
        QString t;
        aduna(t);
        return t.trimmed();
    }
    const Nod* Copil(QLatin1String n) const {
        for (const Nod& c : copii)
            if (c.fel == Fel::Element && c.nume == n) return &c;
        return nullptr;
    }

private:
    void aduna(QString& t) const {
        for (const Nod& c : copii) {
            if (c.fel == Fel::Text) t += c.continut;
            if (c.fel == Fel::Element) c.aduna(t);
        }
    }
};

// The document element, or nothing when the file is missing or not well-formed.
std::optional<Nod> CitesteSablon(const QString& cale) {
    QFile f(cale);
    if (!f.open(QIODevice::ReadOnly)) return std::nullopt;
    QXmlStreamReader x(&f);
    Nod radacina;
    std::vector<Nod*> stiva; // only ancestors: a parent's list grows after its open child has closed
    bool gasita = false;
    const auto adauga = [&](Nod::Fel fel, const QString& nume, const QString& continut = {}) {
        if (stiva.empty()) return;
        Nod n;
        n.fel = fel;
        n.nume = nume;
        n.continut = continut;
        n.linie = x.lineNumber();
        stiva.back()->copii.push_back(std::move(n));
    };
    while (!x.atEnd()) {
        switch (x.readNext()) {
        case QXmlStreamReader::StartElement: {
            Nod n;
            n.nume = x.name().toString();
            n.atribute = x.attributes();
            n.linie = x.lineNumber();
            if (stiva.empty()) {
                radacina = std::move(n);
                gasita = true;
                stiva.push_back(&radacina);
            } else {
                stiva.back()->copii.push_back(std::move(n));
                stiva.push_back(&stiva.back()->copii.back());
            }
            break;
        }
        case QXmlStreamReader::EndElement:
            stiva.pop_back();
            break;
        case QXmlStreamReader::Characters:
            if (!x.isWhitespace()) adauga(Nod::Fel::Text, QStringLiteral("un text"), x.text().toString());
            break;
        case QXmlStreamReader::EntityReference:
            adauga(Nod::Fel::Text, QStringLiteral("un text"), x.text().toString());
            break;
        case QXmlStreamReader::Comment:
            adauga(Nod::Fel::Altul, QStringLiteral("un comentariu"));
            break;
        case QXmlStreamReader::ProcessingInstruction:
            adauga(Nod::Fel::Altul, QStringLiteral("o instructiune de procesare"));
            break;
        default:
            break;
        }
    }
    if (x.hasError() || !gasita) return std::nullopt;
    return radacina;
}

// A number as a template's element text holds it: the whole text, with a point or a comma.
std::optional<double> NumarStrict(QString t) {
    t = t.trimmed();
    QLocale c = QLocale::c();
    c.setNumberOptions(QLocale::RejectGroupSeparator);
    bool ok = false;
    double x = c.toDouble(t, &ok);
    if (!ok) x = c.toDouble(t.replace(QLatin1Char(','), QLatin1Char('.')), &ok);
    if (!ok || !std::isfinite(x)) return std::nullopt;
    return x;
}

// Whole numbers round half to even, as the old run-time's conversions did.
std::optional<int> Rotunjit(double x, int jos, int sus) {
    if (!std::isfinite(x)) return std::nullopt;
    const double r = std::nearbyint(x);
    if (r < jos || r > sus) return std::nullopt;
    return int(r);
}

std::optional<bool> BooleanDinText(const QString& text) {
    const QString t = text.trimmed();
    if (t.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0) return true;
    if (t.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0) return false;
    if (const auto x = NumarStrict(t)) return *x != 0;
    return std::nullopt;
}

// The keywords add up to one code of the grid: horizontal 0 (none), 5, 9, 13 and vertical 0, 1, 2.
int CodAliniere(const QString& h, const QString& v) {
    int cod = 0;
    if (h == QLatin1String("left"))
        cod += 5;
    else if (h == QLatin1String("center"))
        cod += 9;
    else if (h == QLatin1String("right"))
        cod += 13;
    if (v == QLatin1String("center"))
        cod += 1;
    else if (v == QLatin1String("bottom"))
        cod += 2;
    return cod;
}

// An unknown horizontal keyword leaves the grid's general alignment, which sets text at the left; an
// unknown vertical one adds the same 0 as "top", so the code cannot tell them apart.
Aliniere AliniereDin(const QString& h, const QString& v) {
    static constexpr std::pair<int, Orizontal> orizontal[] = {
        {13, Orizontal::Dreapta}, {9, Orizontal::Centru}, {5, Orizontal::Stanga}, {0, Orizontal::Stanga}};
    static constexpr Vertical vertical[] = {Vertical::Sus, Vertical::Centru, Vertical::Jos};
    const int cod = CodAliniere(h, v);
    for (const auto& [baza, o] : orizontal)
        if (cod >= baza) return {o, vertical[cod - baza]};
    return {};
}

Margine MargineDin(const QString& nume) {
    static const std::pair<QLatin1String, Margine> margini[] = {
        {QLatin1String("EdgeRight"), Margine::Dreapta},
        {QLatin1String("EdgeTop"), Margine::Sus},
        {QLatin1String("EdgeBottom"), Margine::Jos},
        {QLatin1String("InsideVertical"), Margine::InteriorVertical},
        {QLatin1String("InsideHorizontal"), Margine::InteriorOrizontal},
        {QLatin1String("DiagonalUp"), Margine::DiagonalaSus},
        {QLatin1String("DiagonalDown"), Margine::DiagonalaJos},
    };
    for (const auto& [n, m] : margini)
        if (nume == n) return m;
    return Margine::Stanga;
}

Linie LinieDin(const QString& text) {
    if (text == QLatin1String("Thin")) return Linie::Subtire;
    if (text == QLatin1String("Thick")) return Linie::Groasa;
    return Linie::Nimic;
}

QString FaraZerouriZecimale(QString t) {
    if (!t.contains(u'.') || t.contains(u'e', Qt::CaseInsensitive)) return t;
    while (t.endsWith(u'0'))
        t.chop(1);
    if (t.endsWith(u'.')) t.chop(1);
    return t == QLatin1String("-0") ? QStringLiteral("0") : t;
}

// A field's value as the cell shows it, the same from both engines: PostgreSQL gives exact decimals
// as text with all their zeros and dates as dates, SQLite dates as ISO text.
QString TextCamp(const QSqlField& f) {
    const QVariant v = f.value();
    switch (v.typeId()) {
    case QMetaType::QDate:
        return FormatData(v.toDate());
    case QMetaType::QDateTime:
        return FormatData(v.toDateTime().date());
    case QMetaType::Double:
    case QMetaType::Float:
        return FaraZerouriZecimale(QString::number(v.toDouble(), 'f', 4));
    case QMetaType::QString: {
        const QString t = v.toString();
        if (f.metaType().id() == QMetaType::Double) return FaraZerouriZecimale(t);
        static const QRegularExpression iso(QStringLiteral("^(\\d{4}-\\d{2}-\\d{2})(?:[ T]00:00:00(?:\\.0+)?)?$"));
        if (const auto m = iso.match(t); m.hasMatch())
            if (const QDate d = QDate::fromString(m.captured(1), Qt::ISODate); d.isValid()) return FormatData(d);
        return t;
    }
    default:
        return v.toString();
    }
}

// The first record of one query: a template reads nothing else.
struct SetDate {
    QSqlRecord rec; // the field names, with the first row's values when there is one
    bool areRand = false;
};

// A failure already worded with the file and the line.
class EroareSablon : public Eroare {
public:
    using Eroare::Eroare;
};

class Incarcare {
public:
    Incarcare(BazaDate& db, const QString& cale, const Grila& g) : db_(db), cale_(cale), g_(g) {}

    Grila Ruleaza(const Nod& radacina) {
        try {
            static const std::array<QLatin1String, 5> nume = {QLatin1String("PROPRIETATI"), QLatin1String("RECORDSETS"),
                                                              QLatin1String("ROWHEIGHTS"), QLatin1String("COLOANE"),
                                                              QLatin1String("ELEMENTE")};
            std::array<const Nod*, 5> s{};
            for (size_t i = 0; i < nume.size(); ++i)
                if (!(s[i] = radacina.Copil(nume[i]))) Esec(QStringLiteral("elementul <%1> lipseste.").arg(nume[i]));
            Proprietati(*s[0]);
            Seturi(*s[1]);
            InaltimiRanduri(*s[2]);
            Coloane(*s[3]);
            Elemente(*s[4]);
        } catch (const EroareSablon&) {
            throw;
        } catch (const Eroare& e) {
            Esec(nod_ ? Element() + QStringLiteral(": ") + e.text() : e.text());
        }
        return std::move(g_);
    }

private:
    [[noreturn]] void Esec(const QString& detaliu) const {
        if (!nod_) throw EroareSablon(QStringLiteral("Sablonul %1: %2").arg(cale_, detaliu));
        throw EroareSablon(QStringLiteral("Sablonul %1, linia %2: %3").arg(cale_).arg(nod_->linie).arg(detaliu));
    }

    QString Element() const { return QStringLiteral("elementul <%1>").arg(nod_ ? nod_->nume : QString()); }

    int Intreg16(double x, const QString& ce) const {
        const auto r = Rotunjit(x, -32768, 32767);
        if (!r)
            Esec(QStringLiteral("%1: %2 (%3) nu incape intr-un numar intreg de 16 biti.").arg(Element(), ce).arg(x));
        return *r;
    }
    int Octet(double x, const QString& ce) const {
        const auto r = Rotunjit(x, 0, 255);
        if (!r) Esec(QStringLiteral("%1: %2 (%3) nu este un numar de la 0 la 255.").arg(Element(), ce).arg(x));
        return *r;
    }
    double Numar(const Nod& n) const {
        const auto x = NumarStrict(n.Text());
        if (!x) Esec(QStringLiteral("elementul <%1> are textul \"%2\", care nu este un numar.").arg(n.nume, n.Text()));
        return *x;
    }
    int Intreg(const Nod& n) const { return Intreg16(Numar(n), QStringLiteral("textul elementului <%1>").arg(n.nume)); }
    bool Boolean(const QString& text, const QString& ce) const {
        const auto b = BooleanDinText(text);
        if (!b) Esec(QStringLiteral("%1 are valoarea \"%2\", care nu este True, False sau un numar.").arg(ce, text));
        return *b;
    }
    bool Boolean(const Nod& n) const { return Boolean(n.Text(), QStringLiteral("elementul <%1>").arg(n.nume)); }

    QString Atribut(const Nod& n, int pozitie, const QString& rol, const Nod& parinte) const {
        if (pozitie >= n.atribute.size())
            Esec(QStringLiteral("elementul <%1> din <%2> nu are atributul %3 (%4).")
                     .arg(n.nume, parinte.nume)
                     .arg(pozitie + 1)
                     .arg(rol));
        return n.atribute[pozitie].value().toString();
    }

    // The list sections read each child's attributes by position: anything but an element there is
    // refused rather than taken for an element without them.
    std::vector<const Nod*> ElementeLista(const Nod& sectiune) {
        std::vector<const Nod*> r;
        for (const Nod& c : sectiune.copii) {
            nod_ = &c;
            if (c.fel != Nod::Fel::Element)
                Esec(QStringLiteral("<%1> poate cuprinde numai elemente, dar aici sta %2.").arg(sectiune.nume, c.nume));
            r.push_back(&c);
        }
        return r;
    }

    void Redimensioneaza(int randuri, int coloane, const Nod& n) {
        if (randuri < 1 || coloane < 1)
            Esec(QStringLiteral("elementul <%1> cere o grila de %2 randuri si %3 coloane; grila are cel putin un "
                                "rand si o coloana.")
                     .arg(n.nume)
                     .arg(randuri)
                     .arg(coloane));
        if (qint64(randuri) * coloane > CeluleMaxime)
            Esec(QStringLiteral("elementul <%1> cere o grila de %2 randuri si %3 coloane; o pagina are cel mult %4 "
                                "celule.")
                     .arg(n.nume)
                     .arg(randuri)
                     .arg(coloane)
                     .arg(CeluleMaxime));
        g_.SeteazaRanduri(randuri);
        g_.SeteazaColoane(coloane);
    }

    void Proprietati(const Nod& s) {
        for (const Nod& n : s.copii) {
            if (n.fel != Nod::Fel::Element) continue;
            nod_ = &n;
            const QString& e = n.nume;
            if (e == QLatin1String("DEFAULTFONT"))
                g_.fontImplicit.nume = n.Text();
            else if (e == QLatin1String("DEFAULTFONTSIZE"))
                g_.fontImplicit.marime = Numar(n);
            else if (e == QLatin1String("DEFAULTFONTBOLD"))
                g_.fontImplicit.bold = Boolean(n);
            else if (e == QLatin1String("DEFAULTFONTITALIC"))
                g_.fontImplicit.italic = Boolean(n);
            else if (e == QLatin1String("DEFAULTFONTUNDERLINE"))
                g_.fontImplicit.subliniat = Boolean(n);
            else if (e == QLatin1String("DEFAULTROWHEIGHT"))
                g_.inaltimeImplicita = Intreg(n);
            else if (e == QLatin1String("NRCOL")) {
                nrCol_ = Intreg(n);
                Redimensioneaza(g_.Randuri(), nrCol_, n);
            } else if (e == QLatin1String("NRRAND")) {
                nrRand_ = Intreg(n);
                Redimensioneaza(nrRand_, g_.Coloane(), n);
            } else if (e == QLatin1String("FILENAMESETARI"))
                fisierSetari_ = n.Text();
            // RAND1TABEL is known and left alone on purpose: the templates in use count "Rand1" as 0.
        }
    }

    void Seturi(const Nod& s) {
        for (const Nod* n : ElementeLista(s)) {
            nod_ = n;
            const QString a = Atribut(*n, 0, QStringLiteral("numarul setului de date"), s);
            const int nr = Intreg16(Val(a), QStringLiteral("numarul setului de date \"%1\"").arg(a));
            if (nr < 0) Esec(QStringLiteral("%1: numarul setului de date \"%2\" este negativ.").arg(Element(), a));
            // Numbers rise from child to child: a lower one drops the sets above it.
            seturi_.resize(size_t(nr) + 1);
            // A relative settings file stands beside the template, wherever the program was started from.
            const QString setari = fisierSetari_.isEmpty() ? QString() : QFileInfo(cale_).dir().filePath(fisierSetari_);
            sqlPrecedent_ = InlocuiesteParametri(n->Text(), setari, sqlPrecedent_);
            seturi_[size_t(nr)] = Deschide(sqlPrecedent_, nr, *n, s);
        }
    }

    SetDate Deschide(const QString& sql, int nr, const Nod& n, const Nod& sectiune) {
        const QString element =
            QStringLiteral("elementul <%1> din <%2> (setul de date %3)").arg(n.nume, sectiune.nume).arg(nr);
        static const QRegularExpression citire(QStringLiteral("^[\\s(]*(SELECT|WITH)\\b"),
                                               QRegularExpression::CaseInsensitiveOption);
        if (!citire.match(sql).hasMatch())
            Esec(QStringLiteral("%1: interogarea nu citeste date; sunt permise numai interogari SELECT.\n%2")
                     .arg(element, sql));
        if (!citire_) citire_.emplace(db_);
        try {
            Interogare q(db_, sql);
            q.Executa();
            SetDate s;
            s.areRand = q.Urmator();
            s.rec = q.query().record();
            return s;
        } catch (const Eroare& e) {
            Esec(QStringLiteral("%1: interogarea nu a putut fi rulata: %2").arg(element, e.text()));
        }
    }

    void VerificaInGrila(int rand, int col, const Nod& n) const {
        if (rand < 0 || rand >= g_.Randuri() || col < 0 || col >= g_.Coloane())
            Esec(QStringLiteral("elementul <%1> cade in afara grilei: randul %2, coloana %3, dar grila are randurile "
                                "0-%4 si coloanele 0-%5.")
                     .arg(n.nume)
                     .arg(rand)
                     .arg(col)
                     .arg(g_.Randuri() - 1)
                     .arg(g_.Coloane() - 1));
    }

    void InaltimiRanduri(const Nod& s) {
        for (const Nod* n : ElementeLista(s)) {
            nod_ = n;
            const QString a = Atribut(*n, 0, QStringLiteral("randul"), s);
            const int rand = Intreg16(Val(a), QStringLiteral("randul \"%1\"").arg(a));
            const int inaltime = Intreg(*n);
            VerificaInGrila(rand, 0, *n);
            g_.SeteazaInaltimeRand(rand, inaltime);
        }
    }

    void Coloane(const Nod& s) {
        for (const Nod* n : ElementeLista(s)) {
            nod_ = n;
            const QString latime = Atribut(*n, 0, QStringLiteral("latimea"), s);
            const QString h = Atribut(*n, 1, QStringLiteral("alinierea orizontala"), s);
            const QString v = Atribut(*n, 2, QStringLiteral("alinierea verticala"), s);
            const int col = Intreg(*n);
            VerificaInGrila(0, col, *n);
            g_.SeteazaLatimeColoana(col, Intreg16(Val(latime), QStringLiteral("latimea \"%1\"").arg(latime)));
            g_.SeteazaAliniereColoana(col, AliniereDin(h, v));
        }
    }

    int Rand(const QString& referinta, const QString& offset) const {
        double x = 0;
        if (referinta == QLatin1String("Rand1"))
            x = Rand1 + Val(offset);
        else if (referinta == QLatin1String("rows"))
            x = nrRand_ - 1 + Val(offset);
        else
            x = Val(referinta) + Val(offset);
        return Intreg16(x, QStringLiteral("randul din \"%1\" si \"%2\"").arg(referinta, offset));
    }

    int Coloana(const QString& referinta, const QString& offset) const {
        const double x = referinta == QLatin1String("cols") ? nrCol_ - 1 + Val(offset) : Val(referinta) + Val(offset);
        return Intreg16(x, QStringLiteral("coloana din \"%1\" si \"%2\"").arg(referinta, offset));
    }

    template <typename F> void PeCelule(const Dreptunghi& d, F&& f) {
        g_.ModificaAspect(d, std::forward<F>(f));
    }

    // What a range and a cell share: one member of each cell's own font at a time, and the wrap.
    bool FontSauIncadrare(const Nod& n, const Dreptunghi& d) {
        const QString& e = n.nume;
        if (e == QLatin1String("FONTNAME")) {
            const QString t = n.Text();
            PeCelule(d, [&](Aspect& c) { c.font.nume = t; });
        } else if (e == QLatin1String("FONTSIZE")) {
            const double x = Numar(n);
            PeCelule(d, [&](Aspect& c) { c.font.marime = x; });
        } else if (e == QLatin1String("FONTBOLD")) {
            const bool b = Boolean(n);
            PeCelule(d, [&](Aspect& c) { c.font.bold = b; });
        } else if (e == QLatin1String("FONTITALIC")) {
            const bool b = Boolean(n);
            PeCelule(d, [&](Aspect& c) { c.font.italic = b; });
        } else if (e == QLatin1String("WRAP")) {
            g_.Incadreaza(d, Boolean(n));
        } else {
            return false;
        }
        return true;
    }

    void Elemente(const Nod& s) {
        for (const Nod& n : s.copii) {
            if (n.fel != Nod::Fel::Element) continue;
            nod_ = &n;
            if (n.nume == QLatin1String("RANGE"))
                Domeniu(n);
            else if (n.nume == QLatin1String("CELL"))
                CelulaSablon(n);
        }
    }

    void Domeniu(const Nod& n) {
        r_.clear(), offsetr_.clear(), c_.clear(), offsetc_.clear();
        r2_.clear(), offsetr2_.clear(), c2_.clear(), offsetc2_.clear();
        hAlign_.clear(), vAlign_.clear();
        const std::pair<QLatin1String, QString*> atribute[] = {
            {QLatin1String("r1"), &r_},          {QLatin1String("offsetr1"), &offsetr_},
            {QLatin1String("c1"), &c_},          {QLatin1String("offsetc1"), &offsetc_},
            {QLatin1String("r2"), &r2_},         {QLatin1String("offsetr2"), &offsetr2_},
            {QLatin1String("c2"), &c2_},         {QLatin1String("offsetc2"), &offsetc2_},
            {QLatin1String("hAlign"), &hAlign_}, {QLatin1String("vAlign"), &vAlign_},
        };
        CitesteAtribute(n, atribute);
        const Dreptunghi d{Rand(r_, offsetr_), Coloana(c_, offsetc_), Rand(r2_, offsetr2_), Coloana(c2_, offsetc2_)};
        VerificaInGrila(d.rand1, d.col1, n);
        VerificaInGrila(d.rand2, d.col2, n);
        if (!hAlign_.isEmpty() && !vAlign_.isEmpty()) g_.Aliniaza(d, AliniereDin(hAlign_, vAlign_));
        for (const Nod& copil : n.copii) {
            if (copil.fel != Nod::Fel::Element) continue;
            nod_ = &copil;
            if (FontSauIncadrare(copil, d)) continue;
            if (copil.nume == QLatin1String("MERGE")) {
                g_.Uneste(d);
            } else if (copil.nume == QLatin1String("BORDER")) {
                const QString margine = Atribut(copil, 0, QStringLiteral("marginea"), n);
                g_.Bordura(d, MargineDin(margine), LinieDin(copil.Text()));
            }
        }
    }

    // A cell's coordinates stay from the element before when it leaves them out, the row and column
    // of a range's first corner included: templates place a run of cells by their offsets alone.
    void CelulaSablon(const Nod& n) {
        hAlign_.clear(), vAlign_.clear();
        const std::pair<QLatin1String, QString*> atribute[] = {
            {QLatin1String("r"), &r_},           {QLatin1String("offsetr"), &offsetr_},
            {QLatin1String("c"), &c_},           {QLatin1String("offsetc"), &offsetc_},
            {QLatin1String("hAlign"), &hAlign_}, {QLatin1String("vAlign"), &vAlign_},
        };
        CitesteAtribute(n, atribute);
        const int rand = Rand(r_, offsetr_), col = Coloana(c_, offsetc_);
        VerificaInGrila(rand, col, n);
        const Dreptunghi d{rand, col, rand, col};
        if (!hAlign_.isEmpty() && !vAlign_.isEmpty()) g_.Aliniaza(d, AliniereDin(hAlign_, vAlign_));
        for (const Nod& copil : n.copii) {
            if (copil.fel != Nod::Fel::Element) continue;
            nod_ = &copil;
            if (!FontSauIncadrare(copil, d) && copil.nume == QLatin1String("TEXT")) Text(copil, rand, col);
        }
    }

    template <size_t N>
    static void CitesteAtribute(const Nod& n, const std::pair<QLatin1String, QString*> (&tinte)[N]) {
        for (const QXmlStreamAttribute& a : n.atribute)
            for (const auto& [nume, tinta] : tinte)
                if (a.name() == nume) *tinta = a.value().toString();
    }

    void Text(const Nod& n, int rand, int col) {
        bool cuNrrec = false, compadres = false;
        int sepnum = 0;
        for (const QXmlStreamAttribute& a : n.atribute) {
            const QString v = a.value().toString();
            if (a.name() == QLatin1String("nrrec")) {
                cuNrrec = true;
                nrRec_ = Octet(Val(v), QStringLiteral("atributul nrrec=\"%1\"").arg(v));
            } else if (a.name() == QLatin1String("sepnum")) {
                sepnum = Octet(Val(v), QStringLiteral("atributul sepnum=\"%1\"").arg(v));
            } else if (a.name() == QLatin1String("compadres")) {
                compadres = Boolean(v, QStringLiteral("atributul compadres al elementului <TEXT>"));
            }
        }
        const QString text = n.Text();
        if (!cuNrrec) {
            g_.Scrie(rand, col, text);
            return;
        }
        // A later step wins; a sepnum above 2 without compadres sets nothing and the cell keeps its text.
        std::optional<QString> rezultat;
        if (compadres) rezultat = AdresaCompusa(text);
        if (sepnum == 1 || sepnum == 2) {
            SeparaNume(ValoareCamp(nrRec_, text));
            rezultat = sepnum == 1 ? parte1_ : parte2_;
        }
        if (sepnum == 0 && !compadres) rezultat = ValoareCamp(nrRec_, text);
        if (rezultat) g_.Scrie(rand, col, *rezultat);
    }

    const SetDate& Set(int nr, const QString& deCe) const {
        if (size_t(nr) >= seturi_.size() || !seturi_[size_t(nr)])
            Esec(QStringLiteral("elementul <TEXT> %1 setul de date %2, care nu a fost deschis in <RECORDSETS>.")
                     .arg(deCe)
                     .arg(nr));
        return *seturi_[size_t(nr)];
    }

    void CerePrimulRand(const SetDate& s, int nr, const QString& camp) const {
        if (!s.areRand)
            Esec(QStringLiteral("elementul <TEXT> citeste campul \"%1\" din setul de date %2, dar interogarea "
                                "setului nu a intors niciun rand.")
                     .arg(camp)
                     .arg(nr));
    }

    // A misspelt field shows in the cell: it is the only sign the template's author gets of it.
    QString ValoareCamp(int nr, const QString& camp) const {
        const SetDate& s = Set(nr, QStringLiteral("cere"));
        const int i = s.rec.indexOf(camp);
        if (i < 0) return QStringLiteral(" The field ") + camp + QStringLiteral(" is not exist");
        CerePrimulRand(s, nr, camp);
        return s.rec.isNull(i) ? QString() : TextCamp(s.rec.field(i));
    }

    // A value without a blank leaves the halves of the split before it.
    void SeparaNume(const QString& valoare) {
        const qsizetype i = valoare.indexOf(u' ');
        if (i < 0) return;
        parte1_ = valoare.left(i);
        parte2_ = valoare.mid(i + 1);
    }

    // Field, prefix, field, prefix..., each item closed by its comma: what follows the last comma is no
    // item. A field left without its prefix item has an empty prefix.
    static std::vector<std::pair<QString, QString>> SeparaPerechi(const QString& lista) {
        QStringList articole = lista.split(u',');
        articole.removeLast();
        std::vector<std::pair<QString, QString>> r;
        for (qsizetype i = 0; i < articole.size(); i += 2)
            r.emplace_back(articole[i], i + 1 < articole.size() ? articole[i + 1] : QString());
        return r;
    }

    // Always from set 1, whatever nrrec says. A list whose fields are all empty gives an empty text.
    QString AdresaCompusa(const QString& lista) const {
        const SetDate& s = Set(1, QStringLiteral("cu compadres citeste"));
        QString r;
        for (const auto& [camp, prefix] : SeparaPerechi(lista)) {
            const int i = s.rec.indexOf(camp);
            if (i < 0)
                Esec(QStringLiteral(
                         "elementul <TEXT> cu compadres cere campul \"%1\", care lipseste din setul de date 1.")
                         .arg(camp));
            CerePrimulRand(s, 1, camp);
            if (s.rec.isNull(i)) continue;
            r += prefix;
            if (!prefix.isEmpty()) r += u' ';
            r += TextCamp(s.rec.field(i));
            r += QLatin1String(", ");
        }
        r.chop(2);
        return r;
    }

    // "Rand1" of the templates: RAND1TABEL never moves it.
    static constexpr int Rand1 = 0;

    BazaDate& db_;
    QString cale_;
    Grila g_;
    const Nod* nod_ = nullptr; // the element at work, whose line a failure names
    int nrRand_ = 0, nrCol_ = 0;
    QString fisierSetari_;
    std::vector<std::optional<SetDate>> seturi_;
    std::optional<TranzactieCitire> citire_;
    QString sqlPrecedent_;
    // A cell's coordinates are those of a range's first corner: one storage for both.
    QString r_, offsetr_, c_, offsetc_, r2_, offsetr2_, c2_, offsetc2_;
    QString hAlign_, vAlign_;
    int nrRec_ = 0;
    QString parte1_, parte2_;
};

} // namespace

QString InlocuiesteParametri(const QString& sql, const QString& fisierSetari, const QString& precedent) {
    if (!sql.contains(u'{')) return sql;
    QStringList nume;
    for (qsizetype i = sql.indexOf(u'{'); i >= 0; i = sql.indexOf(u'{', i + 1)) {
        const qsizetype j = sql.indexOf(u'}', i + 1);
        if (j < 0)
            throw Eroare(QStringLiteral("parametrul de la pozitia %1 nu se inchide cu }.\n%2").arg(i + 1).arg(sql));
        nume << sql.mid(i + 1, j - i - 1);
    }
    QString rezultat = precedent;
    for (const QString& n : nume) {
        if (n == QLatin1String("sOrder")) continue;
        const QString semn = u'{' + n + u'}';
        if (!n.isEmpty()) {
            const QString t = ServiciuFisiere::CitesteIni(fisierSetari, QStringLiteral("Setari"), n);
            const auto valoare = Rotunjit(Val(t), 0, 255);
            if (!valoare)
                throw Eroare(QStringLiteral("cheia %1 din sectiunea [Setari] a fisierului %2 are valoarea \"%3\", care "
                                            "nu este un numar de la 0 la 255.")
                                 .arg(n, fisierSetari, t));
            rezultat = QString(sql).replace(semn, QString::number(*valoare));
        }
        // Each replacement starts again from the query as written: the number above never survives.
        rezultat = QString(sql).replace(semn, QString());
    }
    return rezultat;
}

Grila IncarcaSablonXml(BazaDate& db, const QString& cale, const Grila& grilaGoala) {
    const std::optional<Nod> radacina = CitesteSablon(cale);
    if (!radacina)
        throw Eroare(QStringLiteral("Fisierul ") + cale +
                     QStringLiteral(" are cod XML invalid. Sunati la Morvante: 0700-111222!"));
    Incarcare incarcare(db, cale, grilaGoala);
    return incarcare.Ruleaza(*radacina);
}

QString CaleSablonXml(const QString& folderBD, const QString& applicationPath, const QString& nume) {
    const QString sub = QStringLiteral("Rapoarte/") + nume;
    QStringList cai;
    if (!folderBD.isEmpty()) cai << QDir(folderBD).filePath(sub);
    cai << QDir(applicationPath).filePath(sub);
    for (const QString& c : cai)
        if (QFileInfo(c).isFile()) return c;
    return cai.last();
}

} // namespace Raport
