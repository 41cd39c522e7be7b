// SPDX-License-Identifier: MIT
// How the label and the percentage of one piece share a box of given width.
#pragma once

#include "piechart/core/PieLabels.h"

namespace kavlix {

/// The arrangement of a piece's texts in a box. Widths are pixels.
struct PieTextArrangement {
    int lines = 0;         ///< 0 when not even one text fits; the other members then mean nothing
    int width = 0;         ///< of the box without its padding
    int labelWidth = 0;    ///< 0 when the label is left out; narrower than the label if abbreviated or broken
    bool broken = false;   ///< the label takes two lines
    bool percent = false;  ///< the percentage is shown
    bool sameLine = false; ///< label and percentage stand in one line
};

/// Shows as much of `text` as fits into a box of `boxWidth` pixels and `maxLines` lines. In order of
/// preference: both texts in one line, the label in one line, the label broken in two, the label abbreviated,
/// the percentage alone.
PieTextArrangement ArrangeTexts(const PieText& text, int boxWidth, int maxLines);

} // namespace kavlix
