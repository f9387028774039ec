#include "ui/UiFunctii.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Acts on the folder dialog as soon as it is the modal window, as the clerk would.
void CandSeDeschide(std::function<void(QFileDialog&)> fa) {
    auto* t = new QTimer;
    QObject::connect(t, &QTimer::timeout, [t, fa] {
        if (auto* d = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            t->stop();
            t->deleteLater();
            fa(*d);
        }
    });
    t->start(10);
}

TEST(UiFunctiiRasfoire, AnulareaDaTextGol) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QString titlu, director;
    CandSeDeschide([&](QFileDialog& d) {
        titlu = d.windowTitle();
        director = d.directory().absolutePath();
        d.reject();
    });
    EXPECT_EQ(RasfoireFolder(QStringLiteral("Alegeti folderul"), dir.path(), nullptr), QString());
    EXPECT_EQ(titlu, QStringLiteral("Alegeti folderul"));
    EXPECT_EQ(director, QDir(dir.path()).absolutePath());
}

TEST(UiFunctiiFont, FamiliileInstalateFaraMajuscule) {
    const QStringList familii = QFontDatabase::families();
    if (familii.isEmpty()) GTEST_SKIP() << "niciun font instalat";
    const QString f = familii.front();
    EXPECT_TRUE(FontInstalat(f));
    EXPECT_TRUE(FontInstalat(f.toUpper()));
    EXPECT_TRUE(FontInstalat(f.toLower()));
    EXPECT_FALSE(FontInstalat(f + QStringLiteral(" Inexistent 7f3a")));
    EXPECT_FALSE(FontInstalat(QString()));
}

} // namespace
