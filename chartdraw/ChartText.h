#pragma once

#include <afxwin.h>

#include <string>

#include "gdi/Text.h"

namespace kavlix {

// Pixels.
constexpr int kTickLength = 5;
constexpr int kTickLabelGap = 3; ///< between a tick and its label

/// Width of a text in the font that is selected.
inline int TextWidth(CDC& dc, const std::string& text) {
    return static_cast<int>(MeasureText(dc, text.c_str(), static_cast<int>(text.size())).cx);
}

/// Height of a line in the font that is selected.
inline int TextHeight(CDC& dc) {
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight > 0 ? static_cast<int>(metrics.tmHeight) : 1;
}

/// As much of a text as finds `room` in the font that is selected, with dots behind it where something is
/// left out; nothing where not even one character finds room beside them. No character is cut.
inline CString Shortened(CDC& dc, const CString& text, int room) {
    if (MeasureText(dc, text).cx <= room)
        return text;
    const auto startOf = [&](int bytes) {
        return text.Left(WholeCharacters(text, text.GetLength(), bytes)) + "...";
    };
    int fits = 0;
    for (int tooMany = text.GetLength(); tooMany - fits > 1;) {
        const int middle = fits + (tooMany - fits) / 2;
        (MeasureText(dc, startOf(middle)).cx <= room ? fits : tooMany) = middle;
    }
    return WholeCharacters(text, text.GetLength(), fits) > 0 ? startOf(fits) : CString();
}

} // namespace kavlix
