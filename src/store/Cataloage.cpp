#include "store/Cataloage.h"

#include "base/Bani.h"
#include "base/Eroare.h"
#include "base/Mesaje.h"
#include "base/ServiciuFisiere.h"
#include "base/Val.h"
#include "store/BazaDate.h"
#include "store/Sql.h"

#include <QDir>
#include <QFile>
#include <QStringDecoder>

namespace {

struct Catalog {
    QString tabela;
    QString tabelaInMesaj; // the count message names ListaActe "Acte"
    QString fisier;
    QString fisierInMesaj; // and the income file with a capital
    int randuri;
    int liniiAntet;
};

const Catalog Venituri{QStringLiteral("ListaVenituri"), QStringLiteral("ListaVenituri"), QStringLiteral("venituri.txt"),
                       QStringLiteral("Venituri.txt"),  Cataloage::RanduriVenituri,      0};
const Catalog Bife{QStringLiteral("ListaBife"), QStringLiteral("ListaBife"), QStringLiteral("bife.txt"),
                   QStringLiteral("bife.txt"),  Cataloage::RanduriBife,      1};
const Catalog Acte{QStringLiteral("ListaActe"), QStringLiteral("Acte"), QStringLiteral("acte.txt"),
                   QStringLiteral("acte.txt"),  Cataloage::RanduriActe, 0};

qint64 numarRanduri(BazaDate& db, const QString& tabela) {
    Interogare q(db, QStringLiteral("SELECT COUNT(*) AS NrRanduri FROM %1").arg(tabela));
    q.Exista();
    return q.Intreg(QStringLiteral("NrRanduri"));
}

// The rows of the file that the table takes, checked before anything is deleted.
QStringList randuriFisier(const Catalog& c, const QString& cale) {
    const QStringList linii = Cataloage::CitesteLinii(cale);
    const int necesare = c.randuri + c.liniiAntet;
    if (linii.size() < necesare)
        throw Eroare(QStringLiteral("Fisierul %1 are doar %2 randuri; sunt necesare %3.")
                         .arg(QDir::toNativeSeparators(cale))
                         .arg(linii.size())
                         .arg(necesare));
    return linii.mid(c.liniiAntet, c.randuri);
}

void scrieVenituriSauActe(BazaDate& db, const Catalog& c, const QStringList& randuri) {
    const QString cheie = c.tabela == Venituri.tabela ? QStringLiteral("CodVenit") : QStringLiteral("NrAct");
    Interogare ins(db, Sql::Insert(c.tabela, {cheie, QStringLiteral("Denumire")}));
    for (int i = 0; i < randuri.size(); ++i)
        ins.Leaga(i + 1).Leaga(randuri[i]).Executa();
}

void scrieBife(BazaDate& db, const QString& cale, const QStringList& randuri) {
    struct Rand {
        QString tip, denumire;
        int cod;
        Bani valoare;
    };
    std::vector<Rand> citite;
    for (int i = 0; i < randuri.size(); ++i) {
        const QStringList f = randuri[i].split(QLatin1Char('$'));
        const int nrLinie = i + 2;
        if (f.size() < 4)
            throw Eroare(QStringLiteral("Fisierul %1, randul %2: sunt necesare patru campuri despartite de $.")
                             .arg(QDir::toNativeSeparators(cale))
                             .arg(nrLinie));
        // The last field runs to the end of the line.
        const QString valoareText = f.mid(3).join(QLatin1Char('$')).trimmed();
        const auto valoare = Bani::DinText(valoareText.isEmpty() ? QStringLiteral("0") : valoareText);
        if (!valoare)
            throw Eroare(QStringLiteral("Fisierul %1, randul %2: valoarea \"%3\" nu este un numar.")
                             .arg(QDir::toNativeSeparators(cale))
                             .arg(nrLinie)
                             .arg(valoareText));
        const double cod = Val(f[1]);
        if (cod < -32768 || cod > 32767)
            throw Eroare(QStringLiteral("Fisierul %1, randul %2: codul %3 este prea mare.")
                             .arg(QDir::toNativeSeparators(cale))
                             .arg(nrLinie)
                             .arg(f[1].trimmed()));
        citite.push_back({f[0].trimmed(), f[2].trimmed(), int(cod), *valoare});
    }
    Interogare ins(
        db, QStringLiteral("INSERT INTO ListaBife (NrBifa, Tip, Cod, Denumire, Valoare) VALUES (?, ?, ?, ?, ?)"));
    for (size_t i = 0; i < citite.size(); ++i)
        ins.Leaga(int(i + 1))
            .Leaga(citite[i].tip)
            .Leaga(citite[i].cod)
            .Leaga(citite[i].denumire)
            .Leaga(citite[i].valoare)
            .Executa();
}

void reincarca(BazaDate& db, const Catalog& c, const QString& cale) {
    const QStringList randuri = randuriFisier(c, cale);
    Tranzactie t(db);
    Interogare(db, QStringLiteral("DELETE FROM %1").arg(c.tabela)).Executa();
    if (c.tabela == Bife.tabela)
        scrieBife(db, cale, randuri);
    else
        scrieVenituriSauActe(db, c, randuri);
    t.Confirma();
}

Cataloage::Rezultat incarca(BazaDate& db, const Catalog& c, const QString& caleBD, Mesaje& m, const Jurnal& jurnal) {
    const qint64 n = numarRanduri(db, c.tabela);
    if (n == c.randuri) return Cataloage::Rezultat::Neschimbat;
    m.Informatie(QStringLiteral("In tabela %1 exista %2 randuri").arg(c.tabelaInMesaj).arg(n));
    const QString cale = QDir(caleBD).filePath(c.fisier);
    if (ServiciuFisiere::StareFisier(cale) != 0) {
        m.Critic(QStringLiteral("Fisierul %1 nu exista in %2").arg(c.fisierInMesaj, QDir::toNativeSeparators(caleBD)));
        return Cataloage::Rezultat::FisierLipsa;
    }
    reincarca(db, c, cale);
    if (jurnal) jurnal(QStringLiteral("%1: %2 randuri incarcate din %3").arg(c.tabela).arg(c.randuri).arg(c.fisier));
    return Cataloage::Rezultat::Reincarcat;
}

} // namespace

QStringList Cataloage::CitesteLinii(const QString& fisier) {
    QFile f(fisier);
    if (!f.open(QIODevice::ReadOnly))
        throw Eroare(QStringLiteral("Fisierul %1 nu poate fi citit.").arg(QDir::toNativeSeparators(fisier)));
    const QByteArray octeti = f.readAll();
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8(octeti);
    if (utf8.hasError()) {
        QStringDecoder cp1250("windows-1250");
        text = cp1250.isValid() ? cp1250(octeti) : QString::fromLatin1(octeti);
    }
    if (text.startsWith(QChar(0xFEFF))) text.remove(0, 1);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QStringList linii = text.split(QLatin1Char('\n'));
    if (!linii.isEmpty() && linii.last().isEmpty()) linii.removeLast();
    return linii;
}

Cataloage::Rezultat Cataloage::IncarcaListaVenituri(BazaDate& db, const QString& caleBD, Mesaje& m,
                                                    const Jurnal& jurnal) {
    return incarca(db, Venituri, caleBD, m, jurnal);
}

Cataloage::Rezultat Cataloage::IncarcaListaBife(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal) {
    return incarca(db, Bife, caleBD, m, jurnal);
}

Cataloage::Rezultat Cataloage::IncarcaListaActe(BazaDate& db, const QString& caleBD, Mesaje& m, const Jurnal& jurnal) {
    return incarca(db, Acte, caleBD, m, jurnal);
}

void Cataloage::RefaListaBife(BazaDate& db, const QString& caleBD) {
    reincarca(db, Bife, QDir(caleBD).filePath(Bife.fisier));
}

void Cataloage::IncarcaToate(BazaDate& db, const QString& caleBD) {
    for (const Catalog* c : {&Venituri, &Bife, &Acte})
        reincarca(db, *c, QDir(caleBD).filePath(c->fisier));
}
