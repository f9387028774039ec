#pragma once

#include "store/BazaDate.h"
#include "support/MesajeInregistrate.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>

// Every test that touches data runs once on SQLite and once on PostgreSQL. The PostgreSQL leg
// connects to FEROLANTA_TEST_PG (a postgresql:// URL) and works in a schema of its own, dropped
// at the end; without that variable it is skipped.
class TestBaza : public ::testing::TestWithParam<Motor> {
protected:
    void SetUp() override;
    void TearDown() override;

    // A place for a database that doesn't exist yet; caleBD is an empty temporary folder.
    const LocatieBD& Locatie() const { return loc_; }
    // A new database created as `ferolanta-cli init` does, from the delivered data.
    BazaDate& BazaNoua();
    // An empty database with the delivered tables in the shape of the oldest files.
    BazaDate& BazaVeche();
    BazaDate& Bd() { return *bd_; }
    BazaDate& Redeschide();

    qint64 Numar(const QString& sql);

    static QString FolderDate();

    MesajeInregistrate mesaje;
    std::unique_ptr<BazaDate> bd_;

private:
    QTemporaryDir dir_;
    LocatieBD loc_;
    QString schema_;
};

// Readable QString values in failure messages.
inline void PrintTo(const QString& s, std::ostream* os) {
    *os << '"' << s.toStdString() << '"';
}

QString NumeMotor(const ::testing::TestParamInfo<Motor>& info);

#define PE_AMBELE_MOTOARE(Suita)                                                                                       \
    INSTANTIATE_TEST_SUITE_P(Motoare, Suita, ::testing::Values(Motor::SQLite, Motor::PostgreSQL),                      \
                             [](const ::testing::TestParamInfo<Motor>& i) { return NumeMotor(i).toStdString(); })
