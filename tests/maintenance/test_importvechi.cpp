#include "base/Eroare.h"
#include "maintenance/CitireCsv.h"
#include "maintenance/ImportVechi.h"
#include "maintenance/SursaVeche.h"
#include "store/OperatiiSchema.h"
#include "store/Schema.h"
#include "support/BazaTest.h"

#include <QFile>

// tests/data/import/veche: CSV dumps of a database in the oldest shape (incomes split in two fields,
// kinship under its old name, the goods list under its old name, the persons' file in Windows-1250),
// with a zero date, a -1 boolean, a request without a titular, a person on a request that doesn't
// exist, a person's key written twice and a table the program doesn't know.
// tests/data/import/noua: the present shape, in UTF-8, with certificates never marked current and one
// for a person that doesn't exist.
// tests/data/import/fruit.mdb: a small Jet 4 file shipped as the test fixture of the npm package
// "mdb" 0.1.0 (Max Ogden, MIT licence), the one real Access file the reader is tried on.

namespace {

QString Date(const QString& nume) {
    return QStringLiteral(FEROLANTA_TESTE_DATE "/import/") + nume;
}

struct CazCsv {
    const char* text;
    std::vector<std::vector<const char*>> randuri; // nullptr: a missing value
    qint64 linii;
};

TEST(CitireCsv, RanduriCaLaExportulTabelelor) {
    const std::vector<CazCsv> cazuri = {
        {"a,\"b,c\",d\n", {{"a", "b,c", "d"}}, 1},
        {"\"zis \"\"da\"\"\",x\r\ny,z\r\n", {{"zis \"da\"", "x"}, {"y", "z"}}, 2},
        {"\"doua\nlinii\",1\n2,3", {{"doua\nlinii", "1"}, {"2", "3"}}, 2},
        {",\"\",x\n", {{nullptr, "", "x"}}, 1},
        {"a,\n", {{"a", nullptr}}, 1},
    };
    for (const auto& c : cazuri) {
        const QString text = QString::fromUtf8(c.text);
        qsizetype poz = 0;
        qint64 linii = 0;
        QStringList campuri;
        size_t n = 0;
        while (CitesteRandCsv(text, poz, campuri, linii)) {
            ASSERT_LT(n, c.randuri.size()) << c.text;
            const auto& asteptat = c.randuri[n++];
            ASSERT_EQ(campuri.size(), qsizetype(asteptat.size())) << c.text;
            for (size_t i = 0; i < asteptat.size(); ++i) {
                EXPECT_EQ(campuri[qsizetype(i)].isNull(), asteptat[i] == nullptr) << c.text << " camp " << i;
                if (asteptat[i]) {
                    EXPECT_EQ(campuri[qsizetype(i)], QString::fromUtf8(asteptat[i])) << c.text;
                }
            }
        }
        EXPECT_EQ(n, c.randuri.size()) << c.text;
        EXPECT_EQ(linii, c.linii) << c.text;
    }
}

TEST(CitireCsv, Windows1250CuSedilaRamaneCumAFostScris) {
    // ş ţ Ş Ţ in the code page are the cedilla letters; UTF-8 text keeps its comma-below ones.
    EXPECT_EQ(TextCsv(QByteArray("\xBA\xFE\xAA\xDE")), QString::fromUtf16(u"\u015F\u0163\u015E\u0162"));
    EXPECT_EQ(TextCsv(QByteArray("\xEF\xBB\xBF\xC8\x99")), QString::fromUtf16(u"\u0219"));
}

struct CazValoare {
    TipCamp tip;
    const char* text;  // nullptr: no value in the file
    QVariant asteptat; // null: no value; invalid: refused
};

TEST(ValoareVeche, CaInFisiereleVechi) {
    const QVariant refuzat;
    const std::vector<CazValoare> cazuri = {
        {TipCamp::Boolean, "-1", 1},
        {TipCamp::Boolean, "1", 1},
        {TipCamp::Boolean, "True", 1},
        {TipCamp::Boolean, "0", 0},
        {TipCamp::Boolean, "poate", refuzat},
        {TipCamp::Data, "1899-12-30 00:00:00", QVariant(QMetaType::fromType<QDate>())},
        {TipCamp::Data, "2012-03-01 00:00:00", QDate(2012, 3, 1)},
        {TipCamp::Data, "03/01/12 00:00:00", QDate(2012, 3, 1)},
        {TipCamp::Data, "12/31/99 00:00:00", QDate(1999, 12, 31)},
        {TipCamp::Data, "2012-02-30 00:00:00", refuzat},
        {TipCamp::Data, "", QVariant(QMetaType::fromType<QDate>())},
        {TipCamp::Currency, "350.5000", QVariant::fromValue(*Bani::DinText(u"350.5"))},
        {TipCamp::Currency, "-12,25", QVariant::fromValue(*Bani::DinText(u"-12.25"))},
        {TipCamp::Currency, "lei", refuzat},
        {TipCamp::Integer, " 42 ", qint64(42)},
        {TipCamp::Integer, "3.0", qint64(3)},
        {TipCamp::Integer, "3.5", refuzat},
        {TipCamp::Integer, "4294967296", refuzat},
        {TipCamp::Cheie, "4294967296", qint64(4294967296)},
        {TipCamp::Text, " cu blancuri ", QStringLiteral(" cu blancuri ")},
        {TipCamp::Text, "", QString::fromLatin1("")},
        {TipCamp::Text, nullptr, QVariant(QMetaType::fromType<QString>())},
    };
    const Dialect d(Motor::PostgreSQL);
    for (const auto& c : cazuri) {
        const QString text = c.text ? QString::fromUtf8(c.text) : QString();
        const auto v = ValoareVeche(CampSchema{QStringLiteral("X"), c.tip, 50}, text, d);
        const std::string caz = c.text ? c.text : "(nimic)";
        if (!c.asteptat.isValid()) {
            EXPECT_FALSE(v.has_value()) << caz;
            continue;
        }
        ASSERT_TRUE(v.has_value()) << caz;
        EXPECT_EQ(v->isNull(), c.asteptat.isNull()) << caz;
        if (c.asteptat.isNull()) continue;
        if (c.tip == TipCamp::Currency)
            EXPECT_EQ(Bani::DinVariant(*v), Bani::DinVariant(c.asteptat)) << caz;
        else
            EXPECT_EQ(v->toString(), c.asteptat.toString()) << caz;
    }
}

TEST(CitireMdb, TabeleleSiValorileUnuiFisierJet) {
    auto sursa = DeschideSursaVeche(Date(QStringLiteral("fruit.mdb")));
    const QStringList tabele = sursa->Tabele();
    EXPECT_TRUE(tabele.contains(QStringLiteral("Fruit")));
    EXPECT_TRUE(tabele.contains(QStringLiteral("Muffin/Bread")));
    EXPECT_FALSE(tabele.contains(QStringLiteral("MSysObjects")));
    auto t = sursa->Deschide(QStringLiteral("Fruit"));
    const QStringList campuri = t->Campuri();
    ASSERT_EQ(campuri.size(), 11);
    EXPECT_EQ(campuri[0], QStringLiteral("Fruit"));
    const qsizetype vitA = campuri.indexOf(QStringLiteral("Vit A"));
    const qsizetype vitE = campuri.indexOf(QStringLiteral("Vit E"));
    QStringList rand;
    int randuri = 0;
    while (t->Urmator(rand)) {
        ++randuri;
        if (rand[0] == QLatin1String("Apricot")) {
            EXPECT_EQ(rand[vitA], QStringLiteral("420"));
        }
        if (rand[0] == QLatin1String("Fig")) {
            EXPECT_TRUE(rand[vitE].isNull());
        }
        if (rand[0] == QLatin1String("Grapefruit, Red")) {
            EXPECT_EQ(rand[vitE], QStringLiteral("0"));
        }
    }
    EXPECT_EQ(randuri, 37);
    EXPECT_EQ(sursa->Volum(QStringLiteral("Fruit")), 37);
}

// Delegates to another source and fails while reading one table, after the tables before it are written.
class SursaCuEsec : public SursaVeche {
public:
    SursaCuEsec(std::unique_ptr<SursaVeche> s, QString tabela) : s_(std::move(s)), tabela_(std::move(tabela)) {}
    QString Descriere() const override { return s_->Descriere(); }
    QStringList Tabele() const override { return s_->Tabele(); }
    qint64 Volum(const QString& t) const override { return s_->Volum(t); }
    QStringList Campuri(const QString& t) override { return s_->Campuri(t); }
    std::unique_ptr<TabelaVeche> Deschide(const QString& t) override {
        if (t == tabela_) throw Eroare(QStringLiteral("disc stricat"));
        return s_->Deschide(t);
    }

private:
    std::unique_ptr<SursaVeche> s_;
    QString tabela_;
};

class ImportVechi : public TestBaza {
protected:
    RaportImport Importa(const QString& folder) {
        auto sursa = DeschideSursaVeche(Date(folder));
        return ImportaBazaVeche(Bd(), *sursa, Locatie().caleBD);
    }
    QVariant Camp(const QString& sql, qint64 cheie) {
        Interogare q(Bd(), sql);
        q.Leaga(cheie);
        EXPECT_TRUE(q.Exista()) << sql.toStdString() << " " << cheie;
        return q.Valoare(0);
    }
    QString Lista(const QString& sql) {
        Interogare q(Bd(), sql);
        q.Executa();
        QStringList r;
        while (q.Urmator())
            r << q.Valoare(0).toString() + QLatin1Char(':') + q.Valoare(1).toString();
        return r.join(u',');
    }
};

TEST_P(ImportVechi, FormaVecheRidicataLaFormaDeAziCuCheileEi) {
    BazaNoua();
    const RaportImport r = Importa(QStringLiteral("veche"));

    // Keys and printed numbers as they were.
    EXPECT_EQ(Lista(QStringLiteral("SELECT CerereID, NrCerere FROM Cereri ORDER BY CerereID")),
              QStringLiteral("5:101,7:102,12:117"));
    EXPECT_EQ(Lista(QStringLiteral("SELECT DispozitieID, NrDisp FROM Dispozitii ORDER BY DispozitieID")),
              QStringLiteral("40:1201,41:1202"));
    // The two old income fields summed, a missing one counting as nothing.
    EXPECT_EQ(Bani::DinVariant(Camp(QStringLiteral("SELECT VenitTotal FROM Cereri WHERE CerereID = ?"), 5)),
              *Bani::DinText(u"470.75"));
    EXPECT_EQ(Bani::DinVariant(Camp(QStringLiteral("SELECT VenitTotal FROM Cereri WHERE CerereID = ?"), 12)),
              Bani::DinLei(200));
    OperatiiSchema ops(Bd());
    EXPECT_FALSE(ops.CampExista(QStringLiteral("Cereri"), QStringLiteral("VenitPermanent")));
    EXPECT_FALSE(ops.CampExista(QStringLiteral("CereriMembrii"), QStringLiteral("CodRudenie")));
    EXPECT_TRUE(ops.TabelaExista(QStringLiteral("ListaBife")));
    // Jet's -1 is true; the zero date is no date; the renamed kinship field keeps its values.
    EXPECT_EQ(Camp(QStringLiteral("SELECT Lege416 FROM Cereri WHERE CerereID = ?"), 5).toInt(), 1);
    EXPECT_TRUE(Camp(QStringLiteral("SELECT Data18Ani FROM CereriMembrii WHERE MembruID = ?"), 21).isNull());
    EXPECT_EQ(Lista(QStringLiteral("SELECT MembruID, RudenieID FROM CereriMembrii WHERE CerereID = 5 ORDER BY 1")),
              QStringLiteral("21:1,22:3"));
    // A text longer than its field today is kept whole (PostgreSQL's field is widened for it).
    EXPECT_EQ(Camp(QStringLiteral("SELECT Motiv FROM CereriMembrii WHERE MembruID = ?"), 24).toString(),
              QStringLiteral("casatorie incheiata la primaria Falticeni, act nr 123 din 2011"));
    // A request without a titular is the schema's to hold; it comes as it was, without list keys of a person.
    EXPECT_TRUE(Camp(QStringLiteral("SELECT MembruID1 FROM Cereri WHERE CerereID = ?"), 12).isNull());
    EXPECT_FALSE(Camp(QStringLiteral("SELECT TitularNume FROM Cereri WHERE CerereID = ?"), 5).toString().isEmpty());
    // The Windows-1250 file's cedilla letters as typed.
    EXPECT_EQ(Camp(QStringLiteral("SELECT Nume FROM Membrii WHERE MembruID = ?"), 23).toString(),
              QString::fromUtf16(u"\u0162URCANU"));
    EXPECT_EQ(Camp(QStringLiteral("SELECT Prenume FROM Membrii WHERE MembruID = ?"), 24).toString(),
              QString::fromUtf16(u"ANA \"ANU\u0162A\""));

    // What the schema can't hold is listed, table by table; what the program doesn't know is counted.
    const TabelaImportata* cm = r.Tabela(QStringLiteral("CereriMembrii"));
    ASSERT_NE(cm, nullptr);
    EXPECT_EQ(cm->citite, 6);
    EXPECT_EQ(cm->importate, 5);
    ASSERT_EQ(cm->refuzate.size(), 1u);
    EXPECT_TRUE(cm->refuzate[0].loc.contains(QStringLiteral("CerereID=99")));
    const TabelaImportata* m = r.Tabela(QStringLiteral("Membrii"));
    ASSERT_NE(m, nullptr);
    ASSERT_EQ(m->refuzate.size(), 1u);
    EXPECT_EQ(Camp(QStringLiteral("SELECT Prenume FROM Membrii WHERE MembruID = ?"), 23).toString(),
              QStringLiteral("VASILE"));
    const TabelaImportata* necunoscuta = r.Tabela(QStringLiteral("Switchboard Items"));
    ASSERT_NE(necunoscuta, nullptr);
    EXPECT_TRUE(necunoscuta->tinta.isEmpty());
    EXPECT_EQ(necunoscuta->citite, 2);
    EXPECT_EQ(r.Refuzate(), 2);
    EXPECT_TRUE(r.Linii().filter(QStringLiteral("CerereID = 99")).size() == 1) << r.Linii().join(u'\n').toStdString();
}

TEST_P(ImportVechi, FormaDeAziCuAdeverinteleMarcateCurente) {
    BazaNoua();
    const RaportImport r = Importa(QStringLiteral("noua"));
    EXPECT_EQ(Lista(QStringLiteral("SELECT CerereID, NrCerere FROM Cereri ORDER BY CerereID")),
              QStringLiteral("1:15,2:16"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Venituri")), 3);
    EXPECT_EQ(Camp(QStringLiteral("SELECT Localitate FROM Familii WHERE FamilieID = ?"), 1).toString(),
              QString::fromUtf16(u"F\u0102LTICENI"));
    EXPECT_TRUE(Camp(QStringLiteral("SELECT DataElib FROM Membrii WHERE MembruID = ?"), 2).isNull());
    // The newest certificate of each kind of each person becomes the current one.
    EXPECT_EQ(Lista(QStringLiteral("SELECT AdevID, COALESCE(AdvCurenta, 0) FROM Adeverinte ORDER BY AdevID")),
              QStringLiteral("1:0,2:1,3:1"));
    const TabelaImportata* a = r.Tabela(QStringLiteral("Adeverinte"));
    ASSERT_NE(a, nullptr);
    ASSERT_EQ(a->refuzate.size(), 1u);
    EXPECT_TRUE(a->refuzate[0].motiv.contains(QStringLiteral("Membrii")));
}

TEST_P(ImportVechi, RefuzatInBazaCuCereri) {
    BazaNoua();
    Importa(QStringLiteral("noua"));
    EXPECT_THROW(Importa(QStringLiteral("veche")), Eroare);
    EXPECT_EQ(Lista(QStringLiteral("SELECT CerereID, NrCerere FROM Cereri ORDER BY CerereID")),
              QStringLiteral("1:15,2:16"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii")), 2);
}

TEST_P(ImportVechi, NimicNuRamaneDupaUnImportEsuat) {
    BazaNoua();
    const qint64 dateGen = Numar(QStringLiteral("SELECT COUNT(*) FROM DateGen"));
    SursaCuEsec sursa(DeschideSursaVeche(Date(QStringLiteral("veche"))), QStringLiteral("Membrii"));
    EXPECT_THROW(ImportaBazaVeche(Bd(), sursa, Locatie().caleBD), Eroare);
    // A failure of the upgrade, after every row is in: the goods catalogue of the old file has too few
    // rows and there is no catalogue file to reload it from.
    QTemporaryDir faraCataloage;
    auto veche = DeschideSursaVeche(Date(QStringLiteral("veche")));
    EXPECT_THROW(ImportaBazaVeche(Bd(), *veche, faraCataloage.path()), Eroare);
    // An Access file of something else is no database of the program.
    auto strain = DeschideSursaVeche(Date(QStringLiteral("fruit.mdb")));
    EXPECT_THROW(ImportaBazaVeche(Bd(), *strain, Locatie().caleBD), Eroare);

    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii")), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DateGen")), dateGen);
    OperatiiSchema ops(Bd());
    EXPECT_TRUE(ops.CampExista(QStringLiteral("Cereri"), QStringLiteral("TitularNume")));
    EXPECT_FALSE(ops.CampExista(QStringLiteral("Cereri"), QStringLiteral("VenitPermanent")));
    // And the database takes the import afterwards.
    Importa(QStringLiteral("veche"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 3);
}

TEST_P(ImportVechi, InLocatieFaraBazaOCreeaza) {
    // A failed import into a place without a database leaves no SQLite file behind.
    EXPECT_THROW(ImportaInLocatie(Locatie(), Date(QStringLiteral("fruit.mdb")), FolderDate()), Eroare);
    if (GetParam() == Motor::SQLite) {
        EXPECT_FALSE(QFile::exists(Locatie().FisierSQLite()));
    }

    const RezultatImport r = ImportaInLocatie(Locatie(), Date(QStringLiteral("noua")), FolderDate());
    if (GetParam() == Motor::SQLite) {
        EXPECT_TRUE(r.creata);
    }
    Redeschide();
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 2);
    // A second import finds the database and is refused before any copy is taken.
    EXPECT_THROW(ImportaInLocatie(Locatie(), Date(QStringLiteral("veche")), FolderDate()), Eroare);
    if (GetParam() == Motor::SQLite) {
        EXPECT_FALSE(QDir(Locatie().caleBD).exists(QStringLiteral("Copii")));
    }
}

PE_AMBELE_MOTOARE(ImportVechi);

} // namespace
