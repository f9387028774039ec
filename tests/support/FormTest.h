#pragma once

#include "store/Dialect.h"

#include <QComboBox>
#include <QDir>
#include <QWidget>
#include <gtest/gtest.h>

// A control of a form by its object name; a missing one fails the test.
template <class W> W* Gaseste(QWidget& f, const QString& nume) {
    W* w = f.findChild<W*>(nume);
    EXPECT_NE(w, nullptr) << nume.toStdString();
    return w;
}

// The item with that text, chosen as the clerk chooses it.
inline void Alege(QComboBox* c, const QString& text) {
    const int i = c->findText(text);
    ASSERT_GE(i, 0) << text.toStdString();
    c->setCurrentIndex(i);
}

// A picture of the form for the folder that FEROLANTA_CAPTURI names, taken on one engine only.
inline void Captura(QWidget& f, Motor motor, const char* fisier) {
    const QString capturi = qEnvironmentVariable("FEROLANTA_CAPTURI");
    if (capturi.isEmpty() || motor != Motor::SQLite) return;
    f.show();
    EXPECT_TRUE(f.grab().save(QDir(capturi).filePath(QLatin1String(fisier))));
}
