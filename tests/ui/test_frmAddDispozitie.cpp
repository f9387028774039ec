#include "cases/Dispozitii.h"
#include "cases/frmAddDispozitie.h"
#include "cases/frmAnexa2.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "support/BazaTest.h"
#include "support/DispozitiiTest.h"
#include "support/FormTest.h"

#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <functional>

static void PrintTo(const Bani& b, std::ostream* os) {
    *os << b.Text().toStdString();
}

namespace {

const QDate Azi(2024, 5, 10);

class FormDispozitii : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(Azi);
        // Filed on 15.03.2024, status dated 01.04.2024.
        AdaugaCereri(Bd(), {{.id = 1, .nrCerere = 31, .stare = 2, .cuantum = Bani::DinLei(164)},
                            {.id = 2, .nrCerere = 32, .stare = 7, .cuantum = Bani::DinLei(210)},
                            {.id = 3, .nrCerere = 33, .tip = 2, .stare = 3}});
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    static QLineEdit* Text(QWidget& f, int i) { return Gaseste<QLineEdit>(f, QStringLiteral("txtDispoz_%1").arg(i)); }
    static QComboBox* Lista(QWidget& f, const char* nume) { return Gaseste<QComboBox>(f, QLatin1String(nume)); }
    static QString Eticheta(QWidget& f, const char* nume) { return Gaseste<QLabel>(f, QLatin1String(nume))->text(); }
    // Shown when the dialog is: hidden neither itself nor by a parent inside the dialog.
    static bool Arata(QWidget& f, const char* nume) {
        return Gaseste<QWidget>(f, QLatin1String(nume))->isVisibleTo(&f);
    }
    static bool FocusPe(QWidget& f, const char* nume) {
        const QWidget* w = f.focusWidget();
        while (w && w->objectName() != QLatin1String(nume))
            w = w->parentWidget();
        return w != nullptr;
    }
};

TEST_P(FormDispozitii, AdaugareaDeschideDinCerereSiUrmeazaTipul) {
    frmAddDispozitie f(Bd(), mesaje, 1, 1, 0);
    EXPECT_TRUE(f.Deschisa());
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Adaugare dispozitii"));
    EXPECT_EQ(Eticheta(f, "lblNrCerere"), QStringLiteral("31"));
    EXPECT_EQ(Eticheta(f, "lblDataCerere"), QStringLiteral("15.03.2024"));
    const int lungimi[] = {8, 4, 8, 8, 255};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Text(f, i)->maxLength(), lungimi[i]) << i;
    for (const char* nume : {"dtpData", "cmdOK", "cmdCancel", "lblInfo", "picMiddle", "lblModificarea", "lblInSuma",
                             "lblInSumaLei", "lblMotiv"})
        Gaseste<QWidget>(f, QLatin1String(nume));

    // A granted request proposes a grant of its amount from the month of its status.
    QComboBox* tip = Lista(f, "cboDispoz_0");
    ASSERT_EQ(tip->count(), 6);
    EXPECT_EQ(tip->itemText(0), QStringLiteral("acordare"));
    EXPECT_EQ(tip->currentText(), QStringLiteral("acordare"));
    EXPECT_EQ(Lista(f, "cboDispoz_1")->count(), 12);
    EXPECT_EQ(Lista(f, "cboDispoz_1")->currentText(), QStringLiteral("Aprilie"));
    EXPECT_EQ(Text(f, 1)->text(), QStringLiteral("2024"));
    EXPECT_EQ(Text(f, 2)->text(), QStringLiteral("164"));
    EXPECT_EQ(Text(f, 4)->text(), QStringLiteral("Indeplineste conditiile legii"));
    EXPECT_EQ(Gaseste<QDateEdit>(f, QStringLiteral("dtpData"))->date(), Azi);
    EXPECT_EQ(Text(f, 0)->text(), QString());
    EXPECT_EQ(Eticheta(f, "lblModificarea"), QStringLiteral("se stabileste suma de:"));
    EXPECT_TRUE(Arata(f, "picMiddle"));
    EXPECT_FALSE(Arata(f, "txtDispoz_3"));
    EXPECT_FALSE(Arata(f, "txtDispoz_4"));

    // The kind chosen shows and hides its parts.
    const struct {
        const char* tip;
        bool suma, sumaNoua, motiv;
        const char* modificarea;
        const char* etichetaMotiv;
    } tipuri[] = {
        {"modificare", true, true, true, "se modifica suma de:", "Motivul modificarii"},
        {"suspendare", false, true, true, "se modifica suma de:", "Motivul suspendarii"},
        {"acordare", true, false, false, "se stabileste suma de:", "Motivul suspendarii"},
    };
    for (const auto& t : tipuri) {
        SCOPED_TRACE(t.tip);
        Alege(tip, QLatin1String(t.tip));
        EXPECT_EQ(Arata(f, "picMiddle"), t.suma);
        EXPECT_EQ(Arata(f, "lblInSuma"), t.suma && t.sumaNoua);
        EXPECT_EQ(Arata(f, "txtDispoz_3"), t.suma && t.sumaNoua);
        EXPECT_EQ(Arata(f, "txtDispoz_4"), t.motiv);
        EXPECT_EQ(Arata(f, "lblMotiv"), t.motiv);
        EXPECT_EQ(Eticheta(f, "lblModificarea"), QLatin1String(t.modificarea));
        EXPECT_EQ(Eticheta(f, "lblMotiv"), QLatin1String(t.etichetaMotiv));
    }

    Alege(tip, QStringLiteral("suspendare"));
    Captura(f, GetParam(), "frmAddDispozitie_suspendare.png");
    Alege(tip, QStringLiteral("acordare"));

    // The number boxes take digits, comma and point only; Enter moves on and is not a click.
    f.show();
    Text(f, 2)->clear();
    Text(f, 2)->setFocus();
    QTest::keyClicks(Text(f, 2), QStringLiteral("12a,5-0"));
    EXPECT_EQ(Text(f, 2)->text(), QStringLiteral("12,50"));
    QTest::keyClick(Text(f, 2), Qt::Key_Return);
    EXPECT_NE(f.focusWidget(), Text(f, 2));
    EXPECT_NE(f.focusWidget(), nullptr);
    EXPECT_TRUE(f.isVisible());
    Text(f, 0)->setFocus();
    QTest::keyClicks(Text(f, 0), QStringLiteral("1234567890"));
    EXPECT_EQ(Text(f, 0)->text(), QStringLiteral("12345678"));
    Text(f, 0)->setText(QStringLiteral("77"));

    QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(f.DispozitieID(), 1);
    const RandDisp d = CitesteDisp(Bd(), 1);
    EXPECT_EQ(d.cerereID, 1);
    EXPECT_EQ(d.nrDisp, QStringLiteral("77"));
    EXPECT_EQ(d.dataDisp, Azi);
    EXPECT_EQ(d.dinData, QDate(2024, 4, 1));
    EXPECT_EQ(d.actiune, QStringLiteral("1"));
    EXPECT_EQ(d.cuantum, std::optional<Bani>(Bani::DinLei(12)));
    EXPECT_EQ(d.motiv, QStringLiteral("Indeplineste conditiile legii"));
}

TEST_P(FormDispozitii, SchimbareaDeCuantumSiRefuzurileLuiOK) {
    AdaugaDispozitie(Bd(), {.id = 4, .cerereID = 2, .nrDisp = 8, .cuantum = 175});
    frmAddDispozitie f(Bd(), mesaje, 1, 2, 0);
    f.show();
    EXPECT_EQ(Lista(f, "cboDispoz_0")->currentText(), QStringLiteral("modificare"));
    EXPECT_EQ(Text(f, 2)->text(), QStringLiteral("175"));
    EXPECT_EQ(Text(f, 3)->text(), QStringLiteral("210"));
    EXPECT_TRUE(Arata(f, "txtDispoz_3"));
    EXPECT_EQ(Eticheta(f, "lblInSuma"), QStringLiteral("in suma de:"));

    const struct {
        std::function<void()> strica;
        QString mesaj;
        const char* control;
    } pasi[] = {
        {[&] { Lista(f, "cboDispoz_0")->setCurrentIndex(-1); },
         QStringLiteral("Tip Dispozitie incorect. Selectati un tip din lista!"), "cboDispoz_0"},
        {[&] {
             Alege(Lista(f, "cboDispoz_0"), QStringLiteral("modificare"));
             Lista(f, "cboDispoz_1")->setCurrentIndex(-1);
         },
         QStringLiteral("Selectati o luna corecta!"), "cboDispoz_1"},
        {[&] {
             Alege(Lista(f, "cboDispoz_1"), QStringLiteral("Februarie"));
             Text(f, 1)->clear();
         },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Anul"), "txtDispoz_1"},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.mesaj.toStdString());
        p.strica();
        mesaje.mesaje.clear();
        QTest::mouseClick(f.cmdOK, Qt::LeftButton);
        EXPECT_EQ(mesaje.Texte(), QStringList{p.mesaj});
        EXPECT_TRUE(FocusPe(f, p.control));
        EXPECT_FALSE(f.ESTE_OK);
        EXPECT_TRUE(f.isVisible());
    }
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")), 1);

    Alege(Lista(f, "cboDispoz_1"), QStringLiteral("Martie"));
    Text(f, 1)->setText(QStringLiteral("2024"));
    Text(f, 3)->setText(QStringLiteral("230,75"));
    Captura(f, GetParam(), "frmAddDispozitie.png");
    mesaje.mesaje.clear();
    f.cmdOK_Click();
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    EXPECT_TRUE(f.ESTE_OK);
    const RandDisp d = CitesteDisp(Bd(), 5);
    EXPECT_EQ(d.actiune, QStringLiteral("2"));
    EXPECT_EQ(d.cuantumVechi, std::optional<Bani>(Bani::DinLei(175)));
    EXPECT_EQ(d.cuantum, std::optional<Bani>(Bani::DinLei(230)));
    EXPECT_EQ(d.dinData, QDate(2024, 3, 1));
}

TEST_P(FormDispozitii, ModificareaArataRandulSiIlSchimba) {
    AdaugaDispozitie(Bd(), {.id = 6,
                            .cerereID = 2,
                            .nrDisp = 41,
                            .actiune = 2,
                            .dinData = QDate(2024, 9, 1),
                            .cuantum = 210,
                            .cuantumVechi = 175,
                            .dataDisp = QDate(2024, 8, 28)});
    frmAddDispozitie f(Bd(), mesaje, 2, 0, 6);
    EXPECT_TRUE(f.Deschisa());
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Modificare Dispozitie"));
    EXPECT_EQ(Eticheta(f, "lblInfo"), QStringLiteral("Modificare Dispozitie"));
    EXPECT_EQ(Eticheta(f, "lblNrCerere"), QStringLiteral("32"));
    EXPECT_EQ(Text(f, 0)->text(), QStringLiteral("41"));
    EXPECT_EQ(Gaseste<QDateEdit>(f, QStringLiteral("dtpData"))->date(), QDate(2024, 8, 28));
    EXPECT_EQ(Lista(f, "cboDispoz_0")->currentText(), QStringLiteral("modificare"));
    EXPECT_EQ(Lista(f, "cboDispoz_1")->currentText(), QStringLiteral("Septembrie"));
    EXPECT_EQ(Text(f, 1)->text(), QStringLiteral("2024"));
    EXPECT_EQ(Text(f, 2)->text(), QStringLiteral("175"));
    EXPECT_EQ(Text(f, 3)->text(), QStringLiteral("210"));
    EXPECT_EQ(Text(f, 4)->text(), QStringLiteral("motiv vechi"));

    // Turned into an ending: the old amount stays in the row.
    Alege(Lista(f, "cboDispoz_0"), QStringLiteral("incetare"));
    Text(f, 0)->setText(QStringLiteral("42"));
    f.cmdOK_Click();
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    const RandDisp d = CitesteDisp(Bd(), 6);
    EXPECT_EQ(d.nrDisp, QStringLiteral("42"));
    EXPECT_EQ(d.actiune, QStringLiteral("5"));
    EXPECT_EQ(d.cuantum, std::optional<Bani>(Bani::DinLei(175)));
    EXPECT_EQ(d.cuantumVechi, std::optional<Bani>(Bani::DinLei(175)));
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")), 1);

    // Removed by another computer while open: told, closed, nothing written.
    frmAddDispozitie g(Bd(), mesaje, 2, 0, 6);
    Interogare(Bd(), QStringLiteral("DELETE FROM Dispozitii WHERE DispozitieID = ?")).Leaga(6).Executa();
    g.cmdOK_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Aceasta Dispozitie a fost stearsa de alt utilizator. "
                                                         "Modificarile dvs. nu pot avea loc. Aceasta fereastra se va "
                                                         "inchide!")});
    EXPECT_FALSE(g.ESTE_OK);
    EXPECT_EQ(g.result(), QDialog::Rejected);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")), 0);

    // Gone before it opens: told, and the dialog closes as soon as it runs.
    mesaje.mesaje.clear();
    frmAddDispozitie h(Bd(), mesaje, 2, 0, 6);
    EXPECT_FALSE(h.Deschisa());
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cerere!")});
    EXPECT_EQ(h.exec(), QDialog::Rejected);
}

TEST_P(FormDispozitii, Anexa2GenereazaSiAlegeCeSeTipareste) {
    AdaugaDispozitie(Bd(), {.id = 9, .cerereID = 3, .nrDisp = 4, .actiune = 3, .dinData = QDate(2014, 11, 1)});
    frmAnexa2 f(Bd(), mesaje, 11, 2014);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Selectati modul de tiparire a dispozitiilor"));
    for (const char* nume :
         {"cboCerere_0",      "cboTipDisp",  "cboTipCerere", "cboCuantum",   "cboLuna",      "cboDispoz_1",
          "cboOrder",         "txtDispoz_0", "txtDispoz_1",  "txtCerereMin", "txtCerereMax", "txtDispozitieMin",
          "txtDispozitieMax", "dtpData",     "opt_0",        "opt_1",        "opt_2",        "opt_3",
          "cmdGenerate",      "cmdOK",       "cmdCancel"})
        Gaseste<QWidget>(f, QLatin1String(nume));
    EXPECT_EQ(Lista(f, "cboCerere_0")->count(), 6);
    EXPECT_EQ(Lista(f, "cboTipCerere")->itemText(1), QStringLiteral("monoparental"));
    EXPECT_EQ(Lista(f, "cboLuna")->currentText(), QStringLiteral("Noiembrie"));
    EXPECT_EQ(Gaseste<QDateEdit>(f, QStringLiteral("dtpData"))->date(), Azi);
    Captura(f, GetParam(), "frmAnexa2.png");

    // The printing: the choice goes to the caller, which selects with the working year.
    Alege(Lista(f, "cboCerere_0"), QStringLiteral("suspendare"));
    Alege(Lista(f, "cboTipDisp"), QStringLiteral("monoparental"));
    mesaje.mesaje.clear();
    Gaseste<QLineEdit>(f, QStringLiteral("txtDispozitieMin"))->setText(QStringLiteral("1"));
    Gaseste<QLineEdit>(f, QStringLiteral("txtDispozitieMax"))->setText(QStringLiteral("10"));
    QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Accepted);
    const auto alese = Dispozitii::SelecteazaPentruTiparire(Bd(), mesaje, f.Selectie, 2014);
    ASSERT_EQ(alese.size(), 1u);
    EXPECT_EQ(alese[0].DispozitieID, 9);
    EXPECT_EQ(alese[0].Actiune, 3);
}

TEST_P(FormDispozitii, Anexa2GenerareaScrieTotSauNimic) {
    frmAnexa2 f(Bd(), mesaje);
    f.show();
    EXPECT_EQ(Lista(f, "cboDispoz_1")->currentIndex(), -1);
    QTest::mouseClick(f.cmdGenerate, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Selectati tipul cererii!")});
    EXPECT_TRUE(FocusPe(f, "cboTipCerere"));
    EXPECT_TRUE(f.isVisible());

    Alege(Lista(f, "cboTipCerere"), QStringLiteral("cu sot/sotie/etc"));
    Alege(Lista(f, "cboDispoz_1"), QStringLiteral("Iunie"));
    Text(f, 0)->setText(QStringLiteral("500"));
    Text(f, 1)->setText(QStringLiteral("2024"));
    Gaseste<QDateEdit>(f, QStringLiteral("dtpData"))->setDate(QDate(2024, 5, 20));

    // A failure of the engine midway: shown, the dialog stays, nothing written.
    auto implicit = f.RuleazaGenerarea;
    f.RuleazaGenerarea = [&](ParametriGenerare p) {
        p.InainteDeScriere = [](qint64 cerere) {
            if (cerere == 2) throw Eroare(QStringLiteral("Eroare de scriere"));
        };
        return Dispozitii::Genereaza(Bd(), mesaje, p);
    };
    mesaje.mesaje.clear();
    QTest::mouseClick(f.cmdGenerate, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(Mesaje::Fel::Critic), QStringList{QStringLiteral("Eroare de scriere")});
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(f.Generate, 0);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Dispozitii")), 0);

    // The run itself, with the progress window that large runs show.
    f.RuleazaGenerarea = implicit;
    mesaje.mesaje.clear();
    QTest::mouseClick(f.cmdGenerate, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Au fost generate : 2 dispozitii, de la nr 500 la nr "),
                                           QStringLiteral("A pornit de la NrCerere: 31 pana la NrCerere: 32")}));
    EXPECT_EQ(f.Generate, 2);
    EXPECT_FALSE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Rejected);
    EXPECT_FALSE(f.isVisible());
    const RandDisp d = CitesteDisp(Bd(), 2);
    EXPECT_EQ(d.cerereID, 2);
    EXPECT_EQ(d.nrDisp, QStringLiteral("501"));
    EXPECT_EQ(d.dataDisp, QDate(2024, 5, 20));
    EXPECT_EQ(d.dinData, QDate(2024, 6, 1));
    EXPECT_EQ(d.cuantum, std::optional<Bani>(Bani::DinLei(210)));
}

PE_AMBELE_MOTOARE(FormDispozitii);

} // namespace
