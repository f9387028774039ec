#include "maintenance/Demo.h"

#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "cases/Cnp.h"
#include "maintenance/GeneratorDemo.h"
#include "store/CheiLista.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"

#include <algorithm>

using namespace DemoDate;

namespace {

const QDate Inceput(2013, 1, 3);
const QDate UltimaCerere(2025, 12, 31);
const QDate PragConstante(2013, 7, 1);

int Varsta(const QDate& nastere, const QDate& la) {
    int v = la.year() - nastere.year();
    if (nastere.addYears(v) > la) --v;
    return v;
}

QString Roman(int n) {
    static const char* const r[] = {"pregătitoare", "I",    "II", "III", "IV", "V",  "VI",
                                    "VII",          "VIII", "IX", "X",   "XI", "XII"};
    return QString::fromUtf8(r[std::clamp(n, 0, 12)]);
}

} // namespace

namespace DemoDate {

// clang-format off
Generator::Generator(BazaDate& db, quint64 samanta, const QDate& azi)
    : db_(db), zar_(samanta), azi_(azi), lunaAzi_(IntaiaZi(azi)),
      ultimaCerere_(std::min(UltimaCerere, azi.addDays(-1))), coduriCnp_(coduriCnp()),
      familii_(db, "Familii", {"FamilieID", "Judet", "Localitate", "Strada", "Nr", "Sc", "Ap", "NrDosar2",
                                      "NrDosar", "Bloc", "Etaj", "Telefon", "Mobil"}),
      membrii_(db, "Membrii", {"MembruID", "Nume", "Prenume", "CNP", "SerieBI", "NrBI", "TipAct", "Eliberat",
                                      "DataElib", "Dizabilitate", "NumeCautare", "PrenumeCautare"}),
      cereri_(db, "Cereri", {"CerereID", "FamilieID", "NrCerere", "DataCerere", "MembruID1", "MembruID2",
                                    "Stare", "NrMembrii", "NrCopii", "Cuantum", "MotivStare", "DataStare",
                                    "VenitTotal", "VenitpeMembru", "ReprLegal", "ModPlata", "NumeTitularCont", "Cont",
                                    "Banca", "Gospodarire", "GospodLoc", "RegimJuridLoc", "TipIncalzire",
                                    "TipLocuinta", "Bife", "TipCerere", "LuniRetro", "Vmg", "Inc", "Supl", "Lege416",
                                    "A1Solicita", "ActeBife", "TipDobandire", "Polita", "SocietatePolita", "NrPolita",
                                    "DataStartPolita", "DataStopPolita", "AcoperaRiscuri", "NrCamere"}),
      cereriMembrii_(db, "CereriMembrii",
                                {"CerereID", "MembruID", "RudenieID", "OcupatieID", "Data18Ani", "Motiv", "CetatenieID",
                                 "ResedintaID", "StCivila", "Studii", "DrAsSociala", "LucreazaAfara", "UScolara",
                                 "Clasa", "RealizeazaVenit", "DataStare", "MotivID", "StareMembru", "Diminuare20",
                                 "Diminuare50", "LocuitAfara", "Venit", "VMG", "Alocatie", "Incalzire", "LocScoala",
                                 "Repetent", "Abandon", "Peste20abs"}),
      venituri_(db, "Venituri", {"CerereID", "CodVenit", "Valoare"}),
      bifeText_(db, "BifeText", {"CerereID", "NrBifa", "Valoare"}),
      locuinte_(db, "Locuinte", {"CerereID", "Cod", "NrCamere", "Suprafata"}),
      adeverinte_(db, "Adeverinte", {"AdevID", "CerereID", "MembruID", "TipAdeverinta", "NrAdev",
                                            "DataAdeverinta", "DataExpAdev", "DataDepunerii", "AdvCurenta"}),
      dispozitii_(db, "Dispozitii", {"DispozitieID", "CerereID", "NrDisp", "DataDisp", "DinData", "Luna", "An",
                                            "Actiune", "Cuantum", "CuantumVechi", "Motiv", "BeneficiarID",
                                            "NumeTitularVechi"}),
      anchete_(db, "Anchete", {"AnchetaID", "CerereID", "DataAncheta", "Intocmitor", "DataExpirarii", "Motiv",
                                      "NrMembrii", "NrCopii", "TipLocuinta", "RegimJuridic", "NrCamere", "SuprUtila",
                                      "Bunuri", "Igiena", "TipLocuire", "TipDetinere", "Teren", "Cladiri",
                                      "StareSanatate", "Nevoi", "Aspecte"}) {
    // clang-format on
    if (ultimaCerere_ < Inceput.addMonths(6))
        throw Eroare(QStringLiteral("Datele demonstrative incep in 2013; data de azi (%1) este prea veche.")
                         .arg(azi.toString(QStringLiteral("dd.MM.yyyy"))));
    citesteReferinte();
}

void Generator::citesteReferinte() {
    parametri_ = IncarcaParametri(db_);
    {
        Interogare q(db_, QStringLiteral("SELECT NrBifa, Valoare FROM ListaBife"));
        q.Executa();
        while (q.Urmator())
            valoriBife_[int(q.Intreg(QStringLiteral("NrBifa")))] = q.Suma(QStringLiteral("Valoare"));
    }
    {
        Interogare q(db_, QStringLiteral("SELECT COUNT(*) FROM ListaActe"));
        if (q.Exista() && q.Intreg(0) > 0) nrActe_ = int(std::min<qint64>(q.Intreg(0), 30));
    }

    // The town: the town hall's own when it is filled in, else one drawn for the seed.
    const Oras& oras = Orase[zar_.Intre(0, int(std::size(Orase)) - 1)];
    localitate_ = QString::fromUtf8(oras.nume);
    codJudet_ = oras.judet;
    {
        Interogare q(db_, QStringLiteral("SELECT Judet, Localitate FROM DatePrimarie"));
        q.Executa();
        if (q.Urmator() && !q.Text(QStringLiteral("Localitate")).trimmed().isEmpty()) {
            localitate_ = q.Text(QStringLiteral("Localitate")).trimmed();
            const QString judet = q.Text(QStringLiteral("Judet")).trimmed();
            for (const auto& j : Judete)
                if (judet.compare(QString::fromUtf8(j.nume), Qt::CaseInsensitive) == 0) codJudet_ = j.cod;
        }
    }
    for (const auto& j : Judete)
        if (j.cod == codJudet_) {
            judet_ = QString::fromUtf8(j.nume);
            serieJudet_ = QString::fromLatin1(j.serie);
        }
    QStringList toti = texte().functionari;
    for (int i = 0; i < 3; ++i)
        functionari_ << toti.takeAt(zar_.Intre(0, int(toti.size()) - 1));

    Interogare q(db_, QStringLiteral("SELECT CNP FROM Membrii WHERE CNP IS NOT NULL"));
    q.Executa();
    while (q.Urmator()) {
        bool ok = false;
        const quint64 n = q.Valoare(0).toString().trimmed().toULongLong(&ok);
        if (ok) cnpFolosite_.insert(n);
    }
}

void Generator::citesteChei() {
    cerereID_ = std::max(db_.CheieNoua(QStringLiteral("Cereri"), QStringLiteral("CerereID")),
                         db_.CheieNoua(QStringLiteral("Familii"), QStringLiteral("FamilieID")));
    membruID_ = db_.CheieNoua(QStringLiteral("Membrii"), QStringLiteral("MembruID"));
    adevID_ = db_.CheieNoua(QStringLiteral("Adeverinte"), QStringLiteral("AdevID"));
    dispozitieID_ = db_.CheieNoua(QStringLiteral("Dispozitii"), QStringLiteral("DispozitieID"));
    anchetaID_ = db_.CheieNoua(QStringLiteral("Anchete"), QStringLiteral("AnchetaID"));
    // The clerks' numbers are not keys: read once, they go on from the last one.
    if (nrCerere_ == 0) {
        nrCerere_ = db_.CheieNoua(QStringLiteral("Cereri"), QStringLiteral("NrCerere"));
        nrDosar_ = db_.CheieNoua(QStringLiteral("Familii"), QStringLiteral("NrDosar"));
        nrDisp_ = db_.CheieNoua(QStringLiteral("Dispozitii"), QStringLiteral("NrDisp"));
    }
}

void Generator::Lot(int n) {
    citesteChei();
    const qint64 primaCerere = cerereID_, primulAct = adevID_;
    for (int i = 0; i < n; ++i)
        cerere();
    // Parents before the rows that point to them.
    for (InserareInLot* t : {&familii_, &membrii_, &cereri_, &cereriMembrii_, &venituri_, &bifeText_, &locuinte_,
                             &adeverinte_, &dispozitii_, &anchete_})
        t->Scrie();
    CheiLista::Scrie(db_, QStringLiteral("CerereID >= ?"), {primaCerere});
    CheiLista::ScrieAdeverinte(db_, QStringLiteral("AdevID >= ?"), {primulAct});
}

void Generator::cerere() {
    Dosar d;
    d.id = cerereID_++;
    d.stare = zar_.Ponderat({{2, 28}, {6, 7}, {7, 22}, {8, 4}, {1, 6}, {3, 8}, {4, 15}, {5, 10}});
    d.tip = d.stare == 8 || zar_.Sansa(65) ? 1 : 2;
    cronologie(d);
    familie(d);
    venituri(d);
    bunuri(d);
    locuinta(d);
    sume(d);
    scrie(d);
}

// The dispositions a request has had, in order, and the month from which each applies; the
// status is the outcome of the last one.
void Generator::cronologie(Dosar& d) {
    std::vector<int> actiuni;
    switch (d.stare) {
    case 2:
        actiuni = {1};
        break;
    case 3:
        actiuni = {1, 3};
        break;
    case 4:
        actiuni = zar_.Sansa(70) ? std::vector<int>{1, 5} : std::vector<int>{1, 2, 5};
        break;
    case 5:
        actiuni = {4};
        break;
    case 6:
        actiuni = {1, 3, 6};
        break;
    case 7:
        actiuni = zar_.Sansa(75) ? std::vector<int>{1, 2} : std::vector<int>{1, 2, 2};
        break;
    case 8:
        actiuni = {1, 2};
        break;
    default:
        break;
    }
    const int ulterioare = std::max(0, int(actiuni.size()) - 1);
    if (d.stare == 1)
        d.dataCerere = zar_.ZiIntre(ultimaCerere_.addDays(-90), ultimaCerere_);
    else
        d.dataCerere = zar_.ZiIntre(Inceput, std::min(ultimaCerere_, lunaAzi_.addMonths(-2 * ulterioare - 1)));
    const QDate luna0 = IntaiaZi(d.dataCerere).addMonths(1);
    QDate luna = luna0;
    for (size_t i = 0; i < actiuni.size(); ++i) {
        if (i > 0) {
            const QDate plafon = lunaAzi_.addMonths(-2 * int(actiuni.size() - 1 - i));
            QDate tinta = std::min(luna.addMonths(zar_.Intre(2, 30)), plafon);
            luna = std::max(tinta, luna.addMonths(1));
        }
        d.evenimente.push_back({actiuni[i], luna, {}});
    }
    d.dataStare = d.evenimente.empty() ? luna0 : d.evenimente.back().dinData;

    const Texte& t = texte();
    switch (d.stare) {
    case 2:
        d.motivStare = QStringLiteral("Îndeplinește condițiile legale");
        break;
    case 3:
        d.motivStare = zar_.Unul(t.suspendare);
        break;
    case 4:
        d.motivStare = zar_.Unul(t.incetare);
        break;
    case 6:
        d.motivStare = QStringLiteral("A depus actele solicitate");
        break;
    case 7:
        d.motivSchimbare = zar_.Sansa(50) ? 1 : 2;
        d.motivStare = d.motivSchimbare == 1 ? QStringLiteral("Nașterea unui copil")
                                             : QStringLiteral("Modificarea veniturilor familiei");
        break;
    case 8:
        d.motivStare = zar_.Unul(t.schimbareTitular);
        break;
    default:
        break;
    }
}

QString Generator::cnp(const QDate& nastere, bool barbat, int judet) {
    const int s = nastere.year() < 2000 ? (barbat ? 1 : 2) : (barbat ? 5 : 6);
    int nnn = zar_.Intre(1, 999);
    auto poz = std::find(coduriCnp_.begin(), coduriCnp_.end(), judet);
    size_t ij = poz == coduriCnp_.end() ? 0 : size_t(poz - coduriCnp_.begin());
    // A collision moves on to the next serial number, then the next county, without drawing:
    // the rest of the data stays the same whatever the database already holds.
    for (size_t incercari = 0; incercari < 999 * coduriCnp_.size(); ++incercari) {
        const int jj = coduriCnp_[ij];
        const int c[12] = {s,
                           nastere.year() % 100 / 10,
                           nastere.year() % 10,
                           nastere.month() / 10,
                           nastere.month() % 10,
                           nastere.day() / 10,
                           nastere.day() % 10,
                           jj / 10,
                           jj % 10,
                           nnn / 100,
                           nnn / 10 % 10,
                           nnn % 10};
        QString douasprezece;
        quint64 numar = 0;
        for (int i = 0; i < 12; ++i) {
            douasprezece += QChar(u'0' + c[i]);
            numar = numar * 10 + quint64(c[i]);
        }
        numar = numar * 10 + quint64(CifraControlCnp(douasprezece));
        if (cnpFolosite_.insert(numar).second) return QStringLiteral("%1").arg(numar, 13, 10, QLatin1Char('0'));
        nnn = nnn % 999 + 1;
        if (incercari % 999 == 998) ij = (ij + 1) % coduriCnp_.size();
    }
    throw Eroare(QStringLiteral("Nu mai exista coduri numerice personale libere pentru data %1")
                     .arg(nastere.toString(QStringLiteral("dd.MM.yyyy"))));
}

Generator::Persoana Generator::persoana(const QDate& nastere, bool barbat, const QString& nume, int rudenie,
                                        const QDate& dataCerere) {
    const Texte& t = texte();
    Persoana p;
    p.id = membruID_++;
    p.nastere = nastere;
    p.barbat = barbat;
    p.nume = nume;
    p.rudenie = rudenie;
    const bool tanar = nastere.year() >= 2000;
    p.prenume = zar_.Unul(barbat ? (tanar ? t.baieti : t.barbati) : (tanar ? t.fete : t.femei));
    p.judet = zar_.Sansa(80) ? codJudet_ : coduriCnp_[size_t(zar_.Intre(0, int(coduriCnp_.size()) - 1))];
    p.cnp = cnp(nastere, barbat, p.judet);
    p.dizabilitate = zar_.Sansa(2);
    p.numar = zar_.Cifre(6);
    if (Varsta(nastere, dataCerere) >= 14) {
        p.tipAct = zar_.Ponderat({{2, 80},
                                  {8, dataCerere >= QDate(2021, 8, 1) ? 10 : 0},
                                  {1, nastere.year() < 1985 ? 5 : 0},
                                  {3, 3},
                                  {9, 2}});
        p.serie = serieJudet_;
        p.eliberat = (QStringLiteral("SPCLEP ") + localitate_).left(30);
        p.dataElib = zar_.ZiIntre(std::max(nastere.addYears(14), dataCerere.addYears(-10)), dataCerere.addDays(-1));
    } else {
        p.tipAct = 4;
        p.serie = QStringLiteral("N");
        p.eliberat = (QStringLiteral("Primăria ") + localitate_).left(30);
        p.dataElib = nastere.addDays(zar_.Intre(3, 30));
    }
    return p;
}

int Generator::ocupatieAdult(bool cuBebelus) {
    if (cuBebelus && zar_.Sansa(45)) return 10;
    return zar_.Ponderat({{1, 34}, {3, 9}, {4, 15}, {5, 14}, {6, 8}, {7, 3}, {11, 9}, {12, 4}, {13, 2}, {14, 2}});
}

void Generator::familie(Dosar& d) {
    const Texte& t = texte();
    const bool singur = (d.stare == 1 || d.stare == 5) && zar_.Sansa(12);
    int copii = singur ? 0 : zar_.Ponderat({{1, 33}, {2, 32}, {3, 18}, {4, 9}, {5, 5}, {6, 3}});
    const bool major = !singur && zar_.Sansa(6);
    const int ruda = singur ? 0 : zar_.Ponderat({{0, 90}, {4, 7}, {5, 3}});
    const bool nouNascut = d.motivSchimbare == 1;
    const int adulti = (d.tip == 1 ? 2 : 1) + (ruda ? 1 : 0);
    copii = std::min(copii, 8 - adulti - (major ? 1 : 0) - (nouNascut ? 1 : 0));

    // Births of the children: the youngest is still a minor when the request is last looked at,
    // the others of any age under 18 on the day of the request.
    const QDate minorLa = InPlata(d.stare) ? std::max(azi_, d.dataStare) : d.dataStare;
    const QDate primaNastere = d.dataCerere.addYears(-18).addDays(1);
    std::vector<std::pair<QDate, bool>> nasteri; // date, joined later
    for (int i = 0; i < copii; ++i) {
        QDate jos = primaNastere;
        if (i == 0) jos = std::max(jos, minorLa.addYears(-18).addDays(1));
        nasteri.push_back({zar_.ZiIntre(std::min(jos, d.dataCerere), d.dataCerere), false});
    }
    if (major) nasteri.push_back({d.dataCerere.addYears(-zar_.Intre(18, 19)).addDays(-zar_.Intre(0, 300)), false});
    if (nouNascut) {
        const QDate dupa = d.evenimente[0].dinData, inainte = d.evenimente[1].dinData;
        nasteri.push_back({zar_.ZiIntre(dupa.addDays(1), inainte.addDays(-1)), true});
    }
    std::sort(nasteri.begin(), nasteri.end());
    QDate celMaiTanar;
    for (const auto& n : nasteri)
        if (!n.second) celMaiTanar = n.first;

    QDate mama, tata;
    if (nasteri.empty())
        mama = d.dataCerere.addYears(-zar_.Intre(18, 45)).addDays(-zar_.Intre(0, 364));
    else
        mama = nasteri.front().first.addYears(-zar_.Intre(18, 34)).addDays(-zar_.Intre(0, 364));
    tata = mama.addDays(-zar_.Intre(-2 * 365, 8 * 365));
    const QDate tataMajor = (nasteri.empty() ? d.dataCerere : nasteri.front().first).addYears(-18);
    if (tata > tataMajor) tata = tataMajor.addDays(-zar_.Intre(0, 700));

    const bool titularMama = zar_.Sansa(d.tip == 1 ? 75 : 85);
    const bool casatoriti = d.tip == 1 && zar_.Sansa(80);
    const QString numeTata = zar_.Unul(t.familie);
    const QString numeMama = casatoriti ? numeTata : zar_.Unul(t.familie);
    const int stCivila = d.tip == 1 ? (casatoriti ? 1 : 6) : zar_.Ponderat({{2, 35}, {3, 35}, {4, 10}, {5, 20}});
    bool bebelus = false;
    for (const auto& n : nasteri)
        bebelus = bebelus || (!n.second && Varsta(n.first, d.dataCerere) < 2);

    auto adult = [&](Persoana p, bool mamaCopiilor) {
        p.ocupatie = ocupatieAdult(mamaCopiilor && bebelus);
        p.studii = zar_.Ponderat({{1, 8}, {2, 45}, {3, 40}, {4, 7}});
        p.drAsSociala = p.ocupatie == 1 ? 1 : zar_.Ponderat({{2, 30}, {3, 40}, {4, 30}});
        p.stCivila = stCivila;
        return p;
    };
    const QString numeTitular = titularMama ? numeMama : numeTata;
    d.persoane.push_back(
        adult(persoana(titularMama ? mama : tata, !titularMama, numeTitular, 1, d.dataCerere), titularMama));
    if (d.tip == 1)
        d.persoane.push_back(
            adult(persoana(titularMama ? tata : mama, titularMama, titularMama ? numeTata : numeMama, 2, d.dataCerere),
                  !titularMama));

    const QString numeCopii =
        d.tip == 1 ? numeTata : (!titularMama || zar_.Sansa(70) ? numeTitular : zar_.Unul(t.familie));
    for (const auto& [nastere, nou] : nasteri) {
        const int rudenie = zar_.Sansa(90) ? 3 : zar_.Intre(6, 10);
        Persoana c = persoana(nastere, zar_.Sansa(50), numeCopii, rudenie, d.dataCerere);
        c.nou = nou;
        // The school situation as it stands at the last decision.
        const int v = Varsta(nastere, d.dataStare);
        if (v < 6)
            c.ocupatie = 1;
        else if (zar_.Sansa(3) && v < 18)
            c.ocupatie = 2;
        else
            c.ocupatie = v < 15 ? 3 : 4;
        c.studii = c.ocupatie;
        c.drAsSociala = 3;
        if (c.ocupatie >= 3) {
            const int nr = zar_.Intre(1, 6);
            c.uScolara = c.ocupatie == 3 ? QStringLiteral("Școala Gimnazială nr. %1").arg(nr)
                                         : QStringLiteral("Liceul Tehnologic nr. %1").arg(nr);
            c.clasa = Roman(v - 6);
            // One child has at most one of these marks; the youngest keeps the request's right.
            if (nastere != celMaiTanar && v < 18) switch (zar_.Ponderat({{0, 94}, {1, 3}, {2, 2}, {3, 1}})) {
                case 1:
                    c.dim20 = true;
                    break;
                case 2:
                    c.dim50 = true;
                    break;
                case 3:
                    c.peste20 = true;
                    break;
                default:
                    break;
                }
        }
        d.persoane.push_back(c);
    }
    if (ruda == 4) {
        const QDate nastere = mama.addYears(-zar_.Intre(20, 30));
        const bool barbat = zar_.Sansa(40);
        Persoana b = persoana(nastere, barbat, numeMama, 4, d.dataCerere);
        b.ocupatie = 2;
        b.studii = zar_.Ponderat({{1, 20}, {2, 60}, {3, 20}});
        b.drAsSociala = 1;
        b.stCivila = zar_.Ponderat({{1, 60}, {4, 40}});
        d.persoane.push_back(b);
    } else if (ruda == 5) {
        const QDate nastere = d.dataCerere.addYears(-zar_.Intre(20, 55)).addDays(-zar_.Intre(0, 364));
        const bool barbat = zar_.Sansa(50);
        const QString nume = zar_.Unul(t.familie);
        Persoana a = adult(persoana(nastere, barbat, nume, 5, d.dataCerere), false);
        a.stCivila = zar_.Ponderat({{2, 60}, {3, 25}, {4, 15}});
        d.persoane.push_back(a);
    }
}

void Generator::venituri(Dosar& d) {
    auto cod = [&](int ocupatie) {
        switch (ocupatie) {
        case 1:
            return zar_.Ponderat({{1, 80}, {2, 15}, {3, 5}});
        case 2:
            return zar_.Ponderat({{53, 60}, {57, 25}, {56, 15}});
        case 3:
            return 64;
        case 6:
            return zar_.Ponderat({{26, 40}, {39, 30}, {52, 30}});
        case 7:
            return 15;
        case 10:
            return 68;
        case 11:
            return 10;
        case 12:
            return 14;
        case 13:
            return 66;
        default:
            return 0;
        }
    };
    for (size_t i = 0; i < d.persoane.size(); ++i)
        if (!EsteCopil(d.persoane[i].rudenie))
            if (const int c = cod(d.persoane[i].ocupatie)) d.surse.push_back({c, i, 0});
    if (d.tip == 2 && d.persoane.size() > 1 && zar_.Sansa(25)) d.surse.push_back({74, 0, 0});

    if (d.stare == 5) {
        bool copii = false;
        for (const Persoana& p : d.persoane)
            copii = copii || EsteCopil(p.rudenie);
        d.motivRespingere = !copii ? 1 : (zar_.Sansa(60) ? 2 : 3);
    }
    // Income per member: under the lower threshold, between the thresholds, or over them.
    const int treapta = d.motivRespingere == 2 ? 2 : (zar_.Sansa(45) ? 0 : 1);
    const int susMediu = d.evenimente.empty() || d.evenimente[0].dinData >= PragConstante ? 556 : 369;
    auto peMembru = [&](int t) -> qint64 {
        const int lei = t == 0 ? zar_.Intre(25, 209) : t == 1 ? zar_.Intre(211, susMediu) : zar_.Intre(600, 1400);
        return qint64(lei) * 100 + zar_.Intre(0, 99);
    };
    if (d.surse.empty() && treapta > 0) {
        d.persoane[0].ocupatie = 1;
        d.persoane[0].drAsSociala = 1;
        d.surse.push_back({1, 0, 0});
    }
    // At most three kinds of income, one row each.
    std::vector<int> coduri;
    std::vector<Sursa> pastrate;
    for (const Sursa& s : d.surse) {
        const bool cunoscut = std::find(coduri.begin(), coduri.end(), s.cod) != coduri.end();
        if (!cunoscut && coduri.size() == 3) continue;
        if (!cunoscut) coduri.push_back(s.cod);
        pastrate.push_back(s);
    }
    d.surse = pastrate;
    const qint64 membri = qint64(d.persoane.size());
    if (!d.surse.empty()) {
        d.venitPeMembru = peMembru(treapta);
        d.venitTotal = d.venitPeMembru * membri;
        std::vector<int> ponderi;
        int total = 0;
        for (size_t i = 0; i < d.surse.size(); ++i) {
            ponderi.push_back(zar_.Intre(1, 10));
            total += ponderi.back();
        }
        qint64 ramas = d.venitTotal;
        for (size_t i = 0; i < d.surse.size(); ++i) {
            const qint64 parte = i + 1 == d.surse.size() ? ramas : d.venitTotal * ponderi[i] / total;
            d.surse[i].bani = parte;
            ramas -= parte;
            d.persoane[d.surse[i].persoana].venit += parte;
        }
    }
    if (d.motivSchimbare == 2)
        d.venitVechi = peMembru(treapta == 0 ? 1 : 0);
    else
        d.venitVechi = d.venitPeMembru;
}

void Generator::bunuri(Dosar& d) {
    if (d.motivRespingere == 3) d.bife[zar_.Intre(0, 9)] = QLatin1Char('1');
    const Bani limita = Bani::DinLei(d.persoane.size() == 1 ? 1000 : 2500);
    const int n = zar_.Ponderat({{0, 55}, {1, 30}, {2, 15}});
    std::vector<int> alese;
    for (int i = 0; i < n; ++i) {
        const int k = zar_.Intre(0, int(std::size(Bunuri)) - 1);
        const Bun& b = Bunuri[k];
        const Bani cantitate = Bani::DinUnitati(b.pas * zar_.Intre(b.minim, b.maxim));
        if (std::find(alese.begin(), alese.end(), k) != alese.end()) continue;
        // The editor stores the good shown on catalogue row r under r - 2 and values it with
        // row r - 1; the demo keeps to what the editor writes and reads back.
        const int nrBifa = b.rand - 2;
        const auto v = valoriBife_.find(nrBifa + 1);
        const Bani valoare = v == valoriBife_.end() ? Bani() : cantitate.Inmultit(v->second);
        if (d.valoareBunuri + valoare > limita) continue;
        alese.push_back(k);
        d.valoareBunuri += valoare;
        d.bunuri.push_back({nrBifa, cantitate});
    }
}

void Generator::locuinta(Dosar& d) {
    d.bloc = zar_.Sansa(35);
    if (d.bloc) {
        d.felLocuinta = zar_.Sansa(90) ? 3 : 4;
        d.camere = zar_.Intre(1, 3);
        d.suprafata = 22 + 14 * d.camere + zar_.Intre(0, 12);
    } else {
        d.felLocuinta = zar_.Ponderat({{1, 80}, {2, 15}, {4, 3}, {6, 2}});
        d.camere = zar_.Intre(1, 4);
        d.suprafata = 20 + 16 * d.camere + zar_.Intre(0, 25);
    }
}

// The amount as the request editor computes it, so that a generated request opens with the
// amount it would get; persons born after the date are not yet in the family.
RezultatCuantum Generator::cuantumLa(const Dosar& d, const QDate& data, qint64 venitPeMembru, bool cuReduceri) const {
    StareCerere stare;
    stare.MatriceMembri.emplace();
    for (const Persoana& p : d.persoane) {
        if (p.nastere > data) continue;
        MembruCerere m;
        m.RudenieID = p.rudenie;
        if (EsteCopil(p.rudenie)) m.Data18Ani = ZiuaMajoratului(p.nastere);
        m.Peste20abs = p.peste20 ? 1 : 0;
        m.Diminuare20 = cuReduceri && p.dim20 ? 1 : 0;
        m.Diminuare50 = cuReduceri && p.dim50 ? 1 : 0;
        stare.MatriceMembri->push_back(m);
    }
    for (const auto& [nrBifa, cantitate] : d.bunuri)
        if (nrBifa >= 9 && nrBifa < 9 + int(stare.Bunuri.size())) stare.Bunuri[size_t(nrBifa - 9)] = cantitate;
    stare.Bife = d.bife;
    MesajeTacute tacut;
    return CalculCuantum({stare, d.tip, data, Bani::DinUnitati(venitPeMembru * 100).Text(), data.month(), data.year()},
                         parametri_, tacut);
}

void Generator::sume(Dosar& d) {
    const RezultatCuantum r = cuantumLa(d, d.dataStare, d.venitPeMembru, true);
    d.nrCopii = r.NrCopii.value_or(0);
    d.cuantum = r.Cuantum;
    for (size_t i = 0; i < d.evenimente.size(); ++i) {
        const bool ultimul = i + 1 == d.evenimente.size();
        d.evenimente[i].cuantum =
            ultimul ? d.cuantum
                    : cuantumLa(d, d.evenimente[i].dinData, i == 0 ? d.venitVechi : d.venitPeMembru, false).Cuantum;
    }
}

// An IBAN with its real check digits, on a made-up account of a real bank code.
QString Iban(Zar& zar, const char* banca) {
    QString bban = QString::fromLatin1(banca);
    static const char alfanum[] = "ABCDEFGHJKLMNPRSTUVWXYZ0123456789";
    for (int i = 0; i < 4; ++i)
        bban += QLatin1Char(alfanum[zar.Intre(0, int(sizeof(alfanum)) - 2)]);
    bban += zar.Cifre(12);
    int rest = 0;
    for (const QChar c : bban + QStringLiteral("RO00")) {
        const int v = c.isDigit() ? c.unicode() - u'0' : c.unicode() - u'A' + 10;
        rest = (v >= 10 ? rest * 100 : rest * 10) + v;
        rest %= 97;
    }
    return QStringLiteral("RO%1%2").arg(98 - rest, 2, 10, QLatin1Char('0')).arg(bban);
}

} // namespace DemoDate

void Demo::Genereaza(BazaDate& db, const Optiuni& o, const std::function<void(int, int)>& progres) {
    if (o.cereri < 0) throw Eroare(QStringLiteral("Numarul de cereri demonstrative nu poate fi negativ."));
    if (o.cereri == 0) return;
    const int lot = o.lot > 0 ? o.lot : 2000;
    // An office that the demo more than doubles gets its indexes after its rows: sorting the rows
    // once costs far less than keeping every index in order through each insert. Were the run cut
    // short, the next start's upgrade builds the missing ones.
    Interogare existente(db, QStringLiteral("SELECT COUNT(*) FROM Cereri"));
    existente.Exista();
    const bool indexuriLaSfarsit = o.cereri > existente.Intreg(0);
    existente.query().finish();
    OperatiiSchema ops(db);
    if (indexuriLaSfarsit) {
        Tranzactie t(db);
        for (const IndexSchema& ix : Schema::Indexuri())
            ops.StergeIndex(ix);
        t.Confirma();
    }
    Generator g(db, o.samanta, Ceas::Azi());
    int facute = 0;
    while (facute < o.cereri) {
        const int n = std::min(lot, o.cereri - facute);
        Tranzactie t(db);
        g.Lot(n);
        t.Confirma();
        facute += n;
        if (progres) progres(facute, o.cereri);
    }
    if (indexuriLaSfarsit) {
        Tranzactie t(db);
        for (const IndexSchema& ix : Schema::Indexuri())
            if (ops.TabelaExista(ix.tabela)) ops.CreazaIndex(ix);
        t.Confirma();
    }
    // PostgreSQL plans from its statistics, which its background worker renews only some time after
    // a load of this size; the lists would meanwhile be planned for empty tables.
    if (!db.dialect().EsteSQLite()) db.Executa(QStringLiteral("ANALYZE"));
}
