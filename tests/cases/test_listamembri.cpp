#include "base/Eroare.h"
#include "cases/ListaMembri.h"
#include "support/BazaTest.h"
#include "support/Texte.h"

#include <gtest/gtest.h>

using namespace ElemPersoana;

namespace {

// The controls of a person as the clerk fills them.
DatePersoana Controale(qint64 id, const char* prenume, const char* cnp, int rudenie = 3) {
    DatePersoana d;
    d.MembruID = id;
    d.cboCNP = T(cnp);
    d.txtMembru[txtNume] = T("NUME");
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
        Adauga(l, s, Controale(11 + i, prenume.constData(), cnp.constData(), i == 0 ? 1 : 3), m);
    }
    ASSERT_TRUE(m.mesaje.empty());
}

// An added person gets its row, selected; a changed person rewrites only the selected row.
TEST(ListaMembri, AdaugareaSiModificareaPastreazaListaInPas) {
    StareCerere s;
    ListaMembri l;
    MesajeInregistrate m;
    EXPECT_FALSE(ComenziActive(l));
    Familie(l, s, 3);
    EXPECT_EQ(l.Selectat, 2);
    EXPECT_TRUE(ComenziActive(l) && ListaInPas(l, s));
    EXPECT_EQ(l.lvw[1][colDataNast], T("5 Mai 1985"));
    const RandLista primul = l.lvw[0], ultimul = l.lvw[2];
    l.Selectat = 1;
    DatePersoana controale = DinMembru((*s.MatriceMembri)[1]);
    controale.txtMembru[txtPrenume] = T("SCHIMBAT");
    controale.txtMembru[txtVenit] = T("75,5");
    const TotaluriMembri t = DupaModificare(l, s, *OkPersoana(controale, {2, 1, 12, 2024}, s, m).Index, m);
    EXPECT_EQ(t.NrMembrii, 3);
    EXPECT_TRUE(ListaInPas(l, s));
    EXPECT_EQ((QStringList{l.lvw[1][colPrenume], l.lvw[1][colVenit]}), (QStringList{"SCHIMBAT", "75.50"}));
    EXPECT_EQ(l.lvw[0], primul);
    EXPECT_EQ(l.lvw[2], ultimul);
    EXPECT_EQ(l.Selectat, 1);
    EXPECT_TRUE(m.mesaje.empty());
}

// A removed person goes to the leavers with frmMotiv's reason (after Yes) or, cancelled, its own.
TEST(ListaMembri, EliminareaMutaPersoanaLaIesitiCuMotivul) {
    for (const bool anulat : {false, true}) {
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
        const auto motiv = anulat ? std::nullopt : std::optional(MotivIesire{3, B("150.25"), 4});
        const auto t = EliminaMembru(l, s, Motiv(motiv, &apeluri), m);
        ASSERT_TRUE(t);
        EXPECT_EQ((std::array{apeluri, int(m.Texte(Mesaje::Fel::Intrebare).size()), t->NrMembrii}),
                  (std::array{1, 1, 2}));
        EXPECT_TRUE(ListaInPas(l, s));
        ASSERT_EQ(l.lvwIesiti.size(), 1u);
        EXPECT_EQ(l.lvwIesiti[0].Coloane, randul);
        const MembruIesit& i = l.lvwIesiti[0].Iesit;
        EXPECT_EQ((QStringList{QString::number(i.MembruID), i.Prenume, i.CNP, QString::number(i.RudenieID)}),
                  (QStringList{"12", "P1", "1850505460001", "7"}));
        EXPECT_EQ((std::array{i.MotivID, i.TipValuta}), anulat ? (std::array{1, 1}) : (std::array{3, 4}));
        EXPECT_EQ(i.Suma, B(anulat ? "20" : "150.25"));
        EXPECT_EQ(IesitiDeSalvat(l), std::vector<MembruIesit>{i}) << "as the save writes them";
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
    l.Selectat = 0;
    m.raspunsuri = {false};
    EXPECT_FALSE(EliminaMembru(l, s, Motiv(MotivIesire{3, {}, 1}, &apeluri), m));
    EXPECT_EQ((std::array{int(m.Texte().size()), apeluri, MatriceNrElemente(s)}), (std::array{2, 0, 2}));
    EXPECT_EQ(l.lvw, inainte);
    EXPECT_TRUE(l.lvwIesiti.empty());

    const std::tuple<int, int, std::optional<int>> selectii[] = {
        {3, 0, 0}, {3, 1, 1}, {3, 2, 1}, {2, 1, 0}, {1, 0, std::nullopt}};
    for (const auto& [randuri, selectat, dupa] : selectii) {
        StareCerere s2;
        ListaMembri l2;
        Familie(l2, s2, randuri);
        l2.Selectat = selectat;
        ASSERT_TRUE(EliminaMembru(l2, s2, Motiv(std::nullopt), m));
        EXPECT_EQ(l2.Selectat, dupa) << randuri << " " << selectat;
        EXPECT_TRUE(ListaInPas(l2, s2) && s2.MatriceMembri) << "an emptied matrix stays dimensioned";
        EXPECT_EQ(ComenziActive(l2), randuri > 1);
    }
}

// A leaver added again leaves the leavers; a key of 0 never matches.
TEST(ListaMembri, PersoanaCareRevineIeseDintreIesiti) {
    StareCerere s;
    ListaMembri l;
    MesajeInregistrate m;
    Familie(l, s, 2);
    MembruIesit vechi;
    vechi.MembruID = 40;
    l.lvwIesiti.push_back(RandIesitIncarcat(vechi));
    Adauga(l, s, Controale(0, "N", "5200101460011"), m);
    for (const int rand : {2, 1}) {
        l.Selectat = rand;
        ASSERT_TRUE(EliminaMembru(l, s, Motiv(std::nullopt), m));
    }
    ASSERT_EQ(l.lvwIesiti.size(), 3u);
    Adauga(l, s, Controale(12, "P1", "1850505460001"), m);
    Adauga(l, s, Controale(0, "NOU", "5200202460011"), m);
    ASSERT_EQ(l.lvwIesiti.size(), 2u);
    EXPECT_EQ((std::array{l.lvwIesiti[0].Iesit.MembruID, l.lvwIesiti[1].Iesit.MembruID}),
              (std::array<qint64, 2>{40, 0}));
    EXPECT_TRUE(m.Texte(Mesaje::Fel::Informatie).isEmpty());
    EXPECT_EQ((std::array{StergeIesit(l, 0), StergeIesit(l, 1), StergeIesit(l, -1)}), (std::array{true, false, false}));
    EXPECT_EQ(l.lvwIesiti.size(), 1u);
}

// A list out of step with the matrix: every change tells it and goes on.
TEST(ListaMembri, ExceptiaCandListaDifera) {
    StareCerere s;
    ListaMembri l;
    Familie(l, s, 2);
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
    m.mesaje.clear();
    l.Selectat = 2;
    auto dupa = EliminaMembru(l, s, Motiv(MotivIesire{5, {}, 0}), m);
    ASSERT_TRUE(dupa);
    EXPECT_TRUE(dupa->Exceptie.isEmpty());
    EXPECT_EQ(MatriceNrElemente(s), 2);
    EXPECT_EQ((std::array<qint64, 2>{l.lvwIesiti[0].Iesit.MembruID, l.lvwIesiti[0].Iesit.MotivID}),
              (std::array<qint64, 2>{99, 0}));
    EXPECT_TRUE(m.Texte(Mesaje::Fel::Informatie).isEmpty());
    // An element without a row; then the same count with another person, which the totals can't tell.
    MembruCerere faraRand;
    faraRand.CNP = T("1990101460022");
    s.MatriceMembri->push_back(faraRand);
    l.Selectat = 0;
    dupa = EliminaMembru(l, s, Motiv(std::nullopt), m);
    ASSERT_TRUE(dupa);
    EXPECT_EQ(dupa->NrMembrii, 1);
    EXPECT_EQ(m.Texte(Mesaje::Fel::Informatie), QStringList{dupa->Exceptie});
    (*s.MatriceMembri)[0].CNP = T("2000101460011");
    EXPECT_FALSE(ListaInPas(l, s));
    EXPECT_THROW(StergeElement(s, 5), Eroare);
}

} // namespace
