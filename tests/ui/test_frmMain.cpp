#include "shell/Ceas.h"
#include "shell/ModelCereri.h"
#include "shell/Program.h"
#include "shell/Setari.h"
#include "shell/frmMain.h"
#include "store/Demo.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTreeWidget>

namespace {

class FereastraPrincipala : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        setari.LunaSetata = 11;
        setari.AnSetat = 2026;
    }

    std::unique_ptr<frmMain> Deschide() {
        program = std::make_unique<Program>(Program{Bd(), setari, Locatie().caleBD});
        auto f = std::make_unique<frmMain>(*program, mesaje);
        f->show();
        return f;
    }

    void TreiCereri() {
        AdaugaCerereTest(Bd(),
                         {1,
                          0,
                          10,
                          2,
                          1,
                          {},
                          {},
                          {{1, "Popescu", "Ion", "1800101400123", 1}, {2, "Popescu", "Ana", "6150101400127", 3}}});
        AdaugaCerereTest(Bd(), {2,
                                1,
                                9,
                                3,
                                2,
                                {},
                                {},
                                {{3, "Popa", "Maria", "2850315400128", 1}, {2, "Popescu", "Ana", "6150101400127", 3}}});
        AdaugaCerereTest(Bd(), {3, 0, 100, 2, 1, {}, {}, {{5, "Anghel", "Vasile", "1790202400129", 1}}});
    }

    QStringList Coloana(frmMain& f, int c) {
        QStringList r;
        for (int i = 0; i < f.model()->rowCount(); ++i)
            r << f.model()->index(i, c).data().toString();
        return r;
    }

    Setari setari;
    std::unique_ptr<Program> program;
};

TEST_P(FereastraPrincipala, BazaGoala) {
    auto f = Deschide();
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Alocatii-207: Nu exista date!"));
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Introduceti datele primariei!")});
    EXPECT_EQ(f->model()->rowCount(), 0);
    EXPECT_EQ(f->lblRezul->text(), QStringLiteral(" Nu exista nici o cerere"));
    mesaje.mesaje.clear();
    f->cmdDelete_Click();
    QTest::keyClick(f->lvwCereri, Qt::Key_Delete);
    EXPECT_EQ(mesaje.Texte(),
              (QStringList{QStringLiteral("Selectati o cerere"), QStringLiteral("Selectati o cerere")}));
    EXPECT_EQ(f->sbrMain[2]->text(), QStringLiteral(" LUNA ACTIVA: Noiembrie 2026 "));
}

TEST_P(FereastraPrincipala, TitlulVineDinDatelePrimariei) {
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria Comunei Branesti')"));
    auto f = Deschide();
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Alocatii-207: Primaria Comunei Branesti"));
    EXPECT_TRUE(mesaje.mesaje.empty());
}

TEST_P(FereastraPrincipala, CautareaGoalesteFiltreleSiNumara) {
    TreiCereri();
    auto f = Deschide();
    EXPECT_EQ(f->lblRezul->text(), QStringLiteral("3 cereri"));
    EXPECT_EQ(f->RandSelectat(), 0) << "the first row is selected after a fill";

    f->txtCauta[1]->setText(QStringLiteral("Popa"));
    f->cmdCauta_Click();
    EXPECT_EQ(f->lblRezul->text(), QStringLiteral(" o cerere"));
    EXPECT_EQ(Coloana(*f, ModelCereri::Solicitant), QStringList{QStringLiteral("Popa Maria")});
    for (QLineEdit* t : f->txtCauta)
        EXPECT_TRUE(t->text().isEmpty());

    f->txtCauta[0]->setText(QStringLiteral("999"));
    f->lstStare->item(1)->setSelected(true);
    QTest::keyClick(f->txtCauta[0], Qt::Key_Return);
    EXPECT_EQ(f->lblRezul->text(), QStringLiteral(" Nu exista nici o cerere"));
    EXPECT_EQ(f->model()->rowCount(), 0);
    EXPECT_TRUE(f->txtCauta[0]->text().isEmpty());
    EXPECT_TRUE(f->lstStare->selectedItems().isEmpty());

    // A status filter alone, from the list with Enter.
    f->lstStare->item(2)->setSelected(true); // SUSPENDATA
    QTest::keyClick(f->lstStare, Qt::Key_Return);
    EXPECT_EQ(Coloana(*f, ModelCereri::Solicitant), QStringList{QStringLiteral("Popa Maria")});
}

TEST_P(FereastraPrincipala, SortareaPeNrCerereEsteNumerica) {
    TreiCereri();
    auto f = Deschide();
    f->ColumnClick(ModelCereri::Solicitant);
    EXPECT_EQ(
        Coloana(*f, ModelCereri::Solicitant),
        (QStringList{QStringLiteral("Anghel Vasile"), QStringLiteral("Popa Maria"), QStringLiteral("Popescu Ion")}));
    f->lvwCereri->horizontalHeader()->sectionClicked(ModelCereri::NrCerere);
    EXPECT_EQ(Coloana(*f, ModelCereri::NrCerere),
              (QStringList{QStringLiteral("9  "), QStringLiteral("10  "), QStringLiteral("100  ")}));
    f->ColumnClick(ModelCereri::CNP);
    EXPECT_EQ(Coloana(*f, ModelCereri::CNP).first(), QStringLiteral("1790202400129"));
}

TEST_P(FereastraPrincipala, RandurileSuspendateSuntRosii) {
    TreiCereri();
    auto f = Deschide();
    for (int i = 0; i < f->model()->rowCount(); ++i) {
        const bool rosu = f->model()->index(i, ModelCereri::Stare).data().toString() == QStringLiteral("SUSPENDATA");
        const QVariant culoare = f->model()->index(i, ModelCereri::Adresa).data(Qt::ForegroundRole);
        EXPECT_EQ(culoare.isValid() && culoare.value<QBrush>().color() == QColor(255, 0, 0), rosu) << i;
    }
}

TEST_P(FereastraPrincipala, StergereaCuConfirmare) {
    TreiCereri();
    auto f = Deschide();
    f->SelecteazaRand(1); // request 2, whose family and child are shared with request 1
    mesaje.raspunsuri = {false};
    f->cmdDelete_Click();
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Intrebare),
              QStringList{QStringLiteral("Sigur doriti sa stergeti cererea 9   ?")});
    EXPECT_EQ(f->model()->rowCount(), 3) << "No keeps everything";

    mesaje.raspunsuri = {true};
    QTest::keyClick(f->lvwCereri, Qt::Key_Delete);
    EXPECT_EQ(f->model()->rowCount(), 2);
    EXPECT_EQ(f->lblRezul->text(), QStringLiteral("2 cereri"));
    EXPECT_EQ(f->RandSelectat(), 1) << "the row that took its place is selected";
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE CerereID = 2")), 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Familii WHERE FamilieID = 1")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Membrii WHERE MembruID = 2")), 1);

    // Deleted meanwhile on another computer.
    Bd().Executa(QStringLiteral("DELETE FROM Cereri WHERE CerereID = 3"));
    f->SelecteazaRand(1);
    mesaje.mesaje.clear();
    f->cmdDelete_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!")});
}

TEST_P(FereastraPrincipala, MeniurileAuToateIntrarile) {
    auto f = Deschide();
    const std::pair<const char*, const char*> intrari[] = {
        {"mnuDatePrimarie", "Datele primariei..."},
        {"mnuBarem", "Nivel venituri..."},
        {"mnuJudete", "Judete..."},
        {"mnuSate", "Sate/strazi..."},
        {"mnuMotive", "Motive..."},
        {"mnuSetLunaCurenta", "Setare luna curenta..."},
        {"mnuISR", "Valoare ISR"},
        {"mnuGenAnNou", "Generare An Nou..."},
        {"mnuExit", "Iesire"},
        {"mnuCerereGoala", "Listare Cerere Goala ..."},
        {"mnucerereMod", "Listare Cerere modificare Goala"},
        {"mnuAnchetaGoala", "Listare Ancheta Goala ..."},
        {"mnuCerereSelectata", "Listare Cerere Selectata ..."},
        {"mnuAdev", "Adeverinte scolarizare..."},
        {"mnuMembrii", "Membrii..."},
        {"mnuToateDisp", "Generare dispozitii ..."},
        {"mnuAnexa2", "Tiparire toate dispozitiile ..."},
        {"mnuFisa", "Fisa de calcul ..."},
        {"mnuBorderou", "Borderou..."},
        {"mnuRap", "Rapoarte ..."},
        {"mnuRap2", "Rapoarte2 ..."},
        {"mnuPassword", "Parola..."},
        {"mnuMentenanta", "Mentenanta..."},
        {"mnuOptiuni", "Optiuni..."},
        {"mnuContinut", "Continut"},
        {"mnuIndex", "Index"},
        {"mnuAbout", "Despre program ..."},
        {"mnuExit2", "Iesire"},
    };
    for (const auto& [nume, text] : intrari) {
        auto* a = f->findChild<QAction*>(QString::fromLatin1(nume));
        ASSERT_NE(a, nullptr) << nume;
        EXPECT_EQ(a->text(), QString::fromLatin1(text)) << nume;
    }
    for (const char* activ : {"mnuSetLunaCurenta", "mnuPassword", "mnuOptiuni", "mnuAbout", "mnuExit"})
        EXPECT_TRUE(f->findChild<QAction*>(QString::fromLatin1(activ))->isEnabled()) << activ;
    EXPECT_FALSE(f->cmdAdd->isEnabled()) << "no request editor yet";
}

TEST_P(FereastraPrincipala, SeDeseneazaCuOMieDeCereri) {
    Demo::Optiuni o;
    o.cereri = 1000;
    Demo::Genereaza(Bd(), o);
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria Comunei Branesti')"));
    auto f = Deschide();
    EXPECT_EQ(f->lblRezul->text(), QStringLiteral("1000 cereri"));
    const QImage imagine = f->grab().toImage();
    ASSERT_FALSE(imagine.isNull());
    EXPECT_EQ(imagine.size(), f->size());
    // Some pixels are red: the suspended, ended and refused rows.
    bool rosu = false;
    for (int y = 0; y < imagine.height() && !rosu; y += 2)
        for (int x = 0; x < imagine.width() && !rosu; x += 2) {
            const QColor c = imagine.pixelColor(x, y);
            rosu = c.red() > 200 && c.green() < 60 && c.blue() < 60;
        }
    EXPECT_TRUE(rosu);
    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty()) imagine.save(QStringLiteral("%1/frmMain_%2.png").arg(capturi, Bd().dialect().NumeEngine()));
}

TEST_P(FereastraPrincipala, DispozitiileCereriiSelectateSiStergerea) {
    TreiCereri();
    Interogare ins(
        Bd(), QStringLiteral(
                  "INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, Actiune) VALUES (?, ?, ?, ?, ?)"));
    ins.Leaga(1).Leaga(1).Leaga(7).Leaga(QDate(2024, 4, 1)).Leaga(1).Executa();
    ins.Leaga(2).Leaga(1).Leaga(8).Leaga(QDate(2024, 6, 1)).Leaga(2).Executa();
    auto f = Deschide();
    EXPECT_EQ(f->lvwDispozitii->topLevelItemCount(), 2) << "the first row's dispositions are shown";
    EXPECT_EQ(f->lblDispozitii->text(), QStringLiteral("Dispozitiile lui Popescu Ion."));
    EXPECT_TRUE(f->cmdDelDisp->isEnabled());

    mesaje.raspunsuri = {true};
    f->cmdDelDisp_Click();
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Intrebare),
              QStringList{QStringLiteral("Sigur doriti sa stergeti dispozitia 8 ?")});
    EXPECT_EQ(f->lvwDispozitii->topLevelItemCount(), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")), 1);

    f->SelecteazaRand(1); // a request with none
    EXPECT_EQ(f->lvwDispozitii->topLevelItemCount(), 0);
    EXPECT_TRUE(f->lblDispozitii->text().isEmpty());
    EXPECT_FALSE(f->cmdDelDisp->isEnabled());
    mesaje.mesaje.clear();
    f->cmdDelDisp_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Selectati o dispozitie!")});
}

TEST_P(FereastraPrincipala, NotificareaApareDoarCandEsteCerutaSiSuntActe) {
    TreiCereri();
    Interogare(Bd(), QStringLiteral(
                         "INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataExpAdev, AdvCurenta) "
                         "VALUES (1, 1, 1, 3, ?, 1)"))
        .Leaga(QDate(Ceas::Azi().year(), Ceas::Azi().month(), 1))
        .Executa();
    setari.NotificareActe = false;
    EXPECT_FALSE(Deschide()->picNotific->isVisible());
    setari.NotificareActe = true;
    auto f = Deschide();
    EXPECT_TRUE(f->picNotific->isVisible());
    EXPECT_TRUE(f->picNotific->text().startsWith(QStringLiteral("Aveti acte care expira in luna ")));
}

PE_AMBELE_MOTOARE(FereastraPrincipala);

} // namespace
