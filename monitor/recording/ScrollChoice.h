// SPDX-License-Identifier: MIT
// What the scroll page chooses for a recording: which series share a graph, and the width of the view.
#pragma once

#include <cstddef>
#include <vector>

#include "monitor/recording/Recording.h"

namespace kavlix::recording {

/// Divides series between an upper and a lower graph. The magnitude of a series is the larger absolute value
/// of its minimum and maximum. A series goes to the lower graph if its magnitude is more than 4 times, or
/// less than a quarter of, that of the first series. If no series does, all but the first go to the lower
/// graph. The result says for each series whether it is in the lower graph.
std::vector<bool> DivideByMagnitude(const std::vector<ValueSpan>& spans);

/// The widths of the view that a person can choose, in seconds.
inline constexpr int kViewRanges[] = {60, 300, 900, 3600, 21'600, 86'400, 604'800};

/// The best width for a recording of this length, as an index into kViewRanges. This is the shortest width
/// that covers the recording; but if the recording fills less than a third of that width, the next shorter
/// one, if any. If no width covers the recording: the longest width.
std::size_t ChooseViewRange(Time length);

} // namespace kavlix::recording
