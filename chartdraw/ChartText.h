// SPDX-License-Identifier: MIT
// Sizes and texts that layout and painting of a chart share.
#pragma once

#include <afxwin.h>

#include <string>

#include "gdi/Text.h"

namespace kavlix {

constexpr int kTickLength = 5;       ///< pixels
constexpr int kTickLabelGap = 3;     ///< pixels between a tick and its label
constexpr double kChartMargin = 0.6; ///< text heights between the chart's edge and its content

/// Width in pixels of a text in the font that is selected into `dc`.
inline int TextWidth(CDC& dc, const std::string& text) {
    return static_cast<int>(MeasureText(dc, CString(text.c_str())).cx);
}

} // namespace kavlix
