#include "base/Sume.h"
#include "cases/frmAddCerere.h"
#include "cases/frmAddVenituri.h"
#include "base/Ceas.h"
#include "base/Eroare.h"
#include "cases/ListaCereri.h"
#include "base/Setari.h"
#include "ui/UiDataOptionala.h"
#include "support/BazaTest.h"
#include "support/DosarTest.h"
#include "support/FormTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDir>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

namespace {

using Fel = MesajeInregistrate::Fel;

const QDate Azi(2014, 11, 14);
const QString AvertismentCopii =
    QStringLiteral("Numarul de copii salvati in baza de date este diferit\nsi se va recalcula.");

class FormCerere : public TestBaza {
protected:
    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(Azi);
        setari.LunaSetata = LunaDosar;
        setari.AnSetat = AnDosar;
        setari.CaleBD = Locatie().caleBD;
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    std::unique_ptr<frmAddCerere> Deschide(DeschidereCerere d = {}) {
        auto f = std::make_unique<frmAddCerere>(Bd(), setari, mesaje, d);
        // The person dialog as the clerk fills it: the next prepared person is written where
        // the dialog would write it.
        f->DeschideMembru = [this](StareCerere& s, const ContextPersoana& c) -> std::optional<int> {
            contexte.push_back(c);
            if (persoane.empty()) return std::nullopt;
            MembruCerere p = persoane.front();
            persoane.pop_front();
            if (c.Mod == 2) {
                (*s.MatriceMembri)[size_t(c.Index)] = p;
                return c.Index;
            }
            if (!s.MatriceMembri) s.MatriceMembri.emplace();
            s.MatriceMembri->push_back(p);
            return int(s.MatriceMembri->size()) - 1;
        };
        f->DeschideMotiv = [this]() -> std::optional<MotivIesire> {
            ++motiveCerute;
            return motiv;
        };
        return f;
    }

    // A request saved by the core, as an earlier session of the editor left it.
    qint64 SalveazaDosar(Dosar d) {
        const RezultatSalvare r = SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, OptiuniDosar(), mesaje);
        EXPECT_EQ(r.stare, RezultatSalvare::Stare::Salvata);
        mesaje.mesaje.clear();
        return r.CerereID;
    }

    // Adds the persons through cmdAdd, one dialog each.
    void Adauga(frmAddCerere& f, const std::vector<MembruCerere>& p) {
        for (const MembruCerere& m : p) {
            persoane.push_back(m);
            f.cmdAdd->click();
        }
    }

    static QLineEdit* Text(QWidget& f, int i) { return Gaseste<QLineEdit>(f, QStringLiteral("txtCerere_%1").arg(i)); }
    static QComboBox* Lista(QWidget& f, int i) { return Gaseste<QComboBox>(f, QStringLiteral("cboCerere_%1").arg(i)); }
    static UiDataOptionala* Data(QWidget& f, int i) {
        return Gaseste<UiDataOptionala>(f, QStringLiteral("dtpData_%1").arg(i));
    }
    static QTreeWidget* Arbore(QWidget& f, const char* nume) { return Gaseste<QTreeWidget>(f, QLatin1String(nume)); }
    static void AlegeId(QComboBox* c, qint64 id) {
        const int i = c->findData(id);
        ASSERT_GE(i, 0) << id;
        c->setCurrentIndex(i);
    }
    // The date as the clerk sets it: the day chosen, the box ticked.
    static void SeteazaData(UiDataOptionala* d, const QDate& z) {
        d->editor()->setDate(z);
        d->bifa()->setChecked(true);
    }
    static void Scrie(QLineEdit* t, const QString& text) {
        t->clear();
        QTest::keyClicks(t, text);
    }
    static QStringList Coloana(QTreeWidget* l, int c) {
        QStringList r;
        for (int i = 0; i < l->topLevelItemCount(); ++i)
            r << l->topLevelItem(i)->text(c);
        return r;
    }
    static QStringList Boxe(QWidget& f, std::initializer_list<int> elemente) {
        QStringList r;
        for (int i : elemente)
            r << Text(f, i)->text();
        return r;
    }

    // A titular and two children of the working month.
    std::vector<MembruCerere> Familie() {
        MembruCerere t = Persoana(Bd(), 1, "Popescu", "Ion", "1850305400011", "05 Martie 1985", QDate(1985, 3, 5));
        Ocupatie(Bd(), t, 1, 4);
        MembruCerere a = Persoana(Bd(), 3, "Popescu", "Andrei", "5080417400033", "17 Aprilie 2008", QDate(2008, 4, 17));
        Ocupatie(Bd(), a, 8, 3);
        a.Data18Ani = QDate(2026, 4, 17);
        MembruCerere e =
            Persoana(Bd(), 3, "Popescu", "Elena", "6100228400066", "28 Februarie 2010", QDate(2010, 2, 28));
        Ocupatie(Bd(), e, 8, 3);
        e.Data18Ani = QDate(2028, 2, 28);
        return {t, a, e};
    }

    Setari setari;
    std::deque<MembruCerere> persoane;
    std::vector<ContextPersoana> contexte;
    std::optional<MotivIesire> motiv;
    int motiveCerute = 0;
};

// A new request filled box by box, saved, and opened again: every box shows what was typed,
// and the persons, incomes, goods and housing come back.
TEST_P(FormCerere, CerereNouaSalvataSiRedeschisa) {
    auto f = Deschide();
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Adaugare cerere"));
    EXPECT_EQ(Text(*f, 6)->text(), QStringLiteral("Alba")) << "the first county";
    EXPECT_EQ(Data(*f, 0)->data(), Azi);
    EXPECT_EQ(Data(*f, 1)->data(), QDate(2014, 12, 1));
    EXPECT_EQ(*f->Stare(), StareCerere{});
    const std::pair<int, int> limite[] = {{0, 9}, {1, 9}, {2, 10}, {3, 10}, {4, 10}, {5, 50}, {6, 50}};
    for (const auto& [i, limita] : limite)
        EXPECT_EQ(Text(*f, i)->maxLength(), limita) << i;
    EXPECT_EQ(Lista(*f, 0)->lineEdit()->maxLength(), 50);
    for (int i = 25; i <= 28; ++i)
        EXPECT_EQ(f->findChild<QLineEdit*>(QStringLiteral("txtCerere_%1").arg(i)), nullptr) << i;
    // The lists: ids hidden behind their texts, nothing chosen.
    EXPECT_EQ(Lista(*f, 3)->count(), 2);
    EXPECT_EQ(Lista(*f, 3)->itemText(1), QStringLiteral("alocatiei de sustinere pentru familia monoparentala"));
    EXPECT_EQ(Lista(*f, 3)->itemData(1).toInt(), 2);
    EXPECT_EQ(Lista(*f, 4)->itemText(Lista(*f, 4)->findData(7)), QStringLiteral("MODIFICARE CUANTUM"));
    for (int i = 1; i <= 4; ++i)
        EXPECT_EQ(Lista(*f, i)->currentIndex(), -1) << i;
    EXPECT_FALSE(f->cmdEdit->isEnabled());
    EXPECT_FALSE(f->cmdDelete->isEnabled());

    // clang-format off
    const std::pair<int, const char*> texte[] = {
        {0, "1234"}, {1, "77"}, {5, "Branesti"}, {6, "Ilfov"}, {2, "12A"}, {17, "P3"}, {3, "B"}, {4, "7"},
        {7, "0213334444"}, {8, "0722111222"}, {22, "3"}, {29, "12/A"}, {30, "77/2014"},
        {24, "Ilfov"}, {23, "Buftea"}, {20, "14"}, {18, "C2"}, {19, "1"}, {21, "22"}};
    // clang-format on
    for (const auto& [i, text] : texte)
        Scrie(Text(*f, i), T(text));
    Lista(*f, 0)->setEditText(QStringLiteral("Strada Morii"));
    Lista(*f, 6)->setEditText(QStringLiteral("Strada Garii"));
    Lista(*f, 5)->setEditText(QStringLiteral("Indeplineste conditiile"));
    AlegeId(Lista(*f, 1), 3);
    AlegeId(Lista(*f, 2), ModPlataBanca);
    Scrie(Text(*f, 9), QStringLiteral("Popescu Ion"));
    Scrie(Text(*f, 10), QStringLiteral("RO49AAAA1B31007593840000"));
    Scrie(Text(*f, 11), QStringLiteral("BCR"));
    AlegeId(Lista(*f, 3), 1);
    AlegeId(Lista(*f, 4), 2);
    f->chkVmg->setChecked(true);
    f->chkSupl_s->setChecked(true);

    Adauga(*f, Familie());
    f->DeschideVenituri = [](StareCerere& s) {
        s.Venituri[0] = B("300.5");
        s.Venituri[5] = B("200");
        return true;
    };
    f->cmdVenituri->click();
    f->DeschideBife = [](StareCerere& s) {
        s.Bunuri[1] = B("2");
        s.Bife = QStringLiteral("0000000000");
        return true;
    };
    f->cmdBife->click();
    f->DeschideLocuinta = [](StareCerere& s) {
        s.LocuinteSel[0] = {3, true};
        s.NrCamere = 3;
        s.Polita = true;
        s.NrPolita = QStringLiteral("PAD123");
        return true;
    };
    f->cmdLocuinta->click();
    f->DeschideActe = [](StareCerere& s) {
        s.ActeBife = QStringLiteral("1101");
        return true;
    };
    f->cmdActe->click();
    // 500.5 lei for three, two children: 0.328 x 525.5, rounded up.
    EXPECT_EQ(Boxe(*f, {12, 13, 15, 16, 14}),
              (QStringList{QStringLiteral("500.5"), QStringLiteral("166.833333333333"), QStringLiteral("3"),
                           QStringLiteral("2"), QStringLiteral("173")}));
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    Captura(*f, GetParam(), "frmAddCerere_adaugare.png");

    const DateCerere scrise = f->Citeste();
    const StareCerere stare = *f->Stare();
    const QStringList nume = Coloana(f->lvw, colPrenume);
    f->cmdOK->click();
    EXPECT_TRUE(f->ESTE_OK);
    EXPECT_EQ(f->result(), QDialog::Accepted);
    EXPECT_EQ(f->Stare(), nullptr);
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    const qint64 id = f->CerereID();
    ASSERT_GT(id, 0);
    EXPECT_EQ(NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = ?"), id), 3);

    auto g = Deschide({2, id});
    ASSERT_TRUE(g->Gasita());
    EXPECT_EQ(g->windowTitle(), QStringLiteral("Modificare cerere"));
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    DateCerere asteptate = scrise;
    asteptate.Adaug = 2;
    asteptate.CerereID = id;
    asteptate.FamilieID = id;
    asteptate.txtCerere[13] = QStringLiteral("166.8333"); // kept to four decimals
    ExpectDateEgale(g->Citeste(), asteptate);
    EXPECT_EQ(Coloana(g->lvw, colPrenume), nume);
    EXPECT_EQ(Coloana(g->lvw, colRudenie), (QStringList{QStringLiteral("TITULARUL"), QStringLiteral("COPIL NATURAL"),
                                                        QStringLiteral("COPIL NATURAL")}));
    EXPECT_EQ(g->Stare()->Venituri, stare.Venituri);
    EXPECT_EQ(g->Stare()->Bunuri, stare.Bunuri);
    EXPECT_EQ(g->Stare()->LocuinteSel, stare.LocuinteSel);
    EXPECT_EQ(g->Stare()->ActeBife, QStringLiteral("1101"));
    EXPECT_EQ(g->Stare()->NrPolita, QStringLiteral("PAD123"));
    EXPECT_FALSE(g->picPlata->isHidden()) << "bank transfer shows the bank frame";
    EXPECT_EQ(g->lvw->currentItem(), g->lvw->topLevelItem(0));
    EXPECT_TRUE(g->cmdEdit->isEnabled());
    Captura(*g, GetParam(), "frmAddCerere_modificare.png");
}

// A stored request opens as it was saved; a child who came of age since is counted again, with
// the warning, and the database keeps its number until OK. The status date stays as stored.
TEST_P(FormCerere, ModificareaArataCerereaSalvata) {
    Dosar d = DosarComplet(Bd());
    d.date.dtpData[1] = QDate(2014, 12, 15);
    const qint64 id = SalveazaDosar(d);
    // Andrei turns 18 in April 2026: in May 2026 the database no longer counts him.
    setari.LunaSetata = 5;
    setari.AnSetat = 2026;
    const auto inainte = Instantaneu(Bd());

    auto f = Deschide({2, id});
    EXPECT_EQ(mesaje.Texte(Fel::Avertisment), QStringList{AvertismentCopii});
    EXPECT_EQ(Text(*f, 16)->text(), QStringLiteral("1"));
    EXPECT_EQ(Text(*f, 0)->text(), QStringLiteral("1234"));
    EXPECT_EQ(Text(*f, 5)->text(), QStringLiteral("Branesti"));
    EXPECT_EQ(Text(*f, 14)->text(), QStringLiteral("173")) << "the stored amount";
    EXPECT_EQ(Lista(*f, 4)->currentData().toInt(), 2);
    EXPECT_EQ(Lista(*f, 0)->currentText(), QStringLiteral("Strada Morii"));
    EXPECT_EQ(Data(*f, 0)->data(), QDate(2014, 11, 14));
    EXPECT_EQ(Data(*f, 1)->data(), QDate(2014, 12, 15));
    EXPECT_TRUE(f->chkVmg->isChecked());
    EXPECT_FALSE(f->chkVmg_s->isChecked());
    EXPECT_TRUE(f->chkIncalzire_s->isChecked());
    EXPECT_EQ(Coloana(f->lvw, colPrenume),
              (QStringList{QStringLiteral("Ion"), QStringLiteral("Maria"), QStringLiteral("Andrei"),
                           QStringLiteral("Elena"), QStringLiteral("Vasile"), QStringLiteral("Ana")}));
    EXPECT_EQ(f->lvwIesiti->topLevelItemCount(), 0);
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    f->cmdCancel->click();
    EXPECT_FALSE(f->ESTE_OK);
    EXPECT_EQ(f->result(), QDialog::Rejected);
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    // A request gone meanwhile is not shown; one deleted while open closes the editor at OK.
    EXPECT_FALSE(Deschide({2, id + 100})->Gasita());
    auto g = Deschide({2, id});
    g->show();
    ListaCereri::Sterge(Bd(), id);
    mesaje.mesaje.clear();
    g->cmdOK->click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Aceasta cerere a fost stearsa de alt utilizator. "
                                                         "Modificarile dvs. nu pot avea loc. Aceasta fereastra se va "
                                                         "inchide!")});
    EXPECT_FALSE(g->isVisible());
    EXPECT_FALSE(g->ESTE_OK);
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 0);
}

TEST_P(FormCerere, DataStatutuluiUrmeazaDataCererii) {
    auto f = Deschide();
    // The dates themselves: DataStareDupaCerere.
    SeteazaData(Data(*f, 0), QDate(2014, 12, 15));
    EXPECT_EQ(Data(*f, 1)->data(), QDate(2015, 1, 1));
    // The clerk may move it; the next change of the filing date moves it back.
    SeteazaData(Data(*f, 1), QDate(2015, 1, 20));
    EXPECT_EQ(Data(*f, 1)->data(), QDate(2015, 1, 20));
    SeteazaData(Data(*f, 0), QDate(2015, 3, 2));
    EXPECT_EQ(Data(*f, 1)->data(), QDate(2015, 4, 1));
    // An emptied filing date leaves the status date alone.
    Data(*f, 0)->bifa()->setChecked(false);
    EXPECT_EQ(Data(*f, 1)->data(), QDate(2015, 4, 1));
    EXPECT_TRUE(mesaje.mesaje.empty());
}

// OK stops at the first missing box with its message and the focus there; the dialog stays.
TEST_P(FormCerere, OKSpuneCeLipsesteSiRamaneDeschis) {
    auto f = Deschide();
    f->show();
    const struct {
        std::function<void()> completeaza;
        const char* mesaj;
        const char* focus;
    } pasi[] = {
        {[] {}, "Nu puteti salva datele inainte de a introduce Numarul Dosarului", "txtCerere_0"},
        {[&] { Scrie(Text(*f, 0), QStringLiteral("5")); },
         "Nu puteti salva datele inainte de a introduce Numarul Cererii", "txtCerere_1"},
        {[&] { Scrie(Text(*f, 1), QStringLiteral("6")); }, "Nu puteti salva datele inainte de a introduce Localitatea",
         "txtCerere_5"},
        {[&] { Scrie(Text(*f, 5), QStringLiteral("Branesti")); }, "Selectati din lista: Reprezentant legal!",
         "cboCerere_1"},
        {[&] {
             AlegeId(Lista(*f, 1), 3);
             AlegeId(Lista(*f, 2), 1);
             AlegeId(Lista(*f, 3), 2);
         },
         "Statut incorect. Selectati din lista un statut corect", "cboCerere_4"},
        {[&] { AlegeId(Lista(*f, 4), 1); }, "Este obligatorie adaugarea titularului cererii", "cmdAdd"},
    };
    for (const auto& p : pasi) {
        SCOPED_TRACE(p.mesaj);
        mesaje.mesaje.clear();
        p.completeaza();
        f->cmdOK->click();
        EXPECT_EQ(mesaje.Texte(), QStringList{T(p.mesaj)});
        ASSERT_NE(f->focusWidget(), nullptr);
        EXPECT_EQ(f->focusWidget()->objectName(), QLatin1String(p.focus));
        EXPECT_TRUE(f->isVisible());
        EXPECT_FALSE(f->ESTE_OK);
    }
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 0);

    // A titular and the save goes through, with the reminder of a status date past the first.
    Adauga(*f, {Familie()[0]});
    SeteazaData(Data(*f, 1), QDate(2015, 3, 15));
    mesaje.mesaje.clear();
    f->cmdOK->click();
    EXPECT_TRUE(f->ESTE_OK);
    EXPECT_FALSE(f->isVisible());
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Data aprobarii este diferita  de : 01-Martie-2015")});
    EXPECT_EQ(Numar(QStringLiteral("SELECT COUNT(*) FROM Cereri")), 1);
}

// A save that fails half-way writes nothing; the dialog stays open with every box and person,
// and the next OK writes it all.
TEST_P(FormCerere, SalvareaEsuataPastreazaDialogulSiDatele) {
    const Dosar d = DosarComplet(Bd());
    auto f = Deschide();
    f->Scrie(d.date);
    *f->Stare() = d.stare;
    f->Stare()->MatriceMembri.reset();
    Adauga(*f, *d.stare.MatriceMembri);
    f->show();
    const auto inainte = Instantaneu(Bd());
    const DateCerere date = f->Citeste();
    const StareCerere stare = *f->Stare();
    ExpectStareEgala(stare, d.stare);

    std::vector<PasSalvare> pasi;
    f->DupaPasSalvare = [&](PasSalvare p) {
        pasi.push_back(p);
        if (p == PasSalvare::CereriMembrii) throw Eroare(QStringLiteral("disc plin"));
    };
    mesaje.mesaje.clear();
    f->cmdOK->click();
    ASSERT_FALSE(pasi.empty()) << "the save runs its steps through the dialog's hook";
    EXPECT_EQ(pasi.back(), PasSalvare::CereriMembrii);
    EXPECT_EQ(mesaje.Texte(Fel::Critic), QStringList{QStringLiteral("Cererea nu a fost salvata: disc plin")});
    EXPECT_FALSE(f->ESTE_OK);
    EXPECT_TRUE(f->isVisible());
    EXPECT_EQ(Instantaneu(Bd()), inainte);
    ExpectDateEgale(f->Citeste(), date);
    ASSERT_NE(f->Stare(), nullptr);
    ExpectStareEgala(*f->Stare(), stare);
    EXPECT_EQ(f->lvw->topLevelItemCount(), 6);

    f->DupaPasSalvare = {};
    mesaje.mesaje.clear();
    f->cmdOK->click();
    EXPECT_TRUE(f->ESTE_OK);
    EXPECT_TRUE(mesaje.Texte(Fel::Critic).isEmpty());
    EXPECT_EQ(
        NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = ?"), f->CerereID()), 6);
}

// The amount follows every change that the computation depends on: the kind, the status, the
// total income, and each person added, changed or removed.
TEST_P(FormCerere, CuantumulUrmeazaPersoaneleSiCasetele) {
    auto f = Deschide();
    persoane.push_back(Familie()[0]);
    f->cmdAdd->click();
    EXPECT_EQ(mesaje.Texte(), QStringList{QStringLiteral("Introduceti tipul de alocatie!")});
    EXPECT_TRUE(contexte.empty()) << "no person dialog without the kind of allowance";
    persoane.clear();
    mesaje.mesaje.clear();

    auto calcul = [&] { return Boxe(*f, {13, 15, 16, 14}); };
    AlegeId(Lista(*f, 3), 1);
    AlegeId(Lista(*f, 4), 2);
    Scrie(Text(*f, 12), QStringLiteral("400"));
    EXPECT_EQ(calcul(), (QStringList{QString(), QString(), QString(), QStringLiteral("0")}));

    const std::vector<MembruCerere> familie = Familie();
    Adauga(*f, {familie[0]});
    ASSERT_EQ(contexte.size(), 1u);
    EXPECT_EQ(contexte[0].Mod, 1);
    EXPECT_EQ(contexte[0].LunaSetata, LunaDosar);
    EXPECT_EQ(contexte[0].AnSetat, AnDosar);
    EXPECT_EQ(calcul(), (QStringList{QStringLiteral("400"), QStringLiteral("1"), QString(), QStringLiteral("0")}));
    Adauga(*f, {familie[1]});
    // 200 lei each, one child: 0.164 x 525.5 = 86.182, rounded up.
    EXPECT_EQ(calcul(),
              (QStringList{QStringLiteral("200"), QStringLiteral("2"), QStringLiteral("1"), QStringLiteral("87")}));
    EXPECT_EQ(f->lvw->currentItem(), f->lvw->topLevelItem(1)) << "the new row is selected";

    // The child changed, with the 20% reduction: 87 less 16 (0.2 x 500 x 0.164 = 16.4).
    MembruCerere redus = familie[1];
    redus.Diminuare20 = 1;
    persoane.push_back(redus);
    f->cmdEdit->click();
    EXPECT_EQ(contexte.back().Mod, 2);
    EXPECT_EQ(contexte.back().Index, 1);
    EXPECT_EQ(Text(*f, 14)->text(), QStringLiteral("71"));

    AlegeId(Lista(*f, 3), 2); // single parent: 0.214 x 525.5 = 112.457 -> 113, less 21
    EXPECT_EQ(Text(*f, 14)->text(), QStringLiteral("92"));

    // The child leaves: the amount falls to nothing, the count of children stays shown.
    motiv = MotivIesire{3, B("150"), 1};
    f->lvw->setCurrentItem(f->lvw->topLevelItem(1));
    f->cmdDelete->click();
    EXPECT_EQ(motiveCerute, 1);
    EXPECT_EQ(calcul(),
              (QStringList{QStringLiteral("400"), QStringLiteral("1"), QStringLiteral("1"), QStringLiteral("0")}));
    EXPECT_EQ(
        mesaje.Texte(Fel::Intrebare),
        QStringList{QStringLiteral("Sigur doriti sa eliminati datele persoanei Popescu Andrei din aceasta cerere?")});
    EXPECT_EQ(mesaje.Texte(Fel::Critic), QStringList());
    EXPECT_EQ(f->Stare()->MatriceMembri->size(), 1u);
}

// Removing a person asks, takes the reason and moves the row to the leavers with its hidden
// columns; the save is given the leavers; Delete on a leaver drops it.
TEST_P(FormCerere, EliminareaMutaPersoanaLaIesiti) {
    const qint64 id = SalveazaDosar(DosarComplet(Bd()));
    auto f = Deschide({2, id});
    ASSERT_EQ(f->lvw->topLevelItemCount(), 6);
    const qint64 andrei = f->Stare()->MatriceMembri->at(2).MembruID;
    f->lvw->setCurrentItem(f->lvw->topLevelItem(2));

    mesaje.raspunsuri = {false};
    f->cmdDelete->click();
    EXPECT_EQ(f->lvw->topLevelItemCount(), 6) << "No keeps the person";
    EXPECT_EQ(motiveCerute, 0);

    motiv = MotivIesire{2, B("75.5"), 1};
    f->cmdDelete->click();
    EXPECT_EQ(motiveCerute, 1);
    EXPECT_EQ(Coloana(f->lvw, colPrenume),
              (QStringList{QStringLiteral("Ion"), QStringLiteral("Maria"), QStringLiteral("Elena"),
                           QStringLiteral("Vasile"), QStringLiteral("Ana")}));
    EXPECT_EQ(f->lvw->currentItem(), f->lvw->topLevelItem(2)) << "the row that took its place";
    ASSERT_EQ(f->lvwIesiti->topLevelItemCount(), 1);
    QTreeWidgetItem* iesit = f->lvwIesiti->topLevelItem(0);
    EXPECT_EQ(iesit->text(colID), QString::number(andrei));
    EXPECT_EQ(iesit->text(colPrenume), QStringLiteral("Andrei"));
    EXPECT_EQ(iesit->text(colRudenie), QStringLiteral("COPIL NATURAL"));
    // The hidden columns: RudenieID, MotivID, Suma, TipValuta.
    EXPECT_EQ((QStringList{iesit->text(13), iesit->text(14), iesit->text(15), iesit->text(16)}),
              (QStringList{QStringLiteral("3"), QStringLiteral("2"), QStringLiteral("75.5"), QStringLiteral("1")}));
    for (int c = 13; c <= 16; ++c)
        EXPECT_TRUE(f->lvwIesiti->isColumnHidden(c)) << c;
    EXPECT_EQ(Text(*f, 15)->text(), QStringLiteral("5"));

    mesaje.mesaje.clear();
    f->cmdOK->click();
    ASSERT_TRUE(f->ESTE_OK) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    {
        Interogare q(Bd(), QStringLiteral("SELECT MembruID FROM CMIesiti WHERE CerereID = ?"));
        q.Leaga(id);
        ASSERT_TRUE(q.Exista());
        EXPECT_EQ(q.Intreg(0), andrei);
        EXPECT_FALSE(q.Urmator());
    }
    EXPECT_EQ(NumarRanduri(Bd(), QStringLiteral("SELECT COUNT(*) FROM CereriMembrii WHERE CerereID = ?"), id), 5);

    // Delete on the leaver drops it.
    auto g = Deschide({2, id});
    ASSERT_EQ(g->lvwIesiti->topLevelItemCount(), 1);
    g->lvwIesiti->setCurrentItem(g->lvwIesiti->topLevelItem(0));
    QTest::keyClick(g->lvwIesiti, Qt::Key_Delete);
    EXPECT_EQ(g->lvwIesiti->topLevelItemCount(), 0);
    EXPECT_EQ(g->lvw->topLevelItemCount(), 5);
}

// The editor's working state is the one that the sub-dialogs receive, and it goes with the
// dialog: a later editor starts clean.
TEST_P(FormCerere, StareaEsteADialoguluiSiPleacaOdataCuEl) {
    const qint64 id = SalveazaDosar(DosarComplet(Bd()));
    const auto inainte = Instantaneu(Bd());
    auto f = Deschide({2, id});
    StareCerere* primita = nullptr;
    f->DeschideVenituri = [&](StareCerere& s) {
        primita = &s;
        EXPECT_EQ(s.Venituri[0], B("300.5")) << "the stored incomes";
        s.Venituri[5] = Bani();
        return true;
    };
    f->cmdVenituri->click();
    EXPECT_EQ(primita, f->Stare());
    // 300.5 + 100.0001 for six persons, two children counted in December 2014.
    EXPECT_EQ(Boxe(*f, {12, 13, 14}),
              (QStringList{QStringLiteral("400.5001"), QStringLiteral("66.7500166666667"), QStringLiteral("173")}));
    // A cancelled dialog changes nothing.
    f->DeschideVenituri = [](StareCerere& s) {
        s.Venituri[1] = B("1000");
        return false;
    };
    f->cmdVenituri->click();
    EXPECT_EQ(Text(*f, 12)->text(), QStringLiteral("400.5001"));
    for (auto* seam : {&f->DeschideBife, &f->DeschideActe, &f->DeschideLocuinta}) {
        primita = nullptr;
        *seam = [&](StareCerere& s) {
            primita = &s;
            return false;
        };
    }
    for (QPushButton* b : {f->cmdBife, f->cmdActe, f->cmdLocuinta}) {
        primita = nullptr;
        b->click();
        EXPECT_EQ(primita, f->Stare()) << b->objectName().toStdString();
    }

    QTest::keyClick(f.get(), Qt::Key_Escape);
    EXPECT_FALSE(f->ESTE_OK);
    EXPECT_EQ(f->Stare(), nullptr);
    EXPECT_EQ(Instantaneu(Bd()), inainte);
    // Commands that reach a closed dialog find nothing to work on.
    f->cmdAdd_Click();
    f->cmdVenituri_Click();
    f->cmdOK_Click();
    EXPECT_TRUE(contexte.empty());
    EXPECT_EQ(Instantaneu(Bd()), inainte);

    auto g = Deschide();
    EXPECT_EQ(*g->Stare(), StareCerere{});
    EXPECT_TRUE(g->Lista().lvw.empty());
    EXPECT_TRUE(g->Lista().lvwIesiti.empty());
    EXPECT_EQ(Text(*g, 12)->text(), QString());
}

// The buttons open the real incomes, goods, documents and housing dialogs on the open state; the
// incomes confirmed there become the total income box. The incomes dialog wears the colour of the
// options.
TEST_P(FormCerere, ButoaneleDeschidDialogurileDosarului) {
    const qint64 id = SalveazaDosar(DosarComplet(Bd()));
    setari.CuloareVenit = QStringLiteral("1971210"); // 10 + 20 * 256 + 30 * 65536
    auto f = Deschide({2, id});
    QStringList deschise;
    f->ArataModal = [&](QDialog& d) {
        deschise << d.objectName();
        if (auto* v = qobject_cast<frmAddVenituri*>(&d)) {
            EXPECT_TRUE(v->autoFillBackground());
            EXPECT_EQ(v->palette().color(QPalette::Window), QColor(10, 20, 30));
            EXPECT_EQ(v->palette().color(QPalette::WindowText), QColor(Qt::white)) << "readable on the dark colour";
            v->Grid->item(1, 1)->setText(QStringLiteral("250,5"));
            v->cmdOK_Click();
            return int(QDialog::Accepted);
        }
        return int(QDialog::Rejected);
    };
    const StareCerere inainte = *f->Stare();
    for (QPushButton* b : {f->cmdBife, f->cmdActe, f->cmdLocuinta})
        b->click();
    EXPECT_EQ(*f->Stare(), inainte) << "cancelled dialogs leave the state as it was";
    f->cmdVenituri->click();
    EXPECT_EQ(deschise, (QStringList{QStringLiteral("frmBife"), QStringLiteral("frmAddActe"),
                                     QStringLiteral("frmAddLocuinta"), QStringLiteral("frmAddVenituri")}));
    EXPECT_EQ(f->Stare()->Venituri[1], B("250.5"));
    EXPECT_EQ(Text(*f, 12)->text(), TextSuma(SumaVenituri(f->Stare()->Venituri)));
    EXPECT_NE(Text(*f, 12)->text(), TextSuma(SumaVenituri(inainte.Venituri)));
}

// The behaviours of the boxes: the free-text combos take a capital and a colour, the bank and
// address frames follow their choices, Enter in a date moves on, and a number already used
// elsewhere is told on leaving its box.
TEST_P(FormCerere, ComportamentulCasetelor) {
    Dosar d = DosarComplet(Bd());
    const qint64 id = SalveazaDosar(d);
    auto f = Deschide();
    f->show();
    f->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(f.get()));

    const QColor focus(0xC0, 0xFF, 0xFF);
    for (int i : {0, 5, 6}) {
        SCOPED_TRACE(i);
        QComboBox* c = Lista(*f, i);
        if (i == 6) f->opt[1]->click();
        c->setFocus();
        EXPECT_EQ(c->palette().color(QPalette::Base), focus);
        c->setEditText(QStringLiteral("strada morii Veche"));
        Text(*f, 7)->setFocus();
        EXPECT_EQ(c->currentText(), QStringLiteral("Strada morii Veche"));
        EXPECT_EQ(c->palette().color(QPalette::Base), QColor(Qt::white));
    }
    Lista(*f, 1)->setFocus();
    EXPECT_NE(Lista(*f, 1)->palette().color(QPalette::Base), focus) << "a list combo keeps its colour";

    EXPECT_FALSE(f->Picture3->isHidden());
    EXPECT_TRUE(f->Picture1->isHidden());
    f->opt[0]->click();
    EXPECT_FALSE(f->Picture1->isHidden());
    EXPECT_TRUE(f->Picture3->isHidden());

    EXPECT_TRUE(f->picPlata->isHidden());
    AlegeId(Lista(*f, 2), ModPlataBanca);
    EXPECT_FALSE(f->picPlata->isHidden());
    AlegeId(Lista(*f, 2), 1);
    EXPECT_TRUE(f->picPlata->isHidden());

    for (int i : {0, 1}) {
        QDateEdit* e = Data(*f, i)->editor();
        e->setFocus();
        QTest::keyClick(e, Qt::Key_Return);
        EXPECT_NE(f->focusWidget(), e) << i;
        EXPECT_TRUE(f->isVisible());
    }
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();

    // Numbers of the stored request: a warning on leaving, and the focus goes on.
    Text(*f, 0)->setFocus();
    QTest::keyClicks(Text(*f, 0), QStringLiteral("1234"));
    Text(*f, 1)->setFocus();
    QTest::keyClicks(Text(*f, 1), QStringLiteral("77"));
    Text(*f, 2)->setFocus();
    EXPECT_EQ(mesaje.Texte(), (QStringList{QStringLiteral("Numarul 1234 a fost alocat altui dosar"),
                                           QStringLiteral("Numarul 77 a fost alocat altei cereri")}));
    EXPECT_EQ(f->focusWidget(), Text(*f, 2));
    mesaje.mesaje.clear();
    Text(*f, 0)->setFocus();
    Scrie(Text(*f, 0), QStringLiteral("1235"));
    Text(*f, 2)->setFocus();
    EXPECT_TRUE(mesaje.mesaje.empty());

    // The request's own numbers are not used elsewhere.
    auto g = Deschide({2, id});
    g->show();
    g->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(g.get()));
    Text(*g, 0)->setFocus();
    Text(*g, 1)->setFocus();
    Text(*g, 2)->setFocus();
    EXPECT_TRUE(mesaje.mesaje.empty()) << mesaje.Texte().join(QLatin1Char('|')).toStdString();
    // Enter and double click on a person open it.
    AlegeId(Lista(*g, 3), 1);
    g->lvw->setCurrentItem(g->lvw->topLevelItem(3));
    QTest::keyClick(g->lvw, Qt::Key_Return);
    ASSERT_EQ(contexte.size(), 1u);
    EXPECT_EQ(contexte[0].Mod, 2);
    EXPECT_EQ(contexte[0].Index, 3);
}

// Opened from the expiring certificates, the editor opens the person at once, as cmdEdit does.
TEST_P(FormCerere, DeschidereaAutomataAPersoanei) {
    const qint64 id = SalveazaDosar(DosarComplet(Bd()));
    qint64 elena = 0;
    {
        Interogare q(Bd(), QStringLiteral("SELECT MembruID FROM Membrii WHERE CNP = '6050101400044'"));
        ASSERT_TRUE(q.Exista());
        elena = q.Intreg(0);
    }
    auto f = Deschide({2, id, true, elena});
    EXPECT_TRUE(f->Timer1->isActive());
    EXPECT_EQ(f->Timer1->interval(), 250);
    EXPECT_TRUE(contexte.empty()) << "not before the editor has shown";
    ASSERT_TRUE(QTest::qWaitFor([&] { return !contexte.empty(); }, 3000));
    EXPECT_EQ(contexte[0].Mod, 2);
    EXPECT_EQ(contexte[0].Index, 3);
    EXPECT_EQ(f->lvw->currentItem(), f->lvw->topLevelItem(3));
    EXPECT_EQ(f->lvw->currentItem()->text(colPrenume), QStringLiteral("Elena"));
    EXPECT_FALSE(f->Timer1->isActive());

    // A person not on the request opens nothing; without AutoOpen nothing starts.
    contexte.clear();
    auto g = Deschide({2, id, true, 999999});
    g->Timer1_Timer();
    EXPECT_TRUE(contexte.empty());
    EXPECT_FALSE(Deschide({2, id})->Timer1->isActive());
}

PE_AMBELE_MOTOARE(FormCerere);

} // namespace
