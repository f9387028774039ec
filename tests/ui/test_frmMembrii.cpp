#include "cases/frmAddMembru.h"
#include "cases/frmMembrii.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/FormTest.h"
#include "support/SqlTest.h"
#include "support/Texte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QItemSelectionModel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTest>

namespace {

// ---------------------------------------------------------------------------------------------
// frmMotiv

class FormMotiv : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (!IsSkipped()) BazaNoua();
    }
};

TEST_P(FormMotiv, OKDaMotivulSumaSiValuta) {
    const struct {
        const char* motiv; // nullptr: nothing chosen
        const char* valuta;
        bool cuVenit;
        const char* suma;
        MotivIesire asteptat;
    } cazuri[] = {
        {nullptr, nullptr, false, "", {}},
        {"DECES", nullptr, false, "", {3, Bani(), 0}},
        {"PLECAT LA MUNCA IN STRAINATATE", "EURO", true, "1.250,50", {4, *Bani::DinText(T("1250.5")), 4}},
        // The amount counts only with its box ticked.
        {"ANGAJAT", "LEI", false, "900", {2, Bani(), 1}},
        {"ANGAJAT", "LEI", true, "  ", {2, Bani(), 1}},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.motiv ? c.motiv : "-");
        frmMotiv f(Bd(), mesaje);
        f.show();
        auto* motiv = Gaseste<QComboBox>(f, T("cboMembru_0"));
        auto* valuta = Gaseste<QComboBox>(f, T("cboMembru_1"));
        auto* bifa = Gaseste<QCheckBox>(f, T("chkVenit"));
        auto* suma = Gaseste<QLineEdit>(f, T("txtMembru"));
        EXPECT_EQ(motiv->currentIndex(), -1);
        EXPECT_EQ(motiv->count(), 10);
        EXPECT_EQ(valuta->count(), 4);
        EXPECT_EQ(bifa->text(), T("Da, in suma de"));
        EXPECT_FALSE(suma->isEnabled());
        if (c.motiv) Alege(motiv, c.motiv);
        if (c.valuta) Alege(valuta, c.valuta);
        if (c.cuVenit) bifa->click();
        EXPECT_EQ(suma->isEnabled(), c.cuVenit);
        suma->setText(T(c.suma));
        Gaseste<QPushButton>(f, T("cmdOK"))->click();
        ASSERT_TRUE(f.Rezultat);
        EXPECT_EQ(f.Rezultat->MotivID, c.asteptat.MotivID);
        EXPECT_EQ(f.Rezultat->Suma, c.asteptat.Suma);
        EXPECT_EQ(f.Rezultat->TipValuta, c.asteptat.TipValuta);
        EXPECT_EQ(f.result(), QDialog::Accepted);
        EXPECT_FALSE(f.isVisible());
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(T(" | ")).toStdString();
}

TEST_P(FormMotiv, SumaCareNuEsteNumarTineDialogulDeschis) {
    frmMotiv f(Bd(), mesaje);
    f.show();
    Alege(Gaseste<QComboBox>(f, T("cboMembru_0")), "ANGAJAT");
    Gaseste<QCheckBox>(f, T("chkVenit"))->click();
    auto* suma = Gaseste<QLineEdit>(f, T("txtMembru"));
    suma->setText(T("12 lei"));
    Gaseste<QPushButton>(f, T("cmdOK"))->click();
    EXPECT_FALSE(f.Rezultat);
    EXPECT_TRUE(f.isVisible());
    ASSERT_EQ(mesaje.mesaje.size(), 1u);
    EXPECT_EQ(mesaje.mesaje[0].fel, Mesaje::Fel::Avertisment);
    EXPECT_TRUE(mesaje.mesaje[0].text.startsWith(T("\"12 lei\" nu este o suma valida")))
        << mesaje.Texte()[0].toStdString();
    EXPECT_EQ(f.focusWidget(), suma);

    suma->setText(T("12,5"));
    Gaseste<QPushButton>(f, T("cmdOK"))->click();
    ASSERT_TRUE(f.Rezultat);
    EXPECT_EQ(f.Rezultat->Suma, *Bani::DinText(T("12.5")));
    Captura(f, GetParam(), "frmMotiv.png");

    // Cancel gives no reason, even after a choice.
    frmMotiv r(Bd(), mesaje);
    r.show();
    Alege(Gaseste<QComboBox>(r, T("cboMembru_0")), "DECES");
    Gaseste<QPushButton>(r, T("cmdCancel"))->click();
    EXPECT_FALSE(r.Rezultat);
    EXPECT_EQ(r.result(), QDialog::Rejected);
}

PE_AMBELE_MOTOARE(FormMotiv);

// ---------------------------------------------------------------------------------------------
// frmMembrii

class FormMembrii : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaDate& db = BazaNoua();
        CerereTest c;
        c.cerereID = 1;
        c.nrCerere = 1;
        c.persoane = {{5, T("Popescu"), T("Ion"), T("1770203460047"), 1},
                      {3, T("Ionescu"), T("Maria"), T("2850302400011"), 2},
                      {8, T("Ionescu"), T("Ioana"), T("6140203400022"), 3},
                      {12, T("D'Arc"), T("Ana_Maria"), T("2910101400015"), 4}};
        AdaugaCerereTest(db, c);
        ExecutaCu(db, T("UPDATE Membrii SET TipAct = ?, SerieBI = ?, NrBI = ? WHERE MembruID = ?"), 2, T("IF"),
                  T("123456"), 5);
    }
    static QString Selectat(frmMembrii& f) {
        const auto id = f.MembruSelectat();
        return id ? QString::number(*id) : QString();
    }
};

TEST_P(FormMembrii, ListaSiCautarea) {
    frmMembrii f(Bd(), mesaje);
    f.show();
    auto* lvw = Gaseste<QTableView>(f, T("lvwMembrii"));
    QStringList titluri;
    for (int c = 0; c < lvw->model()->columnCount(); ++c)
        titluri << lvw->model()->headerData(c, Qt::Horizontal).toString();
    EXPECT_EQ(titluri,
              (QStringList{T("ID"), T("Nume"), T("Prenume"), T("CNP"), T("Tip Act"), T("Serie BI"), T("Nr BI")}));
    ASSERT_EQ(f.NrRanduri(), 4);
    EXPECT_EQ(f.TexteRand(0),
              (QStringList{T("3"), T("Ionescu"), T("Maria"), T("2850302400011"), QString(), QString(), QString()}));
    EXPECT_EQ(f.TexteRand(1),
              (QStringList{T("5"), T("Popescu"), T("Ion"), T("1770203460047"), T("CI"), T("IF"), T("123456")}));
    EXPECT_FALSE(f.MembruSelectat());
    for (const char* b : {"cmdAdd", "cmdEdit", "cmdDelete"})
        EXPECT_FALSE(Gaseste<QPushButton>(f, QLatin1String(b))->isEnabled()) << b;

    // Enter in a box searches its own field (what matches: MembriiBaza.CautareaGasestePrimulCareIncepeCuTextul).
    const struct {
        int camp;
        const char* text;
        const char* gasit; // empty: the message
        const char* mesaj;
    } cazuri[] = {
        {0, "2850", "3", nullptr},
        {2, "ionescu", "3", nullptr},
        {1, "IOA", "8", nullptr},
        {1, "Ana%", "", "Nu s-a gasit Prenumele: Ana%"},
        {2, "Zamfir", "", "Nu s-a gasit Numele: Zamfir"},
    };
    for (const auto& c : cazuri) {
        SCOPED_TRACE(c.text);
        mesaje.mesaje.clear();
        f.lvwMembrii->clearSelection();
        QLineEdit* t = Gaseste<QLineEdit>(f, QStringLiteral("Txt_%1").arg(c.camp));
        t->setFocus();
        t->setText(T(c.text));
        QTest::keyClick(t, Qt::Key_Return);
        EXPECT_EQ(Selectat(f), T(c.gasit));
        EXPECT_EQ(mesaje.Texte(), c.mesaj ? QStringList{T(c.mesaj)} : QStringList{});
        EXPECT_TRUE(f.isVisible()) << "Enter searches, it doesn't close the list";
    }

    // A person added after the list was read is found and shown.
    ExecutaCu(Bd(),
              T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP, NumeCautare, PrenumeCautare) "
                "VALUES (?, ?, ?, ?, ?, ?)"),
              20, T("Zamfir"), T("Ion"), T("1900101400019"), T("zamfir"), T("ion"));
    f.Txt[2]->setText(T("Zam"));
    f.Txt_KeyPress(2);
    EXPECT_EQ(Selectat(f), T("20"));
    EXPECT_EQ(f.NrRanduri(), 5);
    Captura(f, GetParam(), "frmMembrii.png");
}

TEST_P(FormMembrii, ListaLungaCititaPePagini) {
    {
        Tranzactie t(Bd());
        for (qint64 id = 100; id < 700; ++id)
            ExecutaCu(Bd(), T("INSERT INTO Membrii (MembruID, Nume, Prenume, CNP) VALUES (?, ?, ?, ?)"), id,
                      T("Nume%1").arg(id), T("Prenume%1").arg(id), T("19001014%1").arg(id, 5, 10, QLatin1Char('0')));
        t.Confirma();
    }
    frmMembrii f(Bd(), mesaje);
    ASSERT_EQ(f.NrRanduri(), 604);
    // A person deleted after the list was read leaves its row empty; the rows after it keep their places.
    ExecutaCu(Bd(), T("DELETE FROM CereriMembrii WHERE MembruID = ?"), 12);
    ExecutaCu(Bd(), T("DELETE FROM Membrii WHERE MembruID = ?"), 12);
    EXPECT_EQ(f.TexteRand(3), (QStringList{T("12"), QString(), QString(), QString(), QString(), QString(), QString()}));
    EXPECT_EQ(f.TexteRand(4).mid(0, 4), (QStringList{T("100"), T("Nume100"), T("Prenume100"), T("1900101400100")}));
    for (const int rand : {259, 260, 603}) {
        const qint64 id = 100 + rand - 4;
        EXPECT_EQ(f.TexteRand(rand).mid(0, 2), (QStringList{QString::number(id), T("Nume%1").arg(id)})) << rand;
    }
    f.Txt[0]->setText(T("1900101400699"));
    f.Txt_KeyPress(0);
    EXPECT_EQ(Selectat(f), T("699"));
    EXPECT_EQ(f.lvwMembrii->currentIndex().row(), 603);
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(T(" | ")).toStdString();
}

PE_AMBELE_MOTOARE(FormMembrii);

} // namespace
