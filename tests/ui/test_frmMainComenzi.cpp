#include "cases/frmAddCerere.h"
#include "cases/frmAddDispozitie.h"
#include "cases/frmAnexa2.h"
#include "cases/frmListaActeExpira.h"
#include "documents/DateDocumenteTest.h"
#include "base/Ceas.h"
#include "cases/ModelCereri.h"
#include "store/Program.h"
#include "base/Setari.h"
#include "ui/UiDataOptionala.h"
#include "app/frmMain.h"
#include "support/BazaTest.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace {

const QString DispozitieStearsa = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!");

// Also notes, at each message, what a function of the window shows at that moment.
class MesajeCuStare : public MesajeInregistrate {
public:
    void Informatie(const QString& text, const QString& titlu = {}) override {
        if (stare) stari << stare();
        MesajeInregistrate::Informatie(text, titlu);
    }
    std::function<QString()> stare;
    QStringList stari;
};

// The main window's commands on dispositions, documents and the expiring certificates, with the
// templates delivered in Acte/ copied into the program's data folder.
class ComenziFereastra : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(QDate(2015, 3, 10));
        folder = Locatie().caleBD;
        QDir(folder).mkpath(QStringLiteral("Acte"));
        const QDir acte(QStringLiteral(FEROLANTA_SURSA "/Acte"));
        for (const QString& f : acte.entryList({QStringLiteral("*.rtf")}, QDir::Files))
            ASSERT_TRUE(QFile::copy(acte.filePath(f), QDir(folder).filePath(QStringLiteral("Acte/") + f)));
        setari.LunaSetata = 3;
        setari.AnSetat = 2015;
        setari.AppWord = 1;
        ScriePrimarie(Bd(), PrimarieA());
        ScrieCerere(Bd(), CerereA()); // request 7, one child, NrCerere 125
        CerereDocTest faraCopii = CerereB();
        faraCopii.NrCopii = 0; // request 8, NrCerere 9
        ScrieCerere(Bd(), faraCopii);
        ScrieDispozitie(Bd(), DispozitieA()); // 3: NrDisp 45, a grant from March 2015
    }
    void TearDown() override {
        Deblocheaza();
        fereastra.reset();
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    frmMain& Deschide() {
        program = std::make_unique<Program>(Program{Bd(), setari, folder});
        fereastra = std::make_unique<frmMain>(*program, m);
        fereastra->ArataModal = [this](QDialog& d) {
            dialoguri << d.objectName();
            return raspunsModal ? raspunsModal(d) : int(QDialog::Rejected);
        };
        fereastra->MediuDocumente.CautaProgram = [this](const QString& nume, const QStringList&) {
            return instalate.contains(nume) ? QStringLiteral("/usr/bin/") + nume : QString();
        };
        fereastra->MediuDocumente.DeschideImplicit = [this](const QUrl& u) {
            deschise << u.toLocalFile();
            return true;
        };
        fereastra->MediuDocumente.PornesteProgram = [this](const QString& p, const QStringList& a) {
            pornite << p + QLatin1Char(' ') + a.join(QLatin1Char(' '));
            return QString();
        };
        fereastra->show();
        m.mesaje.clear();
        return *fereastra;
    }

    void SelecteazaCererea(frmMain& f, qint64 cerereID) {
        const int rand = f.model()->RandulCererii(cerereID);
        ASSERT_GE(rand, 0);
        f.SelecteazaRand(rand);
    }
    static QStringList Numere(const QTreeWidget* l) {
        QStringList r;
        for (int i = 0; i < l->topLevelItemCount(); ++i)
            r << l->topLevelItem(i)->text(1);
        return r;
    }
    static void Alege(QComboBox* c, int valoare) {
        const int i = c->findData(valoare);
        ASSERT_GE(i, 0) << c->objectName().toStdString() << " " << valoare;
        c->setCurrentIndex(i);
    }
    QString Cale(const QString& fisier) const { return QDir(folder).filePath(fisier); }

    // A file that cannot be written, as one that the word processor holds open. Its permissions
    // do not stop the superuser, for whom the file is made immutable instead.
    // A document that can't be written over, as when the word processor still holds it: a folder
    // in its place refuses the write even to root, on any file system.
    void Blocheaza(const QString& cale) {
        ASSERT_TRUE(!QFileInfo::exists(cale) || QFile::remove(cale));
        ASSERT_TRUE(QDir().mkdir(cale));
        blocat = cale;
    }
    void Deblocheaza() {
        if (blocat.isEmpty()) return;
        QDir(blocat).removeRecursively();
        blocat.clear();
    }

    Setari setari;
    QString folder;
    MesajeCuStare m;
    std::unique_ptr<Program> program;
    std::unique_ptr<frmMain> fereastra;
    QStringList dialoguri;
    std::function<int(QDialog&)> raspunsModal;
    QSet<QString> instalate;
    QStringList deschise, pornite;
    QString blocat;
};

TEST_P(ComenziFereastra, AdaugareaDispozitieiRefuzaInOrdineApoiDeschideEditorul) {
    frmMain& f = Deschide();
    EXPECT_TRUE(f.cmdAddDisp->isEnabled());

    f.lvwCereri->selectionModel()->clearSelection();
    f.cmdAddDisp->click();
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral("Selectati o cerere")});

    SelecteazaCererea(f, 8);
    m.mesaje.clear();
    f.cmdAddDisp_Click();
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral(
                             "Nu se poate creea dispozitia pentru ca in cerere inca nu au fost introdusi copiii!")});

    Interogare(Bd(), QStringLiteral("UPDATE Cereri SET NrCopii = 2 WHERE CerereID = 8")).Executa();
    Interogare(Bd(), QStringLiteral("DELETE FROM Cereri WHERE CerereID = 8")).Executa();
    m.mesaje.clear();
    f.cmdAddDisp_Click();
    EXPECT_EQ(m.Texte(),
              QStringList{QStringLiteral("Cererea selectata a fost stearsa de alt utilizator! Dati clic pe Cauta")});
    EXPECT_TRUE(dialoguri.isEmpty()) << "no refusal opens the editor";

    // Cancelled: nothing new.
    SelecteazaCererea(f, 7);
    ASSERT_EQ(Numere(f.lvwDispozitii), QStringList{QStringLiteral("45")});
    m.mesaje.clear();
    f.cmdAddDisp_Click();
    EXPECT_EQ(dialoguri, QStringList{QStringLiteral("frmAddDispozitie")});
    EXPECT_EQ(Numere(f.lvwDispozitii), QStringList{QStringLiteral("45")});

    // Saved: the list is read again, newest first, and the new one is selected.
    raspunsModal = [](QDialog& d) {
        auto& e = static_cast<frmAddDispozitie&>(d);
        EXPECT_EQ(e.windowTitle(), QStringLiteral("Adaugare dispozitii"));
        EXPECT_EQ(e.lblNrCerere->text(), QStringLiteral("125"));
        EXPECT_EQ(e.cboDispoz[0]->currentData().toInt(), 1) << "a grant, proposed from the request's status";
        e.txtDispoz[0]->setText(QStringLiteral("46"));
        Alege(e.cboDispoz[1], 3); // the request has no status date to propose the month from
        e.txtDispoz[1]->setText(QStringLiteral("2015"));
        e.cmdOK_Click();
        return e.result();
    };
    f.cmdAddDisp_Click();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();
    EXPECT_EQ(Numere(f.lvwDispozitii), (QStringList{QStringLiteral("46"), QStringLiteral("45")}));
    ASSERT_NE(f.lvwDispozitii->currentItem(), nullptr);
    EXPECT_EQ(f.lvwDispozitii->currentItem()->text(1), QStringLiteral("46"));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii WHERE CerereID = 7 AND NrDisp = 46")), 1);

    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty() && GetParam() == Motor::SQLite) {
        f.opt->setCurrentWidget(f.lvwDispozitii->parentWidget());
        EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QStringLiteral("frmMain_dispozitii.png"))));
    }
}

TEST_P(ComenziFereastra, ModificareaDispozitieiSiButoaneleCareMergImpreuna) {
    frmMain& f = Deschide();
    SelecteazaCererea(f, 7);
    for (QPushButton* b : {f.cmdEditDisp, f.cmdDelDisp, f.cmdPrintDisp})
        EXPECT_TRUE(b->isEnabled()) << b->objectName().toStdString();

    f.lvwDispozitii->setCurrentItem(nullptr);
    f.cmdEditDisp_Click();
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral("Selectati o dispozitie")});

    // A double click opens the editor on that disposition; OK rewrites the list.
    raspunsModal = [](QDialog& d) {
        auto& e = static_cast<frmAddDispozitie&>(d);
        EXPECT_EQ(e.windowTitle(), QStringLiteral("Modificare Dispozitie"));
        EXPECT_EQ(e.txtDispoz[0]->text(), QStringLiteral("45"));
        e.txtDispoz[0]->setText(QStringLiteral("50"));
        e.cmdOK_Click();
        return e.result();
    };
    m.mesaje.clear();
    Q_EMIT f.lvwDispozitii->itemDoubleClicked(f.lvwDispozitii->topLevelItem(0), 1);
    EXPECT_EQ(dialoguri, QStringList{QStringLiteral("frmAddDispozitie")});
    EXPECT_EQ(Numere(f.lvwDispozitii), QStringList{QStringLiteral("50")});
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();

    // Removed on another computer: told, no editor, and the delete asks nothing.
    Interogare(Bd(), QStringLiteral("DELETE FROM Dispozitii")).Executa();
    dialoguri.clear();
    f.lvwDispozitii->setCurrentItem(f.lvwDispozitii->topLevelItem(0));
    f.cmdEditDisp->click();
    f.cmdDelDisp->click();
    EXPECT_EQ(m.Texte(), (QStringList{DispozitieStearsa, DispozitieStearsa}));
    EXPECT_TRUE(dialoguri.isEmpty());
    EXPECT_EQ(f.lvwDispozitii->topLevelItemCount(), 1) << "the row stays until the list is read again";

    // A request without dispositions: the three commands go off together.
    SelecteazaCererea(f, 8);
    for (QPushButton* b : {f.cmdEditDisp, f.cmdDelDisp, f.cmdPrintDisp})
        EXPECT_FALSE(b->isEnabled()) << b->objectName().toStdString();
}

TEST_P(ComenziFereastra, TiparireaDispozitieiScrieDispRtfSiIlDeschide) {
    frmMain& f = Deschide();
    SelecteazaCererea(f, 7);

    f.cmdPrintDisp->click();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();
    EXPECT_EQ(deschise, QStringList{Cale(QStringLiteral("Disp.rtf"))}) << "AppWord 1: the default application";
    const QByteArray doc = CitesteTot(Cale(QStringLiteral("Disp.rtf")));
    EXPECT_TRUE(doc.startsWith("{\\rtf"));
    EXPECT_TRUE(doc.contains("45")) << "the disposition's number is merged";
    EXPECT_FALSE(doc.contains("#Nr#"));

    // LibreOffice, when the options name it and it is installed.
    setari.AppWord = 2;
    instalate = {QStringLiteral("soffice")};
    deschise.clear();
    f.cmdPrintDisp_Click();
    EXPECT_EQ(pornite, QStringList{QStringLiteral("/usr/bin/soffice ") +
                                   QDir::toNativeSeparators(Cale(QStringLiteral("Disp.rtf")))});
    EXPECT_TRUE(deschise.isEmpty());
    // Not installed: told, with the advice.
    instalate.clear();
    f.cmdPrintDisp_Click();
    EXPECT_EQ(m.Texte(MesajeInregistrate::Fel::Critic),
              QStringList{QStringLiteral("Programul soffice nu este instalat. \nSetati corect din Optiuni, aplicatia "
                                         "pentru deschiderea rtf-ului: MS Word sau Oppen Office Writer")});

    // The file cannot be replaced, as when the word processor holds it: told, nothing opened.
    setari.AppWord = 1;
    Blocheaza(Cale(QStringLiteral("Disp.rtf")));
    m.mesaje.clear();
    f.cmdPrintDisp_Click();
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral("Inchideti documentul deschis anterior!")});
    EXPECT_TRUE(deschise.isEmpty());
    Deblocheaza();

    // A kind without a template: nothing said, nothing written.
    Interogare(Bd(), QStringLiteral("UPDATE Dispozitii SET Actiune = 9")).Executa();
    m.mesaje.clear();
    f.cmdPrintDisp_Click();
    EXPECT_TRUE(m.mesaje.empty());
    EXPECT_FALSE(QFileInfo::exists(Cale(QStringLiteral("Disp.rtf"))));

    // Gone, then none selected.
    Interogare(Bd(), QStringLiteral("DELETE FROM Dispozitii")).Executa();
    f.cmdPrintDisp_Click();
    f.lvwDispozitii->setCurrentItem(nullptr);
    f.cmdPrintDisp_Click();
    EXPECT_EQ(m.Texte(), (QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe o Cerere!"),
                                      QStringLiteral("Selecati mai intai o dispozitie!")}));
    EXPECT_TRUE(deschise.isEmpty());
}

TEST_P(ComenziFereastra, FisaDeCalculCuDataEmiteriiSiDeclaratia) {
    frmMain& f = Deschide();
    SelecteazaCererea(f, 7);
    ASSERT_NE(f.findChild<UiDataOptionala*>(QStringLiteral("dtpDataFisa")), nullptr);
    EXPECT_FALSE(f.dtpDataFisa->data().isValid()) << "empty at opening: the sheet is dated today";

    f.cmdFisaCalcul->click();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();
    EXPECT_EQ(deschise, QStringList{Cale(QStringLiteral("FisaCerere.rtf"))});
    EXPECT_TRUE(CitesteTot(Cale(QStringLiteral("FisaCerere.rtf"))).contains("10.03.2015"));

    f.dtpDataFisa->setData(QDate(2015, 2, 27));
    f.findChild<QAction*>(QStringLiteral("mnuFisa"))->trigger();
    const QByteArray fisa = CitesteTot(Cale(QStringLiteral("FisaCerere.rtf")));
    EXPECT_TRUE(fisa.contains("27.02.2015"));
    EXPECT_FALSE(fisa.contains("10.03.2015"));
    EXPECT_EQ(deschise.size(), 2);

    f.cmdDeclaratie->click();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();
    EXPECT_EQ(deschise.last(), Cale(QStringLiteral("Declar.rtf")));
    EXPECT_TRUE(CitesteTot(Cale(QStringLiteral("Declar.rtf"))).contains("125"));

    // Gone, then none selected; both commands say the same.
    Interogare(Bd(), QStringLiteral("DELETE FROM Cereri WHERE CerereID = 7")).Executa();
    f.cmdFisaCalcul_Click();
    f.cmdDeclaratie_Click();
    f.lvwCereri->selectionModel()->clearSelection();
    f.cmdFisaCalcul_Click();
    f.cmdDeclaratie_Click();
    const QString negasit = QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!");
    const QString fara = QStringLiteral("Selecati mai intai o cerere!");
    EXPECT_EQ(m.Texte(), (QStringList{negasit, negasit, fara, fara}));
    EXPECT_EQ(deschise.size(), 3);
}

TEST_P(ComenziFereastra, TiparireaTuturorDispozitiilorSiOprireaEi) {
    ScrieDispozitie(Bd(), {5, 7, 44, QDate(2015, 3, 2), QDate(2015, 3, 1), 1, Suma("82"), QVariant(), T("a doua")});
    ScrieDispozitie(Bd(), {6, 7, 47, QDate(2015, 3, 2), QDate(2015, 4, 1), 1, Suma("82"), QVariant(), T("aprilie")});
    frmMain& f = Deschide();
    QAction* a = f.findChild<QAction*>(QStringLiteral("mnuAnexa2"));
    ASSERT_EQ(a, f.mnuAnexa2);
    EXPECT_TRUE(a->isEnabled());
    m.stare = [a] { return a->text(); };

    // Cancelled: nothing happens.
    a->trigger();
    EXPECT_EQ(dialoguri, QStringList{QStringLiteral("frmAnexa2")});
    EXPECT_EQ(a->text(), QStringLiteral("Tiparire toate dispozitiile ..."));
    EXPECT_TRUE(m.mesaje.empty());

    const auto alege = [this](int actiune, int luna, const char* min, const char* max) {
        return [=](QDialog& d) {
            auto& x = static_cast<frmAnexa2&>(d);
            EXPECT_EQ(x.cboLuna->currentData().toInt(), 3) << "the working month";
            Alege(x.cboCerere[0], actiune);
            Alege(x.cboTipDisp, 1);
            Alege(x.cboLuna, luna);
            x.txtDispozitieMin->setText(QString::fromLatin1(min));
            x.txtDispozitieMax->setText(QString::fromLatin1(max));
            x.cmdOK_Click();
            return x.result();
        };
    };
    // Nothing chosen: told while the command shows its stop caption, which then comes back.
    raspunsModal = alege(1, 3, "50", "40");
    a->trigger();
    EXPECT_EQ(m.Texte(),
              QStringList{QStringLiteral("Nu exista nici o dispozitie de tiparit. Faceti o alta selectie!")});
    EXPECT_EQ(m.stari, QStringList{QStringLiteral("Opreste tiparirea")});
    EXPECT_EQ(a->text(), QStringLiteral("Tiparire toate dispozitiile ..."));
    EXPECT_TRUE(deschise.isEmpty());

    // The March grants from 40 to 50, in the order of their numbers, one page each.
    m.mesaje.clear();
    raspunsModal = alege(1, 3, "40", "50");
    a->trigger();
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();
    EXPECT_EQ(deschise, QStringList{Cale(QStringLiteral("Disp.rtf"))});
    const QByteArray doc = CitesteTot(Cale(QStringLiteral("Disp.rtf")));
    EXPECT_EQ(doc.count("\\page"), 1);
    EXPECT_LT(doc.indexOf("44"), doc.indexOf("45"));
    EXPECT_FALSE(doc.contains("47"));
    EXPECT_EQ(a->text(), QStringLiteral("Tiparire toate dispozitiile ..."));

    // This command knows fewer applications: the plain editor is not finished there.
    setari.AppWord = 3;
    deschise.clear();
    a->trigger();
    EXPECT_EQ(m.Texte(), QStringList{QStringLiteral("Aceasta varianta nu e finalizata!")});
    EXPECT_TRUE(deschise.isEmpty() && pornite.isEmpty());

    // A click on the stop caption sets the flag and brings the caption back, with no dialog.
    dialoguri.clear();
    a->setText(QStringLiteral("Opreste tiparirea"));
    f.StopTiparire = false;
    a->trigger();
    EXPECT_TRUE(f.StopTiparire);
    EXPECT_EQ(a->text(), QStringLiteral("Tiparire toate dispozitiile ..."));
    EXPECT_TRUE(dialoguri.isEmpty());
}

TEST_P(ComenziFereastra, GenerareaDinMeniuReciteDispozitiileCereriiSelectate) {
    frmMain& f = Deschide();
    SelecteazaCererea(f, 7);
    QAction* a = f.findChild<QAction*>(QStringLiteral("mnuToateDisp"));
    ASSERT_EQ(a, f.mnuToateDisp);
    EXPECT_EQ(a->text(), QStringLiteral("Generare dispozitii ..."));
    raspunsModal = [](QDialog& d) {
        auto& x = static_cast<frmAnexa2&>(d);
        Alege(x.cboTipCerere, 1);
        Alege(x.cboDispoz_1, 4);
        x.txtDispoz[0]->setText(QStringLiteral("100"));
        x.txtDispoz[1]->setText(QStringLiteral("2015"));
        x.cmdGenerate_Click();
        EXPECT_FALSE(x.ESTE_OK);
        return x.result();
    };
    a->trigger();
    EXPECT_EQ(m.Texte().size(), 2) << "the two closing messages of the run";
    EXPECT_TRUE(m.Texte().value(0).startsWith(QStringLiteral("Au fost generate : 1 dispozitii, de la nr 100")));
    EXPECT_EQ(Numere(f.lvwDispozitii), (QStringList{QStringLiteral("100"), QStringLiteral("45")}))
        << "the selected request's list is read again";
    EXPECT_TRUE(deschise.isEmpty()) << "a generation prints nothing";
    EXPECT_EQ(a->text(), QStringLiteral("Generare dispozitii ..."));

    // Its stop caption comes back as the printing's own.
    a->setText(QStringLiteral("Opreste tiparirea"));
    dialoguri.clear();
    a->trigger();
    EXPECT_TRUE(f.StopTiparire);
    EXPECT_EQ(a->text(), QStringLiteral("Tiparire toate dispozitiile (Anexele 2) ..."));
    EXPECT_TRUE(dialoguri.isEmpty());
}

TEST_P(ComenziFereastra, NotificareaDeschideListaActelorSiCerereaPePersoana) {
    Interogare(Bd(), QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, DataExpAdev, "
                                    "AdvCurenta) VALUES (1, 7, 72, 3, ?, 1)"))
        .Leaga(QDate(2015, 3, 31))
        .Executa();
    setari.NotificareActe = true;
    frmMain& f = Deschide();
    ASSERT_TRUE(f.picNotific->isVisible());
    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty() && GetParam() == Motor::SQLite) {
        QTest::qWait(2500); // the notice slides in
        EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QStringLiteral("frmMain_notificare.png"))));
    }

    // A double click in the list opens the request editor on that request, with its person.
    int editoare = 0;
    raspunsModal = [&](QDialog& d) {
        if (auto* lista = qobject_cast<frmListaActeExpira*>(&d)) {
            EXPECT_EQ(lista->lvwActe->model()->rowCount(), 1);
            lista->lvwActe->setCurrentIndex(lista->lvwActe->model()->index(0, 0));
            lista->lvwActe_DblClick();
            return int(QDialog::Accepted);
        }
        auto* e = qobject_cast<frmAddCerere*>(&d);
        EXPECT_NE(e, nullptr) << d.objectName().toStdString();
        if (!e) return int(QDialog::Rejected);
        ++editoare;
        EXPECT_EQ(e->CerereID(), 7);
        EXPECT_EQ(e->windowTitle(), QStringLiteral("Modificare cerere"));
        e->Timer1->stop(); // the person's own dialog is not part of this test
        e->cmdCancel->click();
        return int(QDialog::Rejected);
    };
    QTest::mouseClick(f.picNotific, Qt::LeftButton);
    EXPECT_EQ(dialoguri, (QStringList{QStringLiteral("frmListaActeExpira"), QStringLiteral("frmAddCerere")}));
    EXPECT_EQ(editoare, 1);
    EXPECT_FALSE(m.Texte().contains(QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!")));
    EXPECT_TRUE(f.picNotific->isVisible()) << "the certificate still expires";

    // Once nothing expires, the list hides the notice.
    Interogare(Bd(), QStringLiteral("UPDATE Adeverinte SET DataExpAdev = ?")).Leaga(QDate(2015, 9, 30)).Executa();
    dialoguri.clear();
    raspunsModal = [](QDialog& d) {
        auto& lista = static_cast<frmListaActeExpira&>(d);
        EXPECT_EQ(lista.lvwActe->model()->rowCount(), 0);
        EXPECT_TRUE(lista.Timer1->isActive());
        lista.Timer1_Timer();
        return int(QDialog::Rejected);
    };
    f.picNotific_Click();
    EXPECT_EQ(dialoguri, QStringList{QStringLiteral("frmListaActeExpira")});
    EXPECT_FALSE(f.picNotific->isVisible());
}

TEST_P(ComenziFereastra, MeniurileBazeiDeDateDeschidFerestrele) {
    frmMain& f = Deschide();
    for (const char* nume : {"mnuAdev", "mnuMembrii"}) {
        auto* a = f.findChild<QAction*>(QLatin1String(nume));
        ASSERT_NE(a, nullptr) << nume;
        EXPECT_TRUE(a->isEnabled()) << nume;
        a->trigger();
    }
    EXPECT_EQ(dialoguri, (QStringList{QStringLiteral("frmAdeverinte"), QStringLiteral("frmMembrii")}));
    EXPECT_TRUE(m.mesaje.empty()) << m.Texte().join(u'|').toStdString();
}

PE_AMBELE_MOTOARE(ComenziFereastra);

} // namespace
