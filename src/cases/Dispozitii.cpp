#include "cases/Dispozitii.h"

#include "cases/Istoric.h"
#include "store/CopieInainte.h"
#include "cases/RandDisponibil.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/Texte.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/DateGen.h"
#include "store/Sql.h"

#include <QStringList>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

const QString Stearsa = QStringLiteral("Aceasta Dispozitie a fost stearsa de alt utilizator. Modificarile dvs. nu "
                                       "pot avea loc. Aceasta fereastra se va inchide!");
const QString RandNegasit = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!");
const QString CerereStearsa = QStringLiteral("Exceptie. Cererea a fost probabil stearsa de alt utilizator");
const QString FaraLuna = QStringLiteral("Selectati o luna corecta!");
const QString FaraAn = QStringLiteral("Nu puteti salva datele inainte de a introduce Anul");

// Requests written by one statement of the bulk generation: 9 values each stay under the
// oldest SQLite limit of 999 parameters.
constexpr size_t RanduriPeLot = 100;

QString textDin(const QVariant& v) {
    return v.isNull() ? QString() : v.toString();
}

QVariant textSauNul(const QString& s) {
    return s.isEmpty() ? QVariant() : QVariant(s);
}

// A whole number typed in a box, as a whole-number field stores the leading number: the
// nearest, halves to even.
qint64 intreg(const QString& text, qint64 maxim, const QString& camp) {
    const double v = std::nearbyint(Val(text));
    if (!(std::fabs(v) <= double(maxim))) throw Eroare(QStringLiteral("%1 este prea mare: %2").arg(camp, text));
    return qint64(v);
}

qint64 numarDispozitie(const QString& text) {
    return intreg(text, std::numeric_limits<qint32>::max(), QStringLiteral("Numarul dispozitiei"));
}

// The year of a box: 1 to 9999, or 0 when it is not one.
int an(const QString& text) {
    const double v = std::nearbyint(Val(text));
    return v >= 1 && v <= 9999 ? int(v) : 0;
}

QDate primaZi(int an, std::optional<int> luna) {
    return luna && an > 0 ? QDate(an, *luna, 1) : QDate();
}

QString sumaDin(const QVariant& v) {
    return v.isNull() ? QString() : Dispozitii::TextSuma(Bani::DinVariant(v));
}

QString insertLot(size_t randuri) {
    QString sql = QStringLiteral("INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, DinData, Actiune, "
                                 "Cuantum, An, Luna) VALUES ");
    for (size_t i = 0; i < randuri; ++i)
        sql += (i ? QStringLiteral(", ") : QString()) + QStringLiteral("(?, ?, ?, ?, ?, 1, ?, ?, ?)");
    return sql;
}

} // namespace

const std::vector<TipActiune>& Dispozitii::Actiuni() {
    static const std::vector<TipActiune> t = {
        {1, "acordare.rtf", QStringLiteral("se stabileste suma de:"), std::nullopt, true, false, false},
        {2, "modificare.rtf", QStringLiteral("se modifica suma de:"), QStringLiteral("Motivul modificarii"), true, true,
         true},
        {3, "suspendare.rtf", std::nullopt, QStringLiteral("Motivul suspendarii"), false, std::nullopt, true},
        {4, "respingere.rtf", std::nullopt, QStringLiteral("Motivul respingerii"), false, std::nullopt, true},
        {5, "incetare.rtf", std::nullopt, QStringLiteral("Motivul incetarii"), false, std::nullopt, true},
        {6, "reluare.rtf", QStringLiteral("cu suma de:"), QStringLiteral("Motivul reluarii"), true, false, true},
    };
    return t;
}

const TipActiune* Dispozitii::Actiune(int actiune) {
    const auto& t = Actiuni();
    return actiune >= 1 && actiune <= int(t.size()) ? &t[size_t(actiune - 1)] : nullptr;
}

QString Dispozitii::Sablon(int actiune) {
    const TipActiune* a = Actiune(actiune);
    return a ? QString::fromLatin1(a->Sablon) : QString();
}

void Dispozitii::AplicaActiune(BlocuriDispozitie& b, std::optional<int> actiune) {
    const TipActiune* a = actiune ? Actiune(*actiune) : nullptr;
    if (!a) return;
    if (a->lblModificarea) b.lblModificarea = *a->lblModificarea;
    if (a->lblMotiv) b.lblMotiv = *a->lblMotiv;
    b.picMiddle = a->picMiddle;
    if (a->SumaNoua) b.SumaNoua = *a->SumaNoua;
    b.Motiv = a->Motiv;
}

std::optional<int> Dispozitii::ActiunePropusa(int stare) {
    switch (stare) {
    case 2:
        return 1;
    case 3:
        return 3;
    case 4:
        return 5;
    case 5:
        return 4;
    case 6:
        return 6;
    case 7:
    case 8:
        return 2;
    default:
        return std::nullopt;
    }
}

Bani Dispozitii::SumaTastata(const QString& text) {
    const double v = Val(text);
    // Far below the limit of the field, and where a double still holds every ten-thousandth.
    if (!(std::fabs(v) < 1e11)) throw Eroare(QStringLiteral("Suma este prea mare: %1").arg(text));
    return *Bani::DinText(QString::number(v, 'f', 4));
}

std::optional<DeschidereDispozitie> Dispozitii::DeschideAdaugare(BazaDate& db, Mesaje& m, qint64 cerereID) {
    Interogare q(db, QStringLiteral("SELECT NrCerere, DataCerere, DataStare, Cuantum, Stare, MotivStare FROM Cereri "
                                    "WHERE CerereID = ?"));
    q.Leaga(cerereID);
    if (!q.Exista()) {
        m.Informatie(CerereStearsa);
        return std::nullopt;
    }
    DeschidereDispozitie r;
    r.NrCerere = textDin(q.Valoare(QStringLiteral("NrCerere")));
    r.DataCerere = q.Data(QStringLiteral("DataCerere"));
    Dispozitie& d = r.d;
    d.CerereID = cerereID;
    const int stare = int(q.Intreg(QStringLiteral("Stare")));
    const QString cuantum = sumaDin(q.Valoare(QStringLiteral("Cuantum")));
    if (stare == 7 || stare == 8) {
        // The old amount is the one last decided; with no disposition yet there is none to show.
        Interogare u(db, QStringLiteral("SELECT Cuantum FROM Dispozitii WHERE CerereID = ? "
                                        "ORDER BY DispozitieID DESC LIMIT 1"));
        u.Leaga(cerereID);
        if (u.Exista()) d.Suma = sumaDin(u.Valoare(0));
        d.SumaNoua = cuantum;
    } else {
        d.Suma = cuantum;
    }
    d.Actiune = ActiunePropusa(stare);
    const QDate dataStare = q.Data(QStringLiteral("DataStare"));
    if (dataStare.isValid()) {
        d.Luna = dataStare.month();
        d.An = QString::number(dataStare.year());
    }
    d.Motiv = textDin(q.Valoare(QStringLiteral("MotivStare")));
    d.DataDisp = Ceas::Azi();
    return r;
}

std::optional<DeschidereDispozitie> Dispozitii::DeschideModificare(BazaDate& db, Mesaje& m, qint64 dispozitieID) {
    Interogare q(db, QStringLiteral("SELECT CerereID, NrDisp, DataDisp, DinData, Actiune, Cuantum, CuantumVechi, "
                                    "Motiv FROM Dispozitii WHERE DispozitieID = ?"));
    q.Leaga(dispozitieID);
    if (!q.Exista()) {
        m.Informatie(RandNegasit);
        return std::nullopt;
    }
    DeschidereDispozitie r;
    Dispozitie& d = r.d;
    d.DispozitieID = dispozitieID;
    d.CerereID = q.Intreg(QStringLiteral("CerereID"));
    Interogare c(db, QStringLiteral("SELECT NrCerere, DataCerere FROM Cereri WHERE CerereID = ?"));
    c.Leaga(d.CerereID);
    if (!c.Exista()) {
        m.Informatie(CerereStearsa);
        return std::nullopt;
    }
    r.NrCerere = textDin(c.Valoare(QStringLiteral("NrCerere")));
    r.DataCerere = c.Data(QStringLiteral("DataCerere"));

    if (!q.EsteNul(QStringLiteral("Actiune"))) d.Actiune = int(q.Intreg(QStringLiteral("Actiune")));
    d.NrDisp = textDin(q.Valoare(QStringLiteral("NrDisp")));
    d.DataDisp = q.Data(QStringLiteral("DataDisp"));
    if (!d.DataDisp.isValid()) d.DataDisp = Ceas::Azi();
    const QDate din = q.Data(QStringLiteral("DinData"));
    if (din.isValid()) {
        d.Luna = din.month();
        d.An = QString::number(din.year());
    }
    if (d.Actiune == 2) {
        d.SumaNoua = sumaDin(q.Valoare(QStringLiteral("Cuantum")));
        d.Suma = sumaDin(q.Valoare(QStringLiteral("CuantumVechi")));
    } else {
        d.Suma = sumaDin(q.Valoare(QStringLiteral("Cuantum")));
    }
    d.Motiv = textDin(q.Valoare(QStringLiteral("Motiv")));
    return r;
}

VerificareDispozitie Dispozitii::VerificaControale(BazaDate& db, Mesaje& m, const Dispozitie& d, ModDispozitie mod) {
    VerificareDispozitie r;
    if (!VerificaBD(db, m)) return r;
    if (mod == ModDispozitie::Modificare) {
        const qint64 n =
            Sql::RanduriCuCheie(db, QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"), d.DispozitieID);
        if (n == 0) {
            m.Informatie(Stearsa);
            r.inchide = true;
            return r;
        }
        if (n > 1) {
            m.Critic(QStringLiteral("Exceptie: DispozitieID multiplu in AddDispozitie -> Verifica Controale"));
            return r;
        }
    }
    auto refuz = [&](const QString& text, const char* control) {
        m.Informatie(text);
        r.control = QString::fromLatin1(control);
        return r;
    };
    if (!d.Actiune) return refuz(QStringLiteral("Tip Dispozitie incorect. Selectati un tip din lista!"), "cboDispoz_0");
    if (!d.Luna) return refuz(FaraLuna, "cboDispoz_1");
    if (d.An.trimmed().isEmpty()) return refuz(FaraAn, "txtDispoz_1");
    QDate dataCerere;
    try {
        Interogare q(db, QStringLiteral("SELECT DataCerere FROM Cereri WHERE CerereID = ?"));
        q.Leaga(d.CerereID);
        if (!q.Exista()) {
            m.Critic(QStringLiteral("Err in Verifica Controale: ") + CerereStearsa);
            return r;
        }
        dataCerere = q.Data(QStringLiteral("DataCerere"));
    } catch (const Eroare& e) {
        m.Critic(QStringLiteral("Err in Verifica Controale: ") + e.text());
        return r;
    }
    // A request without a filing date has nothing to compare with.
    if (dataCerere.isValid()) {
        const double anTastat = Val(d.An);
        if (dataCerere.year() > anTastat)
            return refuz(QStringLiteral("Anul dispozitiei nu poate fi mai mic decat anul depunerii cererii"),
                         "txtDispoz_1");
        if (*d.Luna < dataCerere.month() && dataCerere.year() == anTastat)
            return refuz(QStringLiteral("Luna dispozitiei nu poate fi mai mica decat luna depunerii cererii"),
                         "cboDispoz_1");
    }
    r.ok = true;
    return r;
}

qint64 Dispozitii::Salveaza(BazaDate& db, const Dispozitie& d, ModDispozitie mod) {
    if (!d.Actiune || !d.Luna) throw Eroare(QStringLiteral("Tip Dispozitie incorect. Selectati un tip din lista!"));
    const bool modificare = *d.Actiune == 2;
    const qint64 nrDisp = numarDispozitie(d.NrDisp);
    const qint64 anDisp = intreg(d.An, std::numeric_limits<qint32>::max(), QStringLiteral("Anul"));
    const QDate dinData = primaZi(an(d.An), d.Luna);
    const Bani cuantum = SumaTastata(modificare ? d.SumaNoua : d.Suma);
    const std::optional<Bani> vechi = modificare ? std::optional<Bani>(SumaTastata(d.Suma)) : std::nullopt;

    Tranzactie t(db);
    const bool nou = mod == ModDispozitie::Adaugare;
    const qint64 id = nou ? db.CheieNoua(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID")) : d.DispozitieID;
    Sql::Rand r = {
        {"NrDisp", nrDisp},
        {"DataDisp", d.DataDisp},
        {"DinData", dinData},
        {"Luna", qint64(*d.Luna)},
        {"An", anDisp},
        {"Actiune", qint64(*d.Actiune)},
        {"Cuantum", Sql::Suma(cuantum)},
    };
    // Without an old amount a change leaves the row's CuantumVechi as it is.
    if (vechi || nou) r.push_back({QStringLiteral("CuantumVechi"), vechi ? Sql::Suma(*vechi) : QVariant()});
    r.push_back({QStringLiteral("Motiv"), textSauNul(d.Motiv)});
    const QString tabela = QStringLiteral("Dispozitii");
    const std::vector<Schimbare> schimbari =
        nou ? Istoric::Compara(tabela, r, {}) : Istoric::Diferente(db, tabela, QStringLiteral("DispozitieID"), id, r);
    if (nou) {
        r.insert(r.begin(), {{QStringLiteral("DispozitieID"), id}, {QStringLiteral("CerereID"), d.CerereID}});
        Sql::Insereaza(db, tabela, r);
    } else if (Sql::Actualizeaza(db, tabela, r, QStringLiteral("DispozitieID"), id) != 1) {
        throw Eroare(Stearsa);
    }
    Istoric::ScrieSchimbari(db, d.CerereID, {}, nou ? FelSchimbare::Adaugare : FelSchimbare::Modificare,
                            QStringLiteral("Dispozitie nr %1 %2")
                                .arg(nrDisp)
                                .arg(nou ? QStringLiteral("adaugata") : QStringLiteral("modificata")),
                            schimbari);
    t.Confirma();
    return id;
}

bool Dispozitii::PoateAdauga(BazaDate& db, Mesaje& m, qint64 cerereID) {
    if (!VerificaBD(db, m)) return false;
    if (cerereID == 0) {
        m.Informatie(QStringLiteral("Selectati o cerere"));
        return false;
    }
    Interogare q(db, QStringLiteral("SELECT NrCopii FROM Cereri WHERE CerereID = ?"));
    q.Leaga(cerereID);
    if (!q.Exista()) {
        m.Informatie(QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta"));
        return false;
    }
    if (q.Intreg(0) <= 0) {
        m.Informatie(
            QStringLiteral("Nu se poate creea dispozitia pentru ca in cerere inca nu au fost introdusi copiii!"));
        return false;
    }
    return true;
}

bool Dispozitii::PoateModifica(BazaDate& db, Mesaje& m, qint64 dispozitieID) {
    return RandDisponibil(db, m, dispozitieID, QStringLiteral("Selectati o dispozitie"), QStringLiteral("Dispozitii"),
                          QStringLiteral("DispozitieID"), RandNegasit);
}

RezultatGenerare Dispozitii::Genereaza(BazaDate& db, Mesaje& m, const ParametriGenerare& p) {
    RezultatGenerare r;
    if (!VerificaBD(db, m)) return r;
    auto refuz = [&](const QString& text, const char* control) {
        m.Informatie(text);
        r.control = QString::fromLatin1(control);
        return r;
    };
    // Left unchecked, these fail in the engine halfway through the clerk's work.
    if (!p.TipCerere) return refuz(QStringLiteral("Selectati tipul cererii!"), "cboTipCerere");
    if (!p.Luna) return refuz(FaraLuna, "cboDispoz_1");
    const int anDisp = an(p.An);
    if (anDisp == 0) return refuz(FaraAn, "txtDispoz_1");
    r.NrStart = numarDispozitie(p.NrStart);
    const QDate dinData(anDisp, *p.Luna, 1);
    CopieInainte::Fa(db, QStringLiteral("inainte de generarea dispozitiilor"));

    // The messages wait until the transaction has ended: none holds the database while the
    // clerk reads it.
    enum class Sfarsit { Scrise, FaraCereri, Oprita } sfarsit = Sfarsit::Scrise;
    {
        struct CerereGen {
            qint64 id;
            QString nr;
            std::optional<Bani> cuantum;
        };
        std::vector<CerereGen> cereri;
        Tranzactie t(db);
        {
            // Jet put an empty number first; both engines are told to do the same.
            Interogare q(db, QStringLiteral("SELECT CerereID, NrCerere, Cuantum FROM Cereri WHERE TipCerere = ? "
                                            "ORDER BY CASE WHEN NrCerere IS NULL THEN 0 ELSE 1 END, NrCerere, "
                                            "CerereID"));
            q.Leaga(*p.TipCerere).Executa();
            while (q.Urmator()) {
                const QVariant c = q.Valoare(2);
                cereri.push_back({q.Intreg(0), textDin(q.Valoare(1)),
                                  c.isNull() ? std::nullopt : std::optional<Bani>(Bani::DinVariant(c))});
            }
        }
        const qint64 total = qint64(cereri.size());
        if (total > 0 && r.NrStart + total - 1 > std::numeric_limits<qint32>::max())
            throw Eroare(QStringLiteral("Numarul dispozitiei este prea mare: %1").arg(r.NrStart + total - 1));
        if (total == 0)
            sfarsit = Sfarsit::FaraCereri;
        else if (p.Progres && !p.Progres(0, total))
            sfarsit = Sfarsit::Oprita;
        qint64 cheie =
            sfarsit == Sfarsit::Scrise ? db.CheieNoua(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID")) : 0;
        Interogare lot(db, insertLot(RanduriPeLot));
        std::optional<Interogare> rest;
        std::vector<IntrareIstoric> istoric;
        for (size_t i = 0; sfarsit == Sfarsit::Scrise && i < cereri.size();) {
            const size_t n = std::min(RanduriPeLot, cereri.size() - i);
            Interogare& q = n == RanduriPeLot ? lot : rest.emplace(db, insertLot(n));
            for (size_t k = i; k < i + n; ++k) {
                const CerereGen& c = cereri[k];
                if (p.InainteDeScriere) p.InainteDeScriere(c.id);
                q.Leaga(cheie++).Leaga(c.id).Leaga(r.NrStart + qint64(k)).Leaga(p.DataDisp).Leaga(dinData);
                if (c.cuantum)
                    q.Leaga(*c.cuantum);
                else
                    q.Leaga(QVariant());
                q.Leaga(anDisp).Leaga(*p.Luna);
                const QString nr = QString::number(r.NrStart + qint64(k));
                istoric.push_back({c.id, c.nr.isEmpty() ? QVariant() : QVariant(c.nr),
                                   FelSchimbare::Adaugare, QStringLiteral("Dispozitie nr %1 adaugata").arg(nr),
                                   QStringLiteral("Dispozitie nr %1 adaugata la generarea dispozitiilor: "
                                                  "DataDisp: %2; DinData: %3; Cuantum: %4")
                                       .arg(nr, FormatData(p.DataDisp), FormatData(dinData),
                                            c.cuantum ? FormatSuma(*c.cuantum) : QStringLiteral("(gol)"))});
            }
            q.Executa();
            i += n;
            if (p.Progres && !p.Progres(qint64(i), total)) sfarsit = Sfarsit::Oprita;
        }
        if (sfarsit == Sfarsit::Scrise) {
            Istoric::ScrieLot(db, istoric);
            t.Confirma();
            r.ok = true;
            r.Generate = total;
            r.PrimaCerere = cereri.front().nr;
            r.UltimaCerere = cereri.back().nr;
        }
    }
    switch (sfarsit) {
    case Sfarsit::Scrise:
        for (const QString& text : MesajeGenerare(r))
            m.Informatie(text);
        break;
    case Sfarsit::FaraCereri:
        m.Informatie(QStringLiteral("Nu exista nici o cerere de acest tip. Nu a fost generata nici o dispozitie."));
        break;
    case Sfarsit::Oprita:
        r.oprita = true;
        m.Informatie(QStringLiteral("Generarea a fost oprita. Nu a fost scrisa nici o dispozitie."));
        break;
    }
    return r;
}

QStringList Dispozitii::MesajeGenerare(const RezultatGenerare& r) {
    // The first message ends on "la nr ": it never had a last number after it.
    return {QStringLiteral("Au fost generate : %1 dispozitii, de la nr %2 la nr ").arg(r.Generate).arg(r.NrStart),
            QStringLiteral("A pornit de la NrCerere: %1 pana la NrCerere: %2").arg(r.PrimaCerere, r.UltimaCerere)};
}

std::vector<DispozitieDeTiparit> Dispozitii::SelecteazaPentruTiparire(BazaDate& db, Mesaje& m,
                                                                      const SelectieTiparire& s, int anSetat) {
    std::vector<DispozitieDeTiparit> r;
    // NrDisp is a whole number: the typed bounds are taken as the whole numbers they let through.
    auto limita = [](const QString& text, bool jos) {
        const double v = jos ? std::ceil(Val(text)) : std::floor(Val(text));
        return qint64(std::clamp(v, -9e15, 9e15));
    };
    const int luna = s.Luna.value_or(0);
    if (luna >= 1 && luna <= 12 && anSetat >= 1 && anSetat <= 9999) {
        const QDate inceput(anSetat, luna, 1);
        Interogare q(db, QStringLiteral("SELECT D.DispozitieID, D.Actiune FROM Cereri C INNER JOIN Dispozitii D "
                                        "ON C.CerereID = D.CerereID WHERE D.NrDisp >= ? AND D.NrDisp <= ? "
                                        "AND D.Actiune = ? AND D.DinData >= ? AND D.DinData < ? AND C.TipCerere = ? "
                                        "ORDER BY D.NrDisp, D.DispozitieID"));
        q.Leaga(limita(s.NrMin, true))
            .Leaga(limita(s.NrMax, false))
            .Leaga(s.Actiune.value_or(0))
            .Leaga(inceput)
            .Leaga(inceput.addMonths(1))
            .Leaga(s.TipCerere.value_or(0))
            .Executa();
        while (q.Urmator())
            r.push_back({q.Intreg(0), int(q.Intreg(1))});
    }
    if (r.empty()) m.Informatie(QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!"));
    return r;
}

std::vector<RandDispozitie> Dispozitii::ListaDispozitii(BazaDate& db, qint64 cerereID) {
    Interogare q(
        db,
        QStringLiteral("SELECT D.DispozitieID, D.NrDisp, D.DataDisp, G.Continut AS TipDecizie, D.Cuantum, D.Luna, D.An "
                       "FROM Dispozitii D LEFT JOIN DateGen G ON G.Tip = ? AND G.DataID = D.Actiune "
                       "WHERE D.CerereID = ? ORDER BY D.DataDisp DESC, D.DispozitieID DESC"));
    q.Leaga(TipDateGen::Actiune).Leaga(cerereID).Executa();
    std::vector<RandDispozitie> r;
    while (q.Urmator()) {
        auto text = [&](const char* camp) {
            const QVariant v = q.Valoare(QString::fromLatin1(camp));
            return v.isNull() ? QString() : v.toString();
        };
        r.push_back({q.Intreg(QStringLiteral("DispozitieID")), text("NrDisp"), q.Data(QStringLiteral("DataDisp")),
                     text("TipDecizie"), q.Suma(QStringLiteral("Cuantum")), text("Luna"), text("An")});
    }
    return r;
}

QString Dispozitii::TitluDispozitii(const QString& solicitant, size_t randuri) {
    return randuri == 0 ? QString() : QStringLiteral("Dispozitiile lui %1.").arg(solicitant);
}

bool Dispozitii::StergeDispozitie(BazaDate& db, qint64 dispozitieID) {
    Tranzactie t(db);
    Istoric::StergereRand(db, QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"), dispozitieID,
                          QStringLiteral("Dispozitie nr %1 stearsa"), QStringLiteral("NrDisp"));
    Interogare d(db, QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?"));
    d.Leaga(dispozitieID).Executa();
    t.Confirma();
    return d.RanduriAfectate() > 0;
}
