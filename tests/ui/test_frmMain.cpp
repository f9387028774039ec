#include "shell/frmMain.h"
#include "support/BazaTest.h"

#include <QLabel>

namespace {

class FereastraPrincipala : public TestBaza {};

TEST_P(FereastraPrincipala, ArataBazaDeschisa) {
    BazaDate& db = BazaNoua();
    frmMain f(db);
    f.show();
    auto* lbl = f.findChild<QLabel*>(QStringLiteral("lblBaza"));
    ASSERT_NE(lbl, nullptr);
    EXPECT_TRUE(lbl->text().contains(db.locatie().Descriere())) << lbl->text().toStdString();
    EXPECT_TRUE(lbl->text().contains(db.dialect().NumeEngine()));
    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (!capturi.isEmpty())
        f.grab().save(QStringLiteral("%1/frmMain_%2.png").arg(capturi, db.dialect().NumeEngine()));
}

PE_AMBELE_MOTOARE(FereastraPrincipala);

} // namespace
