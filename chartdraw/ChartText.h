// Sizes and texts that layout and painting of a chart share.
#pragma once

#include <afxwin.h>

#include <string>

#include "gdi/Text.h"

namespace kavlix {

constexpr int kTickLength = 5;       ///< pixels
constexpr int kTickLabelGap = 3;     ///< pixels between a tick and its label
constexpr double kChartMargin = 0.6; ///< between the chart's edge and its content, in text heights

/// Width of a text in the font that is selected into `dc`.
inline int TextWidth(CDC& dc, const std::string& text) {
    return static_cast<int>(MeasureText(dc, text.c_str(), static_cast<int>(text.size())).cx);
}

/// Height of a line in the font that is selected into `dc`, at least 1.
inline int TextHeight(CDC& dc) {
    TEXTMETRIC metrics = {};
    dc.GetTextMetrics(&metrics);
    return metrics.tmHeight > 0 ? static_cast<int>(metrics.tmHeight) : 1;
}

/// The text shortened to `room` logical units in the font that is selected into `dc`: whole if it fits,
/// otherwise its beginning and dots. Empty when not even one character and the dots fit. No character is cut.
inline CString Shortened(CDC& dc, const CString& text, int room) {
    if (MeasureText(dc, text).cx <= room)
        return text;
    const auto withDots = [&](int bytes) {
        return text.Left(WholeCharacters(text, text.GetLength(), bytes)) + "...";
    };
    int fits = 0;
    for (int tooMany = text.GetLength(); tooMany - fits > 1;) {
        const int middle = fits + (tooMany - fits) / 2;
        (MeasureText(dc, withDots(middle)).cx <= room ? fits : tooMany) = middle;
    }
    return WholeCharacters(text, text.GetLength(), fits) > 0 ? withDots(fits) : CString();
}

} // namespace kavlix
