#include "store/DateLivrate.h"

#include "base/Ceas.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "store/Cataloage.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"
#include "store/Sql.h"

#include <QDir>
#include <QFile>

namespace {

QVariant valoareCamp(const CampSchema& c, const QString& text, const QString& fisier, int linie) {
    if (text.isEmpty()) return QVariant();
    switch (c.tip) {
    case TipCamp::Cheie:
    case TipCamp::Byte:
    case TipCamp::Integer:
    case TipCamp::Long:
    case TipCamp::Boolean: {
        bool ok = false;
        const qint64 v = text.toLongLong(&ok);
        if (!ok)
            throw Eroare(QStringLiteral("Fisierul %1, randul %2: \"%3\" nu este un numar intreg (%4).")
                             .arg(fisier)
                             .arg(linie)
                             .arg(text, c.nume));
        return v;
    }
    default:
        return text;
    }
}

// A tab-separated file whose first line names the fields of the table.
void incarcaTsv(BazaDate& db, const QString& tabela, const QString& fisier) {
    const QStringList linii = Cataloage::CitesteLinii(fisier);
    if (linii.isEmpty()) throw Eroare(QStringLiteral("Fisierul %1 este gol.").arg(QDir::toNativeSeparators(fisier)));
    const QStringList antet = linii.first().split(QLatin1Char('\t'));
    std::vector<const CampSchema*> campuri;
    for (const QString& nume : antet) {
        const CampSchema* c = Schema::Camp(tabela, nume.trimmed());
        if (!c)
            throw Eroare(QStringLiteral("Fisierul %1: tabela %2 nu are campul %3.")
                             .arg(QDir::toNativeSeparators(fisier), tabela, nume.trimmed()));
        campuri.push_back(c);
    }
    QStringList nume;
    for (const auto* c : campuri)
        nume << c->nume;
    Interogare ins(db, Sql::Insert(tabela, nume));
    for (int i = 1; i < linii.size(); ++i) {
        if (linii[i].trimmed().isEmpty()) continue;
        const QStringList valori = linii[i].split(QLatin1Char('\t'));
        if (valori.size() != antet.size())
            throw Eroare(QStringLiteral("Fisierul %1, randul %2: sunt %3 campuri in loc de %4.")
                             .arg(QDir::toNativeSeparators(fisier))
                             .arg(i + 1)
                             .arg(valori.size())
                             .arg(antet.size()));
        for (size_t k = 0; k < campuri.size(); ++k)
            ins.Leaga(valoareCamp(*campuri[k], valori[int(k)].trimmed(), fisier, i + 1));
        ins.Executa();
    }
}

} // namespace

void DateLivrate::CreeazaTabeleLivrate(BazaDate& db, bool formaVeche) {
    OperatiiSchema ops(db);
    for (const auto& t : Schema::Tabele())
        if (t.livrata) ops.CreazaTabela(t, Schema::CampuriDeBaza(t, formaVeche));
}

void DateLivrate::CreeazaSchemaCompleta(BazaDate& db) {
    OperatiiSchema ops(db);
    for (const auto& t : Schema::Tabele())
        ops.CreazaTabela(t, t.campuri);
    for (const auto& ix : Schema::Indexuri())
        ops.CreazaIndex(ix);
}

void DateLivrate::IncarcaDateLivrate(BazaDate& db, const QString& folderDate, const QDate& azi) {
    const QDir dir(folderDate);
    for (const QString& tabela : {QStringLiteral("DateGen"), QStringLiteral("Judete"), QStringLiteral("TipuriActe"),
                                  QStringLiteral("TipIncalzire")}) {
        const QString fisier = dir.filePath(tabela + QStringLiteral(".tsv"));
        if (!QFile::exists(fisier))
            throw Eroare(QStringLiteral("Fisierul %1 nu exista.").arg(QDir::toNativeSeparators(fisier)));
        incarcaTsv(db, tabela, fisier);
    }
    Interogare luni(db, QStringLiteral("INSERT INTO StatePlata (StatPlataID, An, Luna) VALUES (?, ?, ?)"));
    qint64 id = db.CheieNoua(QStringLiteral("StatePlata"), QStringLiteral("StatPlataID"));
    for (int an = 2013; an <= azi.year() + 1; ++an)
        for (int luna = 1; luna <= 12; ++luna)
            luni.Leaga(id++).Leaga(an).Leaga(luna).Executa();
}

void DateLivrate::CopiazaCataloage(const QString& folderDate, const QString& caleBD) {
    for (const QString& nume :
         {QStringLiteral("venituri.txt"), QStringLiteral("bife.txt"), QStringLiteral("acte.txt")}) {
        const QString tinta = QDir(caleBD).filePath(nume);
        if (QFile::exists(tinta)) continue;
        const QString sursa = QDir(folderDate).filePath(nume);
        if (!QFile::copy(sursa, tinta))
            throw Eroare(QStringLiteral("Fisierul %1 nu a putut fi copiat in %2.")
                             .arg(QDir::toNativeSeparators(sursa), QDir::toNativeSeparators(caleBD)));
        QFile::setPermissions(tinta, QFile::permissions(tinta) | QFileDevice::WriteOwner);
    }
}

std::unique_ptr<BazaDate> DateLivrate::Initializeaza(const LocatieBD& loc, const QString& folderDate, Mesaje& m,
                                                     const Jurnal& jurnal) {
    if (!QDir(loc.caleBD).exists())
        throw Eroare(QStringLiteral("Folderul %1 nu exista.").arg(QDir::toNativeSeparators(loc.caleBD)));
    auto db = BazaDate::Deschide(loc, BazaDate::Mod::Noua);
    try {
        if (loc.EstePostgreSQL() && OperatiiSchema(*db).TabelaExista(QStringLiteral("Cereri")))
            throw Eroare(QStringLiteral("Exista deja o baza de date pe %1").arg(loc.Descriere()));
        CopiazaCataloage(folderDate, loc.caleBD);
        Tranzactie t(*db);
        CreeazaSchemaCompleta(*db);
        IncarcaDateLivrate(*db, folderDate, Ceas::Azi());
        Cataloage::IncarcaToate(*db, loc.caleBD);
        const RezultatActualizare r = ActualizareBD(*db, loc.caleBD, m, jurnal);
        if (!r.Reusit()) throw Eroare(r.erori.join(QLatin1Char('\n')));
        t.Confirma();
    } catch (...) {
        if (!loc.EstePostgreSQL()) {
            db.reset();
            QFile::remove(loc.FisierSQLite());
        }
        throw;
    }
    return db;
}
