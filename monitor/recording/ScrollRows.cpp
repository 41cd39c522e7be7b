// SPDX-License-Identifier: MIT
// Lays a recording out over whole seconds.

#include "monitor/recording/ScrollRows.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace kavlix::recording {
namespace {

constexpr Time kMostGapRows = 1000; // one gap gets fewer than twice this number of rows

/// Gaps, and samples in the same second as the previous sample, are normal in a recording when more than one
/// sample in kUsualOf has them.
constexpr std::size_t kUsualOf = 10;

Time WholeSecond(Time time) {
    return FloorTo(time, kMicrosPerSecond);
}

bool IsGap(Time from, Time to, Time interval) {
    return interval > 0 && to - from > LongestStep(interval);
}

} // namespace

ScrollPlan PlanScrollRows(const Recording& recording) {
    ScrollPlan plan;
    const std::vector<Time>& times = recording.times;
    const auto end = std::upper_bound(times.begin(), times.end(), kLastStampTime);
    if (end == times.begin()) {
        plan.first = times.size();
        return plan;
    }
    const Time earliest = std::max(*std::prev(end) - kLongestTimeLine, kFirstStampTime);
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

void AppendGapRows(Time from, Time to, Time interval, std::size_t sample, std::vector<ScrollRow>& rows) {
    if (!IsGap(from, to, interval))
        return;
    const Time step =
        std::max({WholeSecond(interval), (to - from) / kMostGapRows / kMicrosPerSecond * kMicrosPerSecond,
                  kMicrosPerSecond});
    for (Time time = from + step; time < to; time += step)
        rows.push_back({time, sample, 0});
}

void AppendRows(const Recording& recording, const ScrollPlan& plan, std::size_t& sample, std::size_t most,
                std::vector<ScrollRow>& rows) {
    const std::vector<Time>& times = recording.times;
    for (std::size_t taken = 0; sample < times.size() && times[sample] <= kLastStampTime;) {
        const Time second = WholeSecond(times[sample]);
        if (!rows.empty() && rows.back().count > 0 && rows.back().time == second) {
            ++rows.back().count;
        } else {
            if (taken >= most)
                return;
            if (!rows.empty())
                AppendGapRows(rows.back().time, second, plan.interval, sample, rows);
            rows.push_back({second, sample, 1});
        }
        ++sample;
        ++taken;
    }
    sample = times.size();
}

double PeakValue(const std::vector<double>& values, const ScrollRow& row, double before) {
    double chosen = kNoValue;
    for (std::size_t i = row.sample; i < row.sample + row.count; ++i) {
        const double value = values[i];
        if (std::isnan(value))
            continue;
        if (std::isnan(chosen) || std::abs(value - before) > std::abs(chosen - before))
            chosen = value;
    }
    return chosen;
}

} // namespace kavlix::recording
