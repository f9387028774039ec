#include "cases/UiAdeverinte.h"
#include "cases/frmAddAct.h"
#include "cases/frmAddMembru.h"
#include "ui/UiDataOptionala.h"
#include "support/BazaTest.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLineEdit>
#include <QTableWidget>

namespace {

// The certificate commands of the person dialog reach the real certificate dialogs and bring
// their result back into the grid.
class AdeverintePersoana : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        MembruCerere p;
        p.Nume = QStringLiteral("Popescu");
        p.Prenume = QStringLiteral("Ion");
        p.CNP = QStringLiteral("1800101400123");
        p.RudenieID = 1;
        p.Adeverinte = {{31, 6, QStringLiteral("V-1"), QDate(2026, 2, 1), QDate(2026, 2, 3), QDate(2026, 8, 31), 1}};
        stare.MatriceMembri = std::vector<MembruCerere>{p};
    }

    static void Data(UiDataOptionala* d, const QDate& z) {
        d->editor()->setDate(z);
        d->bifa()->setChecked(true);
    }

    StareCerere stare;
    QStringList deschise;
};

TEST_P(AdeverintePersoana, AdaugareIstoricSiStergere) {
    frmAddMembru f(Bd(), mesaje, stare, ContextPersoana{2, 0, 11, 2026});
    ConecteazaAdeverinte(f, [this](QDialog& d) {
        deschise << d.metaObject()->className();
        if (auto* a = qobject_cast<frmAddAct*>(&d)) {
            a->cboTipAct->setCurrentIndex(a->cboTipAct->findData(6));
            a->txtNrAct->setText(QStringLiteral("V-2"));
            Data(a->dtpData[0], QDate(2026, 9, 1));
            Data(a->dtpData[1], QDate(2026, 9, 2));
            Data(a->dtpData[2], QDate(2027, 2, 28));
            a->cmdOK_Click();
        }
        return int(QDialog::Accepted);
    });
    ASSERT_EQ(f.Adeverinte().size(), 1u);

    f.AdaugaAdeverinta(f);
    const auto acte = f.Adeverinte();
    ASSERT_EQ(acte.size(), 2u);
    EXPECT_EQ(acte[1].NrAdev, QStringLiteral("V-2"));
    EXPECT_EQ(acte[1].DataExpAdev, QDate(2027, 2, 28));
    EXPECT_EQ(acte[1].AdvCurenta, 1);
    EXPECT_EQ(acte[0].AdvCurenta, 0) << "the later expiry is the current one of its kind";
    EXPECT_EQ((*stare.MatriceMembri)[0].Adeverinte.size(), 1u) << "the element changes only at the person's OK";

    f.IstoricAdeverinte(f);
    EXPECT_EQ(deschise, (QStringList{QStringLiteral("frmAddAct"), QStringLiteral("frmIstoricAdv")}));

    // Delete asks, and removing the current one gives the mark back to the one left.
    f.Grid->clearSelection();
    f.Grid->selectRow(1);
    ASSERT_EQ(f.AdeverinteSelectate(), std::vector<int>{1});
    mesaje.raspunsuri = {true, true, true};
    f.StergeAdeverinta(f);
    const auto ramase = f.Adeverinte();
    ASSERT_EQ(ramase.size(), 1u);
    EXPECT_EQ(ramase[0].NrAdev, QStringLiteral("V-1"));
    EXPECT_FALSE(mesaje.Texte(MesajeInregistrate::Fel::Intrebare).isEmpty());
}

PE_AMBELE_MOTOARE(AdeverintePersoana);

} // namespace
