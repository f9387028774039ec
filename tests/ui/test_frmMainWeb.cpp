#include "cases/ModelCereri.h"
#include "store/Program.h"
#include "base/Setari.h"
#include "app/frmMain.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableView>

namespace {

// The print commands that go to the web page, and when they are available.
class FereastraWeb : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        folder = Locatie().caleBD;
        setari.LunaSetata = 3;
        setari.AnSetat = 2024;
        Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire) VALUES ('Primaria Comunei Branesti')"));
        AdaugaCerereTest(Bd(), {1, 0, 10, 2, 1, {}, {}, {{1, "Popescu", "Ion", "1800101400123", 1}}});
        AdaugaCerereTest(Bd(), {2, 0, 11, 7, 1, {}, {}, {{2, "Popa", "Maria", "2850315400128", 1}}});
    }
    void TearDown() override {
        fereastra.reset();
        TestBaza::TearDown();
    }

    // The delivered query file and page, copied into the program's data folder.
    void FisiereWeb() {
        QDir(folder).mkpath(QStringLiteral("Acte"));
        QDir(folder).mkpath(QStringLiteral("web"));
        ASSERT_TRUE(QFile::copy(QStringLiteral(FEROLANTA_SURSA "/Acte/sql_cerere.txt"), Interogari()));
        ASSERT_TRUE(QFile::copy(QStringLiteral(FEROLANTA_SURSA "/web/StartCerereWeb.html"), Pagina()));
    }
    QString Interogari() const { return QDir(folder).filePath(QStringLiteral("Acte/sql_cerere.txt")); }
    QString Pagina() const { return QDir(folder).filePath(QStringLiteral("web/StartCerereWeb.html")); }
    QString Date() const {
        QFile f(QDir(folder).filePath(QStringLiteral("web/vb6_output.js")));
        return f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()) : QString();
    }

    frmMain& Deschide() {
        program = std::make_unique<Program>(Program{Bd(), setari, folder});
        fereastra = std::make_unique<frmMain>(*program, mesaje);
        fereastra->ArataModal = [](QDialog&) { return int(QDialog::Rejected); };
        fereastra->DeschidePagina = [this](const PunteWeb::PaginaWeb& p) {
            pagini << p.adresa;
            EXPECT_TRUE(p.browser.isEmpty()) << "the default browser opens the page";
            return true;
        };
        fereastra->show();
        mesaje.mesaje.clear();
        return *fereastra;
    }

    // The enabled state of the commands that follow the list, in a fixed order.
    static QString Stari(frmMain& f) {
        QString s;
        for (QPushButton* b : {f.cmdEdit, f.cmdDelete, f.cmdCerere, f.cmdSelect, f.cmdPrintAncheta, f.cmdFisaCalcul,
                               f.cmdAddAncheta, f.cmdAddDisp})
            s += b->isEnabled() ? QLatin1Char('1') : QLatin1Char('0');
        return s;
    }
    void Cauta(frmMain& f, const char* nume) {
        f.txtCauta[1]->setText(QString::fromLatin1(nume));
        f.cmdCauta_Click();
    }

    Setari setari;
    QString folder;
    std::unique_ptr<Program> program;
    std::unique_ptr<frmMain> fereastra;
    QList<QUrl> pagini;
};

TEST_P(FereastraWeb, DisponibilitateaUrmeazaListaSiFisiereleWeb) {
    // Without the web files: the web commands keep their state, the others follow the list.
    frmMain& f = Deschide();
    //                        edit, delete, cerere, select, ancheta, fisa, addAncheta, addDisp
    f.TimerMSG_UPD_Timer();
    EXPECT_EQ(Stari(f), QStringLiteral("11000111"));
    Cauta(f, "Nimeni");
    EXPECT_EQ(Stari(f), QStringLiteral("00000000"));

    // With both files the web commands follow the list too.
    FisiereWeb();
    f.TimerMSG_UPD_Timer();
    EXPECT_EQ(Stari(f), QStringLiteral("00000000")) << "an empty list, with the files";
    f.cmdCauta_Click();
    EXPECT_EQ(Stari(f), QStringLiteral("11111111"));

    // One file missing: the web commands stay as they were, the others still change.
    ASSERT_TRUE(QFile::remove(Pagina()));
    Cauta(f, "Nimeni");
    EXPECT_EQ(Stari(f), QStringLiteral("00111000"));
    ASSERT_TRUE(QFile::copy(QStringLiteral(FEROLANTA_SURSA "/web/StartCerereWeb.html"), Pagina()));
    ASSERT_TRUE(QFile::remove(Interogari()));
    f.cmdCauta_Click();
    EXPECT_EQ(Stari(f), QStringLiteral("11111111"));
    Cauta(f, "Nimeni");
    EXPECT_EQ(Stari(f), QStringLiteral("00111000"));

    // The blank forms do not depend on the list.
    for (const char* nume : {"mnuCerereGoala", "mnucerereMod", "mnuAnchetaGoala", "mnuCerereSelectata"})
        EXPECT_TRUE(f.findChild<QAction*>(QLatin1String(nume))->isEnabled()) << nume;
}

TEST_P(FereastraWeb, ComenzileDauPaginiiDocumentulSiCererea) {
    FisiereWeb();
    frmMain& f = Deschide();
    f.TimerMSG_UPD_Timer(); // the web commands come on with the list
    mesaje.mesaje.clear();  // the font of the printed forms may be missing here
    ASSERT_TRUE(f.cmdCerere->isEnabled());
    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty() && GetParam() == Motor::SQLite) {
        EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QStringLiteral("frmMain_web.png"))));
    }
    ASSERT_EQ(f.cmdSelect->menu(), f.mnuCerere);
    QAction* anexa1 = f.mnuCerere->findChild<QAction*>(QStringLiteral("mnuAnexa1"));
    QAction* anexa1a = f.mnuCerere->findChild<QAction*>(QStringLiteral("mnuAnexa1a"));
    ASSERT_TRUE(anexa1 && anexa1a);
    EXPECT_EQ(anexa1->text(), QStringLiteral("Anexa 1"));
    EXPECT_EQ(anexa1a->text(), QStringLiteral("Anexa 1a"));

    // Each command: the document it asks for, and whose data go to the page.
    const auto ruleaza = [&](const std::function<void()>& comanda) {
        pagini.clear();
        QFile::remove(QDir(folder).filePath(QStringLiteral("web/vb6_output.js")));
        comanda();
        EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(u'|').toStdString();
        EXPECT_EQ(pagini.size(), 1);
        return pagini.value(0).fragment();
    };
    f.SelecteazaRand(f.model()->RandulCererii(2)); // Stare 7: the amount changed
    EXPECT_EQ(ruleaza([&] { f.cmdCerere->click(); }), PunteWeb::DocCerere1a);
    EXPECT_TRUE(Date().contains(QStringLiteral("location.hash='#cerere_1a_asf_vmg'")));
    EXPECT_TRUE(Date().contains(PunteWeb::HexText(QStringLiteral("Maria"))));
    EXPECT_EQ(ruleaza([&] { anexa1->trigger(); }), PunteWeb::DocCerere) << "the plain form for the same request";
    EXPECT_EQ(ruleaza([&] { anexa1a->trigger(); }), PunteWeb::DocCerere1a);
    EXPECT_EQ(ruleaza([&] { f.cmdPrintAncheta->click(); }), PunteWeb::DocAncheta);
    EXPECT_EQ(pagini.value(0).toLocalFile(), Pagina());

    f.SelecteazaRand(f.model()->RandulCererii(1));
    EXPECT_EQ(ruleaza([&] { f.cmdCerere->click(); }), PunteWeb::DocCerere);
    EXPECT_TRUE(Date().contains(PunteWeb::HexText(QStringLiteral("Popescu"))));
    EXPECT_EQ(ruleaza([&] { f.findChild<QAction*>(QStringLiteral("mnuCerereSelectata"))->trigger(); }),
              PunteWeb::DocCerere);

    // The blank forms: key 0, so no request's data.
    const std::pair<const char*, QString> goale[] = {{"mnuCerereGoala", PunteWeb::DocCerere},
                                                     {"mnucerereMod", PunteWeb::DocCerere1a},
                                                     {"mnuAnchetaGoala", PunteWeb::DocAncheta}};
    for (const auto& [nume, document] : goale) {
        EXPECT_EQ(ruleaza([&] { f.findChild<QAction*>(QLatin1String(nume))->trigger(); }), document) << nume;
        EXPECT_FALSE(Date().contains(PunteWeb::HexText(QStringLiteral("Popescu")))) << nume;
    }

    // Refusals: the request gone, then none selected; nothing reaches the page.
    pagini.clear();
    Interogare(Bd(), QStringLiteral("DELETE FROM Cereri WHERE CerereID = 1")).Executa();
    f.cmdCerere->click();
    f.lvwCereri->selectionModel()->clearSelection();
    anexa1->trigger();
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!"),
                                           QStringLiteral("Selecati mai intai o cerere!")}));
    EXPECT_TRUE(pagini.isEmpty());
}

PE_AMBELE_MOTOARE(FereastraWeb);

} // namespace
