#include "base/Eroare.h"
#include "cases/ListaMembri.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

#include <QStringList>
#include <gtest/gtest.h>

using namespace ElemPersoana;

namespace {

QStringList Texte(const RandLista& r) {
    return QStringList(r.begin(), r.end());
}

MembruCerere Membru(qint64 id, const char* nume, const char* prenume, const char* cnp, int rudenie,
                    const char* rudenieText) {
    MembruCerere m;
    m.MembruID = id;
    m.Nume = T(nume);
    m.Prenume = T(prenume);
    m.CNP = T(cnp);
    m.RudenieID = rudenie;
    m.Rudenie = T(rudenieText);
    return m;
}

MembruIesit Iesit(qint64 id) {
    MembruIesit m;
    m.MembruID = id;
    m.Nume = T("IESIT");
    m.RudenieID = 2;
    return m;
}

// The controls of a person as the clerk fills them.
DatePersoana Controale(qint64 id, const char* nume, const char* prenume, const char* cnp, int rudenie) {
    DatePersoana d;
    d.MembruID = id;
    d.cboCNP = T(cnp);
    d.txtMembru[txtNume] = T(nume);
    d.txtMembru[txtPrenume] = T(prenume);
    d.cboMembru[cboRudenie] = {rudenie, T("R")};
    return d;
}

// The editor's path for cmdAdd: the check of the allowance kind, the dialog's OK, the row.
TotaluriMembri Adauga(ListaMembri& l, StareCerere& s, const DatePersoana& d, Mesaje& m) {
    const Deschidere deschidere = DeschideAdaugare(s, 1, m);
    EXPECT_TRUE(deschidere.Deschide);
    EXPECT_EQ(deschidere.Index, MatriceNrElemente(s));
    const RezultatOk ok = OkPersoana(d, {deschidere.Mod, deschidere.Index, 12, 2024}, s, m);
    EXPECT_TRUE(ok.Focus.isEmpty()) << ok.Focus.toStdString();
    return DupaAdaugare(l, s, *ok.Index, m);
}

std::function<std::optional<MotivIesire>()> Motiv(std::optional<MotivIesire> motiv, int* apeluri = nullptr) {
    return [motiv, apeluri]() {
        if (apeluri) ++*apeluri;
        return motiv;
    };
}

// A list of n persons kept in step: keys 11, 12, ..., first names P0, P1, ..., CNPs 1...0, 1...1, ...
void Familie(ListaMembri& l, StareCerere& s, int n) {
    MesajeInregistrate m;
    for (int i = 0; i < n; ++i) {
        const QByteArray cnp = QByteArray("185050546000") + QByteArray::number(i);
        const QByteArray prenume = QByteArray("P") + QByteArray::number(i);
        Adauga(l, s, Controale(11 + i, "NUME", prenume.constData(), cnp.constData(), i == 0 ? 1 : 3), m);
    }
    ASSERT_TRUE(m.mesaje.empty());
}

// The income with two decimals, the date of turning 18 as dd.MM.yyyy; a change's amount is not
// shown for a member, and is for a leaver, whose hidden columns go to the save as they came.
TEST(RandLista, TextulRandurilor) {
    MembruCerere adult = Membru(12, "POPESCU", "ION", "1850505460011", 1, "TITULARUL");
    adult.Ocupatie = T("SALARIAT");
    adult.Venit = B("1200.5");
    adult.DataNast = T("5 Mai 1985");
    adult.SerieBI = T("XZ");
    adult.NrBI = T("123456");
    adult.Suma = B("99");
    EXPECT_EQ(Texte(RandMembru(adult)), (QStringList{"12", "POPESCU", "ION", "1850505460011", "SALARIAT", "TITULARUL",
                                                     "1200.50", "", "", "", "5 Mai 1985", "XZ", "123456"}));
    MembruCerere copil = Membru(0, "POPESCU", "ANA", "6100315460012", 3, "COPIL NATURAL");
    copil.Data18Ani = QDate(2028, 3, 5);
    copil.Motiv = T("implinirea varstei de 18 ani");
    const RandLista r = RandMembru(copil);
    EXPECT_EQ(r[colVenit], T("0.00"));
    EXPECT_EQ(r[colDataExp], T("05.03.2028"));
    EXPECT_EQ(r[colMotivExpirare], copil.Motiv);

    MembruIesit m = Iesit(31);
    m.Prenume = T("DAN");
    m.Rudenie = T("RUDA ADULTA");
    m.Suma = B("350");
    m.NrBI = T("777");
    m.MotivID = 9;
    m.TipValuta = 1;
    ListaMembri l;
    l.lvwIesiti.push_back(RandIesitIncarcat(m));
    EXPECT_EQ(Texte(l.lvwIesiti[0].Coloane),
              (QStringList{"31", "IESIT", "DAN", "", "", "RUDA ADULTA", "350.00", "", "", "", "", "", "777"}));
    EXPECT_EQ(IesitiDeSalvat(l), std::vector<MembruIesit>{m});
}

TEST(Matrice, NumarulDeElementeSiStergerea) {
    StareCerere s;
    EXPECT_EQ(MatriceNrElemente(s), 0);
    s.MatriceMembri = std::vector{Membru(1, "A", "A", "1", 1, "T"), Membru(2, "B", "B", "2", 3, "C"),
                                  Membru(3, "C", "C", "3", 3, "C")};
    StergeElement(s, 1);
    ASSERT_EQ(MatriceNrElemente(s), 2);
    EXPECT_EQ((*s.MatriceMembri)[1].MembruID, 3);
    EXPECT_THROW(StergeElement(s, 2), Eroare);
    StergeElement(s, 1);
    StergeElement(s, 0);
    EXPECT_TRUE(s.MatriceMembri) << "an emptied matrix stays dimensioned";
}

// The dialog opens only once the allowance kind is chosen; a change needs rows and a selected one.
TEST(Deschidere, TipulDeAlocatieSiRandulSelectat) {
    MesajeInregistrate m;
    StareCerere s;
    ListaMembri l;
    for (const Deschidere& d : {DeschideAdaugare(s, 0, m), DeschideModificare(l, 0, m)}) {
        EXPECT_FALSE(d.Deschide);
        EXPECT_EQ(d.Focus, T("cboCerere_3"));
    }
    EXPECT_EQ(m.Texte(), (QStringList{T("Introduceti tipul de alocatie!"), T("Introduceti tipul de alocatie!")}));
    m.mesaje.clear();
    EXPECT_FALSE(DeschideModificare(l, 1, m).Deschide);
    EXPECT_TRUE(m.mesaje.empty()) << "with an empty list nothing happens";

    Familie(l, s, 3);
    l.Selectat.reset();
    EXPECT_FALSE(DeschideModificare(l, 1, m).Deschide);
    EXPECT_EQ(m.Texte(), QStringList{T("Selectati o cerere")});
    l.Selectat = 1;
    const Deschidere d = DeschideModificare(l, 1, m);
    EXPECT_TRUE(d.Deschide);
    EXPECT_EQ(d.Mod, 2);
    EXPECT_EQ(d.Index, 1);
    const Deschidere a = DeschideAdaugare(s, 2, m);
    EXPECT_EQ(a.Mod, 1);
    EXPECT_EQ(a.Index, 3);
}

// An added person gets its row, selected; a changed person rewrites only the selected row.
TEST(ListaMembri, AdaugareaSiModificareaPastreazaListaInPas) {
    StareCerere s;
    ListaMembri l;
    MesajeInregistrate m;
    EXPECT_FALSE(ComenziActive(l));
    TotaluriMembri t = Adauga(l, s, Controale(0, "POPESCU", "ION", "1850505460011", 1), m);
    EXPECT_EQ(t.NrMembrii, 1);
    EXPECT_EQ(l.Selectat, 0);
    EXPECT_TRUE(ComenziActive(l));
    Familie(l, s, 2);
    EXPECT_EQ(l.Selectat, 2);
    EXPECT_TRUE(ListaInPas(l, s));
    EXPECT_EQ(l.lvw[1][colDataNast], T("5 Mai 1985"));

    const RandLista primul = l.lvw[0], ultimul = l.lvw[2];
    l.Selectat = 1;
    DatePersoana controale = DinMembru((*s.MatriceMembri)[1]);
    controale.txtMembru[txtPrenume] = T("SCHIMBAT");
    controale.txtMembru[txtVenit] = T("75,5");
    const RezultatOk ok = OkPersoana(controale, {2, 1, 12, 2024}, s, m);
    t = DupaModificare(l, s, *ok.Index, m);
    EXPECT_EQ(t.NrMembrii, 3);
    EXPECT_TRUE(t.Exceptie.isEmpty());
    EXPECT_TRUE(ListaInPas(l, s));
    EXPECT_EQ(l.lvw[1][colPrenume], T("SCHIMBAT"));
    EXPECT_EQ(l.lvw[1][colVenit], T("75.50"));
    EXPECT_EQ(l.lvw[0], primul);
    EXPECT_EQ(l.lvw[2], ultimul);
    EXPECT_EQ(l.Selectat, 1);
    EXPECT_TRUE(m.mesaje.empty());
}

// A removed person goes to the leavers with the reason of frmMotiv, asked only after Yes; a
// cancelled reason keeps what the element had.
TEST(ListaMembri, EliminareaMutaPersoanaLaIesitiCuMotivul) {
    for (const bool anulat : {false, true}) {
        SCOPED_TRACE(anulat);
        StareCerere s;
        ListaMembri l;
        Familie(l, s, 3);
        MembruCerere& el = (*s.MatriceMembri)[1];
        el.RudenieID = 7;
        el.MotivID = 1;
        el.Suma = B("20");
        el.TipValuta = 1;
        const RandLista randul = l.lvw[1];
        l.Selectat = 1;
        MesajeInregistrate m;
        int apeluri = 0;
        const auto t = EliminaMembru(
            l, s, Motiv(anulat ? std::nullopt : std::optional(MotivIesire{3, B("150.25"), 4}), &apeluri), m);
        ASSERT_TRUE(t);
        EXPECT_EQ(apeluri, 1);
        EXPECT_EQ(m.Texte(Mesaje::Fel::Intrebare),
                  QStringList{T("Sigur doriti sa eliminati datele persoanei NUME P1 din aceasta cerere?")});
        EXPECT_EQ(t->NrMembrii, 2);
        EXPECT_TRUE(ListaInPas(l, s));
        ASSERT_EQ(l.lvwIesiti.size(), 1u);
        EXPECT_EQ(l.lvwIesiti[0].Coloane, randul);
        const MembruIesit& iesit = l.lvwIesiti[0].Iesit;
        EXPECT_EQ(iesit.MembruID, 12);
        EXPECT_EQ(iesit.Prenume, T("P1"));
        EXPECT_EQ(iesit.CNP, T("1850505460001"));
        EXPECT_EQ(iesit.RudenieID, 7);
        EXPECT_EQ(iesit.MotivID, anulat ? 1 : 3);
        EXPECT_EQ(iesit.Suma, B(anulat ? "20" : "150.25"));
        EXPECT_EQ(iesit.TipValuta, anulat ? 1 : 4);
        EXPECT_EQ(IesitiDeSalvat(l), std::vector<MembruIesit>{iesit});
    }

    // No row selected, or No to the question: nothing moves and frmMotiv never opens.
    StareCerere s;
    ListaMembri l;
    Familie(l, s, 2);
    const std::vector<RandLista> inainte = l.lvw;
    MesajeInregistrate m;
    int apeluri = 0;
    l.Selectat.reset();
    EXPECT_FALSE(EliminaMembru(l, s, Motiv(MotivIesire{3, {}, 1}, &apeluri), m));
    EXPECT_EQ(m.Texte(), QStringList{T("Selectati o cerere")});
    l.Selectat = 0;
    m.raspunsuri = {false};
    EXPECT_FALSE(EliminaMembru(l, s, Motiv(MotivIesire{3, {}, 1}, &apeluri), m));
    EXPECT_EQ(apeluri, 0);
    EXPECT_EQ(l.lvw, inainte);
    EXPECT_EQ(MatriceNrElemente(s), 2);
    EXPECT_TRUE(l.lvwIesiti.empty());
}

TEST(ListaMembri, SelectiaDupaEliminare) {
    const struct {
        int randuri, selectat;
        std::optional<int> dupa;
    } cazuri[] = {{3, 0, 0}, {3, 1, 1}, {3, 2, 1}, {2, 1, 0}, {1, 0, std::nullopt}};
    for (const auto& c : cazuri) {
        SCOPED_TRACE(testing::Message() << c.randuri << " randuri, selectat " << c.selectat);
        StareCerere s;
        ListaMembri l;
        Familie(l, s, c.randuri);
        const QString urmatorul = c.selectat + 1 < c.randuri ? l.lvw[size_t(c.selectat + 1)][colID] : QString();
        l.Selectat = c.selectat;
        MesajeInregistrate m;
        const auto t = EliminaMembru(l, s, Motiv(std::nullopt), m);
        ASSERT_TRUE(t);
        EXPECT_EQ(t->NrMembrii, c.randuri - 1);
        EXPECT_TRUE(t->Exceptie.isEmpty());
        EXPECT_EQ(l.Selectat, c.dupa);
        EXPECT_TRUE(ListaInPas(l, s));
        EXPECT_EQ(ComenziActive(l), c.randuri > 1);
        if (!urmatorul.isEmpty()) {
            EXPECT_EQ(l.lvw[size_t(*l.Selectat)][colID], urmatorul);
        }
    }
}

// A leaver who is added again leaves the leavers; a key of 0 (never saved) never matches.
TEST(ListaMembri, PersoanaCareRevineIeseDintreIesiti) {
    StareCerere s;
    ListaMembri l;
    MesajeInregistrate m;
    Familie(l, s, 2);
    l.lvwIesiti.push_back(RandIesitIncarcat(Iesit(40)));
    Adauga(l, s, Controale(0, "NOU", "N", "5200101460011", 3), m);
    l.Selectat = 2;
    ASSERT_TRUE(EliminaMembru(l, s, Motiv(std::nullopt), m));
    l.Selectat = 1;
    ASSERT_TRUE(EliminaMembru(l, s, Motiv(std::nullopt), m));
    ASSERT_EQ(l.lvwIesiti.size(), 3u);

    Adauga(l, s, Controale(12, "NUME", "P1", "1850505460001", 3), m);
    ASSERT_EQ(l.lvwIesiti.size(), 2u);
    EXPECT_EQ(l.lvwIesiti[0].Iesit.MembruID, 40);
    EXPECT_EQ(l.lvwIesiti[1].Iesit.MembruID, 0);
    Adauga(l, s, Controale(0, "ALT", "NOU", "5200202460011", 3), m);
    EXPECT_EQ(l.lvwIesiti.size(), 2u);
    EXPECT_TRUE(m.Texte(Mesaje::Fel::Informatie).isEmpty());

    // Delete on a leaver row drops it, and only a row that is there.
    EXPECT_TRUE(StergeIesit(l, 0));
    EXPECT_FALSE(StergeIesit(l, 1));
    EXPECT_FALSE(StergeIesit(l, -1));
    ASSERT_EQ(l.lvwIesiti.size(), 1u);
    EXPECT_EQ(l.lvwIesiti[0].Iesit.MembruID, 0);
}

TEST(ListaMembri, MotivulDinControaleleFerestrei) {
    const struct {
        AlegereCombo motiv, valuta;
        bool bifat;
        const char* suma;
        int motivID;
        const char* asteptat;
        int tipValuta;
    } cazuri[] = {
        {{3, T("DECES")}, {1, T("LEI")}, true, "150,5", 3, "150.5", 1},
        {{}, {}, true, "20", 0, "20", 0},
        {{7, T("DIVORT")}, {4, T("EURO")}, false, "300", 7, "0", 4},
        {{7, T("DIVORT")}, {}, true, "", 7, "0", 0},
    };
    for (const auto& c : cazuri) {
        const MotivIesire r = MotivDinControale(c.motiv, c.valuta, c.bifat, T(c.suma));
        EXPECT_EQ(r.MotivID, c.motivID) << c.suma;
        EXPECT_EQ(r.Suma, B(c.asteptat)) << c.suma;
        EXPECT_EQ(r.TipValuta, c.tipValuta) << c.suma;
    }
    EXPECT_THROW(MotivDinControale({}, {}, true, T("mult")), Eroare);
}

// A list out of step with the matrix: every change tells it and goes on.
TEST(ListaMembri, ExceptiaCandListaDifera) {
    StareCerere s;
    ListaMembri l;
    Familie(l, s, 2);
    // A row that has no element.
    RandLista faraElement{};
    faraElement[colID] = T("99");
    l.lvw.push_back(faraElement);
    EXPECT_FALSE(ListaInPas(l, s));
    MesajeInregistrate m;
    l.Selectat = 0;
    TotaluriMembri t = DupaModificare(l, s, 0, m);
    EXPECT_EQ(t.NrMembrii, 3);
    EXPECT_TRUE(t.Exceptie.startsWith(T("Exceptie Tarn")));
    EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie), QStringList{t.Exceptie});

    // Removing the row without an element brings them back in step: no message, and no element
    // took the reason.
    m.mesaje.clear();
    l.Selectat = 2;
    auto dupa = EliminaMembru(l, s, Motiv(MotivIesire{5, {}, 0}), m);
    ASSERT_TRUE(dupa);
    EXPECT_TRUE(dupa->Exceptie.isEmpty());
    EXPECT_EQ(MatriceNrElemente(s), 2);
    ASSERT_EQ(l.lvwIesiti.size(), 1u);
    EXPECT_EQ(l.lvwIesiti[0].Iesit.MembruID, 99);
    EXPECT_EQ(l.lvwIesiti[0].Iesit.MotivID, 0);
    EXPECT_TRUE(m.Texte(Mesaje::Fel::Informatie).isEmpty());

    // An element without a row.
    s.MatriceMembri->push_back(Membru(77, "FARA", "RAND", "1990101460022", 3, "COPIL NATURAL"));
    l.Selectat = 0;
    dupa = EliminaMembru(l, s, Motiv(std::nullopt), m);
    ASSERT_TRUE(dupa);
    EXPECT_EQ(dupa->NrMembrii, 1);
    EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie), QStringList{dupa->Exceptie});

    // Same count, another person: not in step, though the totals can't tell.
    StareCerere s2;
    ListaMembri l2;
    Familie(l2, s2, 2);
    (*s2.MatriceMembri)[1].CNP = T("2000101460011");
    EXPECT_FALSE(ListaInPas(l2, s2));
}

} // namespace
