#include "cases/frmAddAnchete.h"
#include "base/Ceas.h"
#include "cases/ModelCereri.h"
#include "store/Program.h"
#include "base/Setari.h"
#include "app/frmMain.h"
#include "maintenance/Demo.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/SqlTest.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
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
        // The first start's dialog is posted, so the seam is in place before it opens.
        f->ArataModal = [this](QDialog& d) {
            dialoguri << d.objectName();
            return raspunsModal ? raspunsModal(d) : int(QDialog::Rejected);
        };
        f->show();
        return f;
    }

    // Requests 1 and 2 share family 1 and the child Ana; the address is left empty.
    void TreiCereri() {
        const CerereTest::Persoana ana{2, "Popescu", "Ana", "6150101400127", 3};
        AdaugaCerereTest(Bd(), {1, 0, 10, 2, 1, {}, {}, {{1, "Popescu", "Ion", "1800101400123", 1}, ana}});
        AdaugaCerereTest(Bd(), {2, 1, 9, 3, 2, {}, {}, {{3, "Popa", "Maria", "2850315400128", 1}, ana}});
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
    QStringList dialoguri;
    std::function<int(QDialog&)> raspunsModal;
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

    // A new office is led to its own data once the window is up, and the caption follows it.
    EXPECT_TRUE(dialoguri.isEmpty());
    raspunsModal = [this](QDialog&) {
        Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria Orasului Busteni')"));
        return int(QDialog::Accepted);
    };
    QApplication::processEvents();
    EXPECT_EQ(dialoguri, QStringList{QStringLiteral("frmDatePrimarie2")});
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Alocatii-207: Primaria Orasului Busteni"));
}

TEST_P(FereastraPrincipala, TitlulVineDinDatelePrimariei) {
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria Comunei Branesti')"));
    auto f = Deschide();
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Alocatii-207: Primaria Comunei Branesti"));
    EXPECT_TRUE(mesaje.mesaje.empty());
    QApplication::processEvents();
    EXPECT_TRUE(dialoguri.isEmpty()) << "an office with its data is not asked again";

    // The reference menus open their editors.
    for (const char* nume : {"mnuDatePrimarie", "mnuSate", "mnuMotive"}) {
        auto* a = f->findChild<QAction*>(QLatin1String(nume));
        ASSERT_NE(a, nullptr) << nume;
        EXPECT_TRUE(a->isEnabled()) << nume;
        a->trigger();
    }
    EXPECT_EQ(dialoguri, (QStringList{QStringLiteral("frmDatePrimarie2"), QStringLiteral("frmSate"),
                                      QStringLiteral("frmMotive")}));
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
    EXPECT_TRUE(f->cmdAdd->isEnabled());
    EXPECT_TRUE(f->cmdEdit->isEnabled());
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

// The lists under the request list follow the selected row only.
TEST_P(FereastraPrincipala, ListeleDeJosUrmeazaDoarRandulSelectat) {
    TreiCereri();
    Interogare ins(
        Bd(), QStringLiteral(
                  "INSERT INTO Dispozitii (DispozitieID, CerereID, NrDisp, DataDisp, Actiune) VALUES (?, ?, ?, ?, ?)"));
    ins.Leaga(1).Leaga(1).Leaga(7).Leaga(QDate(2024, 4, 1)).Leaga(1).Executa();
    ins.Leaga(2).Leaga(1).Leaga(8).Leaga(QDate(2024, 6, 1)).Leaga(2).Executa();
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta) VALUES (1, 1, ?)"),
              QDate(2024, 2, 10));
    ExecutaCu(Bd(),
              QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                             "DataExpAdev, AdvCurenta) VALUES (1, 1, 2, 3, 'S-1', ?, 1)"),
              QDate(2025, 6, 30));
    auto f = Deschide();
    EXPECT_EQ(f->lvwDispozitii->topLevelItemCount(), 2) << "the first row's dispositions are shown";
    EXPECT_EQ(f->lblDispozitii->text(), QStringLiteral("Dispozitiile lui Popescu Ion."));
    EXPECT_TRUE(f->cmdDelDisp->isEnabled());
    ASSERT_EQ(f->lvwAdeverinte->topLevelItemCount(), 1) << "and its certificates";
    EXPECT_EQ(f->lvwAdeverinte->topLevelItem(0)->text(1), QStringLiteral("Popescu Ana"));
    EXPECT_EQ(f->lvwAdeverinte->topLevelItem(0)->text(6), QStringLiteral("30.06.2025"));

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
    EXPECT_EQ(f->lvwAdeverinte->topLevelItemCount(), 0);
    mesaje.mesaje.clear();
    f->cmdDelDisp_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Selectati o dispozitie!")});

    // With no row, after a search that finds nothing or the delete of the last listed request,
    // the lists are empty and their commands off.
    const auto goale = [&](const char* dupa) {
        SCOPED_TRACE(dupa);
        for (QTreeWidget* l : {f->lvwDispozitii, f->lvwAnchete, f->lvwAdeverinte})
            EXPECT_EQ(l->topLevelItemCount(), 0) << l->objectName().toStdString();
        EXPECT_TRUE(f->lblDispozitii->text().isEmpty());
        EXPECT_TRUE(f->lblAnchete->text().isEmpty());
        for (QPushButton* b : {f->cmdAddDisp, f->cmdEditDisp, f->cmdDelDisp, f->cmdPrintDisp, f->cmdAddAncheta,
                               f->cmdEditAncheta, f->cmdDelAncheta})
            EXPECT_FALSE(b->isEnabled()) << b->objectName().toStdString();
    };
    const auto doarCererea1 = [&] {
        f->txtCauta[1]->setText(QStringLiteral("Popescu"));
        f->cmdCauta_Click();
        ASSERT_EQ(f->model()->rowCount(), 1);
        EXPECT_EQ(f->lvwDispozitii->topLevelItemCount(), 1);
        EXPECT_EQ(f->lvwAnchete->topLevelItemCount(), 1);
        EXPECT_EQ(f->lvwAdeverinte->topLevelItemCount(), 1);
        EXPECT_TRUE(f->cmdEditDisp->isEnabled());
    };
    doarCererea1();
    f->txtCauta[0]->setText(QStringLiteral("999"));
    f->cmdCauta_Click();
    goale("a search without a match");
    doarCererea1();
    mesaje.raspunsuri = {true};
    f->cmdDelete_Click();
    ASSERT_EQ(f->model()->rowCount(), 0);
    goale("the last listed request deleted");
}

TEST_P(FereastraPrincipala, NotificareaApareDoarCandEsteCerutaSiSuntActe) {
    TreiCereri();
    ExecutaCu(
        Bd(),
        QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataExpAdev, AdvCurenta) "
                       "VALUES (1, 1, 1, 3, ?, 1)"),
        QDate(Ceas::Azi().year(), Ceas::Azi().month(), 1));
    setari.NotificareActe = false;
    EXPECT_FALSE(Deschide()->picNotific->isVisible());
    setari.NotificareActe = true;
    auto f = Deschide();
    EXPECT_TRUE(f->picNotific->isVisible());
    EXPECT_TRUE(f->picNotific->text().startsWith(QStringLiteral("Aveti acte care expira in luna ")));
}

TEST_P(FereastraPrincipala, AncheteleCereriiSelectateAdaugareModificareStergere) {
    TreiCereri();
    Interogare ins(Bd(), QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, Intocmitor, NrMembrii, "
                                        "NrCopii) VALUES (?, ?, ?, ?, ?, ?)"));
    ins.Leaga(4).Leaga(1).Leaga(QDate(2024, 2, 10)).Leaga("Ionescu Maria").Leaga(2).Leaga(1).Executa();
    ins.Leaga(9).Leaga(1).Leaga(QDate(2024, 9, 3)).Leaga("Ionescu Maria").Leaga(QVariant()).Leaga(1).Executa();
    auto f = Deschide();
    ASSERT_EQ(f->lvwAnchete->topLevelItemCount(), 2);
    EXPECT_EQ(f->lvwAnchete->topLevelItem(0)->text(1), QStringLiteral("03.09.2024")) << "newest first";
    EXPECT_EQ(f->lvwAnchete->topLevelItem(0)->text(2), QString()) << "a missing count is blank";
    EXPECT_EQ(f->lvwAnchete->topLevelItem(1)->text(2), QStringLiteral("2"));
    EXPECT_EQ(f->lblAnchete->text(), QStringLiteral("Anchetele lui Popescu Ion."));
    EXPECT_TRUE(f->cmdEditAncheta->isEnabled());
    EXPECT_TRUE(f->cmdDelAncheta->isEnabled());

    // Change: the editor opens on the selected inquiry, the list is read again after OK.
    const auto completeaza = [](const QString& intocmitor) {
        return [intocmitor](QDialog& d) {
            auto& e = static_cast<frmAddAnchete&>(d);
            e.txtCerere[0]->setText(intocmitor);
            e.txtCerere[1]->setText(QStringLiteral("2"));
            e.txtCerere[2]->setText(QStringLiteral("48"));
            for (int i : {0, 1, 3})
                e.cboCerere[i]->setCurrentIndex(0);
            e.cmdOK_Click();
            return e.ESTE_OK ? int(QDialog::Accepted) : int(QDialog::Rejected);
        };
    };
    raspunsModal = completeaza(QStringLiteral("Vasilescu Ana"));
    mesaje.mesaje.clear();
    f->lvwAnchete->setCurrentItem(f->lvwAnchete->topLevelItem(1));
    f->cmdEditAncheta_Click();
    EXPECT_EQ(dialoguri.size(), 1);
    EXPECT_EQ(mesaje.Texte(), QStringList());
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE AnchetaID = 4 AND Intocmitor = "
                                   "'Vasilescu Ana'")),
              1);

    // Add: a new row after OK.
    raspunsModal = completeaza(QStringLiteral("Ionescu Maria"));
    f->cmdAddAncheta_Click();
    EXPECT_EQ(f->lvwAnchete->topLevelItemCount(), 3);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete WHERE CerereID = 1")), 3);

    // Delete: asked, removed, a neighbour stays selected.
    mesaje.mesaje.clear();
    mesaje.raspunsuri = {true};
    f->lvwAnchete->setCurrentItem(f->lvwAnchete->topLevelItem(2));
    const QString sters = f->lvwAnchete->topLevelItem(2)->text(0);
    f->cmdDelAncheta_Click();
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Intrebare),
              QStringList{QStringLiteral("Sigur doriti sa stergeti ancheta %1 ?").arg(sters)});
    EXPECT_EQ(f->lvwAnchete->topLevelItemCount(), 2);
    ASSERT_NE(f->lvwAnchete->currentItem(), nullptr);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")), 2);

    // Gone meanwhile: told, nothing opened.
    Bd().Executa(QStringLiteral("DELETE FROM Anchete"));
    mesaje.mesaje.clear();
    dialoguri.clear();
    f->cmdEditAncheta_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!")});
    EXPECT_TRUE(dialoguri.isEmpty());

    // A request with none: an empty list, no title, edit and delete off, add still there.
    f->SelecteazaRand(1);
    EXPECT_EQ(f->lvwAnchete->topLevelItemCount(), 0);
    EXPECT_TRUE(f->lblAnchete->text().isEmpty());
    EXPECT_FALSE(f->cmdEditAncheta->isEnabled());
    EXPECT_FALSE(f->cmdDelAncheta->isEnabled());
    EXPECT_TRUE(f->cmdAddAncheta->isEnabled());

    // A request removed by another computer.
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Cereri WHERE CerereID = ?"), f->model()->Rand(1)->CerereID);
    mesaje.mesaje.clear();
    f->cmdAddAncheta_Click();
    EXPECT_EQ(mesaje.Texte(),
              QStringList{QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta")});
    EXPECT_TRUE(dialoguri.isEmpty());
}

PE_AMBELE_MOTOARE(FereastraPrincipala);

} // namespace
