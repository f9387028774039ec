#include "cases/StareCerere.h"
#include "cases/frmAddLocuinta.h"
#include "ui/UiDataOptionala.h"
#include "support/BazaTest.h"
#include "support/FormTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace {

class FormLocuinta : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        stare.LocuinteSel[1] = {2, true};
        stare.LocuinteSel[7] = {0, true};
        stare.NrCamere = 2;
        stare.TipDobandire = 5;
        stare.RegimJuridLoc = 4;
        stare.GospodLoc = 1;
        stare.TipLocuinta = 0;
        stare.TipIncalzire = 3;
        stare.SocietatePolita = QStringLiteral("Asirom");
        stare.NrPolita = QStringLiteral("77");
        stare.DataStartPolita = QDate(2014, 1, 15);
        stare.Venituri[0] = Bani::DinLei(800);
    }

    static QCheckBox* Bifa(QWidget& f, const char* nume, int i) {
        return Gaseste<QCheckBox>(f, QStringLiteral("%1_%2").arg(QLatin1String(nume)).arg(i));
    }
    static QComboBox* Lista(QWidget& f, int i) {
        return Gaseste<QComboBox>(f, QStringLiteral("cboLocuinta_%1").arg(i));
    }
    static QLineEdit* Text(QWidget& f, const QString& nume) { return Gaseste<QLineEdit>(f, nume); }
    static UiDataOptionala* Data(QWidget& f, int i) {
        return Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData_%1").arg(i));
    }

    StareCerere stare;
};

TEST_P(FormLocuinta, ControaleleArataStareaSiOKOCopiaza) {
    frmAddLocuinta f(Bd(), mesaje, stare, nullptr);
    f.show();
    QStringList tipuri;
    QString bifate;
    for (int i = 0; i < 7; ++i) {
        tipuri << Bifa(f, "chkLocuinta", i)->text();
        bifate += Bifa(f, "chkLocuinta", i)->isChecked() ? u'1' : u'0';
    }
    EXPECT_EQ(tipuri, (QStringList{QStringLiteral("Casa cu curte"), QStringLiteral("Casa fara curte"),
                                   QStringLiteral("Apartament la bloc"), QStringLiteral("Locuinta sociala"),
                                   QStringLiteral("Locuinta de serviciu"), QStringLiteral("Locuinta de necesitate"),
                                   QStringLiteral("Institutionalizat/Nu are locuinta")}));
    EXPECT_EQ(bifate, QStringLiteral("0100000"));
    EXPECT_EQ(Text(f, QStringLiteral("txtNrCamere"))->text(), QStringLiteral("2"));
    const std::pair<int, const char*> alese[] = {{0, "CONTRACT DE INCHIRIERE"},
                                                 {1, "CHIRIE IN LOCUINTA PROPRIETATE PRIVATA"},
                                                 {2, "SEPARAT, IN GOSPODARIE PROPRIE"},
                                                 {3, ""},
                                                 {4, "LEMNE, CARBUNI, COMBUSTIBILI PETROLIERI"}};
    for (const auto& [i, text] : alese)
        EXPECT_EQ(Lista(f, i)->currentText(), QLatin1String(text)) << i;
    EXPECT_EQ(Lista(f, 3)->count(), 2);

    // The insurance frame follows its box; its fields keep what they hold while hidden.
    auto* cadru = Gaseste<QGroupBox>(f, QStringLiteral("fraPolita"));
    EXPECT_FALSE(cadru->isVisible());
    Bifa(f, "chkPolita", 0)->click();
    EXPECT_TRUE(cadru->isVisible());
    EXPECT_EQ(Text(f, QStringLiteral("txtLocuinta_0"))->text(), QStringLiteral("Asirom"));
    EXPECT_EQ(Data(f, 0)->data(), QDate(2014, 1, 15));
    EXPECT_EQ(Data(f, 1)->data(), QDate());
    EXPECT_EQ(Text(f, QStringLiteral("txtLocuinta_0"))->maxLength(), 50);
    EXPECT_EQ(Text(f, QStringLiteral("txtLocuinta_1"))->maxLength(), 15);

    Bifa(f, "chkLocuinta", 1)->setChecked(false);
    Bifa(f, "chkLocuinta", 2)->setChecked(true);
    Bifa(f, "chkLocuinta", 6)->setChecked(true);
    Text(f, QStringLiteral("txtNrCamere"))->setText(QStringLiteral("3 camere"));
    Lista(f, 0)->setCurrentIndex(-1);
    Lista(f, 3)->setCurrentIndex(Lista(f, 3)->findText(QStringLiteral("TIP B")));
    Text(f, QStringLiteral("txtLocuinta_1"))->setText(QStringLiteral("PAD-9"));
    Data(f, 1)->setData(QDate(2015, 1, 14));
    Bifa(f, "chkPolita", 1)->setChecked(true);
    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty() && GetParam() == Motor::SQLite) {
        EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QStringLiteral("frmAddLocuinta.png"))));
    }

    const StareCerere inainte = stare;
    QTest::mouseClick(Gaseste<QPushButton>(f, QStringLiteral("cmdOK")), Qt::LeftButton);
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_TRUE(mesaje.Texte().isEmpty());
    StareCerere asteptat = inainte;
    asteptat.LocuinteSel = {
        LocuintaSel{0, false}, {2, false}, {0, true}, {0, false}, {0, false}, {0, false}, {0, true}, {0, false}};
    asteptat.NrCamere = 3;
    asteptat.TipDobandire = 0;
    asteptat.TipLocuinta = 2;
    asteptat.Polita = true;
    asteptat.NrPolita = QStringLiteral("PAD-9");
    asteptat.DataStopPolita = QDate(2015, 1, 14);
    asteptat.AcoperaRiscuri = true;
    EXPECT_TRUE(stare == asteptat);
}

TEST_P(FormLocuinta, RenuntareaSiCamereleRefuzateLasaStarea) {
    const StareCerere inainte = stare;
    {
        frmAddLocuinta f(Bd(), mesaje, stare, nullptr);
        f.show();
        Bifa(f, "chkLocuinta", 0)->setChecked(true);
        Text(f, QStringLiteral("txtNrCamere"))->setText(QStringLiteral("300"));
        QTest::mouseClick(Gaseste<QPushButton>(f, QStringLiteral("cmdOK")), Qt::LeftButton);
        EXPECT_EQ(mesaje.Texte(),
                  QStringList{QStringLiteral("Numarul de camere trebuie sa fie un numar intre 0 si 255.")});
        EXPECT_FALSE(f.ESTE_OK);
        EXPECT_TRUE(f.isVisible()) << "the dialog stays open";
        EXPECT_EQ(f.focusWidget(), Text(f, QStringLiteral("txtNrCamere")));
        EXPECT_TRUE(stare == inainte);
        QTest::mouseClick(Gaseste<QPushButton>(f, QStringLiteral("cmdCancel")), Qt::LeftButton);
        EXPECT_FALSE(f.ESTE_OK);
        EXPECT_TRUE(stare == inainte);
    }
    // A request with nothing of housing: OK leaves no mark and no rooms.
    StareCerere gol;
    frmAddLocuinta g(Bd(), mesaje, gol, nullptr);
    EXPECT_EQ(Text(g, QStringLiteral("txtNrCamere"))->text(), QString());
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(Lista(g, i)->currentIndex(), -1) << i;
    g.cmdOK_Click();
    EXPECT_TRUE(g.ESTE_OK);
    EXPECT_TRUE(gol == StareCerere());
}

TEST_P(FormLocuinta, EnterTreceMaiDeparteSiTextulSeSelecteaza) {
    frmAddLocuinta f(Bd(), mesaje, stare, nullptr);
    f.show();
    QApplication::setActiveWindow(&f);
    auto* camere = Text(f, QStringLiteral("txtNrCamere"));
    camere->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(camere->selectedText(), QStringLiteral("2"));
    QTest::keyClick(camere, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), Lista(f, 0));
    QTest::keyClick(Lista(f, 0), Qt::Key_Enter);
    EXPECT_EQ(QApplication::focusWidget(), Lista(f, 1));
    EXPECT_FALSE(f.ESTE_OK) << "Enter does not press OK";
    EXPECT_TRUE(f.isVisible());
}

PE_AMBELE_MOTOARE(FormLocuinta);

} // namespace
