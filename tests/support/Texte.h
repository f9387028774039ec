#pragma once

#include "base/Bani.h"

#include <QString>
#include <string>

// Short spellings for the literals of the tests: UTF-8 source text, an amount written as text, a
// QString where gtest prints std::string.
inline QString T(const char* s) {
    return QString::fromUtf8(s);
}

inline Bani B(const char* s) {
    return *Bani::DinText(T(s));
}

inline std::string S(const QString& q) {
    return q.toStdString();
}
