#include "cases/Adeverinte.h"

#include "cases/Istoric.h"
#include "cases/DateCerere.h"
#include "base/Eroare.h"
#include "base/PaginiCitite.h"
#include "base/Texte.h"
#include "cases/Cnp.h"
#include "base/Mesaje.h"
#include "store/BazaDate.h"
#include "store/CheiLista.h"
#include "store/DateGen.h"
#include "store/Sql.h"
#include "store/Schema.h"

#include <QVariant>
#include <algorithm>
#include <limits>

namespace {

QVariant dataSauNul(const QDate& d) {
    return d.isValid() ? QVariant(d) : QVariant();
}

QString nume(const QString& nume, const QString& prenume) {
    return nume + QLatin1Char(' ') + prenume;
}

// A run of ASCII digits of min to max characters, as a number; -1 otherwise.
int numar(QStringView s, int min, int max) {
    if (s.size() < min || s.size() > max) return -1;
    for (QChar c : s)
        if (!EsteCifra(c)) return -1;
    return s.toInt();
}

int lunaDupaNume(QStringView s) {
    const QStringList& luni = LuniAn();
    for (qsizetype i = 0; i < luni.size(); ++i)
        if (s.compare(luni[i], Qt::CaseInsensitive) == 0) return int(i + 1);
    return -1;
}

// A date column read by position: QDate on PostgreSQL, ISO text on SQLite.
QDate dataDin(const QVariant& v) {
    if (v.isNull()) return {};
    if (v.typeId() == QMetaType::QDate) return v.toDate();
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
    return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

bool inLista(const std::vector<AdeverintaMembru>& acte, int index) {
    return index >= 0 && size_t(index) < acte.size();
}

} // namespace

// ---- TipuriAdeverinte ----

TipuriAdeverinte TipuriAdeverinte::Citeste(BazaDate& db) {
    std::vector<TipAdeverinta> r;
    for (const RandDateGen& e : ListaDateGen(db, TipDateGen::TipAct))
        r.push_back({int(e.DataID), e.Continut});
    return TipuriAdeverinte(std::move(r));
}

QString TipuriAdeverinte::Text(int tip) const {
    for (const TipAdeverinta& t : tipuri_)
        if (t.DataID == tip) return t.Continut;
    return {};
}

// ---- Dates ----

QString Adeverinte::reverseDate(const QDate& d) {
    if (!d.isValid()) return {};
    return QStringLiteral("%1%2%3").arg(d.year(), 4, 10, QLatin1Char('0')).arg(Doua(d.month()), Doua(d.day()));
}

QDate Adeverinte::convertToDate(const QString& text) {
    const QString t = text.trimmed();
    if (t.size() == 8 && numar(t, 8, 8) >= 0) {
        const QDate d(t.mid(4, 4).toInt(), t.mid(2, 2).toInt(), t.left(2).toInt());
        return d.isValid() ? d : QDate();
    }
    const auto sep = std::find_if(t.begin(), t.end(), [](QChar c) {
        return c == QLatin1Char('.') || c == QLatin1Char('-') || c == QLatin1Char('/');
    });
    if (sep == t.end()) return {};
    const QStringList parti = t.split(*sep);
    if (parti.size() != 3) return {};
    const int zi = numar(parti[0], 1, 2);
    int luna = numar(parti[1], 1, 2);
    if (luna < 0) luna = lunaDupaNume(parti[1]);
    const int an = numar(parti[2], 4, 4);
    if (zi < 0 || luna < 0 || an < 0) return {};
    const QDate d(an, luna, zi);
    return d.isValid() ? d : QDate();
}

QString Adeverinte::DataGrid(const QDate& d) {
    if (!d.isValid()) return {};
    return QStringLiteral("%1-%2-%3")
        .arg(Doua(d.day()), LuniAn()[d.month() - 1].toLower())
        .arg(d.year(), 4, 10, QLatin1Char('0'));
}

// ---- The certificates of one person ----

int Adeverinte::NumarAdeverinte(const std::vector<AdeverintaMembru>& acte) {
    return int(std::count_if(acte.begin(), acte.end(), [](const AdeverintaMembru& a) { return a.TipAdeverinta != 0; }));
}

QString Adeverinte::VerificaAct(const DateAct& d, Mesaje& m) {
    auto refuz = [&](const char* text, const char* control) {
        m.Informatie(QString::fromLatin1(text));
        return QString::fromLatin1(control);
    };
    if (d.TipAdeverinta == 0)
        return refuz("Statut incorect. Selectati din lista un tip de adeverinta corect", "cboTipAct");
    if (d.NrAdev.isEmpty()) return refuz("Nu ati completat numarul adeverintei", "txtNrAct");
    if (!d.DataAdeverinta.isValid())
        return refuz("Nu puteti salva datele inainte de a introduce Data adeverintei", "dtpData_0");
    if (!d.DataDepunerii.isValid())
        return refuz("Nu puteti salva datele inainte de a introduce Data depunerii adeverintei", "dtpData_1");
    if (!d.DataExpAdev.isValid())
        return refuz("Nu puteti salva datele inainte de a introduce Data expirarii adeverintei", "dtpData_2");
    return {};
}

bool Adeverinte::ExistaDubluri(const std::vector<AdeverintaMembru>& acte, ModAct mod, int index, const DateAct& d,
                               Mesaje& m) {
    if (mod == ModAct::Modificare && inLista(acte, index) && acte[size_t(index)].DataExpAdev == d.DataExpAdev)
        return false;
    for (const AdeverintaMembru& a : acte)
        if (a.TipAdeverinta == d.TipAdeverinta && a.DataExpAdev == d.DataExpAdev) {
            m.Informatie(QStringLiteral("Exista o adeverinta ") + d.TipText + QStringLiteral("\n cu data expirarii ") +
                         FormatData(d.DataExpAdev));
            return true;
        }
    return false;
}

void Adeverinte::AdeverintaCurenta(std::vector<AdeverintaMembru>& acte, int tip) {
    struct Rand {
        size_t loc;
        QString cheie;
    };
    std::vector<Rand> sortare;
    for (size_t i = 0; i < acte.size(); ++i)
        if (acte[i].TipAdeverinta == tip) sortare.push_back({i, reverseDate(acte[i].DataExpAdev)});
    if (sortare.empty()) return;
    std::stable_sort(sortare.begin(), sortare.end(), [](const Rand& a, const Rand& b) { return a.cheie > b.cheie; });
    for (const Rand& r : sortare)
        acte[r.loc].AdvCurenta = 0;
    acte[sortare.front().loc].AdvCurenta = 1;
}

RezultatAct Adeverinte::OkAct(std::vector<AdeverintaMembru>& acte, ModAct mod, int index, const DateAct& d, Mesaje& m) {
    if (mod == ModAct::Modificare && !inLista(acte, index))
        throw Eroare(QStringLiteral("Adeverinta de modificat nu mai este in lista."));
    RezultatAct r;
    r.Focus = VerificaAct(d, m);
    if (!r.Focus.isEmpty()) return r;
    if (ExistaDubluri(acte, mod, index, d, m)) {
        r.Dublura = true;
        return r;
    }
    AdeverintaMembru a;
    int tipVechi = 0;
    if (mod == ModAct::Modificare) {
        a = acte[size_t(index)];
        tipVechi = a.TipAdeverinta;
    }
    a.TipAdeverinta = d.TipAdeverinta;
    a.NrAdev = d.NrAdev;
    a.DataAdeverinta = d.DataAdeverinta;
    a.DataDepunerii = d.DataDepunerii;
    a.DataExpAdev = d.DataExpAdev;
    if (mod == ModAct::Modificare) {
        acte[size_t(index)] = a;
        r.Index = index;
    } else {
        acte.push_back(a);
        r.Index = int(acte.size() - 1);
    }
    AdeverintaCurenta(acte, d.TipAdeverinta);
    // A certificate moved to another kind leaves its old kind with a current one of its own.
    if (tipVechi != 0 && tipVechi != d.TipAdeverinta) AdeverintaCurenta(acte, tipVechi);
    return r;
}

DateAct Adeverinte::DinAct(const std::vector<AdeverintaMembru>& acte, int index, const TipuriAdeverinte& tipuri) {
    DateAct d;
    if (!inLista(acte, index)) return d;
    const AdeverintaMembru& a = acte[size_t(index)];
    d.TipAdeverinta = a.TipAdeverinta;
    d.TipText = tipuri.Text(a.TipAdeverinta);
    d.NrAdev = a.NrAdev;
    d.DataAdeverinta = a.DataAdeverinta;
    d.DataDepunerii = a.DataDepunerii;
    d.DataExpAdev = a.DataExpAdev;
    return d;
}

bool Adeverinte::StergeAct(std::vector<AdeverintaMembru>& acte, const std::vector<int>& selectate,
                           const TipuriAdeverinte& tipuri, Mesaje& m) {
    if (selectate.size() > 1) {
        m.Informatie(QStringLiteral("Trebuie selectata doar o singura adeverinta"));
        return false;
    }
    if (selectate.empty() || !inLista(acte, selectate.front())) {
        m.Informatie(QStringLiteral("Selectati o adeverinta!"));
        return false;
    }
    const auto loc = acte.begin() + selectate.front();
    if (!m.Intrebare(QStringLiteral("Sigur doriti sa stergeti\nAdeverinta ") + tipuri.Text(loc->TipAdeverinta) +
                         QStringLiteral("cu Nr. ") + loc->NrAdev,
                     {}, false))
        return false;
    acte.erase(loc);
    return true;
}

std::vector<RandIstoricAdv> Adeverinte::Istoric(const std::vector<AdeverintaMembru>& acte,
                                                const TipuriAdeverinte& tipuri) {
    std::vector<RandIstoricAdv> r;
    r.reserve(acte.size());
    for (const AdeverintaMembru& a : acte)
        r.push_back({a.AdevID, tipuri.Text(a.TipAdeverinta), a.NrAdev, FormatData(a.DataAdeverinta),
                     FormatData(a.DataDepunerii), FormatData(a.DataExpAdev)});
    return r;
}

// ---- The certificates that expire ----

namespace {
// The month's current certificates of requests in force, by the keys they keep.
const QString ActeExpiraInLuna =
    QStringLiteral("FROM Adeverinte WHERE AdvCurenta = 1 AND CerereInVigoare = 1 AND DataExpAdev >= ? "
                   "AND DataExpAdev < ?");
} // namespace

qint64 Adeverinte::NumarActeExpira(BazaDate& db, const QDate& azi) {
    const QDate inceput(azi.year(), azi.month(), 1);
    Interogare q(db, QStringLiteral("SELECT COUNT(*) ") + ActeExpiraInLuna);
    q.Leaga(inceput).Leaga(inceput.addMonths(1)).Exista();
    return q.Intreg(0);
}

std::vector<RandActExpira> Adeverinte::ListaActeExpira(BazaDate& db, const QDate& azi, qint64 deLa, qint64 cate,
                                                       qint64 total) {
    std::vector<RandActExpira> r;
    if (deLa < 0 || cate == 0 || (total >= 0 && deLa >= total)) return r;
    if (cate < 0) cate = std::numeric_limits<qint64>::max() - deLa;
    const QDate inceput(azi.year(), azi.month(), 1);
    // The keys of a page are read from the index in name order, the shorter way to a deep page
    // (from the end when past the middle), and only then joined to their persons and kinds.
    const auto [invers, limita, salt] = Drum(deLa, cate, total);
    const QString directie = invers ? QStringLiteral(" DESC") : QString();
    const QString chei = QStringLiteral("SELECT AdevID ") + ActeExpiraInLuna +
                         QStringLiteral(" ORDER BY MembruOrdine%1, DataExpAdev%1, AdevID%1 LIMIT ? OFFSET ?").arg(directie);
    Interogare q(db, QStringLiteral("SELECT A.AdevID, A.CerereID, A.MembruID, A.DataExpAdev, M.Nume, M.Prenume, "
                                    "G.Continut FROM (%1) P CROSS JOIN Adeverinte A "
                                    "LEFT JOIN Membrii M ON M.MembruID = A.MembruID "
                                    "LEFT JOIN DateGen G ON G.Tip = ? AND G.DataID = A.TipAdeverinta "
                                    "WHERE A.AdevID = P.AdevID ORDER BY A.MembruOrdine, A.DataExpAdev, A.AdevID")
                         .arg(chei));
    q.Leaga(inceput).Leaga(inceput.addMonths(1)).Leaga(limita).Leaga(salt).Leaga(TipDateGen::TipAct).Executa();
    while (q.Urmator()) {
        RandActExpira a;
        a.AdevID = q.Intreg(0);
        a.CerereID = q.Intreg(1);
        a.MembruID = q.Intreg(2);
        a.DataExpAdev = dataDin(q.Valoare(3));
        a.Membru = nume(q.Valoare(4).toString(), q.Valoare(5).toString());
        a.TipAct = q.Valoare(6).toString();
        r.push_back(std::move(a));
    }
    return r;
}

QString Adeverinte::TitluActeExpira(const QDate& azi) {
    return QStringLiteral("Lista Membrilor ale caror acte expira in luna ") + LuniAn()[azi.month() - 1];
}

std::optional<qint64> Adeverinte::CerereActExpira(BazaDate& db, qint64 membruID, qint64 cerereID, const QDate& azi) {
    const QDate inceput(azi.year(), azi.month(), 1);
    Interogare q(db, QStringLiteral("SELECT CerereID FROM Adeverinte WHERE MembruID = ? AND DataExpAdev >= ? "
                                    "AND DataExpAdev < ? ORDER BY CASE WHEN CerereID = ? THEN 0 ELSE 1 END, AdevID"));
    q.Leaga(membruID).Leaga(inceput).Leaga(inceput.addMonths(1)).Leaga(cerereID);
    if (!q.Exista()) return std::nullopt;
    return q.Intreg(0);
}

// ---- The certificates of one request ----

std::vector<RandAdeverintaCerere> Adeverinte::ListaAdeverinteCerere(BazaDate& db, qint64 cerereID) {
    // The engines disagree on where NULL sorts: a certificate without an expiry date is put last
    // explicitly.
    Interogare q(db, QStringLiteral("SELECT A.AdevID, A.MembruID, M.Nume, M.Prenume, G.Continut, A.NrAdev, "
                                    "A.DataAdeverinta, A.DataDepunerii, A.DataExpAdev, A.AdvCurenta "
                                    "FROM Adeverinte A LEFT JOIN Membrii M ON M.MembruID = A.MembruID "
                                    "LEFT JOIN DateGen G ON G.Tip = ? AND G.DataID = A.TipAdeverinta "
                                    "WHERE A.CerereID = ? ORDER BY A.MembruID, A.TipAdeverinta, "
                                    "CASE WHEN A.DataExpAdev IS NULL THEN 1 ELSE 0 END, A.DataExpAdev DESC, "
                                    "A.AdevID"));
    q.Leaga(TipDateGen::TipAct).Leaga(cerereID).Executa();
    std::vector<RandAdeverintaCerere> r;
    while (q.Urmator()) {
        RandAdeverintaCerere a;
        a.AdevID = q.Intreg(0);
        a.MembruID = q.Intreg(1);
        if (!q.Valoare(2).isNull()) a.Membru = nume(q.Valoare(2).toString(), q.Valoare(3).toString());
        a.TipAdeverinta = q.Valoare(4).toString();
        a.NrAdev = q.Valoare(5).toString();
        a.DataAdeverinta = dataDin(q.Valoare(6));
        a.DataDepunerii = dataDin(q.Valoare(7));
        a.DataExpAdev = dataDin(q.Valoare(8));
        a.Curenta = q.Valoare(9).toInt() == 1;
        r.push_back(std::move(a));
    }
    return r;
}

// ---- School certificates ----

std::vector<RandAdeverintaScolara> Adeverinte::ListaAdeverinteScolare(BazaDate& db, const QDate& azi) {
    Interogare q(db, QStringLiteral("SELECT A.AdevID, C.CerereID, A.MembruID, C.NrCerere, T.Nume, T.Prenume, "
                                    "S.Nume, S.Prenume, S.CNP, A.NrAdev, A.DataDepunerii, A.DataAdeverinta, "
                                    "A.DataExpAdev, G.Continut "
                                    "FROM Cereri C INNER JOIN Membrii T ON C.MembruID1 = T.MembruID "
                                    "INNER JOIN CereriMembrii CM ON CM.CerereID = C.CerereID "
                                    "INNER JOIN Adeverinte A ON A.CerereID = CM.CerereID AND A.MembruID = CM.MembruID "
                                    "LEFT JOIN Membrii S ON S.MembruID = CM.MembruID "
                                    "LEFT JOIN DateGen G ON G.Tip = ? AND G.DataID = A.TipAdeverinta "
                                    "WHERE CM.OcupatieID IN (8, 9) ORDER BY C.CerereID, CM.MembruID, A.AdevID"));
    q.Leaga(TipDateGen::TipAct).Executa();
    std::vector<RandAdeverintaScolara> r;
    auto data = [&](int i) { return dataDin(q.Valoare(i)); };
    while (q.Urmator()) {
        RandAdeverintaScolara a;
        a.AdevID = q.Intreg(0);
        a.CerereID = q.Intreg(1);
        a.MembruID = q.Intreg(2);
        a.NrCerere = q.Valoare(3).toString();
        a.NumeTitular = nume(q.Valoare(4).toString(), q.Valoare(5).toString());
        a.NumeScolar = nume(q.Valoare(6).toString(), q.Valoare(7).toString());
        const QString cnp = q.Valoare(8).toString();
        const QDate nastere = DataNasterii(cnp, false, nullptr);
        if (nastere.isValid()) {
            a.DataNast = FormatData(nastere);
            a.Varsta = QString::number(Varsta(azi, nastere, cnp, nullptr));
        }
        a.NrAdev = q.Valoare(9).toString();
        a.DataDep = FormatData(data(10));
        a.DataAdev = FormatData(data(11));
        const QDate exp = data(12);
        a.DataExpirarii = exp.isValid() ? FormatData(exp) : QStringLiteral("Adeverinta fara data expirarii");
        a.TipAdeverinta = q.Valoare(13).toString();
        r.push_back(std::move(a));
    }
    return r;
}

std::optional<AdeverintaScolara> Adeverinte::CitesteAdeverinta(BazaDate& db, qint64 adevID) {
    Interogare q(db, QStringLiteral("SELECT AdevID, CerereID, MembruID, NrAdev, DataAdeverinta, DataDepunerii, "
                                    "DataExpAdev, TipAdeverinta FROM Adeverinte WHERE AdevID = ?"));
    q.Leaga(adevID);
    if (!q.Exista()) return std::nullopt;
    AdeverintaScolara a;
    a.AdevID = q.Intreg(0);
    a.CerereID = q.Intreg(1);
    a.MembruID = q.Intreg(2);
    a.NrAdev = q.Text(QStringLiteral("NrAdev"));
    a.DataAdeverinta = q.Data(QStringLiteral("DataAdeverinta"));
    a.DataDepunerii = q.Data(QStringLiteral("DataDepunerii"));
    a.DataExpAdev = q.Data(QStringLiteral("DataExpAdev"));
    a.TipAdeverinta = int(q.Intreg(QStringLiteral("TipAdeverinta")));
    return a;
}

std::optional<AntetAdeverinta> Adeverinte::Antet(BazaDate& db, qint64 cerereID, qint64 membruID) {
    Interogare q(db, QStringLiteral("SELECT C.NrCerere, T.Nume, T.Prenume, S.Nume, S.Prenume FROM Cereri C "
                                    "LEFT JOIN Membrii T ON T.MembruID = C.MembruID1 "
                                    "LEFT JOIN Membrii S ON S.MembruID = ? WHERE C.CerereID = ?"));
    q.Leaga(membruID).Leaga(cerereID);
    if (!q.Exista()) return std::nullopt;
    AntetAdeverinta a;
    a.NrCerere = q.Valoare(0).toString();
    if (!q.Valoare(1).isNull()) a.Titular = nume(q.Valoare(1).toString(), q.Valoare(2).toString());
    if (!q.Valoare(3).isNull()) a.Scolar = nume(q.Valoare(3).toString(), q.Valoare(4).toString());
    return a;
}

QString Adeverinte::VerificaAdeverintaScolara(const AdeverintaScolara& a, Mesaje& m) {
    if (a.NrAdev.isEmpty()) {
        m.Informatie(QStringLiteral("Nu ati introdus numarul adeverintei"));
        return QStringLiteral("txtNrAdev");
    }
    return {};
}

qint64 Adeverinte::SalveazaAdeverintaScolara(BazaDate& db, const AdeverintaScolara& a, bool adaugare) {
    const CampSchema* camp = Schema::Camp(QStringLiteral("Adeverinte"), QStringLiteral("NrAdev"));
    if (camp && camp->marime > 0 && a.NrAdev.size() > camp->marime)
        throw Eroare(QStringLiteral("Numarul adeverintei are %1 caractere; se pot pastra cel mult %2.")
                         .arg(a.NrAdev.size())
                         .arg(camp->marime));
    const QVariant tip = a.TipAdeverinta != 0 ? QVariant(qint64(a.TipAdeverinta)) : QVariant();
    const QString tabela = QStringLiteral("Adeverinte");
    const Sql::Rand scrise = {{"NrAdev", a.NrAdev},
                              {"DataAdeverinta", dataSauNul(a.DataAdeverinta)},
                              {"DataDepunerii", dataSauNul(a.DataDepunerii)},
                              {"TipAdeverinta", tip},
                              {"DataExpAdev", dataSauNul(a.DataExpAdev)}};
    Tranzactie t(db);
    qint64 id = a.AdevID;
    const std::vector<Schimbare> schimbari =
        adaugare ? Istoric::Compara(tabela, scrise, {})
                 : Istoric::Diferente(db, tabela, QStringLiteral("AdevID"), id, scrise);
    if (adaugare) {
        Interogare exista(db, QStringLiteral("SELECT COUNT(*) FROM Cereri C INNER JOIN Membrii M ON M.MembruID = ? "
                                             "WHERE C.CerereID = ?"));
        exista.Leaga(a.MembruID).Leaga(a.CerereID);
        if (!exista.Exista() || exista.Intreg(0) == 0) throw Eroare(TextRandNegasit);
        id = db.CheieNoua(QStringLiteral("Adeverinte"), QStringLiteral("AdevID"));
        Sql::Rand r = {{"AdevID", id}, {"CerereID", a.CerereID}, {"MembruID", a.MembruID}};
        r.insert(r.end(), scrise.begin(), scrise.end());
        Sql::Insereaza(db, tabela, r);
    } else if (Sql::Actualizeaza(db, tabela, scrise, QStringLiteral("AdevID"), id) == 0) {
        throw Eroare(TextRandNegasit);
    }
    CheiLista::ScrieAdeverinte(db, QStringLiteral("AdevID = ?"), {id});
    Istoric::ScrieSchimbari(db, a.CerereID, {}, adaugare ? FelSchimbare::Adaugare : FelSchimbare::Modificare,
                            adaugare ? QStringLiteral("Adeverinta adaugata") : QStringLiteral("Adeverinta modificata"),
                            schimbari);
    t.Confirma();
    return id;
}

bool Adeverinte::StergeAdeverintaScolara(BazaDate& db, Mesaje& m, qint64 adevID, const QString& nrAdev) {
    if (!CitesteAdeverinta(db, adevID)) {
        m.Informatie(TextRandNegasit);
        return true;
    }
    if (!m.Intrebare(QStringLiteral("Sigur doriti sa stergeti datele adeverintei ") + nrAdev + QStringLiteral(" ?"), {},
                     false))
        return false;
    Tranzactie t(db);
    Istoric::StergereRand(db, QStringLiteral("Adeverinte"), QStringLiteral("AdevID"), adevID,
                          QStringLiteral("Adeverinta %1 stearsa"), QStringLiteral("NrAdev"));
    Interogare(db, QStringLiteral("DELETE FROM Adeverinte WHERE AdevID = ?")).Leaga(adevID).Executa();
    t.Confirma();
    return true;
}

bool Adeverinte::ActeCareExpira(BazaDate& db, const QDate& azi) {
    const QDate inceput(azi.year(), azi.month(), 1);
    Interogare q(db, QStringLiteral("SELECT 1 ") + ActeExpiraInLuna);
    q.Leaga(inceput).Leaga(inceput.addMonths(1));
    return q.Exista();
}

QString Adeverinte::TextNotificare(const QDate& azi) {
    return QStringLiteral("Aveti acte care expira in luna %1 !\nClick pentru a detalii.")
        .arg(LuniAn()[azi.month() - 1]);
}
