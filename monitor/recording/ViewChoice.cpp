#include "monitor/recording/ViewChoice.h"

#include "monitor/recording/NearestPoint.h"

#include <algorithm>
#include <cstdlib>

namespace kavlix::recording {
namespace {

constexpr int kUnitsPerPixel = 30;

// The control labels at most one time in so many logical units.
constexpr int kLineLabelDistance = 800;
constexpr int kBarLabelDistance = 1000;

/// So many samples of other files stand between two of one file, at most, for them to count as neighbours.
constexpr std::size_t kBesideSamples = 1000;

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
    // Every sample has a slot of one bar for each series and one bar's width of gap.
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
        left.Take(0.0); // the length of a bar says something only when it begins at 0
    choice.y = ChooseValueScale(left, request.valueTicks);
    choice.y2 = right.any ? ChooseValueScale(right, request.valueTicks) : choice.y;
    const int labelDistance = request.style == ViewStyle::Bar ? kBarLabelDistance : kLineLabelDistance;
    choice.labels = ChooseTimeLabels(recording.times, request.plotWidth / labelDistance);
    choice.timeTitle = TimeAxisTitle(recording.times, choice.labels, recording.Zoned());
    return choice;
}

std::size_t SampleBeside(const Recording& recording, const VisibleRange& visible, std::size_t series,
                         std::size_t sample) {
    const std::size_t file = recording.series[series].file;
    if (recording.files.size() < 2 || file >= recording.files.size())
        return sample;
    const double* const values = recording.series[series].values.data() + visible.first;
    const auto beside =
        NearestValue(values, visible.last - visible.first + 1, sample - visible.first, kBesideSamples);
    if (!beside)
        return sample;
    const std::size_t found = visible.first + *beside;
    const Time away = std::abs(recording.times[found] - recording.times[sample]);
    return away < recording.files[file].interval ? found : sample;
}

} // namespace kavlix::recording
