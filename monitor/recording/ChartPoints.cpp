// SPDX-License-Identifier: MIT
// Pairs the values of two series, or of one series with its predecessor or with time.

#include "monitor/recording/ChartPoints.h"

#include <cmath>
#include <optional>
#include <tuple>

namespace kavlix::recording {
namespace {

Time IntervalOf(const Recording& recording, std::size_t series) {
    const std::size_t file = recording.series[series].file;
    return file < recording.files.size() ? recording.files[file].interval : 0;
}

/// For every row, its own value of the series or, without one, the value nearest in time, the earlier of two
/// equally near ones; NaN when no value is less than one median interval of the series' file away. One pass
/// forwards and one backwards.
std::vector<double> ValuesBeside(const Recording& recording, std::size_t series) {
    const std::vector<double>& values = recording.series[series].values;
    const std::size_t count = values.size();
    std::vector<double> beside(count, kNoValue);
    std::vector<Time> distances(count, IntervalOf(recording, series));
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
    const Time longestStep = LongestStep(IntervalOf(recording, leader));
    const TimeUnit unit = times.empty() ? TimeUnit{} : TimeUnitOf(times.back() - times.front());

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
        if (choice.kind == ChartX::Time)
            x = static_cast<double>(times[row] - times.front()) / static_cast<double>(unit.length);
        else if (choice.kind == ChartX::Predecessor)
            x = follows ? leading[*last] : kNoValue;
        points.push_back({row, x, others[row]});
        last = row;
    }
    return points;
}

ChartChoice DefaultChartChoice(const std::vector<std::size_t>& series) {
    if (series.size() >= 2)
        return {ChartX::Series, series[0], series[1]};
    return {ChartX::Predecessor, 0, series.empty() ? 0 : series[0]};
}

TimeUnit TimeUnitOf(Time span) {
    constexpr int enough = 2; // least number of units in a span
    if (span < enough * kMicrosPerMinute)
        return {kMicrosPerSecond, "seconds"};
    if (span < enough * kMicrosPerHour)
        return {kMicrosPerMinute, "minutes"};
    if (span < enough * kMicrosPerDay)
        return {kMicrosPerHour, "hours"};
    return {kMicrosPerDay, "days"};
}

} // namespace kavlix::recording
