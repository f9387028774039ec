#include "base/Eroare.h"
#include "cases/Anchete.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

#include <QStringList>
#include <functional>
#include <gtest/gtest.h>

namespace {

const QString Valabil = QStringLiteral("valabilitate 6 luni");
const QString Incetata = QStringLiteral("Cererea este INCETATA!");

// A CNP born on that day: the century digit of a man, then YYMMDD; the rest is not read here.
QString Cnp(const QDate& nastere, int n) {
    const QChar secol = nastere.year() >= 2000 ? u'5' : u'1';
    return secol + nastere.toString(QStringLiteral("yyMMdd")) + QStringLiteral("40%1").arg(n, 3, 10, QLatin1Char('0')) +
           QLatin1Char('7');
}

// The fields of an inquiry, as one text.
QString Campuri(const Ancheta& x) {
    QStringList t{QString::number(x.AnchetaID),
                  QString::number(x.CerereID),
                  x.DataAncheta.toString(Qt::ISODate),
                  x.Intocmitor,
                  x.DataExpirarii.toString(Qt::ISODate),
                  x.Motiv,
                  QString::number(x.NrMembrii),
                  QString::number(x.NrCopii),
                  x.NrCamere,
                  x.SuprUtila,
                  x.Bunuri,
                  x.Igiena,
                  x.Teren,
                  x.Cladiri,
                  x.Spatii,
                  x.AlteBunuri,
                  x.StareSanatate,
                  x.Nevoi,
                  x.Aspecte};
    for (const auto& o : {x.TipLocuinta, x.RegimJuridic, x.TipLocuire, x.TipDetinere})
        t << QString::number(o.value_or(-1));
    return t.join(u'|');
}

// A day past the month's end rolls into the next month.
TEST(SaseLuni, ZiuaPesteSfarsitulLuniiTreceInLunaUrmatoare) {
    const std::pair<QDate, QDate> cazuri[] = {{{2024, 1, 15}, {2024, 7, 15}}, {{2022, 8, 31}, {2023, 3, 3}},
                                              {{2023, 8, 31}, {2024, 3, 2}},  {{2023, 8, 29}, {2024, 2, 29}},
                                              {{2022, 8, 29}, {2023, 3, 1}},  {{2023, 12, 31}, {2024, 7, 1}},
                                              {{2024, 7, 31}, {2025, 1, 31}}, {{}, {}}};
    for (const auto& [d, asteptat] : cazuri)
        EXPECT_EQ(Anchete::SaseLuni(d), asteptat) << d.toString(Qt::ISODate).toStdString();
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
        c.cerereID = c.nrCerere = id;
        for (const QString& cnp : cnpuri) {
            const qint64 membru = id * 100 + c.persoane.size() + 1;
            c.persoane.push_back(
                {membru, QStringLiteral("Popa"), QStringLiteral("P%1").arg(membru), cnp, c.persoane.isEmpty() ? 1 : 3});
        }
        AdaugaCerereTest(Bd(), c);
        return id;
    }

    // An inquiry that passes every check, on request cerereID, made on d.
    static Ancheta Completa(qint64 cerereID, const QDate& d, int nrCopii = 1) {
        Ancheta a;
        a.CerereID = cerereID;
        a.DataAncheta = d;
        a.Intocmitor = QStringLiteral("Ionescu Maria");
        a.NrMembrii = 2;
        a.NrCopii = nrCopii;
        a.TipLocuinta = a.RegimJuridic = a.TipDetinere = 1;
        a.NrCamere = QStringLiteral("3");
        a.SuprUtila = QStringLiteral("54.5");
        return a;
    }

    qint64 NrAnchete() { return Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")); }
};

// Six months while a child stays under 18 through the term, else the request ends (told); bad CNPs told.
TEST_P(AncheteBaza, CalculExpirareDupaVarstaCopiilor) {
    const QDate d(2024, 5, 10), l(2024, 11, 10);
    const auto cu = [&](const QDate& copil) { return QStringList{Cnp(QDate(1985, 3, 2), 1), Cnp(copil, 2)}; };
    // The day, the CNPs, the members and the children counted, the expiry, its reason, the messages.
    const std::tuple<QDate, QStringList, int, int, QDate, QString, int> cazuri[] = {
        {d, cu(QDate(2014, 2, 3)), 2, 1, l, Valabil, 0},
        {d, cu(QDate(2001, 1, 1)), 2, 0, {}, Incetata, 1},
        {d, cu(QDate(2012, 6, 1)) << Cnp(QDate(2006, 7, 1), 3), 3, 2, l, Valabil, 0},
        {d, cu(QDate(2006, 11, 10)), 2, 1, {}, Incetata, 1}, // of age on the last day of the term
        {d, cu(QDate(2006, 11, 11)), 2, 1, l, Valabil, 0},   // the day after
        {d, cu(QDate(2006, 5, 10)), 2, 0, {}, Incetata, 1},  // on the day of the inquiry
        {QDate(2023, 8, 31), cu(QDate(2015, 1, 1)), 2, 1, QDate(2024, 3, 2), Valabil, 0},
        {d, {QStringLiteral("1851310400017"), Cnp(QDate(2014, 2, 3), 2)}, 2, 1, l, Valabil, 1}, // month 13
        {QDate(), cu(QDate(2014, 2, 3)), 0, 0, {}, {}, 0},
    };
    qint64 id = 1;
    for (const auto& [ziua, cnpuri, membri, copii, expira, motiv, nrMesaje] : cazuri) {
        SCOPED_TRACE(id);
        Cerere(id, cnpuri);
        mesaje.mesaje.clear();
        const Expirare e = Anchete::CalculExpirare(Bd(), id++, ziua, mesaje);
        EXPECT_EQ((std::array{e.NrMembrii, e.NrCopii, int(mesaje.mesaje.size())}),
                  (std::array{membri, copii, nrMesaje}));
        EXPECT_EQ(e.DataExpirarii, expira);
        EXPECT_EQ(e.Motiv, motiv);
    }
}

// The checks of OK in order; another child count only warns; an inquiry gone closes the editor first.
TEST_P(AncheteBaza, VerificaControaleInOrdine) {
    Ancheta a;
    a.CerereID = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2014, 2, 3), 2)});
    const std::pair<std::function<void(Ancheta&)>, const char*> pasi[] = {
        {[](Ancheta&) {}, "dtpData"},
        {[](Ancheta& x) { x.DataAncheta = QDate(2024, 5, 10); }, "dtpData"}, // no child on the day
        {[](Ancheta& x) { x.NrCopii = 1, x.Intocmitor = QStringLiteral("  \t "); }, "txtCerere_0"},
        {[](Ancheta& x) { x.Intocmitor = QStringLiteral("Ion"), x.NrCamere = QStringLiteral(",5"); }, "txtCerere_1"},
        {[](Ancheta& x) { x.NrCamere = QStringLiteral(" 3"), x.SuprUtila = QStringLiteral("mp 54"); }, "txtCerere_2"},
        {[](Ancheta& x) { x.SuprUtila = QStringLiteral("54,5"); }, "cboCerere_0"},
        {[](Ancheta& x) { x.TipLocuinta = 3; }, "cboCerere_1"},
        {[](Ancheta& x) { x.RegimJuridic = 1; }, "cboCerere_3"},
        {[](Ancheta& x) { x.TipDetinere = 2; }, ""},
    };
    for (const auto& [schimba, control] : pasi) {
        schimba(a);
        mesaje.mesaje.clear();
        const VerificareAncheta v = Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Adaugare, 2);
        EXPECT_EQ(v.ok, !*control) << control;
        EXPECT_EQ(v.control, QLatin1String(control));
        EXPECT_EQ(mesaje.Texte(Mesaje::Fel::Avertisment).size(), 1) << control;
        EXPECT_EQ(mesaje.Texte(Mesaje::Fel::Informatie).size(), *control ? 1 : 0) << control;
    }
    mesaje.mesaje.clear();
    EXPECT_TRUE(Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Adaugare, 1).ok);
    EXPECT_TRUE(mesaje.Texte().isEmpty()) << "the same count as the request's: silent";

    a.AnchetaID = Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare);
    EXPECT_TRUE(Anchete::VerificaControale(Bd(), mesaje, a, ModAncheta::Modificare, 1).ok);
    Ancheta alta = a;
    alta.AnchetaID = a.AnchetaID + 1;
    alta.Intocmitor.clear();
    mesaje.mesaje.clear();
    const VerificareAncheta v = Anchete::VerificaControale(Bd(), mesaje, alta, ModAncheta::Modificare, 2);
    EXPECT_TRUE(!v.ok && v.inchide);
    EXPECT_EQ(mesaje.Texte().size(), 1);
    alta.Intocmitor = QStringLiteral("Altcineva");
    EXPECT_THROW(Anchete::Salveaza(Bd(), mesaje, alta, ModAncheta::Modificare), Eroare);
    EXPECT_EQ(NrAnchete(), 1);
}

// Every field read back, the expiry computed afresh, keys MAX + 1, numbers by Val rounded half to even.
TEST_P(AncheteBaza, SalvareaAdaugaSiModifica) {
    const qint64 cerere = Cerere(1, {Cnp(QDate(1985, 3, 2), 1), Cnp(QDate(2006, 8, 10), 2), Cnp(QDate(2014, 2, 3), 3)});
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID) VALUES (?, ?)"), 41, 900);
    Ancheta a = Completa(cerere, QDate(2024, 5, 10), 2);
    a.NrMembrii = 3;
    a.Intocmitor = QStringLiteral("Ţăranu O'Neil");
    a.TipLocuire = 4;
    const std::array campuri{&a.Bunuri,     &a.Igiena,        &a.Teren, &a.Cladiri, &a.Spatii,
                             &a.AlteBunuri, &a.StareSanatate, &a.Nevoi, &a.Aspecte};
    for (size_t i = 0; i < campuri.size(); ++i)
        *campuri[i] = QStringLiteral("text %1, cu o virgula").arg(i);
    a.DataExpirarii = QDate(2030, 1, 1); // what the editor's labels held is replaced
    a.Motiv = QStringLiteral("vechi");
    const qint64 id = Anchete::Salveaza(Bd(), mesaje, a, ModAncheta::Adaugare);
    EXPECT_EQ(id, 42);
    Ancheta asteptat = a;
    asteptat.AnchetaID = id;
    asteptat.DataExpirarii = QDate(2024, 11, 10);
    asteptat.Motiv = Valabil;
    ASSERT_TRUE(Anchete::Citeste(Bd(), id));
    EXPECT_EQ(Campuri(*Anchete::Citeste(Bd(), id)), Campuri(asteptat));

    Ancheta b = asteptat;
    b.DataAncheta = QDate(2031, 11, 1);
    b.NrCopii = 1;
    b.TipLocuire.reset();
    b.Teren.clear();
    b.NrCamere = QStringLiteral("2.5");
    b.SuprUtila = QStringLiteral("61,7");
    EXPECT_EQ(Anchete::Salveaza(Bd(), mesaje, b, ModAncheta::Modificare), id);
    EXPECT_EQ(mesaje.Texte().size(), 1);
    asteptat = b;
    asteptat.DataExpirarii = QDate();
    asteptat.Motiv = Incetata;
    asteptat.NrCamere = QStringLiteral("2");
    asteptat.SuprUtila = QStringLiteral("61");
    EXPECT_EQ(Campuri(*Anchete::Citeste(Bd(), id)), Campuri(asteptat));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE Teren IS NULL AND TipLocuire IS NULL "
                                   "AND DataExpirarii IS NULL AND AnchetaID = 42")),
              1);

    // A number that does not fit its field writes nothing.
    Ancheta n = Completa(cerere, QDate(2024, 5, 10), 2);
    n.NrCamere = QStringLiteral("99999999999");
    EXPECT_THROW(Anchete::Salveaza(Bd(), mesaje, n, ModAncheta::Adaugare), Eroare);
    n.NrCamere = QStringLiteral("3");
    n.SuprUtila = QStringLiteral("1e40");
    EXPECT_THROW(Anchete::Salveaza(Bd(), mesaje, n, ModAncheta::Adaugare), Eroare);
    EXPECT_EQ(NrAnchete(), 2);
}

PE_AMBELE_MOTOARE(AncheteBaza);

} // namespace
