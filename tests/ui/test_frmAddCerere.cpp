#include "base/Eroare.h"
#include "cases/Istoric.h"
#include "cases/UiIstoricCerere.h"
#include "cases/frmAddCerere.h"
#include "cases/frmAddVenituri.h"
#include "ui/FormaDosar.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTreeWidget>

namespace {

using FormaCerere = FormaPeDosar;

TEST_P(FormaCerere, DeschideSalveazaSiRenunta) {
    const auto inainte = Instantaneu(Bd());
    std::vector<ContextPersoana> persoane;
    // The person dialog as the clerk fills it: a changed first name, or a new titular.
    const auto membru = [&](StareCerere& s, const ContextPersoana& c) -> std::optional<int> {
        persoane.push_back(c);
        if (c.Mod == 2) {
            (*s.MatriceMembri)[size_t(c.Index)].Prenume = QStringLiteral("Mariana");
            return c.Index;
        }
        s.MatriceMembri.emplace();
        s.MatriceMembri->push_back(
            Persoana(Bd(), 1, "Dinu", "Petre", "1800101400123", "01 Ianuarie 1980", QDate(1980, 1, 1)));
        return 0;
    };

    // Opened on the stored request: every box and the working state as they were read.
    auto f = std::make_unique<frmAddCerere>(Bd(), setari, mesaje, DeschidereCerere{2, cerereID});
    ASSERT_TRUE(f->Gasita());
    ExpectDateEgale(f->Citeste(), dosar.Date);
    ExpectStareEgala(*f->Stare(), dosar.Stare);
    EXPECT_EQ(f->lvw->topLevelItemCount(), 6);
    f->show();

    // A refused OK and a save that fails half-way keep the dialog open with its data.
    f->txtCerere[0]->clear();
    Refuzat(*f, f->cmdOK, "txtCerere_0");
    f->txtCerere[0]->setText(QStringLiteral("1234"));
    const DateCerere scrise = f->Citeste();
    f->DupaPasSalvare = [](PasSalvare p) {
        if (p == PasSalvare::Adeverinte) throw Eroare(QStringLiteral("disc plin"));
    };
    mesaje.mesaje.clear();
    f->cmdOK->click();
    EXPECT_EQ(mesaje.Texte(MesajeInregistrate::Fel::Critic).size(), 1);
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(f->Citeste(), scrise);
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    // The incomes button opens the incomes dialog on the working state; what it confirms becomes
    // the total income box.
    f->ArataModal = [](QDialog& d) {
        auto& v = dynamic_cast<frmAddVenituri&>(d);
        v.Grid->item(1, 1)->setText(QStringLiteral("250"));
        v.cmdOK->click();
        return v.result();
    };
    f->cmdVenituri->click();
    EXPECT_EQ(f->Stare()->Venituri[1], B("250"));
    EXPECT_NE(f->txtCerere[12]->text(), dosar.Date.txtCerere[12]);
    f->cmdCancel->click();
    EXPECT_FALSE(f->ESTE_OK);
    EXPECT_EQ(f->Stare(), nullptr) << "the working state goes with the dialog";
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    // OK writes a changed box and a person changed through the person dialog, and closes.
    f = std::make_unique<frmAddCerere>(Bd(), setari, mesaje, DeschidereCerere{2, cerereID});
    f->DeschideMembru = membru;
    f->show();
    f->txtCerere[7]->setText(QStringLiteral("0219999999"));
    f->lvw->setCurrentItem(f->lvw->topLevelItem(1));
    f->cmdEdit->click();
    ASSERT_EQ(persoane.size(), 1u);
    EXPECT_EQ(persoane[0].Index, 1);
    f->cmdOK->click();
    EXPECT_TRUE(f->ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_FALSE(f->isVisible());
    const CerereIncarcata dupa = IncarcaCerere(Bd(), cerereID, LunaDosar, AnDosar, mesaje);
    EXPECT_EQ(dupa.Date.txtCerere[7], QStringLiteral("0219999999"));
    EXPECT_EQ((*dupa.Stare.MatriceMembri)[1].Prenume, QStringLiteral("Mariana"));

    // Opened from the expiring certificates, the editor opens the person at once.
    f = std::make_unique<frmAddCerere>(Bd(), setari, mesaje,
                                       DeschidereCerere{2, cerereID, true, (*dupa.Stare.MatriceMembri)[3].MembruID});
    f->DeschideMembru = membru;
    f->Timer1_Timer();
    ASSERT_EQ(persoane.size(), 2u);
    EXPECT_EQ(persoane[1].Mod, 2);
    EXPECT_EQ(persoane[1].Index, 3);

    // The history page, once in view, lists the request's changes, the save above first.
    f = std::make_unique<frmAddCerere>(Bd(), setari, mesaje, DeschidereCerere{2, cerereID});
    f->show();
    EXPECT_EQ(f->pagIstoric->lvwIstoric->topLevelItemCount(), 0);
    f->tabCerere->setCurrentWidget(f->pagIstoric);
    const auto istoric = Istoric::Lista(Bd(), cerereID);
    ASSERT_FALSE(istoric.empty());
    EXPECT_EQ(f->pagIstoric->lvwIstoric->topLevelItemCount(), int(istoric.size()));
    EXPECT_TRUE(f->pagIstoric->lvwIstoric->topLevelItem(0)->text(2).contains(QStringLiteral("0219999999")));

    // A new request: the boxes that OK needs and a titular, saved under a key of its own.
    f = std::make_unique<frmAddCerere>(Bd(), setari, mesaje, DeschidereCerere{});
    f->DeschideMembru = membru;
    f->show();
    EXPECT_EQ(f->Citeste(), DefaultCerereNoua(Bd(), Azi));
    Refuzat(*f, f->cmdOK, "txtCerere_0");
    DateCerere d = f->Citeste();
    d.txtCerere[0] = QStringLiteral("5");
    d.txtCerere[1] = QStringLiteral("6");
    d.txtCerere[5] = QStringLiteral("Branesti");
    d.cboCerere[1] = {3, {}};
    d.cboCerere[2] = {1, {}};
    d.cboCerere[3] = {1, {}};
    d.cboCerere[4] = {2, {}};
    f->Scrie(d);
    f->cmdAdd->click();
    mesaje.mesaje.clear();
    f->cmdOK->click();
    EXPECT_TRUE(f->ESTE_OK) << mesaje.Texte().join(u'|').toStdString();
    EXPECT_NE(f->CerereID(), cerereID);
    EXPECT_EQ(
        NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = ?"), f->CerereID()), 1);
}

PE_AMBELE_MOTOARE(FormaCerere);

} // namespace
