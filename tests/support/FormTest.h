#pragma once

#include <QWidget>
#include <gtest/gtest.h>

// A control of a form by its object name; a missing one fails the test.
template <class W> W* Gaseste(QWidget& f, const QString& nume) {
    W* w = f.findChild<W*>(nume);
    EXPECT_NE(w, nullptr) << nume.toStdString();
    return w;
}
