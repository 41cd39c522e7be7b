// SPDX-License-Identifier: MIT
// Chooses ranges, labels and the visible part for each style of the graph page.

#include "monitor/recording/ViewChoice.h"

#include <algorithm>

#include "monitor/recording/GraphUnits.h"

namespace kavlix::recording {
namespace {

ValueSpan VisibleSpan(const Series& series, const VisibleRange& visible) {
    return SpanOf(series.values, visible.first, visible.last - visible.first + 1);
}

VisibleRange ChooseVisible(const Recording& recording, const ViewRequest& request) {
    VisibleRange visible;
    visible.last = recording.times.empty() ? 0 : recording.times.size() - 1;
    if (request.style == ViewStyle::Bar) {
        const std::size_t capacity = BarCapacity(request.plotWidth, recording.series.size());
        visible.first = recording.times.size() > capacity ? recording.times.size() - capacity : 0;
    }
    return visible;
}

} // namespace

std::size_t BarCapacity(int plotWidth, std::size_t seriesCount) {
    // A sample takes one bar for each series and a gap as wide as one bar.
    const std::size_t slot = kUnitsPerPixel * (seriesCount + 1);
    return std::max<std::size_t>(1, static_cast<std::size_t>(std::max(plotWidth, 0)) / slot);
}

ViewChoice ChooseView(const Recording& recording, const ViewRequest& request) {
    ViewChoice choice;
    choice.visible = ChooseVisible(recording, request);
    ValueSpan left;
    ValueSpan right;
    for (std::size_t i = 0; i < recording.series.size(); ++i) {
        const bool twoAxes = request.style == ViewStyle::TwoAxis;
        if (twoAxes && i > 1)
            break; // the control draws two series only
        (twoAxes && i == 1 ? right : left).Take(VisibleSpan(recording.series[i], choice.visible));
    }
    if (request.style == ViewStyle::Bar)
        left.Take(0.0); // lengths of bars can be compared only when all bars begin at 0
    choice.y = ChooseValueScale(left, request.valueTicks);
    choice.y2 = right.any ? ChooseValueScale(right, request.valueTicks) : choice.y;
    const int labelDistance = request.style == ViewStyle::Bar ? kBarLabelDistance : kLineLabelDistance;
    choice.labels = ChooseTimeLabels(recording.times, request.plotWidth / labelDistance);
    choice.timeTitle = TimeAxisTitle(recording.times, choice.labels, recording.Zoned());
    return choice;
}

} // namespace kavlix::recording
