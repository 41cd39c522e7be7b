#include "monitor/recording/Pairing.h"

#include <cmath>
#include <limits>
#include <optional>
#include <tuple>

namespace kavlix::recording {

namespace {

constexpr double kNothing = std::numeric_limits<double>::quiet_NaN();
constexpr double kLongestStep = 1.5; // intervals of a file, between rows that follow one another

Time IntervalOf(const Recording& recording, std::size_t series) {
    const std::size_t file = recording.series[series].file;
    return file < recording.files.size() ? recording.files[file].interval : 0;
}

/// For every row the value of the series that is nearest in time; NaN when none is nearer than its rows are
/// apart.
std::vector<double> ValuesBeside(const Recording& recording, std::size_t series) {
    const std::vector<double>& values = recording.series[series].values;
    const std::size_t count = values.size();
    std::vector<double> beside(count, kNothing);
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

bool PairChoice::operator==(const PairChoice& other) const {
    return std::tie(kind, x, y) == std::tie(other.kind, other.x, other.y);
}

std::vector<PairedPoint> PairSeries(const Recording& recording, const PairChoice& choice) {
    const bool against = choice.kind == PairKind::Series;
    const bool joined = recording.files.size() > 1;
    const std::size_t leader = against ? choice.x : choice.y;
    const std::vector<double>& leading = recording.series[leader].values;
    const std::vector<double> beside =
        joined && against ? ValuesBeside(recording, choice.y) : std::vector<double>();
    const std::vector<double>& others = joined && against ? beside : recording.series[choice.y].values;
    const std::vector<Time>& times = recording.times;
    const auto longestStep = kLongestStep * static_cast<double>(IntervalOf(recording, leader));
    const TimeUnit unit = times.empty() ? TimeUnit{} : TimeUnitOf(times.back() - times.front());

    std::vector<PairedPoint> points;
    std::optional<std::size_t> last; // the last row with a value of the leading series
    for (std::size_t row = 0; row < times.size(); ++row) {
        if (!std::isfinite(leading[row])) {
            if (!joined)
                points.push_back({row, kNothing, kNothing});
            continue;
        }
        const bool follows = last && (joined ? static_cast<double>(times[row] - times[*last]) <= longestStep
                                             : *last + 1 == row);
        if (joined && last && !follows)
            points.push_back({row, kNothing, kNothing});
        double x = leading[row];
        if (choice.kind == PairKind::Time)
            x = static_cast<double>(times[row] - times.front()) / static_cast<double>(unit.length);
        else if (choice.kind == PairKind::Predecessor)
            x = follows ? leading[*last] : kNothing;
        points.push_back({row, x, others[row]});
        last = row;
    }
    return points;
}

PairChoice DefaultPair(const std::vector<std::size_t>& series) {
    if (series.size() >= 2)
        return {PairKind::Series, series[0], series[1]};
    return {PairKind::Predecessor, 0, series.empty() ? 0 : series[0]};
}

TimeUnit TimeUnitOf(Time span) {
    constexpr int enough = 2; // of a unit
    constexpr Time hour = 60 * kMicrosPerMinute;
    if (span < enough * kMicrosPerMinute)
        return {kMicrosPerSecond, "seconds"};
    if (span < enough * hour)
        return {kMicrosPerMinute, "minutes"};
    if (span < enough * kMicrosPerDay)
        return {hour, "hours"};
    return {kMicrosPerDay, "days"};
}

} // namespace kavlix::recording
