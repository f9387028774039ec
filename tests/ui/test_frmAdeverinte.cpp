#include "cases/frmAdAdeverinte.h"
#include "cases/frmAdeverinte.h"
#include "cases/frmListaActeExpira.h"
#include "cases/frmMembrii.h"
#include "ui/FormaDosar.h"
#include "ui/UiDataOptionala.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QTreeView>
#include <QTreeWidget>

namespace {

using ListeDosar = FormaPeDosar;

// The pupils' certificates: the editor opens from the list to add to the selected pupil and to
// change the selected row; the list is read again after its OK; the delete asks first.
TEST_P(ListeDosar, AdeverinteleScolare) {
    frmAdeverinte f(Bd(), mesaje);
    QTreeWidget* l = f.lvwAdeverinte;
    const int n = l->topLevelItemCount();
    ASSERT_GT(n, 0) << "the file's pupils have school certificates";
    const QStringList inainte = Tabela("Adeverinte");

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdAdeverinte&>(d);
        e.txtNrAdev->setText(QStringLiteral("S-99"));
        e.cmdCancel->click();
        return e.result();
    };
    f.cmdAdd->click();
    EXPECT_EQ(Tabela("Adeverinte"), inainte);

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdAdeverinte&>(d);
        EXPECT_EQ(e.Adaug, 1);
        e.show();
        Refuzat(e, e.cmdOK, "txtNrAdev");
        e.txtNrAdev->setText(QStringLiteral("S-99"));
        e.dtpData[0]->setData(QDate(2014, 11, 2));
        e.dtpData[1]->setData(QDate(2014, 11, 3));
        e.cmdOK->click();
        return e.result();
    };
    f.cmdAdd->click();
    ASSERT_EQ(l->topLevelItemCount(), n + 1);
    EXPECT_EQ(Tabela("Adeverinte").size(), inainte.size() + 1);
    const QString nou = l->currentItem()->text(0);
    EXPECT_EQ(NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = ? AND NrAdev = 'S-99'"),
                           nou.toLongLong()),
              1)
        << "the new row is selected";

    f.ArataModal = [&](QDialog& d) {
        auto& e = dynamic_cast<frmAdAdeverinte&>(d);
        EXPECT_EQ(e.txtNrAdev->text(), QStringLiteral("S-99"));
        e.txtNrAdev->setText(QStringLiteral("S-100"));
        e.cmdOK->click();
        return e.result();
    };
    f.cmdEdit->click();
    EXPECT_EQ(l->currentItem()->text(0), nou);
    EXPECT_EQ(NumarRanduri(Bd(),
                           QStringLiteral("SELECT COUNT(*) FROM Adeverinte WHERE AdevID = ? AND NrAdev = 'S-100'"),
                           nou.toLongLong()),
              1);

    mesaje.raspunsuri = {false, true};
    f.cmdDelete->click();
    EXPECT_EQ(l->topLevelItemCount(), n + 1) << "No keeps it";
    f.cmdDelete->click();
    EXPECT_EQ(l->topLevelItemCount(), n);
    EXPECT_EQ(Tabela("Adeverinte"), inainte);
}

// The certificates expiring this month: a double click opens the row's request on its person, and
// once nothing is left the notice goes and the window closes.
TEST_P(ListeDosar, ActeleCareExpira) {
    frmListaActeExpira f(Bd(), mesaje);
    int ascunderi = 0;
    f.AscundeNotificarea = [&] { ++ascunderi; };
    std::vector<std::pair<qint64, qint64>> deschise;
    f.DeschideCerere = [&](qint64 cerere, qint64 membru) {
        deschise.emplace_back(cerere, membru);
        // The clerk brings the new certificate and saves the request.
        ExecutaCu(Bd(), QStringLiteral("UPDATE Adeverinte SET DataExpAdev = ?"), QDate(2015, 12, 31));
        return true;
    };
    f.show();
    ASSERT_EQ(f.lvwActe->model()->rowCount(), 1) << "the partner's certificate of 1 November";
    const QModelIndex rand = f.lvwActe->model()->index(0, 0);
    f.lvwActe->setCurrentIndex(rand);
    Q_EMIT f.lvwActe->doubleClicked(rand);
    const qint64 maria = (*dosar.Stare.MatriceMembri)[1].MembruID;
    EXPECT_EQ(deschise, (std::vector<std::pair<qint64, qint64>>{{cerereID, maria}}));
    EXPECT_EQ(f.lvwActe->model()->rowCount(), 0) << "read again after the save";
    EXPECT_EQ(ascunderi, 1);
    EXPECT_TRUE(f.Timer1->isActive());
    f.Timer1_Timer();
    EXPECT_FALSE(f.isVisible());
}

// The browser of persons: Enter in a search box selects the first match; none is told.
TEST_P(ListeDosar, Persoanele) {
    frmMembrii f(Bd(), mesaje);
    f.show();
    EXPECT_EQ(f.NrRanduri(), 6);
    f.Txt[2]->setFocus();
    f.Txt[2]->setText(QStringLiteral("ionescu"));
    QTest::keyClick(f.Txt[2], Qt::Key_Return);
    EXPECT_EQ(f.MembruSelectat(), (*dosar.Stare.MatriceMembri)[4].MembruID);
    EXPECT_TRUE(f.isVisible()) << "Enter searches, it doesn't close the list";
    f.Txt[2]->setText(QStringLiteral("Zamfir"));
    QTest::keyClick(f.Txt[2], Qt::Key_Return);
    EXPECT_EQ(mesaje.mesaje.size(), 1u);
}

PE_AMBELE_MOTOARE(ListeDosar);

} // namespace
