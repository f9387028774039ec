#pragma once

#include "base/Ceas.h"
#include "base/Setari.h"
#include "support/DosarTest.h"
#include "support/FormTest.h"
#include "support/SqlTest.h"

#include <QAbstractButton>
#include <QDialog>
#include <QSqlRecord>
#include <QTest>

// The forms' shared ground: a new database holding the whole case file of DosarComplet, saved as the
// request editor saves it and read back as the editor opens it; today is its filing day and the
// working month its own.
class FormaPeDosar : public TestBaza {
protected:
    static inline const QDate Azi{2014, 11, 14};

    void SetUp() override {
        TestBaza::SetUp();
        if (IsSkipped()) return;
        BazaNoua();
        Ceas::SeteazaAzi(Azi);
        setari.LunaSetata = LunaDosar;
        setari.AnSetat = AnDosar;
        setari.CaleBD = Locatie().caleBD;
        const Dosar d = DosarComplet(Bd());
        OptiuniSalvare o = OptiuniDosar();
        o.CaleBD = Locatie().caleBD;
        const RezultatSalvare r = SalveazaCerere(Bd(), d.date, d.stare, d.iesiti, o, mesaje);
        ASSERT_EQ(r.stare, RezultatSalvare::Stare::Salvata);
        cerereID = r.CerereID;
        dosar = IncarcaCerere(Bd(), cerereID, LunaDosar, AnDosar, mesaje);
        ASSERT_TRUE(dosar.Gasita);
        mesaje.mesaje.clear();
    }
    void TearDown() override {
        Ceas::SeteazaAzi(QDate());
        TestBaza::TearDown();
    }

    // Every row of a table as text, sorted: equal before and after means nothing was written.
    QStringList Tabela(const char* tabela) {
        Interogare q(Bd(), QStringLiteral("SELECT * FROM %1").arg(QLatin1String(tabela)));
        q.Executa();
        QStringList r;
        while (q.Urmator()) {
            QStringList v;
            for (int i = 0; i < q.query().record().count(); ++i)
                v << (q.Valoare(i).isNull() ? QStringLiteral("NULL") : q.Valoare(i).toString());
            r << v.join(QLatin1Char('|'));
        }
        r.sort();
        return r;
    }

    // Whether the focus is on the control named, or inside it (a date box, an editable list).
    static bool FocusPe(QWidget& f, const char* control) {
        const QWidget* w = f.focusWidget();
        while (w && w->objectName() != QLatin1String(control))
            w = w->parentWidget();
        return w != nullptr;
    }

    // Presses OK on a dialog that must refuse: one message, the dialog still open, and the focus on
    // the control named.
    void Refuzat(QDialog& f, QAbstractButton* ok, const char* control) {
        SCOPED_TRACE(control);
        mesaje.mesaje.clear();
        ok->click();
        EXPECT_EQ(mesaje.mesaje.size(), 1u) << mesaje.Texte().join(u'|').toStdString();
        EXPECT_TRUE(f.isVisible());
        EXPECT_TRUE(FocusPe(f, control)) << (f.focusWidget() ? S(f.focusWidget()->objectName()) : "no focus");
    }

    // Shown and active, so that focus moves reach the controls as the clerk's do.
    static void Activa(QWidget& f) {
        f.show();
        f.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&f));
    }

    Setari setari;
    qint64 cerereID = 0;
    CerereIncarcata dosar;
};
