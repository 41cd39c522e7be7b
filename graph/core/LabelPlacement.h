#pragma once

#include <cstdint>
#include <vector>

#include "graph/core/PlanePoint.h"

namespace kavlix {

/// A text's size before it is turned.
struct LabelSize {
    double width = 0;
    double height = 0;
};

/// Where a turned label goes: the text's own upper left corner, and the upright box around all of it.
struct LabelPlace {
    PlanePoint origin;
    PlaneRect box;
};

/// The upright box around a text that is turned by `angle` degrees counter-clockwise; its own upper left
/// corner is at `origin`.
PlaneRect BoxOf(LabelSize size, int angle, PlanePoint origin);

/// `angle` in whole degrees brought to 0..359.
int NormalAngle(int angle);

/// A label below an axis, turned by `angle` degrees counter-clockwise, for the tick at `x`; nothing of it
/// lies above `top`. A level one, or one on its head, stands with its middle under the tick; a rising one
/// (1 to 179 degrees) ends there, and a falling one (181 to 359) begins there, so that no angle brings it
/// into the plot.
LabelPlace PlaceBelow(LabelSize size, int angle, double x, double top);

/// A label left of an axis: nothing of it lies right of `right`, and its middle is at `y`.
LabelPlace PlaceLeft(LabelSize size, int angle, double right, double y);

/// The longest text, turned by `angle`, that needs no more than `across` to the side and `down` in height.
double LongestText(double height, int angle, double across, double down);

/// How labels along an axis keep clear of each other.
struct LabelSpread {
    std::int64_t every = 1; ///< one label in so many is drawn
    int rows = 1;           ///< neighbours stand alternately in so many rows
};

/// For labels of at most `size`, turned by `angle`, whose ticks stand `distance` apart along a level axis.
/// `gap` is what must stay free between two. Level labels may take up to `rows` rows.
LabelSpread SpreadBelow(LabelSize size, int angle, double distance, double gap, int rows);

/// The same along an upright axis, in one column.
LabelSpread SpreadLeft(LabelSize size, int angle, double distance, double gap);

/// Moves the middles of labels of height `height`, which come in ascending order, as little as it takes to
/// keep them from overlapping, within [top, bottom]. False when there is no room for all.
bool SpreadMiddles(std::vector<double>& middles, double height, double top, double bottom);

} // namespace kavlix
