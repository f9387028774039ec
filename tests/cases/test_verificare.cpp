#include "cases/SalvareCerere.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

class Verificare : public TestBaza {};

struct Verificarea {
    const char* mesaj;
    const char* control;
    std::function<void(Dosar&, int& nrRanduri)> strica;
};

MembruCerere Cu(int rudenie, const char* cnp) {
    MembruCerere m;
    m.RudenieID = rudenie;
    m.CNP = QString::fromLatin1(cnp);
    return m;
}

// The checks in their order. Case k breaks check k and every later one: the first failure is
// the one reported.
const std::vector<Verificarea>& Verificari() {
    static const std::vector<Verificarea> v = {
        {"Aceasta cerere a fost stearsa de alt utilizator. Modificarile dvs. nu pot avea loc. Aceasta fereastra se va "
         "inchide!",
         "",
         [](Dosar& d, int&) {
             d.date.Adaug = 2;
             d.date.CerereID = d.date.FamilieID = 999;
         }},
        {"Nu puteti salva datele inainte de a introduce Numarul Dosarului", "txtCerere_0",
         [](Dosar& d, int&) { d.date.txtCerere[0] = QStringLiteral("   "); }},
        {"Nu puteti salva datele inainte de a introduce Numarul Cererii", "txtCerere_1",
         [](Dosar& d, int&) { d.date.txtCerere[1].clear(); }},
        {"Nu puteti salva datele inainte de a Data cererea", "dtpData_0",
         [](Dosar& d, int&) { d.date.dtpData[0] = QDate(); }},
        {"Nu puteti salva datele inainte de a introduce Localitatea", "txtCerere_5",
         [](Dosar& d, int&) { d.date.txtCerere[5] = QStringLiteral(" "); }},
        {"Nu puteti salva datele inainte de a introduce Judetul", "txtCerere_6",
         [](Dosar& d, int&) { d.date.txtCerere[6].clear(); }},
        {"Selectati din lista: Reprezentant legal!", "cboCerere_1", [](Dosar& d, int&) { d.date.cboCerere[1] = {}; }},
        {"Selectati din lista: Modalitati de plata!", "cboCerere_2", [](Dosar& d, int&) { d.date.cboCerere[2] = {}; }},
        {"Tip cerere incorect. Selectati din lista: famile cu sot/sotie sau famile monoparentala!", "cboCerere_3",
         [](Dosar& d, int&) {
             d.date.cboCerere[3] = {0, QStringLiteral("scris de mana")};
         }},
        {"Statut incorect. Selectati din lista un statut corect", "cboCerere_4",
         [](Dosar& d, int&) { d.date.cboCerere[4] = {}; }},
        {"Nu puteti salva datele inainte de a scrie Data Aprobarii/Repunerii/etc", "dtpData_1",
         [](Dosar& d, int&) { d.date.dtpData[1] = QDate(); }},
        {"Este obligatorie adaugarea titularului cererii", "cmdAdd", [](Dosar&, int& n) { n = 0; }},
        {"Cererea trebuie sa aiba exact un titular. Corectati", "lvw",
         [](Dosar& d, int& n) {
             d.stare.MatriceMembri->push_back(Cu(1, "1900101400011"));
             if (n > 0) ++n;
         }},
        {"Cererea nu poate sa aiba mai mult de un partener. Corectati", "lvw",
         [](Dosar& d, int& n) {
             d.stare.MatriceMembri->push_back(Cu(2, "2900101400022"));
             if (n > 0) ++n;
         }},
        {"Exceptie Morvante: Nr de persoane din matrice nu corespunde cu numarul de persoane din lista", "lvw",
         [](Dosar& d, int& n) {
             d.stare.MatriceMembri->push_back(Cu(11, "1900101400033")); // a kinship of no group
             if (n > 0) ++n;
         }},
    };
    return v;
}

TEST_P(Verificare, PrimaVerificareCareCadeEsteRaportata) {
    BazaNoua();
    const Dosar bun = DosarComplet(Bd());
    ASSERT_EQ(VerificaControale(Bd(), bun.date, bun.stare, 6, mesaje), std::nullopt);
    EXPECT_EQ(mesaje.Texte(), QStringList());

    const auto& v = Verificari();
    for (size_t k = 0; k < v.size(); ++k) {
        SCOPED_TRACE(v[k].mesaj);
        Dosar d = bun;
        int nrRanduri = 6;
        for (size_t j = k; j < v.size(); ++j)
            v[j].strica(d, nrRanduri);
        mesaje.mesaje.clear();
        const auto esec = VerificaControale(Bd(), d.date, d.stare, nrRanduri, mesaje);
        ASSERT_TRUE(esec.has_value());
        EXPECT_EQ(esec->Mesaj, QString::fromLatin1(v[k].mesaj));
        EXPECT_EQ(esec->Control, QString::fromLatin1(v[k].control));
        EXPECT_EQ(esec->InchideDialogul, k == 0);
        EXPECT_EQ(mesaje.Texte(), QStringList()) << "the stopping check is returned, not shown";
    }
}

// The list and the matrix disagree: the count of lvw is what the checks compare with.
TEST_P(Verificare, ListaSiMatriceaDiferite) {
    BazaNoua();
    const Dosar d = DosarComplet(Bd());
    const auto esec = VerificaControale(Bd(), d.date, d.stare, 5, mesaje);
    ASSERT_TRUE(esec.has_value());
    EXPECT_EQ(esec->Control, QStringLiteral("lvw"));
    EXPECT_TRUE(esec->Mesaj.startsWith(QStringLiteral("Exceptie Morvante")));

    // No matrix at all is an empty list.
    Dosar gol = d;
    gol.stare.MatriceMembri.reset();
    EXPECT_EQ(VerificaControale(Bd(), gol.date, gol.stare, 0, mesaje)->Control, QStringLiteral("cmdAdd"));
}

// Numbers held by another dossier or request: a warning, never a stop; in mode 1 the dossier's
// box takes the focus. The row being edited doesn't count against itself.
TEST_P(Verificare, NumereFolositeDeAltii) {
    BazaNoua();
    Dosar d = DosarComplet(Bd());
    ASSERT_EQ(SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, OptiuniDosar(), mesaje).stare,
              RezultatSalvare::Stare::Salvata); // dossier 1234, request 77, both with key 1

    struct Caz {
        const char* nume;
        int adaug;
        qint64 id;
        const char* dosar;
        const char* cerere;
        int mod;
        bool dosarAvertizat, cerereAvertizata;
        const char* control;
    };
    const Caz cazuri[] = {
        {"cerere noua, numere luate, mod 1", 1, 0, "1234", "77", 1, true, true, "txtCerere_0"},
        {"cerere noua, numere luate, mod 2", 1, 0, " 1234 ", "77", 2, true, true, ""},
        {"cerere noua, numere libere", 1, 0, "1235", "78", 1, false, false, ""},
        {"aceeasi cerere, modificata", 2, 1, "1234", "77", 1, false, false, ""},
        {"alta cerere existenta", 2, 5, "1234", "77", 1, true, true, "txtCerere_0"},
        {"numar cu zecimale", 1, 0, "1234.5", "77,5", 1, false, true, ""},
        {"cutie goala", 1, 0, "", "", 2, false, false, ""},
    };
    for (const Caz& c : cazuri) {
        SCOPED_TRACE(c.nume);
        DateCerere date = d.date;
        date.Adaug = c.adaug;
        date.CerereID = date.FamilieID = c.id;
        date.txtCerere[0] = QString::fromLatin1(c.dosar);
        date.txtCerere[1] = QString::fromLatin1(c.cerere);
        mesaje.mesaje.clear();
        const AvertizareNumar dosar = VerificaNrDosar(Bd(), date, c.mod, mesaje);
        const AvertizareNumar cerere = VerificaNrCerere(Bd(), date, c.mod, mesaje);
        EXPECT_EQ(dosar.Avertizat, c.dosarAvertizat);
        EXPECT_EQ(cerere.Avertizat, c.cerereAvertizata);
        EXPECT_EQ(dosar.Control, QString::fromLatin1(c.control));
        EXPECT_EQ(cerere.Control, QString());
        QStringList asteptate;
        if (c.dosarAvertizat)
            asteptate << QStringLiteral("Numarul %1 a fost alocat altui dosar").arg(date.txtCerere[0].trimmed());
        if (c.cerereAvertizata)
            asteptate << QStringLiteral("Numarul %1 a fost alocat altei cereri").arg(date.txtCerere[1].trimmed());
        EXPECT_EQ(mesaje.Texte(), asteptate);
    }

    // At OK the warnings are shown and the checks go on to pass.
    mesaje.mesaje.clear();
    EXPECT_EQ(VerificaControale(Bd(), d.date, d.stare, 6, mesaje), std::nullopt);
    EXPECT_EQ(mesaje.Texte().size(), 2);
}

PE_AMBELE_MOTOARE(Verificare);

} // namespace
