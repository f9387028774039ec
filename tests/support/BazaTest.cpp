#include "support/BazaTest.h"

#include "store/DateLivrate.h"

#include <QRandomGenerator>
#include <QSqlQuery>
#include <QUrl>
#include <QUrlQuery>

QString NumeMotor(const ::testing::TestParamInfo<Motor>& info) {
    return info.param == Motor::SQLite ? QStringLiteral("SQLite") : QStringLiteral("PostgreSQL");
}

QString TestBaza::FolderDate() {
    return QStringLiteral(FEROLANTA_SURSA "/data");
}

void TestBaza::SetUp() {
    ASSERT_TRUE(dir_.isValid());
    loc_.caleBD = dir_.path();
    if (GetParam() == Motor::PostgreSQL) {
        const QString url = qEnvironmentVariable("FEROLANTA_TEST_PG");
        if (url.isEmpty()) GTEST_SKIP() << "FEROLANTA_TEST_PG nu este setata: ramura PostgreSQL sarita";
        schema_ = QStringLiteral("t_%1").arg(QRandomGenerator::global()->generate64(), 0, 16);
        QUrl u(url);
        QUrlQuery q(u);
        q.addQueryItem(QStringLiteral("schema"), schema_);
        u.setQuery(q);
        loc_.url = u.toString();
    }
}

void TestBaza::TearDown() {
    bd_.reset();
    if (!schema_.isEmpty()) {
        LocatieBD curatare = loc_;
        QUrl u(curatare.url);
        u.setQuery(QString());
        curatare.url = u.toString();
        try {
            auto bd = BazaDate::Deschide(curatare);
            bd->Executa(QStringLiteral("DROP SCHEMA IF EXISTS %1 CASCADE").arg(schema_));
        } catch (...) {
        }
    }
}

BazaDate& TestBaza::BazaNoua() {
    bd_ = DateLivrate::Initializeaza(loc_, FolderDate(), mesaje);
    return *bd_;
}

BazaDate& TestBaza::BazaVeche() {
    bd_ = BazaDate::Deschide(loc_, BazaDate::Mod::Noua);
    DateLivrate::CreeazaTabeleLivrate(*bd_, true);
    return *bd_;
}

BazaDate& TestBaza::Redeschide() {
    bd_.reset();
    bd_ = BazaDate::Deschide(loc_);
    return *bd_;
}

qint64 TestBaza::Numar(const QString& sql) {
    Interogare q(*bd_, sql);
    EXPECT_TRUE(q.Exista()) << sql.toStdString();
    return q.Intreg(0);
}
