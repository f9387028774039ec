#include "cases/Adeverinte.h"
#include "cases/DateCerere.h"
#include "cases/frmAdAdeverinte.h"
#include "cases/frmAddAct.h"
#include "cases/frmAdeverinte.h"
#include "cases/frmIstoricAdv.h"
#include "cases/frmListaActeExpira.h"
#include "base/Ceas.h"
#include "ui/UiDataOptionala.h"
#include "support/BazaTest.h"
#include "support/CereriTest.h"
#include "support/Texte.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>
#include <functional>

namespace {

const QDate Azi(2026, 11, 22);

class FormAdeverinte : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(Azi);
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    template <class W> static W* Gaseste(QWidget& f, const QString& nume) {
        W* w = f.findChild<W*>(nume);
        EXPECT_NE(w, nullptr) << nume.toStdString();
        return w;
    }
    static void SeteazaData(QWidget& f, int i, const QDate& d) {
        auto* dtp = Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData_%1").arg(i));
        if (!d.isValid()) {
            dtp->bifa()->setChecked(false);
            return;
        }
        dtp->editor()->setDate(d);
        dtp->bifa()->setChecked(true);
    }
    static QDate Data(QWidget& f, int i) {
        return Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData_%1").arg(i))->data();
    }
    static void Alege(QComboBox* c, const QString& text) {
        const int i = c->findText(text);
        ASSERT_GE(i, 0) << text.toStdString();
        c->setCurrentIndex(i);
    }
    // Whether the focus is on the control of that name (or inside it, for a date box).
    static bool FocusPe(QWidget& f, const char* nume) {
        const QWidget* w = f.focusWidget();
        while (w && w->objectName() != QLatin1String(nume))
            w = w->parentWidget();
        return w != nullptr;
    }
    static QStringList Rand(const QTreeWidgetItem* r) {
        QStringList t;
        for (int c = 0; c < r->columnCount(); ++c)
            t << r->text(c);
        return t;
    }
    static QList<QStringList> Randuri(const QTreeWidget* l) {
        QList<QStringList> r;
        for (int i = 0; i < l->topLevelItemCount(); ++i)
            r << Rand(l->topLevelItem(i));
        return r;
    }
    static QList<QStringList> Randuri(const QAbstractItemView* l) {
        const QAbstractItemModel* m = l->model();
        QList<QStringList> r;
        for (int i = 0; i < m->rowCount(); ++i) {
            QStringList t;
            for (int c = 0; c < m->columnCount(); ++c)
                t << m->index(i, c).data().toString();
            r << t;
        }
        return r;
    }
    static QStringList Antet(const QAbstractItemView* l) {
        QStringList t;
        for (int c = 0; c < l->model()->columnCount(); ++c)
            t << l->model()->headerData(c, Qt::Horizontal).toString();
        return t;
    }
    static QStringList Antet(const QTreeWidget* l) {
        QStringList t;
        for (int c = 0; c < l->columnCount(); ++c)
            t << l->headerItem()->text(c);
        return t;
    }
    void Captura(QWidget& f, const char* nume) {
        const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
        if (capturi.isEmpty() || GetParam() != Motor::SQLite) return;
        f.show();
        EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QLatin1String(nume) + QStringLiteral(".png"))));
    }

    void Cerere(qint64 id, int stare, QList<CerereTest::Persoana> persoane) {
        CerereTest c;
        c.cerereID = id;
        c.nrCerere = 100 + id;
        c.stare = stare;
        c.persoane = persoane;
        AdaugaCerereTest(Bd(), c);
    }
    void Act(qint64 id, qint64 cerere, qint64 membru, int tip, const QDate& expira, int curenta, const char* nr = "1") {
        Interogare(Bd(), QStringLiteral("INSERT INTO Adeverinte (AdevID, CerereID, MembruID, TipAdeverinta, NrAdev, "
                                        "DataAdeverinta, DataDepunerii, DataExpAdev, AdvCurenta) "
                                        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"))
            .Leaga(id)
            .Leaga(cerere)
            .Leaga(membru)
            .Leaga(tip)
            .Leaga(T(nr))
            .Leaga(QDate(2026, 5, 4))
            .Leaga(QDate(2026, 5, 6))
            .Leaga(expira)
            .Leaga(curenta)
            .Executa();
    }
};

// ---- frmAddAct ----

TEST_P(FormAdeverinte, AdaugareaActuluiRefuzaSiApoiScrieRandul) {
    std::vector<AdeverintaMembru> acte = {
        {31, 6, T("V-1"), QDate(2026, 2, 1), QDate(2026, 2, 3), QDate(2026, 8, 31), 1},
    };
    frmAddAct f(Bd(), mesaje, acte, -1);
    f.show();
    EXPECT_EQ(f.windowTitle(), T("Adaugare act"));
    auto* cbo = Gaseste<QComboBox>(f, T("cboTipAct"));
    auto* nr = Gaseste<QLineEdit>(f, T("txtNrAct"));
    ASSERT_EQ(cbo->count(), 9);
    EXPECT_EQ(cbo->currentIndex(), -1);
    EXPECT_EQ(cbo->itemText(0), T("AJOFM (somaj)"));
    EXPECT_EQ(cbo->itemData(5).toInt(), 6);
    EXPECT_EQ(nr->maxLength(), 15);
    for (int i = 0; i < 3; ++i) {
        EXPECT_FALSE(Data(f, i).isValid()) << i;
        auto* dtp = Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData_%1").arg(i));
        EXPECT_EQ(dtp->editor()->date(), Azi) << "ticking an empty box shows today";
    }

    // Every control that a refusal names is there; the first refusal takes the focus to its combo.
    for (const char* nume : {"cboTipAct", "txtNrAct", "dtpData_0", "dtpData_1", "dtpData_2", "cmdCancel"})
        Gaseste<QWidget>(f, QLatin1String(nume));
    QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), QStringList{T("Statut incorect. Selectati din lista un tip de adeverinta corect")});
    EXPECT_TRUE(FocusPe(f, "cboTipAct"));

    // The same kind expiring on the same day as the certificate already there.
    Alege(cbo, T("venit net"));
    nr->setText(T("V-2"));
    SeteazaData(f, 0, QDate(2026, 8, 20));
    SeteazaData(f, 1, QDate(2026, 8, 21));
    SeteazaData(f, 2, QDate(2026, 8, 31));
    mesaje.mesaje.clear();
    QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), QStringList{T("Exista o adeverinta venit net\n cu data expirarii 31.08.2026")});
    EXPECT_FALSE(f.ESTE_OK);
    EXPECT_TRUE(f.isVisible());
    EXPECT_EQ(acte.size(), 1u);

    SeteazaData(f, 2, QDate(2026, 12, 31));
    mesaje.mesaje.clear();
    QTest::mouseClick(f.cmdOK, Qt::LeftButton);
    EXPECT_TRUE(mesaje.mesaje.empty());
    EXPECT_TRUE(f.ESTE_OK);
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_EQ(f.Index(), 1);
    ASSERT_EQ(acte.size(), 2u);
    EXPECT_EQ(acte[1],
              (AdeverintaMembru{0, 6, T("V-2"), QDate(2026, 8, 20), QDate(2026, 8, 21), QDate(2026, 12, 31), 1}));
    EXPECT_EQ(acte[0].AdvCurenta, 0) << "the newer certificate took the mark";
}

TEST_P(FormAdeverinte, ModificareaActuluiArataRandulSiMutaMarcajul) {
    std::vector<AdeverintaMembru> acte = {
        {41, 3, T("S-1"), QDate(2026, 1, 10), QDate(2026, 1, 12), QDate(2026, 6, 30), 0},
        {42, 3, T("S-2"), QDate(2026, 9, 10), QDate(2026, 9, 12), QDate(2027, 1, 31), 1},
        {43, 1, T("A-1"), QDate(2026, 3, 1), QDate(), QDate(2026, 6, 30), 1},
    };
    {
        frmAddAct f(Bd(), mesaje, acte, 0);
        EXPECT_EQ(f.windowTitle(), T("Modificare act"));
        EXPECT_EQ(f.cboTipAct->currentText(), T("de la scoala (pt elevi)"));
        EXPECT_EQ(f.txtNrAct->text(), T("S-1"));
        EXPECT_EQ((std::vector<QDate>{Data(f, 0), Data(f, 1), Data(f, 2)}),
                  (std::vector<QDate>{QDate(2026, 1, 10), QDate(2026, 1, 12), QDate(2026, 6, 30)}));
        f.txtNrAct->setText(T("S-1 bis"));
        SeteazaData(f, 2, QDate(2027, 6, 30));
        QTest::mouseClick(f.cmdOK, Qt::LeftButton);
        EXPECT_TRUE(f.ESTE_OK);
        EXPECT_EQ(f.Index(), 0);
    }
    EXPECT_EQ(acte[0].AdevID, 41);
    EXPECT_EQ(acte[0].NrAdev, T("S-1 bis"));
    EXPECT_EQ((std::vector<int>{acte[0].AdvCurenta, acte[1].AdvCurenta, acte[2].AdvCurenta}),
              (std::vector<int>{1, 0, 1}));
    {
        // Cancel leaves the list as it was.
        const auto inainte = acte;
        frmAddAct f(Bd(), mesaje, acte, 2);
        SeteazaData(f, 1, QDate(2026, 3, 2));
        QTest::mouseClick(f.cmdCancel, Qt::LeftButton);
        EXPECT_FALSE(f.ESTE_OK);
        EXPECT_EQ(acte, inainte);
    }
    {
        frmAddAct f(Bd(), mesaje, acte, 1);
        Captura(f, "frmAddAct");
    }
}

// ---- frmIstoricAdv ----

TEST_P(FormAdeverinte, IstoriculArataCertificatelePersoanei) {
    const std::vector<AdeverintaMembru> acte = {
        {7, 6, T("V-9"), QDate(2026, 1, 2), QDate(2026, 1, 5), QDate(2026, 4, 30), 1},
        {8, 1, T("AJ-4"), QDate(2025, 10, 1), QDate(2025, 10, 3), QDate(), 0},
    };
    frmIstoricAdv f(Bd(), mesaje, acte);
    const auto* l = Gaseste<QTreeWidget>(f, T("lvwIstoric"));
    EXPECT_EQ(Antet(l),
              (QStringList{T("ID"), T("Tip Adeverinta"), T("Nr. Adev"), T("Data Adev"), T("Data Dep"), T("Data Exp")}));
    EXPECT_EQ(Randuri(l), (QList<QStringList>{
                              {T("7"), T("venit net"), T("V-9"), T("02.01.2026"), T("05.01.2026"), T("30.04.2026")},
                              {T("8"), T("AJOFM (somaj)"), T("AJ-4"), T("01.10.2025"), T("03.10.2025"), QString()},
                          }));
    EXPECT_TRUE(mesaje.mesaje.empty());
    Captura(f, "frmIstoricAdv");
}

// ---- frmListaActeExpira ----

// The list of the calendar month of today, a double click opening the row's request on its
// person and refreshing after a save, a row gone meanwhile, and the close when nothing is left.
TEST_P(FormAdeverinte, ListaActelorCareExpiraSiDubluClick) {
    Cerere(1, 2,
           {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1}, {2, T("Popescu"), T("Ana"), T("6120304400111"), 3}});
    Cerere(2, 3, {{3, T("Avram"), T("Dan"), T("1790101400121"), 1}}); // suspended
    Cerere(3, 7, {{4, T("Barbu"), T("Elena"), T("2810101400122"), 1}});
    Act(1, 1, 1, 6, QDate(2026, 11, 30), 1);
    Act(2, 1, 2, 3, QDate(2026, 11, 1), 1);
    Act(3, 1, 2, 3, QDate(2026, 11, 15), 0);
    Act(4, 2, 3, 6, QDate(2026, 11, 10), 1);
    Act(5, 3, 4, 1, QDate(2026, 11, 5), 1);
    Act(6, 3, 4, 2, QDate(2026, 3, 5), 1); // the month a working month might be set to

    frmListaActeExpira f(Bd(), mesaje);
    int ascunderi = 0;
    f.AscundeNotificarea = [&] { ++ascunderi; };
    std::vector<std::pair<qint64, qint64>> deschise;
    f.DeschideCerere = [&](qint64 cerere, qint64 membru) {
        deschise.emplace_back(cerere, membru);
        // The clerk brings Ana's new school certificate and saves the request.
        Interogare(Bd(), T("UPDATE Adeverinte SET AdvCurenta = 0 WHERE AdevID = 2")).Executa();
        Act(7, 1, 2, 3, QDate(2027, 6, 30), 1);
        return true;
    };
    f.show();
    EXPECT_EQ(f.windowTitle(), T("Lista Membrilor ale caror acte expira in luna Noiembrie"));
    EXPECT_EQ(Gaseste<QLabel>(f, T("lblInfo"))->text(), T("Dublu click pe membru pentru detalii."));
    auto* l = Gaseste<QTreeView>(f, T("lvwActe"));
    EXPECT_EQ(Antet(l), (QStringList{T("ID"), T("#"), T("Membru"), T("Tip Act"), T("Data Exp")}));
    EXPECT_EQ(Randuri(l), (QList<QStringList>{
                              {T("4"), T("1"), T("Barbu Elena"), T("AJOFM (somaj)"), T("05.11.2026")},
                              {T("2"), T("2"), T("Popescu Ana"), T("de la scoala (pt elevi)"), T("01.11.2026")},
                              {T("1"), T("3"), T("Popescu Ion"), T("venit net"), T("30.11.2026")},
                          }));
    EXPECT_FALSE(f.Timer1->isActive());
    Captura(f, "frmListaActeExpira");

    l->clearSelection();
    f.lvwActe_DblClick();
    EXPECT_EQ(mesaje.Texte(), QStringList{T("Selectati o cerere")});
    EXPECT_TRUE(deschise.empty());

    const QModelIndex ana = l->model()->index(1, 2);
    l->setCurrentIndex(ana);
    Q_EMIT l->doubleClicked(ana);
    EXPECT_EQ(deschise, (std::vector<std::pair<qint64, qint64>>{{1, 2}}));
    ASSERT_EQ(l->model()->rowCount(), 2) << "refreshed after the save";
    EXPECT_EQ(l->model()->index(1, 2).data().toString(), T("Popescu Ion"));

    // Ion's certificate removed on another computer: told, and the list read again.
    Interogare(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 1")).Executa();
    l->setCurrentIndex(l->model()->index(1, 0));
    mesaje.mesaje.clear();
    f.lvwActe_DblClick();
    EXPECT_EQ(mesaje.Texte(), QStringList{TextRandNegasit});
    EXPECT_EQ(deschise.size(), 1u);
    ASSERT_EQ(l->model()->rowCount(), 1);

    // Elena's renewed elsewhere: nothing is left, the notice goes and the window closes on the tick.
    Interogare(Bd(), T("UPDATE Adeverinte SET AdvCurenta = 0 WHERE AdevID = 5")).Executa();
    EXPECT_EQ(ascunderi, 0);
    f.AfisLista();
    EXPECT_EQ(l->model()->rowCount(), 0);
    EXPECT_EQ(ascunderi, 1);
    EXPECT_TRUE(f.Timer1->isActive());
    EXPECT_EQ(f.Timer1->interval(), 250);
    EXPECT_TRUE(f.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !f.isVisible(); }, 2000));
    EXPECT_FALSE(f.Timer1->isActive());
    EXPECT_EQ(ascunderi, 2);
}

// ---- frmAdeverinte and frmAdAdeverinte ----

TEST_P(FormAdeverinte, AdeverinteleScolareSeAdaugaModificaSiSterg) {
    Cerere(1, 2,
           {{1, T("Popescu"), T("Ion"), T("1800101400123"), 1},
            {2, T("Popescu"), T("Ana"), T("6120304400111"), 3},
            {3, T("Popescu"), T("Radu"), T("5150101400112"), 3}});
    Interogare(Bd(), T("UPDATE CereriMembrii SET OcupatieID = 8 WHERE MembruID = 2")).Executa();
    Interogare(Bd(), T("UPDATE CereriMembrii SET OcupatieID = 1 WHERE MembruID = 3")).Executa();
    Act(10, 1, 2, 3, QDate(2026, 6, 30), 1, "S-10");
    Act(11, 1, 3, 3, QDate(2026, 6, 30), 1, "S-11"); // not a pupil

    frmAdeverinte f(Bd(), mesaje);
    f.show();
    EXPECT_EQ(f.windowTitle(), T("Adeverinte scolarizare"));
    auto* l = Gaseste<QTreeWidget>(f, T("lvwAdeverinte"));
    EXPECT_EQ(Antet(l),
              (QStringList{T("ID"), T("Nr Cerere"), T("Nume Titular"), T("Nume Scolar"), T("Data nast"), T("Varsta"),
                           T("Nr Adev"), T("Data Dep"), T("Data Adev"), T("Data expirarii"), T("Tip adeverinta")}));
    EXPECT_EQ(Randuri(l), (QList<QStringList>{{T("10"), T("101"), T("Popescu Ion"), T("Popescu Ana"), T("04.03.2012"),
                                               T("14"), T("S-10"), T("06.05.2026"), T("04.05.2026"), T("30.06.2026"),
                                               T("de la scoala (pt elevi)")}}));

    // Add: the editor opens on the selected pupil with the school kind; an empty number is refused.
    int deschideri = 0;
    f.ArataModal = [&](QDialog& d) {
        auto& e = static_cast<frmAdAdeverinte&>(d);
        ++deschideri;
        EXPECT_EQ(e.windowTitle(), T("Adaugare adeverinta"));
        EXPECT_EQ(e.lblNrCerere->text(), T("101"));
        EXPECT_EQ(e.lblTitular->text(), T("Popescu Ion"));
        EXPECT_EQ(e.lblScolar->text(), T("Popescu Ana"));
        EXPECT_EQ(e.cboTipAdev->currentText(), T("de la scoala (pt elevi)"));
        e.show();
        QTest::mouseClick(e.cmdOK, Qt::LeftButton);
        EXPECT_EQ(mesaje.Texte(), QStringList{T("Nu ati introdus numarul adeverintei")});
        EXPECT_TRUE(FocusPe(e, "txtNrAdev"));
        EXPECT_FALSE(e.ESTE_OK);
        e.txtNrAdev->setText(T("S-12"));
        SeteazaData(e, 0, QDate(2026, 11, 2));
        SeteazaData(e, 1, QDate(2026, 11, 3));
        Captura(e, "frmAdAdeverinte");
        QTest::mouseClick(e.cmdOK, Qt::LeftButton);
        EXPECT_TRUE(e.ESTE_OK);
        return int(e.result());
    };
    QTest::mouseClick(f.cmdAdd, Qt::LeftButton);
    EXPECT_EQ(deschideri, 1);
    ASSERT_EQ(l->topLevelItemCount(), 2);
    EXPECT_EQ(l->currentItem()->text(0), T("12"));
    EXPECT_EQ(Rand(l->currentItem()).mid(6),
              (QStringList{T("S-12"), T("03.11.2026"), T("02.11.2026"), T("Adeverinta fara data expirarii"),
                           T("de la scoala (pt elevi)")}));
    Captura(f, "frmAdeverinte");

    // Edit: the stored row, changed and shown again.
    mesaje.mesaje.clear();
    f.ArataModal = [&](QDialog& d) {
        auto& e = static_cast<frmAdAdeverinte&>(d);
        EXPECT_EQ(e.windowTitle(), T("Modificare adeverinta"));
        EXPECT_EQ(e.txtNrAdev->text(), T("S-12"));
        EXPECT_FALSE(Data(e, 2).isValid());
        SeteazaData(e, 2, QDate(2027, 6, 30));
        Alege(e.cboTipAdev, T("medicala (pt scutire de munca)"));
        QTest::mouseClick(e.cmdOK, Qt::LeftButton);
        return int(e.result());
    };
    QTest::mouseClick(f.cmdEdit, Qt::LeftButton);
    EXPECT_EQ(l->currentItem()->text(0), T("12"));
    EXPECT_EQ(l->currentItem()->text(9), T("30.06.2027"));
    EXPECT_EQ(l->currentItem()->text(10), T("medicala (pt scutire de munca)"));
    const auto a = Adeverinte::CitesteAdeverinta(Bd(), 12);
    ASSERT_TRUE(a.has_value());
    EXPECT_EQ(a->TipAdeverinta, 4);
    EXPECT_EQ(a->DataExpAdev, QDate(2027, 6, 30));

    // Delete: No keeps it, Yes removes it and selects the neighbour.
    mesaje.raspunsuri = {false, true};
    QTest::mouseClick(f.cmdDelete, Qt::LeftButton);
    EXPECT_EQ(l->topLevelItemCount(), 2);
    QTest::mouseClick(f.cmdDelete, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), (QStringList{T("Sigur doriti sa stergeti datele adeverintei S-12 ?"),
                                           T("Sigur doriti sa stergeti datele adeverintei S-12 ?")}));
    ASSERT_EQ(l->topLevelItemCount(), 1);
    EXPECT_EQ(Numar(T("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = 12")), 0);
    ASSERT_NE(l->currentItem(), nullptr);
    EXPECT_EQ(l->currentItem()->text(0), T("10"));

    // A row that another computer removed is dropped on edit; no selection is told.
    Interogare(Bd(), T("DELETE FROM Adeverinte WHERE AdevID = 10")).Executa();
    mesaje.mesaje.clear();
    deschideri = 0;
    f.ArataModal = [&](QDialog&) {
        ++deschideri;
        return 0;
    };
    QTest::mouseClick(f.cmdEdit, Qt::LeftButton);
    EXPECT_EQ(mesaje.Texte(), QStringList{TextRandNegasit});
    EXPECT_EQ(l->topLevelItemCount(), 0);
    for (QPushButton* b : {f.cmdAdd, f.cmdEdit, f.cmdDelete}) {
        mesaje.mesaje.clear();
        QTest::mouseClick(b, Qt::LeftButton);
        EXPECT_EQ(mesaje.Texte(), QStringList{T("Selectati mai intai o adeverinta")}) << b->objectName().toStdString();
    }
    EXPECT_EQ(deschideri, 0);
}

PE_AMBELE_MOTOARE(FormAdeverinte);

} // namespace
