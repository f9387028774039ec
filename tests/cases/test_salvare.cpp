#include "base/BlocareFisier.h"
#include "base/Eroare.h"
#include "cases/ListaCereri.h"
#include "cases/SalvareCerere.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/DosarTest.h"

#include <QDir>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

class Salvare : public TestBaza {
protected:
    RezultatSalvare Salveaza(const Dosar& d, OptiuniSalvare o = OptiuniDosar()) {
        if (o.CaleBD.isEmpty()) o.CaleBD = Locatie().caleBD;
        return SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, o, mesaje);
    }
    Dosar Redeschis(qint64 id) {
        const CerereIncarcata c = IncarcaCerere(Bd(), id, LunaDosar, AnDosar, mesaje);
        EXPECT_TRUE(c.Gasita);
        return {c.Date, c.Stare, c.Iesiti};
    }
    qint64 Valoare(const char* sql, qint64 id) { return NumarRanduri(Bd(), QLatin1String(sql), id); }
    QStringList Denumiri(const char* tabela) {
        QStringList r;
        Interogare q(Bd(), QStringLiteral("SELECT Denumire FROM %1 ORDER BY Denumire").arg(QLatin1String(tabela)));
        q.Executa();
        while (q.Urmator())
            r << q.Valoare(0).toString();
        return r;
    }
};

// A case file saved and opened again holds every field, and so does a change saved over it.
TEST_P(Salvare, DosarulSalvatSeCitesteInapoiCamp_cuCamp) {
    BazaNoua();
    const Dosar intrare = DosarComplet(Bd());
    const RezultatSalvare r = Salveaza(intrare);
    ASSERT_EQ(r.stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(r.CerereID, 1);
    EXPECT_EQ(r.Cuantum, CuantumDosar);

    Dosar asteptat = intrare;
    asteptat.date.Adaug = 2;
    asteptat.date.CerereID = asteptat.date.FamilieID = 1;
    asteptat.date.txtCerere[5] = QStringLiteral("Branesti"); // trimmed, while NrDosar2 stays as typed
    asteptat.date.txtCerere[14] = QStringLiteral("173");     // CalculCuantum at the save, not the box
    asteptat.date.txtCerere[15] = QStringLiteral("6");       // the persons of the matrix, not the box
    // Persons and certificates numbered in the order of the list on an empty database.
    qint64 adev = 0;
    for (size_t i = 0; i < asteptat.stare.MatriceMembri->size(); ++i) {
        MembruCerere& p = (*asteptat.stare.MatriceMembri)[i];
        p.MembruID = qint64(i + 1);
        p.ModificatLaSalvare = 0;
        for (AdeverintaMembru& a : p.Adeverinte)
            a.AdevID = ++adev;
    }
    Dosar c = Redeschis(1);
    EXPECT_EQ(mesaje.Texte(), QStringList()) << "the stored NrCopii agrees with the database count";
    ExpectDateEgale(c.date, asteptat.date);
    ExpectStareEgala(c.stare, asteptat.stare);
    EXPECT_TRUE(c.iesiti.empty());

    // Where the entries go: titular and partner, good i as NrBifa i + 9, income i as CodVenit i + 1,
    // housing kind i as Cod i + 1, the three boxes of what is asked for as one text.
    const std::pair<const char*, qint64> randuri[] = {
        {"SELECT MembruID1 FROM Cereri WHERE CerereID = ?", 1},
        {"SELECT MembruID2 FROM Cereri WHERE CerereID = ?", 2},
        {"SELECT COUNT(*) FROM BifeText WHERE CerereID = ? AND NrBifa IN (10, 29, 83)", 3},
        {"SELECT COUNT(*) FROM Venituri WHERE CerereID = ? AND CodVenit IN (1, 6, 79)", 3},
        {"SELECT COUNT(*) FROM Locuinte WHERE CerereID = ? AND Cod IN (1, 3, 8)", 3},
        {"SELECT COUNT(*) FROM Cereri WHERE CerereID = ? AND A1Solicita = '011'", 1},
    };
    for (const auto& [sql, n] : randuri)
        EXPECT_EQ(Valoare(sql, 1), n) << sql;

    // The change: Elena leaves, Andrei brings a new certificate, one good is gone, a name changes.
    std::vector<MembruCerere>& m = *c.stare.MatriceMembri;
    ASSERT_EQ(m[3].Prenume, QStringLiteral("Elena"));
    const MembruIesit elena{
        m[3].MembruID, m[3].Nume, m[3].Prenume, m[3].CNP, m[3].Rudenie, B("50.75"), {}, {}, 3, 1, 1};
    c.iesiti.push_back(elena);
    m.erase(m.begin() + 3);
    m[2].Adeverinte.insert(m[2].Adeverinte.begin(),
                           Adeverinta(3, "S-70", {2015, 1, 10}, {2015, 1, 12}, {2015, 9, 30}, 1));
    m[2].Adeverinte[1].AdvCurenta = 0;
    m[0].Nume = QStringLiteral("Popescu-Radu");
    c.stare.Bunuri[20] = Bani();
    c.stare.Venituri[5] = B("250");
    c.date.txtCerere[12] = QStringLiteral("650.5");
    mesaje.mesaje.clear();
    const RezultatSalvare r2 = Salveaza(c);
    ASSERT_EQ(r2.stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(mesaje.Texte(), QStringList());

    Dosar asteptat2 = c;
    asteptat2.date.txtCerere[15] = QStringLiteral("5");
    (*asteptat2.stare.MatriceMembri)[2].Adeverinte[0].AdevID = 7; // Elena's certificate 6 stays taken
    const Dosar c2 = Redeschis(1);
    ExpectDateEgale(c2.date, asteptat2.date);
    ExpectStareEgala(c2.stare, asteptat2.stare);
    EXPECT_EQ(c2.iesiti, std::vector<MembruIesit>{elena});
    EXPECT_EQ(Valoare("SELECT COUNT(*) FROM Adeverinte WHERE MembruID = ?", elena.MembruID), 1)
        << "the certificates of a person who left stay";
    EXPECT_EQ(Valoare("SELECT COUNT(*) FROM BifeText WHERE CerereID = ?", 1), 2);

    // The expiring-certificates list sees the new name, and the request's status as it is saved.
    const qint64 titular = m[0].MembruID;
    EXPECT_EQ(Valoare("SELECT COUNT(*) FROM Adeverinte WHERE MembruID = ? AND MembruOrdine LIKE 'popescu-radu %'",
                      titular),
              Valoare("SELECT COUNT(*) FROM Adeverinte WHERE MembruID = ?", titular));
    const qint64 acte = Valoare("SELECT COUNT(*) FROM Adeverinte WHERE CerereID = ?", 1);
    ASSERT_GT(acte, 0);
    for (const auto& [stare, inVigoare] : {std::pair{2, acte}, std::pair{4, qint64(0)}}) {
        Dosar d = Redeschis(1);
        d.date.cboCerere[ElemCerere::cboStare].id = stare;
        ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
        EXPECT_EQ(Valoare("SELECT COUNT(*) FROM Adeverinte WHERE CerereID = ? AND CerereInVigoare = 1", 1), inVigoare)
            << stare;
    }
}

// New names go once into the reference lists, whatever their case and diacritics; blanks add nothing.
TEST_P(Salvare, ListeleDeReferintaCrescCuNumeleNoi) {
    BazaNoua();
    Dosar d = DosarComplet(Bd());
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Scoli (ScoalaID, Denumire, LocalitateID) VALUES (7, ?, 2)"),
              QStringLiteral("LICEUL TEORETIC"));
    // An old file's cedillas; the titular's issuer is typed with commas below, another's with no diacritics.
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Politii (PolitiaID, Denumire, LocalitateID) VALUES (3, ?, 2)"),
              QString::fromUtf8("SPCLEP Br\u0103ne\u015Fti"));
    (*d.stare.MatriceMembri)[0].Eliberat = QString::fromUtf8("SPCLEP Br\u0103ne\u0219ti");
    (*d.stare.MatriceMembri)[1].Eliberat = QStringLiteral("   ");
    ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(Denumiri("Strazi") + Denumiri("Politii") + Denumiri("Scoli") + Denumiri("LocScolare") +
                  Denumiri("Motive"),
              (QStringList{"Strada Morii", QString::fromUtf8("SPCLEP Br\u0103ne\u015Fti"), "LICEUL TEORETIC",
                           "Scoala Gimnaziala nr. 1", "Branesti", "Buftea", "Indeplineste conditiile",
                           "Schimbare domiciliu"}));
    EXPECT_EQ(Valoare("SELECT ScoalaID FROM Scoli WHERE LocalitateID = ?", 1), 8);

    const auto inainte = Instantaneu(Bd());
    ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
    const auto dupa = Instantaneu(Bd());
    for (const char* t : {"Strazi", "Politii", "Scoli", "LocScolare", "Motive"})
        EXPECT_EQ(dupa.at(QLatin1String(t)), inainte.at(QLatin1String(t))) << t;
}

// A known person is the same Membrii row on the next request: by CNP, or by key without one.
TEST_P(Salvare, PersoanaCunoscutaEsteReutilizata) {
    BazaNoua();
    const Dosar a = DosarComplet(Bd());
    ASSERT_EQ(Salveaza(a).stare, RezultatSalvare::Stare::Salvata);
    const qint64 titular = 1;
    // The key the list holds for the titular, its CNP, and the persons new: the child, or nobody.
    const std::tuple<qint64, const char*, qint64> cazuri[] = {
        {0, "1850305400011", 1}, {titular, "1850305400011", 1}, {titular, "", 0}};
    qint64 nrCerere = 500;
    for (const auto& [membruID, cnpTitular, persoaneNoi] : cazuri) {
        SCOPED_TRACE(nrCerere);
        if (!*cnpTitular) ExecutaCu(Bd(), QStringLiteral("UPDATE Membrii SET CNP = NULL WHERE MembruID = ?"), 1);
        Dosar b;
        b.date = a.date;
        b.date.txtCerere[1] = QString::number(nrCerere);
        MembruCerere t = (*a.stare.MatriceMembri)[0];
        t.MembruID = membruID;
        t.CNP = QLatin1String(cnpTitular);
        t.Nume = QStringLiteral("Popa%1").arg(nrCerere);
        t.Adeverinte.clear();
        MembruCerere copil = (*a.stare.MatriceMembri)[2];
        copil.CNP = QStringLiteral("5120101400%1").arg(nrCerere++);
        copil.Adeverinte.clear();
        b.stare.MatriceMembri = std::vector<MembruCerere>{t, copil};
        if (persoaneNoi == 0) b.stare.MatriceMembri->pop_back();
        const qint64 persoane = Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii"));
        const RezultatSalvare r = Salveaza(b);
        ASSERT_EQ(r.stare, RezultatSalvare::Stare::Salvata);
        EXPECT_EQ(Valoare("SELECT MembruID1 FROM Cereri WHERE CerereID = ?", r.CerereID), titular);
        EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), persoane + persoaneNoi);
        EXPECT_EQ((*Redeschis(1).stare.MatriceMembri)[0].Nume, t.Nume) << "the first request sees the same person";
        FiltruCautare f;
        f.Nume = t.Nume;
        EXPECT_EQ(ListaCereri::Numara(Bd(), f), Valoare("SELECT COUNT(*) FROM Cereri WHERE MembruID1 = ?", titular))
            << "and the list finds each of its requests by the new name";
    }
}

// A failure at any step or at the commit leaves the database and the editor's data as they were.
TEST_P(Salvare, EsecLaOricePasNuLasaNimicScris) {
    BazaNoua();
    ASSERT_EQ(Salveaza(DosarComplet(Bd())).stare, RezultatSalvare::Stare::Salvata);
    Dosar schimbat = Redeschis(1);
    (*schimbat.stare.MatriceMembri)[0].Nume = QStringLiteral("Altul");
    schimbat.stare.Venituri[3] = B("10");
    Dosar nou = DosarComplet(Bd());
    nou.date.txtCerere[0] = QStringLiteral("4321");
    (*nou.stare.MatriceMembri)[5].CNP = QStringLiteral("6100228400099");
    (*nou.stare.MatriceMembri)[5].Eliberat = QStringLiteral("Politia Noua");

    const PasSalvare pasi[] = {PasSalvare::ListeReferinta, PasSalvare::Familii,       PasSalvare::Membrii,
                               PasSalvare::Cereri,         PasSalvare::CereriMembrii, PasSalvare::Adeverinte,
                               PasSalvare::Venituri,       PasSalvare::Locuinte,      PasSalvare::BifeText,
                               PasSalvare::CMIesiti};
    for (const Dosar* d : {&nou, &schimbat})
        for (const PasSalvare pas : pasi) {
            SCOPED_TRACE(testing::Message() << (d == &nou ? "cerere noua" : "modificare") << ", pasul " << int(pas));
            const auto inainte = Instantaneu(Bd());
            const Dosar copie = *d;
            OptiuniSalvare o = OptiuniDosar();
            o.DupaPas = [pas](PasSalvare p) {
                if (p == pas) throw std::runtime_error("disc plin");
            };
            try {
                Salveaza(*d, o);
                ADD_FAILURE() << "the save went through";
            } catch (const Eroare& e) {
                EXPECT_EQ(e.text(), QStringLiteral("Cererea nu a fost salvata: disc plin"));
            }
            EXPECT_EQ(Instantaneu(Bd()), inainte);
            ExpectDateEgale(d->date, copie.date);
            ExpectStareEgala(d->stare, copie.stare);
            EXPECT_EQ(d->iesiti, copie.iesiti);
        }

    // The database itself refuses at the commit: a leaver whose person no longer exists.
    Dosar iesitLipsa = schimbat;
    iesitLipsa.iesiti.emplace_back().MembruID = 987654;
    const auto inainte = Instantaneu(Bd());
    EXPECT_THROW(Salveaza(iesitLipsa), Eroare);
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    // And a save that is let through afterwards writes normally.
    EXPECT_EQ(Salveaza(nou).stare, RezultatSalvare::Stare::Salvata);
    EXPECT_NE(Instantaneu(Bd()), inainte);
}

// Texts or numbers too big for their field, or a CNP twice, are refused before anything is written.
TEST_P(Salvare, DateCareNuIncapSauSeRepetaSuntRefuzate) {
    BazaNoua();
    const std::pair<std::function<void(Dosar&)>, const char*> cazuri[] = {
        {[](Dosar& d) { d.date.txtCerere[7] = QStringLiteral("0123456789012345"); }, "Telefon"},
        {[](Dosar& d) { (*d.stare.MatriceMembri)[1].Nume = QString(51, u'A'); }, "Nume"},
        {[](Dosar& d) { (*d.stare.MatriceMembri)[5].CNP = (*d.stare.MatriceMembri)[2].CNP; }, "apare de doua ori"},
        {[](Dosar& d) { d.date.txtCerere[0] = QStringLiteral("9e99"); }, "Numarul dosarului"},
    };
    for (const auto& [strica, inText] : cazuri) {
        Dosar d = DosarComplet(Bd());
        strica(d);
        const auto inainte = Instantaneu(Bd());
        try {
            Salveaza(d);
            ADD_FAILURE() << inText;
        } catch (const Eroare& e) {
            EXPECT_TRUE(e.text().contains(QLatin1String(inText))) << e.text().toStdString();
        }
        EXPECT_EQ(Instantaneu(Bd()), inainte);
    }
}

// With ReteaSetat, snet.txt locked elsewhere stops the save; free, "Salvati?"; held while writing.
TEST_P(Salvare, FisierulSnetOpresteAlDoileaCalculator) {
    BazaNoua();
    const Dosar d = DosarComplet(Bd());
    OptiuniSalvare o = OptiuniDosar();
    o.ReteaSetat = true;
    o.CaleBD = Locatie().caleBD;
    const QString snet = QDir(o.CaleBD).filePath(QStringLiteral("snet.txt"));
    const auto gol = Instantaneu(Bd());
    {
        BlocareFisier altCalculator(snet);
        ASSERT_TRUE(altCalculator.Obtine());
        EXPECT_EQ(Salveaza(d, o).stare, RezultatSalvare::Stare::Oprita);
    }
    mesaje.raspunsuri = {false};
    EXPECT_EQ(Salveaza(d, o).stare, RezultatSalvare::Stare::Oprita);
    EXPECT_EQ(mesaje.Texte(), (QStringList{TextSalvareInCurs, QStringLiteral("Salvati?")}));
    EXPECT_EQ(Instantaneu(Bd()), gol);

    bool blocatInTimpulScrierii = false;
    o.DupaPas = [&](PasSalvare p) {
        if (p == PasSalvare::Cereri) blocatInTimpulScrierii = !BlocareFisier(snet).Obtine();
    };
    EXPECT_EQ(Salveaza(d, o).stare, RezultatSalvare::Stare::Salvata);
    EXPECT_TRUE(blocatInTimpulScrierii);
    EXPECT_TRUE(BlocareFisier(snet).Obtine());

    BlocareFisier tinut(snet);
    ASSERT_TRUE(tinut.Obtine());
    o.ReteaSetat = false;
    o.DupaPas = nullptr;
    EXPECT_EQ(Salveaza(d, o).stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Intrebare).size(), 2) << "no question without ReteaSetat";
}

// New keys are the next free ones, in both Familii and Cereri, and past others' persons and certificates.
TEST_P(Salvare, CheileNoiNuSeCiocnesc) {
    BazaNoua();
    const Dosar d = DosarComplet(Bd());
    const RezultatSalvare a = Salveaza(d);
    const RezultatSalvare b = Salveaza(d);
    EXPECT_EQ((std::array{a.FamilieID, b.CerereID, b.FamilieID}),
              (std::array{a.CerereID, a.CerereID + 1, a.CerereID + 1}));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii")), 6) << "the second request re-used the persons";

    // A request numbered above the families, with a person and a certificate of high keys.
    AdaugaCerereTest(Bd(), {40, 1, 9, 2, 1, QStringLiteral("Branesti"), {}, {{100, "Dan", "Ion", "1700101400012", 1}}});
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID) VALUES (50, 40, 100)"));
    Dosar strain = d;
    for (MembruCerere& m : *strain.stare.MatriceMembri)
        m.CNP.replace(9, 1, u'9');
    const RezultatSalvare c = Salveaza(strain);
    EXPECT_EQ((std::array{c.CerereID, c.FamilieID}), (std::array<qint64, 2>{41, 41}));
    EXPECT_EQ(Valoare("SELECT MIN(MembruID) FROM CereriMembrii WHERE CerereID = ?", c.CerereID), 101);
    EXPECT_EQ(Valoare("SELECT MIN(AdevID) FROM Adeverinte WHERE CerereID = ?", c.CerereID), 51);
}

// Around the write: the DataStare reminder, a dossier number taken, a request deleted, a failed check.
TEST_P(Salvare, MesajeleDinJurulSalvarii) {
    BazaNoua();
    Dosar d = DosarComplet(Bd());
    d.date.dtpData[1] = QDate(2015, 3, 15);
    ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Data aprobarii este diferita  de : 01-Martie-2015")});

    // Dossier 1234 again, on another family: a warning, and both dossiers hold the number.
    mesaje.mesaje.clear();
    d.date.dtpData[1] = QDate(2015, 3, 1);
    d.date.txtCerere[1] = QStringLiteral("78");
    d.stare.Venituri = {};
    ASSERT_EQ(Salveaza(d).stare, RezultatSalvare::Stare::Salvata);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Numarul 1234 a fost alocat altui dosar")});
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE NrDosar = 1234")), 2);

    // Stored before the income per member was kept: opens with a blank box and saves as with 0.
    ExecutaCu(Bd(), QStringLiteral("UPDATE Cereri SET VenitpeMembru = NULL, VenitTotal = NULL WHERE CerereID = ?"), 1);
    mesaje.mesaje.clear();
    EXPECT_EQ(Salveaza(Redeschis(1)).stare, RezultatSalvare::Stare::Salvata) << mesaje.Texte().join(u'|').toStdString();

    // The request is deleted by another computer while the editor is open.
    const Dosar c = Redeschis(2);
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Familii WHERE FamilieID = ?"), 2);
    mesaje.mesaje.clear();
    const auto inainte = Instantaneu(Bd());
    EXPECT_EQ(Salveaza(c).stare, RezultatSalvare::Stare::InchideEditor);
    EXPECT_EQ(mesaje.Texte().size(), 1);
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    // A failed check is shown, names its control, and writes nothing.
    d.date.txtCerere[6] = QStringLiteral("  ");
    const RezultatSalvare v = Salveaza(d);
    EXPECT_TRUE(v.stare == RezultatSalvare::Stare::Oprita && v.Control == QStringLiteral("txtCerere_6"));
    EXPECT_TRUE(mesaje.Texte().last().endsWith(QStringLiteral("Judetul")));
    EXPECT_EQ(Instantaneu(Bd()), inainte);
}

PE_AMBELE_MOTOARE(Salvare);

} // namespace
