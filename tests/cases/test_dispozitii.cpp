#include "base/Ceas.h"
#include "base/Eroare.h"
#include "cases/Dispozitii.h"
#include "support/BazaTest.h"
#include "support/DispozitiiTest.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

// Readable values in failure messages.
static void PrintTo(const QDate& d, std::ostream* os) {
    *os << (d.isValid() ? d.toString(Qt::ISODate).toStdString() : std::string("(fara data)"));
}
static void PrintTo(const Bani& b, std::ostream* os) {
    *os << b.Text().toStdString();
}

namespace {

const QDate Azi(2024, 5, 10);

std::optional<Bani> B(const char* s) {
    return Bani::DinText(QString::fromLatin1(s));
}

// A kind shows or hides the amount, the new amount and the reason; what it does not set (the new
// amount's box and the labels of a suspension, say) stays as the kind before it left it.
TEST(ActiuniDispozitie, FiecareTipSchimbaDoarCeAreDeSchimbat) {
    BlocuriDispozitie b;
    const struct {
        std::optional<int> actiune;
        bool suma, sumaNoua, motiv, pastreazaModificarea, pastreazaMotivul;
    } pasi[] = {{2, true, true, true, false, false},  {3, false, true, true, true, false},
                {1, true, false, false, false, true}, {5, false, false, true, true, false},
                {6, true, false, true, false, false}, {4, false, false, true, true, false},
                {7, false, false, true, true, true},  {std::nullopt, false, false, true, true, true}};
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.actiune.value_or(-1));
        const BlocuriDispozitie inainte = b;
        Dispozitii::AplicaActiune(b, p.actiune);
        EXPECT_EQ(b.picMiddle, p.suma);
        EXPECT_EQ(b.SumaNoua, p.sumaNoua);
        EXPECT_EQ(b.Motiv, p.motiv);
        EXPECT_EQ(b.lblModificarea == inainte.lblModificarea, p.pastreazaModificarea);
        EXPECT_EQ(b.lblMotiv == inainte.lblMotiv, p.pastreazaMotivul);
    }
}

TEST(SumeDispozitie, CaLeTasteazaFunctionarii) {
    const std::pair<const char*, const char*> cazuri[] = {
        {"12,50", "12"},      {"12.50", "12.5"},       {"", "0"}, {",5", "0"}, {"7.", "7"}, {"1.2.3", "1.2"},
        {"0.0001", "0.0001"}, {"99999999", "99999999"}};
    for (const auto& [text, suma] : cazuri) {
        const Bani b = Dispozitii::SumaTastata(QString::fromLatin1(text));
        EXPECT_EQ(b, *B(suma)) << text;
        EXPECT_EQ(Dispozitii::TextSuma(b), QString::fromLatin1(suma)) << text;
    }
    EXPECT_THROW(Dispozitii::SumaTastata(QStringLiteral("1e300")), Eroare);
}

class DispozitiiBaza : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(Azi);
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    // A disposition as the editor leaves it for the request filed on 15.03.2024.
    static Dispozitie Completa(qint64 cerereID = 1) {
        Dispozitie d;
        d.CerereID = cerereID;
        d.NrDisp = QStringLiteral("245");
        d.DataDisp = QDate(2024, 4, 20);
        d.Actiune = 1;
        d.Luna = 4;
        d.An = QStringLiteral("2024");
        d.Suma = QStringLiteral("164");
        d.Motiv = QStringLiteral("Indeplineste conditiile");
        return d;
    }

    qint64 NumarDispozitii() { return Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")); }
};

// The editor opens on the request's number, date, status month and reason; the kind by the
// status; the amount as the new one of a change, whose old one is the newest disposition's.
TEST_P(DispozitiiBaza, DeschidereaPentruAdaugareIaDinCerereSiDinUltimaDispozitie) {
    const std::pair<int, std::optional<int>> propuneri[] = {
        {1, std::nullopt}, {2, 1}, {3, 3}, {4, 5}, {5, 4}, {6, 6}, {7, 2}, {8, 2}, {9, std::nullopt}};
    for (const auto& [stare, actiune] : propuneri)
        EXPECT_EQ(Dispozitii::ActiunePropusa(stare), actiune) << stare;
    CerereDisp faraDate{.id = 4, .nrCerere = 20, .stare = 1, .cuantum = std::nullopt};
    faraDate.dataStare = QDate();
    faraDate.motivStare.clear();
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 17, .stare = 2, .cuantum = B("172.5")},
                        {.id = 2, .nrCerere = 18, .stare = 7, .cuantum = B("210")},
                        {.id = 3, .nrCerere = 19, .stare = 8, .cuantum = B("99.25")},
                        faraDate});

    auto d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 1);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ(d->NrCerere, QStringLiteral("17"));
    EXPECT_EQ(d->DataCerere, QDate(2024, 3, 15));
    EXPECT_EQ(d->d.Actiune, std::optional<int>(1));
    EXPECT_EQ(d->d.Suma, QStringLiteral("172.5"));
    EXPECT_EQ(d->d.SumaNoua, QString());
    EXPECT_EQ(d->d.Luna, std::optional<int>(4));
    EXPECT_EQ(d->d.An, QStringLiteral("2024"));
    EXPECT_EQ(d->d.Motiv, QStringLiteral("Indeplineste conditiile legii"));
    EXPECT_EQ(d->d.DataDisp, Azi);

    // A change: with no disposition before it, no old amount; with some, that of the newest key,
    // whatever its dates, another request's not counted; a newest one without amount leaves none.
    const auto sume = [&](qint64 cerere) {
        const auto e = Dispozitii::DeschideAdaugare(Bd(), mesaje, cerere);
        return e ? QStringList{e->d.Suma, e->d.SumaNoua} : QStringList{};
    };
    EXPECT_EQ(sume(2), (QStringList{QString(), QStringLiteral("210")}));
    AdaugaDispozitie(Bd(), {.id = 5, .cerereID = 2, .nrDisp = 1, .cuantum = 150, .dataDisp = QDate(2024, 6, 1)});
    AdaugaDispozitie(
        Bd(),
        {.id = 8, .cerereID = 2, .nrDisp = 2, .cuantum = QStringLiteral("180.75"), .dataDisp = QDate(2024, 1, 1)});
    AdaugaDispozitie(Bd(), {.id = 9, .cerereID = 1, .nrDisp = 3, .cuantum = 300});
    EXPECT_EQ(sume(2), (QStringList{QStringLiteral("180.75"), QStringLiteral("210")}));
    AdaugaDispozitie(Bd(), {.id = 10, .cerereID = 3, .nrDisp = 4, .cuantum = 120});
    AdaugaDispozitie(Bd(), {.id = 11, .cerereID = 3, .nrDisp = 5, .cuantum = QVariant()});
    EXPECT_EQ(sume(3), (QStringList{QString(), QStringLiteral("99.25")}));

    // Nothing to take from a request without a status date, a reason or an amount.
    d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 4);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ((QStringList{d->d.An, d->d.Suma, d->d.Motiv}), (QStringList{QString(), QString(), QString()}));
    EXPECT_EQ(d->d.Luna, std::nullopt);
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    EXPECT_FALSE(Dispozitii::DeschideAdaugare(Bd(), mesaje, 99).has_value());
    EXPECT_EQ(mesaje.Texte().size(), 1);
}

TEST_P(DispozitiiBaza, LunaSiAnulFataDeDataCererii) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}}); // filed on 15.03.2024
    const struct {
        int luna;
        const char* an;
        const char* control; // empty: accepted
    } cazuri[] = {
        {3, "2024", ""}, {2, "2024", "cboDispoz_1"},   {3, "2023", "txtDispoz_1"}, {12, "2023", "txtDispoz_1"},
        {1, "2025", ""}, {2, "2024,9", "cboDispoz_1"}, {3, "0", "txtDispoz_1"}};
    for (const auto& c : cazuri) {
        SCOPED_TRACE(QStringLiteral("%1/%2").arg(c.luna).arg(QLatin1String(c.an)).toStdString());
        mesaje.mesaje.clear();
        Dispozitie d = Completa();
        d.Luna = c.luna;
        d.An = QString::fromLatin1(c.an);
        const VerificareDispozitie v = Dispozitii::VerificaControale(Bd(), mesaje, d, ModDispozitie::Adaugare);
        EXPECT_EQ(v.ok, !*c.control);
        EXPECT_FALSE(v.inchide);
        EXPECT_EQ(v.control, QLatin1String(c.control));
        EXPECT_EQ(mesaje.Texte().size(), *c.control ? 1 : 0);
    }
}

// The fields as typed: an empty number is 0, a whole-number field halves to even, an amount is
// read from its start; the new key is MAX + 1, past a gap; a change keeps the old amount also
// when its kind changes; a number too big or a row gone writes nothing.
TEST_P(DispozitiiBaza, SalvareaScrieCampurileCaLeTasteazaFunctionarii) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}, {.id = 2, .nrCerere = 2, .stare = 7}});
    Dispozitie d = Completa();
    d.NrDisp.clear();
    d.Suma = QStringLiteral("12,50");
    d.SumaNoua = QStringLiteral("999"); // not read for a grant
    ASSERT_EQ(Dispozitii::Salveaza(Bd(), d, ModDispozitie::Adaugare), 1);
    RandDisp r = CitesteDisp(Bd(), 1);
    EXPECT_EQ((QStringList{r.nrDisp, r.luna, r.an, r.actiune, r.motiv}),
              (QStringList{"0", "4", "2024", "1", "Indeplineste conditiile"}));
    EXPECT_EQ(r.cerereID, 1);
    EXPECT_EQ(r.dataDisp, QDate(2024, 4, 20));
    EXPECT_EQ(r.dinData, QDate(2024, 4, 1));
    EXPECT_EQ(r.cuantum, B("12"));
    EXPECT_EQ(r.cuantumVechi, std::nullopt);

    AdaugaDispozitie(Bd(), {.id = 40, .cerereID = 1, .nrDisp = 9});
    Dispozitie s = Completa(2);
    s.Actiune = 2;
    s.NrDisp = QStringLiteral("12.5");
    s.Suma = QStringLiteral("150");
    s.SumaNoua = QStringLiteral("164,90");
    const qint64 id = Dispozitii::Salveaza(Bd(), s, ModDispozitie::Adaugare);
    EXPECT_EQ(id, 41);
    r = CitesteDisp(Bd(), id);
    EXPECT_EQ(r.nrDisp, QStringLiteral("12"));
    EXPECT_EQ(r.cuantumVechi, B("150"));
    EXPECT_EQ(r.cuantum, B("164"));

    // Opened again: both amounts where they were typed. Changed to a suspension: the amount comes
    // from the first box, the old amount stays.
    auto e = Dispozitii::DeschideModificare(Bd(), mesaje, id);
    ASSERT_TRUE(e.has_value());
    EXPECT_EQ((QStringList{e->d.Suma, e->d.SumaNoua, e->d.NrDisp, e->NrCerere}),
              (QStringList{"150", "164", "12", "2"}));
    EXPECT_EQ(e->d.Luna, std::optional<int>(4));
    e->d.Actiune = 3;
    e->d.Suma = QStringLiteral("99.5");
    e->d.Luna = 6;
    e->d.An = QStringLiteral("2025");
    ASSERT_EQ(Dispozitii::Salveaza(Bd(), e->d, ModDispozitie::Modificare), id);
    r = CitesteDisp(Bd(), id);
    EXPECT_EQ(r.actiune, QStringLiteral("3"));
    EXPECT_EQ(r.cuantum, B("99.5"));
    EXPECT_EQ(r.cuantumVechi, B("150"));
    EXPECT_EQ(r.dinData, QDate(2025, 6, 1));
    EXPECT_EQ(Dispozitii::DeschideModificare(Bd(), mesaje, id)->d.SumaNoua, QString());

    s.NrDisp = QStringLiteral("99999999999");
    EXPECT_THROW(Dispozitii::Salveaza(Bd(), s, ModDispozitie::Adaugare), Eroare);
    EXPECT_EQ(NumarDispozitii(), 3);
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?"), id);
    EXPECT_THROW(Dispozitii::Salveaza(Bd(), e->d, ModDispozitie::Modificare), Eroare);
    EXPECT_EQ(NumarDispozitii(), 2);
    mesaje.mesaje.clear();
    EXPECT_FALSE(Dispozitii::DeschideModificare(Bd(), mesaje, id).has_value());
    EXPECT_EQ(mesaje.Texte().size(), 1);
}

// Each command of the panel says why not: no row, a row gone, a request without children.
TEST_P(DispozitiiBaza, ComenzilePanouluiSpunDeCeNu) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}, {.id = 2, .nrCerere = 2, .nrCopii = 0}});
    AdaugaDispozitie(Bd(), {.id = 3, .cerereID = 1});
    const struct {
        std::function<bool()> comanda;
        const char* mesaj; // a word of the message; empty: allowed
    } cazuri[] = {
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 0); }, "Selectati o cerere"},
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 9); }, "stearsa"},
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 2); }, "copiii"},
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 1); }, ""},
        {[&] { return Dispozitii::PoateModifica(Bd(), mesaje, 0); }, "Selectati o dispozitie"},
        {[&] { return Dispozitii::PoateModifica(Bd(), mesaje, 4); }, "nu a fost gasit"},
        {[&] { return Dispozitii::PoateModifica(Bd(), mesaje, 3); }, ""},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.mesaj);
        mesaje.mesaje.clear();
        EXPECT_EQ(c.comanda(), !*c.mesaj);
        EXPECT_EQ(mesaje.Texte().size(), *c.mesaj ? 1 : 0);
        EXPECT_TRUE(mesaje.Texte().join(u'|').contains(QLatin1String(c.mesaj)));
    }
}

class GenerareDispozitii : public DispozitiiBaza {
protected:
    // 250 family requests, numbered in the reverse of their keys, so that the order of numbers
    // shows; every tenth without an amount. Single-parent requests beside them, and two
    // dispositions from before.
    void SetUp() override {
        DispozitiiBaza::SetUp();
        if (IsSkipped()) return;
        std::vector<CerereDisp> cereri;
        for (int i = 1; i <= Familie; ++i) {
            CerereDisp c{.id = i, .nrCerere = 1000 - i, .tip = 1, .cuantum = Bani::DinLei(100 + i)};
            if (i % 10 == 0) c.cuantum.reset();
            cereri.push_back(c);
        }
        for (int i = 1; i <= 5; ++i)
            cereri.push_back({.id = 500 + i, .nrCerere = 2000 + i, .tip = 2});
        AdaugaCereri(Bd(), cereri);
        AdaugaDispozitie(Bd(), {.id = 70, .cerereID = 3, .nrDisp = 5});
        AdaugaDispozitie(Bd(), {.id = 71, .cerereID = 501, .nrDisp = 6});
    }

    static ParametriGenerare Parametri() {
        ParametriGenerare p;
        p.NrStart = QStringLiteral("300");
        p.TipCerere = 1;
        p.DataDisp = QDate(2024, 6, 3);
        p.Luna = 7;
        p.An = QStringLiteral("2024");
        return p;
    }

    static constexpr int Familie = 250;
};

TEST_P(GenerareDispozitii, AcordaFiecareiCereriDinOrdineaNumerelor) {
    std::vector<std::pair<qint64, qint64>> progres;
    ParametriGenerare p = Parametri();
    p.Progres = [&](qint64 facute, qint64 total) {
        progres.emplace_back(facute, total);
        return true;
    };
    const RezultatGenerare r = Dispozitii::Genereaza(Bd(), mesaje, p);
    EXPECT_TRUE(r.ok);
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Au fost generate : 250 dispozitii, de la nr 300 la nr "),
                                           QStringLiteral("A pornit de la NrCerere: 750 pana la NrCerere: 999")}));
    // The progress starts at nothing, only grows, and ends with the whole run.
    ASSERT_GE(progres.size(), 2u);
    EXPECT_EQ(progres.front(), std::make_pair(qint64(0), qint64(Familie)));
    EXPECT_EQ(progres.back(), std::make_pair(qint64(Familie), qint64(Familie)));
    for (size_t i = 1; i < progres.size(); ++i)
        EXPECT_GT(progres[i].first, progres[i - 1].first);

    // Request 250 has the smallest number: it comes first, with the first key after the old ones.
    Interogare q(Bd(), QStringLiteral("SELECT DispozitieID, CerereID, NrDisp FROM Dispozitii WHERE DispozitieID > 71 "
                                      "ORDER BY DispozitieID"));
    q.Executa();
    qint64 n = 0;
    for (; q.Urmator(); ++n) {
        EXPECT_EQ(q.Intreg(0), 72 + n);
        EXPECT_EQ(q.Intreg(1), Familie - n);
        EXPECT_EQ(q.Intreg(2), 300 + n);
    }
    EXPECT_EQ(n, Familie);
    for (const qint64 cerere : {3, 10}) {
        const RandDisp d = CitesteDisp(Bd(), 72 + Familie - cerere);
        EXPECT_EQ((QStringList{d.luna, d.an, d.actiune, d.motiv}), (QStringList{"7", "2024", "1", ""})) << cerere;
        EXPECT_EQ(d.dataDisp, QDate(2024, 6, 3));
        EXPECT_EQ(d.dinData, QDate(2024, 7, 1));
        EXPECT_EQ(d.cuantum, cerere % 10 ? std::optional<Bani>(Bani::DinLei(100 + cerere)) : std::nullopt);
        EXPECT_EQ(d.cuantumVechi, std::nullopt);
    }
    // The single-parent requests are left alone; nothing in the requests changes.
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID > 500")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare <> 2")), 0);

    // A run without a start number numbers from 0; a request already granted gets a second grant.
    mesaje.mesaje.clear();
    p = Parametri();
    p.TipCerere = 2;
    p.NrStart.clear();
    EXPECT_EQ(Dispozitii::Genereaza(Bd(), mesaje, p).Generate, 5);
    EXPECT_TRUE(mesaje.Texte().first().endsWith(QStringLiteral("de la nr 0 la nr ")));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID = 501")), 2);
}

// A failure in the second statement of rows, after a first one went through, or a stop on the
// last step keeps nothing of the run; the parameters refused are told before any write.
TEST_P(GenerareDispozitii, OFalieSauOOprireNuLasaNimicScris) {
    ParametriGenerare p = Parametri();
    int scrise = 0;
    p.InainteDeScriere = [&](qint64) {
        if (++scrise == 160) throw Eroare(QStringLiteral("discul s-a umplut"));
    };
    EXPECT_THROW(Dispozitii::Genereaza(Bd(), mesaje, p), Eroare);
    EXPECT_EQ(scrise, 160);
    EXPECT_EQ(NumarDispozitii(), 2);
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    p = Parametri();
    p.Progres = [](qint64 facute, qint64 total) { return facute < total; };
    const RezultatGenerare r = Dispozitii::Genereaza(Bd(), mesaje, p);
    EXPECT_FALSE(r.ok);
    EXPECT_TRUE(r.oprita);
    EXPECT_EQ(NumarDispozitii(), 2);
    EXPECT_EQ(mesaje.Texte().size(), 1);

    const struct {
        std::function<void(ParametriGenerare&)> strica;
        const char* control;
    } cazuri[] = {
        {[](ParametriGenerare& x) { x.TipCerere.reset(); }, "cboTipCerere"},
        {[](ParametriGenerare& x) { x.Luna.reset(); }, "cboDispoz_1"},
        {[](ParametriGenerare& x) { x.An = QStringLiteral(" "); }, "txtDispoz_1"},
        {[](ParametriGenerare& x) { x.An = QStringLiteral("0"); }, "txtDispoz_1"},
        {[](ParametriGenerare& x) { x.TipCerere = 3; }, ""}, // no request of the kind
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.control);
        mesaje.mesaje.clear();
        ParametriGenerare q = Parametri();
        c.strica(q);
        const RezultatGenerare g = Dispozitii::Genereaza(Bd(), mesaje, q);
        EXPECT_FALSE(g.ok);
        EXPECT_EQ(mesaje.Texte().size(), 1);
        EXPECT_EQ(g.control, QLatin1String(c.control));
    }
    EXPECT_EQ(NumarDispozitii(), 2);

    // And the database takes a whole run afterwards.
    EXPECT_TRUE(Dispozitii::Genereaza(Bd(), mesaje, Parametri()).ok);
    EXPECT_EQ(NumarDispozitii(), Familie + 2);
}

TEST_P(DispozitiiBaza, TiparireaInBlocAlegeDupaTipLunaSiNumere) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1, .tip = 1}, {.id = 2, .nrCerere = 2, .tip = 2}});
    const DispTest dispozitii[] = {
        {.id = 1, .cerereID = 1, .nrDisp = 12, .actiune = 1, .dinData = QDate(2014, 11, 1)},
        {.id = 2, .cerereID = 1, .nrDisp = 10, .actiune = 1, .dinData = QDate(2014, 11, 1)},
        {.id = 3, .cerereID = 1, .nrDisp = 11, .actiune = 2, .dinData = QDate(2014, 11, 1)},
        {.id = 4, .cerereID = 2, .nrDisp = 13, .actiune = 1, .dinData = QDate(2014, 11, 1)},
        {.id = 5, .cerereID = 1, .nrDisp = 14, .actiune = 1, .dinData = QDate(2013, 11, 1)},
        {.id = 6, .cerereID = 1, .nrDisp = 15, .actiune = 1, .dinData = QDate(2014, 12, 1)},
        {.id = 7, .cerereID = 1, .nrDisp = 16, .actiune = 1, .dinData = QDate(2014, 11, 30)},
        {.id = 8, .cerereID = 1, .nrDisp = 20, .actiune = 1, .dinData = QDate(2014, 11, 1)},
        {.id = 9, .cerereID = 1, .nrDisp = 9, .actiune = 1, .dinData = QDate(2014, 11, 1)},
    };
    for (const auto& d : dispozitii)
        AdaugaDispozitie(Bd(), d);
    const struct {
        SelectieTiparire s;
        std::vector<qint64> asteptat;
    } cazuri[] = {
        // Grants of family requests applying in November of the working year, by number; only
        // whole numbers are numbers; the highest below the lowest, an unset choice: none.
        {{1, 1, 11, "10", "16"}, {2, 1, 7}},    {{1, 1, 11, "", "99"}, {9, 2, 1, 7, 8}},
        {{1, 1, 11, "10", "16.9"}, {2, 1, 7}},  {{1, 1, 11, "9.5", "12"}, {2, 1}},
        {{2, 1, 11, "0", "99"}, {3}},           {{1, 2, 11, "0", "99"}, {4}},
        {{1, 1, 12, "0", "99"}, {6}},           {{1, 1, 11, "16", "10"}, {}},
        {{std::nullopt, 1, 11, "0", "99"}, {}}, {{1, std::nullopt, 11, "0", "99"}, {}},
        {{1, 1, std::nullopt, "0", "99"}, {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(QStringLiteral("%1 %2 %3 [%4, %5]")
                         .arg(c.s.Actiune.value_or(0))
                         .arg(c.s.TipCerere.value_or(0))
                         .arg(c.s.Luna.value_or(0))
                         .arg(c.s.NrMin, c.s.NrMax)
                         .toStdString());
        mesaje.mesaje.clear();
        std::vector<qint64> alese;
        for (const auto& d : Dispozitii::SelecteazaPentruTiparire(Bd(), mesaje, c.s, 2014)) {
            alese.push_back(d.DispozitieID);
            EXPECT_EQ(d.Actiune, c.s.Actiune);
        }
        EXPECT_EQ(alese, c.asteptat);
        EXPECT_EQ(mesaje.Texte().size(), c.asteptat.empty() ? 1 : 0);
    }
}

PE_AMBELE_MOTOARE(DispozitiiBaza);
PE_AMBELE_MOTOARE(GenerareDispozitii);

} // namespace
