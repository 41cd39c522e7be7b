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

/// What a view is chosen for.
struct ViewRequest {
    ViewStyle style = ViewStyle::Line;
    int valueTicks = 5;    ///< number of ticks of the value axis
    int plotWidth = 15000; ///< logical units
};

/// Settings for the graph control that suit a recording.
struct ViewChoice {
    ValueScale y;  ///< for all visible values, and 0 with bars; in the two-axis style for series 0
    ValueScale y2; ///< in the two-axis style for series 1, on the right; otherwise equal to `y`
    TimeLabelStyle labels;
    std::string timeTitle; ///< for SetXLabel
    VisibleRange visible;  ///< all samples; with bars the last ones whose bars are at least a pixel wide
};

/// Chooses the settings. An empty recording gets ranges from 0 to 1.
ViewChoice ChooseView(const Recording& recording, const ViewRequest& request);

/// The number of samples whose bars are at least a pixel wide in a plot of this width; at least 1.
std::size_t BarCapacity(int plotWidth, std::size_t seriesCount);

} // namespace kavlix::recording
