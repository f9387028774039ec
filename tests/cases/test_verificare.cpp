#include "cases/SalvareCerere.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

class Verificare : public TestBaza {};

MembruCerere Cu(int rudenie, const char* cnp) {
    MembruCerere m;
    m.RudenieID = rudenie;
    m.CNP = QString::fromLatin1(cnp);
    return m;
}

// The checks of OK in their order. Case k breaks check k and every later one: the first failure
// is the one returned, not shown, with the control that takes the focus. A request gone closes
// the editor. The list's count is what the persons are compared with; no matrix is an empty list.
TEST_P(Verificare, PrimaVerificareCareCadeEsteRaportata) {
    BazaNoua();
    const Dosar bun = DosarComplet(Bd());
    ASSERT_EQ(VerificaControale(Bd(), bun.date, bun.stare, 6, mesaje), std::nullopt);
    EXPECT_EQ(mesaje.Texte(), QStringList());

    const auto persoana = [](int rudenie, const char* cnp) {
        return [=](Dosar& d, int& n) {
            d.stare.MatriceMembri->push_back(Cu(rudenie, cnp));
            if (n > 0) ++n;
        };
    };
    const struct {
        const char* mesaj; // a word of the message
        const char* control;
        std::function<void(Dosar&, int& nrRanduri)> strica;
    } v[] = {
        {"stearsa de alt utilizator", "",
         [](Dosar& d, int&) {
             d.date.Adaug = 2;
             d.date.CerereID = d.date.FamilieID = 999;
         }},
        {"Numarul Dosarului", "txtCerere_0", [](Dosar& d, int&) { d.date.txtCerere[0] = QStringLiteral("   "); }},
        {"Numarul Cererii", "txtCerere_1", [](Dosar& d, int&) { d.date.txtCerere[1].clear(); }},
        {"Data cererea", "dtpData_0", [](Dosar& d, int&) { d.date.dtpData[0] = QDate(); }},
        {"Localitatea", "txtCerere_5", [](Dosar& d, int&) { d.date.txtCerere[5] = QStringLiteral(" "); }},
        {"Judetul", "txtCerere_6", [](Dosar& d, int&) { d.date.txtCerere[6].clear(); }},
        {"Reprezentant legal", "cboCerere_1", [](Dosar& d, int&) { d.date.cboCerere[1] = {}; }},
        {"Modalitati de plata", "cboCerere_2", [](Dosar& d, int&) { d.date.cboCerere[2] = {}; }},
        {"Tip cerere incorect", "cboCerere_3",
         [](Dosar& d, int&) {
             d.date.cboCerere[3] = {0, QStringLiteral("scris de mana")};
         }},
        {"Statut incorect", "cboCerere_4", [](Dosar& d, int&) { d.date.cboCerere[4] = {}; }},
        {"Data Aprobarii", "dtpData_1", [](Dosar& d, int&) { d.date.dtpData[1] = QDate(); }},
        {"titularului", "cmdAdd", [](Dosar&, int& n) { n = 0; }},
        {"exact un titular", "lvw", persoana(1, "1900101400011")},
        {"mai mult de un partener", "lvw", persoana(2, "2900101400022")},
        {"Exceptie Morvante", "lvw", persoana(11, "1900101400033")}, // a kinship of no group
    };
    for (size_t k = 0; k < std::size(v); ++k) {
        SCOPED_TRACE(v[k].mesaj);
        Dosar d = bun;
        int nrRanduri = 6;
        for (size_t j = k; j < std::size(v); ++j)
            v[j].strica(d, nrRanduri);
        mesaje.mesaje.clear();
        const auto esec = VerificaControale(Bd(), d.date, d.stare, nrRanduri, mesaje);
        ASSERT_TRUE(esec.has_value());
        EXPECT_TRUE(esec->Mesaj.contains(QLatin1String(v[k].mesaj))) << esec->Mesaj.toStdString();
        EXPECT_EQ(esec->Control, QLatin1String(v[k].control));
        EXPECT_EQ(esec->InchideDialogul, k == 0);
        EXPECT_EQ(mesaje.Texte(), QStringList());
    }
    EXPECT_EQ(VerificaControale(Bd(), bun.date, bun.stare, 5, mesaje)->Control, QStringLiteral("lvw"));
    Dosar gol = bun;
    gol.stare.MatriceMembri.reset();
    EXPECT_EQ(VerificaControale(Bd(), gol.date, gol.stare, 0, mesaje)->Control, QStringLiteral("cmdAdd"));
}

// Numbers held by another dossier or request: a warning, never a stop; in mode 1 the dossier's
// box takes the focus. The row being edited doesn't count against itself; the numbers are read
// whole, blanks trimmed.
TEST_P(Verificare, NumereFolositeDeAltii) {
    BazaNoua();
    Dosar d = DosarComplet(Bd());
    ASSERT_EQ(SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, OptiuniDosar(), mesaje).stare,
              RezultatSalvare::Stare::Salvata); // dossier 1234, request 77, both with key 1
    // New or changed (which key), dossier and request numbers, mode, and the warnings: dossier,
    // request, and the focus of the dossier's box.
    const std::tuple<int, qint64, const char*, const char*, int, const char*> cazuri[] = {
        {1, 0, "1234", "77", 1, "11txtCerere_0"},
        {1, 0, " 1234 ", "77", 2, "11"},
        {1, 0, "1235", "78", 1, "00"},
        {2, 1, "1234", "77", 1, "00"},
        {2, 5, "1234", "77", 1, "11txtCerere_0"},
        {1, 0, "1234.5", "77,5", 1, "01"},
        {1, 0, "", "", 2, "00"}};
    for (const auto& [adaug, id, nrDosar, nrCerere, mod, asteptat] : cazuri) {
        DateCerere date = d.date;
        date.Adaug = adaug;
        date.CerereID = date.FamilieID = id;
        date.txtCerere[0] = QLatin1String(nrDosar);
        date.txtCerere[1] = QLatin1String(nrCerere);
        const AvertizareNumar dosar = VerificaNrDosar(Bd(), date, mod, mesaje);
        const AvertizareNumar cerere = VerificaNrCerere(Bd(), date, mod, mesaje);
        EXPECT_EQ(QString::number(dosar.Avertizat) + QString::number(cerere.Avertizat) + dosar.Control + cerere.Control,
                  QLatin1String(asteptat))
            << adaug << " " << id << " " << nrDosar << " " << nrCerere;
    }
    EXPECT_EQ(mesaje.Texte().size(), 7) << "one for each warning";
    // At OK the warnings are shown and the checks go on to pass.
    mesaje.mesaje.clear();
    EXPECT_EQ(VerificaControale(Bd(), d.date, d.stare, 6, mesaje), std::nullopt);
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Numarul 1234 a fost alocat altui dosar"),
                                           QStringLiteral("Numarul 77 a fost alocat altei cereri")}));
}

PE_AMBELE_MOTOARE(Verificare);

} // namespace
