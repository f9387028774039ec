#include "reference/DateReferinta.h"
#include "reference/frmAdMotive.h"
#include "reference/frmAdSate.h"
#include "reference/frmDatePrimarie2.h"
#include "reference/frmMotive.h"
#include "reference/frmSate.h"
#include "support/BazaTest.h"
#include "support/SqlTest.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QComboBox>
#include <QCompleter>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <stdexcept>

namespace {

// A control by its object name; a missing one fails the test instead of crashing it.
template <class W> W* Gaseste(QWidget& f, const QString& nume) {
    W* w = f.findChild<W*>(nume);
    if (!w) {
        ADD_FAILURE() << "lipseste " << nume.toStdString();
        throw std::runtime_error("control lipsa");
    }
    return w;
}

QStringList Coloana(QTreeWidget* l, int c) {
    QStringList r;
    for (int i = 0; i < l->topLevelItemCount(); ++i)
        r << l->topLevelItem(i)->text(c);
    return r;
}

QStringList Antet(QTreeWidget* l) {
    QStringList r;
    for (int c = 0; c < l->columnCount(); ++c)
        r << l->headerItem()->text(c);
    return r;
}

QTreeWidgetItem* Rand(QTreeWidget* l, const QString& text, int coloana = 1) {
    for (int i = 0; i < l->topLevelItemCount(); ++i)
        if (l->topLevelItem(i)->text(coloana) == text) return l->topLevelItem(i);
    ADD_FAILURE() << "nu exista randul " << text.toStdString();
    throw std::runtime_error("rand lipsa");
}

void ClicAntet(QTreeWidget* l, int coloana) {
    QHeaderView* h = l->header();
    QTest::mouseClick(h->viewport(), Qt::LeftButton, {},
                      QPoint(h->sectionViewportPosition(coloana) + 4, h->height() / 2));
}

QString Capturi() {
    return qEnvironmentVariable("FEROLANTA_CAPTURI");
}

class Referinte : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
    }
    void Strada(qint64 id, const char* nume, const char* of = "", const char* cod = "") {
        ExecutaCu(Bd(),
                  QStringLiteral("INSERT INTO Strazi (StradaID, Denumire, OfPostal, CodPostal) VALUES (?, ?, ?, ?)"),
                  id, QString::fromUtf8(nume), QString::fromUtf8(of), QString::fromUtf8(cod));
    }
    void Motiv(qint64 id, const char* nume) {
        ExecutaCu(Bd(), QStringLiteral("INSERT INTO Motive (MotivID, Denumire) VALUES (?, ?)"), id,
                  QString::fromUtf8(nume));
    }
    QString Text(const QString& sql, qint64 cheie) {
        Interogare q(Bd(), sql);
        q.Leaga(cheie);
        return q.Exista() ? q.Valoare(0).toString() : QStringLiteral("<lipsa>");
    }
    void Salveaza(QWidget& f, const QString& nume) {
        const QString cale = Capturi();
        if (!cale.isEmpty()) {
            EXPECT_TRUE(
                f.grab().save(QDir(cale).filePath(QStringLiteral("%1_%2.png").arg(nume, Bd().dialect().NumeEngine()))));
        }
    }
};

// ---- Date Primarie 2 ----

TEST_P(Referinte, DatePrimarieCereToateCasuteleInOrdineSiSalveaza) {
    frmDatePrimarie2 f(Bd(), mesaje);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Date Primarie 2"));
    QStringList etichete;
    for (QLabel* l : f.findChildren<QLabel*>())
        etichete << l->text();
    for (const char* e : {"Denumire (*)", "Cod Fiscal (*)", "Cod Judet (*)", "Judet (*)", "Localitate (*)", "Str. (*)",
                          "Primar (*)", "Secretar (*)", "As. Social (*)", "CNP As. Social (*)", "Of. Postal (*)",
                          "Cod Postal (*)", "Tip Localitate (*)"})
        EXPECT_TRUE(etichete.contains(QString::fromLatin1(e))) << e;
    auto* cbo = Gaseste<QComboBox>(f, QStringLiteral("cbo"));
    ASSERT_EQ(cbo->count(), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(cbo->itemData(i).toInt(), i + 1);
    EXPECT_EQ(cbo->itemText(0), QStringLiteral("Comuna"));
    EXPECT_EQ(cbo->itemText(1), QStringLiteral("Oras"));
    EXPECT_EQ(cbo->itemText(2), QStringLiteral("Municipiu"));
    EXPECT_EQ(cbo->currentIndex(), -1) << "an empty table chooses nothing";

    std::array<QLineEdit*, DateReferinta::NrCampuriPrimarie> txt{};
    for (int i = 0; i < DateReferinta::NrCampuriPrimarie; ++i) {
        txt[size_t(i)] = Gaseste<QLineEdit>(f, QStringLiteral("txtText_%1").arg(i));
        EXPECT_TRUE(txt[size_t(i)]->text().isEmpty());
        EXPECT_EQ(txt[size_t(i)]->maxLength(), DateReferinta::LatimeCampPrimarie(i));
    }
    // Each OK names the first box still empty and puts the focus there; a blank box is empty.
    for (int i = 0; i < DateReferinta::NrCampuriPrimarie; ++i) {
        mesaje.mesaje.clear();
        txt[size_t(i)]->setText(QStringLiteral("  "));
        f.cmdOK_Click();
        EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Toate campurile sunt obligatorii!")}) << i;
        EXPECT_EQ(f.focusWidget(), txt[size_t(i)]) << i;
        txt[size_t(i)]->setText(QStringLiteral("Valoare %1").arg(i).left(txt[size_t(i)]->maxLength()));
    }
    mesaje.mesaje.clear();
    f.cmdOK_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Selectati Tip Localitate din lista")});
    EXPECT_EQ(f.focusWidget(), cbo);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")), 0) << "a refused OK writes nothing";

    mesaje.mesaje.clear();
    txt[0]->setText(QStringLiteral("Primaria Comunei Moș' Branesti"));
    cbo->setCurrentIndex(1);
    f.cmdOK_Click();
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie")), 1);
    EXPECT_EQ(Numar(QStringLiteral("SELECT TipLocalitate FROM DatePrimarie")), 2);

    frmDatePrimarie2 iar(Bd(), mesaje);
    for (int i = 0; i < DateReferinta::NrCampuriPrimarie; ++i)
        EXPECT_EQ(Gaseste<QLineEdit>(iar, QStringLiteral("txtText_%1").arg(i))->text(), txt[size_t(i)]->text()) << i;
    EXPECT_EQ(Gaseste<QComboBox>(iar, QStringLiteral("cbo"))->currentText(), QStringLiteral("Oras"));
}

TEST_P(Referinte, DatePrimarieCuDouaRanduriNuSalveaza) {
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, TipLocalitate) VALUES ('Primaria A', 3)"));
    Bd().Executa(QStringLiteral("INSERT INTO DatePrimarie (Denumire, TipLocalitate) VALUES ('Primaria B', 3)"));
    frmDatePrimarie2 f(Bd(), mesaje);
    for (int i = 0; i < DateReferinta::NrCampuriPrimarie; ++i)
        f.txtText[size_t(i)]->setText(QStringLiteral("x"));
    EXPECT_EQ(f.cbo->currentText(), QStringLiteral("Municipiu"));
    f.cmdOK_Click();
    EXPECT_EQ(mesaje.Texte(),
              QStringList{QStringLiteral("Tabela Date Primarie contine mai mult de un rand. Sunati la: 0700111222!")});
    EXPECT_NE(f.result(), QDialog::Accepted) << "the dialog stays open";
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM DatePrimarie WHERE Denumire = 'x'")), 0);
}

TEST_P(Referinte, DatePrimarieEnterTreceMaiDepartePeCasutaUrmatoareSelectata) {
    Bd().Executa(
        QStringLiteral("INSERT INTO DatePrimarie (Denumire, CodFiscal, Str, Nr, Primar, CodPostal, TipLocalitate) "
                       "VALUES ('Primaria Branesti', '4420538', 'Sos. Garii', '1A', 'Ion Pop', '077030', 1)"));
    frmDatePrimarie2 f(Bd(), mesaje);
    f.show();
    QApplication::setActiveWindow(&f);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    f.txtText[0]->setFocus();
    // Each Enter goes to the next control in index order; Str and Nr share a row.
    for (int i = 0; i < DateReferinta::NrCampuriPrimarie; ++i) {
        QWidget* dinainte = QApplication::focusWidget();
        ASSERT_EQ(dinainte, f.txtText[size_t(i)]) << i;
        QTest::keyClick(dinainte, Qt::Key_Return);
        QCoreApplication::processEvents();
        EXPECT_EQ(f.result(), 0) << "Enter doesn't press OK";
        if (i + 1 < DateReferinta::NrCampuriPrimarie) {
            auto* urmator = f.txtText[size_t(i + 1)];
            EXPECT_EQ(urmator->selectedText(), urmator->text()) << "focus selects the text of box " << i + 1;
        }
    }
    EXPECT_EQ(QApplication::focusWidget(), f.cbo);
    QTest::keyClick(f.cbo, Qt::Key_Return);
    EXPECT_EQ(QApplication::focusWidget(), f.cmdOK);
    EXPECT_TRUE(mesaje.mesaje.empty());

    // A click selects the text too, which a line edit doesn't do by itself.
    f.txtText[7]->deselect();
    f.txtText[7]->setFocus(Qt::MouseFocusReason);
    QCoreApplication::processEvents();
    EXPECT_EQ(f.txtText[7]->selectedText(), QStringLiteral("Ion Pop"));

    // The county box completes from Judete.
    QCompleter* c = f.txtText[3]->completer();
    ASSERT_NE(c, nullptr);
    QStringList judete;
    for (int r = 0; r < c->model()->rowCount(); ++r)
        judete << c->model()->index(r, 0).data().toString();
    EXPECT_EQ(judete, DateReferinta::Judete(Bd()));
    EXPECT_TRUE(judete.contains(QStringLiteral("Ilfov")));
    ASSERT_NE(f.txtText[4]->completer(), nullptr);

    f.resize(f.sizeHint());
    Salveaza(f, QStringLiteral("frmDatePrimarie2"));
}

// ---- Sate / strazi ----

TEST_P(Referinte, SateListaSortareSiSelectiaLipsa) {
    Strada(10, "Bisericii", "Branesti", "077031");
    Strada(2, "Morii", "Branesti", "077032");
    Strada(1, "garii", "Pasarea", "077035");
    frmSate f(Bd(), mesaje);
    f.show();
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Sate / strazi"));
    auto* l = Gaseste<QTreeWidget>(f, QStringLiteral("lvwSate"));
    EXPECT_EQ(Antet(l), (QStringList{QStringLiteral("ID"), QStringLiteral("Denumire sat /strada"),
                                     QStringLiteral("Of Postal"), QStringLiteral("Cod Postal")}));
    EXPECT_EQ(Coloana(l, 0), (QStringList{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("10")}))
        << "keys sort as numbers";
    EXPECT_EQ(Coloana(l, 2),
              (QStringList{QStringLiteral("Pasarea"), QStringLiteral("Branesti"), QStringLiteral("Branesti")}));
    EXPECT_EQ(Coloana(l, 3),
              (QStringList{QStringLiteral("077035"), QStringLiteral("077032"), QStringLiteral("077031")}));

    Salveaza(f, QStringLiteral("frmSate"));

    ClicAntet(l, 1);
    EXPECT_EQ(Coloana(l, 1),
              (QStringList{QStringLiteral("Bisericii"), QStringLiteral("garii"), QStringLiteral("Morii")}))
        << "names sort regardless of case";
    ClicAntet(l, 3);
    EXPECT_EQ(Coloana(l, 3),
              (QStringList{QStringLiteral("077031"), QStringLiteral("077032"), QStringLiteral("077035")}));

    l->clearSelection();
    Gaseste<QPushButton>(f, QStringLiteral("cmdDelete"))->click();
    Gaseste<QPushButton>(f, QStringLiteral("cmdEdit"))->click();
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Selectati mai intai un sat /strada"),
                                           QStringLiteral("Selectati mai intai un sat / strada /")}));
    EXPECT_EQ(l->topLevelItemCount(), 3);
}

TEST_P(Referinte, SateStergereaUneiStraziFolositeSeRefuzaApoiSeIntreaba) {
    Strada(1, "Garii");
    Strada(2, "Morii");
    Strada(3, "Viilor");
    ExecutaCu(Bd(), QStringLiteral("INSERT INTO Familii (FamilieID, Strada) VALUES (1, ?)"), QStringLiteral("MORII"));
    frmSate f(Bd(), mesaje);

    f.lvwSate->setCurrentItem(Rand(f.lvwSate, QStringLiteral("Morii")));
    f.cmdDelete_Click();
    EXPECT_EQ(mesaje.Texte(),
              QStringList{QStringLiteral(
                  "Strada / satul Morii nu poate fi sters pentru ca face parte din cel putin o cerere")});
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Strazi")), 3);

    ExecutaCu(Bd(), QStringLiteral("UPDATE Familii SET Strada = ? WHERE FamilieID = 1"), QStringLiteral("Morii Noi"));
    mesaje.mesaje.clear();
    mesaje.raspunsuri = {false, true};
    f.cmdDelete_Click();
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Strazi")), 3) << "No keeps the street";
    EXPECT_EQ(f.lvwSate->topLevelItemCount(), 3);
    f.cmdDelete_Click();
    const QString intrebare = QStringLiteral("Sigur doriti sa stergeti datele satului/strazii Morii ?");
    EXPECT_EQ(mesaje.Texte(), (QStringList{intrebare, intrebare}));
    EXPECT_EQ(Text(QStringLiteral("SELECT Denumire FROM Strazi WHERE StradaID = ?"), 2), QStringLiteral("<lipsa>"));
    EXPECT_EQ(Coloana(f.lvwSate, 1), (QStringList{QStringLiteral("Garii"), QStringLiteral("Viilor")}));
    EXPECT_EQ(f.lvwSate->currentItem()->text(1), QStringLiteral("Viilor")) << "the next row is selected";

    // The last row deleted: the new last row is selected.
    mesaje.raspunsuri = {true};
    f.cmdDelete_Click();
    EXPECT_EQ(f.lvwSate->currentItem()->text(1), QStringLiteral("Garii"));
    EXPECT_TRUE(f.lvwSate->currentItem()->isSelected());
}

TEST_P(Referinte, SateAdaugareSiModificarePrinDialog) {
    Strada(4, "Bisericii");
    frmSate f(Bd(), mesaje);
    const QString gol = QStringLiteral("Nu ati completat denumirea strazii / satului");
    const QString exista = QStringLiteral("Aceasta strada / sat exista deja");

    QStringList titluri;
    f.ArataModal = [&](QDialog& d) {
        titluri << d.windowTitle();
        auto* nume = Gaseste<QLineEdit>(d, QStringLiteral("txtDenumire"));
        EXPECT_EQ(nume->maxLength(), 50);
        EXPECT_EQ(nume->toolTip(),
                  QStringLiteral("Denumirea strazii / satului poate fi de maxim 50 de caractere alfanumerice"));
        for (const char* incercare : {"   ", "BISERICII"}) {
            nume->setText(QString::fromLatin1(incercare));
            Gaseste<QPushButton>(d, QStringLiteral("cmdOK"))->click();
            EXPECT_EQ(d.focusWidget(), nume);
        }
        nume->setText(QStringLiteral("Fantanii "));
        Gaseste<QLineEdit>(d, QStringLiteral("txtOfPostal"))->setText(QStringLiteral("Branesti"));
        Gaseste<QLineEdit>(d, QStringLiteral("txtCodPostal"))->setText(QStringLiteral("077036"));
        Gaseste<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        return d.result();
    };
    f.cmdAdd_Click();
    EXPECT_EQ(titluri, QStringList{QStringLiteral("Adaugare strada / sat")});
    EXPECT_EQ(mesaje.Texte(), (QStringList{gol, exista}));
    EXPECT_EQ(Text(QStringLiteral("SELECT Denumire FROM Strazi WHERE StradaID = ?"), 5), QStringLiteral("Fantanii "))
        << "the name is kept as typed, under MAX+1";
    QTreeWidgetItem* nou = f.lvwSate->currentItem();
    ASSERT_NE(nou, nullptr);
    EXPECT_EQ(nou->text(0), QStringLiteral("5"));
    EXPECT_EQ(nou->text(1), QStringLiteral("Fantanii "));
    EXPECT_EQ(nou->text(3), QStringLiteral("077036"));

    // Edit: the dialog shows the row; keeping its own name is no duplicate.
    mesaje.mesaje.clear();
    titluri.clear();
    f.ArataModal = [&](QDialog& d) {
        titluri << d.windowTitle();
        auto* nume = Gaseste<QLineEdit>(d, QStringLiteral("txtDenumire"));
        EXPECT_EQ(nume->text(), QStringLiteral("Fantanii "));
        EXPECT_EQ(Gaseste<QLineEdit>(d, QStringLiteral("txtOfPostal"))->text(), QStringLiteral("Branesti"));
        nume->setText(QStringLiteral("FANTANII "));
        Gaseste<QLineEdit>(d, QStringLiteral("txtCodPostal"))->setText(QStringLiteral("077099"));
        Gaseste<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        return d.result();
    };
    f.cmdEdit_Click();
    EXPECT_EQ(titluri, QStringList{QStringLiteral("Modificare strada / sat")});
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    EXPECT_EQ(nou->text(1), QStringLiteral("FANTANII "));
    EXPECT_EQ(nou->text(3), QStringLiteral("077099"));
    EXPECT_EQ(Text(QStringLiteral("SELECT CodPostal FROM Strazi WHERE StradaID = ?"), 5), QStringLiteral("077099"));

    // Cancel changes nothing.
    f.ArataModal = [&](QDialog& d) {
        Gaseste<QLineEdit>(d, QStringLiteral("txtDenumire"))->setText(QStringLiteral("Alta"));
        Gaseste<QPushButton>(d, QStringLiteral("cmdCancel"))->click();
        return d.result();
    };
    f.cmdEdit_Click();
    f.cmdAdd_Click();
    EXPECT_EQ(nou->text(1), QStringLiteral("FANTANII "));
    EXPECT_EQ(f.lvwSate->topLevelItemCount(), 2);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Strazi")), 2);

    // A row deleted elsewhere is reported and leaves the list.
    Bd().Executa(QStringLiteral("DELETE FROM Strazi WHERE StradaID = 5"));
    f.lvwSate->setCurrentItem(nou);
    f.cmdEdit_Click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Randul curent nu a fost gasit. Dati clic pe Cauta!")});
    EXPECT_EQ(Coloana(f.lvwSate, 1), QStringList{QStringLiteral("Bisericii")});
}

// ---- Motive ----

TEST_P(Referinte, MotiveSeVerificaPrintreStraziSiSeSterg) {
    Strada(1, "Garii");
    Motiv(3, "Decedat");
    Motiv(12, "Plecat");
    frmMotive f(Bd(), mesaje);
    EXPECT_EQ(f.windowTitle(), QStringLiteral("Motive"));
    auto* l = Gaseste<QTreeWidget>(f, QStringLiteral("lvwMotive"));
    EXPECT_EQ(Antet(l), (QStringList{QStringLiteral("ID"), QStringLiteral("Motiv")}));
    EXPECT_EQ(Coloana(l, 0), (QStringList{QStringLiteral("3"), QStringLiteral("12")}));

    l->clearSelection();
    f.cmdDelete_Click();
    f.cmdEdit_Click();
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Selectati mai intai un Motiv"),
                                           QStringLiteral("Selectati mai intai un Motiv")}));

    mesaje.mesaje.clear();
    QStringList titluri;
    f.ArataModal = [&](QDialog& d) {
        titluri << d.windowTitle();
        auto* nume = Gaseste<QLineEdit>(d, QStringLiteral("txtDenumire"));
        EXPECT_EQ(nume->maxLength(), 50);
        EXPECT_EQ(nume->toolTip(),
                  QStringLiteral("Denumirea Motivului poate fi de maxim 50 de caractere alfanumerice"));
        for (const char* incercare : {"", "gARII", "Decedat"}) {
            nume->setText(QString::fromLatin1(incercare));
            Gaseste<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        }
        return d.result();
    };
    f.cmdAdd_Click();
    EXPECT_EQ(titluri, QStringList{QStringLiteral("Adaugare Motiv")});
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Nu ati completat denumirea Motivului"),
                                           QStringLiteral("Acest Motiv exista deja")}));
    EXPECT_EQ(Coloana(l, 1),
              (QStringList{QStringLiteral("Decedat"), QStringLiteral("Plecat"), QStringLiteral("Decedat")}))
        << "a second equal reason passes";
    EXPECT_EQ(l->currentItem()->text(0), QStringLiteral("13"));
    EXPECT_EQ(Text(QStringLiteral("SELECT Denumire FROM Motive WHERE MotivID = ?"), 13), QStringLiteral("Decedat"));

    mesaje.mesaje.clear();
    titluri.clear();
    f.ArataModal = [&](QDialog& d) {
        titluri << d.windowTitle();
        auto* nume = Gaseste<QLineEdit>(d, QStringLiteral("txtDenumire"));
        EXPECT_EQ(nume->text(), QStringLiteral("Plecat"));
        nume->setText(QStringLiteral("Plecat in strainatate"));
        Gaseste<QPushButton>(d, QStringLiteral("cmdOK"))->click();
        return d.result();
    };
    l->setCurrentItem(Rand(l, QStringLiteral("Plecat")));
    f.cmdEdit_Click();
    EXPECT_EQ(titluri, QStringList{QStringLiteral("Modificare Motiv")});
    EXPECT_EQ(Text(QStringLiteral("SELECT Denumire FROM Motive WHERE MotivID = ?"), 12),
              QStringLiteral("Plecat in strainatate"));
    EXPECT_EQ(l->currentItem()->text(1), QStringLiteral("Plecat in strainatate"));

    mesaje.raspunsuri = {false, true};
    f.cmdDelete_Click();
    f.cmdDelete_Click();
    const QString intrebare = QStringLiteral("Sigur doriti sa stergeti Motivul Plecat in strainatate ?");
    EXPECT_EQ(mesaje.Texte(), (QStringList{intrebare, intrebare}));
    EXPECT_EQ(Text(QStringLiteral("SELECT Denumire FROM Motive WHERE MotivID = ?"), 12), QStringLiteral("<lipsa>"));
    EXPECT_EQ(Coloana(l, 0), (QStringList{QStringLiteral("3"), QStringLiteral("13")}));
}

PE_AMBELE_MOTOARE(Referinte);

} // namespace
