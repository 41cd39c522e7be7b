// SPDX-License-Identifier: MIT
// The choice between the arrangements of a piece's texts, from the most complete one down.
#include "piechart/core/PieTextArrangement.h"

#include <algorithm>

namespace kavlix {
namespace {

constexpr int kWordGap = 5; // pixels between label and percentage in one line

} // namespace

PieTextArrangement ArrangeTexts(const PieText& text, int boxWidth, int maxLines) {
    const int width = boxWidth - 2 * kPieTextPadding;
    PieTextArrangement result;
    result.percent = text.percent > 0 && text.percent <= width;
    result.labelWidth = text.label;
    result.width = std::max(text.label, result.percent ? text.percent : 0);
    const int both = text.label + kWordGap + text.percent;
    if (text.label == 0) {
        result.lines = result.percent;
    } else if (result.percent && both <= width) {
        result.sameLine = true;
        result.width = both;
        result.lines = 1;
    } else if (text.label <= width && (!result.percent || maxLines >= 2)) {
        result.lines = 1 + result.percent;
    } else if (text.broken > 0 && text.broken <= width && maxLines >= 2 + result.percent) {
        result.broken = true;
        result.labelWidth = text.broken;
        result.width = std::max(text.broken, result.percent ? text.percent : 0);
        result.lines = 2 + result.percent;
    } else if (width >= text.narrowest) {
        // The percentage goes into a second line if there may be one. Otherwise it stands beside the
        // abbreviated label if the label stays wide enough to be read.
        const int beside = width - kWordGap - text.percent;
        result.labelWidth = std::min(text.label, width);
        result.width = result.labelWidth;
        result.lines = 1;
        if (result.percent && maxLines >= 2) {
            result.lines = 2;
            result.width = std::max(result.width, text.percent);
        } else if (result.percent && beside >= text.narrowest) {
            result.sameLine = true;
            result.labelWidth = beside;
            result.width = width;
        } else {
            result.percent = false;
        }
    } else if (result.percent) {
        result.labelWidth = 0;
        result.width = text.percent;
        result.lines = 1;
    }
    return result;
}

} // namespace kavlix
