// SPDX-License-Identifier: MIT
// Where turned labels stand beside an axis, and how many of them have room.
#pragma once

#include <cstdint>
#include <vector>

#include "graph/core/PlanePoint.h"

namespace kavlix {

/// The size of a text before the text is turned.
struct LabelSize {
    double width = 0;
    double height = 0;
};

/// The place of a turned label: the upper left corner of the text itself, and the upright box around
/// the turned text.
struct LabelPlace {
    PlanePoint origin;
    PlaneRect box;
};

/// The upright box around a text that is turned by `angle` degrees counter-clockwise around its own upper
/// left corner, which is at `origin`.
PlaneRect BoxOf(LabelSize size, int angle, PlanePoint origin);

/// The same direction as `angle`, from 0 to 359 degrees.
int NormalAngle(int angle);

/// Places a label below an axis, turned by `angle` degrees counter-clockwise, for the tick at `x`. The top of
/// the label's box is at `top`. At 0 and 180 degrees the middle of the text is below the tick. At other
/// angles the higher end of the text is below the tick: the end of the text at 1 to 179 degrees, its
/// beginning at 181 to 359 degrees.
LabelPlace PlaceBelow(LabelSize size, int angle, double x, double top);

/// Places a label left of an axis: the right edge of its box is at `right`, the middle of the box at `y`.
LabelPlace PlaceLeft(LabelSize size, int angle, double right, double y);

/// The greatest width of a text of this `height` such that the upright box around the text, turned by `angle`
/// degrees, is at most `across` wide and `down` high. 0 when no text fits.
double LongestText(double height, int angle, double across, double down);

/// Which labels along an axis are drawn, so that none overlap.
struct LabelSpread {
    std::int64_t every = 1; ///< 1: all labels are drawn; n: every n-th label
    int rows = 1;           ///< number of rows; if 2 or more, neighbouring labels stand in different rows
};

/// The spread of labels of at most `size`, turned by `angle`, along a horizontal axis. The ticks are
/// `distance` apart, and at least `gap` stays free between two labels of a row. Labels at 0 and 180 degrees
/// take up to `rows` rows if all of them fit in these rows. In all other cases there is one row, and labels
/// that would overlap are left out.
LabelSpread SpreadBelow(LabelSize size, int angle, double distance, double gap, int rows);

/// The spread of labels along a vertical axis, with parameters as in SpreadBelow.
LabelSpread SpreadLeft(LabelSize size, int angle, double distance, double gap);

/// Moves labels up or down until none overlap and all lie within [top, bottom]. `middles` holds the y of the
/// labels' middles, ascending; all labels are `height` high. Keeps the order. False, without any change, when
/// there is no room for all.
bool SpreadMiddles(std::vector<double>& middles, double height, double top, double bottom);

} // namespace kavlix
