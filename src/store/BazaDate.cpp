#include "store/BazaDate.h"

#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/ServiciuFisiere.h"

#include <QAtomicInt>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlRecord>
#include <QUrl>
#include <QUrlQuery>

namespace {

QAtomicInt contorConexiuni;

QString textEroare(const QSqlError& e) {
    QString t = e.databaseText().trimmed();
    if (t.isEmpty()) t = e.driverText().trimmed();
    return t;
}

} // namespace

QString LocatieBD::FisierSQLite() const {
    return QDir(caleBD).filePath(NumeBD);
}

QString LocatieBD::Descriere() const {
    if (!EstePostgreSQL()) return QDir::toNativeSeparators(FisierSQLite());
    const QUrl u(url);
    QString server = u.host().isEmpty() ? QStringLiteral("localhost") : u.host();
    if (u.port() > 0) server += QLatin1Char(':') + QString::number(u.port());
    return QStringLiteral("serverul PostgreSQL %1, baza %2").arg(server, u.path().mid(1));
}

BazaDate::BazaDate(const LocatieBD& loc, Motor m)
    : loc_(loc), dialect_(m),
      numeConexiune_(QStringLiteral("ferolanta_%1").arg(contorConexiuni.fetchAndAddRelaxed(1))) {}

BazaDate::~BazaDate() {
    if (db_.isValid()) {
        if (adancime_ > 0) db_.rollback();
        db_.close();
    }
    db_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(numeConexiune_);
}

std::unique_ptr<BazaDate> BazaDate::Deschide(const LocatieBD& loc, Mod mod) {
    std::unique_ptr<BazaDate> bd(new BazaDate(loc, loc.EstePostgreSQL() ? Motor::PostgreSQL : Motor::SQLite));
    if (loc.EstePostgreSQL())
        bd->deschidePostgreSQL();
    else
        bd->deschideSQLite(mod);
    return bd;
}

void BazaDate::deschideSQLite(Mod mod) {
    const QString fisier = loc_.FisierSQLite();
    const int stare = ServiciuFisiere::StareFisier(fisier);
    if (stare == 2)
        throw Eroare(QStringLiteral("Folderul bazei de date nu exista sau nu poate fi accesat: %1")
                         .arg(QDir::toNativeSeparators(loc_.caleBD)));
    if (mod == Mod::Existenta && stare == 1)
        throw Eroare(QStringLiteral("Baza de date %1 nu a fost gasita in locatia %2")
                         .arg(NumeBD, QDir::toNativeSeparators(loc_.caleBD)));
    if (mod == Mod::Noua && stare == 0)
        throw Eroare(QStringLiteral("Exista deja o baza de date in %1").arg(QDir::toNativeSeparators(fisier)));

    db_ = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), numeConexiune_);
    db_.setDatabaseName(fisier);
    db_.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    if (!db_.open())
        throw Eroare(QStringLiteral("Baza de date %1 nu poate fi deschisa: %2")
                         .arg(QDir::toNativeSeparators(fisier), textEroare(db_.lastError())));
    // A damaged or foreign file opens without complaint; the first read tells.
    QSqlQuery q(db_);
    if (!q.exec(QStringLiteral("SELECT COUNT(*) FROM sqlite_master")))
        throw Eroare(QStringLiteral("Fisierul %1 nu este o baza de date valida: %2")
                         .arg(QDir::toNativeSeparators(fisier), textEroare(q.lastError())));
    q.finish();
    if (!q.exec(QStringLiteral("PRAGMA foreign_keys = ON"))) throw Eroare(textEroare(q.lastError()));
    // A large office's file outgrows the default page cache, and the lists that join most of it
    // would read the same pages again and again; mapped reads share the system's file cache.
    // A platform without mapping ignores it; the engine lowers a size above its own limit.
    q.exec(QStringLiteral("PRAGMA mmap_size = 2147418112"));
}

void BazaDate::deschidePostgreSQL() {
    const QUrl u(loc_.url);
    if (!u.isValid() || (u.scheme() != QLatin1String("postgresql") && u.scheme() != QLatin1String("postgres")))
        throw Eroare(QStringLiteral("Conexiunea %1 nu este o adresa postgresql:// valida").arg(loc_.url));
    db_ = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), numeConexiune_);
    if (!db_.isValid()) throw Eroare(QStringLiteral("Driverul PostgreSQL (QPSQL) nu este instalat"));
    db_.setHostName(u.host().isEmpty() ? QStringLiteral("localhost") : u.host());
    if (u.port() > 0) db_.setPort(u.port());
    db_.setDatabaseName(u.path().mid(1));
    db_.setUserName(u.userName());
    db_.setPassword(u.password());
    QStringList optiuni{QStringLiteral("connect_timeout=5")};
    const QUrlQuery interog(u);
    for (const auto& [cheie, valoare] : interog.queryItems(QUrl::FullyDecoded)) {
        if (cheie == QLatin1String("schema"))
            schema_ = valoare;
        else
            optiuni << cheie + QLatin1Char('=') + valoare;
    }
    db_.setConnectOptions(optiuni.join(QLatin1Char(';')));
    // Amounts come back as exact decimal text rather than doubles.
    db_.setNumericalPrecisionPolicy(QSql::HighPrecision);
    if (!db_.open())
        throw Eroare(QStringLiteral("Nu se poate realiza conexiunea cu %1: %2")
                         .arg(loc_.Descriere(), textEroare(db_.lastError())));
    QSqlQuery q(db_);
    q.exec(QStringLiteral("SET client_min_messages TO WARNING"));
    if (!schema_.isEmpty()) {
        // The schema name is an identifier, so it can't be bound; only plain names are taken.
        static const QRegularExpression simplu(QStringLiteral("^[A-Za-z_][A-Za-z0-9_]*$"));
        if (!simplu.match(schema_).hasMatch())
            throw Eroare(QStringLiteral("Numele de schema %1 nu este valid").arg(schema_));
        if (!q.exec(QStringLiteral("CREATE SCHEMA IF NOT EXISTS %1").arg(schema_)) ||
            !q.exec(QStringLiteral("SET search_path TO %1").arg(schema_)))
            throw Eroare(textEroare(q.lastError()));
    }
}

int BazaDate::Stare() {
    if (!loc_.EstePostgreSQL()) return ServiciuFisiere::StareFisier(loc_.FisierSQLite());
    QSqlQuery q(db_);
    return db_.isOpen() && q.exec(QStringLiteral("SELECT 1")) ? 0 : 2;
}

void BazaDate::Executa(const QString& sql) {
    QSqlQuery q(db_);
    if (!q.exec(sql)) throw Eroare(QStringLiteral("%1\n[%2]").arg(textEroare(q.lastError()), sql));
}

void BazaDate::incepe() {
    if (adancime_++ > 0) return;
    esuata_ = false;
    // IMMEDIATE takes the write lock at once, so that a MAX+1 read can't race another computer.
    Executa(dialect_.EsteSQLite() ? QStringLiteral("BEGIN IMMEDIATE") : QStringLiteral("BEGIN"));
}

void BazaDate::termina(bool confirma) {
    if (adancime_ == 0) return;
    if (!confirma) esuata_ = true;
    if (--adancime_ > 0) return;
    QSqlQuery q(db_);
    if (esuata_) {
        q.exec(QStringLiteral("ROLLBACK"));
        if (confirma) throw Eroare(QStringLiteral("Operatia a fost anulata: o parte a ei nu a reusit."));
        return;
    }
    if (!q.exec(QStringLiteral("COMMIT"))) {
        const QString motiv = textEroare(q.lastError());
        // SQLite keeps the transaction open after a refused COMMIT; PostgreSQL has already ended it.
        if (dialect().EsteSQLite()) q.exec(QStringLiteral("ROLLBACK"));
        throw Eroare(QStringLiteral("Modificarile nu au putut fi salvate: %1").arg(motiv));
    }
}

qint64 BazaDate::CheieNoua(const QString& tabela, const QString& camp) {
    if (adancime_ == 0)
        throw Eroare(QStringLiteral("Exceptie: cheie noua pentru %1 ceruta in afara unei tranzactii").arg(tabela));
    // Two computers saving at once would both read the same maximum; on PostgreSQL the second one
    // waits here, until the first commits, instead of failing on the key. SQLite's BEGIN IMMEDIATE
    // already lets one writer in at a time.
    if (!dialect_.EsteSQLite())
        Interogare(*this, QStringLiteral("SELECT pg_advisory_xact_lock(hashtext(?))")).Leaga(tabela.toLower()).Exista();
    Interogare q(*this, QStringLiteral("SELECT MAX(%1) AS Nr FROM %2").arg(camp, tabela));
    if (q.Exista() && !q.EsteNul(QStringLiteral("Nr"))) return q.Intreg(QStringLiteral("Nr")) + 1;
    return 1;
}

Tranzactie::Tranzactie(BazaDate& db) : db_(db) {
    db_.incepe();
}

Tranzactie::~Tranzactie() {
    if (!gata_) db_.termina(false);
}

void Tranzactie::Confirma() {
    gata_ = true;
    db_.termina(true);
}

TranzactieCitire::TranzactieCitire(BazaDate& db) : db_(db) {
    if (db_.adancime_ > 0) throw Eroare(QStringLiteral("Exceptie: citire protejata ceruta in timpul unei tranzactii"));
    if (db_.dialect().EsteSQLite()) {
        db_.Executa(QStringLiteral("PRAGMA query_only = ON"));
        db_.Executa(QStringLiteral("BEGIN"));
    } else {
        db_.Executa(QStringLiteral("BEGIN READ ONLY"));
    }
    db_.adancime_ = 1;
    db_.esuata_ = false;
}

TranzactieCitire::~TranzactieCitire() {
    db_.adancime_ = 0;
    QSqlQuery q(db_.db_);
    q.exec(QStringLiteral("ROLLBACK"));
    if (db_.dialect().EsteSQLite()) q.exec(QStringLiteral("PRAGMA query_only = OFF"));
}

Interogare::Interogare(BazaDate& db, const QString& sql) : db_(db), q_(db.conexiune()), sql_(sql) {
    q_.setForwardOnly(true);
    if (!q_.prepare(sql)) throw Eroare(QStringLiteral("%1\n[%2]").arg(textEroare(q_.lastError()), sql));
}

Interogare& Interogare::LeagaValoare(const QVariant& v) {
    q_.bindValue(legate_++, db_.dialect().Parametru(v));
    return *this;
}

Interogare& Interogare::Executa() {
    const bool ok = q_.exec();
    legate_ = 0;
    if (!ok) throw Eroare(QStringLiteral("%1\n[%2]").arg(textEroare(q_.lastError()), sql_));
    rec_ = q_.record();
    indici_.clear();
    return *this;
}

QVariant Interogare::Valoare(const QString& camp) const {
    // A field is looked up once per result, not at every row.
    auto gasit = indici_.constFind(camp);
    if (gasit == indici_.cend()) gasit = indici_.insert(camp, rec_.indexOf(camp));
    const int i = *gasit;
    if (i < 0) throw Eroare(QStringLiteral("Exceptie: campul %1 lipseste din rezultatul [%2]").arg(camp, sql_));
    return q_.value(i);
}

QDate Interogare::Data(const QString& camp) const {
    const QVariant v = Valoare(camp);
    if (v.isNull()) return {};
    if (v.typeId() == QMetaType::QDate) return v.toDate();
    if (v.typeId() == QMetaType::QDateTime) return v.toDateTime().date();
    return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

bool VerificaBD(BazaDate& bd, Mesaje& m) {
    switch (bd.Stare()) {
    case 0:
        return true;
    case 1:
        m.Critic(QStringLiteral("Baza de date nu a fost gasita. Probabil nu functioneaza reteaua. Verificati!"));
        return false;
    case 2:
        m.Critic(QStringLiteral("Locatia bazei de date nu e corecta. Probabil nu functioneaza reteaua. Verificati!"));
        return false;
    default:
        return false;
    }
}
