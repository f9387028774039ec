#include "cases/Anchete.h"
#include "cases/frmAddAnchete.h"
#include "base/Ceas.h"
#include "ui/UiDataOptionala.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/FormTest.h"
#include "support/SqlTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <functional>

namespace {

const QDate Azi(2024, 5, 10);
const QString Valabil = QStringLiteral("valabilitate 6 luni");
const QString Incetata = QStringLiteral("Cererea este INCETATA!");
const QString FaraCopii =
    QStringLiteral("La aceasta data nu mai exista nici un copil, deci Ancheta e lipsita de sens!");

class FormAnchete : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(Azi);
        // A mother born in 1985 and a son born on 3 February 2014: 18 on 3 February 2032.
        CerereTest c;
        c.cerereID = 3;
        c.nrCerere = 3;
        c.persoane = {{31, QStringLiteral("Popa"), QStringLiteral("Elena"), QStringLiteral("2850302400011"), 1},
                      {32, QStringLiteral("Popa"), QStringLiteral("Mihai"), QStringLiteral("5140203400022"), 3}};
        AdaugaCerereTest(Bd(), c);
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    static QLineEdit* Text(QWidget& f, int i) { return Gaseste<QLineEdit>(f, QStringLiteral("txtCerere_%1").arg(i)); }
    static QComboBox* Lista(QWidget& f, int i) { return Gaseste<QComboBox>(f, QStringLiteral("cboCerere_%1").arg(i)); }
    static QString Eticheta(QWidget& f, const char* nume) { return Gaseste<QLabel>(f, QLatin1String(nume))->text(); }
    // The date as the clerk sets it: the day chosen and the box ticked.
    static void SeteazaData(QWidget& f, const QDate& d) {
        auto* dtp = Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData"));
        if (!d.isValid()) {
            dtp->bifa()->setChecked(false);
            return;
        }
        dtp->editor()->setDate(d);
        dtp->bifa()->setChecked(true);
    }
    static QStringList Expirare(QWidget& f) {
        return {Eticheta(f, "lblDataExp"), Eticheta(f, "lblMotiv"), Eticheta(f, "lblNrMembrii"),
                Eticheta(f, "lblNrCopii")};
    }
};

TEST_P(FormAnchete, AdaugareaCalculeazaLaFiecareSchimbareADatei) {
    frmAddAnchete f(Bd(), mesaje, 1, 3, 0, 1);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Adaugare Ancheta"));
    for (int i = 0; i < 12; ++i)
        Text(f, i);
    for (const char* nume : {"dtpData", "lblDataExp", "lblMotiv", "lblNrMembrii", "lblNrCopii", "cmdOK", "cmdCancel"})
        Gaseste<QWidget>(f, QLatin1String(nume));
    EXPECT_EQ(Text(f, 0)->maxLength(), 50);
    EXPECT_EQ(Text(f, 11)->maxLength(), 255);

    // The combos: lower case, nothing chosen, in the order of the lists.
    const std::pair<int, QStringList> liste[] = {
        {0, {QStringLiteral("casa cu curte"), QStringLiteral("casa fara curte")}},
        {1, {QStringLiteral("proprietate personala"), QStringLiteral("coproprietate")}},
        {2, {QStringLiteral("persoane"), QStringLiteral("familii")}},
        {3, {QStringLiteral("in proprietate"), QStringLiteral("in folosinta")}},
    };
    for (const auto& [i, primele] : liste) {
        QComboBox* c = Lista(f, i);
        EXPECT_EQ(c->currentIndex(), -1) << i;
        ASSERT_GE(c->count(), 2) << i;
        EXPECT_EQ((QStringList{c->itemText(0), c->itemText(1)}), primele) << i;
        EXPECT_EQ(c->itemData(1).toInt(), 2) << i;
    }

    // Opened on today and computed at once.
    EXPECT_EQ(Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData"))->data(), Azi);
    EXPECT_EQ(Expirare(f),
              (QStringList{QStringLiteral("10.11.2024"), Valabil, QStringLiteral("2"), QStringLiteral("1")}));
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    const struct {
        QDate d;
        QStringList etichete;
        QStringList mesaje;
    } cazuri[] = {
        {QDate(2023, 8, 31), {QStringLiteral("02.03.2024"), Valabil, QStringLiteral("2"), QStringLiteral("1")}, {}},
        {QDate(2032, 2, 3), {QString(), Incetata, QStringLiteral("2"), QStringLiteral("0")}, {FaraCopii}},
        {QDate(), {QString(), QString(), QString(), QString()}, {}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.d.toString(Qt::ISODate).toStdString());
        mesaje.mesaje.clear();
        SeteazaData(f, c.d);
        EXPECT_EQ(Expirare(f), c.etichete);
        EXPECT_EQ(mesaje.Texte(), c.mesaje);
    }

    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty() && GetParam() == Motor::SQLite) {
        SeteazaData(f, Azi);
        Text(f, 0)->setText(QStringLiteral("Ionescu Maria"));
        Text(f, 1)->setText(QStringLiteral("3"));
        Text(f, 2)->setText(QStringLiteral("54.5"));
        Text(f, 3)->setText(QStringLiteral("frigider, televizor, masina de spalat"));
        Text(f, 4)->setText(QStringLiteral("bune"));
        Alege(Lista(f, 0), QStringLiteral("casa cu curte"));
        Alege(Lista(f, 1), QStringLiteral("proprietate personala"));
        Alege(Lista(f, 3), QStringLiteral("in proprietate"));
        f.show();
        EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QStringLiteral("frmAddAnchete.png"))));
    }
}

TEST_P(FormAnchete, OKSpuneCeLipsesteSiApoiScrieAncheta) {
    // The request counts two children, the inquiry finds one: the warning comes before every refusal.
    frmAddAnchete f(Bd(), mesaje, 1, 3, 0, 2);
    f.show();
    const QString avertisment = QStringLiteral(
        "Numarul de copii din Ancheta nu coincide cu numarul de copii din Cerere. Verificati cauza in Cerere!");
    const struct {
        std::function<void()> completeaza;
        QString mesaj;
        const char* control;
    } pasi[] = {
        {[&] { SeteazaData(f, QDate()); }, QStringLiteral("Nu puteti salva datele inainte de a Data Ancheta"),
         "dtpData"},
        {[&] { SeteazaData(f, QDate(2032, 2, 3)); },
         QStringLiteral("Pentru Data Selectata nu mai sunt copii, asa ca ancheta nu are sens! Fie schimbati Data "
                        "Anchetei, fie Renuntati"),
         "dtpData"},
        {[&] { SeteazaData(f, Azi); },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Numele Intocmitorului"), "txtCerere_0"},
        {[&] { Text(f, 0)->setText(QStringLiteral("Ionescu Maria")); },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Numarul de camere"), "txtCerere_1"},
        {[&] { Text(f, 1)->setText(QStringLiteral("3")); },
         QStringLiteral("Nu puteti salva datele inainte de a introduce Suprafata"), "txtCerere_2"},
        {[&] { Text(f, 2)->setText(QStringLiteral("54.5")); },
         QStringLiteral("Tipul locuintei incorect. Selectati din lista!"), "cboCerere_0"},
        {[&] { Alege(Lista(f, 0), QStringLiteral("apartament la bloc")); },
         QStringLiteral("Regim juridic incorect. Selectati un Regim juridic din lista!"), "cboCerere_1"},
        {[&] { Alege(Lista(f, 1), QStringLiteral("coproprietate")); },
         QStringLiteral("Detine in proprietate incorect. Selectati din lista: 'in proprietate' sau 'in folosinta'!"),
         "cboCerere_3"},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.mesaj.toStdString());
        p.completeaza();
        mesaje.mesaje.clear();
        QTest::mouseClick(f.cmdOK, Qt::LeftButton);
        EXPECT_EQ(mesaje.Texte(), (QStringList{avertisment, p.mesaj}));
        ASSERT_NE(f.focusWidget(), nullptr);
        const QWidget* cuFocus = f.focusWidget();
        while (cuFocus && cuFocus->objectName() != QLatin1String(p.control))
            cuFocus = cuFocus->parentWidget();
        EXPECT_NE(cuFocus, nullptr) << "focus on " << f.focusWidget()->objectName().toStdString();
        EXPECT_FALSE(f.ESTE_OK);
        EXPECT_TRUE(f.isVisible());
    }
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")), 0);

    Alege(Lista(f, 3), QStringLiteral("in folosinta"));
    Text(f, 9)->setText(QStringLiteral("buna"));
    mesaje.mesaje.clear();
    QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), QStringList{avertisment});
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(f.AnchetaID(), 1);
    const auto a = Anchete::Citeste(Bd(), 1);
    ASSERT_TRUE(a.has_value());
    EXPECT_EQ(a->CerereID, 3);
    EXPECT_EQ(a->DataAncheta, Azi);
    EXPECT_EQ(a->DataExpirarii, QDate(2024, 11, 10));
    EXPECT_EQ(a->Motiv, Valabil);
    EXPECT_EQ(a->NrMembrii, 2);
    EXPECT_EQ(a->NrCopii, 1);
    EXPECT_EQ(a->Intocmitor, QStringLiteral("Ionescu Maria"));
    EXPECT_EQ(a->NrCamere, QStringLiteral("3"));
    EXPECT_EQ(a->SuprUtila, QStringLiteral("54.5"));
    EXPECT_EQ(a->TipLocuinta, std::optional<int>(3));
    EXPECT_EQ(a->RegimJuridic, std::optional<int>(2));
    EXPECT_EQ(a->TipLocuire, std::nullopt);
    EXPECT_EQ(a->TipDetinere, std::optional<int>(2));
    EXPECT_EQ(a->StareSanatate, QStringLiteral("buna"));
}

TEST_P(FormAnchete, ModificareaArataRandulSalvatSiIlSchimba) {
    // Stored counts that today's computation would not give: the editor shows what was saved.
    ExecutaCu(Bd(),
              QStringLiteral("INSERT INTO Anchete (AnchetaID, CerereID, DataAncheta, Intocmitor, DataExpirarii, "
                             "Motiv, NrMembrii, NrCopii, TipLocuinta, RegimJuridic, NrCamere, SuprUtila, "
                             "TipLocuire, TipDetinere, Aspecte) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
              12, 3, QDate(2023, 8, 31), "Ionescu Maria", QDate(2024, 3, 2), Valabil, 4, 2, 2, 5, 2, QVariant(40.5), 4,
              1, "curat");
    frmAddAnchete f(Bd(), mesaje, 2, 3, 12, 1);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Modificare Ancheta"));
    EXPECT_EQ(Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData"))->data(), QDate(2023, 8, 31));
    EXPECT_EQ(Expirare(f),
              (QStringList{QStringLiteral("02.03.2024"), Valabil, QStringLiteral("4"), QStringLiteral("2")}));
    EXPECT_EQ(Text(f, 0)->text(), QStringLiteral("Ionescu Maria"));
    EXPECT_EQ(Text(f, 1)->text(), QStringLiteral("2"));
    EXPECT_EQ(Text(f, 2)->text(), QStringLiteral("40.5"));
    EXPECT_EQ(Text(f, 11)->text(), QStringLiteral("curat"));
    EXPECT_EQ(Lista(f, 0)->currentText(), QStringLiteral("casa fara curte"));
    EXPECT_EQ(Lista(f, 1)->currentText(), QStringLiteral("locuinta parintilor sau a rudelor"));
    EXPECT_EQ(Lista(f, 2)->currentText(), QStringLiteral("nu locuieste cu alte persoane"));
    EXPECT_EQ(Lista(f, 3)->currentText(), QStringLiteral("in proprietate"));
    EXPECT_TRUE(mesaje.Texte().isEmpty());

    // The stored child count differs from the request's: a warning, and the change is saved.
    Text(f, 0)->setText(QStringLiteral("Vasilescu Ana"));
    Lista(f, 2)->setCurrentIndex(-1);
    f.cmdOK_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral(
                                  "Numarul de copii din Ancheta nu coincide cu numarul de copii din Cerere. Verificati "
                                  "cauza in Cerere!")});
    EXPECT_TRUE(f.ESTE_OK);
    const auto a = Anchete::Citeste(Bd(), 12);
    ASSERT_TRUE(a.has_value());
    EXPECT_EQ(a->Intocmitor, QStringLiteral("Vasilescu Ana"));
    EXPECT_EQ(a->TipLocuire, std::nullopt);
    EXPECT_EQ(a->NrCopii, 2);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")), 1);

    // Removed by another computer while open: told, closed, nothing written.
    frmAddAnchete g(Bd(), mesaje, 2, 3, 12, 2);
    ExecutaCu(Bd(), QStringLiteral("DELETE FROM Anchete WHERE AnchetaID = ?"), 12);
    mesaje.mesaje.clear();
    g.cmdOK_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Aceasta Ancheta a fost stearsa de alt utilizator. "
                                                         "Modificarile dvs. nu pot avea loc. Aceasta fereastra se va "
                                                         "inchide!")});
    EXPECT_FALSE(g.ESTE_OK);
    EXPECT_EQ(g.result(), QDialog::Rejected);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Anchete")), 0);
}

PE_AMBELE_MOTOARE(FormAnchete);

} // namespace
