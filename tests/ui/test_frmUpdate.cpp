#include "maintenance/frmUpdate.h"
#include "maintenance/frmUpdateLog.h"
#include "support/BazaTest.h"
#include "support/ServerHttpTest.h"
#include "support/Texte.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>

namespace {

Updater::Mediu MediuPe(const ServerHttpTest& server, const QString& folder) {
    Updater::Mediu m;
    m.baza = server.Adresa(T("/update-ferolanta/"));
    m.exe = T("ferolanta");
    m.folderProgram = m.folderExecutabil = folder;
    m.portabil = true;
    return m;
}

class FereastraActualizare : public TestBaza {};

// Started after a hand-over: says so, removes the helper's file, stores the server's thresholds
// and closes by itself.
TEST_P(FereastraActualizare, DupaPredareIaPragurileSiSeInchide) {
    BazaNoua();
    QTemporaryDir dir;
    ServerHttpTest server;
    const Updater::Mediu m = MediuPe(server, dir.path());
    for (const auto& [fisier, continut] : {std::pair{m.CaleVersiune(), "2.0"}, std::pair{m.CaleNou(), "nou"}}) {
        QFile f(fisier);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(continut);
    }
    server.Pune(T("/update-ferolanta/ferolanta/version.txt"), QByteArray("2.0\r\n"));
    server.Pune(T("/update-ferolanta/prag-asf.txt"), QByteArray("250|600"));

    frmUpdate f(Bd(), m, {T("--delete@new")}, mesaje);
    EXPECT_EQ(f.Label1->text(), T("Aplicatie actualizata."));
    EXPECT_FALSE(QFile::exists(m.CaleNou()));
    f.open();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !f.isVisible(); }, 5000));
    EXPECT_EQ(f.result(), QDialog::Accepted);
    EXPECT_FALSE(f.predare);
    EXPECT_EQ(Updater::PraguriCurente(Bd()), T("250|600"));
    EXPECT_TRUE(mesaje.mesaje.empty()) << S(mesaje.Texte().join(u'|'));
}

PE_AMBELE_MOTOARE(FereastraActualizare);

TEST(FereastraIstoric, ArataIstoriculServerului) {
    QTemporaryDir dir;
    ServerHttpTest server;
    const QByteArray istoric = "2.0: listele noi\r\n1.9: corecturi\r\n";
    server.Pune(T("/update-ferolanta/ferolanta/update-log.txt"), istoric);
    frmUpdateLog f(MediuPe(server, dir.path()));
    f.show();
    EXPECT_TRUE(QTest::qWaitFor([&] { return f.Txt->toPlainText().startsWith(T("2.0")); }, 5000));
    EXPECT_EQ(f.Txt->toPlainText().remove(u'\r').split(u'\n', Qt::SkipEmptyParts),
              (QStringList{T("2.0: listele noi"), T("1.9: corecturi")}));
}

} // namespace
