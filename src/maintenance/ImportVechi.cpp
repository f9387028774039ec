#include "maintenance/ImportVechi.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/Texte.h"
#include "maintenance/SursaVeche.h"
#include "store/ActualizareBD.h"
#include "store/BazaDate.h"
#include "store/CopieInainte.h"
#include "store/DateLivrate.h"
#include "store/InserareInLot.h"
#include "store/LucruMare.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <tuple>

namespace {

// Rows written at a time: enough that writing costs little per row, few enough that memory stays small.
constexpr qint64 Lot = 20000;

const QStringList TabeleObligatorii = {QStringLiteral("Familii"), QStringLiteral("Cereri"), QStringLiteral("Membrii"),
                                       QStringLiteral("CereriMembrii"), QStringLiteral("DateGen")};

// The old program's files kept the goods catalogue under this name; the upgrade renames it.
const QString NumeVechiListaBife = QStringLiteral("Bife");

// The upgrade shows what it says to the clerk; during an import it goes into the report instead.
class MesajeRaport : public Mesaje {
public:
    explicit MesajeRaport(QStringList& linii) : linii_(linii) {}
    void Informatie(const QString& text, const QString&) override { linii_ << text; }
    void Avertisment(const QString& text, const QString&) override { linii_ << text; }
    void Critic(const QString& text, const QString&) override { linii_ << text; }
    bool Intrebare(const QString&, const QString&, bool implicitDa) override { return implicitDa; }
    QString Intrare(const QString&, const QString&, const QString& implicit) override { return implicit; }

private:
    QStringList& linii_;
};

} // namespace

std::optional<QVariant> ValoareVeche(const CampSchema& c, const QString& text, const Dialect& d) {
    if (text.isNull()) return QVariant();
    if (c.tip == TipCamp::Text || c.tip == TipCamp::Memo) return QVariant(text);
    const QStringView t = QStringView(text).trimmed();
    if (t.isEmpty()) return QVariant();
    const bool lite = d.EsteSQLite();
    auto intreg = [&](qint64 minim, qint64 maxim) -> std::optional<QVariant> {
        bool ok = false;
        qint64 v = t.toLongLong(&ok);
        if (!ok) {
            // Some exports write whole numbers with decimals ("3.0", "3,00").
            const double x = t.toString().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
            if (!ok || x != std::floor(x) || std::abs(x) > 9e15) return std::nullopt;
            v = qint64(x);
        }
        if (v < minim || v > maxim) return std::nullopt;
        return QVariant(v);
    };
    switch (c.tip) {
    case TipCamp::Cheie:
        return intreg(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max());
    case TipCamp::Byte:
        return intreg(lite ? std::numeric_limits<qint64>::min() : -32768,
                      lite ? std::numeric_limits<qint64>::max() : 32767);
    case TipCamp::Integer:
    case TipCamp::Long:
        return intreg(std::numeric_limits<qint32>::min(), std::numeric_limits<qint32>::max());
    case TipCamp::Boolean: {
        // Jet's true is -1; exports also write 1 and the words.
        static const QStringList adevarat = {QStringLiteral("-1"), QStringLiteral("1"), QStringLiteral("true"),
                                             QStringLiteral("da"), QStringLiteral("yes")};
        static const QStringList fals = {QStringLiteral("0"), QStringLiteral("false"), QStringLiteral("nu"),
                                         QStringLiteral("no")};
        if (adevarat.contains(t, Qt::CaseInsensitive)) return QVariant(1);
        if (fals.contains(t, Qt::CaseInsensitive)) return QVariant(0);
        return std::nullopt;
    }
    case TipCamp::Single: {
        bool ok = false;
        const double x = t.toString().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
        return ok ? std::optional<QVariant>(x) : std::nullopt;
    }
    case TipCamp::Currency:
    case TipCamp::Zecimal: {
        if (const auto b = Bani::DinText(t)) return QVariant::fromValue(*b);
        bool ok = false;
        const double x = t.toString().replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&ok);
        if (!ok || std::abs(x) > 9e14) return std::nullopt;
        return QVariant::fromValue(Bani::DinUnitati(std::llround(x * double(Bani::Scala))));
    }
    case TipCamp::Data: {
        // The export's own form, read by hand: the general parser below costs more than all the rest of a row.
        if (t.size() >= 10 && t[4] == u'-' && t[7] == u'-') {
            const auto numar = [&](qsizetype de, qsizetype cate) {
                int v = 0;
                for (qsizetype i = de; i < de + cate; ++i) {
                    if (!t[i].isDigit()) return -1;
                    v = v * 10 + t[i].digitValue();
                }
                return v;
            };
            const QDate z(numar(0, 4), numar(5, 2), numar(8, 2));
            if (z.isValid() && (t.size() == 10 || t[10] == u' ' || t[10] == u'T'))
                return z == QDate(1899, 12, 30) ? QVariant() : QVariant(z);
        }
        static const QStringList formate = {
            QStringLiteral("yyyy-MM-dd HH:mm:ss"), QStringLiteral("yyyy-MM-dd"), QStringLiteral("MM/dd/yy HH:mm:ss"),
            QStringLiteral("MM/dd/yyyy HH:mm:ss"), QStringLiteral("MM/dd/yyyy"), QStringLiteral("dd.MM.yyyy")};
        for (const QString& f : formate) {
            QDate z = QDateTime::fromString(t.toString(), f).date();
            if (!z.isValid()) z = QDate::fromString(t.toString(), f);
            if (!z.isValid()) continue;
            // Two-digit years are the engine's: 30 to 99 are the last century.
            if (f.contains(QLatin1String("/yy ")) && z.year() < 1930) z = z.addYears(100);
            // The engine's zero date stands for no date.
            if (z == QDate(1899, 12, 30)) return QVariant();
            return QVariant(z);
        }
        return std::nullopt;
    }
    case TipCamp::Text:
    case TipCamp::Memo:
        break;
    }
    return QVariant(text);
}

namespace {

struct CampImport {
    int sursa;       // index in the old row; -1: computed from the field at `din`
    CampSchema camp; // as created in the new table
    int latime = 0;  // the text width it has now (0: no limit)
    int din = -1;    // for a computed field, the index in campuri it is computed from
};

// The persons' search keys, which the old program never had: written with the rows, one value each,
// rather than by the upgrade's pass over a database that already holds them, row by row.
const std::pair<const char*, const char*> CheiCautare[] = {{"NumeCautare", "Nume"}, {"PrenumeCautare", "Prenume"}};

struct PlanTabela {
    QString sursa;              // the old table's name
    QString tinta;              // created under this name (the old name of a renamed table)
    const TabelaSchema* schema; // the table of the present shape it becomes
    std::vector<CampImport> campuri;
    std::vector<int> cheie;                                      // indexes in campuri of the primary key
    std::vector<std::pair<int, const RelatieSchema*>> referinte; // fields that reference a parent
    int nivel = 0;
};

int nivel(const TabelaSchema& t) {
    int n = 0;
    for (const auto& r : Schema::Relatii())
        if (r.tabelaStraina.compare(t.nume, Qt::CaseInsensitive) == 0 &&
            r.tabela.compare(t.nume, Qt::CaseInsensitive) != 0)
            if (const TabelaSchema* p = Schema::Tabela(r.tabela)) n = std::max(n, nivel(*p) + 1);
    return n;
}

QString cheieReferinta(const QString& tabela, const QString& camp) {
    return tabela.toLower() + QLatin1Char('.') + camp.toLower();
}

class Importator {
public:
    Importator(BazaDate& db, SursaVeche& sursa, const QString& caleBD, const ProgresImport& progres)
        : db_(db), ops_(db), sursa_(sursa), caleBD_(caleBD), progres_(progres) {}

    RaportImport Ruleaza() {
        Tranzactie t(db_);
        if (AreCereri(db_))
            throw Eroare(QStringLiteral("Baza de date %1 contine deja cereri. Importul se face doar intr-o baza de "
                                        "date fara cereri.")
                             .arg(db_.locatie().Descriere()));
        CacheMare cache(db_);
        planifica();
        stergeTabele();
        for (auto& p : plan_) {
            TabelaSchema forma = *p.schema;
            forma.nume = p.tinta;
            std::vector<CampSchema> campuri;
            for (const auto& c : p.campuri)
                campuri.push_back(c.camp);
            ops_.CreazaTabela(forma, campuri);
        }
        for (auto& p : plan_)
            copiaza(p);
        for (const QString& s : ignorate_)
            numaraIgnorata(s);
        ops_.VerificaReferinte();

        MesajeRaport m(raport_.actualizare);
        const RezultatActualizare r = ActualizareBD(db_, caleBD_, m);
        raport_.schimbari = r.schimbari;
        if (!r.Reusit())
            throw Eroare(QStringLiteral("Baza de date importata nu a putut fi adusa la forma de azi:\n%1")
                             .arg(r.erori.join(QLatin1Char('\n'))));
        facut_ = total_;
        anunta();
        t.Confirma();
        return raport_;
    }

private:
    void planifica() {
        const QStringList tabele = sursa_.Tabele();
        for (const QString& nume : TabeleObligatorii)
            if (!tabele.contains(nume, Qt::CaseInsensitive))
                throw Eroare(QStringLiteral("%1 nu este o baza de date a programului: lipseste tabela %2.")
                                 .arg(sursa_.Descriere(), nume));
        const bool areListaBife = tabele.contains(QStringLiteral("ListaBife"), Qt::CaseInsensitive);
        for (const QString& nume : tabele) {
            const TabelaSchema* t = Schema::Tabela(nume);
            QString tinta = t ? t->nume : QString();
            if (!t && !areListaBife && nume.compare(NumeVechiListaBife, Qt::CaseInsensitive) == 0) {
                t = Schema::Tabela(QStringLiteral("ListaBife"));
                tinta = NumeVechiListaBife;
            }
            total_ += std::max<qint64>(sursa_.Volum(nume), 1);
            if (!t) {
                ignorate_ << nume;
                continue;
            }
            plan_.push_back(planTabela(nume, tinta, *t));
        }
        // The upgrade and the indexes it builds: about a tenth of the reading.
        total_ += total_ / 10 + 1;
        std::stable_sort(plan_.begin(), plan_.end(),
                         [](const PlanTabela& a, const PlanTabela& b) { return a.nivel < b.nivel; });
    }

    // The tables made again go first, children before parents; with them the tables that reference
    // them (empty, as the database holds no request), which the upgrade makes again as it makes a table
    // an old file lacks.
    void stergeTabele() {
        std::vector<std::pair<int, QString>> sterse;
        QSet<QString> nume;
        const auto adauga = [&](const QString& tabela, int n) {
            if (nume.contains(tabela.toLower()) || !ops_.TabelaExista(tabela)) return;
            nume.insert(tabela.toLower());
            sterse.emplace_back(n, tabela);
        };
        for (const auto& p : plan_) {
            adauga(p.tinta, p.nivel);
            // The present table named by the old name of another (the goods catalogue) goes too, so that
            // the upgrade finds the old one and renames it, as it does at start.
            if (p.tinta != p.schema->nume) adauga(p.schema->nume, p.nivel);
        }
        for (bool schimbat = true; schimbat;) {
            schimbat = false;
            for (const auto& r : Schema::Relatii())
                if (nume.contains(r.tabela.toLower()) && !nume.contains(r.tabelaStraina.toLower()) &&
                    ops_.TabelaExista(r.tabelaStraina)) {
                    adauga(r.tabelaStraina, nivel(*Schema::Tabela(r.tabelaStraina)));
                    schimbat = true;
                }
        }
        std::stable_sort(sterse.begin(), sterse.end(), [](const auto& a, const auto& b) { return a.first > b.first; });
        for (const auto& [n, tabela] : sterse)
            ops_.StergeTabela(tabela);
    }

    PlanTabela planTabela(const QString& nume, const QString& tinta, const TabelaSchema& t) {
        PlanTabela p{nume, tinta, &t, {}, {}, {}, nivel(t)};
        raport_.tabele.push_back({nume, t.nume, 0, 0, {}, {}, {}});
        TabelaImportata& ti = raport_.tabele.back();
        const QStringList antet = sursa_.Campuri(nume);
        QSet<QString> vazute;
        for (int i = 0; i < antet.size(); ++i) {
            const QString& camp = antet[i];
            const CampSchema* c = Schema::Camp(t.nume, camp);
            if (!c)
                for (const auto& v : Schema::CampuriVechi())
                    if (v.tabela.compare(t.nume, Qt::CaseInsensitive) == 0 &&
                        v.camp.nume.compare(camp, Qt::CaseInsensitive) == 0)
                        c = &v.camp;
            if (!c || vazute.contains(c->nume.toLower())) {
                ti.campuriIgnorate << camp;
                continue;
            }
            vazute.insert(c->nume.toLower());
            const int latime = c->tip == TipCamp::Text ? (c->marime > 0 ? c->marime : 255) : 0;
            p.campuri.push_back({i, *c, latime});
        }
        for (const auto& [cheie, din] : CheiCautare) {
            const CampSchema* c = Schema::Camp(t.nume, QLatin1String(cheie));
            if (!c || vazute.contains(c->nume.toLower())) continue;
            for (size_t i = 0; i < p.campuri.size(); ++i)
                if (p.campuri[i].camp.nume.compare(QLatin1String(din), Qt::CaseInsensitive) == 0)
                    p.campuri.push_back({-1, *c, c->marime, int(i)});
        }
        for (const QString& k : t.cheiePrimara) {
            const auto it = std::find_if(p.campuri.begin(), p.campuri.end(), [&](const CampImport& c) {
                return c.camp.nume.compare(k, Qt::CaseInsensitive) == 0;
            });
            if (it == p.campuri.end())
                throw Eroare(
                    QStringLiteral("Tabela %1 din %2 nu are campul %3, cheia ei.").arg(nume, sursa_.Descriere(), k));
            p.cheie.push_back(int(it - p.campuri.begin()));
        }
        for (int i = 0; i < int(p.campuri.size()); ++i)
            if (const RelatieSchema* r = Schema::RelatiePeCamp(t.nume, p.campuri[size_t(i)].camp.nume))
                p.referinte.emplace_back(i, r);
        return p;
    }

    bool inPlan(const QString& tabela) const {
        return std::any_of(plan_.begin(), plan_.end(), [&](const PlanTabela& p) {
            return p.schema->nume.compare(tabela, Qt::CaseInsensitive) == 0;
        });
    }

    void copiaza(PlanTabela& p) {
        TabelaImportata& ti = *std::find_if(raport_.tabele.begin(), raport_.tabele.end(),
                                            [&](const TabelaImportata& x) { return x.tabela == p.sursa; });
        QStringList nume;
        for (const auto& c : p.campuri)
            nume << c.camp.nume;
        // The keys other tables reference, kept as they are read, so that a reference to a row that
        // was never there (or was left out) is known before the engine refuses the whole import.
        std::vector<std::pair<int, QSet<qint64>*>> pastrate;
        for (const auto& r : Schema::Relatii())
            if (r.tabela.compare(p.schema->nume, Qt::CaseInsensitive) == 0)
                for (int i = 0; i < int(p.campuri.size()); ++i)
                    if (p.campuri[size_t(i)].camp.nume.compare(r.camp, Qt::CaseInsensitive) == 0)
                        pastrate.emplace_back(i, &chei_[cheieReferinta(r.tabela, r.camp)]);
        QSet<std::pair<qint64, qint64>> vazute;
        // The parents' keys, for the references to tables the file holds (the others can't be checked).
        std::vector<std::tuple<int, const RelatieSchema*, const QSet<qint64>*>> referinte;
        for (const auto& [i, r] : p.referinte)
            if (inPlan(r->tabela)) referinte.emplace_back(i, r, &chei_[cheieReferinta(r->tabela, r->camp)]);
        const bool latimi = !db_.dialect().EsteSQLite();

        InserareInLot ins(db_, p.tinta, nume);
        auto tabela = sursa_.Deschide(p.sursa);
        const qint64 inceput = facut_;
        std::vector<int> maxim(p.campuri.size(), 0);
        std::vector<QVariant> rand(p.campuri.size());
        QStringList valori;
        qint64 inLot = 0;
        const auto scrie = [&] {
            largeste(p, ti, maxim);
            ins.Scrie();
            inLot = 0;
            facut_ = inceput + tabela->Pozitie();
            anunta();
        };
        while (tabela->Urmator(valori)) {
            ++ti.citite;
            QString motiv;
            for (size_t i = 0; i < p.campuri.size() && motiv.isEmpty(); ++i) {
                if (p.campuri[i].sursa < 0) {
                    const QString din = rand[size_t(p.campuri[i].din)].toString();
                    rand[i] = din.isEmpty() ? QVariant() : CheieCautareStocata(din);
                    continue;
                }
                const QString& text = valori[p.campuri[i].sursa];
                const auto v = ValoareVeche(p.campuri[i].camp, text, db_.dialect());
                if (!v) {
                    motiv =
                        QStringLiteral("%1 = \"%2\" nu este o valoare a campului").arg(p.campuri[i].camp.nume, text);
                    break;
                }
                rand[i] = *v;
            }
            if (motiv.isEmpty()) motiv = verificaCheie(p, rand, vazute);
            for (const auto& [i, r, parinti] : referinte) {
                if (!motiv.isEmpty()) break;
                const QVariant& v = rand[size_t(i)];
                if (!v.isNull() && !parinti->contains(v.toLongLong()))
                    motiv = QStringLiteral("%1 = %2 nu exista in %3")
                                .arg(p.campuri[size_t(i)].camp.nume, v.toString(), r->tabela);
            }
            if (!motiv.isEmpty()) {
                ti.refuzate.push_back({locRand(*tabela, p, valori), motiv});
                continue;
            }
            for (const auto& [i, set] : pastrate)
                set->insert(rand[size_t(i)].toLongLong());
            for (size_t i = 0; i < p.campuri.size(); ++i) {
                if (latimi && p.campuri[i].latime > 0 && !rand[i].isNull())
                    maxim[i] = std::max(maxim[i], int(rand[i].toString().size()));
                ins.Leaga(rand[i]);
            }
            ins.Executa();
            ++ti.importate;
            if (++inLot == Lot) scrie();
        }
        scrie();
        facut_ = inceput + std::max<qint64>(sursa_.Volum(p.sursa), 1);
        anunta();
    }

    // A key the row must have, and have alone.
    static QString verificaCheie(const PlanTabela& p, const std::vector<QVariant>& rand,
                                 QSet<std::pair<qint64, qint64>>& vazute) {
        if (p.cheie.empty()) return {};
        qint64 k[2] = {0, 0};
        for (size_t j = 0; j < p.cheie.size() && j < 2; ++j) {
            const QVariant& v = rand[size_t(p.cheie[j])];
            if (v.isNull()) return QStringLiteral("%1 lipseste").arg(p.campuri[size_t(p.cheie[j])].camp.nume);
            k[j] = v.toLongLong();
        }
        if (vazute.contains({k[0], k[1]})) return QStringLiteral("cheia se repeta");
        vazute.insert({k[0], k[1]});
        return {};
    }

    // Where a refused row stands, with its key as the file has it (a value that failed may come before it).
    static QString locRand(const TabelaVeche& t, const PlanTabela& p, const QStringList& valori) {
        QStringList chei;
        for (int j : p.cheie)
            chei << QStringLiteral("%1=%2").arg(p.campuri[size_t(j)].camp.nume,
                                                valori.value(p.campuri[size_t(j)].sursa).trimmed());
        return chei.isEmpty() ? t.Loc() : QStringLiteral("%1 (%2)").arg(t.Loc(), chei.join(QStringLiteral(", ")));
    }

    // Old files kept longer texts than some fields of the present shape allow; PostgreSQL refuses
    // them, so the field is made as wide as the longest value before the rows are written.
    void largeste(PlanTabela& p, TabelaImportata& ti, std::vector<int>& maxim) {
        if (db_.dialect().EsteSQLite()) return;
        for (size_t i = 0; i < p.campuri.size(); ++i) {
            if (maxim[i] <= p.campuri[i].latime) continue;
            ops_.LargesteText(p.tinta, p.campuri[i].camp.nume, maxim[i]);
            p.campuri[i].latime = maxim[i];
            ti.campuriLargite.removeIf(
                [&](const QString& s) { return s.startsWith(p.campuri[i].camp.nume + QLatin1Char(' ')); });
            ti.campuriLargite << QStringLiteral("%1 la %2 caractere").arg(p.campuri[i].camp.nume).arg(maxim[i]);
        }
    }

    void numaraIgnorata(const QString& nume) {
        TabelaImportata ti{nume, {}, 0, 0, {}, {}, {}};
        auto tabela = sursa_.Deschide(nume);
        QStringList valori;
        while (tabela->Urmator(valori))
            ++ti.citite;
        raport_.tabele.push_back(ti);
        facut_ += std::max<qint64>(sursa_.Volum(nume), 1);
        anunta();
    }

    void anunta() {
        if (progres_) progres_(std::min(facut_, total_), total_);
    }

    BazaDate& db_;
    OperatiiSchema ops_;
    SursaVeche& sursa_;
    QString caleBD_;
    const ProgresImport& progres_;
    std::vector<PlanTabela> plan_;
    QStringList ignorate_;
    QHash<QString, QSet<qint64>> chei_;
    RaportImport raport_;
    qint64 total_ = 0, facut_ = 0;
};

} // namespace

qint64 RaportImport::Refuzate() const {
    qint64 n = 0;
    for (const auto& t : tabele)
        n += qint64(t.refuzate.size());
    return n;
}

const TabelaImportata* RaportImport::Tabela(const QString& tabela) const {
    for (const auto& t : tabele)
        if (t.tabela.compare(tabela, Qt::CaseInsensitive) == 0 || t.tinta.compare(tabela, Qt::CaseInsensitive) == 0)
            return &t;
    return nullptr;
}

QStringList RaportImport::Linii() const {
    QStringList l;
    for (const auto& t : tabele) {
        if (t.tinta.isEmpty()) {
            l << QStringLiteral("%1: %2 randuri citite, neimportate (tabela nu este a programului)")
                     .arg(t.tabela)
                     .arg(t.citite);
            continue;
        }
        l << QStringLiteral("%1: %2 randuri citite, %3 importate, %4 refuzate")
                 .arg(t.tabela)
                 .arg(t.citite)
                 .arg(t.importate)
                 .arg(t.refuzate.size());
        for (const auto& r : t.refuzate)
            l << QStringLiteral("    refuzat %1: %2").arg(r.loc, r.motiv);
        if (!t.campuriIgnorate.isEmpty())
            l << QStringLiteral("    campuri neimportate: %1").arg(t.campuriIgnorate.join(QStringLiteral(", ")));
        for (const auto& c : t.campuriLargite)
            l << QStringLiteral("    camp largit: %1").arg(c);
    }
    l << QStringLiteral("Aducerea la forma de azi: %1 modificari").arg(schimbari);
    for (const auto& a : actualizare)
        l << QStringLiteral("    ") + a;
    l << QStringLiteral("Total: %1 randuri refuzate.").arg(Refuzate());
    return l;
}

bool AreCereri(BazaDate& db) {
    if (!OperatiiSchema(db).TabelaExista(QStringLiteral("Cereri"))) return false;
    return Interogare(db, QStringLiteral("SELECT 1 FROM Cereri LIMIT 1")).Exista();
}

RaportImport ImportaBazaVeche(BazaDate& db, SursaVeche& sursa, const QString& caleBD, const ProgresImport& progres) {
    return Importator(db, sursa, caleBD, progres).Ruleaza();
}

RezultatImport ImportaInBaza(BazaDate& db, const QString& cale, const QString& folderDate,
                             const ProgresImport& progres) {
    RezultatImport r;
    // Read before anything is written: a file that can't be read leaves no copy behind either.
    auto sursa = DeschideSursaVeche(cale);
    if (AreCereri(db))
        throw Eroare(QStringLiteral("Baza de date %1 contine deja cereri. Importul se face doar intr-o baza de "
                                    "date fara cereri.")
                         .arg(db.locatie().Descriere()));
    CopieInainte::Fa(db, QStringLiteral("inainte de import"));
    DateLivrate::CopiazaCataloage(folderDate, db.locatie().caleBD);
    r.raport = ImportaBazaVeche(db, *sursa, db.locatie().caleBD, progres);
    return r;
}

RezultatImport ImportaInLocatie(const LocatieBD& loc, const QString& cale, const QString& folderDate,
                                const ProgresImport& progres) {
    auto sursa = DeschideSursaVeche(cale);
    bool exista = false;
    if (loc.EstePostgreSQL()) {
        auto db = BazaDate::Deschide(loc, BazaDate::Mod::Noua);
        exista = OperatiiSchema(*db).TabelaExista(QStringLiteral("Cereri"));
    } else {
        exista = QFile::exists(loc.FisierSQLite());
    }
    if (exista) {
        auto db = BazaDate::Deschide(loc);
        return ImportaInBaza(*db, cale, folderDate, progres);
    }
    MesajeTacute m;
    auto db = DateLivrate::Initializeaza(loc, folderDate, m);
    try {
        RezultatImport r;
        r.creata = true;
        r.raport = ImportaBazaVeche(*db, *sursa, loc.caleBD, progres);
        return r;
    } catch (...) {
        if (!loc.EstePostgreSQL()) {
            db.reset();
            QFile::remove(loc.FisierSQLite());
        }
        throw;
    }
}
