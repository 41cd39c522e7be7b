#pragma once

#include "monitor/recording/Recording.h"
#include "monitor/recording/TimeLabels.h"
#include "monitor/recording/ValueScale.h"

#include <cstddef>
#include <string>

namespace kavlix::recording {

/// The picture's style; the numbers are the graph control's.
enum class ViewStyle { Line = 0, Bar = 1, TwoAxis = 2 };

/// The samples shown, by index: first to last, both included.
struct VisibleRange {
    std::size_t first = 0;
    std::size_t last = 0;
};

/// What a view is chosen for.
struct ViewRequest {
    ViewStyle style = ViewStyle::Line;
    int valueTicks = 5;    ///< ticks of the Y axis: the plot's height in logical units / 500
    int plotWidth = 15000; ///< the plot's width in logical units (1/30 pixel)
};

/// Settings for the graph control that fit a recording.
struct ViewChoice {
    ValueScale y;  ///< all visible values (bars: and 0); two-axis style: of series 0
    ValueScale y2; ///< two-axis style: of series 1, for the right axis; else as y
    TimeLabelStyle labels;
    std::string timeTitle; ///< for SetXLabel
    VisibleRange visible;  ///< all samples; in the bar style the last ones that still have bars a pixel wide
};

/// Chooses for a recording; data are never altered. An empty one gets ranges from 0 to 1.
ViewChoice ChooseView(const Recording& recording, const ViewRequest& request);

/// The sample whose value is told of a series at a sample of the recording. Files that were joined have their
/// samples at different times: what is told then is the sample of the visible range beside that one, if it is
/// no farther than its file's rows are apart; else the sample itself, whose value may be NaN.
std::size_t SampleBeside(const Recording& recording, const VisibleRange& visible, std::size_t series,
                         std::size_t sample);

/// How many samples still get bars of a pixel (30 logical units) in a plot of this width: at least 1.
std::size_t BarCapacity(int plotWidth, std::size_t seriesCount);

} // namespace kavlix::recording
