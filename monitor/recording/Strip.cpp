#include "monitor/recording/Strip.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace kavlix::recording {

namespace {

constexpr Time kMostGapRows = 1000;  // of one gap
constexpr std::size_t kUsualOf = 10; // what happens once in so many rows is not usual yet
constexpr double kSameMagnitude = 4; // series whose largest values differ by no more share a graph

Time WholeSecond(Time time) {
    const Time rest = time % kMicrosPerSecond;
    return time - (rest < 0 ? rest + kMicrosPerSecond : rest);
}

bool IsGap(Time from, Time to, Time interval) {
    return interval > 0 && to - from > interval / 2 * 3;
}

double Magnitude(const ValueSpan& span) {
    return std::max(std::abs(span.min), std::abs(span.max));
}

bool SameMagnitude(double a, double b) {
    return std::max(a, b) <= kSameMagnitude * std::min(a, b);
}

} // namespace

StripPlan PlanStrip(const Recording& recording) {
    StripPlan plan;
    const std::vector<Time>& times = recording.times;
    const auto end = std::upper_bound(times.begin(), times.end(), kLastStripTime);
    if (end == times.begin()) {
        plan.first = times.size();
        return plan;
    }
    const Time earliest = std::max(*std::prev(end) - kLongestStrip, kFirstStripTime);
    plan.first = static_cast<std::size_t>(std::lower_bound(times.begin(), end, earliest) - times.begin());

    for (const FileSummary& file : recording.files)
        plan.interval = std::max(plan.interval, file.interval);
    plan.interval = std::max(plan.interval, kMicrosPerSecond);
    const auto last = static_cast<std::size_t>(end - times.begin());
    std::size_t gaps = 0;
    std::size_t shared = 0;
    for (std::size_t i = plan.first + 1; i < last; ++i) {
        gaps += IsGap(times[i - 1], times[i], plan.interval);
        shared += WholeSecond(times[i - 1]) == WholeSecond(times[i]);
    }
    plan.wholeSeconds = shared * kUsualOf > last - plan.first;
    if (gaps * kUsualOf > last - plan.first)
        plan.interval = 0;
    return plan;
}

void AppendGap(Time from, Time to, Time interval, std::size_t sample, std::vector<StripRow>& rows) {
    if (!IsGap(from, to, interval))
        return;
    const Time step =
        std::max({WholeSecond(interval), (to - from) / kMostGapRows / kMicrosPerSecond * kMicrosPerSecond,
                  kMicrosPerSecond});
    for (Time time = from + step; time < to; time += step)
        rows.push_back({time, sample, 0});
}

void AppendRows(const Recording& recording, const StripPlan& plan, std::size_t& sample, std::size_t most,
                std::vector<StripRow>& rows) {
    const std::vector<Time>& times = recording.times;
    for (std::size_t taken = 0; sample < times.size() && times[sample] <= kLastStripTime;) {
        const Time second = WholeSecond(times[sample]);
        if (!rows.empty() && rows.back().count > 0 && rows.back().time == second) {
            ++rows.back().count;
        } else {
            if (taken >= most)
                return;
            if (!rows.empty())
                AppendGap(rows.back().time, second, plan.interval, sample, rows);
            rows.push_back({second, sample, 1});
        }
        ++sample;
        ++taken;
    }
    sample = times.size();
}

double StripValue(const std::vector<double>& values, const StripRow& row, double before) {
    double chosen = std::numeric_limits<double>::quiet_NaN();
    for (std::size_t i = row.sample; i < row.sample + row.count; ++i) {
        const double value = values[i];
        if (std::isnan(value))
            continue;
        if (std::isnan(chosen) || std::abs(value - before) > std::abs(chosen - before))
            chosen = value;
    }
    return chosen;
}

std::vector<bool> ShareOut(const std::vector<ValueSpan>& spans) {
    std::vector<bool> below(spans.size(), false);
    for (std::size_t i = 1; i < spans.size(); ++i)
        below[i] = !SameMagnitude(Magnitude(spans[i]), Magnitude(spans[0]));
    if (std::find(below.begin(), below.end(), true) == below.end() && spans.size() > 1)
        std::fill(below.begin() + 1, below.end(), true);
    return below;
}

std::size_t ChooseStripRange(Time length) {
    constexpr std::size_t count = std::size(kStripRanges);
    const auto covers = [length](int range) { return range * kMicrosPerSecond >= length; };
    const std::size_t found = static_cast<std::size_t>(
        std::find_if(std::begin(kStripRanges), std::end(kStripRanges), covers) - std::begin(kStripRanges));
    if (found == count)
        return count - 1;
    return found > 0 && length * 3 < kStripRanges[found] * kMicrosPerSecond ? found - 1 : found;
}

} // namespace kavlix::recording
