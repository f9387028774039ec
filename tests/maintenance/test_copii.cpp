#include "maintenance/Copii.h"
#include "maintenance/CopieInFundal.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QEventLoop>
#include <QThread>
#include <QTimer>
#include <atomic>

namespace {

// Which copies go: the newest of each of the last 30 days and of the last 12 months stay; files of
// other names are never touched.
TEST(Copii, RotatiaPastreazaZileleSiLunile) {
    QStringList fisiere{T("altceva.db"), T("Inainte-de-restaurare-20260101-000000.db")};
    // Two copies a day for 40 days from 1 October 2026, and one on the 15th of each month of 2025.
    for (int z = 0; z < 40; ++z) {
        const QString zi = QDate(2026, 10, 1).addDays(z).toString(T("yyyyMMdd"));
        fisiere << T("Ferolanta-%1-080000.db").arg(zi) << T("Ferolanta-%1-170000.db").arg(zi);
    }
    for (int l = 1; l <= 12; ++l)
        fisiere << T("Ferolanta-") + QDate(2025, l, 15).toString(T("yyyyMMdd")) + T("-150000.db");
    const QStringList sterse = Copii::DeSters(fisiere);
    const auto sters = [&](const char* f) { return sterse.contains(QString::fromLatin1(f)); };
    // Copies run from 1 October to 9 November 2026; the last 30 days are 11 October to 9 November:
    // their evening copies stay, the mornings go.
    EXPECT_FALSE(sters("Ferolanta-20261109-170000.db"));
    EXPECT_TRUE(sters("Ferolanta-20261109-080000.db"));
    EXPECT_FALSE(sters("Ferolanta-20261011-170000.db"));
    // Older days of October go: their month is kept by a newer copy.
    EXPECT_TRUE(sters("Ferolanta-20261010-170000.db"));
    EXPECT_TRUE(sters("Ferolanta-20261001-170000.db"));
    // Twelve months: November and October 2026, then 2025 from December down to March.
    EXPECT_FALSE(sters("Ferolanta-20250315-150000.db"));
    EXPECT_TRUE(sters("Ferolanta-20250215-150000.db"));
    EXPECT_FALSE(sters("altceva.db"));
    EXPECT_FALSE(sters("Inainte-de-restaurare-20260101-000000.db"));
    EXPECT_EQ(fisiere.size() - sterse.size(), 30 + 10 + 2);
}

class CopiiBaza : public TestBaza {};

// A copy holds every row as of its moment and passes the engine's check; put back, it brings back
// exactly those rows, and the file it replaced is kept aside.
TEST_P(CopiiBaza, CopiaSiRestaurarea) {
    BazaDate& db = BazaNoua();
    const qint64 inainte = Numar(T("SELECT COUNT(*) FROM DateGen"));
    EXPECT_THROW(Copii::Restaureaza(T("x.dump"), Locatie()), Eroare);
    const QString copie = Copii::FaCopie(Locatie(), QDateTime(QDate(2026, 11, 25), QTime(9, 0)));
    EXPECT_EQ(QFileInfo(copie).completeBaseName(), T("Ferolanta-20261125-090000"));
    EXPECT_TRUE(Copii::AreCopiaZilei(Locatie(), QDate(2026, 11, 25)));
    EXPECT_FALSE(Copii::AreCopiaZilei(Locatie(), QDate(2026, 11, 26)));
    Interogare(db, T("DELETE FROM DateGen")).Executa();
    bd_.reset();
    const QString deoparte = Copii::Restaureaza(copie, Locatie(), QDateTime(QDate(2026, 11, 25), QTime(10, 0)));
    EXPECT_TRUE(QFileInfo::exists(deoparte));
    Redeschide();
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM DateGen")), inainte);
}

// A copy taken while another connection keeps writing holds a whole number of that writer's units.
TEST_P(CopiiBaza, CopieInTimpCeAltcinevaScrie) {
    if (GetParam() == Motor::PostgreSQL) GTEST_SKIP() << "pg_dump face singur o copie consecventa";
    BazaNoua();
    Interogare(Bd(), T("CREATE TABLE Perechi (A INTEGER, B INTEGER)")).Executa();
    std::atomic<bool> gata = false;
    QThread* scriitor = QThread::create([&] {
        auto alta = BazaDate::Deschide(Locatie());
        for (int i = 0; !gata; ++i) {
            Tranzactie t(*alta);
            Interogare(*alta, T("INSERT INTO Perechi (A, B) VALUES (?, ?)")).Leaga(i).Leaga(i).Executa();
            Interogare(*alta, T("INSERT INTO Perechi (A, B) VALUES (?, ?)")).Leaga(-i).Leaga(-i).Executa();
            t.Confirma();
        }
    });
    scriitor->start();
    QThread::msleep(50);
    const QString copie = Copii::FaCopie(Locatie());
    gata = true;
    scriitor->wait();
    delete scriitor;
    LocatieBD loc{QFileInfo(copie).path(), {}};
    QFile::rename(copie, loc.FisierSQLite());
    auto c = BazaDate::Deschide(loc);
    Interogare q(*c, T("SELECT COUNT(*), SUM(A) FROM Perechi"));
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Intreg(0) % 2, 0);
    EXPECT_EQ(q.Intreg(1), 0);
}

// A place for the copies that can't be made (a file stands where the folder would be) gives the
// message, and leaves the database as it was and nothing behind.
TEST_P(CopiiBaza, FolderulCopiilorNuPoateFiFacut) {
    BazaNoua();
    const QString loc = QDir(Locatie().caleBD).filePath(Copii::NumeFolder);
    QFile f(loc);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    try {
        Copii::FaCopie(Locatie());
        ADD_FAILURE() << "copia nu trebuia facuta";
    } catch (const Eroare& e) {
        EXPECT_TRUE(e.text().contains(QDir::toNativeSeparators(loc))) << S(e.text());
    }
    EXPECT_GT(Numar(T("SELECT COUNT(*) FROM DateGen")), 0);
    EXPECT_EQ(QFileInfo(loc).size(), 0);
}

// The day's copy, made on its own thread, reports a checked file; after it the day needs no other
// (a server keeps its copies by its own means).
TEST_P(CopiiBaza, CopiaZileiInFundal) {
    BazaNoua();
    const QDate azi = QDate::currentDate();
    EXPECT_EQ(Copii::DeFacutLaPornire(Locatie(), azi), GetParam() == Motor::SQLite);
    QString fisier, eroare = T("fara raspuns");
    {
        CopieInFundal c(Locatie(), QDateTime::currentDateTime());
        QEventLoop bucla;
        QObject::connect(&c, &CopieInFundal::gata, &bucla, [&](const QString& f, const QString& e) {
            fisier = f;
            eroare = e;
            bucla.quit();
        });
        QTimer::singleShot(60000, &bucla, &QEventLoop::quit);
        c.Porneste();
        bucla.exec();
    }
    EXPECT_TRUE(eroare.isEmpty()) << S(eroare);
    EXPECT_TRUE(QFileInfo::exists(fisier));
    EXPECT_FALSE(Copii::DeFacutLaPornire(Locatie(), azi));
}

PE_AMBELE_MOTOARE(CopiiBaza);

} // namespace
