#pragma once

#include <QString>
#include <optional>

// The two income thresholds of PRAGURI_VENIT as the scale editor writes them: the lower, "|", the
// upper, each a number with a point.

// The text to store for the two boxes: each must read as an amount above zero; commas become points.
// None when refused. Their order is not checked: the office may keep them either way.
std::optional<QString> TextPraguri(const QString& inferior, const QString& superior);

// Whether a text from elsewhere (a download, say) is one the editor could have written, so that
// storing it never leaves PRAGURI_VENIT unreadable.
bool PraguriValide(const QString& text);
