#include "cases/SalvareCerere.h"
#include "cli/CliTest.h"
#include "base/Ceas.h"
#include "maintenance/Demo.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"

#include <QDir>
#include <QFile>
#include <map>

namespace {

class CliCuantum : public TestCli {
protected:
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }
    IesireCli Cuantum(qint64 id, QStringList extra = {}) {
        return Ruleaza(QStringList{QStringLiteral("cuantum"), QString::number(id)} + extra);
    }
};

// On generated data, every request in payment opened in the month of its DataStare gets back
// the amount and the child count that the generator stored. Requests with a person born after
// that date are left out: the generator leaves such a person out of the family at that date.
TEST_P(CliCuantum, PeDateDemoRegasesteCuantumulSalvat) {
    BazaNoua();
    Ceas::SeteazaAzi(QDate(2025, 6, 18));
    Demo::Optiuni o;
    o.cereri = 80;
    Demo::Genereaza(Bd(), o);

    std::map<qint64, bool> nascutDupa;
    {
        Interogare q(Bd(), QStringLiteral("SELECT CM.CerereID, CM.Data18Ani, C.DataStare FROM CereriMembrii CM "
                                          "INNER JOIN Cereri C ON C.CerereID = CM.CerereID"));
        q.Executa();
        while (q.Urmator()) {
            const QDate data18 = q.Data(QStringLiteral("Data18Ani"));
            bool& dupa = nascutDupa[q.Intreg(0)];
            dupa = dupa || (data18.isValid() && data18.addYears(-18) > q.Data(QStringLiteral("DataStare")));
        }
    }
    struct Cerere {
        qint64 id;
        QDate dataStare;
        Bani cuantum;
        qint64 nrCopii;
    };
    std::vector<Cerere> cereri;
    {
        Interogare q(Bd(), QStringLiteral("SELECT CerereID, DataStare, Cuantum, NrCopii FROM Cereri "
                                          "WHERE Stare IN (?, ?, ?, ?, ?) ORDER BY CerereID"));
        q.Leaga(1).Leaga(2).Leaga(6).Leaga(7).Leaga(8).Executa();
        while (q.Urmator())
            if (!nascutDupa[q.Intreg(0)])
                cereri.push_back({q.Intreg(0), q.Data(QStringLiteral("DataStare")), q.Suma(QStringLiteral("Cuantum")),
                                  q.Intreg(QStringLiteral("NrCopii"))});
    }
    ASSERT_GE(cereri.size(), 25u);
    int cuSuma = 0;
    for (const Cerere& c : cereri) {
        SCOPED_TRACE(c.id);
        const IesireCli r = Cuantum(c.id, {QStringLiteral("--luna"), QString::number(c.dataStare.month()),
                                           QStringLiteral("--an"), QString::number(c.dataStare.year())});
        ASSERT_EQ(r.cod, 0) << r.err.toStdString();
        const QStringList parti = r.out.trimmed().split(u' ');
        ASSERT_EQ(parti.size(), 2) << r.out.toStdString();
        EXPECT_EQ(parti[1], QStringLiteral("Cuantum=") + c.cuantum.Text());
        if (c.nrCopii > 0) {
            EXPECT_EQ(parti[0], QStringLiteral("NrCopii=%1").arg(c.nrCopii));
        }
        if (c.cuantum > Bani()) ++cuSuma;
    }
    EXPECT_GE(cuSuma, 10) << "enough requests with an amount";
}

// The working month: --luna and --an, else the settings file of --dir, else today's month.
TEST_P(CliCuantum, LunaDeLucruDinArgumenteSetariSauAzi) {
    BazaNoua();
    Dosar d = DosarComplet(Bd());
    MembruCerere titular = (*d.stare.MatriceMembri)[0];
    MembruCerere copil = (*d.stare.MatriceMembri)[2];
    copil.Data18Ani = QDate(2015, 3, 15); // counted in March 2015, no longer in April
    d.stare.MatriceMembri = std::vector<MembruCerere>{titular, copil};
    d.date.dtpData = {QDate(2015, 2, 10), QDate(2015, 3, 1)};
    d.date.txtCerere[16] = QStringLiteral("1");
    OptiuniSalvare o = OptiuniDosar();
    o.LunaSetata = 3;
    o.AnSetat = 2015;
    ASSERT_EQ(SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, o, mesaje).stare, RezultatSalvare::Stare::Salvata);
    Inchide();

    // One child, kind 1, 100 lei per member: 0.164 x 525.5 = 86.182, rounded up.
    const QString martie = QStringLiteral("NrCopii=1 Cuantum=87.0000\n");
    const QString aprilie = QStringLiteral("NrCopii=0 Cuantum=0.0000\n");
    const QString avertisment =
        QStringLiteral("Numarul de copii salvati in baza de date este diferit\nsi se va recalcula.\n");

    IesireCli r =
        Cuantum(1, {QStringLiteral("--luna"), QStringLiteral("3"), QStringLiteral("--an"), QStringLiteral("2015")});
    EXPECT_EQ(r.cod, 0);
    EXPECT_EQ(r.out, martie);
    EXPECT_EQ(r.err, QString());
    r = Cuantum(1, {QStringLiteral("--an"), QStringLiteral("2015"), QStringLiteral("--luna"), QStringLiteral("4")});
    EXPECT_EQ(r.out, aprilie);
    EXPECT_EQ(r.err, avertisment) << "messages go to stderr";

    Ceas::SeteazaAzi(QDate(2015, 4, 10));
    r = Cuantum(1);
    EXPECT_EQ(r.out, aprilie) << "today's month without a settings file";

    QFile ini(QDir(Locatie().caleBD).filePath(QStringLiteral("setari207.ini")));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Setari]\r\nLunaSetata=3\r\nAnSetat=2015\r\n");
    ini.close();
    r = Cuantum(1);
    EXPECT_EQ(r.cod, 0);
    EXPECT_EQ(r.out, martie) << "the settings' month";
    r = Cuantum(1, {QStringLiteral("--luna"), QStringLiteral("4"), QStringLiteral("--an"), QStringLiteral("2015")});
    EXPECT_EQ(r.out, aprilie) << "the arguments win";

    r = Cuantum(2);
    EXPECT_EQ(r.cod, 1);
    EXPECT_EQ(r.out, QString());
    EXPECT_EQ(r.err, QStringLiteral("Cererea cu ID-ul 2 nu exista in baza de date.\n"));
}

PE_AMBELE_MOTOARE(CliCuantum);

} // namespace
