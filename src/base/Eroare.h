#pragma once

#include <QString>
#include <stdexcept>

// The one exception type of the core: a form or the command-line tool catches it at its edge
// and shows the text (already in the clerk's language) through Mesaje or on stderr.
class Eroare : public std::runtime_error {
public:
    explicit Eroare(const QString& text) : std::runtime_error(text.toStdString()), text_(text) {}
    const QString& text() const { return text_; }

private:
    QString text_;
};
