// SPDX-License-Identifier: MIT
// What the graph page chooses for a recording: ranges, labels, and the visible part.
#pragma once

#include <cstddef>
#include <string>

#include "monitor/recording/Recording.h"
#include "monitor/recording/TimeLabels.h"
#include "monitor/recording/ValueScale.h"

namespace kavlix::recording {

/// The style of the picture. The numbers are those of CGraphCtrl::GraphStyle.
enum class ViewStyle { Line = 0, Bar = 1, TwoAxis = 2 };

/// What ChooseView needs to know about the graph.
struct ViewRequest {
    ViewStyle style = ViewStyle::Line;
    int valueTicks = 5;    ///< number of ticks of the value axis
    int plotWidth = 15000; ///< logical units
};

/// Settings for the graph control that suit a recording.
struct ViewChoice {
    ValueScale y; ///< left axis: covers all values in `visible`, and 0 with bars; with two axes only series 0
    /// Right axis: in the two-axis style for series 1, if it has values in `visible`; otherwise equal to `y`.
    ValueScale y2;
    TimeLabelStyle labels;
    std::string timeTitle; ///< for SetXLabel
    VisibleRange visible;  ///< all samples; with bars, as many of the last ones as BarCapacity gives
};

/// Chooses the settings. Ranges of an empty recording begin at 0 and end at 1 or a little above.
ViewChoice ChooseView(const Recording& recording, const ViewRequest& request);

/// The most samples whose bars are at least a pixel wide in a plot of this width (logical units); at least 1.
std::size_t BarCapacity(int plotWidth, std::size_t seriesCount);

} // namespace kavlix::recording
