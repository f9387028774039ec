#include "app/frmMain.h"
#include "cases/ModelCereri.h"
#include "cases/frmAddCerere.h"
#include "cases/frmAddDispozitie.h"
#include "reference/DateReferinta.h"
#include "reference/frmDatePrimarie2.h"
#include "reference/frmSate.h"
#include "store/Program.h"
#include "support/CereriTest.h"
#include "support/DispozitiiTest.h"
#include "ui/FormaDosar.h"
#include "ui/UiFormular.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeWidget>

namespace {

// The main window on the saved case file and a second request, its dialogs answered by the test
// and its documents and web page handed to recorders instead of other programs.
class FereastraPrincipala : public FormaPeDosar {
protected:
    void SetUp() override {
        FormaPeDosar::SetUp();
        if (IsSkipped()) return;
        AdaugaCerereTest(Bd(), {20, 0, 90, 3, 1, {}, {}, {{50, "Anghel", "Vasile", "1790202400129", 1}}});
        folder = Locatie().caleBD;
    }
    void TearDown() override {
        f.reset();
        FormaPeDosar::TearDown();
    }

    frmMain& Deschide(bool cuPrimarie = true) {
        if (cuPrimarie) {
            DateReferinta::DatePrimarie p;
            for (size_t i = 0; i < p.text.size(); ++i)
                p.text[i] = QString::number(i);
            p.TipLocalitate = 1;
            EXPECT_FALSE(DateReferinta::SalveazaDatePrimarie(Bd(), p));
        }
        f.reset();
        program = std::make_unique<Program>(Program{Bd(), setari, folder});
        f = std::make_unique<frmMain>(*program, mesaje);
        f->ArataModal = [this](QDialog& d) {
            ++dialoguri;
            return raspuns ? raspuns(d) : int(QDialog::Rejected);
        };
        f->MediuDocumente.DeschideImplicit = [this](const QUrl& u) {
            deschise << QFileInfo(u.toLocalFile()).fileName();
            return true;
        };
        f->DeschidePagina = [this](const PunteWeb::PaginaWeb& p) {
            deschise << p.adresa.fragment();
            return true;
        };
        f->show();
        mesaje.mesaje.clear();
        return *f;
    }
    void Selecteaza(qint64 cerere) {
        for (int i = 0; i < f->model()->rowCount(); ++i)
            if (f->model()->Rand(i)->CerereID == cerere) return f->SelecteazaRand(i);
        ADD_FAILURE() << "no row for request " << cerere;
    }
    // Copies delivered files into the program's data folder.
    void Copiaza(const char* sub, const QStringList& fisiere) {
        QDir(folder).mkpath(QLatin1String(sub));
        for (const QString& n : fisiere)
            ASSERT_TRUE(QFile::copy(QStringLiteral(FEROLANTA_SURSA "/%1/%2").arg(QLatin1String(sub), n),
                                    QDir(folder).filePath(QStringLiteral("%1/%2").arg(QLatin1String(sub), n))));
    }

    QString folder;
    std::unique_ptr<Program> program;
    std::unique_ptr<frmMain> f;
    int dialoguri = 0;
    std::function<int(QDialog&)> raspuns;
    QStringList deschise;
};

// The list, the lists of the selected request below it, the search and the delete.
TEST_P(FereastraPrincipala, ListaSiRandulSelectat) {
    AdaugaDispozitie(Bd(), {.id = 1, .cerereID = cerereID, .nrDisp = 7});
    frmMain& w = Deschide();
    ASSERT_EQ(w.model()->rowCount(), 2);
    EXPECT_EQ(w.lblRezul->text(), ListaCereri::TextRezultat(2));
    EXPECT_EQ(w.RandSelectat(), 0) << "the first row is selected after a fill";

    Selecteaza(cerereID);
    EXPECT_EQ(w.lvwDispozitii->topLevelItemCount(), 1);
    EXPECT_GT(w.lvwAdeverinte->topLevelItemCount(), 0);
    EXPECT_TRUE(w.cmdEditDisp->isEnabled());
    Selecteaza(20);
    EXPECT_EQ(w.lvwDispozitii->topLevelItemCount(), 0);
    EXPECT_EQ(w.lvwAdeverinte->topLevelItemCount(), 0);
    EXPECT_FALSE(w.cmdEditDisp->isEnabled());

    w.txtCauta[1]->setText(QStringLiteral("Anghel"));
    QTest::keyClick(w.txtCauta[1], Qt::Key_Return);
    ASSERT_EQ(w.model()->rowCount(), 1);
    EXPECT_EQ(w.model()->Rand(0)->CerereID, 20);
    EXPECT_TRUE(w.txtCauta[1]->text().isEmpty()) << "the filters are emptied after a search";

    // A click on the number's header reads the list again in the database's order of numbers.
    w.ColumnClick(ModelCereri::NrCerere);
    ASSERT_EQ(w.model()->rowCount(), 2);
    EXPECT_LT(w.model()->Rand(0)->NrCerereNumar, w.model()->Rand(1)->NrCerereNumar);

    Selecteaza(20);
    mesaje.raspunsuri = {false, true};
    w.cmdDelete->click();
    EXPECT_EQ(w.model()->rowCount(), 2) << "No keeps it";
    QTest::keyClick(w.lvwCereri, Qt::Key_Delete);
    ASSERT_EQ(w.model()->rowCount(), 1);
    EXPECT_TRUE(w.lblRezul->text().startsWith(QStringLiteral("1 "))) << "the count after the delete";
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri WHERE CerereID = 20")), 0);
    EXPECT_EQ(w.RandSelectat(), 0);
}

// The commands that open a dialog: the town hall's data on a first start, the request editor for a
// change and for a new request, the disposition editor, a reference list from its menu.
TEST_P(FereastraPrincipala, ComenzileDeschidDialogurile) {
    int primarie = 0;
    raspuns = [&](QDialog& d) {
        primarie += qobject_cast<frmDatePrimarie2*>(&d) != nullptr;
        return int(QDialog::Rejected);
    };
    Deschide(false);
    QApplication::processEvents();
    EXPECT_EQ(primarie, 1) << "a new office is led to its own data once the window is up";
    frmMain& w = Deschide();
    dialoguri = 0;

    Selecteaza(cerereID);
    raspuns = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAddCerere&>(d);
        EXPECT_EQ(e.CerereID(), cerereID);
        AlegeCheia(e.cboCerere[4], 4);
        e.cmdOK->click();
        return e.result();
    };
    w.cmdEdit->click();
    EXPECT_EQ(dialoguri, 1);
    EXPECT_EQ(w.model()->Rand(w.RandSelectat())->CerereID, cerereID);
    EXPECT_EQ(w.model()->Rand(w.RandSelectat())->Stare, 4) << "the row is read again after OK";

    raspuns = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAddCerere&>(d);
        EXPECT_EQ(e.CerereID(), 0);
        e.cmdCancel->click();
        return e.result();
    };
    QTest::keyClick(w.lvwCereri, Qt::Key_A);
    EXPECT_EQ(dialoguri, 2);
    EXPECT_EQ(w.model()->rowCount(), 2);

    raspuns = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAddDispozitie&>(d);
        e.txtDispoz[0]->setText(QStringLiteral("46"));
        AlegeCheia(e.cboDispoz[0], 1);
        e.cmdOK->click();
        return e.result();
    };
    Selecteaza(cerereID);
    w.cmdAddDisp->click();
    EXPECT_EQ(dialoguri, 3);
    ASSERT_EQ(w.lvwDispozitii->topLevelItemCount(), 1) << "read again after the save";
    EXPECT_NE(w.lvwDispozitii->currentItem(), nullptr);

    int sate = 0;
    raspuns = [&](QDialog& d) {
        sate += qobject_cast<frmSate*>(&d) != nullptr;
        return int(QDialog::Rejected);
    };
    w.findChild<QAction*>(QStringLiteral("mnuSate"))->trigger();
    EXPECT_EQ(sate, 1);
}

// The document commands write their file into the data folder and hand it to the word processor;
// the web ones give the page the document and the request.
TEST_P(FereastraPrincipala, DocumenteSiPaginaWeb) {
    Copiaza("Acte", QDir(QStringLiteral(FEROLANTA_SURSA "/Acte")).entryList({QStringLiteral("*.rtf")}, QDir::Files));
    Copiaza("Acte", {QStringLiteral("sql_cerere.txt")});
    Copiaza("web", {QStringLiteral("StartCerereWeb.html")});
    AdaugaDispozitie(Bd(), {.id = 1, .cerereID = cerereID, .nrDisp = 45});
    frmMain& w = Deschide();
    Selecteaza(cerereID);
    w.cmdPrintDisp->click();
    w.cmdFisaCalcul->click();
    EXPECT_EQ(deschise, (QStringList{QStringLiteral("Disp.rtf"), QStringLiteral("FisaCerere.rtf")}))
        << mesaje.Texte().join(u'|').toStdString();
    QFile disp(QDir(folder).filePath(QStringLiteral("Disp.rtf")));
    ASSERT_TRUE(disp.open(QIODevice::ReadOnly));
    EXPECT_TRUE(disp.readAll().contains("45")) << "the disposition's number is merged";

    deschise.clear();
    w.TimerMSG_UPD_Timer();
    ASSERT_TRUE(w.cmdCerere->isEnabled()) << "the web commands come on with the page's files";
    w.cmdCerere->click();
    w.cmdPrintAncheta->click();
    w.findChild<QAction*>(QStringLiteral("mnuCerereGoala"))->trigger();
    EXPECT_EQ(deschise, (QStringList{PunteWeb::DocCerere, PunteWeb::DocAncheta, PunteWeb::DocCerere}));

    // No request selected: told, nothing written or opened.
    deschise.clear();
    w.lvwCereri->selectionModel()->clearSelection();
    mesaje.mesaje.clear();
    w.cmdCerere->click();
    w.cmdFisaCalcul->click();
    EXPECT_EQ(mesaje.mesaje.size(), 2u);
    EXPECT_TRUE(deschise.isEmpty());
}

PE_AMBELE_MOTOARE(FereastraPrincipala);

} // namespace
