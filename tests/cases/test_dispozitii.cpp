#include "cases/Anchete.h"
#include "cases/Dispozitii.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
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
const QString MesajAn = QStringLiteral("Anul dispozitiei nu poate fi mai mic decat anul depunerii cererii");
const QString MesajLuna = QStringLiteral("Luna dispozitiei nu poate fi mai mica decat luna depunerii cererii");
const QString FaraLuna = QStringLiteral("Selectati o luna corecta!");
const QString FaraAn = QStringLiteral("Nu puteti salva datele inainte de a introduce Anul");

std::optional<Bani> B(const char* s) {
    return Bani::DinText(QString::fromLatin1(s));
}

TEST(ActiuniDispozitie, FiecareTipSchimbaDoarCeAreDeSchimbat) {
    // From the editor as it opens, one kind after another: what a kind leaves alone keeps the
    // value that the one before it set.
    BlocuriDispozitie b;
    const struct {
        std::optional<int> actiune;
        QString modificarea, motiv;
        bool suma, sumaNoua, arataMotiv;
    } pasi[] = {
        {2, "se modifica suma de:", "Motivul modificarii", true, true, true},
        {3, "se modifica suma de:", "Motivul suspendarii", false, true, true},
        {1, "se stabileste suma de:", "Motivul suspendarii", true, false, false},
        {5, "se stabileste suma de:", "Motivul incetarii", false, false, true},
        {6, "cu suma de:", "Motivul reluarii", true, false, true},
        {4, "cu suma de:", "Motivul respingerii", false, false, true},
        {7, "cu suma de:", "Motivul respingerii", false, false, true},
        {0, "cu suma de:", "Motivul respingerii", false, false, true},
        {std::nullopt, "cu suma de:", "Motivul respingerii", false, false, true},
        {2, "se modifica suma de:", "Motivul modificarii", true, true, true},
        {6, "cu suma de:", "Motivul reluarii", true, false, true},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.actiune.value_or(-1));
        Dispozitii::AplicaActiune(b, p.actiune);
        EXPECT_EQ(b.lblModificarea, p.modificarea);
        EXPECT_EQ(b.lblMotiv, p.motiv);
        EXPECT_EQ(b.picMiddle, p.suma);
        EXPECT_EQ(b.SumaNoua, p.sumaNoua);
        EXPECT_EQ(b.Motiv, p.arataMotiv);
    }
    const QStringList sabloane = {
        "", "acordare.rtf", "modificare.rtf", "suspendare.rtf", "respingere.rtf", "incetare.rtf", "reluare.rtf", ""};
    for (int a = 0; a <= 7; ++a)
        EXPECT_EQ(Dispozitii::Sablon(a), sabloane[a]) << a;
}

TEST(SumeDispozitie, CaLeTasteazaFunctionarii) {
    const struct {
        const char* text;
        const char* suma;
    } cazuri[] = {
        {"12,50", "12"}, {"12.50", "12.5"}, {"", "0"},        {"164", "164"},           {"0.0001", "0.0001"},
        {",5", "0"},     {"7.", "7"},       {"1.2.3", "1.2"}, {"99999999", "99999999"},
    };
    for (const auto& c : cazuri) {
        const Bani b = Dispozitii::SumaTastata(QString::fromLatin1(c.text));
        EXPECT_EQ(b, *B(c.suma)) << c.text;
        EXPECT_EQ(Dispozitii::TextSuma(b), QString::fromLatin1(c.suma)) << c.text;
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

TEST_P(DispozitiiBaza, DeschidereaPropuneTipulDupaStareaCererii) {
    // The proposal goes by the position in the list as the clerks see it.
    const auto lista = Anchete::ListaDateGen(Bd(), TipDateGen::Actiune);
    ASSERT_EQ(lista.size(), 6u);
    const struct {
        int stare;
        int pozitie; // -1: nothing chosen
    } cazuri[] = {{1, -1}, {2, 0}, {3, 2}, {4, 4}, {5, 3}, {6, 5}, {7, 1}, {8, 1}, {9, -1}};
    std::vector<CerereDisp> cereri;
    for (const auto& c : cazuri) {
        CerereDisp r;
        r.id = c.stare;
        r.nrCerere = 100 + c.stare;
        r.stare = c.stare;
        cereri.push_back(r);
    }
    AdaugaCereri(Bd(), cereri);
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.stare);
        const auto d = Dispozitii::DeschideAdaugare(Bd(), mesaje, c.stare);
        ASSERT_TRUE(d.has_value());
        if (c.pozitie < 0)
            EXPECT_EQ(d->d.Actiune, std::nullopt);
        else
            EXPECT_EQ(d->d.Actiune, std::optional<int>(lista[size_t(c.pozitie)].DataID));
    }
    EXPECT_TRUE(mesaje.Texte().isEmpty());
}

TEST_P(DispozitiiBaza, DeschidereaPentruAdaugareIaDinCerereSiDinUltimaDispozitie) {
    CerereDisp acordata{.id = 1, .nrCerere = 17, .stare = 2, .cuantum = B("172.5")};
    CerereDisp modificata{.id = 2, .nrCerere = 18, .stare = 7, .cuantum = B("210")};
    CerereDisp titularNou{.id = 3, .nrCerere = 19, .stare = 8, .cuantum = B("99.25")};
    CerereDisp faraDate{.id = 4, .nrCerere = 20, .stare = 1, .cuantum = std::nullopt};
    faraDate.dataStare = QDate();
    faraDate.motivStare.clear();
    AdaugaCereri(Bd(), {acordata, modificata, titularNou, faraDate});

    auto d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 1);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ(d->NrCerere, QStringLiteral("17"));
    EXPECT_EQ(d->DataCerere, QDate(2024, 3, 15));
    EXPECT_EQ(d->d.CerereID, 1);
    EXPECT_EQ(d->d.Suma, QStringLiteral("172.5"));
    EXPECT_EQ(d->d.SumaNoua, QString());
    EXPECT_EQ(d->d.Luna, std::optional<int>(4));
    EXPECT_EQ(d->d.An, QStringLiteral("2024"));
    EXPECT_EQ(d->d.Motiv, QStringLiteral("Indeplineste conditiile legii"));
    EXPECT_EQ(d->d.DataDisp, Azi);
    EXPECT_EQ(d->d.NrDisp, QString());

    // A change with no disposition before it: no old amount, the request's as the new one.
    d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 2);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ(d->d.Suma, QString());
    EXPECT_EQ(d->d.SumaNoua, QStringLiteral("210"));

    // With dispositions, the old amount is that of the newest key, whatever its dates; one of
    // another request doesn't count.
    AdaugaDispozitie(Bd(), {.id = 5, .cerereID = 2, .nrDisp = 1, .cuantum = 150, .dataDisp = QDate(2024, 6, 1)});
    AdaugaDispozitie(Bd(), {.id = 8,
                            .cerereID = 2,
                            .nrDisp = 2,
                            .cuantum = QVariant(QStringLiteral("180.75")),
                            .dataDisp = QDate(2024, 1, 1)});
    AdaugaDispozitie(Bd(), {.id = 9, .cerereID = 1, .nrDisp = 3, .cuantum = 300});
    d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 2);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ(d->d.Suma, QStringLiteral("180.75"));
    EXPECT_EQ(d->d.SumaNoua, QStringLiteral("210"));

    // A last disposition without an amount leaves the old amount empty.
    AdaugaDispozitie(Bd(), {.id = 10, .cerereID = 3, .nrDisp = 4, .cuantum = 120});
    AdaugaDispozitie(Bd(), {.id = 11, .cerereID = 3, .nrDisp = 5, .cuantum = QVariant()});
    d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 3);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ(d->d.Suma, QString());
    EXPECT_EQ(d->d.SumaNoua, QStringLiteral("99.25"));

    // Nothing to take from a request without a status date, a reason or an amount.
    d = Dispozitii::DeschideAdaugare(Bd(), mesaje, 4);
    ASSERT_TRUE(d.has_value());
    EXPECT_EQ(d->d.Luna, std::nullopt);
    EXPECT_EQ(d->d.An, QString());
    EXPECT_EQ(d->d.Suma, QString());
    EXPECT_EQ(d->d.Motiv, QString());
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    EXPECT_FALSE(Dispozitii::DeschideAdaugare(Bd(), mesaje, 99).has_value());
    EXPECT_EQ(mesaje.Texte(),
              QStringList{QStringLiteral("Exceptie. Cererea a fost probabil stearsa de alt utilizator")});
}

TEST_P(DispozitiiBaza, LunaSiAnulFataDeDataCererii) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}}); // filed on 15.03.2024
    const struct {
        int luna;
        const char* an;
        QString mesaj;
        const char* control;
    } cazuri[] = {
        {3, "2024", {}, nullptr},                // the filing month itself
        {2, "2024", MesajLuna, "cboDispoz_1"},   // a month before
        {3, "2023", MesajAn, "txtDispoz_1"},     // a year before
        {12, "2023", MesajAn, "txtDispoz_1"},    // a later month of the year before
        {1, "2025", {}, nullptr},                // an earlier month of a later year
        {12, "2024", {}, nullptr},               //
        {1, "2024", MesajLuna, "cboDispoz_1"},   //
        {2, "2024,9", MesajLuna, "cboDispoz_1"}, // the comma ends the year
        {3, "0", MesajAn, "txtDispoz_1"},        //
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(QStringLiteral("%1/%2").arg(c.luna).arg(QLatin1String(c.an)).toStdString());
        mesaje.mesaje.clear();
        Dispozitie d = Completa();
        d.Luna = c.luna;
        d.An = QString::fromLatin1(c.an);
        const VerificareDispozitie v = Dispozitii::VerificaControale(Bd(), mesaje, d, ModDispozitie::Adaugare);
        EXPECT_EQ(v.ok, c.mesaj.isEmpty());
        EXPECT_FALSE(v.inchide);
        EXPECT_EQ(mesaje.Texte(), c.mesaj.isEmpty() ? QStringList() : QStringList{c.mesaj});
        EXPECT_EQ(v.control, c.control ? QString::fromLatin1(c.control) : QString());
    }
}

TEST_P(DispozitiiBaza, SalvareaScrieCampurileCaLeTasteazaFunctionarii) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}, {.id = 2, .nrCerere = 2}});
    // The first disposition of an empty table has the key 1.
    Dispozitie d = Completa();
    d.NrDisp.clear();
    d.Suma = QStringLiteral("12,50");
    d.SumaNoua = QStringLiteral("999"); // not read for a grant
    ASSERT_EQ(Dispozitii::Salveaza(Bd(), d, ModDispozitie::Adaugare), 1);
    RandDisp r = CitesteDisp(Bd(), 1);
    ASSERT_TRUE(r.gasit);
    EXPECT_EQ(r.cerereID, 1);
    EXPECT_EQ(r.nrDisp, QStringLiteral("0"));
    EXPECT_EQ(r.dataDisp, QDate(2024, 4, 20));
    EXPECT_EQ(r.dinData, QDate(2024, 4, 1));
    EXPECT_EQ(r.luna, QStringLiteral("4"));
    EXPECT_EQ(r.an, QStringLiteral("2024"));
    EXPECT_EQ(r.actiune, QStringLiteral("1"));
    EXPECT_EQ(r.cuantum, B("12"));
    EXPECT_EQ(r.cuantumVechi, std::nullopt);
    EXPECT_EQ(r.motiv, QStringLiteral("Indeplineste conditiile"));

    // The next key is MAX + 1, past a gap left by a delete.
    AdaugaDispozitie(Bd(), {.id = 40, .cerereID = 2, .nrDisp = 9});
    Dispozitie s = Completa(2);
    s.Actiune = 3;
    s.NrDisp = QStringLiteral("12.5"); // a whole-number field: halves to even
    s.Motiv.clear();
    ASSERT_EQ(Dispozitii::Salveaza(Bd(), s, ModDispozitie::Adaugare), 41);
    r = CitesteDisp(Bd(), 41);
    EXPECT_EQ(r.nrDisp, QStringLiteral("12"));
    EXPECT_EQ(r.actiune, QStringLiteral("3"));
    EXPECT_EQ(r.cuantum, B("164"));
    EXPECT_EQ(r.motiv, QString());

    // A number that does not fit its field is refused and nothing is written.
    s.NrDisp = QStringLiteral("99999999999");
    EXPECT_THROW(Dispozitii::Salveaza(Bd(), s, ModDispozitie::Adaugare), Eroare);
    EXPECT_EQ(NumarDispozitii(), 3);
}

TEST_P(DispozitiiBaza, SchimbareaPastreazaSumaVecheSiCandSeSchimbaTipul) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1, .stare = 7}});
    Dispozitie d = Completa();
    d.Actiune = 2;
    d.Suma = QStringLiteral("150");
    d.SumaNoua = QStringLiteral("164,90");
    const qint64 id = Dispozitii::Salveaza(Bd(), d, ModDispozitie::Adaugare);
    RandDisp r = CitesteDisp(Bd(), id);
    EXPECT_EQ(r.cuantumVechi, B("150"));
    EXPECT_EQ(r.cuantum, B("164"));

    // Opened again: both amounts where they were typed.
    auto e = Dispozitii::DeschideModificare(Bd(), mesaje, id);
    ASSERT_TRUE(e.has_value());
    EXPECT_EQ(e->d.Actiune, std::optional<int>(2));
    EXPECT_EQ(e->d.Suma, QStringLiteral("150"));
    EXPECT_EQ(e->d.SumaNoua, QStringLiteral("164"));
    EXPECT_EQ(e->d.NrDisp, QStringLiteral("245"));
    EXPECT_EQ(e->d.DataDisp, QDate(2024, 4, 20));
    EXPECT_EQ(e->d.Luna, std::optional<int>(4));
    EXPECT_EQ(e->d.An, QStringLiteral("2024"));
    EXPECT_EQ(e->NrCerere, QStringLiteral("1"));

    // Changed to a suspension: the amount comes from the first box, the old amount stays.
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
    EXPECT_EQ(r.luna, QStringLiteral("6"));
    EXPECT_EQ(r.an, QStringLiteral("2025"));
    e = Dispozitii::DeschideModificare(Bd(), mesaje, id);
    ASSERT_TRUE(e.has_value());
    EXPECT_EQ(e->d.Suma, QStringLiteral("99.5"));
    EXPECT_EQ(e->d.SumaNoua, QString());
    EXPECT_EQ(NumarDispozitii(), 1);

    // The row removed by another computer: the change is refused, nothing comes back.
    Interogare(Bd(), QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?")).Leaga(id).Executa();
    EXPECT_THROW(Dispozitii::Salveaza(Bd(), e->d, ModDispozitie::Modificare), Eroare);
    EXPECT_EQ(NumarDispozitii(), 0);
    EXPECT_FALSE(Dispozitii::DeschideModificare(Bd(), mesaje, id).has_value());
    EXPECT_EQ(mesaje.Texte().last(), QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!"));
}

TEST_P(DispozitiiBaza, ComenzilePanouluiSpunDeCeNu) {
    AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 1}, {.id = 2, .nrCerere = 2, .nrCopii = 0}});
    AdaugaDispozitie(Bd(), {.id = 3, .cerereID = 1});
    const struct {
        std::function<bool()> comanda;
        QString mesaj; // empty: allowed
    } cazuri[] = {
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 0); }, QStringLiteral("Selectati o cerere")},
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 9); },
         QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta")},
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 2); },
         QStringLiteral("Nu se poate creea dispozitia pentru ca in cerere inca nu au fost introdusi copiii!")},
        {[&] { return Dispozitii::PoateAdauga(Bd(), mesaje, 1); }, {}},
        {[&] { return Dispozitii::PoateModifica(Bd(), mesaje, 0); }, QStringLiteral("Selectati o dispozitie")},
        {[&] { return Dispozitii::PoateModifica(Bd(), mesaje, 4); },
         QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!")},
        {[&] { return Dispozitii::PoateModifica(Bd(), mesaje, 3); }, {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.mesaj.toStdString());
        mesaje.mesaje.clear();
        EXPECT_EQ(c.comanda(), c.mesaj.isEmpty());
        EXPECT_EQ(mesaje.Texte(), c.mesaj.isEmpty() ? QStringList() : QStringList{c.mesaj});
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
    EXPECT_EQ(r.Generate, Familie);
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Au fost generate : 250 dispozitii, de la nr 300 la nr "),
                                           QStringLiteral("A pornit de la NrCerere: 750 pana la NrCerere: 999")}));

    // The progress starts at nothing, only grows, and ends with the whole run.
    ASSERT_GE(progres.size(), 2u);
    EXPECT_EQ(progres.front(), std::make_pair(qint64(0), qint64(Familie)));
    EXPECT_EQ(progres.back(), std::make_pair(qint64(Familie), qint64(Familie)));
    for (size_t i = 1; i < progres.size(); ++i)
        EXPECT_GT(progres[i].first, progres[i - 1].first);

    EXPECT_EQ(NumarDispozitii(), Familie + 2);
    // Request 250 has the smallest number: it comes first, with the first key after the old ones.
    Interogare q(Bd(), QStringLiteral("SELECT DispozitieID, CerereID, NrDisp FROM Dispozitii WHERE DispozitieID > 71 "
                                      "ORDER BY DispozitieID"));
    q.Executa();
    qint64 asteptat = 0;
    while (q.Urmator()) {
        EXPECT_EQ(q.Intreg(0), 72 + asteptat);
        EXPECT_EQ(q.Intreg(1), Familie - asteptat);
        EXPECT_EQ(q.Intreg(2), 300 + asteptat);
        ++asteptat;
    }
    EXPECT_EQ(asteptat, Familie);
    for (const qint64 cerere : {1, 3, 10, 101, 250}) {
        SCOPED_TRACE(cerere);
        const RandDisp d = CitesteDisp(Bd(), 72 + Familie - cerere);
        EXPECT_EQ(d.cerereID, cerere);
        EXPECT_EQ(d.dataDisp, QDate(2024, 6, 3));
        EXPECT_EQ(d.dinData, QDate(2024, 7, 1));
        EXPECT_EQ(d.luna, QStringLiteral("7"));
        EXPECT_EQ(d.an, QStringLiteral("2024"));
        EXPECT_EQ(d.actiune, QStringLiteral("1"));
        EXPECT_EQ(d.cuantum, cerere % 10 ? std::optional<Bani>(Bani::DinLei(100 + cerere)) : std::nullopt);
        EXPECT_EQ(d.cuantumVechi, std::nullopt);
        EXPECT_EQ(d.motiv, QString());
    }
    // The single-parent requests are left alone; nothing in the requests changes.
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID > 500")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE Stare <> 2")), 0);

    // A second run gives every request a second grant.
    mesaje.mesaje.clear();
    p = Parametri();
    p.TipCerere = 2;
    p.NrStart.clear();
    const RezultatGenerare a = Dispozitii::Genereaza(Bd(), mesaje, p);
    EXPECT_EQ(a.Generate, 5);
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Au fost generate : 5 dispozitii, de la nr 0 la nr "),
                                           QStringLiteral("A pornit de la NrCerere: 2001 pana la NrCerere: 2005")}));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID = 501")), 2);
    EXPECT_EQ(Numar(QStringLiteral("SELECT MAX(DispozitieID) FROM Dispozitii")), 72 + Familie + 4);
}

TEST_P(GenerareDispozitii, OFalieLaJumatateNuLasaNimicScris) {
    // The failure comes in the second statement of rows, after a first one went through.
    ParametriGenerare p = Parametri();
    int scrise = 0;
    p.InainteDeScriere = [&](qint64) {
        if (++scrise == 160) throw Eroare(QStringLiteral("discul s-a umplut"));
    };
    EXPECT_THROW(Dispozitii::Genereaza(Bd(), mesaje, p), Eroare);
    EXPECT_EQ(scrise, 160);
    EXPECT_EQ(NumarDispozitii(), 2);
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    // Stopped by the clerk on the last step: nothing kept either.
    p = Parametri();
    p.Progres = [](qint64 facute, qint64 total) { return facute < total; };
    const RezultatGenerare r = Dispozitii::Genereaza(Bd(), mesaje, p);
    EXPECT_FALSE(r.ok);
    EXPECT_TRUE(r.oprita);
    EXPECT_EQ(NumarDispozitii(), 2);
    EXPECT_EQ(mesaje.Texte(),
              QStringList{QStringLiteral("Generarea a fost oprita. Nu a fost scrisa nici o dispozitie.")});

    // And the database takes a whole run afterwards.
    mesaje.mesaje.clear();
    EXPECT_TRUE(Dispozitii::Genereaza(Bd(), mesaje, Parametri()).ok);
    EXPECT_EQ(NumarDispozitii(), Familie + 2);
}

TEST_P(GenerareDispozitii, ParametriLipsaSuntSpusiInainteDeOriceScriere) {
    const struct {
        std::function<void(ParametriGenerare&)> strica;
        QString mesaj;
        const char* control;
    } cazuri[] = {
        {[](ParametriGenerare& p) { p.TipCerere.reset(); }, QStringLiteral("Selectati tipul cererii!"), "cboTipCerere"},
        {[](ParametriGenerare& p) { p.Luna.reset(); }, FaraLuna, "cboDispoz_1"},
        {[](ParametriGenerare& p) { p.An = QStringLiteral(" "); }, FaraAn, "txtDispoz_1"},
        {[](ParametriGenerare& p) { p.An = QStringLiteral("0"); }, FaraAn, "txtDispoz_1"},
        {[](ParametriGenerare& p) { p.TipCerere = 3; },
         QStringLiteral("Nu exista nici o cerere de acest tip. Nu a fost generata nici o dispozitie."), nullptr},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.mesaj.toStdString());
        mesaje.mesaje.clear();
        ParametriGenerare p = Parametri();
        c.strica(p);
        const RezultatGenerare r = Dispozitii::Genereaza(Bd(), mesaje, p);
        EXPECT_FALSE(r.ok);
        EXPECT_EQ(mesaje.Texte(), QStringList{c.mesaj});
        EXPECT_EQ(r.control, c.control ? QString::fromLatin1(c.control) : QString());
    }
    EXPECT_EQ(NumarDispozitii(), 2);
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
    auto alege = [&](SelectieTiparire s) {
        std::vector<qint64> r;
        for (const auto& d : Dispozitii::SelecteazaPentruTiparire(Bd(), mesaje, s, 2014))
            r.push_back(d.DispozitieID);
        return r;
    };
    const QString Nimic = QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!");
    const struct {
        SelectieTiparire s;
        std::vector<qint64> asteptat;
    } cazuri[] = {
        // Grants of family requests applying in November of the working year, by number.
        {{1, 1, 11, "10", "16"}, {2, 1, 7}},    {{1, 1, 11, "", "99"}, {9, 2, 1, 7, 8}},
        {{1, 1, 11, "10", "16.9"}, {2, 1, 7}}, // only whole numbers are numbers
        {{1, 1, 11, "9.5", "12"}, {2, 1}},      {{2, 1, 11, "0", "99"}, {3}},
        {{1, 2, 11, "0", "99"}, {4}},           {{1, 1, 12, "0", "99"}, {6}},
        {{1, 1, 11, "16", "10"}, {}}, // the highest below the lowest
        {{std::nullopt, 1, 11, "0", "99"}, {}}, {{1, std::nullopt, 11, "0", "99"}, {}},
        {{1, 1, std::nullopt, "0", "99"}, {}},  {{1, 1, 11, "", ""}, {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(QStringLiteral("%1 %2 %3 [%4, %5]")
                         .arg(c.s.Actiune.value_or(0))
                         .arg(c.s.TipCerere.value_or(0))
                         .arg(c.s.Luna.value_or(0))
                         .arg(c.s.NrMin, c.s.NrMax)
                         .toStdString());
        mesaje.mesaje.clear();
        EXPECT_EQ(alege(c.s), c.asteptat);
        EXPECT_EQ(mesaje.Texte(), c.asteptat.empty() ? QStringList{Nimic} : QStringList());
    }
    const auto cuTip = Dispozitii::SelecteazaPentruTiparire(Bd(), mesaje, {2, 1, 11, "0", "99"}, 2014);
    ASSERT_EQ(cuTip.size(), 1u);
    EXPECT_EQ(cuTip[0].Actiune, 2);
}

PE_AMBELE_MOTOARE(DispozitiiBaza);
PE_AMBELE_MOTOARE(GenerareDispozitii);

} // namespace
