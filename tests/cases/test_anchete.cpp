#include "cases/Anchete.h"
#include "base/Eroare.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/SqlTest.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

// Readable dates in failure messages.
static void PrintTo(const QDate& d, std::ostream* os) {
    *os << (d.isValid() ? d.toString(Qt::ISODate).toStdString() : std::string("(fara data)"));
}

namespace {

using Fel = Mesaje::Fel;

const QString Valabil = QStringLiteral("valabilitate 6 luni");
const QString Incetata = QStringLiteral("Cererea este INCETATA!");
const QString FaraCopii =
    QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!");
const QString NepotrivireCopii = QStringLiteral(
    "Numarul de copii din Ancheta nu coincide cu numarul de copii din Cerere. Verificati cauza in Cerere!");
const QString Stearsa = QStringLiteral(
    "Aceasta Ancheta a fost stearsa de alt utilizator. Modificarile dvs. nu pot avea loc. Aceasta fereastra se va "
    "inchide!");
const QString RandNegasit = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!");

// A CNP born on that day: the century digit of a man, then YYMMDD; the rest is not read here.
QString Cnp(const QDate& nastere, int n) {
    const QChar secol = nastere.year() >= 2000 ? u'5' : u'1';
    return secol + nastere.toString(QStringLiteral("yyMMdd")) + QStringLiteral("40%1").arg(n, 3, 10, QLatin1Char('0')) +
           QLatin1Char('7');
}

TEST(SaseLuni, ZiuaPesteSfarsitulLuniiTreceInLunaUrmatoare) {
    const struct {
        QDate d, asteptat;
    } cazuri[] = {
        {QDate(2024, 1, 15), QDate(2024, 7, 15)}, // an ordinary day
        {QDate(2022, 8, 31), QDate(2023, 3, 3)},  // 31 February of a common year
        {QDate(2023, 8, 31), QDate(2024, 3, 2)},  // 31 February of a leap year
        {QDate(2023, 8, 29), QDate(2024, 2, 29)}, // the leap day itself
        {QDate(2022, 8, 29), QDate(2023, 3, 1)},  // 29 February of a common year
        {QDate(2023, 12, 31), QDate(2024, 7, 1)}, // into the next year, 31 June
        {QDate(2024, 3, 31), QDate(2024, 10, 1)}, // 31 September
        {QDate(2024, 7, 31), QDate(2025, 1, 31)}, // January has 31 days
    };
    for (const auto& c : cazuri)
        EXPECT_EQ(Anchete::SaseLuni(c.d), c.asteptat) << c.d.toString(Qt::ISODate).toStdString();
    EXPECT_FALSE(Anchete::SaseLuni(QDate()).isValid());
}

class AncheteBaza : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        // A neighbour whose child must never be counted for the requests under test.
        Cerere(900, {Cnp(QDate(1980, 1, 1), 1), Cnp(QDate(2015, 6, 1), 2)});
    }

    // A request with persons of those CNPs, the first the titular, the others children by relation.
    qint64 Cerere(qint64 id, const QStringList& cnpuri) {
        CerereTest c;
        c.cerereID = id;
        c.nrCerere = id;
        for (const QString& cnp : cnpuri) {
            const qint64 membru = id * 100 + c.persoane.size() + 1;
            c.persoane.push_back(
                {membru, QStringLiteral("Popa"), QStringLiteral("P%1").arg(membru), cnp, c.persoane.isEmpty() ? 1 : 3});
        }
        AdaugaCerereTest(Bd(), c);
        return id;
    }

    // An inquiry that passes every check, on request cerereID, made on d.
    static Ancheta Completa(qint64 cerereID, const QDate& d, int nrCopii) {
        Ancheta a;
        a.CerereID = cerereID;
        a.DataAncheta = d;
        a.Intocmitor = QStringLiteral("Ionescu Maria");
        a.NrMembrii = 2;
        a.NrCopii = nrCopii;
        a.TipLocuinta = 3;
        a.RegimJuridic = 1;
        a.NrCamere = QStringLiteral("3");
        a.SuprUtila = QStringLiteral("54.5");
        a.TipDetinere = 1;
        return a;
    }

    qint64 NrAnchete() { return Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")); }
};

TEST_P(AncheteBaza, CalculExpirareDupaVarstaCopiilor) {
    const QDate d(2024, 5, 10), l(2024, 11, 10);
    const QDate adult(1985, 3, 2);
    const QString lunaGresita = QStringLiteral("1851310400017"), ziGresita = QStringLiteral("5140232400027");
    const auto T = [](const char* s) { return QString::fromLatin1(s); };
    // The titular and one child born on that day.
    const auto cu = [&](const QDate& copil) { return QStringList{Cnp(adult, 1), Cnp(copil, 2)}; };
    const struct {
        const char* nume;
        QDate d;
        QStringList cnpuri;
        int membri, copii;
        QDate expira;
        QString motiv;
        QStringList mesaje;
    } cazuri[] = {
        {"un copil de 10 ani", d, cu(QDate(2014, 2, 3)), 2, 1, l, Valabil, {}},
        {"singurul copil implineste 18 ani in trei luni", d, cu(QDate(2006, 8, 10)), 2, 1, {}, Incetata, {FaraCopii}},
        {"fara minori", d, cu(QDate(2001, 1, 1)), 2, 0, {}, Incetata, {FaraCopii}},
        {"doi copii si un adult", d, cu(QDate(2012, 6, 1)) << Cnp(QDate(2006, 7, 1), 3), 3, 2, l, Valabil, {}},
        {"majoratul chiar la sfarsitul termenului", d, cu(QDate(2006, 11, 10)), 2, 1, {}, Incetata, {FaraCopii}},
        {"majoratul a doua zi dupa termen", d, cu(QDate(2006, 11, 11)), 2, 1, l, Valabil, {}},
        {"majoratul chiar in ziua anchetei", d, cu(QDate(2006, 5, 10)), 2, 0, {}, Incetata, {FaraCopii}},
        {"31 august intr-un an comun", QDate(2022, 8, 31), cu(QDate(2015, 1, 1)), 2, 1, QDate(2023, 3, 3), Valabil, {}},
        {"31 august, apoi an bisect", QDate(2023, 8, 31), cu(QDate(2015, 1, 1)), 2, 1, QDate(2024, 3, 2), Valabil, {}},
        {"31 decembrie", QDate(2023, 12, 31), cu(QDate(2015, 1, 1)), 2, 1, QDate(2024, 7, 1), Valabil, {}},
        {"luna necitita", d, {lunaGresita, Cnp(QDate(2014, 2, 3), 2)}, 2, 1, l, Valabil, {T("Luna incorecta")}},
        {"ziua necitita", d, {Cnp(adult, 1), ziGresita}, 2, 0, {}, Incetata, {T("Zi incorecta"), FaraCopii}},
        {"CNP prea scurt", d, {QStringLiteral("123"), Cnp(QDate(2014, 2, 3), 2)}, 2, 1, l, Valabil, {}},
        {"data goala nu calculeaza nimic", QDate(), cu(QDate(2014, 2, 3)), 0, 0, {}, {}, {}},
    };
    qint64 id = 1;
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        Cerere(id, c.cnpuri);
        mesaje.mesaje.clear();
        const Expirare e = Anchete::CalculExpirare(Bd(), id, c.d, mesaje);
        EXPECT_EQ(e.NrMembrii, c.membri);
        EXPECT_EQ(e.NrCopii, c.copii);
        EXPECT_EQ(e.DataExpirarii, c.expira);
        EXPECT_EQ(e.Motiv, c.motiv);
        EXPECT_EQ(mesaje.Texte(), c.mesaje);
        ++id;
    }
}

TEST_P(AncheteBaza, VerificaControaleInOrdine) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    Ancheta a;
    a.CerereID = cerere;
    // Each step mends what the previous one refused; the request counts two children, so the
    // warning comes every time and the next failing check still speaks after it.
    const struct {
        std::function<void(Ancheta&)> schimba;
        QString mesaj;
        const char* control;
    } pasi[] = {
        {[](Ancheta&) {}, QStringLiteral("Nu puteti salva datele inainte de a Data Ancheta"), "dtpData"},
        {[](Ancheta& x) { x.DataAncheta = QDate(2024, 5, 10); },
         QStringLiteral("Pentru Data Selectata nu mai sunt copii, asa ca ancheta nu are sens! Fie schimbati Data "
                        "Anchetei, fie Renuntati"),
         "dtpData"},
        {[](Ancheta& x) {
             x.NrCopii = 1;
             x.Intocmitor = QStringLiteral("  \t ");
         },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Numele Intocmitorului"), "txtCerere_0"},
        {[](Ancheta& x) {
             x.Intocmitor = QStringLiteral("Ionescu Maria");
             x.NrCamere = QStringLiteral(",5");
         },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul de camere"), "txtCerere_1"},
        {[](Ancheta& x) {
             x.NrCamere = QStringLiteral(" 3");
             x.SuprUtila = QStringLiteral("mp 54");
         },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Suprafata"), "txtCerere_2"},
        {[](Ancheta& x) { x.SuprUtila = QStringLiteral("54,5"); },
         QStringLiteral("Tipul locuintei incorect. Selectati din lista!"), "cboCerere_0"},
        {[](Ancheta& x) { x.TipLocuinta = 3; },
         QStringLiteral("Regim juridic incorect. Selectati un Regim juridic din lista!"), "cboCerere_1"},
        {[](Ancheta& x) { x.RegimJuridic = 1; },
         QStringLiteral("Detine in proprietate incorect. Selectati din lista: 'in proprietate' sau 'in folosinta'!"),
         "cboCerere_3"},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.mesaj.toStdString());
        p.schimba(a);
        mesaje.mesaje.clear();
        const VerificareAncheta v = Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Adaugare, 2);
        EXPECT_FALSE(v.ok);
        EXPECT_FALSE(v.inchide);
        EXPECT_EQ(v.control, QString::fromLatin1(p.control));
        EXPECT_EQ(mesaje.Texte(Fel::Avertisment), QStringList{NepotrivireCopii});
        EXPECT_EQ(mesaje.Texte(Fel::Informatie), QStringList{p.mesaj});
    }

    // The type of cohabitation is not required; with the ownership chosen all passes, after the warning.
    a.TipDetinere = 2;
    mesaje.mesaje.clear();
    EXPECT_TRUE(Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Adaugare, 2).ok);
    EXPECT_EQ(mesaje.Texte(), QStringList{NepotrivireCopii});
    // The same count as the request's: silent.
    mesaje.mesaje.clear();
    EXPECT_TRUE(Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Adaugare, 1).ok);
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    // A warned inquiry is still saved.
    EXPECT_EQ(Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare), 1);
    EXPECT_EQ(NrAnchete(), 1);
}

TEST_P(AncheteBaza, ModificareaUneiAnchetePlecateInchideFereastra) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    Ancheta a = Completa(cerere, QDate(2024, 5, 10), 1);
    a.AnchetaID = Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare);
    mesaje.mesaje.clear();
    EXPECT_TRUE(Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Modificare, 1).ok);
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    Ancheta alta = a;
    alta.AnchetaID = a.AnchetaID + 1;
    alta.Intocmitor.clear(); // the existence check comes before every other
    const VerificareAncheta v = Anchete::VerificaControale(Bd(), mesaje, alta, ModAncheta::Modificare, 2);
    EXPECT_FALSE(v.ok);
    EXPECT_TRUE(v.inchide);
    EXPECT_EQ(mesaje.Texte(), QStringList{Stearsa});

    // Gone between the check and the save: the change reaches nothing and says why.
    alta.Intocmitor = QStringLiteral("Altcineva");
    try {
        Anchete::Salveaza(Bd(), mesaje, alta, ModAncheta::Modificare);
        ADD_FAILURE() << "the change of a missing inquiry was accepted";
    } catch (const Eroare& e) {
        EXPECT_EQ(e.text(), Stearsa);
    }
    EXPECT_EQ(NrAnchete(), 1);
}

TEST_P(AncheteBaza, SalvareaAdaugaSiModifica) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2006, 8, 10), 2), Cnp(QDate(2014, 2, 3), 3)});
    Ancheta a = Completa(cerere, QDate(2024, 5, 10), 2);
    a.NrMembrii = 3;
    a.Intocmitor = QStringLiteral("Ţăranu O'Neil");
    a.TipLocuire = 4;
    a.Bunuri = QStringLiteral("frigider, televizor");
    a.Igiena = QStringLiteral("bune");
    a.Teren = QStringLiteral("0,50 ha");
    a.Cladiri = QStringLiteral("casa si anexe");
    a.Spatii = QStringLiteral("2 camere");
    a.AlteBunuri = QStringLiteral("bicicleta");
    a.StareSanatate = QStringLiteral("buna");
    a.Nevoi = QStringLiteral("nu");
    a.Aspecte = QStringLiteral("familia locuieste in casa bunicilor");
    // What the editor's labels held is replaced by a fresh computation.
    a.DataExpirarii = QDate(2030, 1, 1);
    a.Motiv = QStringLiteral("vechi");

    const qint64 id = Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare);
    EXPECT_EQ(id, 1) << "an empty table starts at 1";
    auto citita = Anchete::Citeste(Bd(), id);
    ASSERT_TRUE(citita.has_value());
    Ancheta asteptat = a;
    asteptat.AnchetaID = id;
    asteptat.DataExpirarii = QDate(2024, 11, 10);
    asteptat.Motiv = Valabil;
    const auto campuri = [](const Ancheta& x) {
        return QStringList{QString::number(x.AnchetaID),
                           QString::number(x.CerereID),
                           x.DataAncheta.toString(Qt::ISODate),
                           x.Intocmitor,
                           x.DataExpirarii.toString(Qt::ISODate),
                           x.Motiv,
                           QString::number(x.NrMembrii),
                           QString::number(x.NrCopii),
                           QString::number(x.TipLocuinta.value_or(-1)),
                           QString::number(x.RegimJuridic.value_or(-1)),
                           x.NrCamere,
                           x.SuprUtila,
                           x.Bunuri,
                           x.Igiena,
                           QString::number(x.TipLocuire.value_or(-1)),
                           QString::number(x.TipDetinere.value_or(-1)),
                           x.Teren,
                           x.Cladiri,
                           x.Spatii,
                           x.AlteBunuri,
                           x.StareSanatate,
                           x.Nevoi,
                           x.Aspecte};
    };
    EXPECT_EQ(campuri(*citita), campuri(asteptat));
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    // A change: the visit a year later, when the only child left under 18 comes of age within the
    // term; the request is then ended and the optional fields emptied.
    Ancheta b = *citita;
    b.DataAncheta = QDate(2031, 11, 1);
    b.NrCopii = 1;
    b.Intocmitor = QStringLiteral("Vasilescu Ana");
    b.TipLocuire.reset();
    b.Teren.clear();
    b.NrCamere = QStringLiteral("2.5");
    b.SuprUtila = QStringLiteral("61,7");
    EXPECT_EQ(Anchete::Salveaza(Bd(), mesaje, b, ModAncheta::Modificare), id);
    EXPECT_EQ(mesaje.Texte(), QStringList{FaraCopii});
    citita = Anchete::Citeste(Bd(), id);
    ASSERT_TRUE(citita.has_value());
    asteptat = b;
    asteptat.DataExpirarii = QDate();
    asteptat.Motiv = Incetata;
    asteptat.NrCamere = QStringLiteral("2");   // Val, then the nearest whole number, halves to even
    asteptat.SuprUtila = QStringLiteral("61"); // Val stops at the comma
    EXPECT_EQ(campuri(*citita), campuri(asteptat));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE Teren IS NULL AND TipLocuire IS NULL "
                                   "AND DataExpirarii IS NULL")),
              1);
    EXPECT_EQ(NrAnchete(), 1);
    EXPECT_FALSE(Anchete::Citeste(Bd(), id + 1).has_value());
}

TEST_P(AncheteBaza, NumereleTastateIncapInCampuri) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    const struct {
        const char* camere;
        const char* suprafata;
        const char* camereCitite; // empty: refused
        const char* suprafataCitita;
    } cazuri[] = {
        {"3 camere", "48.25", "3", "48.25"}, {"3.5", "1 2 0", "4", "120"}, {"-2", "0.5", "-2", "0.5"},
        {"99999999999", "50", "", ""},       {"3", "1e40", "", ""},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.camere);
        Ancheta a = Completa(cerere, QDate(2024, 5, 10), 1);
        a.NrCamere = QString::fromLatin1(c.camere);
        a.SuprUtila = QString::fromLatin1(c.suprafata);
        const qint64 inainte = NrAnchete();
        if (*c.camereCitite == '\0') {
            EXPECT_THROW(Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare), Eroare);
            EXPECT_EQ(NrAnchete(), inainte);
            continue;
        }
        const auto citita = Anchete::Citeste(Bd(), Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare));
        ASSERT_TRUE(citita.has_value());
        EXPECT_EQ(citita->NrCamere, QString::fromLatin1(c.camereCitite));
        EXPECT_EQ(citita->SuprUtila, QString::fromLatin1(c.suprafataCitita));
    }
}

TEST_P(AncheteBaza, CheiaNouaEsteMaximulPlusUnu) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID) VALUES (?, ?), (?, ?)"), 41, 900, 7, 900);
    const Ancheta a = Completa(cerere, QDate(2024, 5, 10), 1);
    EXPECT_EQ(Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare), 42);
    EXPECT_EQ(Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare), 43);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE CerereID = 1")), 2);
}

TEST_P(AncheteBaza, ListaAnchetelorCereriiCeleMaiNoiIntai) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    EXPECT_TRUE(Anchete::ListaAnchete(Bd(), cerere).empty());
    const QString ins = QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, NrMembrii, NrCopii, "
                                       "DataExpirarii, Motiv) VALUES (?, ?, ?, ?, ?, ?, ?)");
    const QVariant nul;
    ExecutaCu(Bd(), ins, 5, cerere, QDate(2023, 2, 3), 4, 2, QDate(2023, 8, 3), Valabil);
    ExecutaCu(Bd(), ins, 6, cerere, nul, nul, nul, nul, nul);
    ExecutaCu(Bd(), ins, 7, cerere, QDate(2024, 11, 28), 3, 0, nul, Incetata);
    ExecutaCu(Bd(), ins, 8, 900, QDate(2024, 12, 1), 2, 1, nul, nul);

    const auto randuri = Anchete::ListaAnchete(Bd(), cerere);
    const auto text = [](const RandAncheta& r) {
        return QStringList{QString::number(r.AnchetaID), r.Data, r.NrMembrii, r.NrCopii, r.DataExpirarii, r.Motiv}.join(
            QLatin1Char('|'));
    };
    QStringList obtinut;
    for (const auto& r : randuri)
        obtinut << text(r);
    EXPECT_EQ(obtinut,
              (QStringList{QStringLiteral("7|28.11.2024|3|0||") + Incetata,
                           QStringLiteral("5|03.02.2023|4|2|03.08.2023|") + Valabil, QStringLiteral("6|||||")}));
    EXPECT_EQ(Anchete::TitluAnchete(QStringLiteral("Popa Ion"), randuri.size()),
              QStringLiteral("Anchetele lui Popa Ion."));
    EXPECT_EQ(Anchete::TitluAnchete(QStringLiteral("Popa Ion"), 0), QString());
}

TEST_P(AncheteBaza, ListeleDateGenInOrdineaLorCuLitereMici) {
    const auto texte = [](const std::vector<ElementDateGen>& l) {
        QStringList t;
        for (const auto& e : l)
            t << QStringLiteral("%1 %2").arg(e.DataID).arg(e.Continut);
        return t;
    };
    EXPECT_EQ(texte(Anchete::ListaDateGen(Bd(), TipDateGen::Detinere)),
              (QStringList{QStringLiteral("1 in proprietate"), QStringLiteral("2 in folosinta")}));
    for (int tip : {4, 5, 7})
        EXPECT_FALSE(Anchete::ListaDateGen(Bd(), TipDateGen(tip)).empty()) << tip;
    Interogare ins(
        Bd(), QStringLiteral("INSERT INTO DateGen (Denumire, Tip, DataID, Continut, Ordine) VALUES (?, ?, ?, ?, ?)"));
    ins.Leaga("PROBA").Leaga(98).Leaga(1).Leaga(QStringLiteral("ÎNTÂI")).Leaga(3).Executa();
    ins.Leaga("PROBA").Leaga(98).Leaga(2).Leaga(QStringLiteral("Al Doilea")).Leaga(1).Executa();
    ins.Leaga("PROBA").Leaga(98).Leaga(3).Leaga(QVariant()).Leaga(2).Executa();
    EXPECT_EQ(texte(Anchete::ListaDateGen(Bd(), TipDateGen(98))),
              (QStringList{QStringLiteral("2 al doilea"), QStringLiteral("3 "), QStringLiteral("1 întâi")}));
}

TEST_P(AncheteBaza, ComenzileCautaRandulInainte) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    const qint64 prima = Anchete::Salveaza(Bd(), mesaje, Completa(cerere, QDate(2024, 5, 10), 1), ModAncheta::Adaugare);
    const qint64 aDoua = Anchete::Salveaza(Bd(), mesaje, Completa(cerere, QDate(2024, 6, 10), 1), ModAncheta::Adaugare);
    const struct {
        const char* nume;
        std::function<bool()> comanda;
        bool rezultat;
        QStringList mesaje;
    } cazuri[] = {
        {"adaugare fara cerere",
         [&] { return Anchete::PoateAdauga(Bd(), mesaje, 0); },
         false,
         {QStringLiteral("Selectati o cerere")}},
        {"adaugare la o cerere stearsa",
         [&] { return Anchete::PoateAdauga(Bd(), mesaje, 55); },
         false,
         {QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta")}},
        {"adaugare", [&] { return Anchete::PoateAdauga(Bd(), mesaje, cerere); }, true, {}},
        {"modificare fara ancheta",
         [&] { return Anchete::PoateModifica(Bd(), mesaje, 0); },
         false,
         {QStringLiteral("Selectati o ancheta")}},
        {"modificarea unei anchete sterse",
         [&] { return Anchete::PoateModifica(Bd(), mesaje, 77); },
         false,
         {RandNegasit}},
        {"modificare", [&] { return Anchete::PoateModifica(Bd(), mesaje, prima); }, true, {}},
        {"stergere fara ancheta",
         [&] { return Anchete::Sterge(Bd(), mesaje, 0, QString()); },
         false,
         {QStringLiteral("Selectati o ancheta!")}},
        {"stergerea unei anchete sterse",
         [&] { return Anchete::Sterge(Bd(), mesaje, 77, QStringLiteral("77")); },
         false,
         {RandNegasit}},
        {"stergere la care se raspunde Nu",
         [&] {
             mesaje.raspunsuri = {false};
             return Anchete::Sterge(Bd(), mesaje, aDoua, QString::number(aDoua));
         },
         false,
         {QStringLiteral("Sigur doriti sa stergeti ancheta %1 ?").arg(aDoua)}},
        {"stergere",
         [&] { return Anchete::Sterge(Bd(), mesaje, aDoua, QString::number(aDoua)); },
         true,
         {QStringLiteral("Sigur doriti sa stergeti ancheta %1 ?").arg(aDoua)}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.nume);
        mesaje.mesaje.clear();
        EXPECT_EQ(c.comanda(), c.rezultat);
        EXPECT_EQ(mesaje.Texte(), c.mesaje);
    }
    // Only the answered one is gone, found by its own key.
    EXPECT_TRUE(Anchete::Citeste(Bd(), prima).has_value());
    EXPECT_FALSE(Anchete::Citeste(Bd(), aDoua).has_value());
    EXPECT_EQ(NrAnchete(), 1);
}

PE_AMBELE_MOTOARE(AncheteBaza);

} // namespace
