#include "base/Ceas.h"
#include "base/Eroare.h"
#include "cases/Dispozitii.h"
#include "support/BazaTest.h"
#include "support/DispozitiiTest.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

namespace {

QString Uneste(const QStringList& l) {
    return l.join(u'|');
}

const QDate Azi(2024, 5, 10);

std::optional<Bani> B(const char* s) {
    return Bani::DinText(QString::fromLatin1(s));
}
QString Data(const QDate& d) {
    return d.toString(Qt::ISODate);
}
QString Suma(const std::optional<Bani>& b) {
    return b ? Dispozitii::TextSuma(*b) : QStringLiteral("-");
}
// What the editor shows, and what a row holds, as one text.
QString Text(const Dispozitie& d) {
    return Uneste({d.NrDisp, Data(d.DataDisp), QString::number(d.Actiune.value_or(0)),
                   QString::number(d.Luna.value_or(0)), d.An, d.Suma, d.SumaNoua, d.Motiv});
}
QString Text(const RandDisp& r) {
    return Uneste({QString::number(r.cerereID), r.nrDisp, Data(r.dataDisp), Data(r.dinData), r.luna, r.an, r.actiune,
                   Suma(r.cuantum), Suma(r.cuantumVechi), r.motiv});
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
        return {0, cerereID, "245", QDate(2024, 4, 20), 1, 4, "2024", "164", {}, "Indeplineste conditiile"};
    }
    QString Deschide(qint64 cerere) {
        const auto d = Dispozitii::DeschideAdaugare(Bd(), mesaje, cerere);
        return d ? d->NrCerere + u'|' + Data(d->DataCerere) + u'|' + Text(d->d) : QStringLiteral("(nimic)");
    }
    qint64 NumarDispozitii() { return Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")); }
};

// The editor opens on the request's data and proposed kind; a change's old amount is the newest key's.
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
    EXPECT_EQ(Deschide(1), QStringLiteral("17|2024-03-15||2024-05-10|1|4|2024|172.5||Indeplineste conditiile legii"));
    EXPECT_EQ(Deschide(2), QStringLiteral("18|2024-03-15||2024-05-10|2|4|2024||210|Indeplineste conditiile legii"));
    AdaugaDispozitie(Bd(), {.id = 5, .cerereID = 2, .nrDisp = 1, .cuantum = 150, .dataDisp = QDate(2024, 6, 1)});
    AdaugaDispozitie(
        Bd(),
        {.id = 8, .cerereID = 2, .nrDisp = 2, .cuantum = QStringLiteral("180.75"), .dataDisp = QDate(2024, 1, 1)});
    AdaugaDispozitie(Bd(), {.id = 9, .cerereID = 1, .nrDisp = 3, .cuantum = 300});
    EXPECT_TRUE(Deschide(2).contains(QStringLiteral("|180.75|210|")));
    // A newest disposition without an amount leaves no old amount.
    AdaugaDispozitie(Bd(), {.id = 10, .cerereID = 3, .nrDisp = 4, .cuantum = 120});
    AdaugaDispozitie(Bd(), {.id = 11, .cerereID = 3, .nrDisp = 5, .cuantum = QVariant()});
    EXPECT_TRUE(Deschide(3).contains(QStringLiteral("|2024||99.25|")));
    // Nothing to take from a request without a status date, a reason or an amount.
    EXPECT_EQ(Deschide(4), QStringLiteral("20|2024-03-15||2024-05-10|0|0||||"));
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    EXPECT_EQ(Deschide(99), QStringLiteral("(nimic)"));
    EXPECT_EQ(mesaje.Texte().size(), 1);
}

// The month and the year are checked against the filing date (a comma ends the year).
TEST_P(DispozitiiBaza, LunaSiAnulFataDeDataCererii) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}}); // filed on 15.03.2024
    // The month, the year, and the control that takes the focus (none: accepted).
    const std::tuple<int, const char*, const char*> cazuri[] = {
        {3, "2024", ""}, {2, "2024", "cboDispoz_1"},   {3, "2023", "txtDispoz_1"}, {12, "2023", "txtDispoz_1"},
        {1, "2025", ""}, {2, "2024,9", "cboDispoz_1"}, {3, "0", "txtDispoz_1"}};
    for (const auto& [luna, an, control] : cazuri) {
        Dispozitie d = Completa();
        d.Luna = luna;
        d.An = QLatin1String(an);
        const VerificareDispozitie v = Dispozitii::VerificaControale(Bd(), mesaje, d, ModDispozitie::Adaugare);
        EXPECT_TRUE(v.ok == !*control && v.control == QLatin1String(control)) << luna << "/" << an;
    }
    EXPECT_EQ(mesaje.Texte().size(), 5) << "one for each refusal";
}

// The fields as typed, keys MAX + 1; a change keeps its old amount; too big or gone writes nothing.
TEST_P(DispozitiiBaza, SalvareaScrieCampurileCaLeTasteazaFunctionarii) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}, {.id = 2, .nrCerere = 2, .stare = 7}});
    Dispozitie d = Completa();
    d.NrDisp.clear();
    d.Suma = QStringLiteral("12,50");
    d.SumaNoua = QStringLiteral("999"); // not read for a grant
    ASSERT_EQ(Dispozitii::Salveaza(Bd(), d, ModDispozitie::Adaugare), 1);
    EXPECT_EQ(Text(CitesteDisp(Bd(), 1)),
              QStringLiteral("1|0|2024-04-20|2024-04-01|4|2024|1|12|-|Indeplineste conditiile"));

    AdaugaDispozitie(Bd(), {.id = 40, .cerereID = 1, .nrDisp = 9});
    Dispozitie s = Completa(2);
    s.Actiune = 2;
    s.NrDisp = QStringLiteral("12.5");
    s.Suma = QStringLiteral("150");
    s.SumaNoua = QStringLiteral("164,90");
    const qint64 id = Dispozitii::Salveaza(Bd(), s, ModDispozitie::Adaugare);
    EXPECT_EQ(id, 41);
    EXPECT_EQ(Text(CitesteDisp(Bd(), id)),
              QStringLiteral("2|12|2024-04-20|2024-04-01|4|2024|2|164|150|Indeplineste conditiile"));

    // Opened again: both amounts where they were typed. Changed to a suspension: the amount comes
    // from the first box, the old amount stays.
    auto e = Dispozitii::DeschideModificare(Bd(), mesaje, id);
    ASSERT_TRUE(e.has_value());
    EXPECT_EQ(e->NrCerere + u'|' + Text(e->d),
              QStringLiteral("2|12|2024-04-20|2|4|2024|150|164|Indeplineste conditiile"));
    e->d.Actiune = 3;
    e->d.Suma = QStringLiteral("99.5");
    e->d.Luna = 6;
    e->d.An = QStringLiteral("2025");
    ASSERT_EQ(Dispozitii::Salveaza(Bd(), e->d, ModDispozitie::Modificare), id);
    EXPECT_EQ(Text(CitesteDisp(Bd(), id)),
              QStringLiteral("2|12|2024-04-20|2025-06-01|6|2025|3|99.5|150|Indeplineste conditiile"));
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

    static ParametriGenerare Parametri() { return {"300", 1, QDate(2024, 6, 3), 7, "2024", {}, {}}; }

    static constexpr int Familie = 250;
};

// All or nothing (a failure midway, a stop, a refused parameter); grants numbered in request order.
TEST_P(GenerareDispozitii, AcordaFiecareiCereriSauNimic) {
    ParametriGenerare p = Parametri();
    int scrise = 0;
    p.InainteDeScriere = [&](qint64) {
        if (++scrise == 160) throw Eroare(QStringLiteral("discul s-a umplut"));
    };
    EXPECT_THROW(Dispozitii::Genereaza(Bd(), mesaje, p), Eroare);
    EXPECT_EQ(scrise, 160);
    p = Parametri();
    p.Progres = [](qint64 facute, qint64 total) { return facute < total; };
    const RezultatGenerare r = Dispozitii::Genereaza(Bd(), mesaje, p);
    EXPECT_TRUE(!r.ok && r.oprita);
    const std::pair<std::function<void(ParametriGenerare&)>, const char*> refuzuri[] = {
        {[](ParametriGenerare& x) { x.TipCerere.reset(); }, "cboTipCerere"},
        {[](ParametriGenerare& x) { x.Luna.reset(); }, "cboDispoz_1"},
        {[](ParametriGenerare& x) { x.An = QStringLiteral("0"); }, "txtDispoz_1"},
        {[](ParametriGenerare& x) { x.TipCerere = 3; }, ""}, // no request of the kind
    };
    for (const auto& [strica, control] : refuzuri) {
        ParametriGenerare q = Parametri();
        strica(q);
        const RezultatGenerare g = Dispozitii::Genereaza(Bd(), mesaje, q);
        EXPECT_TRUE(!g.ok && g.control == QLatin1String(control)) << control;
    }
    EXPECT_EQ(mesaje.Texte().size(), 5);
    EXPECT_EQ(NumarDispozitii(), 2);

    std::vector<qint64> progres;
    p = Parametri();
    p.Progres = [&](qint64 facute, qint64 total) {
        EXPECT_EQ(total, Familie);
        progres.push_back(facute);
        return true;
    };
    mesaje.mesaje.clear();
    EXPECT_TRUE(Dispozitii::Genereaza(Bd(), mesaje, p).ok);
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Au fost generate : 250 dispozitii, de la nr 300 la nr "),
                                           QStringLiteral("A pornit de la NrCerere: 750 pana la NrCerere: 999")}));
    ASSERT_GE(progres.size(), 2u);
    EXPECT_TRUE(progres.front() == 0 && progres.back() == Familie && std::is_sorted(progres.begin(), progres.end()));
    Interogare q(Bd(), QStringLiteral("SELECT DispozitieID, CerereID, NrDisp FROM Dispozitii WHERE DispozitieID > 71 "
                                      "ORDER BY DispozitieID"));
    q.Executa();
    qint64 n = 0;
    for (; q.Urmator(); ++n)
        EXPECT_EQ((std::array{q.Intreg(0), q.Intreg(1), q.Intreg(2)}), (std::array{72 + n, Familie - n, 300 + n}));
    EXPECT_EQ(n, Familie);
    EXPECT_EQ(Text(CitesteDisp(Bd(), 72 + Familie - 3)), QStringLiteral("3|547|2024-06-03|2024-07-01|7|2024|1|103|-|"));
    EXPECT_EQ(CitesteDisp(Bd(), 72 + Familie - 10).cuantum, std::nullopt);
    // The single-parent requests are left alone; nothing in the requests changes.
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID > 500")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare <> 2")), 0);

    // Without a start number from 0; a request already granted gets a second grant.
    mesaje.mesaje.clear();
    p = Parametri();
    p.TipCerere = 2;
    p.NrStart.clear();
    EXPECT_EQ(Dispozitii::Genereaza(Bd(), mesaje, p).Generate, 5);
    EXPECT_TRUE(mesaje.Texte().first().endsWith(QStringLiteral("de la nr 0 la nr ")));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID = 501")), 2);
}

// Printing takes a kind, a request kind, a month of the working year, whole numbers between two; none is told.
TEST_P(DispozitiiBaza, TiparireaInBlocAlegeDupaTipLunaSiNumere) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1, .tip = 1}, {.id = 2, .nrCerere = 2, .tip = 2}});
    const std::tuple<qint64, int, int, QDate> dispozitii[] = {
        {1, 12, 1, QDate(2014, 11, 1)},  {1, 10, 1, QDate(2014, 11, 1)}, {1, 11, 2, QDate(2014, 11, 1)},
        {2, 13, 1, QDate(2014, 11, 1)},  {1, 14, 1, QDate(2013, 11, 1)}, {1, 15, 1, QDate(2014, 12, 1)},
        {1, 16, 1, QDate(2014, 11, 30)}, {1, 20, 1, QDate(2014, 11, 1)}, {1, 9, 1, QDate(2014, 11, 1)}};
    qint64 id = 0;
    for (const auto& [cerere, nr, actiune, din] : dispozitii)
        AdaugaDispozitie(Bd(), {.id = ++id, .cerereID = cerere, .nrDisp = nr, .actiune = actiune, .dinData = din});
    const std::pair<SelectieTiparire, std::vector<qint64>> cazuri[] = {
        {{1, 1, 11, "", "99"}, {9, 2, 1, 7, 8}},
        {{1, 1, 11, "10", "16.9"}, {2, 1, 7}},
        {{1, 1, 11, "9.5", "12"}, {2, 1}},
        {{2, 1, 11, "0", "99"}, {3}},
        {{1, 2, 11, "0", "99"}, {4}},
        {{1, 1, 12, "0", "99"}, {6}},
        {{1, 1, 11, "16", "10"}, {}},
        {{std::nullopt, 1, 11, "0", "99"}, {}},
    };
    for (const auto& [selectie, asteptat] : cazuri) {
        mesaje.mesaje.clear();
        std::vector<qint64> alese;
        for (const auto& d : Dispozitii::SelecteazaPentruTiparire(Bd(), mesaje, selectie, 2014)) {
            alese.push_back(d.DispozitieID);
            EXPECT_EQ(d.Actiune, selectie.Actiune);
        }
        EXPECT_EQ(alese, asteptat) << selectie.NrMin.toStdString() << ".." << selectie.NrMax.toStdString();
        EXPECT_EQ(mesaje.Texte().size(), asteptat.empty() ? 1 : 0);
    }
}

PE_AMBELE_MOTOARE(DispozitiiBaza);
PE_AMBELE_MOTOARE(GenerareDispozitii);

} // namespace
