#include "store/ActualizareBD.h"
#include "store/Cataloage.h"
#include "store/DateLivrate.h"
#include "support/BazaTest.h"

#include <QDir>
#include <QFile>

namespace {

class Catalog : public TestBaza {
protected:
    QString Fisier(const QString& nume) { return QDir(Locatie().caleBD).filePath(nume); }

    void Scrie(const QString& nume, const QStringList& linii) {
        QFile f(Fisier(nume));
        ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        if (!linii.isEmpty()) f.write(linii.join(QLatin1Char('\n')).toUtf8() + '\n');
    }

    QStringList Linii(const QString& nume) { return Cataloage::CitesteLinii(QDir(FolderDate()).filePath(nume)); }
};

TEST_P(Catalog, FisierulLivratAreNumarulCerutDeRanduri) {
    EXPECT_EQ(Linii(QStringLiteral("venituri.txt")).size(), Cataloage::RanduriVenituri);
    EXPECT_EQ(Linii(QStringLiteral("bife.txt")).size(), Cataloage::RanduriBife + 1);
    EXPECT_EQ(Linii(QStringLiteral("acte.txt")).size(), Cataloage::RanduriActe);
    BazaDate& db = BazaNoua();
    // the first ten goods rows are the exclusion list and carry no value
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife WHERE NrBifa <= 10 AND Valoare = 0")), 10);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife WHERE NrBifa > 10 AND Valoare > 0")), 75);
    Interogare q(db, QStringLiteral("SELECT Denumire FROM ListaVenituri WHERE CodVenit = ?"));
    q.Leaga(Cataloage::RanduriVenituri);
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Text(QStringLiteral("Denumire")), Linii(QStringLiteral("venituri.txt")).last());
}

TEST_P(Catalog, ListaBifeCu84DeRanduriSeReincarcaDoarCandExistaFisierul) {
    BazaDate& db = BazaNoua();
    db.Executa(QStringLiteral("DELETE FROM ListaBife WHERE NrBifa = 85"));
    ASSERT_TRUE(QFile::remove(Fisier(QStringLiteral("bife.txt"))));
    for (int pornire = 0; pornire < 2; ++pornire) {
        mesaje.mesaje.clear();
        const RezultatActualizare r = ActualizareBD(db, Locatie().caleBD, mesaje);
        EXPECT_FALSE(r.Reusit());
        EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("In tabela ListaBife exista 84 randuri"),
                                               QStringLiteral("Fisierul bife.txt nu exista in ") +
                                                   QDir::toNativeSeparators(Locatie().caleBD)}));
        EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife")), 84);
    }
    DateLivrate::CopiazaCataloage(FolderDate(), Locatie().caleBD);
    mesaje.mesaje.clear();
    EXPECT_TRUE(ActualizareBD(db, Locatie().caleBD, mesaje).Reusit());
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife")), 85);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("In tabela ListaBife exista 84 randuri")});
}

TEST_P(Catalog, UnApostrofSePastreazaCaAtare) {
    BazaDate& db = BazaNoua();
    QStringList linii = Linii(QStringLiteral("venituri.txt"));
    linii[4] = QStringLiteral("Venit din chirii ('contract' înregistrat)");
    Scrie(QStringLiteral("venituri.txt"), linii);
    db.Executa(QStringLiteral("DELETE FROM ListaVenituri"));
    EXPECT_EQ(Cataloage::IncarcaListaVenituri(db, Locatie().caleBD, mesaje), Cataloage::Rezultat::Reincarcat);
    Interogare q(db, QStringLiteral("SELECT Denumire FROM ListaVenituri WHERE CodVenit = 5"));
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Text(QStringLiteral("Denumire")), linii[4]);
}

TEST_P(Catalog, FisierScurtSauStricatNuAtingeTabela) {
    BazaDate& db = BazaNoua();
    QStringList bifeStricat = Linii(QStringLiteral("bife.txt"));
    bifeStricat[30] = QStringLiteral("TE$Teren fara valoare");
    QStringList bifeValoare = Linii(QStringLiteral("bife.txt"));
    bifeValoare[40] = QStringLiteral("TE$3$Livada$doua sute");
    struct Caz {
        QString tabela, cheie, fisier;
        QStringList linii;
        QString inEroare;
    } const cazuri[] = {
        {QStringLiteral("ListaActe"), QStringLiteral("NrAct"), QStringLiteral("acte.txt"),
         Linii(QStringLiteral("acte.txt")).mid(0, 27), QStringLiteral("are doar 27 randuri")},
        {QStringLiteral("ListaBife"), QStringLiteral("NrBifa"), QStringLiteral("bife.txt"), bifeStricat,
         QStringLiteral("randul 31")},
        {QStringLiteral("ListaBife"), QStringLiteral("NrBifa"), QStringLiteral("bife.txt"), bifeValoare,
         QStringLiteral("doua sute")},
        {QStringLiteral("ListaVenituri"),
         QStringLiteral("CodVenit"),
         QStringLiteral("venituri.txt"),
         {},
         QStringLiteral("are doar 0 randuri")},
    };
    for (const auto& c : cazuri) {
        db.Executa(QStringLiteral("DELETE FROM %1 WHERE %2 > 20").arg(c.tabela, c.cheie));
        Scrie(c.fisier, c.linii);
        mesaje.mesaje.clear();
        const RezultatActualizare r = ActualizareBD(db, Locatie().caleBD, mesaje);
        ASSERT_FALSE(r.Reusit()) << c.inEroare.toStdString();
        const QString eroare = r.erori.join(QLatin1Char('\n'));
        EXPECT_TRUE(eroare.contains(c.fisier)) << eroare.toStdString();
        EXPECT_TRUE(eroare.contains(c.inEroare)) << eroare.toStdString();
        EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Critic), r.erori) << "the clerk is told too";
        EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(c.tabela)), 20) << c.fisier.toStdString();
        QFile::remove(Fisier(c.fisier));
        DateLivrate::CopiazaCataloage(FolderDate(), Locatie().caleBD);
        EXPECT_TRUE(ActualizareBD(db, Locatie().caleBD, mesaje).Reusit());
    }
}

TEST_P(Catalog, LiniileInPlusSeIgnoraSiCodulSeCitesteCaVal) {
    BazaDate& db = BazaNoua();
    QStringList linii = Linii(QStringLiteral("bife.txt"));
    linii[11] = QStringLiteral(" TE $ 12 buc $  Pasune  $ 40,5 ");
    linii << QStringLiteral("rand in plus, nefolosit");
    Scrie(QStringLiteral("bife.txt"), linii);
    db.Executa(QStringLiteral("DELETE FROM ListaBife WHERE NrBifa = 1"));
    EXPECT_EQ(Cataloage::IncarcaListaBife(db, Locatie().caleBD, mesaje), Cataloage::Rezultat::Reincarcat);
    Interogare q(db, QStringLiteral("SELECT Tip, Cod, Denumire, Valoare FROM ListaBife WHERE NrBifa = 11"));
    ASSERT_TRUE(q.Exista());
    EXPECT_EQ(q.Text(QStringLiteral("Tip")), QStringLiteral("TE"));
    EXPECT_EQ(q.Intreg(QStringLiteral("Cod")), 12);
    EXPECT_EQ(q.Text(QStringLiteral("Denumire")), QStringLiteral("Pasune"));
    EXPECT_EQ(q.Suma(QStringLiteral("Valoare")).Text(), QStringLiteral("40.5000"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM ListaBife")), 85);
}

PE_AMBELE_MOTOARE(Catalog);

} // namespace
