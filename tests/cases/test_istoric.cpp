#include "base/Bani.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Utilizator.h"
#include "cases/Adeverinte.h"
#include "cases/Anchete.h"
#include "cases/DateCerere.h"
#include "cases/Dispozitii.h"
#include "cases/Istoric.h"
#include "cases/ListaCereri.h"
#include "cases/SalvareCerere.h"
#include "support/BazaTest.h"
#include "support/DispozitiiTest.h"
#include "support/DosarTest.h"
#include "support/SqlTest.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

using namespace ElemCerere;

class IstoricBaza : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        Ceas::SeteazaAzi(QDate(2015, 1, 20));
    }
    void TearDown() override {
        Ceas::SeteazaAzi({});
        TestBaza::TearDown();
    }
    RezultatSalvare Salveaza(const Dosar& d) {
        OptiuniSalvare o = OptiuniDosar();
        o.CaleBD = Locatie().caleBD;
        o.DupaPas = dupaPas;
        return SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, o, mesaje);
    }
    Dosar Redeschis(qint64 id) {
        const CerereIncarcata c = IncarcaCerere(Bd(), id, LunaDosar, AnDosar, mesaje);
        EXPECT_TRUE(c.Gasita);
        return {c.Date, c.Stare, c.Iesiti};
    }
    qint64 Randuri() { return Numar(QStringLiteral("SELECT COUNT(*) FROM IstoricCereri")); }

    // The request of the full case file (number 77), with a disposition, an inquiry and a school
    // certificate of its third person.
    void CerereCuActe() {
        BazaNoua();
        ASSERT_EQ(Salveaza(DosarComplet(Bd())).stare, RezultatSalvare::Stare::Salvata);
        disp.CerereID = 1;
        disp.NrDisp = QStringLiteral("12");
        disp.DataDisp = QDate(2015, 1, 5);
        disp.Actiune = disp.Luna = 1;
        disp.An = QStringLiteral("2015");
        disp.Suma = QStringLiteral("173");
        disp.Motiv = QStringLiteral("Indeplineste conditiile");
        disp.DispozitieID = Dispozitii::Salveaza(Bd(), disp, ModDispozitie::Adaugare);
        ancheta.CerereID = 1;
        ancheta.DataAncheta = QDate(2015, 1, 8);
        ancheta.Intocmitor = QStringLiteral("Ionescu Maria");
        ancheta.NrMembrii = 6;
        ancheta.NrCopii = 2;
        ancheta.NrCamere = QStringLiteral("3");
        ancheta.SuprUtila = QStringLiteral("54.3"); // a single-precision field: not exact in binary
        ancheta.AnchetaID = Anchete::Salveaza(Bd(), mesaje, ancheta, ModAncheta::Adaugare);
        adev = AdeverintaScolara{0, 1, 3, QStringLiteral("S-1"), QDate(2015, 1, 9), QDate(2015, 1, 10), {}, 3};
        adev.AdevID = Adeverinte::SalveazaAdeverintaScolara(Bd(), adev, true);
    }

    std::function<void(PasSalvare)> dupaPas;
    Dispozitie disp;
    Ancheta ancheta;
    AdeverintaScolara adev;
};

// The row of a change holds the fields it changed and only those, as the clerk reads them; a save
// that changes nothing writes no row, whichever engine gave back the stored values.
TEST_P(IstoricBaza, OSalvareScrieDoarCampurileSchimbate) {
    CerereCuActe();
    const auto adaugari = Istoric::Lista(Bd(), 1);
    ASSERT_EQ(adaugari.size(), 4u) << "the request, the disposition, the inquiry and the certificate";
    for (const RandIstoric& r : adaugari) {
        EXPECT_EQ(r.Fel, int(FelSchimbare::Adaugare));
        EXPECT_EQ(r.Utilizator, NumeUtilizator());
        EXPECT_EQ(r.NrCerere, QVariant(qint64(77)));
        EXPECT_TRUE(r.DataOra.startsWith(QStringLiteral("20.01.2015 "))) << r.DataOra.toStdString();
    }
    EXPECT_TRUE(adaugari.back().Detalii.contains(QStringLiteral("NrCerere: 77; ")))
        << adaugari.back().Detalii.toStdString();
    EXPECT_TRUE(adaugari.back().Detalii.contains(QStringLiteral("VenitTotal: 600.50")))
        << adaugari.back().Detalii.toStdString();

    // Each saved again as it was read back.
    ASSERT_EQ(Salveaza(Redeschis(1)).stare, RezultatSalvare::Stare::Salvata);
    Dispozitii::Salveaza(Bd(), Dispozitii::DeschideModificare(Bd(), mesaje, disp.DispozitieID)->d,
                         ModDispozitie::Modificare);
    Anchete::Salveaza(Bd(), mesaje, *Anchete::Citeste(Bd(), ancheta.AnchetaID), ModAncheta::Modificare);
    Adeverinte::SalveazaAdeverintaScolara(Bd(), *Adeverinte::CitesteAdeverinta(Bd(), adev.AdevID), false);
    EXPECT_EQ(Randuri(), 4);

    struct Caz {
        std::function<void()> schimba;
        QString detalii;
    };
    const Caz cazuri[] = {
        {[&] {
             Dosar d = Redeschis(1);
             d.date.cboCerere[cboStare].id = 3;
             d.date.txtCerere[txtVenitTotal] = QStringLiteral("650,5");
             d.date.dtpData[dtpDataStare] = QDate(2015, 2, 1);
             ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
         },
         QStringLiteral("Cerere modificata: Stare: 2 -> 3; DataStare: 01.12.2014 -> 01.02.2015; "
                        "VenitTotal: 600.50 -> 650.50")},
        {[&] {
             Dosar d = Redeschis(1);
             (*d.stare.MatriceMembri)[0].Nume = QStringLiteral("Popescu-Radu");
             ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
         },
         QStringLiteral("Cerere modificata: Persoana: Popescu Ion -> Popescu-Radu Ion")},
        {[&] {
             Dispozitie d = Dispozitii::DeschideModificare(Bd(), mesaje, disp.DispozitieID)->d;
             d.Suma = QStringLiteral("180");
             d.Motiv.clear();
             Dispozitii::Salveaza(Bd(), d, ModDispozitie::Modificare);
         },
         QStringLiteral("Dispozitie nr 12 modificata: Cuantum: 173.00 -> 180.00; "
                        "Motiv: Indeplineste conditiile -> (gol)")},
        {[&] {
             Ancheta a = *Anchete::Citeste(Bd(), ancheta.AnchetaID);
             a.SuprUtila = QStringLiteral("60");
             Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Modificare);
         },
         QStringLiteral("Ancheta modificata: SuprUtila: 54.3 -> 60")},
        {[&] {
             AdeverintaScolara a = *Adeverinte::CitesteAdeverinta(Bd(), adev.AdevID);
             a.DataExpAdev = QDate(2015, 6, 30);
             Adeverinte::SalveazaAdeverintaScolara(Bd(), a, false);
         },
         QStringLiteral("Adeverinta modificata: DataExpAdev: (gol) -> 30.06.2015")},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.detalii.toStdString());
        const qint64 inainte = Randuri();
        c.schimba();
        ASSERT_EQ(Randuri(), inainte + 1);
        const RandIstoric r = Istoric::Lista(Bd(), 1).front();
        EXPECT_EQ(r.Detalii, c.detalii);
        EXPECT_EQ(r.Fel, int(FelSchimbare::Modificare));
    }
}

// A save that fails writes no history, and a history that can't be written fails the save: the
// change and its row are one unit, for each kind of save and for the delete.
TEST_P(IstoricBaza, OSalvareEsuataNuLasaIstoric) {
    CerereCuActe();
    // A step of the request's save that fails after its row was written.
    dupaPas = [](PasSalvare p) {
        if (p == PasSalvare::Venituri) throw Eroare(QStringLiteral("disc plin"));
    };
    Dosar d = Redeschis(1);
    d.date.cboCerere[cboStare].id = 4;
    EXPECT_THROW(Salveaza(d), Eroare);
    dupaPas = nullptr;
    EXPECT_EQ(Randuri(), 4);
    EXPECT_EQ(Numar(QStringLiteral("SELECT Stare FROM Cereri WHERE CerereID = 1")), 2);

    if (GetParam() == Motor::SQLite) {
        Bd().Executa(QStringLiteral("CREATE TRIGGER esec BEFORE INSERT ON IstoricCereri "
                                    "BEGIN SELECT RAISE(ABORT, 'esec provocat'); END"));
    } else {
        Bd().Executa(QStringLiteral("CREATE FUNCTION esec() RETURNS trigger AS $$ BEGIN RAISE EXCEPTION "
                                    "'esec provocat'; END $$ LANGUAGE plpgsql"));
        Bd().Executa(QStringLiteral("CREATE TRIGGER esec BEFORE INSERT ON IstoricCereri FOR EACH ROW "
                                    "EXECUTE FUNCTION esec()"));
    }
    struct Caz {
        const char* ce;
        std::function<void()> salveaza;
        const char* citire; // what the save would have changed, of the row of key `cheie`
        qint64 cheie;
    };
    const Caz cazuri[] = {
        {"cererea", [&] { Salveaza(d); }, "SELECT Stare FROM Cereri WHERE CerereID = ?", 1},
        {"dispozitia",
         [&] {
             Dispozitie x = disp;
             x.NrDisp = QStringLiteral("13");
             Dispozitii::Salveaza(Bd(), x, ModDispozitie::Modificare);
         },
         "SELECT NrDisp FROM Dispozitii WHERE DispozitieID = ?", disp.DispozitieID},
        {"ancheta",
         [&] {
             Ancheta x = ancheta;
             x.NrCopii = 3;
             Anchete::Salveaza(Bd(), mesaje, x, ModAncheta::Modificare);
         },
         "SELECT NrCopii FROM Anchete WHERE AnchetaID = ?", ancheta.AnchetaID},
        {"adeverinta",
         [&] {
             AdeverintaScolara x = adev;
             x.TipAdeverinta = 4;
             Adeverinte::SalveazaAdeverintaScolara(Bd(), x, false);
         },
         "SELECT TipAdeverinta FROM Adeverinte WHERE AdevID = ?", adev.AdevID},
        {"stergerea", [&] { ListaCereri::Sterge(Bd(), 1); }, "SELECT COUNT(*) FROM Cereri WHERE CerereID = ?", 1},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.ce);
        const qint64 inainte = NumarRanduri(Bd(), QLatin1String(c.citire), c.cheie);
        EXPECT_THROW(c.salveaza(), Eroare);
        EXPECT_EQ(NumarRanduri(Bd(), QLatin1String(c.citire), c.cheie), inainte);
        EXPECT_EQ(Randuri(), 4);
    }
}

// A deleted request's history stays under its number, the delete on top; a new request that takes
// the number shows it below its own rows.
TEST_P(IstoricBaza, StergereaPastreazaIstoriculSubNumar) {
    CerereCuActe();
    Anchete::Sterge(Bd(), mesaje, ancheta.AnchetaID, QStringLiteral("ancheta"));
    ASSERT_EQ(Istoric::Lista(Bd(), 1).front().Fel, int(FelSchimbare::Stergere));
    EXPECT_EQ(Istoric::Lista(Bd(), 1).front().Motiv, QStringLiteral("Ancheta din 08.01.2015 stearsa"));
    ListaCereri::Sterge(Bd(), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM IstoricCereri WHERE CerereID IS NOT NULL")), 0)
        << "no row keeps the key of a request that is gone";

    const auto pastrate = Istoric::ListaNumar(Bd(), 77);
    ASSERT_EQ(pastrate.size(), 6u);
    EXPECT_EQ(pastrate.front().Fel, int(FelSchimbare::Stergere));
    EXPECT_TRUE(pastrate.front().Detalii.startsWith(QStringLiteral("Cerere stearsa: NrCerere: 77; ")))
        << pastrate.front().Detalii.toStdString();
    EXPECT_TRUE(pastrate.front().Detalii.contains(QStringLiteral("Cuantum: 173.00")))
        << pastrate.front().Detalii.toStdString();
    EXPECT_EQ(pastrate.back().Fel, int(FelSchimbare::Adaugare));
    EXPECT_TRUE(Istoric::ListaNumar(Bd(), 78).empty());

    Dosar d = DosarComplet(Bd());
    ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
    const qint64 noua = Numar(QStringLiteral("SELECT MAX(CerereID) FROM Cereri"));
    const auto lista = Istoric::Lista(Bd(), noua);
    ASSERT_EQ(lista.size(), 7u);
    EXPECT_EQ(lista.front().Fel, int(FelSchimbare::Adaugare));
    EXPECT_EQ(lista[1].Detalii, pastrate.front().Detalii);
}

// A bulk run of grants leaves one row for each request it granted, each with its own key and number.
TEST_P(IstoricBaza, GenerareaScrieUnRandPentruFiecareCerere) {
    BazaNoua();
    std::vector<CerereDisp> cereri;
    for (qint64 i = 1; i <= 250; ++i)
        cereri.push_back({.id = i, .nrCerere = 1000 + i});
    AdaugaCereri(Bd(), cereri);
    ASSERT_TRUE(Dispozitii::Genereaza(Bd(), mesaje, {"300", 1, QDate(2024, 6, 3), 7, "2024", {}, {}}).ok);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(DISTINCT IstoricID) FROM IstoricCereri")), 250);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(DISTINCT CerereID) FROM IstoricCereri")), 250);
    const auto r = Istoric::ListaNumar(Bd(), 1005);
    ASSERT_EQ(r.size(), 1u);
    EXPECT_EQ(r[0].Motiv, QStringLiteral("Dispozitie nr 304 adaugata"));
    EXPECT_TRUE(r[0].Detalii.endsWith(QStringLiteral("DinData: 01.07.2024; Cuantum: 164.00")))
        << r[0].Detalii.toStdString();
}

PE_AMBELE_MOTOARE(IstoricBaza);

} // namespace
