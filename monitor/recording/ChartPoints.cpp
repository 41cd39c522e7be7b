// SPDX-License-Identifier: MIT
// Pairs the values of two series, or of one series with its predecessor or with time.

#include "monitor/recording/ChartPoints.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <tuple>

namespace kavlix::recording {
namespace {

/// For every row, its own value of the series or, without one, the value nearest in time, the earlier of two
/// equally near ones; NaN when no value is less than one median interval of the series' file away. One pass
/// forwards and one backwards.
std::vector<double> ValuesBeside(const Recording& recording, std::size_t series) {
    const std::vector<double>& values = recording.series[series].values;
    const std::size_t count = values.size();
    std::vector<double> beside(count, kNoValue);
    std::vector<Time> distances(count, recording.IntervalOf(series));
    const auto pass = [&](auto rowOf) {
        std::optional<std::size_t> last;
        for (std::size_t i = 0; i < count; ++i) {
            const std::size_t row = rowOf(i);
            if (std::isfinite(values[row]))
                last = row;
            if (!last)
                continue;
            const Time distance = std::abs(recording.times[row] - recording.times[*last]);
            if (row == *last || distance < distances[row]) {
                beside[row] = values[*last];
                distances[row] = distance;
            }
        }
    };
    pass([](std::size_t i) { return i; });
    pass([count](std::size_t i) { return count - 1 - i; });
    return beside;
}

} // namespace

bool ChartChoice::operator==(const ChartChoice& other) const {
    return std::tie(kind, x, y) == std::tie(other.kind, other.x, other.y);
}

std::vector<ChartPoint> ChartPointsOf(const Recording& recording, const ChartChoice& choice) {
    const bool against = choice.kind == ChartX::Series;
    const bool joined = recording.files.size() > 1;
    const std::size_t leader = against ? choice.x : choice.y;
    const std::vector<double>& leading = recording.series[leader].values;
    const std::vector<double> beside =
        joined && against ? ValuesBeside(recording, choice.y) : std::vector<double>();
    const std::vector<double>& others = joined && against ? beside : recording.series[choice.y].values;
    const std::vector<Time>& times = recording.times;
    const Time longestStep = LongestStep(recording.IntervalOf(leader));

    std::vector<ChartPoint> points;
    std::optional<std::size_t> last; // the last row with a value of the leading series
    for (std::size_t row = 0; row < times.size(); ++row) {
        if (!std::isfinite(leading[row])) {
            if (!joined)
                points.push_back({row, kNoValue, kNoValue});
            continue;
        }
        const bool follows = last && (joined ? times[row] - times[*last] <= longestStep : *last + 1 == row);
        if (joined && last && !follows)
            points.push_back({row, kNoValue, kNoValue});
        double x = leading[row];
        if (choice.kind == ChartX::Predecessor)
            x = follows ? leading[*last] : kNoValue;
        points.push_back({row, x, others[row]});
        last = row;
    }
    return points;
}

TimedSamples SamplesOverTime(const Recording& recording, std::size_t series, Time origin,
                             std::size_t firstRow) {
    TimedSamples samples;
    for (std::size_t row = firstRow; row < recording.times.size(); ++row) {
        if (!recording.HasRow(series, row))
            continue;
        samples.x.push_back(SecondsFrom(origin, recording.times[row]));
        samples.y.push_back(recording.series[series].values[row]);
    }
    return samples;
}

double SecondsFrom(Time origin, Time time) {
    return static_cast<double>(time - origin) / static_cast<double>(kMicrosPerSecond);
}

std::size_t RowNear(const std::vector<Time>& times, Time origin, double seconds) {
    const auto isBefore = [origin](Time time, double wanted) { return SecondsFrom(origin, time) < wanted; };
    auto found = std::lower_bound(times.begin(), times.end(), seconds, isBefore);
    if (found == times.end() || (found != times.begin() && seconds - SecondsFrom(origin, *(found - 1)) <=
                                                               SecondsFrom(origin, *found) - seconds))
        found = std::lower_bound(times.begin(), times.end(), *(found - 1));
    return static_cast<std::size_t>(found - times.begin());
}

VisibleRange RowsBetween(const std::vector<Time>& times, Time origin, double from, double to) {
    const auto isBefore = [origin](Time time, double wanted) { return SecondsFrom(origin, time) < wanted; };
    const auto isBehind = [origin](double wanted, Time time) { return wanted < SecondsFrom(origin, time); };
    const auto first = std::lower_bound(times.begin(), times.end(), from, isBefore);
    const auto end = std::upper_bound(first, times.end(), to, isBehind);
    if (first == end) {
        const std::size_t near = RowNear(times, origin, from);
        return {near, near};
    }
    return {static_cast<std::size_t>(first - times.begin()),
            static_cast<std::size_t>(end - times.begin()) - 1};
}

} // namespace kavlix::recording
