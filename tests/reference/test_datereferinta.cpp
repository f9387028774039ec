#include "reference/DateReferinta.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <optional>

namespace {

using namespace DateReferinta;

class Referinte : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }

    void StradaDirecta(qint64 id, const QString& denumire) {
        ExecutaCu(Bd(), QStringLiteral("INSERT INTO Strazi (StradaID, Denumire) VALUES (?, ?)"), id, denumire);
    }
    void MotivDirect(qint64 id, const QString& denumire) {
        ExecutaCu(Bd(), QStringLiteral("INSERT INTO Motive (MotivID, Denumire) VALUES (?, ?)"), id, denumire);
    }
    void Familie(qint64 id, const QString& strada) {
        ExecutaCu(Bd(), QStringLiteral("INSERT INTO Familii (FamilieID, Localitate, Strada) VALUES (?, 'Branesti', ?)"),
                  id, strada);
    }

    // Every field of every DatePrimarie row, in one text, to tell that nothing changed.
    QString Primarii() {
        Interogare q(Bd(), QStringLiteral("SELECT * FROM DatePrimarie ORDER BY Denumire"));
        q.Executa();
        QStringList r;
        while (q.Urmator()) {
            QStringList rand;
            for (int i = 0; i < q.query().record().count(); ++i)
                rand << q.Valoare(i).toString();
            r << rand.join(QLatin1Char('|'));
        }
        return r.join(QLatin1Char('\n'));
    }

    static DatePrimarie Completa() {
        DatePrimarie d;
        const char* valori[NrCampuriPrimarie] = {"Primaria Comunei Branesti",
                                                 "4420538",
                                                 "IF",
                                                 "Ilfov",
                                                 "Branesti",
                                                 "Sos. Garii",
                                                 "1A",
                                                 "Ion Pop",
                                                 "Ana Dima",
                                                 "Maria Ene",
                                                 "2850315400128",
                                                 "Branesti",
                                                 "077030"};
        for (int i = 0; i < NrCampuriPrimarie; ++i)
            d.text[size_t(i)] = QString::fromUtf8(valori[i]);
        d.TipLocalitate = 1;
        return d;
    }
};

TEST_P(Referinte, OStradaFolositaDeOFamilieNuSePoateStergePanaNuSeSchimbaAdresa) {
    StradaDirecta(1, QStringLiteral("Garii"));
    StradaDirecta(2, QStringLiteral("Școlii"));
    Familie(1, QStringLiteral("GARII"));
    Familie(2, QStringLiteral("școlii"));
    Familie(3, QStringLiteral("Morii "));

    struct {
        const char* nume;
        bool folosita;
    } cazuri[] = {
        {"Garii", true},      {"garii", true},  {"ȘCOLII", true}, {"Garii ", false},  {" Garii", false},
        {"Gar%", false},      {"Gar_i", false}, {"Gar*", false},  {"Morii", false},   {"Morii ", true},
        {"Sc. Garii", false}, {"ŞCOLII", true}, {"Scolii", true}, {"Scolile", false},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(StradaFolosita(Bd(), QString::fromUtf8(c.nume)), c.folosita) << c.nume;

    ExecutaCu(Bd(), QStringLiteral("UPDATE Familii SET Strada = ? WHERE FamilieID = 1"), QStringLiteral("Garii Noi"));
    EXPECT_FALSE(StradaFolosita(Bd(), QStringLiteral("Garii")));
    EXPECT_TRUE(StergeStrada(Bd(), 1));
    EXPECT_FALSE(CitesteStrada(Bd(), 1).has_value());
    EXPECT_FALSE(StergeStrada(Bd(), 1)) << "a second delete finds nothing";
    EXPECT_TRUE(CitesteStrada(Bd(), 2).has_value());
}

TEST_P(Referinte, NumeleStraziiEsteUnicPanaLaMajusculeSiDiacritice) {
    StradaDirecta(1, QStringLiteral("Garii"));
    StradaDirecta(2, QStringLiteral("Ștefan cel Mare"));
    StradaDirecta(3, QStringLiteral("O'Neil"));
    const QString gol = QStringLiteral("Nu ati completat denumirea strazii / satului");
    const QString exista = QStringLiteral("Aceasta strada / sat exista deja");
    struct {
        const char* nume;
        std::optional<qint64> editata;
        std::optional<QString> mesaj;
    } cazuri[] = {
        {"", std::nullopt, gol},
        {"   ", 1, gol},
        {"Garii", std::nullopt, exista},
        {"gARII", std::nullopt, exista},
        {"garii", 1, std::nullopt},
        {"garii", 2, exista},
        {"Garii ", std::nullopt, std::nullopt},
        {" Garii", std::nullopt, std::nullopt},
        {"Gari", std::nullopt, std::nullopt},
        {"Gar%", std::nullopt, std::nullopt},
        {"G_rii", std::nullopt, std::nullopt},
        {"Gar*", std::nullopt, std::nullopt},
        {"ȘTEFAN CEL MARE", std::nullopt, exista},
        {"ștefan cel mare", 2, std::nullopt},
        {"Ştefan cel Mare", std::nullopt, exista}, // an old file's cedilla
        {"Stefan cel Mare", std::nullopt, exista},
        {"Stefan cel Mare", 2, std::nullopt},
        {"Stefan cel Mare ", std::nullopt, std::nullopt},
        {"o'neil", std::nullopt, exista},
        {"O'Neil", 3, std::nullopt},
        {"O''Neil", std::nullopt, std::nullopt},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(VerificaStrada(Bd(), QString::fromUtf8(c.nume), c.editata), c.mesaj)
            << c.nume << " / " << c.editata.value_or(0);
}

TEST_P(Referinte, ApostrofulSePastreazaCumAFostScris) {
    const QString nume = QStringLiteral("Drumul lui Moș Ion's");
    const Strada s = AdaugaStrada(Bd(), {0, nume, QStringLiteral("Branesti'1"), QStringLiteral("07'7030")});
    const auto citita = CitesteStrada(Bd(), s.StradaID);
    ASSERT_TRUE(citita.has_value());
    EXPECT_EQ(citita->Denumire, nume);
    EXPECT_EQ(citita->OfPostal, QStringLiteral("Branesti'1"));
    EXPECT_EQ(citita->CodPostal, QStringLiteral("07'7030"));
    EXPECT_EQ(VerificaStrada(Bd(), nume.toUpper(), std::nullopt), QStringLiteral("Aceasta strada / sat exista deja"));
    Familie(1, nume);
    EXPECT_TRUE(StradaFolosita(Bd(), nume));

    ASSERT_TRUE(ModificaStrada(Bd(), {s.StradaID, QStringLiteral("D'Alta"), {}, {}}));
    EXPECT_EQ(CitesteStrada(Bd(), s.StradaID)->Denumire, QStringLiteral("D'Alta"));

    const Motiv m = AdaugaMotiv(Bd(), {0, QStringLiteral("Plecat in str. O'Neil")});
    EXPECT_EQ(CitesteMotiv(Bd(), m.MotivID)->Denumire, QStringLiteral("Plecat in str. O'Neil"));
    ASSERT_TRUE(ModificaMotiv(Bd(), {m.MotivID, QStringLiteral("N'a mai venit")}));
    EXPECT_EQ(CitesteMotiv(Bd(), m.MotivID)->Denumire, QStringLiteral("N'a mai venit"));
}

TEST_P(Referinte, MotivulSeCautaPrintreStraziNuPrintreMotive) {
    StradaDirecta(1, QStringLiteral("Garii"));
    StradaDirecta(5, QStringLiteral("Plecat din tara"));
    MotivDirect(1, QStringLiteral("Decedat"));
    const QString gol = QStringLiteral("Nu ati completat denumirea Motivului");
    const QString exista = QStringLiteral("Acest Motiv exista deja");
    struct {
        const char* nume;
        std::optional<qint64> editat;
        std::optional<QString> mesaj;
    } cazuri[] = {
        {" ", std::nullopt, gol},
        {"", 1, gol},
        {"garii", std::nullopt, exista},
        {"Plecat din tara", 2, exista},
        // The reason's key is compared with the street's key.
        {"Garii", 1, std::nullopt},
        {"PLECAT DIN TARA", 5, std::nullopt},
        {"Decedat", std::nullopt, std::nullopt},
        {"decedat", 7, std::nullopt},
        {"Garii ", std::nullopt, std::nullopt},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(VerificaMotiv(Bd(), QString::fromUtf8(c.nume), c.editat), c.mesaj)
            << c.nume << " / " << c.editat.value_or(0);

    AdaugaMotiv(Bd(), {0, QStringLiteral("Decedat")});
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Motive WHERE Denumire = 'Decedat'")), 2)
        << "two equal reasons pass";
    EXPECT_TRUE(StergeMotiv(Bd(), 1));
    EXPECT_FALSE(CitesteMotiv(Bd(), 1).has_value());
    EXPECT_FALSE(ModificaMotiv(Bd(), {1, QStringLiteral("Disparut")}));
    EXPECT_EQ(Motive(Bd()).size(), 1u);
}

TEST_P(Referinte, CheileNoiSuntMaximulPlusUnu) {
    EXPECT_EQ(AdaugaStrada(Bd(), {0, QStringLiteral("Prima"), {}, {}}).StradaID, 1);
    EXPECT_EQ(AdaugaMotiv(Bd(), {0, QStringLiteral("Primul")}).MotivID, 1);
    StradaDirecta(7, QStringLiteral("A saptea"));
    MotivDirect(40, QStringLiteral("Al patruzecilea"));
    EXPECT_EQ(AdaugaStrada(Bd(), {0, QStringLiteral("Dupa"), {}, {}}).StradaID, 8);
    EXPECT_EQ(AdaugaMotiv(Bd(), {0, QStringLiteral("Dupa")}).MotivID, 41);
    ASSERT_TRUE(StergeStrada(Bd(), 8));
    ASSERT_TRUE(StergeMotiv(Bd(), 41));
    EXPECT_EQ(AdaugaStrada(Bd(), {0, QStringLiteral("Iar"), {}, {}}).StradaID, 8)
        << "the highest key freed is taken again";
    EXPECT_EQ(AdaugaMotiv(Bd(), {0, QStringLiteral("Iar")}).MotivID, 41);

    QList<qint64> chei;
    for (const Strada& s : Strazi(Bd()))
        chei << s.StradaID;
    EXPECT_EQ(chei, (QList<qint64>{1, 7, 8}));
    QStringList motive;
    for (const Motiv& m : Motive(Bd()))
        motive << m.Denumire;
    EXPECT_EQ(motive,
              (QStringList{QStringLiteral("Primul"), QStringLiteral("Al patruzecilea"), QStringLiteral("Iar")}));
}

TEST_P(Referinte, PrimulCampGolEsteRaportatCuIndexulLui) {
    EXPECT_EQ(VerificaDatePrimarie(Completa()), std::nullopt);
    const QString toate = QStringLiteral("Toate campurile sunt obligatorii!");
    for (int i = 0; i < NrCampuriPrimarie; ++i) {
        for (const char* gol : {"", "   "}) {
            DatePrimarie d = Completa();
            d.text[size_t(i)] = QString::fromLatin1(gol);
            // A later empty box and a missing type don't hide the first empty box.
            if (i + 1 < NrCampuriPrimarie) d.text[size_t(i + 1)].clear();
            d.TipLocalitate = 0;
            const auto r = VerificaDatePrimarie(d);
            ASSERT_TRUE(r.has_value()) << i;
            EXPECT_EQ(r->mesaj, toate) << i;
            EXPECT_EQ(r->control, i);
        }
    }
    for (int tip : {0, -1, 4}) {
        DatePrimarie d = Completa();
        d.TipLocalitate = tip;
        const auto r = VerificaDatePrimarie(d);
        ASSERT_TRUE(r.has_value()) << tip;
        EXPECT_EQ(r->mesaj, QStringLiteral("Selectati Tip Localitate din lista"));
        EXPECT_EQ(r->control, IndexTipLocalitate);
    }
    for (int tip : {1, 2, 3}) {
        DatePrimarie d = Completa();
        d.TipLocalitate = tip;
        EXPECT_EQ(VerificaDatePrimarie(d), std::nullopt) << tip;
    }
}

TEST_P(Referinte, DatelePrimarieiSeAdaugaApoiSeRescriu) {
    const DatePrimarie goala = CitesteDatePrimarie(Bd());
    for (const QString& t : goala.text)
        EXPECT_TRUE(t.isEmpty());
    EXPECT_EQ(goala.TipLocalitate, 0);

    DatePrimarie d = Completa();
    d.text[0] = QStringLiteral("Primaria Comunei Moș' Branesti");
    ASSERT_EQ(SalveazaDatePrimarie(Bd(), d), std::nullopt);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")), 1);
    DatePrimarie citit = CitesteDatePrimarie(Bd());
    EXPECT_EQ(citit.text, d.text);
    EXPECT_EQ(citit.TipLocalitate, 1);

    Bd().Executa(QStringLiteral("UPDATE DatePrimarie SET Email = 'primaria@branesti.ro'"));
    for (int i = 0; i < NrCampuriPrimarie; ++i)
        d.text[size_t(i)] = QStringLiteral("v%1").arg(i);
    d.TipLocalitate = 3;
    ASSERT_EQ(SalveazaDatePrimarie(Bd(), d), std::nullopt);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")), 1) << "the one row is rewritten";
    citit = CitesteDatePrimarie(Bd());
    EXPECT_EQ(citit.text, d.text);
    EXPECT_EQ(citit.TipLocalitate, 3);
    Interogare email(Bd(), QStringLiteral("SELECT Email FROM DatePrimarie"));
    ASSERT_TRUE(email.Exista());
    EXPECT_EQ(email.Text(QStringLiteral("Email")), QStringLiteral("primaria@branesti.ro")) << "fields of no box stay";
}

TEST_P(Referinte, DouaRanduriInDatePrimarieOpresteSalvarea) {
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, TipLocalitate) VALUES ('Primaria A', 1)"));
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, Judet) VALUES ('Primaria B', 'Ilfov')"));
    const QString inainte = Primarii();
    EXPECT_EQ(SalveazaDatePrimarie(Bd(), Completa()),
              QStringLiteral("Tabela Date Primarie contine mai mult de un rand. Sunati la: 0700111222!"));
    EXPECT_EQ(Primarii(), inainte);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")), 2);
    EXPECT_FALSE(Bd().InTranzactie());
}

TEST_P(Referinte, LatimileCasutelorSuntCeleAleCampurilor) {
    // A longer text would be cut by one engine and refused by the other.
    const int asteptate[NrCampuriPrimarie] = {50, 50, 5, 50, 50, 50, 10, 50, 50, 50, 13, 10, 10};
    for (int i = 0; i < NrCampuriPrimarie; ++i) {
        EXPECT_EQ(LatimeCampPrimarie(i), asteptate[i]) << CampuriPrimarie[size_t(i)];
        DatePrimarie d = Completa();
        d.text[size_t(i)] = QString(LatimeCampPrimarie(i), QLatin1Char('x'));
        ASSERT_EQ(SalveazaDatePrimarie(Bd(), d), std::nullopt) << i;
        EXPECT_EQ(CitesteDatePrimarie(Bd()).text[size_t(i)], d.text[size_t(i)]);
    }
}

TEST_P(Referinte, ListeleAjutatoareAuJudeteleLivrate) {
    const QStringList judete = Judete(Bd());
    EXPECT_GE(judete.size(), 41);
    EXPECT_TRUE(judete.contains(QStringLiteral("Ilfov"))) << judete.join(QLatin1Char(',')).toStdString();
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Localitati (LocalitateID, Denumire) VALUES (?, ?)"), 2,
              QStringLiteral("Cernica"));
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Localitati (LocalitateID, Denumire) VALUES (?, ?)"), 1,
              QStringLiteral("Branesti"));
    EXPECT_EQ(Localitati(Bd()), (QStringList{QStringLiteral("Branesti"), QStringLiteral("Cernica")}));
}

PE_AMBELE_MOTOARE(Referinte);

} // namespace

// The working month: a month 1-12 and a year 2008-2500 that the payment calendar holds.
#include "reference/LunaLucru.h"

namespace {

TEST_P(Referinte, LunaDeLucruTrebuieSaFieInCalendar) {
    const struct {
        const char *luna, *an, *refuz;
    } cazuri[] = {
        {"13", "2013", "Luna incorecta!"}, {"0", "2024", "Luna incorecta!"},        {"5", "2007", "An incorect!"},
        {"5", "2501", "An incorect!"},     {"5", "2012", "An sau Luna incorecta!"}, {"12", "2013", nullptr},
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(LunaLucru::Verifica(Bd(), QString::fromLatin1(c.luna), QString::fromLatin1(c.an)),
                  c.refuz ? std::optional<QString>(QString::fromLatin1(c.refuz)) : std::nullopt)
            << c.luna << "/" << c.an;
}

} // namespace
