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

} // namespace kavlix
